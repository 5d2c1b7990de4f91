#define VN_MODULO "vtxt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vtxt.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/trata_int.h"
#include "foundation/ficheros/vtxt_int.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/utf_int.h"
#include "foundation/texto/formato_int.h"
#include "foundation/texto/unicode.h"
#include <charconv>
#include <cmath>
#include <cstdarg>

namespace {

void escribe(std::string_view s, vnfichero *f) {
    if (!s.empty()) vnfichero_pon(f, s.data(), s.size(), VN_AQUI);
}

// A number and the character that follows it, ' ' or '\n'.
template <class T> void escribe_numero(T v, char despues, vnfichero *f) {
    char texto[40];
    char *fin = texto;
    // A char is the number of its code, whether the platform's is signed or not.
    if constexpr (std::is_same_v<T, char>) fin = std::to_chars(texto, texto + 39, static_cast<unsigned char>(v)).ptr;
    else fin = std::to_chars(texto, texto + 39, v).ptr;
    if constexpr (std::is_same_v<T, double>) {
        if (std::isnan(v)) fin = std::copy_n("nan", 3, texto); // its sign is not the same everywhere
    }
    *fin++ = despues;
    escribe({texto, fin}, f);
}

void escribe_en_utf8(const vnwchar *s, vnfichero *f) {
    const vn::propio<char> utf8(unicode_convierte_UNICODE_a_UTF8(s));
    if (utf8 != nullptr) escribe(utf8.get(), f);
}

// The text with each unit that a line of UTF-8 cannot hold as its escape.
vn::propio<vnwchar> escapa(std::basic_string_view<vnwchar> s) {
    // An escape takes five units, and nothing takes more.
    vn::propio<vnwchar> t(static_cast<vnwchar *>(vornspy_malloc((5 * s.size() + 1) * sizeof(vnwchar))));
    vnwchar *p = t.get();
    for (size_t i = 0; i < s.size(); ++i) {
        const vnwchar c = s[i];
        // A whole pair goes out as one character of UTF-8.
        if (vn::es_alto(c) && i + 1 < s.size() && vn::es_bajo(s[i + 1])) {
            *p++ = c;
            *p++ = s[++i];
        } else if (c < 32 || c == 127 || vn::es_alto(c) || vn::es_bajo(c)) {
            *p++ = vn::ficheros::ESCAPE_DE_UNIDAD;
            for (int bits = 12; bits >= 0; bits -= 4) *p++ = static_cast<vnwchar>("0123456789ABCDEF"[c >> bits & 15]);
        } else {
            *p++ = c;
        }
    }
    *p = 0;
    return t;
}

} // namespace

#define NUMERO(N, T)                                                                                                   \
    void vtxt_escr_##N(T v, vnfichero *f) {                                                                            \
        if (AFIRMA_NO_NULO(f)) escribe_numero(v, ' ', f);                                                              \
    }                                                                                                                  \
    void vtxt_escr_##N##_y_salta(T v, vnfichero *f) {                                                                  \
        if (AFIRMA_NO_NULO(f)) escribe_numero(v, '\n', f);                                                             \
    }
VN_VTXT_NUMEROS(NUMERO)

void vtxt_escr_int_y_salta(int v, vnfichero *f) { vtxt_escr_long_y_salta(v, f); }

void vtxt_escr_BOOL(vnbool v, vnfichero *f) {
    if (AFIRMA_LOGICO(v) && AFIRMA_NO_NULO(f)) escribe_numero(v, '\n', f);
}

void vtxt_graba_bool(vnfichero *f, vnbool v, const char *texto1, const char *texto2) {
    if (!AFIRMA_NO_NULO(f) || !AFIRMA_LOGICO(v) || !EXIGE(texto1, texto2)) return;
    vtxt_escr_string(v == CIERTO ? texto1 : texto2, f);
}

void vtxt_escr_string(const char *s, vnfichero *f) {
    if (!EXIGE(s, f)) return;
    escribe(s, f);
    escribe("\n", f);
}

void vtxt_escr_string_sin_salto_de_linea(const char *s, vnfichero *f) {
    if (EXIGE(s, f)) escribe(s, f);
}

void vtxt_escr_string_sin_salto_de_linea_u(const vnwchar *s, vnfichero *f) {
    if (EXIGE(s, f)) escribe_en_utf8(s, f);
}

void vtxt_escr_cadena_unicode(const vnwchar *s, vnfichero *f) {
    if (!EXIGE(s, f)) return;
    escribe_en_utf8(escapa(s).get(), f);
    escribe("\n", f);
}

void vtxt_escr_comentario_y_salta(const char *comentario, vnfichero *f) {
    if (!EXIGE(comentario, f)) return;
    escribe("; ", f);
    std::string_view resto = comentario;
    // A comment is one line, since what reads it passes over one.
    for (size_t n; (n = resto.find_first_of("\r\n")) != resto.npos; resto.remove_prefix(n + 1)) {
        escribe(resto.substr(0, n), f);
        escribe(" ", f);
    }
    escribe(resto, f);
    escribe("\n", f);
}

void vtxt_escr_fin_linea(vnfichero *f) {
    if (AFIRMA_NO_NULO(f)) escribe("\n", f);
}

void vtxt_printf(vnfichero *f, const char *formato, ...) {
    if (!EXIGE(f, formato)) return;
    CON_ARGUMENTOS(args, formato, const vn::propio<char> texto(vn::texto::formatea_nuevo(formato, args, VN_AQUI)));
    if (texto != nullptr) escribe(texto.get(), f);
}

void vtxt_printf_u(vnfichero *f, const vnwchar *formato, ...) {
    if (!EXIGE(f, formato)) return;
    CON_ARGUMENTOS(args, formato, const vn::propio<vnwchar> texto(vn::texto::formatea_nuevo(formato, args, VN_AQUI)));
    if (texto != nullptr) escribe_en_utf8(texto.get(), f);
}

void vtxt_trata_bool(vnfichero *f, vnbool *dato, const char *texto1, const char *texto2, vnbool graba) {
    if (!EXIGE(f, dato, texto1, texto2)) return;
    if (!AFIRMA_LOGICO(graba)) return;
    if (graba == CIERTO) vtxt_graba_bool(f, *dato, texto1, texto2);
    else *dato = vtxt_lee_bool(f, texto1, texto2);
}

// The members that go both ways.
#define TRATOS(X)                                                                                                      \
    X(char *, vtxt_trata_cadena, vtxt_escr_string, vtxt_lee_cadena)                                                    \
    X(vnwchar *, vtxt_trata_cadena_u, vtxt_escr_cadena_unicode, vtxt_lee_cadena_unicode)                               \
    X(double, vtxt_trata_double, vtxt_escr_double, vtxt_lee_double)                                                    \
    X(uint16_t, vtxt_trata_ushrt, vtxt_escr_ushrt, vtxt_lee_ushrt)                                                     \
    X(uint8_t, vtxt_trata_uchar_como_ushrt, vtxt_escr_ushrt, vtxt_lee_uchar)
TRATOS(VN_TRATA)

void vtxt_trata_cadena_ansi_ascii(char **dato, vnfichero *f, vnbool graba, uint16_t version, uint16_t version_ascii) {
    if (!AFIRMA_TRATA(dato)) return;
    if (graba == CIERTO) vtxt_escr_string(*dato, f);
    else *dato = vtxt_lee_cadena_ansi_ascii(f, version, version_ascii);
}

void vtxt_trata_comentario(const char *comentario, vnfichero *f, vnbool graba) {
    if (!AFIRMA_TRATA(comentario)) return;
    if (graba == CIERTO) vtxt_escr_comentario_y_salta(comentario, f);
    else vtxt_salta_linea(f);
}
