// Points and vectors as values, for the libraries' own sources.
#pragma once

#include "foundation/tipos.h"

#define EXIGE2(a, b) (AFIRMA_NO_NULO(a) && AFIRMA_NO_NULO(b))
#define EXIGE3(a, b, c) (EXIGE2(a, b) && AFIRMA_NO_NULO(c))

namespace vn {

inline constexpr double PI = 3.141592653589793;

inline Punto3D operator+(Punto3D a, Punto3D b) { return {a.x + b.x, a.y + b.y, a.z + b.z}; }
inline Punto3D operator-(Punto3D a, Punto3D b) { return {a.x - b.x, a.y - b.y, a.z - b.z}; }
inline Punto3D operator-(Punto3D a) { return {-a.x, -a.y, -a.z}; }
inline Punto3D operator*(double k, Punto3D a) { return {k * a.x, k * a.y, k * a.z}; }
inline double escalar(Punto3D a, Punto3D b) { return a.x * b.x + a.y * b.y + a.z * b.z; }
inline Punto3D vectorial(Punto3D a, Punto3D b) {
    return {a.y * b.z - a.z * b.y, a.z * b.x - a.x * b.z, a.x * b.y - a.y * b.x};
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

} // namespace vn
