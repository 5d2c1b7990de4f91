/* Maths basics: tolerant comparison of real numbers, small functions, rounding. Not-a-number compares as nothing: every
   tolerant comparison with it is FALSO. An infinity equals itself. */
#ifndef VN_VNMATH_H
#define VN_VNMATH_H

#include "../suelo/tipos.h"

/** Tolerance of the comparisons that are given none, in the unit of what they compare. */
#define VNMATH_TOLERANCIA 1e-6

VN_C_INICIO

/** Whether `x` is zero, to 1e-6: |x| <= 1e-6. The limit itself is still zero. */
vnbool ES_CERO(double x);
/** Whether `x` is zero, to `tolerancia`, which must not be negative (nor not-a-number): reported, and 0 is used. */
vnbool ES_CERO_PREC(double x, double tolerancia);
/** Whether `x` is beyond zero by more than 1e-6. */
vnbool ES_MAYOR_CERO(double x);
vnbool ES_MENOR_CERO(double x);
/** Whether `x` is beyond zero by more than `tolerancia` (as in ES_CERO_PREC). */
vnbool ES_MAYOR_CERO_PREC(double x, double tolerancia);
/** Whether `x` is above zero, or zero to 1e-6. */
vnbool ES_MAYOR_IGUAL_CERO(double x);
/** Whether `a` is beyond `b` by more than 1e-6. Of ES_MAYOR, ES_MENOR and SON_IGUALES exactly one holds. */
vnbool ES_MAYOR(double a, double b);
vnbool ES_MENOR(double a, double b);
/** Whether `a` is beyond `b`, or equal to it to 1e-6. */
vnbool ES_MAYOR_IGUAL(double a, double b);
vnbool ES_MENOR_IGUAL(double a, double b);
/** Whether `a` and `b` are equal to 1e-6. */
vnbool SON_IGUALES(double a, double b);
/** Whether `a` and `b` are equal to `tolerancia` (as in ES_CERO_PREC). */
vnbool SON_IGUALES_PREC(double a, double b, double tolerancia);
/** Whether `x` is the largest double, which stands for "no value". */
vnbool ES_DBL_MAX(double x);

/** The least whole number not below `x`; the greatest not above it. */
double CEIL(double x);
double FLOOR(double x);
/** The square and the cube of `x`. */
double CUAD(double x);
double CUBO(double x);
/** Decimal logarithm: minus infinity of zero, not-a-number of a negative number. */
double LOG10(double x);
/** Square root. A negative that is zero to 1e-6 gives 0; one beyond that is reported and gives 0. */
double RAIZ(double x);

/** The nearest whole number, halves away from zero. What is not a 32-bit number is reported, and the nearest one that
    is comes back (0 for not-a-number). */
int32_t roundtol(double x);
uint32_t roundtul(double x);
/** The nearest whole number, halves away from zero; the whole part, towards zero. */
double defmath_round(double x);
double defmath_trunc(double x);
/** Whether `x` is a finite number. */
vnbool defmath_es_numero_valido(double x);
/** Order of two numbers: 0 when they are equal to `tolerancia` (as in ES_CERO_PREC), else -1 or 1. Not-a-number is
    equal to itself and goes after all others, so that a sort comes to an end. */
int vornmath_compara_doubles(double a, double b, double tolerancia);

/** `x` rounded to the nearest multiple of `paso`, halves upwards: floor(x / paso + 0.5) * paso. A `paso` that is not
    above zero is reported and `x` comes back; so it does, silently, when it is not finite or the quotient is not. */
double prec_redondea_decimales(double x, double paso);
/** The same downwards and upwards. A quotient that is whole to 1e-9 counts as that whole number. */
double prec_redondea_decimales_por_defecto(double x, double paso);
double prec_redondea_decimales_por_exceso(double x, double paso);
/** `x` rounded to `decimales` decimal places, halves away from zero on its 17 significant digits, so that 1.005 (whose
    digits are 1.0049999999999999) gives 1.00 and 0.125 gives 0.13. Never minus zero. */
double prec_redondea_numero_decimales(double x, uint32_t decimales);

VN_C_FIN

#endif
