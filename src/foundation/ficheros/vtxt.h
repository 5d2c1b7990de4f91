/* Values as lines of a text stream.

   Writers take the value first and the stream last. A plain member writes the value and one blank and leaves the line
   open for the next value, or for a comment; a `_y_salta` member ends the line; so do the truth values and the texts,
   unless their name says otherwise. A reader passes over blanks and line ends, takes the value, and then the one blank
   or, if it is a `_y_salta` member, the rest of the line with its end. So what the writers wrote comes back through the
   readers of the same names.

   Numbers are decimal, doubles in the shortest form that gives the same double back, or nan, inf, -inf; a char is
   the number of its code, 0 to 255. ANSI texts are written as they are: a line end inside makes two lines. A line ends
   with LF or CR LF on reading, and on writing as the stream's text mode says. Something that is no value of the type,
   or the end of the stream where a value is due, is reported by lc_error_leyendo_fichero and gives 0 or an empty text.

   One wide text is one line of UTF-8, with every unit kept: a control character (below 32, or 127) and a half of a
   surrogate pair that stands alone are written as the byte 16 and four hexadecimal digits. */
#ifndef VN_VTXT_H
#define VN_VTXT_H

#include "../suelo/tipos.h"

typedef struct vnfichero vnfichero;

VN_C_INICIO

/** Writes a number and a blank; the line stays open. */
void vtxt_escr_char(char v, vnfichero *f);
void vtxt_escr_uchar(uint8_t v, vnfichero *f);
void vtxt_escr_signed_short(int16_t v, vnfichero *f);
void vtxt_escr_ushrt(uint16_t v, vnfichero *f);
void vtxt_escr_long(int32_t v, vnfichero *f);
void vtxt_escr_ulong(uint32_t v, vnfichero *f);
void vtxt_escr_long64(int64_t v, vnfichero *f);
void vtxt_escr_ulong64(uint64_t v, vnfichero *f);
void vtxt_escr_double(double v, vnfichero *f);

/** Writes a number and ends the line. */
void vtxt_escr_char_y_salta(char v, vnfichero *f);
void vtxt_escr_uchar_y_salta(uint8_t v, vnfichero *f);
void vtxt_escr_signed_short_y_salta(int16_t v, vnfichero *f);
void vtxt_escr_ushrt_y_salta(uint16_t v, vnfichero *f);
void vtxt_escr_int_y_salta(int v, vnfichero *f);
void vtxt_escr_long_y_salta(int32_t v, vnfichero *f);
void vtxt_escr_ulong_y_salta(uint32_t v, vnfichero *f);
void vtxt_escr_long64_y_salta(int64_t v, vnfichero *f);
void vtxt_escr_ulong64_y_salta(uint64_t v, vnfichero *f);
void vtxt_escr_double_y_salta(double v, vnfichero *f);

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

/** Writes 1 or 0 and ends the line. */
void vtxt_escr_BOOL(vnbool v, vnfichero *f);
/** Reads 1 or 0 and passes over the rest of its line. */
vnbool vtxt_leer_BOOL(vnfichero *f);
/** Writes `texto1` for CIERTO and `texto2` for FALSO, and ends the line. */
void vtxt_graba_bool(vnfichero *f, vnbool v, const char *texto1, const char *texto2);
/** Reads a line that is `texto1` (CIERTO) or `texto2` (FALSO); another is bad text. */
vnbool vtxt_lee_bool(vnfichero *f, const char *texto1, const char *texto2);

/** Writes a text and ends the line. */
void vtxt_escr_string(const char *s, vnfichero *f);
/** Writes a text and leaves the line open, with no blank. The wide one goes out as plain UTF-8, for people to read. */
void vtxt_escr_string_sin_salto_de_linea(const char *s, vnfichero *f);
void vtxt_escr_string_sin_salto_de_linea_u(const vnwchar *s, vnfichero *f);
/** Writes a wide text, every unit kept, and ends the line. */
void vtxt_escr_cadena_unicode(const vnwchar *s, vnfichero *f);
/** Writes "; " and the comment, its line ends as blanks, and ends the line. */
void vtxt_escr_comentario_y_salta(const char *comentario, vnfichero *f);
/** Ends the line. */
void vtxt_escr_fin_linea(vnfichero *f);

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

/** Writes a formatted text; "\n" ends a line. The wide one goes out as plain UTF-8. */
void vtxt_printf(vnfichero *f, VN_FORMATO const char *formato, ...);
void vtxt_printf_u(vnfichero *f, VN_FORMATO const vnwchar *formato, ...);

/** Writes `*dato` when `graba` is CIERTO, reads it when it is FALSO, with the members of that type; numbers leave the
    line open. A text that is read is a new one, and what `*dato` led to before is the caller's still. */
void vtxt_trata_bool(vnfichero *f, vnbool *dato, const char *texto1, const char *texto2, vnbool graba);
void vtxt_trata_cadena(VN_OPC char **dato, vnfichero *f, vnbool graba);
void vtxt_trata_cadena_ansi_ascii(VN_OPC char **dato, vnfichero *f, vnbool graba, uint16_t version,
                                  uint16_t version_ascii);
void vtxt_trata_cadena_u(VN_OPC vnwchar **dato, vnfichero *f, vnbool graba);
void vtxt_trata_double(double *dato, vnfichero *f, vnbool graba);
void vtxt_trata_ushrt(uint16_t *dato, vnfichero *f, vnbool graba);
/** As vtxt_trata_ushrt for a value of 8 bits; a greater number is bad text. */
void vtxt_trata_uchar_como_ushrt(uint8_t *dato, vnfichero *f, vnbool graba);
/** Writes a comment as vtxt_escr_comentario_y_salta does, or passes over the rest of the line. */
void vtxt_trata_comentario(const char *comentario, vnfichero *f, vnbool graba);

VN_C_FIN

#endif
