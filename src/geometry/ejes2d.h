/* Axes of a plane in space, and planes: an origin and two orthonormal vectors in which 2D work is done.

   A frame is nine values in this order: origin (Xo, Yo, Zo), unit vector of local x (Ux, Uy, Uz), unit vector of local
   y (Vx, Vy, Vz). The unit normal W = U x V is not kept. "Global" coordinates are those in which the frame itself is
   given, "local" ones (x, y, z) stand for origin + x U + y V + z W. Lengths are metres, angles degrees unless a name
   says radians. Values that an operation gives through several pointers are all written, or none where it says so.

   What is broken is reported and the work goes on where it can: a frame that is not orthonormal gives what its formula
   gives, and a null output that is required leaves the others as they were. Not-a-number is never within a
   tolerance. */
#ifndef VN_EJES2D_H
#define VN_EJES2D_H

#include "../foundation/suelo/tipos.h"

typedef struct arrPunto2D arrPunto2D;
typedef struct arrPunto3D arrPunto3D;

/** Axes of a plane. */
typedef struct ejes2d {
    double Xo, Yo, Zo;
    double Ux, Uy, Uz;
    double Vx, Vy, Vz;
} ejes2d;

/** The plane A x + B y + C z + D = 0, its normal (A, B, C) of length 1. */
typedef struct planoABCD {
    double A, B, C, D;
} planoABCD;

VN_C_INICIO

/* ---------------------------------------------------------------- records */

/** New record, the caller's. */
ejes2d *ejes2d_crea(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy, double Vz);
ejes2d *ejes2d_copia(const ejes2d *ejes2d);
planoABCD *ejes2d_crea_planoABCD(double A, double B, double C, double D);
planoABCD *ejes2d_copia_planoABCD(const planoABCD *planoABCD);

/** Frees the record and leaves the pointer to it null. */
void ejes2d_destruye(ejes2d **ejes2d);
void ejes2d_destruye_planoABCD(planoABCD **planoABCD);

/** New record with the axes `ejes_resp_sr_base`, which are local to a base frame, in global coordinates: the base by
    its values or as a record. */
ejes2d *ejes2d_local_a_global(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                              double Vz, const ejes2d *ejes_resp_sr_base);
ejes2d *ejes2d_local_a_ejes2d_global(const ejes2d *ejes_resp_sr_base, const ejes2d *ejes_sr_base_resp_sr_global);

/** New record with the second frame in the coordinates of the first, both given in global ones. */
ejes2d *ejes2d_global_a_ejes2d_local(const ejes2d *ejes_sr_base_resp_sr_global, const ejes2d *ejes_sr_resp_sr_global);

/* ---------------------------------------------------------------- axes out of a list of points */

/** Axes of the plane of a closed polygon: whether all points lie in the plane of three of them. Each point in turn is
    tried as the first of the three: the second is the next one around the ring that is apart from it by more than
    `precision_puntos` (1e-5) in some axis, the third the next one off their line by as much. A point of the list
    farther from their plane than `precision_plano` (0.0005) makes the next start be tried. The origin is the mean of
    the points, and U is turned over if need be so that the polygon runs counter-clockwise seen from W: the majority of
    its corners decides, and one that turns by less than 1e-9 has no vote.
    FALSO leaves the axes as they were, with no report; so does a list with a coordinate that is not finite. */
vnbool ejes2d_punto3D_forman_ejes(const arrPunto3D *puntos, VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                  VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy,
                                  VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                  VN_SALIDA_OPC double *Vz);
vnbool ejes2d_punto3D_forman_ejes_con_precision(const arrPunto3D *puntos, double precision_plano,
                                                VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                                VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
                                                VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz,
                                                VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                                VN_SALIDA_OPC double *Vz);

/** The same, and with `comprueba_no_forma_eje` (CIERTO where it is no parameter) the search stops when the first three
    points find one that is off their plane by more than 100 times `precision_plano`: its index goes to
    `ind_punto_no_forma_eje`. When a later start forms axes, the index is that of the point that the first one failed
    at. Everything else gives 0xFFFFFFFF: no point is to blame, or no start serves. */
vnbool ejes2d_punto3D_forman_ejes_con_ind_punto_no_forma_eje(const arrPunto3D *puntos, VN_SALIDA_OPC double *Xo,
                                                             VN_SALIDA_OPC double *Yo, VN_SALIDA_OPC double *Zo,
                                                             VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy,
                                                             VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx,
                                                             VN_SALIDA_OPC double *Vy, VN_SALIDA_OPC double *Vz,
                                                             VN_SALIDA_OPC uint32_t *ind_punto_no_forma_eje);
vnbool ejes2d_punto3D_forman_ejes_con_precision_ex(const arrPunto3D *puntos, double precision_puntos,
                                                   double precision_plano, VN_SALIDA_OPC double *Xo,
                                                   VN_SALIDA_OPC double *Yo, VN_SALIDA_OPC double *Zo,
                                                   VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy,
                                                   VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx,
                                                   VN_SALIDA_OPC double *Vy, VN_SALIDA_OPC double *Vz,
                                                   VN_SALIDA_OPC uint32_t *ind_punto_no_forma_eje);
vnbool ejes2d_punto3D_forman_ejes_con_precision_ex2(
    const arrPunto3D *puntos, double precision_puntos, double precision_plano, vnbool comprueba_no_forma_eje,
    VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo, VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
    VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
    VN_SALIDA_OPC double *Vz, VN_SALIDA_OPC uint32_t *ind_punto_no_forma_eje);

/** As ejes2d_punto3D_forman_ejes where the points must form axes: if not, it is reported and the outputs are zero. */
void ejes2d_crea_a_partir_de_puntos3D(const arrPunto3D *puntos, VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                      VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy,
                                      VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                      VN_SALIDA_OPC double *Vz);
void ejes2d_crea_a_partir_de_puntos3D_con_precision(const arrPunto3D *puntos, double precision_plano,
                                                    VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                                    VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
                                                    VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz,
                                                    VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                                    VN_SALIDA_OPC double *Vz);

/** Axes of the first three points, in list order, that span a plane to `precision`; the origin is the first of all. No
    other point is looked at, and the sense of the polygon neither. FALSO leaves the outputs as they were. */
vnbool ejes2d_punto3D_forman_ejes_solo_mirando_3_puntos_no_lineales(const arrPunto3D *puntos, double precision,
                                                                    VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                                                    VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
                                                                    VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz,
                                                                    VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                                                    VN_SALIDA_OPC double *Vz);

/** Whether three of the points, the first point one of them, span a plane: to 1e-5, or to `precision`. */
vnbool ejes2d_existen_tres_puntos_no_lineales(const arrPunto3D *puntos);
vnbool ejes2d_existen_tres_puntos_no_lineales_con_precision(const arrPunto3D *puntos, double precision);

/** Whether three points span a plane: the first two are apart, and the third is apart from its foot on their line, by
    1e-5 or more in some axis. */
vnbool ejes2d_tres_puntos_forman_ejes(double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                                      double y3, double z3);

/* ---------------------------------------------------------------- axes out of other data */

/** Axes at the first point with U toward the second one. */
void ejes2d_ejes_con_dos_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo, VN_SALIDA_OPC double *Zo,
                                VN_SALIDA double *Ux, VN_SALIDA double *Uy, VN_SALIDA double *Uz, VN_SALIDA double *Vx,
                                VN_SALIDA double *Vy, VN_SALIDA double *Vz);

/** Axes at the first point with U toward the second one and V to the side of the third one. */
void ejes2d_ejes_con_tres_puntos(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                                 double z3, VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                 VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy,
                                 VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                 VN_SALIDA_OPC double *Vz);

/** Axes of a face of four corners, from the first, the second and the fourth; the third must lie in their plane to
    0.0005. The origin is the mean of the corners. */
void ejes2d_ejes_de_una_cara(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                             double z3, double x4, double y4, double z4, VN_SALIDA_OPC double *Xo,
                             VN_SALIDA_OPC double *Yo, VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
                             VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx,
                             VN_SALIDA_OPC double *Vy, VN_SALIDA_OPC double *Vz);

/** U and V of a vertical plane of normal (A, B, C): V is the global z axis, U = V x (A, B, C) made unit. A normal with
    no horizontal part is reported, and its U is zero. */
void ejes2d_ejes_con_V_vertical_usando_referencia_ecuacion_plano(double A, double B, double C, VN_SALIDA double *Ux,
                                                                 VN_SALIDA double *Uy, VN_SALIDA double *Uz,
                                                                 VN_SALIDA double *Vx, VN_SALIDA double *Vy,
                                                                 VN_SALIDA double *Vz);

/** Axes of a plane on which a vertical projection keeps global x as the direction of local x: U lies above or below
    (1, 0, 0), V = normal x U. A vertical plane has V = (0, 0, 1), U = V x normal. The origin is the foot of the global
    one. The normal must be unit. */
void ejes2d_ejes_para_proyectar_en_vertical_sobre_plano_ABCD(double A, double B, double C, double D,
                                                             VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                                             VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
                                                             VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz,
                                                             VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                                             VN_SALIDA_OPC double *Vz);

/** Horizontal axes: U = (Ux, Uy, 0), V = (-Uy, Ux, 0), from the vector or from the angle that U makes with global x. */
void ejes2d_ejes_horizontales_dado_Ux_Uy(double x, double y, VN_SALIDA double *Ux, VN_SALIDA double *Uy,
                                         VN_SALIDA double *Uz, VN_SALIDA double *Vx, VN_SALIDA double *Vy,
                                         VN_SALIDA double *Vz);
void ejes2d_ejes_horizontales_dado_angulo_rad(double angulo_rad, VN_SALIDA double *Ux, VN_SALIDA double *Uy,
                                              VN_SALIDA double *Uz, VN_SALIDA double *Vx, VN_SALIDA double *Vy,
                                              VN_SALIDA double *Vz);

/** Axes of a plane of unit normal W with U horizontal and V up the slope (arbitrary-axis rule): U = (-Wy, Wx, 0) made
    unit, V = W x U. Where |Wx| and |Wy| are both below 1e-6 the plane is horizontal and U is (1, 0, 0), or (-1, 0, 0)
    if W does not look up. */
void ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(double Wx, double Wy, double Wz, VN_SALIDA_OPC double *Ux,
                                                           VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz,
                                                           VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                                           VN_SALIDA_OPC double *Vz);

/** The same of the plane A x + B y + C z + D = 0; the origin is the foot of the global one. */
void ejes2d_ejes_horizontales_a_partir_de_ecuacion_del_plano(double A, double B, double C, double D,
                                                             VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo,
                                                             VN_SALIDA_OPC double *Zo, VN_SALIDA_OPC double *Ux,
                                                             VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz,
                                                             VN_SALIDA_OPC double *Vx, VN_SALIDA_OPC double *Vy,
                                                             VN_SALIDA_OPC double *Vz);

/** The horizontal V that goes with U by the same rule: (-Uy, Ux, 0) made unit, or (1, 0, 0) with the sign of Uz. */
void ejes2d_eje_V_horizontal_a_partir_del_vector_U(double Ux, double Uy, double Uz, VN_SALIDA_OPC double *Vx,
                                                   VN_SALIDA_OPC double *Vy, VN_SALIDA_OPC double *Vz);

/** U and V of the global axes turned by angles about x, y and z: the first two rows of X(-gx) Y(-gy) Z(-gz), the
    rotation matrices of column vectors. */
void ejes2d_ejes_de_angulos_giro_3d(double giro_x, double giro_y, double giro_z, VN_SALIDA double *Ux,
                                    VN_SALIDA double *Uy, VN_SALIDA double *Uz, VN_SALIDA double *Vx,
                                    VN_SALIDA double *Vy, VN_SALIDA double *Vz);

/** The angles of turn of a frame, inverse of ejes2d_ejes_de_angulos_giro_3d, each from -1e-10 to 360.0000000001. Where
    U is vertical (its turn about y is a quarter) the turn about z is 0. */
void ejes2d_angulos_giro_3d_de_ejes(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz,
                                    VN_SALIDA double *giro_x, VN_SALIDA double *giro_y, VN_SALIDA double *giro_z);

/* ---------------------------------------------------------------- equation of the plane */

/** W = U x V made unit; the axes must span a plane. */
void ejes2d_vector_director_plano(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz,
                                  VN_SALIDA double *Wx, VN_SALIDA double *Wy, VN_SALIDA double *Wz);

/** Equation of the plane of a frame: (A, B, C) = W, D = -W . origin. */
void ejes2d_ecuacion_del_plano(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                               double Vz, VN_SALIDA double *A, VN_SALIDA double *B, VN_SALIDA double *C,
                               VN_SALIDA_OPC double *D);

/** The same of the plane moved by so much along W. */
void ejes2d_ecuacion_del_plano_desplazado_en_z_local(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                                     double Vx, double Vy, double Vz, double desplazamiento_z_local,
                                                     VN_SALIDA double *A, VN_SALIDA double *B, VN_SALIDA double *C,
                                                     VN_SALIDA_OPC double *D);

/** The same of the plane of a polygon, as ejes2d_crea_a_partir_de_puntos3D: zeros after its report. */
void ejes2d_ecuacion_del_plano_a_partir_de_puntos3D(const arrPunto3D *puntos, VN_SALIDA double *A, VN_SALIDA double *B,
                                                    VN_SALIDA double *C, VN_SALIDA_OPC double *D);

/** The same of the plane of three points, as ejes2d_ejes_con_tres_puntos. */
void ejes2d_ecuacion_del_plano_dado_tres_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                                double x3, double y3, double z3, VN_SALIDA double *A,
                                                VN_SALIDA double *B, VN_SALIDA double *C, VN_SALIDA_OPC double *D);

/** Distance from a point to the plane of a frame, positive on the side that W looks to. */
double ejes2d_distancia_con_signo_punto_a_plano(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                                double Vx, double Vy, double Vz, double x, double y, double z);

/** Moves the origin to the foot of the global origin on the plane; what is below 1e-6 of it becomes exactly 0. */
void ejes2d_posiciona_ejes_en_origen_cero_global_proyectado_sobre_el_plano(double *Xo, double *Yo, double *Zo,
                                                                           double Ux, double Uy, double Uz, double Vx,
                                                                           double Vy, double Vz);

/** Moves the origin along W, in place or into separate outputs. */
void ejes2d_desplaza_ejes(double *Xo, double *Yo, double *Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                          double Vz, double desplazamiento);
void ejes2d_desplaza_ejes_ex(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                             double Vz, double desplazamiento, VN_SALIDA double *Xo_desplazado,
                             VN_SALIDA double *Yo_desplazado, VN_SALIDA double *Zo_desplazado);

/* ---------------------------------------------------------------- coordinates */

/** Global coordinates of the point (x, y) of the plane. */
void ejes2d_coordenada_2D_a_3D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                               double Vz, double x, double y, VN_SALIDA double *coord_x_3D,
                               VN_SALIDA double *coord_y_3D, VN_SALIDA_OPC double *coord_z_3D);

/** The same of the point at an index of a list; zeros after a report. */
void ejes2d_coordenada_2D_a_3D_punto_poligono(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                              double Vx, double Vy, double Vz, const arrPunto2D *puntos,
                                              VN_INDICE(puntos) uint32_t indice, VN_SALIDA double *coord_x_3D,
                                              VN_SALIDA double *coord_y_3D, VN_SALIDA_OPC double *coord_z_3D);

/** Local x and y of a point that lies in the plane: a distance of `precision` or more is reported, and the foot of the
    point is what is given all the same. */
void ejes2d_coordenadas_3D_a_2D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                                double Vz, double x, double y, double z, double precision, VN_SALIDA double *coord_x_2D,
                                VN_SALIDA double *coord_y_2D);

/** The same with no report: whether the point is off the plane goes to `fuera_de_precision`. */
void ejes2d_coordenadas_3D_a_2D_fuera_de_precision(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                                   double Vx, double Vy, double Vz, double x, double y, double z,
                                                   double precision, VN_SALIDA double *coord_x_2D,
                                                   VN_SALIDA double *coord_y_2D,
                                                   VN_SALIDA_OPC vnbool *fuera_de_precision);

/** Local x and y of the foot of a point on the plane, and the foot itself. */
void ejes2d_coordenadas_3D_proyectado_a_2D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                           double Vy, double Vz, double x, double y, double z,
                                           VN_SALIDA double *coord_x_2D, VN_SALIDA double *coord_y_2D);
void ejes2d_coordenadas_3D_proyectado_a_3D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                           double Vy, double Vz, double x, double y, double z,
                                           VN_SALIDA double *coord_x_3D, VN_SALIDA double *coord_y_3D,
                                           VN_SALIDA double *coord_z_3D);

/** Global coordinates of a local point (x, y, z). */
void ejes2d_coordenada_3D_local_a_global(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                         double Vy, double Vz, double x, double y, double z,
                                         VN_SALIDA double *coord_x_3D, VN_SALIDA double *coord_y_3D,
                                         VN_SALIDA double *coord_z_3D);

/** Local coordinates of a global point; z is along U x V as it comes, neither made unit nor checked. */
void ejes2d_cambio_sistema_coordenadas(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                       double Vy, double Vz, double x, double y, double z, VN_SALIDA double *coord_x_3D,
                                       VN_SALIDA double *coord_y_3D, VN_SALIDA double *coord_z_3D);

/** Screen coordinates of a point: x = p . U + Xo, y = p . V + Yo. */
void ejes2d_transforma_de_3D_a_2D_pantalla(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                           double Vy, double Vz, double x, double y, double z,
                                           VN_SALIDA double *coord_x_2D, VN_SALIDA double *coord_y_2D);

/** Its inverse, the point at (x, y, 0) of the screen, with Zo the offset along U x V. A frame that has no inverse is
    reported, and gives zeros. */
void ejes2d_coordenada_2D_a_3D_pantalla(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                        double Vy, double Vz, double x, double y, VN_SALIDA double *coord_x_3D,
                                        VN_SALIDA double *coord_y_3D, VN_SALIDA double *coord_z_3D);

/** Point (x, y) of the first plane in the coordinates of the second one, where it must lie to `precision` (reported,
    and its foot is given), or where its foot lies. */
void ejes2d_cambia_de_un_sistema_coordenadas_a_otro(double Xo1, double Yo1, double Zo1, double Ux1, double Uy1,
                                                    double Uz1, double Vx1, double Vy1, double Vz1, double Xo2,
                                                    double Yo2, double Zo2, double Ux2, double Uy2, double Uz2,
                                                    double Vx2, double Vy2, double Vz2, double x, double y,
                                                    double precision, VN_SALIDA double *coord_x_2D,
                                                    VN_SALIDA double *coord_y_2D);
void ejes2d_cambia_de_un_sistema_coordenadas_a_otro_proyectando(
    double Xo1, double Yo1, double Zo1, double Ux1, double Uy1, double Uz1, double Vx1, double Vy1, double Vz1,
    double Xo2, double Yo2, double Zo2, double Ux2, double Uy2, double Uz2, double Vx2, double Vy2, double Vz2,
    double x, double y, VN_SALIDA double *coord_x_2D, VN_SALIDA double *coord_y_2D);

/** A whole frame, given in a base frame, in global coordinates, and the other way round: base first, then the frame. */
void ejes2d_ejes_locales_a_globales(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                    double Vy, double Vz, double Xo_local, double Yo_local, double Zo_local,
                                    double Ux_local, double Uy_local, double Uz_local, double Vx_local, double Vy_local,
                                    double Vz_local, VN_SALIDA double *Xo_global, VN_SALIDA double *Yo_global,
                                    VN_SALIDA double *Zo_global, VN_SALIDA double *Ux_global,
                                    VN_SALIDA double *Uy_global, VN_SALIDA double *Uz_global,
                                    VN_SALIDA double *Vx_global, VN_SALIDA double *Vy_global,
                                    VN_SALIDA double *Vz_global);
void ejes2d_ejes_globales_a_locales(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                    double Vy, double Vz, double Xo_global, double Yo_global, double Zo_global,
                                    double Ux_global, double Uy_global, double Uz_global, double Vx_global,
                                    double Vy_global, double Vz_global, VN_SALIDA double *Xo_local,
                                    VN_SALIDA double *Yo_local, VN_SALIDA double *Zo_local, VN_SALIDA double *Ux_local,
                                    VN_SALIDA double *Uy_local, VN_SALIDA double *Uz_local, VN_SALIDA double *Vx_local,
                                    VN_SALIDA double *Vy_local, VN_SALIDA double *Vz_local);

/* ---------------------------------------------------------------- vectors */

/** Global components of the vector (vx, vy) of the plane. */
void ejes2d_vector_2D_a_3D(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx, double vy,
                           VN_SALIDA double *vx_3D, VN_SALIDA double *vy_3D, VN_SALIDA double *vz_3D);

/** Local components of a vector that lies in the plane: a component along W of 1e-6 (or `precision`) or more is
    reported, and the others are given all the same. */
void ejes2d_vector_3D_a_2D(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx, double vy,
                           double vz, VN_SALIDA double *vx_2D, VN_SALIDA double *vy_2D);
void ejes2d_vector_3D_a_2D_con_precision(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx,
                                         double vy, double vz, double precision, VN_SALIDA double *vx_2D,
                                         VN_SALIDA double *vy_2D);

/** Local components of the projection of a vector onto the plane, and the projection itself. */
void ejes2d_vector_3D_proyectado_a_2D(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx,
                                      double vy, double vz, VN_SALIDA double *vx_2D, VN_SALIDA double *vy_2D);
void ejes2d_vector_3D_proyectado_a_3D(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx,
                                      double vy, double vz, VN_SALIDA double *vx_3D, VN_SALIDA double *vy_3D,
                                      VN_SALIDA double *vz_3D);

/** A vector from local components (along U, V and W) to global ones, and back. */
void ejes2d_vector_3D_local_a_global(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx,
                                     double vy, double vz, VN_SALIDA double *vx_3D, VN_SALIDA double *vy_3D,
                                     VN_SALIDA double *vz_3D);
void ejes2d_vector_3D_global_a_local(double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double vx,
                                     double vy, double vz, VN_SALIDA double *vx_3D, VN_SALIDA double *vy_3D,
                                     VN_SALIDA double *vz_3D);

/** A line (point and unit direction) that lies in the plane, in local coordinates: point or direction off the plane by
    `precision` or more is reported, and what projects is given. */
void ejes2d_recta_3D_a_2D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                          double Vz, double Xo_recta_3D, double Yo_recta_3D, double Zo_recta_3D, double Ux_recta_3D,
                          double Uy_recta_3D, double Uz_recta_3D, double precision, VN_SALIDA double *Xo_recta_2D,
                          VN_SALIDA double *Yo_recta_2D, VN_SALIDA double *Ux_recta_2D, VN_SALIDA double *Uy_recta_2D);

/* ---------------------------------------------------------------- polylines */

/** New array, the caller's, with the points of a polyline of the plane in global coordinates. */
arrPunto3D *ejes2d_polilinea2D_a_3D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                    double Vy, double Vz, const arrPunto2D *polilinea);

/** New array with local x and y of the points: of points in the plane (each one off it by `precision` or more is
    reported), or of their feet. */
arrPunto2D *ejes2d_polilinea3D_a_2D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                    double Vy, double Vz, const arrPunto3D *polilinea, double precision);
arrPunto2D *ejes2d_polilinea3D_proyectada_a_2D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                               double Vx, double Vy, double Vz, const arrPunto3D *polilinea);

/** Local to global, in place or as a new array. */
void ejes2d_transforma_polilinea3D(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                   double Vy, double Vz, arrPunto3D *polilinea);
arrPunto3D *ejes2d_polilinea3D_transformada(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                            double Vy, double Vz, const arrPunto3D *polilinea);

/** Global to local, in place or as a new array. */
void ejes2d_polilinea3D_transforma_a_locales(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                             double Vx, double Vy, double Vz, arrPunto3D *polilinea);
arrPunto3D *ejes2d_polilinea3D_transformada_a_locales(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz,
                                                      double Vx, double Vy, double Vz, const arrPunto3D *polilinea);

/** New array with a contour of one plane in the coordinates of another, `destino`; its winding stays, so the points
    come in reverse order where the two normals do not look the same way (their product is 1e-8 or less). Whether any
    point is off the other plane by `precision` or more goes to `fuera_de_precision`. */
arrPunto2D *ejes2d_crea_puntos2d_cambiado_a_sistema_coordenadas_destino(
    const arrPunto2D *puntos, double Xo_origen, double Yo_origen, double Zo_origen, double Ux_origen, double Uy_origen,
    double Uz_origen, double Vx_origen, double Vy_origen, double Vz_origen, double Xo_destino, double Yo_destino,
    double Zo_destino, double Ux_destino, double Uy_destino, double Uz_destino, double Vx_destino, double Vy_destino,
    double Vz_destino, double precision, VN_SALIDA_OPC vnbool *fuera_de_precision);

/* ---------------------------------------------------------------- comparisons */

/** Whether the frame is the global one, each of its nine values to `precision`. */
vnbool ejes2d_es_identidad(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                           double Vz, double precision);

/** Whether two frames have the same nine values, each to `precision`. */
vnbool ejes2d_iguales(double Xo1, double Yo1, double Zo1, double Ux1, double Uy1, double Uz1, double Vx1, double Vy1,
                      double Vz1, double Xo2, double Yo2, double Zo2, double Ux2, double Uy2, double Uz2, double Vx2,
                      double Vy2, double Vz2, double precision);

/** Whether two frames have the same U and V, each component to 1e-5. */
vnbool ejes2d_son_ejes_iguales(double Ux1, double Uy1, double Uz1, double Vx1, double Vy1, double Vz1, double Ux2,
                               double Uy2, double Uz2, double Vx2, double Vy2, double Vz2);

/** Whether two planes are parallel, looking the same way or opposite ones: ||W1 . W2| - 1| < `precision`. */
vnbool ejes2d_son_paralelos(double Ux1, double Uy1, double Uz1, double Vx1, double Vy1, double Vz1, double Ux2,
                            double Uy2, double Uz2, double Vx2, double Vy2, double Vz2, double precision);

/** Whether two planes look the same way: W1 . W2 > `precision`. */
vnbool ejes2d_son_ejes_orientados_en_la_misma_direccion(double Ux1, double Uy1, double Uz1, double Vx1, double Vy1,
                                                        double Vz1, double Ux2, double Uy2, double Uz2, double Vx2,
                                                        double Vy2, double Vz2, double precision);

/** Whether two frames have one plane: parallel, and the second origin less than `precision_distancia` from the first
    plane. */
vnbool ejes2d_son_ejes_coincidentes(double Xo1, double Yo1, double Zo1, double Ux1, double Uy1, double Uz1, double Vx1,
                                    double Vy1, double Vz1, double Xo2, double Yo2, double Zo2, double Ux2, double Uy2,
                                    double Uz2, double Vx2, double Vy2, double Vz2, double precision_paralelos,
                                    double precision_distancia);

/* ---------------------------------------------------------------- changes in place */

/** Negates V, which turns W over. */
void ejes2d_invierte_ejes_manteniendo_la_U(double *Vx, double *Vy, double *Vz);

/** Turns V toward W, about U. */
void ejes2d_gira_ejes_sobre_U(double Ux, double Uy, double Uz, double *Vx, double *Vy, double *Vz, double grados);

/** Turns U toward W, about V: the same form as about U, so it is the left-handed sense, on purpose. */
void ejes2d_gira_ejes_sobre_V(double *Ux, double *Uy, double *Uz, double Vx, double Vy, double Vz, double grados);

/** Turns U toward V and V with it, about W. */
void ejes2d_gira_ejes_sobre_W(double *Ux, double *Uy, double *Uz, double *Vx, double *Vy, double *Vz, double grados);

VN_C_FIN

#endif
