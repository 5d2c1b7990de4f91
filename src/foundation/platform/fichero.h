// The platform's own file operations.
#pragma once

#include "foundation/suelo/operaciones_fichero.h"
#include <string>
#include <string_view>

namespace vn::plat {

extern const vnoperaciones_fichero operaciones_de_fichero;

// Whether two absolute names are the same.
bool mismo_camino(const std::basic_string<vnwchar> &a, const std::basic_string<vnwchar> &b);
// What a name without its directory takes of the room that one has.
constexpr size_t MAXIMO_NOMBRE = 255;
size_t mide_nombre(std::basic_string_view<vnwchar> nombre);
// Whether rights on the directory, and not those of the file itself, forbid to put another in its place.
bool se_puede_reemplazar(const vnwchar *nombre);

// Whether a line of a text file ends in CR LF.
extern const bool lineas_con_retorno;

} // namespace vn::plat
