#define VN_MODULO "vornnum_lee_test"
#include "foundation/cad.h"
#include "propiedades.h"
#include "prueba.h"
#include "units/vornnum.h"
#include <cmath>

using namespace vn;

namespace {

// Both widths, which must agree; not-a-number where the text is refused.
double lee(const std::string &s, int formato = 0, char millares = 0, char decimales = '.') {
    double v = 7, w = 7, x = 7;
    const vnbool bien = vornnum_dameNumeroDeCadenaConDecimales(s.c_str(), &v, millares, decimales, formato);
    EXPECT_EQ(vornnum_dameNumeroDeCadenaConDecimales_u(ancho(s).c_str(), &w, static_cast<unsigned char>(millares),
                                                       static_cast<unsigned char>(decimales), formato),
              bien)
        << s;
    EXPECT_EQ(std::bit_cast<uint64_t>(v), std::bit_cast<uint64_t>(w)) << s;
    if (millares == 0 && decimales == '.') {
        EXPECT_EQ(vornnum_dameNumeroDeCadena(s.c_str(), &x, formato), bien) << s;
        EXPECT_EQ(vornnum_dameNumeroDeCadena_u(ancho(s).c_str(), &w, formato), bien) << s;
        EXPECT_TRUE(x == v && w == v) << s;
    }
    if (bien == CIERTO) return v;
    EXPECT_EQ(v, 0) << s;
    return std::nan("");
}

} // namespace

PRUEBA(vornnum_lee, numeros) {
    constexpr double NO = NAN;
    const struct {
        const char *texto;
        bool entero;
        double con_punto, con_coma; // thousands with a point and decimals with a comma
    } FILAS[] = {
        {"1.5", false, 1.5, 15},       {"1,5", false, NO, 1.5},      {"  -12  ", true, -12, -12},
        {"+7", true, 7, 7},            {"", false, 0, 0},            {" ", false, NO, NO},
        {"-", false, NO, NO},          {".", false, NO, 0},          {",", false, NO, NO},
        {".5", false, .5, 5},          {"5.", false, 5, 5},          {"1e", false, 1, 1},
        {"1E+", false, 1, 1},          {"1e-3", false, 1e-3, 1e-3},  {"e5", false, NO, NO},
        {"1e5x", false, NO, NO},       {"1 2", false, NO, NO},       {"\t1", false, NO, NO},
        {"1.2.3", false, NO, 123},     {"..1..,5", false, NO, 1.5},  {"1,2.3", false, NO, NO},
        {"1,2,3", false, NO, NO},      {"0x10", false, NO, NO},      {"nan", false, NO, NO},
        {"inf", false, NO, NO},        {"1e999", false, NO, NO},     {"1e-999", false, 0, 0},
        {"0e99999999999999999999", false, 0, 0}, {"1e-99999999999999999999", false, 0, 0},
        {"9007199254740993", true, 9007199254740992., 9007199254740992.},
    };
    for (const auto &f : FILAS) {
        const auto igual = [&](double v, double esperado) {
            EXPECT_TRUE(v == esperado || (std::isnan(v) && std::isnan(esperado))) << f.texto << ": " << v;
        };
        igual(lee(f.texto), f.con_punto);
        igual(lee(f.texto, 0, '.', ','), f.con_coma);
        const auto u = ancho(f.texto);
        EXPECT_EQ(num_EsNumeroEntero(f.texto) == CIERTO, f.entero) << f.texto;
        EXPECT_EQ(num_EsNumeroEntero_u(u.c_str()) == CIERTO, f.entero) << f.texto;
        // An infinity is a number by its grammar, an empty text only by its value.
        if (std::string_view(f.texto) == "" || std::string_view(f.texto) == "1e999") continue;
        EXPECT_EQ(num_EsNumeroReal(f.texto) == CIERTO, !std::isnan(f.con_punto)) << f.texto;
        EXPECT_EQ(num_EsNumeroReal_u(u.c_str()) == CIERTO, !std::isnan(f.con_punto)) << f.texto;
        EXPECT_EQ(num_EsNumeroRealWindows(f.texto, '.', ',') == CIERTO, !std::isnan(f.con_coma)) << f.texto;
        EXPECT_EQ(num_EsNumeroRealWindows_u(u.c_str(), u'.', u',') == CIERTO, !std::isnan(f.con_coma)) << f.texto;
    }
    EXPECT_TRUE(num_EsNumeroReal("1e999") && !num_EsNumeroReal(""));
    EXPECT_FALSE(num_EsNumeroEnteroWindows("1.000", '.') || num_EsNumeroEnteroWindows_u(VNU("1.000"), u'.'));
    EXPECT_TRUE(num_EsNumeroEnteroWindows("1000", '.') && num_EsNumeroEnteroWindows_u(VNU("1000"), u'.'));
    EXPECT_EQ(lee("1 234.5", 0, ' '), 1234.5);
    EXPECT_EQ(lee("1\xA0" "234", 0, '\xA0'), 1234);
    EXPECT_EQ(vornnum_wtof(VNU(" -2.5e1 m")), -25);
    ESPERA_INFORME("sep_decimales != 0", num_EsNumeroRealWindows("1", 0, 0));
    double v = 7;
    ESPERA_INFORME("sep_decimales != 0", vornnum_dameNumeroDeCadenaConDecimales_u(VNU("1"), &v, u'.', 0, 0));
    EXPECT_EQ(v, 0);
}

PRUEBA(vornnum_lee, pies_y_pulgadas) {
    const struct {
        const char *texto;
        double pulgadas; // not-a-number: none
    } FILAS[] = {
        {"5'-3 1/2\"", 63.5}, {"5'3 1/2", 63.5}, {"- 5 ' - 3 1 / 2 \" ", -63.5}, {"+5'", 60}, {"5'-", 60}, {"5'-3\"", 63},
        {"5'-1/2\"", 60.5}, {"5'1/2", 60.5}, {"3/4\"", .75}, {"-3/4", -.75}, {"7\"", 7}, {"7 1/8", 7.125}, {"7 1/8\"", 7.125},
        {"5/0\"", 0}, {"7 5/0", 7}, {"0\"", 0}, {"123456789012345678901234567890\"", 123456789012345678901234567890.},
        {"5'3", NAN}, {"5'-3 1", NAN}, {"5''", NAN}, {"5\"'", NAN}, {"5\"3", NAN}, {"'", NAN}, {"\"", NAN}, {"/2", NAN},
        {"1/", NAN}, {"1/2/3", NAN}, {"5.5'", NAN}, {"5e1'", NAN}, {"--5'", NAN}, {"5'--3\"", NAN}, {"5'-3 1/2\"\"", NAN},
        {"5'-3 1/2\" x", NAN}, {"5'-+3\"", NAN}, {"5 '3\"\t", NAN},
    };
    for (const auto &f : FILAS) {
        for (const int formato : {1, 2, 3}) {
            const double v = lee(f.texto, formato), esperado = formato == 1 ? f.pulgadas / 12 : f.pulgadas;
            EXPECT_TRUE(std::isnan(esperado) ? std::isnan(v) : std::fabs(v - esperado) <= 1e-15 * std::fabs(esperado))
                << f.texto << ": " << v;
        }
        EXPECT_TRUE(std::isnan(lee(f.texto))) << f.texto;
    }
    // A plain number is of the format's own unit.
    for (const int formato : {1, 2, 3}) EXPECT_EQ(lee("5.5", formato), 5.5);
    EXPECT_TRUE(std::isnan(lee(std::string(400, '9') + "'", 1)));
}

// Whatever the text, it is a number or it is none, told without a report and without a look past its end.
PRUEBA(vornnum_lee, cualquier_texto) {
    constexpr std::string_view LETRAS = "0123456789 ..,,''\"\"//--++eE\x80x";
    azar a(3);
    unsigned numeros = 0;
    for (int i = 0; i < 300'000; ++i) {
        std::vector<char> s(1 + a.entero(12)); // of its own size: a sanitizer sees what is read beyond it
        for (char &c : s) c = LETRAS[a.entero(LETRAS.size())];
        s.back() = 0;
        double v = 7;
        const char millares = LETRAS[a.entero(LETRAS.size())], decimales = LETRAS[a.entero(LETRAS.size())];
        const bool bien = (i % 2 != 0 ? vornnum_dameNumeroDeCadena(s.data(), &v, i % 4)
                                      : vornnum_dameNumeroDeCadenaConDecimales(s.data(), &v, millares, decimales, i % 4)) == CIERTO;
        numeros += bien;
        ASSERT_TRUE(bien ? std::isfinite(v) : v == 0) << s.data();
    }
    EXPECT_GT(numeros, 30'000u);
}

// The quick way, by whole numbers, and the general parser are one.
PRUEBA(vornnum_lee, el_double_mas_cercano) {
    azar a(4);
    for (int i = 0; i < 500'000; ++i) {
        std::string s, plano;
        const uint32_t n = 1 + a.entero(i % 16 == 0 ? 1000 : 24), punto = a.entero(n + 1);
        for (uint32_t k = 0; k < n; ++k) {
            if (k == punto) s += ',', plano += '.';
            else if (a.entero(4) == 0 && k < punto) s += '.';
            s += static_cast<char>('0' + a.entero(i % 8 == 1 && k > 3 ? 1 : 10));
            plano += s.back();
        }
        if (a.moneda()) {
            const std::string e = "e" + std::to_string(a.entero_entre(-340, 330));
            s += e, plano += e;
        }
        double v = 0;
        vornnum_dameNumeroDeCadenaConDecimales(s.c_str(), &v, '.', ',', 0);
        const double esperado = cad_atof(plano.c_str());
        ASSERT_EQ(v, std::isfinite(esperado) ? esperado : 0) << s;
    }
}

// Halfway between two doubles, and a digit far behind that decides.
PRUEBA(vornnum_lee, un_digito_muy_lejos) {
    const std::string mitad = "9007199254740993", ceros(3000, '0');
    EXPECT_EQ(lee(mitad + "." + ceros), 9007199254740992.);
    EXPECT_EQ(lee(mitad + "." + ceros + "1"), 9007199254740994.);
    EXPECT_EQ(lee("0." + ceros + mitad + ceros + "1e3016"), 9007199254740994.);
    EXPECT_EQ(lee(mitad + ceros + "1e-3001"), 9007199254740994.);
}

PRUEBA(vornnum_lee, hexadecimal) {
    for (const auto &[texto, v] : std::initializer_list<std::pair<const char *, uint32_t>>{
             {"ff", 255}, {"1g", 1}, {"", 0}, {"DEADbeef", 0xDEADBEEF}, {"123456789", 0x23456789}, {"x", 0}, {" 1", 0}}) {
        EXPECT_EQ(num_string_hex_a_ulong(texto), v) << texto;
        EXPECT_EQ(num_string_hex_a_ulong_u(ancho(texto).c_str()), v) << texto;
    }
}
