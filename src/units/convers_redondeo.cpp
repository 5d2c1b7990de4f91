#define VN_MODULO "convers (NUCLEOS.DLL)"
#include "units/convers_redondeo.h"
#include "units/convers_priv.h"
#include "units/vornconf.h"
#include "units/vornnum.h"
#include <charconv>
#include <cmath>
#include <iterator>

namespace vn {
namespace {

// ---------------------------------------------------------------- powers of ten

// The whole number nearest to log10(x), x > 0, out of its digits: a logarithm may differ between platforms just where
// the answer changes. Infinity is taken as the largest number.
int32_t exponente_decimal(double x) {
    constexpr double RAIZ_DE_DIEZ = 3.1622776601683795;
    char texto[32];
    if (std::isinf(x)) return 308;
    const char *fin = std::to_chars(texto, std::end(texto), x, std::chars_format::scientific).ptr;
    const char *e = fin;
    while (*--e != 'e') {
    }
    double mantisa = 0;
    std::from_chars(texto, e, mantisa);
    int32_t exponente = 0;
    std::from_chars(e[1] == '+' ? e + 2 : e + 1, fin, exponente);
    return mantisa >= RAIZ_DE_DIEZ ? exponente + 1 : exponente;
}

double potencia_de_diez(int32_t exponente) {
    char texto[16] = {'1', 'e'};
    const char *fin = std::to_chars(texto + 2, std::end(texto), exponente).ptr;
    double x = 0;
    std::from_chars(texto, fin, x);
    return x;
}

// The exponent of a precision as it is shown; false, reported, if the type or the precision is none.
bool exponente_de(double prec_deseada_uds_internas, uint32_t tipovalor, int32_t *exponente) {
    if (!AFIRMA(tipovalor != CNV_NO_CONVERSION)) return false;
    const vista_convers v(tipovalor);
    if (!v.es_tipo || !AFIRMA(prec_deseada_uds_internas > 0.)) return false;
    const double prec_uds_salida = v.a_mostrado(prec_deseada_uds_internas);
    if (!AFIRMA(prec_uds_salida > 0.)) return false;
    *exponente = exponente_decimal(prec_uds_salida);
    return true;
}

double precision(double prec, uint32_t tipovalor) {
    int32_t exponente = 0;
    return exponente_de(prec, tipovalor, &exponente) ? potencia_de_diez(exponente) : 0;
}

uint32_t num_decimales(double prec, uint32_t tipovalor) {
    int32_t exponente = 0;
    return exponente_de(prec, tipovalor, &exponente) && exponente < 0 ? static_cast<uint32_t>(-exponente) : 0;
}

// The multiplier of a type in a system, counted from 0 here, with a unit of energy; false, reported, if there is none.
bool coef_en_sistema(uint32_t sistema, uint32_t energia, uint32_t tipovalor, double *coef) {
    if ((sistema > 2 || energia > VORNNORM_UNIDAD_ENERGIA_BTU) && !AFIRMA_DEFECTO()) return false;
    if (!AFIRMA(tipovalor != CNV_NO_CONVERSION)) return false;
    const fila_convers *convers = fila_de_convers(tipovalor);
    if (!AFIRMA_NO_NULO(convers)) return false;
    constexpr columna_convers SISTEMAS[] = {EN_MKS, EN_SI_JULIO, EN_IMPERIAL};
    constexpr columna_convers ENERGIAS[] = {EN_SI_JULIO, EN_SI_KCAL, EN_SI_BTU};
    const columna_convers columna = SISTEMAS[sistema];
    *coef = convers->cifras[columna == EN_SI_JULIO ? ENERGIAS[energia] : columna].coef;
    return true;
}

// ---------------------------------------------------------------- round steps

// Below 1: a multiple of 0.25, 0.025...; 0 for next to nothing.
double paso_fino(double valor_max_redondeo) {
    constexpr int num_decimales_max = 12;
    if (valor_max_redondeo < 1e-12) return 0;
    if (!AFIRMA(valor_max_redondeo > 0.) || !AFIRMA(valor_max_redondeo < 1.)) return 0;
    // The largest of 0.25, 0.025... that goes into it, with a margin for what binary numbers miss.
    double unidad = 2.5;
    int i = 0;
    for (; i < num_decimales_max; ++i) {
        unidad /= 10;
        if (valor_max_redondeo / unidad + 0.0001 > 1) break;
    }
    if (!AFIRMA(i < num_decimales_max)) return 0;
    return std::floor(valor_max_redondeo / unidad + 0.1) * unidad;
}

// The round step that suits a precision as shown; `base` is 5, or 6 for inches.
double paso_redondo(double p, double base) {
    const struct {
        double por_encima_de, paso;
    } pasos[] = {
        {90000, 100000}, {9000, 10000},      {900, 1000}, {90 * base, 100 * base}, {90, 100}, {9 * base, 10 * base},
        {9, 10},         {0.9 * base, base}, {0.9, 1},
    };
    // A step begins to count at nine tenths of its size.
    for (const auto &f : pasos)
        if (p > f.por_encima_de) return f.paso;
    return paso_fino(p);
}

// `valor` as it is when the step is next to nothing, or when the number of steps is none of 32 bits.
double redondea_al_paso(double valor, double paso, modo_redondeo modo) {
    if (paso < 0.000001) return valor;
    const double q = valor / paso;
    const double entero = modo == POR_EXCESO ? std::ceil(q) : modo == POR_DEFECTO ? std::floor(q) : std::floor(q + 0.5);
    if (!(entero >= INT32_MIN && entero <= INT32_MAX)) return valor;
    return static_cast<int32_t>(entero) * paso;
}

double redondeado(double valor, double prec, uint32_t tipovalor, modo_redondeo modo) {
    // What is shown in feet is rounded in inches.
    const bool en_pies = tipovalor < CNV_NO_CONVERSION && FILAS_CONVERS[tipovalor].formato == VORNNUM_FORMATO_PIES;
    const vista_convers v(en_pies ? uint32_t{CNV_LONGITUD_CM} : tipovalor);
    const double mostrado = v.a_mostrado(valor);
    if (!v.es_tipo || !std::isfinite(mostrado)) return valor;
    // Half of ten is five; half a foot is six inches.
    const double base = en_pies && v.es_longitud_imperial() ? 6 : 5;
    return v.a_interno(redondea_al_paso(mostrado, paso_redondo(v.a_mostrado(prec), base), modo));
}

} // namespace
} // namespace vn

using namespace vn;

double convers_precision_segun_sistema_uds(double prec, uint32_t tipovalor) { return precision(prec, tipovalor); }

uint32_t convers_precision_num_decimales_segun_sistema_uds(double prec, uint32_t tipovalor) {
    return num_decimales(prec, tipovalor);
}

double convers_precision_segun_sistema_uds_dado_prec_y_sistema(double prec, uint32_t sistema, uint32_t tipovalor) {
    return convers_precision_segun_sistema_uds_energia_dado_prec_y_sistema(prec, sistema, VORNNORM_UNIDAD_ENERGIA_JULIO,
                                                                           tipovalor);
}

uint32_t convers_precision_num_decimales_segun_sistema_uds_dado_prec_y_sistema(double prec, uint32_t sistema,
                                                                               uint32_t tipovalor) {
    return convers_precision_num_decimales_segun_sistema_uds_energia_dado_prec_y_sistema(
        prec, sistema, VORNNORM_UNIDAD_ENERGIA_JULIO, tipovalor);
}

double convers_precision_segun_sistema_uds_energia_dado_prec_y_sistema(double prec, uint32_t sistema, uint32_t energia,
                                                                       uint32_t tipovalor) {
    double coef = 1;
    return coef_en_sistema(sistema, energia, tipovalor, &coef) ? precision(prec / coef, tipovalor) : 0;
}

uint32_t convers_precision_num_decimales_segun_sistema_uds_energia_dado_prec_y_sistema(double prec, uint32_t sistema,
                                                                                       uint32_t energia,
                                                                                       uint32_t tipovalor) {
    double coef = 1;
    return coef_en_sistema(sistema, energia, tipovalor, &coef) ? num_decimales(prec / coef, tipovalor) : 0;
}

double convers_valor_redondeado_al_mas_cercano(double valor, double prec, uint32_t tipovalor) {
    return redondeado(valor, prec, tipovalor, AL_MAS_CERCANO);
}

double convers_valor_redondeado_por_defecto(double valor, double prec, uint32_t tipovalor) {
    return redondeado(valor, prec, tipovalor, POR_DEFECTO);
}

double convers_valor_redondeado_por_exceso(double valor, double prec, uint32_t tipovalor) {
    return redondeado(valor, prec, tipovalor, POR_EXCESO);
}

double convers_valor_adaptado_a_unidades(double valor, uint32_t tipovalor) {
    const vista_convers v(tipovalor);
    // Not-a-number too.
    if (v.fila == nullptr || !(std::fabs(valor) < 1000000000000.)) return valor;
    const double mostrado = v.a_mostrado(valor);
    const double p = std::fabs(mostrado * v.fila->relativa);
    double base = 6;
    if (!v.es_longitud_imperial()) {
        if (std::fabs(mostrado - v.fila->cifras[EN_MKS].a_mostrado(valor)) < p) return valor;
        base = 5;
    }
    return v.a_interno(redondea_al_paso(mostrado, paso_redondo(p, base), v.fila->modo));
}
