#define VN_MODULO "magnitud (NUCLEOS.DLL)"
#include "units/magnitud.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "units/vornconf.h"
#include <cmath>

namespace {

// The family's engineering constants. They are not to be replaced by the definitions.
constexpr double G = 9.81;                // kN per Tn
constexpr double LB = 0.4535923703803783; // kg per pound, Tn per kip
constexpr double IN = 0.0254;             // m per inch
constexpr double FT = 0.3048;             // m per foot
constexpr double MI = 1.609344;           // km per mile
constexpr double KSI = 703.0695802287469; // Tn/m² per ksi
constexpr double LBFT2 = 0.0479;          // kN/m² per lb/ft²
constexpr double KCAL = 4.1868;           // kJ per kcal
constexpr double BTU = 3.41214163313;     // Btu/h per W
constexpr double CELSIUS_A_KELVIN = 273.15;
constexpr double S_HORA = 3600, MIN_HORA = 60, H_DIA = 24, DIAS_MES = 30, DIAS_ANYO = 365;

using vn::numeros::PI;

double cuadrado(double x) { return vnstdc_pow(x, 2); }

} // namespace

#define MAGNITUD(nombre, formula)                                                                                      \
    double nombre(double x) { return formula; }
#include "units/magnitud_tabla.inl"
#undef MAGNITUD

// Levels
double magnitud_ul_a_dB(double x) { return 10 * vnstdc_log10(x); }
double magnitud_dB_a_ul(double x) { return vnstdc_pow(10, x / 10); }
double magnitud_W_a_dBmicroV(double x) { return 20 * (6 + vnstdc_log10(std::sqrt(75 * x))); }
double magnitud_dBW_a_dBmicroV(double x) { return magnitud_W_a_dBmicroV(vnstdc_pow(10, x / 10)); }

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

double magnitud_longitud_redondeada_por_defecto_segun_sistema_unidades(double longitud, double paso_cm,
                                                                       double paso_in) {
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
