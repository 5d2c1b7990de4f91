// The lines of a hatch: families of parallel ones.
#pragma once

#include "plano.h"
#include <functional>

namespace obra {

struct familia_de_rayado {
    double angulo; // radians
    Punto2D origen, paso;
    std::vector<double> trazos; // drawn and free by turns; empty: without gaps
};

// Gives those that cross a box, each from where its pattern begins to where the box ends. False, and gives none, where
// they stand nearer to each other than `minimo`: they are a surface.
bool rectas_de(const familia_de_rayado &f, const extension &caja, double minimo,
               const std::function<void(Punto2D a, Punto2D b)> &da);

} // namespace obra
