// Every kind of value of the save protocol, once: how a random one is written, read, passed over and copied, and
// whether it came back. The suites and the fuzz target go over these rows.
#pragma once

#include "foundation/numeros/punto.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornsave.h"
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>
#include <memory>
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

template <class T> void libera(T **p) { vornspy_free_pp(p, 1); }

using texto_ansi = std::optional<std::string>;
using texto_ancho = std::optional<std::basic_string<vnwchar>>;
template <auto DESTRUYE> struct suelta {
    template <class T> void operator()(T *p) const { DESTRUYE(&p); }
};
template <class T, auto DESTRUYE> using dueno = std::unique_ptr<T, suelta<DESTRUYE>>;

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
inline const char *c(const texto_ansi &t) { return t ? t->c_str() : nullptr; }
inline const vnwchar *c(const texto_ancho &t) { return t ? t->c_str() : nullptr; }
inline texto_ansi toma(char *t) {
    const dueno<char, vornstr_destruye> mio(t);
    return t != nullptr ? texto_ansi(t) : std::nullopt;
}
inline texto_ancho toma(vnwchar *t) {
    const dueno<vnwchar, libera<vnwchar>> mio(t);
    return t != nullptr ? texto_ancho(t) : std::nullopt;
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
using una_viga = dueno<viga, viga::destruye>;
using vigas = dueno<arrPuntero, destruye_vigas>;
using arrays = dueno<arrPuntero, destruye_arrays>;
using orden = dueno<apunorde, destruye_orden>;
using xpriv = dueno<arrPunto2DXPriv, destruye_xpriv>;
inline std::string de(const una_viga &v) { return v ? std::to_string(v->numero) : "~"; }
inline std::string junta(const arrPuntero *a) {
    std::string t;
    for (uint32_t i = 0; i < arr_NumElemsPunteroST(a, viga); ++i)
        t += std::to_string(arr_GetPunteroST(a, i, viga)->numero) + " ";
    return t;
}
inline std::string de(const vigas &a) { return a ? junta(a.get()) : "~"; }
inline std::string de(const arrays &a) {
    std::string t;
    for (uint32_t i = 0; a && i < arr_NumElemsPunteroST(a.get(), arrPuntero); ++i)
        t += junta(arr_GetPunteroST(a.get(), i, arrPuntero)) + "/";
    return a ? t : "~";
}
inline std::string de(const orden &a) {
    std::string t;
    for (uint32_t i = 0; a && i < apunorde_numelems(a.get(), viga); ++i)
        t += std::to_string(apunorde_get(a.get(), i, viga)->numero) + " ";
    return a ? t : "~";
}
inline std::string de(const xpriv &a) {
    std::string t;
    for (uint32_t i = 0; a && i < arr_NumElemsPunto2DXPriv(a.get()); ++i) {
        double x = 0, y = 0;
        void *v = nullptr;
        arr_GetPunto2DXPriv(a.get(), i, &x, &y, &v);
        t += de(x) + de(y) + std::to_string(static_cast<viga *>(v)->numero);
    }
    return t;
}
inline una_viga crea_una(azar &a) { return una_viga(hasta(a, 3) == 0 ? nullptr : viga::crea(un_numero(a))); }
inline vigas crea_vigas(azar &a) {
    vigas v(arr_CreaPunteroST(0, viga));
    for (uint32_t i = hasta(a, 5); i != 0; --i) arr_AppendPunteroST(v.get(), viga::crea(un_numero(a)), viga);
    return v;
}
inline vigas crea_vigas_opc(azar &a) { return hasta(a, 3) == 0 ? nullptr : crea_vigas(a); }
inline arrays crea_arrays(azar &a) {
    arrays v(arr_CreaPunteroST(0, arrPuntero));
    for (uint32_t i = hasta(a, 3); i != 0; --i) arr_AppendPunteroST(v.get(), crea_vigas(a).release(), arrPuntero);
    return v;
}
inline arrays crea_arrays_opc(azar &a) { return hasta(a, 3) == 0 ? nullptr : crea_arrays(a); }
inline orden crea_orden(azar &a) {
    orden v(apunorde_crea(viga, const int32_t, viga::compara, &SENTIDO, viga::destruye));
    for (int32_t i = static_cast<int32_t>(hasta(a, 5)); i != 0; --i)
        apunorde_inserta_original(v.get(), viga::crea(2000 * i + un_numero(a)), viga, nullptr);
    return v;
}
inline orden crea_orden_opc(azar &a) { return hasta(a, 3) == 0 ? nullptr : crea_orden(a); }
inline xpriv crea_xpriv(azar &a) {
    xpriv v(arr_CreaPunto2DXPriv(0));
    for (uint32_t i = hasta(a, 4); i != 0; --i)
        arr_AppendPunto2DXPriv(v.get(), un<double>(a), un<double>(a), viga::crea(un_numero(a)));
    return v;
}
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
    inline void destruye_##S(arr##S **a) { arr_Destruye##S(a); }                                                       \
    using array_##S = dueno<arr##S, destruye_##S>;                                                                     \
    inline std::string de(const array_##S &a) {                                                                        \
        std::string t;                                                                                                 \
        const T *p = a ? arr_GetBufferConst##S(a.get()) : nullptr;                                                     \
        for (uint32_t i = 0; a && i < arr_NumElems##S(a.get()); ++i) t += de(p[i]);                                    \
        return a ? t : "~";                                                                                            \
    }                                                                                                                  \
    inline array_##S crea_##S(azar &a) {                                                                               \
        array_##S v(arr_Crea##S(cuantos(a)));                                                                          \
        T *p = arr_GetBuffer##S(v.get());                                                                              \
        for (uint32_t i = 0; i < arr_NumElems##S(v.get()); ++i) pon(p[i], a);                                          \
        return v;                                                                                                      \
    }                                                                                                                  \
    inline array_##S crea_opc_##S(azar &a) { return hasta(a, 3) == 0 ? nullptr : crea_##S(a); }
template <class T> void pon(T &v, azar &a) {
    if constexpr (std::is_same_v<T, vnbool>) v = static_cast<vnbool>(hasta(a, 2)); // no other array is of its 16 bits
    else v = un<T>(a);
}
inline void pon(Punto2D &p, azar &a) { p = {un<double>(a), un<double>(a)}; }
inline void pon(Punto3D &p, azar &a) { p = {un<double>(a), un<double>(a), un<double>(a)}; }
VN_CATALOGO_ARRAYS(X)
#undef X
using cadenas = dueno<arrCADENA, arr_DestruyeCADENA>;
using anchas = dueno<arrCADENA_u, arr_DestruyeCADENA_u>;
using conjunto = dueno<acadorde, acadorde_destruye>;
using conjunto_u = dueno<acadordeu, acadordeu_destruye>;
using lean = dueno<arulong, arulong_destruye>;
using lean64 = dueno<arulong64, arulong64_destruye>;
using memoria = dueno<fichmem, fichmem_destruye>;
#define VN_LISTA(V, numelems, elemento)                                                                                \
    inline std::string de(const V &a) {                                                                                \
        std::string t;                                                                                                 \
        for (uint32_t i = 0; a && i < numelems(a.get()); ++i) t += elemento + "|";                                     \
        return a ? t : "~";                                                                                            \
    }
template <class C> std::string o_nulo(const C *s) {
    return s != nullptr ? de(std::optional<std::basic_string<C>>(s)) : "~";
}
VN_LISTA(cadenas, arr_NumElemsCADENA, o_nulo(arr_GetCADENA(a.get(), i)))
VN_LISTA(anchas, arr_NumElemsCADENA_u, o_nulo(arr_GetCADENA_u(a.get(), i)))
VN_LISTA(conjunto, acadorde_numelems, o_nulo(acadorde_get(a.get(), i)))
VN_LISTA(conjunto_u, acadordeu_numelems, o_nulo(acadordeu_get(a.get(), i)))
VN_LISTA(lean, arulong_numelems, de(arulong_get(a.get(), i)))
VN_LISTA(lean64, arulong64_numelems, de(arulong64_get(a.get(), i)))
inline std::string de(const memoria &m) {
    return m ? std::string(reinterpret_cast<char *>(m->datos), m->longitud) : "~";
}

template <bool NULOS> cadenas crea_cadenas(azar &a) {
    cadenas v(arr_CreaCADENA(0));
    for (uint32_t i = hasta(a, 8); i != 0; --i)
        arr_AppendCADENA(v.get(), NULOS && hasta(a, 4) == 0 ? nullptr : letras(a, LARGA).c_str());
    return v;
}
template <bool NULOS> anchas crea_anchas(azar &a) {
    anchas v(arr_CreaCADENA_u(0));
    for (uint32_t i = hasta(a, 8); i != 0; --i)
        arr_AppendCADENA_u(v.get(), NULOS && hasta(a, 4) == 0 ? nullptr : letras_anchas(a, false).c_str());
    return v;
}
inline cadenas crea_cadenas_opc(azar &a) { return hasta(a, 3) == 0 ? nullptr : crea_cadenas<false>(a); }
inline anchas crea_anchas_opc(azar &a) { return hasta(a, 3) == 0 ? nullptr : crea_anchas<false>(a); }
inline conjunto crea_conjunto(azar &a) {
    conjunto v(acadorde_crea(static_cast<vnbool>(hasta(a, 2))));
    for (uint32_t i = hasta(a, 6); i != 0; --i) acadorde_inserta(v.get(), letras(a, LARGA).c_str());
    return v;
}
inline conjunto_u crea_conjunto_u(azar &a) {
    conjunto_u v(acadordeu_crea(static_cast<vnbool>(hasta(a, 2))));
    for (uint32_t i = hasta(a, 6); i != 0; --i) acadordeu_inserta(v.get(), letras_anchas(a, true).c_str());
    return v;
}
// Runs of equal values.
inline array_Double crea_iguales(azar &a) {
    array_Double v(arr_CreaDouble(cuantos(a)));
    for (uint32_t i = 0; i < arr_NumElemsDouble(v.get()); ++i)
        arr_SetDouble(v.get(), i, hasta(a, 10) == 0 ? un<double>(a) : hasta(a, 2));
    return v;
}
inline lean crea_lean(azar &a) {
    lean v(arulong_crea());
    for (uint32_t i = cuantos(a); i != 0; --i) arulong_append(v.get(), a());
    return v;
}
inline lean64 crea_lean64(azar &a) {
    lean64 v(arulong64_crea());
    for (uint32_t i = cuantos(a); i != 0; --i) arulong64_append(v.get(), un<uint64_t>(a));
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
    fila f{nombre, clase, {}, [=](vornsave *d) { return de(V(lee(d))); }, {}, {}};
    f.graba = [=](azar &a, vornsave *d) {
        const V v = genera(a);
        graba(v, d);
        return de(v);
    };
    if (!f.es(SIN_COPIA))
        f.copia = [=](vornsave *origen, vornsave *a) {
            const V v(lee(origen));
            graba(v, a);
            return de(v);
        };
    if (salta != nullptr) f.salta = [=](vornsave *d) { return salta(d), std::string(); };
    return f;
}

inline const std::vector<fila> &filas() {
#define ESCRIBE(V, ...) [](const V &v, vornsave *d) { __VA_ARGS__; }
#define LEE(...) [](vornsave *d) { return __VA_ARGS__; }
#define NUMERO(T, op) hace(#op, 0, un<T>, vornsave_graba_##op, vornsave_lee_##op, vornsave_salta_##op)
#define EN_MITADES(T, op) hace(#op, 0, un<T>, vornsave_graba_##op, vornsave_lee_##op)
#define TEXTO(op, clase, V, genera, salta)                                                                             \
    hace(#op, clase, genera, ESCRIBE(V, vornsave_graba_##op(c(v), d)), LEE(toma(vornsave_lee_##op(d))), salta)
#define PROPIA(op, clase, V, genera, salta)                                                                            \
    hace(#op, clase, genera, ESCRIBE(V, vornsave_graba_##op(v.get(), d)), LEE(V(vornsave_lee_##op(d))), salta)
#define VALORES(S, op, salta)                                                                                          \
    PROPIA(arr_##op, CON_CUENTA, array_##S, crea_##S, salta),                                                          \
        PROPIA(arr_##op##_opcional, 0, array_##S, crea_opc_##S, nullptr)
    const auto una = [](azar &a) { return texto_ansi(letras(a, 300)); };
    const auto sin_retornos = [](azar &a) { // raw bytes, which text translates
        std::string t = letras(a, 300);
        std::erase(t, '\r');
        return texto_ansi(t);
    };
    const auto una_opc = [](azar &a) { return hasta(a, 3) == 0 ? texto_ansi() : texto_ansi(letras(a, 300)); };
    const auto ancha = [](azar &a) { return texto_ancho(letras_anchas(a, false)); };
    const auto ancha_opc = [](azar &a) {
        return hasta(a, 3) == 0 ? texto_ancho() : texto_ancho(letras_anchas(a, false));
    };
    const auto utf8 = [](azar &a) { return texto_ancho(letras_anchas(a, true)); };
    const auto utf8_opc = [](azar &a) {
        return hasta(a, 3) == 0 ? texto_ancho() : texto_ancho(letras_anchas(a, true));
    };
    const auto logico = [](azar &a) { return static_cast<vnbool>(hasta(a, 2)); };
    const auto graba_vigas = ESCRIBE(vigas, vornsave_graba_arr_punterosST(v.get(), d, viga, viga::graba));
    const auto graba_vigas_menos = ESCRIBE(vigas, vornsave_graba_arr_punterosST(v.get(), d, viga, viga::graba_menos));
    const auto graba_orden_menos = ESCRIBE(orden, vornsave_graba_apunorde(v.get(), d, viga, viga::graba_menos));
    const auto graba_una_menos =
        ESCRIBE(una_viga, vornsave_graba_estructura_opcional2ST(v.get(), d, viga, viga::graba_menos));
    // clang-format off
    static const std::vector<fila> todas = {
        hace("bool", 0, logico, vornsave_graba_bool, vornsave_lee_bool, vornsave_salta_bool),
        hace("bool_con_texto", 0, logico, ESCRIBE(vnbool, vornsave_graba_bool_con_texto(v, d, "activo", "parado")),
             LEE(vornsave_lee_bool_con_texto(d, "activo", "parado"))),
        hace("char", 0, un<char>, vornsave_graba_char, vornsave_lee_char),
        hace("wchar", 0, un<vnwchar>, vornsave_graba_wchar, vornsave_lee_wchar, vornsave_salta_enum),
        NUMERO(uint8_t, uchar), NUMERO(int16_t, short), NUMERO(uint16_t, ushort), NUMERO(int32_t, long), NUMERO(uint32_t, ulong),
        NUMERO(int64_t, long64), NUMERO(uint64_t, ulong64), NUMERO(double, double),
        hace("float", SOLO_BIN, un<float>, vornsave_graba_float, vornsave_lee_float, vornsave_salta_float),
        hace("double_con_precision", SIN_COPIA, [](azar &a) { return hasta(a, 1000) / 4.; },
             ESCRIBE(double, vornsave_graba_double_con_precision(v + 0.1, 0.25, d)), vornsave_lee_double, vornsave_salta_double),
        EN_MITADES(int64_t, int64), EN_MITADES(uint64_t, uint64), EN_MITADES(int64_t, fecha), EN_MITADES(uint64_t, size64),
        EN_MITADES(int64_t, fecha_64), EN_MITADES(int64_t, time),
        hace("time32", 0, un<int32_t>, vornsave_graba_time32, LEE(static_cast<int32_t>(vornsave_lee_time32(d)))),
        hace("punto", 0, [](azar &a) { return Punto2D{un<double>(a), un<double>(a)}; }, ESCRIBE(Punto2D, vornsave_graba_punto(&v, d)),
             [](vornsave *d) {
                 const dueno<Punto2D, libera<Punto2D>> p(vornsave_lee_punto(d));
                 return p ? *p : Punto2D{};
             }),
        TEXTO(cadena, 0, texto_ansi, una, vornsave_salta_cadena),
        TEXTO(cadena_unicode, 0, texto_ancho, ancha, vornsave_salta_cadena_unicode),
        TEXTO(cadena_UTF8, 0, texto_ancho, utf8, vornsave_salta_cadena),
        TEXTO(cadena_como_buffer, CON_CUENTA, texto_ansi, sin_retornos, nullptr),
        TEXTO(cadena_opcional, 0, texto_ansi, una_opc, vornsave_salta_cadena_opcional),
        TEXTO(cadena_unicode_opcional, 0, texto_ancho, ancha_opc, vornsave_salta_cadena_unicode_opcional),
        TEXTO(cadena_UTF8_opcional, 0, texto_ancho, utf8_opc, vornsave_salta_cadena_opcional),
        hace("cadena_campo", 0, una, ESCRIBE(texto_ansi, vornsave_graba_cadena_campo(c(v), "campo", d)),
             LEE(toma(vornsave_lee_cadena_campo(d, "campo"))), [](vornsave *d) { vornsave_salta_cadena_campo(d, "campo"); }),
        hace("cadena como ancha", SIN_COPIA, [](azar &a) { return texto_ansi("A" + std::to_string(hasta(a, 9))); }, ESCRIBE(texto_ansi, vornsave_graba_cadena(c(v), d)),
             [](vornsave *d) {
                 const texto_ancho t = toma(vornsave_lee_cadena_ANSI_a_unicode(d));
                 return t ? texto_ansi(std::string(t->begin(), t->end())) : std::nullopt;
             }),
        hace("buffer", 0, [](azar &a) { return std::string{'\0', '\x1a', static_cast<char>(14 + hasta(a, 200)), '\n', '\xff'}; },
             ESCRIBE(std::string, vornsave_graba_buffer(v.data(), 5, d)),
             [](vornsave *d) {
                 const dueno<uint8_t, libera<uint8_t>> b(vornsave_lee_buffer(5, d));
                 return b ? std::string(reinterpret_cast<char *>(b.get()), 5) : std::string();
             },
             [](vornsave *d) { vornsave_salta_buffer(5, d); }),
        hace("comentario", 0, logico, ESCRIBE(vnbool, vornsave_graba_bool(v, d); vornsave_graba_comentario("uno\ndos", d)),
             [](vornsave *d) {
                 const vnbool v = vornsave_lee_bool(d);
                 vornsave_salta_comentario(d);
                 return v;
             }),
        PROPIA(fichmem, CON_CUENTA, memoria, crea_memoria, nullptr),
        VALORES(Double, double, vornsave_salta_arr_double), VALORES(Long, long, nullptr), VALORES(Long64, long64, nullptr),
        VALORES(UChar, uchar, nullptr), VALORES(UShort, ushort, vornsave_salta_arr_ushort), VALORES(ULong, ulong, vornsave_salta_arr_ulong),
        VALORES(ULong64, ulong64, vornsave_salta_arr_ulong64), VALORES(BOOL, bool, nullptr),
        VALORES(Punto2D, puntos2D, vornsave_salta_arr_puntos2D), VALORES(Punto3D, puntos3D, vornsave_salta_arr_puntos3D),
        PROPIA(arulong, CON_CUENTA, lean, crea_lean, nullptr), PROPIA(arulong64, CON_CUENTA, lean64, crea_lean64, nullptr),
        hace("arr_double con posible error", CON_CUENTA | SOLO_BIN, crea_Double, ESCRIBE(array_Double, vornsave_graba_arr_double(v.get(), d)),
             [](vornsave *d) {
                 vnbool malo = 7, denormal = 7;
                 return array_Double(vornsave_lee_arr_double_con_posible_error(d, &malo, &denormal));
             }),
        hace("arr_double_con_valores_iguales", CON_CUENTA, crea_iguales,
             ESCRIBE(array_Double, vornsave_graba_arr_double_con_valores_iguales(v.get(), 0, d)),
             LEE(array_Double(vornsave_lee_arr_double_con_valores_iguales(d)))),
        PROPIA(arr_cadenas, CON_CUENTA, cadenas, crea_cadenas<false>, vornsave_salta_arr_cadena),
        PROPIA(arr_cadenas_opcional, 0, cadenas, crea_cadenas_opc, nullptr),
        PROPIA(arr_cadenas_con_valores_iguales, CON_CUENTA, cadenas, crea_cadenas<false>, nullptr),
        PROPIA(arr_cadenas_segun_tipo, CON_CUENTA | SOLO_BIN, cadenas, crea_cadenas<true>, nullptr),
        PROPIA(arr_cadenas_con_valores_iguales_segun_tipo, CON_CUENTA | SOLO_BIN, cadenas, crea_cadenas<true>, nullptr),
        PROPIA(arr_cadenas_unicode, CON_CUENTA | SOLO_BIN, anchas, crea_anchas<false>, vornsave_salta_arr_cadena_unicode),
        PROPIA(arr_cadenas_unicode_opcional, SOLO_BIN, anchas, crea_anchas_opc, nullptr),
        PROPIA(arr_cadenas_segun_tipo_unicode, CON_CUENTA | SOLO_BIN, anchas, crea_anchas<true>, nullptr),
        PROPIA(acadorde, 0, conjunto, crea_conjunto, nullptr), PROPIA(acadordeu, 0, conjunto_u, crea_conjunto_u, nullptr),
        hace("acadorde_con_funcion", 0, crea_conjunto, ESCRIBE(conjunto, vornsave_graba_acadorde_con_funcion(v.get(), graba_con_marca, d)),
             LEE(conjunto(vornsave_lee_acadorde_con_funcion(d, lee_con_marca)))),
        hace("estructura", 0, crea_una, ESCRIBE(una_viga, vornsave_graba_estructura_opcional2ST(v.get(), d, viga, viga::graba)),
             LEE(una_viga(vornsave_lee_estructura_opcional2ST(d, viga, viga::lee))),
             [](vornsave *d) { vornsave_salta_estructura_opcional(d, viga::salta); }),
        hace("estructura con 1", 0, crea_una, graba_una_menos,
             LEE(una_viga(vornsave_lee_estructura_opcional2_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &MAS)))),
        hace("estructura con 2", 0, crea_una, graba_una_menos,
             LEE(una_viga(vornsave_lee_estructura_opcional2_con_2_dato_extraST(d, viga, const int32_t, const int32_t, viga::lee_mas_por, &MAS, &POR)))),
        hace("arr_punteros", CON_CUENTA, crea_vigas, graba_vigas, LEE(vigas(vornsave_lee_arr_punterosST(d, viga, viga::lee))),
             [](vornsave *d) { vornsave_salta_arr_punteros_ST(d, viga::salta); }),
        hace("arr_punteros con 1", CON_CUENTA, crea_vigas, graba_vigas_menos,
             LEE(vigas(vornsave_lee_arr_punteros_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &MAS)))),
        hace("arr_punteros con 2", CON_CUENTA, crea_vigas, graba_vigas_menos,
             LEE(vigas(vornsave_lee_arr_punteros_con_2_datos_extraST(d, viga, const int32_t, const int32_t, viga::lee_mas_por, &MAS, &POR)))),
        hace("arr_punteros_opcional", 0, crea_vigas_opc, ESCRIBE(vigas, vornsave_graba_arr_punteros_opcional(v.get(), d, viga, viga::graba)),
             LEE(vigas(vornsave_lee_arr_punteros_opcional(d, viga, viga::lee))), [](vornsave *d) { vornsave_salta_arr_punteros_opcionalST(d, viga::salta); }),
        hace("arr_punteros_opcional con 1", 0, crea_vigas_opc,
             ESCRIBE(vigas, vornsave_graba_arr_punteros_opcional(v.get(), d, viga, viga::graba_menos)),
             LEE(vigas(vornsave_lee_arr_punteros_opcional_con_1_dato_extra(d, viga, const int32_t, viga::lee_mas, &MAS)))),
        hace("arr_punteros_array", CON_CUENTA, crea_arrays, ESCRIBE(arrays, vornsave_graba_arr_punteros_arrayST(v.get(), d, viga, viga::graba)),
             LEE(arrays(vornsave_lee_arr_punteros_arrayST(d, viga, viga::lee)))),
        hace("arr_punteros_array_opcional", 0, crea_arrays_opc,
             ESCRIBE(arrays, vornsave_graba_arr_punteros_array_opcionalST(v.get(), d, viga, viga::graba)),
             LEE(arrays(vornsave_lee_arr_punteros_array_opcionalST(d, viga, viga::lee)))),
        hace("apunorde", CON_CUENTA, crea_orden, ESCRIBE(orden, vornsave_graba_apunorde(v.get(), d, viga, viga::graba)),
             LEE(orden(vornsave_lee_apunorde(d, viga, viga::lee, const int32_t, viga::compara, &SENTIDO, viga::destruye)))),
        hace("apunorde con 1", CON_CUENTA, crea_orden, graba_orden_menos,
             LEE(orden(vornsave_lee_apunorde_con_1_dato_extra(d, &MAS, viga, const int32_t, viga::lee_mas, const int32_t, viga::compara, &SENTIDO, viga::destruye)))),
        hace("apunorde_opcional", 0, crea_orden_opc, ESCRIBE(orden, vornsave_graba_apunorde_opcional(v.get(), d, viga, viga::graba)),
             LEE(orden(vornsave_lee_apunorde_opcional(d, viga, viga::lee, const int32_t, viga::compara, &SENTIDO, viga::destruye)))),
        hace("arr_puntos2DXPriv", CON_CUENTA, crea_xpriv, ESCRIBE(xpriv, vornsave_graba_arr_puntos2DXPrivST(v.get(), d, viga, viga::graba)),
             LEE(xpriv(vornsave_lee_arr_puntos2DXPrivST(d, viga, viga::lee)))),
    };
    // clang-format on
    return todas;
#undef ESCRIBE
#undef LEE
#undef NUMERO
#undef EN_MITADES
#undef TEXTO
#undef PROPIA
#undef VALORES
}

} // namespace catalogo
