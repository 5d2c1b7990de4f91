/* Dates and times: months and days, and their names. */
#ifndef VN_VORNTIME_NOMBRES_H
#define VN_VORNTIME_NOMBRES_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Days of a month of a year, in full. A month out of range is reported: 0. */
uint32_t vorntime_num_dias_mes(VN_RANGO(0, 11) uint32_t mes, int32_t anyo);
/** Day of a year of 365 days, 1 to 365. A day that the month does not have, 29 February included, is reported: 0. */
uint32_t vorntime_dia_juliano_1_365_de_dia_y_mes(VN_RANGO(1, 31) uint32_t numero_dia_1_31,
                                                 VN_RANGO(1, 12) uint32_t numero_mes_1_12);
/** Its inverse: day 1 to 31 and month 1 to 12; both 0 after a report. */
void vorntime_dia_y_mes_de_dia_juliano(VN_RANGO(1, 365) uint32_t dia_juliano_1_365, VN_SALIDA_OPC uint32_t *dia,
                                       VN_SALIDA_OPC uint32_t *mes);
/** The month itself, 0 to 11; as 1 to 12. A larger one is reported: 0. */
uint32_t vorntime_obtener_mes(VN_RANGO(0, 11) uint32_t mes);
uint32_t vorntime_obtener_numero_mes(VN_RANGO(0, 11) uint32_t mes);
/** Name of a month in the active language, whole ("Enero") and abbreviated ("Ene"). Borrowed; a larger month is
    reported and gives an empty text. */
const char *vorntime_obtener_nombre_mes(VN_RANGO(0, 11) uint32_t mes);
const vnwchar *vorntime_obtener_nombre_mes_u(VN_RANGO(0, 11) uint32_t mes);
const char *vorntime_obtener_nombre_mes_abreviado(VN_RANGO(0, 11) uint32_t mes);
const vnwchar *vorntime_obtener_nombre_mes_abreviado_u(VN_RANGO(0, 11) uint32_t mes);
/** New text: the name of a month in a language, by the index that msidioma_dame_idioma returns. Null after a report. */
vnwchar *vorntime_obtener_nombre_mes_con_idioma(VN_RANGO(0, 11) uint32_t mes, VN_RANGO(0, 40) int idioma);
/** The letter by which calendars of the active language show a day of the week, 0 Sunday to 6. Borrowed; another day is
    reported and gives an empty text. */
const char *vtm_letra_inicial_dia_de_la_semana(VN_RANGO(0, 6) uint32_t dia);

VN_C_FIN

#endif
