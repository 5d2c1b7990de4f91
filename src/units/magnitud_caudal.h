/* Magnitudes: speeds, flows by volume, spans of time. */
#ifndef VN_MAGNITUD_CAUDAL_H
#define VN_MAGNITUD_CAUDAL_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

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

VN_C_FIN

#endif
