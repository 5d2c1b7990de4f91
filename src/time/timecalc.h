/* Dates and Windows file times as counts of seconds since 1970, in the true calendar and in no time zone. A second,
   smaller module beside vorntime, of narrower range: the years 1970 to 2037. */
#ifndef VN_TIMECALC_H
#define VN_TIMECALC_H

#include "../foundation/suelo/tipos.h"

/** A Windows file time: steps of 100 ns since 1601, laid out as the system's own record. */
typedef struct vnFILETIME {
    uint32_t dwLowDateTime;
    uint32_t dwHighDateTime;
} vnFILETIME;

VN_C_INICIO

/** Seconds of a date: day from 1, month from 1, year in full. What is out of its range is reported: 0. */
int32_t timecalc_convierte_fecha_y_hora_a_time32_t(VN_RANGO(1, 31) int32_t dia, VN_RANGO(1, 12) int32_t mes,
                                                   VN_RANGO(1970, 2037) int32_t anyo, VN_RANGO(0, 23) int32_t hora,
                                                   VN_RANGO(0, 59) int32_t minuto, VN_RANGO(0, 59) int32_t segundo);
int64_t timecalc_convierte_fecha_y_hora_a_time_t(VN_RANGO(1, 31) int32_t dia, VN_RANGO(1, 12) int32_t mes,
                                                 VN_RANGO(1970, 2037) int32_t anyo, VN_RANGO(0, 23) int32_t hora,
                                                 VN_RANGO(0, 59) int32_t minuto, VN_RANGO(0, 59) int32_t segundo);
/** Date of a count of seconds. Before 1970, or past the year 9999, is reported: 1 January 1970 at 0:00:00. */
void timecalc_convierte_time32_t_a_fecha_y_hora(VN_RANGO(0, 2147483647) int32_t t, VN_SALIDA int32_t *dia,
                                                VN_SALIDA int32_t *mes, VN_SALIDA int32_t *anyo,
                                                VN_SALIDA_OPC int32_t *hora, VN_SALIDA_OPC int32_t *minuto,
                                                VN_SALIDA_OPC int32_t *segundo);
void timecalc_convierte_time64_t_a_fecha_y_hora(VN_RANGO(0, 253402300799) int64_t t, VN_SALIDA int32_t *dia,
                                                VN_SALIDA int32_t *mes, VN_SALIDA int32_t *anyo,
                                                VN_SALIDA_OPC int32_t *hora, VN_SALIDA_OPC int32_t *minuto,
                                                VN_SALIDA_OPC int32_t *segundo);
void timecalc_convierte_time_t_a_fecha_y_hora(VN_RANGO(0, 253402300799) int64_t t, VN_SALIDA int32_t *dia,
                                              VN_SALIDA int32_t *mes, VN_SALIDA int32_t *anyo,
                                              VN_SALIDA_OPC int32_t *hora, VN_SALIDA_OPC int32_t *minuto,
                                              VN_SALIDA_OPC int32_t *segundo);
/** Seconds of a file time by way of the DOS date, which counts pairs of seconds and begins in 1980: an odd second gives
    the even one before it. A time outside the years 1980 to 2037 is reported: 0. */
int32_t timecalc_convierte_FILETIME_a_time32_t(const vnFILETIME *filetime);
int64_t timecalc_convierte_FILETIME_a_time64_t(const vnFILETIME *filetime);
int64_t timecalc_convierte_FILETIME_a_time_t(const vnFILETIME *filetime);

VN_C_FIN

#endif
