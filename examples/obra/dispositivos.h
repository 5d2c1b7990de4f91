// The kinds of pictures that the sample host makes, each by the extension of its file.
#pragma once

#include "dispositivo.h"
#include <nucleos/foundation/ficheros/lc_fichero.h>
#include <span>

namespace obra {

// What is drawn on: x from 0 to `ancho`, y from 0, below, to `alto`, in the units of the device's space.
struct hoja {
    double ancho = 0, alto = 0;
    double unidades_por_mm = 1;
    bool en_mm = false;      // a unit is a millimetre of paper, else a pixel
    uint32_t tipo_fondo = 0; // 0 white, 1 grey, 2 black
};

// A picture that is being made, over a stream that stays its maker's. What could not be written is told by the stream.
class lienzo {
  public:
    virtual ~lienzo() = default;
    // Where it is drawn.
    virtual salida_t *salida() = 0;
    // Hands on what is ready, so that memory stays flat: to be called now and then.
    virtual void vuelca() {}
    // The end of the picture. False if something of it could not be drawn.
    virtual bool acaba() = 0;
};
using dueno_lienzo = std::unique_ptr<lienzo>;

using abre_lienzo = dueno_lienzo(const hoja &h, vnfichero *f);
struct clase_de_lienzo {
    const char *extension;  // in lower case
    abre_lienzo *abre;      // null: this build has none
    bool en_metros = false; // it has no sheet: what is drawn keeps its coordinates
};
std::span<const clase_de_lienzo> clases_de_lienzo();

// UTF-8 that is gathered and goes to a stream in big pieces.
class escritor {
  public:
    explicit escritor(vnfichero *f) : f_(f) {}
    escritor &operator<<(std::string_view s) {
        junto_ += s;
        if (junto_.size() >= MUCHO) vuelca();
        return *this;
    }
    // In the fewest digits, at most three of fraction, whatever the locale.
    escritor &operator<<(double x);
    void vuelca();

  private:
    static constexpr size_t MUCHO = 65536;
    vnfichero *f_;
    std::string junto_;
};
// A text as XML holds it, in its content and in its attributes: what XML does not have becomes a question mark.
std::string xml_de(const std::string &utf8);

abre_lienzo abre_svg, abre_apunte, abre_dxf;
// Null where cairo is not.
extern abre_lienzo *const abre_pdf, *const abre_png;

} // namespace obra
