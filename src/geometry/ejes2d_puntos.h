/* Axes out of a list of points. */
#ifndef VN_EJES2D_PUNTOS_H
#define VN_EJES2D_PUNTOS_H

#include "ejes2d_registro.h"

typedef struct arrPunto3D arrPunto3D;

VN_C_INICIO

/** Axes of the plane of a closed polygon: whether all points lie in the plane of three of them. Each point in turn is
    tried as the first of the three: the second is the next one around the ring that is apart from it by more than
    `precision_puntos` (1e-5) in some axis, the third the next one off their line by as much. A point of the list
    farther from their plane than `precision_plano` (0.0005) makes the next start be tried. The origin is the mean of
    the points, and U is turned over if need be so that the polygon runs counter-clockwise seen from W: the majority of
    its corners decides, and one that turns by less than 1e-9 has no vote.
    FALSO leaves the axes as they were, with no report; so does a list with a coordinate that is not finite. */
vnbool ejes2d_punto3D_forman_ejes(const arrPunto3D *puntos, VN_EJES_SALIDA_OPC);
vnbool ejes2d_punto3D_forman_ejes_con_precision(const arrPunto3D *puntos, double precision_plano, VN_EJES_SALIDA_OPC);

/** The same, and with `comprueba_no_forma_eje` (CIERTO where it is no parameter) the search stops when the first three
    points find one that is off their plane by more than 100 times `precision_plano`: its index goes to
    `ind_punto_no_forma_eje`. When a later start forms axes, the index is that of the point that the first one failed
    at. Everything else gives 0xFFFFFFFF: no point is to blame, or no start serves. */
vnbool ejes2d_punto3D_forman_ejes_con_ind_punto_no_forma_eje(const arrPunto3D *puntos, VN_EJES_SALIDA_OPC,
                                                             VN_SALIDA_OPC uint32_t *ind_punto_no_forma_eje);
vnbool ejes2d_punto3D_forman_ejes_con_precision_ex(const arrPunto3D *puntos, double precision_puntos,
                                                   double precision_plano, VN_EJES_SALIDA_OPC,
                                                   VN_SALIDA_OPC uint32_t *ind_punto_no_forma_eje);
vnbool ejes2d_punto3D_forman_ejes_con_precision_ex2(const arrPunto3D *puntos, double precision_puntos,
                                                    double precision_plano, vnbool comprueba_no_forma_eje,
                                                    VN_EJES_SALIDA_OPC, VN_SALIDA_OPC uint32_t *ind_punto_no_forma_eje);

/** As ejes2d_punto3D_forman_ejes where the points must form axes: if not, it is reported and the outputs are zero. */
void ejes2d_crea_a_partir_de_puntos3D(const arrPunto3D *puntos, VN_EJES_SALIDA_OPC);
void ejes2d_crea_a_partir_de_puntos3D_con_precision(const arrPunto3D *puntos, double precision_plano,
                                                    VN_EJES_SALIDA_OPC);

/** Axes of the first three points, in list order, that span a plane to `precision`; the origin is the first of all. No
    other point is looked at, and the sense of the polygon neither. FALSO leaves the outputs as they were. */
vnbool ejes2d_punto3D_forman_ejes_solo_mirando_3_puntos_no_lineales(const arrPunto3D *puntos, double precision,
                                                                    VN_EJES_SALIDA_OPC);

/** Whether three of the points, the first point one of them, span a plane: to 1e-5, or to `precision`. */
vnbool ejes2d_existen_tres_puntos_no_lineales(const arrPunto3D *puntos);
vnbool ejes2d_existen_tres_puntos_no_lineales_con_precision(const arrPunto3D *puntos, double precision);

/** Whether three points span a plane: the first two are apart, and the third is apart from its foot on their line, by
    1e-5 or more in some axis. */
vnbool ejes2d_tres_puntos_forman_ejes(double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                                      double y3, double z3);

VN_C_FIN

#endif
