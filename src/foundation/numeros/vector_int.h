// Points and vectors of the plane and of space as values, for the libraries' own sources: the records of the C surface
// with operators. Lengths and unit vectors without overflow; the constants of angles.
#pragma once

#include "foundation/suelo/tipos.h"
#include <algorithm>
#include <cfloat>
#include <cmath>

namespace vn::numeros {

inline constexpr double PI = 3.141592653589793, MEDIA_VUELTA = PI, VUELTA = 2. * PI, RADIANES_POR_GRADO = PI / 180.;

inline Punto2D operator+(Punto2D a, Punto2D b) { return {a.x + b.x, a.y + b.y}; }
inline Punto2D operator-(Punto2D a, Punto2D b) { return {a.x - b.x, a.y - b.y}; }
inline Punto2D operator-(Punto2D a) { return {-a.x, -a.y}; }
inline Punto2D operator*(double k, Punto2D a) { return {k * a.x, k * a.y}; }
inline Punto2D operator/(Punto2D a, double k) { return {a.x / k, a.y / k}; }
inline double escalar(Punto2D a, Punto2D b) { return a.x * b.x + a.y * b.y; }
// Positive when the second is to the left of the first.
inline double vectorial(Punto2D a, Punto2D b) { return a.x * b.y - a.y * b.x; }
// A quarter of a turn to the left.
inline Punto2D perpendicular(Punto2D a) { return {-a.y, a.x}; }

inline Punto3D operator+(Punto3D a, Punto3D b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Punto3D operator-(Punto3D a, Punto3D b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Punto3D operator-(Punto3D a) { return {-a.x, -a.y, -a.z}; }
inline Punto3D operator*(double k, Punto3D a) { return {k * a.x, k * a.y, k * a.z}; }
inline Punto3D operator/(Punto3D a, double k) { return {a.x / k, a.y / k, a.z / k}; }
inline double escalar(Punto3D a, Punto3D b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Punto3D vectorial(Punto3D a, Punto3D b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

template <class V> double cuadrado(V a) { return escalar(a, a); }
// The point of the line from p, where `t` is 0, to q, where it is 1.
template <class V> V relativo(V p, V q, double t) { return p + t * (q - p); }

inline double mayor_coordenada(Punto2D p) { return std::max(std::fabs(p.x), std::fabs(p.y)); }
inline double mayor_coordenada(Punto3D p) { return std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(p.z)}); }

// Whether all coordinates are numbers whose sum is one too: those near the end of the range of doubles count as
// infinite.
inline bool es_finito(Punto2D p) { return std::isfinite(p.x + p.y); }
inline bool es_finito(Punto3D p) { return std::isfinite(p.x + p.y + p.z); }

// Between these the sum of squares of a vector neither overflows nor loses digits.
inline constexpr double CUADRADO_MINIMO = 1e-280, CUADRADO_MAXIMO = 1e300;

// What to multiply a vector by, a power of two, so that its largest component is about 1. 0 for the vector zero and for
// one that is not finite.
template <class V> double escala_exacta(V v) {
    const double m = mayor_coordenada(v);
    if (!(m > 0.) || !es_finito(v)) return 0.;
    return std::ldexp(1., std::clamp(-std::ilogb(m), -1022, 1022));
}

// Length.
template <class V> double modulo(V v) {
    const double s = cuadrado(v);
    if (s > CUADRADO_MINIMO && s < CUADRADO_MAXIMO) [[likely]]
        return std::sqrt(s);
    const double k = escala_exacta(v);
    return k == 0. ? std::sqrt(s) : std::sqrt(cuadrado(k * v)) / k;
}

// Makes it of unit length; false, and it stays, when it has no direction.
template <class V> bool unitario(V &v) {
    V w = v;
    double s = cuadrado(w);
    if (!(s > CUADRADO_MINIMO && s < CUADRADO_MAXIMO)) [[unlikely]] {
        const double k = escala_exacta(v);
        if (k == 0.) return false;
        w = k * v;
        s = cuadrado(w);
    }
    v = w / std::sqrt(s);
    return true;
}

// Direction of a vector, from 0 to below a full turn.
inline double angulo(Punto2D v) {
    double a = std::atan2(v.y, v.x);
    if (a < 0.) a += VUELTA;
    return a >= 0. && a < VUELTA ? a : 0.; // a hair below 0 comes up to the full turn itself
}

// Sine of the angle of two directions at or below which they are one: the rounding of unit vectors, and, where more,
// that of the coordinates that the directions are differences of.
inline constexpr double SENO_UNITARIOS = 1e-14, REDONDEO_COORDENADAS = 2. * DBL_EPSILON;
inline double seno_de_redondeo(double mayor_coordenada, double menor_longitud) {
    return std::max(SENO_UNITARIOS, REDONDEO_COORDENADAS * mayor_coordenada / menor_longitud);
}

// Writes each output that is not null.
inline void da(double *x, double *y, Punto2D p) {
    if (x != nullptr) *x = p.x;
    if (y != nullptr) *y = p.y;
}
inline void da(double *x, double *y, double *z, Punto3D p) {
    da(x, y, {p.x, p.y});
    if (z != nullptr) *z = p.z;
}

} // namespace vn::numeros

// The records of the C surface live in no namespace, so that their operators are found from here.
namespace vn {
using numeros::operator+;
using numeros::operator-;
using numeros::operator*;
using numeros::operator/;
} // namespace vn
