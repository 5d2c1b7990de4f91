// The core formatter of number text, one for both widths.
#pragma once

#include "foundation/suelo/afirma_int.h"
#include "units/vornnum.h"
#include <string_view>

namespace vn {

// A number text as it is composed, on the stack: from its last character to its first, as its digits come out.
template <class C> class texto_numero {
  public:
    void pon(C c) { *--inicio_ = c; }
    // Two digits of a value below 100.
    void pon_par(uint32_t v) {
        pon(static_cast<C>('0' + v % 10));
        pon(static_cast<C>('0' + v / 10));
    }
    void pon_ascii(std::string_view s) {
        for (auto c = s.rbegin(); c != s.rend(); ++c) pon(static_cast<C>(*c));
    }
    // The whole number `n` / 10^decimales, with thousands grouped unless `sep_millares` is 0.
    void pon_decimal(uint64_t n, uint32_t decimales, C sep_millares, C sep_decimales) {
        if (decimales > 0) {
            for (; decimales >= 2; decimales -= 2, n /= 100) pon_par(static_cast<uint32_t>(n % 100));
            if (decimales > 0) {
                pon(static_cast<C>('0' + n % 10));
                n /= 10;
            }
            marca_decimales(sep_decimales);
        }
        for (; n >= 1000; n /= 1000) {
            const auto grupo = static_cast<uint32_t>(n % 1000);
            pon_par(grupo % 100);
            pon(static_cast<C>('0' + grupo / 100));
            if (sep_millares != 0) pon(sep_millares);
        }
        auto resto = static_cast<uint32_t>(n);
        for (; resto >= 100; resto /= 10) pon(static_cast<C>('0' + resto % 10));
        if (resto >= 10) pon_par(resto);
        else pon(static_cast<C>('0' + resto));
    }
    void pon_entero(uint64_t n) { pon_decimal(n, 0, 0, 0); }
    // The decimal separator: what is there by now are the decimals.
    void marca_decimales(C sep_decimales) {
        decimales_ = largo() + 1;
        pon(sep_decimales);
    }
    void pon_detras(C c) { *fin_++ = c; }

    size_t largo() const { return static_cast<size_t>(fin_ - inicio_); }
    // How many characters stand from the decimal separator on; 0 without one.
    size_t decimales() const { return decimales_; }
    const C *letras() const { return inicio_; }
    size_t tam_buffer() const { return tam_buffer_; }

  private:
    // No text of the formatter comes near the room that there is; one character of it is for pon_detras.
    C letras_[TAM_BUFFER_NUM];
    size_t tam_buffer_ = TAM_BUFFER_NUM, decimales_ = 0;
    C *inicio_ = letras_ + TAM_BUFFER_NUM - 1, *fin_ = inicio_;
};

inline bool formato_bueno(int32_t formato) {
    return (formato >= VORNNUM_FORMATO_NUMERO && formato <= VORNNUM_FORMATO_SOLO_PULGADAS) || AFIRMA_DEFECTO();
}

// How a number is shown: as the arguments of num_double_a_string.
template <class C> struct aspecto {
    C sep_millares, sep_decimales;
    bool cientifica;
    int32_t decimales;
};

// False, after a report, when `a` is not possible.
template <class C> bool aspecto_bueno(const aspecto<C> &a);
// Puts the text of `valor` before what there is. `a` is good.
template <class C> void pon_numero(texto_numero<C> &t, double valor, const aspecto<C> &a);
// The same of a length by its format, VORNNUM_FORMATO_PIES and on, in feet and inches; reports, and is false.
template <class C> bool pon_longitud(texto_numero<C> &t, double valor, int32_t formato, uint32_t denominador);
// A new text of the tracked heap.
template <class C> C *texto_nuevo(const texto_numero<C> &t);

#define VORNNUM_DE_UN_ANCHO(C)                                                                                         \
    extern template bool aspecto_bueno<C>(const aspecto<C> &);                                                         \
    extern template void pon_numero<C>(texto_numero<C> &, double, const aspecto<C> &);                                 \
    extern template C *texto_nuevo<C>(const texto_numero<C> &);
VORNNUM_DE_UN_ANCHO(char)
VORNNUM_DE_UN_ANCHO(vnwchar)
#undef VORNNUM_DE_UN_ANCHO

} // namespace vn
