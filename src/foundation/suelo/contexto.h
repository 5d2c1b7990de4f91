/* Context: what this thread is about, for reports to show. */
#ifndef VN_CONTEXTO_H
#define VN_CONTEXTO_H

#include "tipos.h"

VN_C_INICIO

/** Enters a piece of work that `texto` describes. The text is copied (its first 159 units; from the 17th level on only
    the level counts). The end of a trap leaves what was entered inside it. */
void contexto_dentroDeContexto_u(const vnwchar *texto);
/** Leaves the piece of work that was entered last; `texto` must be its description. Another text is reported and
    leaves down to the level of that text; one that was not entered is reported and leaves nothing. */
void contexto_fueraDeContexto_u(const vnwchar *texto);
/** The descriptions that this thread is inside of, outermost first, joined by " > "; empty outside of all. Borrowed
    until this thread asks again. Reports nothing and allocates nothing. */
const vnwchar *contexto_actual_u(void);

VN_C_FIN

#endif
