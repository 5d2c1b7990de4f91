/* Arrays: an opaque handle per element type, that owns its elements and grows at its end.

   Indexes and counts are of 32 bits. An index that is not below the number of elements is reported, gives the neutral
   value and changes nothing. An array belongs to one thread at a time. The families, by suffix:

   suffix            element                                  handle
   BOOL              truth value                              arrBOOL
   BYTE UChar Char   8 bits                                   arrBYTE arrUChar arrChar
   Short UShort      16 bits                                  arrShort arrUShort
   Long ULong        32 bits                                  arrLong arrULong
   Long64 ULong64    64 bits                                  arrLong64 arrULong64
   Double            double                                   arrDouble
   CADENA CADENA_u   owned text, ANSI or wide; null allowed   arrCADENA arrCADENA_u
   Punto2D Punto3D   point                                    arrPunto2D arrPunto3D
   Punto2DXPriv      point with a pointer of the caller's     arrPunto2DXPriv
   Puntero           pointer; ConTipo operations, ST wrappers arrPuntero
   BIT               one bit                                  arrBIT */
#ifndef VN_ARR_H
#define VN_ARR_H

#include "arr_anade.h"
#include "arr_bit.h"
#include "arr_bloque.h"
#include "arr_cadena.h"
#include "arr_crea.h"
#include "arr_puntero.h"
#include "arr_punto.h"
#include "arr_tipos.h"
#include "arr_valor.h"
#include "arulong.h"

#endif
