#define VN_MODULO "vornnum_lee_test"
#include "foundation/texto/cad.h"
#include "propiedades.h"
#include "prueba.h"
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
    const struct {
        const char *texto;
        bool entero;
        double con_punto, con_coma; // thousands with a point and decimals with a comma
    } FILAS[] = {
        {"1.5", false, 1.5, 15},
        {"1,5", false, NAN, 1.5},
        {"  -12  ", true, -12, -12},
        {"+7", true, 7, 7},
        {".", false, NAN, 0},
        {".5", false, .5, 5},
        {"5.", false, 5, 5},
        {"1e", false, 1, 1},
        {"1E+", false, 1, 1},
        {"1e-3", false, 1e-3, 1e-3},
        {"1.2.3", false, NAN, 123},
        {"..1..,5", false, NAN, 1.5},
        {"1e-999", false, 0, 0},
        {"0e99999999999999999999", false, 0, 0},
        {"1e-99999999999999999999", false, 0, 0},
    };
    for (const auto &f : FILAS) {
        EXPECT_TRUE(igual(lee(f.texto), f.con_punto) && igual(lee(f.texto, 0, '.', ','), f.con_coma)) << f.texto;
        EXPECT_EQ(num_EsNumeroEntero(f.texto) == CIERTO, f.entero) << f.texto;
        EXPECT_EQ(num_EsNumeroReal(f.texto) == CIERTO, !std::isnan(f.con_punto)) << f.texto;
        EXPECT_EQ(num_EsNumeroRealWindows(f.texto, '.', ',') == CIERTO, !std::isnan(f.con_coma)) << f.texto;
    }
    for (const char *no : {" ", "-", ",", "e5", "1e5x", "1 2", "\t1", "1,2.3", "0x10", "nan", "inf"})
        EXPECT_TRUE(std::isnan(lee(no)) && std::isnan(lee(no, 0, '.', ',')) && !num_EsNumeroEntero(no) &&
                    !num_EsNumeroReal(no) && !num_EsNumeroRealWindows(no, '.', ','))
            << no;
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
    const struct {
        const char *texto;
        double pulgadas;
    } FILAS[] = {
        {"5'-3 1/2\"", 63.5},
        {"5'3 1/2", 63.5},
        {"- 5 ' - 3 1 / 2 \" ", -63.5},
        {"+5'", 60},
        {"5'-", 60},
        {"5'-3\"", 63},
        {"5'-1/2\"", 60.5},
        {"5'1/2", 60.5},
        {"3/4\"", .75},
        {"-3/4", -.75},
        {"7\"", 7},
        {"7 1/8", 7.125},
        {"7 1/8\"", 7.125},
        {"5/0\"", 0},
        {"7 5/0", 7},
        {"0\"", 0},
        {"123456789012345678901234567890\"", 123456789012345678901234567890.},
    };
    for (const auto &f : FILAS) {
        EXPECT_TRUE(igual(lee(f.texto, 1), f.pulgadas / 12) && igual(lee(f.texto, 2), f.pulgadas) &&
                    igual(lee(f.texto, 3), f.pulgadas) && std::isnan(lee(f.texto)))
            << f.texto;
    }
    for (const char *no : {"5'3", "5'-3 1", "5''", "5\"'", "5\"3", "'", "\"", "/2", "1/", "1/2/3", "5.5'", "5e1'",
                           "--5'", "5'--3\"", "5'-3 1/2\"\"", "5'-3 1/2\" x", "5'-+3\"", "5 '3\"\t"})
        for (const int formato : {0, 1, 2, 3}) EXPECT_TRUE(std::isnan(lee(no, formato))) << no;
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
