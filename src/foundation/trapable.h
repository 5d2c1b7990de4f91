/* Trapped calls: a fault inside comes back as a result instead of a report. */
#ifndef VN_TRAPABLE_H
#define VN_TRAPABLE_H

#include "foundation/error_interno.h"

/** What is run inside a trap. */
typedef void (*vnfunc_trapable)(void *datos);

VN_C_INICIO

/** Runs `funcion(datos)`. A report inside unwinds to here: what the library had open is closed and freed, and the
    result is FALSO; so it is when memory runs out. Traps nest. The result is returned and, if `resultado` is not
    null, stored. */
vnbool trapable_nousar_recursivo_ejecuta_funcion_segura(vnfunc_trapable funcion, VN_DATO void *datos,
                                                        VN_SALIDA_OPC vnbool *resultado);
/** Text of the report that the last failed trap of this thread caught: UTF-8, one line, as the default receiver
    writes it. Borrowed; empty when no trap has failed. */
const char *trapable_texto_del_ultimo_fallo(void);

VN_C_FIN

/** trapable_ejecuta_funcion_segura(tipo, funcion, datos, resultado): `funcion` must be `void (*)(tipo *)`. */
#define trapable_ejecuta_funcion_segura(tipo, funcion, datos, resultado)                                               \
    trapable_nousar_recursivo_ejecuta_funcion_segura(VN_COMPRUEBA_TIPO(void (*)(tipo *), funcion, vnfunc_trapable),    \
                                                     (void *)(datos), resultado)

#endif
