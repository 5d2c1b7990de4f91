// The numbers of the text lines: X(name in the operations, C type). Each row is four operations:
// vtxt_escr_N, vtxt_escr_N_y_salta, vtxt_lee_N, vtxt_lee_N_y_salta.
#pragma once

#define VN_VTXT_NUMEROS(X)                                                                                             \
    X(char, char)                                                                                                      \
    X(uchar, uint8_t)                                                                                                  \
    X(signed_short, int16_t)                                                                                           \
    X(ushrt, uint16_t)                                                                                                 \
    X(long, int32_t)                                                                                                   \
    X(ulong, uint32_t)                                                                                                 \
    X(long64, int64_t)                                                                                                 \
    X(ulong64, uint64_t)                                                                                               \
    X(double, double)

namespace vn::ficheros {

// Stands before the four hexadecimal digits of a unit that a line of text cannot hold.
inline constexpr char ESCAPE_DE_UNIDAD = 16;

} // namespace vn::ficheros
