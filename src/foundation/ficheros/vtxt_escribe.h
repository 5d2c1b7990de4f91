/* Values written as lines of a text stream; vtxt.h tells the form. */
#ifndef VN_VTXT_ESCRIBE_H
#define VN_VTXT_ESCRIBE_H

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

/** Writes 1 or 0 and ends the line. */
void vtxt_escr_BOOL(vnbool v, vnfichero *f);
/** Writes `texto1` for CIERTO and `texto2` for FALSO, and ends the line. */
void vtxt_graba_bool(vnfichero *f, vnbool v, const char *texto1, const char *texto2);

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

/** Writes a formatted text; "\n" ends a line. The wide one goes out as plain UTF-8. */
void vtxt_printf(vnfichero *f, VN_FORMATO const char *formato, ...);
void vtxt_printf_u(vnfichero *f, VN_FORMATO const vnwchar *formato, ...);

VN_C_FIN

#endif
