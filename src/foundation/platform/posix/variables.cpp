#include "foundation/platform/variables.h"
#include "foundation/platform/posix/ruta.h"
#include <cstdlib>

namespace vn::plat {

bool variable_definida(const char *nombre) { return std::getenv(nombre) != nullptr; }

std::string idioma_del_usuario() {
    // In the order in which the C library itself looks.
    for (const char *nombre : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char *valor = std::getenv(nombre); valor != nullptr && *valor != '\0') return valor;
    return "";
}

bool lee_variable(const vnwchar *nombre, std::basic_string<vnwchar> &valor) {
    const char *v = std::getenv(bytes_de(nombre).c_str());
    if (v == nullptr) return false;
    valor = texto_ancho(v);
    return true;
}

bool establece_variable(const vnwchar *nombre, const vnwchar *valor) {
    const std::string n = bytes_de(nombre), v = bytes_de(valor);
    // An empty value takes the variable away, as on the other platform.
    return (v.empty() ? unsetenv(n.c_str()) : setenv(n.c_str(), v.c_str(), 1)) == 0;
}

} // namespace vn::plat
