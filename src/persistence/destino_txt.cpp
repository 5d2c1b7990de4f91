#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/destino_fichero_priv.h"

#include "foundation/ficheros/vtxt.h"
#include "foundation/ficheros/vtxt_int.h"
#include "foundation/texto/cad.h"
#include "persistence/vornbin.h"
#include <cstring>
#include <string>
#include <utility>

// The text stream: a line a value. With comments, a plain number leaves its line open for one.
namespace vn {
namespace {

using tabla::usa;

// ---- Values

// A bad truth value writes no line, so that a reader would be out of step behind it: the save fails.
void graba_BOOL(vnbool v, vnfichero *f) {
    if (v > CIERTO) ficheros::marca_fallo_escritura(f);
    vtxt_escr_BOOL(v, f);
}
void graba_bool_con_textos(vnfichero *f, vnbool v, const char *texto1, const char *texto2) {
    if (v > CIERTO) ficheros::marca_fallo_escritura(f);
    vtxt_graba_bool(f, v, texto1, texto2);
}

// A line end inside a text, and the escape itself, go as wide texts have them; an escape of another form is a text's
// own.
constexpr char ESCAPADOS[] = {'\n', '\r', ficheros::ESCAPE_DE_UNIDAD, '\0'};
constexpr size_t CIFRAS = 4;
std::string escapa(const char *s) {
    std::string t;
    for (size_t n; *s != '\0'; s += n) {
        n = std::strcspn(s, ESCAPADOS);
        t.append(s, n);
        if (s[n] == '\0') break;
        t += ficheros::ESCAPE_DE_UNIDAD;
        t += s[n] == '\n' ? "000A" : s[n] == '\r' ? "000D" : "0010";
        ++n;
    }
    return t;
}
char *quita_escapes(char *s) {
    // In place, from the first escape on: without its escapes a text only becomes shorter.
    char *d = std::strchr(s, ficheros::ESCAPE_DE_UNIDAD);
    for (const char *p = d; p != nullptr && (*d = *p) != '\0'; ++p, ++d) {
        if (*p != ficheros::ESCAPE_DE_UNIDAD) continue;
        constexpr std::pair<const char *, char> FORMAS[] = {
            {"000A", '\n'}, {"000D", '\r'}, {"0010", ficheros::ESCAPE_DE_UNIDAD}};
        for (const auto &[cifras, c] : FORMAS)
            if (std::strncmp(p + 1, cifras, CIFRAS) == 0) {
                *d = c;
                p += CIFRAS;
                break;
            }
    }
    return s;
}
void graba_cadena_en_linea(const char *s, vnfichero *f) {
    if (s[std::strcspn(s, ESCAPADOS)] == '\0') vtxt_escr_string(s, f);
    else vtxt_escr_string(escapa(s).c_str(), f);
}
char *lee_cadena_de_linea(vnfichero *f) { return quita_escapes(vtxt_lee_cadena(f)); }
// A text of an array: a line of up to 255 characters.
constexpr size_t TAMANYO_LINEA = 256;
void graba_linea(const char *s, vnfichero *f) {
    // The reader has a line of so many bytes, escapes included: what does not fit is told while it can be mended.
    const size_t longitud = escapa(s).size();
    if (!AFIRMA(longitud < TAMANYO_LINEA)) ficheros::marca_fallo_escritura(f);
    graba_cadena_en_linea(s, f);
}
char *lee_linea(vnfichero *f) {
    // A line that has no room is reported and read to its end.
    char linea[TAMANYO_LINEA];
    vtxt_lee_string(f, linea, sizeof linea);
    return cad_copia_cadena(quita_escapes(linea));
}
// The name of a field has no place in a line.
void graba_cadena_de_campo(const char *s, const char *, vnfichero *f) { graba_cadena_en_linea(s, f); }
char *lee_cadena_de_campo(vnfichero *f, const char *) { return lee_cadena_de_linea(f); }

// ---- The forms of a number: what ends its line, what leaves it open, and the plain one.

#define NUMEROS(X) X(char) X(short) X(long) X(long64) X(double) X(uchar) X(ushort) X(ulong) X(ulong64)

// With comments the plain form leaves the line open for one; without, it ends the line.
constexpr fncs_grabar_t con_lineas(fncs_grabar_t t, bool con_comentarios) {
#define X(n)                                                                                                           \
    t.fncptr_graba_##n##_sin_salto = t.fncptr_graba_##n;                                                               \
    if (!con_comentarios) t.fncptr_graba_##n = t.fncptr_graba_##n##_y_salta;
    NUMEROS(X)
#undef X
    return t;
}
constexpr fncs_leer_t con_lineas(fncs_leer_t t, bool con_comentarios) {
#define X(n)                                                                                                           \
    t.fncptr_lee_##n##_sin_salto = t.fncptr_lee_##n;                                                                   \
    if (!con_comentarios) t.fncptr_lee_##n = t.fncptr_lee_##n##_y_salta;
    NUMEROS(X)
#undef X
    // Characters of the OEM page follow the same rule.
    t.fncptr_lee_char_sin_salto_ASCII = t.fncptr_lee_char_ASCII;
    if (!con_comentarios) t.fncptr_lee_char_ASCII = t.fncptr_lee_char_y_salta_ASCII;
    return t;
}

constexpr destino destino_txt(bool con_comentarios) {
    return {
        .tipo = TXT,
        .es_texto = true,
        .trozos_libres = true,
        .grabar = con_lineas(
            {
                .fncptr_graba_bool_texto = usa<graba_bool_con_textos>,
                .fncptr_graba_bool = usa<graba_BOOL>,
                .fncptr_graba_cadena = usa<graba_cadena_en_linea>,
                .fncptr_graba_cadena_unicode = usa<vtxt_escr_cadena_unicode>,
                .fncptr_graba_cadena_campo = usa<graba_cadena_de_campo>,
                .fncptr_graba_char = usa<vtxt_escr_char>,
                .fncptr_graba_short = usa<vtxt_escr_signed_short>,
                .fncptr_graba_long = usa<vtxt_escr_long>,
                .fncptr_graba_long64 = usa<vtxt_escr_long64>,
                .fncptr_graba_double = usa<vtxt_escr_double>,
                .fncptr_graba_uchar = usa<vtxt_escr_uchar>,
                .fncptr_graba_ushort = usa<vtxt_escr_ushrt>,
                .fncptr_graba_ulong = usa<vtxt_escr_ulong>,
                .fncptr_graba_ulong64 = usa<vtxt_escr_ulong64>,
                .fncptr_graba_buffer = usa<bin_graba_buffer>,
                .fncptr_graba_char_y_salta = usa<vtxt_escr_char_y_salta>,
                .fncptr_graba_short_y_salta = usa<vtxt_escr_signed_short_y_salta>,
                .fncptr_graba_long_y_salta = usa<vtxt_escr_long_y_salta>,
                .fncptr_graba_long64_y_salta = usa<vtxt_escr_long64_y_salta>,
                .fncptr_graba_double_y_salta = usa<vtxt_escr_double_y_salta>,
                .fncptr_graba_uchar_y_salta = usa<vtxt_escr_uchar_y_salta>,
                .fncptr_graba_ushort_y_salta = usa<vtxt_escr_ushrt_y_salta>,
                .fncptr_graba_ulong_y_salta = usa<vtxt_escr_ulong_y_salta>,
                .fncptr_graba_ulong64_y_salta = usa<vtxt_escr_ulong64_y_salta>,
            },
            con_comentarios),
        .leer = con_lineas(
            {
                .fncptr_lee_bool_texto = usa<vtxt_lee_bool>,
                .fncptr_lee_bool = usa<vtxt_leer_BOOL>,
                .fncptr_lee_cadena = usa<lee_cadena_de_linea>,
                .fncptr_lee_cadena_unicode = usa<vtxt_lee_cadena_unicode>,
                .fncptr_lee_cadena_campo = usa<lee_cadena_de_campo>,
                .fncptr_lee_cadena_ASCII = usa<vtxt_lee_cadena_ASCII>,
                .fncptr_lee_char = usa<vtxt_lee_char>,
                .fncptr_lee_char_ASCII = usa<vtxt_lee_char_ASCII>,
                .fncptr_lee_short = usa<vtxt_lee_signed_short>,
                .fncptr_lee_long = usa<vtxt_lee_long>,
                .fncptr_lee_long64 = usa<vtxt_lee_long64>,
                .fncptr_lee_double = usa<vtxt_lee_double>,
                .fncptr_lee_uchar = usa<vtxt_lee_uchar>,
                .fncptr_lee_ushort = usa<vtxt_lee_ushrt>,
                .fncptr_lee_ulong = usa<vtxt_lee_ulong>,
                .fncptr_lee_ulong64 = usa<vtxt_lee_ulong64>,
                .fncptr_lee_buffer = usa<bin_lee_buffer>,
                .fncptr_lee_char_y_salta = usa<vtxt_lee_char_y_salta>,
                .fncptr_lee_char_y_salta_ASCII = usa<vtxt_lee_char_y_salta_ASCII>,
                .fncptr_lee_short_y_salta = usa<vtxt_lee_signed_short_y_salta>,
                .fncptr_lee_long_y_salta = usa<vtxt_lee_long_y_salta>,
                .fncptr_lee_long64_y_salta = usa<vtxt_lee_long64_y_salta>,
                .fncptr_lee_double_y_salta = usa<vtxt_lee_double_y_salta>,
                .fncptr_lee_uchar_y_salta = usa<vtxt_lee_uchar_y_salta>,
                .fncptr_lee_ushort_y_salta = usa<vtxt_lee_ushrt_y_salta>,
                .fncptr_lee_ulong_y_salta = usa<vtxt_lee_ulong_y_salta>,
                .fncptr_lee_ulong64_y_salta = usa<vtxt_lee_ulong64_y_salta>,
            },
            con_comentarios),
        .quedan = usa<flujo::quedan>,
        .fallos = flujo::FALLOS,
        .lineas =
            {
                .graba = usa<graba_linea>,
                .lee = usa<lee_linea>,
                .graba_comentario = usa<vtxt_escr_comentario_y_salta>,
                .salta = usa<vtxt_salta_linea>,
            },
    };
}

} // namespace

constexpr destino DESTINO_TXT = destino_txt(false), DESTINO_TXT_CON_COMENTARIOS = destino_txt(true);
static_assert(es_entera(DESTINO_TXT) && es_entera(DESTINO_TXT_CON_COMENTARIOS));

} // namespace vn
