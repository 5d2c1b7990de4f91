/* The coordinates of an output: transformations are appended, what is drawn goes through them, and each is taken off
   again. The last one appended is the first that a point meets. What is drawn through a chain goes through the stack of
   each output up to the one whose device draws it. Lengths in metres, angles as cosine and sine unless told. */
#ifndef VN_VORNPLAN_SISTEMAS_H
#define VN_VORNPLAN_SISTEMAS_H

#include "vornplan_tipos.h"

typedef struct gcMat4x4 gcMat4x4;

VN_C_INICIO

/** Displacements. The first two of the plane keep its depth. */
void vplan_append_desplaza_origen_coordenadas(salida_t *salida, double dx, double dy);
void vplan_append_desplaza_origen_coordenadas_3d(salida_t *salida, double dx, double dy, double dz);
void vplan_append_desplaza_z(salida_t *salida, double dz);
/** Scales, by factors that are not 0 (reported; 1 then): of the plane, of space, the same along all axes, of the plane
    about a point. */
void vplan_append_escala(salida_t *salida, double factor_x, double factor_y);
void vplan_append_escala_3d(salida_t *salida, double factor_x, double factor_y, double factor_z);
void vplan_append_escala_xyz(salida_t *salida, double factor);
void vplan_append_escala_con_origen(salida_t *salida, double x, double y, double factor_x, double factor_y);
/** A scale that leaves the size of texts. It must be the last one appended: the kind of an output's system is that of
    its last transformation, so an earlier scale leaves texts as well while this one stands, and one appended after it
    takes texts along. */
void vplan_append_escala_excepto_texto(salida_t *salida, double factor_x, double factor_y);
/** All divided by a whole number above 0, and the scale of texts with it. */
void vplan_append_divisor_escala(salida_t *salida, uint16_t div_escala);
/** A turn about a point; and one about the origin, which then goes to the point. */
void vplan_append_giro_xy(salida_t *salida, double x, double y, double coseno, double seno);
void vplan_append_giro_xy_y_posiciona(salida_t *salida, double x, double y, double coseno, double seno);
/** Axes: origin and U, V (their cross product is the third); origin 0 and axes along a line; through three points;
    three axes and the origin, last. */
void vplan_append_ejes2D(salida_t *salida, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
                         double Vy, double Vz);
void vplan_append_ejes3D_a_partir_de_dos_puntos_3D_que_definen_el_eje_x(salida_t *salida, double x1, double y1,
                                                                        double z1, double x2, double y2, double z2);
void vplan_append_ejes3D_a_partir_de_tres_puntos_3D(salida_t *salida, double x1, double y1, double z1, double x2,
                                                    double y2, double z2, double x3, double y3, double z3);
void vplan_append_sistema_coordenadas(salida_t *salida, double Xx, double Xy, double Xz, double Yx, double Yy,
                                      double Yz, double Zx, double Zy, double Zz, double ox, double oy, double oz);
/** The plane of a normal, at a height along it, by the arbitrary-axis rule of drawing exchange. */
void vplan_append_extrusion(salida_t *salida, double nx, double ny, double nz, double elevacion);
/** A plane through a point that looks at whoever looks. */
void vplan_append_extrusion_plano_pantalla(salida_t *salida, double ox, double oy, double oz);
/** About a point and an axis at `angulo_eje` (radians): scales along it, a turn (radians) and a displacement. */
void vplan_append_escala_gira_xy_y_desplaza_con_respecto_a_un_eje(salida_t *salida, double x, double y,
                                                                  double angulo_eje, double factor_x, double factor_y,
                                                                  double giro, double dx, double dy);
/** A turn of space, a matrix of 3 x 3, about a point that goes to the origin. */
void vplan_append_proyeccion_en_eje_de_giro(salida_t *salida, const vmatr *matriz_giros_proyeccion, double x, double y,
                                            double z);
/** Any 4 x 4 matrix. */
void vplan_append_matriz_transformacion(salida_t *salida, const vmatr *matriz_transformacion);
void vornplan_append_matriz_transformacion_gcMat4x4(salida_t *salida, const gcMat4x4 *matriz);
/** Switches off all that was appended before, on this output and those that it draws into: what is drawn is in the
    device's space. One vplan_desapila_transformacion switches it on again. */
void vplan_append_desactiva_transformaciones_anteriores(salida_t *salida);
/** Takes the last transformation off. With none it is reported. */
void vplan_desapila_transformacion(salida_t *salida);

/** Where this output's origin is, in the space that its own transformations lead to. */
void vplan_get_origen_coordenadas(const salida_t *salida, VN_SALIDA double *x, VN_SALIDA double *y);
/** The factor of texts by the divisors of this output. */
double vplan_obtener_factor_escala_para_dibujar_textos_en_plano(const salida_t *salida);
/** Gives an output the scales of another one's device, if both have them, and its factor of texts. */
void vplan_aplica_escala_a_salida_destino(salida_t *salida_destino, salida_t *salida_para_obtener_escalas);
/** Through the whole chain: a point; a vector; the length that a length along x becomes. */
void vornplan_transforma_punto(salida_t *salida, double x, double y, double z, VN_SALIDA double *x_trans,
                               VN_SALIDA double *y_trans, VN_SALIDA double *z_trans);
void vornplan_transforma_vector(salida_t *salida, double Ux, double Uy, double Uz, VN_SALIDA double *Ux_trans,
                                VN_SALIDA double *Uy_trans, VN_SALIDA double *Uz_trans);
double vornplan_transforma_magnitud(salida_t *salida, double magnitud);
/** The chain as a new 4 x 4 matrix; its perspective, if any, is not in it. */
vmatr *vornplan_get_matriz_modelado(salida_t *salida);

/** A plane of the screen at a point: facing whoever looks; with its first axis, or its second, along a direction. */
void vornplan_append_transf_plano_pantalla(salida_t *salida, double x, double y, double z);
void vornplan_append_transf_plano_pantalla_con_direc_U(salida_t *salida, double x, double y, double z, double Ux,
                                                       double Uy, double Uz);
void vornplan_append_transf_plano_pantalla_con_direc_V(salida_t *salida, double x, double y, double z, double Vx,
                                                       double Vy, double Vz);
/** What follows is in pixels from a point; without such a device, in metres. */
void vornplan_append_transf_dibujo_en_pixeles(salida_t *salida, double x, double y, double z);

/** Where a point is seen, on the screen or on the plane over it; without such a device, its plan. */
void vplan_proyecta_punto_2d(salida_t *salida, double x, double y, double z, VN_SALIDA double *x2D,
                             VN_SALIDA double *y2D);
void vplan_proyecta_punto_2d_overlay2d(salida_t *salida, double x, double y, double z, VN_SALIDA double *x2D,
                                       VN_SALIDA double *y2D);
/** The line of space seen at a point of the screen: a point of it and its direction. */
void vplan_desproyecta_punto_2d(salida_t *salida, double x, double y, VN_SALIDA_OPC double *x0,
                                VN_SALIDA_OPC double *y0, VN_SALIDA_OPC double *z0, VN_SALIDA_OPC double *Ux,
                                VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz);
/** The same for the cursor, which the device may hold to what is drawn. */
void vplan_obtener_punto_cursor_3d(salida_t *salida, double x, double y, VN_SALIDA_OPC double *x0,
                                   VN_SALIDA_OPC double *y0, VN_SALIDA_OPC double *z0, VN_SALIDA_OPC double *Ux,
                                   VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz);
/** The origin and the axes of the screen in the host's space; without such a device the fourth column and the rows of
    the chain's matrix. */
void vplan_vectores_sistema_coordenadas(salida_t *salida, VN_SALIDA_OPC double *ox, VN_SALIDA_OPC double *oy,
                                        VN_SALIDA_OPC double *oz, VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy,
                                        VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                        VN_SALIDA_OPC double *Vz, VN_SALIDA_OPC double *Wx, VN_SALIDA_OPC double *Wy,
                                        VN_SALIDA_OPC double *Wz);

VN_C_FIN

#endif
