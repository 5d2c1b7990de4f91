/* Arrays of pointers, which may own what they lead to: called through the wrappers at the end, which know its type. */
#ifndef VN_ARR_PUNTERO_H
#define VN_ARR_PUNTERO_H

#include "arr_tipos.h"

VN_C_INICIO

/** New array of `n` null pointers. As arr_CreaULong on a count that cannot be. */
arrPuntero *arr_CreaPunteroConTipo(VN_RANGO(0, 268435456) uint32_t n);
/** Frees the array, not what its elements lead to, and leaves `*a` null. */
void arr_DestruyePunteroConTipo(arrPuntero **a);
/** Calls `destructor` with the address of each element that is not null, then frees the array and leaves `*a` null. */
void arr_DestruyeEstructurasConTipo(arrPuntero **a, vnfunc_destruye destructor);
/** As arr_DestruyeEstructurasConTipo, where the elements are constant. */
void arr_DestruyeEstructurasConstConTipo(arrPuntero **a, vnfunc_destruye destructor);
/** As arr_DestruyeEstructurasConTipo, where the elements are arrays and `destructor` is the arrays' own. */
void arr_DestruyeEstructurasArrayConTipo(arrPuntero **a, vnfunc_destruye destructor);
/** New array with `copiador(element)` for each element; null elements stay null. */
arrPuntero *arr_CopiaEstructurasConTipo(const arrPuntero *a, vnfunc_copia copiador);
/** Appends the elements of `b` to `a`: copies of them if there is a copier, the same pointers if not. */
void arr_ConcatenaEstructurasConTipo(arrPuntero *a, const arrPuntero *b, VN_OPC vnfunc_copia copiador,
                                     VN_OPC const char *modulo, uint32_t linea);
/** Number of elements. */
uint32_t arr_NumElemsPuntero(const arrPuntero *a);
/** Element `i`, borrowed; null after a report. */
void *arr_GetPunteroConTipo(const arrPuntero *a, VN_INDICE(a) uint32_t i);
/** Replaces element `i`; what it led to stays as it is. */
void arr_SetPunteroConTipo(arrPuntero *a, VN_INDICE(a) uint32_t i, VN_DATO void *p);
/** Adds an element at the end. */
void arr_AppendPunteroConTipo(arrPuntero *a, VN_DATO void *p);
/** Inserts an element before element `i`; `i` may be the number of elements. */
void arr_InsertarPunteroConTipo(arrPuntero *a, uint32_t i, VN_DATO void *p);
/** Removes element `i`; what it led to stays as it is. */
void arr_BorrarPuntero(arrPuntero *a, VN_INDICE(a) uint32_t i);
/** Calls `destructor` with the address of element `i`, unless it is null, and removes it. */
void arr_BorrarEstructuraConTipo(arrPuntero *a, VN_INDICE(a) uint32_t i, vnfunc_destruye destructor);
/** Index of the first element that is the pointer `p`, or VN_ARR_NO_ESTA. */
uint32_t arr_BuscarPunteroConTipo(const arrPuntero *a, VN_DATO const void *p);
/** Whether an element matches: `comparador(dato, element)` is 0. The index of the first goes to `pos`. */
vnbool arr_ExisteEstructuraConTipo(const arrPuntero *a, VN_DATO const void *dato, vnfunc_compara comparador,
                                   VN_SALIDA_OPC uint32_t *pos);
/** As arr_ExisteEstructuraConTipo; a second match is reported. */
vnbool arr_ExisteUnicaEstructuraConTipo(const arrPuntero *a, VN_DATO const void *dato, vnfunc_compara comparador,
                                        VN_SALIDA_OPC uint32_t *pos);
/** Index of the only element that matches, or VN_ARR_NO_ESTA; a second match is reported. */
uint32_t arr_BuscarUnicaEstructuraConTipo(const arrPuntero *a, VN_DATO const void *dato, vnfunc_compara comparador);
/** Binary search in an array sorted by `comparador`: whether an element matches `comparador(dato, element)`. The index
    of the first that does goes to `pos`, or the place where it would stand. */
vnbool arr_BuscarEstructuraDicotomicamenteConTipo(const arrPuntero *a, VN_DATO const void *dato,
                                                  vnfunc_compara comparador, VN_SALIDA_OPC uint32_t *pos);
/** Inserts `p` into an array sorted by `comparador(p, element)`, after its equals; returns its index. */
uint32_t arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(arrPuntero *a, VN_DATO void *p, vnfunc_compara comparador);
/** Sorts the elements by `comparador(element, element)`; equals keep their order. The comparer may sort
    arrays itself. */
void arr_QSortPunteroConTipo(arrPuntero *a, vnfunc_compara comparador);
/** Calls `funcion(element, datos)` with each element in order; it may change the array. */
void arr_RecorreEstructuraSimpleConTipo(const arrPuntero *a, vnfunc_recorre funcion, VN_DATO void *datos);
/** Whether both have as many elements and `comparador(element, element)` is 0 for each pair; without a comparer the
    pointers themselves must be the same. */
vnbool arr_SonIgualesPunteroConTipo(const arrPuntero *a, const arrPuntero *b, VN_OPC vnfunc_compara comparador);
/** The pointers as one block, borrowed until the array grows or dies; null when there are none. */
void **arr_GetBufferPuntero(arrPuntero *a);
void *const *arr_GetBufferConstPuntero(const arrPuntero *a);

VN_C_FIN

/* The wrappers of the pointer family: `tipo` is the type that the elements lead to, and a pointer or a call-back of
   another type does not compile. arr_AppendPunteroST(vigas, v, viga): `v` must be a `viga *`. */
#define arr_CreaPunteroST(n, tipo) ((void)sizeof(tipo *), arr_CreaPunteroConTipo(n))
#define arr_DestruyePunteroST(a, tipo) ((void)sizeof(tipo *), arr_DestruyePunteroConTipo(a))
#define arr_DestruyeEstructurasST(a, tipo, destructor)                                                                 \
    arr_DestruyeEstructurasConTipo(a, VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define arr_DestruyeEstructurasConstST(a, tipo, destructor)                                                            \
    arr_DestruyeEstructurasConstConTipo(a, VN_COMPRUEBA_TIPO(void (*)(const tipo **), destructor, vnfunc_destruye))
#define arr_DestruyeEstructurasArrayST(a, tipo, destructor)                                                            \
    arr_DestruyeEstructurasArrayConTipo(a, VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define arr_CopiaEstructurasST(a, tipo, copiador)                                                                      \
    arr_CopiaEstructurasConTipo(a, VN_COMPRUEBA_TIPO(tipo *(*)(const tipo *), copiador, vnfunc_copia))
#define arr_ConcatenaEstructurasST(a, b, tipo, copiador)                                                               \
    arr_ConcatenaEstructurasConTipo(a, b, VN_COMPRUEBA_TIPO(tipo *(*)(const tipo *), copiador, vnfunc_copia), VN_AQUI)
#define arr_NumElemsPunteroST(a, tipo) ((void)sizeof(tipo *), arr_NumElemsPuntero(a))
#define arr_GetPunteroST(a, i, tipo) ((tipo *)arr_GetPunteroConTipo(a, i))
#define arr_SetPunteroST(a, i, p, tipo) arr_SetPunteroConTipo(a, i, VN_COMPRUEBA_TIPO(tipo *, p, void *))
#define arr_AppendPunteroST(a, p, tipo) arr_AppendPunteroConTipo(a, VN_COMPRUEBA_TIPO(tipo *, p, void *))
#define arr_InsertarPunteroST(a, i, p, tipo) arr_InsertarPunteroConTipo(a, i, VN_COMPRUEBA_TIPO(tipo *, p, void *))
#define arr_BorrarEstructuraST(a, i, tipo, destructor)                                                                 \
    arr_BorrarEstructuraConTipo(a, i, VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define arr_BuscarPunteroST(a, p, tipo) arr_BuscarPunteroConTipo(a, VN_COMPRUEBA_TIPO(const tipo *, p, const void *))
#define arr_ExisteEstructuraST(a, dato, tipo_dato, tipo, comparador, pos)                                              \
    arr_ExisteEstructuraConTipo(a, VN_ARR_DATO(tipo_dato, dato), VN_ARR_COMPARA(tipo_dato, tipo, comparador), pos)
#define arr_ExisteUnicaEstructuraST(a, dato, tipo_dato, tipo, comparador, pos)                                         \
    arr_ExisteUnicaEstructuraConTipo(a, VN_ARR_DATO(tipo_dato, dato), VN_ARR_COMPARA(tipo_dato, tipo, comparador), pos)
#define arr_BuscarUnicaEstructuraST(a, dato, tipo_dato, tipo, comparador)                                              \
    arr_BuscarUnicaEstructuraConTipo(a, VN_ARR_DATO(tipo_dato, dato), VN_ARR_COMPARA(tipo_dato, tipo, comparador))
#define arr_BuscarEstructuraDicotomicamenteST(a, dato, tipo_dato, tipo, comparador, pos)                               \
    arr_BuscarEstructuraDicotomicamenteConTipo(a, VN_ARR_DATO(tipo_dato, dato),                                        \
                                               VN_ARR_COMPARA(tipo_dato, tipo, comparador), pos)
#define arr_InsertarPunteroOrdenadoDicotomicamenteST(a, p, tipo, comparador)                                           \
    arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(a, VN_COMPRUEBA_TIPO(tipo *, p, void *),                         \
                                                      VN_ARR_COMPARA(tipo, tipo, comparador))
#define arr_QSortPunteroST(a, tipo, comparador) arr_QSortPunteroConTipo(a, VN_ARR_COMPARA(tipo, tipo, comparador))
#define arr_RecorreEstructuraSimpleST(a, tipo, tipo_datos, funcion, datos)                                             \
    arr_RecorreEstructuraSimpleConTipo(a, VN_COMPRUEBA_TIPO(void (*)(tipo *, tipo_datos *), funcion, vnfunc_recorre),  \
                                       VN_COMPRUEBA_TIPO(tipo_datos *, datos, void *))
#define arr_SonIgualesPunteroST(a, b, tipo, comparador)                                                                \
    arr_SonIgualesPunteroConTipo(a, b, VN_ARR_COMPARA(tipo, tipo, comparador))
#define VN_ARR_DATO(tipo_dato, dato) VN_COMPRUEBA_TIPO(const tipo_dato *, dato, const void *)
#define VN_ARR_COMPARA(tipo_dato, tipo, comparador)                                                                    \
    VN_COMPRUEBA_TIPO(int (*)(const tipo_dato *, const tipo *), comparador, vnfunc_compara)

#endif
