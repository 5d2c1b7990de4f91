// The record of a mesh and its faces, for the library's own loops.
#pragma once

#include "foundation/listas/arr_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "mesh/vornmesh.h"
#include <algorithm>
#include <span>

namespace vn {

inline void destruye_indices(arrPuntero *a) { arr_DestruyeEstructurasArrayST(&a, arrULong, arr_DestruyeULong); }

using puntos3D_propios = dueno<arr_DestruyePunto3D>;
using puntos2D_propios = dueno<arr_DestruyePunto2D>;
using logicos_propios = dueno<arr_DestruyeBOOL>;
using enteros_propios = dueno<arr_DestruyeULong>;
using indices_propios = dueno<destruye_indices>;
using mesh_propia = dueno<vornmesh_destruye>;

} // namespace vn

struct mesh {
    vn::puntos3D_propios puntos, normales, tangentes_opc;
    vn::puntos2D_propios coord_texturas_opc;
    vn::logicos_propios es_borde;
    vn::enteros_propios ids_parametricos_puntos_opc, tipos_primitivas;
    vn::indices_propios inds_caras;
};

namespace vn {

// Whether the arrays fit together; what does not is reported.
bool comprueba_mesh(const mesh &m);

inline bool es_primitiva_de_triangulos(uint32_t tipo) {
    return tipo >= VPLAN_TRIANGULOS && tipo <= VPLAN_ABANICO_DE_TRIANGULOS;
}
inline bool es_primitiva_de_quads(uint32_t tipo) { return tipo == VPLAN_QUADS || tipo == VPLAN_TIRA_DE_QUADS; }

// Calls `triangulo(a, b, c)` and `quad(a, b, c, d)` with the vertices of each face of a primitive, in the order of its
// ring. A number of indices that is not the kind's is reported, and what is whole of it is walked; none at all is a
// primitive that was emptied.
template <class T, class Q>
void recorre_primitiva(uint32_t tipo, std::span<const uint32_t> ind, T &&triangulo, Q &&quad) {
    const auto num_puntos_indices = ind.size(), num_puntos = num_puntos_indices;
    if (ind.empty()) return;
    if (es_primitiva_de_triangulos(tipo)) {
        if (tipo == VPLAN_TRIANGULOS) AFIRMA(num_puntos_indices % 3 == 0);
        else AFIRMA(num_puntos_indices > 2);
    } else if (es_primitiva_de_quads(tipo)) {
        if (tipo == VPLAN_QUADS) AFIRMA(num_puntos % 4 == 0);
        else if (AFIRMA(num_puntos > 3)) AFIRMA((num_puntos - 2) % 2 == 0);
    } else {
        static_cast<void>(AFIRMA_DEFECTO());
    }
    switch (tipo) {
    case VPLAN_TRIANGULOS:
        for (size_t i = 0; i + 2 < ind.size(); i += 3) triangulo(ind[i], ind[i + 1], ind[i + 2]);
        break;
    case VPLAN_TIRA_DE_TRIANGULOS: // every second one is turned over
        for (size_t i = 0; i + 2 < ind.size(); ++i) triangulo(ind[i], ind[i + 1 + i % 2], ind[i + 2 - i % 2]);
        break;
    case VPLAN_ABANICO_DE_TRIANGULOS:
        for (size_t i = 0; i + 2 < ind.size(); ++i) triangulo(ind[0], ind[i + 1], ind[i + 2]);
        break;
    case VPLAN_QUADS:
        for (size_t i = 0; i + 3 < ind.size(); i += 4) quad(ind[i], ind[i + 1], ind[i + 2], ind[i + 3]);
        break;
    case VPLAN_TIRA_DE_QUADS: // two and two across: the second pair is the far side, the other way
        for (size_t i = 0; i + 3 < ind.size(); i += 2) quad(ind[i], ind[i + 1], ind[i + 3], ind[i + 2]);
        break;
    default: break;
    }
}

// Calls `funcion(kind, indices)` with each primitive whose indices are vertices of the mesh; another one is reported.
template <class F> void recorre_primitivas(const mesh &m, F &&funcion) {
    const auto tipos = listas::tramo(static_cast<const arrULong *>(m.tipos_primitivas.get()));
    const auto primitivas = listas::tramo(static_cast<const arrPuntero *>(m.inds_caras.get()));
    const auto num_primitivas = tipos.size(), num_vertices = size_t{arr_NumElemsPunto3D(m.puntos.get())};
    AFIRMA_TEXTO(num_primitivas == primitivas.size(),
                 "num_primitivas == arr_NumElemsPunteroTD(mesh->inds_caras, ArrULong)");
    for (size_t i = 0; i < std::min(num_primitivas, primitivas.size()); ++i) {
        const auto *indices = static_cast<const arrULong *>(primitivas[i]);
        if (!AFIRMA_NO_NULO(indices)) continue;
        const auto ind = listas::tramo(indices);
        if (AFIRMA_TEXTO(std::ranges::all_of(ind, [=](uint32_t k) { return k < num_vertices; }),
                         "indice < num_vertices"))
            funcion(tipos[i], ind);
    }
}

// Calls `triangulo` and `quad` with the vertices of each face of the mesh.
template <class T, class Q> void recorre_caras(const mesh &m, T &&triangulo, Q &&quad) {
    recorre_primitivas(
        m, [&](uint32_t tipo, std::span<const uint32_t> ind) { recorre_primitiva(tipo, ind, triangulo, quad); });
}

} // namespace vn
