#include "argumentos.h"
#include <windows.h>

#include <shellapi.h>

namespace obra {

std::vector<std::string> argumentos_utf8(int, char **) {
    int n = 0;
    wchar_t **anchos = CommandLineToArgvW(GetCommandLineW(), &n);
    std::vector<std::string> v;
    for (int i = 0; i < n; ++i) {
        const int k = WideCharToMultiByte(CP_UTF8, 0, anchos[i], -1, nullptr, 0, nullptr, nullptr);
        std::string s(k > 0 ? static_cast<size_t>(k) : 1, '\0');
        WideCharToMultiByte(CP_UTF8, 0, anchos[i], -1, s.data(), k, nullptr, nullptr);
        s.pop_back();
        v.push_back(std::move(s));
    }
    LocalFree(anchos);
    return v;
}

void prepara_consola() { SetConsoleOutputCP(CP_UTF8); }

} // namespace obra
