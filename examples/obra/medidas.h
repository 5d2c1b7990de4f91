// Lengths and areas of the drawing's curves, in the drawing's units.
#pragma once

#include "plano.h"

namespace obra {

// Of all that is drawn in a layer; texts have none.
double longitud_de(const capa &c);
// Closed by itself, or by a last vertex that is the first one again.
bool es_cerrada(const polilinea &p);
// Inside a closed polyline, its arcs included; 0 of an open one.
double area_de(const polilinea &p);

} // namespace obra
