#define VN_MODULO "alsalir (NUCLEOS.DLL)"
#include "frame/alsalir.h"
void alsalir_nousar_destruye_cadena(char **, const char *, uint32_t) {}
