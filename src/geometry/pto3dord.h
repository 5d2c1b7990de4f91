/* An ordered set of points of space without repetition: the index of a point in it is its identity in a mesh. */
#ifndef VN_PTO3DORD_H
#define VN_PTO3DORD_H

#include "../foundation/listas/arr.h"

typedef struct pto3dord pto3dord;

VN_C_INICIO

/** New empty set. */
pto3dord *pto3dord_crea_vacio(void);
/** Frees the set and leaves `*puntos_ordenados` null. */
void pto3dord_destruye(pto3dord **puntos_ordenados);
/** Adds a point, in metres, its coordinates rounded to 1e-5, unless it is there. The order is by x, then y,
   then z; coordinates within 1e-6 are one. Not-a-number is one number, after all others. */
void pto3dord_append_punto_si_no_esta_repetido(pto3dord *puntos_ordenados, double x, double y, double z);
/** The place in the order of a point, rounded likewise: final once all points have been added. One that is
   not there is reported and gives 0. */
uint32_t pto3dord_ind_punto(const pto3dord *puntos_ordenados, double x, double y, double z);
/** New array of the points in their order, the caller's. */
arrPunto3D *pto3dord_puntos(const pto3dord *puntos_ordenados);

VN_C_FIN

#endif
