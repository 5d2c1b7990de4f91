#include "filas.h"
#include "foundation/texto/cad.h"
#include "propiedades.h"
#include "units/vornnum.h"
#include <cmath>

using namespace vn;

namespace {

// Both widths, which must agree; not-a-number, and 0 left, where the text is refused.
double lee(const std::string &s, int formato = 0, char millares = 0, char decimales = '.') {
    double v = 7, w = 7;
    const vnbool bien = vornnum_dameNumeroDeCadenaConDecimales(s.c_str(), &v, millares, decimales, formato);
    EXPECT_EQ(vornnum_dameNumeroDeCadenaConDecimales_u(ancho(s).c_str(), &w, static_cast<unsigned char>(millares),
                                                       static_cast<unsigned char>(decimales), formato),
              bien);
    EXPECT_TRUE(v == w && (bien || v == 0)) << s;
    return bien == CIERTO ? v : NAN;
}
bool igual(double v, double esperado) {
    return std::isnan(esperado) ? std::isnan(v) : std::fabs(v - esperado) <= 1e-15 * std::fabs(esperado);
}

} // namespace

PRUEBA(vornnum_lee, numeros) {
    for (const auto &[texto, entero, con_punto, con_coma] :
         filas<std::string, vnbool, double, double>("units/vornnum_lee.tsv", "numeros")) {
        const char *const t = texto.c_str();
        EXPECT_TRUE(igual(lee(texto), con_punto) && igual(lee(texto, 0, '.', ','), con_coma)) << texto;
        EXPECT_EQ(num_EsNumeroEntero(t), entero) << texto;
        EXPECT_EQ(num_EsNumeroReal(t) == CIERTO, !std::isnan(con_punto)) << texto;
        EXPECT_EQ(num_EsNumeroRealWindows(t, '.', ',') == CIERTO, !std::isnan(con_coma)) << texto;
    }
    // Empty text is 0 and no number; an infinity is a number by its grammar alone.
    EXPECT_TRUE(lee("") == 0 && lee("", 3) == 0 && !num_EsNumeroReal("") && std::isnan(lee("1e999")) &&
                num_EsNumeroReal("1e999"));
    EXPECT_FALSE(num_EsNumeroEnteroWindows("1.000", '.') || num_EsNumeroEnteroWindows_u(VNU("1.000"), u'.'));
    EXPECT_EQ(lee("1 234.5", 0, ' '), 1234.5);
    EXPECT_EQ(lee("1\240234", 0, '\xA0'), 1234);
    EXPECT_EQ(vornnum_wtof(VNU(" -2.5e1 m")), -25);
    ESPERA_INFORME("sep_decimales != 0", num_EsNumeroRealWindows("1", 0, 0));
    for (const auto &[texto, v] : std::initializer_list<std::pair<const char *, uint32_t>>{
             {"ff", 255}, {"1g", 1}, {"", 0}, {"DEADbeef", 0xDEADBEEF}, {"123456789", 0x23456789}, {" 1", 0}})
        EXPECT_EQ(num_string_hex_a_ulong(texto), v) << texto;
}

PRUEBA(vornnum_lee, pies_y_pulgadas) {
    for (const auto &[texto, pulgadas] : filas<std::string, double>("units/vornnum_lee.tsv", "pies"))
        EXPECT_TRUE(igual(lee(texto, 1), pulgadas / 12) && igual(lee(texto, 2), pulgadas) &&
                    igual(lee(texto, 3), pulgadas) && std::isnan(lee(texto)))
            << texto;
    EXPECT_EQ(lee("5.5", 3), 5.5); // a plain number is of the format's own unit
    EXPECT_TRUE(std::isnan(lee(std::string(400, '9') + "'", 1)));
}

// The quick way, by whole numbers, and the general parser are one.
PRUEBA(vornnum_lee, el_double_mas_cercano) {
    azar a(4);
    for (int i = 0; i < 500'000; ++i) {
        std::string s, plano;
        const uint32_t n = 1 + a.entero(i % 16 == 0 ? 1000 : 24), punto = a.entero(n + 1);
        for (uint32_t k = 0; k < n; ++k) {
            if (k == punto) s += ',', plano += '.';
            else if (k < punto && a.entero(4) == 0) s += '.';
            s += static_cast<char>('0' + a.entero(i % 8 == 1 && k > 3 ? 1 : 10));
            plano += s.back();
        }
        if (a.moneda()) plano += 'e' + std::to_string(a.entero_entre(-340, 330));
        s += plano.substr(std::min(plano.find('e'), plano.size()));
        double v = 0;
        vornnum_dameNumeroDeCadenaConDecimales(s.c_str(), &v, '.', ',', 0);
        const double esperado = cad_atof(plano.c_str());
        ASSERT_EQ(v, std::isfinite(esperado) ? esperado : 0) << s;
    }
    // Halfway between two doubles, and a digit far behind that decides.
    const std::string mitad = "9007199254740993", ceros(3000, '0');
    EXPECT_EQ(lee(mitad + "." + ceros), 9007199254740992.);
    EXPECT_EQ(lee(mitad + "." + ceros + "1"), 9007199254740994.);
    EXPECT_EQ(lee("0." + ceros + mitad + ceros + "1e3016"), 9007199254740994.);
    EXPECT_EQ(lee(mitad + ceros + "1e-3001"), 9007199254740994.);
}
