#define VN_MODULO "gcarray (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/gcarray.h"
#include "foundation/listas/arreglo_int.h"

// One expansion a family; gcarray.h spells the names.
#define FAMILIA(A, T)                                                                                                  \
    struct A : vn::listas::arreglo<T> {};                                                                              \
    A *A##_crea(uint32_t n) { return vn::listas::crea<A>(n); }                                                         \
    void A##_free(A **a) { vn::listas::toma(a); }                                                                      \
    void A##_append(A *a, T v) { vn::listas::anade(a, v); }                                                            \
    uint32_t A##_count(const A *a) { return vn::listas::numelems(a); }

FAMILIA(gcFloat32Array, float)
FAMILIA(gcFloat64Array, double)
FAMILIA(gcUint32Array, uint32_t)
FAMILIA(gcUint8Array, uint8_t)

uint32_t gcUint32Array_get(const gcUint32Array *a, uint32_t i) { return vn::listas::elemento(a, i); }
uint8_t gcUint8Array_get(const gcUint8Array *a, uint32_t i) { return vn::listas::elemento(a, i); }

float *gcFloat32Array_get_buffer(const gcFloat32Array *a) {
    return AFIRMA_NO_NULO(a) && a->num > 0 ? a->datos : nullptr;
}
double *gcFloat64Array_get_buffer(const gcFloat64Array *a) {
    return AFIRMA_NO_NULO(a) && a->num > 0 ? a->datos : nullptr;
}
uint32_t *gcUint32Array_get_elements_buffer(const gcUint32Array *a) {
    return AFIRMA_NO_NULO(a) && a->num > 0 ? a->datos : nullptr;
}
