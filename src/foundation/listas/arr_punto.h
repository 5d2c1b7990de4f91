/* Arrays of points, of the plane and of space; outlines of figures; points with a pointer of the caller's. */
#ifndef VN_ARR_PUNTO_H
#define VN_ARR_PUNTO_H

#include "arr_tipos.h"

VN_C_INICIO

/** New array of `n` points, all zero. As arr_CreaULong on a count that cannot be. */
arrPunto2D *arr_CreaPunto2D(VN_RANGO(0, 268435456) uint32_t n);
arrPunto3D *arr_CreaPunto3D(VN_RANGO(0, 268435456) uint32_t n);
arrPunto2DXPriv *arr_CreaPunto2DXPriv(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the array and leaves `*a` null. */
void arr_DestruyePunto2D(arrPunto2D **a);
void arr_DestruyePunto3D(arrPunto3D **a);

/** Frees the array and leaves `*a` null; a destroyer is called first with the address of each private value that is
    not null. */
void arr_DestruyePunto2DXPriv(arrPunto2DXPriv **a, VN_OPC vnfunc_destruye destructor);

/** New array with the same points. */
arrPunto2D *arr_CopiaPunto2D(const arrPunto2D *a);
arrPunto3D *arr_CopiaPunto3D(const arrPunto3D *a);

/** Number of points. */
uint32_t arr_NumElemsPunto2D(const arrPunto2D *a);
uint32_t arr_NumElemsPunto3D(const arrPunto3D *a);
uint32_t arr_NumElemsPunto2DXPriv(const arrPunto2DXPriv *a);

/** Gives the coordinates of point `i`; zeros after a report. */
void arr_GetPunto2D(const arrPunto2D *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x, VN_SALIDA double *y);
void arr_GetPunto3D(const arrPunto3D *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x, VN_SALIDA double *y,
                    VN_SALIDA double *z);

/** Gives the coordinates of point `i` and, if asked for, its private value; zeros and null after a report. */
void arr_GetPunto2DXPriv(const arrPunto2DXPriv *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x, VN_SALIDA double *y,
                         VN_SALIDA_OPC void **priv);

/** Replaces point `i`. */
void arr_SetPunto2D(arrPunto2D *a, VN_INDICE(a) uint32_t i, double x, double y);
void arr_SetPunto3D(arrPunto3D *a, VN_INDICE(a) uint32_t i, double x, double y, double z);
void arr_SetPunto2DXPriv(arrPunto2DXPriv *a, VN_INDICE(a) uint32_t i, double x, double y, VN_DATO void *priv);

/** Adds a point at the end. */
void arr_AppendPunto2D(arrPunto2D *a, double x, double y);
void arr_AppendPunto3D(arrPunto3D *a, double x, double y, double z);
void arr_AppendPunto2DXPriv(arrPunto2DXPriv *a, double x, double y, VN_DATO void *priv);

/** Removes point `i`. */
void arr_BorrarPunto2D(arrPunto2D *a, VN_INDICE(a) uint32_t i);
void arr_BorrarPunto3D(arrPunto3D *a, VN_INDICE(a) uint32_t i);

/** Appends the points of `b` to `a`; both may be the same array. */
void arr_ConcatenaPunto2D(arrPunto2D *a, const arrPunto2D *b);
void arr_ConcatenaPunto3D(arrPunto3D *a, const arrPunto3D *b);

/** Reverses the order of the points, in place. */
void arr_InvertirPunto3D(arrPunto3D *a);

/** Whether both have the same points in the same order, each coordinate within `tolerancia`. */
vnbool arr_SonIgualesPunto3DConTolerancia(const arrPunto3D *a, const arrPunto3D *b, double tolerancia);

/** Whether a point is (x, y), each coordinate within `tolerancia`; the index of the first goes to `pos`. */
vnbool arr_ExistePunto2D(const arrPunto2D *a, double x, double y, double tolerancia, VN_SALIDA_OPC uint32_t *pos);

/** Appends the points of a figure of the plane, its outline as a polygon. Angles in radians; `num_puntos` is
    how many a full turn has. A figure that is not finite appends nothing. A circle: from its point at angle 0,
    counter-clockwise; the first is not repeated at the end. */
void arr_AnyadirCirculoPunto2D(arrPunto2D *a, double xc, double yc, double radio,
                               VN_RANGO(3, 1000000) uint32_t num_puntos);
/** An arc from one angle to the other, both ends included: counter-clockwise, or clockwise when the last
    angle is below the first. More than a full turn is a full turn. As many steps as cover the arc, none longer
    than those of the full turn, all equal. */
void arr_AnyadirArcoPunto2D(arrPunto2D *a, double xc, double yc, double radio, double angulo_inicial,
                            double angulo_final, VN_RANGO(3, 1000000) uint32_t num_puntos);
/** The same of an ellipse whose semi-axis `semieje_x` stands at the angle `giro` and `semieje_y` a quarter
    turn further. The angles are the parameter of the ellipse, from that axis: (semieje_x cos, semieje_y sin)
    before the turn. */
void arr_AnyadirArcoElipsePunto2D(arrPunto2D *a, double xc, double yc, double semieje_x, double semieje_y,
                                  double angulo_inicial, double angulo_final, double giro,
                                  VN_RANGO(3, 1000000) uint32_t num_puntos);
/** The least rectangle that has all the points. One without points is reported and gives zeros; coordinates
    that are not-a-number do not count. */
void arr_GetMinimaxPunto2D(const arrPunto2D *a, VN_SALIDA double *xmin, VN_SALIDA double *ymin, VN_SALIDA double *xmax,
                           VN_SALIDA double *ymax);
/** The side of the closed outline that starts at point `i`; that of the last point goes back to the first. */
void arr_GetSegmentoPunto2D(const arrPunto2D *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x1, VN_SALIDA double *y1,
                            VN_SALIDA double *x2, VN_SALIDA double *y2);
/** Whether both have the same points in the same order, each coordinate within `tolerancia`. */
vnbool arr_ArraysDePunto2DIguales(const arrPunto2D *a, const arrPunto2D *b, double tolerancia);

/** The points as one block, borrowed until the array grows or dies; null when there are none. */
Punto2D *arr_GetBufferPunto2D(arrPunto2D *a);
const Punto2D *arr_GetBufferConstPunto2D(const arrPunto2D *a);
Punto3D *arr_GetBufferPunto3D(arrPunto3D *a);
const Punto3D *arr_GetBufferConstPunto3D(const arrPunto3D *a);
const Punto2DXPriv *arr_GetBufferConstPunto2DXPriv(const arrPunto2DXPriv *a);

VN_C_FIN

#endif
