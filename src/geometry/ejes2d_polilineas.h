/* Whole polylines from global to local and back. */
#ifndef VN_EJES2D_POLILINEAS_H
#define VN_EJES2D_POLILINEAS_H

#include "ejes2d_registro.h"

typedef struct arrPunto2D arrPunto2D;
typedef struct arrPunto3D arrPunto3D;

VN_C_INICIO

/** New array, the caller's, with the points of a polyline of the plane in global coordinates. */
arrPunto3D *ejes2d_polilinea2D_a_3D(VN_EJES, const arrPunto2D *polilinea);

/** New array with local x and y of the points: of points in the plane (each one off it by `precision` or more is
    reported), or of their feet. */
arrPunto2D *ejes2d_polilinea3D_a_2D(VN_EJES, const arrPunto3D *polilinea, double precision);
arrPunto2D *ejes2d_polilinea3D_proyectada_a_2D(VN_EJES, const arrPunto3D *polilinea);

/** Local to global, in place or as a new array. */
void ejes2d_transforma_polilinea3D(VN_EJES, arrPunto3D *polilinea);
arrPunto3D *ejes2d_polilinea3D_transformada(VN_EJES, const arrPunto3D *polilinea);

/** Global to local, in place or as a new array. */
void ejes2d_polilinea3D_transforma_a_locales(VN_EJES, arrPunto3D *polilinea);
arrPunto3D *ejes2d_polilinea3D_transformada_a_locales(VN_EJES, const arrPunto3D *polilinea);

/** New array with a contour of one plane in the coordinates of another, `destino`; its winding stays, so the points
    come in reverse order where the two normals do not look the same way (their product is 1e-8 or less). Whether any
    point is off the other plane by `precision` or more goes to `fuera_de_precision`. */
arrPunto2D *ejes2d_crea_puntos2d_cambiado_a_sistema_coordenadas_destino(const arrPunto2D *puntos, VN_EJES_DE(_origen),
                                                                        VN_EJES_DE(_destino), double precision,
                                                                        VN_SALIDA_OPC vnbool *fuera_de_precision);

VN_C_FIN

#endif
