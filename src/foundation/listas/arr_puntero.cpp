#define VN_MODULO "arr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr_puntero.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/logico_int.h"

struct arrPuntero : vn::listas::arreglo<void *> {};

namespace {

// Calls the destructor with the address of each element before the array goes.
void destruye(arrPuntero **a, vnfunc_destruye destructor) {
    const auto propio = vn::listas::toma(a);
    if (propio == nullptr || !AFIRMA_NO_NULO(destructor)) return;
    for (uint32_t i = 0; i < propio->num; ++i)
        if (propio->datos[i] != nullptr) destructor(&propio->datos[i]);
}

// Without a copier, and for a null element, the pointer itself is appended.
bool anade_copias(arrPuntero *a, const arrPuntero *b, vnfunc_copia copiador) {
    const uint32_t n = b->num; // before `a` grows: both may be one
    if (!vn::listas::asegura(a, n)) return false;
    for (uint32_t i = 0; i < n; ++i) {
        void *p = b->datos[i];
        a->datos[a->num] = copiador == nullptr || p == nullptr ? p : copiador(p);
        ++a->num;
    }
    return true;
}

vnbool existe(const arrPuntero *a, const void *dato, vnfunc_compara comparador, uint32_t desde, uint32_t *pos) {
    return vn::listas::existe(a, pos, desde, [=](const void *e) { return comparador(dato, e) == 0; });
}

// Merges the sorted runs [i, medio) and [medio, fin) of `de` into `a`; of equals those of the first run come first.
void mezcla(void *const *de, void **a, uint32_t i, uint32_t medio, uint32_t fin, vnfunc_compara comparador) {
    uint32_t j = medio;
    for (uint32_t k = i; k < fin; ++k) {
        const bool del_primero = i < medio && (j >= fin || comparador(de[i], de[j]) <= 0);
        a[k] = del_primero ? de[i++] : de[j++];
    }
}

} // namespace

arrPuntero *arr_CreaPunteroConTipo(uint32_t n) { return vn::listas::crea<arrPuntero>(n); }

void arr_DestruyePunteroConTipo(arrPuntero **a) { vn::listas::toma(a); }

void arr_DestruyeEstructurasConTipo(arrPuntero **a, vnfunc_destruye destructor) { destruye(a, destructor); }

void arr_DestruyeEstructurasConstConTipo(arrPuntero **a, vnfunc_destruye destructor) { destruye(a, destructor); }

void arr_DestruyeEstructurasArrayConTipo(arrPuntero **a, vnfunc_destruye destructor) { destruye(a, destructor); }

arrPuntero *arr_CopiaEstructurasConTipo(const arrPuntero *a, vnfunc_copia copiador) {
    if (!EXIGE(a, copiador)) return nullptr;
    vn::listas::arreglo_propio<arrPuntero> b(vn::listas::crea<arrPuntero>(0));
    return anade_copias(b.get(), a, copiador) ? b.release() : nullptr;
}

void arr_ConcatenaEstructurasConTipo(arrPuntero *a, const arrPuntero *b, vnfunc_copia copiador, const char *,
                                     uint32_t) {
    if (EXIGE(a, b)) anade_copias(a, b, copiador);
}

uint32_t arr_NumElemsPuntero(const arrPuntero *a) { return vn::listas::numelems(a); }

void *arr_GetPunteroConTipo(const arrPuntero *a, uint32_t i) { return vn::listas::elemento(a, i); }

void arr_SetPunteroConTipo(arrPuntero *a, uint32_t i, void *p) { vn::listas::pon(a, i, p); }

void arr_AppendPunteroConTipo(arrPuntero *a, void *p) { vn::listas::anade(a, p); }

void arr_InsertarPunteroConTipo(arrPuntero *a, uint32_t i, void *p) { vn::listas::inserta(a, i, p); }

void arr_BorrarPuntero(arrPuntero *a, uint32_t i) { vn::listas::borra(a, i); }

void arr_BorrarEstructuraConTipo(arrPuntero *a, uint32_t i, vnfunc_destruye destructor) {
    if (!vn::listas::hay(a, i) || !AFIRMA_NO_NULO(destructor)) return;
    // Out of the array first: the destructor may look at it.
    void *p = vn::listas::saca(a, i);
    if (p != nullptr) destructor(&p);
}

uint32_t arr_BuscarPunteroConTipo(const arrPuntero *a, const void *p) {
    uint32_t pos = VN_ARR_NO_ESTA;
    if (AFIRMA_NO_NULO(a)) vn::listas::existe(a, &pos, 0, [p](const void *e) { return e == p; });
    return pos;
}

vnbool arr_ExisteEstructuraConTipo(const arrPuntero *a, const void *dato, vnfunc_compara comparador, uint32_t *pos) {
    if (!EXIGE(a, comparador)) return FALSO;
    return existe(a, dato, comparador, 0, pos);
}

vnbool arr_ExisteUnicaEstructuraConTipo(const arrPuntero *a, const void *dato, vnfunc_compara comparador,
                                        uint32_t *pos) {
    if (!EXIGE(a, comparador)) return FALSO;
    uint32_t primera;
    if (existe(a, dato, comparador, 0, &primera) == FALSO) return FALSO;
    // Looked for behind the first; its index is not asked for.
    static_cast<void>(AFIRMA_TEXTO(existe(a, dato, comparador, primera + 1, nullptr) == FALSO, "num_encontrados <= 1"));
    if (pos != nullptr) *pos = primera;
    return CIERTO;
}

uint32_t arr_BuscarUnicaEstructuraConTipo(const arrPuntero *a, const void *dato, vnfunc_compara comparador) {
    uint32_t pos = VN_ARR_NO_ESTA;
    arr_ExisteUnicaEstructuraConTipo(a, dato, comparador, &pos);
    return pos;
}

vnbool arr_BuscarEstructuraDicotomicamenteConTipo(const arrPuntero *a, const void *dato, vnfunc_compara comparador,
                                                  uint32_t *pos) {
    if (!EXIGE(a, comparador)) return FALSO;
    // The first that is not before the datum: of several equals the first one.
    const uint32_t i = vn::listas::primero_que_no(a, [=](const void *e) { return comparador(dato, e) > 0; });
    if (pos != nullptr) *pos = i;
    return vn::logico(i < a->num && comparador(dato, a->datos[i]) == 0);
}

uint32_t arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(arrPuntero *a, void *p, vnfunc_compara comparador) {
    if (!EXIGE(a, comparador)) return VN_ARR_NO_ESTA;
    // Behind its equals, so that equals keep the order in which they came.
    const uint32_t i = vn::listas::primero_que_no(a, [=](const void *e) { return comparador(p, e) >= 0; });
    return vn::listas::inserta(a, i, p) ? i : VN_ARR_NO_ESTA;
}

// Merges runs of 1, 2, 4... between two copies, so that a comparer that has no order leaves the array with the elements
// that it had.
void arr_QSortPunteroConTipo(arrPuntero *a, vnfunc_compara comparador) {
    if (!EXIGE(a, comparador) || a->num < 2) return;
    const uint32_t n = a->num;
    const auto ida = vn::listas::pide<void *>(n), vuelta = vn::listas::pide<void *>(n);
    if (ida == nullptr || vuelta == nullptr) return;
    void **de = ida.get(), **hacia = vuelta.get();
    std::copy_n(a->datos, n, de);
    // Lengths in 64 bits: twice a run may be more than 2^32.
    for (uint64_t largo = 1; largo < n; largo *= 2) {
        for (uint64_t i = 0; i < n; i += 2 * largo)
            mezcla(de, hacia, static_cast<uint32_t>(i), static_cast<uint32_t>(std::min<uint64_t>(i + largo, n)),
                   static_cast<uint32_t>(std::min<uint64_t>(i + 2 * largo, n)), comparador);
        std::swap(de, hacia);
    }
    std::copy_n(de, n, a->datos);
}

void arr_RecorreEstructuraSimpleConTipo(const arrPuntero *a, vnfunc_recorre funcion, void *datos) {
    if (!EXIGE(a, funcion)) return;
    for (uint32_t i = 0; i < a->num; ++i) funcion(a->datos[i], datos);
}

vnbool arr_SonIgualesPunteroConTipo(const arrPuntero *a, const arrPuntero *b, vnfunc_compara comparador) {
    if (!EXIGE(a, b) || a->num != b->num) return FALSO;
    const bool todos = std::equal(a->datos, a->datos + a->num, b->datos, [comparador](const void *p, const void *q) {
        // Without a comparer, and where an element is null, the pointers themselves decide.
        return comparador == nullptr || p == nullptr || q == nullptr ? p == q : comparador(p, q) == 0;
    });
    return vn::logico(todos);
}

void **arr_GetBufferPuntero(arrPuntero *a) { return vn::listas::bloque_de(a); }

void *const *arr_GetBufferConstPuntero(const arrPuntero *a) { return vn::listas::bloque_de(a); }
