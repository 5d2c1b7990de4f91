// Points and vectors as values, for the libraries' own sources: lengths and unit vectors without overflow.
#pragma once

#include "foundation/suelo/tipos.h"
#include <algorithm>
#include <cfloat>
#include <cmath>

#define EXIGE2(a, b) (AFIRMA_NO_NULO(a) && AFIRMA_NO_NULO(b))
#define EXIGE3(a, b, c) (EXIGE2(a, b) && AFIRMA_NO_NULO(c))

namespace vn::numeros {

inline constexpr double PI = 3.141592653589793, MEDIA_VUELTA = PI, VUELTA = 6.283185307179586;

inline Punto3D operator+(Punto3D a, Punto3D b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Punto3D operator-(Punto3D a, Punto3D b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Punto3D operator-(Punto3D a) { return {-a.x, -a.y, -a.z}; }
inline Punto3D operator*(double k, Punto3D a) { return {k * a.x, k * a.y, k * a.z}; }
inline double escalar(Punto3D a, Punto3D b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Punto3D vectorial(Punto3D a, Punto3D b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Between these the sum of squares of a vector neither overflows nor loses digits.
inline constexpr double CUADRADO_MINIMO = 1e-280, CUADRADO_MAXIMO = 1e300;

inline double mayor_coordenada(Punto3D p) { return std::max({std::fabs(p.x), std::fabs(p.y), std::fabs(p.z)}); }

// What to multiply a vector by, a power of two, so that its largest component is about 1. 0 for the vector
// zero and for one that is not finite.
inline double escala_exacta(Punto3D v) {
    const double m = mayor_coordenada(v);
    if (!(m > 0.) || !std::isfinite(v.x + v.y + v.z)) return 0.;
    return std::ldexp(1., std::clamp(-std::ilogb(m), -1022, 1022));
}

// Length.
inline double modulo(Punto3D v) {
    const double s = escalar(v, v);
    if (s > CUADRADO_MINIMO && s < CUADRADO_MAXIMO) [[likely]]
        return std::sqrt(s);
    const double k = escala_exacta(v);
    if (k == 0.) return std::sqrt(s);
    const Punto3D w = k * v;
    return std::sqrt(escalar(w, w)) / k;
}

// Makes it of unit length; false, and it stays, when it has no direction.
inline bool unitario(Punto3D &v) {
    Punto3D w = v;
    double s = escalar(w, w);
    if (!(s > CUADRADO_MINIMO && s < CUADRADO_MAXIMO)) [[unlikely]] {
        const double k = escala_exacta(v);
        if (k == 0.) return false;
        w = k * v;
        s = escalar(w, w);
    }
    const double l = std::sqrt(s);
    v = {w.x / l, w.y / l, w.z / l};
    return true;
}

// Sine of the angle of two directions at or below which they are one: the rounding of unit vectors, and, where
// more, that of the coordinates that the directions are differences of.
inline constexpr double SENO_UNITARIOS = 1e-14, REDONDEO_COORDENADAS = 2. * DBL_EPSILON;
inline double seno_de_redondeo(double mayor_coordenada, double menor_longitud) {
    return std::max(SENO_UNITARIOS, REDONDEO_COORDENADAS * mayor_coordenada / menor_longitud);
}

// Writes to those of the addresses that are not null.
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
} // namespace vn
