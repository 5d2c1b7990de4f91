/* Wide text: UTF-16 units, zero-terminated. Texts that are returned are new blocks of the tracked heap, freed with
   widestr_destruye. Lengths and positions count units. Letter case maps one unit to one unit and back again: a letter
   without such a partner (sharp s, dotless i, long s, letters beyond the first plane) keeps its case. */
#ifndef VN_WIDESTR_H
#define VN_WIDESTR_H

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

/** Length in units. */
uint32_t widestr_nousar_longitud(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** Appends `t`, or one unit, to `*s`, which grows (and may move). `t` may be part of `*s`. A zero appends nothing. */
void widestr_nousar_concatena(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_cad_concatena(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
void widestr_nousar_concatena_caracter(vnwchar **s, vnwchar c, VN_OPC const char *modulo, uint32_t linea);
/** Puts `t` before `*s`, which grows (and may move). */
void widestr_nousar_inserta_al_principio(vnwchar **s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);

/** Whether both texts are equal; with or without regard to upper and lower case. */
vnbool widestr_nousar_cadenas_iguales(const vnwchar *a, const vnwchar *b, VN_OPC const char *modulo, uint32_t linea);
vnbool widestr_nousar_cadenas_iguales_may_o_min(const vnwchar *a, const vnwchar *b, VN_OPC const char *modulo,
                                                uint32_t linea);
/** Order by unit values: -1 if `a` stands before `b`, 0 if equal, 1 if after. */
int widestr_nousar_compara(const vnwchar *a, const vnwchar *b, VN_OPC const char *modulo, uint32_t linea);
/** Order of a word list, -1, 0 or 1: by letters without case and accents first; among equals, by unit values. */
int widestr_nousar_cadenas_compara_lexico_graficamente(const vnwchar *a, const vnwchar *b, VN_OPC const char *modulo,
                                                       uint32_t linea);
/** Whether the text has no character; whether it has none but blanks (space, tab, line ends, the no-break space; an
    empty text too). */
vnbool widestr_nousar_es_cadena_vacia(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
vnbool widestr_nousar_es_cadena_en_blanco(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** Whether there is a text and it has something but blanks. */
vnbool widestr_nousar_hay_texto(VN_OPC const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** Whether `t` occurs in `s`: anywhere, at the beginning, at the end. An empty `t` always does. */
vnbool widestr_nousar_es_subcadena(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
vnbool widestr_nousar_es_subcadena_may_o_min(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo,
                                             uint32_t linea);
vnbool widestr_nousar_es_subcadena_inicial(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo,
                                           uint32_t linea);
vnbool widestr_nousar_es_subcadena_inicial_may_o_min(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo,
                                                     uint32_t linea);
vnbool widestr_nousar_es_subcadena_final(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo, uint32_t linea);
/** The first `c` of `s`, borrowed; null if it is not there. The terminator is found as `c` = 0. */
vnwchar *widestr_nousar_strchr(const vnwchar *s, vnwchar c, VN_OPC const char *modulo, uint32_t linea);

/** New text: up to `n` units of `s` from index `inicio`; empty when `s` ends before. */
vnwchar *widestr_nousar_subcadena(const vnwchar *s, uint32_t inicio, uint32_t n, VN_OPC const char *modulo,
                                  uint32_t linea);
/** New text: the first, or the last, `n` units of `s`, or all of it when it is shorter. */
vnwchar *widestr_nousar_subcadena_inicial(const vnwchar *s, uint32_t n, VN_OPC const char *modulo, uint32_t linea);
vnwchar *widestr_nousar_subcadena_final(const vnwchar *s, uint32_t n, VN_OPC const char *modulo, uint32_t linea);
/** New text: what stands in `s` before the first `t`; all of `s` when `t` is not there. */
vnwchar *widestr_nousar_subcadena_anterior(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo,
                                           uint32_t linea);
vnwchar *widestr_nousar_subcadena_anterior_may_o_min(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo,
                                                     uint32_t linea);
/** New text: what stands in `s` after the first `t`; empty when `t` is not there. */
vnwchar *widestr_nousar_subcadena_posterior(const vnwchar *s, const vnwchar *t, VN_OPC const char *modulo,
                                            uint32_t linea);
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

/** New text: the token number `numero`, from 1, of `s` cut at any of the units of `separadores`; several in a row count
    as one. Null when there are fewer tokens. */
vnwchar *widestr_nousar_extrae_token(const vnwchar *s, const vnwchar *separadores,
                                     VN_RANGO(1, 4294967295) uint32_t numero, VN_OPC const char *modulo,
                                     uint32_t linea);
/** Splits at every unit that is one of `separadores`, or at every `separador`: n of them give n + 1 pieces, empty
    ones too, as they stand. The list and its texts are the caller's, freed with widestr_destruyeListaCadenas. Returns
    how many. */
uint32_t widestr_nousar_lista_de_subcadenas_sin_eliminar_blancos(const vnwchar *s, const vnwchar *separadores,
                                                                 VN_SALIDA vnwchar ***lista, VN_OPC const char *modulo,
                                                                 uint32_t linea);
uint32_t widestr_nousar_lista_de_subcadenas_un_separador(const vnwchar *s, vnwchar separador,
                                                         VN_SALIDA vnwchar ***lista, VN_OPC const char *modulo,
                                                         uint32_t linea);
/** How many pieces widestr_lista_de_subcadenas_un_separador gives. */
uint32_t widestr_nousar_numero_de_subcadenas(const vnwchar *s, vnwchar separador, VN_OPC const char *modulo,
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
/** The number that the text begins with after blanks, 0 if none; the decimal sign is a point whatever the C locale. */
double widestr_nousar_atof(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);
/** The same, a whole number from 0 to 2^32 - 1; what lies beyond gives the nearer end. */
uint32_t widestr_nousar_atoul(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);

/** Whether the unit is one of 0 to 9. */
vnbool widestr_es_digito(vnwchar c);
/** The unit in the other case, or itself. */
vnwchar widestr_convertir_caracter_a_mayusculas(vnwchar c);
vnwchar widestr_convertir_caracter_a_minusculas(vnwchar c);

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
#define widestr_longitud(s) widestr_nousar_longitud(s, VN_AQUI)
#define widestr_concatena(s, t) widestr_nousar_concatena(s, t, VN_AQUI)
#define widestr_cad_concatena(s, t) widestr_nousar_cad_concatena(s, t, VN_AQUI)
#define widestr_concatena_caracter(s, c) widestr_nousar_concatena_caracter(s, c, VN_AQUI)
#define widestr_inserta_al_principio(s, t) widestr_nousar_inserta_al_principio(s, t, VN_AQUI)
#define widestr_cadenas_iguales(a, b) widestr_nousar_cadenas_iguales(a, b, VN_AQUI)
#define widestr_cadenas_iguales_may_o_min(a, b) widestr_nousar_cadenas_iguales_may_o_min(a, b, VN_AQUI)
#define widestr_compara(a, b) widestr_nousar_compara(a, b, VN_AQUI)
#define widestr_cadenas_compara_lexico_graficamente(a, b)                                                              \
    widestr_nousar_cadenas_compara_lexico_graficamente(a, b, VN_AQUI)
#define widestr_es_cadena_vacia(s) widestr_nousar_es_cadena_vacia(s, VN_AQUI)
#define widestr_es_cadena_en_blanco(s) widestr_nousar_es_cadena_en_blanco(s, VN_AQUI)
#define widestr_hay_texto(s) widestr_nousar_hay_texto(s, VN_AQUI)
#define widestr_es_subcadena(s, t) widestr_nousar_es_subcadena(s, t, VN_AQUI)
#define widestr_es_subcadena_may_o_min(s, t) widestr_nousar_es_subcadena_may_o_min(s, t, VN_AQUI)
#define widestr_es_subcadena_inicial(s, t) widestr_nousar_es_subcadena_inicial(s, t, VN_AQUI)
#define widestr_es_subcadena_inicial_may_o_min(s, t) widestr_nousar_es_subcadena_inicial_may_o_min(s, t, VN_AQUI)
#define widestr_es_subcadena_final(s, t) widestr_nousar_es_subcadena_final(s, t, VN_AQUI)
#define widestr_strchr(s, c) widestr_nousar_strchr(s, c, VN_AQUI)
#define widestr_subcadena(s, inicio, n) widestr_nousar_subcadena(s, inicio, n, VN_AQUI)
#define widestr_subcadena_inicial(s, n) widestr_nousar_subcadena_inicial(s, n, VN_AQUI)
#define widestr_subcadena_final(s, n) widestr_nousar_subcadena_final(s, n, VN_AQUI)
#define widestr_subcadena_anterior(s, t) widestr_nousar_subcadena_anterior(s, t, VN_AQUI)
#define widestr_subcadena_anterior_may_o_min(s, t) widestr_nousar_subcadena_anterior_may_o_min(s, t, VN_AQUI)
#define widestr_subcadena_posterior(s, t) widestr_nousar_subcadena_posterior(s, t, VN_AQUI)
#define widestr_suprime_subcadena(s, t) widestr_nousar_suprime_subcadena(s, t, VN_AQUI)
#define widestr_suprime_subcadena_inicial(s, t) widestr_nousar_suprime_subcadena_inicial(s, t, VN_AQUI)
#define widestr_suprime_subcadena_final(s, t) widestr_nousar_suprime_subcadena_final(s, t, VN_AQUI)
#define widestr_reemplaza_todas_cadenas(s, a, b) widestr_nousar_reemplaza_todas_cadenas(s, a, b, VN_AQUI)
#define widestr_extrae_token(s, separadores, numero) widestr_nousar_extrae_token(s, separadores, numero, VN_AQUI)
#define widestr_lista_de_subcadenas_sin_eliminar_blancos(s, separadores, lista)                                        \
    widestr_nousar_lista_de_subcadenas_sin_eliminar_blancos(s, separadores, lista, VN_AQUI)
#define widestr_lista_de_subcadenas_un_separador(s, separador, lista)                                                  \
    widestr_nousar_lista_de_subcadenas_un_separador(s, separador, lista, VN_AQUI)
#define widestr_numero_de_subcadenas(s, separador) widestr_nousar_numero_de_subcadenas(s, separador, VN_AQUI)
#define widestr_LTrim(s) widestr_nousar_LTrim(s, VN_AQUI)
#define widestr_RTrim(s) widestr_nousar_RTrim(s, VN_AQUI)
#define widestr_convertir_a_mayusculas(s) widestr_nousar_convertir_a_mayusculas(s, VN_AQUI)
#define widestr_convertir_a_minusculas(s) widestr_nousar_convertir_a_minusculas(s, VN_AQUI)
#define widestr_convertir_cadena_sin_acentos(s) widestr_nousar_convertir_cadena_sin_acentos(s, VN_AQUI)
#define widestr_atof(s) widestr_nousar_atof(s, VN_AQUI)
#define widestr_atoul(s) widestr_nousar_atoul(s, VN_AQUI)
/** copiaforu_formatea(format, ...): new wide text. */
#define copiaforu_formatea(...) copiaforu_nousar_formatea(__VA_ARGS__)

#endif
