/* The save protocol: one body of save code over several stored forms. A record has one write and one read
   function, each over a `vornsave` handle; the handle decides where the values go.

   Unless its comment says otherwise, a writer takes the value first and the protocol object last, a reader or
   skipper takes the object. Arrays and texts that a reader returns are new and the caller's; those given to a
   writer stay the caller's. Where the destination has no form for a value, the missing entry of its table is
   reported and the result is 0 or null. After a report while reading, what comes back is as far as it could
   be read: 0, an empty text, an array that is shorter or ends in zeros. After a report while writing (a null
   text, a value that the destination cannot hold, a block that is not closed) the stream is marked: its close
   answers FALSO, and a file that was to be replaced stays as it was. A stored count is never believed: one
   that the rest of the source cannot hold is reported as an error of reading, and the array comes back empty.

   An operation that takes a function of the caller's has a typed form: the same name without `nousar` or,
   where there is no such word in it, with `ST` at the end. The element's type stands before the function,
   which must fit it. */
#ifndef VN_VORNSAVE_H
#define VN_VORNSAVE_H

#include "../foundation/ficheros/fichmem.h"
#include "../foundation/ficheros/lc_fichero.h"
#include "../foundation/listas/acadorde.h"
#include "../foundation/listas/apunorde.h"
#include "../foundation/suelo/tipos.h"

/** The protocol object. One thread at a time, one direction at a time; the destination stays the caller's. */
typedef struct vornsave vornsave;
/** A block of indexed data. */
typedef struct idxdatos idxdatos;
/** A connected socket. */
typedef struct insocket insocket;

/** Writes, reads or passes over one element. A reader's result is the caller's of the operation; the extra
   values are those given to the operation, handed on. */
typedef void (*vnfunc_graba_dato)(const void *dato, vornsave *vornsave_datos);
typedef void *(*vnfunc_lee_dato)(vornsave *vornsave_datos);
typedef void *(*vnfunc_lee_dato_1_extra)(void *extra, vornsave *vornsave_datos);
typedef void *(*vnfunc_lee_dato_2_extra)(void *extra1, void *extra2, vornsave *vornsave_datos);
typedef void (*vnfunc_salta_dato)(vornsave *vornsave_datos);
typedef void (*vnfunc_graba_texto)(const char *texto, vornsave *vornsave_datos);
/** Reads a text: new, of the string library, the operation's from then on. */
typedef char *(*vnfunc_lee_texto)(vornsave *vornsave_datos);

/** Progress of a host: the bar starts with its total, is told positions in bytes, ends, or is merely kept
 * alive. */
typedef void (*vnfunc_prgs_inicia)(void *datos_prgs, uint32_t posicion_final);
typedef void (*vnfunc_prgs_valor)(void *datos_prgs, uint32_t posicion);
typedef void (*vnfunc_prgs_fin)(void *datos_prgs);
typedef void (*vnfunc_prgs_refresca)(void *datos_prgs);

VN_C_INICIO

/* ---- The object ---- */

/** New object over an open binary stream. */
vornsave *vornsave_registra_bin(vnfichero *f);
/** The same, remembering the program version and patch that wrote the data; the texts are copied. */
vornsave *vornsave_registra_bin_con_version(vnfichero *f, VN_OPC const char *version_programa,
                                            VN_OPC const char *parche_programa);
/** New object over an open text stream. With `con_comentarios`, plain numbers leave their line open for a
 * comment. */
vornsave *vornsave_registra_txt(vnfichero *f, vnbool con_comentarios);
/** New object over a block of indexed data, a socket, an open text stream that people edit. Null, and
   reported, while the module of that destination is not part of the library. */
vornsave *vornsave_registra_idx(idxdatos *datos);
vornsave *vornsave_registra_soc(insocket *socket);
vornsave *vornsave_registra_texto_editable(vnfichero *f);
/** New object that writes to memory; `tamanyo`: bytes reserved at the start. Null, and reported, as above. */
vornsave *vornsave_fichmem_para_escritura(void);
vornsave *vornsave_fichmem_para_escritura_ex(uint32_t tamanyo);
/** New object that reads a copy of the content of a memory file. Null, and reported, as above. */
vornsave *vornsave_fichmem_para_lectura(const fichmem *fichero);
/** Ends an object that wrote to memory: returns what was written, a new memory file, and frees the object. */
fichmem *vornsave_cierra_fichmem_para_escritura(vornsave **vornsave_datos);
/** Ends an object that read from memory. The second form reports what was left unread. */
void vornsave_cierra_fichmem_para_lectura(vornsave **vornsave_datos);
void vornsave_cierra_fichmem_para_lectura_al_final(vornsave **vornsave_datos);
/** Frees the object and leaves `*vornsave_datos` null; the destination stays open. A block or section still
   open is reported at class 1 unless a reading status of 1 or 2 was set. */
void vornsave_libera(vornsave **vornsave_datos);

/** Position in the destination, in bytes from its start. 0, reported, where there is none; one that
    does not fit in 31 bits is reported: -1. */
int32_t vornsave_get_posicion(vornsave *vornsave_datos);
/** Moves to a position given by vornsave_get_posicion. */
void vornsave_set_posicion(vornsave *vornsave_datos, int32_t posicion);
/** The program version or patch given when the object was made: borrowed, null if not given. */
const char *vornsave_dame_version_programa(const vornsave *vornsave_datos);
const char *vornsave_dame_parche_programa(const vornsave *vornsave_datos);
/** Notes how complete the reading is: 0 whole, 1 and 2 as the host defines them. The text is copied. Set it
 * once. */
void vornsave_set_tipo_status_lectura(vornsave *vornsave_datos, uint32_t tipo, VN_OPC const vnwchar *texto);
/** The status, and its text (borrowed, may be null) if `texto` is not null. */
uint32_t vornsave_get_tipo_status_lectura(const vornsave *vornsave_datos, VN_SALIDA_OPC const vnwchar **texto);
/** From here on texts and chars are read as ANSI if `version` > `version_ascii`, else as old OEM text. */
void vornsave_set_lectura_ANSI_ASCII_segun_version(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
/** Whether what follows is a file of this signature, of a version up to `version`; its title, new, through
   `titulo`. Shows no message. */
vnbool vornsave_fichero_valido(vornsave *vornsave_datos, uint16_t version, uint16_t version_ascii, const char *firma,
                               VN_SALIDA char **titulo);
/** Whether the next bytes are those of `marca`; the position is after them if so, where it was if not. The
   second form is for binary streams only. */
vnbool vornsave_comprueba_marca_fichero(const char *marca, vornsave *vornsave_datos);
vnbool vornsave_se_comprueba_cabecera_bin(const char *marca, vornsave *vornsave_datos);

/* ---- Blocks, sections, comments, progress ---- */

/** Whether the destination can hold blocks and sections. */
vnbool vornsave_es_posible_marcar_bloques(const vornsave *vornsave_datos);
/** Opens and closes a block or section for writing; what lies between can be passed over by a reader that
   does not know it. They nest. The forms without 64 need positions below 2 GiB. `id` of a block holds no
   zero and is not empty. What is left open, closed in another order or ends where its positions cannot tell is
   reported, and the save fails. */
void vornsave_graba_inicio_bloque(const char *id, vornsave *vornsave_datos);
void vornsave_graba_fin_bloque(const char *id, vornsave *vornsave_datos);
void vornsave_graba_inicio_bloque64(const char *id, vornsave *vornsave_datos);
void vornsave_graba_fin_bloque64(const char *id, vornsave *vornsave_datos);
void vornsave_graba_inicio_seccion(const char *id, vornsave *vornsave_datos);
void vornsave_graba_fin_seccion(const char *id, vornsave *vornsave_datos);
/** Whether the block `id` is next: CIERTO opens it, FALSO leaves the position as it was. */
vnbool vornsave_se_inicia_lectura_bloque(const char *id, vornsave *vornsave_datos);
vnbool vornsave_se_inicia_lectura_bloque64(const char *id, vornsave *vornsave_datos);
/** Reads the end of the block `id` and closes it. Another thing there is reported. */
void vornsave_lee_final_bloque(const char *id, vornsave *vornsave_datos);
void vornsave_lee_final_bloque64(const char *id, vornsave *vornsave_datos);
/** Whether the block `id` is next; if so it is passed over whole. */
vnbool vornsave_se_salta_bloque(const char *id, vornsave *vornsave_datos);
vnbool vornsave_se_salta_bloque64(const char *id, vornsave *vornsave_datos);
/** Opens the next section: its identifier, a new text. Where no section can stand there, as in a file that has none,
   that is reported, nothing is opened and the text is empty. */
char *vornsave_lee_seccion(vornsave *vornsave_datos);
/** Jumps to the end of the open section `id`, which vornsave_lee_final_seccion then closes. One that was not read to
   its end, or beyond it, is reported there, and the reading goes on behind it; so it does after a block. */
void vornsave_ir_final_seccion(const char *id, vornsave *vornsave_datos);
void vornsave_lee_final_seccion(const char *id, vornsave *vornsave_datos);

/** Writes a comment and ends the line, or passes the rest of a line; nothing where there are no comments. */
void vornsave_graba_comentario(const char *comentario, vornsave *vornsave_datos);
void vornsave_salta_comentario(vornsave *vornsave_datos);

/** Attaches a bar while writing. `posicion_final`: the estimated size in bytes; past it only
   `func_prgs_refresca` is called. Both numeric positions are those of the destination. */
void vornsave_nousar_inicia_progreso_grabacion(vornsave *vornsave_datos, VN_DATO void *datos_prgs,
                                               uint32_t posicion_final,
                                               vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                               vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                               vnfunc_prgs_fin func_prgs_fin_barra_progreso,
                                               vnfunc_prgs_refresca func_prgs_refresca);
/** Attaches a bar while reading; the total is the size of the destination. */
void vornsave_nousar_inicia_progreso_lectura(vornsave *vornsave_datos, VN_DATO void *datos_prgs,
                                             vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                             vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                             vnfunc_prgs_fin func_prgs_fin_barra_progreso);
/** Ends the bar and detaches it. */
void vornsave_fin_progreso(vornsave *vornsave_datos);

/* ---- Scalars ---- */

/** Truth value. One that is neither CIERTO nor FALSO is reported by the destination. */
void vornsave_graba_bool(vnbool valor, vornsave *vornsave_datos);
vnbool vornsave_lee_bool(vornsave *vornsave_datos);
void vornsave_salta_bool(vornsave *vornsave_datos);
/** Truth value that a text destination shows in words: `texto1` for CIERTO, `texto2` for FALSO. */
void vornsave_graba_bool_con_texto(vnbool valor, vornsave *vornsave_datos, const char *texto1, const char *texto2);
vnbool vornsave_lee_bool_con_texto(vornsave *vornsave_datos, const char *texto1, const char *texto2);

/** Character of the ANSI code page. Reading converts old OEM text, by the object's state or by the versions
 * given. */
void vornsave_graba_char(char valor, vornsave *vornsave_datos);
char vornsave_lee_char(vornsave *vornsave_datos);
char vornsave_lee_char_ansi_ascii(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
/** UTF-16 unit. */
void vornsave_graba_wchar(vnwchar valor, vornsave *vornsave_datos);
vnwchar vornsave_lee_wchar(vornsave *vornsave_datos);

/** Numbers of 8, 16, 32 and 64 bits, float and double. */
void vornsave_graba_uchar(uint8_t valor, vornsave *vornsave_datos);
uint8_t vornsave_lee_uchar(vornsave *vornsave_datos);
void vornsave_salta_uchar(vornsave *vornsave_datos);
void vornsave_graba_short(int16_t valor, vornsave *vornsave_datos);
int16_t vornsave_lee_short(vornsave *vornsave_datos);
void vornsave_salta_short(vornsave *vornsave_datos);
void vornsave_graba_ushort(uint16_t valor, vornsave *vornsave_datos);
uint16_t vornsave_lee_ushort(vornsave *vornsave_datos);
void vornsave_salta_ushort(vornsave *vornsave_datos);
void vornsave_graba_long(int32_t valor, vornsave *vornsave_datos);
int32_t vornsave_lee_long(vornsave *vornsave_datos);
void vornsave_salta_long(vornsave *vornsave_datos);
void vornsave_graba_ulong(uint32_t valor, vornsave *vornsave_datos);
uint32_t vornsave_lee_ulong(vornsave *vornsave_datos);
void vornsave_salta_ulong(vornsave *vornsave_datos);
void vornsave_graba_long64(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_long64(vornsave *vornsave_datos);
void vornsave_salta_long64(vornsave *vornsave_datos);
void vornsave_graba_ulong64(uint64_t valor, vornsave *vornsave_datos);
uint64_t vornsave_lee_ulong64(vornsave *vornsave_datos);
void vornsave_salta_ulong64(vornsave *vornsave_datos);
void vornsave_graba_float(float valor, vornsave *vornsave_datos);
float vornsave_lee_float(vornsave *vornsave_datos);
void vornsave_salta_float(vornsave *vornsave_datos);
void vornsave_graba_double(double valor, vornsave *vornsave_datos);
double vornsave_lee_double(vornsave *vornsave_datos);
void vornsave_salta_double(vornsave *vornsave_datos);

/** Passes over an enumerated value, which goes as an unsigned short. */
void vornsave_salta_enum(vornsave *vornsave_datos);
/** Writes `valor` rounded to the nearest multiple of `paso`. */
void vornsave_graba_double_con_precision(double valor, double paso, vornsave *vornsave_datos);
/** Reads a double that may be damaged: says whether it was no number, and whether it was denormal; a bad
   value is replaced. */
double vornsave_lee_double_con_posible_error_en_binario(vornsave *vornsave_datos, VN_SALIDA vnbool *es_incorrecto,
                                                        VN_SALIDA vnbool *es_denormal);
/** Point: x, then y; on the heap when read. The float form reads two floats. */
void vornsave_graba_punto(const Punto2D *pto, vornsave *vornsave_datos);
Punto2D *vornsave_lee_punto(vornsave *vornsave_datos);
Punto2D *vornsave_lee_punto_float(vornsave *vornsave_datos);

/** 64-bit integers in two halves of 32 bits, the upper one first: not the form of vornsave_graba_long64.
   Dates are seconds, sizes are bytes. */
void vornsave_graba_int64(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_int64(vornsave *vornsave_datos);
void vornsave_graba_uint64(uint64_t valor, vornsave *vornsave_datos);
uint64_t vornsave_lee_uint64(vornsave *vornsave_datos);
void vornsave_graba_fecha(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_fecha(vornsave *vornsave_datos);
void vornsave_graba_size64(uint64_t valor, vornsave *vornsave_datos);
uint64_t vornsave_lee_size64(vornsave *vornsave_datos);
void vornsave_graba_fecha_64(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_fecha_64(vornsave *vornsave_datos);
/** Date of the old form: two longs, of which the second counts. */
int64_t vornsave_nousar_lee_fecha_de_64(vornsave *vornsave_datos);
/** Seconds since 1970 as one 64-bit or one 32-bit number. A time that does not fit in 32 bits is reported. */
void vornsave_graba_time(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_time(vornsave *vornsave_datos);
void vornsave_graba_time32(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_time32(vornsave *vornsave_datos);

/* ---- Texts and bytes ---- */

/** ANSI text, up to 65535 bytes. Reading converts old OEM text, as the object's state says. */
void vornsave_graba_cadena(const char *valor, vornsave *vornsave_datos);
char *vornsave_lee_cadena(vornsave *vornsave_datos);
void vornsave_salta_cadena(vornsave *vornsave_datos);
/** The same, read as ANSI if `version` > `version_ascii` and as OEM text if not; always as OEM text. */
char *vornsave_lee_cadena_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
char *vornsave_lee_cadena_ascii(vornsave *vornsave_datos);
/** Wide text. */
void vornsave_graba_cadena_unicode(const vnwchar *valor, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_unicode(vornsave *vornsave_datos);
void vornsave_salta_cadena_unicode(vornsave *vornsave_datos);
/** Wide text of an ANSI one that was stored. */
vnwchar *vornsave_lee_cadena_ANSI_a_unicode(vornsave *vornsave_datos);
/** Wide text stored as UTF-8. Half of a surrogate pair that stands alone is reported, and is read as U+FFFD. */
void vornsave_graba_cadena_UTF8(const vnwchar *texto, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_UTF8(vornsave *vornsave_datos);
/** ANSI text with the name of its field, which only editable text shows. */
void vornsave_graba_cadena_campo(const char *valor, const char *campo, vornsave *vornsave_datos);
char *vornsave_lee_cadena_campo(vornsave *vornsave_datos, const char *campo);
void vornsave_salta_cadena_campo(vornsave *vornsave_datos, const char *campo);
/** ANSI text of any length. */
void vornsave_graba_cadena_como_buffer(const char *texto, vornsave *vornsave_datos);
char *vornsave_lee_cadena_como_buffer(vornsave *vornsave_datos);
/** Bytes as they are; their number is not stored. Reading returns a new block of `tamanyo` + 1 bytes, the
   last 0, to be freed with vornspy_free_pp; null, and reported, where the source does not hold so many. */
void vornsave_graba_buffer(VN_LON(tamanyo) const void *datos_buffer, uint32_t tamanyo, vornsave *vornsave_datos);
uint8_t *vornsave_lee_buffer(uint32_t tamanyo, vornsave *vornsave_datos);
void vornsave_salta_buffer(uint32_t tamanyo, vornsave *vornsave_datos);
/** Memory file. */
void vornsave_graba_fichmem(const fichmem *fichero, vornsave *vornsave_datos);
fichmem *vornsave_lee_fichmem(vornsave *vornsave_datos);

/** Optional texts: null is written as FALSO and comes back as null. */
void vornsave_graba_cadena_opcional(VN_OPC const char *valor, vornsave *vornsave_datos);
char *vornsave_lee_cadena_opcional(vornsave *vornsave_datos);
void vornsave_salta_cadena_opcional(vornsave *vornsave_datos);
void vornsave_graba_cadena_unicode_opcional(VN_OPC const vnwchar *valor, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_unicode_opcional(vornsave *vornsave_datos);
void vornsave_salta_cadena_unicode_opcional(vornsave *vornsave_datos);
void vornsave_graba_cadena_UTF8_opcional(VN_OPC const vnwchar *valor, vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_UTF8_opcional(vornsave *vornsave_datos);
vnwchar *vornsave_lee_cadena_ANSI_a_unicode_opcional(vornsave *vornsave_datos);

/** Optional structures: a truth value and, if there is one, what `funcion` writes or reads. */
void vornsave_graba_estructura_opcional2(VN_OPC const void *dato, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
void *vornsave_lee_estructura_opcional2(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
void *vornsave_lee_estructura_opcional2_con_1_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_1_extra funcion,
                                                         VN_DATO void *extra);
void *vornsave_lee_estructura_opcional2_con_2_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_2_extra funcion,
                                                         VN_DATO void *extra1, VN_DATO void *extra2);
void vornsave_nousar_salta_estructura_opcional(vornsave *vornsave_datos, vnfunc_salta_dato funcion);

/* ---- Arrays of simple values ---- */

/** Arrays of numbers: the count and the elements. */
void vornsave_graba_arr_double(const arrDouble *array, vornsave *vornsave_datos);
arrDouble *vornsave_lee_arr_double(vornsave *vornsave_datos);
void vornsave_salta_arr_double(vornsave *vornsave_datos);
void vornsave_graba_arr_long(const arrLong *array, vornsave *vornsave_datos);
arrLong *vornsave_lee_arr_long(vornsave *vornsave_datos);
void vornsave_graba_arr_long64(const arrLong64 *array, vornsave *vornsave_datos);
arrLong64 *vornsave_lee_arr_long64(vornsave *vornsave_datos);
void vornsave_graba_arr_uchar(const arrUChar *array, vornsave *vornsave_datos);
arrUChar *vornsave_lee_arr_uchar(vornsave *vornsave_datos);
void vornsave_graba_arr_ushort(const arrUShort *array, vornsave *vornsave_datos);
arrUShort *vornsave_lee_arr_ushort(vornsave *vornsave_datos);
void vornsave_salta_arr_ushort(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong(const arrULong *array, vornsave *vornsave_datos);
arrULong *vornsave_lee_arr_ulong(vornsave *vornsave_datos);
void vornsave_salta_arr_ulong(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong64(const arrULong64 *array, vornsave *vornsave_datos);
arrULong64 *vornsave_lee_arr_ulong64(vornsave *vornsave_datos);
void vornsave_salta_arr_ulong64(vornsave *vornsave_datos);
void vornsave_graba_arulong(const arulong *array, vornsave *vornsave_datos);
arulong *vornsave_lee_arulong(vornsave *vornsave_datos);
void vornsave_graba_arulong64(const arulong64 *array, vornsave *vornsave_datos);
arulong64 *vornsave_lee_arulong64(vornsave *vornsave_datos);
/** Reads an array of doubles that may be damaged; each output is CIERTO if any element raised it. */
arrDouble *vornsave_lee_arr_double_con_posible_error(vornsave *vornsave_datos, VN_SALIDA vnbool *es_incorrecto,
                                                     VN_SALIDA vnbool *es_denormal);
/** Arrays of truth values: on a binary stream 2 bytes each. */
void vornsave_graba_arr_bool(const arrBOOL *array, vornsave *vornsave_datos);
arrBOOL *vornsave_lee_arr_bool(vornsave *vornsave_datos);
/** Arrays of points: in text, one line per point. */
void vornsave_graba_arr_puntos2D(const arrPunto2D *array, vornsave *vornsave_datos);
arrPunto2D *vornsave_lee_arr_puntos2D(vornsave *vornsave_datos);
void vornsave_salta_arr_puntos2D(vornsave *vornsave_datos);
void vornsave_graba_arr_puntos3D(const arrPunto3D *array, vornsave *vornsave_datos);
arrPunto3D *vornsave_lee_arr_puntos3D(vornsave *vornsave_datos);
void vornsave_salta_arr_puntos3D(vornsave *vornsave_datos);
/** Points with a private value, which `funcion` writes and `lee_datos` reads. */
void vornsave_graba_arr_puntos2DXPriv(const arrPunto2DXPriv *array, vornsave *vornsave_datos,
                                      vnfunc_graba_dato funcion);
arrPunto2DXPriv *vornsave_lee_arr_puntos2DXPriv(vornsave *vornsave_datos, vnfunc_lee_dato lee_datos);

/* ---- Arrays of texts ---- */

/** Arrays of texts without null elements. On a text stream ANSI texts come back up to 255 characters long,
   and wide ones cannot be read: that is reported with an empty expression, and null comes back. */
void vornsave_graba_arr_cadenas(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas(vornsave *vornsave_datos);
void vornsave_salta_arr_cadena(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_unicode(const arrCADENA_u *array, vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_unicode(vornsave *vornsave_datos);
void vornsave_salta_arr_cadena_unicode(vornsave *vornsave_datos);
/** ANSI texts read as OEM ones unless `version` > `version_ascii`; on a binary stream in the form with null
   elements. ANSI texts read as wide ones. */
arrCADENA *vornsave_lee_arr_cadenas_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
arrCADENA_u *vornsave_lee_arr_cadenas_ansi_unicode(vornsave *vornsave_datos);
/** Arrays of texts whose null elements survive on a binary stream. */
void vornsave_graba_arr_cadenas_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_segun_tipo(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_segun_tipo_unicode(const arrCADENA_u *array, vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_segun_tipo_unicode(vornsave *vornsave_datos);
/** Ordered sets of texts. With a function, the texts go through it instead of the destination's form. */
void vornsave_graba_acadorde(const acadorde *array, vornsave *vornsave_datos);
acadorde *vornsave_lee_acadorde(vornsave *vornsave_datos);
void vornsave_graba_acadordeu(const acadordeu *array, vornsave *vornsave_datos);
acadordeu *vornsave_lee_acadordeu(vornsave *vornsave_datos);
void vornsave_graba_acadorde_con_funcion(const acadorde *array, vnfunc_graba_texto funcion, vornsave *vornsave_datos);
acadorde *vornsave_lee_acadorde_con_funcion(vornsave *vornsave_datos, vnfunc_lee_texto funcion);

/* ---- Arrays of structures ---- */

/** Arrays of pointers: the count, then each element by `funcion`. The reader's first
   report ends the reading; the elements that it returned are in the array. */
void vornsave_graba_arr_punteros(const arrPuntero *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
arrPuntero *vornsave_lee_arr_punteros(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
arrPuntero *vornsave_lee_arr_punteros_con_1_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_1_extra funcion,
                                                       VN_DATO void *extra);
arrPuntero *vornsave_lee_arr_punteros_con_2_datos_extra(vornsave *vornsave_datos, vnfunc_lee_dato_2_extra funcion,
                                                        VN_DATO void *extra1, VN_DATO void *extra2);
void vornsave_nousar_salta_arr_punteros_ST(vornsave *vornsave_datos, vnfunc_salta_dato funcion);
/** Arrays of such arrays. */
void vornsave_graba_arr_punteros_array(const arrPuntero *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
arrPuntero *vornsave_lee_arr_punteros_array(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
/** Ordered sets of pointers. The reader makes the set with `comparador`, `dato` and `destructor`. */
void vornsave_nousar_graba_apunorde(const apunorde *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion);
apunorde *vornsave_nousar_lee_apunorde(vornsave *vornsave_datos, vnfunc_lee_dato funcion,
                                       vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                                       VN_OPC vnfunc_destruye destructor);
apunorde *vornsave_nousar_lee_apunorde_con_1_dato_extra(vornsave *vornsave_datos, VN_DATO void *extra,
                                                        vnfunc_lee_dato_1_extra funcion,
                                                        vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                                                        VN_OPC vnfunc_destruye destructor);

/* ---- Optional arrays ---- */

/** Optional arrays: a truth value, then the plain form. Null is written as FALSO and comes back as null. */
void vornsave_graba_arr_bool_opcional(VN_OPC const arrBOOL *array, vornsave *vornsave_datos);
arrBOOL *vornsave_lee_arr_bool_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_opcional(VN_OPC const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_unicode_opcional(VN_OPC const arrCADENA_u *array, vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_unicode_opcional(vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_ansi_unicode_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_double_opcional(VN_OPC const arrDouble *array, vornsave *vornsave_datos);
arrDouble *vornsave_lee_arr_double_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_long_opcional(VN_OPC const arrLong *array, vornsave *vornsave_datos);
arrLong *vornsave_lee_arr_long_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_long64_opcional(VN_OPC const arrLong64 *array, vornsave *vornsave_datos);
arrLong64 *vornsave_lee_arr_long64_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_puntos2D_opcional(VN_OPC const arrPunto2D *array, vornsave *vornsave_datos);
arrPunto2D *vornsave_lee_arr_puntos2D_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_puntos3D_opcional(VN_OPC const arrPunto3D *array, vornsave *vornsave_datos);
arrPunto3D *vornsave_lee_arr_puntos3D_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_uchar_opcional(VN_OPC const arrUChar *array, vornsave *vornsave_datos);
arrUChar *vornsave_lee_arr_uchar_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong_opcional(VN_OPC const arrULong *array, vornsave *vornsave_datos);
arrULong *vornsave_lee_arr_ulong_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_ulong64_opcional(VN_OPC const arrULong64 *array, vornsave *vornsave_datos);
arrULong64 *vornsave_lee_arr_ulong64_opcional(vornsave *vornsave_datos);
void vornsave_graba_arr_ushort_opcional(VN_OPC const arrUShort *array, vornsave *vornsave_datos);
arrUShort *vornsave_lee_arr_ushort_opcional(vornsave *vornsave_datos);
/** The same for arrays and ordered sets of structures. */
void vornsave_graba_arr_punteros_array_opcional(VN_OPC const arrPuntero *array, vornsave *vornsave_datos,
                                                vnfunc_graba_dato funcion);
arrPuntero *vornsave_lee_arr_punteros_array_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
void vornsave_nousar_graba_arr_punteros_opcional(VN_OPC const arrPuntero *array, vornsave *vornsave_datos,
                                                 vnfunc_graba_dato funcion);
arrPuntero *vornsave_nousar_lee_arr_punteros_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion);
arrPuntero *vornsave_nousar_lee_arr_punteros_opcional_con_1_dato_extra(vornsave *vornsave_datos,
                                                                       vnfunc_lee_dato_1_extra funcion,
                                                                       VN_DATO void *extra);
void vornsave_nousar_salta_arr_punteros_opcionalST(vornsave *vornsave_datos, vnfunc_salta_dato funcion);
void vornsave_nousar_graba_apunorde_opcional(VN_OPC const apunorde *array, vornsave *vornsave_datos,
                                             vnfunc_graba_dato funcion);
apunorde *vornsave_nousar_lee_apunorde_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion,
                                                vnfunc_compara_con_dato comparador, VN_DATO void *dato,
                                                VN_OPC vnfunc_destruye destructor);

/* ---- Arrays that are mostly flat ---- */

/** Arrays in groups: a run of equal elements takes the room of one. Doubles within `tolerancia` of the first
   of their run are equal to it and come back as it. What a run may grow to when read is bounded: an array of
   15 MiB plus 8 bytes for each byte of the source; beyond that it is an error of reading. */
void vornsave_graba_arr_double_con_valores_iguales(const arrDouble *array, double tolerancia, vornsave *vornsave_datos);
arrDouble *vornsave_lee_arr_double_con_valores_iguales(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_con_valores_iguales(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales(vornsave *vornsave_datos);
/** The same with null elements, as vornsave_graba_arr_cadenas_segun_tipo. */
void vornsave_graba_arr_cadenas_con_valores_iguales_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales_segun_tipo(vornsave *vornsave_datos);

VN_C_FIN

/* ---- Typed forms: `tipo` is the element's type, and a function for another type does not compile ---- */

/* The functions that the typed forms ask for. */
#define VN_PRGS_TIPO(tipo, funcion) VN_COMPRUEBA_TIPO(void (*)(tipo *, uint32_t), funcion, vnfunc_prgs_inicia)
#define VN_GRABA_TIPO(tipo, funcion) VN_COMPRUEBA_TIPO(void (*)(const tipo *, vornsave *), funcion, vnfunc_graba_dato)
#define VN_LEE_TIPO(tipo, funcion) VN_COMPRUEBA_TIPO(tipo *(*)(vornsave *), funcion, vnfunc_lee_dato)
#define VN_LEE_TIPO_1(tipo, tipo1, funcion)                                                                            \
    VN_COMPRUEBA_TIPO(tipo *(*)(tipo1 *, vornsave *), funcion, vnfunc_lee_dato_1_extra)
#define VN_LEE_TIPO_2(tipo, tipo1, tipo2, funcion)                                                                     \
    VN_COMPRUEBA_TIPO(tipo *(*)(tipo1 *, tipo2 *, vornsave *), funcion, vnfunc_lee_dato_2_extra)

#define vornsave_lee_fecha_de_64(datos) vornsave_nousar_lee_fecha_de_64(datos)
#define vornsave_inicia_progreso_grabacion(datos, datos_prgs, final, tipo, inicia, valor, fin, refresca)               \
    vornsave_nousar_inicia_progreso_grabacion(datos, VN_COMPRUEBA_TIPO(tipo *, datos_prgs, void *), final,             \
                                              VN_PRGS_TIPO(tipo, inicia), VN_PRGS_TIPO(tipo, valor),                   \
                                              VN_COMPRUEBA_TIPO(void (*)(tipo *), fin, vnfunc_prgs_fin),               \
                                              VN_COMPRUEBA_TIPO(void (*)(tipo *), refresca, vnfunc_prgs_refresca))
#define vornsave_inicia_progreso_lectura(datos, datos_prgs, tipo, inicia, valor, fin)                                  \
    vornsave_nousar_inicia_progreso_lectura(datos, VN_COMPRUEBA_TIPO(tipo *, datos_prgs, void *),                      \
                                            VN_PRGS_TIPO(tipo, inicia), VN_PRGS_TIPO(tipo, valor),                     \
                                            VN_COMPRUEBA_TIPO(void (*)(tipo *), fin, vnfunc_prgs_fin))

#define vornsave_graba_estructura_opcional2ST(dato, datos, tipo, funcion)                                              \
    vornsave_graba_estructura_opcional2(VN_COMPRUEBA_TIPO(const tipo *, dato, const void *), datos,                    \
                                        VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_estructura_opcional2ST(datos, tipo, funcion)                                                      \
    ((tipo *)vornsave_lee_estructura_opcional2(datos, VN_LEE_TIPO(tipo, funcion)))
#define vornsave_lee_estructura_opcional2_con_1_dato_extraST(datos, tipo, tipo1, funcion, extra)                       \
    ((tipo *)vornsave_lee_estructura_opcional2_con_1_dato_extra(datos, VN_LEE_TIPO_1(tipo, tipo1, funcion),            \
                                                                VN_COMPRUEBA_TIPO(tipo1 *, extra, void *)))
#define vornsave_lee_estructura_opcional2_con_2_dato_extraST(datos, tipo, tipo1, tipo2, funcion, extra1, extra2)       \
    ((tipo *)vornsave_lee_estructura_opcional2_con_2_dato_extra(datos, VN_LEE_TIPO_2(tipo, tipo1, tipo2, funcion),     \
                                                                VN_COMPRUEBA_TIPO(tipo1 *, extra1, void *),            \
                                                                VN_COMPRUEBA_TIPO(tipo2 *, extra2, void *)))
#define vornsave_salta_estructura_opcional(datos, funcion) vornsave_nousar_salta_estructura_opcional(datos, funcion)

#define vornsave_graba_arr_puntos2DXPrivST(array, datos, tipo, funcion)                                                \
    vornsave_graba_arr_puntos2DXPriv(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_puntos2DXPrivST(datos, tipo, lee_datos)                                                       \
    vornsave_lee_arr_puntos2DXPriv(datos, VN_LEE_TIPO(tipo, lee_datos))
#define vornsave_graba_arr_punterosST(array, datos, tipo, funcion)                                                     \
    vornsave_graba_arr_punteros(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punterosST(datos, tipo, funcion) vornsave_lee_arr_punteros(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_con_1_dato_extraST(datos, tipo, tipo1, funcion, extra)                               \
    vornsave_lee_arr_punteros_con_1_dato_extra(datos, VN_LEE_TIPO_1(tipo, tipo1, funcion),                             \
                                               VN_COMPRUEBA_TIPO(tipo1 *, extra, void *))
#define vornsave_lee_arr_punteros_con_2_datos_extraST(datos, tipo, tipo1, tipo2, funcion, extra1, extra2)              \
    vornsave_lee_arr_punteros_con_2_datos_extra(datos, VN_LEE_TIPO_2(tipo, tipo1, tipo2, funcion),                     \
                                                VN_COMPRUEBA_TIPO(tipo1 *, extra1, void *),                            \
                                                VN_COMPRUEBA_TIPO(tipo2 *, extra2, void *))
#define vornsave_salta_arr_punteros_ST(datos, funcion) vornsave_nousar_salta_arr_punteros_ST(datos, funcion)
#define vornsave_graba_arr_punteros_arrayST(array, datos, tipo, funcion)                                               \
    vornsave_graba_arr_punteros_array(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_arrayST(datos, tipo, funcion)                                                        \
    vornsave_lee_arr_punteros_array(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_graba_arr_punteros_array_opcionalST(array, datos, tipo, funcion)                                      \
    vornsave_graba_arr_punteros_array_opcional(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_array_opcionalST(datos, tipo, funcion)                                               \
    vornsave_lee_arr_punteros_array_opcional(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_graba_arr_punteros_opcional(array, datos, tipo, funcion)                                              \
    vornsave_nousar_graba_arr_punteros_opcional(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_opcional(datos, tipo, funcion)                                                       \
    vornsave_nousar_lee_arr_punteros_opcional(datos, VN_LEE_TIPO(tipo, funcion))
#define vornsave_lee_arr_punteros_opcional_con_1_dato_extra(datos, tipo, tipo1, funcion, extra)                        \
    vornsave_nousar_lee_arr_punteros_opcional_con_1_dato_extra(datos, VN_LEE_TIPO_1(tipo, tipo1, funcion),             \
                                                               VN_COMPRUEBA_TIPO(tipo1 *, extra, void *))
#define vornsave_salta_arr_punteros_opcionalST(datos, funcion)                                                         \
    vornsave_nousar_salta_arr_punteros_opcionalST(datos, funcion)

#define vornsave_graba_apunorde(array, datos, tipo, funcion)                                                           \
    vornsave_nousar_graba_apunorde(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_graba_apunorde_opcional(array, datos, tipo, funcion)                                                  \
    vornsave_nousar_graba_apunorde_opcional(array, datos, VN_GRABA_TIPO(tipo, funcion))
#define vornsave_lee_apunorde(datos, tipo, funcion, tipo_dato, comparador, dato, destructor)                           \
    vornsave_nousar_lee_apunorde(datos, VN_LEE_TIPO(tipo, funcion),                                                    \
                                 VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor))
#define vornsave_lee_apunorde_opcional(datos, tipo, funcion, tipo_dato, comparador, dato, destructor)                  \
    vornsave_nousar_lee_apunorde_opcional(datos, VN_LEE_TIPO(tipo, funcion),                                           \
                                          VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor))
#define vornsave_lee_apunorde_con_1_dato_extra(datos, extra, tipo, tipo1, funcion, tipo_dato, comparador, dato,        \
                                               destructor)                                                             \
    vornsave_nousar_lee_apunorde_con_1_dato_extra(datos, VN_COMPRUEBA_TIPO(tipo1 *, extra, void *),                    \
                                                  VN_LEE_TIPO_1(tipo, tipo1, funcion),                                 \
                                                  VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor))
#define VN_ORDEN_TIPO(tipo, tipo_dato, comparador, dato, destructor)                                                   \
    VN_COMPRUEBA_TIPO(int (*)(const tipo *, const tipo *, tipo_dato *), comparador, vnfunc_compara_con_dato),          \
        VN_COMPRUEBA_TIPO(tipo_dato *, dato, void *),                                                                  \
        VN_COMPRUEBA_TIPO(void (*)(tipo **), destructor, vnfunc_destruye)

#endif
