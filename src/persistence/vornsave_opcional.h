/* The save protocol: structures and arrays that may be null. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_OPCIONAL_H
#define VN_VORNSAVE_OPCIONAL_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Optional structures: a truth value and, if there is one, what `funcion` writes or reads. */
void vornsave_graba_estructura_opcional2(VN_OPC const void *dato, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
void *vornsave_lee_estructura_opcional2(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
void *vornsave_lee_estructura_opcional2_con_1_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_1_extra funcion,
                                                         VN_DATO void *extra);
void *vornsave_lee_estructura_opcional2_con_2_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_2_extra funcion,
                                                         VN_DATO void *extra1, VN_DATO void *extra2);
void vornsave_nousar_salta_estructura_opcional(vornsave *vornsave_datos, vnfunc_salta_dato funcion);

/** Optional arrays: a truth value, then the plain form. Null is written as FALSO and comes back as null. */
void vornsave_graba_arr_bool_opcional(VN_OPC const arrBOOL *array, vornsave *vornsave_datos);
arrBOOL *vornsave_lee_arr_bool_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_opcional(VN_OPC const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_unicode_opcional(VN_OPC const arrCADENA_u *array, vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_unicode_opcional(vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_ansi_unicode_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_double_opcional(VN_OPC const arrDouble *array, vornsave *vornsave_datos);
arrDouble *vornsave_lee_arr_double_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_long_opcional(VN_OPC const arrLong *array, vornsave *vornsave_datos);
arrLong *vornsave_lee_arr_long_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_long64_opcional(VN_OPC const arrLong64 *array, vornsave *vornsave_datos);
arrLong64 *vornsave_lee_arr_long64_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_puntos2D_opcional(VN_OPC const arrPunto2D *array, vornsave *vornsave_datos);
arrPunto2D *vornsave_lee_arr_puntos2D_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_puntos3D_opcional(VN_OPC const arrPunto3D *array, vornsave *vornsave_datos);
arrPunto3D *vornsave_lee_arr_puntos3D_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_uchar_opcional(VN_OPC const arrUChar *array, vornsave *vornsave_datos);
arrUChar *vornsave_lee_arr_uchar_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong_opcional(VN_OPC const arrULong *array, vornsave *vornsave_datos);
arrULong *vornsave_lee_arr_ulong_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong64_opcional(VN_OPC const arrULong64 *array, vornsave *vornsave_datos);
arrULong64 *vornsave_lee_arr_ulong64_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_ushort_opcional(VN_OPC const arrUShort *array, vornsave *vornsave_datos);
arrUShort *vornsave_lee_arr_ushort_opcional(vornsave *vornsave_datos);
/** The same for arrays and ordered sets of structures. */
void vornsave_graba_arr_punteros_array_opcional(VN_OPC const arrPuntero *array, vornsave *vornsave_datos,
                                                vnfunc_graba_dato funcion);
arrPuntero *vornsave_lee_arr_punteros_array_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
void vornsave_nousar_graba_arr_punteros_opcional(VN_OPC const arrPuntero *array, vornsave *vornsave_datos,
                                                 vnfunc_graba_dato funcion);
arrPuntero *vornsave_nousar_lee_arr_punteros_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
arrPuntero *vornsave_nousar_lee_arr_punteros_opcional_con_1_dato_extra(vornsave *vornsave_datos,
                                                                       vnfunc_lee_dato_1_extra funcion,
                                                                       VN_DATO void *extra);
void vornsave_nousar_salta_arr_punteros_opcionalST(vornsave *vornsave_datos, vnfunc_salta_dato funcion);
void vornsave_nousar_graba_apunorde_opcional(VN_OPC const apunorde *array, vornsave *vornsave_datos,
                                             vnfunc_graba_dato funcion);
apunorde *vornsave_nousar_lee_apunorde_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion,
                                                vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                                                VN_OPC vnfunc_destruye destructor);

VN_C_FIN

/* Typed forms: `tipo` is the element's type, and a function for another type does not compile. */
#define vornsave_graba_estructura_opcional2ST(dato, datos, tipo, funcion)                                              \
    vornsave_graba_estructura_opcional2(VN_COMPRUEBA_TIPO(const tipo *, dato, const void *), datos,                    \
                                        VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_estructura_opcional2ST(datos, tipo, funcion)                                                      \
    ((tipo *)vornsave_lee_estructura_opcional2(datos, VN_LEE_TIPO(tipo, funcion)))
#define vornsave_lee_estructura_opcional2_con_1_dato_extraST(datos, tipo, tipo1, funcion, extra)                       \
    ((tipo *)vornsave_lee_estructura_opcional2_con_1_dato_extra(datos, VN_LEE_TIPO_1(tipo, tipo1, funcion),            \
                                                                VN_COMPRUEBA_TIPO(tipo1 *, extra, void *)))
#define vornsave_lee_estructura_opcional2_con_2_dato_extraST(datos, tipo, tipo1, tipo2, funcion, extra1, extra2)       \
    ((tipo *)vornsave_lee_estructura_opcional2_con_2_dato_extra(datos, VN_LEE_TIPO_2(tipo, tipo1, tipo2, funcion),     \
                                                                VN_COMPRUEBA_TIPO(tipo1 *, extra1, void *),            \
                                                                VN_COMPRUEBA_TIPO(tipo2 *, extra2, void *)))
#define vornsave_salta_estructura_opcional(datos, funcion) vornsave_nousar_salta_estructura_opcional(datos, funcion)
#define vornsave_graba_arr_punteros_array_opcionalST(array, datos, tipo, funcion)                                      \
    vornsave_graba_arr_punteros_array_opcional(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_array_opcionalST(datos, tipo, funcion)                                               \
    vornsave_lee_arr_punteros_array_opcional(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_graba_arr_punteros_opcional(array, datos, tipo, funcion)                                              \
    vornsave_nousar_graba_arr_punteros_opcional(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_opcional(datos, tipo, funcion)                                                       \
    vornsave_nousar_lee_arr_punteros_opcional(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_opcional_con_1_dato_extra(datos, tipo, tipo1, funcion, extra)                        \
    vornsave_nousar_lee_arr_punteros_opcional_con_1_dato_extra(datos, VN_LEE_TIPO_1(tipo, tipo1, funcion),             \
                                                               VN_COMPRUEBA_TIPO(tipo1 *, extra, void *))
#define vornsave_salta_arr_punteros_opcionalST(datos, funcion)                                                         \
    vornsave_nousar_salta_arr_punteros_opcionalST(datos, funcion)
#define vornsave_graba_apunorde_opcional(array, datos, tipo, funcion)                                                  \
    vornsave_nousar_graba_apunorde_opcional(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_apunorde_opcional(datos, tipo, funcion, tipo_dato, comparador, dato, destructor)                  \
    vornsave_nousar_lee_apunorde_opcional(datos, VN_LEE_TIPO(tipo, funcion),                                           \
                                          VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor))

#endif
