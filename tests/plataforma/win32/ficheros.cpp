#include "plataforma/ficheros.h"
#include "prueba.h"
#include <windows.h>

#include <sddl.h>

namespace vn::plataforma {

void hace_particular(const std::string &fichero) {
    PSECURITY_DESCRIPTOR d = nullptr;
    ConvertStringSecurityDescriptorToSecurityDescriptorW(L"D:P(A;;FA;;;SY)(A;;FA;;;BA)", SDDL_REVISION_1, &d, nullptr);
    SetFileSecurityW(ancho(fichero).c_str(), DACL_SECURITY_INFORMATION | PROTECTED_DACL_SECURITY_INFORMATION, d);
    LocalFree(d);
    SetFileAttributesW(ancho(fichero).c_str(), FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM);
}

std::string particularidades(const std::string &fichero) {
    constexpr DWORD MIRADOS = FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_READONLY;
    std::string s = std::to_string(GetFileAttributesW(ancho(fichero).c_str()) & MIRADOS) + " ";
    unsigned char memoria[8192];
    DWORD n = 0;
    wchar_t *texto = nullptr;
    if (!GetFileSecurityW(ancho(fichero).c_str(), DACL_SECURITY_INFORMATION, memoria, sizeof memoria, &n) ||
        !ConvertSecurityDescriptorToStringSecurityDescriptorW(memoria, SDDL_REVISION_1, DACL_SECURITY_INFORMATION,
                                                              &texto, nullptr))
        return s + "?";
    s += utf8_de(texto);
    LocalFree(texto);
    return s;
}

bool hace_privado(const std::string &) { return false; }
bool es_privado(const std::string &) { return false; }
bool hace_tuberia(const std::string &) { return false; }
void hace_de_solo_lectura(const std::string &fichero) {
    SetFileAttributesW(ancho(fichero).c_str(), FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_HIDDEN);
}
bool hace_ilegible(const std::string &) { return false; }
bool cierra_los_tres() { return false; }
bool limita_tamanyo(uint64_t) { return false; }
bool se_hace_usuario(int) { return false; }

} // namespace vn::plataforma
