/* Markers of the editable text form, which is wrapped, joined again and opened in editors: blanks and line ends that
   would not survive it are written with a hash sign. "#s" is a line end (LF), "#r" a CR, "#t" a tab, "#e" a blank,
   "#[" a square bracket at the beginning of a line (no text line looks like a tag), "##" a hash. A hash before anything
   else is itself. All return a new ANSI text, the caller's. */
#ifndef VN_TRATATXT_H
#define VN_TRATATXT_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Plain text to its marked form: every hash, line end and tab, and the blanks that are first, last, or beside a line
    end, a tab or another blank, and a square bracket at the beginning. Single blanks between words stay, so that the
    result can be wrapped there. */
char *tratatxt_recupera_espacio_y_salto_linea(const char *texto);
/** Marked form to plain text: the inverse of tratatxt_recupera_espacio_y_salto_linea, for every text. */
char *tratatxt_convierte_espacio_y_salto_linea(const char *texto);
/** One line cut from a marked text, made safe to stand in a file: leading blanks, line ends and a leading square
    bracket are marked. Markers that are there already stay. */
char *tratatxt_prepara_almohadilla_espacios_y_salto_linea(const char *linea);
/** Colour codes, which a text holds as a pilcrow, a palette number and ";", may be edited by name: the Spanish names of
    the colours 1 to 9 (rojo, amarillo, verde, cian, azul, magenta, blanco, gris, gris claro), in any case, become their
    number. Anything else stays as it is. */
char *tratatxt_traducir_codigos_color(const char *texto);

VN_C_FIN

#endif
