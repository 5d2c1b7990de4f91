// The owner of a stream that is to take a file's place at its close.
#pragma once

#include "foundation/ficheros/vornfile.h"
#include "foundation/suelo/dueno.hpp"

namespace vn::ficheros {

// On the way out of a failure the save is given up.
using temporal = dueno<vornfile_abandonar_fichero_escritura>;

} // namespace vn::ficheros
