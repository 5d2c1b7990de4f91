/* Magnitudes: one value from one unit to another, by the family's own engineering constants (a tonne-force is 9.81 kN,
   a pound 1/2.20462262 kg, a lb/ft² 0.0479 kN/m², a millimetre of water 9.81 Pa); comparisons of real numbers with one
   changeable tolerance; angles; lengths rounded in the system of units in force.

   `A_a_B` takes a value in A and gives it in B. Tn and Tm are the tonne-force; lb and lib the pound; kip and kips the
   thousand pounds; `X_div_Y` is X per Y; daN, kN and MN are 10, 1,000 and 1,000,000 newtons; `mca` and `mmca` metres
   and millimetres of water column. Nothing is checked: infinities and not-a-number pass through. */
#ifndef VN_MAGNITUD_H
#define VN_MAGNITUD_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Forces, and the loads and pressures with the same factor. */
double magnitud_Tn_a_kN(double x);
double magnitud_Tn_m2_a_kN_m2(double x);
double magnitud_kN_a_Tn(double x);
double magnitud_kN_m2_a_Tn_m2(double x);
double magnitud_Tm_a_N(double x);
double magnitud_N_a_Tn(double x);
double magnitud_Pa_a_Tm_m2(double x);
double magnitud_MN_a_Tn(double x);
double magnitud_Tn_a_kips(double x);
double magnitud_kgf_a_lb(double x);
double magnitud_kips_a_Tn(double x);
double magnitud_lb_a_kgf(double x);
double magnitud_Tn_a_lb(double x);
double magnitud_lb_a_Tn(double x);
double magnitud_Kn_a_kips(double x);
double magnitud_N_a_kips(double x);
double magnitud_kips_a_lib(double x);
double magnitud_kip_div_in2_a_lb_div_in2(double x);
double magnitud_lib_a_kips(double x);
double magnitud_lib_div_ft_a_kip_div_ft(double x);
double magnitud_lib_ft_a_kip_ft(double x);

/** Moments, and forces per length. */
double magnitud_kip_ft_a_Tn_m(double x);
double magnitud_kips_ft_a_Tn_m(double x);
double magnitud_Tn_m_a_kip_ft(double x);
double magnitud_kips_in_a_Tn_m(double x);
double magnitud_Tn_m_a_kip_in(double x);
double magnitud_lb_ft_a_Tn_m(double x);
double magnitud_lb_in_a_Tn_m(double x);
double magnitud_Tn_m_a_lb_in(double x);
double magnitud_kip_ft_a_lb_in(double x);
double magnitud_kip_in_a_kip_ft(double x);
double magnitud_kip_div_in_a_kip_div_ft(double x);
double magnitud_lib_in_a_kip_ft(double x);
double magnitud_lib_div_in_a_kip_div_ft(double x);
double magnitud_kip_div_ft_a_Tn_div_m(double x);

/** Pressures, stresses, weights by volume. */
double magnitud_MPa_a_Tm_m2(double x);
double magnitud_Tm_m2_a_MPa(double x);
double magnitud_N_mm2_a_Tn_m2(double x);
double magnitud_Tm_m2_a_N_mm2(double x);
double magnitud_kN_mm2_a_Tn_m2(double x);
double magnitud_daN_m2_a_Tn_m2(double x);
double magnitud_kg_cm2_a_Tn_m2(double x);
double magnitud_Tn_m2_a_kg_cm2(double x);
double magnitud_Tn_m2_a_kg_m2(double x);
double magnitud_Tn_m3_a_kg_m3(double x);
double magnitud_kg_m2_a_Tn_m2(double x);
double magnitud_lb_ft2_a_Tn_m2(double x);
double magnitud_Tn_m2_a_lb_ft2(double x);
double magnitud_lb_ft3_a_Tn_m3(double x);
double magnitud_ksi_a_Tm_m2(double x);
double magnitud_Tm_m2_a_ksi(double x);
double magnitud_psi_a_Tm_m2(double x);
double magnitud_Tm_m2_a_psi(double x);
double magnitud_Pa_a_psi(double x);
double magnitud_bar_a_Pa(double x);
double magnitud_mbar_a_Pa(double x);
double magnitud_mca_a_Pa(double x);
double magnitud_Pa_a_mca(double x);
double magnitud_mmca_a_Pa(double x);
double magnitud_Pa_a_mmca(double x);

/** Force per area with the factor of a force per length: times 12 (and times 1,000 from kips), not times the ratio of
    the areas. They stay so on purpose. */
double magnitud_kip_div_ft2_a_lb_div_in2(double x);
double magnitud_lib_div_ft2_a_lb_div_in2(double x);

/** Lengths, and a speed. */
double magnitud_m_a_cm(double x);
double magnitud_cm_a_m(double x);
double magnitud_dm_a_m(double x);
double magnitud_m_a_mm(double x);
double magnitud_mm_a_m(double x);
double magnitud_m_a_km(double x);
double magnitud_microm_a_m(double x);
double magnitud_m_a_in(double x);
double magnitud_in_a_m(double x);
double magnitud_mm_a_in(double x);
double magnitud_m_a_ft(double x);
double magnitud_m_s_a_ft_s(double x);
double magnitud_ft_a_m(double x);
double magnitud_ft_a_in(double x);
double magnitud_in_a_ft(double x);
double magnitud_km_a_mi(double x);
double magnitud_mi_a_km(double x);

/** Areas and volumes. */
double magnitud_m2_a_cm2(double x);
double magnitud_cm2_a_m2(double x);
double magnitud_m2_a_mm2(double x);
double magnitud_mm2_a_m2(double x);
double magnitud_m2_a_ft2(double x);
double magnitud_ft2_a_m2(double x);
double magnitud_m2_a_in2(double x);
double magnitud_in2_a_m2(double x);
double magnitud_m3_a_l(double x);
double magnitud_l_a_m3(double x);

/** Speeds, and flows by volume. */
double magnitud_m_s_a_km_h(double x);
double magnitud_km_h_a_m_s(double x);
double magnitud_m_s_a_milla_h(double x);
double magnitud_m3_h_a_l_h(double x);
double magnitud_m3_s_a_l_s(double x);
double magnitud_l_h_a_m3_h(double x);
double magnitud_l_s_a_m3_s(double x);
double magnitud_l_s_a_m3_h(double x);
double magnitud_m3_h_a_l_s(double x);
double magnitud_l_s_a_l_h(double x);
double magnitud_m3_s_a_m3_h(double x);
double magnitud_m3_h_a_m3_s(double x);
double magnitud_m3_s_a_l_h(double x);
double magnitud_l_h_a_m3_s(double x);
double magnitud_l_s_a_l_min(double x);
double magnitud_l_min_a_l_h(double x);
double magnitud_l_min_a_l_s(double x);
double magnitud_l_min_a_m3_s(double x);

/** Spans of time: hours, minutes, seconds, months of 30 days, years of 365. */
double magnitud_h_a_s(double x);
double magnitud_min_a_s(double x);
double magnitud_h_a_dias(double x);
double magnitud_meses_a_dias(double x);
double magnitud_anyos_a_dias(double x);

/** Energy and power, and losses per degree. */
double magnitud_J_a_MJ(double x);
double magnitud_MJ_a_J(double x);
double magnitud_J_a_Wh(double x);
double magnitud_W_a_Btu_h(double x);
double magnitud_kcal_h_a_W(double x);
double magnitud_kcal_hC_a_W_K(double x);
double magnitud_W_a_kcal_h(double x);
double magnitud_W_K_a_kcal_hC(double x);

/** Temperatures; the one named `incremento` takes a difference of temperatures, which has no offset. */
double magnitud_grados_C_a_grados_F(double x);
double magnitud_incremento_grados_C_a_grados_F(double x);
double magnitud_grados_C_a_grados_K(double x);
double magnitud_grados_K_a_grados_C(double x);

/** Levels: a plain ratio (`ul`) and decibels, a power in W or dBW and the dBµV that it gives on 75 ohms. The logarithm
    of zero is minus infinity, that of a negative value not-a-number. */
double magnitud_ul_a_dB(double x);
double magnitud_dB_a_ul(double x);
double magnitud_W_a_dBmicroV(double x);
double magnitud_dBW_a_dBmicroV(double x);

/** Centimetres of a number of pixels, 0.013 cm each. */
double magnitud_pixel_a_cm(uint32_t pixels);

/** Degrees of an angle in radians; radians of one in degrees. */
double degrees(double x);
double radian(double x);

/** `longitud`, metres, rounded to a multiple of a step: `paso_cm` centimetres in the metric systems of units, `paso_in`
    inches in the imperial one; to the nearest multiple, downwards, upwards. A step that is not above zero is reported
    and `longitud` comes back. */
double magnitud_longitud_redondeada_segun_sistema_unidades(double longitud, double paso_cm, double paso_in);
double magnitud_longitud_redondeada_por_defecto_segun_sistema_unidades(double longitud, double paso_cm, double paso_in);
double magnitud_longitud_redondeada_por_exceso_segun_sistema_unidades(double longitud, double paso_cm, double paso_in);

/** Unit texts. Constant: not to be freed. */
const vnwchar *magnitud_texto_m(void);
const vnwchar *magnitud_texto_cm(void);
const vnwchar *magnitud_texto_mm(void);
const vnwchar *magnitud_texto_ft(void);
const vnwchar *magnitud_texto_in(void);
const vnwchar *magnitud_texto_m2(void);
const vnwchar *magnitud_texto_m3(void);
const vnwchar *magnitud_texto_m2_m(void);
const vnwchar *magnitud_texto_m3_h(void);
const vnwchar *magnitud_texto_l_h(void);
const vnwchar *magnitud_texto_l_s(void);
const vnwchar *magnitud_texto_Pa(void);
const vnwchar *magnitud_texto_kPa(void);
const vnwchar *magnitud_texto_bar(void);
const vnwchar *magnitud_texto_W(void);
const vnwchar *magnitud_texto_W_m2(void);
const vnwchar *magnitud_texto_W_mK(void);
const vnwchar *magnitud_texto_W_m2K(void);
const vnwchar *magnitud_texto_m2K_W(void);
const vnwchar *magnitud_texto_J_kgK(void);
const vnwchar *magnitud_texto_grados_C(void);
const vnwchar *magnitud_texto_grados_F(void);
const vnwchar *magnitud_texto_grados_K(void);
const vnwchar *magnitud_texto_kg_m3(void);
const vnwchar *magnitud_texto_dBA(void);

/** Comparisons with the tolerance in force, t, which is absolute: `x` zero (|x| <= t), not zero, above zero (x > t),
    above or zero (x >= -t), below zero (x < -t). Each is FALSO of not-a-number. */
vnbool parmzero(double x);
vnbool parmnotzero(double x);
vnbool parmgtzero(double x);
vnbool parmgezero(double x);
vnbool parmltzero(double x);

/** The same of `a - b`: a difference of exactly t is equal. Two infinities of one sign compare as nothing:
    all FALSO. */
vnbool parmeq(double a, double b);
vnbool parmne(double a, double b);
vnbool parmgt(double a, double b);
vnbool parmge(double a, double b);
vnbool parmlt(double a, double b);
vnbool parmle(double a, double b);

/** Sets the tolerance of the `parm` comparisons, process-wide, 0.00001 at first. No value is refused: with zero
    they are the exact comparisons, with a negative one nothing equals anything. From one thread, while nothing
    else compares. */
void setroundoff(double roundoff);
/** `x` rounded to the nearest multiple of `ro`, halves upwards, also of negative values. An `ro` that is not above zero
    is reported and `x` comes back. */
double _roundoff(double x, double ro);

VN_C_FIN

#endif
