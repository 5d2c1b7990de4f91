/* Meshes: indexed surfaces of space that remember which edges are borders of the face that was modelled.

   A mesh has a point and a unit normal for each vertex and, for each vertex, whether the edge that leaves it within its
   face is a border; it may have a tangent, a texture coordinate and an identifier for each vertex. Its faces are a list
   of primitives, each with its kind and its own list of indices of vertices. Coordinates are metres.

   A mesh owns its arrays. The arrays of a mesh must fit together: as many normals, borders and elements of each
   optional array as points (the identifiers may also be empty), as many lists of indices as kinds. One that does not is
   reported by whatever is asked of it, which then gives what its comment tells. A primitive whose indices go past the
   vertices, which a host may have made, is reported and passed over.

   A mesh belongs to one thread at a time, or to several that only ask. */
#ifndef VN_VORNMESH_H
#define VN_VORNMESH_H

#include "../foundation/listas/arr.h"

typedef struct mesh mesh;
typedef struct vornsave vornsave;

/** Kinds of primitives, with the numbers of OpenGL, and their indices: three for each triangle; at least three; at
    least three; four for each quad; at least four, an even number. */
typedef enum vplan_tipo_primitiva_t {
    VPLAN_TRIANGULOS = 4,
    VPLAN_TIRA_DE_TRIANGULOS = 5,
    VPLAN_ABANICO_DE_TRIANGULOS = 6,
    VPLAN_QUADS = 7,
    VPLAN_TIRA_DE_QUADS = 8
} vplan_tipo_primitiva_t;

/** Told of a triangle: the point, the normal and the border flag of each corner. */
typedef void (*vnfunc_triangulo_mesh)(void *contexto, double x1, double y1, double z1, double nx1, double ny1,
                                      double nz1, vnbool es_borde1, double x2, double y2, double z2, double nx2,
                                      double ny2, double nz2, vnbool es_borde2, double x3, double y3, double z3,
                                      double nx3, double ny3, double nz3, vnbool es_borde3);
/** Told of a face by the indices of its vertices, in the order of its ring. */
typedef void (*vnfunc_ind_vertices_triangulo)(void *contexto, uint32_t ind1, uint32_t ind2, uint32_t ind3);
typedef void (*vnfunc_ind_vertices_quad)(void *contexto, uint32_t ind1, uint32_t ind2, uint32_t ind3, uint32_t ind4);

VN_C_INICIO

/* ---------------------------------------------------------------- made and destroyed */

/** New mesh of the arrays that the pointers lead to, which it takes: the caller's pointers become null. Arrays that do
    not fit together are reported, and the mesh is made all the same. `inds_caras` has elements of arrULong. It has no
    identifiers. */
mesh *vornmesh_crea(arrPunto3D **puntos, arrPunto3D **normales, VN_OPC arrPunto3D **tangentes_opc,
                    VN_OPC arrPunto2D **coord_texturas_opc, arrBOOL **es_borde, arrULong **tipos_primitivas,
                    arrPuntero **inds_caras);
/** The same with copies: the arrays stay the caller's. */
mesh *vornmesh_crea_duplicando_arrays(const arrPunto3D *puntos, const arrPunto3D *normales,
                                      VN_OPC const arrPunto3D *tangentes_opc,
                                      VN_OPC const arrPunto2D *coord_texturas_opc, const arrBOOL *es_borde,
                                      const arrULong *tipos_primitivas, const arrPuntero *inds_caras);
/** New mesh without vertices: it has no tangents and no texture coordinates, and its identifiers are an empty array. */
mesh *vornmesh_crea_vacio_sin_coords_textura(void);
/** New mesh without vertices that has every optional array, empty. */
mesh *vornmesh_crea_vacio_para_vnsmsolid(void);
/** New mesh with the same content. */
mesh *vornmesh_copia(const mesh *m);
/** New mesh that takes new points, normals and tangents, as vornmesh_crea, and copies the rest of `m`. */
mesh *vornmesh_copia_para_transformacion_vornplan(const mesh *m, arrPunto3D **puntos, arrPunto3D **normales,
                                                  VN_OPC arrPunto3D **tangentes_opc);
/** Frees the mesh and leaves `*m` null. */
void vornmesh_destruye(mesh **m);

/* ---------------------------------------------------------------- asked and changed */

/** Number of vertices, after a look at the arrays of each one. */
uint32_t vornmesh_num_puntos(const mesh *m);
/** Gives the mesh texture coordinates, one for each vertex, in place of those that it had: takes `*coords_textura` and
    leaves it null. A mesh without tangents gets those of vornmesh_genera_vectores_tangentes. Another number of
    coordinates is reported and changes nothing. */
void vornmesh_set_coordenadas_textura(mesh *m, arrPunto2D **coords_textura);
/** Appends a triangle of three new vertices, each with its point, its normal and whether the edge that leaves it is a
    border. A mesh with tangents or texture coordinates is reported and stays as it was. Identifiers get zeros. */
void vornmesh_append_cara_triangular(mesh *m, double x1, double y1, double z1, double nx1, double ny1, double nz1,
                                     vnbool es_borde1, double x2, double y2, double z2, double nx2, double ny2,
                                     double nz2, vnbool es_borde2, double x3, double y3, double z3, double nx3,
                                     double ny3, double nz3, vnbool es_borde3);
/** Whether each optional array is there in both or in none. */
vnbool vornmesh_se_pueden_concatenar(const mesh *mesh1, const mesh *mesh2);
/** Appends the first mesh to the second. An optional array that only one of them has is reported, and nothing is
    appended. Where the identifiers of one are empty and those of the other are not, it is reported, and the vertices
    that have none get zeros. */
void vornmesh_concatena(const mesh *mesh_origen, mesh *mesh_destino);
/** Whether both have the same content in the same order: points and texture coordinates to the first tolerance, normals
    and tangents to the second one. The identifiers are not looked at. */
vnbool vornmesh_son_iguales(const mesh *mesh1, const mesh *mesh2, double tolerancia_puntos, double tolerancia_vectores);
/** Version of the stored form. */
uint8_t vornmesh_version_DB(void);

/** Writes the mesh. One whose arrays do not fit together is reported and marks the stream: its close answers FALSO. */
void vornmesh_graba(const mesh *m, vornsave *vornsave_datos);
/** Reads a mesh. A later version is reported and read as this one. Arrays that do not fit together are reported and
    give a mesh without vertices; a primitive with an index past the vertices is reported and comes back without
    indices. */
mesh *vornmesh_lee(vornsave *vornsave_datos);

/* ---------------------------------------------------------------- faces */

/** New array of the triangles of a primitive, three indices each: of kinds 4, 5, 7 and 8. Every second triangle of a
    strip is turned over, a quad a, b, c, d gives a, b, c and c, d, a. Another kind, the fan among them, and a number of
    indices that is not the kind's are reported and give null. */
arrULong *vornmesh_obten_indices_triangulos_segun_tipo_primitiva(uint32_t tipo_primitiva, const arrULong *indices);
/** Calls `funcion` with each triangle. A quad is two triangles, and its diagonal is never a border. Called through
    vornmesh_recorre_mesh, which checks the type of the context. */
void vornmesh_nousar_recorre_mesh(const mesh *m, VN_DATO void *contexto, vnfunc_triangulo_mesh funcion);
/** Calls one of the functions with the indices of each face. Called through vornmesh_recorre_mesh_con_indices. */
void vornmesh_nousar_recorre_mesh_con_indices(const mesh *m, VN_DATO void *contexto,
                                              vnfunc_ind_vertices_triangulo func_ind_vertices_triangulo,
                                              vnfunc_ind_vertices_quad func_ind_vertices_quad);
/** New array of the faces, each an arrPunto3D of three or four points; and, if asked for, a new one of their borders,
    each an arrPunto3D of two points. Triangles that have no area are left out: two corners within `precision_1` in
    every axis, or the third nearer than `precision_2` to the line of the others. A quad with one such half is the
    triangle of its other half; one that is not plane is two triangles. A mesh without flags has borders only. */
arrPuntero *vornmesh_obtener_caras_3d(const mesh *m, double precision_1, double precision_2,
                                      VN_SALIDA_OPC arrPuntero **segmentos);
/** New array of the borders of what looks up, as they are seen from above: two points for each segment. A triangle
    looks up when the mean of the normals of its corners does; a quad goes by its two halves. */
arrPunto2D *vornmesh_obtener_segmentos_dibujo_basico(const mesh *m);
/** Appends the corners of triangles and of the two triangles of quads, of the primitives of kinds 4 and 7 with one
    face: another number of indices than three is reported, for quads too, and only the first face is taken. Strips
    and fans are passed over. */
void vornmesh_append_coords_vertices_triangulos_para_captura(const mesh *m, arrPunto3D *puntos);

VN_C_FIN

/* Typed forms: `tipo` is that of the context, and call-backs for another type do not compile. */
#define vornmesh_recorre_mesh(m, tipo, contexto, funcion)                                                              \
    vornmesh_nousar_recorre_mesh(                                                                                      \
        m, VN_COMPRUEBA_TIPO(tipo *, contexto, void *),                                                                \
        VN_COMPRUEBA_TIPO(void (*)(tipo *, double, double, double, double, double, double, vnbool, double, double,     \
                                   double, double, double, double, vnbool, double, double, double, double, double,     \
                                   double, vnbool),                                                                    \
                          funcion, vnfunc_triangulo_mesh))
#define vornmesh_recorre_mesh_con_indices(m, tipo, contexto, triangulo, quad)                                          \
    vornmesh_nousar_recorre_mesh_con_indices(                                                                          \
        m, VN_COMPRUEBA_TIPO(tipo *, contexto, void *),                                                                \
        VN_COMPRUEBA_TIPO(void (*)(tipo *, uint32_t, uint32_t, uint32_t), triangulo, vnfunc_ind_vertices_triangulo),   \
        VN_COMPRUEBA_TIPO(void (*)(tipo *, uint32_t, uint32_t, uint32_t, uint32_t), quad, vnfunc_ind_vertices_quad))

#endif
