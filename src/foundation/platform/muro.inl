// The wall: what the library's own containers would throw for want of memory is not thrown. The linker hands those calls of
// the library, and nobody else's, to these and to the platform's forms of operator new (vn_biblioteca), and they end where a
// block of the tracked heap that cannot be had does.
#include "foundation/suelo/vornspy.h"
#include <cstdint>

namespace {

// A size that nobody has: the tracked heap's way out, from either library.
[[noreturn, gnu::cold]] void sin_memoria() {
    vornspy_malloc(SIZE_MAX);
    __builtin_unreachable();
}

void *exige(void *p) {
    if (p == nullptr) [[unlikely]] sin_memoria();
    return p;
}

} // namespace

extern "C" {

[[noreturn]] void __wrap__ZSt17__throw_bad_allocv();
[[noreturn]] void __wrap__ZSt28__throw_bad_array_new_lengthv();
[[noreturn]] void __wrap__ZSt20__throw_length_errorPKc(const char *);

void __wrap__ZSt17__throw_bad_allocv() { sin_memoria(); }
void __wrap__ZSt28__throw_bad_array_new_lengthv() { sin_memoria(); }
void __wrap__ZSt20__throw_length_errorPKc(const char *) { sin_memoria(); }

} // extern "C"
