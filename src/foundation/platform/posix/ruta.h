// File names and other texts between the library (UTF-16) and the system (bytes, as a rule UTF-8).
#pragma once

#include "foundation/platform/plataforma.h"
#include <fcntl.h>
#include <string>
#include <string_view>
#include <unistd.h>
#include <utility>

namespace vn::plat {

// Bytes that are not UTF-8, and one more if it is not 0, come out as the lone surrogates U+DC80 to U+DCFF (the other's
// from U+DC00), one each; bytes_de turns those into the bytes again. Another lone surrogate takes the three bytes that
// its number would take.
std::basic_string<vnwchar> texto_ancho(std::string_view bytes, char no_es_texto = 0);
std::string bytes_de(std::basic_string_view<vnwchar> texto);
// The same for names: every one that a directory lists can be opened. A backslash within a name, which is a separator
// to the library, is U+DC5C; one that separates becomes a slash.
std::basic_string<vnwchar> ruta_ancha(std::string_view bytes);
std::string ruta_del_sistema(std::basic_string_view<vnwchar> ruta);

class descriptor {
  public:
    explicit descriptor(int numero) : numero_(numero) {}
    ~descriptor() {
        if (numero_ >= 0) ::close(numero_);
    }
    descriptor(descriptor &&otro) noexcept : numero_(std::exchange(otro.numero_, -1)) {}
    descriptor &operator=(descriptor &&otro) noexcept {
        std::swap(numero_, otro.numero_);
        return *this;
    }
    int numero() const { return numero_; }
    int suelta() { return std::exchange(numero_, -1); }

  private:
    int numero_; // AT_FDCWD or another negative one is none
};

// A path for the calls that take a directory and a name below it. The system takes a name of PATH_MAX bytes at most: of
// a longer path the beginning is opened, piece by piece, and the name is its end; empty if the beginning leads nowhere.
class ruta_en {
  public:
    explicit ruta_en(std::basic_string_view<vnwchar> ruta);
    int directorio() const { return directorio_.numero(); }
    const char *nombre() const { return bytes_.c_str() + desde_; }

  private:
    std::string bytes_;
    size_t desde_ = 0;
    descriptor directorio_{AT_FDCWD};
};

} // namespace vn::plat
