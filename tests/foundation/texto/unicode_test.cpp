#define VN_MODULO "unicode_test"
#include "filas.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "propiedades.h"
#include "texto_ancho.h"

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
    uint32_t ultima = 0;
    for (const auto &[pagina, huella] : filas<uint32_t, uint64_t>("foundation/unicode.tsv", "paginas")) {
        ASSERT_EQ(unicode_establece_pagina_ANSI(ultima = pagina), CIERTO);
        EXPECT_EQ(huella_de_pagina(), huella) << pagina;
    }
    for (const uint32_t no : {0u, 1u, 37u, 1200u, 54936u, 65000u, 99999u})
        EXPECT_EQ(unicode_establece_pagina_ANSI(no), FALSO) << no;
    EXPECT_EQ(unicode_pagina_ANSI(), ultima);
}

PRUEBA(unicode, cada_idioma_escribe_en_su_pagina) {
    for (const auto &[idioma, utf8, ansi, pierde] :
         filas<uint32_t, std::string, std::string, int>("foundation/unicode.tsv", "idiomas")) {
        const auto texto = ancho(utf8);
        vnbool perdida = 7;
        EXPECT_EQ(toma(unicode_convierte_UNICODE_a_ANSI_idioma(texto.c_str(), idioma, &perdida)), ansi) << utf8;
        EXPECT_EQ(perdida, pierde) << utf8;
        EXPECT_EQ(trconvansi_texto_unicode_es_compatible_ANSI_idioma(texto.c_str(), idioma), !pierde) << utf8;
        if (pierde) continue;
        EXPECT_EQ(toma(unicode_convierte_ANSI_idioma_a_UNICODE(ansi.c_str(), idioma)), utf8);
    }
    // What a page leaves undefined goes round; a two-byte character that is none does not swallow what follows.
    EXPECT_EQ(unidades(unicode_convierte_ANSI_idioma_a_UNICODE("\x81\x8D\x9D", 0)), u"\x81\x8D\x9D");
    EXPECT_EQ(unidades(unicode_convierte_ANSI_idioma_a_UNICODE("\2011\x81\xFFz\x81", 39)), u"\uFFFD1\uFFFDz\uFFFD");
}

PRUEBA(unicode, utf8_estricto) {
    for (const auto &[bytes, leido] : filas<std::string, std::string>("foundation/unicode.tsv", "utf8")) {
        vnwchar *w = unicode_convierte_UTF8_a_UNICODE(bytes.c_str());
        EXPECT_EQ(utf8_de(w), leido);
        EXPECT_EQ(toma(unicode_convierte_UNICODE_a_UTF8(w)), leido);
        widestr_destruye(&w);
    }
    const vnwchar sueltos[] = {0xD800, 'a', 0xDC00, 0xD83D, 0};
    EXPECT_EQ(toma(unicode_convierte_UNICODE_a_UTF8(sueltos)), "\uFFFDa\uFFFD\uFFFD");
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

    arrCADENA_u *anchos = arr_CreaCADENA_u(2);
    arr_SetCADENA_u(anchos, 0, VNU("ñ"));
    arr_AppendCADENA_u(anchos, VNU("ăЖ"));
    vnbool hay_error = FALSO;
    // Without its accent rather than lost.
    EXPECT_EQ(toma(unicode_array_salida_ANSI_tratando_error(anchos, &hay_error)), "\xF1|~|a?");
    EXPECT_EQ(hay_error, CIERTO);
    arrCADENA *ansi = utunicode_cadenas_UNICODE_a_ANSI_destruyendo(&anchos);
    EXPECT_EQ(anchos, nullptr);
    EXPECT_STREQ(arr_GetCADENA(ansi, 2), "??");
    EXPECT_EQ(toma(utunicode_cadenas_ANSI_a_UNICODE(ansi)), "ñ||??");
    arr_SetCADENA(ansi, 1, "\xC3\xB1");
    // F1 alone is no UTF-8.
    EXPECT_EQ(toma(utunicode_cadenas_UTF8_a_UNICODE_destruyendo(&ansi)), "\uFFFD|ñ|??");
    EXPECT_EQ(ansi, nullptr);
}
