/* Wide text: UTF-16 units, zero-terminated. Texts that are returned are new blocks of the tracked heap, freed with
   widestr_destruye. Lengths and positions count units. Letter case maps one unit to one unit and back again: a letter
   without such a partner (sharp s, dotless i, long s, letters beyond the first plane) keeps its case. */
#ifndef VN_WIDESTR_H
#define VN_WIDESTR_H

#include "widestr_consulta.h"
#include "widestr_crea.h"

#endif
