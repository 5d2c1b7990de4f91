// Meshes: contours beside the tessellator alone, unique vertices beside hash tables and a sort, normals of a grid
// beside a plain loop. usage: bench_mesh [passes]
#include "mesh.h"

int main(int argc, char **argv) {
    return bench::programa(argc, argv, {bench::contornos, bench::vertices, bench::rejillas});
}
