#define VN_MODULO "arr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr.h"
#include "foundation/listas/arr_int.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/logico_int.h"

// The operations of the plain families, one expansion a family; arr.h spells their names.

namespace {

template <class A> constexpr bool ES_LOGICO = false;
template <> constexpr bool ES_LOGICO<arrBOOL> = true;

// Only truth values are checked; any other number is a good element.
template <class A> bool vale(typename A::elemento v) {
    if constexpr (ES_LOGICO<A>) return AFIRMA_LOGICO(v);
    else return true;
}

} // namespace

#define FAMILIA(S, T)                                                                                                  \
    struct arr##S : vn::listas::arreglo<T> {};                                                                         \
    arr##S *arr_Crea##S(uint32_t n) { return vn::listas::crea<arr##S>(n); }                                            \
    void arr_Destruye##S(arr##S **a) { vn::listas::toma(a); }                                                          \
    arr##S *arr_Copia##S(const arr##S *a) { return vn::listas::copia(a); }                                             \
    uint32_t arr_NumElems##S(const arr##S *a) { return vn::listas::numelems(a); }                                      \
    T arr_Get##S(const arr##S *a, uint32_t i) { return vn::listas::elemento(a, i); }                                   \
    void arr_Set##S(arr##S *a, uint32_t i, T v) {                                                                      \
        if (vn::listas::hay(a, i) && vale<arr##S>(v)) a->datos[i] = v;                                                 \
    }                                                                                                                  \
    void arr_Append##S(arr##S *a, T v) {                                                                               \
        if (AFIRMA_NO_NULO(a) && vale<arr##S>(v)) vn::listas::anade(a, v);                                             \
    }                                                                                                                  \
    void arr_Inicializa##S(arr##S *a, T v) {                                                                           \
        if (AFIRMA_NO_NULO(a) && vale<arr##S>(v)) vn::listas::inicializa(a, v);                                        \
    }                                                                                                                  \
    void arr_Concatena##S(arr##S *a, const arr##S *b) { vn::listas::concatena(a, b); }                                 \
    vnbool arr_SonIguales##S(const arr##S *a, const arr##S *b) { return vn::logico(vn::listas::iguales(a, b)); }       \
    T *arr_GetBuffer##S(arr##S *a) { return vn::listas::bloque_de(a); }                                                \
    const T *arr_GetBufferConst##S(const arr##S *a) { return vn::listas::bloque_de(a); }

VN_ARR_SIMPLES(FAMILIA)

vnbool arr_ExisteBOOL(const arrBOOL *a, vnbool v, uint32_t *pos) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_LOGICO(v)) return FALSO;
    return vn::listas::existe(a, pos, 0, [v](vnbool e) { return e == v; });
}

vnbool arr_ExisteULong(const arrULong *a, uint32_t v, uint32_t desde, uint32_t *pos) {
    if (!AFIRMA_NO_NULO(a)) return FALSO;
    return vn::listas::existe(a, pos, desde, [v](uint32_t e) { return e == v; });
}

void arr_nousar_RecorreChar(const arrChar *a, vnfunc_recorre_char funcion, void *datos, const char *, uint32_t) {
    if (!EXIGE(a, funcion)) return;
    for (uint32_t i = 0; i < a->num; ++i) funcion(a->datos[i], datos);
}
