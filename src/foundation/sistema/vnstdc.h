/* Portable layer: the platform's standard functions under one roof, with one behaviour on every platform. Each does
   what the standard function of that name does, but for this: a null pointer is reported (and the result is 0, null or
   the untouched room), nothing depends on the C locale, and a "long" is 32 bits: "%ld" takes 32 bits of its argument on
   Linux too, 64 take "%lld" or "%I64d". ANSI text is in the active code page (unicode.h), which on Linux is 1252, not
   UTF-8, until the host sets another. */
#ifndef VN_VNSTDC_H
#define VN_VNSTDC_H

#include "vnstdc_formato.h"
#include "vnstdc_numeros.h"
#include "vnstdc_texto.h"
#include "vnstdc_tiempo.h"

#endif
