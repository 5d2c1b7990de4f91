#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "time/vorntime_segundos.h"
#include "foundation/numeros/cambtipo.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/calendario_int.h"
#include "time/vorntime_priv.h"

using namespace vn;

namespace {

// The last second of the last year that a record can hold.
constexpr int64_t ULTIMO_SEGUNDO = 67768036191676799;
static_assert((dias_hasta_anyo(int64_t{INT32_MAX} + 1901)) * SEGUNDOS_DIA - 1 == ULTIMO_SEGUNDO);

// Days of 1 January of a year as files count them: a leap day for each fourth year, of centuries too, and for 1970 to
// 1972 one before there has been any, since the division goes toward zero.
constexpr int64_t dias_de_enero(int64_t anyo) { return (anyo - 1970) * 365 + (anyo - 1973) / 4 + 1; }

// Day 3 was a Sunday. The remainder goes toward zero, so that those of earlier days are below it.
constexpr int16_t dia_de_la_semana(int64_t dias) { return static_cast<int16_t>((dias - 3) % 7); }

} // namespace

namespace vn {

bool pon_fecha_de(int64_t t, tmtime &fecha) {
    if (!AFIRMA(t >= 0 && t <= ULTIMO_SEGUNDO)) {
        fecha = INICIO_1970;
        return false;
    }
    // The way back by the true calendar, which knows neither of the two features.
    const int64_t dias = t / SEGUNDOS_DIA;
    const auto resto = static_cast<int32_t>(t - dias * SEGUNDOS_DIA);
    const dia_del_calendario d = dia_de(dias);
    fecha.tm_sec = resto % 60;
    fecha.tm_min = resto / 60 % 60;
    fecha.tm_hour = resto / 3600;
    fecha.tm_mday = d.dia;
    fecha.tm_mon = static_cast<int32_t>(d.mes);
    fecha.tm_year = static_cast<int32_t>(d.anyo - 1900);
    fecha.tm_wday = dia_de_la_semana(dias);
    fecha.tm_yday = DIAS_ANTES[es_bisiesto(d.anyo)][d.mes] + d.dia - 1;
    fecha.tm_isdst = 0;
    return true;
}

} // namespace vn

int64_t vtm_convierte_fecha_a_time_t(const tmtime *fecha) {
    if (!AFIRMA_NO_NULO(fecha)) return 0;
    // The month is an index below; the other fields are mere factors.
    if (!mes_posible(*fecha)) [[unlikely]] {
        AFIRMA_DEFECTO();
        return 0;
    }
    const int64_t anyo = int64_t{fecha->tm_year} + 1900;
    const int64_t dias = dias_de_enero(anyo) + DIAS_ANTES[es_bisiesto(anyo)][fecha->tm_mon] + fecha->tm_mday - 1;
    return dias * SEGUNDOS_DIA + int64_t{fecha->tm_hour} * 3600 + int64_t{fecha->tm_min} * 60 + fecha->tm_sec;
}

uint32_t vtm_convierte_fecha_a_segundos(const tmtime *fecha) {
    return AFIRMA_NO_NULO(fecha) ? cambtipo_time_t_a_unsigned_long(vtm_convierte_fecha_a_time_t(fecha)) : 0;
}

void vtm_convierte_time64t_a_fecha(int64_t t, tmtime *fecha) {
    if (AFIRMA_NO_NULO(fecha)) pon_fecha_de(t, *fecha);
}

void vtm_convierte_timet_a_fecha(int64_t t, tmtime *fecha) { vtm_convierte_time64t_a_fecha(t, fecha); }

void vtm_convierte_segundos_a_fecha(uint32_t segundos, tmtime *fecha) {
    if (AFIRMA_NO_NULO(fecha)) pon_fecha_de(segundos, *fecha);
}

int64_t vtm_convierte_duracion_a_segundos(const tmtime *duracion) {
    if (!AFIRMA_NO_NULO(duracion)) return 0;
    return duracion->tm_mday * SEGUNDOS_DIA + int64_t{duracion->tm_hour} * 3600 + int64_t{duracion->tm_min} * 60 +
           duracion->tm_sec;
}

uint32_t vtm_segundos_en_un_mes(uint32_t mes, int32_t anyo) {
    return vorntime_num_dias_mes(mes, anyo) * static_cast<uint32_t>(SEGUNDOS_DIA);
}

uint32_t vtm_segundos_en_un_anyo(int32_t anyo) { return es_bisiesto(anyo) ? 31622400 : 31536000; }

int64_t vtm_segundos_el_uno_enero_anyo(int32_t anyo) { return dias_de_enero(anyo) * SEGUNDOS_DIA; }

int16_t vtm_dia_de_la_semana_tim64t(int64_t t) { return dia_de_la_semana(t / SEGUNDOS_DIA); }

int16_t vtm_dia_de_la_semana_segundos(uint32_t segundos) { return dia_de_la_semana(segundos / SEGUNDOS_DIA); }

uint32_t vorntime_num_dias_mes(uint32_t mes, int32_t anyo) {
    if (mes > 11) [[unlikely]] {
        AFIRMA_DEFECTO();
        return 0;
    }
    return static_cast<uint32_t>(dias_del_mes(mes, anyo));
}

uint32_t vorntime_dia_juliano_1_365_de_dia_y_mes(uint32_t numero_dia_1_31, uint32_t numero_mes_1_12) {
    const bool dia_posible = AFIRMA(numero_dia_1_31 >= 1) && AFIRMA(numero_dia_1_31 <= 31);
    const bool mes_posible = AFIRMA(numero_mes_1_12 >= 1) && AFIRMA(numero_mes_1_12 <= 12);
    if (!dia_posible || !mes_posible) return 0;
    // The year has 365 days here: 29 February is refused.
    const auto &antes = DIAS_ANTES[0];
    const auto num_dias_mes = static_cast<uint32_t>(antes[numero_mes_1_12] - antes[numero_mes_1_12 - 1]);
    if (!AFIRMA(numero_dia_1_31 <= num_dias_mes)) return 0;
    const uint32_t dia_juliano = static_cast<uint32_t>(antes[numero_mes_1_12 - 1]) + numero_dia_1_31;
    return AFIRMA(dia_juliano >= 1) && AFIRMA(dia_juliano <= 365) ? dia_juliano : 0;
}

void vorntime_dia_y_mes_de_dia_juliano(uint32_t dia_juliano_1_365, uint32_t *dia, uint32_t *mes) {
    uint32_t numero_dia = 0, numero_mes = 0;
    if (AFIRMA(dia_juliano_1_365 >= 1) && AFIRMA(dia_juliano_1_365 <= 365)) {
        while (static_cast<uint32_t>(DIAS_ANTES[0][numero_mes]) < dia_juliano_1_365) ++numero_mes;
        numero_dia = dia_juliano_1_365 - static_cast<uint32_t>(DIAS_ANTES[0][numero_mes - 1]);
    }
    if (dia != nullptr) *dia = numero_dia;
    if (mes != nullptr) *mes = numero_mes;
}
