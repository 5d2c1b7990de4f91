#define VN_MODULO "unicode_test"
#include "foundation/listas/arr.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "propiedades.h"

using namespace vn;

namespace {

// The units of a text, which is freed: lone surrogates too.
std::u16string unidades(vnwchar *s) {
    std::u16string r = u16_de(s);
    widestr_destruye(&s);
    return r;
}

// A figure that stands for every byte, every pair of bytes and every unit of a page, both ways.
uint64_t huella_de_pagina() {
    huella h;
    for (unsigned a = 1; a < 256; ++a) {
        const char byte[] = {static_cast<char>(a), 0};
        for (const char16_t u : unidades(unicode_convierte_ANSI_a_UNICODE(byte))) h << u;
        for (unsigned b = 0x80; a >= 0x80 && b < 256; ++b) {
            const char par[] = {static_cast<char>(a), static_cast<char>(b), 'x', 0};
            for (const char16_t u : unidades(unicode_convierte_ANSI_a_UNICODE(par))) h << u;
        }
    }
    std::basic_string<vnwchar> todas;
    for (unsigned u = 1; u < 0x10000; ++u)
        if (u < 0xD800 || u >= 0xE000) todas += static_cast<vnwchar>(u);
    for (const char c : toma(unicode_UNICODE_a_ANSI(todas.c_str()))) h << static_cast<unsigned char>(c);
    return h();
}

} // namespace

PRUEBA(unicode, las_paginas_son_las_mismas_en_todas_partes) {
    const struct {
        uint32_t pagina;
        uint64_t huella;
    } filas[] = {
        {1250, 6446906060182951480u},  {1251, 911178397418679191u},  {1252, 4555619529350147440u},
        {1253, 17666687966202913630u}, {1254, 9264377097043765510u}, {850, 2292923424646729173u},
        {932, 11195468384397103203u},  {936, 2527272069022739112u},  {65001, 1207794795101547365u},
    };
    for (const auto &f : filas) {
        ASSERT_EQ(unicode_establece_pagina_ANSI(f.pagina), CIERTO);
        EXPECT_EQ(unicode_pagina_ANSI(), f.pagina);
        EXPECT_EQ(huella_de_pagina(), f.huella) << f.pagina;
    }
    for (const uint32_t no : {0u, 1u, 37u, 1200u, 54936u, 65000u, 99999u})
        EXPECT_EQ(unicode_establece_pagina_ANSI(no), FALSO) << no;
    EXPECT_EQ(unicode_pagina_ANSI(), filas[8].pagina);
}

PRUEBA(unicode, cada_idioma_escribe_en_su_pagina) {
    const struct {
        uint32_t idioma;
        const char *utf8;
        const char *ansi;
        vnbool perdida;
    } filas[] = {
        {0, "Cañón €", "Ca\xF1\xF3n \x80", FALSO},
        {8, "Œuvre", "\x8Cuvre", FALSO},
        {10, "Здравей", "\xC7\xE4\xF0\xE0\xE2\xE5\xE9", FALSO},
        {11, "înălțime", "\xEEn\xE3l?ime", CIERTO}, // the comma below is not on the page, the cedilla is
        {11, "înălţime", "\xEEn\xE3l\xFEime", FALSO},
        {12, "中文a", "\xD6\xD0\xCE\304a", FALSO},
        {18, "Ё", "\xA8", FALSO},
        {31, "żółw", "\xBF\xF3\xB3w", FALSO},
        {33, "Iğdır", "I\360d\xFDr", FALSO},
        {39, "構造~ソ①", "\x8D\x5C\x91\xA2~\x83\x5C\x87\x40", FALSO},
        {0, "Жα一", "???", CIERTO},
        {39, "éëÿ𠮟", "????", CIERTO},
        {12, "€", "\x80", FALSO},
    };
    for (const auto &f : filas) {
        vnbool perdida = 7;
        EXPECT_EQ(toma(unicode_convierte_UNICODE_a_ANSI_idioma(ancho(f.utf8).c_str(), f.idioma, &perdida)), f.ansi)
            << f.utf8;
        EXPECT_EQ(perdida, f.perdida) << f.utf8;
        EXPECT_EQ(trconvansi_texto_unicode_es_compatible_ANSI_idioma(ancho(f.utf8).c_str(), f.idioma), !f.perdida)
            << f.utf8;
        if (f.perdida == CIERTO) continue;
        EXPECT_EQ(unidades(unicode_convierte_ANSI_idioma_a_UNICODE(f.ansi, f.idioma)), u16_de(ancho(f.utf8).c_str()))
            << f.utf8;
    }
    // What a page leaves undefined goes round; a two-byte character that is none does not swallow what follows.
    EXPECT_EQ(unidades(unicode_convierte_ANSI_idioma_a_UNICODE("\x81\x8D\x9D", 0)), u"\x81\x8D\x9D");
    EXPECT_EQ(unidades(unicode_convierte_ANSI_idioma_a_UNICODE("\2011\x81\xFFz\x81", 39)), u"\uFFFD1\xFFFD"
                                                                                           u"z\xFFFD");
}

PRUEBA(unicode, utf8_estricto) {
    const struct {
        const char *utf8;
        std::u16string ancho;
    } filas[] = {
        {"a\xC3\xB1\xE2\x82\xAC\xF0\x9F\x98\x80", u"añ€😀"},
        {"\xF4\x8F\xBF\xBF|\xEF\xBF\xBF", u"\xDBFF\xDFFF|\xFFFF"},
        {"\xC0\xAF", u"\xFFFD\xFFFD"},                     // overlong
        {"\xE0\x80\x80", u"\xFFFD\xFFFD\xFFFD"},           // overlong
        {"\xED\xA0\x80", u"\xFFFD\xFFFD\xFFFD"},           // a surrogate
        {"\xF4\x90\x80\x80", u"\xFFFD\xFFFD\xFFFD\xFFFD"}, // beyond the last character
        {"\xF1\x80\200a\x80\xFF", u"\uFFFDa\xFFFD\xFFFD"},
        {"\xE2\x82", u"\xFFFD"}, // cut
        {"", u""},
    };
    for (const auto &f : filas) EXPECT_EQ(unidades(unicode_convierte_UTF8_a_UNICODE(f.utf8)), f.ancho);
    for (const size_t i : {0u, 1u}) {
        vnwchar *w = unicode_convierte_UTF8_a_UNICODE(filas[i].utf8);
        EXPECT_EQ(toma(unicode_convierte_UNICODE_a_UTF8(w)), filas[i].utf8);
        widestr_destruye(&w);
    }
    const vnwchar sueltos[] = {0xD800, 'a', 0xDC00, 0xD83D, 0};
    EXPECT_EQ(toma(unicode_convierte_UNICODE_a_UTF8(sueltos)), "\xEF\xBF\275a\xEF\xBF\xBD\xEF\xBF\xBD");
    EXPECT_EQ(toma(unicode_UNICODE_a_ANSI(sueltos)), "?a??");
    EXPECT_EQ(toma(unicode_convierte_UTF8_a_ANSI("ñ😀")), "\xF1?");
}

PRUEBA(unicode, formas_que_consumen_y_arrays) {
    char *a = cad_copia_cadena("ca\361a");
    vnwchar *w = utunicode_ANSI_a_UNICODE_destruyendo(&a);
    EXPECT_EQ(a, nullptr);
    EXPECT_EQ(utf8_de(w), "caña");
    a = utunicode_UNICODE_a_ANSI_destruyendo_p(w);
    w = utunicode_ANSI_a_UNICODE_destruyendo_p(a);
    EXPECT_EQ(toma(utunicode_UNICODE_a_ANSI_destruyendo(&w)), "ca\361a");
    EXPECT_EQ(w, nullptr);

    arrCADENA_u *anchos = arr_CreaCADENA_u(3);
    arr_SetCADENA_u(anchos, 0, ancho("ñ").c_str());
    arr_SetCADENA_u(anchos, 2, ancho("ăЖ").c_str());
    vnbool hay_error = FALSO;
    arrCADENA *salida = unicode_array_salida_ANSI_tratando_error(anchos, &hay_error);
    EXPECT_EQ(hay_error, CIERTO);
    EXPECT_EQ(arr_GetCADENA(salida, 1), nullptr);
    EXPECT_STREQ(arr_GetCADENA(salida, 2), "a?"); // without its accent rather than lost
    arr_DestruyeCADENA(&salida);
    arrCADENA *ansi = utunicode_cadenas_UNICODE_a_ANSI_destruyendo(&anchos);
    EXPECT_STREQ(arr_GetCADENA(ansi, 0), "\xF1");
    EXPECT_STREQ(arr_GetCADENA(ansi, 2), "??");
    anchos = utunicode_cadenas_ANSI_a_UNICODE(ansi);
    EXPECT_EQ(utf8_de(arr_GetCADENA_u(anchos, 0)), "ñ");
    utunicode_destruye_cadenas_UNICODE(&anchos);
    arr_SetCADENA(ansi, 1, "\xC3\xB1");
    anchos = utunicode_cadenas_UTF8_a_UNICODE_destruyendo(&ansi);
    EXPECT_EQ(ansi, nullptr);
    EXPECT_EQ(utf8_de(arr_GetCADENA_u(anchos, 1)), "ñ");
    EXPECT_EQ(utf8_de(arr_GetCADENA_u(anchos, 0)), "\xEF\xBF\xBD"); // F1 alone is no UTF-8
    utunicode_destruye_cadenas_UNICODE(&anchos);
}
