/* The save protocol: one body of save code over several stored forms. A record has one write and one read function,
   each over a `vornsave` handle; the handle decides where the values go.

   Unless its comment says otherwise, a writer takes the value first and the protocol object last, a reader or skipper
   takes the object. Arrays and texts that a reader returns are new and the caller's; those given to a writer stay the
   caller's. Where the destination has no form for a value, the missing entry of its table is reported and the result is
   0 or null. After a report while reading, the result holds as much as could be read: 0, an empty text, an array that
   is shorter or ends in zeros. After a report while writing (a null text, a value that the destination cannot hold, a
   block that is not closed) the stream is marked: its close answers FALSO, and a file that was to be replaced stays as
   it was. A stored count is never believed: one that the rest of the source cannot hold is reported as an error of
   reading, and the array comes back empty.

   An operation that takes a function of the caller's has a typed form: the same name without `nousar` or, where there
   is no such word in it, with `ST` at the end. The element's type stands before the function, which must fit it. */
#ifndef VN_VORNSAVE_H
#define VN_VORNSAVE_H

#include "vornsave_arr.h"
#include "vornsave_bloques.h"
#include "vornsave_cadenas.h"
#include "vornsave_escalares.h"
#include "vornsave_fechas.h"
#include "vornsave_iguales.h"
#include "vornsave_objeto.h"
#include "vornsave_opcional.h"
#include "vornsave_progreso.h"
#include "vornsave_punteros.h"
#include "vornsave_textos.h"
#include "vornsave_tipos.h"

#endif
