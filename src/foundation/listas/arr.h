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

VN_C_INICIO

/** New array of `n` elements, all zero, each settable at once; `n` = 0 gives an empty one that grows by Append. A count
    out of range, or one that there is no memory for, is reported and gives null: the range bounds what a wrong count
    takes at once; what is added later may pass it, to 4294967295 elements. */
arrBOOL *arr_CreaBOOL(VN_RANGO(0, 268435456) uint32_t n);
arrBYTE *arr_CreaBYTE(VN_RANGO(0, 268435456) uint32_t n);
arrUChar *arr_CreaUChar(VN_RANGO(0, 268435456) uint32_t n);
arrChar *arr_CreaChar(VN_RANGO(0, 268435456) uint32_t n);
arrShort *arr_CreaShort(VN_RANGO(0, 268435456) uint32_t n);
arrUShort *arr_CreaUShort(VN_RANGO(0, 268435456) uint32_t n);
arrLong *arr_CreaLong(VN_RANGO(0, 268435456) uint32_t n);
arrULong *arr_CreaULong(VN_RANGO(0, 268435456) uint32_t n);
arrLong64 *arr_CreaLong64(VN_RANGO(0, 268435456) uint32_t n);
arrULong64 *arr_CreaULong64(VN_RANGO(0, 268435456) uint32_t n);
arrDouble *arr_CreaDouble(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the array and leaves `*a` null. */
void arr_DestruyeBOOL(arrBOOL **a);
void arr_DestruyeBYTE(arrBYTE **a);
void arr_DestruyeUChar(arrUChar **a);
void arr_DestruyeChar(arrChar **a);
void arr_DestruyeShort(arrShort **a);
void arr_DestruyeUShort(arrUShort **a);
void arr_DestruyeLong(arrLong **a);
void arr_DestruyeULong(arrULong **a);
void arr_DestruyeLong64(arrLong64 **a);
void arr_DestruyeULong64(arrULong64 **a);
void arr_DestruyeDouble(arrDouble **a);

/** New array with the same elements. */
arrBOOL *arr_CopiaBOOL(const arrBOOL *a);
arrBYTE *arr_CopiaBYTE(const arrBYTE *a);
arrUChar *arr_CopiaUChar(const arrUChar *a);
arrChar *arr_CopiaChar(const arrChar *a);
arrShort *arr_CopiaShort(const arrShort *a);
arrUShort *arr_CopiaUShort(const arrUShort *a);
arrLong *arr_CopiaLong(const arrLong *a);
arrULong *arr_CopiaULong(const arrULong *a);
arrLong64 *arr_CopiaLong64(const arrLong64 *a);
arrULong64 *arr_CopiaULong64(const arrULong64 *a);
arrDouble *arr_CopiaDouble(const arrDouble *a);

/** Number of elements. */
uint32_t arr_NumElemsBOOL(const arrBOOL *a);
uint32_t arr_NumElemsBYTE(const arrBYTE *a);
uint32_t arr_NumElemsUChar(const arrUChar *a);
uint32_t arr_NumElemsChar(const arrChar *a);
uint32_t arr_NumElemsShort(const arrShort *a);
uint32_t arr_NumElemsUShort(const arrUShort *a);
uint32_t arr_NumElemsLong(const arrLong *a);
uint32_t arr_NumElemsULong(const arrULong *a);
uint32_t arr_NumElemsLong64(const arrLong64 *a);
uint32_t arr_NumElemsULong64(const arrULong64 *a);
uint32_t arr_NumElemsDouble(const arrDouble *a);

/** Element `i`; 0 after a report. */
vnbool arr_GetBOOL(const arrBOOL *a, VN_INDICE(a) uint32_t i);
uint8_t arr_GetBYTE(const arrBYTE *a, VN_INDICE(a) uint32_t i);
uint8_t arr_GetUChar(const arrUChar *a, VN_INDICE(a) uint32_t i);
char arr_GetChar(const arrChar *a, VN_INDICE(a) uint32_t i);
int16_t arr_GetShort(const arrShort *a, VN_INDICE(a) uint32_t i);
uint16_t arr_GetUShort(const arrUShort *a, VN_INDICE(a) uint32_t i);
int32_t arr_GetLong(const arrLong *a, VN_INDICE(a) uint32_t i);
uint32_t arr_GetULong(const arrULong *a, VN_INDICE(a) uint32_t i);
int64_t arr_GetLong64(const arrLong64 *a, VN_INDICE(a) uint32_t i);
uint64_t arr_GetULong64(const arrULong64 *a, VN_INDICE(a) uint32_t i);
double arr_GetDouble(const arrDouble *a, VN_INDICE(a) uint32_t i);

/** Replaces element `i`. */
void arr_SetBOOL(arrBOOL *a, VN_INDICE(a) uint32_t i, vnbool v);
void arr_SetBYTE(arrBYTE *a, VN_INDICE(a) uint32_t i, uint8_t v);
void arr_SetUChar(arrUChar *a, VN_INDICE(a) uint32_t i, uint8_t v);
void arr_SetChar(arrChar *a, VN_INDICE(a) uint32_t i, char v);
void arr_SetShort(arrShort *a, VN_INDICE(a) uint32_t i, int16_t v);
void arr_SetUShort(arrUShort *a, VN_INDICE(a) uint32_t i, uint16_t v);
void arr_SetLong(arrLong *a, VN_INDICE(a) uint32_t i, int32_t v);
void arr_SetULong(arrULong *a, VN_INDICE(a) uint32_t i, uint32_t v);
void arr_SetLong64(arrLong64 *a, VN_INDICE(a) uint32_t i, int64_t v);
void arr_SetULong64(arrULong64 *a, VN_INDICE(a) uint32_t i, uint64_t v);
void arr_SetDouble(arrDouble *a, VN_INDICE(a) uint32_t i, double v);

/** Adds an element at the end, in amortised constant time. A full array (2^32 - 1 elements) is reported. */
void arr_AppendBOOL(arrBOOL *a, vnbool v);
void arr_AppendBYTE(arrBYTE *a, uint8_t v);
void arr_AppendUChar(arrUChar *a, uint8_t v);
void arr_AppendChar(arrChar *a, char v);
void arr_AppendShort(arrShort *a, int16_t v);
void arr_AppendUShort(arrUShort *a, uint16_t v);
void arr_AppendLong(arrLong *a, int32_t v);
void arr_AppendULong(arrULong *a, uint32_t v);
void arr_AppendLong64(arrLong64 *a, int64_t v);
void arr_AppendULong64(arrULong64 *a, uint64_t v);
void arr_AppendDouble(arrDouble *a, double v);

/** Gives every element the value `v`. */
void arr_InicializaBOOL(arrBOOL *a, vnbool v);
void arr_InicializaBYTE(arrBYTE *a, uint8_t v);
void arr_InicializaUChar(arrUChar *a, uint8_t v);
void arr_InicializaChar(arrChar *a, char v);
void arr_InicializaShort(arrShort *a, int16_t v);
void arr_InicializaUShort(arrUShort *a, uint16_t v);
void arr_InicializaLong(arrLong *a, int32_t v);
void arr_InicializaULong(arrULong *a, uint32_t v);
void arr_InicializaLong64(arrLong64 *a, int64_t v);
void arr_InicializaULong64(arrULong64 *a, uint64_t v);
void arr_InicializaDouble(arrDouble *a, double v);

/** Appends the elements of `b` to `a`; both may be the same array. */
void arr_ConcatenaBOOL(arrBOOL *a, const arrBOOL *b);
void arr_ConcatenaBYTE(arrBYTE *a, const arrBYTE *b);
void arr_ConcatenaUChar(arrUChar *a, const arrUChar *b);
void arr_ConcatenaChar(arrChar *a, const arrChar *b);
void arr_ConcatenaShort(arrShort *a, const arrShort *b);
void arr_ConcatenaUShort(arrUShort *a, const arrUShort *b);
void arr_ConcatenaLong(arrLong *a, const arrLong *b);
void arr_ConcatenaULong(arrULong *a, const arrULong *b);
void arr_ConcatenaLong64(arrLong64 *a, const arrLong64 *b);
void arr_ConcatenaULong64(arrULong64 *a, const arrULong64 *b);
void arr_ConcatenaDouble(arrDouble *a, const arrDouble *b);

/** Whether both have the same elements in the same order; doubles are the same when their bits are. */
vnbool arr_SonIgualesBOOL(const arrBOOL *a, const arrBOOL *b);
vnbool arr_SonIgualesBYTE(const arrBYTE *a, const arrBYTE *b);
vnbool arr_SonIgualesUChar(const arrUChar *a, const arrUChar *b);
vnbool arr_SonIgualesChar(const arrChar *a, const arrChar *b);
vnbool arr_SonIgualesShort(const arrShort *a, const arrShort *b);
vnbool arr_SonIgualesUShort(const arrUShort *a, const arrUShort *b);
vnbool arr_SonIgualesLong(const arrLong *a, const arrLong *b);
vnbool arr_SonIgualesULong(const arrULong *a, const arrULong *b);
vnbool arr_SonIgualesLong64(const arrLong64 *a, const arrLong64 *b);
vnbool arr_SonIgualesULong64(const arrULong64 *a, const arrULong64 *b);
vnbool arr_SonIgualesDouble(const arrDouble *a, const arrDouble *b);

/** The elements as one block, borrowed until the array grows or dies; null when there are none. */
vnbool *arr_GetBufferBOOL(arrBOOL *a);
uint8_t *arr_GetBufferBYTE(arrBYTE *a);
uint8_t *arr_GetBufferUChar(arrUChar *a);
char *arr_GetBufferChar(arrChar *a);
int16_t *arr_GetBufferShort(arrShort *a);
uint16_t *arr_GetBufferUShort(arrUShort *a);
int32_t *arr_GetBufferLong(arrLong *a);
uint32_t *arr_GetBufferULong(arrULong *a);
int64_t *arr_GetBufferLong64(arrLong64 *a);
uint64_t *arr_GetBufferULong64(arrULong64 *a);
double *arr_GetBufferDouble(arrDouble *a);

/** As arr_GetBuffer of the same element, to read only. */
const vnbool *arr_GetBufferConstBOOL(const arrBOOL *a);
const uint8_t *arr_GetBufferConstBYTE(const arrBYTE *a);
const uint8_t *arr_GetBufferConstUChar(const arrUChar *a);
const char *arr_GetBufferConstChar(const arrChar *a);
const int16_t *arr_GetBufferConstShort(const arrShort *a);
const uint16_t *arr_GetBufferConstUShort(const arrUShort *a);
const int32_t *arr_GetBufferConstLong(const arrLong *a);
const uint32_t *arr_GetBufferConstULong(const arrULong *a);
const int64_t *arr_GetBufferConstLong64(const arrLong64 *a);
const uint64_t *arr_GetBufferConstULong64(const arrULong64 *a);
const double *arr_GetBufferConstDouble(const arrDouble *a);
/** Whether an element is `v`; the index of the first goes to `pos`. */
vnbool arr_ExisteBOOL(const arrBOOL *a, vnbool v, VN_SALIDA_OPC uint32_t *pos);

/** Whether an element is `v`, looking from index `desde` on; the index of the first goes to `pos`. */
vnbool arr_ExisteULong(const arrULong *a, uint32_t v, uint32_t desde, VN_SALIDA_OPC uint32_t *pos);

/** Calls `funcion(element, datos)` with each element in order; it may change the array. */
void arr_nousar_RecorreChar(const arrChar *a, vnfunc_recorre_char funcion, VN_DATO void *datos,
                            VN_OPC const char *modulo, uint32_t linea);

/* ---------------------------------------------------------------- bits, packed eight to a byte, lowest first */

/** New array of `n` bits, all FALSO. As arr_CreaULong on a count that cannot be. */
arrBIT *arr_CreaBIT(VN_RANGO(0, 268435456) uint32_t n);
/** Frees the array and leaves `*a` null. */
void arr_DestruyeBIT(arrBIT **a);
/** New array with the same bits. */
arrBIT *arr_CopiaBIT(const arrBIT *a);
/** Number of bits. */
uint32_t arr_NumElemsBIT(const arrBIT *a);
/** Bit `i`; FALSO after a report. */
vnbool arr_GetBIT(const arrBIT *a, VN_INDICE(a) uint32_t i);
/** Replaces bit `i`. */
void arr_SetBIT(arrBIT *a, VN_INDICE(a) uint32_t i, vnbool v);
/** Adds a bit at the end. */
void arr_AppendBIT(arrBIT *a, vnbool v);
/** Grows the array to `n` bits, which is not less than it has; the new ones are FALSO. */
void arr_AumentaTamanyoBIT(arrBIT *a, uint32_t n);
/** The bytes that hold the bits, borrowed: bit `i` is bit `i` mod 8, the lowest first, of byte `i` / 8; the bits after
    the last are 0. Null when there are none. */
const uint8_t *arr_GetBufferConstBIT(const arrBIT *a);

/* ---------------------------------------------------------------- texts */

/** New array of `n` null elements, each settable at once. As arr_CreaULong on a count that cannot be. */
arrCADENA *arr_CreaCADENA(VN_RANGO(0, 268435456) uint32_t n);
arrCADENA_u *arr_CreaCADENA_u(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the texts and the array, and leaves `*a` null. */
void arr_DestruyeCADENA(arrCADENA **a);
void arr_DestruyeCADENA_u(arrCADENA_u **a);

/** New array with copies of the texts; null elements stay null. */
arrCADENA *arr_CopiaCADENA(const arrCADENA *a);
arrCADENA_u *arr_CopiaCADENA_u(const arrCADENA_u *a);

/** Number of elements. */
uint32_t arr_NumElemsCADENA(const arrCADENA *a);
uint32_t arr_NumElemsCADENA_u(const arrCADENA_u *a);

/** Element `i`, borrowed until it is replaced; null where none was set. */
const char *arr_GetCADENA(const arrCADENA *a, VN_INDICE(a) uint32_t i);
const vnwchar *arr_GetCADENA_u(const arrCADENA_u *a, VN_INDICE(a) uint32_t i);

/** New copy of element `i`, the caller's; null where none was set. */
char *arr_GetCopiaCADENA(const arrCADENA *a, VN_INDICE(a) uint32_t i);
vnwchar *arr_GetCopiaCADENA_u(const arrCADENA_u *a, VN_INDICE(a) uint32_t i);

/** Replaces element `i` by a copy of `s`. */
void arr_SetCADENA(arrCADENA *a, VN_INDICE(a) uint32_t i, VN_OPC const char *s);
void arr_SetCADENA_u(arrCADENA_u *a, VN_INDICE(a) uint32_t i, VN_OPC const vnwchar *s);

/** Replaces element `i` by the very text `*s`, which the array takes over; `*s` is left null. After a report it
    is freed. */
void arr_SetCADENAOriginal(arrCADENA *a, VN_INDICE(a) uint32_t i, VN_OPC VN_CONSUME char **s);
void arr_SetCADENAOriginal_u(arrCADENA_u *a, VN_INDICE(a) uint32_t i, VN_OPC VN_CONSUME vnwchar **s);

/** Adds a copy of `s` at the end. */
void arr_AppendCADENA(arrCADENA *a, VN_OPC const char *s);
void arr_AppendCADENA_u(arrCADENA_u *a, VN_OPC const vnwchar *s);

/** Adds at the end the very text `*s`, which the array takes over; `*s` is left null. After a report it is freed. */
void arr_AppendCADENAOriginal(arrCADENA *a, VN_OPC VN_CONSUME char **s);
void arr_AppendCADENAOriginal_u(arrCADENA_u *a, VN_OPC VN_CONSUME vnwchar **s);

/** Inserts a copy of `s` before element `i`; `i` may be the number of elements. */
void arr_InsertarCADENA(arrCADENA *a, uint32_t i, VN_OPC const char *s);
void arr_InsertarCADENA_u(arrCADENA_u *a, uint32_t i, VN_OPC const vnwchar *s);

/** Removes element `i` and frees its text. */
void arr_BorrarCADENA(arrCADENA *a, VN_INDICE(a) uint32_t i);
void arr_BorrarCADENA_u(arrCADENA_u *a, VN_INDICE(a) uint32_t i);

/** Leaves the first `n` elements and frees the others; `n` is at most the number of elements. */
void arr_ReduceTamanyoCADENA(arrCADENA *a, uint32_t n);
void arr_ReduceTamanyoCADENA_u(arrCADENA_u *a, uint32_t n);

/** Appends copies of the texts of `b` to `a`; both may be the same array. */
void arr_ConcatenaCADENA(arrCADENA *a, const arrCADENA *b);
void arr_ConcatenaCADENA_u(arrCADENA_u *a, const arrCADENA_u *b);

/** Whether both have the same texts in the same order; null is the same as null only. */
vnbool arr_SonIgualesCADENA(const arrCADENA *a, const arrCADENA *b);
vnbool arr_SonIgualesCADENA_u(const arrCADENA_u *a, const arrCADENA_u *b);

/** Index of the first element that is `s`, or VN_ARR_NO_ESTA. */
uint32_t arr_BuscarCADENA(const arrCADENA *a, const char *s);
uint32_t arr_BuscarCADENA_u(const arrCADENA_u *a, const vnwchar *s);

/** Whether an element is `s`; the index of the first goes to `pos`. */
vnbool arr_ExisteCADENA(const arrCADENA *a, const char *s, VN_SALIDA_OPC uint32_t *pos);
vnbool arr_ExisteCADENA_u(const arrCADENA_u *a, const vnwchar *s, VN_SALIDA_OPC uint32_t *pos);

/** As arr_ExisteCADENA, in any case. */
vnbool arr_ExisteMayMinCADENA(const arrCADENA *a, const char *s, VN_SALIDA_OPC uint32_t *pos);
vnbool arr_ExisteMayMinCADENA_u(const arrCADENA_u *a, const vnwchar *s, VN_SALIDA_OPC uint32_t *pos);

/** The texts as one block of pointers, borrowed until the array grows or dies; null when there are none. */
const char *const *arr_GetBufferConstCADENA(const arrCADENA *a);
const vnwchar *const *arr_GetBufferConstCADENA_u(const arrCADENA_u *a);

/** Calls `funcion(element, datos)` with each element in order; it may change the array. */
void nousar_RecorreCADENA(const arrCADENA *a, vnfunc_recorre_cadena funcion, VN_DATO void *datos,
                          VN_OPC const char *modulo, uint32_t linea);
void nousar_RecorreCADENA_u(const arrCADENA_u *a, vnfunc_recorre_cadena_u funcion, VN_DATO void *datos,
                            VN_OPC const char *modulo, uint32_t linea);

/* ---------------------------------------------------------------- points */

/** New array of `n` points, all zero. As arr_CreaULong on a count that cannot be. */
arrPunto2D *arr_CreaPunto2D(VN_RANGO(0, 268435456) uint32_t n);
arrPunto3D *arr_CreaPunto3D(VN_RANGO(0, 268435456) uint32_t n);
arrPunto2DXPriv *arr_CreaPunto2DXPriv(VN_RANGO(0, 268435456) uint32_t n);

/** Frees the array and leaves `*a` null. */
void arr_DestruyePunto2D(arrPunto2D **a);
void arr_DestruyePunto3D(arrPunto3D **a);

/** Frees the array and leaves `*a` null; a destroyer is called first with the address of each private value that is
    not null. */
void arr_DestruyePunto2DXPriv(arrPunto2DXPriv **a, VN_OPC vnfunc_destruye destructor);

/** New array with the same points. */
arrPunto2D *arr_CopiaPunto2D(const arrPunto2D *a);
arrPunto3D *arr_CopiaPunto3D(const arrPunto3D *a);

/** Number of points. */
uint32_t arr_NumElemsPunto2D(const arrPunto2D *a);
uint32_t arr_NumElemsPunto3D(const arrPunto3D *a);
uint32_t arr_NumElemsPunto2DXPriv(const arrPunto2DXPriv *a);

/** Gives the coordinates of point `i`; zeros after a report. */
void arr_GetPunto2D(const arrPunto2D *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x, VN_SALIDA double *y);
void arr_GetPunto3D(const arrPunto3D *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x, VN_SALIDA double *y,
                    VN_SALIDA double *z);

/** Gives the coordinates of point `i` and, if asked for, its private value; zeros and null after a report. */
void arr_GetPunto2DXPriv(const arrPunto2DXPriv *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x, VN_SALIDA double *y,
                         VN_SALIDA_OPC void **priv);

/** Replaces point `i`. */
void arr_SetPunto2D(arrPunto2D *a, VN_INDICE(a) uint32_t i, double x, double y);
void arr_SetPunto3D(arrPunto3D *a, VN_INDICE(a) uint32_t i, double x, double y, double z);
void arr_SetPunto2DXPriv(arrPunto2DXPriv *a, VN_INDICE(a) uint32_t i, double x, double y, VN_DATO void *priv);

/** Adds a point at the end. */
void arr_AppendPunto2D(arrPunto2D *a, double x, double y);
void arr_AppendPunto3D(arrPunto3D *a, double x, double y, double z);
void arr_AppendPunto2DXPriv(arrPunto2DXPriv *a, double x, double y, VN_DATO void *priv);

/** Removes point `i`. */
void arr_BorrarPunto2D(arrPunto2D *a, VN_INDICE(a) uint32_t i);
void arr_BorrarPunto3D(arrPunto3D *a, VN_INDICE(a) uint32_t i);

/** Appends the points of `b` to `a`; both may be the same array. */
void arr_ConcatenaPunto2D(arrPunto2D *a, const arrPunto2D *b);
void arr_ConcatenaPunto3D(arrPunto3D *a, const arrPunto3D *b);

/** Reverses the order of the points, in place. */
void arr_InvertirPunto3D(arrPunto3D *a);

/** Whether both have the same points in the same order, each coordinate within `tolerancia`. */
vnbool arr_SonIgualesPunto3DConTolerancia(const arrPunto3D *a, const arrPunto3D *b, double tolerancia);

/** Whether a point is (x, y), each coordinate within `tolerancia`; the index of the first goes to `pos`. */
vnbool arr_ExistePunto2D(const arrPunto2D *a, double x, double y, double tolerancia, VN_SALIDA_OPC uint32_t *pos);

/** Appends the points of a figure of the plane, its outline as a polygon. Angles in radians; `num_puntos` is
    how many a full turn has. A figure that is not finite appends nothing. A circle: from its point at angle 0,
    counter-clockwise; the first is not repeated at the end. */
void arr_AnyadirCirculoPunto2D(arrPunto2D *a, double xc, double yc, double radio,
                               VN_RANGO(3, 1000000) uint32_t num_puntos);
/** An arc from one angle to the other, both ends included: counter-clockwise, or clockwise when the last
    angle is below the first. More than a full turn is a full turn. As many steps as cover the arc, none longer
    than those of the full turn, all equal. */
void arr_AnyadirArcoPunto2D(arrPunto2D *a, double xc, double yc, double radio, double angulo_inicial,
                            double angulo_final, VN_RANGO(3, 1000000) uint32_t num_puntos);
/** The same of an ellipse whose semi-axis `semieje_x` stands at the angle `giro` and `semieje_y` a quarter
    turn further. The angles are the parameter of the ellipse, from that axis: (semieje_x cos, semieje_y sin)
    before the turn. */
void arr_AnyadirArcoElipsePunto2D(arrPunto2D *a, double xc, double yc, double semieje_x, double semieje_y,
                                  double angulo_inicial, double angulo_final, double giro,
                                  VN_RANGO(3, 1000000) uint32_t num_puntos);
/** The least rectangle that has all the points. One without points is reported and gives zeros; coordinates
    that are not-a-number do not count. */
void arr_GetMinimaxPunto2D(const arrPunto2D *a, VN_SALIDA double *xmin, VN_SALIDA double *ymin, VN_SALIDA double *xmax,
                           VN_SALIDA double *ymax);
/** The side of the closed outline that starts at point `i`; that of the last point goes back to the first. */
void arr_GetSegmentoPunto2D(const arrPunto2D *a, VN_INDICE(a) uint32_t i, VN_SALIDA double *x1, VN_SALIDA double *y1,
                            VN_SALIDA double *x2, VN_SALIDA double *y2);
/** Whether both have the same points in the same order, each coordinate within `tolerancia`. */
vnbool arr_ArraysDePunto2DIguales(const arrPunto2D *a, const arrPunto2D *b, double tolerancia);

/** The points as one block, borrowed until the array grows or dies; null when there are none. */
Punto2D *arr_GetBufferPunto2D(arrPunto2D *a);
const Punto2D *arr_GetBufferConstPunto2D(const arrPunto2D *a);
Punto3D *arr_GetBufferPunto3D(arrPunto3D *a);
const Punto3D *arr_GetBufferConstPunto3D(const arrPunto3D *a);
const Punto2DXPriv *arr_GetBufferConstPunto2DXPriv(const arrPunto2DXPriv *a);

/* ---------------------------------------------------------------- pointers; call them through the wrappers below */

/** New array of `n` null pointers. As arr_CreaULong on a count that cannot be. */
arrPuntero *arr_CreaPunteroConTipo(VN_RANGO(0, 268435456) uint32_t n);
/** Frees the array, not what its elements lead to, and leaves `*a` null. */
void arr_DestruyePunteroConTipo(arrPuntero **a);
/** Calls `destructor` with the address of each element that is not null, then frees the array and leaves `*a` null. */
void arr_DestruyeEstructurasConTipo(arrPuntero **a, vnfunc_destruye destructor);
/** As arr_DestruyeEstructurasConTipo, where the elements are constant. */
void arr_DestruyeEstructurasConstConTipo(arrPuntero **a, vnfunc_destruye destructor);
/** As arr_DestruyeEstructurasConTipo, where the elements are arrays and `destructor` is the arrays' own. */
void arr_DestruyeEstructurasArrayConTipo(arrPuntero **a, vnfunc_destruye destructor);
/** New array with `copiador(element)` for each element; null elements stay null. */
arrPuntero *arr_CopiaEstructurasConTipo(const arrPuntero *a, vnfunc_copia copiador);
/** Appends the elements of `b` to `a`: copies of them if there is a copier, the same pointers if not. */
void arr_ConcatenaEstructurasConTipo(arrPuntero *a, const arrPuntero *b, VN_OPC vnfunc_copia copiador,
                                     VN_OPC const char *modulo, uint32_t linea);
/** Number of elements. */
uint32_t arr_NumElemsPuntero(const arrPuntero *a);
/** Element `i`, borrowed; null after a report. */
void *arr_GetPunteroConTipo(const arrPuntero *a, VN_INDICE(a) uint32_t i);
/** Replaces element `i`; what it led to stays as it is. */
void arr_SetPunteroConTipo(arrPuntero *a, VN_INDICE(a) uint32_t i, VN_DATO void *p);
/** Adds an element at the end. */
void arr_AppendPunteroConTipo(arrPuntero *a, VN_DATO void *p);
/** Inserts an element before element `i`; `i` may be the number of elements. */
void arr_InsertarPunteroConTipo(arrPuntero *a, uint32_t i, VN_DATO void *p);
/** Removes element `i`; what it led to stays as it is. */
void arr_BorrarPuntero(arrPuntero *a, VN_INDICE(a) uint32_t i);
/** Calls `destructor` with the address of element `i`, unless it is null, and removes it. */
void arr_BorrarEstructuraConTipo(arrPuntero *a, VN_INDICE(a) uint32_t i, vnfunc_destruye destructor);
/** Index of the first element that is the pointer `p`, or VN_ARR_NO_ESTA. */
uint32_t arr_BuscarPunteroConTipo(const arrPuntero *a, VN_DATO const void *p);
/** Whether an element matches: `comparador(dato, element)` is 0. The index of the first goes to `pos`. */
vnbool arr_ExisteEstructuraConTipo(const arrPuntero *a, VN_DATO const void *dato, vnfunc_compara comparador,
                                   VN_SALIDA_OPC uint32_t *pos);
/** As arr_ExisteEstructuraConTipo; a second match is reported. */
vnbool arr_ExisteUnicaEstructuraConTipo(const arrPuntero *a, VN_DATO const void *dato, vnfunc_compara comparador,
                                        VN_SALIDA_OPC uint32_t *pos);
/** Index of the only element that matches, or VN_ARR_NO_ESTA; a second match is reported. */
uint32_t arr_BuscarUnicaEstructuraConTipo(const arrPuntero *a, VN_DATO const void *dato, vnfunc_compara comparador);
/** Binary search in an array sorted by `comparador`: whether an element matches `comparador(dato, element)`. The index
    of the first that does goes to `pos`, or the place where it would stand. */
vnbool arr_BuscarEstructuraDicotomicamenteConTipo(const arrPuntero *a, VN_DATO const void *dato,
                                                  vnfunc_compara comparador, VN_SALIDA_OPC uint32_t *pos);
/** Inserts `p` into an array sorted by `comparador(p, element)`, after its equals; returns its index. */
uint32_t arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(arrPuntero *a, VN_DATO void *p, vnfunc_compara comparador);
/** Sorts the elements by `comparador(element, element)`; equals keep their order. The comparer may sort
    arrays itself. */
void arr_QSortPunteroConTipo(arrPuntero *a, vnfunc_compara comparador);
/** Calls `funcion(element, datos)` with each element in order; it may change the array. */
void arr_RecorreEstructuraSimpleConTipo(const arrPuntero *a, vnfunc_recorre funcion, VN_DATO void *datos);
/** Whether both have as many elements and `comparador(element, element)` is 0 for each pair; without a comparer the
    pointers themselves must be the same. */
vnbool arr_SonIgualesPunteroConTipo(const arrPuntero *a, const arrPuntero *b, VN_OPC vnfunc_compara comparador);
/** The pointers as one block, borrowed until the array grows or dies; null when there are none. */
void **arr_GetBufferPuntero(arrPuntero *a);
void *const *arr_GetBufferConstPuntero(const arrPuntero *a);

/* ---------------------------------------------------------------- arulong */

/** New empty array. */
arulong *arulong_crea(void);
arulong64 *arulong64_crea(void);

/** Frees the array and leaves `*a` null. */
void arulong_destruye(arulong **a);
void arulong64_destruye(arulong64 **a);

/** Adds a value at the end, in amortised constant time. */
void arulong_append(arulong *a, uint32_t v);
void arulong64_append(arulong64 *a, uint64_t v);

/** Value `i`; 0 after a report. */
uint32_t arulong_get(const arulong *a, VN_INDICE(a) uint32_t i);
uint64_t arulong64_get(const arulong64 *a, VN_INDICE(a) uint32_t i);

/** Number of values. */
uint32_t arulong_numelems(const arulong *a);
uint32_t arulong64_numelems(const arulong64 *a);

/** The values as one block, borrowed until the array grows or dies; null when there are none. */
const uint32_t *arulong_get_buffer_const(const arulong *a);
const uint64_t *arulong64_get_buffer_const(const arulong64 *a);

VN_C_FIN

/* The wrappers of the pointer family: `tipo` is the type that the elements lead to, and a pointer or a call-back of
   another type does not compile. arr_AppendPunteroST(vigas, v, viga): `v` must be a `viga *`. */
#define arr_CreaPunteroST(n, tipo) ((void)sizeof(tipo *), arr_CreaPunteroConTipo(n))
#define arr_DestruyePunteroST(a, tipo) ((void)sizeof(tipo *), arr_DestruyePunteroConTipo(a))
#define arr_DestruyeEstructurasST(a, tipo, destructor)                                                                 \
    arr_DestruyeEstructurasConTipo(a, VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define arr_DestruyeEstructurasConstST(a, tipo, destructor)                                                            \
    arr_DestruyeEstructurasConstConTipo(a, VN_COMPRUEBA_TIPO(void (*)(const tipo **), destructor, vnfunc_destruye))
#define arr_DestruyeEstructurasArrayST(a, tipo, destructor)                                                            \
    arr_DestruyeEstructurasArrayConTipo(a, VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define arr_CopiaEstructurasST(a, tipo, copiador)                                                                      \
    arr_CopiaEstructurasConTipo(a, VN_COMPRUEBA_TIPO(tipo *(*)(const tipo *), copiador, vnfunc_copia))
#define arr_ConcatenaEstructurasST(a, b, tipo, copiador)                                                               \
    arr_ConcatenaEstructurasConTipo(a, b, VN_COMPRUEBA_TIPO(tipo *(*)(const tipo *), copiador, vnfunc_copia), VN_AQUI)
#define arr_NumElemsPunteroST(a, tipo) ((void)sizeof(tipo *), arr_NumElemsPuntero(a))
#define arr_GetPunteroST(a, i, tipo) ((tipo *)arr_GetPunteroConTipo(a, i))
#define arr_SetPunteroST(a, i, p, tipo) arr_SetPunteroConTipo(a, i, VN_COMPRUEBA_TIPO(tipo *, p, void *))
#define arr_AppendPunteroST(a, p, tipo) arr_AppendPunteroConTipo(a, VN_COMPRUEBA_TIPO(tipo *, p, void *))
#define arr_InsertarPunteroST(a, i, p, tipo) arr_InsertarPunteroConTipo(a, i, VN_COMPRUEBA_TIPO(tipo *, p, void *))
#define arr_BorrarEstructuraST(a, i, tipo, destructor)                                                                 \
    arr_BorrarEstructuraConTipo(a, i, VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye))
#define arr_BuscarPunteroST(a, p, tipo) arr_BuscarPunteroConTipo(a, VN_COMPRUEBA_TIPO(const tipo *, p, const void *))
#define arr_ExisteEstructuraST(a, dato, tipo_dato, tipo, comparador, pos)                                              \
    arr_ExisteEstructuraConTipo(a, VN_ARR_DATO(tipo_dato, dato), VN_ARR_COMPARA(tipo_dato, tipo, comparador), pos)
#define arr_ExisteUnicaEstructuraST(a, dato, tipo_dato, tipo, comparador, pos)                                         \
    arr_ExisteUnicaEstructuraConTipo(a, VN_ARR_DATO(tipo_dato, dato), VN_ARR_COMPARA(tipo_dato, tipo, comparador), pos)
#define arr_BuscarUnicaEstructuraST(a, dato, tipo_dato, tipo, comparador)                                              \
    arr_BuscarUnicaEstructuraConTipo(a, VN_ARR_DATO(tipo_dato, dato), VN_ARR_COMPARA(tipo_dato, tipo, comparador))
#define arr_BuscarEstructuraDicotomicamenteST(a, dato, tipo_dato, tipo, comparador, pos)                               \
    arr_BuscarEstructuraDicotomicamenteConTipo(a, VN_ARR_DATO(tipo_dato, dato),                                        \
                                               VN_ARR_COMPARA(tipo_dato, tipo, comparador), pos)
#define arr_InsertarPunteroOrdenadoDicotomicamenteST(a, p, tipo, comparador)                                           \
    arr_InsertarPunteroOrdenadoDicotomicamenteConTipo(a, VN_COMPRUEBA_TIPO(tipo *, p, void *),                         \
                                                      VN_ARR_COMPARA(tipo, tipo, comparador))
#define arr_QSortPunteroST(a, tipo, comparador) arr_QSortPunteroConTipo(a, VN_ARR_COMPARA(tipo, tipo, comparador))
#define arr_RecorreEstructuraSimpleST(a, tipo, tipo_datos, funcion, datos)                                             \
    arr_RecorreEstructuraSimpleConTipo(a, VN_COMPRUEBA_TIPO(void (*)(tipo *, tipo_datos *), funcion, vnfunc_recorre),  \
                                       VN_COMPRUEBA_TIPO(tipo_datos *, datos, void *))
#define arr_SonIgualesPunteroST(a, b, tipo, comparador)                                                                \
    arr_SonIgualesPunteroConTipo(a, b, VN_ARR_COMPARA(tipo, tipo, comparador))
#define VN_ARR_DATO(tipo_dato, dato) VN_COMPRUEBA_TIPO(const tipo_dato *, dato, const void *)
#define VN_ARR_COMPARA(tipo_dato, tipo, comparador)                                                                    \
    VN_COMPRUEBA_TIPO(int (*)(const tipo_dato *, const tipo *), comparador, vnfunc_compara)

/* The wrappers of the walks: arr_RecorreChar(a, funcion, datos). */
#define arr_RecorreChar(a, funcion, datos) arr_nousar_RecorreChar(a, funcion, datos, VN_AQUI)
#define RecorreCADENA(a, funcion, datos) nousar_RecorreCADENA(a, funcion, datos, VN_AQUI)
#define RecorreCADENA_u(a, funcion, datos) nousar_RecorreCADENA_u(a, funcion, datos, VN_AQUI)

#endif
