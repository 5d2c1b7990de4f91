/* Portable layer: bytes, texts of both widths, and the numbers that they say. */
#ifndef VN_VNSTDC_TEXTO_H
#define VN_VNSTDC_TEXTO_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Bytes. The two areas of vnstdc_memcpy may overlap. */
void *vnstdc_memcpy(VN_SALIDA VN_LON(n) void *destino, VN_LON(n) const void *origen, size_t n);
void *vnstdc_memset(VN_SALIDA VN_LON(n) void *destino, int c, size_t n);
int vnstdc_memcmp(VN_LON(n) const void *a, VN_LON(n) const void *b, size_t n);

/** ANSI texts. Room in `destino` is the caller's duty. vnstdc_strncpy writes exactly `n` bytes: what is left after the
    text is zeros, and a text of `n` bytes or more is not terminated. */
size_t vnstdc_strlen(const char *s);
char *vnstdc_strcpy(VN_SALIDA char *destino, const char *origen);
char *vnstdc_strncpy(VN_SALIDA VN_LON(n) char *destino, const char *origen, size_t n);
char *vnstdc_strcat(VN_SALIDA char *destino, const char *origen);
int vnstdc_strcmp(const char *a, const char *b);
char *vnstdc_strchr(const char *s, int c);
char *vnstdc_strstr(const char *s, const char *t);
char *vnstdc_strpbrk(const char *s, const char *caracteres);

/** Wide texts; as the ANSI ones. Lengths count 16-bit units. vnstdc_wcscspn: units before the first one
    of `caracteres`. */
size_t vnstdc_wcslen(const vnwchar *s);
vnwchar *vnstdc_wcscpy(VN_SALIDA vnwchar *destino, const vnwchar *origen);
vnwchar *vnstdc_wcsncpy(VN_SALIDA VN_LON(n) vnwchar *destino, const vnwchar *origen, size_t n);
vnwchar *vnstdc_wcscat(VN_SALIDA vnwchar *destino, const vnwchar *origen);
vnwchar *vnstdc_wcschr(const vnwchar *s, vnwchar c);
vnwchar *vnstdc_wcsrchr(const vnwchar *s, vnwchar c);
vnwchar *vnstdc_wcspbrk(const vnwchar *s, const vnwchar *caracteres);
size_t vnstdc_wcscspn(const vnwchar *s, const vnwchar *caracteres);

/** Numbers out of text: white space, a sign, digits; 0 where there is no number, the nearest 32-bit number where it
    does not fit. vnstdc_wcstod leaves in `*fin`, if not null, where the number ended (`s` when there is none). */
int vnstdc_atoi(const char *s);
int vnstdc__wtoi(const vnwchar *s);
int32_t vnstdc__wtol(const vnwchar *s);
double vnstdc_wcstod(const vnwchar *s, VN_SALIDA_OPC vnwchar **fin);
/** Whether `c` (an ANSI character, or -1) is an ASCII letter; a decimal digit. 0 is no. */
int vnstdc_isalpha(int c);
int vnstdc_isdigit(int c);

VN_C_FIN

#endif
