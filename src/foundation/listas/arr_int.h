// Spans over arrays, for the loops of the library's own sources: one call an array, not one an element.
// for (double x : vn::tramo(a)) ...; const arrays give const elements. A span dies when the array grows.
#pragma once

#include "foundation/listas/arr.h"
#include <span>

// The families of plain elements: X(suffix, C type).
#define VN_ARR_SIMPLES(X)                                                                                              \
    X(BOOL, vnbool)                                                                                                    \
    X(BYTE, uint8_t)                                                                                                   \
    X(UChar, uint8_t)                                                                                                  \
    X(Char, char)                                                                                                      \
    X(Short, int16_t)                                                                                                  \
    X(UShort, uint16_t)                                                                                                \
    X(Long, int32_t)                                                                                                   \
    X(ULong, uint32_t)                                                                                                 \
    X(Long64, int64_t)                                                                                                 \
    X(ULong64, uint64_t)                                                                                               \
    X(Double, double)

namespace vn::listas {

#define VN_TRAMO(S, T)                                                                                                 \
    inline std::span<T> tramo(arr##S *a) { return {arr_GetBuffer##S(a), arr_NumElems##S(a)}; }
#define VN_TRAMO_CONST(S, T)                                                                                           \
    inline std::span<const T> tramo(const arr##S *a) { return {arr_GetBufferConst##S(a), arr_NumElems##S(a)}; }
VN_ARR_SIMPLES(VN_TRAMO)
VN_ARR_SIMPLES(VN_TRAMO_CONST)
VN_TRAMO(Punto2D, Punto2D)
VN_TRAMO_CONST(Punto2D, Punto2D)
VN_TRAMO(Punto3D, Punto3D)
VN_TRAMO_CONST(Punto3D, Punto3D)
VN_TRAMO_CONST(Punto2DXPriv, Punto2DXPriv)
VN_TRAMO_CONST(CADENA, char *const)
VN_TRAMO_CONST(CADENA_u, vnwchar *const)
#undef VN_TRAMO
#undef VN_TRAMO_CONST

inline std::span<void *> tramo(arrPuntero *a) { return {arr_GetBufferPuntero(a), arr_NumElemsPuntero(a)}; }
inline std::span<void *const> tramo(const arrPuntero *a) {
    return {arr_GetBufferConstPuntero(a), arr_NumElemsPuntero(a)};
}

} // namespace vn::listas
