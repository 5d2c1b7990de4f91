// What the binary layer shares inside the library: owners, the debug form, scalars, the transfer of whole arrays.
#pragma once

#include "foundation/ficheros/lc_fichero_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include "persistence/vornbin.h"

namespace vn {

// Closes the stream on every way out, without a report of its own.
using fichero = dueno<lc_fclose_seguro>;

// Writes the debug byte that begins a prologue; if GRABARCONDEBUG is defined, what the stream is given from then on has
// tags, whatever other files are open.
void bin_graba_modo_debug(vnfichero *f);
// Reads it, quietly; false for a byte that is neither 0 nor 1 and at the end of the file.
bool bin_lee_modo_debug(vnfichero *f);

// The scalars. A row: type, tag, name, writer, reader. The double is one more, whose writer looks at its value.
#define VN_BIN_ESCALARES(X)                                                                                            \
    X(uint8_t, 'b', byte, bin_graba_byte, bin_lee_byte)                                                                \
    X(char, 'c', char, bin_graba_char, bin_lee_char)                                                                   \
    X(uint8_t, 'u', uchar, bin_graba_uchar, bin_lee_uchar)                                                             \
    X(int16_t, 's', short, bin_graba_short, bin_lee_short)                                                             \
    X(uint16_t, 'u', ushort, bin_graba_ushort, bin_lee_ushort)                                                         \
    X(int32_t, 'l', long, bin_graba_long, bin_lee_long)                                                                \
    X(uint32_t, 'u', ulong, bin_graba_ulong, bin_lee_ulong)                                                            \
    X(int64_t, 'l', long64, bin_graba_long64, bin_lee_long64)                                                          \
    X(uint64_t, 'u', ulong64, bin_graba_ulong64, bin_lee_ulong64)                                                      \
    X(float, 'f', float, bin_graba_float, bin_lee_float)

// Null streams, tags and the ends of the buffer. Both take values, not addresses, and are called last, so that the fast
// path saves no register.
template <class T> void graba_despacio(T dato, char etiqueta, vnfichero *f);
template <class T> T lee_despacio(char etiqueta, vnfichero *f);

template <class T> inline void graba_escalar(T dato, char etiqueta, vnfichero *f) {
    if (!f->etiquetas_al_escribir) [[likely]] {
        unsigned char *const pos = f->v.pos;
        if (f->v.fin_escritura - pos >= static_cast<ptrdiff_t>(sizeof(T))) [[likely]] {
            memcpy(pos, &dato, sizeof(T));
            f->v.pos = pos + sizeof(T);
            return;
        }
    }
    graba_despacio(dato, etiqueta, f);
}
template <class T> inline T lee_escalar(char etiqueta, vnfichero *f) {
    if (!f->etiquetas_al_leer) [[likely]] {
        unsigned char *const pos = f->v.pos;
        if (f->v.fin_lectura - pos >= static_cast<ptrdiff_t>(sizeof(T))) [[likely]] {
            T dato;
            memcpy(&dato, pos, sizeof(T));
            f->v.pos = pos + sizeof(T);
            return dato;
        }
    }
    return lee_despacio<T>(etiqueta, f);
}

// A finite number, without a call: the exponent is not all ones.
inline bool es_numero_valido(double x) {
    uint64_t bits;
    memcpy(&bits, &x, sizeof bits);
    return (bits & 0x7FF0000000000000u) != 0x7FF0000000000000u;
}

// The scalar operations, inline in whatever stands on them; the stream is there.
namespace directo {
#define X(tipo, etiqueta, nombre, graba, lee)                                                                          \
    inline void graba_##nombre(tipo dato, vnfichero *f) { graba_escalar<tipo>(dato, etiqueta, f); }                    \
    inline tipo lee_##nombre(vnfichero *f) { return lee_escalar<tipo>(etiqueta, f); }
VN_BIN_ESCALARES(X)
#undef X
inline void graba_double(double dato, vnfichero *f) {
    if (es_numero_valido(dato)) [[likely]]
        graba_escalar(dato, 'd', f);
    else graba_despacio(dato, 'd', f);
}
inline double lee_double(vnfichero *f) { return lee_escalar<double>('d', f); }
} // namespace directo

// Whole arrays: the bytes, the tags and the checks of one call of the scalar operation per element, in one transfer
// where no tag goes between; a short read is reported once and the rest is zero. `n` elements at `datos`, which may be
// null if `n` is 0. Readers are called with an `n` that lc_quedan has accepted.
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
