/* The save protocol: its object, and the functions of a host that its operations take. vornsave.h tells what holds for
   all. */
#ifndef VN_VORNSAVE_TIPOS_H
#define VN_VORNSAVE_TIPOS_H

#include "../foundation/ficheros/fichmem.h"
#include "../foundation/ficheros/lc_fichero.h"
#include "../foundation/listas/acadorde.h"
#include "../foundation/listas/apunorde.h"
#include "../foundation/suelo/tipos.h"

/** The protocol object. One thread at a time, one direction at a time; the destination stays the caller's. */
typedef struct vornsave vornsave;
/** A block of indexed data. */
typedef struct idxdatos idxdatos;
/** A connected socket. */
typedef struct insocket insocket;

/** Writes, reads or passes over one element. A reader's result belongs to the caller of the operation, which hands on
    the extra values that it was given. */
typedef void (*vnfunc_graba_dato)(const void *dato, vornsave *vornsave_datos);
typedef void *(*vnfunc_lee_dato)(vornsave *vornsave_datos);
typedef void *(*vnfunc_lee_dato_1_extra)(void *extra, vornsave *vornsave_datos);
typedef void *(*vnfunc_lee_dato_2_extra)(void *extra1, void *extra2, vornsave *vornsave_datos);
typedef void (*vnfunc_salta_dato)(vornsave *vornsave_datos);
typedef void (*vnfunc_graba_texto)(const char *texto, vornsave *vornsave_datos);
/** Reads a text: a new one, freed with vornstr_destruye by the operation, which owns it from then on. */
typedef char *(*vnfunc_lee_texto)(vornsave *vornsave_datos);

/** Progress of a host: the bar starts with its total, is told positions in bytes, ends, or is merely kept alive. */
typedef void (*vnfunc_prgs_inicia)(void *datos_prgs, uint32_t posicion_final);
typedef void (*vnfunc_prgs_valor)(void *datos_prgs, uint32_t posicion);
typedef void (*vnfunc_prgs_fin)(void *datos_prgs);
typedef void (*vnfunc_prgs_refresca)(void *datos_prgs);

/* What the typed forms ask for. */
#define VN_GRABA_TIPO(tipo, funcion) VN_COMPRUEBA_TIPO(void (*)(const tipo *, vornsave *), funcion, vnfunc_graba_dato)
#define VN_LEE_TIPO(tipo, funcion) VN_COMPRUEBA_TIPO(tipo *(*)(vornsave *), funcion, vnfunc_lee_dato)
#define VN_LEE_TIPO_1(tipo, tipo1, funcion)                                                                            \
    VN_COMPRUEBA_TIPO(tipo *(*)(tipo1 *, vornsave *), funcion, vnfunc_lee_dato_1_extra)
#define VN_LEE_TIPO_2(tipo, tipo1, tipo2, funcion)                                                                     \
    VN_COMPRUEBA_TIPO(tipo *(*)(tipo1 *, tipo2 *, vornsave *), funcion, vnfunc_lee_dato_2_extra)
#define VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor)                                                   \
    VN_COMPRUEBA_TIPO(int (*)(const tipo *, const tipo *, tipo_dato *), comparador, vnfunc_compara_con_dato),          \
        VN_COMPRUEBA_TIPO(tipo_dato *, dato, void *),                                                                  \
        VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye)

#endif
