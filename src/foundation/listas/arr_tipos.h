/* Arrays: their handles, and what their searches and walks are given. */
#ifndef VN_ARR_TIPOS_H
#define VN_ARR_TIPOS_H

#include "../suelo/vornspy.h"

typedef struct arrBOOL arrBOOL;
typedef struct arrBYTE arrBYTE;
typedef struct arrUChar arrUChar;
typedef struct arrChar arrChar;
typedef struct arrShort arrShort;
typedef struct arrUShort arrUShort;
typedef struct arrLong arrLong;
typedef struct arrULong arrULong;
typedef struct arrLong64 arrLong64;
typedef struct arrULong64 arrULong64;
typedef struct arrDouble arrDouble;
typedef struct arrCADENA arrCADENA;
typedef struct arrCADENA_u arrCADENA_u;
typedef struct arrPunto2D arrPunto2D;
typedef struct arrPunto3D arrPunto3D;
typedef struct arrPunto2DXPriv arrPunto2DXPriv;
typedef struct arrPuntero arrPuntero;
typedef struct arrBIT arrBIT;
/** The leaner arrays of 32-bit and 64-bit unsigned values. */
typedef struct arulong arulong;
typedef struct arulong64 arulong64;

/** Point with a value of the caller's, which the array does not own. */
typedef struct Punto2DXPriv {
    double x, y;
    void *priv;
} Punto2DXPriv;

/** What a search answers when there is none. */
#define VN_ARR_NO_ESTA ((uint32_t)0xFFFFFFFF)

/** Sign of the order of two elements, or of a datum (first) and an element (second); 0 is a match. */
typedef int (*vnfunc_compara)(const void *a, const void *b);
/** What a walk calls with each element and the caller's data. */
typedef void (*vnfunc_recorre)(void *elemento, void *datos);
typedef void (*vnfunc_recorre_char)(char elemento, void *datos);
typedef void (*vnfunc_recorre_cadena)(const char *elemento, void *datos);
typedef void (*vnfunc_recorre_cadena_u)(const vnwchar *elemento, void *datos);

#endif
