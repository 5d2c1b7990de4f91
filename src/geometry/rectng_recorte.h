/* The part of a segment inside a rectangle. */
#ifndef VN_RECTNG_RECORTE_H
#define VN_RECTNG_RECORTE_H

#include "rectng_registro.h"

VN_C_INICIO

/** The part of the segment (x1, y1)-(x2, y2) inside the box, by the algorithm of Liang and Barsky (ACM Transactions on
    Graphics 3, 1984), exact. A segment wholly inside comes back bit for bit. The outputs, each if asked for, are
    written only when something is inside; otherwise FALSO. */
vnbool rec_clip_linea_liang_barsky(double xmin, double ymin, double xmax, double ymax, double x1, double y1, double x2,
                                   double y2, VN_SALIDA_OPC double *ox1, VN_SALIDA_OPC double *oy1,
                                   VN_SALIDA_OPC double *ox2, VN_SALIDA_OPC double *oy2);
/** The same on the limits of a rectangle, reset or not. */
vnbool rec_ClipSegmento(const rectangulo_t *rec, double x1, double y1, double x2, double y2, VN_SALIDA_OPC double *ox1,
                        VN_SALIDA_OPC double *oy1, VN_SALIDA_OPC double *ox2, VN_SALIDA_OPC double *oy2);
/** The earlier clip, tolerant to 1e-6, whose answer differs: a segment that only runs along a side counts as inside.
    The outputs receive the ends as given first, whatever the result; an end outside then moves to the side that it
    crosses. FALSO if the rectangle is reset. */
vnbool rec_ClipSegmentoAntiguo(const rectangulo_t *rec, double x1, double y1, double x2, double y2,
                               VN_SALIDA_OPC double *ox1, VN_SALIDA_OPC double *oy1, VN_SALIDA_OPC double *ox2,
                               VN_SALIDA_OPC double *oy2);

VN_C_FIN

#endif
