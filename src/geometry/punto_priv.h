// What the sources of the points of the plane share.
#pragma once

#include "foundation/numeros/punto.h"

namespace vn {

inline Punto2D *nuevo(Punto2D p) { return creapunto(p.x, p.y); }

} // namespace vn
