/* Lines, points, polylines and polygons of an output. The plane's are at the depth of the current system. A figure goes
   to the first device of the chain that draws it, in its form of the plane or of space; where none does, what is told.
   Without telling, it is reported, and nothing is drawn. */
#ifndef VN_VORNPLAN_LINEAS_H
#define VN_VORNPLAN_LINEAS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** A segment, of any length. */
void vplan_escr_linea(salida_t *salida, double x1, double y1, double x2, double y2);
void vplan_escr_linea_3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2);
void vplan_escr_linea_horizontal(salida_t *salida, double x1, double y, double x2);
void vplan_escr_linea_vertical(salida_t *salida, double x, double y1, double y2);
/** Whose colour goes from one to the other. */
void vplan_escr_linea_con_gradiente(salida_t *salida, double x1, double y1, uint32_t rgba1, double x2, double y2,
                                    uint32_t rgba2);
void vplan_escr_linea_3D_con_gradiente(salida_t *salida, double x1, double y1, double z1, uint32_t rgba1, double x2,
                                       double y2, double z2, uint32_t rgba2);
/** Half a line, from the first point through the second; a point where the two are one. */
void vplan_escr_rayo(salida_t *salida, double x1, double y1, double x2, double y2);
void vplan_escr_rayo3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2);
/** A whole line through two points; a point where they are one. */
void vplan_escr_linea_referencia(salida_t *salida, double x1, double y1, double x2, double y2);
void vplan_escr_linea_referencia3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2);

/** A point, at depth 0, and one of space. Nobody: nothing. */
void vplan_escr_punto(salida_t *salida, double x, double y);
void vplan_escr_punto3D(salida_t *salida, double x, double y, double z);
/** A point to take hold of: of some pixels; of a diameter, metres; with all that a device is told. Nobody: nothing. */
void vplan_escr_punto_clave(salida_t *salida, double x, double y, double pixeles, uint32_t color_1, uint32_t color_2);
void vplan_escr_punto_clave_diametro_en_mts(salida_t *salida, double x, double y, uint32_t tipo, double diametro,
                                            uint32_t color_1, uint32_t color_2);
void vplan_escr_punto_clave_ex(salida_t *salida, double x, double y, double z, uint32_t tipo, vnbool en_pixeles,
                               double pixeles, double diametro, uint32_t color_1, uint32_t color_2);

/** A polyline; with `cerrar` its last point is joined to the first. Nobody: a line a segment. */
void vplan_escr_polilinea(salida_t *salida, const arrPunto2D *puntos, vnbool cerrar);
/** A polyline of space, the outline of a polygon, a filled one. */
void vplan_escr_polilinea3D(salida_t *salida, const arrPunto3D *puntos);
void vplan_escr_poligono3D(salida_t *salida, const arrPunto3D *puntos);
void vplan_escr_poligono3D_relleno(salida_t *salida, const arrPunto3D *puntos);
/** A filled polygon of three points or more. */
void vplan_escr_poligono_relleno(salida_t *salida, const arrPunto2D *puntos);
/** A polyline with a colour at each point. Nobody: lines whose colour changes. */
void vplan_escr_polilinea3D_con_cambio_de_color(salida_t *salida, const arrPunto3D *puntos, const arrULong *rgba);

/** A rectangle by two opposite corners. */
void vplan_escr_rectangulo(salida_t *salida, double x1, double y1, double x2, double y2);
void vplan_escr_rectangulo_relleno(salida_t *salida, double x1, double y1, double x2, double y2);
/** A quadrilateral by two opposite sides: from corner 1 to 2, and from 3 to 4. */
void vplan_escr_solid(salida_t *salida, double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                      double y4, vnbool relleno);
void vplan_escr_solid3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                        double y3, double z3, double x4, double y4, double z4, vnbool relleno);
/** A face of space, its corners in order, each with whether the edge that starts there is seen. */
void vplan_escr_cara3D(salida_t *salida, double x1, double y1, double z1, vnbool visible1, double x2, double y2,
                       double z2, vnbool visible2, double x3, double y3, double z3, vnbool visible3, double x4,
                       double y4, double z4, vnbool visible4, vnbool relleno);
/** A triangle: its outline; filled, also while fills are locked; filled with a colour; with one at each vertex; with a
    normal at each vertex (nobody: its outline). */
void vplan_escr_triangulo(salida_t *salida, double x1, double y1, double x2, double y2, double x3, double y3);
void vplan_escr_triangulo_relleno(salida_t *salida, double x1, double y1, double x2, double y2, double x3, double y3);
void vplan_escr_triangulo_2D_relleno_RGBA(salida_t *salida, double x1, double y1, double x2, double y2, double x3,
                                          double y3, uint32_t rgba);
void vplan_escr_triangulo_gradiente_3d(salida_t *salida, double x1, double y1, double z1, uint32_t rgba1, double x2,
                                       double y2, double z2, uint32_t rgba2, double x3, double y3, double z3,
                                       uint32_t rgba3);
void vplan_escr_triangulo_3D_con_normal_por_vertice(salida_t *salida, double x1, double y1, double z1, double nx1,
                                                    double ny1, double nz1, double x2, double y2, double z2, double nx2,
                                                    double ny2, double nz2, double x3, double y3, double z3, double nx3,
                                                    double ny3, double nz3);

VN_C_FIN

#endif
