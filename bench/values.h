// The subjects of bench_values, one source each (values_<subject>.cpp). Each returns how many budgets are not met.
#pragma once

#include "caminos.h"

namespace bench {

int numeros(int pasadas);
int fechas(int pasadas);
int unidades(int pasadas);

} // namespace bench
