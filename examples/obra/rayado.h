// The lines of a hatch: families of parallel ones.
#pragma once

#include "dispositivo.h"
#include <functional>

namespace obra {

struct familia_de_rayado {
    double angulo; // radians
    Punto2D origen, paso;
    std::vector<double> trazos; // drawn and free by turns; empty: without gaps
};

constexpr double JUNTAS_MM = 0.05; // lines so near are a surface, dashes so short a line

// The families of a device's slot; those that are no numbers are left out. A pattern shorter than `minimo` has no gaps.
std::vector<familia_de_rayado> familias_de(const arrDouble *angulos, const arrPunto2D *origenes,
                                           const arrPunto2D *pasos, const arrPuntero *trazos, double minimo);
// Gives those that cross a box, each from where its pattern begins to where the box ends. False, and gives none, where
// they stand nearer to each other than `minimo`: they are a surface.
bool rectas_de(const familia_de_rayado &f, const extension &caja, double minimo,
               const std::function<void(Punto2D a, Punto2D b)> &da);

} // namespace obra
