// A process-wide object that is made at its first use and never destroyed, because exit cleaners may still ask for it.
#pragma once

#include <mutex>
#include <new>

namespace vn {

template <class T>
class inmortal {
  public:
    constexpr inmortal() = default;
    T &dame() {
        std::call_once(hecho_, [this] { ::new (static_cast<void *>(sitio_)) T(); });
        return *std::launder(reinterpret_cast<T *>(sitio_));
    }

  private:
    std::once_flag hecho_;
    alignas(T) unsigned char sitio_[sizeof(T)] = {};
};

} // namespace vn
