/* ANSI text: 8 bits, zero-terminated, in the active ANSI code page (unicode.h). Texts that are returned are new blocks
   of the tracked heap, freed with vornstr_destruye. Two-byte characters of the pages that have them are never cut, and
   a search does not find a match inside one. Letter case follows the active page, not ASCII alone; characters of more
   than one byte have no case. */
#ifndef VN_CAD_H
#define VN_CAD_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** New text with room for `n` bytes and a terminator, all zero. */
char *creacadena(VN_RANGO(0, 1073741824) uint32_t n);
/** New text of the `len` bytes at `str`, which hold no zero; a zero inside is reported and the text ends before it. */
char *cad_crea_de_bytes(VN_LON(len) const char *str, VN_RANGO(0, 1073741824) uint32_t len);
/** Frees `*s` and leaves it null. */
void vornstr_destruye(char **s);
void vornstr_destruye_opcional(VN_OPC char **s);
/** A copy, the caller's. */
char *cad_copia_cadena(const char *s);
char *cad_copia_cadena_opcional(VN_OPC const char *s);
/** New text of a printf-like format: flags `-+ #0`, width and precision (`*` too), conversions d i u x X o c s S f F e
    E g G a A p %, sizes hh h l ll I I32 I64 z j t w. `l` is 32 bits. `%s` takes ANSI text, `%S` and `%ls` wide; a null
    text prints "(null)". The decimal sign is always a point. A conversion that does not exist is reported and written
    as it stands, without taking an argument. */
char *nousar_formatea(VN_FORMATO const char *formato, ...);

/** Appends `t`, or one character, to `*s`, which grows (and may move). `t` may be part of `*s`. A zero
    appends nothing. */
void cad_concatena(char **s, const char *t);
void cad_concatena_caracter(char **s, char c);
/** Puts `t` before `*s`, which grows (and may move). */
void vornstr_inserta_al_principio(char **s, const char *t);
/** Length in bytes. */
uint32_t cad_longitud_cadena(const char *s);

/** Whether both texts are equal; with or without regard to upper and lower case. */
vnbool cad_cadenas_iguales(const char *a, const char *b);
vnbool cad_cadenas_iguales_may_o_min(const char *a, const char *b);
/** Order by unsigned bytes: -1 if `a` stands before `b`, 0 if equal, 1 if after. */
int cad_cadenas_compara(const char *a, const char *b);
/** Whether the text has no character; whether it has none but blanks (space, tab, line ends; an empty text too). */
vnbool cad_es_cadena_vacia(const char *s);
vnbool cad_es_cadena_en_blanco(const char *s);
/** Whether `t` occurs in `s`: anywhere, at the beginning, at the end. An empty `t` always does. */
vnbool cad_es_subcadena(const char *s, const char *t);
vnbool cad_es_subcadena_may_min(const char *s, const char *t);
vnbool cad_es_subcadena_inicial(const char *s, const char *t);
vnbool cad_es_subcadena_inicial_may_o_min(const char *s, const char *t);
vnbool cad_es_subcadena_final(const char *s, const char *t);

/** New text: the first `n` bytes of `s` (one less where that would cut a character), or all of it when it
    is shorter. */
char *cad_subcadena_inicial(const char *s, uint32_t n);
/** New text: what stands in `s` before the first `t`; all of `s` when `t` is not there. */
char *cad_subcadena_anterior(const char *s, const char *t);
/** Takes every `t` out of `s`, in place. An empty `t` takes nothing. */
void cad_suprime_subcadena(char *s, const char *t);
/** Takes `t` from the beginning of `*s`, in place, if it stands there; tells whether it did. */
vnbool cad_suprime_subcadena_inicial(char **s, const char *t);
vnbool cad_suprime_subcadena_inicial_may_o_min(char **s, const char *t);
/** Puts `b` in the place of every `a` of `*s`, from left to right; what was put in is not looked at again. `*s` may
    move. An empty `a` changes nothing. */
void cad_reemplaza_todas_cadenas(char **s, const char *a, const char *b);

/** Splits at every `separador`: n separators give n + 1 pieces, empty ones too, as they stand. The list and its texts
    are the caller's, freed with vornstr_destruyeListaCadenas. Returns how many pieces. */
uint32_t cad_lista_de_subcadenas(const char *s, char separador, VN_SALIDA char ***lista);
uint32_t vornstr_lista_de_subcadenas(const char *s, char separador, VN_SALIDA char ***lista);
/** Frees the `n` texts of a list and the list, and leaves `*lista` null, which it may be already if `n` is 0. */
void vornstr_destruyeListaCadenas(uint32_t n, VN_OPC char ***lista);

/** Takes the blanks (space, tab, line ends) off the beginning, or off the end, in place. */
void cad_LTrim(char *s);
void RTrim(char *s);
/** Changes the case of every letter, in place. A letter whose other case the page does not have stays. */
void cad_convertir_a_mayusculas(char *s);
void cad_convertir_a_minusculas(char *s);
/** The number that the text begins with after blanks, 0 if none; the decimal sign is a point whatever the C locale. */
double cad_atof(const char *s);

/** Turns text of the OEM page 850, as old files hold it, into the active ANSI page, in place. A character that the ANSI
    page does not have in one byte becomes '?'. */
void cad_convertir_cadena_ascii_ansi(char *s);
/** Reduces text to plainer letters, in place. `modo` is a sum: 1 makes letters upper case, 2 takes accents off (as far
    as the page has the plain letter). 0 leaves the text as it is. */
void cad_convertir_ansi_cadena(char *s, VN_RANGO(0, 3) int modo);

VN_C_FIN

/** cad_formatea(format, ...): new ANSI text. */
#define cad_formatea(...) nousar_formatea(__VA_ARGS__)

#endif
