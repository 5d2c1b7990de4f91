/* Portable layer: the functions of numbers. */
#ifndef VN_VNSTDC_NUMEROS_H
#define VN_VNSTDC_NUMEROS_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Magnitude of a 32-bit number; of the lowest one, the lowest one. */
int32_t vnstdc_labs(int32_t x);
/** Magnitude of a number. */
double vnstdc_fabs(double x);
/** Trigonometry, radians. Outside their domain vnstdc_asin and vnstdc_acos give not-a-number. */
double vnstdc_sin(double x);
double vnstdc_cos(double x);
double vnstdc_tan(double x);
double vnstdc_asin(double x);
double vnstdc_acos(double x);
double vnstdc_atan2(double y, double x);
/** Power, decimal logarithm, whole numbers below and above, remainder with the sign of `x`. */
double vnstdc_pow(double x, double y);
double vnstdc_log10(double x);
double vnstdc_floor(double x);
double vnstdc_ceil(double x);
double vnstdc_fmod(double x, double y);

VN_C_FIN

#endif
