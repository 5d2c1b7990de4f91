/* The save protocol: truth values, characters and numbers. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_ESCALARES_H
#define VN_VORNSAVE_ESCALARES_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Truth value. One that is neither CIERTO nor FALSO is reported by the destination. */
void vornsave_graba_bool(vnbool valor, vornsave *vornsave_datos);
vnbool vornsave_lee_bool(vornsave *vornsave_datos);
void vornsave_salta_bool(vornsave *vornsave_datos);
/** Truth value that a text destination shows in words: `texto1` for CIERTO, `texto2` for FALSO. */
void vornsave_graba_bool_con_texto(vnbool valor, vornsave *vornsave_datos, const char *texto1, const char *texto2);
vnbool vornsave_lee_bool_con_texto(vornsave *vornsave_datos, const char *texto1, const char *texto2);

/** Character of the ANSI code page. Reading converts old OEM text, by the object's state or by the versions given. */
void vornsave_graba_char(char valor, vornsave *vornsave_datos);
char vornsave_lee_char(vornsave *vornsave_datos);
char vornsave_lee_char_ansi_ascii(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
/** UTF-16 unit. */
void vornsave_graba_wchar(vnwchar valor, vornsave *vornsave_datos);
vnwchar vornsave_lee_wchar(vornsave *vornsave_datos);

/** Numbers of 8, 16, 32 and 64 bits, float and double. */
void vornsave_graba_uchar(uint8_t valor, vornsave *vornsave_datos);
uint8_t vornsave_lee_uchar(vornsave *vornsave_datos);
void vornsave_salta_uchar(vornsave *vornsave_datos);
void vornsave_graba_short(int16_t valor, vornsave *vornsave_datos);
int16_t vornsave_lee_short(vornsave *vornsave_datos);
void vornsave_salta_short(vornsave *vornsave_datos);
void vornsave_graba_ushort(uint16_t valor, vornsave *vornsave_datos);
uint16_t vornsave_lee_ushort(vornsave *vornsave_datos);
void vornsave_salta_ushort(vornsave *vornsave_datos);
void vornsave_graba_long(int32_t valor, vornsave *vornsave_datos);
int32_t vornsave_lee_long(vornsave *vornsave_datos);
void vornsave_salta_long(vornsave *vornsave_datos);
void vornsave_graba_ulong(uint32_t valor, vornsave *vornsave_datos);
uint32_t vornsave_lee_ulong(vornsave *vornsave_datos);
void vornsave_salta_ulong(vornsave *vornsave_datos);
void vornsave_graba_long64(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_long64(vornsave *vornsave_datos);
void vornsave_salta_long64(vornsave *vornsave_datos);
void vornsave_graba_ulong64(uint64_t valor, vornsave *vornsave_datos);
uint64_t vornsave_lee_ulong64(vornsave *vornsave_datos);
void vornsave_salta_ulong64(vornsave *vornsave_datos);
void vornsave_graba_float(float valor, vornsave *vornsave_datos);
float vornsave_lee_float(vornsave *vornsave_datos);
void vornsave_salta_float(vornsave *vornsave_datos);
void vornsave_graba_double(double valor, vornsave *vornsave_datos);
double vornsave_lee_double(vornsave *vornsave_datos);
void vornsave_salta_double(vornsave *vornsave_datos);

/** Passes over an enumerated value, which goes as an unsigned short. */
void vornsave_salta_enum(vornsave *vornsave_datos);
/** Writes `valor` rounded to the nearest multiple of `paso`. */
void vornsave_graba_double_con_precision(double valor, double paso, vornsave *vornsave_datos);
/** Reads a double that may be damaged: says whether it was no number, and whether it was denormal; a bad value is
    replaced. */
double vornsave_lee_double_con_posible_error_en_binario(vornsave *vornsave_datos, VN_SALIDA vnbool *es_incorrecto,
                                                        VN_SALIDA vnbool *es_denormal);

VN_C_FIN

#endif
