// Labels of the units of a budget: for the wide reader and, ending in _ansi, for the ANSI one.
#pragma once

#include "foundation/texto/msglocal.h"

void unidades_msg_165177(vnmensaje *mensaje); // unit of things that are counted
void unidades_msg_165177_ansi(vnmensaje *mensaje);
void unidades_msg_165181(vnmensaje *mensaje); // hour
void unidades_msg_165181_ansi(vnmensaje *mensaje);
void unidades_msg_157616(vnmensaje *mensaje); // kilogram
void unidades_msg_157616_ansi(vnmensaje *mensaje);
void unidades_msg_165187(vnmensaje *mensaje); // kilometre
void unidades_msg_165187_ansi(vnmensaje *mensaje);
void unidades_msg_165186(vnmensaje *mensaje); // litre
void unidades_msg_165186_ansi(vnmensaje *mensaje);
void unidades_msg_40344(vnmensaje *mensaje); // metre
void unidades_msg_40344_ansi(vnmensaje *mensaje);
void unidades_msg_165179(vnmensaje *mensaje); // square metre
void unidades_msg_165179_ansi(vnmensaje *mensaje);
void unidades_msg_165180(vnmensaje *mensaje); // cubic metre
void unidades_msg_165180_ansi(vnmensaje *mensaje);
void unidades_msg_165185(vnmensaje *mensaje); // cubic metre over a kilometre
void unidades_msg_165185_ansi(vnmensaje *mensaje);
void unidades_msg_165183(vnmensaje *mensaje); // tonne
void unidades_msg_165183_ansi(vnmensaje *mensaje);
void unidades_msg_165184(vnmensaje *mensaje); // tonne over a kilometre
void unidades_msg_165184_ansi(vnmensaje *mensaje);
