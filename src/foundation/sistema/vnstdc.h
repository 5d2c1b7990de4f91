/* Portable layer: the platform's standard functions under one roof, with one behaviour on every platform. Each does
   what the standard function of that name does, but for this: a null pointer is reported (and the result is 0, null or
   the untouched room), nothing depends on the C locale, and a "long" is 32 bits: "%ld" takes 32 bits of its argument on
   Linux too, 64 take "%lld" or "%I64d". ANSI text is in the active code page (unicode.h), which on Linux is 1252, not
   UTF-8, until the host sets another. */
#ifndef VN_VNSTDC_H
#define VN_VNSTDC_H

#include "../suelo/tipos.h"
#include <time.h>

/** Stream of the Foundation (lc_fichero.h). */
typedef struct vnfichero vnfichero;

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

/** Formatted text, with its length as result. `%s` takes text of the format's width. vnstdc_sprintf: room is the
    caller's duty. The others write at most `n` units: a text of exactly `n` is not terminated, a longer one is cut
    there and the result is -1. vnstdc_wprintf writes UTF-8 to the standard output. */
int vnstdc_sprintf(VN_SALIDA char *destino, VN_FORMATO const char *formato, ...);
int vnstdc__snprintf(VN_SALIDA VN_LON(n) char *destino, size_t n, VN_FORMATO const char *formato, ...);
int vnstdc__snwprintf(VN_SALIDA VN_LON(n) vnwchar *destino, size_t n, VN_FORMATO const vnwchar *formato, ...);
int vnstdc_wprintf(VN_FORMATO const vnwchar *formato, ...);

/** Numbers out of text: white space, a sign, digits; 0 where there is no number, the nearest 32-bit number where it
    does not fit. vnstdc_wcstod leaves in `*fin`, if not null, where the number ended (`s` when there is none). */
int vnstdc_atoi(const char *s);
int vnstdc__wtoi(const vnwchar *s);
int32_t vnstdc__wtol(const vnwchar *s);
double vnstdc_wcstod(const vnwchar *s, VN_SALIDA_OPC vnwchar **fin);
/** Whether `c` (an ANSI character, or -1) is an ASCII letter; a decimal digit. 0 is no. */
int vnstdc_isalpha(int c);
int vnstdc_isdigit(int c);

/** Magnitude of a 32-bit number; of the lowest one, the lowest one. */
int32_t vnstdc_labs(int32_t x);
/** Magnitude of a number. */
double vnstdc_fabs(double x);
/** Trigonometry, radians. Outside their domain vnstdc_asin and vnstdc_acos give not-a-number. */
double vnstdc_sin(double x);
double vnstdc_cos(double x);
double vnstdc_tan(double x);
double vnstdc_asin(double x);
double vnstdc_acos(double x);
double vnstdc_atan2(double y, double x);
/** Power, decimal logarithm, whole numbers below and above, remainder with the sign of `x`. */
double vnstdc_pow(double x, double y);
double vnstdc_log10(double x);
double vnstdc_floor(double x);
double vnstdc_ceil(double x);
double vnstdc_fmod(double x, double y);

/** Clears the error and end marks of a stream. */
void vnstdc_clearerr(vnfichero *f);
/** Reads one item from a stream as `formato` says (one conversion: d i u x o c s f g e with l, h, I64 and a width),
    and returns how many items were read: 1, 0, or -1 at the end of the stream before anything was read. `a` leads to
    room of the conversion's type; a `%s` without a width is reported and reads nothing. What was not used stays in
    the stream. */
int vnstdc_fscanf1(vnfichero *f, VN_FORMATO const char *formato, VN_SALIDA void *a);
/** Reads two items from a wide text. As vnstdc_fscanf1; `%s` and `%c` fill wide room. */
int vnstdc_swscanf2(const vnwchar *s, VN_FORMATO const vnwchar *formato, VN_SALIDA void *a, VN_SALIDA void *b);

/** Text of a time after `formato` (as strftime of the "C" locale: names are English), at most `n` units with the end;
    its length, or 0 when it does not fit. A field of `t` out of its range shows as "?". */
size_t vnstdc_strftime(VN_SALIDA VN_LON(n) char *destino, size_t n, const char *formato, const struct tm *t);
size_t vnstdc_wcsftime(VN_SALIDA VN_LON(n) vnwchar *destino, size_t n, const vnwchar *formato, const struct tm *t);
/** Seconds since 1970-01-01 00:00 UTC, also in `*t` if not null. */
int64_t vnstdc__time64(VN_SALIDA_OPC int64_t *t);
/** Local time of `*t`. Borrowed: one record per thread. Null when the year cannot be told. */
struct tm *vnstdc__localtime64(const int64_t *t);

/** Value of an environment variable, or null. Borrowed, not to be written on; good until the variable has been read
    with sixteen other values. The ANSI form is in the active code page; in the wide one the bytes of a Linux value that
    are not UTF-8 are the lone surrogates U+DC80 to U+DCFF, and vnstdc__wputenv makes them those bytes again. */
char *vnstdc_getenv(const char *nombre);
vnwchar *vnstdc__wgetenv(const vnwchar *nombre);
/** Sets a variable of this process from "NAME=value"; "NAME=" takes it away. 0, or -1 for a text of another form. */
int vnstdc_putenv(const char *asignacion);
int vnstdc__wputenv(const vnwchar *asignacion);

VN_C_FIN

#endif
