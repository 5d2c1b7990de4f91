#include "foundation/platform/coma_flotante.h"
#include <cfenv>

namespace vn::plat {

void reinicia_coma_flotante() { std::fesetenv(FE_DFL_ENV); }

} // namespace vn::plat
