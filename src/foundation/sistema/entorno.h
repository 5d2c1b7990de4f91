/* Environment helpers: development switches, the machine and its user, integer scaling. */
#ifndef VN_ENTORNO_H
#define VN_ENTORNO_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Whether the environment variable ENPRUEBA is defined: development mode. */
vnbool env_esta_definido_ENPRUEBA(void);
/** Whether the environment variable VNCACHINFO_LOG is defined. */
vnbool env_esta_definido_VNCACHINFO_LOG(void);
/** Whether this program is a 64-bit image. */
vnbool machine_es_imagen_de_64bits(void);
/** Whether the operating system is a 64-bit one. */
vnbool verswin_EsVersion_64_bits(void);
/** The machine's name without its domain; empty if it has none. New text. */
vnwchar *machine_nombre_u(void);
/** The name of the user that this program runs for, new; null if there is none. */
vnwchar *machine_nombre_usuario_u(void);
/** Milliseconds since the machine was started. It never goes back; its steps may be of some milliseconds. */
uint64_t machine_milisegundos(void);
/** a * b / c over a 64-bit product, to the nearest whole number, halves away from zero. -1 when `c` is 0 or the result
    is not a 32-bit number: that is not reported. */
int vornwin_MulDiv(int a, int b, int c);
int32_t vornwin_MulDiv_long(int32_t a, int32_t b, int32_t c);

VN_C_FIN

#endif
