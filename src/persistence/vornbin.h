/* Binary project files: the values on an open stream (bin_*), and the header and format prologue that open a file
   (vornbin_*). Everything is little-endian, nothing is aligned, no value has a header of its own. Threads: one for each
   stream; the directory of the samples is set before other threads open files.

   Values. A writer takes the value first and the stream last; a reader takes the stream and returns the value. A failed
   write or a short read is reported by the stream; the bytes that were missing are zero. In a file of the debug
   form one letter before each value tells its kind, and a wrong letter is reported as a read error. */
#ifndef VN_VORNBIN_H
#define VN_VORNBIN_H

#include "vornbin_fichero.h"
#include "vornbin_graba.h"
#include "vornbin_lee.h"
#include "vornbin_trata.h"

#endif
