/* The save protocol: points, and arrays of simple values. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_ARR_H
#define VN_VORNSAVE_ARR_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Point: x, then y; on the heap when read. The float form reads two floats. */
void vornsave_graba_punto(const Punto2D *pto, vornsave *vornsave_datos);
Punto2D *vornsave_lee_punto(vornsave *vornsave_datos);
Punto2D *vornsave_lee_punto_float(vornsave *vornsave_datos);

/** Arrays of numbers: the count and the elements. */
void vornsave_graba_arr_double(const arrDouble *array, vornsave *vornsave_datos);
arrDouble *vornsave_lee_arr_double(vornsave *vornsave_datos);
void vornsave_salta_arr_double(vornsave *vornsave_datos);
void vornsave_graba_arr_long(const arrLong *array, vornsave *vornsave_datos);
arrLong *vornsave_lee_arr_long(vornsave *vornsave_datos);
void vornsave_graba_arr_long64(const arrLong64 *array, vornsave *vornsave_datos);
arrLong64 *vornsave_lee_arr_long64(vornsave *vornsave_datos);
void vornsave_graba_arr_uchar(const arrUChar *array, vornsave *vornsave_datos);
arrUChar *vornsave_lee_arr_uchar(vornsave *vornsave_datos);
void vornsave_graba_arr_ushort(const arrUShort *array, vornsave *vornsave_datos);
arrUShort *vornsave_lee_arr_ushort(vornsave *vornsave_datos);
void vornsave_salta_arr_ushort(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong(const arrULong *array, vornsave *vornsave_datos);
arrULong *vornsave_lee_arr_ulong(vornsave *vornsave_datos);
void vornsave_salta_arr_ulong(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong64(const arrULong64 *array, vornsave *vornsave_datos);
arrULong64 *vornsave_lee_arr_ulong64(vornsave *vornsave_datos);
void vornsave_salta_arr_ulong64(vornsave *vornsave_datos);
void vornsave_graba_arulong(const arulong *array, vornsave *vornsave_datos);
arulong *vornsave_lee_arulong(vornsave *vornsave_datos);
void vornsave_graba_arulong64(const arulong64 *array, vornsave *vornsave_datos);
arulong64 *vornsave_lee_arulong64(vornsave *vornsave_datos);
/** Reads an array of doubles that may be damaged; each output is CIERTO if any element raised it. */
arrDouble *vornsave_lee_arr_double_con_posible_error(vornsave *vornsave_datos, VN_SALIDA vnbool *es_incorrecto,
                                                     VN_SALIDA vnbool *es_denormal);
/** Arrays of truth values: on a binary stream 2 bytes each. */
void vornsave_graba_arr_bool(const arrBOOL *array, vornsave *vornsave_datos);
arrBOOL *vornsave_lee_arr_bool(vornsave *vornsave_datos);
/** Arrays of points: in text, one line per point. */
void vornsave_graba_arr_puntos2D(const arrPunto2D *array, vornsave *vornsave_datos);
arrPunto2D *vornsave_lee_arr_puntos2D(vornsave *vornsave_datos);
void vornsave_salta_arr_puntos2D(vornsave *vornsave_datos);
void vornsave_graba_arr_puntos3D(const arrPunto3D *array, vornsave *vornsave_datos);
arrPunto3D *vornsave_lee_arr_puntos3D(vornsave *vornsave_datos);
void vornsave_salta_arr_puntos3D(vornsave *vornsave_datos);
/** Points with a private value, which `funcion` writes and `lee_datos` reads. */
void vornsave_graba_arr_puntos2DXPriv(const arrPunto2DXPriv *array, vornsave *vornsave_datos,
                                      vnfunc_graba_dato funcion);
arrPunto2DXPriv *vornsave_lee_arr_puntos2DXPriv(vornsave *vornsave_datos, vnfunc_lee_dato lee_datos);

VN_C_FIN

/* Typed forms: `tipo` is the element's type, and a function for another type does not compile. */
#define vornsave_graba_arr_puntos2DXPrivST(array, datos, tipo, funcion)                                                \
    vornsave_graba_arr_puntos2DXPriv(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_puntos2DXPrivST(datos, tipo, lee_datos)                                                       \
    vornsave_lee_arr_puntos2DXPriv(datos, VN_LEE_TIPO(tipo, lee_datos))

#endif
