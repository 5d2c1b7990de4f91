// The subjects of bench_geometry, one source each (geometry_<subject>.cpp). Each returns how many budgets are not met.
#pragma once

#include "caminos.h"

namespace bench {

int ejes2d_de_puntos(int pasadas);
int segmentos(int pasadas);
int matrices(int pasadas);
int envolventes(int pasadas);

} // namespace bench
