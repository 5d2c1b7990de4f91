/* Tracked heap: everything that the library hands over lives here, so that owners and exit cleaners can ask whether a
   block is alive, and what is left at the end can be named. */
#ifndef VN_VORNSPY_H
#define VN_VORNSPY_H

#include "tipos.h"

/** A pack of values for a later call-back (vornspy_parametro). */
typedef struct vnparametros vnparametros;
/** Copier and destroyer of a pointer. A destroyer frees what `*p` leads to and leaves `*p` null. */
typedef void *(*vnfunc_copia)(const void *p);
typedef void (*vnfunc_destruye)(void *pp);
/** Told of each live block: where it is, its size in bytes, who asked for it. */
typedef void (*vnfunc_bloque)(const void *p, size_t tamanyo, const char *modulo, uint32_t linea, void *datos);
/** Asked before each allocation of `tamanyo` bytes; FALSO makes it fail. For tests of exhaustion. */
typedef vnbool (*vnfunc_permiso)(size_t tamanyo, void *datos);
/** Called when memory has run out; it must not return. */
typedef void (*vnfunc_memoria_agotada)(void *datos);

VN_C_INICIO

/** Installs what is called when memory has run out, for the blocks below and for the library's own scratch alike; null
    takes it away. Without it, or if it returns, the process ends with a report to the receiver, "memoria agotada". It
    is the one place where a host may choose: to save what it can and end by its own means. A host in C++ alone may
    throw from it, at its own risk: the library's frames release what they hold, but those of call-backs must be C++
    too. The library itself throws nothing and does not touch the host's operator new. */
void vornspy_instala_memoria_agotada(VN_OPC vnfunc_memoria_agotada funcion, VN_DATO void *datos);

/** New block of `tamanyo` bytes (0 gives a block too), aligned to 16. Never null and never smaller: a size that cannot
    be had, one beyond all memory included, ends as vornspy_instala_memoria_agotada says. */
void *vornspy_nousar_malloc(size_t tamanyo, VN_OPC const char *modulo, uint32_t linea);
/** New block of `num` elements of `tamanyo` bytes, all zero. As vornspy_nousar_malloc. */
void *vornspy_nousar_calloc(size_t num, size_t tamanyo, VN_OPC const char *modulo, uint32_t linea);
/** The block grown or shrunk to `tamanyo` bytes, its content kept; null gives a new one. As vornspy_nousar_malloc. */
void *vornspy_nousar_realloc(VN_OPC VN_CONSUME void *p, size_t tamanyo, VN_OPC const char *modulo, uint32_t linea);
/** New block, or null when there is no memory for it: for counts that come from outside. All zero if `a_cero`. */
void *vornspy_reserva_seguro(size_t num, size_t tamanyo, vnbool a_cero, VN_OPC const char *modulo, uint32_t linea);
/** Frees `*p` and leaves it null. `p` is the address of the owner's pointer (any pointer type), `tamanyo` the size of
    an element (1 for raw bytes). A block that is not alive is reported and not freed. */
void vornspy_nousar_free_pp(VN_SALIDA void *p, size_t tamanyo);
/** Moves: returns `*p` and leaves it null. `*p` must not be null. `p` is the address of a pointer of any type. */
void *vornspy_nousar_asigna_doble_puntero_no_null(VN_SALIDA void *p);
/** Moves: returns `*p` and leaves it null; null passes through. */
void *vornspy_nousar_asigna_doble_puntero(VN_SALIDA void *p);
/** `copiador(p)`, or null for a null `p`. The copy is the caller's. */
void *vornspy_nousar_copia_puntero_opcional(VN_DATO const void *p, vnfunc_copia copiador);
/** `destructor(p)` unless `*p` is null. `p` is the address of the owner's pointer. */
void vornspy_nousar_destruye_puntero_opcional(VN_SALIDA void *p, vnfunc_destruye destructor);
/** Whether `p` is a live block of this heap. Any pointer may be asked about: it is not followed. */
vnbool vornspy_es_memoria_reservada_valida(VN_DATO const void *p);

/** Packs `n` values for a call-back: after `n`, pairs of a size in bytes (int: 1, 2, 4 or 8) and the value. The pack
    belongs to the registry that receives it. At most 16 values: another number is reported and gives a pack of none. A
    size that is none of those is reported and ends the pack before it. */
vnparametros *vornspy_parametro(VN_RANGO(1, 16) int n, ...);
/** The pointer that is the value number `i` (from 0) of a pack; null if it is not there or is not 8 bytes wide. */
void *vornspy_parametro_puntero(const vnparametros *parametros, uint32_t i);
/** The integer that is the value number `i` of a pack, zero-extended; 0 if it is not there. */
uint64_t vornspy_parametro_entero(const vnparametros *parametros, uint32_t i);
/** Frees a pack that no registry took. */
void vornspy_destruye_parametros(vnparametros **parametros);

/** Calls `funcion` with each live block of the process, in no order. Other threads must not free meanwhile. */
void vornspy_recorre_bloques_vivos(vnfunc_bloque funcion, VN_DATO void *datos);
/** Number of live blocks, and their bytes if `bytes` is not null. What the library made at first use and keeps
    for the exit list is among them: a program looks for leaks with vornspy_informa_de_fugas_al_salir, a test
    after vnatexit_ejecuta. */
uint64_t vornspy_bloques_vivos(VN_SALIDA_OPC uint64_t *bytes);
/** Writes to the error stream one line per module and line that has live blocks, those that the library keeps until the
    exit included; returns how many blocks. */
uint64_t vornspy_informa_de_fugas(void);
/** With CIERTO, vornspy_informa_de_fugas runs at process exit, after the exit list. */
void vornspy_informa_de_fugas_al_salir(vnbool activo);
/** Installs the question asked before each allocation; null takes it away. */
void vornspy_instala_permiso(VN_OPC vnfunc_permiso permiso, VN_DATO void *datos);

VN_C_FIN

#define vornspy_malloc(tamanyo) vornspy_nousar_malloc(tamanyo, VN_AQUI)
#define vornspy_calloc(num, tamanyo) vornspy_nousar_calloc(num, tamanyo, VN_AQUI)
#define vornspy_realloc(p, tamanyo) vornspy_nousar_realloc(p, tamanyo, VN_AQUI)
#define vornspy_free_pp(pp, tamanyo) vornspy_nousar_free_pp(pp, tamanyo)
#define vornspy_asigna_doble_puntero_no_null(tipo, pp)                                                                 \
    ((tipo *)vornspy_nousar_asigna_doble_puntero_no_null(VN_COMPRUEBA_TIPO(tipo **, pp, void *)))
#define vornspy_asigna_doble_puntero(tipo, pp)                                                                         \
    ((tipo *)vornspy_nousar_asigna_doble_puntero(VN_COMPRUEBA_TIPO(tipo **, pp, void *)))

#endif
