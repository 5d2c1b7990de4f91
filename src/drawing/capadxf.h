/* Layers of drawing exchange files: codes of pens, names that such files take. */
#ifndef VN_CAPADXF_H
#define VN_CAPADXF_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The code of a pen for a device: 0 and 1 give 1, 2 to 4 themselves, 6 gives 7, 254 (of the layer) 5, 255 (no
    change) 0. Another pen is reported: 0. */
uint32_t capadxf_convertir_pluma(uint8_t pluma);

/** New name fit for a layer: upper case without accents, "_" for blanks, commas, points, slashes, colons and double
    quotes. The second form is ANSI. */
vnwchar *capadxf_nombre_valido_para_capa_u(const vnwchar *nombre);
char *capadxf_nombre_valido_para_capa(const char *nombre);
/** New name fit for a block: "_" for double quotes. */
vnwchar *capadxf_nombre_valido_para_bloque_u(const vnwchar *nombre);

VN_C_FIN

#endif
