#define VN_MODULO "numero_test"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/widestr.h"
#include "prueba.h"
#include <cmath>

using namespace vn;

PRUEBA(numero, reales) {
    // clang-format off
    const struct {
        const char *texto;
        double valor;
        size_t consumido;
        bool desborda;
    } filas[] = {
        {"1.5", 1.5, 3, false}, {" \t\n-2.50e2x", -250, 10, false}, {"+.5", 0.5, 3, false}, {"5.", 5, 2, false},
        {"1,5", 1, 1, false}, {"1e", 1, 1, false}, {"1e+", 1, 1, false}, {"1.2.3", 1.2, 3, false},
        {"0x10", 0, 1, false}, {"", 0, 0, false}, {"   ", 0, 0, false}, {"-", 0, 0, false}, {".", 0, 0, false},
        {"e5", 0, 0, false}, {"--1", 0, 0, false}, {"1e400", INF, 5, true},
        {"-1e999999999999999999999", -INF, 24, true}, {"1e-400", 0, 6, true},
        {"1e-999999999999999999999", 0, 24, true}, {"0e999999999", 0, 11, false},
        {"4.9e-324", 4.9e-324, 8, false}, {"2.2250738585072011e-308", 2.2250738585072011e-308, 23, false},
        {"inf", INF, 3, false}, {"-Infinity", -INF, 9, false}, {"info", 0, 0, false}, {"inf.", INF, 3, false},
        {"9007199254740993", 9007199254740992.0, 16, false}, {"0.1e-100000000000000000000000000", 0, 32, true},
    };
    // clang-format on
    for (const auto &f : filas) {
        const auto a = texto::lee_double(f.texto);
        const auto w = texto::lee_double(ancho(f.texto).c_str());
        EXPECT_EQ(a.valor, f.valor) << f.texto;
        EXPECT_EQ(w.valor, f.valor) << f.texto;
        EXPECT_EQ(a.consumido, f.consumido) << f.texto;
        EXPECT_EQ(w.consumido, f.consumido) << f.texto;
        EXPECT_EQ(a.desborda, f.desborda) << f.texto;
        EXPECT_EQ(w.desborda, f.desborda) << f.texto;
    }
    EXPECT_TRUE(std::signbit(texto::lee_double("-0").valor));
    EXPECT_TRUE(std::isnan(texto::lee_double("nan ").valor));
    // Long enough for no buffer: the size of the text, not of its value, decides the road.
    const std::string ceros = "0." + std::string(5000, '0') + "1e5001", nueves = "1" + std::string(400, '0') + ".0";
    EXPECT_EQ(texto::lee_double(ancho(ceros).c_str()).valor, 1.0);
    EXPECT_EQ(texto::lee_double(ancho(nueves).c_str()).valor, INF);
    // Only as much as is given is looked at.
    EXPECT_EQ(texto::lee_double("123456", 3).valor, 123);
}

PRUEBA(numero, enteros) {
    const auto i32 = [](const char *t, int base = 10) { return texto::lee_entero<int32_t>(t, base); };
    EXPECT_EQ(i32("  -12abc").valor, -12);
    EXPECT_EQ(i32("  -12abc").consumido, 5u);
    EXPECT_EQ(i32("2147483647").valor, INT32_MAX);
    EXPECT_EQ(i32("2147483648").valor, INT32_MAX);
    EXPECT_TRUE(i32("2147483648").desborda);
    EXPECT_FALSE(i32("-2147483648").desborda);
    EXPECT_EQ(i32("-99999999999999999999").valor, INT32_MIN);
    EXPECT_EQ(i32("x").consumido, 0u);
    EXPECT_EQ(i32("0x1F", 16).valor, 31);
    EXPECT_EQ(i32("0x1F", 0).valor, 31);
    EXPECT_EQ(i32("017", 0).valor, 15);
    EXPECT_EQ(i32("0xg", 16).consumido, 1u);
    EXPECT_EQ(texto::lee_entero<uint32_t>("-1").valor, 0u);
    EXPECT_TRUE(texto::lee_entero<uint32_t>("-1").desborda);
    EXPECT_EQ(texto::lee_entero<uint64_t>("18446744073709551615").valor, UINT64_MAX);
    EXPECT_TRUE(texto::lee_entero<uint64_t>("18446744073709551616").desborda);
    EXPECT_EQ(texto::lee_entero<int64_t>("-9223372036854775808").valor, INT64_MIN);
    EXPECT_EQ(texto::lee_entero<int64_t>(VNU("\t+7")).valor, 7);
    EXPECT_EQ(widestr_atoul(VNU("4294967296")), UINT32_MAX);
}
