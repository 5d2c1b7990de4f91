/* Magnitudes: comparisons of real numbers with one changeable tolerance, and angles. */
#ifndef VN_MAGNITUD_COMPARA_H
#define VN_MAGNITUD_COMPARA_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Degrees of an angle in radians; radians of one in degrees. */
double degrees(double x);
double radian(double x);

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
