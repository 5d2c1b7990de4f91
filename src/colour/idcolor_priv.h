// What the sources of colours share: kinds, channels, palettes.
#pragma once

#include "colour/idcolor_int.h"
#include "foundation/suelo/afirma_int.h"
#include <array>
#include <iterator>

namespace vn::colores {

// ---- Kinds

// The check that every operation on a colour begins with.
inline bool hay(const idcolor *color) { return AFIRMA_TEXTO(color != nullptr, "(idcolor) != NULL"); }

// What a colour answers, by a function a kind: of an index, of a value, of an own index. Null and a kind that there is
// not are reported, and answer 0.
template <class R, class A, class D, class V> R segun_tipo(const idcolor *color, A autocad, D directo, V vorn) {
    if (!hay(color)) return R{};
    switch (color->tipo_color) {
    case PALETA_AUTOCAD: return autocad(color->color_paleta);
    case DIRECTO: return directo(color->rgba);
    case PALETA_VORN: return vorn(color->color_paleta);
    default: return R{AFIRMA_DEFECTO()};
    }
}

// ---- Channels

struct canales {
    uint8_t r, g, b, a;
};
constexpr canales canales_de(uint32_t v) {
    return {static_cast<uint8_t>(v), static_cast<uint8_t>(v >> 8), static_cast<uint8_t>(v >> 16),
            static_cast<uint8_t>(v >> 24)};
}
constexpr uint32_t valor_de(canales c) { return c.r | uint32_t{c.g} << 8 | uint32_t{c.b} << 16 | uint32_t{c.a} << 24; }

inline constexpr uint32_t NEGRO = 0, BLANCO = 0xFFFFFF;
constexpr uint32_t sin_alfa(uint32_t rgba) { return rgba & 0xFFFFFF; }
constexpr uint32_t opaco(uint32_t rgb) { return sin_alfa(rgb) | 0xFF000000; }

// ---- Palettes

// 0xRRGGBB, as tables are written, to a value.
constexpr uint32_t rgb_de(uint32_t rrggbb) { return rrggbb >> 16 | (rrggbb & 0xFF00) | (rrggbb & 0xFF) << 16; }

inline constexpr auto AUTOCAD = [] {
    constexpr uint32_t RRGGBB[] = {
#include "colour/idcolor_autocad.inl"
    };
    static_assert(std::size(RRGGBB) == 256);
    std::array<uint32_t, 256> t{};
    for (size_t i = 0; i < t.size(); ++i) t[i] = rgb_de(RRGGBB[i]);
    return t;
}();
// Kinds of background: white, light grey, black.
inline constexpr uint32_t FONDO_BLANCO = 0, FONDO_NEGRO = 2, TIPOS_FONDO = 3;

// Indices of one palette in the other. They are not each other's inverse.
uint8_t de_vorn_a_autocad(uint8_t indice);
uint8_t de_autocad_a_vorn(uint8_t indice);
// Of the own palette: above 15 the AutoCAD colour.
uint32_t rgb_de_vorn(uint8_t indice, bool fondo_claro);

} // namespace vn::colores
