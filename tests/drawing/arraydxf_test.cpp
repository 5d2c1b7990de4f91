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

    void completa(atributos &como) const {
        if (como.pluma == 0) como.pluma = actuales.pluma;
        if (como.grosor == 0) como.grosor = actuales.grosor;
        if (como.color == -1) como.color = actuales.color;
        if (como.tipo == 255) como.tipo = actuales.tipo;
        if (como.extra == 255) como.extra = actuales.extra;
    }
    // Of the lowest layer like that; -1 if there is none.
    int busca(const std::string &nombre, const atributos &como) const {
        for (const auto &[n, c] : capas)
            if (c == std::pair(nombre, como)) return n;
        return -1;
    }
    int define(int numero, const std::string &nombre, const atributos &como) {
        if (capas.contains(numero)) return numero;
        if (numero == 255) {
            if (const int n = busca(nombre, como); n != -1) return n;
            if (mas_alta >= 253) return 0;
            numero = mas_alta + 1;
        }
        mas_alta = std::max(mas_alta, numero);
        capas[numero] = {nombre, como};
        return actual = numero;
    }
};

constexpr const char *SIN_DEFINIR = "arr_GetBOOL(array->capas_definidas, num_capa) == CIERTO";
const char *const DEFINIDAS[] = {"", "EJE", "Eje"};

// What the library says that is current; a colour is its index.
std::tuple<atributos, int, std::string> actuales(const arraydxf *a) {
    uint8_t capa, tipo, extra;
    uint32_t pluma;
    double grosor;
    const idcolor *color;
    const vnwchar *definida;
    arraydxf_obtener_atributos_actuales_u(a, &capa, &pluma, &grosor, &color, &tipo, &definida, &extra);
    const int cual = definida == nullptr ? -1 : utf8_de(definida) == DEFINIDAS[2];
    return {{int(pluma), int(std::lround(grosor * 100.)), color->color_paleta, tipo, cual, extra},
            capa,
            utf8_de(arraydxf_obtener_nombre_capa_actual_u(a))};
}

// A stack of tables and its model, and what may be done to both.
struct pareja {
    azar al;
    int nombres; // many fill the table up
    dueno<gestcapa_destruye> g{gestcapa_crea()};
    std::vector<modelo> pila = std::vector<modelo>(1);

    arraydxf *a() const { return g->actual.get(); }
    modelo &m() { return pila.back(); }
    int uno_de(int n) { return static_cast<int>(al.entero(static_cast<uint32_t>(n))); }

    void define() {
        const auto nombre = "capa" + std::to_string(uno_de(nombres));
        const int numero = uno_de(3) == 0 ? uno_de(255) : 255;
        atributos como{uno_de(3), uno_de(2) * 25, uno_de(3) - 1, uno_de(2) * 255, uno_de(3) - 1, uno_de(2) * 255};
        const idcolor c = como.color == -1 ? NO_CAMBIAR : aci(como.color);
        const auto n = ancho(nombre), d = ancho(DEFINIDAS[como.definida + 1]);
        const vnwchar *const definida = como.definida < 0 ? nullptr : d.c_str();
        const auto pluma = static_cast<uint32_t>(como.pluma);
        const auto tipo = static_cast<uint8_t>(como.tipo), extra = static_cast<uint8_t>(como.extra);
        const double grosor = como.grosor / 100.;
        m().completa(como);
        uint8_t hallada = 255;
        const int esperada = m().busca(nombre, como);
        EXPECT_EQ(arraydxf_existe_la_capa_con_mismos_atributos_u(a(), n.c_str(), pluma, grosor, &c, tipo, definida,
                                                                 extra, &hallada),
                  esperada != -1);
        EXPECT_EQ(hallada, static_cast<uint8_t>(esperada));
        EXPECT_EQ(arraydxf_define_capas_u(a(), static_cast<uint8_t>(numero), n.c_str(), pluma, grosor, &c, tipo,
                                          definida, extra),
                  m().define(numero, nombre, como));
    }
    void cambia_capa() {
        const int numero = uno_de(m().mas_alta + 1);
        vnbool pluma, color, tipo;
        con_informe(m().capas.contains(numero) ? nullptr : SIN_DEFINIR,
                    [&] { arraydxf_cambiar_capa_u(a(), static_cast<uint8_t>(numero), &pluma, &color, &tipo); });
        const atributos de = m().actuales;
        atributos &es = m().actuales;
        if (m().capas.contains(numero)) {
            es = m().capas[m().actual = numero].second;
            es.extra = de.extra;
        }
        EXPECT_EQ(pluma, std::pair(de.pluma, de.grosor) != std::pair(es.pluma, es.grosor));
        EXPECT_EQ(color, de.color != es.color);
        EXPECT_EQ(tipo, std::pair(de.tipo, de.definida) != std::pair(es.tipo, es.definida));
    }
    void cambia_atributos() {
        const atributos de = m().actuales;
        atributos &es = m().actuales;
        const bool por_capa = uno_de(2) == 0 && m().capas.contains(m().actual);
        es = {1 + uno_de(3), uno_de(2) * 25, uno_de(4), uno_de(3), uno_de(3) - 1, de.extra};
        if (por_capa) es.color = m().capas[m().actual].second.color;
        const idcolor c = por_capa ? POR_CAPA : aci(es.color);
        const auto d = ancho(DEFINIDAS[es.definida + 1]);
        EXPECT_EQ(arraydxf_cambiar_idcolor(a(), &c), de.color != es.color);
        EXPECT_EQ(arraydxf_cambiar_pluma(a(), static_cast<uint32_t>(es.pluma), es.grosor / 100.),
                  std::pair(de.pluma, de.grosor) != std::pair(es.pluma, es.grosor));
        EXPECT_EQ(
            arraydxf_cambiar_tipo_linea_u(a(), static_cast<uint8_t>(es.tipo), es.definida < 0 ? nullptr : d.c_str()),
            std::pair(de.tipo, de.definida) != std::pair(es.tipo, es.definida));
    }
    void guarda() {
        arraydxf_guardar_atributos_actuales(a());
        m().pila.emplace_back(m().actuales, m().actual);
    }
    void repone() {
        con_informe(m().pila.empty() ? "num_apilados > 0" : nullptr, [&] { arraydxf_reponer_atributos_u(a()); });
        if (m().pila.empty()) return;
        std::tie(m().actuales, m().actual) = m().pila.back();
        m().pila.pop_back();
    }
    void abre_grupo() {
        gestcapa_guardar_capas(g.get());
        pila.push_back({{}, m().actuales, m().actual, 0, {}});
    }
    void cierra_grupo() {
        while (!m().pila.empty()) repone();
        con_informe(pila.size() == 1 ? "num_apilados > 0" : nullptr, [&] { gestcapa_fin_grupos_capas(g.get()); });
        if (pila.size() > 1) pila.pop_back();
    }
};

} // namespace

PRUEBA(arraydxf, programas_al_azar_contra_un_modelo) {
    constexpr void (pareja::*OPERACIONES[])() = {
        &pareja::define,           &pareja::define, &pareja::define, &pareja::define,     &pareja::cambia_capa,
        &pareja::cambia_atributos, &pareja::guarda, &pareja::repone, &pareja::abre_grupo, &pareja::cierra_grupo};
    for (uint64_t semilla = 1; semilla <= 30; ++semilla) {
        pareja p{azar(semilla), semilla % 3 == 0 ? 400 : 4};
        for (int paso = 0; paso < 600 && !HasFailure(); ++paso) {
            SCOPED_TRACE(testing::Message() << semilla << ", " << paso);
            (p.*OPERACIONES[p.uno_de(std::size(OPERACIONES))])();
            const auto capa = p.m().capas.find(p.m().actual);
            EXPECT_EQ(actuales(p.a()), std::tuple(p.m().actuales, p.m().actual,
                                                  capa != p.m().capas.end() ? capa->second.first : "NO_NAME"));
        }
        while (p.pila.size() > 1) p.cierra_grupo();
        while (!p.m().pila.empty()) p.repone();
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
    // A thickness has a tolerance; a name has none, and "that of the layer" is a colour like another.
    const tabla_de_capas b(arraydxf_crea());
    const idcolor rojo = aci(1);
    ASSERT_EQ(define(b.get(), 255, "x", 2, 0.25, rojo, 3, "EJE", 4), 1);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25 + 5e-7, rojo, 3, "EJE", 4), 1);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25 + 2e-6, rojo, 3, "EJE", 4), 2);
    EXPECT_EQ(define(b.get(), 255, "X", 2, 0.25, rojo, 3, "EJE", 4), 3);
    EXPECT_EQ(define(b.get(), 255, "x", 2, 0.25, POR_CAPA, 3, "EJE", 4), 4);
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
