#include "foundation/platform/consola.h"
#include <cerrno>
#include <windows.h>

namespace vn::plat {

void escribe_error(const char *utf8, size_t n) {
    const HANDLE salida = GetStdHandle(STD_ERROR_HANDLE);
    if (salida == nullptr || salida == INVALID_HANDLE_VALUE) return;
    DWORD escritos = 0;
    WriteFile(salida, utf8, static_cast<DWORD>(n), &escritos, nullptr);
}

guarda_error::guarda_error() : errno_(errno), ultimo_(GetLastError()) {}
guarda_error::~guarda_error() {
    errno = errno_;
    SetLastError(ultimo_);
}

void fija_en_memoria() {
    HMODULE modulo = nullptr;
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       reinterpret_cast<LPCWSTR>(&fija_en_memoria), &modulo);
}

} // namespace vn::plat
