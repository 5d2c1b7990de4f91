/* Exit list: calls that are made when the process ends, last registered first. */
#ifndef VN_VNATEXIT_H
#define VN_VNATEXIT_H

#include "vornspy.h"

/** A call of the exit list, with the pack that it was registered with, or null. The list frees the pack afterwards. */
typedef void (*vnfunc_atexit)(vnparametros *parametros);

VN_C_INICIO

/** Registers `funcion(parametros)` for the end of the process; the pack is taken over. Any thread may call it, also
    while the list runs: what is added then is run next; what is added once it has run at the end, by destructors that
    run later, still runs before the process is gone. Keeps this library, and the ones that `funcion` and `modulo` lie
    in, in memory: a plug-in that has registered may be unloaded by its host. */
void nousar_atexit_anade(vnfunc_atexit funcion, VN_OPC VN_CONSUME vnparametros *parametros, VN_OPC const char *modulo,
                         uint32_t linea);
/** Runs the list now and leaves it empty: for hosts that unload the library, and for tests. What modules made at first
    use is gone then, and is made again when it is next used. */
void vnatexit_ejecuta(void);

VN_C_FIN

#define atexit_anade(funcion, parametros) nousar_atexit_anade(funcion, parametros, VN_AQUI)

#endif
