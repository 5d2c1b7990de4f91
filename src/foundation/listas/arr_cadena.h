/* Arrays of texts of both widths, which they own; an element may be null. */
#ifndef VN_ARR_CADENA_H
#define VN_ARR_CADENA_H

#include "arr_tipos.h"

VN_C_INICIO

/** New array of `n` null elements, each settable at once. As arr_CreaULong on a count that cannot be. */
arrCADENA *arr_CreaCADENA(VN_RANGO(0, 268435456) uint32_t n);
arrCADENA_u *arr_CreaCADENA_u(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the texts and the array, and leaves `*a` null. */
void arr_DestruyeCADENA(arrCADENA **a);
void arr_DestruyeCADENA_u(arrCADENA_u **a);

/** New array with copies of the texts; null elements stay null. */
arrCADENA *arr_CopiaCADENA(const arrCADENA *a);
arrCADENA_u *arr_CopiaCADENA_u(const arrCADENA_u *a);

/** Number of elements. */
uint32_t arr_NumElemsCADENA(const arrCADENA *a);
uint32_t arr_NumElemsCADENA_u(const arrCADENA_u *a);

/** Element `i`, borrowed until it is replaced; null where none was set. */
const char *arr_GetCADENA(const arrCADENA *a, VN_INDICE(a) uint32_t i);
const vnwchar *arr_GetCADENA_u(const arrCADENA_u *a, VN_INDICE(a) uint32_t i);

/** New copy of element `i`, the caller's; null where none was set. */
char *arr_GetCopiaCADENA(const arrCADENA *a, VN_INDICE(a) uint32_t i);
vnwchar *arr_GetCopiaCADENA_u(const arrCADENA_u *a, VN_INDICE(a) uint32_t i);

/** Replaces element `i` by a copy of `s`. */
void arr_SetCADENA(arrCADENA *a, VN_INDICE(a) uint32_t i, VN_OPC const char *s);
void arr_SetCADENA_u(arrCADENA_u *a, VN_INDICE(a) uint32_t i, VN_OPC const vnwchar *s);

/** Replaces element `i` by the very text `*s`, which the array takes over; `*s` is left null. After a report it
    is freed. */
void arr_SetCADENAOriginal(arrCADENA *a, VN_INDICE(a) uint32_t i, VN_OPC VN_CONSUME char **s);
void arr_SetCADENAOriginal_u(arrCADENA_u *a, VN_INDICE(a) uint32_t i, VN_OPC VN_CONSUME vnwchar **s);

/** Adds a copy of `s` at the end. */
void arr_AppendCADENA(arrCADENA *a, VN_OPC const char *s);
void arr_AppendCADENA_u(arrCADENA_u *a, VN_OPC const vnwchar *s);

/** Adds at the end the very text `*s`, which the array takes over; `*s` is left null. After a report it is freed. */
void arr_AppendCADENAOriginal(arrCADENA *a, VN_OPC VN_CONSUME char **s);
void arr_AppendCADENAOriginal_u(arrCADENA_u *a, VN_OPC VN_CONSUME vnwchar **s);

/** Inserts a copy of `s` before element `i`; `i` may be the number of elements. */
void arr_InsertarCADENA(arrCADENA *a, uint32_t i, VN_OPC const char *s);
void arr_InsertarCADENA_u(arrCADENA_u *a, uint32_t i, VN_OPC const vnwchar *s);

/** Removes element `i` and frees its text. */
void arr_BorrarCADENA(arrCADENA *a, VN_INDICE(a) uint32_t i);
void arr_BorrarCADENA_u(arrCADENA_u *a, VN_INDICE(a) uint32_t i);

/** Leaves the first `n` elements and frees the others; `n` is at most the number of elements. */
void arr_ReduceTamanyoCADENA(arrCADENA *a, uint32_t n);
void arr_ReduceTamanyoCADENA_u(arrCADENA_u *a, uint32_t n);

/** Appends copies of the texts of `b` to `a`; both may be the same array. */
void arr_ConcatenaCADENA(arrCADENA *a, const arrCADENA *b);
void arr_ConcatenaCADENA_u(arrCADENA_u *a, const arrCADENA_u *b);

/** Whether both have the same texts in the same order; null is the same as null only. */
vnbool arr_SonIgualesCADENA(const arrCADENA *a, const arrCADENA *b);
vnbool arr_SonIgualesCADENA_u(const arrCADENA_u *a, const arrCADENA_u *b);

/** Index of the first element that is `s`, or VN_ARR_NO_ESTA. */
uint32_t arr_BuscarCADENA(const arrCADENA *a, const char *s);
uint32_t arr_BuscarCADENA_u(const arrCADENA_u *a, const vnwchar *s);

/** Whether an element is `s`; the index of the first goes to `pos`. */
vnbool arr_ExisteCADENA(const arrCADENA *a, const char *s, VN_SALIDA_OPC uint32_t *pos);
vnbool arr_ExisteCADENA_u(const arrCADENA_u *a, const vnwchar *s, VN_SALIDA_OPC uint32_t *pos);

/** As arr_ExisteCADENA, in any case. */
vnbool arr_ExisteMayMinCADENA(const arrCADENA *a, const char *s, VN_SALIDA_OPC uint32_t *pos);
vnbool arr_ExisteMayMinCADENA_u(const arrCADENA_u *a, const vnwchar *s, VN_SALIDA_OPC uint32_t *pos);

/** The texts as one block of pointers, borrowed until the array grows or dies; null when there are none. */
const char *const *arr_GetBufferConstCADENA(const arrCADENA *a);
const vnwchar *const *arr_GetBufferConstCADENA_u(const arrCADENA_u *a);

/** Calls `funcion(element, datos)` with each element in order; it may change the array. */
void nousar_RecorreCADENA(const arrCADENA *a, vnfunc_recorre_cadena funcion, VN_DATO void *datos,
                          VN_OPC const char *modulo, uint32_t linea);
void nousar_RecorreCADENA_u(const arrCADENA_u *a, vnfunc_recorre_cadena_u funcion, VN_DATO void *datos,
                            VN_OPC const char *modulo, uint32_t linea);

VN_C_FIN

/* The wrappers of the walks. */
#define RecorreCADENA(a, funcion, datos) nousar_RecorreCADENA(a, funcion, datos, VN_AQUI)
#define RecorreCADENA_u(a, funcion, datos) nousar_RecorreCADENA_u(a, funcion, datos, VN_AQUI)

#endif
