// The subjects of bench_drawing, one source each (drawing_<subject>.cpp). Each returns how many budgets are not met.
#pragma once

#include "caminos.h"

namespace bench {

int lineas(int pasadas);
int polilineas(int pasadas);

} // namespace bench
