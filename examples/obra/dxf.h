// Reads a DXF into a drawing: block references expanded, everything brought to plan.
#pragma once

#include "plano.h"

namespace obra {

enum class lectura_dxf { bien, no_se_abre, no_es_dxf, demasiado_grande };

// `nombre` is UTF-8 as the system gave it. On anything but `bien`, `p` is untouched.
lectura_dxf lee_dxf(const std::string &nombre, plano &p);

} // namespace obra
