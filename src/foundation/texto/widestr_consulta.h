/* Questions about wide texts, and new texts that are parts of others. */
#ifndef VN_WIDESTR_CONSULTA_H
#define VN_WIDESTR_CONSULTA_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Length in units. */
uint32_t widestr_nousar_longitud(const vnwchar *s, VN_OPC const char *modulo, uint32_t linea);

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

#define widestr_longitud(s) widestr_nousar_longitud(s, VN_AQUI)
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
#define widestr_extrae_token(s, separadores, numero) widestr_nousar_extrae_token(s, separadores, numero, VN_AQUI)
#define widestr_lista_de_subcadenas_sin_eliminar_blancos(s, separadores, lista)                                        \
    widestr_nousar_lista_de_subcadenas_sin_eliminar_blancos(s, separadores, lista, VN_AQUI)
#define widestr_lista_de_subcadenas_un_separador(s, separador, lista)                                                  \
    widestr_nousar_lista_de_subcadenas_un_separador(s, separador, lista, VN_AQUI)
#define widestr_numero_de_subcadenas(s, separador) widestr_nousar_numero_de_subcadenas(s, separador, VN_AQUI)
#define widestr_atof(s) widestr_nousar_atof(s, VN_AQUI)
#define widestr_atoul(s) widestr_nousar_atoul(s, VN_AQUI)

#endif
