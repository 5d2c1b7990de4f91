/* Axes of planes: the records, whole frames from one system to another, comparisons, changes in place. What the
   families of ejes2d.h share is told there. */
#ifndef VN_EJES2D_REGISTRO_H
#define VN_EJES2D_REGISTRO_H

#include "../foundation/suelo/tipos.h"

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

/* The parameters of a frame, with a suffix or without: all nine values, or the vectors alone; given, to be filled in,
   or to be filled in where they are not null. */
#define VN_EJES_UV_DE(s) double Ux##s, double Uy##s, double Uz##s, double Vx##s, double Vy##s, double Vz##s
#define VN_EJES_DE(s) double Xo##s, double Yo##s, double Zo##s, VN_EJES_UV_DE(s)
#define VN_EJES_UV VN_EJES_UV_DE()
#define VN_EJES VN_EJES_DE()
#define VN_EJES_UV_SALIDA                                                                                              \
    VN_SALIDA double *Ux, VN_SALIDA double *Uy, VN_SALIDA double *Uz, VN_SALIDA double *Vx, VN_SALIDA double *Vy,      \
        VN_SALIDA double *Vz
#define VN_EJES_UV_SALIDA_OPC                                                                                          \
    VN_SALIDA_OPC double *Ux, VN_SALIDA_OPC double *Uy, VN_SALIDA_OPC double *Uz, VN_SALIDA_OPC double *Vx,            \
        VN_SALIDA_OPC double *Vy, VN_SALIDA_OPC double *Vz
#define VN_EJES_ORIGEN_SALIDA_OPC VN_SALIDA_OPC double *Xo, VN_SALIDA_OPC double *Yo, VN_SALIDA_OPC double *Zo
#define VN_EJES_SALIDA_OPC VN_EJES_ORIGEN_SALIDA_OPC, VN_EJES_UV_SALIDA_OPC
#define VN_EJES_SALIDA_DE(s)                                                                                           \
    VN_SALIDA double *Xo##s, VN_SALIDA double *Yo##s, VN_SALIDA double *Zo##s, VN_SALIDA double *Ux##s,                \
        VN_SALIDA double *Uy##s, VN_SALIDA double *Uz##s, VN_SALIDA double *Vx##s, VN_SALIDA double *Vy##s,            \
        VN_SALIDA double *Vz##s

VN_C_INICIO

/* ---------------------------------------------------------------- records */

/** New record, the caller's. */
ejes2d *ejes2d_crea(VN_EJES);
ejes2d *ejes2d_copia(const ejes2d *ejes2d);
planoABCD *ejes2d_crea_planoABCD(double A, double B, double C, double D);
planoABCD *ejes2d_copia_planoABCD(const planoABCD *planoABCD);

/** Frees the record and leaves the pointer to it null. */
void ejes2d_destruye(ejes2d **ejes2d);
void ejes2d_destruye_planoABCD(planoABCD **planoABCD);

/** New record with the axes `ejes_resp_sr_base`, which are local to a base frame, in global coordinates: the base by
    its values or as a record. */
ejes2d *ejes2d_local_a_global(VN_EJES, const ejes2d *ejes_resp_sr_base);
ejes2d *ejes2d_local_a_ejes2d_global(const ejes2d *ejes_resp_sr_base, const ejes2d *ejes_sr_base_resp_sr_global);

/** New record with the second frame in the coordinates of the first, both given in global ones. */
ejes2d *ejes2d_global_a_ejes2d_local(const ejes2d *ejes_sr_base_resp_sr_global, const ejes2d *ejes_sr_resp_sr_global);

/** A whole frame, given in a base frame, in global coordinates, and the other way round: base first, then the frame. */
void ejes2d_ejes_locales_a_globales(VN_EJES, VN_EJES_DE(_local), VN_EJES_SALIDA_DE(_global));
void ejes2d_ejes_globales_a_locales(VN_EJES, VN_EJES_DE(_global), VN_EJES_SALIDA_DE(_local));

/* ---------------------------------------------------------------- comparisons */

/** Whether the frame is the global one, each of its nine values to `precision`. */
vnbool ejes2d_es_identidad(VN_EJES, double precision);

/** Whether two frames have the same nine values, each to `precision`. */
vnbool ejes2d_iguales(VN_EJES_DE(1), VN_EJES_DE(2), double precision);

/** Whether two frames have the same U and V, each component to 1e-5. */
vnbool ejes2d_son_ejes_iguales(VN_EJES_UV_DE(1), VN_EJES_UV_DE(2));

/** Whether two planes are parallel, looking the same way or opposite ones: ||W1 . W2| - 1| < `precision`. */
vnbool ejes2d_son_paralelos(VN_EJES_UV_DE(1), VN_EJES_UV_DE(2), double precision);

/** Whether two planes look the same way: W1 . W2 > `precision`. */
vnbool ejes2d_son_ejes_orientados_en_la_misma_direccion(VN_EJES_UV_DE(1), VN_EJES_UV_DE(2), double precision);

/** Whether two frames have one plane: parallel, and the second origin less than `precision_distancia` from the first
    plane. */
vnbool ejes2d_son_ejes_coincidentes(VN_EJES_DE(1), VN_EJES_DE(2), double precision_paralelos,
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
