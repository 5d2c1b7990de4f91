// Geometry: crossings, clips, axes, matrices and hulls, each beside its limit and its peers.
// usage: bench_geometry [passes]
#include "geometry.h"

int main(int argc, char **argv) {
    return bench::programa(argc, argv,
                           {bench::segmentos, bench::ejes2d_de_puntos, bench::matrices, bench::envolventes});
}
