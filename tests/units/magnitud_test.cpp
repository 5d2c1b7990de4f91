#include "units/magnitud.h"
#include "prueba.h"
#include "units/vornconf.h"
#include <cfloat>
#include <cmath>
#include <limits>

namespace {

constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN();
constexpr double INF = std::numeric_limits<double>::infinity();

struct magnitud {
    std::vector<double (*)(double)> nombres;
    double x, de_x;
};

// Each operation at a value where another order of operations (by the reciprocal, by the product of the constants) gives
// another last bit, if there is one; worked out apart, in the shortest digits that read back the same.
const magnitud MAGNITUDES[] = {
    {{magnitud_Tn_a_kN, magnitud_Tn_m2_a_kN_m2}, 1.425, 13.97925},
    {{magnitud_kN_a_Tn, magnitud_kN_m2_a_Tn_m2}, 0.55, 0.05606523955147809}, {{magnitud_Tm_a_N}, 2.05, 20110.5},
    {{magnitud_N_a_Tn, magnitud_Pa_a_Tm_m2}, 1.55, 0.00015800203873598368},
    {{magnitud_MN_a_Tn}, 0.55, 56.06523955147808}, {{magnitud_Tn_a_kips, magnitud_kgf_a_lb}, 0.675, 1.4881202685000001},
    {{magnitud_kips_a_Tn, magnitud_lb_a_kgf}, 0.55, 0.24947580370920808}, {{magnitud_Tn_a_lb}, 6.05, 13337.966851},
    {{magnitud_lb_a_Tn}, 14.925, 0.0067698661279271466}, {{magnitud_Kn_a_kips}, 0.425, 0.09551117364933741},
    {{magnitud_N_a_kips}, 1.8, 0.0004045179119266054},
    {{magnitud_kips_a_lib, magnitud_kip_div_in2_a_lb_div_in2}, 2.425, 2425},
    {{magnitud_lib_a_kips, magnitud_lib_div_ft_a_kip_div_ft, magnitud_lib_ft_a_kip_ft}, 1.3, 0.0013},
    {{magnitud_kip_ft_a_Tn_m, magnitud_kips_ft_a_Tn_m}, 7.05, 0.9746974291681721},
    {{magnitud_Tn_m_a_kip_ft}, 3.55, 25.677199150262464}, {{magnitud_kips_in_a_Tn_m}, 1.55, 0.017857931621875496},
    {{magnitud_Tn_m_a_kip_in}, 0.425, 36.888370610236215}, {{magnitud_lb_ft_a_Tn_m}, 0.55, 7.604022497056661e-05},
    {{magnitud_lb_in_a_Tn_m}, 1.425, 1.641777584591779e-05}, {{magnitud_Tn_m_a_lb_in}, 0.425, 36888.37061023623},
    {{magnitud_kip_ft_a_lb_in}, 0.55, 6600},
    {{magnitud_kip_in_a_kip_ft, magnitud_kip_div_in_a_kip_div_ft, magnitud_in_a_ft}, 1.05, 0.08750000000000001},
    {{magnitud_lib_in_a_kip_ft, magnitud_lib_div_in_a_kip_div_ft}, 0.675, 5.6250000000000005e-05},
    {{magnitud_kip_div_ft_a_Tn_div_m}, 0.55, 0.8184901696496327}, {{magnitud_MPa_a_Tm_m2}, 0.55, 56.06523955147808},
    {{magnitud_Tm_m2_a_MPa}, 1.05, 0.010300500000000002}, {{magnitud_N_mm2_a_Tn_m2}, 0.55, 56.065239551478086},
    {{magnitud_Tm_m2_a_N_mm2}, 1.05, 0.0103005}, {{magnitud_kN_mm2_a_Tn_m2}, 0.425, 43323.13965341487},
    {{magnitud_daN_m2_a_Tn_m2}, 0.425, 0.0004332313965341488}, {{magnitud_kg_cm2_a_Tn_m2}, 2.05, 20.5},
    {{magnitud_Tn_m2_a_kg_cm2}, 0.425, 0.042499999999999996},
    {{magnitud_Tn_m2_a_kg_m2, magnitud_Tn_m3_a_kg_m3}, 2.425, 2425}, {{magnitud_kg_m2_a_Tn_m2}, 1.3, 0.0013},
    {{magnitud_lb_ft2_a_Tn_m2}, 0.675, 0.003295871559633027}, {{magnitud_Tn_m2_a_lb_ft2}, 0.425, 87.04070981210857},
    {{magnitud_lb_ft3_a_Tn_m3}, 1.3, 0.020800000000000003}, {{magnitud_ksi_a_Tm_m2}, 0.55, 386.6882691258108},
    {{magnitud_Tm_m2_a_ksi}, 0.55, 0.00078228388123556}, {{magnitud_psi_a_Tm_m2}, 0.55, 0.38668826912581084},
    {{magnitud_Tm_m2_a_psi}, 1.175, 1.6712428371850598}, {{magnitud_Pa_a_psi}, 0.55, 7.97435149067849e-05},
    {{magnitud_bar_a_Pa}, 0.425, 42500}, {{magnitud_mbar_a_Pa}, 0.55, 55.00000000000001},
    {{magnitud_mca_a_Pa}, 2.05, 20110.5}, {{magnitud_Pa_a_mca}, 1.55, 0.00015800203873598368},
    {{magnitud_mmca_a_Pa}, 1.425, 13.97925}, {{magnitud_Pa_a_mmca}, 0.55, 0.05606523955147809},
    {{magnitud_kip_div_ft2_a_lb_div_in2}, 0.675, 8100.000000000002},
    {{magnitud_lib_div_ft2_a_lb_div_in2, magnitud_ft_a_in}, 0.425, 5.1}, {{magnitud_m_a_cm}, 0.55, 55.00000000000001},
    {{magnitud_cm_a_m}, 1.55, 0.0155}, {{magnitud_dm_a_m}, 0.425, 0.042499999999999996},
    {{magnitud_m_a_mm}, 2.425, 2425}, {{magnitud_mm_a_m, magnitud_m_a_km}, 1.3, 0.0013},
    {{magnitud_microm_a_m}, 0.425, 4.25e-07}, {{magnitud_m_a_in}, 0.55, 21.65354330708662},
    {{magnitud_in_a_m}, 0.55, 0.01397}, {{magnitud_mm_a_in}, 1.05, 0.041338582677165364},
    {{magnitud_m_a_ft, magnitud_m_s_a_ft_s}, 0.925, 3.034776902887139}, {{magnitud_ft_a_m}, 0.55, 0.16764},
    {{magnitud_km_a_mi}, 0.925, 0.5747683528195339}, {{magnitud_mi_a_km}, 0.675, 1.0863072000000003},
    {{magnitud_m2_a_cm2}, 2.05, 20500}, {{magnitud_cm2_a_m2}, 0.425, 4.2499999999999996e-05},
    {{magnitud_m2_a_mm2}, 0.55, 550000}, {{magnitud_mm2_a_m2}, 0.425, 4.25e-07},
    {{magnitud_m2_a_ft2}, 2.55, 27.447971562609787}, {{magnitud_ft2_a_m2}, 0.55, 0.05109667200000001},
    {{magnitud_m2_a_in2}, 0.55, 852.50170500341}, {{magnitud_in2_a_m2}, 0.425, 0.000274193},
    {{magnitud_m3_a_l, magnitud_m3_h_a_l_h, magnitud_m3_s_a_l_s}, 2.425, 2425},
    {{magnitud_l_a_m3, magnitud_l_h_a_m3_h, magnitud_l_s_a_m3_s}, 1.3, 0.0013}, {{magnitud_m_s_a_km_h}, 0.425, 1.53},
    {{magnitud_km_h_a_m_s}, 0.675, 0.1875}, {{magnitud_m_s_a_milla_h}, 0.8, 1.789549033643522},
    {{magnitud_l_s_a_m3_h}, 0.425, 1.53}, {{magnitud_m3_h_a_l_s}, 0.675, 0.1875},
    {{magnitud_h_a_s, magnitud_l_s_a_l_h, magnitud_m3_s_a_m3_h}, 0.425, 1530},
    {{magnitud_m3_h_a_m3_s}, 21.3, 0.005916666666666667}, {{magnitud_m3_s_a_l_h}, 0.675, 2430000},
    {{magnitud_l_h_a_m3_s}, 0.425, 1.1805555555555555e-07}, {{magnitud_l_s_a_l_min, magnitud_min_a_s}, 0.425, 25.5},
    {{magnitud_l_min_a_l_h}, 0.425, 25.5}, {{magnitud_l_min_a_l_s}, 1.8, 0.030000000000000002},
    {{magnitud_l_min_a_m3_s}, 0.425, 7.083333333333333e-06}, {{magnitud_h_a_dias}, 1.05, 0.043750000000000004},
    {{magnitud_meses_a_dias}, 0.425, 12.75}, {{magnitud_anyos_a_dias}, 0.425, 155.125},
    {{magnitud_kcal_h_a_W, magnitud_kcal_hC_a_W_K}, 1.175, 1.366525},
    {{magnitud_W_a_kcal_h, magnitud_W_K_a_kcal_hC}, 1.3, 1.117798796216681},
    {{magnitud_incremento_grados_C_a_grados_F}, 0.425, 0.765}, {{magnitud_J_a_MJ}, 0.425, 4.25e-07},
    {{magnitud_MJ_a_J}, 0.55, 550000}, {{magnitud_J_a_Wh}, 21.3, 0.005916666666666667},
    {{magnitud_W_a_Btu_h}, 0.425, 1.45016019408025}, {{magnitud_grados_C_a_grados_F}, 0.425, 32.765},
    {{magnitud_grados_C_a_grados_K}, 0.425, 273.575}, {{magnitud_grados_K_a_grados_C}, 0.425, -272.72499999999997},
};

// Puts the tolerance back.
struct con_tolerancia {
    explicit con_tolerancia(double t) { setroundoff(t); }
    ~con_tolerancia() { setroundoff(0.00001); }
};

} // namespace

PRUEBA(magnitud, cada_formula_da_los_mismos_bits_con_sus_constantes_y_su_orden) {
    size_t nombres = 0;
    for (const magnitud &m : MAGNITUDES)
        for (const auto &f : m.nombres) {
            ++nombres;
            const auto fila = &m - MAGNITUDES;
            EXPECT_EQ(f(m.x), m.de_x) << "row " << fila;
            EXPECT_TRUE(std::isnan(f(NAN_)) && f(-INF) == -INF) << "row " << fila;
        }
    EXPECT_EQ(nombres, 124u);
    EXPECT_EQ(magnitud_N_a_Tn(9810.), 1.);
    EXPECT_EQ(magnitud_grados_C_a_grados_F(100.), 212.);
    EXPECT_EQ(magnitud_incremento_grados_C_a_grados_F(100.), 180.);
    EXPECT_EQ(magnitud_pixel_a_cm(4294967295u), 4294967295. * 0.013);
    EXPECT_EQ(degrees(3.141592653589793), 180.);
    EXPECT_EQ(radian(degrees(0.7)), 0.7);
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
    for (const double t : {0.00001, 0.5, 0., 3e-300}) {
        const con_tolerancia puesta(t);
        const struct {
            double x;
            int orden;
        } filas[] = {
            {t, 0},   {std::nextafter(t, 1.), 1},    {std::nextafter(t, -1.), t > 0 ? 0 : -1}, {0., 0},   {1., 1},
            {-t, 0},  {std::nextafter(-t, -1.), -1}, {std::nextafter(-t, 1.), t > 0 ? 0 : 1},  {INF, 1}, {-INF, -1},
        };
        for (const auto &f : filas) {
            SCOPED_TRACE(testing::Message() << f.x << " with " << t);
            EXPECT_EQ(parmzero(f.x), f.orden == 0);
            EXPECT_EQ(parmnotzero(f.x), f.orden != 0);
            EXPECT_EQ(parmgtzero(f.x), f.orden > 0);
            EXPECT_EQ(parmgezero(f.x), f.orden >= 0);
            EXPECT_EQ(parmltzero(f.x), f.orden < 0);
            EXPECT_EQ(parmeq(f.x, 0.) + 2 * parmne(f.x, 0.), f.orden == 0 ? 1 : 2);
            EXPECT_EQ(parmgt(f.x, 0.) + 2 * parmlt(0., f.x), f.orden > 0 ? 3 : 0);
            EXPECT_EQ(parmge(f.x, 0.) + 2 * parmle(f.x, 0.), (f.orden >= 0 ? 1 : 0) + (f.orden <= 0 ? 2 : 0));
        }
    }
    EXPECT_EQ(parmeq(1e9, 1e9 + 1e-4), FALSO); // the tolerance does not grow with the values
    const con_tolerancia negativa(-1.);
    EXPECT_EQ(parmeq(1., 1.) + parmge(1., 1.) + parmle(1., 1.), 0);
    EXPECT_EQ(parmne(1., 1.) + parmgt(1., 1.) + parmlt(1., 1.), 3);
}

PRUEBA(magnitud, lo_que_no_es_un_numero_no_se_compara_con_nada) {
    EXPECT_EQ(parmzero(NAN_) + parmnotzero(NAN_) + parmgtzero(NAN_) + parmgezero(NAN_) + parmltzero(NAN_), 0);
    for (const double x : {0., INF, NAN_})
        EXPECT_EQ(parmeq(NAN_, x) + parmne(x, NAN_) + parmgt(NAN_, x) + parmge(x, NAN_) + parmlt(NAN_, x) + parmle(x, NAN_), 0);
    EXPECT_EQ(parmeq(INF, INF) + parmne(INF, INF) + parmge(INF, INF) + parmle(INF, INF), 0);
}

PRUEBA(magnitud, el_redondeo_lleva_las_mitades_hacia_arriba) {
    const struct {
        double x, ro, esperado;
    } filas[] = {{-2.5, 1., -2.}, {2.5, 1., 3.}, {-2.6, 1., -3.}, {7.3, 2.5, 7.5}, {-0.125, 0.25, 0.}, {1e300, 1e-5, 1e300}};
    for (const auto &f : filas) EXPECT_DOUBLE_EQ(_roundoff(f.x, f.ro), f.esperado) << f.x << " to " << f.ro;
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
        EXPECT_EQ(magnitud_longitud_redondeada_por_defecto_segun_sistema_unidades(1.234, 5, 1), (pulgadas ? 48 : 24) * paso);
        EXPECT_EQ(magnitud_longitud_redondeada_por_exceso_segun_sistema_unidades(1.211, 5, 1), (pulgadas ? 48 : 25) * paso);
        EXPECT_EQ(ESPERA_INFORME("paso > 0.", cerca(1.234, pulgadas ? 1 : 0, pulgadas ? 0 : 1)), 1.234);
    }
    vornconf_Internacional_set_sistema_unidades(antes);
}
