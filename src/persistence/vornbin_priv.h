// What the binary layer shares inside the library: owners, the debug form's flags, the transfer of whole arrays.
#pragma once

#include "foundation/propio_priv.h"
#include "persistence/vornbin.h"
#include <atomic>
#include <memory>

namespace vn {

// The owner of a stream.
struct cierra_fichero {
    void operator()(vnfichero *f) const { lc_fclose_seguro(f); }
};
using fichero = std::unique_ptr<vnfichero, cierra_fichero>;

// Process-wide, set when a file is opened: each value carries the letter of its kind before it.
extern std::atomic<bool> bin_etiquetas_al_escribir;
extern std::atomic<bool> bin_etiquetas_al_leer;

// Writes the debug byte that begins a prologue, and turns the tags on for what follows if GRABARCONDEBUG is defined.
void bin_graba_modo_debug(vnfichero *f);
// Reads it, quietly; false for a byte that is neither 0 nor 1 and at the end of the file.
bool bin_lee_modo_debug(vnfichero *f);

// Whole arrays: the bytes, the tags and the checks of one call of the scalar operation per element, in one transfer where
// no tag goes between; a short read is reported once and the rest is zero. `n` elements at `datos`, which may be null if
// `n` is 0. Readers are called with an `n` that lc_quedan has accepted.
#define VN_BIN_BLOQUES(X)                                                                                              \
    X(byte, uint8_t)                                                                                                   \
    X(char, char)                                                                                                      \
    X(uchar, uint8_t)                                                                                                  \
    X(short, int16_t)                                                                                                  \
    X(ushort, uint16_t)                                                                                                \
    X(long, int32_t)                                                                                                   \
    X(ulong, uint32_t)                                                                                                 \
    X(long64, int64_t)                                                                                                 \
    X(ulong64, uint64_t)                                                                                               \
    X(float, float)                                                                                                    \
    X(double, double)
#define X(nombre, tipo)                                                                                                \
    void bin_graba_bloque_##nombre(const tipo *datos, uint32_t n, vnfichero *f);                                       \
    void bin_lee_bloque_##nombre(tipo *datos, uint32_t n, vnfichero *f);
void bin_graba_bloque_bool(const vnbool *datos, uint32_t n, vnfichero *f);
void bin_lee_bloque_bool(vnbool *datos, uint32_t n, vnfichero *f);
VN_BIN_BLOQUES(X)
#undef X

} // namespace vn
