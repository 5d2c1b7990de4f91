/* Magnitudes: one value from one unit to another, by the family's own engineering constants (a tonne-force is 9.81 kN,
   a pound 1/2.20462262 kg, a lb/ft² 0.0479 kN/m², a millimetre of water 9.81 Pa); comparisons of real numbers with one
   changeable tolerance; angles; lengths rounded in the system of units in force.

   `A_a_B` takes a value in A and gives it in B. Tn and Tm are the tonne-force; lb and lib the pound; kip and kips the
   thousand pounds; `X_div_Y` is X per Y; daN, kN and MN are 10, 1,000 and 1,000,000 newtons; `mca` and `mmca` metres
   and millimetres of water column. Nothing is checked: infinities and not-a-number pass through. */
#ifndef VN_MAGNITUD_H
#define VN_MAGNITUD_H

#include "magnitud_caudal.h"
#include "magnitud_compara.h"
#include "magnitud_energia.h"
#include "magnitud_fuerza.h"
#include "magnitud_longitud.h"
#include "magnitud_presion.h"
#include "magnitud_texto.h"

#endif
