/* Dates and times: their texts, which are new and the caller's, null after a report, and dates out of texts. Fields
   are shown as they are, checked or not. */
#ifndef VN_VORNTIME_TEXTOS_H
#define VN_VORNTIME_TEXTOS_H

#include "vorntime_fecha.h"

VN_C_INICIO

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
