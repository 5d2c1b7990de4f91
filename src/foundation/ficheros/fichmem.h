/* Memory files: a block of bytes and its length, handed between modules. */
#ifndef VN_FICHMEM_H
#define VN_FICHMEM_H

#include "../suelo/tipos.h"

/** The record is open; `datos` is a block of the tracked heap, or null when `longitud` is 0. */
typedef struct fichmem {
    unsigned char *datos;
    uint32_t longitud;
} fichmem;

VN_C_INICIO

/** New memory file with a copy of the bytes; `datos` may be null when there are none. */
fichmem *fichmem_crea32(VN_OPC VN_LON(longitud) const void *datos, uint32_t longitud);
/** New memory file that takes over the block `*datos`, which is left null. */
fichmem *fichmem_crea_original32(VN_OPC unsigned char **datos, uint32_t longitud);
/** New memory file with the characters of an ANSI text, without its end. */
fichmem *fichmem_crea_desde_cadena(const char *texto);
/** Deep copy. */
fichmem *fichmem_copia(const fichmem *m);
/** The bytes as a new ANSI text: up to the first zero, or all of them. */
char *fichmem_copia_contenido_como_cadena(const fichmem *m);
/** Frees the memory file and leaves the pointer null. */
void fichmem_destruye(fichmem **m);

/** Writes the bytes as the whole content of a file, which is replaced as by a save (vornfile.h), without a safety copy.
    A failure is reported as there and gives FALSO. */
vnbool fichmem_graba_unicode(const fichmem *m, const vnwchar *nombre);
/** The content of a file; null, reported, if it cannot be read or is longer than 4294967295 bytes or than memory. The
    name is in the active ANSI code page, or wide in the form `_unicode`. */
fichmem *fichmem_lee(const char *nombre);
fichmem *fichmem_lee_unicode(const vnwchar *nombre);

VN_C_FIN

#endif
