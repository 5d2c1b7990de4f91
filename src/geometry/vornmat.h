/* The relation between the elastic moduli of an isotropic material. Both moduli are in one unit of pressure. */
#ifndef VN_VORNMAT_H
#define VN_VORNMAT_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Shear modulus, E x 0.5 / (Poisson + 1). Values that are not above zero are reported, and the formula holds
   all the same; what is not finite gives 0. */
double vornmat_modulo_cortadura(double modulo_elasticidad, double modulo_poisson);
/** Poisson's ratio, E x 0.5 / G - 1. A modulus E not above G, a G not above zero and a ratio not above zero
   are reported, and the formula holds all the same; what is not finite gives 0. */
double vornmat_modulo_poisson(double modulo_elasticidad, double modulo_cortadura);

VN_C_FIN

#endif
