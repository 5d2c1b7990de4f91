#define VN_MODULO "unicode (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/unicode.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/cadena_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/texto_priv.h"

using namespace vn;
using namespace vn::texto;

namespace {

constexpr uint32_t MAX_IDIOMA = 41;

// The ANSI pages of the languages that do not write with 1252.
constexpr struct {
    uint32_t idioma, pagina;
} PAGINAS_DE_IDIOMA[] = {
    {10, 1251}, // Bulgarian
    {11, 1250}, // Romanian
    {12, 936},  // Chinese
    {18, 1251}, // Russian
    {31, 1250}, // Polish
    {33, 1254}, // Turkish
    {39, 932},  // Japanese
};

// A new text out of a conversion that counts, when it is given no room, and then writes.
template <class C, class F> C *convertido(F convierte) {
    const size_t n = convierte(static_cast<C *>(nullptr));
    C *s = texto::nuevo<C>(n, {VN_AQUI});
    convierte(s);
    return s;
}

vnwchar *ancho_de(const pagina &p, const char *s) {
    const std::string_view v(s);
    return convertido<vnwchar>([&](vnwchar *d) { return a_ancho(p, v, d); });
}

char *de_pagina(const pagina &p, const vnwchar *s, vnbool *perdida, bool sin_acentos = false) {
    const vista_ancha v(s);
    bool hay = false;
    char *r = convertido<char>([&](char *d) { return a_pagina(p, v, d, hay, sin_acentos); });
    if (perdida != nullptr) *perdida = logico(hay);
    return r;
}

// Converts a text and frees it: through its owner's pointer, which becomes null, or taken over, so that it is freed
// even where memory runs out for the result.
template <class D, class O> D *en_lugar_de(O **s, D *(*convierte)(const O *)) {
    propio<D> r(convierte(*s));
    texto::destruye(s);
    return r.release();
}
template <class D, class O> D *en_lugar_de_tomado(O *s, D *(*convierte)(const O *)) {
    propio<O> origen(s);
    propio<D> r(convierte(s));
    s = origen.release();
    texto::destruye(&s);
    return r.release();
}

} // namespace

uint32_t unicode_pagina_ANSI_idioma(uint32_t idioma) {
    if (!AFIRMA(idioma <= MAX_IDIOMA)) return 1252;
    for (const auto &f : PAGINAS_DE_IDIOMA)
        if (f.idioma == idioma) return f.pagina;
    return 1252;
}

vnwchar *unicode_convierte_ANSI_a_UNICODE(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return ancho_de(pagina_activa(), s);
}

char *unicode_UNICODE_a_ANSI(const vnwchar *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return de_pagina(pagina_activa(), s, nullptr);
}

vnwchar *unicode_convierte_ANSI_idioma_a_UNICODE(const char *s, uint32_t idioma) {
    if (!AFIRMA_NO_NULO(s) || !AFIRMA(idioma <= MAX_IDIOMA)) return nullptr;
    return ancho_de(pagina_de_idioma(idioma), s);
}

char *unicode_convierte_UNICODE_a_ANSI_idioma(const vnwchar *s, uint32_t idioma, vnbool *perdida) {
    if (!AFIRMA_NO_NULO(s) || !AFIRMA(idioma <= MAX_IDIOMA)) return nullptr;
    return de_pagina(pagina_de_idioma(idioma), s, perdida);
}

char *unicode_convierte_UNICODE_a_UTF8(const vnwchar *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return convertido<char>([v = vista_ancha(s)](char *d) { return ancho_a_utf8(v, d); });
}

vnwchar *unicode_convierte_UTF8_a_UNICODE(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return convertido<vnwchar>([v = std::string_view(s)](vnwchar *d) { return utf8_a_ancho(v, d); });
}

char *unicode_convierte_UTF8_a_ANSI(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    const propio<vnwchar> ancho(unicode_convierte_UTF8_a_UNICODE(s));
    return de_pagina(pagina_activa(), ancho.get(), nullptr);
}

vnwchar unicode_caracter_ANSI_a_UNICODE(char c) {
    return static_cast<vnwchar>(pagina_activa().unidad[static_cast<unsigned char>(c)]);
}

char *unicode_a_salida_ANSI_tratando_error(const vnwchar *s, vnbool *hay_error) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return de_pagina(pagina_activa(), s, hay_error, true);
}

vnbool trconvansi_texto_unicode_es_compatible_ANSI_idioma(const vnwchar *s, uint32_t idioma) {
    if (!AFIRMA_NO_NULO(s) || !AFIRMA(idioma <= MAX_IDIOMA)) return FALSO;
    bool perdida = false;
    a_pagina(pagina_de_idioma(idioma), s, nullptr, perdida);
    return logico(!perdida);
}

vnwchar *utunicode_ANSI_a_UNICODE(const char *s) { return unicode_convierte_ANSI_a_UNICODE(s); }

char *utunicode_UNICODE_a_ANSI(const vnwchar *s) { return unicode_UNICODE_a_ANSI(s); }

vnwchar *utunicode_ANSI_a_UNICODE_destruyendo(char **s) {
    return EXIGE(s, *s) ? en_lugar_de(s, utunicode_ANSI_a_UNICODE) : nullptr;
}

char *utunicode_UNICODE_a_ANSI_destruyendo(vnwchar **s) {
    return EXIGE(s, *s) ? en_lugar_de(s, utunicode_UNICODE_a_ANSI) : nullptr;
}

vnwchar *utunicode_ANSI_a_UNICODE_destruyendo_p(char *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return en_lugar_de_tomado(s, utunicode_ANSI_a_UNICODE);
}

char *utunicode_UNICODE_a_ANSI_destruyendo_p(vnwchar *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return en_lugar_de_tomado(s, utunicode_UNICODE_a_ANSI);
}

void utunicode_destruye_UNICODE(vnwchar **s) {
    if (!EXIGE(s, *s)) return;
    texto::destruye(s);
}
