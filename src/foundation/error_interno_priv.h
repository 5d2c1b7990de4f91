// What the reporters share with the traps and the heap.
#pragma once

#include "foundation/error_interno.h"

namespace vn {

// What a report inside a trapped call throws; only a trap catches it.
struct fallo_atrapado {};

// Delivers a report: to the trap of this thread, to the host's receiver, or to the error stream.
void entrega(const vninforme &informe);

// How many traps this thread is inside of.
int &trampas_abiertas();

// Writes a report as one line of UTF-8 ended by a line feed; returns its length, at most `maximo` - 1.
size_t linea_de_informe(const vninforme &informe, char *linea, size_t maximo);

// Writes a wide text to the error stream as one line of UTF-8.
void escribe_linea_de_error(const vnwchar *texto);

// Room for the line of the last trapped report of this thread.
inline constexpr size_t MAXIMO_LINEA_INFORME = 1024;
char *linea_del_ultimo_fallo();

} // namespace vn
