// User texts of vornbin.
#pragma once

#include "foundation/texto/msglocal.h"

// "<32342>": the file %s (wide text) was saved by a newer version than this program can read.
void vornbin_msg_32342(vnmensaje *mensaje);
