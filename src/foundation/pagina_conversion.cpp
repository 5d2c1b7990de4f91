#define VN_MODULO "pagina (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/pagina_priv.h"

namespace vn {
namespace {

using vista_u = std::basic_string_view<vnwchar>;

// Counts, and writes where there is room to write.
template <class C> struct pluma {
    C *destino;
    size_t n = 0;
    void pon(uint32_t c) {
        if (destino != nullptr) destino[n] = static_cast<C>(c);
        ++n;
    }
};

constexpr uint32_t REEMPLAZO = 0xFFFD;

bool es_alto(uint32_t u) { return u >= 0xD800 && u < 0xDC00; }
bool es_bajo(uint32_t u) { return u >= 0xDC00 && u < 0xE000; }

// The character at `i`, which moves past it; a half of a pair alone is U+FFFD.
uint32_t siguiente(vista_u s, size_t &i) {
    const uint32_t u = static_cast<uint16_t>(s[i++]);
    if (u < 0xD800 || u >= 0xE000) return u;
    if (!es_alto(u) || i == s.size() || !es_bajo(static_cast<uint16_t>(s[i]))) return REEMPLAZO;
    return 0x10000 + ((u - 0xD800) << 10) + (static_cast<uint16_t>(s[i++]) - 0xDC00u);
}

// The same of UTF-8: U+FFFD for each longest piece that begins no character, as Unicode recommends.
uint32_t siguiente(std::string_view s, size_t &i) {
    const auto byte = [&](size_t k) { return static_cast<uint32_t>(static_cast<unsigned char>(s[k])); };
    const uint32_t b = byte(i++);
    if (b < 0x80) return b;
    if (b < 0xC2 || b > 0xF4) return REEMPLAZO;
    const unsigned siguen = b < 0xE0 ? 1 : b < 0xF0 ? 2 : 3;
    // The second byte's range bars overlong forms, surrogates and what lies beyond U+10FFFF.
    uint32_t minimo = b == 0xE0 ? 0xA0 : b == 0xF0 ? 0x90 : 0x80, maximo = b == 0xED ? 0x9F : b == 0xF4 ? 0x8F : 0xBF;
    uint32_t c = b & (0x3Fu >> siguen);
    for (unsigned k = 0; k < siguen; ++k) {
        if (i == s.size() || byte(i) < minimo || byte(i) > maximo) return REEMPLAZO;
        c = c << 6 | (byte(i++) & 0x3F);
        minimo = 0x80;
        maximo = 0xBF;
    }
    return c;
}

void pon_utf16(pluma<vnwchar> &p, uint32_t c) {
    if (c < 0x10000) return p.pon(c);
    p.pon(0xD800 + ((c - 0x10000) >> 10));
    p.pon(0xDC00 + ((c - 0x10000) & 0x3FF));
}

void pon_utf8(pluma<char> &p, uint32_t c) {
    if (c < 0x80) return p.pon(c);
    if (c < 0x800) p.pon(0xC0 | c >> 6);
    else {
        if (c < 0x10000) p.pon(0xE0 | c >> 12);
        else {
            p.pon(0xF0 | c >> 18);
            p.pon(0x80 | (c >> 12 & 0x3F));
        }
        p.pon(0x80 | (c >> 6 & 0x3F));
    }
    p.pon(0x80 | (c & 0x3F));
}

} // namespace

size_t utf8_a_ancho(std::string_view s, vnwchar *destino) {
    pluma<vnwchar> p{destino};
    for (size_t i = 0; i < s.size();) pon_utf16(p, siguiente(s, i));
    return p.n;
}

size_t ancho_a_utf8(vista_u s, char *destino) {
    pluma<char> p{destino};
    for (size_t i = 0; i < s.size();) pon_utf8(p, siguiente(s, i));
    return p.n;
}

size_t a_ancho(const pagina &pag, std::string_view s, vnwchar *destino) {
    if (pag.utf8) return utf8_a_ancho(s, destino);
    if (!pag.doble) {
        if (destino != nullptr)
            for (size_t i = 0; i < s.size(); ++i)
                destino[i] = static_cast<vnwchar>(pag.unidad[static_cast<unsigned char>(s[i])]);
        return s.size();
    }
    pluma<vnwchar> p{destino};
    for (size_t i = 0; i < s.size();) {
        const unsigned a = static_cast<unsigned char>(s[i++]);
        if (!pag.lider[a] || i == s.size()) {
            p.pon(pag.unidad[a]);
            continue;
        }
        const unsigned b = static_cast<unsigned char>(s[i]);
        const char16_t u = pag.pares[a << 8 | b];
        p.pon(u != 0 ? u : REEMPLAZO);
        if (u != 0 || b >= 0x80) ++i; // an ASCII character after a broken one is not eaten
    }
    return p.n;
}

size_t a_pagina(const pagina &pag, vista_u s, char *destino, bool &perdida, bool sin_acentos) {
    pluma<char> p{destino};
    for (size_t i = 0; i < s.size();) {
        const size_t antes = i;
        const uint32_t c = siguiente(s, i);
        if (pag.utf8) {
            perdida |= c == REEMPLAZO && s[antes] != static_cast<vnwchar>(REEMPLAZO);
            pon_utf8(p, c);
            continue;
        }
        if (c < 0x80) {
            p.pon(c);
            continue;
        }
        uint16_t codigo = c < 0x10000 ? pag.codigo(static_cast<char16_t>(c)) : uint16_t{0};
        if (codigo == 0) {
            perdida = true;
            if (sin_acentos && c < 0x10000) codigo = pag.codigo(mapas().sin_acento[c]);
            if (codigo == 0) codigo = '?';
        }
        if (codigo > 0xFF) p.pon(codigo >> 8u);
        p.pon(codigo & 0xFFu);
    }
    return p.n;
}

} // namespace vn
