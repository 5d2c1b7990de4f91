// What the report of the sample host measures, and how it says it.
#include "filas.h"
#include "informe.h"
#include "medidas.h"
#include "opciones.h"
#include "valores.h"
#include <cmath>
#include <iterator>
#include <nucleos/foundation/sistema/fichconf.h>
#include <nucleos/foundation/sistema/vnregional.h>
#include <nucleos/units/vornconf.h>
#include <numbers>
#include <sstream>

using namespace obra;

constexpr double PI = std::numbers::pi;

PRUEBA(obra_medidas, longitudes_y_areas_conocidas) {
    const double semi = std::tan(PI / 8); // bulge of a quarter of a circle
    const struct {
        polilinea p;
        double longitud, area;
    } filas[] = {
        {{true, {{0, 0}, {4, 0}, {4, 3}}, {}}, 12, 6},
        {{false, {{0, 0}, {4, 0}, {4, 3}}, {0, 0, 0}}, 7, 0},
        {{false, {{0, 0}, {4, 0}, {4, 3}, {0, 0}}, {0, 0, 0, 0}}, 12, 6}, // comes back to where it began
        {{false, {{0, 0}, {4, 0}, {4, 3}, {0, 1e-9}}, {0, 0, 0, 0}}, 12, 0},
        {{true, {{0, 0}, {2, 0}}, {1, 1}}, 2 * PI, PI},      // a circle of two arcs
        {{true, {{0, 0}, {2, 0}}, {-1, 0}}, PI + 2, PI / 2}, // half of it, clockwise
        {{true, {{0, 0}, {1, 0}, {1, 1}, {0, 1}}, {0, -semi, 0, 0}}, 3 + PI / 2 / std::sqrt(2), 1 - (PI / 8 - 0.25)},
        {{true, {{1e7, 1e7}, {1e7 + 1, 1e7}, {1e7 + 1, 1e7 + 1}}, {}}, 2 + std::sqrt(2), 0.5}, // far from the origin
        {{true, {{5, 5}}, {1}}, 0, 0},
    };
    for (const auto &f : filas) {
        capa c;
        c.polilineas = {f.p};
        EXPECT_NEAR(longitud_de(c), f.longitud, 1e-9);
        EXPECT_NEAR(area_de(f.p), f.area, 1e-9);
    }
    constexpr double VUELTA = 9.688448220547675; // of half axes 2 and 1
    for (const auto &[e, longitud] : {std::pair{elipse{{9, 9}, {0, 2}, 0.5, 0, 2 * PI}, VUELTA},
                                      {{{0, 0}, {1, 0}, 2, 3 * PI / 2, 2 * PI}, VUELTA / 4},
                                      {{{0, 0}, {2, 0}, 0, -PI / 2, PI / 2}, 4.}}) { // flat: there and back
        capa c;
        c.elipses = {e};
        EXPECT_NEAR(longitud_de(c), longitud, 1e-12);
    }
    capa c;
    c.lineas = {{{0, 0}, {3, 4}}};
    c.circulos = {{{1, 1}, 0.5}};
    c.arcos = {{{0, 0}, 2, PI / 2, 0}}; // over the end of the turn
    EXPECT_NEAR(longitud_de(c), 5 + PI + 3 * PI, 1e-12);
}

PRUEBA(obra_medidas, un_valor_en_cada_sistema_y_region) {
    for (const auto &[sistema, region, que, x, dicho] :
         vn::filas<uint32_t, std::string, std::string, double, std::string>("obra/obra.tsv", "valores")) {
        vnregional_establece(region.c_str());
        vornconf_Internacional_set_sistema_unidades(sistema);
        EXPECT_EQ(que == "area" ? area(x) : longitud(x), dicho);
    }
}

PRUEBA(obra_medidas, las_opciones_se_entienden_o_se_dice_cual_no) {
    opciones o;
    std::string falta;
    ASSERT_TRUE(lee_opciones({"--sistema", "imperial", "a.obra", "--energia", "btu", "--idioma", "8"}, o, falta))
        << falta;
    EXPECT_EQ(o.obra, "a.obra");
    EXPECT_EQ(o.sistema, VORNCONF_SU_IMPERIAL);
    EXPECT_EQ(o.energia, VORNNORM_UNIDAD_ENERGIA_BTU);
    EXPECT_EQ(o.idioma, 8);
    msidioma_establece_idioma(0);
    for (const auto &[orden, dicho] : vn::filas<std::string, std::string>("obra/obra.tsv", "opciones")) {
        std::istringstream t(orden);
        EXPECT_FALSE(lee_opciones({std::istream_iterator<std::string>(t), {}}, o, falta)) << orden;
        EXPECT_EQ(falta, dicho);
    }
}

PRUEBA(obra_medidas, las_opciones_de_un_dibujo_se_entienden_o_se_dice_cual_no) {
    opciones_dibujo o;
    std::string falta;
    ASSERT_TRUE(
        lee_opciones_dibujo({"--alto", "2.75", "a.obra", "--escala", "50", "b.svg", "--fondo", "2"}, true, o, falta))
        << falta;
    EXPECT_TRUE(o.obra == "a.obra" && o.destino == "b.svg" && o.alto == 2.75 && o.escala == 50 && o.fondo == 2);
    EXPECT_FALSE(o.ancho_px.has_value());
    msidioma_establece_idioma(0);
    for (const auto &[orden, dicho] : vn::filas<std::string, std::string>("obra/obra.tsv", "opciones de un dibujo")) {
        std::istringstream t(orden);
        EXPECT_FALSE(lee_opciones_dibujo({std::istream_iterator<std::string>(t), {}}, false, o, falta)) << orden;
        EXPECT_EQ(falta, dicho);
    }
}

// What the user has configured rules where nothing is said, and stays as it is where something is.
PRUEBA(obra_medidas, las_opciones_valen_para_esta_vez) {
    fichconf_establece_directorio_base(vn::ancho(directorio()).c_str());
    msidioma_establece_idioma(0);
    vornconf_par_lee_internacional(nullptr); // makes the directory
    const std::string fichero = directorio() + "/VORN/estructa/internac.ini",
                      dicho = "[Internacional]\nSistema de Unidades=2\n";
    vn::graba_fichero(fichero, dicho);
    vornconf_par_lee_internacional(nullptr);
    vnregional_establece("en-GB");
    obra_leida o;
    o.p.metros_por_unidad = 0.3048;
    o.p.capas.resize(1);
    o.p.capas[0].polilineas = {{true, {{0, 0}, {10, 0}, {10, 1000}, {0, 1000}}, {}}};
    for (const auto &[pedido, informe] : vn::filas<int, std::string>("obra/obra.tsv", "informes")) {
        if (pedido) aplica({.sistema = VORNCONF_SU_IMPERIAL, .energia = VORNNORM_UNIDAD_ENERGIA_KCAL});
        const std::string s = informe_de("x", o);
        EXPECT_NE(s.find(informe), s.npos) << s;
    }
    EXPECT_EQ(vn::lee_fichero(fichero), dicho);
}
