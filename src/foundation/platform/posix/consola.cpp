#include "foundation/platform/consola.h"
#include "foundation/platform/posix/descriptor.h"
#include <dlfcn.h>

namespace vn::plat {

namespace {
void escribe(int salida, const char *utf8, size_t n) {
    const sin_senyales guarda;
    // The system may take a part at a time; a stream that fails is given up in silence.
    while (n > 0) {
        const ssize_t k = ::write(salida, utf8, n);
        if (k < 0 && errno == EINTR) continue;
        if (k <= 0) return;
        utf8 += k;
        n -= static_cast<size_t>(k);
    }
}
} // namespace

void escribe_error(const char *utf8, size_t n) { escribe(STDERR_FILENO, utf8, n); }
void escribe_salida(const char *utf8, size_t n) { escribe(STDOUT_FILENO, utf8, n); }

guarda_error::guarda_error() : errno_(errno), ultimo_(0) {}
guarda_error::~guarda_error() { errno = errno_; }

void fija_en_memoria(const void *direccion) {
    Dl_info suya;
    if (::dladdr(direccion, &suya) == 0) return;
    // A reference of its own goes again: the mark stays.
    if (void *modulo = ::dlopen(suya.dli_fname, RTLD_LAZY | RTLD_NOLOAD | RTLD_NODELETE)) ::dlclose(modulo);
}

} // namespace vn::plat
