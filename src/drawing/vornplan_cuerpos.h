/* Meshes and bodies of space of an output. Where no device draws one, a mesh of it; where none draws meshes, its
   lines. */
#ifndef VN_VORNPLAN_CUERPOS_H
#define VN_VORNPLAN_CUERPOS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** A mesh. `modo` is the device's. An output of limits gets its vertices as a polyline; where no device draws meshes,
    the edges that are seen from above are lines; where none draws those it is reported. Normals go as vectors, of unit
    length: under a scale that is not the same along all axes they are not normal to the face. */
void vplan_escr_mesh(salida_t *salida, const mesh *malla, uint32_t modo);
/** A tube along an axis. Nobody: a mesh of 32 sides, or else its axis. */
void vplan_escr_tubo3D(salida_t *salida, const arrPunto3D *puntos, double diametro);
/** A truncated cone between two circles, normal to an axis. Nobody: a mesh of 32 sides. */
void vplan_escr_prisma_conico(salida_t *salida, double xb, double yb, double zb, double diametro_base, double xt,
                              double yt, double zt, double diametro_tapa, double Ex, double Ey, double Ez);
/** A grid of the screen, by its step. Nobody: nothing. */
void vplan_escr_grid(salida_t *salida, double paso);
/** A surface by rows of points: pointers to arrPunto3D, none null, all of one length. Nobody: a mesh. */
void vplan_escr_grid3d(salida_t *salida, const arrPuntero *filas);
/** Clouds of points, which only go to a device in whose space they are. Reported under a transformation, and where
    nobody does. */
void vplan_escr_nubes_puntos_3Dcons(salida_t *salida, VN_DATO const void *nubes);
/** Another drawing, by reference. Nobody: nothing. */
void vplan_escr_xref(salida_t *salida, VN_DATO const void *referencia);
/** How many points a circle has in a database of objects; the number until now through `anterior`, 0 when nobody has
    one. What this layer turns into polygons keeps its own. */
void vornplan_set_num_puntos_circulo(salida_t *salida, uint32_t num_puntos, VN_SALIDA_OPC uint32_t *anterior);

VN_C_FIN

#endif
