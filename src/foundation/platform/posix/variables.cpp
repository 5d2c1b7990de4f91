#include "foundation/platform/variables.h"
#include <cstdlib>

namespace vn::plat {

bool variable_definida(const char *nombre) { return std::getenv(nombre) != nullptr; }

std::string idioma_del_usuario() {
    for (const char *nombre : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char *valor = std::getenv(nombre); valor != nullptr && *valor != '\0') return valor;
    return "";
}

} // namespace vn::plat
