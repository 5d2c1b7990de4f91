/* Colours: the palettes, indices to RGB values and back, colours of lists. idcolor.h tells what holds for all. */
#ifndef VN_IDCOLOR_PALETA_H
#define VN_IDCOLOR_PALETA_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** RGB value of an index of the AutoCAD palette. 0 and 255 are white, 7 is black. */
uint32_t idcolor_dame_RGB_de_indice_color_autocad(uint8_t indice);
/** Whether the value stands in the AutoCAD palette; the lowest such index then goes to `indice`. */
vnbool idcolor_dame_indice_color_autocad(uint32_t rgb, VN_SALIDA_OPC uint8_t *indice);
/** The index, 1 to 237, whose colour is nearest by the squares of the differences of the channels; of several, the
    highest. The greys from 250 on are never chosen, nor is white. */
uint8_t idcolor_dame_indice_color_autocad_mas_cercano_a_RGB(uint32_t rgb);

/** RGB value of an index of the own palette, on a light background; on one that is light or not; on one of this RGB
    value; on a kind of background. What is out of range is reported: 0. */
uint32_t idcolor_colorRGB(VN_RANGO(0, 255) uint32_t indice);
uint32_t idcolor_colorRGBSegunColorFondo(VN_RANGO(0, 255) uint32_t indice, vnbool fondo_claro);
uint32_t idcolor_colorRGBSegunFondo(VN_RANGO(0, 255) uint32_t indice, uint32_t rgb_fondo);
uint32_t idcolor_colorRGBSegunTipoFondo(VN_RANGO(0, 255) uint32_t indice, VN_RANGO(0, 2) uint32_t tipo_fondo);
/** Whether a background is light: of the own colours those that are, and every other one. Its index in the own palette
    goes to `indice`, or 0xFFFFFFFF. */
vnbool idcolor_color_fondo_RGB_es_claro(uint32_t rgb, VN_SALIDA_OPC uint32_t *indice);

/** New text "#RRGGBB", in capitals. */
char *idcolor_dame_cadena_color_para_html(uint32_t rgb);
vnwchar *idcolor_dame_cadena_color_para_html_u(uint32_t rgb);

/** RGB values of a tree's rows, background and text, by their depth; out of range is reported: 0. */
uint32_t idcolor_color_fondo_selector(VN_RANGO(0, 7) uint32_t tabuladores);
uint32_t idcolor_color_texto_selector(VN_RANGO(0, 7) uint32_t tabuladores);
/** RGB value of a panel's background. */
uint32_t idcolor_gp_color_fondo_selector(void);

VN_C_FIN

#endif
