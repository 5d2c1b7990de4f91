/* Values read from the lines of a text stream; vtxt.h tells the form. */
#ifndef VN_VTXT_LEE_H
#define VN_VTXT_LEE_H

#include "../suelo/tipos.h"

typedef struct vnfichero vnfichero;

VN_C_INICIO

/** Reads a number and leaves the line open. */
char vtxt_lee_char(vnfichero *f);
uint8_t vtxt_lee_uchar(vnfichero *f);
int16_t vtxt_lee_signed_short(vnfichero *f);
uint16_t vtxt_lee_ushrt(vnfichero *f);
int32_t vtxt_lee_long(vnfichero *f);
uint32_t vtxt_lee_ulong(vnfichero *f);
int64_t vtxt_lee_long64(vnfichero *f);
uint64_t vtxt_lee_ulong64(vnfichero *f);
double vtxt_lee_double(vnfichero *f);

/** Reads a number and passes over the rest of its line. */
char vtxt_lee_char_y_salta(vnfichero *f);
uint8_t vtxt_lee_uchar_y_salta(vnfichero *f);
int16_t vtxt_lee_signed_short_y_salta(vnfichero *f);
uint16_t vtxt_lee_ushrt_y_salta(vnfichero *f);
int32_t vtxt_lee_long_y_salta(vnfichero *f);
uint32_t vtxt_lee_ulong_y_salta(vnfichero *f);
int64_t vtxt_lee_long64_y_salta(vnfichero *f);
uint64_t vtxt_lee_ulong64_y_salta(vnfichero *f);
double vtxt_lee_double_y_salta(vnfichero *f);

/** Reads a character of the OEM code page, as the plain reader and as the `_y_salta` one, and gives it in ANSI. */
char vtxt_lee_char_ASCII(vnfichero *f);
char vtxt_lee_char_y_salta_ASCII(vnfichero *f);
/** Reads 1 or 0 and passes over the rest of its line. */
vnbool vtxt_leer_BOOL(vnfichero *f);
/** Reads a line that is `texto1` (CIERTO) or `texto2` (FALSO); another is bad text. */
vnbool vtxt_lee_bool(vnfichero *f, const char *texto1, const char *texto2);

/** Reads what is left of the line as a new text, without its end. At the end of the stream: reported, empty text. */
char *vtxt_lee_cadena(vnfichero *f);
/** As vtxt_lee_cadena, from the OEM code page. */
char *vtxt_lee_cadena_ASCII(vnfichero *f);
/** As vtxt_lee_cadena_ASCII when `version` does not exceed `version_ascii`, as vtxt_lee_cadena otherwise. */
char *vtxt_lee_cadena_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
/** As vtxt_lee_cadena, as a new wide text. */
vnwchar *vtxt_lee_cadena_ansi_a_unicode(vnfichero *f);
/** Reads the line that vtxt_escr_cadena_unicode wrote as a new text. Bytes that are no UTF-8 are reported, and come
    as U+FFFD. */
vnwchar *vtxt_lee_cadena_unicode(vnfichero *f);

/** Reads a line into `buffer`, which has room for `maximo` characters, the zero included. What does not fit is passed
    over and reported. */
void vtxt_lee_string(vnfichero *f, VN_SALIDA VN_LON(maximo) char *buffer, VN_RANGO(1, 2147483647) uint32_t maximo);
void vtxt_lee_string_unicode(vnfichero *f, VN_SALIDA VN_LON(maximo) vnwchar *buffer,
                             VN_RANGO(1, 2147483647) uint32_t maximo);
/** Reads up to and with the next line end (as one LF), or what fits in the `maximo` bytes of `buffer`, the zero
    included; the rest comes with the next call. Returns `buffer`, or null at the end of the stream. */
char *vtxt_lee_linea(vnfichero *f, VN_SALIDA VN_LON(maximo) char *buffer, VN_RANGO(2, 2147483647) uint32_t maximo);
/** Reads a line of plain UTF-8 as a new wide text without its end, at most `maximo` bytes of it; the rest of the line
    comes with the next call. Null at the end of the stream. */
vnwchar *vtxt_lee_linea_utf8_a_unicode(vnfichero *f, VN_RANGO(4, 2147483647) uint32_t maximo);
/** Passes over what is left of the line, with its end. Nothing at the end of the stream. */
void vtxt_salta_linea(vnfichero *f);

VN_C_FIN

#endif
