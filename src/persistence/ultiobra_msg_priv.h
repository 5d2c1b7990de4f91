// User texts of ultiobra.
#pragma once

#include "foundation/texto/msglocal.h"

// "<160946>": the files of the work %s (wide text) are not there any more or cannot be reached.
void ultiobra_msg_160946(vnmensaje *mensaje);
// "<160947>": is the entry to be deleted from the list?
void ultiobra_msg_160947(vnmensaje *mensaje);
