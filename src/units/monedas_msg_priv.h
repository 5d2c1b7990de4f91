// User texts of monedas.
#pragma once

#include "foundation/texto/msglocal.h"

// "<124345>": pesetas, abbreviated. "<124346>": euros.
void monedas_msg_124345(vnmensaje *mensaje);
void monedas_msg_124346(vnmensaje *mensaje);
