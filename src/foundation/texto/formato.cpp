#define VN_MODULO "formato (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/formato_int.h"
#include "foundation/texto/pagina_priv.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <string>
#include <string_view>
#include <type_traits>

namespace vn::texto {
namespace {

constexpr int MAX_ANCHO = 1'000'000;
// No double has more decimals than this, nor more figures: what a format asks for beyond are zeros.
constexpr int MAX_PRECISION_EXACTA = 1100;
constexpr size_t SITIO_CIFRAS = 309 + 1 + MAX_PRECISION_EXACTA + 8;

// In a record, so that a reference to it is the same on every platform: a va_list may be an array.
struct argumentos {
    va_list v;
};

// Counts all, writes what there is room for.
template <class C> class salida {
  public:
    salida(C *destino, size_t sitio) : destino_(destino), sitio_(sitio) {}
    template <class D> void pon(const D *s, size_t n) {
        const size_t m = cabe(n);
        for (size_t i = 0; i < m; ++i) destino_[n_ + i] = static_cast<C>(s[i]);
        n_ += n;
    }
    void rellena(char c, size_t n) {
        std::fill_n(destino_ + (n_ < sitio_ ? n_ : 0), cabe(n), static_cast<C>(c));
        n_ += n;
    }
    size_t termina() {
        if (sitio_ > 0) destino_[std::min(n_, sitio_ - 1)] = 0;
        return n_;
    }

  private:
    size_t cabe(size_t n) const { return n_ < sitio_ ? std::min(n, sitio_ - n_) : 0; }
    C *destino_;
    size_t sitio_, n_ = 0;
};

// One conversion of a format: flags, width, precision, size and letter.
struct conversion {
    bool izquierda = false, mas = false, blanco = false, alterna = false, ceros = false;
    int ancho = 0, precision = -1;
    unsigned bytes = 4; // of an integer
    char anchura = 0;   // of a text: 'h' ANSI, 'l' wide, 0 as the letter says
    bool doble_largo = false;
    char letra = 0;
};

template <class C> int lee_ancho(const C *&p, argumentos &a) {
    // Cut at a million either way: the width of an outside format must not fill the memory.
    if (*p == '*') {
        ++p;
        return std::clamp(va_arg(a.v, int), -MAX_ANCHO, MAX_ANCHO);
    }
    int n = 0;
    for (; *p >= '0' && *p <= '9'; ++p) n = std::min(n * 10 + static_cast<int>(*p - '0'), MAX_ANCHO);
    return n;
}

template <class C> void lee_tamanyo(const C *&p, conversion &c) {
    switch (*p) {
    case 'h':
        c.bytes = p[1] == 'h' ? 1 : 2;
        c.anchura = 'h';
        p += p[1] == 'h' ? 2 : 1;
        break;
    case 'l':
        c.bytes = p[1] == 'l' ? 8 : 4;
        c.anchura = 'l';
        p += p[1] == 'l' ? 2 : 1;
        break;
    case 'w':
        c.anchura = 'l';
        ++p;
        break;
    case 'L':
        c.doble_largo = true;
        ++p;
        break;
    // The size prefix of Windows: I32, I64, and I alone for the size of a pointer.
    case 'I': {
        const bool de32 = p[1] == '3' && p[2] == '2', de64 = p[1] == '6' && p[2] == '4';
        c.bytes = de32 ? 4 : de64 ? 8 : sizeof(void *);
        p += de32 || de64 ? 3 : 1;
        break;
    }
    case 'z':
    case 'j':
    case 't':
        c.bytes = 8;
        ++p;
        break;
    default: break;
    }
}

// Reads the conversion after a %; `p` ends past its letter, or at the end of the format.
template <class C> conversion lee_conversion(const C *&p, argumentos &a) {
    conversion c;
    for (;; ++p) {
        if (*p == '-') c.izquierda = true;
        else if (*p == '+') c.mas = true;
        else if (*p == ' ') c.blanco = true;
        else if (*p == '#') c.alterna = true;
        else if (*p == '0') c.ceros = true;
        else break;
    }
    c.ancho = lee_ancho(p, a);
    // A negative width that came as an argument aligns to the left.
    if (c.ancho < 0) {
        c.izquierda = true;
        c.ancho = -c.ancho;
    }
    // A negative precision is none.
    if (*p == '.') c.precision = std::max(-1, lee_ancho(++p, a));
    lee_tamanyo(p, c);
    c.letra = *p > 0 && *p < 0x80 ? static_cast<char>(*p) : '\0';
    if (*p != 0) ++p;
    return c;
}

// A number in its parts: sign or prefix, zeros, figures, zeros, exponent.
struct partes {
    std::string_view prefijo, cuerpo, cola;
    size_t ceros_delante = 0, ceros_detras = 0;
};

template <class C> void pon_numero(salida<C> &s, const conversion &c, partes n, bool rellena_con_ceros) {
    const size_t largo = n.prefijo.size() + n.ceros_delante + n.cuerpo.size() + n.ceros_detras + n.cola.size();
    const size_t ancho = static_cast<size_t>(c.ancho), relleno = ancho > largo ? ancho - largo : 0;
    // Zeros stand between the sign and the figures, blanks before both.
    const bool con_ceros = rellena_con_ceros && c.ceros && !c.izquierda;
    if (!c.izquierda && !con_ceros) s.rellena(' ', relleno);
    s.pon(n.prefijo.data(), n.prefijo.size());
    s.rellena('0', n.ceros_delante + (con_ceros ? relleno : 0));
    s.pon(n.cuerpo.data(), n.cuerpo.size());
    s.rellena('0', n.ceros_detras);
    s.pon(n.cola.data(), n.cola.size());
    if (c.izquierda) s.rellena(' ', relleno);
}

std::string_view signo(const conversion &c, bool negativo) {
    return negativo ? "-" : c.mas ? "+" : c.blanco ? " " : "";
}

void a_mayusculas(char *p, const char *fin) {
    for (; p != fin; ++p)
        if (*p >= 'a' && *p <= 'z') *p = static_cast<char>(*p - 32);
}

template <class C> void pon_entero(salida<C> &s, const conversion &c, argumentos &a) {
    const bool con_signo = c.letra == 'd' || c.letra == 'i';
    // The call has widened integers of less than 32 bits; they are cut again below.
    uint64_t v = c.bytes == 8 ? va_arg(a.v, uint64_t) : va_arg(a.v, uint32_t);
    bool negativo = false;
    if (con_signo) {
        const int64_t w = c.bytes == 1   ? static_cast<int8_t>(v)
                          : c.bytes == 2 ? static_cast<int16_t>(v)
                          : c.bytes == 4 ? static_cast<int32_t>(v)
                                         : static_cast<int64_t>(v);
        negativo = w < 0;
        // In unsigned arithmetic, where the lowest number has a magnitude.
        v = negativo ? 0 - static_cast<uint64_t>(w) : static_cast<uint64_t>(w);
    } else if (c.bytes < 4) v &= c.bytes == 1 ? 0xFFu : 0xFFFFu;
    char cifras[24];
    const int base = c.letra == 'o' ? 8 : c.letra == 'x' || c.letra == 'X' ? 16 : 10;
    char *fin = std::to_chars(cifras, cifras + sizeof cifras, v, base).ptr;
    if (c.letra == 'X') a_mayusculas(cifras, fin);
    partes n;
    // Zero with the precision 0 has no figures.
    n.cuerpo = v == 0 && c.precision == 0 ? std::string_view() : std::string_view(cifras, fin);
    if (con_signo) n.prefijo = signo(c, negativo);
    else if (c.alterna && base == 16 && v != 0) n.prefijo = c.letra == 'x' ? "0x" : "0X";
    if (c.precision > static_cast<int>(n.cuerpo.size()))
        n.ceros_delante = static_cast<size_t>(c.precision) - n.cuerpo.size();
    // The "#" of octal asks for one leading zero, which a precision may have given already.
    if (c.alterna && base == 8 && n.ceros_delante == 0 && !n.cuerpo.starts_with('0')) n.ceros_delante = 1;
    pon_numero(s, c, n, c.precision < 0);
}

template <class C> void pon_puntero(salida<C> &s, const conversion &c, argumentos &a) {
    char cifras[24];
    char *fin = std::to_chars(cifras, cifras + sizeof cifras, reinterpret_cast<uintptr_t>(va_arg(a.v, void *)), 16).ptr;
    a_mayusculas(cifras, fin);
    partes n;
    n.cuerpo = std::string_view(cifras, fin);
    n.ceros_delante = 2 * sizeof(void *) - n.cuerpo.size();
    pon_numero(s, c, n, false);
}

// Decimal exponent of `v` written with `figuras` figures.
int exponente(double v, int figuras) {
    char cifras[SITIO_CIFRAS];
    const char *fin = std::to_chars(cifras, cifras + sizeof cifras, v, std::chars_format::scientific, figuras - 1).ptr;
    const char *e = std::find(static_cast<const char *>(cifras), fin, 'e') + 1;
    int x = 0;
    std::from_chars(e + (*e == '+'), fin, x);
    return x;
}

template <class C> void pon_real(salida<C> &s, const conversion &c, argumentos &a) {
    const double x = c.doble_largo ? static_cast<double>(va_arg(a.v, long double)) : va_arg(a.v, double);
    const bool mayusculas = c.letra < 'a';
    const char letra = static_cast<char>(c.letra | 0x20);
    partes n;
    // Not-a-number has no sign here, whatever its bits; neither is ever filled with zeros.
    if (!std::isfinite(x)) {
        n.prefijo = std::isnan(x) ? "" : signo(c, x < 0);
        n.cuerpo = std::isnan(x) ? (mayusculas ? "NAN" : "nan") : mayusculas ? "INF" : "inf";
        return pon_numero(s, c, n, false);
    }
    char cifras[SITIO_CIFRAS], prefijo[4] = "";
    const double v = std::fabs(x);
    const std::string_view sg = signo(c, std::signbit(x));
    n.prefijo = sg;
    // Figures: the exact ones by std::to_chars, up to the last that a double can have; zeros do for the rest.
    int pedida = c.precision < 0 ? 6 : c.precision;
    std::chars_format forma = letra == 'f' ? std::chars_format::fixed : std::chars_format::scientific;
    char *fin;
    if (letra == 'a') {
        // The sign and 0x before the figures, as one prefix.
        size_t k = sg.copy(prefijo, 1);
        prefijo[k++] = '0';
        prefijo[k++] = mayusculas ? 'X' : 'x';
        n.prefijo = std::string_view(prefijo, k);
        pedida = c.precision;
        fin = pedida < 0 ? std::to_chars(cifras, cifras + sizeof cifras, v, std::chars_format::hex).ptr
                         : std::to_chars(cifras, cifras + sizeof cifras, v, std::chars_format::hex,
                                         std::min(pedida, MAX_PRECISION_EXACTA))
                               .ptr;
        // std::to_chars has the rule of %g: it chooses the form and takes the zeros at the end away.
    } else if (letra == 'g' && !c.alterna) {
        fin = std::to_chars(cifras, cifras + sizeof cifras, v, std::chars_format::general,
                            std::min(pedida, MAX_PRECISION_EXACTA))
                  .ptr;
        pedida = -1;
    } else {
        if (letra == 'g') { // with '#' its zeros stay
            // The same rule by hand: fixed while the exponent of the rounded number is from -4 to below the figures.
            const int figuras = std::max(1, pedida), e = exponente(v, std::min(figuras, MAX_PRECISION_EXACTA));
            const bool fija = e >= -4 && e < figuras;
            forma = fija ? std::chars_format::fixed : std::chars_format::scientific;
            pedida = fija ? figuras - 1 - e : figuras - 1;
        }
        fin = std::to_chars(cifras, cifras + sizeof cifras - 1, v, forma, std::min(pedida, MAX_PRECISION_EXACTA)).ptr;
    }
    // The exponent is apart, so that the zeros beyond the exact figures come before it.
    char *corte = std::find(cifras, fin, letra == 'a' ? 'p' : 'e');
    // "#" asks for a period even with nothing behind it.
    if (c.alterna && std::find(cifras, corte, '.') == corte) {
        std::copy_backward(corte, fin, fin + 1);
        *corte++ = '.';
        ++fin;
    }
    if (mayusculas) a_mayusculas(cifras, fin);
    n.cuerpo = std::string_view(cifras, corte);
    n.cola = std::string_view(corte, fin);
    if (pedida > MAX_PRECISION_EXACTA) n.ceros_detras = static_cast<size_t>(pedida - MAX_PRECISION_EXACTA);
    pon_numero(s, c, n, true);
}

template <class C, class D> void pon_ajustado(salida<C> &s, const conversion &c, const D *texto, size_t n) {
    const size_t ancho = static_cast<size_t>(c.ancho), relleno = ancho > n ? ancho - n : 0;
    if (!c.izquierda) s.rellena(' ', relleno);
    s.pon(texto, n);
    if (c.izquierda) s.rellena(' ', relleno);
}

// A text of width D, of which at most the precision is looked at, in an output of width C.
template <class C, class D> void pon_texto(salida<C> &s, const conversion &c, const D *texto, size_t n) {
    if constexpr (std::is_same_v<C, D>) pon_ajustado(s, c, texto, n);
    else {
        std::basic_string<C> convertido;
        const std::basic_string_view<D> v(texto, n);
        const auto convierte = [&](C *destino) {
            if constexpr (sizeof(D) == 1) return a_ancho(pagina_activa(), v, destino);
            else {
                bool perdida = false;
                return a_pagina(pagina_activa(), v, destino, perdida);
            }
        };
        // Measured first, then converted in place.
        convertido.resize(convierte(nullptr));
        convierte(convertido.data());
        pon_ajustado(s, c, convertido.data(), convertido.size());
    }
}

template <class C, class D> void pon_cadena(salida<C> &s, const conversion &c, const D *texto) {
    constexpr std::string_view NULO = "(null)";
    const size_t tope = c.precision < 0 ? SIZE_MAX : static_cast<size_t>(c.precision);
    if (texto == nullptr) return pon_ajustado(s, c, NULO.data(), std::min(NULO.size(), tope));
    size_t n = 0;
    // With a precision the text need not end in a zero: nothing is read beyond.
    while (n < tope && texto[n] != 0) ++n;
    pon_texto(s, c, texto, n);
}

// True if a text argument is wide: its size letter tells (h, l); without one %s has the format's width, %S the other.
template <class C> bool es_ancho(const conversion &c) {
    if (c.anchura != 0) return c.anchura == 'l';
    return (sizeof(C) > 1) == (c.letra == 's' || c.letra == 'c');
}

// False when there is no such conversion.
template <class C> bool pon_conversion(salida<C> &s, const conversion &c, argumentos &a) {
    // clang-format off
    switch (c.letra) {
    case 'd': case 'i': case 'u': case 'x': case 'X': case 'o': pon_entero(s, c, a); return true;
    case 'f': case 'F': case 'e': case 'E': case 'g': case 'G': case 'a': case 'A': pon_real(s, c, a); return true;
    case 's': case 'S':
        if (es_ancho<C>(c)) pon_cadena(s, c, va_arg(a.v, const vnwchar *));
        else pon_cadena(s, c, va_arg(a.v, const char *));
        return true;
    case 'c': case 'C': {
        const int v = va_arg(a.v, int);
        const auto w = static_cast<vnwchar>(v);
        const char b = static_cast<char>(v);
        if (es_ancho<C>(c)) pon_texto(s, c, &w, 1);
        else pon_texto(s, c, &b, 1);
        return true;
    }
    case 'p': pon_puntero(s, c, a); return true;
    case '%': s.pon("%", 1); return true;
    default: return false;
    }
    // clang-format on
}

template <class C> size_t compone(C *destino, size_t sitio, const C *formato, va_list args, bool informa_de_faltas) {
    salida<C> s(destino, sitio);
    argumentos a;
    // A copy, since a text that does not fit is composed twice.
    va_copy(a.v, args);
    for (const C *p = formato; *p != 0;) {
        const C *q = p;
        while (*q != 0 && *q != '%') ++q;
        s.pon(p, static_cast<size_t>(q - p));
        if (*q == 0) break;
        p = q + 1;
        const conversion c = lee_conversion(p, a);
        if (pon_conversion(s, c, a)) continue;
        // An unknown conversion is told once, and stands in the text as it was written.
        if (informa_de_faltas) (void)AFIRMA_DEFECTO();
        s.pon(q, static_cast<size_t>(p - q));
    }
    va_end(a.v);
    return s.termina();
}

} // namespace

template <class C> size_t formatea_en(C *destino, size_t sitio, const C *formato, va_list args) {
    return compone(destino, sitio, formato, args, true);
}

template <class C> C *formatea_nuevo(const C *formato, va_list args, const char *modulo, uint32_t linea) {
    // Most texts fit here and are composed once; a longer one has now been measured.
    C corto[512];
    const size_t n = compone(corto, std::size(corto), formato, args, true);
    C *s = static_cast<C *>(vornspy_nousar_malloc((n + 1) * sizeof(C), modulo, linea));
    if (n < std::size(corto)) std::copy_n(corto, n + 1, s);
    else compone(s, n + 1, formato, args, false);
    return s;
}

template size_t formatea_en<char>(char *, size_t, const char *, va_list);
template size_t formatea_en<vnwchar>(vnwchar *, size_t, const vnwchar *, va_list);
template char *formatea_nuevo<char>(const char *, va_list, const char *, uint32_t);
template vnwchar *formatea_nuevo<vnwchar>(const vnwchar *, va_list, const char *, uint32_t);

} // namespace vn::texto
