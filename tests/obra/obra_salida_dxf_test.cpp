// The DXF device of the sample host, by its own reader.
#include "dibuja.h"
#include "dxf.h"
#include "escritor_dxf.h"
#include "informe.h"
#include "muestra.h"
#include "posesion.h"
#include "propiedades.h"
#include "textos_dxf.h"
#include <algorithm>
#include <cmath>

using namespace obra;

namespace {

// What is drawn, written and read again.
plano ida_y_vuelta(const std::function<void(salida_t *)> &dibujante) {
    const std::string nombre = vn::Prueba::directorio() + "/d.dxf";
    {
        const dueno_fichero f(f_lc_fopen_u(vn::ancho(nombre).c_str(), VNU("wb"), VN_AQUI));
        const dueno_lienzo l = abre_dxf({}, f.get());
        dibujante(l->salida());
        EXPECT_TRUE(l->acaba());
    }
    plano p;
    noticias_dxf noticias;
    EXPECT_EQ(lee_dxf(vn::ancho(nombre), p, noticias), lectura_dxf::bien);
    EXPECT_TRUE(!noticias.sin_final && !noticias.unidad_ignorada);
    EXPECT_EQ(utf8(p.version_dxf), "AC1015");
    EXPECT_EQ(p.metros_por_unidad, 1);
    return p;
}

// All numbers of a layer's figures, in order, in metres; angles are of a turn.
std::vector<double> numeros_de(const capa &c, double m) {
    std::vector<double> v;
    const auto punto = [&](Punto2D p) { v.push_back(p.x * m), v.push_back(p.y * m); };
    const auto angulo = [&](double a) { v.push_back(std::cos(a)), v.push_back(std::sin(a)); };
    for (const linea &l : c.lineas) punto(l.a), punto(l.b);
    for (const circulo &k : c.circulos) punto(k.centro), v.push_back(k.radio * m);
    for (const arco &a : c.arcos) punto(a.centro), v.push_back(a.radio * m), angulo(a.desde), angulo(a.hasta);
    for (const elipse &e : c.elipses) punto(e.centro), punto(e.eje), v.push_back(e.razon), angulo(e.hasta - e.desde);
    for (const polilinea &l : c.polilineas) {
        v.push_back(l.cerrada);
        for (const Punto2D &p : l.vertices) punto(p);
    }
    return v;
}

} // namespace

// In survey coordinates, and in a unit that is not the metre.
PRUEBA(obra_salida_dxf, lo_dibujado_se_lee_igual) {
    plano p;
    p.metros_por_unidad = 0.001;
    p.tipos_de_linea = {VNU("RAYAS")};
    p.trazos_de_linea = {{50, -25, 0, -25}};
    const double x = 4.5e8, y = 5e8;
    capa c;
    c.nombre = VNU("\x041f\x041b\x0410\x041d"); // Cyrillic capitals
    c.tipo_linea = VNU("RAYAS");
    c.color = 0x1000000 + 0x112233;
    c.grosor_mm = 0.35;
    c.lineas = {{{x + 0.1, y}, {x + 3.3, y + 7.7}}, {{x, y}, {x, y + 1}}};
    c.color_lineas = {256, 0x1000000 + 0xABCDEF};
    c.circulos = {{{x, y}, 125.5}};
    c.color_circulos = {3};
    c.arcos = {{{x, y}, 1000, 1, 2.5}, {{x, y}, 1000, -1, 4}};
    c.color_arcos = {256, 256};
    c.elipses = {{{x, y}, {300, 400}, 0.5, 0, 2 * std::numbers::pi}, {{x, y}, {300, 400}, 0.25, 1, 2}};
    c.color_elipses = {256, 5};
    c.polilineas = {{true, {{x, y}, {x + 4, y}, {x + 4, y + 3}}, {0, 0, 0}}, {false, {{x, y}, {x + 1, y + 1}}, {0, 0}}};
    c.color_polilineas = {256, 256};
    p.capas = {c, capa{.nombre = VNU("VACIA"), .tipo_linea = VNU("CONTINUOUS"), .color = 30}};

    const plano q = ida_y_vuelta([&](salida_t *s) { dibuja(p, s, [](size_t) {}); });
    const auto hallada = [&](const texto &nombre) {
        return *std::find_if(q.capas.begin(), q.capas.end(), [&](const capa &k) { return k.nombre == nombre; });
    };
    ASSERT_EQ(q.capas.size(), 3u); // with the one that there always is
    const capa d = hallada(c.nombre);
    EXPECT_EQ(utf8(d.tipo_linea), "RAYAS");
    EXPECT_EQ(d.color, c.color);
    EXPECT_DOUBLE_EQ(d.grosor_mm, c.grosor_mm);
    EXPECT_EQ(hallada(VNU("VACIA")).color, 30u);
    EXPECT_TRUE(d.color_lineas == c.color_lineas && d.color_circulos == c.color_circulos &&
                d.color_elipses == c.color_elipses && d.color_polilineas == c.color_polilineas);
    const auto esperados = numeros_de(c, p.metros_por_unidad), leidos = numeros_de(d, 1);
    ASSERT_EQ(leidos.size(), esperados.size());
    for (size_t i = 0; i < leidos.size(); ++i) EXPECT_NEAR(leidos[i], esperados[i], 1e-8) << i;
    const auto tipo = std::find(q.tipos_de_linea.begin(), q.tipos_de_linea.end(), VNU("RAYAS"));
    ASSERT_NE(tipo, q.tipos_de_linea.end());
    const auto &trazos = q.trazos_de_linea[static_cast<size_t>(tipo - q.tipos_de_linea.begin())];
    ASSERT_EQ(trazos.size(), 4u);
    EXPECT_NEAR(trazos[0], 0.05, 1e-12); // metres
}

// Real drawings: once written, they are where they were, and from then on they are read as they were written.
PRUEBA(obra_salida_dxf, los_planos_reales_se_leen_igual) {
    if (!vn::existe(vn::dato("A_dxf/expected.tsv"))) GTEST_SKIP() << "no outside drawings beside the checkout";
    const auto nada = [](size_t) {};
    const auto vuelta_de = [&](const plano &p) { return ida_y_vuelta([&](salida_t *s) { dibuja(p, s, nada); }); };
    for (const auto &col : vn::tabla("A_dxf/expected.tsv")) {
        SCOPED_TRACE(col[0]);
        plano p;
        noticias_dxf noticias;
        ASSERT_EQ(lee_dxf(vn::ancho(vn::dato("A_dxf/" + col[0])), p, noticias), lectura_dxf::bien);
        const plano q = vuelta_de(p), r = vuelta_de(q);
        const extension a = limites_de(p, nada), b = limites_de(q, nada);
        const double tolerancia = 1e-9 * (1 + std::fabs(a.xmax) + std::fabs(a.ymax));
        EXPECT_NEAR(a.xmin, b.xmin, tolerancia);
        EXPECT_NEAR(a.ymin, b.ymin, tolerancia);
        EXPECT_NEAR(a.xmax, b.xmax, tolerancia);
        EXPECT_NEAR(a.ymax, b.ymax, tolerancia);
        EXPECT_EQ(cuantas_se_dibujan(q), cuantas_se_dibujan(r));
        ASSERT_EQ(q.capas.size(), r.capas.size());
        for (size_t i = 0; i < q.capas.size(); ++i) {
            EXPECT_TRUE(q.capas[i].nombre == r.capas[i].nombre && q.capas[i].color == r.capas[i].color &&
                        q.capas[i].tipo_linea == r.capas[i].tipo_linea &&
                        q.capas[i].color_lineas == r.capas[i].color_lineas);
            const auto v = numeros_de(q.capas[i], 1), w = numeros_de(r.capas[i], 1);
            ASSERT_EQ(v.size(), w.size());
            for (size_t k = 0; k < v.size(); ++k) ASSERT_NEAR(v[k], w[k], tolerancia) << k;
        }
    }
}

// What has no size that a file could hold is left out, whole; names are told apart; what is not imported is there.
PRUEBA(obra_salida_dxf, cada_figura_es_su_entidad) {
    size_t clases = 0;
    const plano p = ida_y_vuelta([&](salida_t *s) {
        for (const cuenta &c : dibuja_muestra(s)) clases += c.cuantas > 0;
        vplan_escr_linea(s, 0, 0, INFINITY, 0);
        vplan_escr_rectangulo(s, 0, 0, NAN, 1);
    });
    EXPECT_EQ(clases, 11u);
    std::string nombres;
    size_t lineas = 0, polilineas = 0;
    for (const capa &c : p.capas) {
        nombres += utf8(c.nombre) + "|";
        lineas += c.lineas.size(), polilineas += c.polilineas.size();
        EXPECT_TRUE(c.tipo_linea == VNU("eje") && c.color == 1 && c.grosor_mm == 0.5) << utf8(c.nombre);
    }
    EXPECT_EQ(nombres, "0|MUROS_EXT|MUROS_EXT_2|\xCE\x91_45|");
    EXPECT_EQ(lineas, 4u);
    EXPECT_EQ(polilineas, 1u);
    const auto &fuera = p.sin_importar;
    EXPECT_TRUE(fuera.at("HATCH") == 8 && fuera.at("3DFACE") == 1 && fuera.at("RAY") == 1 && fuera.at("POINT") == 1);
    const capa &cero = p.capas[0];
    ASSERT_TRUE(cero.circulos.size() == 1 && cero.elipses.size() == 2);
    EXPECT_EQ(cero.color_circulos[0], 0x1000000u + 0x302010); // red is the lowest byte in the library
    // The longer axis comes first.
    EXPECT_NEAR(std::hypot(cero.elipses[0].eje.x, cero.elipses[0].eje.y), 6, 1e-12);
    EXPECT_NEAR(cero.elipses[0].razon, 1. / 3, 1e-12);
    EXPECT_NEAR(cero.elipses[1].hasta - cero.elipses[1].desde, 10 - 2 * std::numbers::pi, 1e-12);
    // In the header, whatever is drawn: circles whole, an arc by its quadrants.
    const std::string s = vn::lee_fichero(vn::Prueba::directorio() + "/d.dxf");
    EXPECT_NE(s.find("$EXTMIN\n10\n-6\n"), std::string::npos);
    EXPECT_NE(s.find("$EXTMAX\n10\n10\n"), std::string::npos);
}

// A text, and a name, of any characters is what it was when it has been read; a name without what names may not have.
PRUEBA(obra_salida_dxf, los_textos_vuelven) {
    const textos_dxf lector("AC1015", "ANSI_1252");
    for (const auto &[dado, escrito, nombre] : std::initializer_list<std::array<std::string, 3>>{
             {"A1", "A1", "A1"},
             {"\xC3\xA1 \xE2\x82\xAC", "\\U+00E1 \\U+20AC", "\\U+00E1 \\U+20AC"},
             {"a\\U+0041", "a\\U+005CU+0041", "a_U+0041"},
             {"50%%d", "50%\\U+0025d", "50%\\U+0025d"},
             {"2^3", "2^ 3", "2^ 3"},
             {"a\tb", "a^Ib", "a_b"},
             {"x<y>|z", "x<y>|z", "x_y__z"},
         }) {
        EXPECT_EQ(texto_de_dxf(vn::ancho(dado)), escrito);
        EXPECT_EQ(nombre_de_dxf(vn::ancho(dado)), nombre);
        EXPECT_EQ(utf8(lector.sencillo(escrito)), dado == "a\tb" ? "a b" : dado);
    }
}
