#define VN_MODULO "magnitud (NUCLEOS.DLL)"
#include "units/magnitud.h"
#include "foundation/afirma.h"
#include "foundation/vnmath.h"
#include "foundation/vnstdc.h"
#include "units/vornconf.h"
#include <cmath>

namespace {

// The family's engineering constants. They are not to be replaced by the definitions.
constexpr double G = 9.81;                   // kN per Tn
constexpr double LB = 0.4535923703803783;    // kg per pound, Tn per kip
constexpr double IN = 0.0254;                // m per inch
constexpr double FT = 0.3048;                // m per foot
constexpr double MI = 1.609344;              // km per mile
constexpr double KSI = 703.0695802287469;    // Tn/m² per ksi
constexpr double LBFT2 = 0.0479;             // kN/m² per lb/ft²
constexpr double KCAL = 4.1868;              // kJ per kcal
constexpr double BTU = 3.41214163313;        // Btu/h per W
constexpr double PI = 3.141592653589793;
constexpr double CELSIUS_A_KELVIN = 273.15;
constexpr double S_HORA = 3600, MIN_HORA = 60, H_DIA = 24, DIAS_MES = 30, DIAS_ANYO = 365;

double cuadrado(double x) { return vnstdc_pow(x, 2); }

} // namespace

// One formula a line, in its order of operations, and the names that share it. The order is part of the result: the last
// bit of x / (G * 1000) is not that of x * (1 / 9810).
#define MAGNITUD(nombre, formula)                                                                                      \
    double nombre(double x) { return formula; }
#define MAGNITUDES_2(a, b, formula) MAGNITUD(a, formula) MAGNITUD(b, formula)
#define MAGNITUDES_3(a, b, c, formula) MAGNITUDES_2(a, b, formula) MAGNITUD(c, formula)

// clang-format off
// Forces
MAGNITUDES_2(magnitud_Tn_a_kN, magnitud_Tn_m2_a_kN_m2, x * G)
MAGNITUDES_2(magnitud_kN_a_Tn, magnitud_kN_m2_a_Tn_m2, x / G)
MAGNITUD(magnitud_Tm_a_N, x * (G * 1000))
MAGNITUDES_2(magnitud_N_a_Tn, magnitud_Pa_a_Tm_m2, x / (G * 1000))
MAGNITUD(magnitud_MN_a_Tn, x / (G / 1000))
MAGNITUDES_2(magnitud_Tn_a_kips, magnitud_kgf_a_lb, x / LB)
MAGNITUDES_2(magnitud_kips_a_Tn, magnitud_lb_a_kgf, x * LB)
MAGNITUD(magnitud_Tn_a_lb, x / (LB / 1000))
MAGNITUD(magnitud_lb_a_Tn, x * (LB / 1000))
MAGNITUD(magnitud_Kn_a_kips, (x / G) / LB)
MAGNITUD(magnitud_N_a_kips, ((x / 1000) / G) / LB)
MAGNITUDES_2(magnitud_kips_a_lib, magnitud_kip_div_in2_a_lb_div_in2, x * 1000)
MAGNITUDES_3(magnitud_lib_a_kips, magnitud_lib_div_ft_a_kip_div_ft, magnitud_lib_ft_a_kip_ft, x / 1000)

// Moments and forces per length
MAGNITUDES_2(magnitud_kip_ft_a_Tn_m, magnitud_kips_ft_a_Tn_m, x * (LB * FT))
MAGNITUD(magnitud_Tn_m_a_kip_ft, x / (LB * FT))
MAGNITUD(magnitud_kips_in_a_Tn_m, x * (LB * IN))
MAGNITUD(magnitud_Tn_m_a_kip_in, x / (LB * IN))
MAGNITUD(magnitud_lb_ft_a_Tn_m, x * ((LB / 1000) * FT))
MAGNITUD(magnitud_lb_in_a_Tn_m, x * ((LB / 1000) * IN))
MAGNITUD(magnitud_Tn_m_a_lb_in, x / ((LB / 1000) * IN))
MAGNITUD(magnitud_kip_ft_a_lb_in, (x * 1000) * 12)
MAGNITUDES_3(magnitud_kip_in_a_kip_ft, magnitud_kip_div_in_a_kip_div_ft, magnitud_in_a_ft, x / 12)
MAGNITUDES_2(magnitud_lib_in_a_kip_ft, magnitud_lib_div_in_a_kip_div_ft, x / (12 * 1000))
MAGNITUD(magnitud_kip_div_ft_a_Tn_div_m, (x * LB) / FT)

// Pressures, stresses, weights by volume
MAGNITUD(magnitud_MPa_a_Tm_m2, x / (G * 0.001))
MAGNITUD(magnitud_Tm_m2_a_MPa, x * (G * 0.001))
MAGNITUD(magnitud_N_mm2_a_Tn_m2, x * (cuadrado(1000) / (G * 1000)))
MAGNITUD(magnitud_Tm_m2_a_N_mm2, x / (cuadrado(1000) / (G * 1000)))
MAGNITUD(magnitud_kN_mm2_a_Tn_m2, x * (cuadrado(1000) / G))
MAGNITUD(magnitud_daN_m2_a_Tn_m2, x / (G * 100))
MAGNITUD(magnitud_kg_cm2_a_Tn_m2, x * (cuadrado(100) / 1000))
MAGNITUD(magnitud_Tn_m2_a_kg_cm2, x / (cuadrado(100) / 1000))
MAGNITUDES_2(magnitud_Tn_m2_a_kg_m2, magnitud_Tn_m3_a_kg_m3, x * 1000)
MAGNITUD(magnitud_kg_m2_a_Tn_m2, x / 1000)
MAGNITUD(magnitud_lb_ft2_a_Tn_m2, x * (LBFT2 / G))
MAGNITUD(magnitud_Tn_m2_a_lb_ft2, x / (LBFT2 / G))
MAGNITUD(magnitud_lb_ft3_a_Tn_m3, (x * 16) * 0.001)
MAGNITUD(magnitud_ksi_a_Tm_m2, x * KSI)
MAGNITUD(magnitud_Tm_m2_a_ksi, x / KSI)
MAGNITUD(magnitud_psi_a_Tm_m2, x * (KSI / 1000))
MAGNITUD(magnitud_Tm_m2_a_psi, x / (KSI / 1000))
MAGNITUD(magnitud_Pa_a_psi, (x / (G * 1000)) / (KSI / 1000))
MAGNITUD(magnitud_bar_a_Pa, x * 100000)
MAGNITUD(magnitud_mbar_a_Pa, x * (0.001 * 100000))
MAGNITUD(magnitud_mca_a_Pa, x * 9810)
MAGNITUD(magnitud_Pa_a_mca, x / 9810)
MAGNITUD(magnitud_mmca_a_Pa, x * (0.001 * 9810))
MAGNITUD(magnitud_Pa_a_mmca, x / (0.001 * 9810))
// By 12 and not by the ratio of the areas: on purpose.
MAGNITUD(magnitud_kip_div_ft2_a_lb_div_in2, (x * 12) * 1000)
MAGNITUDES_2(magnitud_lib_div_ft2_a_lb_div_in2, magnitud_ft_a_in, x * 12)

// Lengths, areas, volumes
MAGNITUD(magnitud_m_a_cm, x * 100)
MAGNITUD(magnitud_cm_a_m, x / 100)
MAGNITUD(magnitud_dm_a_m, x / 10)
MAGNITUD(magnitud_m_a_mm, x * 1000)
MAGNITUDES_2(magnitud_mm_a_m, magnitud_m_a_km, x / 1000)
MAGNITUD(magnitud_microm_a_m, x / 1000000)
MAGNITUD(magnitud_m_a_in, x / IN)
MAGNITUD(magnitud_in_a_m, x * IN)
MAGNITUD(magnitud_mm_a_in, (x / 1000) / IN)
MAGNITUDES_2(magnitud_m_a_ft, magnitud_m_s_a_ft_s, x / FT)
MAGNITUD(magnitud_ft_a_m, x * FT)
MAGNITUD(magnitud_km_a_mi, x / MI)
MAGNITUD(magnitud_mi_a_km, x * MI)
MAGNITUD(magnitud_m2_a_cm2, x * cuadrado(100))
MAGNITUD(magnitud_cm2_a_m2, x / cuadrado(100))
MAGNITUD(magnitud_m2_a_mm2, x * cuadrado(1000))
MAGNITUD(magnitud_mm2_a_m2, x / cuadrado(1000))
MAGNITUD(magnitud_m2_a_ft2, x / cuadrado(FT))
MAGNITUD(magnitud_ft2_a_m2, x * cuadrado(FT))
MAGNITUD(magnitud_m2_a_in2, x / cuadrado(IN))
MAGNITUD(magnitud_in2_a_m2, x * cuadrado(IN))
MAGNITUDES_3(magnitud_m3_a_l, magnitud_m3_h_a_l_h, magnitud_m3_s_a_l_s, x * 1000)
MAGNITUDES_3(magnitud_l_a_m3, magnitud_l_h_a_m3_h, magnitud_l_s_a_m3_s, x / 1000)

// Speeds, flows, time
MAGNITUD(magnitud_m_s_a_km_h, x * (S_HORA / 1000))
MAGNITUD(magnitud_km_h_a_m_s, x / (S_HORA / 1000))
MAGNITUD(magnitud_m_s_a_milla_h, ((x / 1000) * S_HORA) / MI)
MAGNITUD(magnitud_l_s_a_m3_h, x * (S_HORA / 1000))
MAGNITUD(magnitud_m3_h_a_l_s, x / (S_HORA / 1000))
MAGNITUDES_3(magnitud_h_a_s, magnitud_l_s_a_l_h, magnitud_m3_s_a_m3_h, x * S_HORA)
MAGNITUD(magnitud_m3_h_a_m3_s, x / S_HORA)
MAGNITUD(magnitud_m3_s_a_l_h, x * (1000 * S_HORA))
MAGNITUD(magnitud_l_h_a_m3_s, x / (1000 * S_HORA))
MAGNITUDES_3(magnitud_l_s_a_l_min, magnitud_min_a_s, magnitud_l_min_a_l_h, x * MIN_HORA)
MAGNITUD(magnitud_l_min_a_l_s, x / MIN_HORA)
MAGNITUD(magnitud_l_min_a_m3_s, x / (1000 * MIN_HORA))
MAGNITUD(magnitud_h_a_dias, x / H_DIA)
MAGNITUD(magnitud_meses_a_dias, x * DIAS_MES)
MAGNITUD(magnitud_anyos_a_dias, x * DIAS_ANYO)

// Energy, power, temperature, levels
MAGNITUD(magnitud_J_a_MJ, x / 1000000)
MAGNITUD(magnitud_MJ_a_J, x * 1000000)
MAGNITUD(magnitud_J_a_Wh, x / S_HORA)
MAGNITUD(magnitud_W_a_Btu_h, x * BTU)
MAGNITUDES_2(magnitud_kcal_h_a_W, magnitud_kcal_hC_a_W_K, x * ((1000 * KCAL) / S_HORA))
MAGNITUDES_2(magnitud_W_a_kcal_h, magnitud_W_K_a_kcal_hC, x / ((1000 * KCAL) / S_HORA))
MAGNITUD(magnitud_grados_C_a_grados_F, (x * 1.8) + 32)
MAGNITUD(magnitud_incremento_grados_C_a_grados_F, x * 1.8)
MAGNITUD(magnitud_grados_C_a_grados_K, x + CELSIUS_A_KELVIN)
MAGNITUD(magnitud_grados_K_a_grados_C, x - CELSIUS_A_KELVIN)
MAGNITUD(magnitud_ul_a_dB, 10 * vnstdc_log10(x))
MAGNITUD(magnitud_dB_a_ul, vnstdc_pow(10, x / 10))
MAGNITUD(magnitud_W_a_dBmicroV, 20 * (6 + vnstdc_log10(std::sqrt(75 * x))))
MAGNITUD(magnitud_dBW_a_dBmicroV, magnitud_W_a_dBmicroV(vnstdc_pow(10, x / 10)))

// Angles
MAGNITUD(degrees, (x * 180) / PI)
MAGNITUD(radian, (x * PI) / 180)
// clang-format on

double magnitud_pixel_a_cm(uint32_t pixels) { return pixels * 0.013; }

// ---------------------------------------------------------------- lengths rounded by the system of units

namespace {

double redondeada(double longitud, double paso_cm, double paso_in, double (*redondea)(double, double)) {
    switch (vornconf_Internacional_sistema_unidades()) {
    case VORNCONF_SU_MKS:
    case VORNCONF_SU_INTERNACIONAL: return redondea(longitud, paso_cm * 0.01);
    case VORNCONF_SU_IMPERIAL: return redondea(longitud, paso_in * IN);
    default: AFIRMA_DEFECTO(); return longitud;
    }
}

} // namespace

double magnitud_longitud_redondeada_segun_sistema_unidades(double longitud, double paso_cm, double paso_in) {
    return redondeada(longitud, paso_cm, paso_in, prec_redondea_decimales);
}

double magnitud_longitud_redondeada_por_defecto_segun_sistema_unidades(double longitud, double paso_cm, double paso_in) {
    return redondeada(longitud, paso_cm, paso_in, prec_redondea_decimales_por_defecto);
}

double magnitud_longitud_redondeada_por_exceso_segun_sistema_unidades(double longitud, double paso_cm, double paso_in) {
    return redondeada(longitud, paso_cm, paso_in, prec_redondea_decimales_por_exceso);
}

// ---------------------------------------------------------------- unit texts

#define TEXTO(nombre, texto)                                                                                           \
    const vnwchar *nombre(void) { return VNU(texto); }

// clang-format off
TEXTO(magnitud_texto_m, "m")
TEXTO(magnitud_texto_cm, "cm")
TEXTO(magnitud_texto_mm, "mm")
TEXTO(magnitud_texto_ft, "ft")
TEXTO(magnitud_texto_in, "in")
TEXTO(magnitud_texto_m2, "m²")
TEXTO(magnitud_texto_m3, "m³")
TEXTO(magnitud_texto_m2_m, "m²/m")
TEXTO(magnitud_texto_m3_h, "m³/h")
TEXTO(magnitud_texto_l_h, "l/h")
TEXTO(magnitud_texto_l_s, "l/s")
TEXTO(magnitud_texto_Pa, "Pa")
TEXTO(magnitud_texto_kPa, "kPa")
TEXTO(magnitud_texto_bar, "bar")
TEXTO(magnitud_texto_W, "W")
TEXTO(magnitud_texto_W_m2, "W/m²")
TEXTO(magnitud_texto_W_mK, "W/(m·K)")
TEXTO(magnitud_texto_W_m2K, "W/(m²·K)")
TEXTO(magnitud_texto_m2K_W, "(m²·K)/W")
TEXTO(magnitud_texto_J_kgK, "J/(kg·K)")
TEXTO(magnitud_texto_grados_C, "°C")
TEXTO(magnitud_texto_grados_F, "°F")
TEXTO(magnitud_texto_grados_K, "K")
TEXTO(magnitud_texto_kg_m3, "kg/m³")
TEXTO(magnitud_texto_dBA, "dBA")
// clang-format on

// ---------------------------------------------------------------- tolerant comparison

namespace {

// Unguarded on purpose: it is read in the innermost loops.
constinit double t = 0.00001;

// Written so that not-a-number is false of each.
inline bool es_cero(double x) { return std::fabs(x) <= t; }
inline bool no_es_cero(double x) { return std::fabs(x) > t; }
inline bool es_mayor(double x) { return x > t; }
inline bool es_mayor_igual(double x) { return x >= -t; }
inline bool es_menor(double x) { return x < -t; }
inline bool es_menor_igual(double x) { return x <= t; }

} // namespace

vnbool parmzero(double x) { return es_cero(x); }
vnbool parmnotzero(double x) { return no_es_cero(x); }
vnbool parmgtzero(double x) { return es_mayor(x); }
vnbool parmgezero(double x) { return es_mayor_igual(x); }
vnbool parmltzero(double x) { return es_menor(x); }
vnbool parmeq(double a, double b) { return es_cero(a - b); }
vnbool parmne(double a, double b) { return no_es_cero(a - b); }
vnbool parmgt(double a, double b) { return es_mayor(a - b); }
vnbool parmge(double a, double b) { return es_mayor_igual(a - b); }
vnbool parmlt(double a, double b) { return es_menor(a - b); }
vnbool parmle(double a, double b) { return es_menor_igual(a - b); }

void setroundoff(double roundoff) { t = roundoff; }

double _roundoff(double x, double ro) {
    if (!AFIRMA(ro > 0.)) return x;
    return std::floor(x / ro + 0.5) * ro;
}
