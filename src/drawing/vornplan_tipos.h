/* What the operations over a drawing output share: its type, the constants, a device's functions.

   An output (`salida`) is opened by whoever draws, over a device: functions that receive what is drawn, and their
   datum, the item. Outputs chain: what an output's device does not do goes on to its destination. Coordinates are the
   host's, in metres; a device receives them in its own space. An output belongs to one thread at a time. */
#ifndef VN_VORNPLAN_TIPOS_H
#define VN_VORNPLAN_TIPOS_H

#include "../colour/idcolor_tipos.h"
#include "../foundation/listas/arr_tipos.h"
#include "../foundation/numeros/vmatr.h"
#include "../foundation/suelo/callback.h"
#include "vornplan_grupos.h"

VN_C_INICIO

typedef struct salida_t salida_t;
typedef struct escal escal;
typedef struct mesh mesh;
typedef struct gcFloat32Array gcFloat32Array;
typedef struct gcFloat64Array gcFloat64Array;
typedef struct gcUint32Array gcUint32Array;
typedef struct gcUint8Array gcUint8Array;

/* A type for each slot of the device table: vplan_func_DrawLinea and so on. Nothing is thrown through them. */
#define X(slot, resultado, sitio, argumentos, grupo) typedef resultado(*vplan_##slot) argumentos;
#include "vornplan_tabla.inl"
#undef X

/** A whole device: its functions, null what it does not do. Of the forms of one figure in the plane and in space it may
    have one, not both. */
typedef struct vplan_funciones {
#define X(slot, resultado, sitio, argumentos, grupo) vplan_##slot slot;
#include "vornplan_tabla.inl"
#undef X
} vplan_funciones;

VN_C_FIN

#endif
