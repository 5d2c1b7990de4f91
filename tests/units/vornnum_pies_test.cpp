#include "filas.h"
#include "foundation/texto/cad.h"
#include "propiedades.h"
#include "units/vornnum.h"
#include <cfloat>
#include <cmath>

using namespace vn;

namespace {

uint64_t entero(const char *&p) {
    uint64_t n = 0;
    for (; *p >= '0' && *p <= '9'; ++p) n = n * 10 + static_cast<uint64_t>(*p - '0');
    return n;
}

// Whether the text is sign, feet, inches, fraction and mark as it must be: below 12 inches beside feet, a fraction
// below one.
bool bien_escrito(const char *p, bool negativo, int formato, uint32_t denominador) {
    if (negativo && *p++ != '-') return false;
    if (*p < '0' || *p > '9') return false;
    uint64_t n = entero(p);
    const bool con_pies = *p == '\'';
    if (con_pies) {
        if (formato == VORNNUM_FORMATO_SOLO_PULGADAS || n == 0 || *++p != '-' || *++p < '0' || *p > '9') return false;
        n = entero(p);
    }
    if (*p != '/') {
        if (n >= 12 && formato != VORNNUM_FORMATO_SOLO_PULGADAS) return false;
        if (*p != ' ') return *p == '"' && p[1] == 0;
        n = entero(++p);
    }
    if (*p != '/') return false;
    const uint64_t d = entero(++p);
    return *p == '"' && p[1] == 0 && n > 0 && n < d && d <= denominador;
}

} // namespace

PRUEBA(vornnum_pies, textos) {
    for (const auto &[v, formato, denominador, texto] :
         filas<double, int, uint32_t, std::string>("units/vornnum_pies.tsv", "textos")) {
        EXPECT_EQ(toma(vornnum_double_a_cadena(v, ' ', ' ', 0, formato, denominador)), texto);
        EXPECT_EQ(toma(vornnum_double_a_cadena_u(v, u' ', u' ', 0, formato, denominador)), texto);
    }
    EXPECT_EQ(toma(vornnum_double_a_cadena(2e15, 0, 0, 0, VORNNUM_FORMATO_PIES, 32)), "2.e+15'-0\"");
    EXPECT_EQ(toma(vornnum_double_a_cadena_u(-DBL_MAX, 0, 0, 0, VORNNUM_FORMATO_SOLO_PULGADAS, 32)), "-1.8e+308\"");
    EXPECT_EQ(toma(vornnum_double_a_cadena(1234.5, '.', ',', 1, VORNNUM_FORMATO_NUMERO, 0)), "1.234,5");
    ESPERA_INFORME("denominador_prov > 0.", vornnum_double_a_cadena(3.5, 0, 0, 0, VORNNUM_FORMATO_PULGADAS, 0));
}

// A million lengths, every denominator, the three formats: never 12 inches or a whole of fraction, and the text read
// again is the length to the fraction's precision.
PRUEBA(vornnum_pies, barrido_de_longitudes) {
    azar a(2);
    for (int i = 0; i < 1'000'000; ++i) {
        const uint32_t denominador = i % 65 == 64 ? 1 + a.entero(1000) : 1 + static_cast<uint32_t>(i % 65);
        const int formato = 1 + static_cast<int>(a.entero(3));
        // Inches: any; next to a whole number; next to the middle of the last fraction and one; a half fraction from a
        // foot.
        double v = a.entre(0, 1), leido = 0;
        for (uint32_t k = a.entero(9); k > 0; --k) v *= 10;
        const double d = denominador, desvio = a.entre(-1, 1);
        if (i % 4 == 1) v = std::floor(v) + 2e-6 * desvio;
        if (i % 4 == 2) v = std::floor(v) + 1 - (0.5 + 1e-9 * desvio) / d;
        if (i % 4 == 3) v = 12 * std::floor(v) + std::floor(desvio * d) / d * 0.5;
        if (formato == VORNNUM_FORMATO_PIES) v /= 12;
        if (a.moneda()) v = -v;
        char *t = vornnum_double_a_cadena(v, ' ', ' ', 0, formato, denominador);
        const std::string texto = t;
        vornstr_destruye(&t);
        ASSERT_EQ(vornnum_dameNumeroDeCadena(texto.c_str(), &leido, formato), CIERTO) << texto;
        // Half a fraction, or an inch where there is none to show; and what counts as a whole inch.
        const double pulgadas = std::fabs(leido - v) * (formato == VORNNUM_FORMATO_PIES ? 12 : 1),
                     tolerancia = (denominador == 1 ? 1 : 0.5 / d) + 1e-6 + std::fabs(v) * 1e-13;
        ASSERT_TRUE(bien_escrito(texto.c_str(), v < 0, formato, denominador) && pulgadas <= tolerancia)
            << v << " as " << formato << " with " << denominador << ": " << texto;
    }
}

PRUEBA(vornnum_pies, anchura_de_un_campo) {
    for (const auto &[minimo, maximo, precision, denominador, formato, anchura] :
         filas<double, double, double, uint32_t, int, uint32_t>("units/vornnum_pies.tsv", "anchuras"))
        EXPECT_EQ(vornnum_numero_digitos(minimo, maximo, precision, denominador, formato), anchura)
            << minimo << ' ' << maximo << ' ' << precision;
    ESPERA_INFORME("precision > PRECISION_PANELES", vornnum_numero_digitos(0, 1, 5e-10, 0, 0));
    ESPERA_INFORME("numDigitos>0 && numDigitos<USHRT_MAX", vornnum_numero_digitos(0, INFINITY, 1, 0, 0));
}
