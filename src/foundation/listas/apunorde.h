/* Sorted set of pointers, kept by a comparer of the caller's. Threads: several may ask a set at once; one that changes
   it is alone with it. Call it through the wrappers at the end. */
#ifndef VN_APUNORDE_H
#define VN_APUNORDE_H

#include "arr.h"

typedef struct apunorde apunorde;

/** Sign of the order of two elements; `dato` is what the set was created with. 0: the same element. */
typedef int (*vnfunc_compara_con_dato)(const void *a, const void *b, void *dato);

VN_C_INICIO

/** New empty set; `dato` is handed to the comparer. With a destructor the set owns its elements. */
apunorde *apunorde_nousar_crea(vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                               VN_OPC vnfunc_destruye destructor);
/** Frees the set, calling its destructor with the address of each element, and leaves `*a` null. */
void apunorde_nousar_destruye(apunorde **a);
/** The set takes the pointer `p`; its index goes to `pos`. If an equal element is there already that is reported, `p`
    is destroyed, and `pos` is the index of the one that stays. */
void apunorde_nousar_inserta_original(apunorde *a, VN_CONSUME void *p, VN_SALIDA_OPC uint32_t *pos);
/** Number of elements. */
uint32_t apunorde_nousar_numelems(const apunorde *a);
/** Element number `i` of the order, borrowed; null after a report. */
void *apunorde_nousar_get(const apunorde *a, VN_INDICE(a) uint32_t i);
/** Takes element number `i` out of the set and hands it to the caller, who owns it from then on; null after
    a report. */
void *apunorde_nousar_quita(apunorde *a, VN_INDICE(a) uint32_t i);
/** The first element that `comparador(clave, element)` matches, borrowed, or null. The comparer's order must be that
    of the set. */
void *apunorde_nousar_busca(const apunorde *a, VN_DATO const void *clave, vnfunc_compara comparador);
/** As apunorde_nousar_busca; that there is none is reported. */
void *apunorde_nousar_dame(const apunorde *a, VN_DATO const void *clave, vnfunc_compara comparador);
/** Whether an element matches `comparador(clave, element)`; the index of the first goes to `pos`, or the place where
    it would stand. */
vnbool apunorde_nousar_existe(const apunorde *a, VN_DATO const void *clave, vnfunc_compara comparador,
                              VN_SALIDA_OPC uint32_t *pos);
/** Whether an element equal to `p` is in the set; its index goes to `pos`, or the place where it would stand. */
vnbool apunorde_nousar_existe_elemento(const apunorde *a, const void *p, VN_SALIDA_OPC uint32_t *pos);

VN_C_FIN

/* `tipo` is the type that the elements lead to, `tipo_dato` that of the comparer's datum, `tipo_clave` that of
   a key. */
#define apunorde_crea(tipo, tipo_dato, comparador, dato, destructor)                                                   \
    apunorde_nousar_crea(                                                                                              \
        VN_COMPRUEBA_TIPO(int (*)(const tipo *, const tipo *, tipo_dato *), comparador, vnfunc_compara_con_dato),      \
        VN_COMPRUEBA_TIPO(tipo_dato *, dato, void *),                                                                  \
        VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define apunorde_destruye(a, tipo) ((void)sizeof(tipo *), apunorde_nousar_destruye(a))
#define apunorde_inserta_original(a, p, tipo, pos)                                                                     \
    apunorde_nousar_inserta_original(a, VN_COMPRUEBA_TIPO(tipo *, p, void *), pos)
#define apunorde_numelems(a, tipo) ((void)sizeof(tipo *), apunorde_nousar_numelems(a))
#define apunorde_get(a, i, tipo) ((tipo *)apunorde_nousar_get(a, i))
#define apunorde_quita(a, i, tipo) ((tipo *)apunorde_nousar_quita(a, i))
#define apunorde_busca(a, clave, tipo_clave, tipo, comparador)                                                         \
    ((tipo *)apunorde_nousar_busca(a, VN_ARR_DATO(tipo_clave, clave), VN_ARR_COMPARA(tipo_clave, tipo, comparador)))
#define apunorde_dame(a, clave, tipo_clave, tipo, comparador)                                                          \
    ((tipo *)apunorde_nousar_dame(a, VN_ARR_DATO(tipo_clave, clave), VN_ARR_COMPARA(tipo_clave, tipo, comparador)))
#define apunorde_existe(a, clave, tipo_clave, tipo, comparador, pos)                                                   \
    apunorde_nousar_existe(a, VN_ARR_DATO(tipo_clave, clave), VN_ARR_COMPARA(tipo_clave, tipo, comparador), pos)
#define apunorde_existe_elemento(a, p, tipo, pos) apunorde_nousar_existe_elemento(a, VN_ARR_DATO(tipo, p), pos)

#endif
