/* Images of an output. The image itself is the host's: the layer hands it on. `justificacion`: 1 to 9, which point of
   the box the one given is: lower left, lower middle, lower right, then the middle and the upper row. */
#ifndef VN_VORNPLAN_IMAGENES_H
#define VN_VORNPLAN_IMAGENES_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** An image of the plane, in its colours and in greys; and one in the hands of whoever keeps textures. Nobody:
    nothing. */
void vplan_escr_imagen(salida_t *salida, VN_DATO const void *imagen, double x, double y,
                       VN_RANGO(1, 9) uint8_t justificacion, double ancho, double alto);
void vplan_escr_imagen_gris(salida_t *salida, VN_DATO const void *imagen, double x, double y,
                            VN_RANGO(1, 9) uint8_t justificacion, double ancho, double alto);
void vplan_escr_imagen_con_gestor_textura(salida_t *salida, VN_DATO const void *textura, double x, double y,
                                          VN_RANGO(1, 9) uint8_t justificacion, double ancho, double alto);
/** One in the plane of an origin and two axes, at a point of that plane. Nobody: nothing. */
void vplan_escr_imagen3D(salida_t *salida, VN_DATO const void *imagen, double ox, double oy, double oz, double Ux,
                         double Uy, double Uz, double Vx, double Vy, double Vz, double x, double y,
                         VN_RANGO(1, 9) uint8_t justificacion, double ancho, double alto, vnbool gris);

VN_C_FIN

#endif
