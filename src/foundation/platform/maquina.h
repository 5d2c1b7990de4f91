// The machine, its user and its clock.
#pragma once

#include "foundation/platform/plataforma.h"
#include <cstdint>
#include <string>

namespace vn::plat {

// Without the domain; empty if it has none. False, for the user, when there is no name.
std::basic_string<vnwchar> nombre_de_la_maquina();
bool nombre_del_usuario(std::basic_string<vnwchar> &nombre);
// Milliseconds since the machine was started; it never goes back, and is cheap to ask.
uint64_t milisegundos_de_la_maquina();

} // namespace vn::plat
