#include "filas.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/texto/msglocal.h"
#include "foundation/texto/unicode.h"
#include "propiedades.h"
#include "time/vorntime.h"
#include <cstring>

using vn::toma, vn::utf8_de;

namespace {

// ANSI text of a language's page.
std::string de_pagina(const char *s, int idioma) {
    return toma(unicode_convierte_ANSI_idioma_a_UNICODE(s, static_cast<uint32_t>(idioma)));
}
// What the C library's form gives for a local time, which is the platform's.
std::string segun(const char *formato, int64_t t) {
    char s[100];
    vnstdc_strftime(s, sizeof s, formato, vnstdc__localtime64(&t));
    return s;
}

} // namespace

PRUEBA(vorntime_textos, cada_forma_a_la_letra) {
    const tmtime f{7, 6, 5, 4, 2, 105, 5, 62, 0}; // 4 March 2005, 5:06:07
    EXPECT_EQ(toma(vtm_fecha_a_cadena(nullptr, &f, '/')), "04/03/2005 05:06:07");
    EXPECT_EQ(toma(vtm_fecha_a_cadena(VNU("Día:"), &f, u'\u00B7')), "Día: 04·03·2005 05:06:07");
    EXPECT_EQ(toma(vtm_fecha_a_cadena_a("A", &f, '-')), "A 04-03-2005 05:06:07");
    EXPECT_EQ(toma(vtm_fecha_a_cadena_a("", &f, '-')), " 04-03-2005 05:06:07");
    EXPECT_EQ(toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(&f)), "2005-03-04 05.06.07");
    EXPECT_EQ(toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(&f)), "2005-03-04 05.06.07");
    EXPECT_EQ(toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_u(&f)), "2005-03-04");
    EXPECT_EQ(toma(vtm_fecha_a_texto_AAAA_MM_DD_u(&f, '/')), "2005/03/04");
    EXPECT_EQ(toma(vtm_fecha_a_texto_AAAA_MM_DD_HH_MM_SS_u(&f, '/', ':')), "2005/03/04 05:06:07");
    EXPECT_EQ(toma(vtm_time_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(1109912767)), "2005-03-04 05.06.07");
    EXPECT_EQ(toma(vtm_time_a_cadena_ordenable_AAAA_MM_DD_u(1109912767)), "2005-03-04");
    EXPECT_EQ(toma(vtm_time_a_texto_AAAA_MM_DD_u(1109912767, '.')), "2005.03.04");
    // A record that nobody checked, with the room that its numbers need.
    const int32_t m = INT32_MIN;
    const tmtime enorme{m, m, m, m, m, m, 0, 0, 0}, corta{-1, 0, 0, 5, -2, -1905, 0, 0, 0};
    EXPECT_EQ(toma(vtm_fecha_a_cadena_a(nullptr, &enorme, '/')),
              "-2147483648/-2147483647/-2147481748 -2147483648:-2147483648:-2147483648");
    EXPECT_EQ(toma(vtm_fecha_a_cadena_a(nullptr, &corta, '/')), "05/-1/-005 00:00:-1"); // as "%02d" and "%04d" do
}

PRUEBA(vorntime_textos, los_nombres_son_los_de_cada_lengua_en_las_dos_anchuras) {
    for (const auto &[idioma, primero, ultimo, abreviado, iniciales] :
         vn::filas<int, std::string, std::string, std::string, std::string>("time/vorntime_textos.tsv", "nombres")) {
        msidioma_establece_idioma(idioma);
        std::string vistas;
        for (uint32_t dia = 0; dia < 7; ++dia) vistas += de_pagina(vtm_letra_inicial_dia_de_la_semana(dia), idioma);
        EXPECT_EQ(vistas, iniciales);
        EXPECT_EQ(utf8_de(vorntime_obtener_nombre_mes_u(0)), primero);
        EXPECT_EQ(utf8_de(vorntime_obtener_nombre_mes_u(11)), ultimo);
        EXPECT_EQ(utf8_de(vorntime_obtener_nombre_mes_abreviado_u(6)), abreviado);
    }
    EXPECT_EQ(vorntime_obtener_mes(11), 11u);
    EXPECT_EQ(vorntime_obtener_numero_mes(11), 12u);
}

PRUEBA(vorntime_textos, fecha_str_escribe_encima_y_nunca_mas_alla) {
    constexpr int64_t T = 1136030400, OTRA = 1109937600; // noon UTC of 31 December and of 4 March 2005
    const std::string hora = segun("%Y  %H:%M", T);
    EXPECT_EQ(vtm_fecha_str(T), "Sab 31 Diciembre " + hora);
    EXPECT_EQ(utf8_de(vtm_fecha_str_u(T)), "Sab 31 Diciembre " + hora);
    EXPECT_EQ(utf8_de(vtm_fecha_str64_u(OTRA)).substr(0, 12), "Vie  4 Marzo");
    EXPECT_EQ(vtm_fecha_str(OTRA), vtm_fecha_str(T));
    EXPECT_NE(vtm_fecha_str_u(OTRA), vtm_fecha_str64_u(OTRA));
    for (int idioma = 0; idioma <= 40; ++idioma) {
        msidioma_establece_idioma(idioma);
        for (int64_t t = OTRA; t < OTRA + 12 * 2678400; t += 2678400) {
            EXPECT_LT(std::strlen(vtm_fecha_str(t)), 64u);
            EXPECT_EQ(de_pagina(vtm_fecha_str(t), idioma), utf8_de(vtm_fecha_str_u(t))) << idioma;
        }
        if (idioma == 18) {
            EXPECT_EQ(utf8_de(vtm_fecha_str_u(T)), "Сб 31 Декабрь " + hora);
        }
    }
    msidioma_establece_idioma(0);
    // A year that no platform's record holds: told with a message for the user.
    EXPECT_STREQ(vtm_fecha_str(INT64_MAX), "");
    EXPECT_EQ(utf8_de(vtm_fecha_str_u(INT64_MAX)), "");
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 2u);
    EXPECT_EQ(informes[1].detalle, "La fecha está mal. Revise en su sistema operativo si la fecha es correcta.");
}

PRUEBA(vorntime_textos, las_formas_del_usuario_son_las_de_su_region) {
    // Of two digits everywhere: systems differ in whether a short date has zeros.
    const tmtime fecha{17, 16, 15, 14, 10, 105, 1, 317, 0}, antigua{0, 0, 0, 1, 0, 0, 1, 0, 0}; // and 1900
    const struct {
        const char *region, *sin_segundos, *ddmmaa, *con_modelo;
        std::string corta, hora, formato;
    } filas[] = {
        {"es-ES", "15:16", "14/11/05", "lunes 14 de noviembre", "14/11/2005", "15:16:17", "dd/MM/yyyy HH:mm:ss"},
        {"en-US", "3:16 PM", "14/11/05", "Monday 14 de November", "11/14/2005", "3:16:17 PM", "dd/MM/yyyy HH:mm:ss"},
        {"de-DE", "15:16", "14.11.05", "Montag 14 de November", "14.11.2005", "15:16:17", "dd.MM.yyyy HH:mm:ss"},
    };
    for (const auto &f : filas) {
        ASSERT_EQ(vnregional_establece(f.region), CIERTO);
        EXPECT_EQ(toma(vtm_formatea_fecha_corta(&fecha)), f.corta);
        EXPECT_EQ(toma(vtm_formatea_fecha_corta(&antigua)), "");
        EXPECT_EQ(toma(vtm_formatea_hora(&fecha, CIERTO)), f.hora);
        EXPECT_EQ(toma(vtm_formatea_fecha_y_hora(nullptr, &fecha)), f.corta + " " + f.hora);
        EXPECT_EQ(toma(vtm_formatea_fecha_y_hora_sin_segundos("Obra", &fecha)),
                  "Obra " + f.corta + " " + f.sin_segundos);
        EXPECT_EQ(toma(vtm_formatea_fecha_ddmmaa_con_separador_sistema(&fecha)), f.ddmmaa);
        EXPECT_EQ(toma(vtm_formatea_fecha_segun_modelo(&fecha, "dddd d 'de' MMMM")), f.con_modelo);
        EXPECT_EQ(toma(vorntime_dame_cadena_formato_fecha(CIERTO)), f.formato);
        EXPECT_EQ(toma(vorntime_dame_cadena_formato_fecha(FALSO)), f.formato.substr(0, 10));
    }
    // Where names are looked at, and where they are not.
    for (const char *region : {"es-ES", "es-MX", "gl-ES", "ja-JP"}) {
        ASSERT_EQ(vnregional_establece(region), CIERTO);
        vtm_test_fechas(nullptr);
    }
}

PRUEBA(vorntime_textos, los_listados_siguen_a_la_lengua) {
    for (const int idioma : {0, 8}) {
        msidioma_establece_idioma(idioma);
        const char *const formato = idioma == 8 ? "%m/%d/%y %I:%M %p" : "%d/%m/%y %I:%M %p";
        std::string antes, textos, textos_u;
        do { // again if the minute ends meanwhile
            char *f = nullptr, *h = nullptr;
            vnwchar *fu = nullptr, *hu = nullptr;
            antes = segun(formato, vorntime_ahora_UTC());
            vtm_fecha_y_hora_para_listados(&f, &h);
            vtm_fecha_y_hora_para_listados_u(&fu, &hu);
            textos = toma(f) + " " + toma(h), textos_u = toma(fu) + " " + toma(hu);
        } while (antes != segun(formato, vorntime_ahora_UTC()));
        EXPECT_EQ(textos, antes);
        EXPECT_EQ(textos_u, antes);
    }
}

// The same text on every platform, whatever the locale: a digest of the forms of 250,000 dates.
PRUEBA(vorntime_textos, los_textos_son_los_mismos_en_todas_partes) {
    vn::azar z(3);
    vn::huella h;
    for (int i = 0; i < 250000; ++i) {
        // Half of them up to 2150, half up to the year 9999.
        const int64_t t = z.entero_entre(0, i % 2 == 0 ? 5711731199 : 253402300799);
        tmtime f;
        vtm_convierte_time64t_a_fecha(t, &f);
        if (i % 6 == 0) h << toma(vtm_fecha_a_cadena_a(nullptr, &f, '/'));
        if (i % 6 == 1) h << toma(vtm_fecha_a_cadena(VNU("Fecha:"), &f, '-'));
        if (i % 6 == 2) h << toma(vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(&f));
        if (i % 6 == 3) h << toma(vtm_time_a_texto_AAAA_MM_DD_u(t, '.'));
        if (i % 6 == 4) h << toma(vtm_time_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(t));
        if (i % 6 != 5) continue;
        // The names of each language, before it is the active one too, in both widths.
        const int idioma = static_cast<int>(z.entero(41));
        const auto mes = static_cast<uint32_t>(f.tm_mon);
        const std::string nombre = toma(vorntime_obtener_nombre_mes_con_idioma(mes, idioma));
        msidioma_establece_idioma(idioma);
        const std::string abreviado = vorntime_obtener_nombre_mes_abreviado(mes);
        h << nombre << abreviado;
        ASSERT_EQ(utf8_de(vorntime_obtener_nombre_mes_u(mes)), nombre) << idioma;
        ASSERT_EQ(de_pagina(vorntime_obtener_nombre_mes(mes), idioma), nombre) << idioma;
        ASSERT_EQ(de_pagina(abreviado.c_str(), idioma), utf8_de(vorntime_obtener_nombre_mes_abreviado_u(mes)));
    }
    EXPECT_EQ(h(), 3602211716184040268u);
}
