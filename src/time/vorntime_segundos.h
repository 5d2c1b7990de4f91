/* Dates and times: seconds since 1970, and the clock. vorntime.h tells two features of the count. */
#ifndef VN_VORNTIME_SEGUNDOS_H
#define VN_VORNTIME_SEGUNDOS_H

#include "vorntime_fecha.h"

VN_C_INICIO

/** Seconds of a date; see the two features above. A month out of range is reported: 0. Other fields may be out of
    theirs and count for what they are. */
int64_t vtm_convierte_fecha_a_time_t(const tmtime *fecha);
/** The same in 32 bits. A date that does not fit is reported and gives the nearest number that does. */
uint32_t vtm_convierte_fecha_a_segundos(const tmtime *fecha);
/** Date of a count of seconds, in the true calendar; the day of the week as vtm_dia_de_la_semana_tim64t gives
    it. Outside the years 1970 to 2147485547, whose last second is the end of the range, it is reported: the
    start of 1970. */
void vtm_convierte_time64t_a_fecha(VN_RANGO(0, 67768036191676799) int64_t t, VN_SALIDA tmtime *fecha);
void vtm_convierte_timet_a_fecha(VN_RANGO(0, 67768036191676799) int64_t t, VN_SALIDA tmtime *fecha);
void vtm_convierte_segundos_a_fecha(uint32_t segundos, VN_SALIDA tmtime *fecha);
/** Seconds of a duration that a record holds: days (tm_mday, from 0), hours, minutes, seconds. */
int64_t vtm_convierte_duracion_a_segundos(const tmtime *duracion);
/** Seconds of a month of a year, and of a year, in full. A month out of range is reported: 0. */
uint32_t vtm_segundos_en_un_mes(VN_RANGO(0, 11) uint32_t mes, int32_t anyo);
uint32_t vtm_segundos_en_un_anyo(int32_t anyo);
/** vtm_convierte_fecha_a_time_t of the first moment of a year, in full. */
int64_t vtm_segundos_el_uno_enero_anyo(int32_t anyo);
/** Day of the week, 0 Sunday to 6: the remainder of the days since 4 January 1970, so that it is -3 to -1 in the first
    three days of 1970, and from -6 to 0 before. */
int16_t vtm_dia_de_la_semana_tim64t(int64_t t);
int16_t vtm_dia_de_la_semana_segundos(uint32_t segundos);
/** Local time now: seconds as vtm_convierte_fecha_a_time_t counts them, in 32 bits. */
uint32_t vorntime_ahora(void);
uint32_t vorntime_ahora_ULong(void);
/** Seconds since 1970-01-01 00:00 UTC. */
int64_t vorntime_ahora_UTC(void);
/** Sleeps. 900 seconds or more are reported, and nothing is waited for. */
void vtm_delay(VN_RANGO(0, 899) uint32_t segundos);

VN_C_FIN

#endif
