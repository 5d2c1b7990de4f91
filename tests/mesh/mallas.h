// Meshes as the tests look at them: through their walks, as triangles whose corners are points, and what holds of
// solids.
#pragma once

#include "espacio.h"
#include "foundation/suelo/dueno.hpp"
#include "mesh/vornmesh.h"
#include <array>
#include <map>
#include <vector>

namespace mallas {

using namespace espacio;
using malla = vn::dueno<vornmesh_destruye>;

// A list of contours, faces, sections or rows.
inline void destruye_lista(arrPuntero *a) { arr_DestruyeEstructurasArrayST(&a, arrPunto3D, arr_DestruyePunto3D); }
struct lista {
    vn::dueno<destruye_lista> a{arr_CreaPunteroConTipo(0)};
    lista() = default;
    lista(const std::vector<std::vector<vec>> &contornos) {
        for (const auto &c : contornos) arr_AppendPunteroST(a.get(), puntos(c).a.release(), arrPunto3D);
    }
    operator arrPuntero *() const { return a.get(); }
};

struct triangulo {
    std::array<vec, 3> p, n;
    std::array<bool, 3> borde;
    vec doble_area() const { return cruz(p[1] - p[0], p[2] - p[0]); }
};
inline void anota(std::vector<triangulo> *v, double x1, double y1, double z1, double nx1, double ny1, double nz1,
                  vnbool b1, double x2, double y2, double z2, double nx2, double ny2, double nz2, vnbool b2, double x3,
                  double y3, double z3, double nx3, double ny3, double nz3, vnbool b3) {
    v->push_back({{vec{x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}},
                  {vec{nx1, ny1, nz1}, {nx2, ny2, nz2}, {nx3, ny3, nz3}},
                  {b1 == CIERTO, b2 == CIERTO, b3 == CIERTO}});
}
inline std::vector<triangulo> triangulos(const mesh *m) {
    std::vector<triangulo> v;
    vornmesh_recorre_mesh(m, std::vector<triangulo>, &v, anota);
    return v;
}

// What the triangles sum up to, relative to a point near them: their area, the vector of it, the volume inside.
struct suma {
    double area = 0., volumen = 0., bordes = 0.;
    vec vector{};
    suma(const std::vector<triangulo> &t, vec o) {
        for (const triangulo &x : t) {
            const vec d = x.doble_area();
            area += largo(d) / 2.;
            vector = vector + 0.5 * d;
            volumen += por(x.p[0] - o, d) / 6.;
            for (int i = 0; i < 3; ++i)
                if (x.borde[i]) bordes += largo(x.p[(i + 1) % 3] - x.p[i]);
        }
    }
};

// Whether each edge is met as often one way as the other: no opening, and all faces turned alike. Points nearer than
// the tolerance are one.
inline bool cerrada(const std::vector<triangulo> &t, double tolerancia) {
    std::vector<vec> vertices;
    const auto cual = [&](vec p) {
        for (size_t i = 0; i < vertices.size(); ++i)
            if (largo(vertices[i] - p) < tolerancia) return i;
        vertices.push_back(p);
        return vertices.size() - 1;
    };
    std::map<std::pair<size_t, size_t>, int> veces;
    for (const triangulo &x : t)
        for (int i = 0; i < 3; ++i) {
            const size_t a = cual(x.p[i]), b = cual(x.p[(i + 1) % 3]);
            if (a != b) ++veces[{a, b}], --veces[{b, a}];
        }
    for (const auto &[lado, n] : veces)
        if (n != 0) return false;
    return !t.empty();
}

// Whether every normal is of length 1 and on the side that its triangle looks to.
inline bool normales_hacia_fuera(const std::vector<triangulo> &t) {
    for (const triangulo &x : t) {
        const vec d = x.doble_area();
        for (const vec n : x.n)
            if (!(std::fabs(largo(n) - 1.) < 1e-9) || (largo(d) > 1e-7 && !(por(n, d) > 0.))) return false;
    }
    return true;
}

} // namespace mallas
