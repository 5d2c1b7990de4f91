// Values: number text, units and dates, each beside its limit and its peers.
// usage: bench_values [passes]
#include "values.h"

int main(int argc, char **argv) {
    return bench::programa(argc, argv, {bench::numeros, bench::unidades, bench::fechas});
}
