#define VN_MODULO "pagina (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/cadena_int.h"
#include "foundation/suelo/utf_int.h"
#include "foundation/texto/pagina_priv.h"

namespace vn::texto {
namespace {

// Counts, and writes where there is room to write.
template <class C> struct pluma {
    C *destino;
    size_t n = 0;
    void pon(uint32_t c) {
        if (destino != nullptr) destino[n] = static_cast<C>(c);
        ++n;
    }
};

// The character at `i`, which moves past it. What is none is U+FFFD: half of a pair alone, and each longest piece of
// UTF-8 that begins no character, as Unicode recommends.
uint32_t siguiente(vista_ancha s, size_t &i) {
    const uint32_t c = lee_utf16(s, i);
    return es_alto(c) || es_bajo(c) ? REEMPLAZO : c;
}
uint32_t siguiente(std::string_view s, size_t &i) {
    uint32_t c = 0;
    return lee_utf8(s, i, c) ? c : REEMPLAZO;
}

void pon_utf16(pluma<vnwchar> &p, uint32_t c) {
    vnwchar u[2];
    p.n += escribe_utf16(c, p.destino != nullptr ? p.destino + p.n : u);
}

void pon_utf8(pluma<char> &p, uint32_t c) {
    char u[4];
    p.n += escribe_utf8(c, p.destino != nullptr ? p.destino + p.n : u);
}

} // namespace

size_t utf8_a_ancho(std::string_view s, vnwchar *destino) {
    pluma<vnwchar> p{destino};
    for (size_t i = 0; i < s.size();) pon_utf16(p, siguiente(s, i));
    return p.n;
}

size_t ancho_a_utf8(vista_ancha s, char *destino) {
    pluma<char> p{destino};
    for (size_t i = 0; i < s.size();) pon_utf8(p, siguiente(s, i));
    return p.n;
}

size_t a_ancho(const pagina &pag, std::string_view s, vnwchar *destino) {
    if (pag.utf8) return utf8_a_ancho(s, destino);
    // A page of single bytes is one look-up to each, as most texts are.
    if (!pag.doble) {
        if (destino != nullptr)
            for (size_t i = 0; i < s.size(); ++i)
                destino[i] = static_cast<vnwchar>(pag.unidad[static_cast<unsigned char>(s[i])]);
        return s.size();
    }
    pluma<vnwchar> p{destino};
    for (size_t i = 0; i < s.size();) {
        const unsigned a = static_cast<unsigned char>(s[i++]);
        // A first byte at the very end of the text has nothing to pair with.
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

size_t a_pagina(const pagina &pag, vista_ancha s, char *destino, bool &perdida, bool sin_acentos) {
    pluma<char> p{destino};
    for (size_t i = 0; i < s.size();) {
        const size_t antes = i;
        const uint32_t c = siguiente(s, i);
        if (pag.utf8) {
            // A replacement character that stood in the text is no loss.
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
            // The letter without its accents is still readable; a question mark is not.
            if (sin_acentos && c < 0x10000) codigo = pag.codigo(mapas().sin_acento[c]);
            if (codigo == 0) codigo = '?';
        }
        // Codes above 255 are pairs, the first byte above.
        if (codigo > 0xFF) p.pon(codigo >> 8u);
        p.pon(codigo & 0xFFu);
    }
    return p.n;
}

} // namespace vn::texto
