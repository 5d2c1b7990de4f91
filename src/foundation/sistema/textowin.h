/* How long a text is in a font of this machine, without a device that draws it: the sum of the widths of its
   characters, by the font's outlines. It does not depend on a screen, nor on kerning: the parts of a text are together
   as long as the whole, unless a surrogate pair is cut. Where the machine has no font at all, a table of a plain
   proportional one stands in. Threads: any; what was measured of a font is kept for the process. */
#ifndef VN_TEXTOWIN_H
#define VN_TEXTOWIN_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** The font that texts are measured in when nobody names one. Borrowed, for good. */
const vnwchar *textowin_get_nombre_fuente_por_defecto(void);
/** Length of the units `primero` to `ultimo` of a text, both included, in the font of that name at a height `alto`, in
    the unit of the height; what lies past the end of the text counts nothing, nor do control characters. A font that
    the machine does not have is the one it takes for it. Half of a surrogate pair is as wide as U+FFFD. */
double textowin_calcula_longitudTrozoTexto(const vnwchar *texto, uint32_t primero, uint32_t ultimo,
                                           const vnwchar *nombre_fuente, double alto);

VN_C_FIN

#endif
