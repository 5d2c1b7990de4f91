// The Gregorian calendar: closed forms, for every year of 32 bits.
#pragma once

#include <cstdint>

namespace vn::inline suelo {

constexpr int64_t SEGUNDOS_DIA = 86400;

// Days of a year before each month, and those of the whole year.
inline constexpr int16_t DIAS_ANTES[2][13] = {{0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334, 365},
                                              {0, 31, 60, 91, 121, 152, 182, 213, 244, 274, 305, 335, 366}};

// Divisible by 4 and not by 100, or by 400: of the multiples of 4 those of 25 only when they are multiples of 16.
constexpr bool es_bisiesto(int64_t anyo) { return (anyo & 3) == 0 && (anyo % 25 != 0 || (anyo & 15) == 0); }

constexpr int32_t dias_del_mes(uint32_t mes_0_11, int64_t anyo) {
    const auto &antes = DIAS_ANTES[es_bisiesto(anyo)];
    return antes[mes_0_11 + 1] - antes[mes_0_11];
}

// Days between 1 January 1970 and that of a year.
constexpr int64_t dias_hasta_anyo(int64_t anyo) {
    const auto bisiestos_antes = [](int64_t a) {
        const auto suelo = [](int64_t x, int64_t n) { return x / n - (x % n < 0); };
        return suelo(a - 1, 4) - suelo(a - 1, 100) + suelo(a - 1, 400);
    };
    return (anyo - 1970) * 365 + bisiestos_antes(anyo) - bisiestos_antes(1970);
}

// Days between 1 January 1970 and a date, whose month must be possible.
constexpr int64_t dias_de(int64_t anyo, uint32_t mes_0_11, int64_t dia) {
    return dias_hasta_anyo(anyo) + DIAS_ANTES[es_bisiesto(anyo)][mes_0_11] + dia - 1;
}

// The day of the week that is so many days after 1 January 1970, a Thursday: 0 Sunday to 6.
constexpr int32_t semana_de(int64_t dias) {
    constexpr int64_t JUEVES = 4;
    const int64_t semana = (dias + JUEVES) % 7;
    return static_cast<int32_t>(semana < 0 ? semana + 7 : semana);
}

struct dia_del_calendario {
    int64_t anyo;
    uint32_t mes; // 0 to 11
    int32_t dia;  // from 1
};

// The date that is so many days, 0 or more, after 1 January 1970. Years are counted from 1 March, so that the leap day
// is their last, in eras of 400, all of one length.
constexpr dia_del_calendario dia_de(int64_t dias) {
    constexpr int64_t DIAS_ERA = 146097, DE_MARZO_DEL_0_A_1970 = 719468;
    const int64_t d = dias + DE_MARZO_DEL_0_A_1970;
    const int64_t era = d / DIAS_ERA;
    const auto de_era = static_cast<uint32_t>(d - era * DIAS_ERA);
    const uint32_t anyo_de_era = (de_era - de_era / 1460 + de_era / 36524 - de_era / 146096) / 365;
    const uint32_t de_anyo = de_era - (365 * anyo_de_era + anyo_de_era / 4 - anyo_de_era / 100);
    // The months from March on are 31, 30, 31, 30, 31 days long, over and over: 153 days.
    const uint32_t mes_desde_marzo = (5 * de_anyo + 2) / 153;
    const uint32_t mes = mes_desde_marzo < 10 ? mes_desde_marzo + 2 : mes_desde_marzo - 10;
    return {era * 400 + anyo_de_era + (mes < 2), mes,
            static_cast<int32_t>(de_anyo - (153 * mes_desde_marzo + 2) / 5 + 1)};
}

} // namespace vn::suelo
