// Members of a form that go both ways: one operation that writes a datum or reads it, by a flag.
#pragma once

#include "foundation/suelo/afirma_int.h"

// The checks of one: the two pointers and the direction.
#define AFIRMA_TRATA(dato) (EXIGE(dato, f) && AFIRMA_LOGICO(graba))
// One out of what writes and what reads: for lists of rows X(type, name, writer, reader).
#define VN_TRATA(tipo, trata, escribe, lee)                                                                            \
    void trata(tipo *dato, vnfichero *f, vnbool graba) {                                                               \
        if (!AFIRMA_TRATA(dato)) return;                                                                               \
        if (graba == CIERTO) escribe(*dato, f);                                                                        \
        else *dato = lee(f);                                                                                           \
    }
