// The table form of a module's messages, and the rule that fills the columns that a row does not give.
//
//   static constexpr auto MENSAJE = vn::mensaje_u("vornbin.msg", 4, {
//       {vn::ES, VNU("<32342>El fichero...")},
//       {vn::EN, VNU("<32342>The file...")},
//   });
//   void vornbin_msg_32342(vnmensaje *mensaje) { MENSAJE.rellena(mensaje); }
//
// A row that lacks Spanish or English, gives a column twice, has another id in some text or other placeholders than the
// Spanish text does not compile.
#pragma once

#include "foundation/texto/msglocal.h"
#include <cstddef>
#include <initializer_list>
#include <utility>

namespace vn::texto {

// Columns of a message that have a text of their own. ES_AM stands for the three columns of American Spanish.
// clang-format off
enum columna : unsigned char {
    ES = 0, FR = 1, PT_BR = 2, PT = 3, CA = 4, IT = 5, ES_AM = 6, EN = 8, GL = 9, BG = 10, RO = 11, ZH = 12, DE = 13,
    RU = 18, PL = 31, TR = 33, JA = 39
};
// clang-format on

template <class C> struct texto_en {
    columna en;
    const C *texto;
};

// Where a column without a text of its own takes it from: 14 to 17 and 19 to 23 repeat Spanish, 25 to 30, 32, 34 to 38
// and 40 English, American Spanish is Spanish; a language that a row leaves out shows Spanish where it is a neighbour
// of it (Catalan, Galician), else English.
constexpr columna columna_de_reserva(unsigned i) {
    // clang-format off
    switch (i) {
    case 6: case 4: case 9: return ES;
    case 7: case 24: return ES_AM;
    default: return (i >= 14 && i <= 17) || (i >= 19 && i <= 23) ? ES : EN;
    }
    // clang-format on
}

// Characters of the id with its brackets; 0 when the text begins with none.
template <class C> constexpr uint32_t ancho_de_id(const C *texto) {
    if (texto[0] != '<') return 0;
    uint32_t n = 1;
    while (texto[n] >= '0' && texto[n] <= '9') ++n;
    return n > 1 && texto[n] == '>' ? n + 1 : 0;
}

template <class C> struct grupo_de_textos {
    const char *nombre;
    uint32_t orden;
    uint32_t ancho_id;
    const C *textos[MSGLOCAL_NUM_TEXTOS];

    void rellena(vnmensaje *m) const {
        m->nombre = nombre;
        m->orden = orden;
        m->ancho_id = ancho_id;
        for (size_t i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) m->textos[i] = textos[i];
        m->fin = nullptr;
    }
};

template <class C> consteval bool misma_forma(const C *a, const C *b, uint32_t ancho_id) {
    for (uint32_t i = 0; i < ancho_id; ++i)
        if (a[i] != b[i]) return false;
    // The same placeholders in the same order: a letter after each percent sign.
    const auto siguiente = [](const C *&s) {
        while (*s != 0 && *s != '%') ++s;
        if (*s == 0) return C{0};
        const C letra = s[1];
        s += letra == 0 ? 1 : 2;
        return letra;
    };
    for (;;) {
        const C x = siguiente(a), y = siguiente(b);
        if (x != y) return false;
        if (x == 0) return true;
    }
}

template <class C>
consteval grupo_de_textos<C> mensaje(const char *nombre, uint32_t orden, std::initializer_list<texto_en<C>> textos) {
    grupo_de_textos<C> g{nombre, orden, 0, {}};
    for (const texto_en<C> &t : textos) {
        if (g.textos[t.en] != nullptr) throw "a column is given twice";
        g.textos[t.en] = t.texto;
    }
    if (g.textos[ES] == nullptr || g.textos[EN] == nullptr) throw "Spanish or English is missing";
    g.ancho_id = ancho_de_id(g.textos[ES]);
    for (const C *texto : g.textos)
        if (texto != nullptr && !misma_forma(g.textos[ES], texto, g.ancho_id))
            throw "a text differs in id or placeholders";
    // ES_AM before 7 and 24, which repeat it.
    for (unsigned i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i)
        if (g.textos[i] == nullptr) g.textos[i] = g.textos[columna_de_reserva(i)];
    return g;
}

// A message for the wide reader, and one for the ANSI reader.
consteval grupo_de_textos<vnwchar> mensaje_u(const char *nombre, uint32_t orden,
                                             std::initializer_list<texto_en<vnwchar>> t) {
    return mensaje<vnwchar>(nombre, orden, t);
}
consteval grupo_de_textos<char> mensaje_a(const char *nombre, uint32_t orden, std::initializer_list<texto_en<char>> t) {
    return mensaje<char>(nombre, orden, t);
}

// The ANSI form of a message that is written as a wide one, a constant of static life:
//
//   constexpr auto TEXTO = vn::mensaje_u("vornconf.msg", 1, {...});
//   void vornconf_msg_1(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO>().rellena(mensaje); }
//
// A text of ASCII stands as it is, another as the hexadecimal digits of its units.
constexpr size_t longitud(const vnwchar *texto) {
    size_t n = 0;
    while (texto[n] != 0) ++n;
    return n;
}
constexpr bool es_ascii(const vnwchar *texto) {
    for (; *texto != 0; ++texto)
        if (static_cast<uint16_t>(*texto) >= 0x80) return false;
    return true;
}
template <size_t N> struct texto_ansi {
    char t[N] = {};
};
template <const grupo_de_textos<vnwchar> &G, unsigned I> consteval auto codifica() {
    constexpr const vnwchar *u = G.textos[I];
    constexpr bool ascii = es_ascii(u);
    constexpr size_t n = longitud(u);
    texto_ansi<ascii ? n + 1 : 4 * n + 5> r;
    if (!ascii)
        for (size_t i = 0; i < 4; ++i) r.t[i] = 'F';
    for (size_t i = 0; i < n; ++i) {
        const uint16_t c = static_cast<uint16_t>(u[i]);
        constexpr int DESPLAZA[] = {4, 0, 12, 8}; // the lower byte first
        for (size_t k = 0; k < 4 && !ascii; ++k) r.t[4 + 4 * i + k] = "0123456789abcdef"[c >> DESPLAZA[k] & 15];
        if (ascii) r.t[i] = static_cast<char>(c);
    }
    return r;
}
template <const grupo_de_textos<vnwchar> &G, unsigned I> inline constexpr auto CODIFICADO = codifica<G, I>();
// The first column with the text of column `i`: those that repeat it take its constant.
consteval unsigned primera_igual(const grupo_de_textos<vnwchar> &g, unsigned i) {
    for (unsigned k = 0; k < i; ++k) {
        const vnwchar *a = g.textos[k], *b = g.textos[i];
        while (*a != 0 && *a == *b) ++a, ++b;
        if (*a == *b) return k;
    }
    return i;
}
template <const grupo_de_textos<vnwchar> &G, unsigned... I>
consteval grupo_de_textos<char> ansi_de(std::integer_sequence<unsigned, I...>) {
    return {G.nombre, G.orden, G.ancho_id, {CODIFICADO<G, primera_igual(G, I)>.t...}};
}
template <const grupo_de_textos<vnwchar> &G> consteval grupo_de_textos<char> mensaje_ansi() {
    return ansi_de<G>(std::make_integer_sequence<unsigned, MSGLOCAL_NUM_TEXTOS>());
}

} // namespace vn::texto
