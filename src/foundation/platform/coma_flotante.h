// The floating-point unit of the calling thread.
#pragma once

namespace vn::plat {

// Back to the state of a thread at its start: nothing pending, all exceptions masked, to nearest, denormals kept.
void reinicia_coma_flotante();

} // namespace vn::plat
