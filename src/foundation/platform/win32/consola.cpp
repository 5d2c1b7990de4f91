#include "foundation/platform/consola.h"
#include <cerrno>
#include <windows.h>

namespace vn::plat {

namespace {
void escribe(DWORD cual, const char *utf8, size_t n) {
    const HANDLE salida = GetStdHandle(cual);
    // A program with windows alone may have no stream.
    if (salida == nullptr || salida == INVALID_HANDLE_VALUE) return;
    DWORD escritos = 0;
    WriteFile(salida, utf8, static_cast<DWORD>(n), &escritos, nullptr);
}
} // namespace

void escribe_error(const char *utf8, size_t n) { escribe(STD_ERROR_HANDLE, utf8, n); }
void escribe_salida(const char *utf8, size_t n) { escribe(STD_OUTPUT_HANDLE, utf8, n); }

guarda_error::guarda_error() : errno_(errno), ultimo_(GetLastError()) {}
guarda_error::~guarda_error() {
    errno = errno_;
    SetLastError(ultimo_);
}

void fija_en_memoria(const void *direccion) {
    HMODULE modulo = nullptr;
    // Pinned: the module then stays until the process ends, however often it is freed.
    GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN | GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS,
                       static_cast<LPCWSTR>(direccion), &modulo);
}

} // namespace vn::plat
