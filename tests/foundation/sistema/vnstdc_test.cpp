#include "foundation/ficheros/lc_fichero.h"
#include "foundation/sistema/vnstdc.h"
#include "texto_ancho.h"
#include <chrono>
#include <cmath>
#include <cstdlib>
#include <cstring>
#include <ctime>
#include <thread>

PRUEBA(vnstdc, los_textos_se_copian_y_se_buscan_hasta_su_final) {
    char room[8];
    vnstdc_memset(room, 'x', sizeof room);
    vnstdc_strncpy(room, "ab", 5);
    EXPECT_EQ(std::string_view(room, 8), std::string_view("ab\0\0\0xxx", 8));
    vnstdc_strncpy(room, "abcdef", 3);
    EXPECT_EQ(std::string_view(room, 5), std::string_view("abc\0\0", 5));
    const char *s = "a.b.c";
    EXPECT_EQ(vnstdc_strchr(s, 0), s + 5);
    EXPECT_EQ(vnstdc_strchr(s, 'z'), nullptr);
    EXPECT_EQ(vnstdc_strpbrk(s, "cb"), s + 2);
    EXPECT_EQ(vnstdc_strstr(s, ""), s);
    const vnwchar *w = VNU("a.b.c");
    EXPECT_EQ(vnstdc_wcsrchr(w, VNU('.')), w + 3);
    EXPECT_EQ(vnstdc_wcsrchr(w, 0), w + 5);
    EXPECT_EQ(vnstdc_wcscspn(w, VNU("zc")), 4u);
    EXPECT_EQ(vnstdc_wcscspn(w, VNU("")), 5u);
    EXPECT_GT(vnstdc_strcmp("\xE9", "e"), 0);
    vnwchar junto[8];
    vnstdc_wcscpy(junto, VNU("ab"));
    EXPECT_EQ(vn::utf8_de(vnstdc_wcscat(junto, VNU("cd"))), "abcd");
    vnstdc_memcpy(room + 1, room, 4); // overlapping
    EXPECT_EQ(std::string_view(room, 4), "aabc");
}

PRUEBA(vnstdc, los_numeros_se_leen_hasta_donde_llegan) {
    vnwchar *fin = nullptr;
    const vnwchar *w = VNU(" -1.5e2x");
    EXPECT_EQ(vnstdc_wcstod(w, &fin), -150.);
    EXPECT_EQ(fin, w + 7);
    EXPECT_EQ(vnstdc_wcstod(VNU("x"), &fin), 0.);
    EXPECT_EQ(vnstdc_atoi(" 12x"), 12);
    EXPECT_EQ(vnstdc__wtoi(VNU("99999999999")), INT32_MAX);
    EXPECT_EQ(vnstdc__wtol(VNU("-99999999999")), INT32_MIN);
    EXPECT_EQ(vnstdc_isalpha(0xE9), 0);
    EXPECT_EQ(vnstdc_labs(INT32_MIN), INT32_MIN);
}

// The end is written only where there is room for it, and nothing is written beyond.
PRUEBA(vnstdc, el_texto_con_limite_se_corta_sin_salirse) {
    const std::tuple<size_t, int, std::string> filas[] = {
        {0, -1, "......"}, {2, -1, "ab...."}, {3, 3, "abc..."}, {4, 3, std::string("abc\0..", 6)}};
    for (const auto &[n, resultado, queda] : filas) {
        char room[] = "......";
        vnwchar ancho[] = VNU("......");
        EXPECT_EQ(vnstdc__snprintf(room, n, "%s", "abc"), resultado);
        EXPECT_EQ(vnstdc__snwprintf(ancho, n, VNU("%s"), VNU("abc")), resultado);
        EXPECT_EQ(std::string(room, 6), queda) << n;
        EXPECT_TRUE(std::basic_string<vnwchar>(ancho, 6) == vn::ancho(queda)) << n;
    }
}

PRUEBA(vnstdc, la_lectura_de_un_dato_deja_en_el_flujo_lo_que_no_usa) {
    vn::graba_fichero(directorio() + "/f", "  -12abc 7 3000000000 0x1F 1.5e2 1e nan 70000 palabra larguisima");
    vnfichero *f = lc_fopen_u(vn::ancho(directorio() + "/f").c_str(), VNU("rb"));
    // What a reading answers, and what it leaves of a value.
    const auto lee = [f](const char *formato, auto v) {
        const int r = vnstdc_fscanf1(f, formato, &v);
        return std::pair(r, v);
    };
    const auto lee_texto = [f](const char *formato) {
        char texto[8] = "#";
        const int r = vnstdc_fscanf1(f, formato, texto);
        return std::to_string(r) + texto;
    };
    EXPECT_EQ(lee("%d", 0), std::pair(1, -12));
    EXPECT_EQ(lee("%d", 5), std::pair(0, 5)); // stops at "abc"
    EXPECT_EQ(lee_texto("%7s"), "1abc");
    EXPECT_EQ(lee("%I64d", int64_t{-1}), std::pair(1, int64_t{7}));
    EXPECT_EQ(lee("%ld", 5).first, 0); // does not fit
    EXPECT_EQ(lee("%lx", 0u), std::pair(1, 0x1Fu));
    EXPECT_EQ(lee("%lf", 0.), std::pair(1, 150.));
    EXPECT_EQ(lee("%lf", 0.).first, 0); // an exponent without digits
    EXPECT_TRUE(std::isnan(lee("%lf", 0.).second));
    EXPECT_EQ(lee("%hu", uint16_t{0}).first, 0);
    EXPECT_EQ(lee_texto(" palabra %4s"), "1larg");
    EXPECT_EQ(ESPERA_INFORME("una cadena se lee con su anchura", lee_texto("%s")), "0#");
    EXPECT_EQ(lee_texto("%4c").substr(0, 5), "1uisi");
    EXPECT_EQ(lee("%d", 0).first, 0);
    EXPECT_EQ(lee("%*3s %d", 0).first, -1);
    EXPECT_EQ(f_lc_feof(f), CIERTO);
    vnstdc_clearerr(f);
    EXPECT_EQ(f_lc_feof(f), FALSO);
    lc_fclose(f);
}

PRUEBA(vnstdc, dos_datos_de_un_texto_ancho) {
    const auto lee = [](const vnwchar *texto, const vnwchar *formato) {
        int32_t a = 0, b = 0;
        const int r = vnstdc_swscanf2(texto, formato, &a, &b);
        return std::tuple(r, a, b);
    };
    EXPECT_EQ(lee(VNU("12 / -5"), VNU("%d / %d")), std::tuple(2, 12, -5));
    EXPECT_EQ(lee(VNU("7:"), VNU("%d:%d")), std::tuple(1, 7, 0));
    EXPECT_EQ(lee(VNU(""), VNU("%d:%d")), std::tuple(-1, 0, 0));
    EXPECT_EQ(lee(VNU("010 08"), VNU("%i %i")), std::tuple(2, 8, 0));
    EXPECT_EQ(lee(VNU("obra 3 x"), VNU("%*s %d%*c%c")), std::tuple(2, 3, 'x'));
    EXPECT_EQ(ESPERA_INFORME("conversion de formato conocida", lee(VNU("1 2"), VNU("%n%d"))), std::tuple(0, 0, 0));
    EXPECT_EQ(ESPERA_INFORME("el formato tiene tantas conversiones como datos", lee(VNU("1 2 3"), VNU("%d %d %d"))),
              std::tuple(2, 1, 2));
}

PRUEBA(vnstdc, las_fechas_salen_en_ingles_y_las_semanas_segun_la_norma) {
    // Sunday 2 January 2022 is of the last week of 2021; week 53 of 2020 began on Monday 28 December.
    const struct {
        struct tm t;
        const char *formato, *texto;
    } filas[] = {
        {{9, 5, 13, 2, 0, 122, 0, 1},
         "%a %A %b %d %e %G-%V %j %U %W %u %y",
         "Sun Sunday Jan 02  2 2021-52 002 01 00 7 22"},
        {{9, 5, 13, 28, 11, 120, 1, 362}, "%G-W%V-%u %B", "2020-W53-1 December"},
        {{9, 5, 13, 31, 11, 124, 2, 365}, "%G-W%V %D %F %T %p %I", "2025-W01 12/31/24 2024-12-31 13:05:09 PM 01"},
        {{9, 5, 13, 1, 7, 90, 3, 212}, "100%% %c %q", "100% Wed Aug  1 13:05:09 1990 %q"},
    };
    for (const auto &f : filas) {
        char room[80];
        vnwchar ancho[80];
        const size_t n = vnstdc_strftime(room, sizeof room, f.formato, &f.t);
        EXPECT_STREQ(room, f.texto);
        EXPECT_EQ(n, std::strlen(f.texto));
        EXPECT_EQ(vnstdc_wcsftime(ancho, 80, vn::ancho(f.formato).c_str(), &f.t), n);
        EXPECT_EQ(vn::utf8_de(ancho), f.texto);
        EXPECT_EQ(vnstdc_strftime(room, n, f.formato, &f.t), 0u); // no room for the end
    }
    struct tm malo;
    std::memset(&malo, 0x7F, sizeof malo);
    char room[200];
    EXPECT_GT(vnstdc_strftime(room, sizeof room, "%a%b%c%C%G%V%U%W%j%p%x%z", &malo), 0u);
}

// Every half hour of the days around the changes of summer time, and of other years: the difference that is written is
// the one that there was, in the repeated hour too.
PRUEBA(vnstdc, la_diferencia_con_la_hora_universal_es_la_de_ese_momento) {
    using namespace std::chrono;
    const auto en_zona = [](const std::basic_string<vnwchar> &tz) {
        vnstdc__wputenv((VNU("TZ=") + tz).c_str());
        const time_t cero = 0;
        static_cast<void>(std::localtime(&cero)); // the C library looks at the zone again, where it has such names
    };
    constexpr int64_t DIAS[] = {-600000000, -1, 200000000, 1711756800, 1729900800, 1712404800, 1710028800, 2200000000};
    vnwchar *const suya = vnstdc__wgetenv(VNU("TZ"));
    for (const auto *tz : {VNU("Europe/Madrid"), VNU("America/St_Johns"), VNU("Australia/Lord_Howe")}) {
        en_zona(tz);
        for (const int64_t dia : DIAS)
            for (int64_t t = dia; t < dia + 4 * 86400; t += 1800) {
                const struct tm local = *vnstdc__localtime64(&t);
                const auto d = sys_days(year(local.tm_year + 1900) / (local.tm_mon + 1) / local.tm_mday);
                const int64_t s = d.time_since_epoch().count() * 86400LL + local.tm_hour * 3600 + local.tm_min * 60;
                const int64_t minutos = (s + local.tm_sec - t) / 60;
                char z[16];
                vnstdc_strftime(z, sizeof z, "%z", &local);
                const int hhmm = std::atoi(z);
                ASSERT_EQ(hhmm / 100 * 60 + hhmm % 100, minutos) << vn::utf8_de(tz) << " " << t;
                ASSERT_TRUE(std::strlen(z) == 5 && z[0] == (minutos < 0 ? '-' : '+')) << z;
            }
    }
    en_zona(suya != nullptr ? suya : VNU(""));
}

PRUEBA(vnstdc, la_hora_local_es_de_cada_hebra_y_las_variables_llevan_cualquier_caracter) {
    int64_t ahora = 0;
    const int64_t devuelto = vnstdc__time64(&ahora);
    EXPECT_EQ(devuelto, ahora);
    EXPECT_GT(ahora, 1700000000);
    const int64_t antes = -86400 * 2; // 30 December 1969, at least
    const struct tm *t = vnstdc__localtime64(&antes);
    EXPECT_TRUE(t != nullptr && t->tm_year == 69 && t->tm_mon == 11);
    std::thread([&] { EXPECT_NE(vnstdc__localtime64(&ahora), t); }).join();
    const int64_t nunca = INT64_MAX;
    EXPECT_EQ(vnstdc__localtime64(&nunca), nullptr);

    EXPECT_EQ(vnstdc__wputenv(VNU("VN_PRUEBA_ENTORNO=caf\u00E9 \u65E5=x")), 0);
    EXPECT_EQ(vn::utf8_de(vnstdc__wgetenv(VNU("VN_PRUEBA_ENTORNO"))), "café 日=x");
    EXPECT_STREQ(vnstdc_getenv("VN_PRUEBA_ENTORNO"), "caf\xE9 ?=x");
    // What was lent outlives its thread, the variable and its next values: an exit cleaner may still hold it.
    const char *prestado = nullptr;
    std::thread([&] { prestado = vnstdc_getenv("VN_PRUEBA_ENTORNO"); }).join();
    EXPECT_EQ(vnstdc_putenv("VN_PRUEBA_ENTORNO=otro"), 0);
    EXPECT_STREQ(vnstdc_getenv("VN_PRUEBA_ENTORNO"), "otro");
    EXPECT_EQ(vnstdc_putenv("VN_PRUEBA_ENTORNO="), 0);
    EXPECT_EQ(vnstdc_getenv("VN_PRUEBA_ENTORNO"), nullptr);
    EXPECT_STREQ(prestado, "caf\xE9 ?=x");
    if (!vn::EN_WINDOWS) {
        const vnwchar bytes[] = {VNU('V'), VNU('N'), VNU('_'), VNU('B'), VNU('='), 0xDCFF, VNU('\\'), 0xDCC3, 0};
        EXPECT_EQ(vnstdc__wputenv(bytes), 0);
        EXPECT_STREQ(std::getenv("VN_B"), "\xFF\\\xC3");
        EXPECT_EQ(std::basic_string<vnwchar>(vnstdc__wgetenv(VNU("VN_B"))), bytes + 5);
    }
    const vnwchar *ultimo = nullptr;
    for (int i = 0; i < 5000; ++i) {
        EXPECT_EQ(vnstdc__wputenv(vn::ancho("VN_PRUEBA_ENTORNO=" + std::to_string(i)).c_str()), 0);
        ultimo = vnstdc__wgetenv(VNU("VN_PRUEBA_ENTORNO"));
    }
    for (int i = 0; i < 16; ++i) { // the sixteenth other value is the first that takes its place
        EXPECT_EQ(vn::utf8_de(ultimo), "4999");
        EXPECT_EQ(vnstdc_putenv(("VN_PRUEBA_ENTORNO=x" + std::to_string(i)).c_str()), 0);
        EXPECT_TRUE(i == 15 || vnstdc__wgetenv(VNU("VN_PRUEBA_ENTORNO")) != nullptr);
    }
    for (const char *no : {"=x", "SIN_IGUAL"}) EXPECT_EQ(vnstdc_putenv(no), -1);
    EXPECT_EQ(vnstdc_getenv(""), nullptr);
}
