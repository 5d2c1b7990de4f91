/* Trapped calls: a fault inside comes back as a result instead of a report. Nothing is thrown and no frame is skipped:
   a report inside marks the trap and returns, and the operation that made it gives its neutral result. So the frames
   between may be of any language. */
#ifndef VN_TRAPABLE_H
#define VN_TRAPABLE_H

#include "error_interno.h"

/** What is run inside a trap. */
typedef void (*vnfunc_trapable)(void *datos);

VN_C_INICIO

/** Runs `funcion(datos)` to its end. The result is FALSO if anything inside was reported, on this thread and outside of
    traps opened within; those reports do not go to the receiver. Traps nest; the contexts entered inside and left open
    are left. Memory that has run out is no fault of this kind: see vornspy_instala_memoria_agotada. The result is
    returned and, if `resultado` is not null, stored. */
vnbool trapable_nousar_recursivo_ejecuta_funcion_segura(vnfunc_trapable funcion, VN_DATO void *datos,
                                                        VN_SALIDA_OPC vnbool *resultado);
/** Whether the innermost open trap of this thread has caught a report already; FALSO outside of traps. For a trapped
    function that would go on for long with what it has read. */
vnbool trapable_ha_fallado(void);
/** Text of the first report that the last failed trap of this thread caught: UTF-8, one line, as the default receiver
    writes it. Borrowed; empty when no trap has failed. */
const char *trapable_texto_del_ultimo_fallo(void);

VN_C_FIN

/** trapable_ejecuta_funcion_segura(tipo, funcion, datos, resultado): `funcion` must be `void (*)(tipo *)`. */
#define trapable_ejecuta_funcion_segura(tipo, funcion, datos, resultado)                                               \
    trapable_nousar_recursivo_ejecuta_funcion_segura(VN_COMPRUEBA_TIPO(void (*)(tipo *), funcion, vnfunc_trapable),    \
                                                     (void *)(datos), resultado)

#endif
