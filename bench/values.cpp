// Values: number text, units and dates, each beside its limit and its peers.
// usage: bench_values [passes]
#include "values.h"
#include <algorithm>

int main(int argc, char **argv) {
    const int pasadas = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
    int fuera = 0;
    for (int (*materia)(int) : {bench::numeros, bench::unidades, bench::fechas}) fuera += materia(pasadas);
    std::printf("budgets not met: %d\n", fuera);
    return 0;
}
