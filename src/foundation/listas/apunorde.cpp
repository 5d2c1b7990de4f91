#define VN_MODULO "apunorde (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/apunorde.h"
#include "foundation/listas/ordenado_priv.h"
#include "foundation/suelo/logico_int.h"

struct apunorde : vn::listas::ordenado<void *> {
    vnfunc_compara_con_dato comparador;
    void *dato;
    vnfunc_destruye destructor; // null: the elements are not the set's
};

namespace {

// A set without a destructor leaves its elements to the host.
void destruye_elemento(const apunorde *a, void *p) {
    if (a->destructor != nullptr && p != nullptr) a->destructor(&p);
}

// By the set's own comparer, with the datum that it was made with.
auto busca_elemento(const apunorde *a, const void *p) {
    return vn::listas::busca(a, [=](const void *e) { return a->comparador(p, e, a->dato); });
}

// By the caller's comparer, which must agree with the order of the set.
auto busca_clave(const apunorde *a, const void *clave, vnfunc_compara comparador) {
    return vn::listas::busca(a, [=](const void *e) { return comparador(clave, e); });
}

// True when the element is there; `pos` is where it is or would be.
vnbool responde(const vn::listas::sitio_ordenado<void *> &sitio, uint32_t *pos) {
    if (pos != nullptr) *pos = sitio.pos;
    return vn::logico(sitio.elemento != nullptr);
}

} // namespace

apunorde *apunorde_nousar_crea(vnfunc_compara_con_dato comparador, void *dato, vnfunc_destruye destructor) {
    if (!AFIRMA_NO_NULO(comparador)) return nullptr;
    apunorde *a = vn::listas::crea<apunorde>(0);
    a->comparador = comparador;
    a->dato = dato;
    a->destructor = destructor;
    return a;
}

void apunorde_nousar_destruye(apunorde **a) {
    const auto propio = vn::listas::toma_ordenado(a);
    for (uint32_t i = 0; propio != nullptr && i < propio->num; ++i) destruye_elemento(propio.get(), propio->datos[i]);
}

void apunorde_nousar_inserta_original(apunorde *a, void *p, uint32_t *pos) {
    if (!EXIGE(a, p)) return;
    // The set took it: what it does not keep is destroyed, also when memory runs out.
    const auto destruye = [a](void *q) { destruye_elemento(a, q); };
    std::unique_ptr<void, decltype(destruye)> propio(p, destruye);
    const auto sitio = busca_elemento(a, p);
    const bool existe = responde(sitio, pos) == CIERTO;
    if (AFIRMA_TEXTO(!existe, "existe == FALSO") && vn::listas::inserta_en(a, sitio, p))
        static_cast<void>(propio.release());
}

uint32_t apunorde_nousar_numelems(const apunorde *a) { return vn::listas::total(a); }

void *apunorde_nousar_get(const apunorde *a, uint32_t i) {
    return vn::listas::hay_ordenado(a, i) ? vn::listas::elemento_ordenado(a, i) : nullptr;
}

void *apunorde_nousar_quita(apunorde *a, uint32_t i) {
    if (!vn::listas::hay_ordenado(a, i)) return nullptr;
    // The tail of late elements is merged in first: only the settled block can lose one.
    vn::listas::asienta(a);
    return vn::listas::saca(a, i);
}

void *apunorde_nousar_busca(const apunorde *a, const void *clave, vnfunc_compara comparador) {
    if (!EXIGE(a, comparador)) return nullptr;
    const auto sitio = busca_clave(a, clave, comparador);
    return sitio.elemento != nullptr ? *sitio.elemento : nullptr;
}

void *apunorde_nousar_dame(const apunorde *a, const void *clave, vnfunc_compara comparador) {
    if (!EXIGE(a, comparador)) return nullptr;
    const auto sitio = busca_clave(a, clave, comparador);
    return AFIRMA_TEXTO(sitio.elemento != nullptr, "existe == CIERTO") ? *sitio.elemento : nullptr;
}

vnbool apunorde_nousar_existe(const apunorde *a, const void *clave, vnfunc_compara comparador, uint32_t *pos) {
    if (!EXIGE(a, comparador)) return FALSO;
    return responde(busca_clave(a, clave, comparador), pos);
}

vnbool apunorde_nousar_existe_elemento(const apunorde *a, const void *p, uint32_t *pos) {
    if (!EXIGE(a, p)) return FALSO;
    return responde(busca_elemento(a, p), pos);
}
