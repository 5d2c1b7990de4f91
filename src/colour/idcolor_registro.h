/* Colours: the record, its life, what it is, its RGB values, its stored form. idcolor.h tells what holds for all. */
#ifndef VN_IDCOLOR_REGISTRO_H
#define VN_IDCOLOR_REGISTRO_H

#include "../persistence/vornsave_tipos.h"
#include "idcolor_tipos.h"

VN_C_INICIO

/** New colour of the AutoCAD palette. The second form takes an index of the own palette. */
idcolor *idcolor_crea_color_paleta_autocad(uint8_t indice);
idcolor *idcolor_crea_color_paleta_autocad_con_color_vorn(uint8_t indice);
/** New colour of the own palette. The two reserved indices are reported; the record has them all the same. */
idcolor *idcolor_crea_color_paleta_vorn(uint8_t color_paleta);
/** New colour "that of the layer". */
idcolor *idcolor_crea_color_por_capa(void);
/** New direct colour; of an RGB value, opaque. */
idcolor *idcolor_crea_color_rgb(uint32_t rgb);
idcolor *idcolor_crea_color_rgba(uint32_t rgba);
/** New colour of the AutoCAD palette if the value stands in it, with the lowest such index; else direct and opaque. */
idcolor *idcolor_crea_color_ajustando_paleta_autocad(uint32_t rgb);
/** New copy. */
idcolor *idcolor_copia(const idcolor *color);
/** New copy, in which an index of the own palette has become that of the AutoCAD palette. */
idcolor *idcolor_transforma_a_color_autocad_si_es_color_paleta(const idcolor *color);
/** Frees the colour and leaves `*color` null. */
void idcolor_destruye(idcolor **color);

/** `destino` becomes what `origen` is. */
void idcolor_asigna(idcolor *destino, const idcolor *origen);
/** The colour becomes one of the own palette (the reserved indices too), or a direct one. */
void idcolor_set_color_paleta_vorn(idcolor *color, uint8_t indice);
void idcolor_set_color_rgba(idcolor *color, uint32_t rgba);

/** Whether the colour is an index, of either palette; of AutoCAD's. */
vnbool idcolor_es_color_paleta(const idcolor *color);
vnbool idcolor_es_color_paleta_autocad(const idcolor *color);
/** Whether it is "that of the layer": index 254 of the own palette, not of AutoCAD's. */
vnbool idcolor_es_vplan_porcapa(const idcolor *color);
/** Whether both are of one kind and have the same index or value. */
vnbool idcolor_es_igual(const idcolor *color1, const idcolor *color2);
/** Whether it is a direct colour of this value; the first form leaves its alpha out. */
vnbool idcolor_es_igual_color_RGB(const idcolor *color, uint32_t rgb);
vnbool idcolor_es_igual_color_RGBA(const idcolor *color, uint32_t rgba);

/** The index as it stands, of either palette; a direct colour is reported: 0. */
uint8_t idcolor_color_paleta(const idcolor *color);
/** The index in the AutoCAD palette; of a direct colour the nearest. */
uint8_t idcolor_color_paleta_autocad(const idcolor *color);
/** The index in the own palette; of a direct colour the nearest of the AutoCAD palette, as it stands there. */
uint8_t idcolor_color_paleta_vorn(const idcolor *color);
/** The RGB value on a light background; the second form with alpha, 255 for an index. */
uint32_t idcolor_color_rgb(const idcolor *color);
uint32_t idcolor_color_rgba(const idcolor *color);
/** The RGB value on a background. An index has its value on a light one; in the second form an own one on 2 that on a
    dark one. Of an index white on 0 becomes black then, and black on 2 white. A kind of background out of range is
    reported: nothing is adapted. */
uint32_t idcolor_color_rgb_segun_fondo(const idcolor *color, VN_RANGO(0, 2) uint32_t tipo_fondo);
uint32_t idcolor_color_rgb_segun_fondo_para_vplanglsl(const idcolor *color, VN_RANGO(0, 2) uint32_t tipo_fondo);
/** The RGB value dimmed: of an AutoCAD index, that of a darker index of its hue; of a direct colour as
    idcolor_rgb_tenue. An own index is reported: 0. */
uint32_t idcolor_color_rgb_tenue(const idcolor *color);
/** As other programs take colours: of an index, `tipo` 0, the AutoCAD index, all bytes 255; of a direct colour,
    `tipo` 1, index 0xFFFF, its bytes. */
void idcolor_color_para_ARX_DWG_y_ALLPLAN(const idcolor *color, VN_SALIDA uint32_t *tipo, VN_SALIDA uint16_t *indice,
                                          VN_SALIDA uint8_t *r, VN_SALIDA uint8_t *g, VN_SALIDA uint8_t *b,
                                          VN_SALIDA_OPC uint8_t *a);

/** Writes the kind (16 bits), the index and the value, and reads them: a new colour. The own palette, whose colours
    depend on the background, is not for storing: it is reported, and written and read all the same; so is a kind that
    there is not. */
void idcolor_graba(const idcolor *color, vornsave *save);
idcolor *idcolor_lee(vornsave *save);
/** The version of the stored form: 0. */
uint32_t idcolor_version_DB(void);

VN_C_FIN

#endif
