/* The registry: texts under keys, which outside programs and this family's leave on a machine.

   On Windows the system's own. Elsewhere a text file of the user's configuration directory, "registro.txt", with the
   same operations; each change replaces it in one step, under a mutex between programs. The machine's own values that
   this library asks for are there without it. A key is its names from the root down, separated by backslashes (a slash
   is part of a name, a backslash at either end is nothing); keys and names of values are the same in either case. The
   value of the name "" is the key's default one. A value that is no text counts as missing. */
#ifndef VN_VORNREG_H
#define VN_VORNREG_H

#include "../suelo/tipos.h"

typedef struct arrCADENA arrCADENA;
typedef struct arrCADENA_u arrCADENA_u;

/* Roots. */
#define VORNREG_CLASES 0u        /**< classes of objects and documents */
#define VORNREG_CONFIGURACION 1u /**< the hardware configuration in force */
#define VORNREG_USUARIO 2u       /**< the current user */
#define VORNREG_MAQUINA 3u       /**< the machine */
#define VORNREG_USUARIOS 4u      /**< all users */

/* Which registry of a 64-bit machine. Elsewhere than on Windows there is one. */
#define VORNREG_VISTA_PROPIA 0u /**< that of programs like this one */
#define VORNREG_VISTA_32 1u     /**< that of 32-bit programs */
#define VORNREG_VISTA_64 2u     /**< that of 64-bit programs */

VN_C_INICIO

/** The text of a value, new, in `*texto`; its variables of the environment (as "%USERPROFILE%") are replaced where the
    value is marked so. FALSO, and null, when there is none. */
vnbool vornreg_lee_cadena(VN_RANGO(0, 4) uint32_t raiz, const char *clave, const char *valor, VN_SALIDA char **texto);
vnbool vornreg_lee_cadena_u(VN_RANGO(0, 4) uint32_t raiz, const vnwchar *clave, const vnwchar *valor,
                            VN_SALIDA vnwchar **texto);
/** The names of the keys right under a key, sorted, in the new array `*lista`. FALSO, and null, when there is no
    such key. */
vnbool vornreg_dame_subclaves(VN_RANGO(0, 4) uint32_t raiz, const char *clave, VN_SALIDA arrCADENA **lista);
vnbool vornreg_dame_subclaves_u(VN_RANGO(0, 4) uint32_t raiz, const vnwchar *clave, VN_SALIDA arrCADENA_u **lista);
/** Whether a key is there. */
vnbool vornreg_existe_clave_u(VN_RANGO(0, 4) uint32_t raiz, const vnwchar *clave);
/** All texts of a key, by name, in the two new arrays, sorted by the names. FALSO, and nulls, when there is no such
    key. `vista`: one of VORNREG_VISTA_*. */
vnbool vornreg_lee_valores_cadena_clave_ex_u(VN_RANGO(0, 4) uint32_t raiz, const vnwchar *clave,
                                             VN_RANGO(0, 2) uint32_t vista, VN_SALIDA arrCADENA_u **nombres,
                                             VN_SALIDA arrCADENA_u **textos);

/** Sets a value, making the key and those above it if they are not there; null takes the value away. FALSO, without a
    report, when it cannot be done: nothing changes then. */
vnbool vornreg_establece_cadena_u(VN_RANGO(0, 4) uint32_t raiz, const vnwchar *clave, const vnwchar *valor,
                                  VN_OPC const vnwchar *texto);
/** Whether this program may write under the root of the machine. */
vnbool vornreg_tiene_permisos_escribir_en_registro(void);

VN_C_FIN

#endif
