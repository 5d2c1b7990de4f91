/* Magnitudes: energy, power, temperatures, levels. */
#ifndef VN_MAGNITUD_ENERGIA_H
#define VN_MAGNITUD_ENERGIA_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

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

VN_C_FIN

#endif
