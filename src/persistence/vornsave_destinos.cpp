#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_priv.h"

#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/vtxt.h"
#include "foundation/ficheros/vtxt_int.h"
#include "foundation/numeros/cambtipo.h"
#include "persistence/vornbin_priv.h"
#include <cstring>
#include <string>
#include <utility>

// The bindings: destination by entry, by name. An entry that is not named is absent, and using it is reported. A module
// that is a further destination adds its row here.
namespace vn {
namespace {

// ---- What fits a function of a destination's family into an entry: the destination in its own type, or less of it.

template <class P, class A> constexpr P convierte(A a) { return static_cast<P>(a); }

template <class F> struct partes;
template <class R, class... P> struct partes<R (*)(P...)> {
    // The function, called with the entry's arguments.
    template <auto F, class S, class... A> static S llama(A... a) {
        if constexpr (std::is_void_v<S>) F(convierte<P>(a)...);
        else return static_cast<S>(F(convierte<P>(a)...));
    }
};

template <auto F> struct enlace {
    template <class S, class... A> using entrada = S (*)(A...);
    template <class S, class... A> constexpr operator entrada<S, A...>() const {
        return &partes<decltype(F)>::template llama<F, S, A...>;
    }
};
template <auto F> inline constexpr enlace<F> usa;

// The words of a truth value, or the name of a field, are dropped.
template <auto F> void graba_bool_sin_textos(void *destino, vnbool valor, const char *, const char *) {
    partes<decltype(F)>::template llama<F, void>(valor, destino);
}
template <auto F> vnbool lee_bool_sin_textos(void *origen, const char *, const char *) {
    return partes<decltype(F)>::template llama<F, vnbool>(origen);
}
template <auto F> void graba_sin_campo(const char *valor, const char *, void *destino) {
    partes<decltype(F)>::template llama<F, void>(valor, destino);
}
template <auto F> char *lee_sin_campo(void *origen, const char *) {
    return partes<decltype(F)>::template llama<F, char *>(origen);
}

// ---- Forms of a number: what ends its line, what leaves it open, and the plain one.

#define NUMEROS(X) X(char) X(short) X(long) X(long64) X(double) X(uchar) X(ushort) X(ulong) X(ulong64)

// A binary destination has no lines: all forms are the plain one.
constexpr fncs_grabar_t sin_lineas(fncs_grabar_t t) {
#define X(n) t.fncptr_graba_##n##_y_salta = t.fncptr_graba_##n##_sin_salto = t.fncptr_graba_##n;
    NUMEROS(X)
#undef X
    return t;
}
constexpr fncs_leer_t sin_lineas(fncs_leer_t t) {
#define X(n) t.fncptr_lee_##n##_y_salta = t.fncptr_lee_##n##_sin_salto = t.fncptr_lee_##n;
    NUMEROS(X)
#undef X
    t.fncptr_lee_char_y_salta_ASCII = t.fncptr_lee_char_sin_salto_ASCII = t.fncptr_lee_char_ASCII;
    t.fncptr_lee_double_y_salta_con_posible_error = t.fncptr_lee_double_con_posible_error;
    return t;
}
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
    t.fncptr_lee_char_sin_salto_ASCII = t.fncptr_lee_char_ASCII;
    if (!con_comentarios) t.fncptr_lee_char_ASCII = t.fncptr_lee_char_y_salta_ASCII;
    return t;
}

// ---- Operations of a stream.

uint32_t tamanyo_fichero(vnfichero *f) { return cambtipo_double_a_ulong(lc_tamanyo_fichero(f)); }
void set_posicion(vnfichero *f, int32_t posicion) { lc_fseek(f, posicion, VN_DESDE_EL_PRINCIPIO); }
void set_posicion64(vnfichero *f, int64_t posicion) { vornio_fseek_i64(f, posicion, VN_DESDE_EL_PRINCIPIO); }
void graba_cabecera_bloque(const char *id, vnfichero *f) {
    const char *p = id;
    do bin_graba_char(*p, f);
    while (*p++ != '\0');
}
template <auto COMPRUEBA> vnbool se_lee_inicio_bloque(const char *id, vnfichero *f) {
    const int64_t posicion = vornio_ftell_i64(f);
    if (COMPRUEBA(id, f) != CIERTO) return FALSO;
    const char fin_cadena = bin_lee_char(f);
    if (AFIRMA(fin_cadena == '\0')) return CIERTO;
    set_posicion64(f, posicion);
    return FALSO;
}

// ---- Values as lines of a text stream.

// A truth value that is none has no line: what follows would be out of step.
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
    const size_t longitud = escapa(s).size();
    if (!AFIRMA(longitud < TAMANYO_LINEA)) ficheros::marca_fallo_escritura(f);
    graba_cadena_en_linea(s, f);
}
char *lee_linea(vnfichero *f) {
    char linea[TAMANYO_LINEA];
    vtxt_lee_string(f, linea, sizeof linea);
    return cad_copia_cadena(quita_escapes(linea));
}
bool quedan_en_fichero(vnfichero *f, uint64_t numero, uint64_t tamanyo) {
    return lc_quedan(f, numero, tamanyo) == CIERTO;
}
bool fichero_ha_fallado(vnfichero *f) { return lc_ha_fallado(f) == CIERTO; }
void marca_fallo(vnfichero *f) {
    ficheros::marca_fallo_escritura(f);
    ficheros::marca_fallo_lectura(f);
}
constexpr bool dice_sus_fallos(const destino &d) {
    const operaciones_destino &o = d.operaciones;
    return o.ha_fallado && o.error_leyendo && o.marca_fallo;
}

constexpr destino DESTINO_BIN{
    .tipo = BIN,
    .es_texto = false,
    .grabar = sin_lineas({
        .fncptr_graba_bool_texto = graba_bool_sin_textos<bin_graba_bool>,
        .fncptr_graba_bool = usa<bin_graba_bool>,
        .fncptr_graba_cadena = usa<bin_graba_cadena>,
        .fncptr_graba_cadena_unicode = usa<bin_graba_cadena_unicode>,
        .fncptr_graba_cadena_campo = graba_sin_campo<bin_graba_cadena>,
        .fncptr_graba_char = usa<directo::graba_char>,
        .fncptr_graba_short = usa<directo::graba_short>,
        .fncptr_graba_long = usa<directo::graba_long>,
        .fncptr_graba_long64 = usa<directo::graba_long64>,
        .fncptr_graba_float = usa<directo::graba_float>,
        .fncptr_graba_double = usa<directo::graba_double>,
        .fncptr_graba_uchar = usa<directo::graba_uchar>,
        .fncptr_graba_ushort = usa<directo::graba_ushort>,
        .fncptr_graba_ulong = usa<directo::graba_ulong>,
        .fncptr_graba_ulong64 = usa<directo::graba_ulong64>,
        .fncptr_graba_buffer = usa<bin_graba_buffer>,
    }),
    .leer = sin_lineas({
        .fncptr_lee_bool_texto = lee_bool_sin_textos<bin_lee_bool>,
        .fncptr_lee_bool = usa<bin_lee_bool>,
        .fncptr_lee_cadena = usa<bin_lee_cadena>,
        .fncptr_lee_cadena_unicode = usa<bin_lee_cadena_unicode>,
        .fncptr_lee_cadena_campo = lee_sin_campo<bin_lee_cadena>,
        .fncptr_lee_cadena_ASCII = usa<bin_lee_cadena_ASCII>,
        .fncptr_lee_char = usa<directo::lee_char>,
        .fncptr_lee_char_ASCII = usa<bin_lee_char_ASCII>,
        .fncptr_lee_short = usa<directo::lee_short>,
        .fncptr_lee_long = usa<directo::lee_long>,
        .fncptr_lee_long64 = usa<directo::lee_long64>,
        .fncptr_lee_double = usa<directo::lee_double>,
        .fncptr_lee_double_con_posible_error = usa<bin_lee_double_con_posible_error>,
        .fncptr_lee_float = usa<directo::lee_float>,
        .fncptr_lee_uchar = usa<directo::lee_uchar>,
        .fncptr_lee_ushort = usa<directo::lee_ushort>,
        .fncptr_lee_ulong = usa<directo::lee_ulong>,
        .fncptr_lee_ulong64 = usa<directo::lee_ulong64>,
        .fncptr_lee_buffer = usa<bin_lee_buffer>,
    }),
    .bloques =
        {
#define X(nombre, tipo) .graba_##nombre = usa<bin_graba_bloque_##nombre>, .lee_##nombre = usa<bin_lee_bloque_##nombre>,
            VN_BLOQUES(X)
#undef X
        },
    .operaciones =
        {
            .fncptr_fichero_valido = usa<bin_fichero_valido>,
            .fncptr_se_comprueba_marca_fichero = usa<vornbin_se_comprueba_marca>,
            .fncptr_get_tamanyo = usa<tamanyo_fichero>,
            .fncptr_get_posicion = usa<lc_ftell>,
            .fncptr_set_posicion = usa<set_posicion>,
            .fncptr_get_posicion64 = usa<vornio_ftell_i64>,
            .fncptr_set_posicion64 = usa<set_posicion64>,
            .fncptr_graba_cabecera_bloque = usa<graba_cabecera_bloque>,
            .fncptr_se_lee_inicio_bloque = usa<se_lee_inicio_bloque<vornbin_se_comprueba_marca>>,
            .fncptr_se_lee_inicio_bloque64 = usa<se_lee_inicio_bloque<vornbin_se_comprueba_marca64>>,
            .graba_cadena_o_null = usa<bin_graba_null>,
            .graba_cadena_o_null_unicode = usa<bin_graba_null_unicode>,
            .lee_cadena_o_null = usa<bin_lee_null>,
            .lee_cadena_o_null_unicode = usa<bin_lee_null_unicode>,
            .quedan = usa<quedan_en_fichero>,
            .ha_fallado = usa<fichero_ha_fallado>,
            .error_leyendo = usa<lc_error_leyendo_fichero>,
            .marca_fallo = usa<marca_fallo>,
        },
};

constexpr destino destino_txt(bool con_comentarios) {
    return {
        .tipo = TXT,
        .es_texto = true,
        .grabar = con_lineas(
            {
                .fncptr_graba_bool_texto = usa<graba_bool_con_textos>,
                .fncptr_graba_bool = usa<graba_BOOL>,
                .fncptr_graba_cadena = usa<graba_cadena_en_linea>,
                .fncptr_graba_cadena_unicode = usa<vtxt_escr_cadena_unicode>,
                .fncptr_graba_cadena_campo = graba_sin_campo<graba_cadena_en_linea>,
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
                .fncptr_lee_cadena_campo = lee_sin_campo<lee_cadena_de_linea>,
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
        .operaciones =
            {
                .graba_linea = usa<graba_linea>,
                .lee_linea = usa<lee_linea>,
                .graba_comentario = usa<vtxt_escr_comentario_y_salta>,
                .salta_linea = usa<vtxt_salta_linea>,
                .quedan = usa<quedan_en_fichero>,
                .ha_fallado = usa<fichero_ha_fallado>,
                .error_leyendo = usa<lc_error_leyendo_fichero>,
                .marca_fallo = usa<marca_fallo>,
            },
    };
}
constexpr destino DESTINO_TXT = destino_txt(false), DESTINO_TXT_CON_COMENTARIOS = destino_txt(true);
static_assert(dice_sus_fallos(DESTINO_BIN) && dice_sus_fallos(DESTINO_TXT) &&
              dice_sus_fallos(DESTINO_TXT_CON_COMENTARIOS));

// By kind; null until the destination's module is part of the library.
constexpr const destino *DESTINOS[] = {&DESTINO_BIN, &DESTINO_TXT, nullptr, nullptr, nullptr, nullptr};
static_assert(sizeof DESTINOS == NUM_TIPOS_DESTINO * sizeof(void *));

} // namespace

const destino *destino_de(uint32_t tipo, bool con_comentarios) {
    return tipo == TXT && con_comentarios ? &DESTINO_TXT_CON_COMENTARIOS : DESTINOS[tipo];
}

} // namespace vn
