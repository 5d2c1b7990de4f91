// The texts of this program for its user, by the language that is active.
#pragma once

#include <nucleos/foundation/texto/msglocal.h>

namespace obra::mensaje {

#define M(nombre, ...) void nombre(vnmensaje *m);
#include "mensajes.inl"
#undef M

// The languages that have texts of their own.
inline constexpr int IDIOMAS[] = {0, 1, 2, 3, 4, 5, 8, 9, 13};
// Where the language has none and would take English ones, English it is, so that the library speaks it too.
void habla_un_solo_idioma();

} // namespace obra::mensaje
