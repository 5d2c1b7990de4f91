// What the sources of meshes share.
#pragma once

#include "foundation/numeros/vector_int.h"
#include "mesh/vornmesh_int.h"

namespace vn {

// New mesh of its parts.
mesh_propia nueva_mesh(mesh &&partes);

// New array with the points.
puntos3D_propios array_de_puntos(std::span<const Punto3D> puntos);

// Whether three points have no area: two of them within t1 in every axis (the first and the second, or the second and
// the third), or the third nearer than t2 to the line of the others.
bool tres_puntos_degenerados(Punto3D p1, Punto3D p2, Punto3D p3, double t1, double t2);

} // namespace vn
