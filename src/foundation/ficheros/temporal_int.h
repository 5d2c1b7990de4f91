// The owner of a stream that is to take a file's place at its close.
#pragma once

#include "foundation/ficheros/vornfile.h"
#include <memory>

namespace vn::ficheros {

// On the way out of a failure the save is given up.
struct abandona_temporal {
    void operator()(vnfichero *f) const { vornfile_abandonar_fichero_escritura(f); }
};
using temporal = std::unique_ptr<vnfichero, abandona_temporal>;

} // namespace vn::ficheros
