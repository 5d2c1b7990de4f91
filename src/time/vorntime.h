/* Dates and times: a broken-down record, its seconds since 1970, and the texts that files, lists and dialogs need. No
   time zone enters but where an operation says local time. Years are those of the Gregorian calendar.

   Two features of the count of seconds stay as they are, because files hold it: it is one day ahead for dates of
   1970 to 1972, and again from 2101 on, since it counts a leap day for every fourth year before. The way back
   knows neither. */
#ifndef VN_VORNTIME_H
#define VN_VORNTIME_H

#include "vorntime_fecha.h"
#include "vorntime_nombres.h"
#include "vorntime_segundos.h"
#include "vorntime_textos.h"

#endif
