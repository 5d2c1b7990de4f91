/* The types that every operation shares: truth values, wide characters, points. */
#ifndef VN_TIPOS_H
#define VN_TIPOS_H

#include "../platform/plataforma.h"
#include "anotaciones.h"

/** Truth value: CIERTO or FALSO, nothing else. */
typedef uint16_t vnbool;
#define CIERTO ((vnbool)1)
#define FALSO ((vnbool)0)

/** Point of the plane, metres unless an operation says otherwise. */
typedef struct Punto2D {
    double x, y;
} Punto2D;

/** Point of space, metres unless an operation says otherwise. */
typedef struct Punto3D {
    double x, y, z;
} Punto3D;

/* The text that a call passes as its `modulo` argument: who calls. A source of the library names itself before its
   first include, as in "vornsave (NUCLEOS.DLL)"; a host may do the same, or is named by its source file. */
#ifndef VN_MODULO
#define VN_MODULO __FILE__
#endif
/* The two further arguments that the wrappers of `nousar` operations add. */
#define VN_AQUI VN_MODULO, (uint32_t)__LINE__

/* Compile-time check of a call-back's or a pointer's type, then the value itself, cast to the general type.
   VN_COMPRUEBA_TIPO(void (*)(const viga *), funcion, vnfunc): a `funcion` of another type does not compile. */
#define VN_COMPRUEBA_TIPO(tipo, valor, general) ((general)(1 ? (valor) : (tipo)0))

#endif
