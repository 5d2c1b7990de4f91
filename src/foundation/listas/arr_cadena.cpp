#define VN_MODULO "arr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr_cadena.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"

// The operations of both widths, one expansion each; arr_cadena.h spells their names.

struct arrCADENA : vn::listas::arreglo<char *> {};
struct arrCADENA_u : vn::listas::arreglo<vnwchar *> {};

namespace {

bool iguales_may_o_min(const char *a, const char *b) { return cad_cadenas_iguales_may_o_min(a, b) == CIERTO; }
bool iguales_may_o_min(const vnwchar *a, const vnwchar *b) { return widestr_cadenas_iguales_may_o_min(a, b) == CIERTO; }

template <class A> using caracter = std::remove_pointer_t<typename A::elemento>;

void libera(auto *&s) {
    if (s != nullptr) vornspy_free_pp(&s, sizeof(*s));
}

// Frees the texts from number `n` on and leaves an array of that length.
template <class A> void libera_desde(A *a, uint32_t n) {
    for (uint32_t i = n; i < a->num; ++i) libera(a->datos[i]);
    a->num = n;
}

template <class A> void destruye(A **a) {
    if (const auto propio = vn::listas::toma(a)) libera_desde(propio.get(), 0);
}

// Appends copies of the first `n` texts of `b`.
template <class A> bool anade_copias(A *a, const A *b, uint32_t n) {
    if (!vn::listas::asegura(a, n)) return false;
    for (uint32_t i = 0; i < n; ++i) {
        // The count follows each copy, so that an array that is left halfway owns all it has.
        a->datos[a->num] = vn::listas::copia_texto(b->datos[i]);
        ++a->num;
    }
    return true;
}

// A new array with its own copy of each text.
template <class A> A *copia_textos(const A *a) {
    if (!AFIRMA_NO_NULO(a)) return nullptr;
    vn::dueno<destruye<A>> b(vn::listas::crea<A>(0));
    return anade_copias(b.get(), a, a->num) ? b.release() : nullptr;
}

// Puts a text that the array now owns in the place of element `i`.
template <class A> void reemplaza(A *a, uint32_t i, caracter<A> *s) {
    // The text may be the one that is there already.
    if (a->datos[i] != s) libera(a->datos[i]);
    a->datos[i] = s;
}

// The text that the caller hands over, freed should it not arrive.
template <class C> vn::propio<C> toma_texto(C **s) {
    return vn::propio<C>(s != nullptr ? std::exchange(*s, nullptr) : nullptr);
}

template <class A> void inserta_copia(A *a, uint32_t i, const caracter<A> *s) {
    // Copied before the array grows: `s` may be one of its texts.
    vn::propio<caracter<A>> c(vn::listas::copia_texto(s));
    if (vn::listas::inserta(a, i, c.get())) static_cast<void>(c.release());
}

template <class A> bool textos_iguales(const A *a, const A *b) {
    using C = caracter<A>;
    if (!EXIGE(a, b)) return false;
    // A null text is equal to another null one and to nothing else.
    return a->num == b->num && std::equal(a->datos, a->datos + a->num, b->datos, [](const C *s, const C *t) {
               return s == nullptr || t == nullptr ? s == t : std::basic_string_view<C>(s) == t;
           });
}

template <class A> vnbool existe(const A *a, const caracter<A> *s, uint32_t *pos) {
    using C = caracter<A>;
    if (!EXIGE(a, s)) return FALSO;
    return vn::listas::existe(a, pos, 0,
                              [t = std::basic_string_view<C>(s)](const C *e) { return e != nullptr && t == e; });
}

template <class A> vnbool existe_may_o_min(const A *a, const caracter<A> *s, uint32_t *pos) {
    if (!EXIGE(a, s)) return FALSO;
    return vn::listas::existe(a, pos, 0, [s](const caracter<A> *e) { return e != nullptr && iguales_may_o_min(e, s); });
}

} // namespace

#define FAMILIA(S, C, ORIGINAL)                                                                                        \
    arr##S *arr_Crea##S(uint32_t n) { return vn::listas::crea<arr##S>(n); }                                            \
    void arr_Destruye##S(arr##S **a) { destruye(a); }                                                                  \
    arr##S *arr_Copia##S(const arr##S *a) { return copia_textos(a); }                                                  \
    uint32_t arr_NumElems##S(const arr##S *a) { return vn::listas::numelems(a); }                                      \
    const C *arr_Get##S(const arr##S *a, uint32_t i) { return vn::listas::elemento(a, i); }                            \
    C *arr_GetCopia##S(const arr##S *a, uint32_t i) { return vn::listas::copia_texto<C>(vn::listas::elemento(a, i)); } \
    void arr_Set##S(arr##S *a, uint32_t i, const C *s) {                                                               \
        if (vn::listas::hay(a, i)) reemplaza(a, i, vn::listas::copia_texto(s));                                        \
    }                                                                                                                  \
    void arr_Set##ORIGINAL(arr##S *a, uint32_t i, C **s) {                                                             \
        vn::propio<C> c = toma_texto(s);                                                                               \
        if (vn::listas::hay(a, i) && AFIRMA_NO_NULO(s)) reemplaza(a, i, c.release());                                  \
    }                                                                                                                  \
    void arr_Append##S(arr##S *a, const C *s) {                                                                        \
        if (AFIRMA_NO_NULO(a)) inserta_copia(a, a->num, s);                                                            \
    }                                                                                                                  \
    void arr_Append##ORIGINAL(arr##S *a, C **s) {                                                                      \
        vn::propio<C> c = toma_texto(s);                                                                               \
        if (EXIGE(a, s) && vn::listas::anade(a, c.get())) static_cast<void>(c.release());                              \
    }                                                                                                                  \
    void arr_Insertar##S(arr##S *a, uint32_t i, const C *s) {                                                          \
        if (AFIRMA_NO_NULO(a)) inserta_copia(a, i, s);                                                                 \
    }                                                                                                                  \
    void arr_Borrar##S(arr##S *a, uint32_t i) {                                                                        \
        if (!vn::listas::hay(a, i)) return;                                                                            \
        C *s = vn::listas::saca(a, i);                                                                                 \
        libera(s);                                                                                                     \
    }                                                                                                                  \
    void arr_ReduceTamanyo##S(arr##S *a, uint32_t n) {                                                                 \
        if (AFIRMA_NO_NULO(a) && AFIRMA_TEXTO(n <= a->num, "n <= num_elementos")) libera_desde(a, n);                  \
    }                                                                                                                  \
    void arr_Concatena##S(arr##S *a, const arr##S *b) {                                                                \
        if (EXIGE(a, b)) anade_copias(a, b, b->num);                                                                   \
    }                                                                                                                  \
    vnbool arr_SonIguales##S(const arr##S *a, const arr##S *b) { return vn::logico(textos_iguales(a, b)); }            \
    uint32_t arr_Buscar##S(const arr##S *a, const C *s) {                                                              \
        uint32_t pos = VN_ARR_NO_ESTA;                                                                                 \
        existe(a, s, &pos);                                                                                            \
        return pos;                                                                                                    \
    }                                                                                                                  \
    vnbool arr_Existe##S(const arr##S *a, const C *s, uint32_t *pos) { return existe(a, s, pos); }                     \
    vnbool arr_ExisteMayMin##S(const arr##S *a, const C *s, uint32_t *pos) { return existe_may_o_min(a, s, pos); }     \
    const C *const *arr_GetBufferConst##S(const arr##S *a) { return vn::listas::bloque_de(a); }                        \
    void nousar_Recorre##S(const arr##S *a, void (*funcion)(const C *, void *), void *datos, const char *, uint32_t) { \
        if (!EXIGE(a, funcion)) return;                                                                                \
        for (uint32_t i = 0; i < a->num; ++i) funcion(a->datos[i], datos);                                             \
    }

FAMILIA(CADENA, char, CADENAOriginal)
FAMILIA(CADENA_u, vnwchar, CADENAOriginal_u)
