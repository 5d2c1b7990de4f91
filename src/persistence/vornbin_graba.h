/* Binary project files: values written to an open stream. A writer takes the value first and the stream last. vornbin.h
   tells what holds for all. */
#ifndef VN_VORNBIN_GRABA_H
#define VN_VORNBIN_GRABA_H

#include "../foundation/ficheros/lc_fichero.h"

VN_C_INICIO

/** One byte, 0 or 1. Another truth value is reported, and its low byte written. */
void bin_graba_bool(vnbool valor, vnfichero *f);
/** One byte; 2, 4 or 8 bytes; IEEE-754. */
void bin_graba_byte(uint8_t dato, vnfichero *f);
void bin_graba_char(char dato, vnfichero *f);
void bin_graba_uchar(uint8_t dato, vnfichero *f);
void bin_graba_short(int16_t dato, vnfichero *f);
void bin_graba_ushort(uint16_t dato, vnfichero *f);
void bin_graba_long(int32_t dato, vnfichero *f);
void bin_graba_ulong(uint32_t dato, vnfichero *f);
void bin_graba_long64(int64_t dato, vnfichero *f);
void bin_graba_ulong64(uint64_t dato, vnfichero *f);
void bin_graba_float(float dato, vnfichero *f);
/** 8 bytes. A number that is not finite is reported, and written. */
void bin_graba_double(double dato, vnfichero *f);
/** The letter S or N. Another letter is reported, and written. */
void bin_graba_SN(char dato, vnfichero *f);
/** Length in 2 bytes, then the bytes of the text. A text of more than 65535 bytes is reported; the low 16 bits of its
    length and that many bytes are written then. */
void bin_graba_cadena(const char *buf, vnfichero *f);
/** Length in 4 bytes, then 2 bytes per character. */
void bin_graba_cadena_unicode(const vnwchar *buf, vnfichero *f);
/** Byte 0 for null; else byte 1 and the text. */
void bin_graba_null(VN_OPC const char *buf, vnfichero *f);
void bin_graba_null_unicode(VN_OPC const vnwchar *buf, vnfichero *f);
/** Byte 0 for null; else byte 1 and the number. */
void bin_graba_double_posible_null(VN_OPC const double *dato, vnfichero *f);
/** x, then y, each by bin_graba_double. */
void bin_graba_punto(const Punto2D *pto, vnfichero *f);
/** x, then y, as 16 bytes, whatever they hold. */
void bin_graba_punto2D(const Punto2D *pto, vnfichero *f);
/** The bytes as they are. */
void bin_graba_buffer(VN_LON(tamanyo) const void *buf, uint32_t tamanyo, vnfichero *f);
/** `tamanyo` wide characters as they are, 2 bytes each. */
void bin_graba_buffer_u(VN_LON(tamanyo) const vnwchar *buf, uint32_t tamanyo, vnfichero *f);

VN_C_FIN

#endif
