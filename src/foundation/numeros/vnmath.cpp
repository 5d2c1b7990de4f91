#define VN_MODULO "vnmath (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <cfloat>
#include <charconv>
#include <cmath>
#include <cstring>
#include <limits>
#include <utility>

using vn::logico;

namespace {

constexpr double T = VNMATH_TOLERANCIA;
// How near to a whole number a quotient must be to count as one when it is rounded down or up.
constexpr double TOLERANCIA_COCIENTE = 1e-9;

// Not std::round: some platforms add a half and truncate, which takes the number just below a half up.
double redondeado(double x) {
    const double entero = std::trunc(x);
    return std::fabs(x - entero) >= 0.5 ? entero + std::copysign(1., x) : entero;
}

// a == b first: two infinities of one sign have no difference.
bool iguales(double a, double b, double t) { return a == b || std::fabs(a - b) <= t; }
bool mayor(double a, double b, double t) { return a - b > t; }
bool mayor_igual(double a, double b, double t) { return a == b || a - b >= -t; }

double tolerancia_buena(double tolerancia) { return AFIRMA(tolerancia >= 0.) ? tolerancia : 0.; }

template <class Entero> Entero redondea_a(double x) {
    const double r = redondeado(x);
    constexpr double minimo = std::numeric_limits<Entero>::min(), maximo = std::numeric_limits<Entero>::max();
    const bool cabe = std::is_signed_v<Entero>
                          ? AFIRMA_TEXTO(r >= minimo && r <= maximo, "x >= LONG_MIN && x <= LONG_MAX")
                          : AFIRMA_TEXTO(r >= minimo && r <= maximo, "x >= 0. && x <= ULONG_MAX");
    if (cabe) return static_cast<Entero>(r);
    if (std::isnan(r)) return 0;
    return r < minimo ? std::numeric_limits<Entero>::min() : std::numeric_limits<Entero>::max();
}

template <class F> double redondea_al_paso(double x, double paso, F &&entero) {
    if (!AFIRMA(paso > 0.)) return x;
    const double resultado = entero(x / paso) * paso;
    return std::isfinite(resultado) ? resultado : x;
}

// The whole number that `q` is to within the tolerance, or else what `f` makes of it.
template <class F> double entero_perdonando(double q, F &&f) {
    const double cercano = redondeado(q);
    return std::fabs(q - cercano) <= TOLERANCIA_COCIENTE ? cercano : f(q);
}

} // namespace

vnbool ES_CERO(double x) { return logico(iguales(x, 0., T)); }
vnbool ES_CERO_PREC(double x, double tolerancia) { return logico(iguales(x, 0., tolerancia_buena(tolerancia))); }
vnbool ES_MAYOR_CERO(double x) { return logico(mayor(x, 0., T)); }
vnbool ES_MENOR_CERO(double x) { return logico(mayor(0., x, T)); }
vnbool ES_MAYOR_CERO_PREC(double x, double tolerancia) { return logico(mayor(x, 0., tolerancia_buena(tolerancia))); }
vnbool ES_MAYOR_IGUAL_CERO(double x) { return logico(mayor_igual(x, 0., T)); }
vnbool ES_MAYOR(double a, double b) { return logico(mayor(a, b, T)); }
vnbool ES_MENOR(double a, double b) { return logico(mayor(b, a, T)); }
vnbool ES_MAYOR_IGUAL(double a, double b) { return logico(mayor_igual(a, b, T)); }
vnbool ES_MENOR_IGUAL(double a, double b) { return logico(mayor_igual(b, a, T)); }
vnbool SON_IGUALES(double a, double b) { return logico(iguales(a, b, T)); }
vnbool SON_IGUALES_PREC(double a, double b, double tolerancia) {
    return logico(iguales(a, b, tolerancia_buena(tolerancia)));
}
vnbool ES_DBL_MAX(double x) { return logico(x == DBL_MAX); }

double CEIL(double x) { return std::ceil(x); }
double FLOOR(double x) { return std::floor(x); }
double CUAD(double x) { return x * x; }
double CUBO(double x) { return x * x * x; }
double LOG10(double x) { return std::log10(x); }

double RAIZ(double x) {
    if (!AFIRMA_TEXTO(!(x < -T), "x >= 0.")) return 0.;
    return x < 0. ? 0. : std::sqrt(x);
}

int32_t roundtol(double x) { return redondea_a<int32_t>(x); }
uint32_t roundtul(double x) { return redondea_a<uint32_t>(x); }
double defmath_round(double x) { return redondeado(x); }
double defmath_trunc(double x) { return std::trunc(x); }
vnbool defmath_es_numero_valido(double x) { return logico(std::isfinite(x)); }

int vornmath_compara_doubles(double a, double b, double tolerancia) {
    const double t = tolerancia_buena(tolerancia);
    // What is no number comes after all numbers, so that an order exists.
    if (std::isnan(a) || std::isnan(b)) return static_cast<int>(std::isnan(a)) - static_cast<int>(std::isnan(b));
    if (iguales(a, b, t)) return 0;
    return a < b ? -1 : 1;
}

double prec_redondea_decimales(double x, double paso) {
    return redondea_al_paso(x, paso, [](double q) { return std::floor(q + 0.5); });
}

double prec_redondea_decimales_por_defecto(double x, double paso) {
    return redondea_al_paso(x, paso,
                            [](double q) { return entero_perdonando(q, [](double r) { return std::floor(r); }); });
}

double prec_redondea_decimales_por_exceso(double x, double paso) {
    return redondea_al_paso(x, paso,
                            [](double q) { return entero_perdonando(q, [](double r) { return std::ceil(r); }); });
}

double prec_redondea_numero_decimales(double x, uint32_t decimales) {
    // Decimal digits and not a product with a power of ten, whose rounding would turn halves over.
    if (x == 0.) return 0.;
    if (!std::isfinite(x)) return x;
    constexpr int CIFRAS = 17;
    // "d.dddddddddddddddde[+-]xxx"; one more digit before it for a carry.
    char texto[48];
    const double m = std::fabs(x);
    const auto fin = std::to_chars(texto, texto + sizeof texto, m, std::chars_format::scientific, CIFRAS - 1);
    *fin.ptr = '\0';
    char cifras[CIFRAS + 2] = "0";
    cifras[1] = texto[0];
    std::memcpy(cifras + 2, texto + 2, CIFRAS - 1);
    const char *e = std::strchr(texto, 'e') + 1;
    int exponente = 0;
    std::from_chars(e + (*e == '+'), fin.ptr, exponente);

    // How many of the 17 digits stand at or before the last place kept.
    const int64_t quedan = int64_t{exponente} + decimales + 1;
    if (quedan >= CIFRAS) return x;
    if (quedan < 0) return 0.;
    const auto n = static_cast<size_t>(quedan);
    const bool sube = cifras[n + 1] >= '5';
    for (size_t i = n; sube; --i) {
        if (cifras[i] != '9') {
            ++cifras[i];
            break;
        }
        cifras[i] = '0';
    }
    // The digits kept are a whole number in units of the last place; 18 of them always fit in 64 bits.
    char numero[40];
    std::memcpy(numero, cifras, n + 1);
    numero[n + 1] = 'e';
    const auto fin_numero = std::to_chars(numero + n + 2, numero + sizeof numero, -static_cast<int64_t>(decimales));
    double resultado = 0.;
    const auto leido = std::from_chars(numero, fin_numero.ptr, resultado);
    if (leido.ec != std::errc{}) return x; // beyond the largest double once rounded up
    return x < 0. && resultado != 0. ? -resultado : resultado;
}
