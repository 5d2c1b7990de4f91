/* The box of a text, by arithmetic alone. `justificacion`: which of its points the anchor is, 1 to 15 by threes
   (bottom, middle, top, low band, high band), each left, centre, right. The direction is a cosine and a sine. */
#ifndef VN_VORNPLAN_CAJA_TEXTO_H
#define VN_VORNPLAN_CAJA_TEXTO_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** The corners of the box of a text of this length and height, from the lower left one counter-clockwise. Another code
    is reported: all are the anchor. */
void vplan_obtener_4_esquinas_texto(double longitud, double x, double y, double alto,
                                    VN_RANGO(1, 15) uint8_t justificacion, double seno, double coseno,
                                    VN_SALIDA double *inf_izq_x, VN_SALIDA double *inf_izq_y,
                                    VN_SALIDA double *inf_der_x, VN_SALIDA double *inf_der_y,
                                    VN_SALIDA double *sup_der_x, VN_SALIDA double *sup_der_y,
                                    VN_SALIDA double *sup_izq_x, VN_SALIDA double *sup_izq_y);
/** The middle of the box of a text of a length from 0 and a height above 0, and from there half of it along the text
    and half of it across. */
void vplan_dame_centro_y_proyecciones(double x, double y, VN_RANGO(1, 15) uint8_t justificacion, double alto,
                                      double coseno, double seno, double longitud, VN_SALIDA double *xc,
                                      VN_SALIDA double *yc, VN_SALIDA double *largo_x, VN_SALIDA double *largo_y,
                                      VN_SALIDA double *alto_x, VN_SALIDA double *alto_y);

VN_C_FIN

#endif
