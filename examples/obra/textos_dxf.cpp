#include "textos_dxf.h"
#include "foundation/unicode.h"
#include "posesion.h"
#include <charconv>

namespace obra {
namespace {

// The value of `n` digits of a base at s[i], or -1.
int cifras(const texto &s, size_t i, size_t n, int base) {
    int v = 0;
    for (size_t k = i; k < i + n; ++k) {
        if (k >= s.size()) return -1;
        const auto c = static_cast<uint32_t>(s[k]);
        int d = -1;
        if (c >= '0' && c <= '9') d = static_cast<int>(c - '0');
        else if ((c | 32) >= 'a' && (c | 32) <= 'f') d = static_cast<int>((c | 32) - 'a') + 10;
        if (d < 0 || d >= base) return -1;
        v = v * base + d;
    }
    return v;
}

// One escape at s[i]: the unit that it stands for and its length, or length 0.
std::pair<vnwchar, size_t> escape(const texto &s, size_t i) {
    if (s[i] == '\\' && s.compare(i, 3, VNU("\\U+")) == 0) {
        if (const int v = cifras(s, i + 3, 4, 16); v > 0) return {static_cast<vnwchar>(v), 7};
    }
    if (s[i] == '%' && i + 2 < s.size() && s[i + 1] == '%') {
        switch (static_cast<uint32_t>(s[i + 2]) | 32) {
        case 'c': return {vnwchar{0x2205}, 3}; // diameter
        case 'd': return {vnwchar{0x00B0}, 3}; // degree
        case 'p': return {vnwchar{0x00B1}, 3}; // plus or minus
        default: break;
        }
        if (const int v = cifras(s, i + 2, 3, 10); v >= 32 && v < 256) return {unicode_caracter_ANSI_a_UNICODE(static_cast<char>(v)), 5};
    }
    return {vnwchar{0}, 0};
}

} // namespace

pagina_del_dibujo::pagina_del_dibujo(const std::string &version, const std::string &pagina) : anterior_(unicode_pagina_ANSI()) {
    uint32_t numero = 1252;
    if (version >= "AC1021") numero = 65001;
    else if (const size_t cifra = pagina.find_first_of("0123456789"); cifra != std::string::npos)
        std::from_chars(pagina.data() + cifra, pagina.data() + pagina.size(), numero);
    if (unicode_establece_pagina_ANSI(numero) == FALSO) unicode_establece_pagina_ANSI(1252);
}

pagina_del_dibujo::~pagina_del_dibujo() { unicode_establece_pagina_ANSI(anterior_); }

texto a_texto(const std::string &bytes) {
    const dueno_ancho t(unicode_convierte_ANSI_a_UNICODE(bytes.c_str()));
    const texto s = t ? texto(t.get()) : texto();
    texto r;
    for (size_t i = 0; i < s.size();) {
        const auto [unidad, n] = escape(s, i);
        r += n != 0 ? unidad : s[i];
        i += n != 0 ? n : 1;
    }
    return r;
}

std::string sin_formato(const std::string &s) {
    std::string r;
    for (size_t i = 0; i < s.size(); ++i) {
        if (s[i] == '{' || s[i] == '}') continue;
        if (s[i] != '\\' || i + 1 == s.size()) {
            r += s[i];
            continue;
        }
        const char c = s[++i];
        if (c == 'P' || c == 'n' || c == '~') r += ' ';
        else if (c == 'U' || c == 'M') (r += '\\') += c; // a character by its number: read later
        else if (c == '\\' || c == '{' || c == '}') r += c;
        else if (std::string_view("LlOoKk").find(c) == std::string_view::npos) {
            // Height, width, font, colour, alignment, stacking...: up to the semicolon.
            const size_t fin = s.find(';', i);
            if (c == 'S' && fin != std::string::npos) r += s.substr(i + 1, fin - i - 1);
            i = fin == std::string::npos ? s.size() - 1 : fin;
        }
    }
    return r;
}

} // namespace obra
