// The platform's clock and time zone.
#pragma once

#include <cstdint>
#include <ctime>

namespace vn::plat {

// Local broken-down time of a number of seconds since 1970; false when the platform cannot tell it.
bool hora_local(int64_t segundos, std::tm &t);

} // namespace vn::plat
