#include "monton.h"
#include <cstdlib>
#include <new>

namespace {

uint64_t pedido = 0;

void *toma(size_t n) {
    pedido += n;
    return std::malloc(n != 0 ? n : 1);
}
void *toma_o_lanza(size_t n) {
    if (void *p = toma(n)) return p;
    throw std::bad_alloc();
}

} // namespace

uint64_t fuzz::pedido_al_monton() { return pedido; }

// Every form, so that a sanitizer sees each block given back where it was taken.
void operator delete(void *p, size_t) noexcept; // the compiler need not know these two
void operator delete[](void *p, size_t) noexcept;
void *operator new(size_t n) { return toma_o_lanza(n); }
void *operator new[](size_t n) { return toma_o_lanza(n); }
void *operator new(size_t n, const std::nothrow_t &) noexcept { return toma(n); }
void *operator new[](size_t n, const std::nothrow_t &) noexcept { return toma(n); }
void operator delete(void *p) noexcept { std::free(p); }
void operator delete[](void *p) noexcept { std::free(p); }
void operator delete(void *p, size_t) noexcept { std::free(p); }
void operator delete[](void *p, size_t) noexcept { std::free(p); }
void operator delete(void *p, const std::nothrow_t &) noexcept { std::free(p); }
void operator delete[](void *p, const std::nothrow_t &) noexcept { std::free(p); }
