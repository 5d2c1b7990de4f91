/* Fills of regions of the plane. A region: its outer contours and its inner ones, arrays of pointers to arrPunto2D,
   none of them null. */
#ifndef VN_VORNPLAN_RELLENOS_H
#define VN_VORNPLAN_RELLENOS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Fills; nothing while fills are locked, and where no device does. */
void vplan_escr_relleno_regiones(salida_t *salida, const arrPuntero *exteriores, const arrPuntero *interiores);
/** Draws the outlines. */
void vplan_escr_borde_regiones(salida_t *salida, const arrPuntero *exteriores, const arrPuntero *interiores);
/** Fills with a colour that goes from rgba1 to rgba2, by `tipo` (others are reported): 0, 1 across the region along
    `angulo` (radians); 2, 3 from the lower left corner of its box to the upper right; 4 along `angulo` through the
    middle of the box. */
void vplan_escr_relleno_regiones_con_gradiente(salida_t *salida, const arrPuntero *exteriores,
                                               const arrPuntero *interiores, double angulo,
                                               VN_RANGO(0, 4) uint32_t tipo, uint32_t rgba1, uint32_t rgba2);
/** The same from a point to another. */
void vplan_escr_relleno_regiones_con_gradiente_lineal(salida_t *salida, const arrPuntero *exteriores,
                                                      const arrPuntero *interiores, uint32_t rgba1, uint32_t rgba2,
                                                      double x1, double y1, double x2, double y2);
/** Families of parallel lines inside contours: of each its angle (radians), a point, the step from a line to the next,
    the lengths of its strokes and, below 0, of its gaps (pointers to arrDouble). Any of the four may be null. Reported
    where no device does. */
void vplan_escr_hatch(salida_t *salida, const arrPuntero *contornos, VN_OPC const arrDouble *angulos,
                      VN_OPC const arrPunto2D *origenes, VN_OPC const arrPunto2D *desplazamientos,
                      VN_OPC const arrPuntero *trazos);
/** Contours filled by the device that hatches. */
void vplan_escr_hatch_relleno(salida_t *salida, const arrPuntero *contornos);

VN_C_FIN

#endif
