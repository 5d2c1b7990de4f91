// Wide results of the library as UTF-8 text, and paths as a test writes them.
#pragma once

#include "foundation/listas/arr.h"
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
// The path with the platform's separators.
inline std::string propia(std::string ruta) {
    std::replace_if(
        ruta.begin(), ruta.end(), [](char c) { return c == '\\' || c == '/'; }, EN_WINDOWS ? '\\' : '/');
    return ruta;
}

} // namespace vn
