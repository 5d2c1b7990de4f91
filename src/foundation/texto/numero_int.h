// The one number parser, for both widths, independent of the C locale (std::from_chars). Leading blanks and a sign are
// taken; the decimal sign is a point; no hexadecimal fractions. "nan", "inf" and "infinity" are numbers when no letter,
// digit or underscore follows. What a type cannot hold gives the nearest it can: an infinity, zero, its first or last.
#pragma once

#include "foundation/suelo/tipos.h"
#include <cstddef>
#include <string>

namespace vn::texto {

template <class T> struct leido {
    T valor = 0;           // 0 when there is no number
    size_t consumido = 0;  // units taken, blanks included; 0 when there is no number
    bool desborda = false; // the number does not fit the type
};

// Of the `n` units at `s`. C is char or vnwchar.
template <class C> leido<double> lee_double(const C *s, size_t n);
// T is int32_t, uint32_t, int64_t or uint64_t; base 2 to 36, or 0 for the prefixes 0x and 0 (a prefix 0x is taken in
// base 16 too). A minus before an unsigned type overflows unless the number is 0.
template <class T, class C> leido<T> lee_entero(const C *s, size_t n, int base = 10);

// The value of a hexadecimal digit of either case, or a value above 15.
constexpr uint32_t cifra_hexadecimal(uint32_t c) {
    if (c - '0' < 10) return c - '0';
    const uint32_t m = (c | 0x20) - 'a';
    return m < 6 ? m + 10 : 16;
}

// Of a zero-terminated text.
template <class C> leido<double> lee_double(const C *s) { return lee_double(s, std::char_traits<C>::length(s)); }
template <class T, class C> leido<T> lee_entero(const C *s, int base = 10) {
    return lee_entero<T>(s, std::char_traits<C>::length(s), base);
}

} // namespace vn::texto
