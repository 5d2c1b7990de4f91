#define VN_MODULO "cambtipo (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/cambtipo.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <limits>
#include <utility>

namespace {

// std::in_range takes no character types; a plain char is the number that it is.
template <class T> struct entero { using tipo = T; };
template <> struct entero<char> { using tipo = signed char; };

template <class A, class De> A el_mas_cercano(De valor) {
    return std::cmp_less(valor, 0) ? std::numeric_limits<A>::min() : std::numeric_limits<A>::max();
}

// The doubles whose whole part is an unsigned 32-bit number; no comparison holds for not-a-number.
bool es_ulong(double valor) { return valor > -1. && valor < 4294967296.; }

} // namespace

uint32_t cambtipo_double_a_ulong(double valor) {
    if (!AFIRMA_TEXTO(es_ulong(valor), "cambtipo_se_puede_double_a_ulong(valor) == CIERTO"))
        return valor >= 4294967296. ? UINT32_MAX : 0;
    return valor < 0. ? 0 : static_cast<uint32_t>(valor);
}

vnbool cambtipo_se_puede_double_a_ulong(double valor) { return vn::logico(es_ulong(valor)); }

// A row: source, target, type of the source, type of the target. The name is cambtipo_<source>_a_<target>.
#define CONVERSIONES                                                                                                   \
    X(int64, size_t, int64_t, size_t)                                                                                  \
    X(int64, time_t, int64_t, int64_t)                                                                                 \
    X(int64, unsigned_long, int64_t, uint32_t)                                                                         \
    X(int, char, int, char)                                                                                            \
    X(int, unsigned_char, int, unsigned char)                                                                          \
    X(int, unsigned_long, int, uint32_t)                                                                               \
    X(int, unsigned_short, int, uint16_t)                                                                              \
    X(long, time_t, int32_t, int64_t)                                                                                  \
    X(long, unsigned_long, int32_t, uint32_t)                                                                          \
    X(short, unsigned_int, int16_t, unsigned int)                                                                      \
    X(size_t, unsigned_long, size_t, uint32_t)                                                                         \
    X(time_t, long, int64_t, int32_t)                                                                                  \
    X(time_t, unsigned_long, int64_t, uint32_t)                                                                        \
    X(unsigned_int, int, unsigned int, int)                                                                            \
    X(unsigned_long64, unsigned_long, uint64_t, uint32_t)                                                              \
    X(unsigned_long, int, uint32_t, int)                                                                               \
    X(unsigned_long, long, uint32_t, int32_t)                                                                          \
    X(unsigned_long, short, uint32_t, int16_t)                                                                         \
    X(unsigned_long, unsigned_char, uint32_t, unsigned char)                                                           \
    X(unsigned_long, unsigned_short, uint32_t, uint16_t)

#define X(origen, destino, tipo_origen, tipo_destino)                                                                  \
    tipo_destino cambtipo_##origen##_a_##destino(tipo_origen valor) {                                                  \
        if (!AFIRMA_TEXTO(std::in_range<entero<tipo_destino>::tipo>(valor), #origen " valor cabe en " #destino))       \
            return el_mas_cercano<tipo_destino>(valor);                                                                \
        return static_cast<tipo_destino>(valor);                                                                       \
    }
CONVERSIONES
#undef X
