#define VN_MODULO "acadorde (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/acadorde.h"
#include "foundation/listas/ordenado_priv.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"

// Both widths are one template. Each text stands beside the key that orders it: itself, or where case is not told apart
// a copy in upper case, made once when it is inserted.

namespace {

template <class C> struct entrada {
    C *texto;
    C *clave; // the text itself, or a copy in upper case that is the entry's own
};

} // namespace

struct acadorde : vn::listas::ordenado<entrada<char>> {
    using caracter = char;
    vnbool distingue;
};
struct acadordeu : vn::listas::ordenado<entrada<vnwchar>> {
    using caracter = vnwchar;
    vnbool distingue;
};

namespace {

void pliega(char *s) { cad_convertir_a_mayusculas(s); }
void pliega(vnwchar *s) { widestr_convertir_a_mayusculas(s); }

// The key of a text to look for or to insert; it owns a folded copy where the set needs one.
template <class A> struct clave_de {
    using C = typename A::caracter;
    vn::propio<C> plegada;
    std::basic_string_view<C> texto;
    clave_de(const A *a, const C *s) : texto(s) {
        if (a->distingue == CIERTO) return;
        plegada.reset(vn::listas::copia_texto(s));
        pliega(plegada.get());
        texto = plegada.get();
    }
};

template <class A> auto busca_texto(const A *a, const clave_de<A> &clave) {
    return vn::listas::busca(a, [&clave](const auto &e) { return clave.texto.compare(e.clave); });
}

template <class A> A *crea(vnbool distingue) {
    if (!AFIRMA_TEXTO(distingue == CIERTO || distingue == FALSO,
                      "distingue_may_y_min == CIERTO || distingue_may_y_min == FALSO"))
        return nullptr;
    A *a = vn::listas::crea<A>(0);
    a->distingue = distingue;
    return a;
}

template <class A> void destruye(A **a) {
    const auto propio = vn::listas::toma_ordenado(a);
    for (uint32_t i = 0; propio != nullptr && i < propio->num; ++i) {
        auto &e = propio->datos[i];
        // Where case is told apart the key is the text itself, and goes with it.
        if (e.clave != e.texto) vornspy_free_pp(&e.clave, 1);
        vornspy_free_pp(&e.texto, 1);
    }
}

template <class A> vnbool inserta(A *a, const typename A::caracter *s) {
    if (!EXIGE(a, s)) return FALSO;
    clave_de<A> clave(a, s);
    const auto sitio = busca_texto(a, clave);
    if (sitio.elemento != nullptr) return FALSO;
    // Copied only once it is known to be new.
    vn::propio<typename A::caracter> texto(vn::listas::copia_texto(s));
    auto *con_clave = clave.plegada != nullptr ? clave.plegada.get() : texto.get();
    if (!vn::listas::inserta_en(a, sitio, {texto.get(), con_clave})) return FALSO;
    // From here on both are the set's.
    static_cast<void>(texto.release());
    static_cast<void>(clave.plegada.release());
    return CIERTO;
}

template <class A> vnbool existe(const A *a, const typename A::caracter *s, uint32_t *pos) {
    if (!EXIGE(a, s)) return FALSO;
    const auto sitio = busca_texto(a, clave_de<A>(a, s));
    if (pos != nullptr) *pos = sitio.pos;
    return vn::logico(sitio.elemento != nullptr);
}

} // namespace

#define FAMILIA(S, C)                                                                                                  \
    S *S##_crea(vnbool distingue_may_y_min) { return crea<S>(distingue_may_y_min); }                                   \
    void S##_destruye(S **a) { destruye(a); }                                                                          \
    vnbool S##_inserta(S *a, const C *s) { return inserta(a, s); }                                                     \
    vnbool S##_existe(const S *a, const C *s, uint32_t *pos) { return existe(a, s, pos); }                             \
    const C *S##_get(const S *a, uint32_t i) {                                                                         \
        return vn::listas::hay_ordenado(a, i) ? vn::listas::elemento_ordenado(a, i).texto : nullptr;                   \
    }                                                                                                                  \
    uint32_t S##_numelems(const S *a) { return vn::listas::total(a); }                                                 \
    vnbool S##_distingue_may_y_min(const S *a) { return AFIRMA_NO_NULO(a) ? a->distingue : FALSO; }

FAMILIA(acadorde, char)
FAMILIA(acadordeu, vnwchar)

vnwchar *acadordeu_get_copia(const acadordeu *a, uint32_t i) { return vn::listas::copia_texto(acadordeu_get(a, i)); }
