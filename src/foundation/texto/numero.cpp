#define VN_MODULO "numero (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/numero_int.h"
#include <charconv>
#include <cmath>
#include <limits>
#include <type_traits>

namespace vn::texto {
namespace {

template <class C> bool es_digito(C c) { return c >= '0' && c <= '9'; }

// Index past blanks and a sign.
template <class C> size_t pasa_blancos_y_signo(const C *s, size_t n, bool &negativo) {
    size_t i = 0;
    while (i < n && (s[i] == ' ' || (s[i] >= '\t' && s[i] <= '\r'))) ++i;
    if (i < n && (s[i] == '+' || s[i] == '-')) negativo = s[i++] == '-';
    return i;
}

// Units of the word at `s`, in any case, when nothing that could go on with it follows; 0 if it is not there.
template <class C> size_t palabra(const C *s, size_t n, const char *minusculas) {
    size_t i = 0;
    for (; minusculas[i] != 0; ++i)
        if (i == n || (s[i] | 0x20) != minusculas[i]) return 0;
    if (i == n) return i;
    const auto c = s[i];
    const bool sigue = es_digito(c) || c == '_' || ((c | 0x20) >= 'a' && (c | 0x20) <= 'z');
    return sigue ? 0 : i;
}

// Tells overflow from underflow, for a number that no double can hold, by the place of its first digit.
template <class C> bool es_enorme(const C *s, const C *fin) {
    // Digits before the period, and zeros between it and the first digit that counts: the place of that digit.
    int64_t enteras = 0, ceros = 0;
    bool hay = false, punto = false;
    const C *p = s;
    for (; p != fin && (es_digito(*p) || *p == '.'); ++p) {
        if (*p == '.') punto = true;
        else if (!hay && *p == '0') ceros += punto;
        else {
            hay = true;
            enteras += !punto;
        }
    }
    int64_t exponente = 0;
    if (p != fin) {
        const bool negativo = *++p == '-';
        for (p += negativo || *p == '+'; p != fin; ++p)
            // No text is long enough to bring such an exponent back, so its further digits change nothing.
            exponente = exponente > 1'000'000'000'000 ? exponente : exponente * 10 + (*p - '0');
        if (negativo) exponente = -exponente;
    }
    return exponente + (enteras > 0 ? enteras : -ceros) > 0;
}

} // namespace

template <class C> leido<double> lee_double(const C *s, size_t n) {
    leido<double> r;
    bool negativo = false;
    const size_t inicio = pasa_blancos_y_signo(s, n, negativo);
    const auto acaba = [&](double valor, size_t fin, bool desborda) {
        r.valor = negativo ? -valor : valor;
        r.consumido = fin;
        r.desborda = desborda;
        return r;
    };
    for (const char *p : {"infinity", "inf", "nan"})
        if (const size_t m = palabra(s + inicio, n - inicio, p))
            return acaba(*p == 'n' ? std::numeric_limits<double>::quiet_NaN() : HUGE_VAL, inicio + m, false);

    // The extent of the number: digits with at most one period, one digit at least.
    size_t i = inicio, cifras = 0;
    for (; i < n && es_digito(s[i]); ++i) ++cifras;
    if (i < n && s[i] == '.')
        for (++i; i < n && es_digito(s[i]); ++i) ++cifras;
    if (cifras == 0) return r;
    // An exponent belongs to it only if it has a digit: of "2e+" the number is 2.
    if (i < n && (s[i] == 'e' || s[i] == 'E')) {
        size_t e = i + 1;
        if (e < n && (s[e] == '+' || s[e] == '-')) ++e;
        if (e < n && es_digito(s[e])) {
            while (e < n && es_digito(s[e])) ++e;
            i = e;
        }
    }
    // std::from_chars knows no locale; of a number out of range it does not say at which end.
    double valor = 0;
    const auto convierte = [&](const char *a) {
        const std::from_chars_result f = std::from_chars(a, a + (i - inicio), valor);
        if (f.ec == std::errc::result_out_of_range) {
            valor = es_enorme(s + inicio, s + i) ? HUGE_VAL : 0;
            return true;
        }
        return std::isinf(valor);
    };
    if constexpr (std::is_same_v<C, char>) {
        const bool desborda = convierte(s + inicio);
        return acaba(valor, i, desborda);
    } else {
        // Wide units of a number are ASCII, so they are narrowed; a number of usual length needs no heap.
        char corto[64];
        std::string largo;
        char *a = corto;
        if (i - inicio > sizeof corto) {
            largo.resize(i - inicio);
            a = largo.data();
        }
        for (size_t k = inicio; k < i; ++k) a[k - inicio] = static_cast<char>(s[k]);
        const bool desborda = convierte(a);
        return acaba(valor, i, desborda);
    }
}

template <class T, class C> leido<T> lee_entero(const C *s, size_t n, int base) {
    leido<T> r;
    bool negativo = false;
    size_t i = pasa_blancos_y_signo(s, n, negativo);
    const auto cifra = [&](size_t k) -> unsigned {
        if (k >= n) return 99;
        const auto c = s[k];
        if (es_digito(c)) return static_cast<unsigned>(c - '0');
        const auto m = c | 0x20;
        return m >= 'a' && m <= 'z' ? static_cast<unsigned>(m - 'a' + 10) : 99;
    };
    // "0x" is a prefix only before a digit: of "0xg" the number is 0.
    if ((base == 0 || base == 16) && i < n && s[i] == '0' && i + 1 < n && (s[i + 1] | 0x20) == 'x' &&
        cifra(i + 2) < 16) {
        base = 16;
        i += 2;
    }
    // Without a base a leading zero asks for octal, as in the C language.
    if (base == 0) base = cifra(i) == 0 ? 8 : 10;
    const auto b = static_cast<unsigned>(base);
    if (cifra(i) >= b) return r;
    uint64_t valor = 0;
    // After an overflow digits are still passed over: `consumido` counts all of the number.
    for (; cifra(i) < b; ++i) {
        const unsigned c = cifra(i);
        if (valor > (UINT64_MAX - c) / b) r.desborda = true;
        else valor = valor * b + c;
    }
    r.consumido = i;
    using limites = std::numeric_limits<T>;
    // The greatest magnitude of the type on this side of zero; an unsigned type has none below.
    const uint64_t tope = !negativo             ? static_cast<uint64_t>(limites::max())
                          : std::is_signed_v<T> ? static_cast<uint64_t>(limites::max()) + 1
                                                : 0;
    if (r.desborda || valor > tope) {
        r.desborda = true;
        r.valor = negativo ? limites::min() : limites::max();
    } else r.valor = static_cast<T>(negativo ? 0 - valor : valor);
    return r;
}

template leido<double> lee_double<char>(const char *, size_t);
template leido<double> lee_double<vnwchar>(const vnwchar *, size_t);
#define ENTEROS(C)                                                                                                     \
    template leido<int32_t> lee_entero<int32_t, C>(const C *, size_t, int);                                            \
    template leido<uint32_t> lee_entero<uint32_t, C>(const C *, size_t, int);                                          \
    template leido<int64_t> lee_entero<int64_t, C>(const C *, size_t, int);                                            \
    template leido<uint64_t> lee_entero<uint64_t, C>(const C *, size_t, int);
ENTEROS(char)
ENTEROS(vnwchar)

} // namespace vn::texto
