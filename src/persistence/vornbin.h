/* Binary project files: the values on an open stream (bin_*), and the header and format prologue that open a file
   (vornbin_*). Everything is little-endian, nothing is aligned, no value has a header of its own. Threads: one for each
   stream; the directory of the samples is set before other threads open files. */
#ifndef VN_VORNBIN_H
#define VN_VORNBIN_H

#include "../foundation/ficheros/lc_fichero.h"

/** Array of wide texts (arr.h). */
typedef struct arrCADENA_u arrCADENA_u;

VN_C_INICIO

/* Values. A writer takes the value first and the stream last; a reader takes the stream and returns the value. A failed
   write or a short read is reported by the stream; the bytes that were missing are zero. In a file of the debug
   form one letter before each value tells its kind, and a wrong letter is reported as a read error. */

/** One byte, 0 or 1. Another truth value is reported, and its low byte written. */
void bin_graba_bool(vnbool valor, vnfichero *f);
/** One byte; 2, 4 or 8 bytes; IEEE-754. */
void bin_graba_byte(uint8_t dato, vnfichero *f);
void bin_graba_char(char dato, vnfichero *f);
void bin_graba_uchar(uint8_t dato, vnfichero *f);
void bin_graba_short(int16_t dato, vnfichero *f);
void bin_graba_ushort(uint16_t dato, vnfichero *f);
void bin_graba_long(int32_t dato, vnfichero *f);
void bin_graba_ulong(uint32_t dato, vnfichero *f);
void bin_graba_long64(int64_t dato, vnfichero *f);
void bin_graba_ulong64(uint64_t dato, vnfichero *f);
void bin_graba_float(float dato, vnfichero *f);
/** 8 bytes. A number that is not finite is reported, and written. */
void bin_graba_double(double dato, vnfichero *f);
/** The letter S or N. Another letter is reported, and written. */
void bin_graba_SN(char dato, vnfichero *f);
/** Length in 2 bytes, then the bytes of the text. A text of more than 65535 bytes is reported; the low 16 bits of its
    length and that many bytes are written then. */
void bin_graba_cadena(const char *buf, vnfichero *f);
/** Length in 4 bytes, then 2 bytes per character. */
void bin_graba_cadena_unicode(const vnwchar *buf, vnfichero *f);
/** Byte 0 for null; else byte 1 and the text. */
void bin_graba_null(VN_OPC const char *buf, vnfichero *f);
void bin_graba_null_unicode(VN_OPC const vnwchar *buf, vnfichero *f);
/** Byte 0 for null; else byte 1 and the number. */
void bin_graba_double_posible_null(VN_OPC const double *dato, vnfichero *f);
/** x, then y, each by bin_graba_double. */
void bin_graba_punto(const Punto2D *pto, vnfichero *f);
/** x, then y, as 16 bytes, whatever they hold. */
void bin_graba_punto2D(const Punto2D *pto, vnfichero *f);
/** The bytes as they are. */
void bin_graba_buffer(VN_LON(tamanyo) const void *buf, uint32_t tamanyo, vnfichero *f);
/** `tamanyo` wide characters as they are, 2 bytes each. */
void bin_graba_buffer_u(VN_LON(tamanyo) const vnwchar *buf, uint32_t tamanyo, vnfichero *f);

/** A byte other than 0 and 1 is reported as a read error, and returned. */
vnbool bin_lee_bool(vnfichero *f);
/** What the writer of the same name wrote. */
uint8_t bin_lee_byte(vnfichero *f);
char bin_lee_char(vnfichero *f);
uint8_t bin_lee_uchar(vnfichero *f);
int16_t bin_lee_short(vnfichero *f);
uint16_t bin_lee_ushort(vnfichero *f);
int32_t bin_lee_long(vnfichero *f);
uint32_t bin_lee_ulong(vnfichero *f);
int64_t bin_lee_long64(vnfichero *f);
uint64_t bin_lee_ulong64(vnfichero *f);
float bin_lee_float(vnfichero *f);
double bin_lee_double(vnfichero *f);
/** A letter other than S and N is reported as a read error, and returned. */
char bin_lee_SN(vnfichero *f);
/** New text, empty for a length of 0. A length beyond what is left of the file is reported as a read error and gives an
    empty text; nothing is allocated for it. */
char *bin_lee_cadena(vnfichero *f);
vnwchar *bin_lee_cadena_unicode(vnfichero *f);
/** New text, or null where null was written. A flag other than 0 and 1 is reported and gives null. */
char *bin_lee_null(vnfichero *f);
vnwchar *bin_lee_null_unicode(vnfichero *f);
/** New block of one double, freed by vornspy_free_pp(&p, sizeof(double)), or null where null was written. A flag other
    than 0 and 1 is reported and gives null. */
double *bin_lee_double_posible_null(vnfichero *f);
/** New point, made by creapunto. */
Punto2D *bin_lee_punto(vnfichero *f);
/** New point out of two floats. */
Punto2D *bin_lee_punto_float(vnfichero *f);
/** Fills `*destino` from its 16 bytes. */
void bin_lee_punto2D(VN_SALIDA Punto2D *destino, vnfichero *f);
/** Fills `destino` with `tamanyo` bytes; what is missing is reported and left zero. */
void bin_lee_buffer(VN_SALIDA VN_LON(tamanyo) void *destino, uint32_t tamanyo, vnfichero *f);
void bin_lee_buffer_uchar(VN_SALIDA VN_LON(tamanyo) uint8_t *destino, uint32_t tamanyo, vnfichero *f);
/** Fills `destino` with `tamanyo` wide characters; no terminator is added. */
void bin_lee_buffer_u(VN_SALIDA VN_LON(tamanyo) vnwchar *destino, uint32_t tamanyo, vnfichero *f);

/** Old texts in the OEM code page, converted to ANSI as they are read. */
char *bin_lee_cadena_ASCII(vnfichero *f);
char bin_lee_char_ASCII(vnfichero *f);
void bin_lee_buffer_ascii(VN_SALIDA VN_LON(tamanyo) char *destino, uint32_t tamanyo, vnfichero *f);
/** ANSI if `version` is greater than `version_ascii`, the last version that wrote the OEM code page; else converted
    from it. */
char *bin_lee_cadena_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
char bin_lee_char_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
char *bin_lee_null_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii);
void bin_lee_buffer_ansi_ascii(VN_SALIDA VN_LON(tamanyo) char *destino, uint32_t tamanyo, vnfichero *f,
                               uint16_t version, uint16_t version_ascii);

/** The number read through vncopro_filtra_double_con_posible_error: a bad one is replaced, and the two truth values say
    so. */
double bin_lee_double_con_posible_error(vnfichero *f, VN_SALIDA vnbool *es_incorrecto, VN_SALIDA vnbool *es_denormal);
/** As bin_lee_double_posible_null; both truth values are FALSO for null. */
double *bin_lee_double_posible_null_con_posible_error(vnfichero *f, VN_SALIDA vnbool *es_incorrecto,
                                                      VN_SALIDA vnbool *es_denormal);
/** New point; a truth value is CIERTO if either coordinate raised it. */
Punto2D *bin_lee_punto_con_posible_error(vnfichero *f, VN_SALIDA vnbool *es_incorrecto, VN_SALIDA vnbool *es_denormal);
/** An infinite float is reported. One below the smallest normal one, zero too, resets the floating-point unit and is
    0. */
float bin_lee_float_con_posible_error(vnfichero *f);

/** Passes over a value, checked as its reader checks it. */
void bin_salta_bool(vnfichero *f);
void bin_salta_byte(vnfichero *f);
void bin_salta_char(vnfichero *f);
void bin_salta_short(vnfichero *f);
void bin_salta_ushort(vnfichero *f);
void bin_salta_long(vnfichero *f);
void bin_salta_ulong(vnfichero *f);
void bin_salta_long64(vnfichero *f);
void bin_salta_ulong64(vnfichero *f);
void bin_salta_float(vnfichero *f);
void bin_salta_double(vnfichero *f);

/** Both ways, for record code written once: `graba` CIERTO writes `*dato`, FALSO reads into it. */
void bin_trata_bool(vnbool *dato, vnfichero *f, vnbool graba);
void bin_trata_byte(uint8_t *dato, vnfichero *f, vnbool graba);
void bin_trata_char(char *dato, vnfichero *f, vnbool graba);
void bin_trata_uchar(uint8_t *dato, vnfichero *f, vnbool graba);
void bin_trata_ushort(uint16_t *dato, vnfichero *f, vnbool graba);
void bin_trata_long(int32_t *dato, vnfichero *f, vnbool graba);
void bin_trata_ulong(uint32_t *dato, vnfichero *f, vnbool graba);
void bin_trata_long64(int64_t *dato, vnfichero *f, vnbool graba);
void bin_trata_ulong64(uint64_t *dato, vnfichero *f, vnbool graba);
void bin_trata_float(float *dato, vnfichero *f, vnbool graba);
void bin_trata_double(double *dato, vnfichero *f, vnbool graba);
/** Reading stores a new text; what `*dato` held before is not looked at. */
void bin_trata_cadena(VN_OPC char **dato, vnfichero *f, vnbool graba);
void bin_trata_cadena_u(VN_OPC vnwchar **dato, vnfichero *f, vnbool graba);
/** Reads as bin_lee_cadena_ansi_ascii, writes as bin_graba_cadena. */
void bin_trata_cadena_ansi_ascii(VN_OPC char **dato, vnfichero *f, vnbool graba, uint16_t version,
                                 uint16_t version_ascii);
/** x, then y, of the point at `pto`. */
void bin_trata_punto(Punto2D *pto, vnfichero *f, vnbool graba);

/* Files. A file is an optional header (who wrote it, in which version of the program, named fields), an optional format
   prologue (debug byte, format version, signature, title), and the caller's data. Saving goes to `nomfich` with "_TM$"
   appended, as vornfile.h tells: one saver at a time, the file itself only touched by the close; lc_ultimo_error(NULL)
   tells why something failed. `nomfich` is the final name throughout. `obra` is the file
   with the list of recent works that is told, or null. Names are wide in operations ending in _u or _unicode and ANSI
   in the others. */

/** Opens for writing with a header. The named fields of an existing file are carried over. The stream stands after the
    header; null if the file cannot be opened, which is reported. */
vnfichero *vornbin_abre_fichero_para_escritura_u(const vnwchar *nomfich, VN_OPC const vnwchar *obra);
/** The same with a format prologue after the header: version, signature, title (written as ANSI). */
vnfichero *vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(const vnwchar *nomfich, uint16_t version,
                                                                           const char *firma, const vnwchar *titulo,
                                                                           VN_OPC const vnwchar *obra);
/** The same, giving named fields to be kept with the file: `nombres` and `valores` are of one length. A field that the
    existing file has too takes the new value, in its place; a new one is added at the end. */
vnfichero *vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
    const vnwchar *nomfich, uint16_t version, const char *firma, const vnwchar *titulo, const arrCADENA_u *nombres,
    const arrCADENA_u *valores, VN_OPC const vnwchar *obra);
/** Opens for writing with a format prologue and no header. */
vnfichero *vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(const vnwchar *nomfich, uint16_t version,
                                                                               const char *firma, const vnwchar *titulo,
                                                                               VN_OPC const vnwchar *obra);
/** Opens for writing with neither. */
vnfichero *vornbin_abre_fichero_para_escritura_sin_cabecera(const char *nomfich, VN_OPC const char *obra);
/** The same, with no word to any list of recent works. */
vnfichero *vornbin_abre_basico_fichero_para_escritura(const char *nomfich);

/** Closes a stream opened for writing and makes it the file: flushed to disk, the old file kept as its safety copy,
    replaced in one step. A sample stays a sample. CIERTO when all of it was done; FALSO, after its report, leaves the
    old file as it was (but for VN_FICH_SIN_ASEGURAR, vornfile.h). The stream is closed in any case; one that no opening
    for writing made, or that was opened by another name, is reported and nothing else. */
vnbool vornbin_cierra_fichero_abierto_para_escritura_u(VN_CONSUME vnfichero *f, const vnwchar *nomfich,
                                                       VN_OPC const vnwchar *obra);
vnbool vornbin_cierra_fichero_abierto_para_escritura(VN_CONSUME vnfichero *f, const char *nomfich,
                                                     VN_OPC const char *obra);
/** The same, with no word to any list of recent works. */
vnbool vornbin_cierra_basico_fichero_abierto_para_escritura(VN_CONSUME vnfichero *f, const char *nomfich);
/** Closes a stream opened for writing and gives the save up: its temporary is removed, the file stays as it was.
    Another stream is reported and just closed. */
void vornbin_abandona_fichero_abierto_para_escritura_u(VN_CONSUME vnfichero *f, const vnwchar *nomfich);

/** Opens for reading and passes over the header, if there is one: the stream stands at the data. The two texts are new
    and the caller's, null without a header. A header that cannot be read on is reported and gives null. */
vnfichero *vornbin_abre_fichero_para_lectura_u(const vnwchar *nomfich, VN_SALIDA_OPC char **version_texto,
                                               VN_SALIDA_OPC char **revision_texto, VN_SALIDA_OPC vnbool *es_ejemplo);
vnfichero *vornbin_abre_fichero_para_lectura_unicode(const vnwchar *nomfich, VN_OPC const vnwchar *obra);
/** Opens for reading a file with header and prologue. `version_actual` is the newest format version that the caller
    reads, `version_ascii` the last one with texts in the OEM code page. `*titulo` is new. A newer file sets
    `*version_superior` and is read on; when that is null it is reported, as another signature and an invalid header
    are, and gives null, with nothing left open and `*titulo` null. */
vnfichero *vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(
    const vnwchar *nomfich, uint16_t version_actual, const char *firma, VN_OPC const vnwchar *obra,
    VN_SALIDA uint16_t *version, VN_SALIDA vnwchar **titulo, uint16_t version_ascii, VN_SALIDA_OPC vnbool *es_ejemplo,
    VN_SALIDA_OPC vnbool *version_superior);
/** Opens for reading a file with a prologue and no header. */
vnfichero *vornbin_abre_fichero_para_lectura_sin_cabecera_version_programa_u(
    const vnwchar *nomfich, uint16_t version_actual, const char *firma, VN_OPC const vnwchar *obra,
    VN_SALIDA uint16_t *version, VN_SALIDA char **titulo, uint16_t version_ascii);
/** The tolerant form: FALSO, with nothing open, `*version` 65535 and `*titulo` null, for a newer file or another
    signature. */
vnbool vornbin_se_abre_fichero_para_lectura_sin_cabecera_version_programa_u(
    const vnwchar *nomfich, uint16_t version_actual, const char *firma, VN_OPC const vnwchar *obra,
    uint16_t version_ascii, VN_SALIDA vnfichero **f, VN_SALIDA uint16_t *version, VN_SALIDA char **titulo);
/** Closes a stream opened for reading and tells the list of recent works. */
void vornbin_cierra_fichero_abierto_para_lectura_u(VN_CONSUME vnfichero *f, const vnwchar *nomfich,
                                                   VN_OPC const vnwchar *obra);

/** Whether the file has a header; the texts as in vornbin_abre_fichero_para_lectura_u. */
vnbool vornbin_hay_cabecera_en_fichero_u(const vnwchar *nomfich, VN_SALIDA_OPC char **version_texto,
                                         VN_SALIDA_OPC char **revision_texto, VN_SALIDA_OPC vnbool *es_ejemplo);
/** Whether the file has no header, or one of a known form. */
vnbool vornbin_es_fichero_vorn_valido(const char *nomfich);
/** Whether the caller can read the file: header, version and signature. CIERTO copies the ANSI title into `titulo` as
    strncpy does: a title of `tamanyo_titulo` bytes or more fills it without a terminator. FALSO shows the user the
    message that the file is of a newer version, whatever the cause. */
vnbool bin_fichero_valido_u(const vnwchar *nomfich, uint16_t version_actual, const char *firma, uint32_t tamanyo_titulo,
                            VN_SALIDA_OPC VN_LON(tamanyo_titulo) char *titulo, uint16_t version_ascii);
/** The same test on a stream at its start, with no message; `*titulo` is a new text, null on FALSO. After CIERTO the
    stream stands at the data. */
vnbool bin_fichero_valido(vnfichero *f, uint16_t version_actual, const char *firma, VN_SALIDA_OPC char **titulo,
                          uint16_t version_ascii);
/** A support tool's view of a header: the two texts, whether it is a sample, and in `*contenido` a new text with a line
    for each named field. FALSO without a valid header: `*contenido` says why, and the other texts are null. */
vnbool vornbin_lee_datos_cabecera_debug_soporte(const char *nomfich, VN_SALIDA char **version_texto,
                                                VN_SALIDA char **revision_texto, VN_SALIDA vnbool *es_ejemplo,
                                                VN_SALIDA vnwchar **contenido);
/** Named fields kept with a file, in order, in two new arrays of one length. FALSO, with both empty, when the file has
    no header or none that can be read; a header without fields is CIERTO. */
vnbool vornbin_lee_campos_cabecera_u(const vnwchar *nomfich, VN_SALIDA arrCADENA_u **nombres,
                                     VN_SALIDA arrCADENA_u **valores);

/** Sets the directory whose files are samples, process-wide; null, as at the start: no file is in it. */
void vornbin_establece_directorio_ejemplos_u(VN_OPC const vnwchar *directorio);
/** Whether the path begins, in any case, with the directory of the samples. */
vnbool vornbin_es_directorio_ejemplos(const char *ruta);
/** Turns a file with a header into a sample, its size unchanged: named fields are blanked, and what a save that died
    has left is removed. Refused while somebody saves the file. CIERTO when it is done; FALSO, after its report, leaves
    the file as it was. */
vnbool vornbin_marca_fichero_ejemplo_u(const vnwchar *nomfich);

/** Whether the next bytes are those of `id`, without its terminator. On CIERTO the stream stands after them, otherwise,
    at the end of the file too, where it was. Nothing is reported for a difference. */
vnbool vornbin_se_comprueba_marca(const char *id, vnfichero *f);
/** The same, for positions beyond 2 GiB. */
vnbool vornbin_se_comprueba_marca64(const char *id, vnfichero *f);

VN_C_FIN

#endif
