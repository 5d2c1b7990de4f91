// A block of the tracked heap owned inside a function, freed on every way out.
#pragma once

#include "foundation/suelo/vornspy.h"
#include <memory>

namespace vn::inline suelo {

struct libera_propio {
    void operator()(void *p) const { vornspy_free_pp(&p, 1); }
};
template <class T> using propio = std::unique_ptr<T, libera_propio>;

} // namespace vn::suelo
