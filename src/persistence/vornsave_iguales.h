/* The save protocol: arrays that are mostly flat. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_IGUALES_H
#define VN_VORNSAVE_IGUALES_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Arrays in groups: a run of equal elements takes the room of one. Doubles within `tolerancia` of the first of their
    run are equal to it and come back as it. What runs may grow to when read is bounded: 256 MiB, and 8 bytes for each
    byte that the groups take; beyond that it is an error of reading. A writer keeps within it. */
void vornsave_graba_arr_double_con_valores_iguales(const arrDouble *array, double tolerancia, vornsave *vornsave_datos);
arrDouble *vornsave_lee_arr_double_con_valores_iguales(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_con_valores_iguales(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales(vornsave *vornsave_datos);
/** The same with null elements, as vornsave_graba_arr_cadenas_segun_tipo. */
void vornsave_graba_arr_cadenas_con_valores_iguales_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales_segun_tipo(vornsave *vornsave_datos);

VN_C_FIN

#endif
