#include "persistence/prueba_vornsave.h"
#include "foundation/cad.h"
#include "foundation/widestr.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <numeric>

using namespace vn;

namespace {

// ---- The arrays of simple values: how one of three elements is made, written, read and compared.

struct coleccion {
    const char *nombre;
    std::function<void(vornsave *)> graba, comprueba, lee;
};

template <class ARR, class T>
coleccion de_valores(const char *nombre, ARR *(*crea)(uint32_t), void (*destruye)(ARR **), uint32_t (*numelems)(const ARR *),
                     T *(*buffer)(ARR *), std::vector<T> valores, void (*graba)(const ARR *, vornsave *),
                     ARR *(*lee)(vornsave *)) {
    return {nombre,
            [=](vornsave *d) {
                for (const uint32_t n : {uint32_t(0), static_cast<uint32_t>(valores.size())}) {
                    ARR *a = crea(n);
                    if (n > 0) std::copy(valores.begin(), valores.end(), buffer(a));
                    graba(a, d);
                    destruye(&a);
                }
            },
            [=](vornsave *d) {
                ARR *a = lee(d);
                EXPECT_EQ(numelems(a), 0u);
                destruye(&a);
                a = lee(d);
                ASSERT_EQ(numelems(a), valores.size());
                EXPECT_EQ(std::memcmp(buffer(a), valores.data(), valores.size() * sizeof(T)), 0);
                destruye(&a);
            },
            [=](vornsave *d) {
                ARR *a = lee(d);
                if (a != nullptr) destruye(&a);
            }};
}
#define DE_VALORES(sufijo, nombre, ...)                                                                                \
    de_valores(#nombre, arr_Crea##sufijo, arr_Destruye##sufijo, arr_NumElems##sufijo, arr_GetBuffer##sufijo,           \
               {__VA_ARGS__}, vornsave_graba_arr_##nombre, vornsave_lee_arr_##nombre)

const std::vector<coleccion> &simples() {
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
    };
    return filas;
}

// ---- Texts and structures

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

// The largest block that is asked for while it lives.
class medida {
  public:
    medida() { vornspy_instala_permiso(anota, this); }
    ~medida() { vornspy_instala_permiso(nullptr, nullptr); }
    size_t mayor() const { return mayor_; }

  private:
    static vnbool anota(size_t tamanyo, void *m) {
        auto *yo = static_cast<medida *>(m);
        if (tamanyo > yo->mayor_) yo->mayor_ = tamanyo;
        return CIERTO;
    }
    size_t mayor_ = 0;
};

} // namespace

PRUEBA(vornsave_colecciones, los_arrays_vuelven_iguales_de_cada_destino) {
    for (const auto &destino : DESTINOS)
        for (const auto &c : simples()) {
            SCOPED_TRACE(std::string(destino.nombre) + ", " + c.nombre);
            leido(destino, grabado(destino, c.graba), c.comprueba);
        }
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
}

PRUEBA(vornsave_colecciones, los_arrays_delgados_y_los_opcionales) {
    for (const auto &destino : DESTINOS) {
        SCOPED_TRACE(destino.nombre);
        const uint32_t N = 1300; // more than one piece
        leido(destino, grabado(destino,
                               [&](vornsave *d) {
                                   arulong *a = arulong_crea();
                                   arulong64 *b = arulong64_crea();
                                   for (uint32_t i = 0; i < N; ++i) arulong_append(a, i), arulong64_append(b, ~uint64_t(i));
                                   vornsave_graba_arulong(a, d);
                                   vornsave_graba_arulong64(b, d);
                                   arulong_destruye(&a);
                                   arulong64_destruye(&b);
                                   vornsave_graba_arr_long_opcional(nullptr, d);
                                   arrULong *c = arr_CreaULong(2);
                                   vornsave_graba_arr_ulong_opcional(c, d);
                                   arr_DestruyeULong(&c);
                                   vornsave_graba_bool(CIERTO, d);
                                   vornsave_graba_bool(FALSO, d);
                               }),
              [&](vornsave *d) {
                  arulong *a = vornsave_lee_arulong(d);
                  arulong64 *b = vornsave_lee_arulong64(d);
                  EXPECT_TRUE(arulong_numelems(a) == N && arulong_get(a, 1200) == 1200);
                  EXPECT_TRUE(arulong64_numelems(b) == N && arulong64_get(b, 1200) == ~uint64_t(1200));
                  arulong_destruye(&a);
                  arulong64_destruye(&b);
                  EXPECT_EQ(vornsave_lee_arr_long_opcional(d), nullptr);
                  arrULong *c = vornsave_lee_arr_ulong_opcional(d);
                  EXPECT_EQ(arr_NumElemsULong(c), 2u);
                  arr_DestruyeULong(&c);
                  EXPECT_EQ(vornsave_lee_bool(d), CIERTO);
                  vornsave_salta_cadena_opcional(d);
              });
    }
}

PRUEBA(vornsave_colecciones, textos_y_conjuntos_de_textos) {
    arrCADENA *con_nulo = crea_textos({"uno", nullptr, ""}), *lisos = crea_textos({"uno", "", "tres y"});
    arrCADENA_u *anchos = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(anchos, VNU("\u0394"));
    arr_AppendCADENA_u(anchos, nullptr);
    acadorde *orden = acadorde_crea(FALSO);
    acadordeu *orden_u = acadordeu_crea(CIERTO);
    for (const char *s : {"b", "A", "c"}) acadorde_inserta(orden, s);
    acadordeu_inserta(orden_u, VNU("\u00f1"));
    for (const auto &destino : DESTINOS) {
        SCOPED_TRACE(destino.nombre);
        const std::string datos = grabado(destino, [&](vornsave *d) {
            vornsave_graba_arr_cadenas(lisos, d);
            vornsave_graba_arr_cadenas_con_valores_iguales(lisos, d);
            vornsave_graba_acadorde(orden, d);
            vornsave_graba_acadordeu(orden_u, d);
            vornsave_graba_acadorde_con_funcion(orden, graba_con_marca, d);
            vornsave_graba_arr_cadenas_opcional(lisos, d);
            if (destino.texto) return;
            vornsave_graba_arr_cadenas_segun_tipo(con_nulo, d);
            vornsave_graba_arr_cadenas_segun_tipo_unicode(anchos, d);
            vornsave_graba_arr_cadenas_con_valores_iguales_segun_tipo(con_nulo, d);
        });
        leido(destino, datos, [&](vornsave *d) {
            EXPECT_EQ(junta(vornsave_lee_arr_cadenas_ansi_unicode(d)), "uno||tres y");
            EXPECT_EQ(junta(vornsave_lee_arr_cadenas_con_valores_iguales(d)), "uno||tres y");
            acadorde *leido1 = vornsave_lee_acadorde(d);
            EXPECT_EQ(acadorde_numelems(leido1), 3u);
            EXPECT_EQ(acadorde_existe(leido1, "a", nullptr), CIERTO);
            acadordeu *leido2 = vornsave_lee_acadordeu(d);
            EXPECT_EQ(utf8_de(acadordeu_get(leido2, 0)), "\u00f1");
            EXPECT_EQ(acadordeu_distingue_may_y_min(leido2), CIERTO);
            acadorde *leido3 = vornsave_lee_acadorde_con_funcion(d, lee_con_marca);
            EXPECT_STREQ(acadorde_get(leido3, 2), "c");
            acadorde_destruye(&leido1), acadordeu_destruye(&leido2), acadorde_destruye(&leido3);
            EXPECT_EQ(junta(vornsave_lee_arr_cadenas_opcional(d)), "uno||tres y");
            if (destino.texto) return;
            EXPECT_EQ(junta(vornsave_lee_arr_cadenas_segun_tipo(d)), "uno|~|");
            EXPECT_EQ(junta(vornsave_lee_arr_cadenas_segun_tipo_unicode(d)), "\u0394|~");
            EXPECT_EQ(junta(vornsave_lee_arr_cadenas_con_valores_iguales_segun_tipo(d)), "uno|~|");
        });
    }
    // A null text where it has no form is reported, and what follows stays in step.
    std::string datos = grabado(EN_BIN, [&](vornsave *d) {
        ESPERA_INFORME("(texto) != NULL", vornsave_graba_arr_cadenas(con_nulo, d));
    });
    leido(EN_BIN, datos, [](vornsave *d) { EXPECT_EQ(junta(vornsave_lee_arr_cadenas(d)), "uno||"); });
    datos = grabado(EN_TXT, [&](vornsave *d) {
        vornsave_graba_arr_cadenas_unicode(anchos, d);
        toma_informes();
    });
    leido(EN_TXT, datos, [](vornsave *d) {
        EXPECT_EQ(ESPERA_INFORME("", vornsave_lee_arr_cadenas_unicode(d)), nullptr);
    });
    ESPERA_INFORME("(fncptr_cs_graba_cadena) != NULL", vornsave_graba_acadorde_con_funcion(orden, nullptr, nullptr));
    arr_DestruyeCADENA(&con_nulo), arr_DestruyeCADENA(&lisos), arr_DestruyeCADENA_u(&anchos);
    acadorde_destruye(&orden), acadordeu_destruye(&orden_u);
}

PRUEBA(vornsave_colecciones, estructuras_por_funciones_del_programa) {
    int32_t mas = 10, por = 2, sentido = -1;
    for (const auto &destino : DESTINOS) {
        SCOPED_TRACE(destino.nombre);
        const std::string datos = grabado(destino, [&](vornsave *d) {
            arrPuntero *vigas = crea_vigas({3, 1, 2}), *arrays = arr_CreaPunteroST(0, arrPuntero);
            arr_AppendPunteroST(arrays, vigas, arrPuntero);
            for (int i = 0; i < 5; ++i) vornsave_graba_arr_punterosST(vigas, d, viga, viga::graba);
            vornsave_graba_arr_punteros_opcional(vigas, d, viga, viga::graba);
            vornsave_graba_arr_punteros_opcional(nullptr, d, viga, viga::graba);
            vornsave_graba_arr_punteros_arrayST(arrays, d, viga, viga::graba);
            const viga *primera = arr_GetPunteroST(vigas, 0, viga);
            for (int i = 0; i < 4; ++i) vornsave_graba_estructura_opcional2ST(i == 3 ? nullptr : primera, d, viga, viga::graba);
            apunorde *orden = apunorde_crea(viga, const int32_t, viga::compara, &sentido, viga::destruye);
            for (int n : {5, 7, 6}) apunorde_inserta_original(orden, viga::crea(n), viga, nullptr);
            for (int i = 0; i < 2; ++i) vornsave_graba_apunorde(orden, d, viga, viga::graba);
            vornsave_graba_apunorde_opcional(nullptr, d, viga, viga::graba);
            arrPunto2DXPriv *privados = arr_CreaPunto2DXPriv(0);
            viga privada{77};
            arr_AppendPunto2DXPriv(privados, 1.5, 2.5, &privada);
            vornsave_graba_arr_puntos2DXPrivST(privados, d, viga, viga::graba);
            arr_DestruyePunto2DXPriv(&privados, nullptr);
            apunorde_destruye(&orden, viga);
            arr_DestruyePunteroST(&arrays, arrPuntero);
            junta(vigas);
        });
        leido(destino, datos, [&](vornsave *d) {
            EXPECT_EQ(junta(vornsave_lee_arr_punterosST(d, viga, viga::lee)), "3 1 2 ");
            EXPECT_EQ(junta(vornsave_lee_arr_punteros_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &mas)), "13 11 12 ");
            EXPECT_EQ(junta(vornsave_lee_arr_punteros_con_2_datos_extraST(d, viga, const int32_t, const int32_t,
                                                                          viga::lee_mas_por, &mas, &por)),
                      "26 22 24 ");
            vornsave_salta_arr_punteros_ST(d, viga::salta);
            EXPECT_EQ(junta(vornsave_lee_apunorde(d, viga, viga::lee, const int32_t, viga::compara, &sentido, viga::destruye)),
                      "3 2 1 ");
            vornsave_salta_arr_punteros_opcionalST(d, viga::salta);
            EXPECT_EQ(vornsave_lee_arr_punteros_opcional(d, viga, viga::lee), nullptr);
            arrPuntero *arrays = vornsave_lee_arr_punteros_arrayST(d, viga, viga::lee);
            ASSERT_EQ(arr_NumElemsPunteroST(arrays, arrPuntero), 1u);
            EXPECT_EQ(junta(arr_GetPunteroST(arrays, 0, arrPuntero)), "3 1 2 ");
            arr_DestruyePunteroST(&arrays, arrPuntero);
            viga *una = vornsave_lee_estructura_opcional2ST(d, viga, viga::lee);
            viga *dos = vornsave_lee_estructura_opcional2_con_2_dato_extraST(d, viga, const int32_t, const int32_t,
                                                                             viga::lee_mas_por, &mas, &por);
            EXPECT_TRUE(una->numero == 3 && dos->numero == 26);
            viga::destruye(&una), viga::destruye(&dos);
            vornsave_salta_estructura_opcional(d, viga::salta);
            EXPECT_EQ(vornsave_lee_estructura_opcional2_con_1_dato_extraST(d, viga, const int32_t, viga::lee_mas, &mas), nullptr);
            EXPECT_EQ(junta(vornsave_lee_apunorde_con_1_dato_extra(d, &mas, viga, const int32_t, viga::lee_mas, const int32_t,
                                                                   viga::compara, &sentido, viga::destruye)),
                      "17 16 15 ");
            vornsave_salta_arr_punteros_ST(d, viga::salta);
            EXPECT_EQ(vornsave_lee_apunorde_opcional(d, viga, viga::lee, const int32_t, viga::compara, &sentido, viga::destruye),
                      nullptr);
            arrPunto2DXPriv *privados = vornsave_lee_arr_puntos2DXPrivST(d, viga, viga::lee);
            double x = 0, y = 0;
            void *priv = nullptr;
            arr_GetPunto2DXPriv(privados, 0, &x, &y, &priv);
            EXPECT_TRUE(x == 1.5 && y == 2.5 && static_cast<viga *>(priv)->numero == 77);
            arr_DestruyePunto2DXPriv(&privados, [](void *p) { viga::destruye(static_cast<viga **>(p)); });
        });
    }
}

PRUEBA(vornsave_colecciones, grupos_de_valores_iguales) {
    EXPECT_EQ(flotantes({1, 1, 1, 2, 3, 3}), le(6u) + "\1" + le(3u) + le(1.) + bytes("\0") + le(1u) + le(2.) + "\1" + le(2u) + le(3.));
    EXPECT_EQ(flotantes({1, 2, 3}), le(3u) + bytes("\0") + le(3u) + le(1.) + le(2.) + le(3.));
    EXPECT_EQ(flotantes({1, 1}), le(2u) + "\1" + le(2u) + le(1.));
    EXPECT_EQ(flotantes({}), le(0u));
    // A run does not drift further than the tolerance from its first value.
    EXPECT_EQ(flotantes({1, 1.4, 1.8}, 0.5), le(3u) + "\1" + le(2u) + le(1.) + bytes("\0") + le(1u) + le(1.8));
    for (const auto &destino : DESTINOS) {
        const std::string datos = grabado(destino, [](vornsave *d) {
            arrDouble *a = crea_doubles({4, 1, 1, 1, 2, 3, 3});
            vornsave_graba_arr_double_con_valores_iguales(a, 0, d);
            arr_DestruyeDouble(&a);
        });
        leido(destino, datos, [](vornsave *d) {
            EXPECT_EQ(junta(vornsave_lee_arr_double_con_valores_iguales(d)), "4 1 1 1 2 3 3 ");
        });
    }
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

namespace {

// Every reader of a count, and whether it is one of the run-coded ones.
struct lector {
    const char *nombre;
    std::function<void(vornsave *)> lee;
};
std::vector<lector> lectores() {
    std::vector<lector> filas = {
        {"con_posible_error",
         [](vornsave *d) {
             vnbool a, b;
             junta(vornsave_lee_arr_double_con_posible_error(d, &a, &b));
         }},
        {"arulong",
         [](vornsave *d) {
             if (arulong *a = vornsave_lee_arulong(d)) arulong_destruye(&a);
         }},
        {"cadenas", [](vornsave *d) { junta(vornsave_lee_arr_cadenas(d)); }},
        {"cadenas_segun_tipo", [](vornsave *d) { junta(vornsave_lee_arr_cadenas_segun_tipo(d)); }},
        {"cadenas_unicode", [](vornsave *d) { junta(vornsave_lee_arr_cadenas_unicode(d)); }},
        {"punteros", [](vornsave *d) { junta(vornsave_lee_arr_punterosST(d, viga, viga::lee)); }},
        {"punteros_array", [](vornsave *d) { vornsave_salta_arr_punteros_ST(d, viga::salta); }},
        {"fichmem",
         [](vornsave *d) {
             if (fichmem *m = vornsave_lee_fichmem(d)) fichmem_destruye(&m);
         }},
        {"como_buffer",
         [](vornsave *d) {
             char *s = vornsave_lee_cadena_como_buffer(d);
             vornstr_destruye_opcional(&s);
         }},
        {"double_con_valores_iguales", [](vornsave *d) { junta(vornsave_lee_arr_double_con_valores_iguales(d)); }},
        {"cadenas_con_valores_iguales", [](vornsave *d) { junta(vornsave_lee_arr_cadenas_con_valores_iguales(d)); }},
    };
    for (const auto &c : simples()) filas.push_back({c.nombre, c.lee});
    return filas;
}

} // namespace

PRUEBA(vornsave_colecciones, una_cuenta_falsa_no_reserva_memoria) {
    const std::string cola = bytes("\1\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0");
    for (const uint32_t cuenta : {17u, 0x7fffffffu, 0x80000000u, 0xffffffffu})
        for (const auto &l : lectores()) {
            SCOPED_TRACE(std::string(l.nombre) + " " + std::to_string(cuenta));
            leido(EN_BIN, le(cuenta) + cola, [&](vornsave *d) {
                const medida m;
                l.lee(d);
                EXPECT_FALSE(toma_informes().empty());
                EXPECT_LT(m.mayor(), size_t(1) << 20);
            });
        }
    for (const auto &l : lectores()) {
        SCOPED_TRACE(l.nombre);
        leido(EN_TXT, "4000000000\n1\n2\n3\n", [&](vornsave *d) {
            const medida m;
            l.lee(d);
            EXPECT_FALSE(toma_informes().empty());
            EXPECT_LT(m.mayor(), size_t(1) << 20);
        });
    }
    // Run-coded: few bytes may stand for many values, up to a bound.
    for (const uint32_t cuenta : {1900000u, 2000000u, 4000000000u})
        leido(EN_BIN, le(cuenta) + "\1" + le(cuenta) + le(2.), [&](vornsave *d) {
            const medida m;
            arrDouble *a = vornsave_lee_arr_double_con_valores_iguales(d);
            EXPECT_EQ(arr_NumElemsDouble(a), cuenta < 1960000 ? cuenta : 0);
            EXPECT_EQ(toma_informes().empty(), cuenta < 1960000);
            EXPECT_LT(m.mayor(), size_t(16) << 20);
            arr_DestruyeDouble(&a);
        });
    // A long text in a group of many.
    const std::string largo(60000, 'x');
    leido(EN_BIN, le(1000000u) + "\1" + le(1000000u) + bytes("\x60\xea") + largo, [](vornsave *d) {
        uint64_t antes = 0, despues = 0;
        vornspy_bloques_vivos(&antes);
        arrCADENA *a = ESPERA_INFORME("arr_NumElemsCADENA(array) == num_elems_a_leer",
                                      vornsave_lee_arr_cadenas_con_valores_iguales(d));
        vornspy_bloques_vivos(&despues);
        EXPECT_LT(despues - antes, uint64_t(16) << 20);
        arr_DestruyeCADENA(&a);
    });
}

PRUEBA(vornsave_colecciones, un_fichero_cortado_en_cada_byte) {
    const auto graba = [](vornsave *d) {
        vornsave_graba_inicio_bloque("BLOQUE", d);
        vornsave_graba_inicio_seccion("SECCION", d);
        for (const auto &c : simples()) c.graba(d);
        arrCADENA *textos_lisos = crea_textos({"a", "a", "bb"});
        vornsave_graba_arr_cadenas(textos_lisos, d);
        vornsave_graba_arr_cadenas_segun_tipo(textos_lisos, d);
        vornsave_graba_arr_cadenas_con_valores_iguales(textos_lisos, d);
        arr_DestruyeCADENA(&textos_lisos);
        arrDouble *a = crea_doubles({1, 1, 2});
        vornsave_graba_arr_double_con_valores_iguales(a, 0, d);
        arr_DestruyeDouble(&a);
        acadorde *orden = acadorde_crea(CIERTO);
        acadorde_inserta(orden, "z");
        vornsave_graba_acadorde(orden, d);
        acadorde_destruye(&orden);
        for (int i = 0; i < 2; ++i) vornsave_graba_ulong(2, d), vornsave_graba_long(i, d), vornsave_graba_long(5 - i, d);
        fichmem *m = fichmem_crea_desde_cadena("memoria");
        vornsave_graba_fichmem(m, d);
        fichmem_destruye(&m);
        vornsave_graba_cadena_unicode_opcional(VNU("fin"), d);
        vornsave_graba_fin_seccion("SECCION", d);
        vornsave_graba_fin_bloque("BLOQUE", d);
    };
    const auto lee = [](vornsave *d) {
        if (vornsave_se_inicia_lectura_bloque("BLOQUE", d) != CIERTO) return false;
        char *seccion = vornsave_lee_seccion(d);
        vornstr_destruye_opcional(&seccion);
        for (const auto &c : simples()) c.lee(d), c.lee(d);
        junta(vornsave_lee_arr_cadenas_ansi_unicode(d));
        junta(vornsave_lee_arr_cadenas_segun_tipo(d));
        junta(vornsave_lee_arr_cadenas_con_valores_iguales(d));
        junta(vornsave_lee_arr_double_con_valores_iguales(d));
        if (acadorde *orden = vornsave_lee_acadorde(d)) acadorde_destruye(&orden);
        static const int32_t sentido = 1;
        vornsave_salta_arr_punteros_ST(d, viga::salta);
        junta(vornsave_lee_apunorde(d, viga, viga::lee, const int32_t, viga::compara, &sentido, viga::destruye));
        if (fichmem *m = vornsave_lee_fichmem(d)) fichmem_destruye(&m);
        vornsave_salta_cadena_unicode_opcional(d);
        vornsave_lee_final_seccion("SECCION", d);
        vornsave_lee_final_bloque("BLOQUE", d);
        return true;
    };
    const std::string datos = grabado(EN_BIN, graba);
    leido(EN_BIN, datos, [&](vornsave *d) { EXPECT_TRUE(lee(d)); });
    for (size_t n = 0; n < datos.size(); ++n) {
        graba_fichero(abierto::ruta(), std::string_view(datos).substr(0, n));
        // Trapped, the first report ends it; reported to the host, it is read on to its end.
        EXPECT_FALSE(atrapado([&] { lee(abierto(EN_BIN, "r")) || (error_interno("no empieza", "prueba", 0, 0), false); })) << n;
        abierto a(EN_BIN, "r");
        vornsave_set_tipo_status_lectura(a, 1, nullptr);
        const bool empieza = lee(a);
        EXPECT_EQ(toma_informes().empty(), !empieza) << n;
    }
    // Each byte changed: whatever it gives, it ends, and all is freed.
    for (size_t n = 0; n < datos.size(); ++n)
        for (const char mascara : {'\x01', '\x80', '\xff'}) {
            std::string tocado = datos;
            tocado[n] = static_cast<char>(tocado[n] ^ mascara);
            graba_fichero(abierto::ruta(), tocado);
            atrapado([&] {
                const abierto a(EN_BIN, "r");
                vornsave_set_tipo_status_lectura(a, 1, nullptr);
                lee(a);
            });
            abierto a(EN_BIN, "r");
            vornsave_set_tipo_status_lectura(a, 1, nullptr);
            lee(a);
            toma_informes();
        }
}
