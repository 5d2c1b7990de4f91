#define VN_MODULO "numero_test"
#include "filas.h"
#include "foundation/texto/numero_int.h"
#include <cmath>

using namespace vn;

PRUEBA(numero, reales) {
    for (const auto &[t, valor, consumido, desborda] :
         filas<std::string, double, size_t, int>("foundation/numero.tsv", "reales"))
        for (const auto &r : {texto::lee_double(t.c_str()), texto::lee_double(ancho(t).c_str())}) {
            EXPECT_EQ(r.valor, valor) << t;
            EXPECT_EQ(r.consumido, consumido) << t;
            EXPECT_EQ(r.desborda, desborda == 1) << t;
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

template <class N> void enteros(const char *seccion) {
    for (const auto &[t, base, valor, consumido, desborda] :
         filas<std::string, int, N, size_t, int>("foundation/numero.tsv", seccion))
        for (const auto &r : {texto::lee_entero<N>(t.c_str(), base), texto::lee_entero<N>(ancho(t).c_str(), base)}) {
            EXPECT_EQ(r.valor, valor) << t;
            EXPECT_EQ(r.consumido, consumido) << t;
            EXPECT_EQ(r.desborda, desborda == 1) << t;
        }
}

PRUEBA(numero, enteros) {
    enteros<int32_t>("int32");
    enteros<uint32_t>("uint32");
    enteros<int64_t>("int64");
    enteros<uint64_t>("uint64");
}
