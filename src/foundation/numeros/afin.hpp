// Transformations as values, for the library's C++ and for hosts in C++: an affine one of the plane and a 4 x 4 one of
// space. Columns stand to the right: the last factor of a product is the first that a point meets.
//
//     const vn::matriz4 lugar = vn::matriz4::traslacion({5e5, 4.5e6, 600}) * vn::matriz4::giro({0, 0, 1}, radianes);
//     const Punto3D q = lugar.punto(p), direccion = lugar.vector(v);
//
// Where a point only turns or scales about a far origin, its difference from that origin is to be taken first: a matrix
// that holds coordinates of a survey rounds as they do.
#ifndef VN_AFIN_HPP
#define VN_AFIN_HPP

#include "../suelo/dueno.hpp"
#include "vmatr.h"
#include <cmath>
#include <optional>

namespace vn {

// A point of the plane (x, y) goes to (m[0][0] x + m[0][1] y + m[0][2], m[1][0] x + m[1][1] y + m[1][2]).
struct afin2 {
    double m[2][3] = {{1, 0, 0}, {0, 1, 0}};

    static afin2 traslacion(Punto2D d) { return {{{1, 0, d.x}, {0, 1, d.y}}}; }
    static afin2 escala(double sx, double sy) { return {{{sx, 0, 0}, {0, sy, 0}}}; }
    // Counter-clockwise about the origin.
    static afin2 giro(double radianes) {
        const double c = std::cos(radianes), s = std::sin(radianes);
        return {{{c, -s, 0}, {s, c, 0}}};
    }
    // Mirror in the line through `p` whose unit normal is `n`.
    static afin2 simetria(Punto2D p, Punto2D n) {
        const double d = 2 * (p.x * n.x + p.y * n.y);
        return {{{1 - 2 * n.x * n.x, -2 * n.x * n.y, d * n.x}, {-2 * n.x * n.y, 1 - 2 * n.y * n.y, d * n.y}}};
    }
    // From the coordinates of a frame, its origin and the vectors of its axes, to those that these are given in.
    static afin2 de_ejes(Punto2D o, Punto2D u, Punto2D v) { return {{{u.x, v.x, o.x}, {u.y, v.y, o.y}}}; }

    Punto2D vector(Punto2D v) const { return {m[0][0] * v.x + m[0][1] * v.y, m[1][0] * v.x + m[1][1] * v.y}; }
    Punto2D punto(Punto2D p) const {
        const Punto2D v = vector(p);
        return {v.x + m[0][2], v.y + m[1][2]};
    }
    afin2 operator*(const afin2 &b) const {
        const Punto2D u = vector({b.m[0][0], b.m[1][0]}), v = vector({b.m[0][1], b.m[1][1]});
        return de_ejes(punto({b.m[0][2], b.m[1][2]}), u, v);
    }

    // Area of what had 1; negative where left and right change places.
    double determinante() const { return m[0][0] * m[1][1] - m[0][1] * m[1][0]; }
    // None where the plane is flattened, or a value is not finite.
    std::optional<afin2> inversa() const {
        const double d = determinante();
        if (!(std::fabs(d) > 0) || !std::isfinite(d)) return std::nullopt;
        const afin2 lineal{{{m[1][1] / d, -m[0][1] / d, 0}, {-m[1][0] / d, m[0][0] / d, 0}}};
        const Punto2D o = lineal.vector({-m[0][2], -m[1][2]});
        return de_ejes(o, {lineal.m[0][0], lineal.m[1][0]}, {lineal.m[0][1], lineal.m[1][1]});
    }
    // Whether circles stay circles: both axes scaled alike and at a right angle, to a part of the scale.
    bool es_semejanza(double tolerancia) const {
        const double u = m[0][0] * m[0][0] + m[1][0] * m[1][0], v = m[0][1] * m[0][1] + m[1][1] * m[1][1];
        const double cruz = m[0][0] * m[0][1] + m[1][0] * m[1][1], margen = tolerancia * (u + v);
        return std::fabs(u - v) <= margen && std::fabs(cruz) <= margen;
    }
    // What lengths are multiplied by, of a similarity; of another one, the root of what areas are.
    double escala_media() const { return std::sqrt(std::fabs(determinante())); }
};

// A point of space (x, y, z, 1) goes to m (x, y, z, 1), rows first, divided by its fourth value.
struct matriz4 {
    double m[4][4] = {{1, 0, 0, 0}, {0, 1, 0, 0}, {0, 0, 1, 0}, {0, 0, 0, 1}};

    static matriz4 traslacion(Punto3D d) { return de_ejes(d, {1, 0, 0}, {0, 1, 0}, {0, 0, 1}); }
    static matriz4 escala(double sx, double sy, double sz) {
        return de_ejes({0, 0, 0}, {sx, 0, 0}, {0, sy, 0}, {0, 0, sz});
    }
    // About the unit vector `e` from the origin, by the right hand.
    static matriz4 giro(Punto3D e, double radianes) {
        const double c = std::cos(radianes), s = std::sin(radianes), k = 1 - c;
        // So written, a turn about an axis of the coordinates leaves that axis exactly.
        const auto propio = [c](double x) { return x * x + c * (1 - x * x); };
        return de_ejes({0, 0, 0}, {propio(e.x), e.y * e.x * k + e.z * s, e.z * e.x * k - e.y * s},
                       {e.x * e.y * k - e.z * s, propio(e.y), e.z * e.y * k + e.x * s},
                       {e.x * e.z * k + e.y * s, e.y * e.z * k - e.x * s, propio(e.z)});
    }
    // Mirror in the plane through `p` whose unit normal is `n`.
    static matriz4 simetria(Punto3D p, Punto3D n) {
        const double d = 2 * (p.x * n.x + p.y * n.y + p.z * n.z), xy = -2 * n.x * n.y, xz = -2 * n.x * n.z,
                     yz = -2 * n.y * n.z;
        return de_ejes({d * n.x, d * n.y, d * n.z}, {1 - 2 * n.x * n.x, xy, xz}, {xy, 1 - 2 * n.y * n.y, yz},
                       {xz, yz, 1 - 2 * n.z * n.z});
    }
    // From the coordinates of a frame, its origin and the vectors of its axes, to those that these are given in.
    static matriz4 de_ejes(Punto3D o, Punto3D u, Punto3D v, Punto3D w) {
        return {{{u.x, v.x, w.x, o.x}, {u.y, v.y, w.y, o.y}, {u.z, v.z, w.z, o.z}, {0, 0, 0, 1}}};
    }
    // The vectors of the axes of that frame, 0 to 2, and its origin, 3.
    Punto3D columna(int j) const { return {m[0][j], m[1][j], m[2][j]}; }
    // Doors of blocks of 16 values: by columns, coefficient (i, j) stands at 4 j + i; by rows, at 4 i + j.
    static matriz4 de_columnas(const double (&c)[16]) {
        matriz4 r;
        for (int k = 0; k < 16; ++k) r.m[k % 4][k / 4] = c[k];
        return r;
    }
    static matriz4 de_filas(const double (&f)[16]) {
        matriz4 r;
        for (int k = 0; k < 16; ++k) r.m[k / 4][k % 4] = f[k];
        return r;
    }
    void a_columnas(double (&c)[16]) const {
        for (int k = 0; k < 16; ++k) c[k] = m[k % 4][k / 4];
    }
    void a_filas(double (&f)[16]) const {
        for (int k = 0; k < 16; ++k) f[k] = m[k / 4][k % 4];
    }
    // Doors of matrices by their handle: one of four columns, and of four rows or of three (the last is 0 0 0 1 then).
    static matriz4 de_vmatr(const vmatr *a) {
        matriz4 r;
        for (uint32_t i = 0; i < 4 && i < vmatr_num_filas_matriz(a); ++i)
            for (uint32_t j = 0; j < 4; ++j) r.m[i][j] = vmatr_get_coef_matriz(a, i, j);
        return r;
    }
    dueno<vmatr_destruir_matriz> a_vmatr() const {
        dueno<vmatr_destruir_matriz> a(vmatr_crea_matriz_nula(4, 4));
        for (uint32_t i = 0; i < 4 && a != nullptr; ++i)
            for (uint32_t j = 0; j < 4; ++j) vmatr_set_coef_matriz(a.get(), i, j, m[i][j]);
        return a;
    }

    bool operator==(const matriz4 &) const = default;
    // Whether there is no perspective: what is parallel stays so.
    bool es_afin() const { return m[3][0] == 0 && m[3][1] == 0 && m[3][2] == 0 && m[3][3] == 1; }

    Punto3D vector(Punto3D v) const {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z, m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z,
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z};
    }
    Punto3D punto(Punto3D p) const {
        const Punto3D v = vector(p), q{v.x + m[0][3], v.y + m[1][3], v.z + m[2][3]};
        if (es_afin()) return q;
        const double w = m[3][0] * p.x + m[3][1] * p.y + m[3][2] * p.z + m[3][3];
        return {q.x / w, q.y / w, q.z / w};
    }
    matriz4 operator*(const matriz4 &b) const {
        matriz4 r;
        // The product of two affine ones is affine, with values that are not finite too.
        const bool afines = es_afin() && b.es_afin();
        for (int i = 0; i < (afines ? 3 : 4); ++i)
            for (int j = 0; j < 4; ++j) {
                const double s = m[i][0] * b.m[0][j] + m[i][1] * b.m[1][j] + m[i][2] * b.m[2][j];
                if (!afines) r.m[i][j] = s + m[i][3] * b.m[3][j];
                else r.m[i][j] = j == 3 ? s + m[i][3] : s;
            }
        return r;
    }
    // By cofactors, without a tolerance: none where the determinant is 0, or not finite.
    std::optional<matriz4> inversa() const {
        // Those of two rows: the first two, the last two.
        const auto menor = [this](int i, int a, int b) { return m[i][a] * m[i + 1][b] - m[i + 1][a] * m[i][b]; };
        const double s0 = menor(0, 0, 1), s1 = menor(0, 0, 2), s2 = menor(0, 0, 3), s3 = menor(0, 1, 2),
                     s4 = menor(0, 1, 3), s5 = menor(0, 2, 3), c0 = menor(2, 0, 1), c1 = menor(2, 0, 2),
                     c2 = menor(2, 0, 3), c3 = menor(2, 1, 2), c4 = menor(2, 1, 3), c5 = menor(2, 2, 3);
        const double d = s0 * c5 - s1 * c4 + s2 * c3 + s3 * c2 - s4 * c1 + s5 * c0;
        if (!(std::fabs(d) > 0) || !std::isfinite(d)) return std::nullopt;
        // Two rows of the result from each three of the other half's.
        const auto fila = [this](int i, int a, int b, int c, double x, double y, double z) {
            return m[i][a] * x - m[i][b] * y + m[i][c] * z;
        };
        matriz4 r{{{fila(1, 1, 2, 3, c5, c4, c3) / d, -fila(0, 1, 2, 3, c5, c4, c3) / d,
                    fila(3, 1, 2, 3, s5, s4, s3) / d, -fila(2, 1, 2, 3, s5, s4, s3) / d},
                   {-fila(1, 0, 2, 3, c5, c2, c1) / d, fila(0, 0, 2, 3, c5, c2, c1) / d,
                    -fila(3, 0, 2, 3, s5, s2, s1) / d, fila(2, 0, 2, 3, s5, s2, s1) / d},
                   {fila(1, 0, 1, 3, c4, c2, c0) / d, -fila(0, 0, 1, 3, c4, c2, c0) / d,
                    fila(3, 0, 1, 3, s4, s2, s0) / d, -fila(2, 0, 1, 3, s4, s2, s0) / d},
                   {-fila(1, 0, 1, 2, c3, c1, c0) / d, fila(0, 0, 1, 2, c3, c1, c0) / d,
                    -fila(3, 0, 1, 2, s3, s1, s0) / d, fila(2, 0, 1, 2, s3, s1, s0) / d}}};
        // Rounding is not to make a perspective of an affine one.
        if (es_afin()) r.m[3][0] = r.m[3][1] = r.m[3][2] = 0, r.m[3][3] = 1;
        return r;
    }
    // As it is seen from above, of an affine one: what it does to points of the plane z = 0.
    afin2 en_planta() const { return {{{m[0][0], m[0][1], m[0][3]}, {m[1][0], m[1][1], m[1][3]}}}; }
};

} // namespace vn

#endif
