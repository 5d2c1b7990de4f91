// Points, vectors and frames for the tests of what is in space.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <cmath>
#include <vector>

namespace espacio {

using vec = Punto3D;
inline vec operator+(vec a, vec b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline vec operator-(vec a, vec b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline vec operator*(double k, vec a) { return {k * a.x, k * a.y, k * a.z}; }
inline double por(vec a, vec b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline vec cruz(vec a, vec b) { return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x}; }
inline double largo(vec a) { return std::sqrt(por(a, a)); }
inline vec unitario(vec a) { return (1. / largo(a)) * a; }

// A frame: what the operations take as nine values, EJ(m), and give through nine addresses, A_EJ(m).
struct marco {
    vec o{}, u{1., 0., 0.}, v{0., 1., 0.};
    vec w() const { return cruz(u, v); }
    vec punto(double x, double y, double z = 0.) const { return o + x * u + y * v + z * w(); }
};
#define UV_(m) (m).u.x, (m).u.y, (m).u.z, (m).v.x, (m).v.y, (m).v.z
#define EJ(m) (m).o.x, (m).o.y, (m).o.z, UV_(m)
#define XYZ(p) (p).x, (p).y, (p).z
#define A_XYZ(p) &(p).x, &(p).y, &(p).z
#define A_UV(m) A_XYZ((m).u), A_XYZ((m).v)
#define A_EJ(m) A_XYZ((m).o), A_UV(m)

inline vec vector_al_azar(vn::azar &a, double lado = 1.) {
    return {a.entre(-lado, lado), a.entre(-lado, lado), a.entre(-lado, lado)};
}
inline vec direccion_al_azar(vn::azar &a) {
    for (;;) {
        const vec d = vector_al_azar(a);
        if (largo(d) > 0.1 && largo(d) < 1.) return unitario(d);
    }
}
inline marco marco_al_azar(vn::azar &a, double lado, const vn::lugar &l = {}) {
    const vec u = direccion_al_azar(a);
    for (;;) {
        const vec d = direccion_al_azar(a), v = d - por(d, u) * u;
        if (largo(v) > 0.1) return {vec{l.x, l.y, l.z} + vector_al_azar(a, lado), u, unitario(v)};
    }
}

// The vectors of a text, three numbers each.
inline std::vector<vec> vectores(const std::string &texto) {
    std::vector<vec> r;
    const auto v = vn::los_numeros(texto);
    for (size_t i = 0; i + 2 < v.size(); i += 3) r.push_back({v[i], v[i + 1], v[i + 2]});
    return r;
}

// Arrays of the family that free themselves.
struct puntos {
    vn::dueno<arr_DestruyePunto3D> a;
    explicit puntos(const std::vector<vec> &p) : a(arr_CreaPunto3D(0)) {
        for (const vec &q : p) arr_AppendPunto3D(a.get(), q.x, q.y, q.z);
    }
    explicit puntos(arrPunto3D *propio) : a(propio) {}
    operator arrPunto3D *() const { return a.get(); }
    uint32_t size() const { return a == nullptr ? 0 : arr_NumElemsPunto3D(a.get()); }
    vec operator[](uint32_t i) const { return arr_GetBufferConstPunto3D(a.get())[i]; }
};
// The same in a plane; a point of it has no z.
struct planos {
    vn::dueno<arr_DestruyePunto2D> a;
    explicit planos(arrPunto2D *propio) : a(propio) {}
    operator arrPunto2D *() const { return a.get(); }
    uint32_t size() const { return arr_NumElemsPunto2D(a.get()); }
    vec operator[](uint32_t i) const {
        const Punto2D p = arr_GetBufferConstPunto2D(a.get())[i];
        return {p.x, p.y, 0.};
    }
};

} // namespace espacio
