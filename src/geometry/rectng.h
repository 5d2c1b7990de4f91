/* Rectangles with sides along the axes: the running extent of a drawing, a clip box, a strip of a plan.

   A rectangle is reset (no extent yet) or calculated. It is a heap record, the caller's, who destroys it. A broken
   condition is reported and the operation does its work all the same; on a null rectangle it gives the neutral
   result. */
#ifndef VN_RECTNG_H
#define VN_RECTNG_H

#include "rectng_recorte.h"
#include "rectng_registro.h"
#include "rectng_tiras.h"

#endif
