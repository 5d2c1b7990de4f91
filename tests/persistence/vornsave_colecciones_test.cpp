#include "persistence/prueba_vornsave.h"
#include "foundation/cad.h"
#include "foundation/widestr.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

using namespace vn;

namespace {

using textos = std::vector<const char *>;

arrCADENA *crea_textos(const textos &v) {
    arrCADENA *a = arr_CreaCADENA(0);
    for (const char *s : v) arr_AppendCADENA(a, s);
    return a;
}
// The texts of an array, which is destroyed, joined by a bar; "~" for null.
std::string junta(arrCADENA *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < arr_NumElemsCADENA(a); ++i)
        t += std::string(i > 0 ? "|" : "") + (arr_GetCADENA(a, i) != nullptr ? arr_GetCADENA(a, i) : "~");
    if (a != nullptr) arr_DestruyeCADENA(&a);
    return t;
}
std::string junta(arrCADENA_u *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < arr_NumElemsCADENA_u(a); ++i)
        t += (i > 0 ? "|" : "") + (arr_GetCADENA_u(a, i) != nullptr ? utf8_de(arr_GetCADENA_u(a, i)) : "~");
    if (a != nullptr) arr_DestruyeCADENA_u(&a);
    return t;
}
std::string junta(arrDouble *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < arr_NumElemsDouble(a); ++i)
        t += std::to_string(std::lround(std::clamp(arr_GetDouble(a, i), -99., 99.))) + " "; // damaged ones can be any
    if (a != nullptr) arr_DestruyeDouble(&a);
    return t;
}

struct viga {
    int32_t numero;
    static viga *crea(int32_t n) { return new (vornspy_malloc(sizeof(viga))) viga{n}; }
    static void destruye(viga **v) { vornspy_free_pp(v, sizeof(viga)); }
    static void graba(const viga *v, vornsave *d) { vornsave_graba_long(v->numero, d); }
    static viga *lee(vornsave *d) { return crea(vornsave_lee_long(d)); }
    static viga *lee_mas(const int32_t *mas, vornsave *d) { return crea(vornsave_lee_long(d) + *mas); }
    static viga *lee_mas_por(const int32_t *mas, const int32_t *por, vornsave *d) {
        return crea((vornsave_lee_long(d) + *mas) * *por);
    }
    static void salta(vornsave *d) { vornsave_salta_long(d); }
    static int compara(const viga *a, const viga *b, const int32_t *sentido) {
        return a->numero == b->numero ? 0 : (a->numero < b->numero ? -1 : 1) * *sentido;
    }
};

arrPuntero *crea_vigas(std::initializer_list<int32_t> numeros) {
    arrPuntero *a = arr_CreaPunteroST(0, viga);
    for (const int32_t n : numeros) arr_AppendPunteroST(a, viga::crea(n), viga);
    return a;
}
std::string junta(arrPuntero *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < arr_NumElemsPunteroST(a, viga); ++i)
        t += std::to_string(arr_GetPunteroST(a, i, viga)->numero) + " ";
    if (a != nullptr) arr_DestruyeEstructurasST(&a, viga, viga::destruye);
    return t;
}
std::string junta(apunorde *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < apunorde_numelems(a, viga); ++i)
        t += std::to_string(apunorde_get(a, i, viga)->numero) + " ";
    if (a != nullptr) apunorde_destruye(&a, viga);
    return t;
}
std::string junta(acadorde *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < acadorde_numelems(a); ++i) t += std::string(acadorde_get(a, i)) + " ";
    if (a != nullptr) acadorde_destruye(&a);
    return t;
}
std::string junta(acadordeu *a) {
    std::string t;
    for (uint32_t i = 0; a != nullptr && i < acadordeu_numelems(a); ++i)
        t += utf8_de(acadordeu_get(a, i)) + (acadordeu_distingue_may_y_min(a) == CIERTO ? "=" : " ");
    if (a != nullptr) acadordeu_destruye(&a);
    return t;
}
std::string junta(fichmem *m) {
    std::string t = m != nullptr ? std::string(reinterpret_cast<char *>(m->datos), m->longitud) : "";
    if (m != nullptr) fichmem_destruye(&m);
    return t;
}
void graba_con_marca(const char *s, vornsave *d) {
    vornsave_graba_cadena((std::string(s) + "*").c_str(), d);
}
char *lee_con_marca(vornsave *d) {
    char *s = vornsave_lee_cadena(d);
    if (s != nullptr && *s != '\0') s[std::strlen(s) - 1] = '\0';
    return s;
}

arrDouble *crea_doubles(const std::vector<double> &v) {
    arrDouble *a = arr_CreaDouble(static_cast<uint32_t>(v.size()));
    if (!v.empty()) std::copy(v.begin(), v.end(), arr_GetBufferDouble(a));
    return a;
}
std::string flotantes(const std::vector<double> &v, double tolerancia = 1e-9) {
    return grabado(EN_BIN, [&](vornsave *d) {
        arrDouble *a = crea_doubles(v);
        vornsave_graba_arr_double_con_valores_iguales(a, tolerancia, d);
        arr_DestruyeDouble(&a);
    });
}
std::string le(uint32_t n) {
    return {reinterpret_cast<const char *>(&n), 4};
}
std::string le(double x) {
    return {reinterpret_cast<const char *>(&x), 8};
}

// ---- Every collection: how it is written, what it is read as, and what that must be.

enum clase : uint8_t { SOLO_BIN, AMBOS, SOLO_BIN_CON_CUENTA, AMBOS_CON_CUENTA }; // with a form in text; its bytes begin with a count
struct coleccion {
    const char *nombre;
    clase como;
    std::function<void(vornsave *)> graba;
    std::function<std::string(vornsave *)> lee;
    std::string espera;
    bool ajenos = false; // its elements stay with the caller when a report unwinds
    bool en_texto() const { return como == AMBOS || como == AMBOS_CON_CUENTA; }
    bool con_cuenta() const { return como >= SOLO_BIN_CON_CUENTA; }
};

// An array of simple values: an empty one and the one given, as their bytes.
template <class ARR, class T>
coleccion de_valores(const char *nombre, ARR *(*crea)(uint32_t), void (*destruye)(ARR **), uint32_t (*numelems)(const ARR *),
                     T *(*buffer)(ARR *), std::vector<T> valores, void (*graba)(const ARR *, vornsave *),
                     ARR *(*lee)(vornsave *)) {
    const auto graba_dos = [=](vornsave *d) {
        for (const size_t n : {size_t(0), valores.size()}) {
            ARR *a = crea(static_cast<uint32_t>(n));
            if (n > 0) std::copy(valores.begin(), valores.end(), buffer(a));
            graba(a, d);
            destruye(&a);
        }
    };
    const auto lee_dos = [=](vornsave *d) {
        std::string bytes;
        for (int i = 0; i < 2; ++i) {
            ARR *a = lee(d);
            if (a != nullptr) bytes.append(reinterpret_cast<const char *>(buffer(a)), numelems(a) * sizeof(T));
            if (a != nullptr) destruye(&a);
        }
        return bytes;
    };
    return {nombre, AMBOS_CON_CUENTA, graba_dos, lee_dos,
            {reinterpret_cast<const char *>(valores.data()), valores.size() * sizeof(T)}, false};
}
#define DE_VALORES(sufijo, nombre, ...)                                                                                \
    de_valores(#nombre, arr_Crea##sufijo, arr_Destruye##sufijo, arr_NumElems##sufijo, arr_GetBuffer##sufijo,           \
               {__VA_ARGS__}, vornsave_graba_arr_##nombre, vornsave_lee_arr_##nombre)
#define LEE(...) [](vornsave *d) { return junta(__VA_ARGS__); }
// What is done with a collection `a` that lives for it.
#define CON(crea, destruye, ...)                                                                                       \
    [](vornsave *d) {                                                                                                  \
        auto *a = crea;                                                                                                \
        __VA_ARGS__;                                                                                                   \
        destruye;                                                                                                      \
    }
#define TEXTOS(operacion, ...) CON(crea_textos({__VA_ARGS__}), junta(a), vornsave_graba_##operacion(a, d))
#define VIGAS(...) CON(crea_vigas({3, 1, 2}), junta(a), __VA_ARGS__)
#define ORDEN(operacion, crea, inserta, ...)                                                                           \
    CON(crea, junta(a), for (auto *s : {__VA_ARGS__}) inserta(a, s); operacion)

constexpr int32_t mas = 10, por = 2, sentido = -1;
constexpr uint32_t MUCHOS = 1300; // more than one piece
std::string texto_y_libera(viga *v) {
    const std::string t = v != nullptr ? std::to_string(v->numero) : "~";
    if (v != nullptr) viga::destruye(&v);
    return t;
}
apunorde *crea_orden() {
    apunorde *a = apunorde_crea(viga, const int32_t, viga::compara, &sentido, viga::destruye);
    for (int n : {5, 7, 6}) apunorde_inserta_original(a, viga::crea(n), viga, nullptr);
    return a;
}
arrCADENA_u *crea_anchos(bool con_nulo) {
    arrCADENA_u *a = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(a, VNU("\u0394"));
    if (con_nulo) arr_AppendCADENA_u(a, nullptr);
    return a;
}

const std::vector<coleccion> &todas() {
    static const auto graba_vigas = VIGAS(vornsave_graba_arr_punterosST(a, d, viga, viga::graba));
    static const auto graba_vigas_opc = VIGAS(vornsave_graba_arr_punteros_opcional(a, d, viga, viga::graba));
    static const auto graba_una = [](vornsave *d) {
        const viga v{3};
        vornsave_graba_estructura_opcional2ST(&v, d, viga, viga::graba);
    };
    static const auto graba_orden = CON(crea_orden(), junta(a), vornsave_graba_apunorde(a, d, viga, viga::graba));
    static const std::vector<coleccion> filas = {
        DE_VALORES(Double, double, -1. / 3, 0., 1e300),
        DE_VALORES(Long, long, INT32_MIN, 0, 7),
        DE_VALORES(Long64, long64, INT64_MIN, 0, 7),
        DE_VALORES(UChar, uchar, uint8_t(0), uint8_t(255), uint8_t(10)),
        DE_VALORES(UShort, ushort, uint16_t(0), uint16_t(65535), uint16_t(13)),
        DE_VALORES(ULong, ulong, 0u, UINT32_MAX, 26u),
        DE_VALORES(ULong64, ulong64, uint64_t(0), UINT64_MAX, uint64_t(26)),
        DE_VALORES(BOOL, bool, CIERTO, FALSO, CIERTO),
        DE_VALORES(Punto2D, puntos2D, Punto2D{1, -2}, Punto2D{0.1, 0.2}),
        DE_VALORES(Punto3D, puntos3D, Punto3D{1, -2, 3}, Punto3D{0.1, 0.2, 0.3}),
        {"con_posible_error", SOLO_BIN_CON_CUENTA,
         CON(crea_doubles({1, INFINITY}), junta(a), vornsave_graba_ulong(2, d), vornsave_graba_buffer(arr_GetBufferDouble(a), 16, d)),
         [](vornsave *d) {
             vnbool malo = 7, denormal = 7;
             const std::string t = junta(vornsave_lee_arr_double_con_posible_error(d, &malo, &denormal));
             return t + std::to_string(malo) + std::to_string(denormal);
         },
         "1 0 10"},
        {"arulong", AMBOS_CON_CUENTA,
         CON(arulong_crea(), arulong_destruye(&a), for (uint32_t i = 0; i < MUCHOS; ++i) arulong_append(a, i); vornsave_graba_arulong(a, d)),
         [](vornsave *d) {
             arulong *a = vornsave_lee_arulong(d);
             const bool bien = a != nullptr && arulong_numelems(a) == MUCHOS && arulong_get(a, 1200) == 1200;
             if (a != nullptr) arulong_destruye(&a);
             return std::string(bien ? "as written" : "other");
         },
         "as written"},
        {"arulong64", AMBOS_CON_CUENTA,
         CON(arulong64_crea(), arulong64_destruye(&a), for (uint64_t i = 0; i < MUCHOS; ++i) arulong64_append(a, ~i); vornsave_graba_arulong64(a, d)),
         [](vornsave *d) {
             arulong64 *a = vornsave_lee_arulong64(d);
             const bool bien = a != nullptr && arulong64_numelems(a) == MUCHOS && arulong64_get(a, 1200) == ~uint64_t(1200);
             if (a != nullptr) arulong64_destruye(&a);
             return std::string(bien ? "as written" : "other");
         },
         "as written"},
        {"opcional", AMBOS, CON(crea_doubles({2}), junta(a), vornsave_graba_arr_double_opcional(a, d)), LEE(vornsave_lee_arr_double_opcional(d)), "2 "},
        {"opcional que no hay", AMBOS, [](vornsave *d) { vornsave_graba_arr_double_opcional(nullptr, d); },
         LEE(vornsave_lee_arr_double_opcional(d)), ""},
        {"cadenas", AMBOS_CON_CUENTA, TEXTOS(arr_cadenas, "uno", "", "tres y"), LEE(vornsave_lee_arr_cadenas(d)), "uno||tres y"},
        {"cadenas a unicode", AMBOS_CON_CUENTA, TEXTOS(arr_cadenas, "uno", "", "tres y"), LEE(vornsave_lee_arr_cadenas_ansi_unicode(d)), "uno||tres y"},
        {"cadenas_unicode", SOLO_BIN_CON_CUENTA, CON(crea_anchos(false), junta(a), vornsave_graba_arr_cadenas_unicode(a, d)),
         LEE(vornsave_lee_arr_cadenas_unicode(d)), "\u0394"},
        {"cadenas iguales", AMBOS_CON_CUENTA, TEXTOS(arr_cadenas_con_valores_iguales, "a", "a", "tres y"),
         LEE(vornsave_lee_arr_cadenas_con_valores_iguales(d)), "a|a|tres y"},
        {"cadenas opcional", AMBOS, TEXTOS(arr_cadenas_opcional, "uno"), LEE(vornsave_lee_arr_cadenas_opcional(d)), "uno"},
        {"segun_tipo", SOLO_BIN_CON_CUENTA, TEXTOS(arr_cadenas_segun_tipo, "uno", nullptr, ""), LEE(vornsave_lee_arr_cadenas_segun_tipo(d)), "uno|~|"},
        {"segun_tipo_unicode", SOLO_BIN_CON_CUENTA, CON(crea_anchos(true), junta(a), vornsave_graba_arr_cadenas_segun_tipo_unicode(a, d)),
         LEE(vornsave_lee_arr_cadenas_segun_tipo_unicode(d)), "\u0394|~"},
        {"iguales segun_tipo", SOLO_BIN_CON_CUENTA, TEXTOS(arr_cadenas_con_valores_iguales_segun_tipo, "uno", nullptr, ""),
         LEE(vornsave_lee_arr_cadenas_con_valores_iguales_segun_tipo(d)), "uno|~|"},
        {"acadorde", AMBOS, ORDEN(vornsave_graba_acadorde(a, d), acadorde_crea(FALSO), acadorde_inserta, "b", "A", "c"),
         [](vornsave *d) {
             acadorde *a = vornsave_lee_acadorde(d);
             if (a != nullptr && acadorde_existe(a, "a", nullptr) == FALSO) acadorde_destruye(&a);
             return junta(a);
         },
         "A b c "},
        {"acadordeu", AMBOS, ORDEN(vornsave_graba_acadordeu(a, d), acadordeu_crea(CIERTO), acadordeu_inserta, VNU("\u00f1")),
         LEE(vornsave_lee_acadordeu(d)), "\u00f1="},
        {"acadorde con funcion", AMBOS, ORDEN(vornsave_graba_acadorde_con_funcion(a, graba_con_marca, d), acadorde_crea(FALSO), acadorde_inserta, "b", "c"),
         LEE(vornsave_lee_acadorde_con_funcion(d, lee_con_marca)), "b c "},
        {"punteros", AMBOS_CON_CUENTA, graba_vigas, LEE(vornsave_lee_arr_punterosST(d, viga, viga::lee)), "3 1 2 ", true},
        {"punteros con 1", AMBOS_CON_CUENTA, graba_vigas,
         LEE(vornsave_lee_arr_punteros_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &mas)), "13 11 12 ", true},
        {"punteros con 2", AMBOS_CON_CUENTA, graba_vigas,
         LEE(vornsave_lee_arr_punteros_con_2_datos_extraST(d, viga, const int32_t, const int32_t, viga::lee_mas_por, &mas, &por)), "26 22 24 ", true},
        {"punteros saltados", AMBOS_CON_CUENTA, graba_vigas, [](vornsave *d) { return vornsave_salta_arr_punteros_ST(d, viga::salta), ""; }, ""},
        {"punteros a un conjunto", AMBOS_CON_CUENTA, graba_vigas,
         LEE(vornsave_lee_apunorde(d, viga, viga::lee, const int32_t, viga::compara, &sentido, viga::destruye)), "3 2 1 "},
        {"punteros opcional saltados", AMBOS, graba_vigas_opc, [](vornsave *d) { return vornsave_salta_arr_punteros_opcionalST(d, viga::salta), ""; }, ""},
        {"punteros opcional", AMBOS, graba_vigas_opc, LEE(vornsave_lee_arr_punteros_opcional(d, viga, viga::lee)), "3 1 2 ", true},
        {"punteros que no hay", AMBOS, [](vornsave *d) { vornsave_graba_arr_punteros_opcional(nullptr, d, viga, viga::graba); },
         LEE(vornsave_lee_arr_punteros_opcional(d, viga, viga::lee)), ""},
        {"array de arrays", AMBOS_CON_CUENTA,
         VIGAS(arrPuntero *b = arr_CreaPunteroST(0, arrPuntero); arr_AppendPunteroST(b, a, arrPuntero);
               vornsave_graba_arr_punteros_arrayST(b, d, viga, viga::graba); arr_DestruyePunteroST(&b, arrPuntero)),
         [](vornsave *d) {
             arrPuntero *a = vornsave_lee_arr_punteros_arrayST(d, viga, viga::lee);
             std::string t;
             for (uint32_t i = 0; a != nullptr && i < arr_NumElemsPunteroST(a, arrPuntero); ++i)
                 t += junta(arr_GetPunteroST(a, i, arrPuntero));
             if (a != nullptr) arr_DestruyePunteroST(&a, arrPuntero);
             return t;
         },
         "3 1 2 ", true},
        {"estructura", AMBOS, graba_una,
         [](vornsave *d) { return texto_y_libera(vornsave_lee_estructura_opcional2ST(d, viga, viga::lee)); }, "3"},
        {"estructura con 2", AMBOS, graba_una,
         [](vornsave *d) {
             return texto_y_libera(vornsave_lee_estructura_opcional2_con_2_dato_extraST(d, viga, const int32_t, const int32_t,
                                                                                        viga::lee_mas_por, &mas, &por));
         },
         "26"},
        {"estructura saltada", AMBOS, graba_una, [](vornsave *d) { return vornsave_salta_estructura_opcional(d, viga::salta), ""; }, ""},
        {"estructura que no hay", AMBOS, [](vornsave *d) { vornsave_graba_estructura_opcional2ST(nullptr, d, viga, viga::graba); },
         [](vornsave *d) {
             return texto_y_libera(vornsave_lee_estructura_opcional2_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &mas));
         },
         "~"},
        {"apunorde con 1", AMBOS_CON_CUENTA, graba_orden,
         LEE(vornsave_lee_apunorde_con_1_dato_extra(d, &mas, viga, const int32_t, viga::lee_mas, const int32_t, viga::compara, &sentido, viga::destruye)),
         "17 16 15 "},
        {"apunorde que no hay", AMBOS, [](vornsave *d) { vornsave_graba_apunorde_opcional(nullptr, d, viga, viga::graba); },
         LEE(vornsave_lee_apunorde_opcional(d, viga, viga::lee, const int32_t, viga::compara, &sentido, viga::destruye)), ""},
        {"puntos2DXPriv", AMBOS_CON_CUENTA,
         [](vornsave *d) {
             arrPunto2DXPriv *a = arr_CreaPunto2DXPriv(0);
             viga v{77};
             arr_AppendPunto2DXPriv(a, 1.5, 2.5, &v);
             vornsave_graba_arr_puntos2DXPrivST(a, d, viga, viga::graba);
             arr_DestruyePunto2DXPriv(&a, nullptr);
         },
         [](vornsave *d) {
             arrPunto2DXPriv *a = vornsave_lee_arr_puntos2DXPrivST(d, viga, viga::lee);
             double x = 0, y = 0;
             void *v = nullptr;
             if (a != nullptr && arr_NumElemsPunto2DXPriv(a) > 0) arr_GetPunto2DXPriv(a, 0, &x, &y, &v);
             const bool bien = x == 1.5 && y == 2.5 && v != nullptr && static_cast<viga *>(v)->numero == 77;
             if (a != nullptr) arr_DestruyePunto2DXPriv(&a, [](void *p) { viga::destruye(static_cast<viga **>(p)); });
             return std::string(bien ? "as written" : "other");
         },
         "as written", true},
        {"fichmem", AMBOS_CON_CUENTA, CON(fichmem_crea_desde_cadena("memoria"), fichmem_destruye(&a), vornsave_graba_fichmem(a, d)),
         LEE(vornsave_lee_fichmem(d)), "memoria"},
        {"como_buffer", AMBOS_CON_CUENTA, [](vornsave *d) { vornsave_graba_cadena_como_buffer("largo", d); },
         [](vornsave *d) { return toma(vornsave_lee_cadena_como_buffer(d)); },
         "largo"},
        {"double iguales", AMBOS_CON_CUENTA,
         CON(crea_doubles({4, 1, 1, 1, 2, 3, 3}), junta(a), vornsave_graba_arr_double_con_valores_iguales(a, 0, d)),
         LEE(vornsave_lee_arr_double_con_valores_iguales(d)), "4 1 1 1 2 3 3 "},
    };
    return filas;
}

} // namespace

PRUEBA(vornsave_colecciones, vuelven_iguales_de_cada_destino) {
    for (const auto &destino : DESTINOS)
        for (const auto &c : todas()) {
            if (destino.texto && !c.en_texto()) continue;
            SCOPED_TRACE(std::string(destino.nombre) + ", " + c.nombre);
            const std::string datos = grabado(destino, [&](vornsave *d) { c.graba(d), vornsave_graba_long(77, d); });
            leido(destino, datos, [&](vornsave *d) {
                EXPECT_EQ(c.lee(d), c.espera);
                EXPECT_EQ(vornsave_lee_long(d), 77);
            });
        }
}

// Cut anywhere: trapped or not, the first report ends the reading of what was cut.
PRUEBA(vornsave_colecciones, cortadas_en_cada_byte) {
    for (const auto &c : todas()) {
        SCOPED_TRACE(c.nombre);
        const std::string datos = grabado(EN_BIN, c.graba);
        for (size_t n = 0; n < std::min<size_t>(datos.size(), 100); ++n) {
            graba_fichero(abierto::ruta(), std::string_view(datos).substr(0, n));
            EXPECT_TRUE(c.ajenos || !atrapado([&] { c.lee(abierto(EN_BIN, "r")); })) << n;
            c.lee(abierto(EN_BIN, "r"));
            EXPECT_FALSE(toma_informes().empty()) << n;
        }
    }
}

PRUEBA(vornsave_colecciones, bytes_y_lineas) {
    arrBOOL *logicos = arr_CreaBOOL(3);
    arr_SetBOOL(logicos, 1, CIERTO);
    EXPECT_EQ(hex(grabado(EN_BIN, [&](vornsave *d) { vornsave_graba_arr_bool(logicos, d); })), "03000000000001000000");
    arr_DestruyeBOOL(&logicos);
    leido(EN_BIN, bytes("\1\0\0\0\5\0"), [](vornsave *d) {
        arrBOOL *a = ESPERA_INFORME("elem == 1 || elem == 0", vornsave_lee_arr_bool(d));
        EXPECT_EQ(arr_GetBOOL(a, 0), 5);
        arr_DestruyeBOOL(&a);
    });
    // One line a point.
    std::string lineas = grabado(EN_TXT_CON, [](vornsave *d) {
        arrPunto2D *a = arr_CreaPunto2D(0);
        arr_AppendPunto2D(a, 1, 2);
        arr_AppendPunto2D(a, 3, 4);
        vornsave_graba_arr_puntos2D(a, d);
        arr_DestruyePunto2D(&a);
    });
    std::erase(lineas, '\r');
    EXPECT_EQ(lineas, "2\n1 2\n3 4\n");
    // A null text where it has no form is reported, and what follows stays in step.
    const std::string datos = grabado(EN_BIN, [&](vornsave *d) {
        arrCADENA *a = crea_textos({"uno", nullptr, ""});
        ESPERA_INFORME("(texto) != NULL", vornsave_graba_arr_cadenas(a, d));
        junta(a);
    });
    leido(EN_BIN, datos, [](vornsave *d) { EXPECT_EQ(junta(vornsave_lee_arr_cadenas(d)), "uno||"); });
    leido(EN_TXT, "0\n", [](vornsave *d) { EXPECT_EQ(ESPERA_INFORME("", vornsave_lee_arr_cadenas_unicode(d)), nullptr); });
}

PRUEBA(vornsave_colecciones, grupos_de_valores_iguales) {
    EXPECT_EQ(flotantes({1, 1, 1, 2, 3, 3}), le(6u) + "\1" + le(3u) + le(1.) + bytes("\0") + le(1u) + le(2.) + "\1" + le(2u) + le(3.));
    EXPECT_EQ(flotantes({1, 2, 3}), le(3u) + bytes("\0") + le(3u) + le(1.) + le(2.) + le(3.));
    EXPECT_EQ(flotantes({1, 1}), le(2u) + "\1" + le(2u) + le(1.));
    EXPECT_EQ(flotantes({}), le(0u));
    // A run does not drift further than the tolerance from its first value.
    EXPECT_EQ(flotantes({1, 1.4, 1.8}, 0.5), le(3u) + "\1" + le(2u) + le(1.) + bytes("\0") + le(1u) + le(1.8));
    // Groups without values, or with more than are missing, end the reading.
    const std::string principio = le(4u) + "\1" + le(2u) + le(7.);
    for (const std::string &grupo : {"\1" + le(0u) + le(1.), bytes("\0") + le(0u), "\1" + le(3u) + le(1.), "\1" + le(~0u) + le(1.)})
        leido(EN_BIN, principio + grupo, [](vornsave *d) {
            EXPECT_EQ(junta(ESPERA_INFORME("arr_NumElemsDouble(array) == num_elems_a_leer",
                                           vornsave_lee_arr_double_con_valores_iguales(d))),
                      "7 7 ");
        });
    leido(EN_BIN, le(3u) + "\1" + le(2u) + bytes("\1\0x\1") + le(9u) + bytes("\1\0x"), [](vornsave *d) {
        EXPECT_EQ(junta(ESPERA_INFORME("arr_NumElemsCADENA(array) == num_elems_a_leer",
                                       vornsave_lee_arr_cadenas_con_valores_iguales(d))),
                  "x|x");
    });
}

PRUEBA(vornsave_colecciones, los_ficheros_de_memoria_van_en_trozos) {
    for (const uint32_t n : {0u, 1u, 65533u, 65534u, 65535u, 131068u, 131069u})
        for (const auto &destino : {EN_BIN, EN_TXT}) {
            std::string contenido(n, '\0');
            std::iota(contenido.begin(), contenido.end(), '\x1c'); // with zeros and line ends
            fichmem *m = fichmem_crea32(contenido.data(), n);
            const std::string datos = grabado(destino, [&](vornsave *d) { vornsave_graba_fichmem(m, d); });
            fichmem_destruye(&m);
            if (!destino.texto) {
                EXPECT_EQ(datos, le(n) + contenido);
            }
            if (destino.texto && datos.find('\r') != std::string::npos && n > 31) continue; // raw bytes in translated text
            leido(destino, datos, [&](vornsave *d) {
                fichmem *leido_m = vornsave_lee_fichmem(d);
                EXPECT_EQ(std::string(reinterpret_cast<char *>(leido_m->datos), leido_m->longitud), contenido);
                fichmem_destruye(&leido_m);
            });
        }
}

PRUEBA(vornsave_colecciones, una_cuenta_falsa_no_reserva_memoria) {
    const std::string cola = bytes("\1\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0");
    for (const auto &c : todas()) {
        if (!c.con_cuenta() || std::strstr(c.nombre, "iguales") != nullptr) continue;
        const auto falsa = [&](const destino_de_prueba &destino, const std::string &contenido) {
            SCOPED_TRACE(std::string(c.nombre) + " " + hex(contenido.substr(0, 4)));
            leido(destino, contenido, [&](vornsave *d) {
                const mayor_bloque m;
                c.lee(d);
                EXPECT_FALSE(toma_informes().empty());
                EXPECT_LT(m(), size_t(1) << 20);
            });
        };
        for (const uint32_t cuenta : {17u, 0x7fffffffu, 0x80000000u, 0xffffffffu}) falsa(EN_BIN, le(cuenta) + cola);
        if (c.en_texto()) falsa(EN_TXT, "4000000000\n1\n2\n3\n");
    }
}

// Few bytes may stand for many values: what the writer makes of an array is always read, beside the bound as well; what it
// does not make is refused before memory is taken, and what follows is in step.
PRUEBA(vornsave_colecciones, los_grupos_tienen_un_limite_que_quien_graba_conoce) {
    const auto lee_textos_iguales = [](vornsave *d) { return vornsave_lee_arr_cadenas_con_valores_iguales(d); };
    const auto vuelven = [&](const char *texto, uint32_t n, bool en_un_grupo) {
        const std::string datos = grabado(EN_BIN, [&](vornsave *d) {
            arrCADENA *a = arr_CreaCADENA(n);
            for (uint32_t i = 0; i < n; ++i) arr_SetCADENA(a, i, texto);
            vornsave_graba_arr_cadenas_con_valores_iguales(a, d);
            vornsave_graba_long(77, d);
            arr_DestruyeCADENA(&a);
        });
        EXPECT_EQ(datos.size() == 4 + 5 + 2 + std::strlen(texto) + 4, en_un_grupo);
        const abierto leido_otra_vez(EN_BIN, "r");
        arrCADENA *a = lee_textos_iguales(leido_otra_vez);
        EXPECT_EQ(arr_NumElemsCADENA(a), n);
        EXPECT_STREQ(arr_GetCADENA(a, n - 1), texto);
        EXPECT_EQ(vornsave_lee_long(leido_otra_vez), 77);
        arr_DestruyeCADENA(&a);
    };
    vuelven("Hormigon HA-25", 1000000, true);
    const std::string largo(65535, 'x');
    vuelven(largo.c_str(), 4100, true);
    vuelven(largo.c_str(), 4101, false);
    constexpr uint32_t N = 6000000;
    arrDouble *muchos = arr_CreaDouble(N);
    for (const uint32_t i : {0u, 1u, 7u, N / 2, N - 1}) arr_SetDouble(muchos, i, i + 1.);
    const std::string datos = grabado(EN_BIN, [&](vornsave *d) { vornsave_graba_arr_double_con_valores_iguales(muchos, 0, d); });
    EXPECT_LT(datos.size(), 200u);
    leido(EN_BIN, datos, [&](vornsave *d) {
        arrDouble *a = vornsave_lee_arr_double_con_valores_iguales(d);
        EXPECT_EQ(arr_SonIgualesDouble(a, muchos), CIERTO);
        arr_DestruyeDouble(&a);
    });
    arr_DestruyeDouble(&muchos);
    const std::string siete = bytes("\7\0\0\0");
    for (const uint32_t cuenta : {33554446u, 4000000000u})
        leido(EN_BIN, le(cuenta) + "\1" + le(cuenta) + le(2.) + siete, [&](vornsave *d) {
            const mayor_bloque m;
            EXPECT_EQ(junta(vornsave_lee_arr_double_con_valores_iguales(d)), "");
            espera_informes({"lc_error_leyendo_fichero", "arr_NumElemsDouble(array) == num_elems_a_leer"}, __FILE__, __LINE__);
            EXPECT_LT(m(), size_t(1) << 20);
            EXPECT_EQ(vornsave_lee_long(d), 7);
        });
    leido(EN_BIN, le(4103u) + "\1" + le(4101u) + bytes("\xff\xff") + largo + bytes("\0\2\0\0\0\1\0a\1\0b") + siete, [&](vornsave *d) {
        EXPECT_EQ(junta(lee_textos_iguales(d)), "");
        espera_informes({"lc_error_leyendo_fichero", "arr_NumElemsCADENA(array) == num_elems_a_leer"}, __FILE__, __LINE__);
        EXPECT_EQ(vornsave_lee_long(d), 7);
    });
}
