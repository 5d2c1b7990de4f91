// Every kind of value of the save protocol, once: how a random one is written, read, passed over and copied, and
// whether it came back. The suites and the fuzz target go over these rows.
#pragma once

#include "foundation/numeros/punto.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornsave.h"
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <optional>
#include <string>
#include <vector>

namespace catalogo {

struct azar { // the same everywhere
    uint32_t estado;
    bool breve; // nothing long
    explicit azar(uint32_t semilla, bool breve_ = false) : estado(semilla * 2654435761u + 1), breve(breve_) {}
    uint32_t operator()() {
        estado += 0x9E3779B9u;
        uint32_t z = (estado ^ estado >> 16) * 0x85EBCA6Bu;
        z = (z ^ z >> 13) * 0xC2B2AE35u;
        return z ^ z >> 16;
    }
};
inline uint32_t hasta(azar &a, uint32_t n) { return a() % n; }

// No form in text; begins with a count; what is read is not what would be written again.
enum clase : uint8_t { SOLO_BIN = 1, CON_CUENTA = 2, SIN_COPIA = 4 };
struct fila {
    const char *nombre;
    int clase;
    std::function<std::string(azar &, vornsave *)> graba; // a random value; what reading it must give
    std::function<std::string(vornsave *)> lee, salta;    // `salta` gives nothing
    std::function<std::string(vornsave *de, vornsave *a)> copia;
    bool es(int c) const { return (clase & c) != 0; }
};

// ---- Values, and each as a text to compare

using vn::dueno, vn::propio;
using texto_ansi = std::optional<std::string>;
using texto_ancho = std::optional<std::basic_string<vnwchar>>;

template <class T> std::string de(T v) {
    if constexpr (std::is_floating_point_v<T>)
        if (std::isnan(v) || v == 0) v = std::isnan(v) ? std::numeric_limits<T>::quiet_NaN() : T(0);
    return {reinterpret_cast<const char *>(&v), sizeof v};
}
inline std::string de(const Punto2D &p) { return de(p.x) + de(p.y); }
inline std::string de(const Punto3D &p) { return de(p.x) + de(p.y) + de(p.z); }
inline std::string de(const std::string &t) { return t; }
inline std::string de(const texto_ansi &t) { return t ? *t : "~"; }
inline std::string de(const texto_ancho &t) {
    return t ? std::string(reinterpret_cast<const char *>(t->data()), t->size() * sizeof(vnwchar)) : "~";
}
// What the writers are given.
template <class T> T crudo(const T &v) { return v; }
template <class T, class D> T *crudo(const std::unique_ptr<T, D> &v) { return v.get(); }
template <class C> const C *crudo(const std::optional<std::basic_string<C>> &t) { return t ? t->c_str() : nullptr; }
template <class C> std::optional<std::basic_string<C>> toma(C *t) {
    const propio<C> mio(t);
    if (t == nullptr) return std::nullopt;
    return t;
}

template <class T> T un(azar &a) {
    T v;
    uint32_t bits[2] = {a(), a()};
    if (hasta(a, 8) == 0) bits[0] = bits[1] = hasta(a, 2) * 0xFFFFFFFFu; // the ends of each type
    std::memcpy(&v, bits, sizeof v);
    if constexpr (std::is_floating_point_v<T>)
        if (!std::isfinite(v)) v = T(-0.1);
    return v;
}
// Bytes 1 to 255, line ends and the escape among them; few letters in sets and runs, so that some are equal.
inline std::string letras(azar &a, uint32_t maximo) {
    std::string t(hasta(a, 3) == 0 && !a.breve ? hasta(a, maximo + 1) : hasta(a, 4), ' ');
    const bool cualquiera = hasta(a, 2) == 0;
    for (char &l : t) l = static_cast<char>(cualquiera ? 1 + hasta(a, 255) : "ab\n\r\x10\xf1;0"[hasta(a, 8)]);
    return t;
}
inline std::basic_string<vnwchar> letras_anchas(azar &a, bool bien_formado) {
    std::basic_string<vnwchar> t;
    for (uint32_t i = hasta(a, 6); i != 0; --i) t += static_cast<vnwchar>(1 + hasta(a, bien_formado ? 0xD7FE : 0xFFFF));
    if (bien_formado && hasta(a, 3) == 0) t += VNU("\U0001F600");
    return t;
}
constexpr uint32_t LARGA = 40; // of a text in an array: a line of 255, when each letter is an escape
inline uint32_t cuantos(azar &a) { return hasta(a, 20) == 0 && !a.breve ? 1300 : hasta(a, 6); } // more than one piece

// ---- Elements of a host's

struct viga {
    int32_t numero;
    static viga *crea(int32_t n) { return new (vornspy_malloc(sizeof(viga))) viga{n}; }
    static void destruye(viga **v) { vornspy_free_pp(v, sizeof(viga)); }
    static void graba(const viga *v, vornsave *d) { vornsave_graba_long(v->numero, d); }
    static viga *lee(vornsave *d) { return crea(vornsave_lee_long(d)); }
    // Numbers as these leave them come back through the readers with extra values.
    static void graba_menos(const viga *v, vornsave *d) { vornsave_graba_long(v->numero / 2 - 10, d); }
    static viga *lee_mas(const int32_t *mas, vornsave *d) { return crea((vornsave_lee_long(d) % 100000 + *mas) * 2); }
    static viga *lee_mas_por(const int32_t *mas, const int32_t *por, vornsave *d) {
        return crea((vornsave_lee_long(d) % 100000 + *mas) * *por);
    }
    static void salta(vornsave *d) { vornsave_salta_long(d); }
    static int compara(const viga *a, const viga *b, const int32_t *sentido) {
        return a->numero == b->numero ? 0 : (a->numero < b->numero ? -1 : 1) * *sentido;
    }
};
inline constexpr int32_t MAS = 10, POR = 2, SENTIDO = -1;
inline int32_t un_numero(azar &a) { return static_cast<int32_t>(hasta(a, 1000)) * 2; }
inline void destruye_vigas(arrPuntero **a) { arr_DestruyeEstructurasST(a, viga, viga::destruye); }
inline void destruye_vigas_de(void *a) { destruye_vigas(static_cast<arrPuntero **>(a)); }
inline void destruye_arrays(arrPuntero **a) { arr_DestruyeEstructurasArrayConTipo(a, destruye_vigas_de); }
inline void destruye_orden(apunorde **a) { apunorde_destruye(a, viga); }
inline void destruye_xpriv(arrPunto2DXPriv **a) {
    arr_DestruyePunto2DXPriv(a, [](void *p) { viga::destruye(static_cast<viga **>(p)); });
}
using una_viga = dueno<viga::destruye>;
using vigas = dueno<destruye_vigas>;
using arrays = dueno<destruye_arrays>;
using orden = dueno<destruye_orden>;
using xpriv = dueno<destruye_xpriv>;
inline std::string de(const una_viga &v) { return v ? std::to_string(v->numero) : "~"; }
inline una_viga crea_una(azar &a) { return una_viga(hasta(a, 3) == 0 ? nullptr : viga::crea(un_numero(a))); }
// A value, or null.
template <auto CREA> auto quiza(azar &a) { return hasta(a, 3) == 0 ? decltype(CREA(a))() : CREA(a); }

// A kind of collection `v`: how many elements it has and element `i` as a text; how a random one is made, of how many,
// and how each is put in.
#define VN_LISTA(V, NUMERO, ELEMENTO)                                                                                  \
    inline std::string de(const V &v) {                                                                                \
        std::string t;                                                                                                 \
        for (uint32_t i = 0; v && i < (NUMERO); ++i) (t += (ELEMENTO)) += '|';                                         \
        return v ? t : "~";                                                                                            \
    }
#define VN_CREA(V, nombre, CREADA, CUANTOS, PON)                                                                       \
    inline V nombre(azar &a) {                                                                                         \
        V v(CREADA);                                                                                                   \
        for (uint32_t i = (CUANTOS); i != 0; --i) PON;                                                                 \
        return v;                                                                                                      \
    }
inline std::string junta(const arrPuntero *a) {
    std::string t;
    for (uint32_t i = 0; i < arr_NumElemsPunteroST(a, viga); ++i)
        t += std::to_string(arr_GetPunteroST(a, i, viga)->numero) + " ";
    return t;
}
inline std::string elemento(const xpriv &v, uint32_t i) {
    double x = 0, y = 0;
    void *p = nullptr;
    arr_GetPunto2DXPriv(v.get(), i, &x, &y, &p);
    return de(x) + de(y) + std::to_string(static_cast<viga *>(p)->numero);
}
// clang-format off
inline std::string de(const vigas &a) { return a ? junta(a.get()) : "~"; }
VN_LISTA(arrays, arr_NumElemsPunteroST(v.get(), arrPuntero), junta(arr_GetPunteroST(v.get(), i, arrPuntero)))
VN_LISTA(orden, apunorde_numelems(v.get(), viga), std::to_string(apunorde_get(v.get(), i, viga)->numero))
VN_LISTA(xpriv, arr_NumElemsPunto2DXPriv(v.get()), elemento(v, i))
VN_CREA(vigas, crea_vigas, arr_CreaPunteroST(0, viga), hasta(a, 5), arr_AppendPunteroST(v.get(), viga::crea(un_numero(a)), viga))
VN_CREA(arrays, crea_arrays, arr_CreaPunteroST(0, arrPuntero), hasta(a, 3), arr_AppendPunteroST(v.get(), crea_vigas(a).release(), arrPuntero))
VN_CREA(orden, crea_orden, apunorde_crea(viga, const int32_t, viga::compara, &SENTIDO, viga::destruye), hasta(a, 5),
        apunorde_inserta_original(v.get(), viga::crea(2000 * static_cast<int32_t>(i) + un_numero(a)), viga, nullptr))
VN_CREA(xpriv, crea_xpriv, arr_CreaPunto2DXPriv(0), hasta(a, 4), arr_AppendPunto2DXPriv(v.get(), un<double>(a), un<double>(a), viga::crea(un_numero(a))))
// clang-format on
inline void graba_con_marca(const char *s, vornsave *d) { vornsave_graba_cadena((std::string(s) + "*").c_str(), d); }
inline char *lee_con_marca(vornsave *d) {
    char *s = vornsave_lee_cadena(d);
    if (s != nullptr && *s != '\0') s[std::strlen(s) - 1] = '\0';
    return s;
}

// ---- Arrays

// clang-format off
#define VN_CATALOGO_ARRAYS(X)                                                                                          \
    X(Double, double) X(Long, int32_t) X(Long64, int64_t) X(UChar, uint8_t) X(UShort, uint16_t) X(ULong, uint32_t)     \
    X(ULong64, uint64_t) X(BOOL, vnbool) X(Punto2D, Punto2D) X(Punto3D, Punto3D)
// clang-format on
#define X(S, T)                                                                                                        \
    using array_##S = dueno<arr_Destruye##S>;                                                                          \
    VN_LISTA(array_##S, arr_NumElems##S(v.get()), de(arr_GetBufferConst##S(v.get())[i]))                               \
    inline array_##S crea_##S(azar &a) {                                                                               \
        array_##S v(arr_Crea##S(cuantos(a)));                                                                          \
        T *p = arr_GetBuffer##S(v.get());                                                                              \
        for (uint32_t i = 0; i < arr_NumElems##S(v.get()); ++i) pon(p[i], a);                                          \
        return v;                                                                                                      \
    }
template <class T> void pon(T &v, azar &a) {
    if constexpr (std::is_same_v<T, vnbool>) v = static_cast<vnbool>(hasta(a, 2)); // no other array is of its 16 bits
    else v = un<T>(a);
}
inline void pon(Punto2D &p, azar &a) { p = {un<double>(a), un<double>(a)}; }
inline void pon(Punto3D &p, azar &a) { p = {un<double>(a), un<double>(a), un<double>(a)}; }
VN_CATALOGO_ARRAYS(X)
#undef X
using cadenas = dueno<arr_DestruyeCADENA>;
using anchas = dueno<arr_DestruyeCADENA_u>;
using conjunto = dueno<acadorde_destruye>;
using conjunto_u = dueno<acadordeu_destruye>;
using lean = dueno<arulong_destruye>;
using lean64 = dueno<arulong64_destruye>;
using memoria = dueno<fichmem_destruye>;
template <class C> std::string o_nulo(const C *s) {
    return s != nullptr ? de(std::optional<std::basic_string<C>>(s)) : "~";
}
// clang-format off
VN_LISTA(cadenas, arr_NumElemsCADENA(v.get()), o_nulo(arr_GetCADENA(v.get(), i)))
VN_LISTA(anchas, arr_NumElemsCADENA_u(v.get()), o_nulo(arr_GetCADENA_u(v.get(), i)))
VN_LISTA(conjunto, acadorde_numelems(v.get()), o_nulo(acadorde_get(v.get(), i)))
VN_LISTA(conjunto_u, acadordeu_numelems(v.get()), o_nulo(acadordeu_get(v.get(), i)))
VN_LISTA(lean, arulong_numelems(v.get()), de(arulong_get(v.get(), i)))
VN_LISTA(lean64, arulong64_numelems(v.get()), de(arulong64_get(v.get(), i)))
template <bool NULOS> VN_CREA(cadenas, crea_cadenas, arr_CreaCADENA(0), hasta(a, 8),
    arr_AppendCADENA(v.get(), NULOS && hasta(a, 4) == 0 ? nullptr : letras(a, LARGA).c_str()))
template <bool NULOS> VN_CREA(anchas, crea_anchas, arr_CreaCADENA_u(0), hasta(a, 8),
    arr_AppendCADENA_u(v.get(), NULOS && hasta(a, 4) == 0 ? nullptr : letras_anchas(a, false).c_str()))
VN_CREA(conjunto, crea_conjunto, acadorde_crea(static_cast<vnbool>(hasta(a, 2))), hasta(a, 6), acadorde_inserta(v.get(), letras(a, LARGA).c_str()))
VN_CREA(conjunto_u, crea_conjunto_u, acadordeu_crea(static_cast<vnbool>(hasta(a, 2))), hasta(a, 6), acadordeu_inserta(v.get(), letras_anchas(a, true).c_str()))
VN_CREA(lean, crea_lean, arulong_crea(), cuantos(a), arulong_append(v.get(), a()))
VN_CREA(lean64, crea_lean64, arulong64_crea(), cuantos(a), arulong64_append(v.get(), un<uint64_t>(a)))
    // clang-format on
    inline std::string de(const memoria &m) {
    return m ? std::string(reinterpret_cast<char *>(m->datos), m->longitud) : "~";
}

// Runs of equal values.
inline array_Double crea_iguales(azar &a) {
    array_Double v(arr_CreaDouble(cuantos(a)));
    for (uint32_t i = 0; i < arr_NumElemsDouble(v.get()); ++i)
        arr_SetDouble(v.get(), i, hasta(a, 10) == 0 ? un<double>(a) : hasta(a, 2));
    return v;
}
inline memoria crea_memoria(azar &a) {
    std::string bytes(hasta(a, 10) == 0 && !a.breve ? (1 + hasta(a, 2)) * 65534 - 1 + hasta(a, 3) : hasta(a, 9), ' ');
    for (char &b : bytes) b = "\0a\n\xff"[hasta(a, 4)];
    return memoria(fichmem_crea32(bytes.data(), static_cast<uint32_t>(bytes.size())));
}

// ---- The rows

template <class G, class W, class R>
fila hace(const char *nombre, int clase, G genera, W graba, R lee, void (*salta)(vornsave *) = nullptr) {
    using V = decltype(genera(std::declval<azar &>()));
    const auto leido = [=](vornsave *d) {
        using leida = decltype(lee(d));
        if constexpr (std::is_same_v<leida, char *> || std::is_same_v<leida, vnwchar *>) return toma(lee(d));
        else return V(lee(d));
    };
    fila f{nombre, clase, {}, [=](vornsave *d) { return de(leido(d)); }, {}, {}};
    f.graba = [=](azar &a, vornsave *d) {
        const V v = genera(a);
        graba(crudo(v), d);
        return de(v);
    };
    if (!f.es(SIN_COPIA))
        f.copia = [=](vornsave *origen, vornsave *a) {
            const V v = leido(origen);
            graba(crudo(v), a);
            return de(v);
        };
    if (salta != nullptr) f.salta = [=](vornsave *d) { return salta(d), std::string(); };
    return f;
}

inline const std::vector<fila> &filas() {
    // Those whose writer and reader take the value as it is, and those that are written or read otherwise.
#define SUYA(op, clase, genera, ...)                                                                                   \
    hace(#op, clase, genera, vornsave_graba_##op, vornsave_lee_##op __VA_OPT__(, ) __VA_ARGS__)
#define ESCRIBE(...) [](auto v, vornsave *d) { __VA_ARGS__; }
#define LEE(...) [](vornsave *d) { return __VA_ARGS__; }
#define NUMERO(T, op) SUYA(op, 0, un<T>, vornsave_salta_##op)
#define VALORES(S, op, ...)                                                                                            \
    SUYA(arr_##op, CON_CUENTA, crea_##S __VA_OPT__(, ) __VA_ARGS__), SUYA(arr_##op##_opcional, 0, quiza<crea_##S>)
    constexpr auto una = [](azar &a) { return texto_ansi(letras(a, 300)); };
    constexpr auto ancha = [](azar &a) { return texto_ancho(letras_anchas(a, false)); };
    constexpr auto utf8 = [](azar &a) { return texto_ancho(letras_anchas(a, true)); };
    const auto sin_retornos = [](azar &a) { // raw bytes, which text translates
        std::string t = letras(a, 300);
        std::erase(t, '\r');
        return texto_ansi(t);
    };
    const auto logico = [](azar &a) { return static_cast<vnbool>(hasta(a, 2)); };
    // clang-format off
    const auto graba_vigas = ESCRIBE(vornsave_graba_arr_punterosST(v, d, viga, viga::graba));
    const auto graba_vigas_menos = ESCRIBE(vornsave_graba_arr_punterosST(v, d, viga, viga::graba_menos));
    const auto graba_orden_menos = ESCRIBE(vornsave_graba_apunorde(v, d, viga, viga::graba_menos));
    const auto graba_una_menos = ESCRIBE(vornsave_graba_estructura_opcional2ST(v, d, viga, viga::graba_menos));
    static const std::vector<fila> todas = {
        SUYA(bool, 0, logico, vornsave_salta_bool),
        hace("bool_con_texto", 0, logico, ESCRIBE(vornsave_graba_bool_con_texto(v, d, "activo", "parado")),
             LEE(vornsave_lee_bool_con_texto(d, "activo", "parado"))),
        SUYA(char, 0, un<char>), SUYA(wchar, 0, un<vnwchar>, vornsave_salta_enum),
        NUMERO(uint8_t, uchar), NUMERO(int16_t, short), NUMERO(uint16_t, ushort), NUMERO(int32_t, long), NUMERO(uint32_t, ulong),
        NUMERO(int64_t, long64), NUMERO(uint64_t, ulong64), NUMERO(double, double),
        SUYA(float, SOLO_BIN, un<float>, vornsave_salta_float),
        hace("double_con_precision", SIN_COPIA, [](azar &a) { return hasta(a, 1000) / 4.; },
             ESCRIBE(vornsave_graba_double_con_precision(v + 0.1, 0.25, d)), vornsave_lee_double, vornsave_salta_double),
        SUYA(int64, 0, un<int64_t>), SUYA(uint64, 0, un<uint64_t>), SUYA(fecha, 0, un<int64_t>), SUYA(size64, 0, un<uint64_t>),
        SUYA(fecha_64, 0, un<int64_t>), SUYA(time, 0, un<int64_t>), SUYA(time32, 0, un<int32_t>),
        hace("punto", 0, [](azar &a) { return Punto2D{un<double>(a), un<double>(a)}; }, ESCRIBE(vornsave_graba_punto(&v, d)),
             [](vornsave *d) { const propio<Punto2D> p(vornsave_lee_punto(d)); return p ? *p : Punto2D{}; }),
        SUYA(cadena, 0, una, vornsave_salta_cadena), SUYA(cadena_unicode, 0, ancha, vornsave_salta_cadena_unicode),
        SUYA(cadena_UTF8, 0, utf8, vornsave_salta_cadena), SUYA(cadena_como_buffer, CON_CUENTA, sin_retornos),
        SUYA(cadena_opcional, 0, quiza<una>, vornsave_salta_cadena_opcional),
        SUYA(cadena_unicode_opcional, 0, quiza<ancha>, vornsave_salta_cadena_unicode_opcional),
        SUYA(cadena_UTF8_opcional, 0, quiza<utf8>, vornsave_salta_cadena_opcional),
        hace("cadena_campo", 0, una, ESCRIBE(vornsave_graba_cadena_campo(v, "campo", d)),
             LEE(vornsave_lee_cadena_campo(d, "campo")), [](vornsave *d) { vornsave_salta_cadena_campo(d, "campo"); }),
        hace("cadena como ancha", SIN_COPIA, [](azar &a) { return texto_ansi("A" + std::to_string(hasta(a, 9))); }, vornsave_graba_cadena,
             [](vornsave *d) { const auto t = toma(vornsave_lee_cadena_ANSI_a_unicode(d)); return t ? texto_ansi(std::string(t->begin(), t->end())) : std::nullopt; }),
        hace("buffer", 0, [](azar &a) { return std::string{'\0', '\x1a', static_cast<char>(14 + hasta(a, 200)), '\n', '\xff'}; },
             ESCRIBE(vornsave_graba_buffer(v.data(), 5, d)),
             [](vornsave *d) { const propio<char> b(reinterpret_cast<char *>(vornsave_lee_buffer(5, d))); return b ? std::string(b.get(), 5) : ""; },
             [](vornsave *d) { vornsave_salta_buffer(5, d); }),
        hace("comentario", 0, logico, ESCRIBE(vornsave_graba_bool(v, d); vornsave_graba_comentario("uno\ndos", d)),
             [](vornsave *d) { const vnbool v = vornsave_lee_bool(d); vornsave_salta_comentario(d); return v; }),
        SUYA(fichmem, CON_CUENTA, crea_memoria),
        VALORES(Double, double, vornsave_salta_arr_double), VALORES(Long, long), VALORES(Long64, long64),
        VALORES(UChar, uchar), VALORES(UShort, ushort, vornsave_salta_arr_ushort), VALORES(ULong, ulong, vornsave_salta_arr_ulong),
        VALORES(ULong64, ulong64, vornsave_salta_arr_ulong64), VALORES(BOOL, bool),
        VALORES(Punto2D, puntos2D, vornsave_salta_arr_puntos2D), VALORES(Punto3D, puntos3D, vornsave_salta_arr_puntos3D),
        SUYA(arulong, CON_CUENTA, crea_lean), SUYA(arulong64, CON_CUENTA, crea_lean64),
        hace("arr_double con posible error", CON_CUENTA | SOLO_BIN, crea_Double, vornsave_graba_arr_double,
             [](vornsave *d) { vnbool malo = 7, denormal = 7; return vornsave_lee_arr_double_con_posible_error(d, &malo, &denormal); }),
        hace("arr_double_con_valores_iguales", CON_CUENTA, crea_iguales, ESCRIBE(vornsave_graba_arr_double_con_valores_iguales(v, 0, d)),
             vornsave_lee_arr_double_con_valores_iguales),
        SUYA(arr_cadenas, CON_CUENTA, crea_cadenas<false>, vornsave_salta_arr_cadena),
        SUYA(arr_cadenas_opcional, 0, quiza<crea_cadenas<false>>),
        SUYA(arr_cadenas_con_valores_iguales, CON_CUENTA, crea_cadenas<false>),
        SUYA(arr_cadenas_segun_tipo, CON_CUENTA | SOLO_BIN, crea_cadenas<true>),
        SUYA(arr_cadenas_con_valores_iguales_segun_tipo, CON_CUENTA | SOLO_BIN, crea_cadenas<true>),
        SUYA(arr_cadenas_unicode, CON_CUENTA | SOLO_BIN, crea_anchas<false>, vornsave_salta_arr_cadena_unicode),
        SUYA(arr_cadenas_unicode_opcional, SOLO_BIN, quiza<crea_anchas<false>>),
        SUYA(arr_cadenas_segun_tipo_unicode, CON_CUENTA | SOLO_BIN, crea_anchas<true>),
        SUYA(acadorde, 0, crea_conjunto), SUYA(acadordeu, 0, crea_conjunto_u),
        hace("acadorde_con_funcion", 0, crea_conjunto, ESCRIBE(vornsave_graba_acadorde_con_funcion(v, graba_con_marca, d)),
             LEE(vornsave_lee_acadorde_con_funcion(d, lee_con_marca))),
        hace("estructura", 0, crea_una, ESCRIBE(vornsave_graba_estructura_opcional2ST(v, d, viga, viga::graba)),
             LEE(vornsave_lee_estructura_opcional2ST(d, viga, viga::lee)), [](vornsave *d) { vornsave_salta_estructura_opcional(d, viga::salta); }),
        hace("estructura con 1", 0, crea_una, graba_una_menos,
             LEE(vornsave_lee_estructura_opcional2_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &MAS))),
        hace("estructura con 2", 0, crea_una, graba_una_menos,
             LEE(vornsave_lee_estructura_opcional2_con_2_dato_extraST(d, viga, const int32_t, const int32_t, viga::lee_mas_por, &MAS, &POR))),
        hace("arr_punteros", CON_CUENTA, crea_vigas, graba_vigas, LEE(vornsave_lee_arr_punterosST(d, viga, viga::lee)),
             [](vornsave *d) { vornsave_salta_arr_punteros_ST(d, viga::salta); }),
        hace("arr_punteros con 1", CON_CUENTA, crea_vigas, graba_vigas_menos,
             LEE(vornsave_lee_arr_punteros_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &MAS))),
        hace("arr_punteros con 2", CON_CUENTA, crea_vigas, graba_vigas_menos,
             LEE(vornsave_lee_arr_punteros_con_2_datos_extraST(d, viga, const int32_t, const int32_t, viga::lee_mas_por, &MAS, &POR))),
        hace("arr_punteros_opcional", 0, quiza<crea_vigas>, ESCRIBE(vornsave_graba_arr_punteros_opcional(v, d, viga, viga::graba)),
             LEE(vornsave_lee_arr_punteros_opcional(d, viga, viga::lee)), [](vornsave *d) { vornsave_salta_arr_punteros_opcionalST(d, viga::salta); }),
        hace("arr_punteros_opcional con 1", 0, quiza<crea_vigas>, ESCRIBE(vornsave_graba_arr_punteros_opcional(v, d, viga, viga::graba_menos)),
             LEE(vornsave_lee_arr_punteros_opcional_con_1_dato_extra(d, viga, const int32_t, viga::lee_mas, &MAS))),
        hace("arr_punteros_array", CON_CUENTA, crea_arrays, ESCRIBE(vornsave_graba_arr_punteros_arrayST(v, d, viga, viga::graba)),
             LEE(vornsave_lee_arr_punteros_arrayST(d, viga, viga::lee))),
        hace("arr_punteros_array_opcional", 0, quiza<crea_arrays>, ESCRIBE(vornsave_graba_arr_punteros_array_opcionalST(v, d, viga, viga::graba)),
             LEE(vornsave_lee_arr_punteros_array_opcionalST(d, viga, viga::lee))),
        hace("apunorde", CON_CUENTA, crea_orden, ESCRIBE(vornsave_graba_apunorde(v, d, viga, viga::graba)),
             LEE(vornsave_lee_apunorde(d, viga, viga::lee, const int32_t, viga::compara, &SENTIDO, viga::destruye))),
        hace("apunorde con 1", CON_CUENTA, crea_orden, graba_orden_menos,
             LEE(vornsave_lee_apunorde_con_1_dato_extra(d, &MAS, viga, const int32_t, viga::lee_mas, const int32_t, viga::compara, &SENTIDO, viga::destruye))),
        hace("apunorde_opcional", 0, quiza<crea_orden>, ESCRIBE(vornsave_graba_apunorde_opcional(v, d, viga, viga::graba)),
             LEE(vornsave_lee_apunorde_opcional(d, viga, viga::lee, const int32_t, viga::compara, &SENTIDO, viga::destruye))),
        hace("arr_puntos2DXPriv", CON_CUENTA, crea_xpriv, ESCRIBE(vornsave_graba_arr_puntos2DXPrivST(v, d, viga, viga::graba)),
             LEE(vornsave_lee_arr_puntos2DXPrivST(d, viga, viga::lee))),
    };
    // clang-format on
    return todas;
#undef SUYA
#undef ESCRIBE
#undef LEE
#undef NUMERO
#undef VALORES
}

} // namespace catalogo
