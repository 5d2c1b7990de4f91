/* Places on disk: the temporary directory, the running program, programs of the search path; lists
   with subdirectories. */
#ifndef VN_VORNDIR_H
#define VN_VORNDIR_H

#include "../suelo/tipos.h"

/* Lists of texts (arr.h). */
typedef struct arrCADENA arrCADENA;
typedef struct arrCADENA_u arrCADENA_u;

VN_C_INICIO

/** The user's directory for temporary files, without a separator at its end. New text. An ANSI result that the code
    page cannot hold is reported, and null. */
vnwchar *vorndir_dameDirectorioTemporal_UNICODE(void);
char *vorndir_dameDirectorioTemporal(void);
/** Creates an empty file of a name that no other has, with the extension `ext` (with or without full stop; empty:
    none), in the temporary directory. Its path, a new text; the caller removes the file. Null if it cannot be
    created; an `ext` that would lead elsewhere is reported. */
vnwchar *vorndir_creaFicheroTemporalConExt_UNICODE(const vnwchar *ext);
char *vorndir_creaFicheroTemporalConExt(const char *ext);
/** Full path of the running program's file. New text. */
vnwchar *vorndir_dame_path_completo_del_programa_UNICODE(void);
/** Full path of the program that the system would run for `nombre` (on Windows also without its extension): the
    directories of the variable PATH in their order. New text, or null if there is none. */
vnwchar *vorndir_busca_ejecutable_del_path_UNICODE(const vnwchar *nombre);
char *vorndir_busca_ejecutable_del_path(const char *nombre);

/** Full paths of the files that match `patron`: a directory, a separator and a mask
    (vdir_lista_de_ficheros_UNICODE). The ANSI form leaves out those that the code page cannot hold. FALSO and an
    empty list if the directory cannot be read. */
vnbool vorndir_lista_de_fichero_UNICODE(const vnwchar *patron, VN_SALIDA arrCADENA_u **lista);
vnbool vorndir_lista_de_fichero(const char *patron, VN_SALIDA arrCADENA **lista);
/** All below `ruta`: full paths of the files whose names match `mascara`, and of all subdirectories, each before what
    it holds. A link to a directory is listed and not entered. FALSO and empty lists if `ruta` cannot be read. */
vnbool vorndir_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(const vnwchar *ruta, const vnwchar *mascara,
                                                                        VN_SALIDA arrCADENA_u **ficheros,
                                                                        VN_SALIDA arrCADENA_u **directorios);
/** Frees both lists. */
void vorndir_libera_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(VN_OPC arrCADENA_u **ficheros,
                                                                             VN_OPC arrCADENA_u **directorios);

VN_C_FIN

#endif
