#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_escalares.h"

#include "foundation/numeros/cambtipo.h"
#include "foundation/numeros/punto.h"
#include "foundation/numeros/vnmath.h"
#include "persistence/vornsave_priv.h"

using namespace vn;

// One value of one entry. A row: operation, value type, entry, progress.
#define GRABA(nombre, tipo, entrada, progreso)                                                                         \
    void nombre(tipo valor, vornsave *vornsave_datos) { graba<GRABAR(entrada), progreso>(vornsave_datos, valor); }
#define LEE(nombre, tipo, entrada, progreso)                                                                           \
    tipo nombre(vornsave *vornsave_datos) { return lee<LEER(entrada), progreso>(vornsave_datos); }
#define SALTA(nombre, entrada, progreso)                                                                               \
    void nombre(vornsave *vornsave_datos) { lee<LEER(entrada), progreso>(vornsave_datos); }

// Values of one byte leave the bar alone.
GRABA(vornsave_graba_bool, vnbool, bool, SIN_PROGRESO)
GRABA(vornsave_graba_char, char, char, SIN_PROGRESO)
GRABA(vornsave_graba_uchar, uint8_t, uchar, SIN_PROGRESO)
GRABA(vornsave_graba_short, int16_t, short, CON_PROGRESO)
GRABA(vornsave_graba_ushort, uint16_t, ushort, CON_PROGRESO)
GRABA(vornsave_graba_long, int32_t, long, CON_PROGRESO)
GRABA(vornsave_graba_ulong, uint32_t, ulong, CON_PROGRESO)
GRABA(vornsave_graba_long64, int64_t, long64, CON_PROGRESO)
GRABA(vornsave_graba_ulong64, uint64_t, ulong64, CON_PROGRESO)
GRABA(vornsave_graba_float, float, float, CON_PROGRESO)
GRABA(vornsave_graba_double, double, double, CON_PROGRESO)

LEE(vornsave_lee_bool, vnbool, bool, SIN_PROGRESO)
LEE(vornsave_lee_uchar, uint8_t, uchar, SIN_PROGRESO)
LEE(vornsave_lee_short, int16_t, short, CON_PROGRESO)
LEE(vornsave_lee_ushort, uint16_t, ushort, CON_PROGRESO)
LEE(vornsave_lee_long, int32_t, long, CON_PROGRESO)
LEE(vornsave_lee_ulong, uint32_t, ulong, CON_PROGRESO)
LEE(vornsave_lee_long64, int64_t, long64, CON_PROGRESO)
LEE(vornsave_lee_ulong64, uint64_t, ulong64, CON_PROGRESO)
LEE(vornsave_lee_float, float, float, SIN_PROGRESO)
LEE(vornsave_lee_double, double, double, CON_PROGRESO)

SALTA(vornsave_salta_bool, bool, SIN_PROGRESO)
SALTA(vornsave_salta_uchar, uchar, SIN_PROGRESO)
SALTA(vornsave_salta_short, short, CON_PROGRESO)
SALTA(vornsave_salta_ushort, ushort, CON_PROGRESO)
// An enumeration is stored as an unsigned short.
SALTA(vornsave_salta_enum, ushort, CON_PROGRESO)
SALTA(vornsave_salta_long, long, CON_PROGRESO)
SALTA(vornsave_salta_ulong, ulong, CON_PROGRESO)
SALTA(vornsave_salta_long64, long64, CON_PROGRESO)
SALTA(vornsave_salta_ulong64, ulong64, CON_PROGRESO)
SALTA(vornsave_salta_float, float, SIN_PROGRESO)
SALTA(vornsave_salta_double, double, CON_PROGRESO)

void vornsave_graba_bool_con_texto(vnbool valor, vornsave *vornsave_datos, const char *texto1, const char *texto2) {
    if (!puede_grabar<GRABAR(bool_texto)>(vornsave_datos)) return;
    if (!EXIGE_AL_GRABAR(vornsave_datos, texto1, texto2)) return;
    graba<GRABAR(bool_texto)>(vornsave_datos, valor, texto1, texto2);
}

vnbool vornsave_lee_bool_con_texto(vornsave *vornsave_datos, const char *texto1, const char *texto2) {
    if (!EXIGE(vornsave_datos, texto1, texto2)) return FALSO;
    return lee<LEER(bool_texto)>(vornsave_datos, texto1, texto2);
}

char vornsave_lee_char(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return 0;
    // A file of the OEM times has its characters in another page.
    return vornsave_datos->ANSI == CIERTO ? lee<LEER(char)>(vornsave_datos) : lee<LEER(char_ASCII)>(vornsave_datos);
}

char vornsave_lee_char_ansi_ascii(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii) {
    return version > version_ascii ? lee<LEER(char)>(vornsave_datos) : lee<LEER(char_ASCII)>(vornsave_datos);
}

// A wide unit goes as the number that it is.
void vornsave_graba_wchar(vnwchar valor, vornsave *vornsave_datos) {
    graba<GRABAR(ushort)>(vornsave_datos, static_cast<uint16_t>(valor));
}

vnwchar vornsave_lee_wchar(vornsave *vornsave_datos) { return static_cast<vnwchar>(lee<LEER(ushort)>(vornsave_datos)); }

void vornsave_graba_double_con_precision(double valor, double paso, vornsave *vornsave_datos) {
    if (!puede_grabar<GRABAR(double)>(vornsave_datos)) return;
    graba<GRABAR(double)>(vornsave_datos, prec_redondea_decimales(valor, paso));
}

double vornsave_lee_double_con_posible_error_en_binario(vornsave *vornsave_datos, vnbool *es_incorrecto,
                                                        vnbool *es_denormal) {
    if (!EXIGE(vornsave_datos, es_incorrecto, es_denormal)) return 0.;
    *es_incorrecto = *es_denormal = FALSO;
    return lee<LEER(double_con_posible_error)>(vornsave_datos, es_incorrecto, es_denormal);
}

void vornsave_graba_punto(const Punto2D *pto, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, pto)) return;
    if (!puede_grabar<GRABAR(double)>(vornsave_datos)) return;
    graba<GRABAR(double)>(vornsave_datos, pto->x);
    graba<GRABAR(double)>(vornsave_datos, pto->y);
}

Punto2D *vornsave_lee_punto(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(double)>(vornsave_datos)) return nullptr;
    // One statement each: within a call the order of the arguments would be the compiler's.
    const double x = lee<LEER(double)>(vornsave_datos);
    const double y = lee<LEER(double)>(vornsave_datos);
    return creapunto(x, y);
}

Punto2D *vornsave_lee_punto_float(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(float)>(vornsave_datos)) return nullptr;
    const float x = lee<LEER(float)>(vornsave_datos);
    const float y = lee<LEER(float)>(vornsave_datos);
    return creapunto(static_cast<double>(x), static_cast<double>(y));
}

// ---- 64 bits in two halves, the upper one first.

void vornsave_graba_uint64(uint64_t valor, vornsave *vornsave_datos) {
    if (!puede_grabar<GRABAR(ulong)>(vornsave_datos)) return;
    graba<GRABAR(ulong)>(vornsave_datos, static_cast<uint32_t>(valor >> 32));
    graba<GRABAR(ulong)>(vornsave_datos, static_cast<uint32_t>(valor));
}

uint64_t vornsave_lee_uint64(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(ulong)>(vornsave_datos)) return 0;
    // The upper half in a statement of its own, so that it is read first.
    const uint64_t alta = lee<LEER(ulong)>(vornsave_datos);
    return alta << 32 | lee<LEER(ulong)>(vornsave_datos);
}

#define EN_MITADES(nombre_graba, nombre_lee, tipo)                                                                     \
    void nombre_graba(tipo valor, vornsave *vornsave_datos) {                                                          \
        vornsave_graba_uint64(static_cast<uint64_t>(valor), vornsave_datos);                                           \
    }                                                                                                                  \
    tipo nombre_lee(vornsave *vornsave_datos) { return static_cast<tipo>(vornsave_lee_uint64(vornsave_datos)); }
EN_MITADES(vornsave_graba_int64, vornsave_lee_int64, int64_t)
EN_MITADES(vornsave_graba_fecha, vornsave_lee_fecha, int64_t)
EN_MITADES(vornsave_graba_fecha_64, vornsave_lee_fecha_64, int64_t)
EN_MITADES(vornsave_graba_size64, vornsave_lee_size64, uint64_t)

int64_t vornsave_nousar_lee_fecha_de_64(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(long)>(vornsave_datos)) return 0;
    // Of the two halves only the lower one counts.
    lee<LEER(long)>(vornsave_datos);
    return lee<LEER(long)>(vornsave_datos);
}

void vornsave_graba_time(int64_t valor, vornsave *vornsave_datos) { vornsave_graba_long64(valor, vornsave_datos); }

int64_t vornsave_lee_time(vornsave *vornsave_datos) {
    return cambtipo_int64_a_time_t(vornsave_lee_long64(vornsave_datos));
}

void vornsave_graba_time32(int64_t valor, vornsave *vornsave_datos) {
    if (!puede_grabar<GRABAR(long)>(vornsave_datos)) return;
    if (valor < INT32_MIN || valor > INT32_MAX) vornsave_datos->falla(); // reported by the conversion
    vornsave_graba_long(cambtipo_time_t_a_long(valor), vornsave_datos);
}

int64_t vornsave_lee_time32(vornsave *vornsave_datos) {
    return cambtipo_long_a_time_t(vornsave_lee_long(vornsave_datos));
}
