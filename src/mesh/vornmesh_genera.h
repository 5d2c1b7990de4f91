/* Meshes made out of geometry: plane contours with holes, prisms, tubes, spheres, grids, boxes.

   Each operation gives a new mesh, the caller's, and null where a number of its arguments cannot be, which is
   reported. A list of contours, faces, sections or rows is a pointer array of arrPunto3D; one that is null in it is
   reported and left out. A contour may repeat its first point at its end. Contours are filled by the odd rule: an
   outline and its holes, in any order. Caps are asked for by truth values. Nothing is smoothed: normals are those of
   the faces, or of the round figure, and point outwards where the lower contour runs counter-clockwise seen from the
   upper one.

   Generators that share vertices (contours but those that say otherwise, extrusion, polylines, sets of faces) merge
   those whose position, normal, border flag and texture coordinate agree, each number rounded to 1e-05, and give them
   rounded so and sorted by position: such a mesh and one of the others (tubes, cones, spheres, grids, paths, boxes)
   may differ by 5e-06 where they touch. The normals of a compacting generator are made unit again.

   Contours are triangulated by the system's GLU; what it finds wrong is reported with its own text, and what it gave
   is kept. A coordinate that is not finite is reported, and its contours are empty. */
#ifndef VN_VORNMESH_GENERA_H
#define VN_VORNMESH_GENERA_H

#include "vornmesh.h"

VN_C_INICIO

/* ---------------------------------------------------------------- contours */

/** Plane face of an outline and holes. Its normal is that of the plane of the first contour, (0, 0, 1) if that is not
    plane: see ejes2d_punto3D_forman_ejes. */
mesh *vornmesh_genera_contorno(const arrPuntero *contornos);
/** The same with a normal for each point, an arrPunto3D a contour, and a texture coordinate, an arrPunto2D. A mesh with
    texture coordinates, 0, 0 where there are none, and without tangents. */
mesh *vornmesh_genera_contorno_ex(const arrPuntero *contornos, VN_OPC const arrPuntero *normales_vertices_contornos_opc,
                                  VN_OPC const arrPuntero *coord_texturas_opc);
/** Face with the normal that is given. */
mesh *vornmesh_genera_contorno_con_normal(const arrPuntero *contornos, double Nx, double Ny, double Nz);
/** The same with texture coordinates, an arrPunto2D a contour, and without tangents. */
mesh *vornmesh_genera_contorno_con_coords_textura(const arrPuntero *contornos, const arrPuntero *coord_texturas,
                                                  double Nx, double Ny, double Nz);
/** The same without looking for equal vertices: three for each triangle, exactly where they were. */
mesh *vornmesh_genera_contorno_con_normal_sin_compactar_vertices(const arrPuntero *contornos, double Nx, double Ny,
                                                                 double Nz);
/** Face with the normal that is given and the triangles the other way around. */
mesh *vornmesh_genera_contorno_invertido_con_normal(const arrPuntero *contornos, double Nx, double Ny, double Nz);
/** Triangles of three points each, with their flat normals, all edges borders, no vertex shared. Points that are left
    over are reported. */
mesh *vornmesh_genera_a_partir_de_vertices_triangulos(const arrPunto3D *puntos);

/* ---------------------------------------------------------------- prisms of contours */

/** Solid between contours below and as many above with as many points each: both are filled, if asked for, with the
    normals given, and each edge gives a side, unless it has no area. A polygon that does not fit its pair is reported
    and has no sides. The vertices of both fillings are there in any case. */
mesh *vornmesh_genera_prisma_por_extrusion(const arrPuntero *puntos_contorno_inferior, double Nx_inferior,
                                           double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                           const arrPuntero *puntos_contorno_superior, double Nx_superior,
                                           double Ny_superior, double Nz_superior, vnbool tapa_superior);
/** The same solid with triangles alone and without looking for equal vertices. */
mesh *vornmesh_genera_prisma_por_extrusion2(const arrPuntero *puntos_contorno_inferior, double Nx_inferior,
                                            double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                            const arrPuntero *puntos_contorno_superior, double Nx_superior,
                                            double Ny_superior, double Nz_superior, vnbool tapa_superior);
/** The same of one polyline below and one above, with the sides given: arrPunto3D of three points. */
mesh *vornmesh_genera_mesh_entre_polilineas(const arrPunto3D *polilinea_inferior, double Nx_inferior,
                                            double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                            const arrPunto3D *polilinea_superior, double Nx_superior,
                                            double Ny_superior, double Nz_superior, vnbool tapa_superior,
                                            const arrPuntero *caras_laterales);
/** The same with the sides between two polylines of as many points as each other. */
mesh *vornmesh_genera_mesh_entre_polilineas_compatibles(const arrPunto3D *polilinea_inferior, double Nx_inferior,
                                                        double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                                        const arrPunto3D *polilinea_inferior_remuestrada,
                                                        const arrPunto3D *polilinea_superior, double Nx_superior,
                                                        double Ny_superior, double Nz_superior, vnbool tapa_superior,
                                                        const arrPunto3D *polilinea_superior_remuestrada);
/** Faces of any number of points, each with the normal of its plane. They are cleaned in place: a point nearer than
    1e-05 to the next one goes, and a face of fewer than three is left out. A face of more than four is triangulated. */
mesh *vornmesh_genera_prisma_por_conjunto_caras(arrPuntero *caras);

/* ---------------------------------------------------------------- round and swept figures */

/** Tube about a polyline, of circles of `num` points cut where two segments meet by the plane between them. `tapas`
    closes both ends, each with a circle square to its segment. Points of the axis that repeat the one before are
    reported and left out, and where the axis turns back the ring goes on as it was, reported. */
mesh *vornmesh_genera_prisma_tubos(const arrPunto3D *puntos, double radio, VN_RANGO(3, 65536) uint32_t num,
                                   vnbool tapas);
/** Cone, or part of one, between two circles of `num` points square to the direction given, which need not be that of
    their centres. A direction of no length is reported. Only the circles are borders. */
mesh *vornmesh_genera_prisma_conico(double x_inferior, double y_inferior, double z_inferior, double radio_inferior,
                                    double x_superior, double y_superior, double z_superior, double radio_superior,
                                    double dx, double dy, double dz, VN_RANGO(3, 65536) uint32_t num, vnbool tapas);
/** Sphere of num_meridianos half circles of num_paralelos points each, the poles among them. */
mesh *vornmesh_genera_prisma_esfera(double xc, double yc, double zc, double radio,
                                    VN_RANGO(3, 8192) uint32_t num_paralelos,
                                    VN_RANGO(4, 8192) uint32_t num_meridianos);
/** Sides between polylines of as many points each, one after another, and between the last and the first if `cerrado`;
    `tapas` fills the first, the other way around, and the last. */
mesh *vornmesh_genera_prisma_con_camino(const arrPuntero *secciones, vnbool cerrado, vnbool tapas);
/** Grid of rows of as many points each, with the mean normal of the triangles about each point: rows that go on towards
    +y and columns towards +x look up. Vertex r x columns + c is column c of row r. */
mesh *vornmesh_genera_grid3d(const arrPuntero *filas);
/** The same with the last column joined to the first, and caps of the first row, the other way around, and the last. */
mesh *vornmesh_genera_grid3d_cerrado(const arrPuntero *filas, vnbool tapa_inicial, vnbool tapa_final);
/** Box from the origin to (ancho, alto, profundidad), all above 0: 36 vertices, 12 triangles. */
mesh *vornmesh_genera_cubo(double ancho, double alto, double profundidad);

VN_C_FIN

#endif
