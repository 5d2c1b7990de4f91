/* Matrices: a handle of a dense matrix of doubles, with its rows and columns counted from 0.

   A matrix belongs to one thread at a time. An index that the matrix does not have is reported and gives 0 or
   changes nothing. The coefficients lie by columns: a matrix of points has a point in each column. */
#ifndef VN_VMATR_H
#define VN_VMATR_H

#include "../suelo/tipos.h"

typedef struct vmatr vmatr;

VN_C_INICIO

/** New matrix of zeros. At most 134,217,728 coefficients; more, or none, is reported and gives null, and so
    is a matrix that there is no memory for. */
vmatr *vmatr_crea_matriz_nula(VN_RANGO(1, 134217728) uint32_t filas, VN_RANGO(1, 134217728) uint32_t columnas);
/** New identity matrix of `n` rows and columns. */
vmatr *vmatr_crea_matriz_identidad(VN_RANGO(1, 11585) uint32_t n);
/** Frees the matrix and leaves `*m` null. */
void vmatr_destruir_matriz(vmatr **m);
/** Number of rows, of columns. */
uint32_t vmatr_num_filas_matriz(const vmatr *m);
uint32_t vmatr_num_columnas_matriz(const vmatr *m);
/** The coefficient of row `i` and column `j`. */
double vmatr_get_coef_matriz(const vmatr *m, uint32_t i, uint32_t j);
/** Replaces the coefficient of row `i` and column `j`. */
void vmatr_set_coef_matriz(vmatr *m, uint32_t i, uint32_t j, double v);
/** The coefficients, borrowed while the matrix lives: that of row i and column j stands at j * rows + i. */
double *vmatr_get_buffer_matriz(vmatr *m);

/** New inverse of a square matrix. One that has none (a row that the others give, to the precision of
    doubles, or a coefficient that is not finite) is reported and gives null. The scales of rows and columns do
    not matter: those of a transformation that displaces by kilometres and scales by a millionth are fine. */
vmatr *vmatr_matriz_inversa(const vmatr *m);
/** New product of `cambio` by `columnas`: each column of the second, a point or an axis, through the first.
    As many columns in the first as rows in the second; otherwise it is reported, and null. */
vmatr *vmatr_producto_cambio_x_columnas(const vmatr *cambio, const vmatr *columnas);
/** The same product into `resultado`, which has the rows of the first and the columns of the second and keeps
    nothing of what it had. It may be one of the two. Other sizes are reported and leave it as it was. */
void vmatr_producto_sobre_buffer_cambio_x_columnas(const vmatr *cambio, const vmatr *columnas, vmatr *resultado);
/** As vmatr_producto_sobre_buffer_cambio_x_columnas with the first matrix transposed: a rotation undone. */
void vmatr_producto_sobre_buffer_cambio_trasp_x_columnas(const vmatr *cambio, const vmatr *columnas, vmatr *resultado);

VN_C_FIN

#endif
