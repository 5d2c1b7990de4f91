/* Streams: position, size, what reaches the system and the disk, zones that are locked. */
#ifndef VN_LC_FICHERO_POSICION_H
#define VN_LC_FICHERO_POSICION_H

#include "../suelo/tipos.h"

typedef struct vnfichero vnfichero;

VN_C_INICIO

/** The position. One beyond 2147483647 is reported as "posicion <= LONG_MAX" and gives -1. */
int32_t lc_ftell(const vnfichero *f);
int64_t vornio_ftell_i64(const vnfichero *f);
int64_t vio_telli64(const vnfichero *f);
/** Moves to a position, counted from an origin: 0 the start, 1 the position, 2 the end. Beyond the end is allowed.
    FALSO, without a report or a move, for one before the start or a file that cannot be moved in. */
vnbool lc_fseek(vnfichero *f, int32_t posicion, VN_RANGO(0, 2) int origen);
vnbool vornio_fseek_i64(vnfichero *f, int64_t posicion, VN_RANGO(0, 2) int origen);

/** Size in bytes, what is still in the buffer included; 0 if it cannot be known. */
double lc_tamanyo_fichero(vnfichero *f);
int64_t lc_tamanyo_fichero_i64(vnfichero *f);
/** The same in 32 bits. A larger one is reported as "longitud <= ULONG_MAX" and gives 4294967295. */
uint32_t vdir_longitud_fichero_puntero(vnfichero *f);
/** Bytes from the position to the end; 0 beyond it, and what the buffer holds if the size cannot be known. */
int64_t lc_bytes_restantes(vnfichero *f);
/** Whether `numero` elements of `tamanyo` bytes can still be read: how a count from the file is judged before
    anything is allocated for it. Cheap when the answer is yes. */
vnbool lc_quedan(vnfichero *f, uint64_t numero, uint64_t tamanyo);

/** Hands everything that was written to the system; FALSO after a failure to write, reported if it is the first. */
vnbool lc_fflush(vnfichero *f);
/** As lc_fflush, and to the disk itself. After a failure the file is not to be trusted nor this tried again. */
vnbool lc_vuelca_a_disco(vnfichero *f);
/** Cuts the file, or makes it longer with zeros; the position stays. FALSO when it cannot be done. */
vnbool lc_trunca(vnfichero *f, VN_RANGO(0, 9223372036854775807) int64_t tamanyo);
/** The name that it was opened by. Borrowed. */
const vnwchar *lc_nombre_fichero(const vnfichero *f);

/** Locks a zone of the file: `modo` is VN_ZONA_EXCLUSIVA or VN_ZONA_COMPARTIDA, plus VN_ZONA_ESPERA to wait; FALSO when
    another stream, of this or another process, holds part of it or it cannot be done. The zone may lie beyond the end.
    What is read afterwards is read from the file anew. An exclusive lock needs a stream that writes. The byte 2^62 is
    where writers hold a file: a zone ends before it. On Windows others can neither read nor write what is locked
    against them; elsewhere they are only refused the lock. */
vnbool lc_bloquea_zona_fichero(vnfichero *f, VN_RANGO(0, 9223372036854775807) int64_t inicio,
                               VN_RANGO(1, 4294967295) uint32_t tamanyo, VN_RANGO(0, 3) uint32_t modo);
/** Unlocks a zone that was locked with this very start and size, having handed to the system what was written. */
vnbool lc_desbloquea_zona_fichero(vnfichero *f, VN_RANGO(0, 9223372036854775807) int64_t inicio,
                                  VN_RANGO(1, 4294967295) uint32_t tamanyo);

VN_C_FIN

#endif
