// What the sorted sets are made of: a settled sorted block, and beside it a short sorted tail of what came out of order
// since, so that inserting n elements in any order moves n times the square root of n and not n times n. The tail is
// merged when it has grown to that root, or when an element is taken out; an element is asked for by its index in both,
// so that asking writes nothing. A handle derives from ordenado<T>.
#pragma once

#include "foundation/listas/arreglo_int.h"

namespace vn::listas {

template <class T> struct pendiente {
    T v;
    uint32_t antes; // how many of the settled ones stand before it
};

template <class T> struct ordenado : arreglo<T> { arreglo<pendiente<T>> cola; };

template <class A> uint32_t total(const A *a) { return AFIRMA_NO_NULO(a) ? a->num + a->cola.num : 0; }

// Where an element stands, or would stand: in the whole order, in the settled block and in the tail.
template <class T> struct sitio_ordenado {
    const T *elemento; // the one that matches, or null
    uint32_t pos, antes, en_cola;
};

// `orden(element)` is the sign of the order of what is looked for and the element.
template <class A, class F> sitio_ordenado<typename A::elemento> busca(const A *a, F &&orden) {
    const uint32_t i = primero_que_no(a, [&](const auto &e) { return orden(e) > 0; });
    const uint32_t j = primero_que_no(&a->cola, [&](const auto &p) { return orden(p.v) > 0; });
    const typename A::elemento *hallado = nullptr;
    if (i < a->num && orden(a->datos[i]) == 0) hallado = a->datos + i;
    else if (j < a->cola.num && orden(a->cola.datos[j].v) == 0) hallado = &a->cola.datos[j].v;
    return {hallado, i + j, i, j};
}

// Merges the tail into the settled block, which has room for it.
template <class A> void asienta(A *a) {
    uint32_t fin = a->num;
    a->num += a->cola.num;
    for (uint32_t k = a->cola.num; k > 0; --k) {
        const auto &p = a->cola.datos[k - 1];
        std::memmove(static_cast<void *>(a->datos + p.antes + k), a->datos + p.antes,
                     size_t{fin - p.antes} * sizeof(p.v));
        a->datos[p.antes + k - 1] = p.v;
        fin = p.antes;
    }
    a->cola.num = 0;
}

// Puts `v` where `sitio` says; false after a report, nothing changed.
template <class A> bool inserta_en(A *a, const sitio_ordenado<typename A::elemento> &sitio, typename A::elemento v) {
    // The room to settle is there from now on.
    if (!asegura(a, a->cola.num + 1)) return false;
    if (a->cola.num == 0 && sitio.antes == a->num) {
        a->datos[a->num++] = v;
        return true;
    }
    if (!inserta(&a->cola, sitio.en_cola, {v, sitio.antes})) return false;
    uint64_t tope = 64;
    while (tope * tope < a->num) tope *= 2;
    if (a->cola.num >= tope) asienta(a);
    return true;
}

// True when there is an element number `i`.
template <class A> bool hay_ordenado(const A *a, uint32_t i) {
    return AFIRMA_NO_NULO(a) && AFIRMA_TEXTO(i < a->num + a->cola.num, "i < num_elementos");
}

// Element number `i`, which there is.
template <class A> const typename A::elemento &elemento_ordenado(const A *a, uint32_t i) {
    // How many of the tail stand before it: each stands at its own number more than the settled ones before it.
    const auto *const cola = a->cola.datos;
    uint32_t k = 0;
    for (uint32_t fin = a->cola.num; k < fin;) {
        const uint32_t medio = (k + fin) / 2;
        if (cola[medio].antes + medio < i) k = medio + 1;
        else fin = medio;
    }
    return k < a->cola.num && cola[k].antes + k == i ? cola[k].v : a->datos[i - k];
}

// Takes the set out of its owner's pointer, settled; null after a report.
template <class A> arreglo_propio<A> toma_ordenado(A **a) {
    arreglo_propio<A> propio = toma(a);
    if (propio == nullptr) return propio;
    asienta(propio.get());
    if (propio->cola.datos != nullptr) vornspy_free_pp(&propio->cola.datos, 1);
    return propio;
}

} // namespace vn::listas
