// File names for the system's calls.
#pragma once

#include <string>
#include <string_view>

namespace vn::plat {

// The name as it is, or, when it is too long for the classic limit once it is made absolute, in the form that has none.
// Slashes may lean either way.
std::wstring ruta_del_sistema(std::wstring_view ruta);

} // namespace vn::plat
