// What the operations on ANSI and on wide text share: one template serves both widths.
#pragma once

#include "foundation/suelo/propio_int.h"
#include "foundation/texto/pagina_priv.h"
#include <cstring>
#include <functional>
#include <string>
#include <string_view>

// The caller, of an operation that takes its module and line.
#define QUIEN (vn::texto::quien{modulo, linea})

namespace vn::texto {

// The caller, whom reports and the tracked heap name.
struct quien {
    const char *modulo;
    uint32_t linea;
};

template <class C> using vista = std::basic_string_view<C>;

// A new text of `n` units, its terminator in place.
template <class C> C *nuevo(size_t n, quien q) {
    C *s = static_cast<C *>(vornspy_nousar_malloc((n + 1) * sizeof(C), q.modulo, q.linea));
    s[n] = 0;
    return s;
}

template <class C> C *copia(vista<C> v, quien q) {
    C *s = nuevo<C>(v.size(), q);
    std::char_traits<C>::copy(s, v.data(), v.size());
    return s;
}

template <class C> void destruye(C **s) { vornspy_nousar_free_pp(s, sizeof(C)); }

// The steps and the letter case of a width. Steps are whole characters of the ANSI page, single units of wide text.
template <class C> struct juego;
template <> struct juego<char> {
    const pagina &p = pagina_activa();
    bool de_uno_en_uno() const { return !p.doble; }
    size_t paso(const char *s, const char *fin) const { return p.bytes(s, fin); }
    char minuscula(char c) const { return static_cast<char>(p.minuscula[static_cast<unsigned char>(c)]); }
    char mayuscula(char c) const { return static_cast<char>(p.mayuscula[static_cast<unsigned char>(c)]); }
    char sin_acento(char c) const { return static_cast<char>(p.sin_acento[static_cast<unsigned char>(c)]); }
};
template <> struct juego<vnwchar> {
    static bool de_uno_en_uno() { return true; }
    static size_t paso(const vnwchar *, const vnwchar *) { return 1; }
    static vnwchar minuscula(vnwchar c) { return a_minuscula(c); }
    static vnwchar mayuscula(vnwchar c) { return a_mayuscula(c); }
};

template <class C> bool es_blanco(C c) {
    if (c == ' ' || (c >= '\t' && c <= '\r')) return true;
    if constexpr (sizeof(C) > 1) return c == 0xA0;
    else return false;
}

// Whether both have the same letters, whatever their case; the texts have one length.
template <class C> bool iguales_plegando(const juego<C> &j, vista<C> a, vista<C> b) {
    if (a.size() != b.size()) return false;
    const C *const fin = a.data() + a.size();
    for (const C *p = a.data(), *q = b.data(); p < fin;) {
        const size_t n = j.paso(p, fin);
        if (n == 2 ? p[0] != q[0] || p[1] != q[1] : *p != *q && j.minuscula(*p) != j.minuscula(*q)) return false;
        p += n;
        q += n;
    }
    return true;
}

template <class C> bool iguales(vista<C> a, vista<C> b, bool plegando) {
    return plegando ? iguales_plegando(juego<C>{}, a, b) : a == b;
}

template <class C> bool empieza(vista<C> s, vista<C> t, bool plegando) {
    return s.size() >= t.size() && iguales(s.substr(0, t.size()), t, plegando);
}

constexpr size_t NO_ESTA = std::string_view::npos;

// Where `t` begins in `s` at or after `desde`; `desde` is the beginning of a character.
template <class C> size_t busca(vista<C> s, vista<C> t, size_t desde, bool plegando) {
    const juego<C> j;
    // Where every unit is a character, a match of units is a match.
    if (!plegando && j.de_uno_en_uno()) return s.find(t, desde);
    const C *const fin = s.data() + s.size();
    for (size_t i = desde; i + t.size() <= s.size(); i += j.paso(s.data() + i, fin)) {
        const vista<C> trozo = s.substr(i, t.size());
        if (plegando ? iguales_plegando(j, trozo, t) : trozo == t) return i;
        if (i == s.size()) break; // only an empty `t` is looked for here, where there is no character to step over
    }
    return NO_ESTA;
}

// Whether `s` ends with `t`, at a character's beginning.
template <class C> bool termina(vista<C> s, vista<C> t) {
    if (!s.ends_with(t)) return false;
    const juego<C> j;
    if (j.de_uno_en_uno() || t.empty()) return true;
    // From the beginning on: from the end a second byte cannot be told from a first one.
    const C *p = s.data();
    while (p < s.data() + s.size() - t.size()) p += j.paso(p, s.data() + s.size());
    return p == s.data() + s.size() - t.size();
}

template <class C> vista<C> sin_blancos_delante(vista<C> s) {
    size_t i = 0;
    while (i < s.size() && es_blanco(s[i])) ++i;
    return s.substr(i);
}
template <class C> vista<C> sin_blancos_detras(vista<C> s) {
    size_t n = s.size();
    while (n > 0 && es_blanco(s[n - 1])) --n; // no second byte of any page is a blank
    return s.substr(0, n);
}

// Whether `p` leads into the text, its terminator included.
template <class C> bool esta_dentro(vista<C> s, const C *p) {
    const std::less_equal<const C *> antes;
    return antes(s.data(), p) && antes(p, s.data() + s.size());
}

// Makes `*s` longer by `t`, at its beginning or end. `t` may lie in `*s`.
template <class C> void alarga(C **s, vista<C> t, bool delante, quien q) {
    const size_t n = std::char_traits<C>::length(*s);
    // A part of the text itself moves with it.
    const bool dentro = esta_dentro(vista<C>(*s, n), t.data());
    const size_t desde = dentro ? static_cast<size_t>(t.data() - *s) : 0;
    auto *mayor = static_cast<C *>(vornspy_nousar_realloc(*s, (n + t.size() + 1) * sizeof(C), q.modulo, q.linea));
    if (mayor == nullptr) return; // reported: not a block of the heap
    *s = mayor;
    if (delante) {
        std::char_traits<C>::move(*s + t.size(), *s, n + 1);
        std::char_traits<C>::copy(*s, dentro ? *s + t.size() + desde : t.data(), t.size());
    } else {
        std::char_traits<C>::move(*s + n, dentro ? *s + desde : t.data(), t.size());
        (*s)[n + t.size()] = 0;
    }
}

// Leaves in `s` what `v`, a part of it, holds.
template <class C> void deja(C *s, vista<C> v) {
    std::char_traits<C>::move(s, v.data(), v.size());
    s[v.size()] = 0;
}

template <class C> void suprime(C *s, vista<C> t) {
    if (t.empty()) return;
    const vista<C> v(s);
    std::basic_string<C> guardado;
    if (esta_dentro(v, t.data())) t = guardado = t; // the text that changes
    C *donde = s;
    size_t desde = 0;
    for (size_t i = busca(v, t, 0, false); i != NO_ESTA; i = busca(v, t, desde, false)) {
        std::char_traits<C>::move(donde, s + desde, i - desde);
        donde += i - desde;
        desde = i + t.size();
    }
    std::char_traits<C>::move(donde, s + desde, v.size() - desde + 1);
}

template <class C> vnbool suprime_inicial(C *s, vista<C> t, bool plegando) {
    const vista<C> v(s);
    if (!empieza(v, t, plegando)) return FALSO;
    deja(s, v.substr(t.size()));
    return CIERTO;
}

template <class C> void reemplaza(C **s, vista<C> a, vista<C> b, quien q) {
    if (a.empty()) return;
    const vista<C> v(*s);
    // Counted first, so that the new text is made once and in its size.
    size_t veces = 0;
    for (size_t i = busca(v, a, 0, false); i != NO_ESTA; i = busca(v, a, i + a.size(), false)) ++veces;
    if (veces == 0) return;
    propio<C> n(nuevo<C>(v.size() - veces * a.size() + veces * b.size(), q));
    C *p = n.get();
    const auto pon = [&p](vista<C> trozo) {
        std::char_traits<C>::copy(p, trozo.data(), trozo.size());
        p += trozo.size();
    };
    size_t desde = 0;
    for (size_t i = busca(v, a, 0, false); i != NO_ESTA; i = busca(v, a, desde, false)) {
        pon(v.substr(desde, i - desde));
        pon(b);
        desde = i + a.size();
    }
    pon(v.substr(desde));
    destruye(s);
    *s = n.release();
}

// Calls `con` with each piece of `s` between the units that `separa` says; returns how many.
template <class C, class S, class F> uint32_t trocea(vista<C> s, S separa, F con) {
    const juego<C> j;
    uint32_t n = 0;
    size_t desde = 0;
    for (size_t i = 0; i < s.size();) {
        const size_t paso = j.paso(s.data() + i, s.data() + s.size());
        if (paso == 1 && separa(s[i])) {
            con(s.substr(desde, i - desde));
            ++n;
            desde = i + 1;
        }
        i += paso;
    }
    con(s.substr(desde));
    return n + 1;
}

template <class C> void destruye_lista(uint32_t n, C ***lista) {
    if (*lista == nullptr) return;
    for (uint32_t i = 0; i < n; ++i)
        if ((*lista)[i] != nullptr) destruye(&(*lista)[i]);
    vornspy_nousar_free_pp(lista, sizeof(C *));
}

template <class C, class S> uint32_t lista(vista<C> s, S separa, C ***destino, quien q) {
    const uint32_t n = trocea(s, separa, [](vista<C>) {});
    const auto libera_lista = [n](C **l) { destruye_lista(n, &l); };
    std::unique_ptr<C *, decltype(libera_lista)> l(
        static_cast<C **>(vornspy_nousar_calloc(n, sizeof(C *), q.modulo, q.linea)), libera_lista);
    C **p = l.get();
    trocea(s, separa, [&](vista<C> trozo) { *p++ = copia(trozo, q); });
    *destino = l.release();
    return n;
}

template <class C, class F> void cambia(C *s, F nuevo_caracter) {
    const juego<C> j;
    const C *const fin = s + std::char_traits<C>::length(s);
    for (size_t n; s < fin; s += n) {
        n = j.paso(s, fin);
        if (n == 1) *s = nuevo_caracter(j, *s);
    }
}

template <class C> int compara(vista<C> a, vista<C> b) {
    const size_t n = a.size() < b.size() ? a.size() : b.size();
    for (size_t i = 0; i < n; ++i) {
        const auto x = static_cast<std::make_unsigned_t<C>>(a[i]), y = static_cast<std::make_unsigned_t<C>>(b[i]);
        if (x != y) return x < y ? -1 : 1;
    }
    return a.size() == b.size() ? 0 : a.size() < b.size() ? -1 : 1;
}

// A text of known length that ought to hold no zero; `sin_ceros` reports when it does.
template <class C, class F> C *de_unidades(const C *str, uint32_t len, quien q, F sin_ceros) {
    propio<C> s(copia(vista<C>(str, len), q));
    if (std::char_traits<C>::length(s.get()) != len) sin_ceros();
    return s.release();
}

} // namespace vn::texto
