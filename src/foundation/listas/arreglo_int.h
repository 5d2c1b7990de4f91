// What every array of the Foundation is made of: a block on the tracked heap, and how it is made, grown and freed.
// A handle is a struct derived from arreglo<T>; an invariant of all: `num` <= `capacidad`, no block when that is 0.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include <algorithm>
#include <cstring>
#include <string_view>
#include <utility>

namespace vn::listas {

template <class T> struct arreglo {
    using elemento = T;
    T *datos;
    uint32_t num, capacidad;
};

constexpr uint32_t MAXIMO_AL_CREAR = 1u << 28;
constexpr uint32_t MAXIMO = ~uint32_t{0};

// Room for `n` elements that comes from outside: none is reported, and gives null.
template <class T> propio<T> pide(uint32_t n) {
    propio<T> p(static_cast<T *>(vornspy_reserva_seguro(n, sizeof(T), CIERTO, VN_AQUI)));
    if (!AFIRMA_TEXTO(p != nullptr, "memoria != NULL")) return nullptr;
    return p;
}

template <class A> A *crea(uint32_t n) {
    if (!AFIRMA_TEXTO(n <= MAXIMO_AL_CREAR, "n <= 268435456")) return nullptr;
    propio<typename A::elemento> datos;
    if (n > 0 && (datos = pide<typename A::elemento>(n)) == nullptr) return nullptr;
    auto *a = static_cast<A *>(vornspy_calloc(1, sizeof(A)));
    a->datos = datos.release();
    a->num = a->capacidad = n;
    return a;
}

// The handle and its block, not what the elements own.
template <class A> void libera_arreglo(A *a) {
    if (a->datos != nullptr) vornspy_free_pp(&a->datos, sizeof(*a->datos));
    vornspy_free_pp(&a, sizeof(A));
}
template <class A> using arreglo_propio = dueno<libera_arreglo<A>>;

// Takes the array out of its owner's pointer; null after a report.
template <class A> arreglo_propio<A> toma(A **a) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_TEXTO(*a != nullptr, "(*a) != NULL")) return nullptr;
    return arreglo_propio<A>(std::exchange(*a, nullptr));
}

// Makes room for `extra` more. A few are the heap's to give; many may be refused, which is reported.
template <class A> bool asegura(A *a, uint32_t extra) {
    using T = typename A::elemento;
    if (extra <= a->capacidad - a->num) [[likely]]
        return true;
    if (!AFIRMA_TEXTO(extra <= MAXIMO - a->num, "num_elementos < ULONG_MAX")) return false;
    const uint64_t minimo = uint64_t{a->num} + extra, comodo = uint64_t{a->capacidad} + a->capacidad / 2 + 8;
    const auto nueva = static_cast<uint32_t>(std::min<uint64_t>(std::max(minimo, comodo), MAXIMO));
    if (extra == 1) {
        a->datos = static_cast<T *>(vornspy_realloc(a->datos, size_t{nueva} * sizeof(T)));
    } else {
        propio<T> datos = pide<T>(nueva);
        if (datos == nullptr) return false;
        if (a->num > 0) std::memcpy(static_cast<void *>(datos.get()), a->datos, size_t{a->num} * sizeof(T));
        if (a->datos != nullptr) vornspy_free_pp(&a->datos, sizeof(T));
        a->datos = datos.release();
    }
    a->capacidad = nueva;
    return true;
}

template <class A> bool hay(const A *a, uint32_t i) {
    return AFIRMA_NO_NULO(a) && AFIRMA_TEXTO(i < a->num, "i < num_elementos");
}

template <class A> uint32_t numelems(const A *a) { return AFIRMA_NO_NULO(a) ? a->num : 0; }

template <class A> typename A::elemento elemento(const A *a, uint32_t i) {
    return hay(a, i) ? a->datos[i] : typename A::elemento{};
}

template <class A> void pon(A *a, uint32_t i, typename A::elemento v) {
    if (hay(a, i)) a->datos[i] = v;
}

template <class A> bool anade(A *a, typename A::elemento v) {
    if (!AFIRMA_NO_NULO(a) || !asegura(a, 1)) return false;
    a->datos[a->num++] = v;
    return true;
}

template <class A> bool inserta(A *a, uint32_t i, typename A::elemento v) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_TEXTO(i <= a->num, "i <= num_elementos") || !asegura(a, 1)) return false;
    std::memmove(static_cast<void *>(a->datos + i + 1), a->datos + i, size_t{a->num - i} * sizeof(v));
    a->datos[i] = v;
    ++a->num;
    return true;
}

// Takes element `i` out; the caller has checked that it is there.
template <class A> typename A::elemento saca(A *a, uint32_t i) {
    const auto v = a->datos[i];
    --a->num;
    std::memmove(static_cast<void *>(a->datos + i), a->datos + i + 1, size_t{a->num - i} * sizeof(v));
    return v;
}

template <class A> void borra(A *a, uint32_t i) {
    if (hay(a, i)) saca(a, i);
}

template <class A> void inicializa(A *a, typename A::elemento v) {
    if (AFIRMA_NO_NULO(a)) std::fill_n(a->datos, a->num, v);
}

template <class A> A *copia(const A *a) {
    if (!AFIRMA_NO_NULO(a)) return nullptr;
    arreglo_propio<A> b(crea<A>(0));
    if (!asegura(b.get(), a->num)) return nullptr;
    if (a->num > 0) std::memcpy(static_cast<void *>(b->datos), a->datos, size_t{a->num} * sizeof(*a->datos));
    b->num = a->num;
    return b.release();
}

template <class A> void concatena(A *a, const A *b) {
    if (!EXIGE(a, b)) return;
    const uint32_t n = b->num; // before `a` grows: both may be one
    if (n == 0 || !asegura(a, n)) return;
    std::memcpy(static_cast<void *>(a->datos + a->num), b->datos, size_t{n} * sizeof(*a->datos));
    a->num += n;
}

template <class A> bool iguales(const A *a, const A *b) {
    if (!EXIGE(a, b)) return false;
    return a->num == b->num &&
           (a->num == 0 || std::memcmp(a->datos, b->datos, size_t{a->num} * sizeof(*a->datos)) == 0);
}

template <class A> typename A::elemento *bloque_de(A *a) {
    return AFIRMA_NO_NULO(a) && a->num > 0 ? a->datos : nullptr;
}

template <class A> const typename A::elemento *bloque_de(const A *a) {
    return AFIRMA_NO_NULO(a) && a->num > 0 ? a->datos : nullptr;
}

// The index of the first element for which `f` holds, looking from `desde` on; `pos`, if given, receives it.
template <class A, class F> vnbool existe(const A *a, uint32_t *pos, uint32_t desde, F &&f) {
    for (uint32_t i = desde; i < a->num; ++i)
        if (f(a->datos[i])) {
            if (pos != nullptr) *pos = i;
            return CIERTO;
        }
    return FALSO;
}

// The first place of a sorted array that does not stand before: `antes(element)` is true for a leading run only.
template <class A, class F> uint32_t primero_que_no(const A *a, F &&antes) {
    uint32_t desde = 0, hasta = a->num;
    while (desde < hasta) {
        const uint32_t medio = desde + (hasta - desde) / 2;
        if (antes(a->datos[medio])) desde = medio + 1;
        else hasta = medio;
    }
    return desde;
}

// A copy of a text on the tracked heap; null for null.
template <class C> C *copia_texto(const C *s) {
    if (s == nullptr) return nullptr;
    const size_t bytes = (std::char_traits<C>::length(s) + 1) * sizeof(C);
    return static_cast<C *>(std::memcpy(vornspy_malloc(bytes), s, bytes));
}

} // namespace vn::listas
