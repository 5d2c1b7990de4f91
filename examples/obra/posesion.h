// Owners of the library's handles: each is given back when its owner goes.
#pragma once

#include <nucleos/foundation/ficheros/lc_fichero.h>
#include <nucleos/foundation/listas/arr.h>
#include <nucleos/foundation/suelo/dueno.hpp>
#include <nucleos/foundation/texto/cad.h>
#include <nucleos/foundation/texto/widestr.h>
#include <nucleos/persistence/vornsave.h>

namespace obra {

inline void destruye_ancho(vnwchar **p) { widestr_destruye(p); }

using dueno_ancho = vn::dueno<destruye_ancho>;
using dueno_ansi = vn::dueno<vornstr_destruye>;
using dueno_fichero = vn::dueno<lc_fclose_seguro>;
using dueno_save = vn::dueno<vornsave_libera>;
using dueno_puntos = vn::dueno<arr_DestruyePunto2D>;
using dueno_cadenas_u = vn::dueno<arr_DestruyeCADENA_u>;

} // namespace obra
