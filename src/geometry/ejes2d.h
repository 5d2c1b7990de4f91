/* Axes of a plane in space, and planes: an origin and two orthonormal vectors in which 2D work is done.

   A frame is nine values in this order: origin (Xo, Yo, Zo), unit vector of local x (Ux, Uy, Uz), unit vector of local
   y (Vx, Vy, Vz). The unit normal W = U x V is not kept. "Global" coordinates are those in which the frame itself is
   given, "local" ones (x, y, z) stand for origin + x U + y V + z W. Lengths are metres, angles degrees unless a name
   says radians. Values that an operation gives through several pointers are all written, or none where it says so.

   What is broken is reported and the work goes on where it can: a frame that is not orthonormal gives what its formula
   gives, and a null output that is required leaves the others as they were. Not-a-number is never within a
   tolerance. */
#ifndef VN_EJES2D_H
#define VN_EJES2D_H

#include "ejes2d_construye.h"
#include "ejes2d_coordenadas.h"
#include "ejes2d_polilineas.h"
#include "ejes2d_puntos.h"
#include "ejes2d_registro.h"

#endif
