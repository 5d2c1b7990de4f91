// A condition of this language as the truth value of the interface.
#pragma once

#include "foundation/suelo/tipos.h"

namespace vn::inline suelo {

constexpr vnbool logico(bool v) { return v ? CIERTO : FALSO; }

} // namespace vn::suelo
