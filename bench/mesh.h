// The subjects of bench_mesh, one source each (mesh_<subject>.cpp). Each returns how many budgets are not met.
#pragma once

#include "caminos.h"

namespace bench {

int contornos(int pasadas);
int vertices(int pasadas);
int rejillas(int pasadas);

} // namespace bench
