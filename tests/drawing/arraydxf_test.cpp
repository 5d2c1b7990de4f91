// Tables of layers and their stack, against a plain model; the limits; what a device is told.
#include "colour/idcolor.h"
#include "drawing/arraydxf.h"
#include "drawing/arraydxf_priv.h"
#include "drawing/gestcapa.h"
#include "propiedades.h"
#include <cstdlib>
#include <map>
#include <tuple>

using namespace vn;

namespace {

using tabla_de_capas = dueno<arraydxf_destruye>;

idcolor aci(int i) { return {0, static_cast<uint8_t>(i), 0xFFFFFFFF}; }
constexpr idcolor NO_CAMBIAR{2, VPLAN_NOCAMBIAR, 0xFFFFFFFF}, POR_CAPA{2, VPLAN_PORCAPA, 0xFFFFFFFF};

uint8_t define(arraydxf *a, int capa, const char *nombre, uint32_t pluma = 0, double grosor = 0.,
               const idcolor &color = NO_CAMBIAR, int tipo = 255, const char *definida = nullptr, int extra = 255) {
    return arraydxf_define_capas_u(a, static_cast<uint8_t>(capa), ancho(nombre).c_str(), pluma, grosor, &color,
                                   static_cast<uint8_t>(tipo), definida ? ancho(definida).c_str() : nullptr,
                                   static_cast<uint8_t>(extra));
}

// ---- The model: attributes as plain values, -1 a named line type that is not there

struct atributos {
    int pluma = 1, grosor = 0, color = 7, tipo = 0, definida = -1, extra = 0;
    auto operator<=>(const atributos &) const = default;
};
struct modelo {
    std::map<int, std::pair<std::string, atributos>> capas;
    atributos actuales;
    int actual = 255, mas_alta = 0;
    std::vector<std::pair<atributos, int>> pila;

    void repone() {
        if (pila.empty()) return;
        std::tie(actuales, actual) = pila.back();
        pila.pop_back();
    }
    int define(int numero, const std::string &nombre, atributos como) {
        if (capas.contains(numero)) return numero;
        if (como.pluma == 0) como.pluma = actuales.pluma;
        if (como.grosor == 0) como.grosor = actuales.grosor;
        if (como.color == -1) como.color = actuales.color;
        if (como.tipo == 255) como.tipo = actuales.tipo;
        if (como.extra == 255) como.extra = actuales.extra;
        if (numero == 255) {
            for (const auto &[n, c] : capas)
                if (c == std::pair(nombre, como)) return n;
            if (mas_alta >= 253) return 0;
            numero = mas_alta + 1;
        }
        mas_alta = std::max(mas_alta, numero);
        capas[numero] = {nombre, como};
        return actual = numero;
    }
};

constexpr const char *SIN_DEFINIR = "arr_GetBOOL(array->capas_definidas, num_capa) == CIERTO";
const char *const DEFINIDAS[] = {"EJE", "Eje"};

// What the library says that is current; a colour is its index.
std::tuple<atributos, int, std::string> actuales(const arraydxf *a) {
    uint8_t capa, tipo, extra;
    uint32_t pluma;
    double grosor;
    const idcolor *color;
    const vnwchar *definida;
    arraydxf_obtener_atributos_actuales_u(a, &capa, &pluma, &grosor, &color, &tipo, &definida, &extra);
    const int cual = definida == nullptr ? -1 : utf8_de(definida) != DEFINIDAS[0];
    return {{int(pluma), int(std::lround(grosor * 100.)), color->color_paleta, tipo, cual, extra},
            capa,
            utf8_de(arraydxf_obtener_nombre_capa_actual_u(a))};
}

} // namespace

PRUEBA(arraydxf, programas_al_azar_contra_un_modelo) {
    for (uint64_t semilla = 1; semilla <= 30; ++semilla) {
        azar al(semilla);
        dueno<gestcapa_destruye> g(gestcapa_crea());
        std::vector<modelo> pila(1);
        const int nombres = semilla % 3 == 0 ? 400 : 4; // many fill the table up
        for (int paso = 0; paso < 600; ++paso) {
            arraydxf *const a = g->actual.get();
            modelo &m = pila.back();
            SCOPED_TRACE(testing::Message() << semilla << ", " << paso);
            const auto uno_de = [&](int n) { return static_cast<int>(al.entero(static_cast<uint32_t>(n))); };
            const char *const otra = uno_de(2) == 0 ? nullptr : DEFINIDAS[uno_de(2)];
            const int definida = otra == nullptr ? -1 : otra == DEFINIDAS[1];
            switch (uno_de(11)) {
            case 0:
            case 1:
            case 2:
            case 3: {
                const std::string nombre = "capa" + std::to_string(uno_de(nombres));
                const int numero = uno_de(3) == 0 ? uno_de(255) : 255, color = uno_de(3) - 1;
                const atributos como{uno_de(3), uno_de(2) * 25, color, uno_de(2) * 255, definida, uno_de(2) * 255};
                const idcolor c = color == -1 ? NO_CAMBIAR : aci(color);
                uint8_t hallada = 99;
                const vnbool hay = arraydxf_existe_la_capa_con_mismos_atributos_u(
                    a, ancho(nombre).c_str(), uint32_t(como.pluma), como.grosor / 100., &c, uint8_t(como.tipo),
                    otra ? ancho(otra).c_str() : nullptr, uint8_t(como.extra), &hallada);
                const bool es_nueva = !m.capas.contains(numero);
                const size_t antes = m.capas.size();
                const int esperada = m.define(numero, nombre, como);
                ASSERT_EQ(define(a, numero, nombre.c_str(), uint32_t(como.pluma), como.grosor / 100., c, como.tipo,
                                 otra, como.extra),
                          esperada);
                if (numero == 255 && es_nueva && esperada != 0) {
                    ASSERT_EQ(hay, m.capas.size() == antes);
                }
                if (hay == CIERTO) {
                    ASSERT_TRUE(m.capas.contains(hallada) && m.capas[hallada].first == nombre);
                }
                break;
            }
            case 4: {
                const int numero = uno_de(m.mas_alta + 1);
                vnbool pluma, color, tipo;
                const bool hay = m.capas.contains(numero);
                con_informe(hay ? nullptr : SIN_DEFINIR,
                            [&] { arraydxf_cambiar_capa_u(a, uint8_t(numero), &pluma, &color, &tipo); });
                const atributos de = m.actuales;
                if (hay) {
                    const atributos &por = m.capas[numero].second;
                    m.actual = numero;
                    m.actuales = {por.pluma, por.grosor, por.color, por.tipo, por.definida, de.extra};
                }
                ASSERT_EQ(pluma, std::pair(de.pluma, de.grosor) != std::pair(m.actuales.pluma, m.actuales.grosor));
                ASSERT_EQ(color, de.color != m.actuales.color);
                ASSERT_EQ(tipo, std::pair(de.tipo, de.definida) != std::pair(m.actuales.tipo, m.actuales.definida));
                break;
            }
            case 5: {
                const bool por_capa = uno_de(2) == 0 && m.capas.contains(m.actual);
                const int de = m.actuales.color;
                m.actuales.color = por_capa ? m.capas[m.actual].second.color : uno_de(4);
                const idcolor c = por_capa ? POR_CAPA : aci(m.actuales.color);
                ASSERT_EQ(arraydxf_cambiar_idcolor(a, &c), de != m.actuales.color);
                break;
            }
            case 6: {
                const auto de = std::pair(m.actuales.pluma, m.actuales.grosor);
                const auto por = std::pair(1 + uno_de(3), uno_de(2) * 25);
                std::tie(m.actuales.pluma, m.actuales.grosor) = por;
                ASSERT_EQ(arraydxf_cambiar_pluma(a, uint32_t(por.first), por.second / 100.), de != por);
                break;
            }
            case 7: {
                const auto de = std::pair(m.actuales.tipo, m.actuales.definida);
                const auto por = std::pair(uno_de(3), definida);
                std::tie(m.actuales.tipo, m.actuales.definida) = por;
                ASSERT_EQ(arraydxf_cambiar_tipo_linea_u(a, uint8_t(por.first), otra ? ancho(otra).c_str() : nullptr),
                          de != por);
                break;
            }
            case 8:
                arraydxf_guardar_atributos_actuales(a);
                m.pila.emplace_back(m.actuales, m.actual);
                break;
            case 9:
                con_informe(m.pila.empty() ? "num_apilados > 0" : nullptr, [&] { arraydxf_reponer_atributos_u(a); });
                m.repone();
                break;
            default:
                if (uno_de(2) == 0) {
                    gestcapa_guardar_capas(g.get());
                    modelo del_grupo;
                    del_grupo.actuales = m.actuales;
                    del_grupo.actual = m.actual;
                    pila.push_back(del_grupo);
                    break;
                }
                for (; !m.pila.empty(); m.repone()) arraydxf_reponer_atributos_u(a);
                con_informe(pila.size() == 1 ? "num_apilados > 0" : nullptr,
                            [&] { gestcapa_fin_grupos_capas(g.get()); });
                if (pila.size() > 1) pila.pop_back();
            }
            const modelo &ahora = pila.back();
            const auto nombre = ahora.capas.contains(ahora.actual) ? ahora.capas.at(ahora.actual).first : "NO_NAME";
            ASSERT_EQ(actuales(g->actual.get()), std::tuple(ahora.actuales, ahora.actual, nombre));
        }
        for (; pila.size() > 1; pila.pop_back()) {
            for (; !pila.back().pila.empty(); pila.back().pila.pop_back())
                arraydxf_reponer_atributos_u(g->actual.get());
            gestcapa_fin_grupos_capas(g.get());
        }
        for (; !pila[0].pila.empty(); pila[0].pila.pop_back()) arraydxf_reponer_atributos_u(g->actual.get());
    }
}

// With numbers given out by the table.
PRUEBA(arraydxf, la_tabla_se_llena) {
    const tabla_de_capas a(arraydxf_crea());
    for (int i = 1; i <= 253; ++i) ASSERT_EQ(define(a.get(), 255, std::to_string(i).c_str()), i);
    EXPECT_EQ(define(a.get(), 255, "otra"), 0); // and nothing is defined
    EXPECT_EQ(a->capa(0), nullptr);
    EXPECT_EQ(define(a.get(), 255, "253"), 253); // what is there is found all the same
    EXPECT_EQ(define(a.get(), 254, "otra"), 254);
    EXPECT_EQ(define(a.get(), 255, "otra"), 254);
    EXPECT_EQ(define(a.get(), 0, "cero"), 0);
    EXPECT_EQ(utf8_de(arraydxf_obtener_nombre_capa_actual_u(a.get())), "cero");
    // What differs in any attribute is another layer; a thickness, by more than a tolerance.
    const tabla_de_capas b(arraydxf_crea());
    const idcolor rojo = aci(1);
    ASSERT_EQ(define(b.get(), 255, "x", 2, 0.25, rojo, 3, "EJE", 4), 1);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25 + 5e-7, rojo, 3, "EJE", 4), 1);
    EXPECT_EQ(define(b.get(), 255, "X", 2, 0.25, rojo, 3, "EJE", 4), 2);
    EXPECT_EQ(define(b.get(), 255, "x", 1, 0.25, rojo, 3, "EJE", 4), 3);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25 + 2e-6, rojo, 3, "EJE", 4), 4);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25, POR_CAPA, 3, "EJE", 4), 5);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25, rojo, 2, "EJE", 4), 6);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25, rojo, 3, nullptr, 4), 7);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25, rojo, 3, "EJE", 5), 8);
}

// The tolerance is for numbers that are too high, and takes layer 0.
PRUEBA(arraydxf, un_numero_de_capa_que_no_hay) {
    const al_final vuelve([] { arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(FALSO); });
    const tabla_de_capas a(arraydxf_crea());
    define(a.get(), 5, "cinco", 3);
    const auto cambia = [&](int numero) {
        vnbool pluma = 7, color = 7, tipo = 7;
        arraydxf_cambiar_capa_u(a.get(), static_cast<uint8_t>(numero), &pluma, &color, &tipo);
        EXPECT_TRUE(pluma <= 1 && color == FALSO && tipo == FALSO);
        return std::pair(pluma, utf8_de(arraydxf_obtener_nombre_capa_actual_u(a.get())));
    };
    EXPECT_EQ(cambia(5), std::pair(CIERTO, std::string("cinco")));
    ESPERA_INFORME("num_capa <= array->capa_mas_alta", cambia(6));
    ESPERA_INFORME("num_capa != VPLAN_NOCAMBIAR", cambia(255));
    arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(CIERTO);
    ESPERA_INFORME(SIN_DEFINIR, cambia(6));
    ESPERA_INFORME(SIN_DEFINIR, cambia(4));
    define(a.get(), 0, "cero");
    EXPECT_EQ(cambia(5).second, "cinco");
    EXPECT_EQ(cambia(6).second, "cero");
    ESPERA_INFORME("num_capa != VPLAN_NOCAMBIAR", cambia(255));
}

PRUEBA(arraydxf, lo_que_hace_un_dispositivo_al_reponer) {
    const tabla_de_capas a(arraydxf_crea());
    vnbool pluma, color, tipo;
    define(a.get(), 1, "uno", 2, 0.5, aci(1), 3, "EJE");
    define(a.get(), 2, "dos", 4, 0., aci(2));
    arraydxf_cambiar_capa_u(a.get(), 1, &pluma, &color, &tipo);
    EXPECT_EQ(arraydxf_color_actual_distinto_a_color_capa(a.get()), FALSO);
    arraydxf_guardar_atributos_actuales(a.get());
    const idcolor azul{1, 255, 0xFFFF0000};
    arraydxf_cambiar_idcolor(a.get(), &azul);
    EXPECT_EQ(arraydxf_color_actual_distinto_a_color_capa(a.get()), CIERTO);
    EXPECT_EQ(arraydxf_dame_color_capa_activa(a.get())->color_paleta, 1);
    arraydxf_cambiar_tipo_linea_u(a.get(), 3, nullptr);
    arraydxf_guardar_atributos_actuales(a.get());
    arraydxf_cambiar_capa_u(a.get(), 2, &pluma, &color, &tipo);
    const auto repone = [&](arraydxf *de) {
        uint8_t capa, cual;
        uint32_t codigo;
        double grosor;
        const idcolor *c;
        const vnwchar *definida;
        arraydxf_reponer_atributosFPL(de, &capa, &pluma, &codigo, &grosor, &color, &c, &tipo, &cual, &definida);
        char t[80];
        std::snprintf(t, sizeof t, "%d: %d %u %.2f, %d %08X, %d %d ", capa, pluma, codigo, grosor, color,
                      c ? c->rgba : 0, tipo, cual);
        return t + (definida ? utf8_de(definida) : "");
    };
    EXPECT_EQ(repone(a.get()), "1: 0 2 0.50, 1 FFFF0000, 1 3 ");
    EXPECT_EQ(repone(a.get()), "1: 0 2 0.50, 0 FFFFFFFF, 0 3 EJE");
    EXPECT_EQ(ESPERA_INFORME("num_apilados > 0", repone(a.get())), "0: 0 0 0.00, 0 00000000, 0 0 ");
    // Saved before there was a layer: all of it has to be set.
    const tabla_de_capas sin_capa(arraydxf_crea());
    EXPECT_EQ(ESPERA_INFORME("(capa_activa) != NULL", arraydxf_dame_color_capa_activa(sin_capa.get())), nullptr);
    EXPECT_EQ(ESPERA_INFORME("(capa_activa) != NULL", arraydxf_cambiar_idcolor(sin_capa.get(), &POR_CAPA)), FALSO);
    ESPERA_INFORME("idcolor_es_vplan_nocambiar(color) == FALSO", arraydxf_cambiar_idcolor(sin_capa.get(), &NO_CAMBIAR));
    arraydxf_guardar_atributos_actuales(sin_capa.get());
    const tabla_de_capas copia(arraydxf_crea_con_atributos(sin_capa.get()));
    EXPECT_EQ(actuales(copia.get()), actuales(sin_capa.get()));
    EXPECT_TRUE(copia->pila_de_atributos_actuales.empty());
    EXPECT_EQ(ESPERA_INFORME("(capa_guardada) != NULL", repone(sin_capa.get())), "255: 1 1 0.00, 1 FFFFFFFF, 1 0 ");
}

// What is left open at the end is reported, and freed.
PRUEBA(arraydxf, pilas_que_no_se_vaciaron) {
    arraydxf *a = arraydxf_crea();
    arraydxf_guardar_atributos_actuales(a);
    arraydxf_destruye(&a);
    EXPECT_EQ(a, nullptr);
    gestcapa *g = gestcapa_crea();
    gestcapa_guardar_capas(g);
    gestcapa_destruye(&g);
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 2u);
    EXPECT_EQ(informes[0].expresion, "arr_NumElemsPunteroST((*array)->pila_de_atributos_actuales, CapaDXF_t) == 0");
    EXPECT_EQ(informes[1].expresion, "arr_NumElemsPunteroST((*gestionCapas)->pilaDeCapas, ArrayDxf_t) == 0");
    for (const auto &i : informes) EXPECT_EQ(i.clase, 1);
}
