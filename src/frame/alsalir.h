/* Exit registry: destroys a module's process-wide texts and records when the process ends.

   Threads: registrations may come from any thread, the first ones too; what is registered is the caller's to guard. */
#ifndef VN_ALSALIR_H
#define VN_ALSALIR_H

#include "../foundation/suelo/vornspy.h"

VN_C_INICIO

/** At exit the text that `*cadena` then leads to is destroyed and `*cadena` is left null; null, and a text that is gone
    already, are passed over. `cadena` is the address of a variable that lives until then. Registering it twice destroys
    the text once. */
void alsalir_nousar_destruye_cadena(VN_OPC char **cadena, VN_OPC const char *modulo, uint32_t linea);
void alsalir_nousar_destruye_cadena_u(VN_OPC vnwchar **cadena, VN_OPC const char *modulo, uint32_t linea);
/** At exit `funcDestruyeDato(dato)` is called if the block that `*dato` then leads to is alive; one that its owner has
    destroyed is only nulled. `dato` is the address of a pointer variable of any type. */
void alsalir_nousar_destruye_dato(VN_DATO void *dato, vnfunc_destruye funcDestruyeDato, VN_OPC const char *modulo,
                                  uint32_t linea);

VN_C_FIN

#define alsalir_destruye_cadena(cadena) alsalir_nousar_destruye_cadena(cadena, VN_AQUI)
#define alsalir_destruye_cadena_u(cadena) alsalir_nousar_destruye_cadena_u(cadena, VN_AQUI)
/* alsalir_destruye_dato(tipo, &dato, destruye): `dato` is a `tipo *` and `destruye` a `void (*)(tipo **)`. */
#define alsalir_destruye_dato(tipo, dato, destruye)                                                                    \
    alsalir_nousar_destruye_dato(VN_COMPRUEBA_TIPO(tipo **, dato, void *),                                             \
                                 VN_COMPRUEBA_TIPO(void (*)(tipo **), destruye, vnfunc_destruye), VN_AQUI)

#endif
