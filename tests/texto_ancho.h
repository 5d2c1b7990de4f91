// Lists of texts as one text and back, and paths as a test writes them.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include "prueba.h"
#include <algorithm>
#include <filesystem>

namespace vn {

constexpr bool EN_WINDOWS = std::filesystem::path::preferred_separator == '\\';

// Takes over a list, as one line: "a|b|c".
inline std::string toma(arrCADENA_u *a) {
    std::string r;
    for (uint32_t i = 0; i < arr_NumElemsCADENA_u(a); ++i) r += (i > 0 ? "|" : "") + utf8_de(arr_GetCADENA_u(a, i));
    arr_DestruyeCADENA_u(&a);
    return r;
}
inline std::string toma(arrCADENA *a) {
    std::string r;
    for (uint32_t i = 0; i < arr_NumElemsCADENA(a); ++i) {
        const char *s = arr_GetCADENA(a, i);
        r += (i > 0 ? "|" : "") + std::string(s != nullptr ? s : "~");
    }
    arr_DestruyeCADENA(&a);
    return r;
}
using textos = dueno<arr_DestruyeCADENA_u>;
inline textos textos_de(std::initializer_list<const char *> utf8) {
    textos a(arr_CreaCADENA_u(0));
    for (const char *t : utf8) arr_AppendCADENA_u(a.get(), ancho(t).c_str());
    return a;
}
// The path with the platform's separators.
inline std::string propia(std::string ruta) {
    std::replace_if(
        ruta.begin(), ruta.end(), [](char c) { return c == '\\' || c == '/'; }, EN_WINDOWS ? '\\' : '/');
    return ruta;
}

} // namespace vn
