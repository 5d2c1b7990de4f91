// A drawing with a figure of each kind, for the devices that write entities.
#pragma once

#include <nucleos/drawing/vornplan.h>
#include <span>

namespace obra {

struct cuenta {
    const char *clase; // as DXF calls it
    int cuantas;
};
// Draws it; what it is made of.
std::span<const cuenta> dibuja_muestra(salida_t *s);

} // namespace obra
