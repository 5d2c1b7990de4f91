/* Prices in two currencies. */
#ifndef VN_MONEDAS_H
#define VN_MONEDAS_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** New text, freed with widestr_destruye, of a price in euros, at 166.386 pesetas each, and in pesetas:
    "1.000,00(euros) 166.386(Ptas)". The separators are those of unidades.h in every language; the names are the active
    one's. Amounts are written as by num_double_a_string_u: less than a peseta, and what has over 15 digits, in the
    scientific form. */
vnwchar *monedas_precio_Ptas_euros(double pesetas);

VN_C_FIN

#endif
