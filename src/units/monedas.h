/* Prices in two currencies. */
#ifndef VN_MONEDAS_H
#define VN_MONEDAS_H

#include "foundation/tipos.h"

VN_C_INICIO

/** New text of a price in euros, at 166.386 pesetas each, and in pesetas: "1.000,00(euros) 166.386(Ptas)". The separators
    are those of unidades.h in every language; the names are the active one's. */
vnwchar *monedas_precio_Ptas_euros(double pesetas);

VN_C_FIN

#endif
