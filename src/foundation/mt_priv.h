// Vectors of the maths library's own sources: lengths and unit vectors without overflow.
#pragma once

#include "foundation/vector_priv.h"
#include <algorithm>
#include <cfloat>
#include <cmath>

namespace vn {

// Between these the sum of squares of a vector neither overflows nor loses digits.
constexpr double CUADRADO_MINIMO = 1e-280, CUADRADO_MAXIMO = 1e300;

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
constexpr double SENO_UNITARIOS = 1e-14, REDONDEO_COORDENADAS = 2. * DBL_EPSILON;
inline double seno_de_redondeo(double mayor_coordenada, double menor_longitud) {
    return std::max(SENO_UNITARIOS, REDONDEO_COORDENADAS * mayor_coordenada / menor_longitud);
}

} // namespace vn
