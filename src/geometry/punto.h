/* Points and segments of the plane: the tolerant geometry that everything else asks.

   A point is given by its address, and one that an operation makes is new, from creapunto, the caller's to free with
   vornspy_free_pp. "No such point" is null, "no" is FALSO; neither is reported. What is reported is a null address or a
   truth value that is none: a point's operation then gives null, a question FALSO, a number 0, and changes nothing.
   A coordinate that is not a number lies nowhere: questions about it are FALSO, and there is no point to give.

   Two points are the same within p_EPS in each axis; the other tolerances are fixed and stand, each with its use, at
   the top of punto.cpp. Angles are radians, counter-clockwise from the x axis. A position parameter of the segment
   s1-s2 is 0 at s1 and 1 at s2. */
#ifndef VN_PUNTO_H
#define VN_PUNTO_H

#include "../foundation/numeros/punto.h"

/** What nousar_posicion_relativa_al_segmento gives for a point off a segment that has no direction. */
#define P_POSICION_DESCONOCIDA (-1e+100)

VN_C_INICIO

/** Sets the tolerance p_EPS, metres, and returns the one before. Initially 0.00005; one for the whole process,
    unlocked: who changes it puts it back. */
double p_cambia_eps(double nuevo);

/** A coordinate. */
double p_x(const Punto2D *p);
double p_y(const Punto2D *p);
/** Changes one coordinate, or both. */
void p_cambiax(double x, Punto2D *p);
void p_cambiay(double y, Punto2D *p);
void p_cambiaxy(double x, double y, Punto2D *p);
/** Gives `destino` the coordinates of `origen`. */
void p_asignar(Punto2D *destino, const Punto2D *origen);

/** New points p + q and p - q. */
Punto2D *p_sump(const Punto2D *p, const Punto2D *q);
Punto2D *p_restp(const Punto2D *p, const Punto2D *q);
/** Dot product of two vectors. */
double p_prodpuntos(const Punto2D *p, const Punto2D *q);
/** Length of a vector; distance between two points. Exact along an axis. */
double p_modulo(const Punto2D *p);
double p_modulo2(const Punto2D *p, const Punto2D *q);
/** Squared distance between two points. */
double p_dist2(const Punto2D *p, const Punto2D *q);
/** New point p + t (q - p), for any `t`. */
Punto2D *p_punto_relativo_a_dos(const Punto2D *p, const Punto2D *q, double t);
/** The same with `por` from 0 to 1; outside it is reported, and the point made all the same. */
Punto2D *p_porcion(const Punto2D *p, const Punto2D *q, double por);
/** New midpoint. */
Punto2D *p_centro(const Punto2D *p, const Punto2D *q);
/** New foot of the perpendicular from `p` on the line through (x0, y0) whose unit direction is (coseno, seno). */
Punto2D *p_punto_en_recta(const Punto2D *p, double x0, double y0, double seno, double coseno);
/** Reflection of (x, y) in the line through (x0, y0) whose unit direction is (coseno, seno). */
void p_punto_simetrico_respecto_a_una_recta(double x, double y, double x0, double y0, double coseno, double seno,
                                            VN_SALIDA double *xs, VN_SALIDA double *ys);
/** Length and unit direction from `p1` to `p2`, each if asked for; see f_mt_parametros_segmento. */
void p_parametros_segmento(const Punto2D *p1, const Punto2D *p2, VN_SALIDA_OPC double *longitud,
                           VN_SALIDA_OPC double *coseno, VN_SALIDA_OPC double *seno);

/** (x, y) turned clockwise about the origin by the angle of that cosine and sine. */
void p_gira_xy(double x, double y, double coseno, double seno, VN_SALIDA double *xg, VN_SALIDA double *yg);
/** Turns `q` clockwise about `p`. */
void p_gira2(const Punto2D *p, Punto2D *q, double seno, double coseno);
/** Turns (*x, *y) clockwise about (cx, cy) by `angulo`; by less than 1e-7, or by what is not finite, not at all. */
void p_gira_alrededor_punto_sentido_horario(double cx, double cy, double angulo, double *x, double *y);
/** Moves, scales, turns counter-clockwise and displaces `p`; see
    mt_transforma_coords_con_origen_escala_giro_y_desplazamiento. */
void p_transforma_coords_con_origen_escala_giro_y_desplazamiento(Punto2D *p, double x_origen, double y_origen,
                                                                 double escala, double coseno, double seno,
                                                                 double desplaz_x, double desplaz_y);
/** Rounds both coordinates to `decimales` places; see prec_redondea_numero_decimales. */
void p_redondea(Punto2D *p, uint8_t decimales);

/** Whether both differences are below p_EPS, strictly: a test by axis, not of distance. */
vnbool p_igual(const Punto2D *p, const Punto2D *q);
/** Reports "puntos_distintos" or "puntos_iguales", with both points as detail, when they are not. */
void nousar_punto_assert_distintos(const Punto2D *p, const Punto2D *q, VN_OPC const char *modulo, uint32_t linea);
void nousar_punto_assert_iguales(const Punto2D *p, const Punto2D *q, VN_OPC const char *modulo, uint32_t linea);

/** Position parameter of the projection of `p` on the line s1-s2. On a segment whose squared length is at most 1e-10 it
    is 0 when `p` equals `s1`, 1 when it equals `s2` and P_POSICION_DESCONOCIDA elsewhere, and the segment is reported
    unless `admite_degenerado`. */
double nousar_posicion_relativa_al_segmento(const Punto2D *p, const Punto2D *s1, const Punto2D *s2,
                                            vnbool admite_degenerado, VN_OPC const char *modulo, uint32_t linea);
/** Whether `p` lies on the segment: at an end, or no further from it than p_EPS. */
vnbool p_contenido(const Punto2D *p, const Punto2D *s1, const Punto2D *s2);
/** Whether `p` lies no further than p_EPS from the line. Equal points s1 and s2 are reported ("puntos_distintos"), and
    the answer is what their direction, if any, gives. */
vnbool p_contenido_recta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2);
/** Whether `p` lies on the half-line from `s1` through `s2`; one of no length holds its own points only. */
vnbool p_contenido_semirecta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2);
/** Whether the perpendicular from `p` meets the segment, its position parameter from -p_EPS to 1 + p_EPS, both
    included. The margin is of the parameter, not of a length. FALSO when `s1` equals `s2`. */
vnbool p_normal_corta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2);
/** New foot of that perpendicular, the same margins excluded; null when it does not meet, or `s1` equals `s2`. */
Punto2D *p_corte_normal(const Punto2D *p, const Punto2D *s1, const Punto2D *s2);
/** The same on the whole line. */
Punto2D *p_corte_normal_recta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2);
/** Whether the position parameter of `a` is at most that of `b`. */
vnbool p_esta_antes_en_recta(const Punto2D *a, const Punto2D *b, const Punto2D *s1, const Punto2D *s2);

/** Whether `p` lies to the right of o to e or on it. The tolerance p_EPS is of an area: distance times the length of
    o-e, which is first taken ten times longer until an axis of it reaches 1. Equal points are reported
    ("puntos_distintos") and the answer is what their direction gives; CIERTO if they have none. */
vnbool p_lado_recta(const Punto2D *p, const Punto2D *o, const Punto2D *e);
/** Side of the line through `o` whose unit direction is (coseno, seno): 1 left, 2 right, 0 on it to 1e-6. */
uint32_t p_lado_punto_respecto_a_recta(const Punto2D *p, const Punto2D *o, double coseno, double seno);

/** Whether two boxes overlap or touch, to p_EPS: low corners `o1` and `o2`, high corners `e1` and `e2`, taken as
    given. */
vnbool p_minimax(const Punto2D *o1, const Punto2D *e1, const Punto2D *o2, const Punto2D *e2);
/** The same for the boxes of corners (x1, y1)-(x2, y2) and (x3, y3)-(x4, y4), any two opposite ones. */
vnbool p_se_solapan_rectangulos(double x1, double y1, double x2, double y2, double x3, double y3, double x4, double y4);
/** Whether a-b lies on the line c-d and some end of one projects into the other. */
vnbool p_segmentos_se_solapan(const Punto2D *a, const Punto2D *b, const Punto2D *c, const Punto2D *d);
/** Whether the cross product of the two directions, not divided by their lengths, is at most 1e-8. */
vnbool p_son_segmentos_paralelos(const Punto2D *p1, const Punto2D *q1, const Punto2D *p2, const Punto2D *q2);
/** Whether the segment a-b meets the box of opposite corners `c` and `d`, exactly; with `solo_enteros`, whether it lies
    wholly in it. */
vnbool p_seg_corta_dentro_rect(const Punto2D *a, const Punto2D *b, const Punto2D *c, const Punto2D *d,
                               vnbool solo_enteros);

/** New crossing of the segments p1-q1 and p2-q2, or null. Parallel ones (p_son_segmentos_paralelos) cross only where
    two ends are equal, in the middle of both ends; others where they meet, an end within p_EPS included. */
Punto2D *p_cortan(const Punto2D *p1, const Punto2D *q1, const Punto2D *p2, const Punto2D *q2);
/** The same where a piece may be the whole line through its points: `recta1`, `recta2`. */
Punto2D *p_cortan_spec(const Punto2D *p1, const Punto2D *q1, vnbool recta1, const Punto2D *p2, const Punto2D *q2,
                       vnbool recta2);
/** As p_cortan and p_cortan_spec, where a piece may also be a point (its ends equal), which crosses where it lies on
    the other one; two points never cross. */
Punto2D *p_cortan_seguro(const Punto2D *p1, const Punto2D *q1, const Punto2D *p2, const Punto2D *q2);
Punto2D *p_cortan_spec_seguro(const Punto2D *p1, const Punto2D *q1, vnbool recta1, const Punto2D *p2, const Punto2D *q2,
                              vnbool recta2);

/** The angle in [0, full turn), by whole turns, in bounded time for any number; 0 for one that is not finite. See
    mt_filtra_angulo_mayor_que_cero. */
double p_filtra_angulo(double a);
/** Direction from `p` to `q` in [0, full turn); 0 if they are exactly equal, or nearer to 0 than 1e-8. */
double p_angulo(const Punto2D *p, const Punto2D *q);
/** Direction of the line through `p` and `q`, in [0, half turn). */
double p_angulo_recta(const Punto2D *p, const Punto2D *q);
/** Whether `a` lies in the range that turns counter-clockwise from `a1`, excluded, to `a2`, included. */
vnbool p_entre_angulos(double a1, double a, double a2);

/** Turns the point (x, y), the anchor `posicion` of a box of `ancho` by `alto` turned by (coseno, seno), into the point
    of its anchor `otra_posicion`. Anchors by rows from below, from the left: 1 2 3, 4 5 6, 7 8 9; 0 is 5. Another one
    is reported and changes nothing. */
void p_coordenadas_en_otra_posicion(double x, double y, VN_RANGO(0, 9) uint32_t posicion, double ancho, double alto,
                                    double coseno, double seno, VN_RANGO(0, 9) uint32_t otra_posicion,
                                    VN_SALIDA double *otra_pos_x, VN_SALIDA double *otra_pos_y);
/** The same on `p`, in place. */
void p_punto_en_otra_posicion(Punto2D *p, VN_RANGO(0, 9) uint32_t posicion, double ancho, double alto, double coseno,
                              double seno, VN_RANGO(0, 9) uint32_t otra_posicion);

VN_C_FIN

#define posicion_relativa_al_segmento(p, s1, s2, admite_degenerado)                                                    \
    nousar_posicion_relativa_al_segmento(p, s1, s2, admite_degenerado, VN_AQUI)
#define punto_assert_distintos(p, q) nousar_punto_assert_distintos(p, q, VN_AQUI)
#define punto_assert_iguales(p, q) nousar_punto_assert_iguales(p, q, VN_AQUI)

#endif
