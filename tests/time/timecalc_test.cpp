#include "prueba.h"
#include "time/timecalc.h"
#include <array>
#include <chrono>

namespace {

using fecha = std::array<int32_t, 6>; // day, month, year, hour, minute, second

fecha de(int64_t t) {
    fecha f{};
    timecalc_convierte_time64_t_a_fecha_y_hora(t, &f[0], &f[1], &f[2], &f[3], &f[4], &f[5]);
    return f;
}
int64_t segundos(const fecha &f) {
    return timecalc_convierte_fecha_y_hora_a_time_t(f[0], f[1], f[2], f[3], f[4], f[5]);
}

} // namespace

PRUEBA(timecalc, cada_dia_de_su_alcance_va_y_vuelve) {
    constexpr int64_t DIA = 86400;
    for (int64_t t = 0; t < 2145916800; t += DIA) {
        const int64_t momento = t + t / DIA * 7919 % DIA; // any time of day
        const fecha f = de(momento);
        const std::chrono::year_month_day d{std::chrono::sys_days(std::chrono::days(t / DIA))};
        ASSERT_EQ((std::array{f[0], f[1], f[2]}),
                  (std::array{int(unsigned(d.day())), int(unsigned(d.month())), int(d.year())}));
        ASSERT_EQ(segundos(f), momento);
        ASSERT_EQ(timecalc_convierte_fecha_y_hora_a_time32_t(f[0], f[1], f[2], f[3], f[4], f[5]), momento);
        fecha g{};
        timecalc_convierte_time32_t_a_fecha_y_hora(static_cast<int32_t>(momento), &g[0], &g[1], &g[2], &g[3], &g[4],
                                                   &g[5]);
        ASSERT_EQ(f, g);
    }
    EXPECT_EQ(de(INT32_MAX), (fecha{19, 1, 2038, 3, 14, 7}));
    EXPECT_EQ(de(253402300799), (fecha{31, 12, 9999, 23, 59, 59}));
    for (const int64_t t : {int64_t{-1}, INT64_MIN, INT64_MAX, int64_t{253402300800}})
        EXPECT_EQ(ESPERA_INFORME("t >= 0 && t <= ULTIMO_SEGUNDO", de(t)), (fecha{1, 1, 1970, 0, 0, 0}));
}

PRUEBA(timecalc, fuera_de_su_alcance_se_informa) {
    const struct {
        fecha f;
        const char *informe;
    } filas[] = {
        {{1, 1, 2038, 0, 0, 0}, "anyo >= 1970 && anyo < 2038"},
        {{31, 12, 2037, 23, 59, 59}, nullptr},
        {{31, 12, 1969, 0, 0, 0}, "anyo >= 1970 && anyo < 2038"},
        {{29, 2, 2000, 0, 0, 0}, nullptr},
        {{29, 2, 2001, 0, 0, 0}, "dia >= 1 && dia <= dias_mes"},
        {{31, 4, 2000, 0, 0, 0}, "dia >= 1 && dia <= dias_mes"},
        {{0, 4, 2000, 0, 0, 0}, "dia >= 1 && dia <= dias_mes"},
        {{1, 13, 2000, 0, 0, 0}, "mes >= 1 && mes <= 12"},
        {{1, 0, 2000, 0, 0, 0}, "mes >= 1 && mes <= 12"},
        {{1, 1, 2000, 24, 0, 0}, "hora >= 0 && hora < 24"},
        {{1, 1, 2000, 0, 60, 0}, "minuto >= 0 && minuto < 60"},
        {{1, 1, 2000, 0, 0, -1}, "segundo >= 0 && segundo < 60"},
    };
    for (const auto &fila : filas) {
        int64_t s = -1;
        vn::con_informe(fila.informe, [&] { s = segundos(fila.f); });
        EXPECT_EQ(s == 0, fila.informe != nullptr) << fila.f[2];
    }
}

PRUEBA(timecalc, un_tiempo_de_fichero_pierde_el_segundo_impar) {
    constexpr int64_t SEGUNDO = 10000000, DE_1980 = 315532800, DE_2038 = 2145916800, DE_1970 = 116444736000000000;
    const struct {
        int64_t pasos, segundos; // since 1970
        const char *informe;
    } filas[] = {
        {DE_1980 * SEGUNDO, DE_1980, nullptr},
        {DE_1980 * SEGUNDO - 1, 0, "convertido == CIERTO"},
        {(DE_1980 + 2) * SEGUNDO - 1, DE_1980, nullptr},
        {1234567891 * SEGUNDO + 9999999, 1234567890, nullptr},
        {(DE_2038 - 1) * SEGUNDO, DE_2038 - 2, nullptr},
        {DE_2038 * SEGUNDO, 0, "anyo >= 1970 && anyo < 2038"},
        {4354819200 * SEGUNDO, 0, "convertido == CIERTO"}, // 2108, which no DOS date can tell
        {-DE_1970, 0, "convertido == CIERTO"},
        {-DE_1970 - 1, 0, "convertido == CIERTO"},
    };
    for (const auto &f : filas) {
        const auto p = static_cast<uint64_t>(f.pasos + DE_1970);
        const vnFILETIME t{static_cast<uint32_t>(p), static_cast<uint32_t>(p >> 32)};
        int64_t s = -1;
        vn::con_informe(f.informe, [&] { s = timecalc_convierte_FILETIME_a_time64_t(&t); });
        EXPECT_EQ(s, f.segundos) << f.pasos;
        if (f.informe != nullptr) continue;
        EXPECT_EQ(timecalc_convierte_FILETIME_a_time32_t(&t), f.segundos);
        EXPECT_EQ(timecalc_convierte_FILETIME_a_time_t(&t), f.segundos);
    }
}
