// The platform's own file operations.
#pragma once

#include "foundation/operaciones_fichero.h"

namespace vn::plat {

extern const vnoperaciones_fichero operaciones_de_fichero;

// Whether a line of a text file ends in CR LF.
extern const bool lineas_con_retorno;

} // namespace vn::plat
