#define VN_MODULO "muro (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/platform/muro.inl"
#include <cstdlib>

extern "C" {

void *__wrap__Znwy(size_t n);
void *__wrap__Znay(size_t n);

// The runtime is linked into the library: its operator delete is free(), its nothrow new would come back here.
void *__wrap__Znwy(size_t n) { return exige(std::malloc(n != 0 ? n : 1)); }
void *__wrap__Znay(size_t n) { return __wrap__Znwy(n); }

} // extern "C"
