// The groups of a DXF that is written: a code on a line, its value on the next.
#pragma once

#include "plano.h"
#include <string>
#include <string_view>

namespace obra {

class escritor_dxf {
  public:
    std::string texto_escrito;

    void pon(int codigo, std::string_view valor);
    void pon(int codigo, const char *valor) { pon(codigo, std::string_view(valor)); }
    void pon(int codigo, int valor);
    void pon(int codigo, double valor);
    void pon(int codigo, Punto2D p); // the code of x; that of y is 10 more
    void pon(int codigo, Punto3D p);
    // The place of a record in the file's own numbering, hexadecimal.
    void pon_asa(int codigo, uint32_t asa);

    // Numbers that a drawing cannot have have been written since it was last asked.
    bool hubo_no_finitos();

  private:
    bool no_finitos_ = false;
};

// A wide text as the value of a group in any code page: what is not ASCII, or would be read as something else, escaped.
std::string texto_de_dxf(const texto &t);
// The same of a name in a table, without what names may not have.
std::string nombre_de_dxf(const texto &t);

} // namespace obra
