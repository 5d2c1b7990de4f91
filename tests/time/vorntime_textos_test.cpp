#define VN_MODULO "vorntime_textos_test"
#include "foundation/cad.h"
#include "foundation/msglocal.h"
#include "foundation/unicode.h"
#include "foundation/vnregional.h"
#include "foundation/vnstdc.h"
#include "foundation/widestr.h"
#include "prueba.h"
#include "time/vorntime.h"
#include <cstring>

namespace {

const tmtime FECHA{7, 6, 5, 4, 2, 105, 5, 62, 0}; // 4 March 2005, 5:06:07

class con_idioma {
  public:
    explicit con_idioma(int idioma) { msidioma_establece_idioma(idioma); }
    ~con_idioma() { msidioma_establece_idioma(0); }
    con_idioma(const con_idioma &) = delete;
    con_idioma &operator=(const con_idioma &) = delete;
};

// The names that `nombre` gives for 0 to n - 1, with a blank between them.
template <class F> std::string todos(uint32_t n, F nombre) {
    std::string s;
    for (uint32_t i = 0; i < n; ++i) s += (i > 0 ? " " : "") + vn::utf8_de(nombre(i));
    return s;
}
// ANSI text of a language's page.
std::basic_string<vnwchar> de_pagina(const char *s, int idioma) {
    vnwchar *ancho = unicode_convierte_ANSI_idioma_a_UNICODE(s, static_cast<uint32_t>(idioma));
    const std::basic_string<vnwchar> r(ancho);
    widestr_destruye(&ancho);
    return r;
}

} // namespace

PRUEBA(vorntime_textos, cada_forma_a_la_letra) {
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena(nullptr, &FECHA, '/')), "04/03/2005 05:06:07");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena(VNU("Día:"), &FECHA, u'\u00B7')), "Día: 04·03·2005 05:06:07");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_a("A", &FECHA, '-')), "A 04-03-2005 05:06:07");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_a("", &FECHA, '-')), " 04-03-2005 05:06:07");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(&FECHA)), "2005-03-04 05.06.07");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(&FECHA)), "2005-03-04 05.06.07");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_u(&FECHA)), "2005-03-04");
    EXPECT_EQ(vn::toma(vtm_fecha_a_texto_AAAA_MM_DD_u(&FECHA, '/')), "2005/03/04");
    EXPECT_EQ(vn::toma(vtm_fecha_a_texto_AAAA_MM_DD_HH_MM_SS_u(&FECHA, '/', ':')), "2005/03/04 05:06:07");
    EXPECT_EQ(vn::toma(vtm_time_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(1109912767)), "2005-03-04 05.06.07");
    EXPECT_EQ(vn::toma(vtm_time_a_cadena_ordenable_AAAA_MM_DD_u(1109912767)), "2005-03-04");
    EXPECT_EQ(vn::toma(vtm_time_a_texto_AAAA_MM_DD_u(1109912767, '.')), "2005.03.04");
    EXPECT_EQ(vn::toma(ESPERA_INFORME("t >= 0 && t <= ULTIMO_SEGUNDO", vtm_time_a_texto_AAAA_MM_DD_u(-1, '.'))), "(null)");
    // A record that nobody checked, with the room that its numbers need.
    const tmtime enorme{INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, INT32_MIN, 0, 0, 0}, corta{-1, 0, 0, 5, -2, -1905, 0, 0, 0};
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_a(nullptr, &enorme, '/')),
              "-2147483648/-2147483647/-2147481748 -2147483648:-2147483648:-2147483648");
    EXPECT_EQ(vn::toma(vtm_fecha_a_cadena_a(nullptr, &corta, '/')), "05/-1/-005 00:00:-1"); // as "%02d" and "%04d" do
}

// Every text of a month and of a day in every language, as both readers give it.
PRUEBA(vorntime_textos, los_nombres_son_los_de_cada_lengua_en_las_dos_anchuras) {
    const struct {
        int idioma;
        const char *meses, *abreviados, *iniciales;
    } filas[] = {
        {0, "Enero Febrero Marzo Abril Mayo Junio Julio Agosto Septiembre Octubre Noviembre Diciembre",
         "Ene Feb Mar Abr May Jun Jul Ago Sep Oct Nov Dic", "D L M X J V S"},
        {1, "Janvier Février Mars Avril Mai Juin Juillet Août Septembre Octobre Novembre Décembre", nullptr, "D L M M J V S"},
        {3, "Gener Febrer Març Abril Maig Juny Juliol Agost Setembre Octubre Novembre Desembre", nullptr, nullptr},
        {4, "Gennaio Febbraio Marzo Aprile Maggio Giugno Luglio Agosto Settembre Ottobre Novembre Dicembre", nullptr, "D L M M G V S"},
        {5, "Janeiro Fevereiro Março Abril Maio Junho Julho Agosto Setembro Outubro Novembro Dezembro", nullptr, "D S T Q Q S S"},
        {8, "January February March April May June July August September October November December",
         "Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec", "S M T W T F S"},
        {10, "Януари Февруари Март Април Май Юни Юли Август Септември Октомври Ноември Декември", nullptr, "Н П В С Ч П С"},
        {13, "Januar Februar März April Mai Juni Juli August September Oktober November Dezember", nullptr, "S M D M D F S"},
        {24, "Enero Febrero Marzo Abril Mayo Junio Julio Agosto Septiembre Octubre Noviembre Diciembre", nullptr, "D L M X J V S"},
        {31, "Styczeń Luty Marzec Kwiecień Maj Czerwiec Lipiec Sierpień Wrzesień Październik Listopad Grudzień", nullptr, nullptr},
        {33, "Ocak Şubat Mart Nisan Mayıs Haziran Temmuz Ağustos Eylül Ekim Kasım Aralık", nullptr, nullptr},
        {39, "1月 2月 3月 4月 5月 6月 7月 8月 9月 10月 11月 12月", nullptr, "日 月 火 水 木 金 土"},
    };
    for (const auto &f : filas) {
        const con_idioma activo(f.idioma);
        EXPECT_EQ(todos(12, vorntime_obtener_nombre_mes_u), f.meses);
        if (f.abreviados != nullptr) { EXPECT_EQ(todos(12, vorntime_obtener_nombre_mes_abreviado_u), f.abreviados); }
        if (f.iniciales != nullptr) {
            const auto inicial = [&](uint32_t i) { return de_pagina(vtm_letra_inicial_dia_de_la_semana(i), f.idioma); };
            EXPECT_EQ(todos(7, [&](uint32_t i) { static std::basic_string<vnwchar> s; return (s = inicial(i)).c_str(); }), f.iniciales);
        }
    }
    for (int idioma = 0; idioma <= 40; ++idioma) {
        SCOPED_TRACE(idioma);
        std::vector<std::string> con_este;
        for (uint32_t mes = 0; mes < 12; ++mes) con_este.push_back(vn::toma(vorntime_obtener_nombre_mes_con_idioma(mes, idioma)));
        const con_idioma activo(idioma);
        for (uint32_t mes = 0; mes < 12; ++mes) {
            const std::basic_string<vnwchar> nombre = vorntime_obtener_nombre_mes_u(mes), corto = vorntime_obtener_nombre_mes_abreviado_u(mes);
            EXPECT_EQ(de_pagina(vorntime_obtener_nombre_mes(mes), idioma), nombre) << mes;
            EXPECT_EQ(de_pagina(vorntime_obtener_nombre_mes_abreviado(mes), idioma), corto) << mes;
            EXPECT_EQ(con_este[mes], vn::utf8_de(nombre.c_str()));
            for (uint32_t otro = 0; otro < mes; ++otro) EXPECT_NE(corto, vorntime_obtener_nombre_mes_abreviado_u(otro)) << mes;
        }
        for (uint32_t dia = 0; dia < 7; ++dia) EXPECT_EQ(de_pagina(vtm_letra_inicial_dia_de_la_semana(dia), idioma).size(), 1u);
    }
    EXPECT_EQ(vorntime_obtener_mes(11), 11u);
    EXPECT_EQ(vorntime_obtener_numero_mes(11), 12u);
}

PRUEBA(vorntime_textos, fecha_str_escribe_encima_y_nunca_mas_alla) {
    // Noon UTC: the same day in nearly every zone, and the local time is the platform's.
    const auto esperada = [](int64_t t, const char *dia, const char *mes) {
        const std::tm local = *vnstdc__localtime64(&t);
        char s[100];
        vnstdc__snprintf(s, sizeof s, "%s %2d %s %d  %2d:%02d", dia, local.tm_mday, mes, local.tm_year + 1900, local.tm_hour, local.tm_min);
        return std::string(s);
    };
    constexpr int64_t T = 1136030400, OTRA = 1109937600; // 31 December 2005 and 4 March 2005
    EXPECT_EQ(vtm_fecha_str(T), esperada(T, "Sab", "Diciembre"));
    EXPECT_EQ(vn::utf8_de(vtm_fecha_str_u(T)), esperada(T, "Sab", "Diciembre"));
    EXPECT_EQ(vn::utf8_de(vtm_fecha_str64_u(OTRA)), esperada(OTRA, "Vie", "Marzo"));
    EXPECT_EQ(vtm_fecha_str(OTRA), vtm_fecha_str(T));
    EXPECT_NE(vtm_fecha_str_u(OTRA), vtm_fecha_str64_u(OTRA));
    for (int idioma = 0; idioma <= 40; ++idioma) {
        const con_idioma activo(idioma);
        for (int mes = 0; mes < 12; ++mes) {
            for (const int64_t t : {T + mes * 2678400, T + mes * 2678400 + 30000000000}) {
                EXPECT_LT(std::strlen(vtm_fecha_str(t)), 64u);
                EXPECT_EQ(de_pagina(vtm_fecha_str(t), idioma), vtm_fecha_str_u(t)) << idioma;
            }
        }
    }
    {
        const con_idioma ruso(18);
        EXPECT_EQ(vn::utf8_de(vtm_fecha_str_u(T)), esperada(T, "Сб", "Декабрь"));
    }
    // A year that no platform's record holds: told with a message for the user.
    EXPECT_STREQ(vtm_fecha_str(INT64_MAX), "");
    EXPECT_EQ(vn::utf8_de(vtm_fecha_str_u(INT64_MAX)), "");
    const auto informes = vn::Prueba::toma_informes();
    ASSERT_EQ(informes.size(), 2u);
    EXPECT_EQ(informes[1].detalle, "La fecha está mal. Revise en su sistema operativo si la fecha es correcta.");
}

PRUEBA(vorntime_textos, las_formas_del_usuario_son_las_de_su_region) {
    // Of two digits everywhere: systems differ in whether a short date has zeros.
    const tmtime fecha{17, 16, 15, 14, 10, 105, 1, 317, 0};
    const struct {
        const char *region, *corta, *hora, *sin_segundos, *ddmmaa, *formato, *con_modelo;
    } filas[] = {
        {"es-ES", "14/11/2005", "15:16:17", "15:16", "14/11/05", "dd/MM/yyyy HH:mm:ss", "lunes 14 de noviembre"},
        {"en-US", "11/14/2005", "3:16:17 PM", "3:16 PM", "14/11/05", "dd/MM/yyyy HH:mm:ss", "Monday 14 de November"},
        {"de-DE", "14.11.2005", "15:16:17", "15:16", "14.11.05", "dd.MM.yyyy HH:mm:ss", "Montag 14 de November"},
        {"fr-FR", "14/11/2005", "15:16:17", "15:16", "14/11/05", "dd/MM/yyyy HH:mm:ss", "lundi 14 de novembre"},
    };
    for (const auto &f : filas) {
        const std::string corta = f.corta, hora = f.hora, sin_segundos = f.sin_segundos;
        ASSERT_EQ(vnregional_establece(f.region), CIERTO);
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_corta(&fecha)), corta);
        EXPECT_EQ(vn::toma(vtm_formatea_hora(&fecha, CIERTO)), hora);
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_y_hora(nullptr, &fecha)), corta + " " + hora);
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_y_hora("Obra", &fecha)), "Obra " + corta + " " + hora);
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_y_hora_sin_segundos("Obra", &fecha)), "Obra " + corta + " " + sin_segundos);
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_ddmmaa_con_separador_sistema(&fecha)), f.ddmmaa);
        EXPECT_EQ(vn::toma(vorntime_dame_cadena_formato_fecha(CIERTO)), f.formato);
        EXPECT_EQ(vn::toma(vorntime_dame_cadena_formato_fecha(FALSO)), std::string(f.formato).substr(0, 10));
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_segun_modelo(&fecha, "dddd d 'de' MMMM")), f.con_modelo);
        const tmtime antigua{0, 0, 0, 1, 0, 0, 1, 0, 0}; // 1900
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_corta(&antigua)), "");
        EXPECT_EQ(vn::toma(vtm_formatea_fecha_ddmmaa_con_separador_sistema(&antigua)).substr(6), "00");
    }
    for (const char *region : {"es-ES", "es-MX", "gl-ES", "ja-JP"}) { // where names are looked at, and where they are not
        ASSERT_EQ(vnregional_establece(region), CIERTO);
        vtm_test_fechas(nullptr);
    }
    vnregional_establece(nullptr);
}

PRUEBA(vorntime_textos, los_listados_siguen_a_la_lengua) {
    const auto ahora = [](const char *formato) {
        const int64_t t = vnstdc__time64(nullptr);
        char s[64];
        vnstdc_strftime(s, sizeof s, formato, vnstdc__localtime64(&t));
        return std::string(s);
    };
    for (const int idioma : {0, 8}) {
        const con_idioma activo(idioma);
        const char *const formato = idioma == 8 ? "%m/%d/%y %I:%M %p" : "%d/%m/%y %I:%M %p";
        std::string antes, textos, textos_u, despues;
        do { // again if the minute ends meanwhile
            char *f = nullptr, *h = nullptr;
            vnwchar *fu = nullptr, *hu = nullptr;
            antes = ahora(formato);
            vtm_fecha_y_hora_para_listados(&f, &h);
            vtm_fecha_y_hora_para_listados_u(&fu, &hu);
            textos = vn::toma(f) + " " + vn::toma(h);
            textos_u = vn::toma(fu) + " " + vn::toma(hu);
            despues = ahora(formato);
        } while (antes != despues);
        EXPECT_EQ(textos, antes);
        EXPECT_EQ(textos_u, antes);
    }
    char *hora = nullptr;
    vtm_fecha_y_hora_para_listados(nullptr, &hora);
    EXPECT_EQ(vn::toma(hora).size(), 8u);
}

// The same text on every platform, whatever the locale: a digest of the forms of 250,000 dates.
PRUEBA(vorntime_textos, los_textos_son_los_mismos_en_todas_partes) {
    uint64_t s = 0x9E3779B97F4A7C15u, resumen = 14695981039346656037u;
    const auto azar = [&s] { return s ^= s << 13, s ^= s >> 7, s ^= s << 17; };
    const auto anota = [&resumen](auto *texto) {
        for (const auto *p = texto; *p != 0; ++p) resumen = (resumen ^ static_cast<uint16_t>(*p)) * 1099511628211u;
        resumen = (resumen ^ 0x1FFFF) * 1099511628211u;
        vornspy_free_pp(&texto, 1);
    };
    constexpr int FECHAS = 250000;
    for (int i = 0; i < FECHAS; ++i) {
        // Half of them of this century's turn, half up to the year 9999.
        const auto t = static_cast<int64_t>(azar() % (i % 2 == 0 ? 5711731200u : 253402300800u));
        tmtime f;
        vtm_convierte_time64t_a_fecha(t, &f);
        switch (i % 6) {
        case 0: anota(vtm_fecha_a_cadena_a(nullptr, &f, '/')); break;
        case 1: anota(vtm_fecha_a_cadena(VNU("Fecha:"), &f, '-')); break;
        case 2: anota(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(&f)); break;
        case 3: anota(vtm_time_a_texto_AAAA_MM_DD_u(t, '.')); break;
        case 4: anota(vtm_time_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(t)); break;
        case 5: {
            // Read again where a text may be of any such year.
            char *texto = vtm_fecha_a_cadena_a(nullptr, &f, ':');
            tmtime leida{};
            const vnbool es_fecha = vtm_convierte_cadena_a_tm(texto, &leida);
            ASSERT_EQ(es_fecha, f.tm_year <= 200 ? CIERTO : FALSO) << texto;
            if (es_fecha == CIERTO) { ASSERT_EQ(vtm_compara_fechas(&f, &leida), 0) << texto; }
            anota(texto);
            const con_idioma activo(static_cast<int>(azar() % 41));
            anota(widestr_copia(vorntime_obtener_nombre_mes_u(static_cast<uint32_t>(f.tm_mon))));
            anota(cad_copia_cadena(vorntime_obtener_nombre_mes_abreviado(static_cast<uint32_t>(f.tm_mon))));
            break;
        }
        default: break;
        }
    }
    EXPECT_EQ(resumen, 8985573902797884700u);
}
