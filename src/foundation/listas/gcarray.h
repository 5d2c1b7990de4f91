/* Arrays of the geometry of a scene: the coordinates, normals, colours, indices and marks of buffers that a drawing
   device takes whole. A point is three elements in a row.

   An array belongs to one thread at a time, or to several that only ask. */
#ifndef VN_GCARRAY_H
#define VN_GCARRAY_H

#include "../suelo/tipos.h"

typedef struct gcFloat32Array gcFloat32Array;
typedef struct gcFloat64Array gcFloat64Array;
typedef struct gcUint32Array gcUint32Array;
typedef struct gcUint8Array gcUint8Array;

VN_C_INICIO

/** New array of `n` elements, all zero; 0 gives an empty one, which grows by append. A count out of range, or one that
    there is no memory for, is reported and gives null. */
gcFloat32Array *gcFloat32Array_crea(VN_RANGO(0, 268435456) uint32_t n);
gcFloat64Array *gcFloat64Array_crea(VN_RANGO(0, 268435456) uint32_t n);
gcUint32Array *gcUint32Array_crea(VN_RANGO(0, 268435456) uint32_t n);
gcUint8Array *gcUint8Array_crea(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the array and leaves `*a` null. */
void gcFloat32Array_free(gcFloat32Array **a);
void gcFloat64Array_free(gcFloat64Array **a);
void gcUint32Array_free(gcUint32Array **a);
void gcUint8Array_free(gcUint8Array **a);

/** Adds an element at the end. */
void gcFloat32Array_append(gcFloat32Array *a, float v);
void gcFloat64Array_append(gcFloat64Array *a, double v);
void gcUint32Array_append(gcUint32Array *a, uint32_t v);
void gcUint8Array_append(gcUint8Array *a, uint8_t v);

/** Number of elements. */
uint32_t gcFloat32Array_count(const gcFloat32Array *a);
uint32_t gcFloat64Array_count(const gcFloat64Array *a);
uint32_t gcUint32Array_count(const gcUint32Array *a);
uint32_t gcUint8Array_count(const gcUint8Array *a);

/** Element `i`; 0 after a report. */
uint32_t gcUint32Array_get(const gcUint32Array *a, VN_INDICE(a) uint32_t i);
uint8_t gcUint8Array_get(const gcUint8Array *a, VN_INDICE(a) uint32_t i);

/** The elements as one block, borrowed until the array grows or dies, which whoever made the array may fill; null when
    there are none. */
float *gcFloat32Array_get_buffer(const gcFloat32Array *a);
double *gcFloat64Array_get_buffer(const gcFloat64Array *a);
uint32_t *gcUint32Array_get_elements_buffer(const gcUint32Array *a);

VN_C_FIN

#endif
