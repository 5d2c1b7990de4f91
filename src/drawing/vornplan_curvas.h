/* Circles, arcs and ellipses of an output. Where no device draws one, or what it goes through would deform it, an
   ellipse or a polygon of 64 points a turn takes its place. Angles in radians, counter-clockwise. */
#ifndef VN_VORNPLAN_CURVAS_H
#define VN_VORNPLAN_CURVAS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** A circle, and a filled one; at the depth of the plane and at one of space. */
void vplan_escr_circulo(salida_t *salida, double xc, double yc, double radio);
void vplan_escr_circulo_relleno(salida_t *salida, double xc, double yc, double radio);
void vplan_escr_circulo3D(salida_t *salida, double xc, double yc, double zc, double radio);
void vplan_escr_circulo_relleno3D(salida_t *salida, double xc, double yc, double zc, double radio);
/** An ellipse's part from one angle to another; both are the parameter of the ellipse, from its half axis `ra`, which
    stands at `angulo`. A whole turn, and none, is the whole ellipse. */
void vplan_escr_arco_elipse(salida_t *salida, double xc, double yc, double ra, double rb, double angulo_inicial,
                            double angulo_final, double angulo, vnbool relleno);
void vplan_escr_arco_elipse3D(salida_t *salida, double xc, double yc, double zc, double ra, double rb,
                              double angulo_inicial, double angulo_final, double angulo, vnbool relleno);
/** An arc about a centre from point 1 to point 2; clockwise with `horario`; filled. Two ends that become one are a
    point. */
void vplan_escr_arco(salida_t *salida, double xc, double yc, double x1, double y1, double x2, double y2);
void vplan_escr_arco_con_sentido(salida_t *salida, double xc, double yc, double x1, double y1, double x2, double y2,
                                 vnbool horario);
void vplan_escr_arco_relleno(salida_t *salida, double xc, double yc, double x1, double y1, double x2, double y2);
/** One of space, in a horizontal plane: other depths of the ends are reported where it becomes a polygon. */
void vplan_escr_arco_relleno3D(salida_t *salida, double xc, double yc, double zc, double x1, double y1, double z1,
                               double x2, double y2, double z2);
/** The surface between two circles, 0 < radio_menor < radio_mayor. A device that draws it gets those of almost no width
    alone; of others with such a device the inner circle is drawn. */
void vplan_escr_arandela(salida_t *salida, double xc, double yc, double radio_menor, double radio_mayor);

VN_C_FIN

#endif
