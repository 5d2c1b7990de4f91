// File names between the library (UTF-16) and the system (bytes, as a rule UTF-8).
#pragma once

#include "foundation/platform/plataforma.h"
#include <string>
#include <string_view>

namespace vn::plat {

// Bytes that are not UTF-8 come out as the lone surrogates U+DC80 to U+DCFF, one each, and a backslash within a name,
// which is a separator to the library, as U+DC5C; ruta_del_sistema turns those into the bytes again: every name that a
// directory lists can be opened.
std::basic_string<vnwchar> ruta_ancha(std::string_view bytes);
// A backslash separates like a slash. Another lone surrogate takes the three bytes that its number would take.
std::string ruta_del_sistema(std::basic_string_view<vnwchar> ruta);

} // namespace vn::plat
