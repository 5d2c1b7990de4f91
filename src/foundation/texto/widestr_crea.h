/* Wide texts made, copied, destroyed, joined and changed. */
#ifndef VN_WIDESTR_CREA_H
#define VN_WIDESTR_CREA_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** New text with room for `n` units and a terminator, all zero. */
vnwchar *widestr_nousar_creacadena(VN_RANGO(0, 1073741824) uint32_t n, VN_OPC const char *modulo, uint32_t linea);
/** New text of `n` times the unit `c`, which is not zero. */
vnwchar *widestr_nousar_creacadena_con_caracter(VN_RANGO(0, 1073741824) uint32_t n, VN_RANGO(1, 65535) vnwchar c,
                                                VN_OPC const char *modulo, uint32_t linea);
/** New text of the `len` units at `str`, which hold no zero; a zero inside is reported and the text ends before it. */
vnwchar *widestr_nousar_crea_de_unidades(VN_LON(len) const vnwchar *str, VN_RANGO(0, 1073741824) uint32_t len,
                                         VN_OPC const char *modulo, uint32_t linea);
/** A copy, the caller's. */
vnwchar *widestr_nousar_copia(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** A copy, or null for null. */
vnwchar *widestr_nousar_copia_opcional(VN_OPC const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
vnwchar *widestr_nousar_copia_si_no_null(VN_OPC const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** Frees `*s` and leaves it null. */
void widestr_nousar_destruye(vnwchar **s, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_destruye_opcional(VN_OPC vnwchar **s, VN_OPC const char *modulo, uint32_t linea);
/** widestr_destruye as a call-back: `s` is the address of the owner's pointer to a text of either width. */
void widestr_fun_destruye(VN_SALIDA void *s);
/** Frees the `n` texts of a list and the list, and leaves `*lista` null, which it may be already if `n` is 0. */
void widestr_nousar_destruyeListaCadenas(uint32_t n, VN_OPC vnwchar ***lista, VN_OPC const char *modulo,
                                         uint32_t linea);
/** New text of a printf-like format, as nousar_formatea, where `%s` and `%ls` take wide text and `%S` and
    `%hs` ANSI. */
vnwchar *copiaforu_nousar_formatea(VN_FORMATO const vnwchar *formato, ...);
/** Appends `t`, or one unit, to `*s`, which grows (and may move). `t` may be part of `*s`. A zero appends nothing. */
void widestr_nousar_concatena(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_cad_concatena(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_concatena_caracter(vnwchar **s, vnwchar c, VN_OPC const char *modulo, uint32_t linea);
/** Puts `t` before `*s`, which grows (and may move). */
void widestr_nousar_inserta_al_principio(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
/** Takes every `t` out of `s`, in place. An empty `t` takes nothing. */
void widestr_nousar_suprime_subcadena(vnwchar *s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
/** Takes `t` from the beginning, or from the end, of `*s`, in place, if it stands there; tells whether it did. */
vnbool widestr_nousar_suprime_subcadena_inicial(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo,
                                                uint32_t linea);
vnbool widestr_nousar_suprime_subcadena_final(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
/** Puts `b` in the place of every `a` of `*s`, from left to right; what was put in is not looked at again. `*s` may
    move. An empty `a` changes nothing. */
void widestr_nousar_reemplaza_todas_cadenas(vnwchar **s, const vnwchar *a, const vnwchar *b, VN_OPC const char *modulo,
                                            uint32_t linea);

/** Takes the blanks (as widestr_es_cadena_en_blanco) off the beginning, or off the end, in place. */
void widestr_nousar_LTrim(vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_RTrim(vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** Changes the case of every letter, in place; the length stays. */
void widestr_nousar_convertir_a_mayusculas(vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_convertir_a_minusculas(vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** Takes the accents off Latin and Greek letters (n with tilde and c with cedilla too), in place. Accents that stand as
    units of their own go, so that the text may get shorter. */
void widestr_nousar_convertir_cadena_sin_acentos(vnwchar *s, VN_OPC const char *modulo, uint32_t linea);

VN_C_FIN

#define widestr_creacadena(n) widestr_nousar_creacadena(n, VN_AQUI)
#define widestr_creacadena_con_caracter(n, c) widestr_nousar_creacadena_con_caracter(n, c, VN_AQUI)
#define widestr_crea_de_unidades(str, len) widestr_nousar_crea_de_unidades(str, len, VN_AQUI)
#define widestr_copia(s) widestr_nousar_copia(s, VN_AQUI)
#define widestr_copia_opcional(s) widestr_nousar_copia_opcional(s, VN_AQUI)
#define widestr_copia_si_no_null(s) widestr_nousar_copia_si_no_null(s, VN_AQUI)
#define widestr_destruye(s) widestr_nousar_destruye(s, VN_AQUI)
#define widestr_destruye_opcional(s) widestr_nousar_destruye_opcional(s, VN_AQUI)
#define widestr_destruyeListaCadenas(n, lista) widestr_nousar_destruyeListaCadenas(n, lista, VN_AQUI)
#define widestr_concatena(s, t) widestr_nousar_concatena(s, t, VN_AQUI)
#define widestr_cad_concatena(s, t) widestr_nousar_cad_concatena(s, t, VN_AQUI)
#define widestr_concatena_caracter(s, c) widestr_nousar_concatena_caracter(s, c, VN_AQUI)
#define widestr_inserta_al_principio(s, t) widestr_nousar_inserta_al_principio(s, t, VN_AQUI)
#define widestr_suprime_subcadena(s, t) widestr_nousar_suprime_subcadena(s, t, VN_AQUI)
#define widestr_suprime_subcadena_inicial(s, t) widestr_nousar_suprime_subcadena_inicial(s, t, VN_AQUI)
#define widestr_suprime_subcadena_final(s, t) widestr_nousar_suprime_subcadena_final(s, t, VN_AQUI)
#define widestr_reemplaza_todas_cadenas(s, a, b) widestr_nousar_reemplaza_todas_cadenas(s, a, b, VN_AQUI)
#define widestr_LTrim(s) widestr_nousar_LTrim(s, VN_AQUI)
#define widestr_RTrim(s) widestr_nousar_RTrim(s, VN_AQUI)
#define widestr_convertir_a_mayusculas(s) widestr_nousar_convertir_a_mayusculas(s, VN_AQUI)
#define widestr_convertir_a_minusculas(s) widestr_nousar_convertir_a_minusculas(s, VN_AQUI)
#define widestr_convertir_cadena_sin_acentos(s) widestr_nousar_convertir_cadena_sin_acentos(s, VN_AQUI)
/** copiaforu_formatea(format, ...): new wide text. */
#define copiaforu_formatea(...) copiaforu_nousar_formatea(__VA_ARGS__)

#endif
