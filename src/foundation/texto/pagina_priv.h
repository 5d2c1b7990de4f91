// Code pages and letter case as tables, the same on every platform; conversions between them, UTF-8 and wide text.
#pragma once

#include "foundation/suelo/tipos.h"
#include <array>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string_view>

namespace vn::texto {

// Text of one page is converted by table, in both directions; of 65001 by rule.
struct pagina {
    uint32_t numero = 0;
    bool utf8 = false;
    bool doble = false;                 // has characters of two bytes
    std::array<bool, 256> lider{};      // first byte of two
    std::array<char16_t, 256> unidad{}; // of a byte by itself; U+FFFD if it is none
    // The byte in the other case and without accent, or the byte itself.
    std::array<unsigned char, 256> mayuscula{}, minuscula{}, sin_acento{};
    std::unique_ptr<char16_t[]> pares;                    // [first << 8 | second], 0 when it is no character
    std::array<std::unique_ptr<uint16_t[]>, 256> inversa; // by the high byte of the unit, then the low one

    // The one or two bytes of a unit, 0 when the page does not have it.
    uint16_t codigo(char16_t u) const {
        const uint16_t *fila = inversa[u >> 8].get();
        return fila != nullptr ? fila[u & 0xFF] : uint16_t{0};
    }
    // Bytes of the character that `s` begins with; a first byte at the text's end is one by itself.
    size_t bytes(const char *s, const char *fin) const {
        return doble && lider[static_cast<unsigned char>(*s)] && fin - s > 1 ? 2 : 1;
    }
};

// The page of that number, null if there is none; made at first use, alive until the process ends.
const pagina *pagina_de(uint32_t numero);
const pagina &pagina_activa();
const pagina &pagina_de_idioma(uint32_t idioma);
constexpr uint32_t PAGINA_OEM = 850;

// Text of a page to wide text. Writes at `destino` if it is not null; returns how many units.
size_t a_ancho(const pagina &p, std::string_view s, vnwchar *destino);
// Wide text to a page. `perdida` is set, never cleared, when a character becomes '?'. With `sin_acentos`, a character
// that the page does not have is tried without its accents first.
size_t a_pagina(const pagina &p, std::basic_string_view<vnwchar> s, char *destino, bool &perdida,
                bool sin_acentos = false);
size_t utf8_a_ancho(std::string_view s, vnwchar *destino);
size_t ancho_a_utf8(std::basic_string_view<vnwchar> s, char *destino);

// Case of every unit, in pairs that lead back and forth, and the letter without accents.
struct mapas_de_unidades {
    std::array<char16_t, 65536> mayuscula, minuscula, sin_acento;
};
const mapas_de_unidades &mapas();

inline vnwchar a_minuscula(vnwchar c) {
    if (c < 0x80) return c >= 'A' && c <= 'Z' ? static_cast<vnwchar>(c + 32) : c;
    return static_cast<vnwchar>(mapas().minuscula[static_cast<uint16_t>(c)]);
}
inline vnwchar a_mayuscula(vnwchar c) {
    if (c < 0x80) return c >= 'a' && c <= 'z' ? static_cast<vnwchar>(c - 32) : c;
    return static_cast<vnwchar>(mapas().mayuscula[static_cast<uint16_t>(c)]);
}
inline vnwchar sin_acento(vnwchar c) {
    return c < 0xC0 ? c : static_cast<vnwchar>(mapas().sin_acento[static_cast<uint16_t>(c)]);
}
inline bool es_acento_suelto(vnwchar c) { return c >= 0x300 && c <= 0x36F; }

} // namespace vn::texto
