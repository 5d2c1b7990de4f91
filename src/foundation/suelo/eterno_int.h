// Objects of the library that are never destroyed: exit cleaners may still use them.
#pragma once

#include <cstddef>
#include <new>

namespace vn::inline suelo {

// The one T of the process, made at first use. It costs no allocation of its own.
template <class T> T &eterno() {
    alignas(T) static std::byte sitio[sizeof(T)];
    static T *const t = new (sitio) T;
    return *t;
}

} // namespace vn::suelo
