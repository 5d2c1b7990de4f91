/* Streams: buffered files of 64-bit size and position, and the typed store of small values.

   A stream belongs to one thread at a time. It remembers its first failure (lc_ha_fallado). Reading and writing may
   alternate freely on a stream opened for both. A mode is "r", "w" or "a" (at the end), then any of "+" (both ways),
   "b" and "t", in any order; without "b" it is text, which differs on Windows alone: there a line ends in CR LF in the
   file and in LF for the program. No byte is taken for the end of a file. Positions count the bytes of the file. */
#ifndef VN_LC_FICHERO_H
#define VN_LC_FICHERO_H

#include "../suelo/operaciones_fichero.h"
#include "lc_fichero_posicion.h"
#include <string.h>

/** A stream. */
typedef struct vnfichero vnfichero;

/** The first member of a stream: the part of its buffer that may be read or written at once. For the inline
    operations below alone; one of the two ends, or both, do not lie beyond `pos`. */
typedef struct vnfichero_ventana {
    unsigned char *pos;
    const unsigned char *fin_lectura;
    unsigned char *fin_escritura;
} vnfichero_ventana;

/* Origins of a seek. */
#define VN_DESDE_EL_PRINCIPIO 0
#define VN_DESDE_LA_POSICION 1
#define VN_DESDE_EL_FINAL 2

VN_C_INICIO

/** Opens a file. A failure is reported, with the expression "f_lc_fopen" and the file's name and the reason as the
    detail, and gives null; a file that another program holds is tried again for a tenth of a second first. Name and
    mode are in the active ANSI code page, or wide in the form `_u`. The stream is closed by lc_fclose. */
vnfichero *f_lc_fopen(const char *nombre, const char *modo, VN_OPC const char *modulo, uint32_t linea);
vnfichero *f_lc_fopen_u(const vnwchar *nombre, const vnwchar *modo, VN_OPC const char *modulo, uint32_t linea);
/** As f_lc_fopen, trying a file that another program holds again for up to two seconds. */
vnfichero *f_lc_fopen_en_varios_intentos(const char *nombre, const char *modo, VN_OPC const char *modulo,
                                         uint32_t linea);
vnfichero *f_lc_fopen_en_varios_intentos_u(const vnwchar *nombre, const vnwchar *modo, VN_OPC const char *modulo,
                                           uint32_t linea);
/** As f_lc_fopen; a failure is not reported. */
vnfichero *f_lc_fopen_seguro(const char *nombre, const char *modo, VN_OPC const char *modulo, uint32_t linea);
vnfichero *f_lc_fopen_seguro_u(const vnwchar *nombre, const vnwchar *modo, VN_OPC const char *modulo, uint32_t linea);
/** Opens a file in a single try; a failure is not reported and gives null. */
vnfichero *f_lc_fopen_un_solo_intento_u(const vnwchar *nombre, const vnwchar *modo, VN_OPC const char *modulo,
                                        uint32_t linea);
/** Opens a file to write, in a single try, as its only writer: null when another stream or program has it open to
    write, and nobody else can open it to write until it is closed. `modo` writes. `informa`: report a failure. */
vnfichero *f_lc_fopen_modo_escritura_u(const vnwchar *nombre, const vnwchar *modo, vnbool informa,
                                       VN_OPC const char *modulo, uint32_t linea);
/** Closes the stream and frees it. CIERTO when everything that was written has reached the system, and it made sense: a
    null text, or a section left open, has been reported by who was told so, and ends here. A failure to write that had
    not been reported is reported now. */
vnbool lc_fclose(VN_CONSUME vnfichero *f);
/** As lc_fclose; nothing is reported. For owners that close on the way out of a failure. */
vnbool lc_fclose_seguro(VN_CONSUME vnfichero *f);
/** As lc_fclose_seguro, and CIERTO only if all has also reached the disk: not to be tried again when it has not. */
vnbool lc_fclose_volcando_a_disco(VN_CONSUME vnfichero *f);

/** Reads `numero` elements of `tamanyo` bytes; returns how many whole ones were there. A short read is reported as
    lc_error_leyendo_fichero, and the rest of `destino` is filled with zeros. `destino` may be null for no bytes. */
size_t f_lc_fread(VN_SALIDA_OPC void *destino, size_t tamanyo, size_t numero, vnfichero *f, VN_OPC const char *modulo,
                  uint32_t linea);
/** As f_lc_fread; reports nothing and fills nothing. */
size_t f_lc_fread_sin_error(VN_SALIDA_OPC void *destino, size_t tamanyo, size_t numero, vnfichero *f);
/** As f_lc_fread; if `version` <= `version_ascii` what was read is converted from the OEM code page to the ANSI one. */
size_t f_lc_fread_ansi_ascii(VN_SALIDA_OPC void *destino, size_t tamanyo, size_t numero, vnfichero *f, uint16_t version,
                             uint16_t version_ascii, VN_OPC const char *modulo, uint32_t linea);
/** Writes `numero` elements of `tamanyo` bytes; returns how many were taken, all or none. The first failure of the
    stream is reported as lc_error_escribiendo_fichero; after it the stream takes nothing more. `origen` may be null for
    no bytes. */
size_t f_lc_fwrite(VN_OPC const void *origen, size_t tamanyo, size_t numero, vnfichero *f, VN_OPC const char *modulo,
                   uint32_t linea);
/** The next byte, 0 to 255, or -1 at the end or after an error; reports nothing. */
int f_getc_sin_error(vnfichero *f);
/** Reads a line of little-endian UTF-16, its line feed included, of at most `maximo` - 1 units, and ends it with a
    zero. Units are taken as they are in text mode too; to write wide text the stream is opened with "b". Returns
    `buffer`, or null at the end of the file; reports nothing. */
vnwchar *lc_fgetws(VN_SALIDA VN_LON(maximo) vnwchar *buffer, VN_RANGO(1, 2147483647) int32_t maximo, vnfichero *f);

/** Reports "lc_error_leyendo_fichero" (or escribiendo) with the file's name as the detail, the reason behind it where
    the system gave one, and marks the stream as failed. Reading goes on as before; nothing more is written. */
void lc_error_leyendo_fichero(vnfichero *f);
void lc_error_escribiendo_fichero(vnfichero *f);
/** Why: the first failure of the system's that a stream met (VN_FICH_BIEN: none; data that end too early are none), or,
    with null, the last failure of this thread to open, read, write, close or save a file. Success does not clear it. */
vnerror_fichero lc_ultimo_error(VN_OPC const vnfichero *f);
/** The reason in a few words of the active language, to follow a file's name and a colon; empty for VN_FICH_BIEN and,
    reported, for what is none. Borrowed. */
const vnwchar *lc_texto_error_u(vnerror_fichero error);
/** Whether a read has met the end since the last seek. */
vnbool f_lc_feof(const vnfichero *f);
/** Whether a read or a write has failed; lc_error_*, short reads that were reported and senseless values count. */
vnbool f_lc_ferror(const vnfichero *f);
vnbool lc_ha_fallado(const vnfichero *f);
/** Forgets the end of the file and failures to read; a failure to write stays. */
void lc_borra_error(vnfichero *f);

VN_C_FIN

#define lc_fopen(nombre, modo) f_lc_fopen(nombre, modo, VN_AQUI)
#define lc_fopen_u(nombre, modo) f_lc_fopen_u(nombre, modo, VN_AQUI)
#define lc_fread(destino, tamanyo, numero, f) f_lc_fread(destino, tamanyo, numero, f, VN_AQUI)
#define lc_fwrite(origen, tamanyo, numero, f) f_lc_fwrite(origen, tamanyo, numero, f, VN_AQUI)

/* The typed store: a value of a few bytes goes straight between the caller and the buffer; the buffer's end takes the
   general road, with its reports. `f` must not be null. */
static inline void vnfichero_pon(vnfichero *f, const void *p, size_t n, const char *modulo, uint32_t linea) {
    vnfichero_ventana *v = (vnfichero_ventana *)(void *)f;
    if (v->fin_escritura - v->pos >= (ptrdiff_t)n) {
        memcpy(v->pos, p, n);
        v->pos += n;
    } else {
        f_lc_fwrite(p, n, 1, f, modulo, linea);
    }
}

static inline void vnfichero_toma(vnfichero *f, void *p, size_t n, const char *modulo, uint32_t linea) {
    vnfichero_ventana *v = (vnfichero_ventana *)(void *)f;
    if (v->fin_lectura - v->pos >= (ptrdiff_t)n) {
        memcpy(p, v->pos, n);
        v->pos += n;
    } else {
        f_lc_fread(p, n, 1, f, modulo, linea);
    }
}

/* As f_getc_sin_error. */
static inline int vnfichero_toma_byte(vnfichero *f) {
    vnfichero_ventana *v = (vnfichero_ventana *)(void *)f;
    return v->fin_lectura - v->pos > 0 ? *v->pos++ : f_getc_sin_error(f);
}

#endif
