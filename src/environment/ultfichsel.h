/* Last files selected: for each purpose, a key, the file that the user last chose in a selection panel. */
#ifndef VN_ULTFICHSEL_H
#define VN_ULTFICHSEL_H

#include "../foundation/suelo/tipos.h"

/** Array of pointers (arr.h). Its elements here are records of this module. */
typedef struct arrPuntero arrPuntero;

VN_C_INICIO

/** New array of all records of the user; empty if there is no file or it cannot be read. */
arrPuntero *ultfichsel_lee_todos_los_ultimos_ficheros_seleccionados(void);
/** Writes them, making the directory if needed. */
void ultfichsel_graba_todos_los_ultimos_ficheros_seleccionados(const arrPuntero *ultimos_ficheros_seleccionados);
/** Replaces root and name of the record of `clave`, or appends one. The texts are copied. */
void ultfichsel_registra_nombre_fichero(arrPuntero *ultimos_fich_seleccionados, const char *clave, const vnwchar *raiz,
                                        const vnwchar *nombre_fichero);
/** CIERTO and a new text in `*nombre_fichero` if there is a record of `clave`, else FALSO and null. Where the
    stored root and `raiz_actual` differ (any case) and neither is empty, the stored root in the name gives way
    to `raiz_actual`. */
vnbool ultfichsel_ultimo_fichero_seleccionado_si_existe(const arrPuntero *ultimos_fich_seleccionados, const char *clave,
                                                        const vnwchar *raiz_actual, VN_SALIDA vnwchar **nombre_fichero);
/** Frees the array and its records. */
void ultfichsel_destruye(arrPuntero **ultimos_fich_seleccionados);

VN_C_FIN

#endif
