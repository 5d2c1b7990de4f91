#include "textos_dxf.h"
#include "posesion.h"
#include <charconv>
#include <nucleos/foundation/texto/unicode.h>

namespace obra {
namespace {

constexpr vnwchar ESPACIO = ' ', BARRA = '\\', ACENTO = '^';

texto de(vnwchar *nuevo) {
    const dueno_ancho t(nuevo);
    return t ? texto(t.get()) : texto();
}

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

// A character of one of the five pages that \M+ knows, by its two bytes.
texto de_pagina(int cual, int bytes) {
    constexpr uint32_t PAGINAS[] = {932, 950, 949, 1361, 936};
    const uint32_t antes = unicode_pagina_ANSI();
    if (cual < 1 || cual > 5 || unicode_establece_pagina_ANSI(PAGINAS[cual - 1]) == FALSO) return {};
    const char s[] = {static_cast<char>(bytes >> 8), static_cast<char>(bytes), 0};
    const texto t = de(unicode_convierte_ANSI_a_UNICODE(s[0] == 0 ? s + 1 : s));
    unicode_establece_pagina_ANSI(antes);
    return t;
}

// What a code at s[i] stands for, and its length: 0 where there is none.
struct codigo {
    texto vale;
    size_t largo = 0;
};

codigo con_barra(const texto &s, size_t i) {
    if (s.compare(i, 3, VNU("\\U+")) == 0) {
        if (const int v = cifras(s, i + 3, 4, 16); v > 0) return {texto(1, static_cast<vnwchar>(v)), 7};
    }
    if (s.compare(i, 3, VNU("\\M+")) == 0) {
        const int v = cifras(s, i + 4, 4, 16);
        if (const texto t = v > 0 ? de_pagina(cifras(s, i + 3, 1, 10), v) : texto(); !t.empty()) return {t, 8};
    }
    return {};
}

codigo con_por_cientos(const texto &s, size_t i) {
    if (i + 2 >= s.size() || s[i + 1] != '%') return {};
    switch (static_cast<uint32_t>(s[i + 2]) | 32) {
    case 'c': return {texto(1, vnwchar{0x2205}), 3}; // diameter
    case 'd': return {texto(1, vnwchar{0x00B0}), 3}; // degree
    case 'p': return {texto(1, vnwchar{0x00B1}), 3}; // plus or minus
    case 'u':
    case 'o':
    case 'k': return {{}, 3}; // a line under, over or through
    case '%': return {texto(1, vnwchar{'%'}), 3};
    default: break;
    }
    if (const int v = cifras(s, i + 2, 3, 10); v >= 32 && v < 256)
        return {texto(1, unicode_caracter_ANSI_a_UNICODE(static_cast<char>(v))), 5};
    return {};
}

// A control character; the circumflex itself has a blank behind it.
codigo con_acento(const texto &s, size_t i) {
    if (i + 1 >= s.size()) return {};
    if (s[i + 1] == ESPACIO) return {texto(1, ACENTO), 2};
    if (s[i + 1] < '@' || s[i + 1] > '_') return {};
    const bool separa = s[i + 1] == 'I' || s[i + 1] == 'J' || (s[i + 1] == 'M' && s.compare(i + 2, 2, VNU("^J")) != 0);
    return {separa ? texto(1, ESPACIO) : texto(), 2};
}

codigo codigo_en(const texto &s, size_t i) {
    if (s[i] == BARRA) return con_barra(s, i);
    if (s[i] == '%') return con_por_cientos(s, i);
    return s[i] == ACENTO ? con_acento(s, i) : codigo{};
}

// Takes what stands at s[i] to the end of `r`, and goes beyond it.
void pasa(texto &r, const texto &s, size_t &i) {
    const codigo c = codigo_en(s, i);
    r += c.largo != 0 ? c.vale : texto(1, s[i]);
    i += c.largo != 0 ? c.largo : 1;
}

// "\S2^ ;", "\S1/2;": what stands above and below another, from s[i] to its end.
void pasa_apilado(texto &r, const texto &s, size_t &i) {
    for (; i < s.size() && s[i] != ';' && s[i] != '}'; ++i) {
        if (s[i] == ACENTO) {
            if (i + 1 < s.size() && s[i + 1] == ESPACIO) ++i;
            if (i + 1 < s.size() && s[i + 1] != ';' && !r.empty() && r.back() != ESPACIO) r += ESPACIO;
        } else if (s[i] == '#') r += vnwchar{'/'};
        else if (s[i] == BARRA && i + 1 < s.size()) r += s[++i];
        else r += s[i];
    }
    if (i < s.size() && s[i] == ';') ++i;
}

// The argument of a formatting code, from s[i] on. One that has no end takes no more than can be its own.
void salta_argumento(vnwchar de_que, const texto &s, size_t &i) {
    const size_t fin = s.find_first_of(VNU(";\\{}"), i);
    if (fin != texto::npos && s[fin] == ';') i = fin + 1;
    else if (de_que != 'f' && de_que != 'F' && de_que != 'p') {
        while (i < s.size() && texto(VNU("0123456789.+-x")).find(s[i]) != texto::npos) ++i;
    }
}

// A formatting code at s[i], which is a backslash.
void pasa_formato(texto &r, const texto &s, size_t &i) {
    const vnwchar c = s[i + 1];
    const auto es_de = [c](const vnwchar *cuales) { return texto(cuales).find(c) != texto::npos; };
    if (con_barra(s, i).largo != 0) return pasa(r, s, i);
    i += 2;
    if (es_de(VNU("PNXn~"))) r += ESPACIO;
    else if (es_de(VNU("\\{}"))) r += c;
    else if (c == 'S') pasa_apilado(r, s, i);
    else if (es_de(VNU("ACcFfHQTWp"))) salta_argumento(c, s, i);
    else if (!es_de(VNU("LlOoKk"))) (r += BARRA) += c; // no code
}

} // namespace

textos_dxf::textos_dxf(const std::string &version, const std::string &pagina)
    : anterior_(unicode_pagina_ANSI()), utf8_(version >= "AC1021") {
    uint32_t numero = 1252;
    if (const size_t cifra = pagina.find_first_of("0123456789"); cifra != std::string::npos)
        std::from_chars(pagina.data() + cifra, pagina.data() + pagina.size(), numero);
    if (numero == 65001 || unicode_establece_pagina_ANSI(numero) == FALSO) unicode_establece_pagina_ANSI(1252);
}

textos_dxf::~textos_dxf() { unicode_establece_pagina_ANSI(anterior_); }

// Some programs write UTF-8 in name only.
texto textos_dxf::ancho(const std::string &bytes) const {
    if (utf8_) {
        const texto t = de(unicode_convierte_UTF8_a_UNICODE(bytes.c_str()));
        if (t.find(vnwchar{0xFFFD}) == texto::npos || bytes.find("\xEF\xBF\xBD") != std::string::npos) return t;
    }
    return de(unicode_convierte_ANSI_a_UNICODE(bytes.c_str()));
}

texto textos_dxf::sencillo(const std::string &bytes) const {
    const texto s = ancho(bytes);
    texto r;
    for (size_t i = 0; i < s.size();) pasa(r, s, i);
    return r;
}

texto textos_dxf::parrafo(const std::string &bytes) const {
    const texto s = ancho(bytes);
    texto r;
    for (size_t i = 0; i < s.size();) {
        if (s[i] == '{' || s[i] == '}') ++i;
        else if (s[i] == BARRA && i + 1 < s.size()) pasa_formato(r, s, i);
        else pasa(r, s, i);
    }
    return r;
}

} // namespace obra
