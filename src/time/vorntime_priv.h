// What the sources of vorntime share.
#pragma once

#include "foundation/suelo/propio_int.h"
#include "foundation/texto/msglocal.h"
#include "time/vorntime.h"
#include <array>

namespace vn {

// 1 January 1970 at 00:00:00, a Thursday: what stands for a record that cannot be told.
inline constexpr tmtime INICIO_1970{0, 0, 0, 1, 0, 70, 4, 0, 0};

using tmtime_propio = propio<tmtime>;
tmtime_propio nuevo_tmtime(const tmtime &valor);

inline bool mes_posible(const tmtime &fecha) { return static_cast<uint32_t>(fecha.tm_mon) < 12; }
// Sets the days of the week, the true one, and of the year. The month must be possible.
void pon_dias(tmtime &fecha);
// The date of a count of seconds; the start of 1970 and false, reported, when there is none.
bool pon_fecha_de(int64_t t, tmtime &fecha);

// The fillers of the days' short names, from Sunday, for the wide and the ANSI reader.
extern const std::array<vnfunc_mensaje, 7> DIAS_U, DIAS;
// That of what is said when the system's date is wrong.
extern const vnfunc_mensaje FECHA_MAL;

} // namespace vn
