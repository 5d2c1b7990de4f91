/* Checked conversions between number types. Each reports a value that does not fit and then gives the nearest one that
   does (0 for not-a-number). "long" is 32 bits, "long64" and `time_t` are 64 bits, on every platform. */
#ifndef VN_CAMBTIPO_H
#define VN_CAMBTIPO_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Whole part of `valor`, which must lie above -1 and below 2^32. */
uint32_t cambtipo_double_a_ulong(double valor);
/** Whether cambtipo_double_a_ulong would take `valor`. */
vnbool cambtipo_se_puede_double_a_ulong(double valor);

/** The value in the other type. */
size_t cambtipo_int64_a_size_t(VN_RANGO(0, 9223372036854775807) int64_t valor);
int64_t cambtipo_int64_a_time_t(int64_t valor);
uint32_t cambtipo_int64_a_unsigned_long(VN_RANGO(0, 4294967295) int64_t valor);
char cambtipo_int_a_char(VN_RANGO(-128, 127) int valor);
unsigned char cambtipo_int_a_unsigned_char(VN_RANGO(0, 255) int valor);
uint32_t cambtipo_int_a_unsigned_long(VN_RANGO(0, 2147483647) int valor);
uint16_t cambtipo_int_a_unsigned_short(VN_RANGO(0, 65535) int valor);
int64_t cambtipo_long_a_time_t(int32_t valor);
uint32_t cambtipo_long_a_unsigned_long(VN_RANGO(0, 2147483647) int32_t valor);
unsigned int cambtipo_short_a_unsigned_int(VN_RANGO(0, 32767) int16_t valor);
uint32_t cambtipo_size_t_a_unsigned_long(VN_RANGO(0, 4294967295) size_t valor);
int32_t cambtipo_time_t_a_long(VN_RANGO(-2147483648, 2147483647) int64_t valor);
uint32_t cambtipo_time_t_a_unsigned_long(VN_RANGO(0, 4294967295) int64_t valor);
int cambtipo_unsigned_int_a_int(VN_RANGO(0, 2147483647) unsigned int valor);
uint32_t cambtipo_unsigned_long64_a_unsigned_long(VN_RANGO(0, 4294967295) uint64_t valor);
int cambtipo_unsigned_long_a_int(VN_RANGO(0, 2147483647) uint32_t valor);
int32_t cambtipo_unsigned_long_a_long(VN_RANGO(0, 2147483647) uint32_t valor);
int16_t cambtipo_unsigned_long_a_short(VN_RANGO(0, 32767) uint32_t valor);
unsigned char cambtipo_unsigned_long_a_unsigned_char(VN_RANGO(0, 255) uint32_t valor);
uint16_t cambtipo_unsigned_long_a_unsigned_short(VN_RANGO(0, 65535) uint32_t valor);

VN_C_FIN

#endif
