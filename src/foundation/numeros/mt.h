/* Maths: geometry of the plane and of space on plain coordinates.

   Lengths in metres, angles in radians, counter-clockwise from the x axis unless an operation says otherwise.
   A rotation comes as its cosine and its sine. A line is two of its points, the straight through them without
   end; a segment is its two ends; a plane is A x + B y + C z + D = 0. An answer that does not exist is FALSO
   and leaves the outputs as they were, unless an operation says what they get. Nothing here reports but a
   null pointer: a zero length, not-a-number, an infinity or a coordinate beyond 1e300 gives the neutral
   answer that the operation states, or a number that is not finite. Lengths are found without overflow: those
   of (1e200, 1e200) and (1e-200, 1e-200) are right. */
#ifndef VN_MT_H
#define VN_MT_H

#include "../suelo/tipos.h"

/** A segment and where another one cuts it. The points that cut it are strictly between its ends: an end that lies on
    the other segment cuts the other one, not its own. */
typedef struct mt_segmento_t {
    /** The ends. */
    double x1, y1, x2, y2;
    /** How many of the points below count: 0, 1 or 2 (two where the segments overlap). */
    uint32_t numcortes;
    /** The cuts, in the order in which they lie from the first end to the second. */
    double x3, y3, x4, y4;
} mt_segmento_t;

VN_C_INICIO

/* ---------------------------------------------------------------- the plane: lengths and vectors */

/** Distance between two points. */
double mt_distancia(double x1, double y1, double x2, double y2);
/** Distance from (x, y) to the line; to (x1, y1) where the line's two points are one. */
double mt_distancia_a_recta(double x, double y, double x1, double y1, double x2, double y2);
/** Length and direction of a segment from its first end. One of no length has the direction (1, 0). */
void f_mt_parametros_segmento(double x1, double y1, double x2, double y2, VN_SALIDA_OPC double *longitud,
                              VN_SALIDA_OPC double *coseno, VN_SALIDA_OPC double *seno);
/** Parameter of the foot of (x, y) on the line through (x1, y1), where it is 0, and (x2, y2), where it is 1; not
    limited. 0 where the two points are one. */
double mt_posicion_relativa_a_segmento(double x, double y, double x1, double y1, double x2, double y2);
/** Makes a vector of unit length. FALSO, and the vector stays, when it has no direction: zero, or not finite. */
vnbool mt_pasar_a_unitario_2D(double *x, double *y);
/** Component z of the cross product of two vectors of the plane: positive when the second is to the left of
    the first. */
double mt_producto_vectorial_plano(double x1, double y1, double x2, double y2);
/** Unit vector that halves the turn from the first unit vector counter-clockwise to the second: the middle of the arc
    between two radii. The half turn gives the left normal of the first, equal vectors the first itself. */
void mt_bisectriz(double x1, double y1, double x2, double y2, VN_SALIDA double *x, VN_SALIDA double *y);
/** Whether both coordinates are equal to 1e-6, or to `tolerancia`, each on its own. */
vnbool mt_puntos2D_iguales(double x1, double y1, double x2, double y2);
vnbool mt_puntos2D_iguales_con_tolerancia(double x1, double y1, double x2, double y2, double tolerancia);

/* ---------------------------------------------------------------- the plane: angles */

/** Direction of the segment from (x1, y1) to (x2, y2), from 0 to below a full turn; 0 when the two are one. */
double mt_angulo(double x1, double y1, double x2, double y2);
/** The angle of this sine and cosine, from 0 to below a full turn. Their common length does not matter. */
double mt_angulo_a_partir_de_seno_y_coseno(double seno, double coseno);
/** The same direction from 0 to below a full turn: 6.283185307179586 is added while the angle is below 0, then taken
    off while it is at least that. Beyond 65,536 turns the rest is one exact remainder, so the call ends at once for any
    number; one that is not finite gives 0. */
double mt_filtra_angulo_mayor_que_cero(double angulo);
/** Whether a direction lies on the arc that runs counter-clockwise from `inicio` to `fin`, whatever turns they carry.
    Both limits belong to it, with 1e-6 radians to spare: a thousandth of a millimetre for each metre of the radius, 5
    mm on an arc of 5 km. A `fin` a full turn or more beyond `inicio`, or whole turns before it, takes every direction;
    equal limits take that direction alone. */
vnbool mt_angulo_dentro_de_rango(double angulo, double inicio, double fin);

/* ---------------------------------------------------------------- the plane: transformations of coordinates */

/** Turns (x, y) clockwise about the origin. */
void mt_gira_xy_sentido_horario(double x, double y, double coseno, double seno, VN_SALIDA double *xg,
                                VN_SALIDA double *yg);
/** Turns (*x, *y) counter-clockwise about the centre. */
void mt_gira_coords_respecto_a_un_punto(double xc, double yc, double coseno, double seno, double *x, double *y);
/** Scales (*x, *y), turns it counter-clockwise and displaces it, in that order. The other forms first take the
    point as it stands from (x_origen, y_origen), which therefore goes to the displacement; the last has a scale for
    each axis. */
void mt_transforma_coords(double escala, double coseno, double seno, double desplaz_x, double desplaz_y, double *x,
                          double *y);
void mt_transforma_coords_con_origen_escala_giro_y_desplazamiento(double x_origen, double y_origen, double escala,
                                                                  double coseno, double seno, double desplaz_x,
                                                                  double desplaz_y, double *x, double *y);
void mt_transforma_coords_con_origen_y_diferentes_escalas(double x_origen, double y_origen, double escala_x,
                                                          double escala_y, double coseno, double seno, double desplaz_x,
                                                          double desplaz_y, double *x, double *y);
/** Cavalier projection: x' = x + 0.5 y cos 45, y' = z + 0.5 y sin 45, with 45 degrees. */
void mt_real_a_proyectado(double x, double y, double z, VN_SALIDA double *x_proyectado, VN_SALIDA double *y_proyectado);
/** The point of the plane z = 0 that the cavalier projection takes there. */
void mt_proyectado_a_real(double x_proyectado, double y_proyectado, VN_SALIDA double *x, VN_SALIDA double *y);

/* ---------------------------------------------------------------- the plane: crossings */

/** Whether (x, y) lies on the segment, its ends included: not farther from it than 1e-5. */
vnbool mt_punto_pertenece_a_segmento(double x, double y, double x1, double y1, double x2, double y2);
/** Whether the segments (1, 2) and (3, 4) cross, and where. A crossing up to 1e-6 beyond an end still counts, and
    lies on the line of the first. Parallel segments have none, overlapping ones included: those whose angle has a
    sine of at most 1e-14, or what the rounding of the coordinates makes of it, 2 x 2^-52 x (largest coordinate) /
    (shorter length). */
vnbool mt_existe_interseccion_entre_segmentos(double x1, double y1, double x2, double y2, double x3, double y3,
                                              double x4, double y4, VN_SALIDA_OPC double *x, VN_SALIDA_OPC double *y);
/** Cuts two segments with each other and fills the cuts of both. On which side a point lies is decided exactly, without
    a tolerance; a cut at an end has exactly the coordinates of that end. A segment of no length cuts the other where it
    lies inside it and is not cut. */
void mt_calcula_inter_segmentos(mt_segmento_t *seg1, mt_segmento_t *seg2);
/** The roots of a x^2 + b x + c = 0: r1 with the plus sign of the formula, r2 with the minus sign, so r1 >= r2 when `a`
    is positive. With a = 0 both get the root of the rest. FALSO when there are no real roots or no equation. */
vnbool mt_raices_ecuacion_segundo_grado(double a, double b, double c, VN_SALIDA double *r1, VN_SALIDA double *r2);

/* ---------------------------------------------------------------- space */

/** Distance between two points; length of a vector. */
double mt_distancia_3D(double x1, double y1, double z1, double x2, double y2, double z2);
double mt_modulo_vector_3D(double x, double y, double z);
/** As mt_pasar_a_unitario_2D. */
vnbool mt_pasar_a_unitario_3D(double *x, double *y, double *z);
/** Dot product. */
double mt_producto_escalar(double x1, double y1, double z1, double x2, double y2, double z2);
/** Cross product, first by second; each output may be null. */
void mt_producto_vectorial(double x1, double y1, double z1, double x2, double y2, double z2, VN_SALIDA_OPC double *x,
                           VN_SALIDA_OPC double *y, VN_SALIDA_OPC double *z);
/** Cross product of the vectors from the first point to the second and to the third. Its length is twice the area of
    the triangle. */
void mt_producto_vectorial_3ptos(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                                 double z3, VN_SALIDA_OPC double *x, VN_SALIDA_OPC double *y, VN_SALIDA_OPC double *z);
/** Unit vector from the first point to the second. FALSO when the two are one; the outputs then get zeros. */
vnbool mt_vector_director_de_dos_puntos_3D(double x1, double y1, double z1, double x2, double y2, double z2,
                                           VN_SALIDA_OPC double *ux, VN_SALIDA_OPC double *uy,
                                           VN_SALIDA_OPC double *uz);
/** Foot of (x, y, z) on the line; the line's first point where its two points are one. */
void mt_proyecta_punto_sobre_recta_3D(double x, double y, double z, double x1, double y1, double z1, double x2,
                                      double y2, double z2, VN_SALIDA_OPC double *xp, VN_SALIDA_OPC double *yp,
                                      VN_SALIDA_OPC double *zp);
/** D of the plane of normal (A, B, C) through (x, y, z). */
double mt_D_plano_posicionado_en_coordenada(double A, double B, double C, double x, double y, double z);
/** Whether the line through (x, y, z) with direction (dx, dy, dz), of any length, cuts the plane, and where. It does
    not when the sine of its angle with the plane is at most 1e-6. */
vnbool mt_existe_interseccion_recta_con_plano(double x, double y, double z, double dx, double dy, double dz, double A,
                                              double B, double C, double D, VN_SALIDA_OPC double *xc,
                                              VN_SALIDA_OPC double *yc, VN_SALIDA_OPC double *zc);

/* ---------------------------------------------------------------- axes

   Three unit vectors X, Y, Z, each square to the others, with Z = X x Y. Each output may be null. Where no
   axes follow from what is given, the result is FALSO and the outputs get the global axes. */

/** The arbitrary-axis rule of drawing exchange: the X and Y axes of the plane whose normal is N, of any length. X is Yg
    x N where |Nx| and |Ny| of the unit normal are both below 1/64, Zg x N elsewhere (horizontal then); Y = N x X. */
vnbool vornmath_calcula_matriz_transformacion_autocad(double nx, double ny, double nz, VN_SALIDA_OPC double *Xx,
                                                      VN_SALIDA_OPC double *Xy, VN_SALIDA_OPC double *Xz,
                                                      VN_SALIDA_OPC double *Yx, VN_SALIDA_OPC double *Yy,
                                                      VN_SALIDA_OPC double *Yz);
/** Axes Y and Z of the X axis that is given, of any length: the arbitrary-axis rule with it as the normal, so that Y is
    horizontal and Z points upwards, but for an almost vertical X. */
vnbool mt_calcular_ejes_segun_vector_x_local(double Xx, double Xy, double Xz, VN_SALIDA_OPC double *Yx,
                                             VN_SALIDA_OPC double *Yy, VN_SALIDA_OPC double *Yz,
                                             VN_SALIDA_OPC double *Zx, VN_SALIDA_OPC double *Zy,
                                             VN_SALIDA_OPC double *Zz);
/** Axes whose X runs from the first point to the second; Y and Z as in mt_calcular_ejes_segun_vector_x_local. */
vnbool mt_calcular_ejes_3D_dados_2_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                          VN_SALIDA_OPC double *Xx, VN_SALIDA_OPC double *Xy, VN_SALIDA_OPC double *Xz,
                                          VN_SALIDA_OPC double *Yx, VN_SALIDA_OPC double *Yy, VN_SALIDA_OPC double *Yz,
                                          VN_SALIDA_OPC double *Zx, VN_SALIDA_OPC double *Zy, VN_SALIDA_OPC double *Zz);
/** Axes whose X runs from the first point to the second and whose Y lies in the plane of the three, on the side of the
    third. FALSO when the three are on a line: the sine of the angle at the first is at most what
    mt_existe_interseccion_entre_segmentos takes for parallel. */
vnbool mt_calcular_ejes_3D_dados_3_puntos(double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                                          double y3, double z3, VN_SALIDA_OPC double *Xx, VN_SALIDA_OPC double *Xy,
                                          VN_SALIDA_OPC double *Xz, VN_SALIDA_OPC double *Yx, VN_SALIDA_OPC double *Yy,
                                          VN_SALIDA_OPC double *Yz, VN_SALIDA_OPC double *Zx, VN_SALIDA_OPC double *Zy,
                                          VN_SALIDA_OPC double *Zz);

VN_C_FIN

#endif
