/* Points and segments of the plane: the tolerant geometry that everything else asks.

   A point is given by its address, and one that an operation makes is new, from creapunto, the caller's to free with
   vornspy_free_pp. "No such point" is null, "no" is FALSO; neither is reported. What is reported is a null address or a
   truth value that is none: a point's operation then gives null, a question FALSO, a number 0, and changes nothing.
   A coordinate that is not a number lies nowhere: questions about it are FALSO, and there is no point to give.

   Two points are the same within p_EPS in each axis; the other tolerances are fixed and stand, each with its use, at
   the top of the sources. Angles are radians, counter-clockwise from the x axis. A position parameter of the segment
   s1-s2 is 0 at s1 and 1 at s2. */
#ifndef VN_PUNTO_H
#define VN_PUNTO_H

#include "punto_segmentos.h"
#include "punto_vectores.h"

#endif
