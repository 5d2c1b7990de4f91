/* Transformations of space as handles: 4 x 4 matrices that no operation changes.

   A point (x, y, z, 1), a column, goes to the product of the matrix by it: axes and origin stand in the columns, and
   the last factor of a product is the first that a point meets. Any thread may ask one matrix at once. Hosts in C++
   have the same as a value, vn::matriz4 of afin.hpp. */
#ifndef VN_GCMAT4X4_H
#define VN_GCMAT4X4_H

#include "../suelo/tipos.h"

typedef struct gcMat4x4 gcMat4x4;

VN_C_INICIO

/** New displacement. */
gcMat4x4 *gcMat4x4_make_translation(double dx, double dy, double dz);
/** New scale about the origin, each axis by its own factor. */
gcMat4x4 *gcMat4x4_make_scale(double ex, double ey, double ez);
/** New turn by `angulo` radians about the axis through the origin with that direction, of any length, by the right
    hand. A direction of no length is reported and gives null. */
gcMat4x4 *gcMat4x4_make_rotation_around_axis(double ejex, double ejey, double ejez, double angulo);
/** New change from the coordinates of a frame, its origin and the vectors of its axes as they are given, to those that
    they are given in: U, V, W and the origin are the columns. */
gcMat4x4 *gcMat4x4_make_3D_transform(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                     double Vy, double Vz, double Wx, double Wy, double Wz);
/** New product: a point meets `b` first. */
gcMat4x4 *gcMat4x4_multiply(const gcMat4x4 *a, const gcMat4x4 *b);
/** New inverse. A matrix that has none (its determinant is 0 or not finite) is reported and gives null. */
gcMat4x4 *gcMat4x4_inverse(const gcMat4x4 *m);
/** The coefficient of row `i` and column `j`; an index that is not there is reported and gives 0. */
double gcMat4x4_get(const gcMat4x4 *m, VN_RANGO(0, 3) uint32_t i, VN_RANGO(0, 3) uint32_t j);
/** The four coefficients of row `i`; an index that is not there is reported and gives zeros. */
void gcMat4x4_get_row(const gcMat4x4 *m, VN_RANGO(0, 3) uint32_t i, VN_SALIDA double *c0, VN_SALIDA double *c1,
                      VN_SALIDA double *c2, VN_SALIDA double *c3);
/** Frees the matrix and leaves `*m` null. */
void gcMat4x4_free(gcMat4x4 **m);

VN_C_FIN

#endif
