#define VN_MODULO "muro (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/platform/muro.inl"
#include <new>

extern "C" {

void *__wrap__Znwm(size_t n);
void *__wrap__Znam(size_t n);

// The forms that answer null are not wrapped; their null ends in exige().
void *__wrap__Znwm(size_t n) { return exige(::operator new(n, std::nothrow)); }
void *__wrap__Znam(size_t n) { return exige(::operator new[](n, std::nothrow)); }

} // extern "C"
