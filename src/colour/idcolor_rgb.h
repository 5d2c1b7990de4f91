/* Colours: arithmetic of RGB and RGBA values. idcolor.h tells what holds for all. Values of RGB operations have alpha
   0, and that of their arguments is passed over. A proportion out of its range, or no number, is reported: the first
   value comes back as it was. */
#ifndef VN_IDCOLOR_RGB_H
#define VN_IDCOLOR_RGB_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The value of four channels. */
uint32_t idcolor_rgba(uint8_t r, uint8_t g, uint8_t b, uint8_t a);
/** The channels of a value, those asked for. */
void idcolor_get_rgba(uint32_t rgba, VN_SALIDA_OPC uint8_t *r, VN_SALIDA_OPC uint8_t *g, VN_SALIDA_OPC uint8_t *b,
                      VN_SALIDA_OPC uint8_t *a);
/** The channels between 0 and 1. */
void idcolor_descomponer_color_vector_unitario_con_fondo_blanco(uint32_t rgb, VN_SALIDA double *r, VN_SALIDA double *g,
                                                                VN_SALIDA double *b);
/** The value with this alpha. */
uint32_t idcolor_color_rgb_a_rgba(uint32_t rgb, uint8_t alfa);
/** Whether the alpha is not 255. */
vnbool idcolor_color_con_transparencia(uint32_t rgba);
/** Whether no channel differs by more than the tolerance. */
vnbool idcolor_color_rgb_igual(uint32_t rgb1, uint32_t rgb2, uint8_t tolerancia);

/** Each channel this proportion of its way to white; to black. */
uint32_t idcolor_color_rgb_iluminado(uint32_t rgb, VN_RANGO(0, 1) double porc_iluminacion);
uint32_t idcolor_color_rgb_oscurecido(uint32_t rgb, VN_RANGO(0, 1) double porc_oscurecimiento);
/** Each channel more, or less, by this proportion of 255; it stays between 0 and 255. */
uint32_t idcolor_color_rgb_modificado(uint32_t rgb, VN_RANGO(-1, 1) double porc_positivo_iluminar_negativo_oscurecer);
/** The first value with this proportion of the second. */
uint32_t idcolor_color_rgb_mezcla(uint32_t rgb1, uint32_t rgb2, VN_RANGO(0, 1) double porcentaje_anadir);
/** What is seen of the second value, by its alpha, over the first; the second form is told the alpha. */
uint32_t idcolor_color_rgb_transparencia_resultante(uint32_t rgba_fondo, uint32_t rgba);
uint32_t idcolor_color_rgb_superpuesto(uint32_t rgb_fondo, uint32_t rgb, uint8_t alfa);
/** The grey of the same luminance. */
uint32_t idcolor_color_rgb_a_escala_grises(uint32_t rgb);
/** The value darkened by a tenth; only black stays (channels of 0 to 255 are held against a length of 0.6). */
uint32_t idcolor_rgb_tenue(uint32_t rgb);
/** The value with its lightness (of hue, saturation, lightness) this proportion of its way to white, or to black if
    below 0. Its alpha stays. */
uint32_t idcolor_color_rgba_lighten(uint32_t rgba, VN_RANGO(-1, 1) double porc_positivo_iluminar_negativo_oscurecer);

VN_C_FIN

#endif
