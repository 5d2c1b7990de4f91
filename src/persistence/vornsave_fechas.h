/* The save protocol: numbers of 64 bits in halves, dates and sizes. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_FECHAS_H
#define VN_VORNSAVE_FECHAS_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** 64-bit integers in two halves of 32 bits, the upper one first: not the form of vornsave_graba_long64. Dates are
    seconds, sizes are bytes. */
void vornsave_graba_int64(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_int64(vornsave *vornsave_datos);
void vornsave_graba_uint64(uint64_t valor, vornsave *vornsave_datos);
uint64_t vornsave_lee_uint64(vornsave *vornsave_datos);
void vornsave_graba_fecha(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_fecha(vornsave *vornsave_datos);
void vornsave_graba_size64(uint64_t valor, vornsave *vornsave_datos);
uint64_t vornsave_lee_size64(vornsave *vornsave_datos);
void vornsave_graba_fecha_64(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_fecha_64(vornsave *vornsave_datos);
/** Date of the old form: two longs, of which the second counts. */
int64_t vornsave_nousar_lee_fecha_de_64(vornsave *vornsave_datos);
/** Seconds since 1970 as one 64-bit or one 32-bit number. A time that does not fit in 32 bits is reported. */
void vornsave_graba_time(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_time(vornsave *vornsave_datos);
void vornsave_graba_time32(int64_t valor, vornsave *vornsave_datos);
int64_t vornsave_lee_time32(vornsave *vornsave_datos);

VN_C_FIN

/* Typed forms: `tipo` is the element's type, and a function for another type does not compile. */
#define vornsave_lee_fecha_de_64(datos) vornsave_nousar_lee_fecha_de_64(datos)

#endif
