#include "foundation/platform/hora.h"

namespace vn::plat {

bool hora_local(int64_t segundos, std::tm &t) {
    const time_t s = segundos;
    // The form that fills the caller's record, since threads ask at the same time.
    return localtime_r(&s, &t) != nullptr;
}

} // namespace vn::plat
