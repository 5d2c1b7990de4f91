#include "foundation/platform/cerrojo.h"
#include <windows.h>

#include <sddl.h>

namespace vn::plat {
namespace {

// No more is asked for than others are given: a mutex made by another user opens too.
constexpr DWORD DERECHOS = SYNCHRONIZE | MUTEX_MODIFY_STATE;
// Every user of the machine may wait for it and free it, whoever made it, elevated or not.
constexpr const wchar_t *PERMISOS = L"D:(A;;0x001F0001;;;OW)(A;;0x00100001;;;AU)";

HANDLE mutex_id(intptr_t id) { return reinterpret_cast<HANDLE>(id); }

} // namespace

bool cerrojo::abre() {
    SECURITY_ATTRIBUTES seguridad{sizeof seguridad, nullptr, FALSE};
    const bool hay = ConvertStringSecurityDescriptorToSecurityDescriptorW(PERMISOS, SDDL_REVISION_1,
                                                                          &seguridad.lpSecurityDescriptor, nullptr);
    const std::wstring nombre = L"Global\\nucleos-" + std::wstring(nombre_.begin(), nombre_.end());
    const HANDLE h = CreateMutexExW(hay ? &seguridad : nullptr, nombre.c_str(), 0, DERECHOS);
    if (hay) LocalFree(seguridad.lpSecurityDescriptor);
    if (h != nullptr) id_ = reinterpret_cast<intptr_t>(h);
    return h != nullptr;
}

cerrojo::toma cerrojo::entra(uint32_t milisegundos) {
    if (id_ == -1 && !abre()) return toma::no;
    // INFINITE is a time like any other here, one millisecond shorter.
    switch (WaitForSingleObject(mutex_id(id_), milisegundos == INFINITE ? INFINITE - 1 : milisegundos)) {
    case WAIT_OBJECT_0: return toma::bien;
    case WAIT_ABANDONED: return toma::abandonado;
    default: return toma::no;
    }
}

void cerrojo::sal() { ReleaseMutex(mutex_id(id_)); }

void cerrojo::olvida() {
    if (id_ != -1) CloseHandle(mutex_id(id_));
    id_ = -1;
}

// No process of this system splits.
void al_bifurcarse(void (*)(), void (*)(), void (*)()) {}

} // namespace vn::plat
