#define VN_MODULO "formato_test"
#include "filas.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include <clocale>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <random>

namespace {

// What a format gives, in both widths; they must agree.
template <class... A> std::string da(const char *formato, A... args) {
    char *s = nousar_formatea(formato, args...);
    vnwchar *w = copiaforu_nousar_formatea(vn::ancho(formato).c_str(), args...);
    const std::string r = vn::toma(s);
    EXPECT_EQ(r, vn::toma(w)) << formato;
    return r;
}

} // namespace

PRUEBA(formato, enteros) {
    EXPECT_EQ(da("%d|%5d|%-5d|%05d|%+d|% d", 42, 42, 42, -42, 42, 42), "42|   42|42   |-0042|+42| 42");
    EXPECT_EQ(da("%x|%#X|%o|%#o|%u", 255u, 255u, 8u, 8u, 4294967295u), "ff|0XFF|10|010|4294967295");
    EXPECT_EQ(da("%.3d|%6.3d|%-6.3dx|%.0d|%06.3d", 7, 7, 7, 0, 7), "007|   007|007   x||   007");
    EXPECT_EQ(da("%*d|%-*d|%.*d", 4, 1, -4, 1, 3, 1), "   1|1   |001");
    EXPECT_EQ(da("%hd|%hu|%hhd|%hhu", 65537, 65535 + 2, 257, 511), "1|1|1|255");
    // A long is of 32 bits, whatever the platform's is.
    EXPECT_EQ(da("%ld|%lu|%li", INT32_MIN, UINT32_MAX, -1), "-2147483648|4294967295|-1");
    EXPECT_EQ(da("%lld|%I64d|%Id|%Iu|%zu|%I32u", INT64_MIN, INT64_MAX, int64_t{-5}, UINT64_MAX, size_t{9}, 7u),
              "-9223372036854775808|9223372036854775807|-5|18446744073709551615|9|7");
    EXPECT_EQ(da("[VNBOOL]%d\n100%%", CIERTO), "[VNBOOL]1\n100%");
    EXPECT_EQ(da("%p", static_cast<void *>(nullptr)), "0000000000000000");
}

PRUEBA(formato, reales_con_sus_decimales_exactos) {
    for (const auto &[formato, x, dado] :
         vn::filas<std::string, double, std::string>("foundation/formato.tsv", "reales"))
        EXPECT_EQ(da(formato.c_str(), x), dado) << formato;
    EXPECT_EQ(da("%.*f", 3, 2.0), "2.000");
    EXPECT_EQ(da("%.1200f", 1e308).size(), 309u + 1 + 1200);
    EXPECT_EQ(da("%.1102e", 1.5), "1.5" + std::string(1101, '0') + "e+00");
    // Every figure of a double, and not one more, against the C library in the C locale.
    std::mt19937_64 azar(7);
    for (int i = 0; i < 300; ++i) {
        const double x = std::ldexp(static_cast<double>(azar()), static_cast<int>(azar() % 400) - 200);
        for (const char *f : {"%.17g", "%.3f", "%.25e", "%20.8g", "%#.10g", "%#.3g"}) {
            char c[1500];
            std::snprintf(c, sizeof c, f, x);
            EXPECT_EQ(vn::toma(nousar_formatea(f, x)), c) << f;
        }
    }
}

PRUEBA(formato, textos_de_las_dos_anchuras) {
    const char *ansi = "ca\361a"; // with the page's own letter
    const auto ancho = vn::ancho("acción €");
    EXPECT_EQ(vn::toma(nousar_formatea("%s|%S|%ls|%hs|%6s|%-6s|%.2s", ansi, ancho.c_str(), ancho.c_str(), ansi, ansi,
                                       ansi, ansi)),
              "ca\361a|acci\xF3n \x80|acci\xF3n \x80|ca\361a|  ca\361a|ca\361a  |ca");
    EXPECT_EQ(vn::toma(copiaforu_nousar_formatea(VNU("%s|%S|%ls|%hs|%10s|%.3S"), ancho.c_str(), ansi, ancho.c_str(),
                                                 ansi, ancho.c_str(), ansi)),
              "acción €|caña|acción €|caña|  acción €|cañ");
    EXPECT_EQ(vn::toma(nousar_formatea("%c%C%lc%hc", '\xF1', 0x20AC, 0xF3, 'x')), "\xF1\x80\xF3x");
    EXPECT_EQ(vn::toma(copiaforu_nousar_formatea(VNU("%c%C%hc%lc"), 0x20AC, 0xF1, 0xF1, 0x4E00)), "€ññ一");
    const char *ninguno = nullptr;
    EXPECT_EQ(vn::toma(nousar_formatea("%s|%8S|%.3s", ninguno, ninguno, ninguno)), "(null)|  (null)|(nu");
    EXPECT_EQ(vn::toma(copiaforu_nousar_formatea(VNU("%s"), ninguno)), "(null)");
    // No more of an unterminated text is read than the precision allows.
    const char sin_fin[] = {'a', 'b', 'c'};
    EXPECT_EQ(vn::toma(nousar_formatea("%.3s|%.2hs", sin_fin, sin_fin)), "abc|ab");
    const std::string largo(5000, 'x');
    EXPECT_EQ(da("<%hs>", largo.c_str()), "<" + largo + ">");
}

PRUEBA(formato, una_conversion_que_no_existe_se_escribe_como_esta) {
    for (const char *f : {"a%yb", "a%-5.2kb", "50%"}) {
        EXPECT_EQ(vn::toma(nousar_formatea(f)), f);
        EXPECT_EQ(toma_informes().size(), 1u) << f;
    }
    EXPECT_EQ(vn::toma(nousar_formatea("%n%d", 3)), "%n3");
    EXPECT_EQ(toma_informes().size(), 1u);
    // Told once, though a long text is composed twice.
    EXPECT_EQ(vn::toma(nousar_formatea("%2000d%!", 1)).size(), 2002u);
    EXPECT_EQ(toma_informes().size(), 1u);
    EXPECT_EQ(vn::toma(nousar_formatea("%99999999999d", 1)).size(), 1'000'000u);
}

PRUEBA(formato, no_depende_del_idioma_de_la_biblioteca_de_c) {
    const std::string antes = std::setlocale(LC_ALL, nullptr);
    const bool con_coma = vn::pon_locale_con_coma();
    EXPECT_EQ(da("%.2f|%g|%e", 1234567.5, 1.5, 2.5), "1234567.50|1.5|2.500000e+00");
    EXPECT_EQ(cad_atof("1.5"), 1.5);
    EXPECT_EQ(cad_atof("1,5"), 1.0);
    EXPECT_EQ(widestr_atof(VNU("-2.25e1")), -22.5);
    std::setlocale(LC_ALL, antes.c_str());
    // Where there is one for this test, it must have been in force.
    EXPECT_TRUE(con_coma || std::getenv("VN_HAY_LOCALE_CON_COMA") == nullptr);
}
