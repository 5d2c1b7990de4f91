/* Dates and times: the record. Its check reports each field that is out of its range (tm_year and tm_isdst have none);
   comparisons go by year, month, day, hour, minute and second, and the other fields take no part. */
#ifndef VN_VORNTIME_FECHA_H
#define VN_VORNTIME_FECHA_H

#include "../foundation/suelo/tipos.h"

typedef struct arrPuntero arrPuntero;
typedef struct vornsave vornsave;

/** A moment, taken apart. */
typedef struct tmtime {
    int32_t tm_sec;   /**< 0 to 59 */
    int32_t tm_min;   /**< 0 to 59 */
    int32_t tm_hour;  /**< 0 to 23 */
    int32_t tm_mday;  /**< 1 to 31 */
    int32_t tm_mon;   /**< 0 to 11 */
    int32_t tm_year;  /**< years since 1900 */
    int32_t tm_wday;  /**< 0 Sunday to 6 Saturday */
    int32_t tm_yday;  /**< 0 to 365 */
    int32_t tm_isdst; /**< above 0 when daylight saving time is in force */
} tmtime;

VN_C_INICIO

/** New record, checked, with its day of the week and of the year; `anyo` in full. After a report it is the start
    of 1970. */
tmtime *vtm_crea(VN_RANGO(0, 23) int32_t hora, VN_RANGO(0, 59) int32_t minuto, VN_RANGO(0, 59) int32_t segundo,
                 VN_RANGO(1, 31) int32_t dia, VN_RANGO(1, 12) int32_t mes, int32_t anyo);
/** New copy. */
tmtime *vtm_copia_tm(const tmtime *datos_a_copiar);
/** Frees the record and leaves `*fecha` null. */
void vtm_destruye(tmtime **fecha);
/** Frees an array of records (arr.h, pointers) with them, and leaves `*arr` null. */
void vtm_libera_tm_arr(arrPuntero **arr);
/** 1 January 1970 at 00:00:00. */
void vtm_inicializa_fecha(VN_SALIDA tmtime *fecha);
/** The local time now; the start of 1970, reported, if the platform cannot tell it. */
void vtm_fecha_actual(VN_SALIDA tmtime *fecha);
/** Sets the day of the week and of the year from the date. A month out of range is reported and changes nothing. */
void vorntime_ajusta_fecha_valida(tmtime *fecha);
/** Day 1 to 31, month 1 to 12, and year in full. */
void vorntime_obtener_dia_mes_anyo(const tmtime *fecha, VN_SALIDA int32_t *dia, VN_SALIDA int32_t *mes,
                                   VN_SALIDA int32_t *anyo);
/** Writes the nine fields as 16-bit integers, which hold the years up to 34667. In place of a record that fails the
    check, which is reported, the start of 1970 goes, so that what follows in the file keeps its place. */
void vtm_graba_hora_y_fecha(const tmtime *fecha, vornsave *vornsave_datos);
/** Reads what vtm_graba_hora_y_fecha writes: a new record, the caller's. One that fails the check is reported, and is
    the start of 1970 then. */
tmtime *vtm_lee_hora_y_fecha(vornsave *vornsave_datos);

/** -1 if `a` is before `b`, 1 if it is after it, else 0. */
int vtm_compara_fechas_mayor_menor(const tmtime *a, const tmtime *b);
int vtm_compara_fechas(const tmtime *a, const tmtime *b);
/** Whether the two are the same moment. */
vnbool vtm_fechas_iguales(const tmtime *a, const tmtime *b);
/** Checks the module on some known dates: days of the week, with their names where the regional data are Spanish, and
    order. Reports what does not hold. `vornsave_o_contexto` is not used. */
void vtm_test_fechas(VN_DATO void *vornsave_o_contexto);

VN_C_FIN

#endif
