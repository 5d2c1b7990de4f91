/* Devices that need no screen: one that writes down what it is told to draw, one that counts it, one that takes it all
   and does nothing. For tests of what draws, and for whoever wants to see what a drawing is made of. */
#ifndef VN_VORNPLAN_APUNTADOR_H
#define VN_VORNPLAN_APUNTADOR_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Opens an output over such a device, of a kind and before a destination as vplan_nousar_abre_dispositivo_con_tabla.
    `en_espacio`: it draws figures in their forms of space, else in those of the plane. vplan_cierra closes it. */
salida_t *vplan_abre_apuntador(uint32_t tipo, VN_OPC salida_t *salida_destino, vnbool en_espacio);
salida_t *vplan_abre_contador(uint32_t tipo, VN_OPC salida_t *salida_destino, vnbool en_espacio);
salida_t *vplan_abre_nada(uint32_t tipo, VN_OPC salida_t *salida_destino, vnbool en_espacio);
/** What the first of them has written since it was last asked, a new text in UTF-8: a line for each call, the name of
    the slot and its values; numbers in the fewest digits that give them back, points in brackets. Reported on another
    output: null. */
char *vplan_toma_lo_apuntado(salida_t *salida);
/** How often the second has been told a slot, by its name ("func_DrawLinea"). No such slot, and another output, are
    reported: 0. */
uint64_t vplan_veces_contado(const salida_t *salida, const char *slot);

VN_C_FIN

#endif
