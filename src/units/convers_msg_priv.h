// The unit texts of convers.msg, found by their Spanish words.
#pragma once

#include "foundation/texto/msglocal_int.h"
#include <cstddef>
#include <iterator>

namespace vn {

inline constexpr const vnwchar *UNIDADES_TRADUCIDAS[] = {
#define X(es, ...) VNU(es),
#include "units/convers_msg.inl"
#undef X
};
inline constexpr int16_t SIN_TRADUCCION = -1;

// The row of a text, which is given without its id.
consteval int16_t fila_de_unidad(const vnwchar *texto) {
    for (size_t i = 0; i < std::size(UNIDADES_TRADUCIDAS); ++i) {
        const vnwchar *a = UNIDADES_TRADUCIDAS[i] + texto::ancho_de_id(UNIDADES_TRADUCIDAS[i]), *b = texto;
        while (*a == *b && *a != 0) ++a, ++b;
        if (*a == *b) return static_cast<int16_t>(i);
    }
    return SIN_TRADUCCION;
}

// The text of a row in the active language, without its id.
const vnwchar *unidad_traducida(int16_t fila);

// A unit's text: the Spanish words, and where the other languages' are.
struct texto_unidad {
    const vnwchar *es = nullptr;
    int16_t fila = SIN_TRADUCCION;

    consteval texto_unidad() = default;
    consteval texto_unidad(const vnwchar *texto) : es(texto), fila(fila_de_unidad(texto)) {}
    const vnwchar *local() const { return fila == SIN_TRADUCCION ? es : unidad_traducida(fila); }
};

} // namespace vn
