// What the library's geometry finds in a drawing: what holds it, what closes, what crosses. Metres.
#pragma once

#include "plano.h"
#include "posesion.h"
#include <nucleos/geometry/rectng.h>

namespace obra {

using dueno_rectangulo = vn::dueno<rec_Destruye>;

struct geometria_capa {
    // Circles, whole ellipses, closed polylines, and rings of lines, arcs and open polylines end to end.
    size_t contornos = 0;
    // Pairs of straight pieces that meet elsewhere than at an end of both; these or more, where there are very many.
    size_t cruces = 0;
    bool hay_mas_cruces = false;
    double longitud_arcos = 0; // arcs, and those of polylines
};
geometria_capa geometria_de(const capa &c, double metros_por_unidad);

// A ring of lines, arcs and open polylines end to end: each piece by its number, lines first, then arcs, then
// polylines, and whether it is gone through from its last point to its first.
struct pieza_de_anillo {
    size_t cual;
    bool al_reves;
};
using anillo = std::vector<pieza_de_anillo>;
std::vector<anillo> anillos_de(const capa &c, double metros_por_unidad);

struct envolvente {
    size_t vertices = 0;
    double area = 0;
};
// The convex hull of all curves, on a grid of at least a millionth of the drawing's size; arcs as polygons of 64 sides.
envolvente envolvente_de(const plano &p);
// The bounding rectangle of all curves; reset if there are none.
dueno_rectangulo rectangulo_de(const plano &p);

} // namespace obra
