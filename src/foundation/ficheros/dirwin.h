/* Walk over what a directory holds. */
#ifndef VN_DIRWIN_H
#define VN_DIRWIN_H

#include "../suelo/tipos.h"

typedef struct dirwin dirwin;

/** What a walk meets: a file or a directory. */
typedef struct dirwin_dato {
    vnwchar nombre[256]; /**< without path */
    uint32_t atributos;  /**< VNLONGPATH_FILE_ATTRIBUTE_* of vnlongpath.h */
    uint64_t tamanyo;    /**< bytes; 0 for a directory */
    int64_t fecha_UTC;   /**< last change, seconds since 1970-01-01 */
} dirwin_dato;

VN_C_INICIO

/** New walk over the files and directories that match `patron`: a directory, a separator and a mask
    (vdir_lista_de_ficheros_UNICODE); "." and ".." are left out. A directory that cannot be read has nothing. */
dirwin *dirwin_crea_UNICODE(const vnwchar *patron);
/** Next one, in the order of the system; FALSO at the end, and then `dato` is all zero. */
vnbool dirwin_findnextfile_UNICODE(dirwin *d, VN_SALIDA dirwin_dato *dato);
/** Whether it is a directory or leads to one. */
vnbool dirwin_es_directorio_UNICODE(const dirwin_dato *dato);
/** Ends the walk. */
void dirwin_destruye_UNICODE(VN_OPC dirwin **d);

VN_C_FIN

#endif
