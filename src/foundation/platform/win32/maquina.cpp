#include "foundation/platform/maquina.h"
#include <windows.h>

#include <lmcons.h>

namespace vn::plat {

std::basic_string<vnwchar> nombre_de_la_maquina() {
    wchar_t nombre[MAX_COMPUTERNAME_LENGTH + 1];
    DWORD n = MAX_COMPUTERNAME_LENGTH + 1;
    return GetComputerNameW(nombre, &n) ? std::wstring(nombre, n) : std::wstring();
}

bool nombre_del_usuario(std::basic_string<vnwchar> &nombre) {
    wchar_t sitio[UNLEN + 1];
    DWORD n = UNLEN + 1; // with the zero
    // A name of no units is none.
    if (!GetUserNameW(sitio, &n) || n < 2) return false;
    nombre.assign(sitio, n - 1);
    return true;
}

uint64_t milisegundos_de_la_maquina() { return GetTickCount64(); }

} // namespace vn::plat
