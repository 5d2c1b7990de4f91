#include "monton.h"
#include <cstdlib>
#include <new>

namespace {
uint64_t pedido = 0;
}

uint64_t fuzz::pedido_al_monton() { return pedido; }

void operator delete(void *p, size_t) noexcept; // the compiler need not know it

void *operator new(size_t n) {
    pedido += n;
    if (void *p = std::malloc(n != 0 ? n : 1)) return p;
    throw std::bad_alloc();
}
void operator delete(void *p) noexcept { std::free(p); }
void operator delete(void *p, size_t) noexcept { std::free(p); }
