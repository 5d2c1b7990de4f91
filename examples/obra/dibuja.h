// A drawing through an output, and onto a sheet.
#pragma once

#include "dispositivos.h"
#include <functional>

namespace obra {

// Metres of a unit of the drawing.
double metros_de(const plano &p);
// The colour that a layer draws in.
idcolor color_de_capa(const capa &c);
// Whether two angles are a whole turn apart, or none.
bool da_la_vuelta(double desde, double hasta);

// Called now and then with the number of entities that have been drawn.
using avisado = std::function<void(size_t hechas)>;

// Draws what is seen of it, layer by layer, but its texts: in metres, with the colours, pens and line types of its
// layers. What is appended to the output before is where it lands.
void dibuja(const plano &p, salida_t *s, const avisado &avisa);
// How many entities that is.
size_t cuantas_se_dibujan(const plano &p);
// The box of what is drawn, metres, as a device sees it.
extension limites_de(const plano &p, const avisado &avisa);

// How big a picture is asked for: as wide as so many pixels, or a divisor of the scale of a paper.
struct tamano {
    uint32_t ancho_px = 1000;
    uint16_t divisor = 0; // 0: by the pixels
};
// A sheet about a box, with a margin.
hoja hoja_para(const extension &caja, const tamano &t, uint32_t tipo_fondo);
// From metres to the sheet: appends to the output what lays the box in its middle; as many are taken off again.
class encuadre {
  public:
    encuadre(salida_t *s, const hoja &h, const extension &caja, const tamano &t);
    ~encuadre();
    encuadre(const encuadre &) = delete;
    encuadre &operator=(const encuadre &) = delete;

  private:
    salida_t *s_;
    int apiladas_ = 0;
};

} // namespace obra
