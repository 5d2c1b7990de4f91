// What the library's own files use of the table: whole transfers, patience, copies.
#pragma once

#include "foundation/suelo/cadena_int.h"
#include "foundation/suelo/operaciones_fichero.h"
#include <string>

namespace vn::inline suelo {

// The table in use.
const vnoperaciones_fichero &operaciones();

// How often what a file's holder hinders is tried again, and how long is waited between two tries.
struct paciencia {
    uint32_t intentos, milisegundos;
};
inline constexpr paciencia UNA_VEZ{1, 0}, UNA_DECIMA{6, 20}, UN_SEGUNDO{21, 50}, DOS_SEGUNDOS{21, 100};
// An operation that is interrupted so many times running is given up.
inline constexpr uint32_t MAXIMO_INTERRUPCIONES = 1000;

// The operation, again at once while it is interrupted, and after a wait while somebody holds the file.
template <typename F> vnerror_fichero con_paciencia(const paciencia &p, F operacion) {
    uint32_t interrupciones = 0;
    for (uint32_t intento = 1;;) {
        const vnerror_fichero e = operacion();
        if (e == VN_FICH_INTERRUMPIDA && ++interrupciones < MAXIMO_INTERRUPCIONES) continue;
        if (e != VN_FICH_COMPARTIDO || intento >= p.intentos) return e;
        ++intento;
        operaciones().espera(p.milisegundos);
    }
}

// All `n` bytes at a position, -1 being the end, or the error that stopped it.
vnerror_fichero escribe_todo(vnid_fichero id, int64_t posicion, const void *origen, size_t n);
// As many of `n` bytes as there are: fewer only at the end of the file or after an error.
vnerror_fichero lee_todo(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos);
// The content of a named file into an open one, which is empty.
vnerror_fichero copia_contenido(const vnwchar *origen, vnid_fichero destino);

} // namespace vn::suelo
