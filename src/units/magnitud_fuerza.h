/* Magnitudes: forces, moments, forces per length. */
#ifndef VN_MAGNITUD_FUERZA_H
#define VN_MAGNITUD_FUERZA_H

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

VN_C_FIN

#endif
