/* Arrays of plain values: made, copied, destroyed. */
#ifndef VN_ARR_CREA_H
#define VN_ARR_CREA_H

#include "arr_tipos.h"

VN_C_INICIO

/** New array of `n` elements, all zero, each settable at once; `n` = 0 gives an empty one that grows by Append. A count
    out of range, or one that there is no memory for, is reported and gives null: the range bounds what a wrong count
    takes at once; what is added later may pass it, to 4294967295 elements. */
arrBOOL *arr_CreaBOOL(VN_RANGO(0, 268435456) uint32_t n);
arrBYTE *arr_CreaBYTE(VN_RANGO(0, 268435456) uint32_t n);
arrUChar *arr_CreaUChar(VN_RANGO(0, 268435456) uint32_t n);
arrChar *arr_CreaChar(VN_RANGO(0, 268435456) uint32_t n);
arrShort *arr_CreaShort(VN_RANGO(0, 268435456) uint32_t n);
arrUShort *arr_CreaUShort(VN_RANGO(0, 268435456) uint32_t n);
arrLong *arr_CreaLong(VN_RANGO(0, 268435456) uint32_t n);
arrULong *arr_CreaULong(VN_RANGO(0, 268435456) uint32_t n);
arrLong64 *arr_CreaLong64(VN_RANGO(0, 268435456) uint32_t n);
arrULong64 *arr_CreaULong64(VN_RANGO(0, 268435456) uint32_t n);
arrDouble *arr_CreaDouble(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the array and leaves `*a` null. */
void arr_DestruyeBOOL(arrBOOL **a);
void arr_DestruyeBYTE(arrBYTE **a);
void arr_DestruyeUChar(arrUChar **a);
void arr_DestruyeChar(arrChar **a);
void arr_DestruyeShort(arrShort **a);
void arr_DestruyeUShort(arrUShort **a);
void arr_DestruyeLong(arrLong **a);
void arr_DestruyeULong(arrULong **a);
void arr_DestruyeLong64(arrLong64 **a);
void arr_DestruyeULong64(arrULong64 **a);
void arr_DestruyeDouble(arrDouble **a);

/** New array with the same elements. */
arrBOOL *arr_CopiaBOOL(const arrBOOL *a);
arrBYTE *arr_CopiaBYTE(const arrBYTE *a);
arrUChar *arr_CopiaUChar(const arrUChar *a);
arrChar *arr_CopiaChar(const arrChar *a);
arrShort *arr_CopiaShort(const arrShort *a);
arrUShort *arr_CopiaUShort(const arrUShort *a);
arrLong *arr_CopiaLong(const arrLong *a);
arrULong *arr_CopiaULong(const arrULong *a);
arrLong64 *arr_CopiaLong64(const arrLong64 *a);
arrULong64 *arr_CopiaULong64(const arrULong64 *a);
arrDouble *arr_CopiaDouble(const arrDouble *a);

VN_C_FIN

#endif
