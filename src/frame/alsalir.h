/* Exit registry: destroys a module's process-wide texts and records when the process ends. */
#ifndef VN_ALSALIR_H
#define VN_ALSALIR_H
#include "foundation/tipos.h"
VN_C_INICIO
/** At exit, `cadena` is destroyed. */
void alsalir_nousar_destruye_cadena(char **cadena, const char *modulo, uint32_t linea);
VN_C_FIN
#endif
