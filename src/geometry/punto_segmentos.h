/* Points, segments, lines and boxes of the plane against each other, to a tolerance. */
#ifndef VN_PUNTO_SEGMENTOS_H
#define VN_PUNTO_SEGMENTOS_H

#include "../foundation/numeros/punto.h"

/** What nousar_posicion_relativa_al_segmento gives for a point off a segment that has no direction. */
#define P_POSICION_DESCONOCIDA (-1e+100)

VN_C_INICIO

/** Sets the tolerance p_EPS, metres, and returns the one before. Initially 0.00005; one for the whole process,
    unlocked: who changes it puts it back. */
double p_cambia_eps(double nuevo);

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

VN_C_FIN

#define posicion_relativa_al_segmento(p, s1, s2, admite_degenerado)                                                    \
    nousar_posicion_relativa_al_segmento(p, s1, s2, admite_degenerado, VN_AQUI)
#define punto_assert_distintos(p, q) nousar_punto_assert_distintos(p, q, VN_AQUI)
#define punto_assert_iguales(p, q) nousar_punto_assert_iguales(p, q, VN_AQUI)

#endif
