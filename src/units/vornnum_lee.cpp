#define VN_MODULO "vornnum (NUCLEOS.DLL)"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/numero_int.h"
#include "units/vornnum_priv.h"
#include <algorithm>
#include <charconv>
#include <iterator>
#include <type_traits>

namespace {

template <class C> uint32_t unidad(C c) { return static_cast<std::make_unsigned_t<C>>(c); }
template <class C> bool es_cifra(C c) { return unidad(c) - '0' < 10; }
template <class C> const C *tras_blancos(const C *p) {
    while (*p == ' ') ++p;
    return p;
}
template <class C> const C *tras_cifras(const C *p) {
    while (es_cifra(*p)) ++p;
    return p;
}
template <class C> const C *tras_signo(const C *p, bool &negativo) {
    negativo = *p == '-';
    return p + (negativo || *p == '+');
}

template <class C> bool es_entero(const C *p) {
    bool negativo;
    const C *const cifras = tras_signo(tras_blancos(p), negativo), *const fin = tras_cifras(cifras);
    return fin != cifras && *tras_blancos(fin) == 0;
}

// ---------------------------------------------------------------- real numbers

struct separadores {
    static constexpr uint32_t NINGUNO = UINT32_MAX; // no character of a text
    uint32_t millares = NINGUNO, decimales = '.';
};
template <class C> separadores separados_por(C millares, C decimales) {
    return {millares != 0 ? unidad(millares) : separadores::NINGUNO, unidad(decimales)};
}

// A number as its text says it: mantisa * 10^exponente, once its separators are out.
template <class C> struct real {
    static constexpr int CIFRAS = 19; // that a mantissa holds
    const C *cifras = nullptr;        // where they begin, after the sign
    bool negativo = false;
    bool recortada = false; // digits that are no zeros did not fit
    uint64_t mantisa = 0;
    int caben = CIFRAS;
    int64_t exponente = 0;

    void mete(uint32_t cifra, bool entera) {
        if (caben > 0) {
            mantisa = mantisa * 10 + cifra;
            caben -= mantisa != 0; // zeros before the first digit take no room
            // A digit after the point is worth a tenth of the one before.
            exponente -= !entera;
        } else {
            recortada |= cifra != 0;
            // A whole digit that did not fit still makes the number ten times larger.
            exponente += entera;
        }
    }
};

// Reads the text by the grammar of real numbers; false if it is none.
template <class C> bool explora(const C *p, const separadores s, real<C> &r) {
    constexpr int64_t MAX_EXPONENTE = 1'000'000'000'000;
    r.cifras = p = tras_signo(tras_blancos(p), r.negativo);
    bool hay = false;
    for (;; ++p) {
        const uint32_t c = unidad(*p);
        // A separator of thousands may stand anywhere among the whole digits; alone it is the number 0.
        if (c != s.millares) {
            if (c - '0' > 9) break;
            r.mete(c - '0', true);
        }
        hay = true;
    }
    if (unidad(*p) == s.decimales) {
        for (++p; es_cifra(*p); ++p) {
            r.mete(unidad(*p) - '0', false);
            hay = true;
        }
    }
    if (*p == 'e' || *p == 'E') {
        bool negativo;
        int64_t e = 0;
        for (p = tras_signo(p + 1, negativo); es_cifra(*p); ++p)
            // No text is long enough for digits to outweigh such an exponent.
            e = std::min(e * 10 + (unidad(*p) - '0'), MAX_EXPONENTE);
        r.exponente += negativo ? -e : e;
    }
    return hay && *tras_blancos(p) == 0;
}

// The magnitude by the general parser, of as many digits as can tell two doubles apart; one more stands for the rest.
template <class C> double valor_exacto(const real<C> &r, const separadores s) {
    constexpr size_t DISTINGUEN = 770;
    char t[DISTINGUEN + 64] = "0.";
    size_t n = 2;
    int64_t exponente = r.exponente;
    if (!r.recortada) n = static_cast<size_t>(std::to_chars(t, t + sizeof t, r.mantisa).ptr - t);
    else {
        // "0." and the digits: the exponent of the mantissa, and the digits that it has.
        exponente += real<C>::CIFRAS;
        bool quedan = false;
        for (const C *p = r.cifras; *p != 'e' && *p != 'E' && *p != 0; ++p) {
            if (unidad(*p) == s.millares || !es_cifra(*p) || (n == 2 && *p == '0')) continue;
            // Leading zeros and separators are passed over above; what is left is the number's own digits.
            if (n < DISTINGUEN) t[n++] = static_cast<char>(*p);
            else quedan |= *p != '0';
        }
        // The digit for the rest: it tells the number from the middle between two doubles.
        if (quedan) t[n++] = '1';
    }
    t[n++] = 'e';
    *std::to_chars(t + n, t + sizeof t, exponente).ptr = 0;
    return cad_atof(t);
}

template <class C> double valor_de(const real<C> &r, const separadores s) {
    // Whole numbers and powers of ten that are doubles: their quotient is the nearest double.
    constexpr double POTENCIAS[] = {1,    1e1,  1e2,  1e3,  1e4,  1e5,  1e6,  1e7,  1e8,  1e9,  1e10, 1e11,
                                    1e12, 1e13, 1e14, 1e15, 1e16, 1e17, 1e18, 1e19, 1e20, 1e21, 1e22};
    constexpr int64_t MAX = std::size(POTENCIAS) - 1;
    double v = 0;
    if (!r.recortada && r.mantisa <= uint64_t{1} << 53 && r.exponente >= -MAX && r.exponente <= MAX) {
        v = static_cast<double>(r.mantisa);
        v = r.exponente < 0 ? v / POTENCIAS[-r.exponente] : v * POTENCIAS[r.exponente];
    } else if (r.mantisa != 0) v = valor_exacto(r, s);
    return r.negativo ? -v : v;
}

// ---------------------------------------------------------------- feet and inches

double empieza_por(const char *p) { return cad_atof(p); }
double empieza_por(const vnwchar *p) { return vornnum_wtof(p); }

// Takes tokens off a text, with the blanks before them.
template <class C> class lector_de_pies {
  public:
    explicit lector_de_pies(const C *p) : p_(p) {}

    // The length in feet; false when the text is none.
    bool lee(double &pies_leidos) {
        const bool negativo = toma('-');
        if (!negativo) toma('+');
        double pies = 0, n = 0;
        bool bien = numero(n);
        // Feet, and inches behind them, if there are any, after a hyphen or without one.
        if (bien && toma('\'')) {
            pies = n;
            toma('-');
            if (!acaba()) bien = numero(n) && lee_pulgadas(n);
        } else bien = bien && lee_pulgadas(n);
        if (!bien || !acaba()) return false;
        // Without a fraction, or with one over zero, there is nothing to add.
        if (denominador_ != 0) pulgadas_ += numerador_ / denominador_;
        pies_leidos = pies + pulgadas_ / 12;
        if (negativo) pies_leidos = -pies_leidos;
        return true;
    }

  private:
    bool toma(char c) {
        p_ = tras_blancos(p_);
        if (*p_ != static_cast<C>(c)) return false;
        ++p_;
        return true;
    }
    bool acaba() {
        p_ = tras_blancos(p_);
        return *p_ == 0;
    }
    bool numero(double &n) {
        p_ = tras_blancos(p_);
        if (!es_cifra(*p_)) return false;
        n = empieza_por(p_);
        p_ = tras_cifras(p_);
        return true;
    }
    // What follows a number `n` that is not feet: the mark of inches, or the fraction that it begins or comes before.
    bool lee_pulgadas(double n) {
        if (toma('"')) {
            pulgadas_ = n;
            return true;
        }
        // "3/8": the number began the fraction. "5 3/8": it was the inches before it.
        if (toma('/')) numerador_ = n;
        else {
            pulgadas_ = n;
            if (!numero(numerador_) || !toma('/')) return false;
        }
        if (!numero(denominador_)) return false;
        toma('"');
        return true;
    }

    const C *p_;
    double pulgadas_ = 0, numerador_ = 0, denominador_ = 0;
};

// ---------------------------------------------------------------- both

template <class C> bool lee(const C *cadena, const separadores s, int32_t formato, double &v) {
    // An empty text leaves the value as it is.
    if (*cadena == 0) return true;
    real<C> r;
    if (explora(cadena, s, r)) v = valor_de(r, s);
    else if (formato == VORNNUM_FORMATO_NUMERO || !lector_de_pies<C>(cadena).lee(v)) return false;
    // The reader gives feet; the other formats count inches.
    else if (formato != VORNNUM_FORMATO_PIES) v *= 12;
    return defmath_es_numero_valido(v) == CIERTO;
}

template <class C> vnbool numero_de_cadena(const C *cadena, double *valor, const separadores s, int32_t formato) {
    if (!EXIGE(cadena, valor)) return FALSO;
    *valor = 0;
    if (!AFIRMA_TEXTO(s.decimales != 0, "sep_decimales != 0")) return FALSO;
    if (!vn::formato_bueno(formato)) return FALSO;
    double v = 0;
    if (!lee(cadena, s, formato, v)) return FALSO;
    *valor = v;
    return CIERTO;
}

template <class C> vnbool es_numero_entero(const C *cadena) {
    return vn::logico(AFIRMA_NO_NULO(cadena) && es_entero(cadena));
}

template <class C> vnbool es_numero_real(const C *cadena, const separadores s) {
    real<C> r;
    return vn::logico(AFIRMA_NO_NULO(cadena) && AFIRMA_TEXTO(s.decimales != 0, "sep_decimales != 0") &&
                      explora(cadena, s, r));
}

template <class C> uint32_t hexadecimal(const C *cadena) {
    uint32_t v = 0;
    if (!AFIRMA_NO_NULO(cadena)) return v;
    for (uint32_t c; (c = vn::texto::cifra_hexadecimal(unidad(*cadena))) < 16; ++cadena) v = v << 4 | c;
    return v;
}

} // namespace

vnbool num_EsNumeroEntero(const char *cadena) { return es_numero_entero(cadena); }
vnbool num_EsNumeroEntero_u(const vnwchar *cadena) { return es_numero_entero(cadena); }
vnbool num_EsNumeroEnteroWindows(const char *cadena, char) { return es_numero_entero(cadena); }
vnbool num_EsNumeroEnteroWindows_u(const vnwchar *cadena, vnwchar) { return es_numero_entero(cadena); }
vnbool num_EsNumeroReal(const char *cadena) { return es_numero_real(cadena, {}); }
vnbool num_EsNumeroReal_u(const vnwchar *cadena) { return es_numero_real(cadena, {}); }
vnbool num_EsNumeroRealWindows(const char *cadena, char sep_millares, char sep_decimales) {
    return es_numero_real(cadena, separados_por(sep_millares, sep_decimales));
}
vnbool num_EsNumeroRealWindows_u(const vnwchar *cadena, vnwchar sep_millares, vnwchar sep_decimales) {
    return es_numero_real(cadena, separados_por(sep_millares, sep_decimales));
}

vnbool vornnum_dameNumeroDeCadena(const char *cadena, double *valor, int32_t formato) {
    return numero_de_cadena(cadena, valor, {}, formato);
}
vnbool vornnum_dameNumeroDeCadena_u(const vnwchar *cadena, double *valor, int32_t formato) {
    return numero_de_cadena(cadena, valor, {}, formato);
}
vnbool vornnum_dameNumeroDeCadenaConDecimales(const char *cadena, double *valor, char sep_millares, char sep_decimales,
                                              int32_t formato) {
    return numero_de_cadena(cadena, valor, separados_por(sep_millares, sep_decimales), formato);
}
vnbool vornnum_dameNumeroDeCadenaConDecimales_u(const vnwchar *cadena, double *valor, vnwchar sep_millares,
                                                vnwchar sep_decimales, int32_t formato) {
    return numero_de_cadena(cadena, valor, separados_por(sep_millares, sep_decimales), formato);
}

double vornnum_wtof(const vnwchar *cadena) { return vnstdc_wcstod(cadena, nullptr); }

uint32_t num_string_hex_a_ulong(const char *cadena) { return hexadecimal(cadena); }
uint32_t num_string_hex_a_ulong_u(const vnwchar *cadena) { return hexadecimal(cadena); }
