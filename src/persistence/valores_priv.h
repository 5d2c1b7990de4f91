// Arrays of numbers, truth values and points over a destination, for any module that stores some: the count and the
// elements, or the elements at once where the destination takes them. The caller has checked the entries.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include "persistence/destino_priv.h"
#include <algorithm>
#include <type_traits>

namespace vn {

// What the templates need of an array family.
template <class ARR> struct familia;
#define FAMILIA(sufijo, tipo_elemento)                                                                                 \
    template <> struct familia<arr##sufijo> {                                                                          \
        using elemento = tipo_elemento;                                                                                \
        static arr##sufijo *crea(uint32_t n) { return arr_Crea##sufijo(n); }                                           \
        using dueno = vn::dueno<arr_Destruye##sufijo>;                                                                 \
        static uint32_t numelems(const arr##sufijo *a) { return arr_NumElems##sufijo(a); }                             \
        static elemento *buffer(arr##sufijo *a) { return arr_GetBuffer##sufijo(a); }                                   \
        static const elemento *buffer_const(const arr##sufijo *a) { return arr_GetBufferConst##sufijo(a); }            \
    };
FAMILIA(BOOL, vnbool)
FAMILIA(Double, double)
FAMILIA(Long, int32_t)
FAMILIA(Long64, int64_t)
FAMILIA(UChar, uint8_t)
FAMILIA(UShort, uint16_t)
FAMILIA(ULong, uint32_t)
FAMILIA(ULong64, uint64_t)
FAMILIA(Punto2D, Punto2D)
FAMILIA(Punto3D, Punto3D)

#undef FAMILIA

// Appends to an array whose length the source could not vouch for.
inline void anade(arrBOOL *a, vnbool v) { arr_AppendBOOL(a, v); }
inline void anade(arrDouble *a, double v) { arr_AppendDouble(a, v); }
inline void anade(arrLong *a, int32_t v) { arr_AppendLong(a, v); }
inline void anade(arrLong64 *a, int64_t v) { arr_AppendLong64(a, v); }
inline void anade(arrUChar *a, uint8_t v) { arr_AppendUChar(a, v); }
inline void anade(arrUShort *a, uint16_t v) { arr_AppendUShort(a, v); }
inline void anade(arrULong *a, uint32_t v) { arr_AppendULong(a, v); }
inline void anade(arrULong64 *a, uint64_t v) { arr_AppendULong64(a, v); }
inline void anade(arrPunto2D *a, const Punto2D &p) { arr_AppendPunto2D(a, p.x, p.y); }
inline void anade(arrPunto3D *a, const Punto3D &p) { arr_AppendPunto3D(a, p.x, p.y, p.z); }

// The scalars of an element: all but the last leave its line open.
template <auto ENTRADA, auto ABIERTA, class T> void graba_elemento(const T &v, const conducto &c) {
    if constexpr (std::is_arithmetic_v<T>) {
        c.graba<ENTRADA>(v);
    } else {
        c.graba<ABIERTA>(v.x);
        if constexpr (sizeof(T) == sizeof(Punto3D)) c.graba<ABIERTA>(v.y);
        if constexpr (sizeof(T) == sizeof(Punto3D)) c.graba<ENTRADA>(v.z);
        else c.graba<ENTRADA>(v.y);
    }
}
template <auto ENTRADA, auto ABIERTA, class T> T lee_elemento(const conducto &c) {
    if constexpr (std::is_arithmetic_v<T>) {
        return c.lee<ENTRADA>();
    } else {
        T v{};
        v.x = c.lee<ABIERTA>();
        if constexpr (sizeof(T) == sizeof(Punto3D)) {
            v.y = c.lee<ABIERTA>();
            v.z = c.lee<ENTRADA>();
        } else {
            v.y = c.lee<ENTRADA>();
        }
        return v;
    }
}

// A point goes as its two or three doubles.
template <class T> using escalar_de = std::conditional_t<std::is_arithmetic_v<T>, T, double>;
template <class T> inline constexpr uint32_t ESCALARES = sizeof(T) / sizeof(escalar_de<T>);

// Entry of the last scalar of an element, of those before it, whole arrays (null: never).
template <auto ENTRADA, auto ABIERTA, auto BLOQUE, class T>
void graba_valores(const conducto &c, const T *valores, uint32_t n) {
    c.graba<GRABAR(ulong_y_salta)>(n);
    if (n == 0) return;
    if constexpr (!std::is_null_pointer_v<decltype(BLOQUE)>) {
        if (const auto en_bloque = c.fila->bloques.*BLOQUE; en_bloque != nullptr && n <= UINT32_MAX / ESCALARES<T>)
            return en_bloque(reinterpret_cast<const escalar_de<T> *>(valores), n * ESCALARES<T>, c.donde);
    }
    for (uint32_t i = 0; i < n; ++i) graba_elemento<ENTRADA, ABIERTA>(valores[i], c);
}

template <class ARR, auto ENTRADA, auto ABIERTA, auto BLOQUE> ARR *lee_valores(const conducto &c) {
    using T = typename familia<ARR>::elemento;
    constexpr bool EN_BLOQUE = !std::is_null_pointer_v<decltype(BLOQUE)>; // else a truth value, of one byte
    const uint32_t n = c.acota(c.lee<LEER(ulong_y_salta)>(), EN_BLOQUE ? sizeof(T) : 1, 2 * ESCALARES<T>);
    typename familia<ARR>::dueno array(familia<ARR>::crea(c.primer_paso(n)));
    if (array == nullptr || n == 0) return array.release();
    T *valores = familia<ARR>::buffer(array.get());
    const uint32_t listos = familia<ARR>::numelems(array.get());
    // Whole, if the source has vouched for the count.
    if constexpr (EN_BLOQUE) {
        const auto en_bloque = c.fila->bloques.*BLOQUE;
        if (en_bloque != nullptr && listos == n && n <= UINT32_MAX / ESCALARES<T>) {
            en_bloque(reinterpret_cast<escalar_de<T> *>(valores), n * ESCALARES<T>, c.donde);
            return array.release();
        }
    }
    // One by one, growing past the first step as they come.
    const vigia guarda(c);
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        const T v = lee_elemento<ENTRADA, ABIERTA, T>(c);
        if (i < listos) valores[i] = v;
        else anade(array.get(), v);
    }
    return array.release();
}

// An array that only grows at its end, read in pieces.
template <class DUENO, auto CREA, auto ANADE, class T, auto ENTRADA, auto BLOQUE>
auto *lee_al_final(const conducto &c) {
    const uint32_t n = c.acota(c.lee<LEER(ulong_y_salta)>(), sizeof(T), 2);
    DUENO array(CREA());
    const auto en_bloque = c.fila->bloques.*BLOQUE;
    const vigia guarda(c);
    T trozo[512];
    for (uint32_t i = 0, m; i < n && guarda.sigue(); i += m) {
        m = 1;
        if (en_bloque != nullptr) en_bloque(trozo, m = std::min<uint32_t>(n - i, std::size(trozo)), c.donde);
        else trozo[0] = c.lee<ENTRADA>();
        for (uint32_t j = 0; j < m; ++j) ANADE(array.get(), trozo[j]);
    }
    return array.release();
}

} // namespace vn
