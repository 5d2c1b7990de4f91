/* Points of the plane on the tracked heap. */
#ifndef VN_FOUNDATION_PUNTO_H
#define VN_FOUNDATION_PUNTO_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** New point, the caller's, who frees it with vornspy_free_pp. */
Punto2D *creapunto(double x, double y);
/** New point with the same coordinates. */
Punto2D *p_copia(const Punto2D *p);

VN_C_FIN

#endif
