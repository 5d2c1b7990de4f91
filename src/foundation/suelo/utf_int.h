// One character of UTF-8 or UTF-16, read or written: what every conversion of the library is made of.
#pragma once

#include "foundation/suelo/tipos.h"
#include <string_view>

namespace vn::inline suelo {

constexpr uint32_t REEMPLAZO = 0xFFFD;

constexpr bool es_alto(uint32_t u) { return u >= 0xD800 && u < 0xDC00; }
constexpr bool es_bajo(uint32_t u) { return u >= 0xDC00 && u < 0xE000; }

// The character at `i`, which moves past it; half of a pair alone is itself.
constexpr uint32_t lee_utf16(std::basic_string_view<vnwchar> s, size_t &i) {
    const uint32_t u = static_cast<uint16_t>(s[i++]);
    if (!es_alto(u) || i == s.size() || !es_bajo(static_cast<uint16_t>(s[i]))) return u;
    return 0x10000 + ((u - 0xD800) << 10) + (static_cast<uint16_t>(s[i++]) - 0xDC00u);
}

// The character at `i`, which moves past it; false where there is none, past the longest piece that begins one.
constexpr bool lee_utf8(std::string_view s, size_t &i, uint32_t &c) {
    const auto byte = [&](size_t k) { return static_cast<uint32_t>(static_cast<unsigned char>(s[k])); };
    const uint32_t b = byte(i++);
    c = b;
    if (b < 0x80) return true;
    if (b < 0xC2 || b > 0xF4) return false;
    const unsigned siguen = b < 0xE0 ? 1 : b < 0xF0 ? 2 : 3;
    // The second byte's range bars overlong forms, surrogates and what lies beyond U+10FFFF.
    uint32_t minimo = b == 0xE0 ? 0xA0 : b == 0xF0 ? 0x90 : 0x80, maximo = b == 0xED ? 0x9F : b == 0xF4 ? 0x8F : 0xBF;
    c = b & (0x3Fu >> siguen);
    for (unsigned k = 0; k < siguen; ++k) {
        if (i == s.size() || byte(i) < minimo || byte(i) > maximo) return false;
        c = c << 6 | (byte(i++) & 0x3F);
        minimo = 0x80;
        maximo = 0xBF;
    }
    return true;
}

// Writes the units of a character, one or two, and returns how many.
constexpr size_t escribe_utf16(uint32_t c, vnwchar *u) {
    u[0] = static_cast<vnwchar>(c < 0x10000 ? c : 0xD800 + ((c - 0x10000) >> 10));
    if (c < 0x10000) return 1;
    u[1] = static_cast<vnwchar>(0xDC00 + ((c - 0x10000) & 0x3FF));
    return 2;
}

// Writes the bytes of a character, at most four, and returns how many; half of a pair gets the three of its number.
constexpr size_t escribe_utf8(uint32_t c, char *u) {
    if (c < 0x80) {
        u[0] = static_cast<char>(c);
        return 1;
    }
    const size_t n = c < 0x800 ? 2 : c < 0x10000 ? 3 : 4;
    for (size_t k = n - 1; k > 0; --k, c >>= 6) u[k] = static_cast<char>(0x80 | (c & 0x3F));
    constexpr uint32_t PRIMERO[] = {0, 0, 0xC0, 0xE0, 0xF0};
    u[0] = static_cast<char>(PRIMERO[n] | c);
    return n;
}

} // namespace vn::suelo
