// A file system of memory under the library's file operations: for tests that read many small files, and for fuzzing.
#pragma once

#include "foundation/suelo/tipos.h"
#include <string>

namespace vn {

// While it lives, the library's files are those made through it, none at first. One at a time.
class ficheros_en_memoria {
  public:
    ficheros_en_memoria();
    ~ficheros_en_memoria();
    ficheros_en_memoria(const ficheros_en_memoria &) = delete;
    ficheros_en_memoria &operator=(const ficheros_en_memoria &) = delete;

    void pon(const std::basic_string<vnwchar> &nombre, std::string contenido);
    // Its content, empty if it is not there.
    std::string dame(const std::basic_string<vnwchar> &nombre) const;
    void vacia();
    // Whether every file that was opened has been closed.
    bool todos_cerrados() const;
};

} // namespace vn
