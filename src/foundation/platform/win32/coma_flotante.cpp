#include "foundation/platform/coma_flotante.h"
#include <float.h>
#include <xmmintrin.h>

namespace vn::plat {

void reinicia_coma_flotante() {
    _fpreset();
    // The state that the system gives a thread; _fpreset may leave the vector unit as it was.
    _mm_setcsr(0x1F80);
}

} // namespace vn::plat
