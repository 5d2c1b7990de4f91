#include "foundation/platform/posix/ruta.h"
#include "foundation/suelo/utf_int.h"
#include <algorithm>
#include <climits>

namespace vn::plat {

std::basic_string<vnwchar> texto_ancho(std::string_view bytes, char no_es_texto) {
    std::basic_string<vnwchar> u;
    u.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();) {
        uint32_t c = 0;
        size_t fin = i;
        if (!lee_utf8(bytes, fin, c) || (c != 0 && c == static_cast<unsigned char>(no_es_texto))) {
            // A byte that is no text becomes half of a surrogate pair, which bytes_de() turns back into it.
            u += static_cast<vnwchar>(0xDC00 + static_cast<unsigned char>(bytes[i++]));
            continue;
        }
        i = fin;
        vnwchar par[2];
        u.append(par, escribe_utf16(c, par));
    }
    return u;
}

std::string bytes_de(std::basic_string_view<vnwchar> texto) {
    std::string s;
    s.reserve(texto.size() + 16);
    for (size_t i = 0; i < texto.size();) {
        const uint32_t c = lee_utf16(texto, i);
        char u[4];
        // The halves that texto_ancho() made of single bytes.
        if ((c >= 0xDC80 && c < 0xDD00) || c == 0xDC00 + '\\') s += static_cast<char>(c - 0xDC00);
        else s.append(u, escribe_utf8(c, u));
    }
    return s;
}

std::basic_string<vnwchar> ruta_ancha(std::string_view bytes) { return texto_ancho(bytes, '\\'); }

std::string ruta_del_sistema(std::basic_string_view<vnwchar> ruta) {
    std::basic_string<vnwchar> r(ruta);
    std::replace(r.begin(), r.end(), VNU('\\'), VNU('/'));
    return bytes_de(r);
}

ruta_en::ruta_en(std::basic_string_view<vnwchar> ruta) : bytes_(ruta_del_sistema(ruta)) {
    // A path beyond the system's limit is opened in pieces, each as long as the limit lets it be.
    while (bytes_.size() - desde_ >= PATH_MAX) {
        const size_t corte = bytes_.rfind('/', desde_ + PATH_MAX - 2);
        if (corte == std::string::npos || corte < desde_) return; // a name that is too long by itself
        bytes_[corte] = 0;
        directorio_ = descriptor(::openat(directorio(), nombre(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        // A piece that does not open leaves an empty name, which the calls refuse.
        desde_ = directorio() < 0 ? bytes_.size() : std::min(bytes_.find_first_not_of('/', corte + 1), bytes_.size());
    }
}

} // namespace vn::plat
