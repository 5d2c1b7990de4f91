// A message box over the host's main window.
#pragma once

#include "foundation/suelo/tipos.h"

namespace vn::plat {

enum class respuesta { nadie, si, no };

// Shows a text, as a yes or no question if asked so. `nadie` when the platform has no such box.
respuesta muestra_cuadro(void *ventana, const vnwchar *texto, bool pregunta);

} // namespace vn::plat
