/* Colours: handing one to an output, through the output's own two functions. idcolor.h tells what holds for all. */
#ifndef VN_IDCOLOR_SALIDA_H
#define VN_IDCOLOR_SALIDA_H

#include "idcolor_tipos.h"

/** What an output does with a colour: `salida` is what was given with the function. */
typedef void (*vnfunc_color_paleta)(void *salida, uint8_t indice);
typedef void (*vnfunc_color_rgba)(void *salida, uint32_t rgba);

VN_C_INICIO

/** Called through idcolor_escr_color: an index goes to the first function as it stands, a direct colour to the
    second. Index 255 of the AutoCAD palette, which an output would take for "no change", goes to the second as
    0xFFFFFF: white, of alpha 0. */
void idcolor_nousar_escr_color(VN_DATO void *salida, const idcolor *color, vnfunc_color_paleta func_escr_color_paleta,
                               vnfunc_color_rgba func_escr_color_rgba);
/** Called through idcolor_escr_color_con_paleta_vorn: the same with indices of the own palette alone. 255 of the
    AutoCAD palette is 15 there. */
void idcolor_nousar_escr_color_con_paleta_vorn(VN_DATO void *salida, const idcolor *color,
                                               vnfunc_color_paleta func_escr_color_paleta,
                                               vnfunc_color_rgba func_escr_color_rgba);

VN_C_FIN

/* idcolor_escr_color(pantalla, p, color, pinta_indice, pinta_rgba): `p` must be a `pantalla *`, and so must the first
   parameter of the functions. */
#define idcolor_escr_color(tipo, salida, color, func_paleta, func_rgba)                                                \
    idcolor_nousar_escr_color(VN_IDCOLOR_SALIDA(tipo, salida, color, func_paleta, func_rgba))
#define idcolor_escr_color_con_paleta_vorn(tipo, salida, color, func_paleta, func_rgba)                                \
    idcolor_nousar_escr_color_con_paleta_vorn(VN_IDCOLOR_SALIDA(tipo, salida, color, func_paleta, func_rgba))
#define VN_IDCOLOR_SALIDA(tipo, salida, color, func_paleta, func_rgba)                                                 \
    VN_COMPRUEBA_TIPO(tipo *, salida, void *), color,                                                                  \
        VN_COMPRUEBA_TIPO(void (*)(tipo *, uint8_t), func_paleta, vnfunc_color_paleta),                                \
        VN_COMPRUEBA_TIPO(void (*)(tipo *, uint32_t), func_rgba, vnfunc_color_rgba)

#endif
