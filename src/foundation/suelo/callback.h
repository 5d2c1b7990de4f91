/* Call-backs: a function with the values that it was made with, to be called later. */
#ifndef VN_CALLBACK_H
#define VN_CALLBACK_H

#include "vornspy.h"

typedef struct vncallback vncallback;
/** What a call-back runs: with the pack that it was created with (or null) and the datum of this call (null from
    callback_nousar_lanza_void). Both are borrowed. */
typedef void (*vnfunc_callback)(vnparametros *parametros, void *dato);

VN_C_INICIO

/** New call-back. It takes the pack over, which may be null. */
vncallback *callback_nousar_crea(vnfunc_callback funcion, VN_OPC VN_CONSUME vnparametros *parametros);
/** Calls it without a datum. */
void callback_nousar_lanza_void(vncallback *c);
/** Calls it with `dato`. */
void callback_nousar_lanza_void_dato(vncallback *c, VN_DATO void *dato);
/** Frees it and its pack. */
void callback_nousar_destruye(vncallback **c);

VN_C_FIN

#define callback_crea(funcion, parametros) callback_nousar_crea(funcion, parametros)
#define callback_lanza_void(c) callback_nousar_lanza_void(c)
/* callback_lanza_void_dato(tipo, c, dato): `dato` must be a `tipo *`. */
#define callback_lanza_void_dato(tipo, c, dato)                                                                        \
    callback_nousar_lanza_void_dato(c, VN_COMPRUEBA_TIPO(tipo *, dato, void *))
#define callback_destruye(c) callback_nousar_destruye(c)

#endif
