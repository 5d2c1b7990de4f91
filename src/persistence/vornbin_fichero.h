/* Binary project files: opening and closing a file with its header and its prologue.

   A file is an optional header (who wrote it, in which version of the program, named fields), an optional format
   prologue (debug byte, format version, signature, title), and the caller's data. Saving goes to `nomfich` with "_TM$"
   appended, as vornfile.h tells: one saver at a time, the file itself only touched by the close; lc_ultimo_error(NULL)
   tells why something failed. `nomfich` is the final name throughout. `obra` is the file
   with the list of recent works that is told, or null. Names are wide in operations ending in _u or _unicode and ANSI
   in the others. */
#ifndef VN_VORNBIN_FICHERO_H
#define VN_VORNBIN_FICHERO_H

#include "../foundation/ficheros/lc_fichero.h"

/** Array of wide texts (arr.h). */
typedef struct arrCADENA_u arrCADENA_u;

VN_C_INICIO

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
    at the end of the file too, where it was. A difference is not reported, a pipe that cannot go back is. */
vnbool vornbin_se_comprueba_marca(const char *id, vnfichero *f);
/** The same, for positions beyond 2 GiB. */
vnbool vornbin_se_comprueba_marca64(const char *id, vnfichero *f);

VN_C_FIN

#endif
