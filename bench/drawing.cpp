// Drawing: what reaches a device that draws nothing, beside the arithmetic alone and other painters to nothing.
// usage: bench_drawing [passes]
#include "drawing.h"

int main(int argc, char **argv) { return bench::programa(argc, argv, {bench::lineas, bench::polilineas}); }
