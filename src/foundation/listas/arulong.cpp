#define VN_MODULO "arulong (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arulong.h"
#include "foundation/listas/arreglo_int.h"

// Names: arulong_crea arulong_destruye arulong_append arulong_get arulong_numelems arulong_get_buffer_const, and the
// same with arulong64.
#define FAMILIA(S, T)                                                                                                  \
    struct S : vn::listas::arreglo<T> {};                                                                              \
    S *S##_crea(void) { return vn::listas::crea<S>(0); }                                                               \
    void S##_destruye(S **a) { vn::listas::toma(a); }                                                                  \
    void S##_append(S *a, T v) { vn::listas::anade(a, v); }                                                            \
    T S##_get(const S *a, uint32_t i) { return vn::listas::elemento(a, i); }                                           \
    uint32_t S##_numelems(const S *a) { return vn::listas::numelems(a); }                                              \
    const T *S##_get_buffer_const(const S *a) { return vn::listas::bloque_de(a); }

FAMILIA(arulong, uint32_t)
FAMILIA(arulong64, uint64_t)
