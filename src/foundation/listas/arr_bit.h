/* Arrays of bits, packed eight to a byte, the lowest first. */
#ifndef VN_ARR_BIT_H
#define VN_ARR_BIT_H

#include "arr_tipos.h"

VN_C_INICIO

/** New array of `n` bits, all FALSO. As arr_CreaULong on a count that cannot be. */
arrBIT *arr_CreaBIT(VN_RANGO(0, 268435456) uint32_t n);
/** Frees the array and leaves `*a` null. */
void arr_DestruyeBIT(arrBIT **a);
/** New array with the same bits. */
arrBIT *arr_CopiaBIT(const arrBIT *a);
/** Number of bits. */
uint32_t arr_NumElemsBIT(const arrBIT *a);
/** Bit `i`; FALSO after a report. */
vnbool arr_GetBIT(const arrBIT *a, VN_INDICE(a) uint32_t i);
/** Replaces bit `i`. */
void arr_SetBIT(arrBIT *a, VN_INDICE(a) uint32_t i, vnbool v);
/** Adds a bit at the end. */
void arr_AppendBIT(arrBIT *a, vnbool v);
/** Grows the array to `n` bits, which is not less than it has; the new ones are FALSO. */
void arr_AumentaTamanyoBIT(arrBIT *a, uint32_t n);
/** The bytes that hold the bits, borrowed: bit `i` is bit `i` mod 8, the lowest first, of byte `i` / 8; the bits after
    the last are 0. Null when there are none. */
const uint8_t *arr_GetBufferConstBIT(const arrBIT *a);

VN_C_FIN

#endif
