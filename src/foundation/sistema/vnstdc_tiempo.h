/* Portable layer: the clock, and the variables of the environment. */
#ifndef VN_VNSTDC_TIEMPO_H
#define VN_VNSTDC_TIEMPO_H

#include "../suelo/tipos.h"
#include <time.h>

VN_C_INICIO

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
