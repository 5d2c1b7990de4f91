// What number text asks of the regional data for each number.
#pragma once

#include "foundation/suelo/tipos.h"

namespace vn {

// The first character of the decimal and of the thousands separator; 0 where there is none. Neither memory nor locks: a
// record that is read anew twice a second.
struct separadores_de_numero {
    vnwchar decimal, millares;
};
separadores_de_numero sysdata_separadores();

} // namespace vn
