/* A convex polygon of whole coordinates that grows point by point: the hull of all the points given to it. */
#ifndef VN_POLIGONO_H
#define VN_POLIGONO_H

#include "../foundation/suelo/tipos.h"

/** A vertex. */
typedef struct poligono_vertice_t {
    int32_t x, y;
} poligono_vertice_t;

/** The polygon, in the caller's storage; read its fields, change it only through the operations. */
typedef struct poligono_t {
    int32_t numVertices;
    /** A block of numVertices vertices, counter-clockwise; null when there are none. */
    poligono_vertice_t *vertice;
    /** The bounds of all points given. Empty: 2147483647 and -2147483648. */
    int32_t xmin, xmax, ymin, ymax;
} poligono_t;

VN_C_INICIO

/** Makes the polygon empty. It must not own vertices: what it held is not looked at. */
void poligono_crea_pol(VN_SALIDA poligono_t *pol);
/** Frees the vertices and makes the polygon empty again. */
void poligono_destruye_pol(poligono_t *pol);
/** Takes a point in. The hull is exact but for corners that are almost flat: from the fourth on, a vertex
   that is not at a corner of the bounds goes when its inner angle, to four decimals of a radian, is a half
   turn. */
void poligono_anade_punto_a_poligono_convexo(poligono_t *pol, int32_t x, int32_t y);
/** Widens the bounds to a point; the vertices stay. */
void poligono_maximiza_pol(int32_t x, int32_t y, poligono_t *pol);

VN_C_FIN

#endif
