/* The save protocol: arrays and ordered sets of structures, by functions of the host's. vornsave.h tells what holds for
   all. */
#ifndef VN_VORNSAVE_PUNTEROS_H
#define VN_VORNSAVE_PUNTEROS_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Arrays of pointers: the count, then each element by `funcion`. The reader's first report ends the reading; the
    elements that it returned are in the array. */
void vornsave_graba_arr_punteros(const arrPuntero *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
arrPuntero *vornsave_lee_arr_punteros(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
arrPuntero *vornsave_lee_arr_punteros_con_1_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_1_extra funcion,
                                                       VN_DATO void *extra);
arrPuntero *vornsave_lee_arr_punteros_con_2_datos_extra(vornsave *vornsave_datos, vnfunc_lee_dato_2_extra funcion,
                                                        VN_DATO void *extra1, VN_DATO void *extra2);
void vornsave_nousar_salta_arr_punteros_ST(vornsave *vornsave_datos, vnfunc_salta_dato funcion);
/** Arrays of such arrays. */
void vornsave_graba_arr_punteros_array(const arrPuntero *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
arrPuntero *vornsave_lee_arr_punteros_array(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
/** Ordered sets of pointers. The reader makes the set with `comparador`, `dato` and `destructor`. */
void vornsave_nousar_graba_apunorde(const apunorde *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
apunorde *vornsave_nousar_lee_apunorde(vornsave *vornsave_datos, vnfunc_lee_dato funcion,
                                       vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                                       VN_OPC vnfunc_destruye destructor);
apunorde *vornsave_nousar_lee_apunorde_con_1_dato_extra(vornsave *vornsave_datos, VN_DATO void *extra,
                                                        vnfunc_lee_dato_1_extra funcion,
                                                        vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                                                        VN_OPC vnfunc_destruye destructor);

VN_C_FIN

/* Typed forms: `tipo` is the element's type, and a function for another type does not compile. */
#define vornsave_graba_arr_punterosST(array, datos, tipo, funcion)                                                     \
    vornsave_graba_arr_punteros(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punterosST(datos, tipo, funcion) vornsave_lee_arr_punteros(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_con_1_dato_extraST(datos, tipo, tipo1, funcion, extra)                               \
    vornsave_lee_arr_punteros_con_1_dato_extra(datos, VN_LEE_TIPO_1(tipo, tipo1, funcion),                             \
                                               VN_COMPRUEBA_TIPO(tipo1 *, extra, void *))
#define vornsave_lee_arr_punteros_con_2_datos_extraST(datos, tipo, tipo1, tipo2, funcion, extra1, extra2)              \
    vornsave_lee_arr_punteros_con_2_datos_extra(datos, VN_LEE_TIPO_2(tipo, tipo1, tipo2, funcion),                     \
                                                VN_COMPRUEBA_TIPO(tipo1 *, extra1, void *),                            \
                                                VN_COMPRUEBA_TIPO(tipo2 *, extra2, void *))
#define vornsave_salta_arr_punteros_ST(datos, funcion) vornsave_nousar_salta_arr_punteros_ST(datos, funcion)
#define vornsave_graba_arr_punteros_arrayST(array, datos, tipo, funcion)                                               \
    vornsave_graba_arr_punteros_array(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_arrayST(datos, tipo, funcion)                                                        \
    vornsave_lee_arr_punteros_array(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_graba_apunorde(array, datos, tipo, funcion)                                                           \
    vornsave_nousar_graba_apunorde(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_apunorde(datos, tipo, funcion, tipo_dato, comparador, dato, destructor)                           \
    vornsave_nousar_lee_apunorde(datos, VN_LEE_TIPO(tipo, funcion),                                                    \
                                 VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor))
#define vornsave_lee_apunorde_con_1_dato_extra(datos, extra, tipo, tipo1, funcion, tipo_dato, comparador, dato,        \
                                               destructor)                                                             \
    vornsave_nousar_lee_apunorde_con_1_dato_extra(datos, VN_COMPRUEBA_TIPO(tipo1 *, extra, void *),                    \
                                                  VN_LEE_TIPO_1(tipo, tipo1, funcion),                                 \
                                                  VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor))

#endif
