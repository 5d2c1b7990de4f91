/* Colours: what names one, the two palettes, the arithmetic of RGB values.

   A 32-bit value has red in its lowest byte, then green, blue, and alpha in the highest: 255 is opaque. In an RGB value
   the highest byte is 0.

   A drawing's colour is an `idcolor`: an index of the AutoCAD palette (256 fixed colours), an index of the own palette
   (16 colours, each with a value for light backgrounds and one for dark ones; above 15 its indices are those of
   AutoCAD, but for the reserved 254, that of the layer, and 255, no change), or a direct RGBA value. An index is a
   colour only over a background, `tipo_fondo`: 0 white, 1 light grey, 2 black. Palette white is black on white paper
   and palette black white on a black screen; a direct colour is the same everywhere.

   A record may stand anywhere, in a host's own records too; those that the operations make are freed with
   idcolor_destruye. A kind out of range is reported wherever it is met, and counts as 0, false or no colour change. */
#ifndef VN_IDCOLOR_H
#define VN_IDCOLOR_H

#include "idcolor_paleta.h"
#include "idcolor_registro.h"
#include "idcolor_rgb.h"
#include "idcolor_salida.h"

#endif
