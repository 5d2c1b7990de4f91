#include "filas.h"
#include "foundation/numeros/vnmath.h"
#include <algorithm>
#include <cmath>

using vn::filas, vn::INF, vn::NAN_;

// A tolerance on the wrong side of its limit moves geometry decisions: both sides of it, for each sense.
PRUEBA(vnmath, las_comparaciones_parten_los_numeros_en_tres_en_su_limite) {
    for (const auto &[a, b, orden] : filas<double, double, int>("foundation/vnmath.tsv", "comparados")) {
        SCOPED_TRACE(testing::Message() << a << " " << b);
        EXPECT_EQ(ES_MAYOR(a, b), orden > 0);
        EXPECT_EQ(ES_MENOR(a, b), orden < 0);
        EXPECT_EQ(SON_IGUALES(a, b), orden == 0);
        EXPECT_EQ(ES_MAYOR_IGUAL(a, b), orden >= 0);
        EXPECT_EQ(ES_MENOR_IGUAL(a, b), orden <= 0);
        EXPECT_EQ(vornmath_compara_doubles(a, b, 1e-6), orden);
        if (b != 0.) continue;
        EXPECT_EQ(ES_CERO(a), orden == 0);
        EXPECT_EQ(ES_MAYOR_CERO(a), orden > 0);
        EXPECT_EQ(ES_MENOR_CERO(a), orden < 0);
        EXPECT_EQ(ES_MAYOR_IGUAL_CERO(a), orden >= 0);
    }
    EXPECT_EQ(ES_CERO_PREC(0.5, 0.5) + ES_MAYOR_CERO_PREC(0.5, 0.5) + SON_IGUALES_PREC(2., 2.6, 0.5), 1);
}

PRUEBA(vnmath, lo_que_no_es_un_numero_no_es_igual_a_nada_pero_se_ordena) {
    for (const double x : {0., 1., INF, NAN_})
        EXPECT_EQ(
            ES_CERO(NAN_) + SON_IGUALES(NAN_, x) + ES_MAYOR(NAN_, x) + ES_MENOR(x, NAN_) + ES_MAYOR_IGUAL(NAN_, x), 0);
    double v[] = {NAN_, 2., -INF, NAN_, 1.};
    std::sort(std::begin(v), std::end(v), [](double a, double b) { return vornmath_compara_doubles(a, b, 1e-9) < 0; });
    EXPECT_TRUE(v[0] == -INF && v[1] == 1. && v[2] == 2. && std::isnan(v[3]) && std::isnan(v[4]));
    // A bad tolerance is reported and taken as none.
    EXPECT_EQ(ESPERA_INFORME("tolerancia >= 0.", ES_CERO_PREC(1e-9, NAN_)), FALSO);
    EXPECT_EQ(ESPERA_INFORME("tolerancia >= 0.", SON_IGUALES_PREC(1., 1., -1.)), CIERTO);
}

PRUEBA(vnmath, el_redondeo_a_entero_se_queda_en_el_tipo) {
    EXPECT_EQ(roundtol(-2.5), -3);
    EXPECT_EQ(roundtol(0.49999999999999994), 0); // adding 0.5 first would give 1
    EXPECT_EQ(defmath_round(4503599627370497.), 4503599627370497.);
    EXPECT_EQ(defmath_round(-INF), -INF);
    EXPECT_EQ(roundtul(4294967295.4), 4294967295u);
    EXPECT_EQ(roundtol(-2147483648.4), INT32_MIN);
    EXPECT_EQ(ESPERA_INFORME("x >= 0. && x <= ULONG_MAX", roundtul(-0.5)), 0u);
    EXPECT_EQ(ESPERA_INFORME("x >= 0. && x <= ULONG_MAX", roundtul(INF)), UINT32_MAX);
    EXPECT_EQ(ESPERA_INFORME("x >= LONG_MIN && x <= LONG_MAX", roundtol(-1e308)), INT32_MIN);
    EXPECT_EQ(ESPERA_INFORME("x >= LONG_MIN && x <= LONG_MAX", roundtol(NAN_)), 0);
    EXPECT_EQ(RAIZ(-1e-17), 0.);
    EXPECT_EQ(ESPERA_INFORME("x >= 0.", RAIZ(-1.)), 0.);
    EXPECT_TRUE(std::isnan(RAIZ(NAN_)));
}

PRUEBA(vnmath, el_redondeo_a_un_paso_perdona_el_cociente_casi_entero) {
    EXPECT_EQ(prec_redondea_decimales(0.125, 0.25), 0.25);
    EXPECT_EQ(prec_redondea_decimales(-0.125, 0.25), 0.);
    EXPECT_EQ(prec_redondea_decimales_por_defecto(0.3, 0.1), 3 * 0.1); // the quotient is 2.9999999999999996
    EXPECT_EQ(prec_redondea_decimales_por_exceso(1.1 * 3, 1.1), 3 * 1.1);
    EXPECT_EQ(prec_redondea_decimales_por_defecto(0.299, 0.1), 2 * 0.1);
    EXPECT_EQ(prec_redondea_decimales_por_exceso(-0.299, 0.1), -2 * 0.1);
    EXPECT_EQ(prec_redondea_decimales(1e308, 1e-5), 1e308);
    EXPECT_TRUE(std::isnan(prec_redondea_decimales(NAN_, 1e-5)));
    EXPECT_EQ(ESPERA_INFORME("paso > 0.", prec_redondea_decimales(1.5, 0.)), 1.5);
}

PRUEBA(vnmath, los_decimales_se_redondean_sobre_las_cifras_que_se_ven) {
    for (const auto &[x, n, esperado] : filas<double, uint32_t, double>("foundation/vnmath.tsv", "decimales"))
        EXPECT_EQ(prec_redondea_numero_decimales(x, n), esperado) << x << " to " << n;
    EXPECT_FALSE(std::signbit(prec_redondea_numero_decimales(-0.001, 2)));
    EXPECT_FALSE(std::signbit(prec_redondea_numero_decimales(-0., 2)));
    EXPECT_TRUE(std::isnan(prec_redondea_numero_decimales(NAN_, 2)));
}
