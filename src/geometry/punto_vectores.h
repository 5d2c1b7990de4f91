/* Points and vectors of the plane: coordinates, lengths, turns, angles, anchors of a box. What the families of
   punto.h share is told there. */
#ifndef VN_PUNTO_VECTORES_H
#define VN_PUNTO_VECTORES_H

#include "../foundation/numeros/punto.h"

VN_C_INICIO

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

#endif
