/* What a colour is: the record that records of drawings hold, and its two reserved indices. */
#ifndef VN_IDCOLOR_TIPOS_H
#define VN_IDCOLOR_TIPOS_H

#include "../foundation/suelo/tipos.h"

/** Of a colour, a pen, a line type, a layer, a key: nothing changes. */
#define VPLAN_NOCAMBIAR 255
/** Of a colour, a pen, a line type: that of the layer. */
#define VPLAN_PORCAPA 254

/** A colour: one of three kinds. */
typedef struct idcolor idcolor;
struct idcolor {
    int32_t tipo_color;   /**< 0 index of the AutoCAD palette, 1 direct RGBA, 2 index of the own palette */
    uint8_t color_paleta; /**< the index, kinds 0 and 2; 255 in kind 1 */
    uint32_t rgba;        /**< the colour, kind 1: red in the lowest byte, alpha in the highest; else 0xFFFFFFFF */
};

#endif
