/* Meshes: tangents. */
#ifndef VN_VORNMESH_TEXTURA_H
#define VN_VORNMESH_TEXTURA_H

#include "vornmesh.h"

VN_C_INICIO

/** New array with a tangent for each normal, horizontal: the U of
    ejes2d_ejes_horizontales_a_partir_de_normal_del_plano. Normals are unit vectors. */
arrPunto3D *vornmesh_genera_vectores_tangentes(const arrPunto3D *normales);

VN_C_FIN

#endif
