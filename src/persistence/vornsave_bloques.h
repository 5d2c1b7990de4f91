/* The save protocol: blocks and sections, which a reader that does not know them can pass over, and comments.
   vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_BLOQUES_H
#define VN_VORNSAVE_BLOQUES_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Whether the destination can hold blocks and sections. */
vnbool vornsave_es_posible_marcar_bloques(const vornsave *vornsave_datos);
/** Opens and closes a block or section for writing; what lies between can be passed over by a reader that does not know
    it. They nest. The forms without 64 need positions below 2 GiB. `id` of a block holds no zero and is not empty. One
    that is left open, is closed in another order or ends where its positions cannot tell is reported, and the save
    fails; so it does where a section that is being read is closed by these, and nothing is written then. */
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

VN_C_FIN

#endif
