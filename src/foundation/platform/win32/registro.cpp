#include "foundation/platform/registro.h"
#include <windows.h>

namespace vn::plat {
namespace {

struct cierra_clave {
    using pointer = HKEY;
    void operator()(HKEY h) const { RegCloseKey(h); }
};
using clave_abierta = std::unique_ptr<HKEY, cierra_clave>;

constexpr REGSAM VISTAS[] = {0, KEY_WOW64_32KEY, KEY_WOW64_64KEY};
constexpr DWORD MAXIMO_NOMBRE = 16384; // units of the name of a value, with the zero

HKEY la_raiz(uint32_t raiz) {
    const HKEY raices[] = {HKEY_CLASSES_ROOT, HKEY_CURRENT_CONFIG, HKEY_CURRENT_USER, HKEY_LOCAL_MACHINE, HKEY_USERS};
    return raices[raiz];
}

clave_abierta abre(uint32_t raiz, const cadena_ancha &clave, REGSAM acceso) {
    HKEY h = nullptr;
    return clave_abierta(RegOpenKeyExW(la_raiz(raiz), clave.c_str(), 0, acceso, &h) == ERROR_SUCCESS ? h : nullptr);
}

// A text, its variables replaced where it is marked so.
bool lee(HKEY h, const wchar_t *valor, cadena_ancha &contenido) {
    for (DWORD bytes = 256;;) {
        contenido.resize(bytes / sizeof(wchar_t));
        const LSTATUS e = RegGetValueW(h, nullptr, valor, RRF_RT_REG_SZ, nullptr, contenido.data(), &bytes);
        // The call has said how much room it needs.
        if (e == ERROR_MORE_DATA) continue;
        if (e != ERROR_SUCCESS) return false;
        // The text ends at its first zero.
        contenido.resize(wcsnlen(contenido.data(), bytes / sizeof(wchar_t)));
        return true;
    }
}

} // namespace

bool lee_registro(uint32_t raiz, const cadena_ancha &clave, const cadena_ancha &valor, cadena_ancha &contenido) {
    const clave_abierta h = abre(raiz, clave, KEY_QUERY_VALUE);
    return h != nullptr && lee(h.get(), valor.c_str(), contenido);
}

bool subclaves_de_registro(uint32_t raiz, const cadena_ancha &clave, std::vector<cadena_ancha> &nombres) {
    const clave_abierta h = abre(raiz, clave, KEY_ENUMERATE_SUB_KEYS);
    if (h == nullptr) return false;
    // The name of a key has at most 255 units.
    wchar_t nombre[256];
    for (DWORD i = 0, n = 256;
         RegEnumKeyExW(h.get(), i, nombre, &n, nullptr, nullptr, nullptr, nullptr) == ERROR_SUCCESS; ++i, n = 256)
        nombres.emplace_back(nombre, n);
    return true;
}

bool hay_clave_de_registro(uint32_t raiz, const cadena_ancha &clave) {
    return abre(raiz, clave, KEY_QUERY_VALUE) != nullptr;
}

bool textos_de_registro(uint32_t raiz, const cadena_ancha &clave, uint32_t que_vista,
                        std::vector<std::pair<cadena_ancha, cadena_ancha>> &textos) {
    const clave_abierta h = abre(raiz, clave, KEY_QUERY_VALUE | VISTAS[que_vista]);
    if (h == nullptr) return false;
    cadena_ancha nombre(MAXIMO_NOMBRE, L'\0');
    for (DWORD i = 0;; ++i) {
        DWORD n = MAXIMO_NOMBRE;
        if (RegEnumValueW(h.get(), i, nombre.data(), &n, nullptr, nullptr, nullptr, nullptr) != ERROR_SUCCESS)
            return true;
        cadena_ancha contenido;
        // Values that are no texts are left out.
        if (lee(h.get(), nombre.c_str(), contenido)) textos.emplace_back(nombre.substr(0, n), contenido);
    }
}

bool escribe_registro(uint32_t raiz, const cadena_ancha &clave, const cadena_ancha &valor, const vnwchar *contenido) {
    if (contenido == nullptr) {
        const clave_abierta h = abre(raiz, clave, KEY_SET_VALUE);
        // Where the key is not there the value is gone already.
        if (h == nullptr) return !hay_clave_de_registro(raiz, clave);
        const LSTATUS e = RegDeleteValueW(h.get(), valor.c_str());
        return e == ERROR_SUCCESS || e == ERROR_FILE_NOT_FOUND;
    }
    HKEY nueva = nullptr;
    if (RegCreateKeyExW(la_raiz(raiz), clave.c_str(), 0, nullptr, 0, KEY_SET_VALUE, nullptr, &nueva, nullptr) !=
        ERROR_SUCCESS)
        return false;
    const clave_abierta h(nueva);
    // The zero at the end is stored too.
    const auto bytes = static_cast<DWORD>((wcslen(contenido) + 1) * sizeof(wchar_t));
    return RegSetValueExW(h.get(), valor.c_str(), 0, REG_SZ, reinterpret_cast<const BYTE *>(contenido), bytes) ==
           ERROR_SUCCESS;
}

bool puede_escribir_registro(uint32_t raiz) { return abre(raiz, L"Software", KEY_WRITE) != nullptr; }

} // namespace vn::plat
