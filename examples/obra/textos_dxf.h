// Texts of a DXF: their code page, their escapes and the formatting of paragraph texts.
#pragma once

#include "plano.h"

namespace obra {

// While it lives, the active ANSI page is that of a drawing: what $DWGCODEPAGE says, else 1252.
class textos_dxf {
  public:
    textos_dxf(const std::string &version, const std::string &pagina);
    ~textos_dxf();
    textos_dxf(const textos_dxf &) = delete;
    textos_dxf &operator=(const textos_dxf &) = delete;

    // Wide text of a value, UTF-8 from version AC1021 on; \U+XXXX, \M+nXXXX, ^x, %%c, %%d, %%p, %%nnn become what they
    // stand for, and what only underlines is dropped.
    texto sencillo(const std::string &bytes) const;
    // A paragraph text, without its formatting codes; ends of paragraph become spaces.
    texto parrafo(const std::string &bytes) const;

  private:
    texto ancho(const std::string &bytes) const;

    uint32_t anterior_;
    bool utf8_;
};

} // namespace obra
