#include "filas.h"
#include "foundation/listas/arr.h"
#include "persistence/prueba_vornsave.h"
#include "time/vorntime.h"
#include <array>
#include <chrono>

namespace {

constexpr int64_t DIA = 86400;
const tmtime INICIO{0, 0, 0, 1, 0, 70, 4, 0, 0};

std::vector<int32_t> campos(const tmtime &f) {
    return {f.tm_sec, f.tm_min, f.tm_hour, f.tm_mday, f.tm_mon, f.tm_year, f.tm_wday, f.tm_yday, f.tm_isdst};
}

// A new record, by value.
tmtime toma(tmtime *nueva) {
    const tmtime f = *nueva;
    vtm_destruye(&nueva);
    return f;
}
tmtime fecha_de(int dia, int mes, int anyo, int h = 0, int m = 0, int s = 0) {
    return toma(vtm_crea(h, m, s, dia, mes, anyo));
}

// The date of a count of seconds, by the library of the language; its day of the week by the module's own formula.
tmtime fecha_segun_chrono(int64_t t) {
    using namespace std::chrono;
    const sys_days dia{days(t / DIA)};
    const year_month_day f{dia};
    const auto s = static_cast<int32_t>(t % DIA);
    // clang-format off
    return {s % 60, s / 60 % 60, s / 3600,
            static_cast<int32_t>(unsigned{f.day()}), static_cast<int32_t>(unsigned{f.month()}) - 1, int{f.year()} - 1900,
            static_cast<int32_t>((t / DIA - 3) % 7),
            static_cast<int32_t>((dia - sys_days(f.year() / 1 / 1)).count()), 0};
    // clang-format on
}

} // namespace

PRUEBA(vorntime, cada_dia_de_1970_a_2150_va_y_vuelve_con_el_dia_de_diferencia_que_se_dice) {
    int diferencias = 0;
    for (int64_t t = 0; t < 66109 * DIA; t += DIA) {
        const int64_t momento = t + t / DIA * 7919 % DIA; // at any time of day
        tmtime f;
        vtm_convierte_time64t_a_fecha(momento, &f);
        ASSERT_EQ(campos(f), campos(fecha_segun_chrono(momento))) << momento;
        const int64_t contados = vtm_convierte_fecha_a_time_t(&f);
        const int64_t de_mas = f.tm_year + 1900 <= 1972 || f.tm_year + 1900 > 2100 ? DIA : 0;
        ASSERT_EQ(contados - momento, de_mas) << momento;
        diferencias += de_mas != 0;
        // The days of the week and of the year of a date are the true ones everywhere.
        const tmtime creada = fecha_de(f.tm_mday, f.tm_mon + 1, f.tm_year + 1900, f.tm_hour, f.tm_min, f.tm_sec);
        ASSERT_EQ(creada.tm_wday, (t / DIA + 4) % 7) << momento;
        ASSERT_EQ(creada.tm_yday, f.tm_yday) << momento;
        ASSERT_EQ(f.tm_wday, t < 3 * DIA ? t / DIA - 3 : creada.tm_wday) << momento;
        ASSERT_EQ(vtm_dia_de_la_semana_tim64t(momento), f.tm_wday);
        ASSERT_EQ(vtm_fechas_iguales(&f, &creada), CIERTO);
    }
    EXPECT_EQ(diferencias, 366 + 365 * 2 + 50 * 365 + 12);
}

PRUEBA(vorntime, los_extremos_acaban_en_un_resultado_dicho) {
    tmtime r{};
    for (const auto &[t, fecha] : {std::pair<int64_t, tmtime>{0, {0, 0, 0, 1, 0, 70, -3, 0, 0}},
                                   {4294967295, {15, 28, 6, 7, 1, 206, 0, 37, 0}},
                                   {67768036191676799, {59, 59, 23, 31, 11, INT32_MAX, 3, 364, 0}}}) {
        vtm_convierte_time64t_a_fecha(t, &r);
        EXPECT_EQ(campos(r), campos(fecha)) << t;
    }
    for (const int64_t t : {67768036191676800, 1000000000000000000, INT64_MAX, int64_t{-1}, INT64_MIN}) {
        ESPERA_INFORME("t >= 0 && t <= ULTIMO_SEGUNDO", vtm_convierte_time64t_a_fecha(t, &r));
        EXPECT_EQ(campos(r), campos(INICIO)) << t;
    }
    EXPECT_EQ(vtm_dia_de_la_semana_tim64t(INT64_MIN), -((INT64_MAX / DIA + 3) % 7));
    EXPECT_EQ(vtm_dia_de_la_semana_tim64t(37 * DIA), 6); // 7 February 1970
    EXPECT_EQ(vtm_segundos_el_uno_enero_anyo(1970), DIA);
    EXPECT_EQ(vtm_segundos_el_uno_enero_anyo(2000), 946684800);
    // Fields out of their range count for what they are; only a month cannot.
    const tmtime suelta{-1, 100, 25, 0, 0, 100, 0, 0, 0}, sin_mes{0, 0, 0, 1, 12, 100, 0, 0, 0},
        lejos{0, 0, 0, 1, 0, 300, 0, 0, 0};
    EXPECT_EQ(vtm_convierte_fecha_a_time_t(&suelta), 946684800 - DIA + 25 * 3600 + 100 * 60 - 1);
    EXPECT_EQ(vtm_convierte_fecha_a_time_t(&sin_mes), 0);
    EXPECT_EQ(toma_informes().size(), 1u);
    EXPECT_EQ(vtm_convierte_fecha_a_segundos(&lejos), UINT32_MAX);
    EXPECT_EQ(toma_informes().size(), 1u);
    const tmtime duracion{4, 3, 2, 1, 7, 7, 7, 7, 7};
    EXPECT_EQ(vtm_convierte_duracion_a_segundos(&duracion), DIA + 2 * 3600 + 3 * 60 + 4);
}

PRUEBA(vorntime, meses_anyos_y_dias_del_anyo) {
    EXPECT_EQ(vtm_segundos_en_un_mes(1, 2000), 2505600u);
    EXPECT_EQ(vtm_segundos_en_un_mes(1, 2100), 2419200u);
    EXPECT_EQ(vtm_segundos_en_un_mes(3, 2000), 2592000u);
    EXPECT_EQ(vtm_segundos_en_un_anyo(1900), 31536000u);
    EXPECT_EQ(vtm_segundos_en_un_anyo(2000), 31622400u);
    uint32_t n = 0;
    for (uint32_t mes = 0; mes < 12; ++mes)
        for (uint32_t dia = 1; dia <= vorntime_num_dias_mes(mes, 2023); ++dia) {
            uint32_t d = 0, m = 0;
            vorntime_dia_y_mes_de_dia_juliano(++n, &d, &m);
            ASSERT_EQ(vorntime_dia_juliano_1_365_de_dia_y_mes(d, m), n);
            ASSERT_EQ(std::pair(d, m), std::pair(dia, mes + 1));
        }
    EXPECT_EQ(n, 365u);
    EXPECT_EQ(ESPERA_INFORME("numero_dia_1_31 <= num_dias_mes", vorntime_dia_juliano_1_365_de_dia_y_mes(29, 2)), 0u);
    ESPERA_INFORME("dia_juliano_1_365 <= 365", vorntime_dia_y_mes_de_dia_juliano(366, &n, nullptr));
    EXPECT_EQ(n, 0u);
}

PRUEBA(vorntime, la_comparacion_mira_seis_campos_en_su_orden) {
    // Each earlier by one field while all that weigh less say the contrary.
    const tmtime base{30, 30, 12, 15, 6, 100, 0, 100, 0};
    const tmtime antes[] = {{59, 59, 23, 31, 11, 99, 0, 0, 0}, {59, 59, 23, 31, 5, 100, 0, 0, 0},
                            {59, 59, 23, 14, 6, 100, 0, 0, 0}, {59, 59, 11, 15, 6, 100, 0, 0, 0},
                            {59, 29, 12, 15, 6, 100, 0, 0, 0}, {29, 30, 12, 15, 6, 100, 0, 0, 0}};
    for (const tmtime &f : antes) {
        EXPECT_EQ(vtm_compara_fechas_mayor_menor(&f, &base), -1);
        EXPECT_EQ(vtm_compara_fechas(&base, &f), 1);
        EXPECT_EQ(vtm_fechas_iguales(&f, &base), FALSO);
    }
    tmtime otra = base;
    otra.tm_wday = 3, otra.tm_yday = 0, otra.tm_isdst = 1;
    EXPECT_EQ(vtm_compara_fechas_mayor_menor(&base, &otra), 0);
    EXPECT_EQ(vtm_fechas_iguales(&base, &otra), CIERTO);
}

PRUEBA(vorntime, un_registro_nuevo_se_comprueba_y_se_puede_ajustar) {
    EXPECT_EQ(campos(fecha_de(29, 2, 2000, 23, 59, 58)), (std::vector<int32_t>{58, 59, 23, 29, 1, 100, 2, 59, 0}));
    EXPECT_EQ(fecha_de(1, 1, -1).tm_wday, 5); // the calendar goes on backwards
    const std::array<int, 6> malas[] = {{24, 0, 0, 1, 1, 2000}, {0, 60, 0, 1, 1, 2000},
                                        {0, 0, -1, 1, 1, 2000}, {0, 0, 0, 32, 1, 2000},
                                        {0, 0, 0, 1, 13, 2000}, {0, 0, 0, 1, INT32_MIN, INT32_MIN}};
    for (const auto &[h, m, seg, dia, mes, anyo] : malas) {
        EXPECT_EQ(campos(fecha_de(dia, mes, anyo, h, m, seg)), campos(INICIO));
        EXPECT_EQ(toma_informes().size(), 1u) << h << " " << mes;
    }
    tmtime f = fecha_de(24, 6, 2005);
    f.tm_mon = 11, f.tm_mday = 31, f.tm_year = 104;
    vorntime_ajusta_fecha_valida(&f);
    EXPECT_EQ(std::pair(f.tm_wday, f.tm_yday), std::pair(5, 365));
    int32_t d = 0, m = 0, a = 0;
    vorntime_obtener_dia_mes_anyo(&f, &d, &m, &a);
    EXPECT_EQ((std::vector{d, m, a}), (std::vector{31, 12, 2004}));
    vtm_inicializa_fecha(&f);
    EXPECT_EQ(campos(f), campos(INICIO));
    arrPuntero *fechas = arr_CreaPunteroST(0, tmtime);
    for (int i = 1; i <= 3; ++i) arr_AppendPunteroST(fechas, vtm_copia_tm(&f), tmtime);
    vtm_libera_tm_arr(&fechas);
    EXPECT_EQ(fechas, nullptr);
}

// What a file holds, over each destination of the protocol.
PRUEBA(vorntime, una_fecha_se_guarda_y_una_danyada_se_informa) {
    const tmtime f = fecha_de(24, 6, 2005, 1, 2, 3);
    tmtime verano = f;
    verano.tm_isdst = 1;
    for (const auto &d : vn::DESTINOS) {
        SCOPED_TRACE(d.nombre);
        const std::string b = vn::grabado(d, [&](vornsave *v) {
            vtm_graba_hora_y_fecha(&f, v);
            vtm_graba_hora_y_fecha(&verano, v);
            vornsave_graba_long(77, v);
        });
        if (!d.texto && !d.etiquetas) {
            EXPECT_EQ(vn::hex(b.substr(0, 18)), "0300020001001800050069000500ae000000");
        }
        vn::leido(d, b, [&](vornsave *v) {
            EXPECT_EQ(campos(toma(vtm_lee_hora_y_fecha(v))), campos(f));
            EXPECT_EQ(campos(toma(vtm_lee_hora_y_fecha(v))), campos(verano));
            EXPECT_EQ(vornsave_lee_long(v), 77);
        });
        // Each field that has a range, one beyond each end of it: written as the start of 1970, and so read.
        const struct {
            int32_t tmtime::*campo;
            int32_t minimo, maximo;
            const char *informe;
        } rangos[] = {{&tmtime::tm_sec, 0, 59, "tmtime->tm_sec >= 0 && tmtime->tm_sec <= 59"},
                      {&tmtime::tm_min, 0, 59, "tmtime->tm_min >= 0 && tmtime->tm_min <= 59"},
                      {&tmtime::tm_hour, 0, 23, "tmtime->tm_hour >= 0 && tmtime->tm_hour <= 23"},
                      {&tmtime::tm_mday, 1, 31, "tmtime->tm_mday >= 1 && tmtime->tm_mday <= 31"},
                      {&tmtime::tm_mon, 0, 11, "tmtime->tm_mon >= 0 && tmtime->tm_mon <= 11"},
                      {&tmtime::tm_wday, 0, 6, "tmtime->tm_wday >= 0 && tmtime->tm_wday <= 6"},
                      {&tmtime::tm_yday, 0, 365, "tmtime->tm_yday >= 0 && tmtime->tm_yday <= 365"}};
        for (const auto &r : rangos) {
            for (const int32_t valor : {r.minimo - 1, r.minimo, r.maximo, r.maximo + 1}) {
                tmtime mala = f;
                mala.*r.campo = valor;
                const bool cabe = valor >= r.minimo && valor <= r.maximo;
                const auto lee = [&](vornsave *v) {
                    EXPECT_EQ(campos(toma(vtm_lee_hora_y_fecha(v))), campos(cabe ? mala : INICIO));
                };
                std::string grabada;
                vn::con_informe(cabe ? nullptr : r.informe, [&] {
                    grabada = vn::grabado(d, [&](vornsave *v) { vtm_graba_hora_y_fecha(&mala, v); });
                });
                vn::leido(d, grabada, lee);
                // The same damage in a file.
                const std::string danyada = vn::grabado(d, [&](vornsave *v) {
                    for (const int32_t c : campos(mala)) vornsave_graba_short(static_cast<int16_t>(c), v);
                });
                vn::con_informe(cabe ? nullptr : r.informe, [&] { vn::leido(d, danyada, lee); });
            }
        }
    }
}

PRUEBA(vorntime, el_reloj_y_la_comprobacion_de_si_mismo) {
    using namespace std::chrono;
    const int64_t utc = floor<seconds>(system_clock::now()).time_since_epoch().count();
    EXPECT_LE(std::abs(vorntime_ahora_UTC() - utc), 2);
    tmtime hoy;
    vtm_fecha_actual(&hoy);
    // No zone is further than 14 hours from UTC.
    EXPECT_LE(std::abs(vtm_convierte_fecha_a_time_t(&hoy) - utc), 14 * 3600 + 2);
    for (const uint32_t ahora : {vorntime_ahora(), vorntime_ahora_ULong()})
        EXPECT_LE(std::abs(int64_t{ahora} - vtm_convierte_fecha_a_time_t(&hoy)), 2);
    const auto antes = steady_clock::now();
    vtm_delay(1);
    EXPECT_GE(steady_clock::now() - antes, milliseconds(900));
    ESPERA_INFORME("segundos < 900", vtm_delay(900));
    EXPECT_LT(steady_clock::now() - antes, seconds(100));
}

// ---------------------------------------------------------------- out of texts

PRUEBA(vorntime, de_un_texto_sale_una_fecha_o_no_cambia_nada) {
    const tmtime intacta{1, 2, 3, 4, 5, 6, 7, 8, 9};
    for (const auto &[texto, dia, mes, anyo, h, m, s] :
         vn::filas<std::string, int, int, int, int, int, int>("time/vorntime.tsv", "textos")) {
        tmtime ancha = intacta, ansi = intacta;
        const bool es_fecha = dia != 0;
        EXPECT_EQ(vtm_convierte_cadena_a_tm_u(vn::ancho(texto).c_str(), &ancha), es_fecha) << texto;
        EXPECT_EQ(vtm_convierte_cadena_a_tm(texto.c_str(), &ansi), es_fecha) << texto;
        EXPECT_EQ(campos(ancha), campos(es_fecha ? fecha_de(dia, mes, anyo, h, m, s) : intacta)) << texto;
        EXPECT_EQ(campos(ansi), campos(ancha)) << texto;
    }
}
