// The registry. A key is the names from its root down, with a backslash between two, none at the ends.
#pragma once

#include "foundation/platform/directorio.h"
#include <utility>

namespace vn::plat {

// The numbers of the roots and of the views are those of vornreg.h. False where there is no such text, or no such key.
bool lee_registro(uint32_t raiz, const cadena_ancha &clave, const cadena_ancha &valor, cadena_ancha &contenido);
bool subclaves_de_registro(uint32_t raiz, const cadena_ancha &clave, std::vector<cadena_ancha> &nombres);
bool hay_clave_de_registro(uint32_t raiz, const cadena_ancha &clave);
// By name and text.
bool textos_de_registro(uint32_t raiz, const cadena_ancha &clave, uint32_t que_vista,
                        std::vector<std::pair<cadena_ancha, cadena_ancha>> &textos);
// Null takes the value away. False when it cannot be done.
bool escribe_registro(uint32_t raiz, const cadena_ancha &clave, const cadena_ancha &valor, const vnwchar *contenido);
bool puede_escribir_registro(uint32_t raiz);

} // namespace vn::plat
