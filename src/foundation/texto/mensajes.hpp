// A module's messages as rows, for the library's C++ and for hosts in C++. A row gives the id (or, of a message without
// one, a name), the ordinal (0 when left out) and the texts in UTF-8 of the languages that the rule for missing ones
// does not give. Of them the compiler makes the columns for both readers, with the id before each text.
//
//     // vornbin_msg.inl
//     M(32342, 4, ES("El fichero %s..."), EN("The file %s..."), FR("Le fichier %s..."))
//
//     #define M(id, ...) VN_MENSAJE(msg_##id, "vornbin.msg", id, __VA_ARGS__)
//     #include "persistence/vornbin_msg.inl"
//     #undef M
//
//     textomsgu_obtener_mensaje(msg_32342.u, nombre)     the wide reader
//     nousar_msglocal_original(msg_32342.a)              the ANSI reader
//
// A row that lacks Spanish or English, gives a language twice, writes an id in a text or has other placeholders in some
// text than in the Spanish one does not compile.
#ifndef VN_MENSAJES_HPP
#define VN_MENSAJES_HPP

#include "msglocal.h"
#include <cstddef>
#include <string_view>

// The columns with a text of their own. ES_AM stands for the three of American Spanish.
// clang-format off
#define VN_COLUMNAS(X)                                                                                                 \
    X(ES, 0) X(FR, 1) X(PT_BR, 2) X(PT, 3) X(CA, 4) X(IT, 5) X(ES_AM, 6) X(EN, 8) X(GL, 9) X(BG, 10) X(RO, 11)         \
    X(ZH, 12) X(DE, 13) X(RU, 18) X(PL, 31) X(TR, 33) X(JA, 39)
// clang-format on

// A row as a value that the compiler reads; and the constant that a row defines.
#define VN_FILA_MENSAJE(grupo, id, ...)                                                                                \
    [] {                                                                                                               \
        using namespace ::vn::idiomas;                                                                                 \
        return ::vn::mensajes::fila(grupo, #id, __VA_ARGS__);                                                          \
    }
#define VN_MENSAJE(nombre, grupo, id, ...)                                                                             \
    [[maybe_unused]] constexpr ::vn::mensaje nombre(VN_FILA_MENSAJE(grupo, id, __VA_ARGS__));

namespace vn {

enum class columna : unsigned char {
#define VN_COLUMNA(idioma, numero) idioma = numero,
    VN_COLUMNAS(VN_COLUMNA)
#undef VN_COLUMNA
};

// Where a column without a text of its own takes it from: 14 to 17 and 19 to 23 repeat Spanish, 25 to 30, 32, 34 to 38
// and 40 English, American Spanish is Spanish and that of Portugal Brazil's; a language that a row leaves out shows
// Spanish where it is a neighbour of it (Catalan, Galician), else English.
constexpr columna columna_de_reserva(unsigned i) {
    // clang-format off
    switch (i) {
    case 6: case 4: case 9: return columna::ES;
    case 7: case 24: return columna::ES_AM;
    case 3: return columna::PT_BR;
    default: return (i >= 14 && i <= 17) || (i >= 19 && i <= 23) ? columna::ES : columna::EN;
    }
    // clang-format on
}

// ---------------------------------------------------------------- a row

namespace mensajes {

constexpr unsigned indice(columna c) { return static_cast<unsigned>(c); }

struct texto_en {
    columna en;
    const char *texto;
};

// The same placeholders in the same order: a letter after each percent sign.
constexpr bool mismos_huecos(const char *a, const char *b) {
    const auto siguiente = [](const char *&s) {
        while (*s != 0 && *s != '%') ++s;
        if (*s == 0) return '\0';
        const char letra = s[1];
        s += letra == 0 ? 1 : 2;
        return letra;
    };
    for (;;) {
        const char x = siguiente(a), y = siguiente(b);
        if (x != y) return false;
        if (x == 0) return true;
    }
}

// The texts of a row, and which column's text each column shows.
struct columnas {
    const char *texto[MSGLOCAL_NUM_TEXTOS] = {};
    unsigned char de[MSGLOCAL_NUM_TEXTOS] = {};

    constexpr bool hay() const { return texto[indice(columna::ES)] != nullptr; }
    constexpr void pon(texto_en t) {
        const unsigned i = indice(t.en);
        if (texto[i] != nullptr) throw "a language is given twice";
        texto[i] = t.texto;
        de[i] = static_cast<unsigned char>(i);
    }
    constexpr void completa() {
        const char *es = texto[indice(columna::ES)];
        if (es == nullptr || texto[indice(columna::EN)] == nullptr) throw "Spanish or English is missing";
        for (const char *t : texto) {
            if (t == nullptr) continue;
            if (t[0] == '<' && t[1] >= '0' && t[1] <= '9') throw "a text writes its id";
            if (!mismos_huecos(es, t)) throw "a text has other placeholders";
        }
        // ES_AM before 7 and 24, which repeat it, and Brazil's before Portugal's.
        for (unsigned i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) {
            if (texto[i] != nullptr) continue;
            const unsigned otra = indice(columna_de_reserva(i));
            texto[i] = texto[otra];
            de[i] = de[otra];
        }
    }
};

// What a row may hold beside texts: those for the ANSI reader, in the code pages of their languages, where a page lacks
// a letter and the text is to be another. A row without them has the wide ones, coded where they are not ASCII.
struct paginas {
    columnas textos;
};

// The units of a text in UTF-8, one after the other.
template <class F> constexpr void recorre_unidades(const char *s, F cada) {
    while (*s != 0) {
        const auto c = static_cast<unsigned char>(*s++);
        const int siguen = c < 0x80 ? 0 : c < 0xE0 ? 1 : c < 0xF0 ? 2 : 3;
        if ((c >= 0x80 && c < 0xC2) || c > 0xF4) throw "a text is not UTF-8";
        uint32_t u = siguen == 0 ? c : c & (0x3Fu >> siguen);
        for (int i = 0; i < siguen; ++i, ++s) {
            const auto resto = static_cast<unsigned char>(*s);
            if ((resto & 0xC0) != 0x80) throw "a text is not UTF-8";
            u = u << 6 | (resto & 0x3F);
        }
        if (u < 0x10000) {
            cada(static_cast<uint16_t>(u));
        } else {
            cada(static_cast<uint16_t>(0xD7C0 + (u >> 10)));
            cada(static_cast<uint16_t>(0xDC00 | (u & 0x3FF)));
        }
    }
}

struct fila {
    const char *grupo;
    std::string_view id; // its digits; empty for a message without one
    uint32_t orden = 0;
    columnas textos, ansi;

    template <class... P> constexpr fila(const char *el_grupo, std::string_view id_o_nombre, P... partes)
        : grupo(el_grupo), id(id_o_nombre[0] >= '0' && id_o_nombre[0] <= '9' ? id_o_nombre : std::string_view()) {
        (pon(partes), ...);
        for (const char *t : textos.texto)
            if (t != nullptr) recorre_unidades(t, [](uint16_t) {});
        textos.completa();
        if (ansi.hay() && !mismos_huecos(textos.texto[0], ansi.texto[0]))
            throw "the ANSI texts have other placeholders";
    }
    constexpr uint32_t ancho_id() const { return id.empty() ? 0 : static_cast<uint32_t>(id.size()) + 2; }

  private:
    constexpr void pon(uint32_t el_orden) { orden = el_orden; }
    constexpr void pon(texto_en t) { textos.pon(t); }
    constexpr void pon(paginas p) { ansi = p.textos; }
};

} // namespace mensajes

// What a row is written with.
namespace idiomas {
#define VN_COLUMNA(idioma, numero)                                                                                     \
    constexpr mensajes::texto_en idioma(const char *texto) { return {columna::idioma, texto}; }
VN_COLUMNAS(VN_COLUMNA)
#undef VN_COLUMNA
template <class... T> constexpr mensajes::paginas ANSI(T... textos) {
    mensajes::paginas p;
    (p.textos.pon(textos), ...);
    p.textos.completa();
    return p;
}
} // namespace idiomas

// ---------------------------------------------------------------- from a row to the texts of a reader

namespace mensajes {

template <class C> constexpr const columnas &columnas_de(const fila &f) {
    return sizeof(C) == 1 && f.ansi.hay() ? f.ansi : f.textos;
}

template <class F> constexpr void recorre_id(std::string_view id, F cada) {
    if (id.empty()) return;
    cada('<');
    for (const char cifra : id) cada(static_cast<unsigned char>(cifra));
    cada('>');
}

// The text of a column with its id, as the reader of texts of the third argument's type takes it.
template <class F> constexpr void recorre_texto(const fila &f, unsigned i, vnwchar, F cada) {
    recorre_id(f.id, cada);
    recorre_unidades(f.textos.texto[i], cada);
}
template <class F> constexpr void recorre_texto(const fila &f, unsigned i, char, F cada) {
    const char *texto = columnas_de<char>(f).texto[i];
    bool ascii = true;
    for (const char *s = texto; *s != 0; ++s) ascii = ascii && static_cast<unsigned char>(*s) < 0x80;
    if (f.ansi.hay() || ascii) {
        recorre_id(f.id, cada);
        while (*texto != 0) cada(static_cast<unsigned char>(*texto++));
        return;
    }
    for (int k = 0; k < 4; ++k) cada('F');
    recorre_texto(f, i, vnwchar(), [&](uint16_t unidad) {
        for (const int bits : {4, 0, 12, 8}) cada("0123456789abcdef"[unidad >> bits & 15]); // the lower byte first
    });
}

// The texts of a row, each once with a zero behind it, and where each column's begins.
template <class C, size_t N> struct repartidos {
    C letras[N];
    uint32_t donde[MSGLOCAL_NUM_TEXTOS];
};
template <class C> constexpr size_t mide(const fila &f) {
    size_t n = 0;
    for (unsigned i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) {
        if (columnas_de<C>(f).de[i] != i) continue;
        recorre_texto(f, i, C(), [&](uint16_t) { ++n; });
        ++n;
    }
    return n;
}
template <class C, size_t N> constexpr repartidos<C, N> reparte(const fila &f) {
    repartidos<C, N> r{};
    uint32_t n = 0;
    for (unsigned i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) {
        if (columnas_de<C>(f).de[i] != i) continue;
        r.donde[i] = n;
        recorre_texto(f, i, C(), [&](uint16_t c) { r.letras[n++] = static_cast<C>(c); });
        ++n;
    }
    for (unsigned i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) r.donde[i] = r.donde[columnas_de<C>(f).de[i]];
    return r;
}
template <class C, class F> inline constexpr auto REPARTIDOS = reparte<C, mide<C>(F{}())>(F{}());

} // namespace mensajes

// A message, whose row is what an `F` gives.
template <class F> struct mensaje {
    constexpr explicit mensaje(F) { static_assert((F{}(), true)); }

    // Its fillers, for the wide reader and for the ANSI one.
    static void u(vnmensaje *m) { rellena<vnwchar>(m); }
    static void a(vnmensaje *m) { rellena<char>(m); }
    // That of the reader of texts of `C`.
    template <class C> static void rellena(vnmensaje *m) {
        constexpr const char *GRUPO = F{}().grupo;
        constexpr uint32_t ORDEN = orden(), ANCHO_ID = F{}().ancho_id();
        *m = {GRUPO, ORDEN, ANCHO_ID, {}, nullptr};
        const auto &textos = mensajes::REPARTIDOS<C, F>;
        for (size_t i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) m->textos[i] = textos.letras + textos.donde[i];
    }
    // What the compiler may ask too: the ordinal; the Spanish text without its id.
    static constexpr uint32_t orden() { return F{}().orden; }
    static constexpr const vnwchar *es() { return mensajes::REPARTIDOS<vnwchar, F>.letras + F{}().ancho_id(); }
    // Whether the row gives all of these columns itself.
    template <size_t N> static constexpr bool da(const columna (&todas)[N]) {
        for (const columna c : todas)
            if (F{}().textos.de[mensajes::indice(c)] != mensajes::indice(c)) return false;
        return true;
    }
};

} // namespace vn

#endif
