// The subjects of bench_geometry, one source each (geometry_<subject>.cpp). Each returns how many budgets are not met.
#pragma once

#include "caminos.h"
#include <cstdlib>

namespace bench {

// What a road gives must be right before its time means anything.
inline void debe(bool bien, const char *que) {
    if (bien) return;
    std::fprintf(stderr, "CHECK FAILED: %s\n", que);
    std::exit(2);
}

int ejes2d_de_puntos(int pasadas);
int segmentos(int pasadas);
int matrices(int pasadas);
int envolventes(int pasadas);

} // namespace bench
