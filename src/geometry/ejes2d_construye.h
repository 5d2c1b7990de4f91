/* Axes out of points, vectors and angles; the equation of their plane. */
#ifndef VN_EJES2D_CONSTRUYE_H
#define VN_EJES2D_CONSTRUYE_H

#include "ejes2d_registro.h"

typedef struct arrPunto3D arrPunto3D;

VN_C_INICIO

/** Axes at the first point with U toward the second one. */
void ejes2d_ejes_con_dos_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                VN_EJES_ORIGEN_SALIDA_OPC, VN_EJES_UV_SALIDA);

/** Axes at the first point with U toward the second one and V to the side of the third one. */
void ejes2d_ejes_con_tres_puntos(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                                 double z3, VN_EJES_SALIDA_OPC);

/** Axes of a face of four corners, from the first, the second and the fourth; the third must lie in their plane to
    0.0005. The origin is the mean of the corners. */
void ejes2d_ejes_de_una_cara(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                             double z3, double x4, double y4, double z4, VN_EJES_SALIDA_OPC);

/** U and V of a vertical plane of normal (A, B, C): V is the global z axis, U = V x (A, B, C) made unit. A normal with
    no horizontal part is reported, and its U is zero. */
void ejes2d_ejes_con_V_vertical_usando_referencia_ecuacion_plano(double A, double B, double C, VN_EJES_UV_SALIDA);

/** Axes of a plane on which a vertical projection keeps global x as the direction of local x: U lies above or below
    (1, 0, 0), V = normal x U. A vertical plane has V = (0, 0, 1), U = V x normal. The origin is the foot of the global
    one. The normal must be unit. */
void ejes2d_ejes_para_proyectar_en_vertical_sobre_plano_ABCD(double A, double B, double C, double D,
                                                             VN_EJES_SALIDA_OPC);

/** Horizontal axes: U = (Ux, Uy, 0), V = (-Uy, Ux, 0), from the vector or from the angle that U makes with global x. */
void ejes2d_ejes_horizontales_dado_Ux_Uy(double x, double y, VN_EJES_UV_SALIDA);
void ejes2d_ejes_horizontales_dado_angulo_rad(double angulo_rad, VN_EJES_UV_SALIDA);

/** Axes of a plane of unit normal W with U horizontal and V up the slope (arbitrary-axis rule): U = (-Wy, Wx, 0) made
    unit, V = W x U. Where |Wx| and |Wy| are both below 1e-6 the plane is horizontal and U is (1, 0, 0), or (-1, 0, 0)
    if W does not look up. */
void ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(double Wx, double Wy, double Wz, VN_EJES_UV_SALIDA_OPC);

/** The same of the plane A x + B y + C z + D = 0; the origin is the foot of the global one. */
void ejes2d_ejes_horizontales_a_partir_de_ecuacion_del_plano(double A, double B, double C, double D,
                                                             VN_EJES_SALIDA_OPC);

/** The horizontal V that goes with U by the same rule: (-Uy, Ux, 0) made unit, or (1, 0, 0) with the sign of Uz. */
void ejes2d_eje_V_horizontal_a_partir_del_vector_U(double Ux, double Uy, double Uz, VN_SALIDA_OPC double *Vx,
                                                   VN_SALIDA_OPC double *Vy, VN_SALIDA_OPC double *Vz);

/** U and V of the global axes turned by angles about x, y and z: the first two rows of X(-gx) Y(-gy) Z(-gz), the
    rotation matrices of column vectors. */
void ejes2d_ejes_de_angulos_giro_3d(double giro_x, double giro_y, double giro_z, VN_EJES_UV_SALIDA);

/** The angles of turn of a frame, inverse of ejes2d_ejes_de_angulos_giro_3d, each from -1e-10 to 360.0000000001. Where
    U is vertical (its turn about y is a quarter) the turn about z is 0. */
void ejes2d_angulos_giro_3d_de_ejes(VN_EJES_UV, VN_SALIDA double *giro_x, VN_SALIDA double *giro_y,
                                    VN_SALIDA double *giro_z);

/* ---------------------------------------------------------------- equation of the plane */

/** W = U x V made unit; the axes must span a plane. */
void ejes2d_vector_director_plano(VN_EJES_UV, VN_SALIDA double *Wx, VN_SALIDA double *Wy, VN_SALIDA double *Wz);

/** Equation of the plane of a frame: (A, B, C) = W, D = -W . origin. */
void ejes2d_ecuacion_del_plano(VN_EJES, VN_SALIDA double *A, VN_SALIDA double *B, VN_SALIDA double *C,
                               VN_SALIDA_OPC double *D);

/** The same of the plane moved by so much along W. */
void ejes2d_ecuacion_del_plano_desplazado_en_z_local(VN_EJES, double desplazamiento_z_local, VN_SALIDA double *A,
                                                     VN_SALIDA double *B, VN_SALIDA double *C, VN_SALIDA_OPC double *D);

/** The same of the plane of a polygon, as ejes2d_crea_a_partir_de_puntos3D: zeros after its report. */
void ejes2d_ecuacion_del_plano_a_partir_de_puntos3D(const arrPunto3D *puntos, VN_SALIDA double *A, VN_SALIDA double *B,
                                                    VN_SALIDA double *C, VN_SALIDA_OPC double *D);

/** The same of the plane of three points, as ejes2d_ejes_con_tres_puntos. */
void ejes2d_ecuacion_del_plano_dado_tres_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                                double x3, double y3, double z3, VN_SALIDA double *A,
                                                VN_SALIDA double *B, VN_SALIDA double *C, VN_SALIDA_OPC double *D);

/** Distance from a point to the plane of a frame, positive on the side that W looks to. */
double ejes2d_distancia_con_signo_punto_a_plano(VN_EJES, double x, double y, double z);

/** Moves the origin to the foot of the global origin on the plane; what is below 1e-6 of it becomes exactly 0. */
void ejes2d_posiciona_ejes_en_origen_cero_global_proyectado_sobre_el_plano(double *Xo, double *Yo, double *Zo,
                                                                           VN_EJES_UV);

/** Moves the origin along W, in place or into separate outputs. */
void ejes2d_desplaza_ejes(double *Xo, double *Yo, double *Zo, VN_EJES_UV, double desplazamiento);
void ejes2d_desplaza_ejes_ex(VN_EJES, double desplazamiento, VN_SALIDA double *Xo_desplazado,
                             VN_SALIDA double *Yo_desplazado, VN_SALIDA double *Zo_desplazado);

VN_C_FIN

#endif
