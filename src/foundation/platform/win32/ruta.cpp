#include "foundation/platform/win32/ruta.h"
#include <windows.h>

namespace vn::plat {

std::wstring ruta_del_sistema(std::wstring_view ruta) {
    std::wstring tal_cual(ruta);
    // A directory's limit is twelve characters below a file's.
    constexpr DWORD LIMITE_CLASICO = MAX_PATH - 12;
    if (tal_cual.starts_with(LR"(\\?\)") || tal_cual.starts_with(LR"(\\.\)")) return tal_cual;
    const DWORD n = GetFullPathNameW(tal_cual.c_str(), 0, nullptr, nullptr);
    if (n <= LIMITE_CLASICO) return tal_cual;
    std::wstring completa(n, L'\0');
    completa.resize(GetFullPathNameW(tal_cual.c_str(), n, completa.data(), nullptr));
    // A device keeps its name.
    if (completa.starts_with(LR"(\\.\)")) return tal_cual;
    // The prefix lifts the limit of length; a share of the network has its own form of it.
    if (completa.starts_with(LR"(\\)")) return LR"(\\?\UNC\)" + completa.substr(2);
    return LR"(\\?\)" + completa;
}

} // namespace vn::plat
