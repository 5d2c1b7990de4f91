#include "geometria.h"
#include "propiedades.h"
#include <nucleos/geometry/punto.h>
#include <numbers>

using namespace obra;
using std::numbers::pi;

// In millimetres: what closes, what crosses and what is an arc are told in metres and with the library's tolerances.
PRUEBA(obra_geometria, lo_que_cierra_lo_que_cruza_y_los_arcos) {
    capa c;
    // A ring of four lines, the last drawn backwards and 0.009 mm off; a cross; one that ends on a side, one outside.
    c.lineas = {{{0, 0}, {100, 0}},   {{100, 0}, {100, 50}}, {{100, 50}, {0, 50}}, {{0, .004}, {0, 50}},
                {{10, 10}, {20, 20}}, {{10, 20}, {20, 10}},  {{50, 0}, {50, 20}},  {{200, 0}, {200, 9}}};
    EXPECT_EQ(geometria_de(c, .001).contornos, 1u);
    EXPECT_EQ(geometria_de(c, .001).cruces, 2u);
    EXPECT_EQ(geometria_de(c, 1).contornos, 0u); // 4 mm off in metres
    // A square with its diagonal: three meet at two of its corners.
    const capa cruzada{
        .lineas = {{{0, 0}, {9, 0}}, {{9, 0}, {9, 9}}, {{9, 9}, {0, 9}}, {{0, 9}, {0, 0}}, {{0, 0}, {9, 9}}}};
    EXPECT_EQ(geometria_de(cruzada, 1).contornos, 0u);
    c.circulos = {{{300, 0}, 5}};
    c.arcos = {{{400, 0}, 10, 0, pi}, {{400, 0}, 10, pi, 2 * pi}, {{500, 0}, 10, 6, 1}};
    c.elipses = {{{600, 0}, {10, 0}, .5, 0, 2 * pi}, {{600, 0}, {10, 0}, .5, 0, 3}};
    c.polilineas = {{true, {{0, 300}, {10, 300}}, {1, 1}}, // two half circles
                    {false, {{0, 400}, {9, 400}, {9, 409}, {0, 400}}, {}},
                    {false, {{0, 500}, {9, 500}}, {-1, 0}}};
    const geometria_capa g = geometria_de(c, .001);
    EXPECT_EQ(g.contornos, 1u + 1 + 1 + 1 + 2);
    EXPECT_TRUE(vn::cerca(g.longitud_arcos, .001 * (pi * (20 + 10 + 4.5) + 10 * (2 * pi - 5))));
    for (const double raro : {vn::NAN_, vn::INF, 1e308})
        c.lineas.push_back({{raro, 0}, {0, raro}}); // a file may hold anything
    EXPECT_EQ(geometria_de(c, 1e3).contornos, 5u);
    c.lineas.resize(8);
    plano p;
    p.metros_por_unidad = .001;
    p.capas = {c};
    EXPECT_EQ(rectangulo_de(p)->ymin, -.01);
    EXPECT_EQ(rectangulo_de(p)->xmax, .61);
    p.capas[0] = {};
    EXPECT_EQ(rec_Inicializado(rectangulo_de(p).get()), FALSO);
    EXPECT_EQ(envolvente_de(p).vertices, 0u);
    p.capas[0].lineas = {{{100000, 1000}, {100000, 3000}}};
    p.capas[0].circulos = {{{102000, 2000}, 1000}};
    // The circle's right half, of a polygon of 64, and the square before it.
    EXPECT_TRUE(vn::cerca(envolvente_de(p).area, 2 * 2 + 16 * std::sin(pi / 32), 1e6)); // the grid's step
    EXPECT_EQ(envolvente_de(p).vertices, 2u + 33);
}

PRUEBA(obra_geometria, el_barrido_encuentra_los_mismos_cruces_que_todos_con_todos) {
    vn::azar z(61);
    for (const int64_t lado : {5, 40}) {
        capa c;
        for (int i = 0; i < 300; ++i) {
            const auto punto = [&] { return Punto2D{double(z.entero_entre(-lado, lado)), z.entre(-3, 3)}; };
            c.lineas.push_back({punto(), punto()});
            if (i % 5 == 0) c.lineas.back().b = c.lineas[static_cast<size_t>(i) / 2].a; // an end in common
            c.lineas.back().a.y += lado == 5 ? 0 : 100. * static_cast<double>(i % 7);   // and in heaps
        }
        size_t todos = 0;
        for (size_t i = 0; i < c.lineas.size(); ++i)
            for (size_t j = 0; j < i; ++j) {
                const linea &s = c.lineas[i], &t = c.lineas[j];
                Punto2D *r = p_cortan(&s.a, &s.b, &t.a, &t.b);
                if (r == nullptr) continue;
                todos += !((p_igual(r, &s.a) || p_igual(r, &s.b)) && (p_igual(r, &t.a) || p_igual(r, &t.b)));
                vornspy_free_pp(&r, sizeof(Punto2D));
            }
        EXPECT_GT(todos, 1000u);
        EXPECT_EQ(geometria_de(c, 1).cruces, todos);
        // Pasted onto itself, there and back, with pieces of no length: the same drawing.
        for (const linea &l : std::vector(c.lineas)) c.lineas.insert(c.lineas.end(), {{l.b, l.a}, l, {l.a, l.a}});
        EXPECT_EQ(geometria_de(c, 1).cruces, todos);
        EXPECT_FALSE(geometria_de(c, 1).hay_mas_cruces);
    }
}

// What grows with the square of a drawing is left at a bound, and said; what only looks so is counted.
PRUEBA(obra_geometria, los_cruces_y_los_contornos_de_un_dibujo_hecho_para_costar) {
    capa estrella, rayado, repetido, cuadros;
    for (int i = 0; i < 8000; ++i)
        estrella.lineas.push_back({{std::cos(i), std::sin(i)}, {-std::cos(i), -std::sin(i)}});
    for (int i = 0; i < 60000; ++i) {
        rayado.lineas.push_back({{i * .01, 0}, {i * .01 + 1000, 1000}});
        repetido.lineas.insert(repetido.lineas.end(), {{{0, 0}, {1, 1}}, {{5, 5}, {5, 5}}});
    }
    // Squares whose ends are the last bit apart, in eighths of an inch.
    for (int i = 0; i < 200; ++i) {
        const double x = i / 8., bit = i % 2 == 0 ? 4e-12 : 0;
        cuadros.lineas.insert(cuadros.lineas.end(), {{{x, 0}, {x + .1, 0}},
                                                     {{x + .1 + bit, 0}, {x + .1, .1}},
                                                     {{x + .1, .1 - bit}, {x, .1}},
                                                     {{x, .1}, {x - bit, 0}}});
    }
    EXPECT_TRUE(geometria_de(estrella, 1).hay_mas_cruces);
    EXPECT_GE(geometria_de(estrella, 1).cruces, 1'000'000u);
    for (const capa *c : {&rayado, &repetido})
        EXPECT_TRUE(geometria_de(*c, 1).cruces == 0 && !geometria_de(*c, 1).hay_mas_cruces);
    EXPECT_EQ(geometria_de(cuadros, .0254).contornos, 200u);
    EXPECT_EQ(geometria_de(repetido, 1).contornos, 0u);
}
