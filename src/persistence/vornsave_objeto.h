/* The save protocol: the object over a destination, its life, its position, what it knows of the file. vornsave.h tells
   what holds for all. */
#ifndef VN_VORNSAVE_OBJETO_H
#define VN_VORNSAVE_OBJETO_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** New object over an open binary stream. */
vornsave *vornsave_registra_bin(vnfichero *f);
/** The same, remembering the program version and patch that wrote the data; the texts are copied. */
vornsave *vornsave_registra_bin_con_version(vnfichero *f, VN_OPC const char *version_programa,
                                            VN_OPC const char *parche_programa);
/** New object over an open text stream. With `con_comentarios`, plain numbers leave their line open for a comment. */
vornsave *vornsave_registra_txt(vnfichero *f, vnbool con_comentarios);
/** New object over a block of indexed data, a socket, an open text stream that people edit. Null, and reported, while
    the module of that destination is not part of the library. */
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
/** Frees the object and leaves `*vornsave_datos` null; the destination stays open. A block or section still open is
    reported at class 1 unless a reading status of 1 or 2 was set. */
void vornsave_libera(vornsave **vornsave_datos);

/** Position in the destination, in bytes from its start. 0, reported, where there is none; one that does not fit in 31
    bits is reported: -1. */
int32_t vornsave_get_posicion(vornsave *vornsave_datos);
/** Moves to a position given by vornsave_get_posicion. One that the stream cannot go to, as on a pipe, is reported as a
    failure to read or write. */
void vornsave_set_posicion(vornsave *vornsave_datos, int32_t posicion);
/** The program version or patch given when the object was made: borrowed, null if not given. */
const char *vornsave_dame_version_programa(const vornsave *vornsave_datos);
const char *vornsave_dame_parche_programa(const vornsave *vornsave_datos);
/** Notes how complete the reading is: 0 whole, 1 and 2 as the host defines them. The text is copied. Set it once. */
void vornsave_set_tipo_status_lectura(vornsave *vornsave_datos, uint32_t tipo, VN_OPC const vnwchar *texto);
/** The status, and its text (borrowed, may be null) if `texto` is not null. */
uint32_t vornsave_get_tipo_status_lectura(const vornsave *vornsave_datos, VN_SALIDA_OPC const vnwchar **texto);
/** From here on texts and chars are read as ANSI if `version` > `version_ascii`, else as old OEM text. */
void vornsave_set_lectura_ANSI_ASCII_segun_version(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
/** Whether what follows is a file of this signature, of a version up to `version`; its title, new, through `titulo`.
    Shows no message. */
vnbool vornsave_fichero_valido(vornsave *vornsave_datos, uint16_t version, uint16_t version_ascii, const char *firma,
                               VN_SALIDA char **titulo);
/** Whether the next bytes are those of `marca`; the position is after them if so, where it was if not. The second form
    is for binary streams only. */
vnbool vornsave_comprueba_marca_fichero(const char *marca, vornsave *vornsave_datos);
vnbool vornsave_se_comprueba_cabecera_bin(const char *marca, vornsave *vornsave_datos);

VN_C_FIN

#endif
