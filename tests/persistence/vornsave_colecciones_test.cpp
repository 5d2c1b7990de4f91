#include "persistence/catalogo_protocolo.h"
#include "persistence/prueba_vornsave.h"
#include <algorithm>
#include <cstring>

using namespace vn;
using catalogo::azar;
using catalogo::fila;
using catalogo::filas;
using catalogo::hasta;

namespace {

using textos = catalogo::cadenas;
using numeros = catalogo::array_Double;
textos crea_textos(const std::vector<const char *> &v) {
    textos a(arr_CreaCADENA(0));
    for (const char *s : v) arr_AppendCADENA(a.get(), s);
    return a;
}
// The elements of an array, which is destroyed, each with its mark.
std::string junta(arrCADENA *a) { return catalogo::de(textos(a)); }
std::string junta(arrDouble *de) {
    const numeros a(de);
    std::string t;
    for (uint32_t i = 0; i < arr_NumElemsDouble(de); ++i) t += std::to_string(std::lround(arr_GetDouble(de, i))) + " ";
    return t;
}
std::string flotantes(const std::vector<double> &v, double tolerancia = 1e-9) {
    return grabado(EN_BIN, [&](vornsave *d) {
        const numeros a(arr_CreaDouble(static_cast<uint32_t>(v.size())));
        std::copy(v.begin(), v.end(), arr_GetBufferDouble(a.get()));
        vornsave_graba_arr_double_con_valores_iguales(a.get(), tolerancia, d);
    });
}
std::string le(uint32_t n) { return {reinterpret_cast<const char *>(&n), 4}; }
std::string le(double x) { return {reinterpret_cast<const char *>(&x), 8}; }

// ---- Random programs: values of every kind, and frames with more of them inside.

struct paso {
    const fila *valor = nullptr;
    const marco *de = nullptr;
    std::string espera, id;
    std::vector<paso> dentro;
};

std::vector<paso> graba_programa(const destino_de_prueba &destino, azar &a, vornsave *d, int profundidad) {
    std::vector<paso> pasos(hasta(a, 12));
    for (paso &p : pasos) {
        if (!destino.texto && profundidad < 4 && hasta(a, 5) == 0) {
            p.de = destino.etiquetas || hasta(a, 3) == 0 ? &SECCION
                   : hasta(a, 2) == 0                    ? &BLOQUE
                                                         : &BLOQUE64; // tags hide the marks of blocks
            p.id = "m" + std::to_string(hasta(a, 99));
            p.de->graba(p.id.c_str(), d, [&] { p.dentro = graba_programa(destino, a, d, profundidad + 1); });
            continue;
        }
        do p.valor = &filas()[hasta(a, static_cast<uint32_t>(filas().size()))];
        while (destino.texto && p.valor->es(catalogo::SOLO_BIN));
        p.espera = p.valor->graba(a, d);
    }
    return pasos;
}

void lee_programa(const std::vector<paso> &pasos, azar &a, vornsave *d) {
    for (const paso &p : pasos) {
        const bool salta = hasta(a, 4) == 0;
        if (p.valor != nullptr) {
            SCOPED_TRACE(p.valor->nombre);
            if (salta && p.valor->salta) p.valor->salta(d);
            else EXPECT_EQ(p.valor->lee(d), p.espera);
        } else if (salta) {
            EXPECT_EQ(p.de->se_salta(p.id.c_str(), d), CIERTO);
        } else {
            EXPECT_EQ(p.de->se_abre(p.id.c_str(), d), CIERTO);
            lee_programa(p.dentro, a, d);
            p.de->lee_final(p.id.c_str(), d);
        }
        if (::testing::Test::HasFailure()) return;
    }
}

} // namespace

PRUEBA(vornsave_colecciones, cualquier_registro_vuelve_igual_de_cada_destino) {
    for (const auto &destino : DESTINOS)
        for (uint32_t semilla = 0; semilla < 60 && !HasFailure(); ++semilla) {
            SCOPED_TRACE(std::string(destino.nombre) + ", " + std::to_string(semilla));
            azar a(semilla);
            std::vector<paso> pasos;
            {
                const abierto d(destino, "w");
                pasos = graba_programa(destino, a, d, 0);
                vornsave_graba_long(77, d);
                EXPECT_EQ(lc_ha_fallado(d.fichero()), FALSO);
            }
            for (int vez = 0; vez < 2; ++vez) { // with other skips
                const abierto d(destino, "r");
                lee_programa(pasos, a, d);
                EXPECT_EQ(vornsave_lee_long(d), 77);
            }
        }
}

// Cut anywhere: trapped or not, the first report ends the reading of what was cut.
PRUEBA(vornsave_colecciones, cortadas_en_cada_byte) {
    for (const fila &f : filas())
        for (const auto &destino : {EN_BIN, EN_BIN_SIN}) {
            SCOPED_TRACE(f.nombre);
            azar a(1);
            const std::string datos = grabado(EN_BIN, [&](vornsave *d) { f.graba(a, d); });
            for (size_t n = 0; n < std::min<size_t>(datos.size(), 100); ++n) {
                graba_fichero(abierto::ruta(), std::string_view(datos).substr(0, n));
                EXPECT_FALSE(atrapado([&] { f.lee(abierto(destino, "r")); })) << n;
                f.lee(abierto(destino, "r"));
                EXPECT_FALSE(toma_informes().empty()) << n;
            }
        }
}

PRUEBA(vornsave_colecciones, bytes_y_lineas) {
    const dueno<arr_DestruyeBOOL> logicos(arr_CreaBOOL(3));
    arr_SetBOOL(logicos.get(), 1, CIERTO);
    EXPECT_EQ(hex(grabado(EN_BIN, [&](vornsave *d) { vornsave_graba_arr_bool(logicos.get(), d); })),
              "03000000000001000000");
    leido(EN_BIN, bytes("\1\0\0\0\5\0"), [](vornsave *d) {
        const dueno<arr_DestruyeBOOL> a(ESPERA_INFORME("elem == 1 || elem == 0", vornsave_lee_arr_bool(d)));
        EXPECT_EQ(arr_GetBOOL(a.get(), 0), 5);
    });
    // One line a point.
    std::string lineas = grabado(EN_TXT_CON, [](vornsave *d) {
        const dueno<arr_DestruyePunto2D> a(arr_CreaPunto2D(0));
        arr_AppendPunto2D(a.get(), 1, 2);
        arr_AppendPunto2D(a.get(), 3, 4);
        vornsave_graba_arr_puntos2D(a.get(), d);
    });
    std::erase(lineas, '\r');
    EXPECT_EQ(lineas, "2\n1 2\n3 4\n");
    // A null text where it has no form is reported, and what follows stays in step.
    const textos con_nulo = crea_textos({"uno", nullptr, ""});
    const std::string datos = grabado(
        EN_BIN, [&](vornsave *d) { ESPERA_INFORME("(texto) != NULL", vornsave_graba_arr_cadenas(con_nulo.get(), d)); });
    leido(EN_BIN, datos, HACE(EXPECT_EQ(junta(vornsave_lee_arr_cadenas(d)), "uno|||")));
    leido(EN_TXT, "0\n", HACE(EXPECT_EQ(ESPERA_INFORME("", vornsave_lee_arr_cadenas_unicode(d)), nullptr)));
}

PRUEBA(vornsave_colecciones, grupos_de_valores_iguales) {
    EXPECT_EQ(flotantes({1, 1, 1, 2, 3, 3}),
              le(6u) + "\1" + le(3u) + le(1.) + bytes("\0") + le(1u) + le(2.) + "\1" + le(2u) + le(3.));
    EXPECT_EQ(flotantes({1, 2, 3}), le(3u) + bytes("\0") + le(3u) + le(1.) + le(2.) + le(3.));
    EXPECT_EQ(flotantes({1, 1}), le(2u) + "\1" + le(2u) + le(1.));
    EXPECT_EQ(flotantes({}), le(0u));
    // A run does not drift further than the tolerance from its first value.
    EXPECT_EQ(flotantes({1, 1.4, 1.8}, 0.5), le(3u) + "\1" + le(2u) + le(1.) + bytes("\0") + le(1u) + le(1.8));
    // Groups without values, or with more than are missing, end the reading.
    const std::string principio = le(4u) + "\1" + le(2u) + le(7.);
    for (const std::string &grupo :
         {"\1" + le(0u) + le(1.), bytes("\0") + le(0u), "\1" + le(3u) + le(1.), "\1" + le(~0u) + le(1.)})
        leido(EN_BIN, principio + grupo,
              HACE(EXPECT_EQ(junta(ESPERA_INFORME("arr_NumElemsDouble(array) == num_elems_a_leer",
                                                  vornsave_lee_arr_double_con_valores_iguales(d))),
                             "7 7 ")));
    leido(EN_BIN, le(3u) + "\1" + le(2u) + bytes("\1\0x\1") + le(9u) + bytes("\1\0x"),
          HACE(EXPECT_EQ(junta(ESPERA_INFORME("arr_NumElemsCADENA(array) == num_elems_a_leer",
                                              vornsave_lee_arr_cadenas_con_valores_iguales(d))),
                         "x|x|")));
}

PRUEBA(vornsave_colecciones, una_cuenta_falsa_no_reserva_memoria) {
    const std::string cola = bytes("\1\0\0\0\1\0\0\0\0\0\0\0\0\0\0\0");
    for (const fila &f : filas()) {
        // Groups of equal values have a bound of their own.
        if (!f.es(catalogo::CON_CUENTA) || std::strstr(f.nombre, "iguales") != nullptr) continue;
        const auto falsa = [&](const destino_de_prueba &destino, const std::string &contenido) {
            SCOPED_TRACE(std::string(f.nombre) + " " + hex(contenido.substr(0, 4)));
            leido(destino, contenido, [&](vornsave *d) {
                const mayor_bloque m;
                f.lee(d);
                EXPECT_FALSE(toma_informes().empty());
                EXPECT_LT(m(), size_t(destino.sin_tamanyo ? 2 : 1) << 20); // a first step of 65536 elements
            });
        };
        for (const uint32_t cuenta : {17u, 0x7fffffffu, 0x80000000u, 0xffffffffu})
            for (const auto &destino : {EN_BIN, EN_BIN_SIN}) falsa(destino, le(cuenta) + cola);
        if (!f.es(catalogo::SOLO_BIN)) falsa(EN_TXT, "4000000000\n1\n2\n3\n");
    }
}

// What a line of text cannot hold goes otherwise; what an array's line cannot, stops the save, and not the reading.
PRUEBA(vornsave_colecciones, los_textos_como_lineas) {
    const char raro[] = "a\r\nb\n\020000A\x10";
    const std::string datos = grabado(EN_TXT, [&](vornsave *d) {
        vornsave_graba_cadena(raro, d);
        vornsave_graba_arr_cadenas(crea_textos({raro, ""}).get(), d);
    });
    EXPECT_EQ(std::count(datos.begin(), datos.end(), '\n'), 4);
    leido(EN_TXT, datos, [&](vornsave *d) {
        EXPECT_EQ(toma(vornsave_lee_cadena(d)), raro);
        EXPECT_EQ(junta(vornsave_lee_arr_cadenas(d)), std::string(raro) + "||");
    });
    // As it was written before there was the escape.
    leido(EN_TXT, "viejo \x10 y \02000ZZ\n", HACE(EXPECT_EQ(toma(vornsave_lee_cadena(d)), "viejo \x10 y \02000ZZ")));
    const std::string cabe(255, 'x'), largo(300, 'y');
    const abierto a(EN_TXT, "w+");
    ESPERA_INFORME("longitud < TAMANYO_LINEA",
                   vornsave_graba_arr_cadenas(crea_textos({cabe.c_str(), largo.c_str(), "fin"}).get(), a));
    EXPECT_EQ(lc_ha_fallado(a.fichero()), CIERTO);
    vornio_fseek_i64(a.fichero(), 0, VN_DESDE_EL_PRINCIPIO);
    EXPECT_EQ(junta(ESPERA_INFORME("lc_error_leyendo_fichero", vornsave_lee_arr_cadenas(a))),
              cabe + "|" + largo.substr(0, 255) + "|fin|");
}

// A block of the promised size, or none.
PRUEBA(vornsave_colecciones, un_buffer_es_tan_grande_como_se_pidio) {
    for (const auto &destino : {EN_BIN, EN_BIN_SIN})
        for (const uint32_t n : {9u, 100000u, 4294967295u})
            leido(destino, "12345678", [&](vornsave *d) {
                const mayor_bloque m;
                const propio<uint8_t> b(vornsave_lee_buffer(n, d));
                EXPECT_FALSE(toma_informes().empty());
                EXPECT_LT(m(), size_t(1) << 20);
                EXPECT_TRUE(b == nullptr || b.get()[n] == 0);
            });
}

// Few bytes may stand for many values: what the writer makes of an array is always read, beside the bound as well; what
// it does not make is refused before memory is taken, and what follows is in step.
PRUEBA(vornsave_colecciones, los_grupos_tienen_un_limite_que_quien_graba_conoce) {
    const auto vuelven = [](const std::string &texto, uint32_t n, bool en_un_grupo) {
        const std::string datos = grabado(EN_BIN, [&](vornsave *d) {
            const textos a(arr_CreaCADENA(n));
            for (uint32_t i = 0; i < n; ++i) arr_SetCADENA(a.get(), i, texto.c_str());
            vornsave_graba_arr_cadenas_con_valores_iguales(a.get(), d);
            vornsave_graba_long(77, d);
        });
        EXPECT_EQ(datos.size() == 4 + 5 + 2 + texto.size() + 4, en_un_grupo);
        const abierto d(EN_BIN, "r");
        const textos a(vornsave_lee_arr_cadenas_con_valores_iguales(d));
        EXPECT_EQ(arr_NumElemsCADENA(a.get()), n);
        EXPECT_EQ(arr_GetCADENA(a.get(), n - 1), texto);
        EXPECT_EQ(vornsave_lee_long(d), 77);
    };
    const std::string largo(65535, 'x');
    vuelven("Hormigon HA-25", 300000, true);
    vuelven(largo, 4100, true);
    vuelven(largo, 4101, false);
    constexpr uint32_t N = 6000000;
    const numeros muchos(arr_CreaDouble(N));
    for (const uint32_t i : {0u, 1u, 7u, N / 2, N - 1}) arr_SetDouble(muchos.get(), i, i + 1.);
    const std::string datos =
        grabado(EN_BIN, [&](vornsave *d) { vornsave_graba_arr_double_con_valores_iguales(muchos.get(), 0, d); });
    EXPECT_LT(datos.size(), 200u);
    leido(EN_BIN, datos, [&](vornsave *d) {
        const numeros a(vornsave_lee_arr_double_con_valores_iguales(d));
        EXPECT_EQ(arr_SonIgualesDouble(a.get(), muchos.get()), CIERTO);
    });
    const auto se_niega = [](const std::string &grupos, const char *faltan, auto lee) {
        leido(EN_BIN, grupos + le(7u), [&](vornsave *d) {
            const mayor_bloque m;
            EXPECT_EQ(junta(lee(d)), "");
            espera_informes({"lc_error_leyendo_fichero", faltan}, __FILE__, __LINE__);
            EXPECT_LT(m(), size_t(1) << 20);
            EXPECT_EQ(vornsave_lee_long(d), 7);
        });
    };
    for (const uint32_t cuenta : {33554446u, 4000000000u})
        se_niega(le(cuenta) + "\1" + le(cuenta) + le(2.), "arr_NumElemsDouble(array) == num_elems_a_leer",
                 vornsave_lee_arr_double_con_valores_iguales);
    se_niega(le(4103u) + "\1" + le(4101u) + bytes("\xff\xff") + largo + bytes("\0\2\0\0\0\1\0a\1\0b"),
             "arr_NumElemsCADENA(array) == num_elems_a_leer", vornsave_lee_arr_cadenas_con_valores_iguales);
}
