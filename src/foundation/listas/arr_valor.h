/* Arrays of plain values: how many there are, each of them, whether one is there, a walk over them. */
#ifndef VN_ARR_VALOR_H
#define VN_ARR_VALOR_H

#include "arr_tipos.h"

VN_C_INICIO

/** Number of elements. */
uint32_t arr_NumElemsBOOL(const arrBOOL *a);
uint32_t arr_NumElemsBYTE(const arrBYTE *a);
uint32_t arr_NumElemsUChar(const arrUChar *a);
uint32_t arr_NumElemsChar(const arrChar *a);
uint32_t arr_NumElemsShort(const arrShort *a);
uint32_t arr_NumElemsUShort(const arrUShort *a);
uint32_t arr_NumElemsLong(const arrLong *a);
uint32_t arr_NumElemsULong(const arrULong *a);
uint32_t arr_NumElemsLong64(const arrLong64 *a);
uint32_t arr_NumElemsULong64(const arrULong64 *a);
uint32_t arr_NumElemsDouble(const arrDouble *a);

/** Element `i`; 0 after a report. */
vnbool arr_GetBOOL(const arrBOOL *a, VN_INDICE(a) uint32_t i);
uint8_t arr_GetBYTE(const arrBYTE *a, VN_INDICE(a) uint32_t i);
uint8_t arr_GetUChar(const arrUChar *a, VN_INDICE(a) uint32_t i);
char arr_GetChar(const arrChar *a, VN_INDICE(a) uint32_t i);
int16_t arr_GetShort(const arrShort *a, VN_INDICE(a) uint32_t i);
uint16_t arr_GetUShort(const arrUShort *a, VN_INDICE(a) uint32_t i);
int32_t arr_GetLong(const arrLong *a, VN_INDICE(a) uint32_t i);
uint32_t arr_GetULong(const arrULong *a, VN_INDICE(a) uint32_t i);
int64_t arr_GetLong64(const arrLong64 *a, VN_INDICE(a) uint32_t i);
uint64_t arr_GetULong64(const arrULong64 *a, VN_INDICE(a) uint32_t i);
double arr_GetDouble(const arrDouble *a, VN_INDICE(a) uint32_t i);

/** Replaces element `i`. */
void arr_SetBOOL(arrBOOL *a, VN_INDICE(a) uint32_t i, vnbool v);
void arr_SetBYTE(arrBYTE *a, VN_INDICE(a) uint32_t i, uint8_t v);
void arr_SetUChar(arrUChar *a, VN_INDICE(a) uint32_t i, uint8_t v);
void arr_SetChar(arrChar *a, VN_INDICE(a) uint32_t i, char v);
void arr_SetShort(arrShort *a, VN_INDICE(a) uint32_t i, int16_t v);
void arr_SetUShort(arrUShort *a, VN_INDICE(a) uint32_t i, uint16_t v);
void arr_SetLong(arrLong *a, VN_INDICE(a) uint32_t i, int32_t v);
void arr_SetULong(arrULong *a, VN_INDICE(a) uint32_t i, uint32_t v);
void arr_SetLong64(arrLong64 *a, VN_INDICE(a) uint32_t i, int64_t v);
void arr_SetULong64(arrULong64 *a, VN_INDICE(a) uint32_t i, uint64_t v);
void arr_SetDouble(arrDouble *a, VN_INDICE(a) uint32_t i, double v);

/** Whether an element is `v`; the index of the first goes to `pos`. */
vnbool arr_ExisteBOOL(const arrBOOL *a, vnbool v, VN_SALIDA_OPC uint32_t *pos);

/** Whether an element is `v`, looking from index `desde` on; the index of the first goes to `pos`. */
vnbool arr_ExisteULong(const arrULong *a, uint32_t v, uint32_t desde, VN_SALIDA_OPC uint32_t *pos);

/** Calls `funcion(element, datos)` with each element in order; it may change the array. */
void arr_nousar_RecorreChar(const arrChar *a, vnfunc_recorre_char funcion, VN_DATO void *datos,
                            VN_OPC const char *modulo, uint32_t linea);

VN_C_FIN

/* The wrapper of the walk: arr_RecorreChar(a, funcion, datos). */
#define arr_RecorreChar(a, funcion, datos) arr_nousar_RecorreChar(a, funcion, datos, VN_AQUI)

#endif
