/* Values as lines of a text stream.

   Writers take the value first and the stream last. A plain member writes the value and one blank and leaves the line
   open for the next value, or for a comment; a `_y_salta` member ends the line; so do the truth values and the texts,
   unless their name says otherwise. A reader passes over blanks and line ends, takes the value, and then the one blank
   or, if it is a `_y_salta` member, the rest of the line with its end. So what the writers wrote comes back through the
   readers of the same names.

   Numbers are decimal, doubles in the shortest form that gives the same double back, or nan, inf, -inf; a char is
   the number of its code, 0 to 255. ANSI texts are written as they are: a line end inside makes two lines. A line ends
   with LF or CR LF on reading, and on writing as the stream's text mode says. Something that is no value of the type,
   or the end of the stream where a value is due, is reported by lc_error_leyendo_fichero and gives 0 or an empty text.

   One wide text is one line of UTF-8, with every unit kept: a control character (below 32, or 127) and a half of a
   surrogate pair that stands alone are written as the byte 16 and four hexadecimal digits. */
#ifndef VN_VTXT_H
#define VN_VTXT_H

#include "vtxt_escribe.h"
#include "vtxt_lee.h"
#include "vtxt_trata.h"

#endif
