// The context of a thread, as traps and the default reporter use it.
#pragma once

#include <cstdint>

namespace vn::inline suelo {

// How many descriptions this thread is inside of.
uint32_t &nivel_de_contexto();

} // namespace vn::suelo
