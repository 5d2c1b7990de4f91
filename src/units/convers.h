/* Values with their unit: a value is kept in one internal unit and shown in that of the system of units in force
   (vornconf.h). A value type says what a number means; its row of the table tells what is shown for it in each system.

   Texts that are returned are new blocks of the tracked heap, freed with vornstr_destruye (ANSI) or widestr_destruye
   (wide), one allocation each; unit texts belong to the table and are not freed. Numbers have a period, whatever the
   region; not-a-number shows as "nan", an infinity as "inf". A type beyond CNV_NO_CONVERSION is reported: 0, an empty
   unit text, a null text, or, where a value is rounded, the value as it came.

   Unit texts are those of the language that was active at the first query, until the exit list runs (vnatexit_ejecuta):
   a host that changes the language runs it first. Threads: any, the first query included; each operation looks once at
   its type, the system and the unit, so that a change by another thread is seen whole or not at all. */
#ifndef VN_CONVERS_H
#define VN_CONVERS_H

#include "convers_redondeo.h"
#include "convers_texto.h"
#include "convers_unidades.h"
#include "convers_valor.h"

#endif
