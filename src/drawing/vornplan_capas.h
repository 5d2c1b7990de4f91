/* The layers of an output. The kinds of output with layers keep a table of those defined through them (arraydxf.h), so
   that a drawing can ask for a layer by its appearance. */
#ifndef VN_VORNPLAN_CAPAS_H
#define VN_VORNPLAN_CAPAS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Goes to a layer, by its number (VPLAN_NOCAMBIAR: nothing), on each output down to the device that has layers; what
    is locked is sent again. The second: that of this output, VPLAN_NOCAMBIAR while there is none. */
void vplan_escr_capadxf(salida_t *salida, uint8_t capa);
uint8_t vplan_capadxf_actual(const salida_t *salida);

/** Defines a layer, and returns its number: `capa`, or for VPLAN_NOCAMBIAR the device's choice; 0 when no device has
    layers. `pluma`: the device's code; thickness in mm; `tipo_linea` 0 to 10; `atributo_extra` is the host's. */
uint8_t vornplan_define_capa_u(salida_t *salida, uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor_mm,
                               const idcolor *color, uint8_t tipo_linea, VN_OPC const vnwchar *tipo_linea_definida,
                               uint8_t atributo_extra);
/** The same of a pen (1 to 4, VPLAN_PORCAPA, VPLAN_NOCAMBIAR) and a colour of the own palette; the other three number
    the layer themselves, the last with any colour. */
uint8_t vplan_define_capa_u(salida_t *salida, uint8_t capa, const vnwchar *nombre, uint8_t pluma, uint8_t color,
                            uint8_t tipo_linea);
uint8_t vplan_define_capa_dxf(salida_t *salida, const char *nombre, uint8_t pluma, uint8_t color, uint8_t tipo_linea);
uint8_t vplan_define_capa_dxf_u(salida_t *salida, const vnwchar *nombre, uint8_t pluma, uint8_t color,
                                uint8_t tipo_linea);
uint8_t vplan_define_capa_dxf_idcolor_u(salida_t *salida, const vnwchar *nombre, uint8_t pluma, const idcolor *color,
                                        uint8_t tipo_linea);

/** Begins and ends a group with layers of its own. */
void vplan_guardar_capas(salida_t *salida);
void vplan_fin_grupo_de_capas(salida_t *salida);
/** Defines on the first the line types and layers of the second, which keep their numbers, and goes to its current
    layer. Both need tables of layers. */
void vplan_sincroniza_capas_dxf_y_tipos_de_linea(salida_t *salida_destino, salida_t *salida_origen);

VN_C_FIN

#endif
