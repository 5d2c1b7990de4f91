#define VN_MODULO "vornnum (NUCLEOS.DLL)"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "units/vornnum.h"
#include "units/vornnum_priv.h"
#include <algorithm>
#include <charconv>
#include <cmath>

using namespace vn;

namespace {

constexpr double PULGADAS_POR_PIE = 12;
// Beyond so many feet, or inches alone, no smaller part is shown: a double has hardly any digits left for it.
constexpr double MAX_CON_UNIDADES = 1e15;
// A precision must be larger than this.
constexpr double PRECISION_PANELES = 5e-10;

// The magnitude of a length in whole feet, whole inches and a fraction of one; 0/0 when there is no fraction. Feet and
// inches are whole numbers of any size.
struct partes {
    bool negativo;
    double pies, pulgadas;
    uint32_t numerador, denominador;
};

// The fraction of `f`, between 0 and 1, by halving the denominator while the error does not grow.
void busca_fraccion(double f, uint32_t denominador, partes &p) {
    double mejor = 10;
    for (uint32_t d = denominador; d > 1; d /= 2) {
        const double n = defmath_round(f * d), error = std::fabs(n / d - f);
        if (error > mejor) break;
        mejor = error;
        p.numerador = static_cast<uint32_t>(n);
        p.denominador = d;
    }
}

// Splits a finite `valor`, which is feet or inches as the format says. False, after a report, if it cannot be done.
bool parte(double valor, int32_t formato, uint32_t denominador, partes &p) {
    p = {valor < 0, 0, 0, 0, 0};
    const double magnitud = std::fabs(valor),
                 v = formato == VORNNUM_FORMATO_PIES ? magnitud : magnitud / PULGADAS_POR_PIE;
    const bool solo_pulgadas = formato == VORNNUM_FORMATO_SOLO_PULGADAS;
    double &muchas = solo_pulgadas ? p.pulgadas : p.pies;
    muchas = solo_pulgadas ? magnitud : defmath_trunc(v);
    if (muchas > MAX_CON_UNIDADES) return true;
    p.pies = defmath_trunc(v);
    const double pulgadas = (v - p.pies) * PULGADAS_POR_PIE;
    p.pulgadas = defmath_trunc(pulgadas);
    double f = pulgadas - p.pulgadas;
    if (SON_IGUALES(f, 1.)) {
        f = 0;
        ++p.pulgadas;
    }
    if (f != 0) {
        if (!AFIRMA_TEXTO(denominador > 0, "denominador_prov > 0.")) return false;
        busca_fraccion(f, denominador, p);
    }
    if (p.numerador == p.denominador && p.numerador > 0) {
        p.numerador = p.denominador = 0;
        ++p.pulgadas;
    }
    if (p.pulgadas >= PULGADAS_POR_PIE) {
        p.pulgadas -= PULGADAS_POR_PIE;
        ++p.pies;
    }
    if (solo_pulgadas) {
        p.pulgadas += p.pies * PULGADAS_POR_PIE;
        p.pies = 0;
    }
    return true;
}

template <class C> void pon_partes(texto_numero<C> &t, const partes &p) {
    // Digits up to 1e15, scientific beyond.
    constexpr aspecto<C> ENTERO{0, '.', false, 0};
    const bool fraccion = p.numerador > 0, con_pulgadas = p.pulgadas > 0 || p.pies > 0;
    t.pon('"');
    if (fraccion) {
        t.pon_entero(p.denominador);
        t.pon('/');
        t.pon_entero(p.numerador);
        if (con_pulgadas) t.pon(' ');
    }
    if (con_pulgadas || !fraccion) pon_numero(t, p.pulgadas, ENTERO);
    if (p.pies > 0) {
        t.pon('-');
        t.pon('\'');
        pon_numero(t, p.pies, ENTERO);
    }
    if (p.negativo) t.pon('-');
}

} // namespace

namespace vn {

template <class C> bool pon_longitud(texto_numero<C> &t, double valor, int32_t formato, uint32_t denominador) {
    if (!std::isfinite(valor)) {
        pon_numero<C>(t, valor, {0, '.', false, 0});
        return true;
    }
    partes p;
    if (!parte(valor, formato, denominador, p)) return false;
    pon_partes(t, p);
    return true;
}

template bool pon_longitud<char>(texto_numero<char> &, double, int32_t, uint32_t);
template bool pon_longitud<vnwchar>(texto_numero<vnwchar> &, double, int32_t, uint32_t);

} // namespace vn

namespace {

template <class C> C *double_a_cadena(double valor, const aspecto<C> &a, int32_t formato, uint32_t denominador) {
    if (!formato_bueno(formato)) return nullptr;
    texto_numero<C> t;
    if (formato == VORNNUM_FORMATO_NUMERO) {
        if (!aspecto_bueno(a)) return nullptr;
        pon_numero(t, valor, a);
    } else if (!pon_longitud(t, valor, formato, denominador)) return nullptr;
    return texto_nuevo(t);
}

// ---------------------------------------------------------------- width of a field

// Exponent of a positive number in its shortest digits: the whole part of its logarithm, the same on every platform.
int exponente_decimal(double x) {
    char t[TAM_BUFFER_NUM];
    const char *const fin = std::to_chars(t, t + sizeof t, x, std::chars_format::scientific).ptr;
    const char *e = fin;
    while (e[-1] != 'e') --e;
    int n = 0;
    std::from_chars(e + (*e == '+'), fin, n);
    return n;
}

// Digits before the decimals.
uint32_t cifras_enteras(double x) { return x > 1 ? static_cast<uint32_t>(exponente_decimal(x)) + 1 : 1; }

// Decimals that tell a precision below 1, which may be a little less than the power of ten that it is meant to be.
uint32_t decimales_de(double precision) {
    constexpr double CASI = 1 - 1e-12;
    return static_cast<uint32_t>(-exponente_decimal(precision / CASI));
}

} // namespace

char *vornnum_double_a_cadena(double valor, char sep_millares, char sep_decimales, int32_t decimales, int32_t formato,
                              uint32_t denominador) {
    return double_a_cadena<char>(valor, {sep_millares, sep_decimales, false, decimales}, formato, denominador);
}
vnwchar *vornnum_double_a_cadena_u(double valor, vnwchar sep_millares, vnwchar sep_decimales, int32_t decimales,
                                   int32_t formato, uint32_t denominador) {
    return double_a_cadena<vnwchar>(valor, {sep_millares, sep_decimales, false, decimales}, formato, denominador);
}

uint16_t vornnum_numero_digitos(double minimo, double maximo, double precision, uint32_t denominador, int32_t formato) {
    if (!formato_bueno(formato)) return 0;
    // No field holds an infinity.
    if (!AFIRMA_TEXTO(std::isfinite(minimo) && std::isfinite(maximo) && std::isfinite(precision),
                      "numDigitos>0 && numDigitos<USHRT_MAX"))
        return 0;
    uint32_t digitos = 0;
    double menor = std::fabs(minimo), mayor = std::fabs(maximo);
    if (formato == VORNNUM_FORMATO_NUMERO) {
        if (!AFIRMA(precision > PRECISION_PANELES)) return 0;
        if (precision < 1) digitos = decimales_de(precision) + 1;
    } else {
        partes de_menor, de_mayor, de_precision;
        if (!parte(minimo, formato, denominador, de_menor) || !parte(maximo, formato, denominador, de_mayor) ||
            !parte(precision, formato, denominador, de_precision))
            return 0;
        menor = de_menor.pies;
        mayor = de_mayor.pies;
        digitos = 5;
        if (de_precision.numerador > 0) digitos += de_precision.denominador >= 10 ? 6 : 4;
    }
    return static_cast<uint16_t>(digitos + std::max(cifras_enteras(menor) + (minimo < 0), cifras_enteras(mayor)));
}
