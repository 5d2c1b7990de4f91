// Wide text as the library's own code holds it.
#pragma once

#include "foundation/suelo/tipos.h"
#include <string>
#include <string_view>

namespace vn::inline suelo {

using cadena_ancha = std::basic_string<vnwchar>;
using vista_ancha = std::basic_string_view<vnwchar>;

} // namespace vn::suelo
