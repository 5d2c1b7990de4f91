/* Configuration files of sections: "[Section]", then lines "key=value". */
#ifndef VN_INI_H
#define VN_INI_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** The whole number that the text of a key begins with, blanks aside; 0 where it begins with none, the nearest 32-bit
    number where it is greater. `por_defecto` when the section or the key is missing, and for a file that is not there,
    cannot be read, is no plain file or has more than a mebibyte: none of that is reported. Letter case does not count
    in names, nor do blanks around them; lines that begin with ';' are comments; the first section of a name is the one,
    and the first key in it. */
int32_t ini_lee_int(const vnwchar *fichero, const char *seccion, const char *clave, int32_t por_defecto);
/** The same for several keys of a section, all of one moment of the file. `claves` has them one a line; the value of
    each goes to its place in `valores`, 0 for those that are missing. */
void ini_lee_varios_int(const vnwchar *fichero, const char *seccion, const char *claves,
                        VN_SALIDA VN_LON(cuantas) int32_t *valores, uint32_t cuantas);

VN_C_FIN

#endif
