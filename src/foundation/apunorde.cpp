#define VN_MODULO "apunorde (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/apunorde.h"
#include "foundation/arreglo_priv.h"

struct apunorde : vn::arreglo<void *> {
    vnfunc_compara_con_dato comparador;
    void *dato;
    vnfunc_destruye destructor; // null: the elements are not the set's
};

namespace {

void destruye_elemento(const apunorde *a, void *p) {
    if (a->destructor != nullptr && p != nullptr) a->destructor(&p);
}

// Where the first element that `orden(element)` does not put before it stands or would stand; true on a match.
template <class F>
bool busca(const apunorde *a, uint32_t &pos, F &&orden) {
    pos = vn::primero_que_no(a, [&](const void *e) { return orden(e) > 0; });
    return pos < a->num && orden(a->datos[pos]) == 0;
}

bool busca_elemento(const apunorde *a, const void *p, uint32_t &pos) {
    return busca(a, pos, [=](const void *e) { return a->comparador(p, e, a->dato); });
}

bool busca_clave(const apunorde *a, const void *clave, vnfunc_compara comparador, uint32_t &pos) {
    return busca(a, pos, [=](const void *e) { return comparador(clave, e); });
}

} // namespace

apunorde *apunorde_nousar_crea(vnfunc_compara_con_dato comparador, void *dato, vnfunc_destruye destructor) {
    if (!AFIRMA_NO_NULO(comparador)) return nullptr;
    apunorde *a = vn::crea<apunorde>(0);
    a->comparador = comparador;
    a->dato = dato;
    a->destructor = destructor;
    return a;
}

void apunorde_nousar_destruye(apunorde **a) {
    const auto propio = vn::toma(a);
    for (uint32_t i = 0; propio != nullptr && i < propio->num; ++i) destruye_elemento(propio.get(), propio->datos[i]);
}

void apunorde_nousar_inserta_original(apunorde *a, void *p, uint32_t *pos) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_NO_NULO(p)) return;
    uint32_t sitio;
    const bool existe = busca_elemento(a, p, sitio);
    if (pos != nullptr) *pos = sitio;
    if (!existe && vn::inserta(a, sitio, p)) return;
    // The set took it, so it goes before the report, which may unwind.
    destruye_elemento(a, p);
    static_cast<void>(AFIRMA_TEXTO(!existe, "existe == FALSO"));
}

uint32_t apunorde_nousar_numelems(const apunorde *a) { return vn::numelems(a); }

void *apunorde_nousar_get(const apunorde *a, uint32_t i) { return vn::elemento(a, i); }

void *apunorde_nousar_quita(apunorde *a, uint32_t i) { return vn::hay(a, i) ? vn::saca(a, i) : nullptr; }

void *apunorde_nousar_busca(const apunorde *a, const void *clave, vnfunc_compara comparador) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_NO_NULO(comparador)) return nullptr;
    uint32_t pos;
    return busca_clave(a, clave, comparador, pos) ? a->datos[pos] : nullptr;
}

void *apunorde_nousar_dame(const apunorde *a, const void *clave, vnfunc_compara comparador) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_NO_NULO(comparador)) return nullptr;
    uint32_t pos;
    if (!AFIRMA_TEXTO(busca_clave(a, clave, comparador, pos), "existe == CIERTO")) return nullptr;
    return a->datos[pos];
}

vnbool apunorde_nousar_existe(const apunorde *a, const void *clave, vnfunc_compara comparador, uint32_t *pos) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_NO_NULO(comparador)) return FALSO;
    uint32_t sitio;
    const bool esta = busca_clave(a, clave, comparador, sitio);
    if (pos != nullptr) *pos = sitio;
    return esta ? CIERTO : FALSO;
}

vnbool apunorde_nousar_existe_elemento(const apunorde *a, const void *p, uint32_t *pos) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_NO_NULO(p)) return FALSO;
    uint32_t sitio;
    const bool esta = busca_elemento(a, p, sitio);
    if (pos != nullptr) *pos = sitio;
    return esta ? CIERTO : FALSO;
}
