// The fonts that the platform has: how wide their characters are, by their outlines and not by a screen.
#pragma once

#include "foundation/suelo/tipos.h"
#include <string>

namespace vn::plat {

constexpr size_t CARACTERES_POR_PAGINA = 256;
// Of 256 characters in a row, in parts of the font's height (its em).
struct pagina_de_anchos {
    double ancho[CARACTERES_POR_PAGINA];
};

// The font that the platform takes for a name, perhaps another one. Threads may ask one object at once: each question
// opens what it needs and closes it again.
class fuente {
  public:
    explicit fuente(const vnwchar *nombre);
    // The widths of the characters from `primero` on; false if there is no such font, or no font at all. Halves of
    // surrogate pairs are not asked for.
    bool anchos(char32_t primero, pagina_de_anchos &pagina) const;

  private:
    std::basic_string<vnwchar> nombre_; // what the platform opens it by: a name, or a path
    long cara_ = 0;                     // in a file of several
};

} // namespace vn::plat
