/* Code pages and Unicode forms. ANSI text is in the active ANSI code page: what Windows says there, 1252 elsewhere,
   until the host sets another. A byte that a page of one byte leaves undefined stands for the control character of
   the same value (as 81, 8D, 8F, 90 and 9D of page 1252); a character that a page does not have becomes '?', never a
   similar one. The results are the same on every platform. Bytes that are no character of a two-byte page or of
   UTF-8, and halves of surrogate pairs, become U+FFFD. Texts that are returned are new and the caller's. Threads:
   any; the page is the process's, and each conversion is whole in the page that it began with. */
#ifndef VN_UNICODE_H
#define VN_UNICODE_H

#include "../suelo/tipos.h"

typedef struct arrCADENA arrCADENA;
typedef struct arrCADENA_u arrCADENA_u;

VN_C_INICIO

/** Makes `pagina` (a Windows number: 1250 to 1258, 932, 936, 65001...) the active ANSI page of the process. FALSO, and
    nothing changes, when the platform does not know it or it has characters of more than two bytes (but for 65001). */
vnbool unicode_establece_pagina_ANSI(uint32_t pagina);
/** The active ANSI page; the ANSI page of a language, by the index that msidioma_dame_idioma returns. */
uint32_t unicode_pagina_ANSI(void);
uint32_t unicode_pagina_ANSI_idioma(VN_RANGO(0, 41) uint32_t idioma);

/** Text of the active ANSI page to wide text, and back. */
vnwchar *unicode_convierte_ANSI_a_UNICODE(const char *s);
char *unicode_UNICODE_a_ANSI(const vnwchar *s);
/** The same with the ANSI page of a language. `perdida` is set to CIERTO if a character became '?'. */
vnwchar *unicode_convierte_ANSI_idioma_a_UNICODE(const char *s, VN_RANGO(0, 41) uint32_t idioma);
char *unicode_convierte_UNICODE_a_ANSI_idioma(const vnwchar *s, VN_RANGO(0, 41) uint32_t idioma,
                                              VN_SALIDA_OPC vnbool *perdida);
/** UTF-8 to wide or ANSI text, and wide text to UTF-8. */
char *unicode_convierte_UNICODE_a_UTF8(const vnwchar *s);
vnwchar *unicode_convierte_UTF8_a_UNICODE(const char *s);
char *unicode_convierte_UTF8_a_ANSI(const char *s);
/** The unit of one byte of the active ANSI page; U+FFFD for a byte that is no character by itself. */
vnwchar unicode_caracter_ANSI_a_UNICODE(char c);
/** ANSI text for an output that has no wide form: a character that the page does not have loses its accents before it
    becomes '?'. `hay_error` is set to CIERTO if there was one. */
char *unicode_a_salida_ANSI_tratando_error(const vnwchar *s, VN_SALIDA_OPC vnbool *hay_error);
/** The same for each text of an array; `hay_error` speaks for all. */
arrCADENA *unicode_array_salida_ANSI_tratando_error(const arrCADENA_u *a, VN_SALIDA_OPC vnbool *hay_error);
/** Whether every character of the text stands in the ANSI page of the language. */
vnbool trconvansi_texto_unicode_es_compatible_ANSI_idioma(const vnwchar *s, VN_RANGO(0, 41) uint32_t idioma);

/** Text of the active ANSI page to wide text, and back. */
vnwchar *utunicode_ANSI_a_UNICODE(const char *s);
char *utunicode_UNICODE_a_ANSI(const vnwchar *s);
/** The same, destroying the source: `*s` is left null. */
vnwchar *utunicode_ANSI_a_UNICODE_destruyendo(char **s);
char *utunicode_UNICODE_a_ANSI_destruyendo(vnwchar **s);
/** The same, destroying the source, which is given itself. */
vnwchar *utunicode_ANSI_a_UNICODE_destruyendo_p(VN_CONSUME char *s);
char *utunicode_UNICODE_a_ANSI_destruyendo_p(VN_CONSUME vnwchar *s);
/** Frees the text `*s` and leaves it null. */
void utunicode_destruye_UNICODE(vnwchar **s);
/** Each text of an array; null elements stay null. The source lives on, or is destroyed and left null. */
arrCADENA_u *utunicode_cadenas_ANSI_a_UNICODE(const arrCADENA *a);
arrCADENA_u *utunicode_cadenas_ANSI_a_UNICODE_destruyendo(arrCADENA **a);
arrCADENA *utunicode_cadenas_UNICODE_a_ANSI(const arrCADENA_u *a);
arrCADENA *utunicode_cadenas_UNICODE_a_ANSI_destruyendo(arrCADENA_u **a);
arrCADENA_u *utunicode_cadenas_UTF8_a_UNICODE_destruyendo(arrCADENA **a);
/** Frees the array `*a` with its texts and leaves it null. */
void utunicode_destruye_cadenas_UNICODE(arrCADENA_u **a);

VN_C_FIN

#endif
