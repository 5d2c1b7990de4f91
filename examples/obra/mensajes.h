// The texts of this program for its user, by the language that is active.
#pragma once

#include "foundation/msglocal.h"

namespace obra::mensaje {

#define X(nombre, ...) void nombre(vnmensaje *m);
#include "mensajes.inl"
#undef X

} // namespace obra::mensaje
