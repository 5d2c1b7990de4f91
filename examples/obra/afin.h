// Affine maps of a drawing: where the entities of a block or of an object's own axes land in space, seen from above.
#pragma once

#include <cmath>

namespace obra {

struct vector3 {
    double x, y, z;
};

// p -> lineal * p + desplazamiento, rows first.
struct afin {
    double m[3][3] = {{1, 0, 0}, {0, 1, 0}, {0, 0, 1}};
    double d[3] = {0, 0, 0};

    vector3 vector(vector3 v) const {
        return {m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z, m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z,
                m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z};
    }
    vector3 punto(vector3 p) const {
        const vector3 v = vector(p);
        return {v.x + d[0], v.y + d[1], v.z + d[2]};
    }
    // First `b`, then this.
    afin por(const afin &b) const {
        afin r;
        for (int i = 0; i < 3; ++i) {
            for (int j = 0; j < 3; ++j) r.m[i][j] = m[i][0] * b.m[0][j] + m[i][1] * b.m[1][j] + m[i][2] * b.m[2][j];
            r.d[i] = m[i][0] * b.d[0] + m[i][1] * b.d[1] + m[i][2] * b.d[2] + d[i];
        }
        return r;
    }
    // Determinant of the map that is seen from above.
    double giro_en_planta() const { return m[0][0] * m[1][1] - m[0][1] * m[1][0]; }
    // Whether circles stay circles from above: equal scales, at a right angle.
    bool conserva_circulos() const {
        const double a = m[0][0], b = m[0][1], c = m[1][0], e = m[1][1];
        const double u = a * a + c * c, v = b * b + e * e, cruz = a * b + c * e;
        const double tolerancia = 1e-9 * (u + v); // relative: drawings come in every scale
        return std::fabs(u - v) <= tolerancia && std::fabs(cruz) <= tolerancia;
    }
    double escala_en_planta() const { return std::sqrt(std::fabs(giro_en_planta())); }
};

inline afin desplazamiento(double x, double y, double z) {
    afin r;
    r.d[0] = x;
    r.d[1] = y;
    r.d[2] = z;
    return r;
}

// An inserted block: scaled, turned about z (radians), moved.
inline afin insercion(double sx, double sy, double sz, double angulo, vector3 en) {
    const double c = std::cos(angulo), s = std::sin(angulo);
    return {{{c * sx, -s * sy, 0}, {s * sx, c * sy, 0}, {0, 0, sz}}, {en.x, en.y, en.z}};
}

// Axes of an object from its extrusion direction, by the arbitrary-axis rule of DXF: the x axis is square to the
// world's y axis where the direction is within 1/64 of the world's z axis, to its z axis elsewhere.
inline afin ejes_de_objeto(vector3 n) {
    const double modulo = std::sqrt(n.x * n.x + n.y * n.y + n.z * n.z);
    if (!(modulo > 0) || (n.x == 0 && n.y == 0 && n.z > 0)) return {};
    n = {n.x / modulo, n.y / modulo, n.z / modulo};
    vector3 u = std::fabs(n.x) < 1.0 / 64 && std::fabs(n.y) < 1.0 / 64 ? vector3{n.z, 0, -n.x} : vector3{-n.y, n.x, 0};
    const double lu = std::sqrt(u.x * u.x + u.y * u.y + u.z * u.z);
    u = {u.x / lu, u.y / lu, u.z / lu};
    const vector3 v = {n.y * u.z - n.z * u.y, n.z * u.x - n.x * u.z, n.x * u.y - n.y * u.x};
    return {{{u.x, v.x, n.x}, {u.y, v.y, n.y}, {u.z, v.z, n.z}}, {0, 0, 0}};
}

} // namespace obra
