// Files by handle, as vnlongpath.h has them.
#pragma once

#include "foundation/platform/directorio.h"
#include "foundation/suelo/vnlongpath.h"

namespace vn::plat {

void *abre_fichero(const cadena_ancha &nombre, uint32_t acceso, uint32_t comparticion, void *seguridad,
                   uint32_t disposicion, uint32_t atributos, void *plantilla);
bool cierra_fichero(void *fichero);
uint32_t atributos_de(const cadena_ancha &nombre);

} // namespace vn::plat
