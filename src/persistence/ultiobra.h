/* Recent works: the list of the works that the user last opened, in a small text file whose path the host gives. A list
   that is damaged is discarded: it never stops a program. One that cannot be read for the moment, because another
   program holds it or the disk fails, reads as empty and is left as it is: nothing is written over it. */
#ifndef VN_ULTIOBRA_H
#define VN_ULTIOBRA_H

#include "../foundation/suelo/tipos.h"

/** Array of wide texts (arr.h). */
typedef struct arrCADENA_u arrCADENA_u;
/** Whether the files of a work exist. */
typedef vnbool (*ultiobra_func_existe_obra)(const vnwchar *nombre);

VN_C_INICIO

/** Puts `nombre` at the head of the list, once whatever its case, keeps the 32 first and marks the list as not closed.
    A null name puts an empty text there, "no work open"; on an empty list it deletes the file. A null path does
    nothing. */
void ultiobra_guarda_nombre_ultima_obra_u(VN_OPC const vnwchar *nombre, VN_OPC const vnwchar *path_lista);
/** Marks the last work as closed in an orderly way. A null path does nothing. */
void ultiobra_finaliza_ultima_obra_u(VN_OPC const vnwchar *path_lista);
/** New array of the recent works, most recent first. Entries that are no valid paths are left out, and those whose
    extension is not one of `extensiones`, if given (any case, without the dot). Null path: an empty array. */
arrCADENA_u *ultiobra_lee_ultimas_obras_u(VN_OPC const vnwchar *path_lista, VN_OPC const arrCADENA_u *extensiones);
/** New text: the most recent work, if it was closed in an orderly way; else null. */
vnwchar *ultiobra_lee_nombre_ultima_obra_finalizada_u(VN_OPC const vnwchar *path_lista,
                                                      VN_OPC const arrCADENA_u *extensiones);
/** Whether the work at `indice` of the filtered list exists, by `funcionExisteObra`: then a new text with its name goes
    to `*nombre`, if given. If it does not, the user is asked whether the entry is to go, and `*eliminada`, if given,
    says whether it has gone. No such position: FALSO. The outputs are always written: null and FALSO where nothing is
    told. */
vnbool ultiobra_indice_existe_obra_reciente(VN_OPC const vnwchar *path_lista, uint32_t indice,
                                            VN_OPC const arrCADENA_u *extensiones,
                                            ultiobra_func_existe_obra funcionExisteObra,
                                            VN_SALIDA_OPC vnwchar **nombre_obra, VN_SALIDA_OPC vnbool *eliminada);
/** The same for the entry that is exactly `nombre_fichero_obra`. */
vnbool ultiobra_nombre_existe_obra_reciente(VN_OPC const vnwchar *path_lista, const vnwchar *nombre_fichero_obra,
                                            ultiobra_func_existe_obra funcionExisteObra,
                                            VN_SALIDA_OPC vnwchar **nombre_obra, VN_SALIDA_OPC vnbool *eliminada);
/** Asks the user whether the entry of a work that is not there any more is to go. */
vnbool ultiobra_pregunta_eliminar_obra_reciente(const vnwchar *nombre_fichero_obra);

VN_C_FIN

#endif
