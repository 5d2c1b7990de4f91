// The masks of a text: what stands between brackets.
#pragma once

#include "foundation/suelo/afirma_int.h"
#include <cstddef>
#include <string_view>

namespace vn {

using vista_u = std::basic_string_view<vnwchar>;

enum class mascaras { ninguna, alguna, mal };

// Goes over a text from left to right: `fuera` for each character out of the brackets, `mascara` for what is between a
// pair. Brackets that do not pair are reported and end it, and so does a `mascara` that answers false; `abre_bien`
// checks one that opens after what there was until then, -1 for nothing.
template <class A, class F, class M> mascaras recorre_mascaras(vista_u texto, A abre_bien, F fuera, M mascara) {
    const auto numCars = static_cast<ptrdiff_t>(texto.size());
    ptrdiff_t primero = -1, ultimo = -1;
    if (!AFIRMA(numCars > 0)) return mascaras::mal;
    for (ptrdiff_t i = 0; i < numCars; ++i) {
        const vnwchar c = texto[static_cast<size_t>(i)];
        if (c == VNU('[')) {
            if (!abre_bien(primero, ultimo)) return mascaras::mal;
            primero = i;
            ultimo = -1;
        } else if (c == VNU(']')) {
            if (!AFIRMA(primero != -1) || !AFIRMA(ultimo == -1)) return mascaras::mal;
            ultimo = i;
            if (!mascara(texto.substr(static_cast<size_t>(primero + 1), static_cast<size_t>(i - primero - 1))))
                return mascaras::mal;
        } else if (primero == -1 || ultimo != -1) fuera(c);
    }
    if (primero == -1) return mascaras::ninguna;
    return AFIRMA(ultimo > primero) ? mascaras::alguna : mascaras::mal;
}

} // namespace vn
