// User texts of vornconf, for the ANSI reader.
#pragma once

#include "foundation/texto/msglocal.h"

// "<32343>": the label of the choice of a system.
void vornconf_msg_32343(vnmensaje *mensaje);
// "<53941>" to "<53943>": names of the systems of units.
void vornconf_msg_53941(vnmensaje *mensaje);
void vornconf_msg_53942(vnmensaje *mensaje);
void vornconf_msg_53943(vnmensaje *mensaje);
// "<53944>" to "<53946>": names and symbols of the units of energy.
void vornconf_msg_53944(vnmensaje *mensaje);
void vornconf_msg_53945(vnmensaje *mensaje);
void vornconf_msg_53946(vnmensaje *mensaje);
