/* Sorted sets of texts, ANSI (acadorde) and wide (acadordeu), that tell case apart or not. The order is that of the
   character units, after folding to upper case where case is not told apart. Threads: several may ask a set at once;
   one that changes it is alone with it. */
#ifndef VN_ACADORDE_H
#define VN_ACADORDE_H

#include "../suelo/tipos.h"

typedef struct acadorde acadorde;
typedef struct acadordeu acadordeu;

VN_C_INICIO

/** New empty set. */
acadorde *acadorde_crea(vnbool distingue_may_y_min);
acadordeu *acadordeu_crea(vnbool distingue_may_y_min);

/** Frees the set with its texts and leaves `*a` null. */
void acadorde_destruye(acadorde **a);
void acadordeu_destruye(acadordeu **a);

/** Inserts a copy of `s`. A text that is there already stays as it was, and the result is FALSO. */
vnbool acadorde_inserta(acadorde *a, const char *s);
vnbool acadordeu_inserta(acadordeu *a, const vnwchar *s);

/** Whether `s` is in the set; its index goes to `pos`, or the place where it would stand. */
vnbool acadorde_existe(const acadorde *a, const char *s, VN_SALIDA_OPC uint32_t *pos);
vnbool acadordeu_existe(const acadordeu *a, const vnwchar *s, VN_SALIDA_OPC uint32_t *pos);

/** Text number `i` of the order, borrowed until the next change; null after a report. */
const char *acadorde_get(const acadorde *a, VN_INDICE(a) uint32_t i);
const vnwchar *acadordeu_get(const acadordeu *a, VN_INDICE(a) uint32_t i);

/** New copy of text number `i` of the order, the caller's; null after a report. */
vnwchar *acadordeu_get_copia(const acadordeu *a, VN_INDICE(a) uint32_t i);

/** Number of texts. */
uint32_t acadorde_numelems(const acadorde *a);
uint32_t acadordeu_numelems(const acadordeu *a);

/** Whether the set tells case apart. */
vnbool acadorde_distingue_may_y_min(const acadorde *a);
vnbool acadordeu_distingue_may_y_min(const acadordeu *a);

VN_C_FIN

#endif
