#include "foundation/platform/variables.h"
#include <cstdlib>
#include <windows.h>

namespace vn::plat {

bool variable_definida(const char *nombre) {
    SetLastError(ERROR_SUCCESS);
    // An empty variable answers 0 too: the error tells it from one that is missing.
    return GetEnvironmentVariableA(nombre, nullptr, 0) != 0 || GetLastError() == ERROR_SUCCESS;
}

std::string idioma_del_usuario() {
    wchar_t nombre[LOCALE_NAME_MAX_LENGTH];
    const int n =
        LCIDToLocaleName(MAKELCID(GetUserDefaultUILanguage(), SORT_DEFAULT), nombre, LOCALE_NAME_MAX_LENGTH, 0);
    std::string ascii;
    for (int i = 0; i + 1 < n; ++i) ascii += static_cast<char>(nombre[i]);
    return ascii;
}

// Read from the system and not from a C library's copy: the host may have another C library.
bool lee_variable(const vnwchar *nombre, std::basic_string<vnwchar> &valor) {
    valor.resize(64);
    for (;;) {
        SetLastError(ERROR_SUCCESS);
        const DWORD n = GetEnvironmentVariableW(nombre, valor.data(), static_cast<DWORD>(valor.size()));
        if (n == 0 && GetLastError() != ERROR_SUCCESS) return false;
        const bool cabe = n < valor.size();
        valor.resize(n);
        if (cabe) return true;
    }
}

bool establece_variable(const vnwchar *nombre, const vnwchar *valor) {
    // Through the C library, whose own copy must agree with the system's.
    const std::wstring asignacion = std::wstring(nombre) + L'=' + valor;
    return _wputenv(asignacion.c_str()) == 0;
}

} // namespace vn::plat
