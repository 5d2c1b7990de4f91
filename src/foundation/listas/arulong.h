/* The leaner arrays of 32-bit and 64-bit unsigned values. */
#ifndef VN_ARULONG_H
#define VN_ARULONG_H

#include "arr_tipos.h"

VN_C_INICIO

/** New empty array. */
arulong *arulong_crea(void);
arulong64 *arulong64_crea(void);

/** Frees the array and leaves `*a` null. */
void arulong_destruye(arulong **a);
void arulong64_destruye(arulong64 **a);

/** Adds a value at the end, in amortised constant time. */
void arulong_append(arulong *a, uint32_t v);
void arulong64_append(arulong64 *a, uint64_t v);

/** Value `i`; 0 after a report. */
uint32_t arulong_get(const arulong *a, VN_INDICE(a) uint32_t i);
uint64_t arulong64_get(const arulong64 *a, VN_INDICE(a) uint32_t i);

/** Number of values. */
uint32_t arulong_numelems(const arulong *a);
uint32_t arulong64_numelems(const arulong64 *a);

/** The values as one block, borrowed until the array grows or dies; null when there are none. */
const uint32_t *arulong_get_buffer_const(const arulong *a);
const uint64_t *arulong64_get_buffer_const(const arulong64 *a);

VN_C_FIN

#endif
