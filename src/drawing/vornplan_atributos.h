/* The appearance of what is drawn: colour, pen, line type, layer, text style; and the locks, with which a group is
   drawn in one appearance whatever its drawing code asks for. Locks are those of the output that is called, and
   count. */
#ifndef VN_VORNPLAN_ATRIBUTOS_H
#define VN_VORNPLAN_ATRIBUTOS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** The colour: of the own palette (VPLAN_NOCAMBIAR: nothing), any, direct without and with its alpha. Nothing while the
    colour is locked. The first and the last two are remembered even where no device takes them. */
void vplan_escr_color(salida_t *salida, uint8_t color);
void vplan_escr_idcolor(salida_t *salida, const idcolor *color);
void vornplan_escr_color_rgb(salida_t *salida, uint32_t rgb);
void vornplan_escr_color_rgba(salida_t *salida, uint32_t rgba);
/** The pen: 1 to 4, VPLAN_PORCAPA, or VPLAN_NOCAMBIAR for nothing; another is reported. Nothing while locked. */
void vplan_escr_pluma(salida_t *salida, uint8_t pluma);
/** A device's code (0: nothing) with its thickness, mm. */
void vornplan_set_pluma(salida_t *salida, uint32_t pluma, double grosor_mm);
/** A thickness above 0, mm, that scales with the drawing. */
void vplan_escr_grosor_pluma(salida_t *salida, double grosor_pluma_mm);
/** The line type: 0 to 10, VPLAN_PORCAPA, or VPLAN_NOCAMBIAR for nothing; another is reported. Nothing while locked. */
void vplan_escr_tipo_linea(salida_t *salida, uint8_t tipo);
/** A line type by its name. */
void vplan_escr_tipo_linea_definida_u(salida_t *salida, const vnwchar *nombre);
void vplan_escr_tipo_linea_definida(salida_t *salida, const char *nombre);
/** Defines one: lengths of strokes, metres, and of gaps, below 0. It is kept with the output, the first of a name. */
void vplan_define_tipo_linea_u(salida_t *salida, const vnwchar *nombre, const vnwchar *descripcion,
                               const arrDouble *trazos);
/** Whether it was defined through this very output. */
vnbool vornplan_esta_definido_tipo_linea_u(const salida_t *salida, const vnwchar *nombre);
/** A key of the host's; VPLAN_NOCAMBIAR is reported. */
void vplan_escr_clave(salida_t *salida, uint8_t clave);
/** The style and the font family of texts. Where the address is given it receives the family until now, a new text: an
    empty one when no device has families. */
void vplan_escr_estilo_texto(salida_t *salida, uint32_t estilo);
void vplan_escr_familia_fuente_texto(salida_t *salida, const vnwchar *familia, VN_SALIDA_OPC vnwchar **anterior);
/** Drawing by exclusive or (nothing while locked), and drawing in the colour of the background. */
void vplan_set_XOR(salida_t *salida, vnbool activo);
void vplan_set_borrar(salida_t *salida, vnbool activo);
/** Whether texts stand on a background, and its colour. */
void vornplan_set_color_rgb_fondo_texto(salida_t *salida, vnbool con_fondo, uint32_t rgb);
/** The material of what follows: by number, by name, any (nothing while locked). */
void vornplan_escr_material_bd3d(salida_t *salida, uint32_t material);
void vornplan_escr_material_bd3d_con_nombre(salida_t *salida, const vnwchar *nombre);
void vornplan_escr_material_vnmatvis3d(salida_t *salida, const void *material);

/** Locks, with CIERTO, and unlocks, with any other value: one that is not locked is reported. A host in C that passes
    -1 or 2 for true unlocks. */
void vplan_bloquea_color(salida_t *salida, vnbool bloquea);
void vplan_bloquea_pluma(salida_t *salida, vnbool bloquea);
void vplan_bloquea_tipo_linea(salida_t *salida, vnbool bloquea);
/** No text is drawn. */
void vplan_bloquea_texto(salida_t *salida, vnbool bloquea);
/** Filled figures are drawn by their outline. */
void vplan_bloquea_relleno(salida_t *salida, vnbool bloquea);
/** Texts keep the direction that they are given. */
void vplan_bloquea_aplicacion_sistema_coordenadas_a_giro_texto(salida_t *salida, vnbool bloquea);
void vplan_bloquea_XOR(salida_t *salida, vnbool bloquea);
void vornplan_bloquea_material_vnmatvis3d(salida_t *salida, vnbool bloquea);

/** The kind of background: 0 white, 1 grey and light, 2 black. Each output has its own; another kind is reported when
    it is asked about. */
uint32_t vplan_get_tipo_fondo(const salida_t *salida);
void vplan_set_tipo_fondo(salida_t *salida, VN_RANGO(0, 2) uint32_t tipo_fondo);
/** The palette colour that stands for a kind of background, and the kind that a palette colour stands for. */
uint8_t vplan_id_color_tipo_fondo(VN_RANGO(0, 2) uint32_t tipo_fondo);
uint32_t vplan_tipo_fondo_id_color_fondo(uint8_t id_color);
/** Whether white has to become black on it. */
vnbool vplan_hay_que_cambiar_blanco_por_negro(VN_RANGO(0, 2) uint32_t tipo_fondo);
/** The background of an output, as palette colour and as RGB. */
uint8_t vplan_id_color_fondo(const salida_t *salida);
uint32_t vplan_color_rgb_fondo(const salida_t *salida);
/** Of three, the one for the kind of background. */
uint8_t vplan_id_color_segun_tipo_fondo(VN_RANGO(0, 2) uint32_t tipo_fondo, uint8_t color_0, uint8_t color_1,
                                        uint8_t color_2);
uint32_t vplan_color_rgb_segun_tipo_fondo(VN_RANGO(0, 2) uint32_t tipo_fondo, uint32_t rgb_0, uint32_t rgb_1,
                                          uint32_t rgb_2);
uint8_t vplan_id_color_segun_color_fondo(const salida_t *salida, uint8_t color_0, uint8_t color_1, uint8_t color_2);

VN_C_FIN

#endif
