/* Basic formulas of sections. */
#ifndef VN_CALSECBAS_H
#define VN_CALSECBAS_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Angle, in radians, from the axes y, z of a section to its principal axes of inertia: half the arc cosine
   of (Iy - Iz) / (Imax - Imin), negative when `signo_positivo` is FALSO. The moments are in one unit;
   principal ones that are equal to 1e-10 give 0, and `Imax` below `Imin` is reported and gives 0. A quotient
   that rounding has put beyond 1 counts as 1. */
double calsecbas_angulo_giro_entre_ejes_yz_y_ejes_principales(double Iy, double Iz, vnbool signo_positivo, double Imax,
                                                              double Imin);

VN_C_FIN

#endif
