/* Arrays of plain values as a whole: the elements as one block, and whether two arrays are the same. */
#ifndef VN_ARR_BLOQUE_H
#define VN_ARR_BLOQUE_H

#include "arr_tipos.h"

VN_C_INICIO

/** Whether both have the same elements in the same order; doubles are the same when their bits are. */
vnbool arr_SonIgualesBOOL(const arrBOOL *a, const arrBOOL *b);
vnbool arr_SonIgualesBYTE(const arrBYTE *a, const arrBYTE *b);
vnbool arr_SonIgualesUChar(const arrUChar *a, const arrUChar *b);
vnbool arr_SonIgualesChar(const arrChar *a, const arrChar *b);
vnbool arr_SonIgualesShort(const arrShort *a, const arrShort *b);
vnbool arr_SonIgualesUShort(const arrUShort *a, const arrUShort *b);
vnbool arr_SonIgualesLong(const arrLong *a, const arrLong *b);
vnbool arr_SonIgualesULong(const arrULong *a, const arrULong *b);
vnbool arr_SonIgualesLong64(const arrLong64 *a, const arrLong64 *b);
vnbool arr_SonIgualesULong64(const arrULong64 *a, const arrULong64 *b);
vnbool arr_SonIgualesDouble(const arrDouble *a, const arrDouble *b);

/** The elements as one block, borrowed until the array grows or dies; null when there are none. */
vnbool *arr_GetBufferBOOL(arrBOOL *a);
uint8_t *arr_GetBufferBYTE(arrBYTE *a);
uint8_t *arr_GetBufferUChar(arrUChar *a);
char *arr_GetBufferChar(arrChar *a);
int16_t *arr_GetBufferShort(arrShort *a);
uint16_t *arr_GetBufferUShort(arrUShort *a);
int32_t *arr_GetBufferLong(arrLong *a);
uint32_t *arr_GetBufferULong(arrULong *a);
int64_t *arr_GetBufferLong64(arrLong64 *a);
uint64_t *arr_GetBufferULong64(arrULong64 *a);
double *arr_GetBufferDouble(arrDouble *a);

/** As arr_GetBuffer of the same element, to read only. */
const vnbool *arr_GetBufferConstBOOL(const arrBOOL *a);
const uint8_t *arr_GetBufferConstBYTE(const arrBYTE *a);
const uint8_t *arr_GetBufferConstUChar(const arrUChar *a);
const char *arr_GetBufferConstChar(const arrChar *a);
const int16_t *arr_GetBufferConstShort(const arrShort *a);
const uint16_t *arr_GetBufferConstUShort(const arrUShort *a);
const int32_t *arr_GetBufferConstLong(const arrLong *a);
const uint32_t *arr_GetBufferConstULong(const arrULong *a);
const int64_t *arr_GetBufferConstLong64(const arrLong64 *a);
const uint64_t *arr_GetBufferConstULong64(const arrULong64 *a);
const double *arr_GetBufferConstDouble(const arrDouble *a);

VN_C_FIN

#endif
