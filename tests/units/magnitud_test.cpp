#include "propiedades.h"
#include "units/magnitud.h"
#include "units/vornconf.h"
#include <array>
#include <cmath>

namespace {

using vn::INF, vn::NAN_;

#define MAGNITUD(nombre, formula) nombre,
double (*const MAGNITUDES[])(double) = {
#include "units/magnitud_tabla.inl"
};
#undef MAGNITUD

} // namespace

PRUEBA(magnitud, las_constantes_son_las_de_la_casa) {
    EXPECT_DOUBLE_EQ(magnitud_N_a_Tn(9810.), 1.);
    EXPECT_DOUBLE_EQ(magnitud_ksi_a_Tm_m2(1.), 703.0695802287469);
    EXPECT_DOUBLE_EQ(magnitud_W_a_Btu_h(1.), 3.41214163313);
    EXPECT_DOUBLE_EQ(magnitud_lb_ft2_a_Tn_m2(9.81), 0.0479);
    EXPECT_EQ(magnitud_anyos_a_dias(2.), 730.);
    EXPECT_DOUBLE_EQ(magnitud_grados_C_a_grados_F(100.), 212.);
    EXPECT_DOUBLE_EQ(magnitud_incremento_grados_C_a_grados_F(100.), 180.);
    EXPECT_EQ(magnitud_grados_C_a_grados_K(0.), 273.15);
    EXPECT_EQ(magnitud_pixel_a_cm(4294967295u), 4294967295. * 0.013);
    EXPECT_EQ(degrees(3.141592653589793), 180.);
    EXPECT_EQ(radian(degrees(0.7)), 0.7);
}

// By the reciprocal, or by the product of two constants, some of these have another last bit.
PRUEBA(magnitud, cada_formula_da_los_mismos_bits_en_su_orden) {
    vn::huella h;
    for (const auto f : MAGNITUDES) {
        for (double x = 0.425; x < 22.; x += 0.125) h << f(x) << f(-x / 3.);
        EXPECT_TRUE(std::isnan(f(NAN_)) && f(-INF) == -INF) << &f - MAGNITUDES;
    }
    EXPECT_EQ(std::size(MAGNITUDES), 126u);
    EXPECT_EQ(h(), 18234523778515714756u);
}

PRUEBA(magnitud, los_niveles_son_logaritmos_de_base_diez) {
    EXPECT_NEAR(magnitud_dBW_a_dBmicroV(0.), 138.750612633917, 1e-11);
    EXPECT_NEAR(magnitud_dBW_a_dBmicroV(-30.), 108.750612633917, 1e-11);
    EXPECT_DOUBLE_EQ(magnitud_W_a_dBmicroV(4. / 3.), 140.);
    EXPECT_DOUBLE_EQ(magnitud_dB_a_ul(magnitud_ul_a_dB(0.125)), 0.125);
    EXPECT_EQ(magnitud_ul_a_dB(0.), -INF);
    EXPECT_EQ(magnitud_W_a_dBmicroV(0.), -INF);
    EXPECT_TRUE(std::isnan(magnitud_ul_a_dB(-1.)) && std::isnan(magnitud_W_a_dBmicroV(-1.)));
}

// The tolerance itself counts as equal, and the next number does not.
PRUEBA(magnitud, las_comparaciones_cambian_justo_pasada_la_tolerancia) {
    const vn::al_final de_siempre([] { setroundoff(0.00001); });
    for (const double t : {0.5, 0., 3e-300, 0.00001}) {
        setroundoff(t);
        const std::pair<double, int> filas[] = {
            {t, 0},  {std::nextafter(t, 1.), 1},    {std::nextafter(t, -1.), t > 0 ? 0 : -1}, {0., 0},  {1., 1},
            {-t, 0}, {std::nextafter(-t, -1.), -1}, {std::nextafter(-t, 1.), t > 0 ? 0 : 1},  {INF, 1}, {-INF, -1}};
        for (const auto &[x, orden] : filas) {
            SCOPED_TRACE(testing::Message() << x << " with " << t);
            EXPECT_EQ(parmzero(x), orden == 0);
            EXPECT_EQ(parmnotzero(x), orden != 0);
            EXPECT_EQ(parmgtzero(x), orden > 0);
            EXPECT_EQ(parmgezero(x), orden >= 0);
            EXPECT_EQ(parmltzero(x), orden < 0);
            EXPECT_EQ(parmeq(x, 0.) + 2 * parmne(x, 0.), orden == 0 ? 1 : 2);
            EXPECT_EQ(parmgt(x, 0.) + 2 * parmlt(0., x), orden > 0 ? 3 : 0);
            EXPECT_EQ(parmge(x, 0.) + 2 * parmle(x, 0.), (orden >= 0 ? 1 : 0) + (orden <= 0 ? 2 : 0));
        }
    }
    EXPECT_EQ(parmeq(1e9, 1e9 + 1e-4), FALSO); // the tolerance does not grow with the values
    setroundoff(-1.);
    EXPECT_EQ(parmeq(1., 1.) + parmge(1., 1.) + parmle(1., 1.), 0);
    EXPECT_EQ(parmne(1., 1.) + parmgt(1., 1.) + parmlt(1., 1.), 3);
}

PRUEBA(magnitud, lo_que_no_es_un_numero_no_se_compara_con_nada) {
    EXPECT_EQ(parmzero(NAN_) + parmnotzero(NAN_) + parmgtzero(NAN_) + parmgezero(NAN_) + parmltzero(NAN_), 0);
    for (const double x : {0., INF, NAN_})
        EXPECT_EQ(parmeq(NAN_, x) + parmne(x, NAN_) + parmgt(NAN_, x) + parmge(x, NAN_) + parmlt(NAN_, x) +
                      parmle(x, NAN_),
                  0);
    EXPECT_EQ(parmeq(INF, INF) + parmne(INF, INF) + parmge(INF, INF) + parmle(INF, INF), 0);
}

PRUEBA(magnitud, el_redondeo_lleva_las_mitades_hacia_arriba) {
    const std::array<double, 3> filas[] = {{-2.5, 1., -2.}, {2.5, 1., 3.},      {-2.6, 1., -3.},
                                           {7.3, 2.5, 7.5}, {-0.125, 0.25, 0.}, {1e300, 1e-5, 1e300}};
    for (const auto &[x, ro, esperado] : filas) EXPECT_DOUBLE_EQ(_roundoff(x, ro), esperado) << x << " to " << ro;
    for (const double ro : {0., -1., NAN_}) EXPECT_EQ(ESPERA_INFORME("ro > 0.", _roundoff(7.3, ro)), 7.3);
}

PRUEBA(magnitud, la_longitud_se_redondea_al_paso_del_sistema) {
    const uint32_t antes = vornconf_Internacional_sistema_unidades();
    const auto cerca = magnitud_longitud_redondeada_segun_sistema_unidades;
    for (const uint32_t sistema : {VORNCONF_SU_MKS, VORNCONF_SU_INTERNACIONAL, VORNCONF_SU_IMPERIAL}) {
        vornconf_Internacional_set_sistema_unidades(sistema);
        const bool pulgadas = sistema == VORNCONF_SU_IMPERIAL;
        const double paso = pulgadas ? 0.0254 : 0.05;
        // 1.234 m are 24.68 steps of 5 cm and 48.58 inches; 1.211 m, 24.22 and 47.68.
        EXPECT_EQ(cerca(1.234, 5, 1), (pulgadas ? 49 : 25) * paso);
        EXPECT_EQ(magnitud_longitud_redondeada_por_defecto_segun_sistema_unidades(1.234, 5, 1),
                  (pulgadas ? 48 : 24) * paso);
        EXPECT_EQ(magnitud_longitud_redondeada_por_exceso_segun_sistema_unidades(1.211, 5, 1),
                  (pulgadas ? 48 : 25) * paso);
        EXPECT_EQ(ESPERA_INFORME("paso > 0.", cerca(1.234, pulgadas ? 1 : 0, pulgadas ? 0 : 1)), 1.234);
    }
    vornconf_Internacional_set_sistema_unidades(antes);
}
