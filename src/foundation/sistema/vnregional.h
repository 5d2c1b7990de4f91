/* Regional settings of the user: how numbers, dates and times are written.

   On Windows what the user set in the system; elsewhere the region that the environment names (LC_ALL, or LC_NUMERIC
   for numbers and LC_TIME for dates and times, or LANG; C and POSIX are English), as the tables of Unicode have it, in
   the forms that Windows uses. On both, U+202F and U+2009 come as U+00A0 (within a time as a blank), and U+2212 as '-'.
   The settings are kept and read anew after half a second. Any thread may call. */
#ifndef VN_VNREGIONAL_H
#define VN_VNREGIONAL_H

#include "../suelo/tipos.h"

/* Items, by their Windows numbers. */
#define VNREGIONAL_SEPARADOR_CAMPOS 12u
#define VNREGIONAL_SEPARADOR_DECIMAL 14u
#define VNREGIONAL_SEPARADOR_MILLARES 15u
#define VNREGIONAL_SEPARADOR_FECHAS 29u
#define VNREGIONAL_SEPARADOR_HORAS 30u
#define VNREGIONAL_FECHA_CORTA 31u  /**< picture of the short date */
#define VNREGIONAL_FECHA_LARGA 32u  /**< picture of the long date */
#define VNREGIONAL_ORDEN_FECHA 33u  /**< "0" month, day, year; "1" day, month, year; "2" year, month, day */
#define VNREGIONAL_MODO_HORARIO 35u /**< "0" 12 hours, "1" 24 hours */
#define VNREGIONAL_NOMBRE_DIA 42u   /**< Monday; the six that follow, to Sunday */
#define VNREGIONAL_NOMBRE_DIA_ABREVIADO 49u
#define VNREGIONAL_HORA 4099u /**< picture of the time, with seconds */

VN_C_INICIO

/** One item, by its number of those above, as a new text; null for another number. */
vnwchar *vnregional_dato_u(uint32_t numero);
/** First character of the decimal and of the thousands separator, 0 where there is none. Takes neither memory nor
    locks: for use with each number. */
void vnregional_separadores(VN_SALIDA vnwchar *decimal, VN_SALIDA vnwchar *millares);

/** Text of a date, new: by the picture `modelo` or, if it is null, by that of the short or, `larga`, of the long date.
    Pictures have d, dd, ddd, dddd, M, MM, MMM, MMMM, y, yy, yyyy, gg and text, in single quotes where it has such
    letters. Null when there is no such day; years 1601 to 9999. */
vnwchar *vnregional_fecha_u(int32_t dia, int32_t mes, int32_t anyo, VN_OPC const vnwchar *modelo, vnbool larga);
/** Text of a time of day by the picture of the time, new; without seconds, the same without them and what separates
    them. Null when there is no such time. */
vnwchar *vnregional_hora_u(int32_t hora, int32_t minuto, int32_t segundo, vnbool con_segundos);
/** A number of the form "-1234.5" as the region writes it, with its number of decimals (rounded, halves away from
    zero), its grouping and its sign, new. Null when the text is no such number or the result takes `maximo` units
    or more. */
vnwchar *vnregional_numero_u(const vnwchar *numero, uint32_t maximo);

/** Sets the region of the process, by its name as "es-ES", instead of the user's; its settings are then those that the
    system has for it, without the user's own changes. Null goes back to the user's, and reads them anew at once. FALSO,
    and nothing changes, for a name that the system does not know. */
vnbool vnregional_establece(VN_OPC const char *region);

VN_C_FIN

#endif
