/* Magnitudes: lengths, areas and volumes; lengths rounded in the system of units in force. */
#ifndef VN_MAGNITUD_LONGITUD_H
#define VN_MAGNITUD_LONGITUD_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

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

/** Centimetres of a number of pixels, 0.013 cm each. */
double magnitud_pixel_a_cm(uint32_t pixels);

/** `longitud`, metres, rounded to a multiple of a step: `paso_cm` centimetres in the metric systems of units, `paso_in`
    inches in the imperial one; to the nearest multiple, downwards, upwards. A step that is not above zero is reported
    and `longitud` comes back. */
double magnitud_longitud_redondeada_segun_sistema_unidades(double longitud, double paso_cm, double paso_in);
double magnitud_longitud_redondeada_por_defecto_segun_sistema_unidades(double longitud, double paso_cm, double paso_in);
double magnitud_longitud_redondeada_por_exceso_segun_sistema_unidades(double longitud, double paso_cm, double paso_in);

VN_C_FIN

#endif
