/* Tables of layers: up to 255 numbered layers, each with a name, a pen, a colour and a line type, and the attributes
   that are current while one draws.

   A layer is asked for by its attributes and one that has them is used again. Numbers go from 0 to 254; those given
   out by the table itself from 1 to 253. Pens are the codes of devices (capadxf_convertir_pluma), thicknesses mm.
   What is borrowed of a table lives until its next change. */
#ifndef VN_ARRAYDXF_H
#define VN_ARRAYDXF_H

#include "../colour/idcolor_tipos.h"

typedef struct arraydxf arraydxf;

VN_C_INICIO

/** New table without layers. Its current attributes: no layer (255) and "NO_NAME", pen 1, thickness 0, AutoCAD colour
    7, line type 0. */
arraydxf *arraydxf_crea(void);
/** New table without layers, with the current attributes of another. */
arraydxf *arraydxf_crea_con_atributos(const arraydxf *array);
/** Frees the table and leaves `*array` null. Attributes still saved are reported at class 1. */
void arraydxf_destruye(arraydxf **array);

/** Defines a layer and returns its number, or just returns it if there is one. Pen 0, thickness 0, colour "no
    change", line type 255 and extra attribute 255 stand for the current ones. `capa` 255: the number of the layer
    with just these attributes, else a new number; 0, nothing defined, when the numbers are used up. Another `capa`:
    that one; if it is defined it stays as it is. A layer that is defined becomes the current one by its number; the
    other current attributes stay. */
uint8_t arraydxf_define_capas_u(arraydxf *array, uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor,
                                const idcolor *color, uint8_t tipo_linea, VN_OPC const vnwchar *tipo_linea_definida,
                                uint8_t atributo_extra);
/** Whether there is a layer with just these attributes, current ones standing as above; its number goes to `capa`. */
vnbool arraydxf_existe_la_capa_con_mismos_atributos_u(const arraydxf *array, const vnwchar *nombre, uint32_t pluma,
                                                      double grosor, const idcolor *color, uint8_t tipo_linea,
                                                      VN_OPC const vnwchar *tipo_linea_definida, uint8_t atributo_extra,
                                                      VN_SALIDA_OPC uint8_t *capa);

/** A layer becomes current, and so do its pen, colour and line type: whether each is another than until now. What is
    not defined is reported, and nothing changes. */
void arraydxf_cambiar_capa_u(arraydxf *array, uint8_t num_capa, VN_SALIDA vnbool *cambia_pluma,
                             VN_SALIDA vnbool *cambia_color, VN_SALIDA vnbool *cambia_tipo_linea);
/** Tolerance of the whole process, FALSO at the start: with it a layer number above the highest is taken as 0, with a
    developer's warning only. To be set before threads draw. */
void arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(vnbool es_dibujo_capas_pilares_estructa);

/** Changes a current attribute, and answers whether it is another than until now. "That of the layer" is resolved to
    the current layer's colour; "no change" is reported, and nothing changes. */
vnbool arraydxf_cambiar_idcolor(arraydxf *array, const idcolor *color);
vnbool arraydxf_cambiar_pluma(arraydxf *array, uint32_t pluma, double grosor_pluma_mm);
vnbool arraydxf_cambiar_tipo_linea_u(arraydxf *array, uint8_t tipo_linea, VN_OPC const vnwchar *tipo_linea_definida);

/** Whether the current colour is not that of the current layer. No current layer is reported: FALSO. */
vnbool arraydxf_color_actual_distinto_a_color_capa(const arraydxf *array);
/** The colour of the current layer, borrowed. No current layer is reported: null. */
const idcolor *arraydxf_dame_color_capa_activa(const arraydxf *array);
/** The name of the current layer, borrowed; "NO_NAME" while there is none. */
const vnwchar *arraydxf_obtener_nombre_capa_actual_u(const arraydxf *array);
/** The current attributes, those asked for; texts and colour borrowed, `tipo_linea_definida` null if there is none. */
void arraydxf_obtener_atributos_actuales_u(const arraydxf *array, VN_SALIDA_OPC uint8_t *capa,
                                           VN_SALIDA_OPC uint32_t *pluma, VN_SALIDA_OPC double *grosor_pluma_mm,
                                           VN_SALIDA_OPC const idcolor **color, VN_SALIDA_OPC uint8_t *tipo_linea,
                                           VN_SALIDA_OPC const vnwchar **tipo_linea_definida,
                                           VN_SALIDA_OPC uint8_t *atributo_extra);

/** Saves the current attributes, and brings the last saved back. */
void arraydxf_guardar_atributos_actuales(arraydxf *array);
void arraydxf_reponer_atributos_u(arraydxf *array);
/** Brings the last saved attributes back and tells what a device does then: go to the layer, and set the pen, colour
    and line type that differ from the layer's own. Colour and text are borrowed. If the layer of those attributes is
    not defined that is reported; they come back, and everything counts as different. With nothing saved: reported,
    all outputs zero. */
void arraydxf_reponer_atributosFPL(arraydxf *array, VN_SALIDA uint8_t *capa, VN_SALIDA vnbool *cambia_pluma,
                                   VN_SALIDA uint32_t *pluma, VN_SALIDA double *grosor_pluma_mm,
                                   VN_SALIDA vnbool *cambia_color, VN_SALIDA const idcolor **color,
                                   VN_SALIDA vnbool *cambia_tipo_linea, VN_SALIDA uint8_t *tipo_linea,
                                   VN_SALIDA const vnwchar **tipo_linea_definida);

VN_C_FIN

#endif
