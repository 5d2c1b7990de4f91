/* Flat normals of the triangles of geometry buffers. */
#ifndef VN_GEOCOREUTIL_H
#define VN_GEOCOREUTIL_H

#include "gcarray.h"

VN_C_INICIO

/** New array of normals, three components for each vertex: the unit normal of the first triangle in order that has the
    vertex and has an area, by the right hand; (0, 0, 1) where there is none. `vertices` has three coordinates a vertex
    ("num_componentes_vertices % 3 == 0": what is left over counts for nothing); the triangles are those of `indices`,
    or of the vertices as they stand. An index that is not there is reported, and its triangle does not count.
    Separate triangles, three indices each ("num_indices % 3 == 0"). */
gcFloat32Array *geocoreutil_triangles_compute_flat_normals(const gcFloat64Array *vertices,
                                                           VN_OPC const gcUint32Array *indices);
/** The same of a strip: each index from the third on makes a triangle with the two before it, every second one turned
    over. */
gcFloat32Array *geocoreutil_triangle_strip_compute_flat_normals(const gcFloat64Array *vertices,
                                                                VN_OPC const gcUint32Array *indices);
/** The same of a fan: each index from the third on makes a triangle with the first and the one before it. */
gcFloat32Array *geocoreutil_triangle_fan_compute_flat_normals(const gcFloat64Array *vertices,
                                                              VN_OPC const gcUint32Array *indices);

VN_C_FIN

#endif
