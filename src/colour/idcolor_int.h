// The kinds of a colour, and colours as values: for the sources that hold or hand one on.
#pragma once

#include "colour/idcolor_tipos.h"

namespace vn::colores {

inline constexpr int32_t PALETA_AUTOCAD = 0, DIRECTO = 1, PALETA_VORN = 2;

constexpr idcolor de_autocad(uint8_t indice) { return {PALETA_AUTOCAD, indice, 0xFFFFFFFF}; }
constexpr idcolor directo(uint32_t rgba) { return {DIRECTO, 255, rgba}; }
constexpr idcolor de_vorn(uint8_t indice) { return {PALETA_VORN, indice, 0xFFFFFFFF}; }

constexpr bool es_nocambiar(const idcolor &c) {
    return c.tipo_color == PALETA_VORN && c.color_paleta == VPLAN_NOCAMBIAR;
}

} // namespace vn::colores
