/* The save protocol: texts, bytes and memory files. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_CADENAS_H
#define VN_VORNSAVE_CADENAS_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** ANSI text, up to 65535 bytes. Reading converts old OEM text, as the object's state says. */
void vornsave_graba_cadena(const char *valor, vornsave *vornsave_datos);
char *vornsave_lee_cadena(vornsave *vornsave_datos);
void vornsave_salta_cadena(vornsave *vornsave_datos);
/** The same, read as ANSI if `version` > `version_ascii` and as OEM text if not; always as OEM text. */
char *vornsave_lee_cadena_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
char *vornsave_lee_cadena_ascii(vornsave *vornsave_datos);
/** Wide text. */
void vornsave_graba_cadena_unicode(const vnwchar *valor, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_unicode(vornsave *vornsave_datos);
void vornsave_salta_cadena_unicode(vornsave *vornsave_datos);
/** Wide text of an ANSI one that was stored. */
vnwchar *vornsave_lee_cadena_ANSI_a_unicode(vornsave *vornsave_datos);
/** Wide text stored as UTF-8. Half of a surrogate pair that stands alone is reported, and is read as U+FFFD. */
void vornsave_graba_cadena_UTF8(const vnwchar *texto, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_UTF8(vornsave *vornsave_datos);
/** ANSI text with the name of its field, which only editable text shows. */
void vornsave_graba_cadena_campo(const char *valor, const char *campo, vornsave *vornsave_datos);
char *vornsave_lee_cadena_campo(vornsave *vornsave_datos, const char *campo);
void vornsave_salta_cadena_campo(vornsave *vornsave_datos, const char *campo);
/** ANSI text of any length. */
void vornsave_graba_cadena_como_buffer(const char *texto, vornsave *vornsave_datos);
char *vornsave_lee_cadena_como_buffer(vornsave *vornsave_datos);
/** Bytes as they are; their number is not stored. Reading returns a new block of `tamanyo` + 1 bytes, the last 0, to be
    freed with vornspy_free_pp; null, and reported, where the source does not hold so many. */
void vornsave_graba_buffer(VN_LON(tamanyo) const void *datos_buffer, uint32_t tamanyo, vornsave *vornsave_datos);
uint8_t *vornsave_lee_buffer(uint32_t tamanyo, vornsave *vornsave_datos);
void vornsave_salta_buffer(uint32_t tamanyo, vornsave *vornsave_datos);
/** Memory file. */
void vornsave_graba_fichmem(const fichmem *fichero, vornsave *vornsave_datos);
fichmem *vornsave_lee_fichmem(vornsave *vornsave_datos);

/** Optional texts: null is written as FALSO and comes back as null. */
void vornsave_graba_cadena_opcional(VN_OPC const char *valor, vornsave *vornsave_datos);
char *vornsave_lee_cadena_opcional(vornsave *vornsave_datos);
void vornsave_salta_cadena_opcional(vornsave *vornsave_datos);
void vornsave_graba_cadena_unicode_opcional(VN_OPC const vnwchar *valor, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_unicode_opcional(vornsave *vornsave_datos);
void vornsave_salta_cadena_unicode_opcional(vornsave *vornsave_datos);
void vornsave_graba_cadena_UTF8_opcional(VN_OPC const vnwchar *valor, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_UTF8_opcional(vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_ANSI_a_unicode_opcional(vornsave *vornsave_datos);

VN_C_FIN

#endif
