/* Polylines of space that are the axis of a bar or a pipe: their bends as fillets, and the cross-sections along them
   that a bent bar is drawn with. Services on lists of points (Pln3D).

   Lengths are metres. `diametro` is that of the bar and `radio` that of its bends; `num_grados_dibujo_doblado` is the
   largest turn from a point of a fillet to the next, in degrees. A fillet has at most 100,000 steps and a result 2^22
   points or axes: what would need more is reported and gives the neutral result. */
#ifndef VN_POLIN3D_H
#define VN_POLIN3D_H

#include "../foundation/suelo/tipos.h"

typedef struct arrPunto3D arrPunto3D;
typedef struct arrPuntero arrPuntero;

VN_C_INICIO

/* ---------------------------------------------------------------- lists of points */

/** New array, the caller's, with the points of a circle on the axes U, V, counter-clockwise from U; the first is not
    repeated at the end. At least four points: fewer are reported and give null. */
arrPunto3D *Pln3D_puntos_circulo(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                                 double Vz, double diametro, VN_RANGO(4, 65535) uint16_t num_puntos_circulo);

/** New array with the points of an arc from `ini` to `fin`, both ends included, the short way round or, with
    `arco_complementario`, the long one; a half circle runs as W = U x V says. Only the directions of the ends from the
    centre count. At least four points, as above. */
arrPunto3D *Pln3D_puntos_arco(double x_centro, double y_centro, double z_centro, double x_ini, double y_ini,
                              double z_ini, double x_fin, double y_fin, double z_fin, double Ux, double Uy, double Uz,
                              double Vx, double Vy, double Vz, double diametro,
                              VN_RANGO(4, 65535) uint16_t num_puntos_arco, vnbool arco_complementario);

/** Fillet of radius `radio` between the segments p2-p1 and p2-p3: a new array from the tangent point on the first to
    the one on the second, and its centre. None (FALSO, a null array) where a segment is not longer than half the
    diameter, where the bar runs straight or doubles back within 0.017453 radians, and where the fillet overruns an end.
    A tangent point that is an end to 1e-5 becomes that end exactly with `mantiene_extremos`, else it is left out. The
    centre is also given of a fillet that overruns. */
vnbool Pln3D_se_genera_puntos_acuerdo_entre_tres_puntos(double x1, double y1, double z1, double x2, double y2,
                                                        double z2, double x3, double y3, double z3, double diametro,
                                                        double radio, double num_grados_dibujo_doblado,
                                                        vnbool mantiene_extremos, VN_SALIDA arrPunto3D **puntos_acuerdo,
                                                        VN_SALIDA_OPC double *x_centro, VN_SALIDA_OPC double *y_centro,
                                                        VN_SALIDA_OPC double *z_centro);

/** Whether a plane polygon, closed, is convex: all its corners turn the same way. Edges that go on within 1e-5 (cosine
    of the turn) are no corner, and a repeated point is no edge. Fewer than three points and points with no corner are
    reported and give FALSO; a corner that turns out of the plane is reported. */
vnbool Pln3D_poligono_plano_es_convexo(const arrPunto3D *puntos);

/** Gives the point of the list that is nearest to (x, y, z), the first of equals. The outputs stay as they were if
    there is none, or if its index is 65535 or more. */
void Pln3D_GetVerticeMasProximo(const arrPunto3D *puntos, double x, double y, double z, VN_SALIDA double *x_vertice,
                                VN_SALIDA double *y_vertice, VN_SALIDA double *z_vertice);

/** Length of the open polyline. */
double Pln3D_Longitud(const arrPunto3D *puntos);

/* ---------------------------------------------------------------- bars and pipes */

/** Radius of the axis of a bend: b + a / 2. */
double polin3d_radio_acuerdo_eje(double a, double b);

/** New array with the polyline, each inner point replaced by its fillet where there is one; the axis of a bend has
    radius `radio` + `diametro` / 2. Fewer than two points come back as they are. */
arrPunto3D *polin3d_puntos_polilinea_con_radios_de_acuerdo(const arrPunto3D *puntos, double diametro, double radio,
                                                           double num_grados_dibujo_doblado);

/** New array with the cross-sections of the bent bar, each an array of `num_puntos_circulo` points, and a further one
    of their centres. Here the axis of a bend has radius `diametro` + `radio` / 2, on purpose. A point stays where both
    its segments are longer than half the diameter, and its two neighbours with it; if none does, the bar runs from the
    first point to the last. At least two points: fewer are reported and give null. The caller frees the sections with
    arr_DestruyeEstructurasArrayST(a, arrPunto3D, arr_DestruyePunto3D). */
arrPuntero *polin3d_contorno_circulos_en_puntos_polilinea_con_radios_de_acuerdo(
    const arrPunto3D *puntos, double diametro, double radio, double num_grados_dibujo_doblado,
    VN_RANGO(4, 65535) uint16_t num_puntos_circulo, VN_SALIDA_OPC arrPunto3D **centros);

/** New array with the axes of the same sections: W runs with the path, at the ends and along the fillets, and U stays
    as near as can be to that of the section before. A corner with no fillet, of unit directions d1 and d2, has its
    section in the plane's direction from the next point to corner + (d2 - d1), or as before where it hardly turns or
    that direction is the way to the point before; if it is the last corner, W at the end is the part of d2 square to
    d1. With `V_vertical` each section is given the vertical V of its plane; one across a vertical bar has none, and is
    reported. The second one makes no fillets, of a bar of diameter 0. The caller frees the axes with
    arr_DestruyeEstructurasST(a, ejes2d, ejes2d_destruye). */
arrPuntero *polin3d_ejes2d_polilinea_con_radios_de_acuerdo(const arrPunto3D *puntos, double diametro, double radio,
                                                           double num_grados_dibujo_doblado, vnbool V_vertical);
arrPuntero *polin3d_ejes2d_polilinea_sin_radios_de_acuerdo(const arrPunto3D *puntos, vnbool V_vertical);

VN_C_FIN

#endif
