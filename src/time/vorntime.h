/* Dates and times: a broken-down record, its seconds since 1970, and the texts that files, lists and dialogs need. No
   time zone enters but where an operation says local time. Years are those of the Gregorian calendar.

   Two features of the count of seconds stay as they are, because files hold it: it is one day ahead for dates of
   1970 to 1972, and again from 2101 on, since it counts a leap day for every fourth year before. The way back
   knows neither. */
#ifndef VN_VORNTIME_H
#define VN_VORNTIME_H

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

/* ---- Records. The check of one reports each field that is out of its range (tm_year and tm_isdst have none). ---- */

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

/* ---- Comparison: year, month, day, hour, minute, second; the other fields take no part ---- */

/** -1 if `a` is before `b`, 1 if it is after it, else 0. */
int vtm_compara_fechas_mayor_menor(const tmtime *a, const tmtime *b);
int vtm_compara_fechas(const tmtime *a, const tmtime *b);
/** Whether the two are the same moment. */
vnbool vtm_fechas_iguales(const tmtime *a, const tmtime *b);
/** Checks the module on some known dates: days of the week, with their names where the regional data are Spanish, and
    order. Reports what does not hold. `vornsave_o_contexto` is not used. */
void vtm_test_fechas(VN_DATO void *vornsave_o_contexto);

/* ---- Seconds since 1970 ---- */

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

/* ---- Months and days ---- */

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

/* ---- Texts. New, the caller's; null after a report. Fields are shown as they are, checked or not. ---- */

/** "31-12-2005 23:59:59" with the separator given, after the heading and a blank if there is one. */
vnwchar *vtm_fecha_a_cadena(VN_OPC const vnwchar *cabecera, const tmtime *fecha, vnwchar separador);
char *vtm_fecha_a_cadena_a(VN_OPC const char *cabecera, const tmtime *fecha, char separador);
/** "2005-12-31 23.59.59" and "2005-12-31": in the order of their dates when sorted as texts. */
char *vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(const tmtime *fecha);
vnwchar *vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(const tmtime *fecha);
vnwchar *vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_u(const tmtime *fecha);
/** The same with the separators given: "2005/12/31", "2005/12/31 23:59:59". */
vnwchar *vtm_fecha_a_texto_AAAA_MM_DD_u(const tmtime *fecha, vnwchar sep);
vnwchar *vtm_fecha_a_texto_AAAA_MM_DD_HH_MM_SS_u(const tmtime *fecha, vnwchar sep_fecha, vnwchar sep_hora);
/** The same of a count of seconds, by vtm_convierte_time64t_a_fecha. */
vnwchar *vtm_time_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(VN_RANGO(0, 67768036191676799) int64_t t);
vnwchar *vtm_time_a_cadena_ordenable_AAAA_MM_DD_u(VN_RANGO(0, 67768036191676799) int64_t t);
vnwchar *vtm_time_a_texto_AAAA_MM_DD_u(VN_RANGO(0, 67768036191676799) int64_t t, vnwchar sep);
/** "31/12/05" with the user's date separator. */
char *vtm_formatea_fecha_ddmmaa_con_separador_sistema(const tmtime *fecha);
/** Short date of the user's regional data, or after a model ("dd/MM/yyyy"); empty for a year of 1900 or less. */
char *vtm_formatea_fecha_corta(const tmtime *fecha);
char *vtm_formatea_fecha_segun_modelo(const tmtime *fecha, const char *modelo);
/** Time of the regional data; both, joined by a blank, after the heading and a blank if there is one. */
char *vtm_formatea_hora(const tmtime *fecha, vnbool con_segundos);
char *vtm_formatea_fecha_y_hora(VN_OPC const char *cabecera, const tmtime *fecha);
char *vtm_formatea_fecha_y_hora_sin_segundos(VN_OPC const char *cabecera, const tmtime *fecha);
/** Local date and time now, for the head of a listing: "31/12/05" ("12/31/05" when the active language is English) and
    "11:59 PM". */
void vtm_fecha_y_hora_para_listados(VN_SALIDA_OPC char **fecha_texto, VN_SALIDA_OPC char **hora_texto);
void vtm_fecha_y_hora_para_listados_u(VN_SALIDA_OPC vnwchar **fecha_texto, VN_SALIDA_OPC vnwchar **hora_texto);
/** Local time of `t`, seconds since 1970 UTC, with the names of the active language: "Sab 31 Diciembre 2005  23:59".
    Borrowed: one room for each operation, written over by its next call; not for two threads. A time that the platform
    cannot tell is reported with a message for the user, and gives an empty text. */
const char *vtm_fecha_str(int64_t t);
const vnwchar *vtm_fecha_str_u(int64_t t);
const vnwchar *vtm_fecha_str64_u(int64_t t);
/** Model of the user's dates with four digits for the year, "dd/MM/yyyy"; with `con_hora` also " HH:mm:ss". */
char *vorntime_dame_cadena_formato_fecha(vnbool con_hora);

/** Date out of a text: day, month, year and, if they are there, hour, minute and second, whole numbers with any of "/-:
    " between them. A year may be in full, 1900 to 2100, or short: 70 to 99 of the last century, 0 to 69 of this one
    (100 to 200 count from 1900 too). An hour, minute or second that is missing or is no number is 0. FALSO, and `fecha`
    as it was, for what is no date. */
vnbool vtm_convierte_cadena_a_tm(const char *cadena, VN_SALIDA tmtime *fecha);
vnbool vtm_convierte_cadena_a_tm_u(const vnwchar *cadena, VN_SALIDA tmtime *fecha);

VN_C_FIN

#endif
