/* Points, vectors and lines from global to local and back. */
#ifndef VN_EJES2D_COORDENADAS_H
#define VN_EJES2D_COORDENADAS_H

#include "ejes2d_registro.h"

typedef struct arrPunto2D arrPunto2D;

VN_C_INICIO

/** Global coordinates of the point (x, y) of the plane. */
void ejes2d_coordenada_2D_a_3D(VN_EJES, double x, double y, VN_SALIDA double *coord_x_3D, VN_SALIDA double *coord_y_3D,
                               VN_SALIDA_OPC double *coord_z_3D);

/** The same of the point at an index of a list; zeros after a report. */
void ejes2d_coordenada_2D_a_3D_punto_poligono(VN_EJES, const arrPunto2D *puntos, VN_INDICE(puntos) uint32_t indice,
                                              VN_SALIDA double *coord_x_3D, VN_SALIDA double *coord_y_3D,
                                              VN_SALIDA_OPC double *coord_z_3D);

/** Local x and y of a point that lies in the plane: a distance of `precision` or more is reported, and the foot of the
    point is what is given all the same. */
void ejes2d_coordenadas_3D_a_2D(VN_EJES, double x, double y, double z, double precision, VN_SALIDA double *coord_x_2D,
                                VN_SALIDA double *coord_y_2D);

/** The same with no report: whether the point is off the plane goes to `fuera_de_precision`. */
void ejes2d_coordenadas_3D_a_2D_fuera_de_precision(VN_EJES, double x, double y, double z, double precision,
                                                   VN_SALIDA double *coord_x_2D, VN_SALIDA double *coord_y_2D,
                                                   VN_SALIDA_OPC vnbool *fuera_de_precision);

/** Local x and y of the foot of a point on the plane, and the foot itself. */
void ejes2d_coordenadas_3D_proyectado_a_2D(VN_EJES, double x, double y, double z, VN_SALIDA double *coord_x_2D,
                                           VN_SALIDA double *coord_y_2D);
void ejes2d_coordenadas_3D_proyectado_a_3D(VN_EJES, double x, double y, double z, VN_SALIDA double *coord_x_3D,
                                           VN_SALIDA double *coord_y_3D, VN_SALIDA double *coord_z_3D);

/** Global coordinates of a local point (x, y, z). */
void ejes2d_coordenada_3D_local_a_global(VN_EJES, double x, double y, double z, VN_SALIDA double *coord_x_3D,
                                         VN_SALIDA double *coord_y_3D, VN_SALIDA double *coord_z_3D);

/** Local coordinates of a global point; z is along U x V as it comes, neither made unit nor checked. */
void ejes2d_cambio_sistema_coordenadas(VN_EJES, double x, double y, double z, VN_SALIDA double *coord_x_3D,
                                       VN_SALIDA double *coord_y_3D, VN_SALIDA double *coord_z_3D);

/** Screen coordinates of a point: x = p . U + Xo, y = p . V + Yo. */
void ejes2d_transforma_de_3D_a_2D_pantalla(VN_EJES, double x, double y, double z, VN_SALIDA double *coord_x_2D,
                                           VN_SALIDA double *coord_y_2D);

/** Its inverse, the point at (x, y, 0) of the screen, with Zo the offset along U x V. A frame that has no inverse is
    reported, and gives zeros. */
void ejes2d_coordenada_2D_a_3D_pantalla(VN_EJES, double x, double y, VN_SALIDA double *coord_x_3D,
                                        VN_SALIDA double *coord_y_3D, VN_SALIDA double *coord_z_3D);

/** Point (x, y) of the first plane in the coordinates of the second one, where it must lie to `precision` (reported,
    and its foot is given), or where its foot lies. */
void ejes2d_cambia_de_un_sistema_coordenadas_a_otro(VN_EJES_DE(1), VN_EJES_DE(2), double x, double y, double precision,
                                                    VN_SALIDA double *coord_x_2D, VN_SALIDA double *coord_y_2D);
void ejes2d_cambia_de_un_sistema_coordenadas_a_otro_proyectando(VN_EJES_DE(1), VN_EJES_DE(2), double x, double y,
                                                                VN_SALIDA double *coord_x_2D,
                                                                VN_SALIDA double *coord_y_2D);

/* ---------------------------------------------------------------- vectors */

/** Global components of the vector (vx, vy) of the plane. */
void ejes2d_vector_2D_a_3D(VN_EJES_UV, double vx, double vy, VN_SALIDA double *vx_3D, VN_SALIDA double *vy_3D,
                           VN_SALIDA double *vz_3D);

/** Local components of a vector that lies in the plane: a component along W of 1e-6 (or `precision`) or more is
    reported, and the others are given all the same. */
void ejes2d_vector_3D_a_2D(VN_EJES_UV, double vx, double vy, double vz, VN_SALIDA double *vx_2D,
                           VN_SALIDA double *vy_2D);
void ejes2d_vector_3D_a_2D_con_precision(VN_EJES_UV, double vx, double vy, double vz, double precision,
                                         VN_SALIDA double *vx_2D, VN_SALIDA double *vy_2D);

/** Local components of the projection of a vector onto the plane, and the projection itself. */
void ejes2d_vector_3D_proyectado_a_2D(VN_EJES_UV, double vx, double vy, double vz, VN_SALIDA double *vx_2D,
                                      VN_SALIDA double *vy_2D);
void ejes2d_vector_3D_proyectado_a_3D(VN_EJES_UV, double vx, double vy, double vz, VN_SALIDA double *vx_3D,
                                      VN_SALIDA double *vy_3D, VN_SALIDA double *vz_3D);

/** A vector from local components (along U, V and W) to global ones, and back. */
void ejes2d_vector_3D_local_a_global(VN_EJES_UV, double vx, double vy, double vz, VN_SALIDA double *vx_3D,
                                     VN_SALIDA double *vy_3D, VN_SALIDA double *vz_3D);
void ejes2d_vector_3D_global_a_local(VN_EJES_UV, double vx, double vy, double vz, VN_SALIDA double *vx_3D,
                                     VN_SALIDA double *vy_3D, VN_SALIDA double *vz_3D);

/** A line (point and unit direction) that lies in the plane, in local coordinates: point or direction off the plane by
    `precision` or more is reported, and what projects is given. */
void ejes2d_recta_3D_a_2D(VN_EJES, double Xo_recta_3D, double Yo_recta_3D, double Zo_recta_3D, double Ux_recta_3D,
                          double Uy_recta_3D, double Uz_recta_3D, double precision, VN_SALIDA double *Xo_recta_2D,
                          VN_SALIDA double *Yo_recta_2D, VN_SALIDA double *Ux_recta_2D, VN_SALIDA double *Uy_recta_2D);

VN_C_FIN

#endif
