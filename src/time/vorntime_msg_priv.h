// User texts of vorntime.
#pragma once

#include "foundation/texto/msglocal.h"

// Fillers of the names, wide and ANSI, in tables of the same order: months from January, days from Sunday.
extern const vnfunc_mensaje vorntime_msg_mes_u[12], vorntime_msg_mes[12];
extern const vnfunc_mensaje vorntime_msg_mes_abreviado_u[12], vorntime_msg_mes_abreviado[12];
extern const vnfunc_mensaje vorntime_msg_dia_u[7], vorntime_msg_dia[7];
extern const vnfunc_mensaje vorntime_msg_inicial_dia[7];
// "<54061>": the system's date is wrong.
void vorntime_msg_54061(vnmensaje *mensaje);
