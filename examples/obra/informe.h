// The report of a project file.
#pragma once

#include "plano_fichero.h"
#include <nucleos/foundation/texto/msglocal.h>

namespace obra {

// UTF-8 of a wide text.
std::string utf8(const vnwchar *t);
inline std::string utf8(const texto &t) { return utf8(t.c_str()); }
// A message of the program in the active language, UTF-8.
std::string di(vnfunc_mensaje mensaje);
// The whole report, lines ended by line feeds, UTF-8.
std::string informe_de(const std::string &nombre, const obra_leida &o);

} // namespace obra
