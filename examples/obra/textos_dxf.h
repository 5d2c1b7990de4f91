// Texts of a DXF: their code page, their escapes and the formatting of paragraph texts.
#pragma once

#include "plano.h"

namespace obra {

// While it lives, the active ANSI page is that of a drawing: UTF-8 from version AC1021 on, else what $DWGCODEPAGE says.
class pagina_del_dibujo {
  public:
    pagina_del_dibujo(const std::string &version, const std::string &pagina);
    ~pagina_del_dibujo();
    pagina_del_dibujo(const pagina_del_dibujo &) = delete;
    pagina_del_dibujo &operator=(const pagina_del_dibujo &) = delete;

  private:
    uint32_t anterior_;
};

// Wide text of the bytes of a DXF, in the active page; \U+XXXX and %%c, %%d, %%p, %%nnn become what they stand for.
texto a_texto(const std::string &bytes);
// A paragraph text without its formatting codes; ends of paragraph become spaces.
std::string sin_formato(const std::string &bytes);

} // namespace obra
