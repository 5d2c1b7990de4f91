// The subjects of bench_values, one source each (values_<subject>.cpp). Each returns how many budgets are not met.
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

int numeros(int pasadas);
int fechas(int pasadas);
int unidades(int pasadas);

} // namespace bench
