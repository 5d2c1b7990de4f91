/* Arrays of plain values: growing, being filled, being joined. */
#ifndef VN_ARR_ANADE_H
#define VN_ARR_ANADE_H

#include "arr_tipos.h"

VN_C_INICIO

/** Adds an element at the end, in amortised constant time. A full array (2^32 - 1 elements) is reported. */
void arr_AppendBOOL(arrBOOL *a, vnbool v);
void arr_AppendBYTE(arrBYTE *a, uint8_t v);
void arr_AppendUChar(arrUChar *a, uint8_t v);
void arr_AppendChar(arrChar *a, char v);
void arr_AppendShort(arrShort *a, int16_t v);
void arr_AppendUShort(arrUShort *a, uint16_t v);
void arr_AppendLong(arrLong *a, int32_t v);
void arr_AppendULong(arrULong *a, uint32_t v);
void arr_AppendLong64(arrLong64 *a, int64_t v);
void arr_AppendULong64(arrULong64 *a, uint64_t v);
void arr_AppendDouble(arrDouble *a, double v);

/** Gives every element the value `v`. */
void arr_InicializaBOOL(arrBOOL *a, vnbool v);
void arr_InicializaBYTE(arrBYTE *a, uint8_t v);
void arr_InicializaUChar(arrUChar *a, uint8_t v);
void arr_InicializaChar(arrChar *a, char v);
void arr_InicializaShort(arrShort *a, int16_t v);
void arr_InicializaUShort(arrUShort *a, uint16_t v);
void arr_InicializaLong(arrLong *a, int32_t v);
void arr_InicializaULong(arrULong *a, uint32_t v);
void arr_InicializaLong64(arrLong64 *a, int64_t v);
void arr_InicializaULong64(arrULong64 *a, uint64_t v);
void arr_InicializaDouble(arrDouble *a, double v);

/** Appends the elements of `b` to `a`; both may be the same array. */
void arr_ConcatenaBOOL(arrBOOL *a, const arrBOOL *b);
void arr_ConcatenaBYTE(arrBYTE *a, const arrBYTE *b);
void arr_ConcatenaUChar(arrUChar *a, const arrUChar *b);
void arr_ConcatenaChar(arrChar *a, const arrChar *b);
void arr_ConcatenaShort(arrShort *a, const arrShort *b);
void arr_ConcatenaUShort(arrUShort *a, const arrUShort *b);
void arr_ConcatenaLong(arrLong *a, const arrLong *b);
void arr_ConcatenaULong(arrULong *a, const arrULong *b);
void arr_ConcatenaLong64(arrLong64 *a, const arrLong64 *b);
void arr_ConcatenaULong64(arrULong64 *a, const arrULong64 *b);
void arr_ConcatenaDouble(arrDouble *a, const arrDouble *b);

VN_C_FIN

#endif
