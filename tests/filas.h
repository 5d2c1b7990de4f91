// Rows of figures and texts that a test keeps as data, in tests/datos/: a file per module, a section per table.
//
//   [limites]                                                          a line of its own begins a section
//   0.5 <TAB> 12 <TAB> "texto" as it stands <TAB> \N                   \N: null; \t \n \r \\ and \xNN in texts
//   # comment
//
//   for (const auto &[x, n, texto, nada] : vn::filas<double, int, std::string, vn::nulable>("units/m.tsv", "limites"))
//
// A row that has not these fields fails the test, and so does a section that is not there.
#pragma once

#include "prueba.h"
#include <charconv>
#include <fstream>
#include <gtest/gtest.h>
#include <optional>
#include <string>
#include <tuple>
#include <type_traits>
#include <vector>

namespace vn {

// A text or null; c_str() is what the operation is given.
struct nulable {
    std::optional<std::string> texto;
    const char *c_str() const { return texto ? texto->c_str() : nullptr; }
};
// The same, wide.
struct nulable_ancho {
    std::optional<std::basic_string<vnwchar>> texto;
    const vnwchar *c_str() const { return texto ? texto->c_str() : nullptr; }
};

namespace campo {

template <class N, class... A> bool numero(const char *p, const char *fin, N &n, A... a) {
    const auto r = std::from_chars(p, fin, n, a...);
    return r.ec == std::errc() && r.ptr == fin;
}
// Numbers as they are written in C++, not by the locale: 12, -0x1F, 1e300, 0x1p-3, inf, nan.
template <class N> bool lee(std::string_view t, N &n) {
    // from_chars knows signs, the lowest number's too, but not beside 0x or where none is expected.
    const bool menos = t.starts_with('-') && (std::is_unsigned_v<N> || t.starts_with("-0x"));
    if (menos) t.remove_prefix(1);
    const bool hexa = t.starts_with("0x");
    if (hexa) t.remove_prefix(2);
    const char *const p = t.data(), *const fin = p + t.size();
    bool bien;
    if constexpr (std::is_floating_point_v<N>)
        bien = numero(p, fin, n, hexa ? std::chars_format::hex : std::chars_format::general);
    else bien = numero(p, fin, n, hexa ? 16 : 10);
    if (menos) n = static_cast<N>(-n);
    return bien;
}
inline bool lee(std::string_view t, std::string &s) {
    for (; !t.empty(); t.remove_prefix(1)) {
        if (t.front() != '\\') {
            s += t.front();
            continue;
        }
        if (t.size() < 2) return false;
        const size_t cual = std::string_view("tnr\\x").find(t[1]);
        if (cual > 4) return false;
        if (cual < 4) s += "\t\n\r\\"[cual];
        else {
            unsigned char octeto = 0;
            if (t.size() < 4 || !numero(t.data() + 2, t.data() + 4, octeto, 16)) return false;
            s += static_cast<char>(octeto);
            t.remove_prefix(2);
        }
        t.remove_prefix(1);
    }
    return true;
}
inline bool lee(std::string_view t, std::basic_string<vnwchar> &s) {
    std::string estrecho;
    const bool bien = lee(t, estrecho);
    s = ancho(estrecho);
    return bien;
}
template <class S> bool lee_nulable(std::string_view t, S &s) { return t == "\\N" || lee(t, s.texto.emplace()); }
inline bool lee(std::string_view t, nulable &s) { return lee_nulable(t, s); }
inline bool lee(std::string_view t, nulable_ancho &s) { return lee_nulable(t, s); }

// The fields of a line, as they stand.
inline std::vector<std::string_view> parte(std::string_view linea) {
    std::vector<std::string_view> r;
    for (size_t t; (t = linea.find('\t')) != linea.npos; linea.remove_prefix(t + 1)) r.push_back(linea.substr(0, t));
    r.push_back(linea);
    return r;
}

} // namespace campo

template <class... T> std::vector<std::tuple<T...>> filas(const std::string &fichero, const std::string &seccion) {
    std::ifstream f(dato_propio(fichero), std::ios::binary);
    std::vector<std::tuple<T...>> r;
    bool dentro = false;
    int numero = 0;
    for (std::string linea; std::getline(f, linea);) {
        ++numero;
        if (linea.starts_with("[") && linea.ends_with("]")) dentro = linea == "[" + seccion + "]";
        else if (dentro && !linea.empty() && !linea.starts_with("# ")) {
            const auto campos = campo::parte(linea);
            auto &fila = r.emplace_back();
            size_t i = 0;
            const bool bien = campos.size() == sizeof...(T) &&
                              std::apply([&](auto &...c) { return (campo::lee(campos[i++], c) && ...); }, fila);
            EXPECT_TRUE(bien) << fichero << ":" << numero << ": not the fields of this table";
        }
    }
    EXPECT_FALSE(r.empty()) << fichero << " has no section " << seccion;
    return r;
}

} // namespace vn
