/* Binary project files: values read from an open stream, which a reader takes. vornbin.h tells what holds for all. */
#ifndef VN_VORNBIN_LEE_H
#define VN_VORNBIN_LEE_H

#include "../foundation/ficheros/lc_fichero.h"

VN_C_INICIO

/** A byte other than 0 and 1 is reported as a read error, and returned. */
vnbool bin_lee_bool(vnfichero *f);
/** What the writer of the same name wrote. */
uint8_t bin_lee_byte(vnfichero *f);
char bin_lee_char(vnfichero *f);
uint8_t bin_lee_uchar(vnfichero *f);
int16_t bin_lee_short(vnfichero *f);
uint16_t bin_lee_ushort(vnfichero *f);
int32_t bin_lee_long(vnfichero *f);
uint32_t bin_lee_ulong(vnfichero *f);
int64_t bin_lee_long64(vnfichero *f);
uint64_t bin_lee_ulong64(vnfichero *f);
float bin_lee_float(vnfichero *f);
double bin_lee_double(vnfichero *f);
/** A letter other than S and N is reported as a read error, and returned. */
char bin_lee_SN(vnfichero *f);
/** New text, empty for a length of 0. A length beyond what is left of the file is reported as a read error and gives an
    empty text; nothing is allocated for it. */
char *bin_lee_cadena(vnfichero *f);
vnwchar *bin_lee_cadena_unicode(vnfichero *f);
/** New text, or null where null was written. A flag other than 0 and 1 is reported and gives null. */
char *bin_lee_null(vnfichero *f);
vnwchar *bin_lee_null_unicode(vnfichero *f);
/** New block of one double, freed by vornspy_free_pp(&p, sizeof(double)), or null where null was written. A flag other
    than 0 and 1 is reported and gives null. */
double *bin_lee_double_posible_null(vnfichero *f);
/** New point, made by creapunto. */
Punto2D *bin_lee_punto(vnfichero *f);
/** New point out of two floats. */
Punto2D *bin_lee_punto_float(vnfichero *f);
/** Fills `*destino` from its 16 bytes. */
void bin_lee_punto2D(VN_SALIDA Punto2D *destino, vnfichero *f);
/** Fills `destino` with `tamanyo` bytes; what is missing is reported and left zero. */
void bin_lee_buffer(VN_SALIDA VN_LON(tamanyo) void *destino, uint32_t tamanyo, vnfichero *f);
void bin_lee_buffer_uchar(VN_SALIDA VN_LON(tamanyo) uint8_t *destino, uint32_t tamanyo, vnfichero *f);
/** Fills `destino` with `tamanyo` wide characters; no terminator is added. */
void bin_lee_buffer_u(VN_SALIDA VN_LON(tamanyo) vnwchar *destino, uint32_t tamanyo, vnfichero *f);

/** Old texts in the OEM code page, converted to ANSI as they are read. */
char *bin_lee_cadena_ASCII(vnfichero *f);
char bin_lee_char_ASCII(vnfichero *f);
void bin_lee_buffer_ascii(VN_SALIDA VN_LON(tamanyo) char *destino, uint32_t tamanyo, vnfichero *f);
/** ANSI if `version` is greater than `version_ascii`, the last version that wrote the OEM code page; else converted
    from it. */
char *bin_lee_cadena_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
char bin_lee_char_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
char *bin_lee_null_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
void bin_lee_buffer_ansi_ascii(VN_SALIDA VN_LON(tamanyo) char *destino, uint32_t tamanyo, vnfichero *f,
                               uint16_t version, uint16_t version_ascii);

/** The number read through vncopro_filtra_double_con_posible_error: a bad one is replaced, and the two truth values say
    so. */
double bin_lee_double_con_posible_error(vnfichero *f, VN_SALIDA vnbool *es_incorrecto, VN_SALIDA vnbool *es_denormal);
/** As bin_lee_double_posible_null; both truth values are FALSO for null. */
double *bin_lee_double_posible_null_con_posible_error(vnfichero *f, VN_SALIDA vnbool *es_incorrecto,
                                                      VN_SALIDA vnbool *es_denormal);
/** New point; a truth value is CIERTO if either coordinate raised it. */
Punto2D *bin_lee_punto_con_posible_error(vnfichero *f, VN_SALIDA vnbool *es_incorrecto, VN_SALIDA vnbool *es_denormal);
/** An infinite float is reported. One below the smallest normal one, zero too, resets the floating-point unit and is
    0. */
float bin_lee_float_con_posible_error(vnfichero *f);

VN_C_FIN

#endif
