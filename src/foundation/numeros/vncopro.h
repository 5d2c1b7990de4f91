/* Floating-point guard: what is done with a bad number that was just read, and the state of the floating-point unit. */
#ifndef VN_VNCOPRO_H
#define VN_VNCOPRO_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Inspects a double just read. Infinities and not-a-number set `*es_incorrecto`, a denormal number sets
    `*es_denormal`; either is replaced by 0 in `*x`. Both truth values are always written. Never traps. */
void vncopro_filtra_double_con_posible_error(VN_SALIDA double *x, VN_SALIDA vnbool *es_incorrecto,
                                             VN_SALIDA vnbool *es_denormal);
/** Puts this thread's floating-point unit back to the platform's state at start: no pending exceptions, rounding to
    nearest, denormals kept, exceptions masked (a bad operation gives its IEEE result and does not trap). */
void vncopro_inicializa_coprocesador_activando_excepciones_coma_flotante(void);

VN_C_FIN

#endif
