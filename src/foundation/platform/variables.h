// The process's environment variables, and the user's language.
#pragma once

#include "foundation/suelo/tipos.h"
#include <string>

namespace vn::plat {

// Whether a variable of an ASCII name is defined.
bool variable_definida(const char *nombre);
// The user's language as the platform tells it ("es_ES.UTF-8", "pt-BR", "C"); empty when it tells none.
std::string idioma_del_usuario();
// Value of a variable; false when it is not defined.
bool lee_variable(const vnwchar *nombre, std::basic_string<vnwchar> &valor);
// Sets a variable of this process; an empty value takes it away. The name is not empty and has no '='.
bool establece_variable(const vnwchar *nombre, const vnwchar *valor);

} // namespace vn::plat
