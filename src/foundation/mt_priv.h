// Vectors of the maths library's own sources: lengths and unit vectors without overflow.
#pragma once

#include <algorithm>
#include <cmath>

namespace vn {

/** A vector of space; one of the plane has z = 0. */
struct v3 {
    double x, y, z = 0.;
};

inline v3 operator-(const v3 &a, const v3 &b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline v3 operator*(double k, const v3 &v) { return {k * v.x, k * v.y, k * v.z}; }
inline v3 operator+(const v3 &a, const v3 &b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline double escalar(const v3 &a, const v3 &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline v3 vectorial(const v3 &a, const v3 &b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
}

// Between these the sum of squares of a vector neither overflows nor loses digits.
constexpr double CUADRADO_MINIMO = 1e-280, CUADRADO_MAXIMO = 1e300;

/** What to multiply a vector by, a power of two, so that its largest component is about 1. 0 for the vector
   zero and for one that is not finite. */
inline double escala_exacta(const v3 &v) {
    const double m = std::max({std::fabs(v.x), std::fabs(v.y), std::fabs(v.z)});
    if (!(m > 0.) || !std::isfinite(v.x + v.y + v.z)) return 0.;
    return std::ldexp(1., std::clamp(-std::ilogb(m), -1022, 1022));
}

/** Length. */
inline double modulo(const v3 &v) {
    const double s = escalar(v, v);
    if (s > CUADRADO_MINIMO && s < CUADRADO_MAXIMO) [[likely]]
        return std::sqrt(s);
    const double k = escala_exacta(v);
    if (k == 0.) return std::sqrt(s);
    const v3 w = k * v;
    return std::sqrt(escalar(w, w)) / k;
}

/** Makes it of unit length; false, and it stays, when it has no direction. */
inline bool unitario(v3 &v) {
    v3 w = v;
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

/** Writes the outputs that are not null. */
inline void da(const v3 &v, double *x, double *y, double *z) {
    if (x != nullptr) *x = v.x;
    if (y != nullptr) *y = v.y;
    if (z != nullptr) *z = v.z;
}

} // namespace vn
