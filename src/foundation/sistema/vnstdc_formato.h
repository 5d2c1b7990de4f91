/* Portable layer: formatted text, written and read. */
#ifndef VN_VNSTDC_FORMATO_H
#define VN_VNSTDC_FORMATO_H

#include "../suelo/tipos.h"

/** Stream of the Foundation (lc_fichero.h). */
typedef struct vnfichero vnfichero;

VN_C_INICIO

/** Formatted text, with its length as result. `%s` takes text of the format's width. vnstdc_sprintf: room is the
    caller's duty. The others write at most `n` units: a text of exactly `n` is not terminated, a longer one is cut
    there and the result is -1. vnstdc_wprintf writes UTF-8 to the standard output. */
int vnstdc_sprintf(VN_SALIDA char *destino, VN_FORMATO const char *formato, ...);
int vnstdc__snprintf(VN_SALIDA VN_LON(n) char *destino, size_t n, VN_FORMATO const char *formato, ...);
int vnstdc__snwprintf(VN_SALIDA VN_LON(n) vnwchar *destino, size_t n, VN_FORMATO const vnwchar *formato, ...);
int vnstdc_wprintf(VN_FORMATO const vnwchar *formato, ...);

/** Clears the error and end marks of a stream. */
void vnstdc_clearerr(vnfichero *f);
/** Reads one item from a stream as `formato` says (one conversion: d i u x o c s f g e with l, h, I64 and a width),
    and returns how many items were read: 1, 0, or -1 at the end of the stream before anything was read. `a` leads to
    room of the conversion's type; a `%s` without a width is reported and reads nothing. `%*` reads and stores nothing
    (`%*s` a word). What was not used stays in the stream. */
int vnstdc_fscanf1(vnfichero *f, VN_FORMATO const char *formato, VN_SALIDA void *a);
/** Reads two items from a wide text. As vnstdc_fscanf1; `%s` and `%c` fill wide room. */
int vnstdc_swscanf2(const vnwchar *s, VN_FORMATO const vnwchar *formato, VN_SALIDA void *a, VN_SALIDA void *b);

VN_C_FIN

#endif
