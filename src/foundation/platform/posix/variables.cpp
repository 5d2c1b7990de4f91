#include "foundation/platform/variables.h"
#include "foundation/propio_priv.h"
#include "foundation/unicode.h"
#include <cstdlib>

namespace vn::plat {

bool variable_definida(const char *nombre) { return std::getenv(nombre) != nullptr; }

std::string idioma_del_usuario() {
    for (const char *nombre : {"LC_ALL", "LC_MESSAGES", "LANG"})
        if (const char *valor = std::getenv(nombre); valor != nullptr && *valor != '\0') return valor;
    return "";
}

bool lee_variable(const vnwchar *nombre, std::basic_string<vnwchar> &valor) {
    const vn::propio<char> n(unicode_convierte_UNICODE_a_UTF8(nombre));
    const char *v = std::getenv(n.get());
    if (v == nullptr) return false;
    const vn::propio<vnwchar> ancho(unicode_convierte_UTF8_a_UNICODE(v));
    valor = ancho.get();
    return true;
}

bool establece_variable(const vnwchar *nombre, const vnwchar *valor) {
    const vn::propio<char> n(unicode_convierte_UNICODE_a_UTF8(nombre)), v(unicode_convierte_UNICODE_a_UTF8(valor));
    return (*v.get() == '\0' ? unsetenv(n.get()) : setenv(n.get(), v.get(), 1)) == 0;
}

} // namespace vn::plat
