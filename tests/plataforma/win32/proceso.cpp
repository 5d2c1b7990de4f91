#include "plataforma/proceso.h"
#include "prueba.h"
#include <windows.h>

#include <shellapi.h>

namespace vn {
namespace {

// One argument as the parser of command lines takes it back.
std::wstring entre_comillas(const std::wstring &a) {
    std::wstring r = L"\"";
    size_t barras = 0;
    for (const wchar_t c : a) {
        if (c == L'"') r.append(barras + 1, L'\\');
        barras = c == L'\\' ? barras + 1 : 0;
        r += c;
    }
    return r.append(barras, L'\\') + L'"';
}

} // namespace

void pon_variable(const char *nombre, const std::string &valor) {
    SetEnvironmentVariableW(ancho(nombre).c_str(), valor.empty() ? nullptr : ancho(valor).c_str());
}

bool se_queda_sin_usuario() { return false; }

void muere() {
    for (;;) TerminateProcess(GetCurrentProcess(), proceso::MUERTO);
}

std::optional<int> bifurca(int (*)(void *), void *) { return std::nullopt; }
bool hazlo_de_otro(const std::string &) { return false; }
std::string fichero_de_cerrojo(const std::string &) { return {}; }

namespace plataforma {

intptr_t lanza(const std::vector<std::string> &args) {
    std::wstring programa(32768, L'\0');
    programa.resize(GetModuleFileNameW(nullptr, programa.data(), 32768));
    std::wstring linea = entre_comillas(programa);
    for (const auto &a : args) linea += L' ' + entre_comillas(ancho(a));
    STARTUPINFOW inicio{};
    inicio.cb = sizeof inicio;
    PROCESS_INFORMATION p{};
    // About one process in ten thousand dies in Wine's loader before its first instruction: none that did anything.
    for (int quedan = 3;
         !CreateProcessW(programa.c_str(), linea.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &inicio, &p);
         --quedan)
        if (GetLastError() != ERROR_INTERNAL_ERROR || quedan == 0) return 0;
    CloseHandle(p.hThread);
    return reinterpret_cast<intptr_t>(p.hProcess);
}

std::optional<int> espera(intptr_t id, uint32_t milisegundos) {
    const auto h = reinterpret_cast<HANDLE>(id);
    DWORD codigo = 0;
    if (WaitForSingleObject(h, milisegundos) != WAIT_OBJECT_0) return std::nullopt;
    GetExitCodeProcess(h, &codigo);
    return static_cast<int>(codigo);
}

void mata(intptr_t id) { TerminateProcess(reinterpret_cast<HANDLE>(id), proceso::MUERTO); }
void suelta(intptr_t id) { CloseHandle(reinterpret_cast<HANDLE>(id)); }

std::vector<std::string> argumentos(int, char **) {
    int n = 0;
    LPWSTR *anchos = CommandLineToArgvW(GetCommandLineW(), &n);
    std::vector<std::string> r;
    for (int i = 0; i < n; ++i) r.push_back(utf8_de(anchos[i]));
    LocalFree(anchos);
    return r;
}

} // namespace plataforma
} // namespace vn
