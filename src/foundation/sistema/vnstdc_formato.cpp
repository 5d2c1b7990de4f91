#define VN_MODULO "vnstdc (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/vnstdc_formato.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/platform/consola.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/formato_int.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/unicode.h"
#include <algorithm>
#include <climits>
#include <cstdarg>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

namespace {

// ---------------------------------------------------------------- writing

// At most `n` units and no end where the text fills them; -1 when it is cut.
template <class C> int formatea_n(C *destino, size_t n, const C *formato, va_list args) {
    va_list otra_vez;
    va_copy(otra_vez, args);
    const size_t longitud = vn::texto::formatea_en(destino, n, formato, args);
    if (longitud >= n && n > 0) {
        // The engine left the last place to the end of the text.
        const vn::propio<C> entero(vn::texto::formatea_nuevo(formato, otra_vez, VN_MODULO, __LINE__));
        std::copy_n(entero.get(), n, destino);
    }
    va_end(otra_vez);
    return longitud > n ? -1 : static_cast<int>(longitud);
}

// ---------------------------------------------------------------- reading

// A text, or a stream, that is read one unit ahead.
class fuente_texto {
  public:
    explicit fuente_texto(const vnwchar *s) : s_(s) {}
    int mira() const { return *s_ == 0 ? -1 : static_cast<uint16_t>(*s_); }
    void avanza() { ++s_; }

  private:
    const vnwchar *s_;
};

class fuente_flujo {
  public:
    explicit fuente_flujo(vnfichero *f) : f_(f) { avanza(); }
    // The unit that was looked at and not used goes back. It is still in the stream's buffer: a pipe goes back so far.
    ~fuente_flujo() {
        if (siguiente_ >= 0) vornio_fseek_i64(f_, antes_, VN_DESDE_EL_PRINCIPIO);
    }
    fuente_flujo(const fuente_flujo &) = delete;
    fuente_flujo &operator=(const fuente_flujo &) = delete;
    int mira() const { return siguiente_; }
    void avanza() {
        // The place before the unit, where the stream goes back to.
        antes_ = vornio_ftell_i64(f_);
        siguiente_ = vnfichero_toma_byte(f_);
    }

  private:
    vnfichero *f_;
    int64_t antes_ = 0;
    int siguiente_ = -1;
};

bool es_blanco(int c) { return c == ' ' || (c >= '\t' && c <= '\r'); }
bool es_cifra(int c) { return c >= '0' && c <= '9'; }
bool es_cifra_hexadecimal(int c) { return es_cifra(c) || ((c | 0x20) >= 'a' && (c | 0x20) <= 'f'); }
bool es_letra(int c) { return (c | 0x20) >= 'a' && (c | 0x20) <= 'z'; }

// One conversion of a scan's format, after its percent sign.
struct conversion {
    bool guarda = true;
    size_t ancho = SIZE_MAX;
    bool con_ancho = false;
    int bytes = 4; // of the room for a number
    bool doble = false;
    char letra = 0;
};

template <class C> conversion lee_conversion(const C *&p) {
    conversion c;
    if (*p == '*') {
        c.guarda = false;
        ++p;
    }
    // A width from outside is cut, so that its digits do not overflow.
    if (es_cifra(*p)) {
        c.con_ancho = true;
        for (c.ancho = 0; es_cifra(*p); ++p)
            c.ancho = std::min<size_t>(c.ancho * 10 + static_cast<size_t>(*p - '0'), 1u << 30);
    }
    for (;; ++p) {
        // "l" alone is a double among real numbers and 32 bits among whole ones; "ll" is 64.
        if (*p == 'h') c.bytes /= 2;
        else if (*p == 'l') (c.doble ? c.bytes = 8 : 0), c.doble = true;
        else if (*p == 'L') c.bytes = 8, c.doble = true;
        else if (*p == 'I' && p[1] == '6' && p[2] == '4') c.bytes = 8, p += 2;
        else break;
    }
    // A character beyond ASCII is a conversion that nobody knows.
    c.letra = *p < 0x80 ? static_cast<char>(*p) : '?';
    if (*p != 0) ++p;
    return c;
}

// Characters of a number as long as they can belong to one.
template <class F> class recogida {
  public:
    // No number needs more characters than this.
    recogida(F &fuente, size_t ancho) : fuente_(fuente), quedan_(std::min<size_t>(ancho, 512)) {}
    template <class P> bool una(P &&vale) {
        const int c = fuente_.mira();
        if (quedan_ == 0 || c < 0 || !vale(c)) return false;
        texto += static_cast<char>(c);
        --quedan_;
        fuente_.avanza();
        return true;
    }
    template <class P> bool varias(P &&vale) {
        bool alguna = false;
        while (una(vale)) alguna = true;
        return alguna;
    }
    std::string texto;

  private:
    F &fuente_;
    size_t quedan_;
};

constexpr auto ES_SIGNO = [](int c) { return c == '+' || c == '-'; };

template <class F> std::string recoge_entero(F &fuente, const conversion &c, int &base) {
    recogida<F> r(fuente, c.ancho);
    r.una(ES_SIGNO);
    base = c.letra == 'x' || c.letra == 'X' ? 16 : c.letra == 'o' ? 8 : c.letra == 'i' ? 0 : 10;
    // 0x may begin what %x and %i read; for %i a zero without it means base 8.
    if ((base == 16 || base == 0) && r.una([](int k) { return k == '0'; }) &&
        r.una([](int k) { return k == 'x' || k == 'X'; }))
        base = 16;
    else if (base == 0) base = !r.texto.empty() && r.texto.back() == '0' ? 8 : 10;
    r.varias([base](int k) { return base == 16 ? es_cifra_hexadecimal(k) : k >= '0' && k < '0' + base; });
    return r.texto;
}

template <class F> std::string recoge_real(F &fuente, const conversion &c) {
    recogida<F> r(fuente, c.ancho);
    r.una(ES_SIGNO);
    if (!es_cifra(fuente.mira()) && fuente.mira() != '.') {
        r.varias(es_letra); // nan, inf
        return r.texto;
    }
    r.varias(es_cifra);
    if (r.una([](int k) { return k == '.'; })) r.varias(es_cifra);
    if (r.una([](int k) { return k == 'e' || k == 'E'; })) {
        r.una(ES_SIGNO);
        r.varias(es_cifra);
    }
    return r.texto;
}

template <class T> void pon(void *sitio, T valor) { std::memcpy(sitio, &valor, sizeof valor); }

// Stores the number that the whole text is; false if it is none, or one beyond the room for it.
template <class T> bool pon_entero(const std::string &texto, int base, int bytes, void *sitio) {
    const vn::texto::leido<T> numero = vn::texto::lee_entero<T>(texto.c_str(), base);
    if (numero.consumido != texto.size() || texto.empty() || numero.desborda) return false;
    const int bits = bytes * 8;
    if constexpr (std::numeric_limits<T>::is_signed) {
        if (bits < 64 && (numero.valor < -(T{1} << (bits - 1)) || numero.valor >= T{1} << (bits - 1))) return false;
    } else {
        if (bits < 64 && numero.valor >> bits != 0) return false;
    }
    // Little-endian: the low bytes come first.
    if (sitio != nullptr) std::memcpy(sitio, &numero.valor, static_cast<size_t>(bytes));
    return true;
}

bool pon_real(const std::string &texto, bool doble, void *sitio) {
    const vn::texto::leido<double> numero = vn::texto::lee_double(texto.c_str());
    if (numero.consumido != texto.size() || texto.empty()) return false;
    if (sitio == nullptr) return true;
    if (doble) pon(sitio, numero.valor);
    else pon(sitio, static_cast<float>(numero.valor));
    return true;
}

// Text up to a blank, or exactly as many characters as the width says, or one, for `%c`.
template <class C, class F> bool pon_texto(F &fuente, const conversion &c, void *sitio) {
    const bool cuenta = c.letra == 'c';
    const size_t maximo = cuenta && !c.con_ancho ? 1 : c.ancho;
    size_t n = 0;
    for (; n < maximo && fuente.mira() >= 0 && (cuenta || !es_blanco(fuente.mira())); ++n, fuente.avanza())
        if (sitio != nullptr) pon(static_cast<C *>(sitio) + n, static_cast<C>(fuente.mira()));
    if (!cuenta && sitio != nullptr) pon(static_cast<C *>(sitio) + n, C{0});
    return cuenta ? n == maximo : n > 0;
}

// What one conversion does; false ends the scan.
template <class C, class F> bool convierte(F &fuente, const conversion &c, void *sitio) {
    int base = 10;
    switch (c.letra) {
    case 'd':
    case 'i': {
        const std::string texto = recoge_entero(fuente, c, base);
        return pon_entero<int64_t>(texto, base, c.bytes, sitio);
    }
    case 'u':
    case 'x':
    case 'X':
    case 'o': {
        const std::string texto = recoge_entero(fuente, c, base);
        return pon_entero<uint64_t>(texto, base, c.bytes, sitio);
    }
    case 'f':
    case 'e':
    case 'g':
    case 'E':
    case 'G': return pon_real(recoge_real(fuente, c), c.doble, sitio);
    case 's':
    case 'c': return pon_texto<C>(fuente, c, sitio);
    default: return false;
    }
}

bool conversion_admitida(const conversion &c) {
    if (!AFIRMA_TEXTO(std::string_view("diuxXofegEGsc").find(c.letra) != std::string_view::npos && c.letra != 0,
                      "conversion de formato conocida"))
        return false;
    // A third h halves the room to nothing.
    if (!AFIRMA_TEXTO(c.bytes >= 1, "conversion de formato conocida")) return false;
    // A stored text without a width could run past the caller's room.
    return AFIRMA_TEXTO(c.letra != 's' || c.con_ancho || !c.guarda, "una cadena se lee con su anchura");
}

// Runs the format over the source. The number of values stored, or -1 if the source ended before the first.
template <class C, class F> int escanea(F &fuente, const C *formato, void *const *sitios, int numero_sitios) {
    int leidos = 0;
    for (const C *p = formato; *p != 0;) {
        // A blank of the format takes all that follow in the source, none too.
        if (es_blanco(*p)) {
            while (es_blanco(fuente.mira())) fuente.avanza();
            ++p;
            continue;
        }
        // A character that stands for itself; of two percent signs one is left.
        if (*p != '%' || p[1] == '%') {
            if (*p == '%') ++p;
            if (fuente.mira() < 0) return leidos == 0 ? -1 : leidos;
            // Both as the unit's own width: an ANSI character may be negative.
            if (static_cast<C>(fuente.mira()) != *p) return leidos;
            fuente.avanza();
            ++p;
            continue;
        }
        ++p;
        const conversion c = lee_conversion(p);
        if (!conversion_admitida(c)) return leidos;
        if (!AFIRMA_TEXTO(!c.guarda || leidos < numero_sitios, "el formato tiene tantas conversiones como datos"))
            return leidos;
        // All conversions but that of single characters pass over blanks first.
        if (c.letra != 'c')
            while (es_blanco(fuente.mira())) fuente.avanza();
        if (fuente.mira() < 0) return leidos == 0 ? -1 : leidos;
        if (!convierte<C>(fuente, c, c.guarda ? sitios[leidos] : nullptr)) return leidos;
        if (c.guarda) ++leidos;
    }
    return leidos;
}

} // namespace

int vnstdc_sprintf(char *destino, const char *formato, ...) {
    if (!EXIGE(destino, formato)) return 0;
    CON_ARGUMENTOS(args, formato, const size_t longitud = vn::texto::formatea_en(destino, INT_MAX, formato, args));
    return static_cast<int>(longitud);
}

int vnstdc__snprintf(char *destino, size_t n, const char *formato, ...) {
    if (!EXIGE(destino, formato)) return 0;
    CON_ARGUMENTOS(args, formato, const int longitud = formatea_n(destino, n, formato, args));
    return longitud;
}

int vnstdc__snwprintf(vnwchar *destino, size_t n, const vnwchar *formato, ...) {
    if (!EXIGE(destino, formato)) return 0;
    CON_ARGUMENTOS(args, formato, const int longitud = formatea_n(destino, n, formato, args));
    return longitud;
}

int vnstdc_wprintf(const vnwchar *formato, ...) {
    if (!AFIRMA_NO_NULO(formato)) return 0;
    CON_ARGUMENTOS(args, formato,
                   const vn::propio<vnwchar> texto(vn::texto::formatea_nuevo(formato, args, VN_MODULO, __LINE__)));
    const vn::propio<char> utf8(unicode_convierte_UNICODE_a_UTF8(texto.get()));
    vn::plat::escribe_salida(utf8.get(), std::strlen(utf8.get()));
    // The units of the text are counted, not the bytes that went out.
    return static_cast<int>(std::char_traits<vnwchar>::length(texto.get()));
}

int vnstdc_fscanf1(vnfichero *f, const char *formato, void *a) {
    if (!EXIGE(f, formato, a)) return 0;
    fuente_flujo fuente(f);
    return escanea(fuente, formato, &a, 1);
}

int vnstdc_swscanf2(const vnwchar *s, const vnwchar *formato, void *a, void *b) {
    if (!EXIGE(s, formato, a, b)) return 0;
    fuente_texto fuente(s);
    void *const sitios[] = {a, b};
    return escanea(fuente, formato, sitios, 2);
}
