/* Intersections of circles, arcs, segments and an ellipse of the plane.

   Lengths in metres, angles in radians; an arc runs counter-clockwise from its initial angle to its final
   one, both included. The points found are appended to the array that is given, which keeps what it had; the
   result is whether any was. A geometry without an answer, not-a-number and figures that are not finite give
   FALSO and append nothing. */
#ifndef VN_INTERARC_H
#define VN_INTERARC_H

#include "../foundation/listas/arr.h"

VN_C_INICIO

/** Where a segment cuts a circle. A segment that is vertical or horizontal to 1e-4 is taken as such, at its
   first end: the same one reversed may be cut elsewhere, by up to that in its own x or y. One of those that only
   touches the circle does not cut it, while the touching point of any other comes twice. */
vnbool mt_interseccion_segmento_circunferencia(double x1, double y1, double x2, double y2, double xc, double yc,
                                               double radio, arrPunto2D *puntos);
/** The same within an arc, whose ends have the margin of mt_angulo_dentro_de_rango. */
vnbool mt_interseccion_segmento_arco(double x1, double y1, double x2, double y2, double xc, double yc, double radio,
                                     double angulo_inicial, double angulo_final, arrPunto2D *puntos);
/** Where two circles cut each other: where the line of equal power meets the first. Concentric ones, to 1e-4, do
   not. */
vnbool mt_interseccion_entre_circunferencias(double xc1, double yc1, double radio1, double xc2, double yc2,
                                             double radio2, arrPunto2D *puntos);
/** Where two arcs cut each other. */
vnbool mt_interseccion_entre_arcos(double xc1, double yc1, double radio1, double angulo_inicial1, double angulo_final1,
                                   double xc2, double yc2, double radio2, double angulo_inicial2, double angulo_final2,
                                   arrPunto2D *puntos);
/** The sixteen points among which the cuts of a circle and an ellipse with the semi-axes on x and y lie when
   their centres are one: eight about the centre of the ellipse, then the same eight about that of the circle.
   The list is not filtered: the caller chooses. */
vnbool mt_interseccion_elipse_circunferencia(double xc_circunferencia, double yc_circunferencia, double radio,
                                             double xc_elipse, double yc_elipse, double semieje_x, double semieje_y,
                                             arrPunto2D *puntos);

VN_C_FIN

#endif
