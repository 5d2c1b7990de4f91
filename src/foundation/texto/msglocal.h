/* Messages: user-visible texts in the languages of the family, and which language is active. Threads: any may ask; the
   language is the process's, and a change is seen by each at its next text. */
#ifndef VN_MSGLOCAL_H
#define VN_MSGLOCAL_H

#include "../suelo/tipos.h"

/** Number of public language numbers: a language index plus 1. */
#define NUM_IDIOMAS 40
/** Columns of a message group. */
#define MSGLOCAL_NUM_TEXTOS 41

/** A message group: one text in all languages, filled by a small function of its module.

    `textos` has one column per language: 0 Spanish, 1 French, 2 Portuguese of Brazil, 3 Portuguese of Portugal,
    4 Catalan, 5 Italian, 6, 7 and 24 American Spanish, 8 English, 9 Galician, 10 Bulgarian, 11 Romanian, 12 Chinese,
    13 German, 18 Russian, 31 Polish, 33 Turkish, 39 Japanese; the others repeat Spanish or English. Each begins with
    the message's id in angle brackets. Wide texts for the wide reader; for the ANSI reader 8-bit texts in the code page
    of the column's language, or "FFFF" and the hexadecimal digits of the text's UTF-16LE units. */
typedef struct vnmensaje {
    const char *nombre;                      /**< the group, as "vornbin.msg" */
    uint32_t orden;                          /**< ordinal of the message inside its group */
    uint32_t ancho_id;                       /**< characters of the id with its brackets; 0 for texts without one */
    const void *textos[MSGLOCAL_NUM_TEXTOS]; /**< one text per column */
    const void *fin;                         /**< null */
} vnmensaje;
/** Fills a message group; what it points at must stay. */
typedef void (*vnfunc_mensaje)(vnmensaje *mensaje);

VN_C_INICIO

/** The message in the active language, without its id. Borrowed: valid until the process ends (a decoded "FFFF" text of
    the ANSI reader: until the exit list runs). Empty if `rellena` is null. A column without text gives the Spanish one,
    or an empty text when there is none; a text that lacks the id is given whole; a badly coded "FFFF" text is given as
    it stands. */
const vnwchar *nousar_msglocal_original_u(vnfunc_mensaje rellena);
const char *nousar_msglocal_original(vnfunc_mensaje rellena);
/** The message in the base language, Spanish. As nousar_msglocal_original_u. */
const vnwchar *nousar_original_u(vnfunc_mensaje rellena);
const char *nousar_original(vnfunc_mensaje rellena);
/** The message in the active language, formatted with the arguments that follow (a wide `%s` takes wide text). The
    text is new and the caller's; null if `rellena` is null. */
vnwchar *textomsgu_obtener_mensaje(vnfunc_mensaje rellena, ...);
/** The same in a language, by the index that msidioma_dame_idioma returns. An index that is none is reported: null. */
vnwchar *textomsgu_obtener_mensaje_idioma(VN_RANGO(0, 40) int idioma, vnfunc_mensaje rellena, ...);

/** The active language's index: 0 Spanish, 1 French, 2 Portuguese of Brazil, 3 Catalan, 4 Italian, 5 Portuguese of
    Portugal, 6, 7 and 24 American Spanish, 8 English, 9 Galician, 10 Bulgarian, 11 Romanian, 12 Chinese, 13 German,
    18 Russian, 31 Polish, 33 Turkish, 39 Japanese, up to 40. Until the host sets one it is the environment's: LC_ALL,
    LC_MESSAGES or LANG, or the user interface's language on Windows; Spanish where that says nothing, English where it
    says a language that is not here. Not the numbering of the columns of a message: the library translates. */
int msidioma_dame_idioma(void);
/** Sets the active language, process-wide. An index that is none is reported and changes nothing. */
void msidioma_establece_idioma(VN_RANGO(0, 40) int idioma);
/** Whether the active language is English (8). */
vnbool msidioma_es_idioma_ingles(void);

VN_C_FIN

#endif
