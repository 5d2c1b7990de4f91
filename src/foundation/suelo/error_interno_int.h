// What the reporters share with the traps and the heap.
#pragma once

#include "foundation/suelo/trapable.h"

namespace vn::inline suelo {

inline constexpr size_t MAXIMO_LINEA_INFORME = 1024;

// A trap that is open, with the line of the first report that marked it.
struct trampa {
    trampa *exterior;
    bool marcada = false;
    char linea[MAXIMO_LINEA_INFORME];
};
// The innermost trap of this thread; null outside of all.
trampa *&trampa_abierta();

// Whether the innermost trap of this thread has caught a report: a long loop over outside data leaves then.
inline bool atrapado() { return trapable_ha_fallado() == CIERTO; }

// Delivers a report: to the trap of this thread, to the host's receiver, or to the error stream.
void entrega(const vninforme &informe);

// Writes a report as one line of UTF-8 ended by a line feed; returns its length, at most `maximo` - 1.
size_t linea_de_informe(const vninforme &informe, char *linea, size_t maximo);

// Writes a wide text to the error stream as one line of UTF-8.
void escribe_linea_de_error(const vnwchar *texto);

} // namespace vn::suelo
