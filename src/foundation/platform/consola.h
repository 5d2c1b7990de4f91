// The process's error stream and standard output, and what the platform remembers of its last error.
#pragma once

#include <cstddef>

namespace vn::plat {

// Writes the bytes to the error stream at once; failures are ignored. Allocates nothing.
void escribe_error(const char *utf8, size_t n);
// The same to the standard output.
void escribe_salida(const char *utf8, size_t n);

// Keeps errno and the platform's last error over its life.
class guarda_error {
  public:
    guarda_error();
    ~guarda_error();
    guarda_error(const guarda_error &) = delete;
    guarda_error &operator=(const guarda_error &) = delete;

  private:
    int errno_;
    unsigned long ultimo_;
};

// Keeps the library that an address lies in, if it lies in one, in memory until the process ends: what was registered
// for that moment can then still be called.
void fija_en_memoria(const void *direccion);

} // namespace vn::plat
