#define VN_MODULO "vtxt_test"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/vtxt.h"
#include "foundation/texto/unicode.h"
#include "prueba.h"
#include <array>
#include <bit>
#include <cmath>
#include <cstring>

namespace {

std::string nombre() { return vn::Prueba::directorio() + "/lineas.txt"; }
vnfichero *abre(const vnwchar *modo) { return lc_fopen_u(vn::ancho(nombre()).c_str(), modo); }

// What `escribe` puts in a text file, as bytes with the line ends of the program.
template <class F> std::string escrito(F &&escribe) {
    vnfichero *f = abre(VNU("wt"));
    escribe(f);
    lc_fclose(f);
    std::string bytes = vn::lee_fichero(nombre());
    std::erase(bytes, '\r');
    return bytes;
}

template <class F> void leyendo(std::string_view contenido, F &&lee) {
    vn::graba_fichero(nombre(), contenido);
    vnfichero *f = abre(VNU("rt"));
    lee(f);
    lc_fclose(f);
}

// A text that is taken and freed.
std::string tomado(char *s) { return vn::toma(s); }
std::u16string tomado(vnwchar *s) {
    std::u16string t = vn::u16_de(s);
    vornspy_free_pp(&s, 1);
    return t;
}

template <auto lee> double leido(vnfichero *f) { return static_cast<double>(lee(f)); }

constexpr const char *MAL = "lc_error_leyendo_fichero";

} // namespace

PRUEBA(vtxt, los_valores_se_separan_con_un_blanco_y_las_lineas_se_cierran) {
    EXPECT_EQ(escrito([](vnfichero *f) {
                  vtxt_escr_long(-5, f);
                  vtxt_escr_comentario_y_salta("cota\ndel nudo", f);
                  vtxt_escr_double(0.1, f);
                  vtxt_escr_double_y_salta(-1e22, f);
                  vtxt_escr_BOOL(CIERTO, f);
                  vtxt_graba_bool(f, FALSO, "SI", "NO");
                  vtxt_escr_string_sin_salto_de_linea("Idioma=", f);
                  vtxt_escr_int_y_salta(7, f);
                  vtxt_escr_char_y_salta('\xFF', f);
                  vtxt_escr_string("", f);
                  vtxt_printf(f, "%s=%ld\n", "n", 3);
                  vtxt_printf_u(f, VNU("%s"), VNU("ñ"));
                  vtxt_escr_fin_linea(f);
              }),
              "-5 ; cota del nudo\n0.1 -1e+22\n1\nNO\nIdioma=7\n255\n\nn=3\nñ\n");
}

PRUEBA(vtxt, cada_numero_vuelve_tal_cual) {
    const auto vuelve = [](auto escribe, auto lee, auto v) {
        const std::string bytes = escrito([&](vnfichero *f) { escribe(v, f); });
        const auto bits = [](auto x) { return std::bit_cast<std::array<unsigned char, sizeof x>>(x); };
        leyendo(bytes, [&](vnfichero *f) { EXPECT_EQ(bits(lee(f)), bits(v)) << bytes; });
    };
    for (const double d :
         {0., -0., 0.1, 1e300, 5e-324, 1.7976931348623157e308, -3., 123456789012345680., vn::INF, -vn::INF})
        vuelve(vtxt_escr_double, vtxt_lee_double, d);
    for (int i = 0; i < 256; ++i) vuelve(vtxt_escr_char, vtxt_lee_char, static_cast<char>(i));
    vuelve(vtxt_escr_signed_short, vtxt_lee_signed_short, int16_t{INT16_MIN});
    vuelve(vtxt_escr_ushrt_y_salta, vtxt_lee_ushrt_y_salta, uint16_t{UINT16_MAX});
    vuelve(vtxt_escr_long_y_salta, vtxt_lee_long_y_salta, int32_t{INT32_MIN});
    vuelve(vtxt_escr_ulong, vtxt_lee_ulong, uint32_t{UINT32_MAX});
    vuelve(vtxt_escr_long64_y_salta, vtxt_lee_long64_y_salta, int64_t{INT64_MIN});
    vuelve(vtxt_escr_ulong64, vtxt_lee_ulong64, uint64_t{UINT64_MAX});
    vuelve(vtxt_escr_uchar, vtxt_lee_uchar, uint8_t{200});
    EXPECT_EQ(escrito([](vnfichero *f) {
                  for (const double d : {vn::INF, -vn::INF, -std::nan("")}) vtxt_escr_double(d, f);
              }),
              "inf -inf nan ");
    leyendo("nan\n", [](vnfichero *f) { EXPECT_TRUE(std::isnan(vtxt_lee_double_y_salta(f))); });
}

PRUEBA(vtxt, los_textos_ocupan_lo_que_queda_de_la_linea) {
    const std::string largo(200000, 'x');
    for (const char *fin : {"\n", "\r\n"}) {
        std::string contenido = "5 ; comentario|7  con blancos |" + largo + "||SI|A\xE1|\xA4|sin final";
        for (size_t i; (i = contenido.find('|')) != contenido.npos;) contenido.replace(i, 1, fin);
        leyendo(contenido, [&](vnfichero *f) {
            EXPECT_EQ(vtxt_lee_long(f), 5);
            vtxt_salta_linea(f);
            EXPECT_EQ(vtxt_lee_ushrt(f), 7);
            EXPECT_EQ(tomado(vtxt_lee_cadena(f)), " con blancos ");
            EXPECT_EQ(tomado(vtxt_lee_cadena(f)), largo);
            EXPECT_EQ(tomado(vtxt_lee_cadena(f)), "");
            EXPECT_EQ(vtxt_lee_bool(f, "SI", "NO"), CIERTO);
            EXPECT_EQ(tomado(vtxt_lee_cadena_ansi_a_unicode(f)), u"Aá");
            EXPECT_EQ(tomado(vtxt_lee_cadena_ansi_ascii(f, 3, 3)), "\xF1"); // n with tilde in both pages
            EXPECT_EQ(tomado(vtxt_lee_cadena_ansi_ascii(f, 4, 3)), "sin final");
            EXPECT_EQ(ESPERA_INFORME(MAL, tomado(vtxt_lee_cadena(f))), "");
        });
    }
}

PRUEBA(vtxt, los_textos_anchos_conservan_cada_unidad) {
    const std::u16string filas[] = {u"", u"C:\\Obras\\ñandú.obr", u" con\nsalto\r\ny\ttab ",
                                    u"\U0001F600\xD800|\xDC00\xD83D", u"\0200041\x7F\xFFFD\xFFFE\x0001"};
    const auto texto_de = [](const std::u16string &s) { return std::basic_string<vnwchar>(s.begin(), s.end()); };
    const std::string bytes = escrito([&](vnfichero *f) {
        for (const auto &s : filas) vtxt_escr_cadena_unicode(texto_de(s).c_str(), f);
    });
    EXPECT_EQ(std::count(bytes.begin(), bytes.end(), '\n'), 5);
    EXPECT_NE(bytes.find("\nC:\\Obras\\ñandú.obr\n con\020000Asalto"), bytes.npos);
    leyendo(bytes, [&](vnfichero *f) {
        for (const auto &s : filas) EXPECT_EQ(tomado(vtxt_lee_cadena_unicode(f)), s);
    });
    // What the writer never makes is told.
    for (const char *mal : {"a\xFFz\n", "\02000\n", "\0200000\n", "\02000g1\n", ""})
        leyendo(mal, [&](vnfichero *f) { ESPERA_INFORME(MAL, tomado(vtxt_lee_cadena_unicode(f))); });
}

PRUEBA(vtxt, un_valor_que_no_lo_es_se_informa_y_da_cero) {
    const std::pair<std::string, double (*)(vnfichero *)> filas[] = {
        {"x", leido<vtxt_lee_long_y_salta>},
        {"12a 3", leido<vtxt_lee_long_y_salta>},
        {"2147483648", leido<vtxt_lee_long_y_salta>},
        {std::string(72, '0') + "1", leido<vtxt_lee_long_y_salta>},
        {"-1", leido<vtxt_lee_ulong_y_salta>},
        {"65536", leido<vtxt_lee_ushrt_y_salta>},
        {"256", leido<vtxt_lee_char_y_salta>},
        {"18446744073709551616", leido<vtxt_lee_ulong64_y_salta>},
        {"1,5", leido<vtxt_lee_double_y_salta>},
        {"1e999", leido<vtxt_lee_double_y_salta>},
        {"2", leido<vtxt_leer_BOOL>},
        {"si", [](vnfichero *f) -> double { return vtxt_lee_bool(f, "SI", "NO"); }}};
    for (const auto &[linea, lee] : filas)
        leyendo(linea + "\n42\n", [&, linea = linea, lee = lee](vnfichero *f) {
            EXPECT_EQ(ESPERA_INFORME(MAL, lee(f)), 0) << linea;
            EXPECT_EQ(vtxt_lee_long_y_salta(f), 42) << linea;
            EXPECT_EQ(ESPERA_INFORME(MAL, vtxt_lee_long(f)), 0) << "past the end";
        });
}

PRUEBA(vtxt, un_buffer_nunca_se_pasa) {
    char buffer[8];
    std::memset(buffer, '#', sizeof buffer);
    leyendo("abc\nabcdefgh\n\nxyz", [&](vnfichero *f) {
        vtxt_lee_string(f, buffer, 4);
        EXPECT_STREQ(buffer, "abc");
        ESPERA_INFORME(MAL, vtxt_lee_string(f, buffer, 4));
        EXPECT_STREQ(buffer, "abc");
        EXPECT_EQ(buffer[4], '#');
        vtxt_lee_string(f, buffer, 1);
        EXPECT_STREQ(buffer, "");
    });
    leyendo("abc\r\nabcd\nz", [&](vnfichero *f) {
        for (const char *esperado : {"abc\n", "abcd", "\n", "z"}) EXPECT_STREQ(vtxt_lee_linea(f, buffer, 5), esperado);
        EXPECT_EQ(vtxt_lee_linea(f, buffer, 5), nullptr);
    });
    leyendo("aññ\nabcd\nfin", [&](vnfichero *f) {
        for (const char16_t *esperado : {u"añ", u"ñ", u"abcd", u"fin"})
            EXPECT_EQ(tomado(vtxt_lee_linea_utf8_a_unicode(f, 4)), esperado);
        EXPECT_EQ(vtxt_lee_linea_utf8_a_unicode(f, 4), nullptr);
    });
    vnwchar ancho[4] = {'#', '#', '#', '#'};
    leyendo("ñandú\n", [&](vnfichero *f) { ESPERA_INFORME(MAL, vtxt_lee_string_unicode(f, ancho, 3)); });
    EXPECT_EQ(vn::u16_de(ancho), u"ña");
    EXPECT_EQ(ancho[3], '#');
}

PRUEBA(vtxt, los_miembros_de_dos_sentidos_vuelven_por_donde_fueron) {
    vnbool logico = CIERTO;
    double doble = 2.5;
    uint16_t corto = 65535;
    uint8_t byte = 255;
    char texto[] = "un texto", viejo[] = "\xA4", *cadena = texto, *vieja = viejo;
    vnwchar linea[] = VNU("línea\n2"), *ancha = linea;
    const auto trata = [&](vnfichero *f, vnbool graba) {
        vtxt_trata_double(&doble, f, graba);
        vtxt_trata_comentario("comentario", f, graba);
        vtxt_trata_bool(f, &logico, "SI", "NO", graba);
        vtxt_trata_ushrt(&corto, f, graba);
        vtxt_trata_uchar_como_ushrt(&byte, f, graba);
        vtxt_trata_cadena(&cadena, f, graba);
        vtxt_trata_cadena_u(&ancha, f, graba);
        vtxt_trata_cadena_ansi_ascii(&vieja, f, graba, 2, 1);
    };
    const std::string bytes = escrito([&](vnfichero *f) { trata(f, CIERTO); });
    EXPECT_EQ(bytes, "2.5 ; comentario\nSI\n65535 255 un texto\nlínea\020000A2\n\xA4\n");
    logico = FALSO, doble = 0, corto = byte = 0, cadena = vieja = nullptr, ancha = nullptr;
    leyendo(bytes, [&](vnfichero *f) { trata(f, FALSO); });
    EXPECT_EQ(std::tuple(logico, doble, corto, byte), std::tuple(CIERTO, 2.5, 65535, 255));
    EXPECT_EQ(tomado(cadena), "un texto");
    EXPECT_EQ(tomado(vieja), "\xA4");
    EXPECT_EQ(tomado(ancha), u"línea\n2");
}
