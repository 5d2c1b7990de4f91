/* Values with their unit: the precision with which they are shown, and round values. */
#ifndef VN_CONVERS_REDONDEO_H
#define VN_CONVERS_REDONDEO_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The power of ten nearest, on the logarithmic scale, to the precision `prec`, internal units, as it is shown; how
    many decimals it has. A precision that is not above zero, before or after it is converted, is reported, and 0. */
double convers_precision_segun_sistema_uds(double prec, VN_RANGO(0, 144) uint32_t tipovalor);
uint32_t convers_precision_num_decimales_segun_sistema_uds(double prec, VN_RANGO(0, 144) uint32_t tipovalor);
/** The same where `prec` is given as shown in a system, which here is 0 M.K.S., 1 S.I. or 2 imperial, with an energy
    unit (VORNNORM_UNIDAD_ENERGIA_*; joule where none is given) that only counts in the S.I. */
double convers_precision_segun_sistema_uds_dado_prec_y_sistema(double prec, VN_RANGO(0, 2) uint32_t sistema,
                                                               VN_RANGO(0, 144) uint32_t tipovalor);
uint32_t convers_precision_num_decimales_segun_sistema_uds_dado_prec_y_sistema(double prec,
                                                                               VN_RANGO(0, 2) uint32_t sistema,
                                                                               VN_RANGO(0, 144) uint32_t tipovalor);
double convers_precision_segun_sistema_uds_energia_dado_prec_y_sistema(double prec, VN_RANGO(0, 2) uint32_t sistema,
                                                                       VN_RANGO(0, 2) uint32_t energia,
                                                                       VN_RANGO(0, 144) uint32_t tipovalor);
uint32_t convers_precision_num_decimales_segun_sistema_uds_energia_dado_prec_y_sistema(
    double prec, VN_RANGO(0, 2) uint32_t sistema, VN_RANGO(0, 2) uint32_t energia, VN_RANGO(0, 144) uint32_t tipovalor);

/** `valor`, internal units, rounded to a round step of the unit shown, the one that suits the precision `prec`,
    internal units: 1, 5, 10, 50, 100, 500, 1000, 10000 or 100000, a multiple of 0.25, 0.025... below 1, and 6 or 60
    inches for feet and inches. As it came when the step would be below 0.000001, when `valor` is not finite and when it
    is beyond 2^31 steps. */
double convers_valor_redondeado_al_mas_cercano(double valor, double prec, VN_RANGO(0, 145) uint32_t tipovalor);
double convers_valor_redondeado_por_defecto(double valor, double prec, VN_RANGO(0, 145) uint32_t tipovalor);
double convers_valor_redondeado_por_exceso(double valor, double prec, VN_RANGO(0, 145) uint32_t tipovalor);
/** `valor`, internal units, adapted to a round figure of the unit shown, as near as the type's relative precision asks;
    as it came from 1e12 on, and where the M.K.S. figure is as good. */
double convers_valor_adaptado_a_unidades(double valor, VN_RANGO(0, 145) uint32_t tipovalor);

VN_C_FIN

#endif
