#include "filas.h"
#include "time/timecalc.h"
#include <array>

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
        ASSERT_EQ(segundos(de(momento)), momento);
    }
    EXPECT_EQ(timecalc_convierte_fecha_y_hora_a_time32_t(31, 12, 2037, 23, 59, 58), 2145916798);
    fecha f{};
    timecalc_convierte_time32_t_a_fecha_y_hora(2145916798, &f[0], &f[1], &f[2], &f[3], &f[4], &f[5]);
    EXPECT_EQ(f, (fecha{31, 12, 2037, 23, 59, 58}));
    EXPECT_EQ(de(INT32_MAX), (fecha{19, 1, 2038, 3, 14, 7}));
    EXPECT_EQ(de(253402300799), (fecha{31, 12, 9999, 23, 59, 59}));
    for (const int64_t t : {int64_t{-1}, INT64_MIN, INT64_MAX, int64_t{253402300800}})
        EXPECT_EQ(ESPERA_INFORME("t >= 0 && t <= ULTIMO_SEGUNDO", de(t)), (fecha{1, 1, 1970, 0, 0, 0}));
}

PRUEBA(timecalc, fuera_de_su_alcance_se_informa) {
    for (const auto &[dia, mes, anyo, hora, minuto, segundo, informe] :
         vn::filas<int, int, int, int, int, int, vn::nulable>("time/timecalc.tsv", "fechas")) {
        const int64_t s = segundos({dia, mes, anyo, hora, minuto, segundo});
        vn::con_informe(informe.c_str(), [] {});
        EXPECT_EQ(s == 0, informe.c_str() != nullptr) << anyo;
    }
}

PRUEBA(timecalc, un_tiempo_de_fichero_pierde_el_segundo_impar) {
    for (const auto &[pasos, segundos_de_1970, informe] :
         vn::filas<int64_t, int64_t, vn::nulable>("time/timecalc.tsv", "tiempos")) {
        const auto p = static_cast<uint64_t>(pasos + 116444736000000000); // from 1601
        const vnFILETIME t{static_cast<uint32_t>(p), static_cast<uint32_t>(p >> 32)};
        EXPECT_EQ(timecalc_convierte_FILETIME_a_time64_t(&t), segundos_de_1970) << pasos;
        vn::con_informe(informe.c_str(), [] {});
        if (informe.c_str() != nullptr) continue;
        EXPECT_EQ(timecalc_convierte_FILETIME_a_time32_t(&t), segundos_de_1970);
        EXPECT_EQ(timecalc_convierte_FILETIME_a_time_t(&t), segundos_de_1970);
    }
}
