/* The cubic that joins two points with a given direction at each. */
#ifndef VN_VNSPLINE_H
#define VN_VNSPLINE_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The curve y = A x^3 + B x^2 + C x + D, in metres, with the origin at (x0, y0) and the x axis (Ux, Uy), a
   unit vector, towards (x1, y1), from x = 0 to the distance of the two. Its directions there are the angles
   given, in radians; the slopes against the chord are limited to -10 and 10. Two points that are one are
   reported, and everything is 0. */
void vnspline_trazado_tramo_curvo(double x0, double y0, double angulo0, double x1, double y1, double angulo1,
                                  VN_SALIDA double *A, VN_SALIDA double *B, VN_SALIDA double *C, VN_SALIDA double *D,
                                  VN_SALIDA double *Ux, VN_SALIDA double *Uy);

VN_C_FIN

#endif
