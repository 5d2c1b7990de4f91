// The groups of a DXF, one after another: a code on a line, its value on the next, which has no limit of length.
#pragma once

#include <nucleos/foundation/ficheros/lc_fichero.h>
#include <string>

namespace obra {

class grupos_dxf {
  public:
    explicit grupos_dxf(vnfichero *f) : f_(f) {}

    // Goes to the next group. False at the end, or where a line that has to be a code is none.
    bool siguiente();
    int codigo() const { return codigo_; }
    const std::string &valor() const { return valor_; }
    // The value as a name: without blanks around it.
    std::string nombre() const;
    // The value as a number, 0 where there is nothing. False when it is none, or one that a drawing cannot have.
    bool numero(double &x) const;

    bool danado() const { return danado_; }
    uint64_t linea() const { return linea_; } // of the last that was read, from 1 on
    uint64_t bytes() const { return bytes_; } // read so far

  private:
    bool otra_linea(size_t maximo);
    bool llena();

    vnfichero *f_;
    std::string bloque_, valor_;
    size_t aqui_ = 0;
    int codigo_ = 0;
    uint64_t linea_ = 0, bytes_ = 0;
    bool danado_ = false;
};

} // namespace obra
