#define VN_MODULO "vtxt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vtxt_lee.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/vtxt_int.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/unicode.h"
#include <limits>

namespace {

// ---------------------------------------------------------------- characters

// The next character, which stays there; -1 at the end.
int mira(vnfichero *f) {
    const auto *v = reinterpret_cast<const vnfichero_ventana *>(f);
    if (v->fin_lectura - v->pos > 0) [[likely]]
        return *v->pos;
    const int64_t aqui = vornio_ftell_i64(f);
    const int c = f_getc_sin_error(f);
    if (c >= 0) vornio_fseek_i64(f, aqui, VN_DESDE_EL_PRINCIPIO);
    return c;
}

// The next character, taken; CR LF is one LF. -1 at the end.
int toma(vnfichero *f) {
    const int c = vnfichero_toma_byte(f);
    return c == '\r' && mira(f) == '\n' ? vnfichero_toma_byte(f) : c;
}

void pasa_linea(vnfichero *f) {
    for (int c = toma(f); c >= 0 && c != '\n';) c = toma(f);
}

// ---------------------------------------------------------------- numbers

struct palabra {
    char texto[64]; // longer than any number that the writers make
    size_t n;
};

// The next word, and the one blank after it; a line end after it stays. Empty at the end of the stream or when it is
// longer than any number; it is passed over then.
palabra toma_palabra(vnfichero *f) {
    palabra p{{}, 0};
    int c = mira(f);
    for (; c == ' ' || c == '\t' || c == '\r' || c == '\n'; c = mira(f)) vnfichero_toma_byte(f);
    for (; c >= 0 && c != ' ' && c != '\t' && c != '\r' && c != '\n'; c = mira(f)) {
        vnfichero_toma_byte(f);
        if (p.n < sizeof p.texto) p.texto[p.n] = static_cast<char>(c);
        ++p.n;
    }
    if (c == ' ' || c == '\t') vnfichero_toma_byte(f);
    if (p.n > sizeof p.texto) p.n = 0;
    return p;
}

template <class T> bool analiza(const palabra &p, T &valor) {
    if constexpr (std::is_same_v<T, double>) {
        const auto r = vn::texto::lee_double(p.texto, p.n);
        valor = r.valor;
        return p.n > 0 && r.consumido == p.n && !r.desborda;
    } else if constexpr (sizeof(T) >= 4) {
        const auto r = vn::texto::lee_entero<T>(p.texto, p.n);
        valor = r.valor;
        return p.n > 0 && r.consumido == p.n && !r.desborda;
    } else {
        // A char is written as the number of its code, and small numbers are read as wide ones and bounded.
        using codigo = std::conditional_t<std::is_same_v<T, char>, unsigned char, T>;
        int32_t ancho = 0;
        if (!analiza(p, ancho) || ancho < std::numeric_limits<codigo>::min() ||
            ancho > std::numeric_limits<codigo>::max())
            return false;
        valor = static_cast<T>(ancho);
        return true;
    }
}

template <class T> T lee_numero(vnfichero *f, bool salta) {
    if (!AFIRMA_NO_NULO(f)) return 0;
    T valor = 0;
    const bool bien = analiza(toma_palabra(f), valor);
    // The line goes after a failure too: what follows stays in step.
    if (salta) pasa_linea(f);
    if (bien) return valor;
    lc_error_leyendo_fichero(f);
    return 0;
}

char de_ascii(char c) {
    char texto[2] = {c, 0};
    cad_convertir_cadena_ascii_ansi(texto);
    return texto[0];
}

// ---------------------------------------------------------------- texts

// A text that grows, on the tracked heap.
class texto_creciente {
  public:
    void anade(char c) {
        if (n_ + 1 >= capacidad_) {
            capacidad_ = capacidad_ * 2 + 32;
            // The old block stays owned should memory run out.
            auto *mayor = static_cast<char *>(vornspy_realloc(p_.get(), capacidad_));
            static_cast<void>(p_.release());
            p_.reset(mayor);
        }
        p_.get()[n_++] = c;
    }
    std::string_view vista() const { return {p_.get(), n_}; }
    vn::propio<char> cierra() {
        anade('\0');
        return std::move(p_);
    }

  private:
    vn::propio<char> p_;
    size_t n_ = 0, capacidad_ = 0;
};

// What is left of the line, without its end. The end of the stream where a text is due, and a zero, which no text
// holds, are reported: the text ends there.
vn::propio<char> toma_linea(vnfichero *f) {
    texto_creciente t;
    int c = toma(f);
    bool bien = c >= 0;
    for (; c >= 0 && c != '\n'; c = toma(f)) {
        if (c == 0) bien = false;
        t.anade(static_cast<char>(c));
    }
    vn::propio<char> texto = t.cierra();
    if (!bien) lc_error_leyendo_fichero(f);
    return texto;
}

int digito_hexadecimal(vnwchar c) {
    if (c >= '0' && c <= '9') return c - '0';
    return c >= 'A' && c <= 'F' ? c - 'A' + 10 : -1;
}

// Puts the units back that the writer escaped, in place; false if an escape is none that it makes.
bool quita_escapes(vnwchar *s) {
    vnwchar *d = s;
    while (*s != 0) {
        if (*s != vn::ficheros::ESCAPE_DE_UNIDAD) {
            *d++ = *s++;
            continue;
        }
        int unidad = 0;
        ++s;
        for (int i = 0; i < 4; ++i, ++s) {
            const int cifra = digito_hexadecimal(*s); // the closing zero is no digit
            if (cifra < 0) return false;
            unidad = unidad * 16 + cifra;
        }
        if (unidad == 0) return false;
        *d++ = static_cast<vnwchar>(unidad);
    }
    *d = 0;
    return true;
}

size_t cuenta(std::string_view s, std::string_view que) {
    size_t veces = 0;
    for (size_t i = 0; (i = s.find(que, i)) != s.npos; i += que.size()) ++veces;
    return veces;
}

// The wide text of a line that vtxt_escr_cadena_unicode wrote.
vn::propio<vnwchar> toma_linea_unicode(vnfichero *f) {
    const vn::propio<char> linea = toma_linea(f);
    vn::propio<vnwchar> texto(unicode_convierte_UTF8_a_UNICODE(linea.get()));
    // Bytes that are no UTF-8 have become U+FFFD: more of them than were written.
    const auto sustitutos =
        std::count(texto.get(), texto.get() + std::char_traits<vnwchar>::length(texto.get()), 0xFFFD);
    const bool es_utf8 = static_cast<size_t>(sustitutos) == cuenta(linea.get(), "\xEF\xBF\xBD");
    if (!quita_escapes(texto.get()) || !es_utf8) lc_error_leyendo_fichero(f);
    return texto;
}

} // namespace

#define NUMERO(N, T)                                                                                                   \
    T vtxt_lee_##N(vnfichero *f) { return lee_numero<T>(f, false); }                                                   \
    T vtxt_lee_##N##_y_salta(vnfichero *f) { return lee_numero<T>(f, true); }
VN_VTXT_NUMEROS(NUMERO)

char vtxt_lee_char_ASCII(vnfichero *f) { return de_ascii(vtxt_lee_char(f)); }

char vtxt_lee_char_y_salta_ASCII(vnfichero *f) { return de_ascii(vtxt_lee_char_y_salta(f)); }

vnbool vtxt_leer_BOOL(vnfichero *f) {
    const uint16_t v = vtxt_lee_ushrt_y_salta(f);
    if (v > 1) lc_error_leyendo_fichero(f);
    return vn::logico(v == 1);
}

vnbool vtxt_lee_bool(vnfichero *f, const char *texto1, const char *texto2) {
    if (!EXIGE(f, texto1, texto2)) return FALSO;
    const vn::propio<char> linea = toma_linea(f);
    const std::string_view leido = linea.get();
    if (leido != texto1 && leido != texto2) lc_error_leyendo_fichero(f);
    return vn::logico(leido == texto1);
}

char *vtxt_lee_cadena(vnfichero *f) { return AFIRMA_NO_NULO(f) ? toma_linea(f).release() : nullptr; }

char *vtxt_lee_cadena_ASCII(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    vn::propio<char> texto = toma_linea(f);
    cad_convertir_cadena_ascii_ansi(texto.get());
    return texto.release();
}

char *vtxt_lee_cadena_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii) {
    return version <= version_ascii ? vtxt_lee_cadena_ASCII(f) : vtxt_lee_cadena(f);
}

vnwchar *vtxt_lee_cadena_ansi_a_unicode(vnfichero *f) {
    return AFIRMA_NO_NULO(f) ? unicode_convierte_ANSI_a_UNICODE(toma_linea(f).get()) : nullptr;
}

vnwchar *vtxt_lee_cadena_unicode(vnfichero *f) { return AFIRMA_NO_NULO(f) ? toma_linea_unicode(f).release() : nullptr; }

void vtxt_lee_string(vnfichero *f, char *buffer, uint32_t maximo) {
    if (!EXIGE(f, buffer) || !AFIRMA(maximo >= 1 && maximo <= INT32_MAX)) return;
    uint32_t n = 0;
    int c = toma(f);
    bool bien = c >= 0;
    for (; c >= 0 && c != '\n'; c = toma(f)) {
        // What has no room, and a zero, is dropped; the line is read to its end.
        if (n + 1 < maximo && c != 0) buffer[n++] = static_cast<char>(c);
        else bien = false;
    }
    buffer[n] = 0;
    if (!bien) lc_error_leyendo_fichero(f);
}

void vtxt_lee_string_unicode(vnfichero *f, vnwchar *buffer, uint32_t maximo) {
    if (!EXIGE(f, buffer) || !AFIRMA(maximo >= 1 && maximo <= INT32_MAX)) return;
    buffer[0] = 0;
    const vn::propio<vnwchar> texto = toma_linea_unicode(f);
    const std::basic_string_view<vnwchar> s = texto.get();
    const size_t n = std::min<size_t>(s.size(), maximo - 1);
    std::copy_n(s.data(), n, buffer);
    buffer[n] = 0;
    if (n < s.size()) lc_error_leyendo_fichero(f);
}

char *vtxt_lee_linea(vnfichero *f, char *buffer, uint32_t maximo) {
    if (!EXIGE(f, buffer) || !AFIRMA(maximo >= 2 && maximo <= INT32_MAX)) return nullptr;
    uint32_t n = 0;
    for (int c = 0; n + 1 < maximo && c != '\n';) {
        c = toma(f);
        if (c < 0) break;
        buffer[n++] = static_cast<char>(c);
    }
    buffer[n] = 0;
    return n > 0 ? buffer : nullptr;
}

vnwchar *vtxt_lee_linea_utf8_a_unicode(vnfichero *f, uint32_t maximo) {
    if (!AFIRMA_NO_NULO(f) || !AFIRMA(maximo >= 4 && maximo <= INT32_MAX)) return nullptr;
    if (mira(f) < 0) return nullptr;
    texto_creciente t;
    for (size_t cabe = maximo; cabe > 0; --cabe) {
        // A character is not cut in two: the first byte says how many follow it.
        const int c = mira(f);
        if (c >= 0xC0 && cabe < (c >= 0xF0 ? 4u : c >= 0xE0 ? 3u : 2u)) break;
        const int tomado = toma(f);
        if (tomado < 0 || tomado == '\n') break;
        t.anade(static_cast<char>(tomado));
        // A line that fills the room exactly takes its end along.
        if (cabe == 1 && mira(f) == '\n') toma(f);
    }
    return unicode_convierte_UTF8_a_UNICODE(t.cierra().get());
}

void vtxt_salta_linea(vnfichero *f) {
    if (AFIRMA_NO_NULO(f)) pasa_linea(f);
}
