/* Annotations on parameters: the contract of an operation as a program can read it.

   An unannotated pointer must not be null, and null is reported; so is a truth value other than CIERTO or FALSO.
   A `T **` is the address of an owner's pointer. The annotations stand before the parameter's type; they are empty
   but for the sweep of arguments, which reads them with libclang (VN_LEE_ANOTACIONES) and holds the library to them. */
#ifndef VN_ANOTACIONES_H
#define VN_ANOTACIONES_H

#ifdef VN_LEE_ANOTACIONES
#define VN_ANOTA(texto) __attribute__((annotate(texto)))
#else
#define VN_ANOTA(texto)
#endif

/** The pointer may be null; on a `T **`, the pointer that it leads to may be null. */
#define VN_OPC VN_ANOTA("opcional")
/** The address of an owner's pointer where both the address and the pointer in it may be null. */
#define VN_OPC_OPC VN_ANOTA("opcional_doble")
/** The buffer has as many elements as the parameter `n` says (a parameter's name, or a whole number). */
#define VN_LON(n) VN_ANOTA("longitud:" #n)
/** The number must lie between `a` and `b`, both included; outside it is reported. */
#define VN_RANGO(a, b) VN_ANOTA("rango:" #a ":" #b)
/** An index below the number of elements of the container that is the parameter `c`; outside it is reported. */
#define VN_INDICE(c) VN_ANOTA("indice:" #c)
/** The pointer leads to room that the operation fills. */
#define VN_SALIDA VN_ANOTA("salida")
/** As VN_SALIDA, and may be null. */
#define VN_SALIDA_OPC VN_ANOTA("salida_opcional")
/** The text is a printf-like format for the arguments that follow. */
#define VN_FORMATO VN_ANOTA("formato")
/** A pointer of the caller's that is only handed on, null allowed. */
#define VN_DATO VN_ANOTA("dato")
/** The operation takes the pointer over, or destroys what it leads to. */
#define VN_CONSUME VN_ANOTA("consume")

#endif
