/* Magnitudes: pressures, stresses, weights by volume. */
#ifndef VN_MAGNITUD_PRESION_H
#define VN_MAGNITUD_PRESION_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

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

VN_C_FIN

#endif
