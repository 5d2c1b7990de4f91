#define VN_MODULO "timecalc (NUCLEOS.DLL)"
#include "time/timecalc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/calendario_int.h"

using namespace vn;

namespace {

struct momento {
    int32_t dia, mes, anyo, hora, minuto, segundo;
};

// Days from the start of a year to the day of another that is not before it.
int32_t dias_entre(int32_t anyo_ini, int32_t anyo_fin, int32_t dia_del_anyo) {
    if (!AFIRMA(anyo_fin >= anyo_ini)) return 0;
    return static_cast<int32_t>(dias_hasta_anyo(anyo_fin) - dias_hasta_anyo(anyo_ini)) + dia_del_anyo;
}

int64_t segundos_de(const momento &m) {
    const auto &[dia, mes, anyo, hora, minuto, segundo] = m;
    // The years that 32 bits can count in full.
    if (!AFIRMA(anyo >= 1970 && anyo < 2038) || !AFIRMA(mes >= 1 && mes <= 12)) return 0;
    const int32_t dias_mes = dias_del_mes(static_cast<uint32_t>(mes - 1), anyo);
    if (!AFIRMA(dia >= 1 && dia <= dias_mes)) return 0;
    if (!AFIRMA(hora >= 0 && hora < 24) || !AFIRMA(minuto >= 0 && minuto < 60)) return 0;
    if (!AFIRMA(segundo >= 0 && segundo < 60)) return 0;
    const int32_t dias = dias_entre(1970, anyo, DIAS_ANTES[es_bisiesto(anyo)][mes - 1] + dia - 1);
    return dias * SEGUNDOS_DIA + hora * 3600 + minuto * 60 + segundo;
}

// The last second of the year 9999.
constexpr int64_t ULTIMO_SEGUNDO = 253402300799;

void descompone(int64_t t, int32_t *dia, int32_t *mes, int32_t *anyo, int32_t *hora, int32_t *minuto,
                int32_t *segundo) {
    if (!EXIGE(dia, mes, anyo)) return;
    // After the report the results are those of the first second.
    if (!AFIRMA(t >= 0 && t <= ULTIMO_SEGUNDO)) t = 0;
    const dia_del_calendario d = dia_de(t / SEGUNDOS_DIA);
    const auto resto = static_cast<int32_t>(t % SEGUNDOS_DIA);
    *dia = d.dia;
    *mes = static_cast<int32_t>(d.mes) + 1;
    *anyo = static_cast<int32_t>(d.anyo);
    if (hora != nullptr) *hora = resto / 3600;
    if (minuto != nullptr) *minuto = resto / 60 % 60;
    if (segundo != nullptr) *segundo = resto % 60;
}

// The DOS date and time of a file time: 7 bits of the year from 1980, 4 of the month, 5 of the day; 5 of the hour, 6 of
// the minute, 5 of the pair of seconds. FALSO outside the years that fit.
vnbool a_fecha_DOS(const vnFILETIME &filetime, uint16_t &fecha, uint16_t &hora) {
    constexpr uint64_t PASOS_POR_SEGUNDO = 10000000, DE_1601_A_1970 = 11644473600;
    // A file time counts steps of 100 ns from 1601.
    const uint64_t segundos = (uint64_t{filetime.dwHighDateTime} << 32 | filetime.dwLowDateTime) / PASOS_POR_SEGUNDO;
    if (segundos < DE_1601_A_1970) return FALSO;
    const auto t = static_cast<int64_t>(segundos - DE_1601_A_1970);
    const dia_del_calendario d = dia_de(t / SEGUNDOS_DIA);
    if (d.anyo < 1980 || d.anyo > 2107) return FALSO;
    const auto resto = static_cast<int32_t>(t % SEGUNDOS_DIA);
    fecha = static_cast<uint16_t>((d.anyo - 1980) << 9 | (d.mes + 1) << 5 | static_cast<uint32_t>(d.dia));
    hora = static_cast<uint16_t>(resto / 3600 << 11 | resto / 60 % 60 << 5 | resto % 60 / 2);
    return CIERTO;
}

int64_t segundos_de_FILETIME(const vnFILETIME *filetime) {
    if (!AFIRMA_NO_NULO(filetime)) return 0;
    uint16_t fecha = 0, hora = 0;
    // Through the DOS form, which knows even seconds alone.
    const vnbool convertido = a_fecha_DOS(*filetime, fecha, hora);
    if (!AFIRMA(convertido == CIERTO)) return 0;
    return segundos_de({fecha & 31, fecha >> 5 & 15, (fecha >> 9) + 1980, hora >> 11, hora >> 5 & 63, (hora & 31) * 2});
}

} // namespace

int32_t timecalc_convierte_fecha_y_hora_a_time32_t(int32_t dia, int32_t mes, int32_t anyo, int32_t hora, int32_t minuto,
                                                   int32_t segundo) {
    return static_cast<int32_t>(segundos_de({dia, mes, anyo, hora, minuto, segundo}));
}

int64_t timecalc_convierte_fecha_y_hora_a_time_t(int32_t dia, int32_t mes, int32_t anyo, int32_t hora, int32_t minuto,
                                                 int32_t segundo) {
    return segundos_de({dia, mes, anyo, hora, minuto, segundo});
}

void timecalc_convierte_time32_t_a_fecha_y_hora(int32_t t, int32_t *dia, int32_t *mes, int32_t *anyo, int32_t *hora,
                                                int32_t *minuto, int32_t *segundo) {
    descompone(t, dia, mes, anyo, hora, minuto, segundo);
}

void timecalc_convierte_time64_t_a_fecha_y_hora(int64_t t, int32_t *dia, int32_t *mes, int32_t *anyo, int32_t *hora,
                                                int32_t *minuto, int32_t *segundo) {
    descompone(t, dia, mes, anyo, hora, minuto, segundo);
}

void timecalc_convierte_time_t_a_fecha_y_hora(int64_t t, int32_t *dia, int32_t *mes, int32_t *anyo, int32_t *hora,
                                              int32_t *minuto, int32_t *segundo) {
    descompone(t, dia, mes, anyo, hora, minuto, segundo);
}

int32_t timecalc_convierte_FILETIME_a_time32_t(const vnFILETIME *filetime) {
    return static_cast<int32_t>(segundos_de_FILETIME(filetime));
}

int64_t timecalc_convierte_FILETIME_a_time64_t(const vnFILETIME *filetime) { return segundos_de_FILETIME(filetime); }

int64_t timecalc_convierte_FILETIME_a_time_t(const vnFILETIME *filetime) { return segundos_de_FILETIME(filetime); }
