// Geometry: crossings, clips, axes, matrices and hulls, each beside its limit and its peers.
// usage: bench_geometry [passes]
#include "geometry.h"
#include <algorithm>

int main(int argc, char **argv) {
    const int pasadas = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
    int fuera = 0;
    for (int (*materia)(int) : {bench::segmentos, bench::ejes2d_de_puntos, bench::matrices, bench::envolventes}) fuera += materia(pasadas);
    std::printf("budgets not met: %d\n", fuera);
    return 0;
}
