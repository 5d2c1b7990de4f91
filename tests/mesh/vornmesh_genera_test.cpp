#include "mallas.h"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_int.h"
#include <algorithm>
#include <numbers>

using namespace mallas;

namespace {

constexpr double PI = std::numbers::pi;

std::vector<vec> mueve(std::vector<vec> p, vec d) {
    for (vec &q : p) q = q + d;
    return p;
}
std::vector<vec> rectangulo(double x1, double y1, double x2, double y2, double z = 0.) {
    return {{x1, y1, z}, {x2, y1, z}, {x2, y2, z}, {x1, y2, z}};
}
// Counter-clockwise, with corners at radii by chance.
std::vector<vec> estrella(vn::azar &a, uint32_t n, double minimo, double maximo) {
    std::vector<vec> p;
    for (uint32_t i = 0; i < n; ++i) {
        const double t = 2. * PI * i / n, r = a.entre(minimo, maximo);
        p.push_back({r * std::cos(t), r * std::sin(t), 0.});
    }
    return p;
}
std::vector<vec> al_reves(std::vector<vec> p) {
    std::ranges::reverse(p);
    return p;
}
double area(const std::vector<vec> &p) {
    vec s{};
    for (size_t i = 0; i < p.size(); ++i) s = s + cruz(p[i] - p[0], p[(i + 1) % p.size()] - p[0]);
    return largo(s) / 2.;
}
double perimetro(const std::vector<vec> &p) {
    double l = 0.;
    for (size_t i = 0; i < p.size(); ++i) l += largo(p[(i + 1) % p.size()] - p[i]);
    return l;
}
// Half of the rounding of shared vertices, in each of three axes, over the size of the figures here.
constexpr double REDONDEO = 1e-3;

vec sitio(const vn::lugar &l) { return {l.x, l.y, l.z}; }
size_t vertices(const malla &m) { return vornmesh_num_puntos(m.get()); }
size_t primitivas(const malla &m) { return arr_NumElemsULong(m->tipos_primitivas.get()); }

void comprueba_solido(const malla &m, const vn::lugar &l, double volumen, double area_total, double tolerancia,
                      const char *que) {
    SCOPED_TRACE(que);
    ASSERT_NE(m, nullptr);
    const auto t = triangulos(m.get());
    const suma s(t, sitio(l));
    EXPECT_TRUE(cerrada(t, 1e-4));
    EXPECT_TRUE(normales_hacia_fuera(t));
    EXPECT_NEAR(s.volumen, volumen, tolerancia * volumen);
    EXPECT_NEAR(s.area, area_total > 0. ? area_total : s.area, tolerancia * area_total);
}

} // namespace

PRUEBA(vornmesh_genera, un_contorno_con_huecos_cubre_su_area_y_sus_bordes_son_los_suyos) {
    vn::azar a(61);
    for (int caso = 0; caso < 60; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const vec o = sitio(l);
        const auto fuera = mueve(estrella(a, 5 + a.entero(60), 6., 20.), o);
        const auto hueco = mueve(al_reves(estrella(a, 3 + a.entero(12), 1., 4.)), o);
        auto cerrado = fuera; // its first point again at its end is nothing new
        if (caso % 3 == 0) cerrado.push_back(cerrado.front());
        const lista contornos({cerrado, hueco});
        const double cubierta = area(fuera) - area(hueco), borde = perimetro(fuera) + perimetro(hueco);
        const malla m[] = {malla(vornmesh_genera_contorno_con_normal(contornos, 0., 0., 1.)),
                           malla(vornmesh_genera_contorno_con_normal_sin_compactar_vertices(contornos, 0., 0., 1.)),
                           malla(vornmesh_genera_contorno_invertido_con_normal(contornos, 0., 0., 1.)),
                           malla(vornmesh_genera_contorno_ex(contornos, nullptr, nullptr))};
        for (size_t i = 0; i < std::size(m); ++i) {
            const auto t = triangulos(m[i].get());
            const suma s(t, o);
            ASSERT_NEAR(s.area, cubierta, REDONDEO * cubierta) << caso << ' ' << i;
            ASSERT_NEAR(s.vector.z, i == 2 ? -cubierta : cubierta, REDONDEO * cubierta) << caso << ' ' << i;
            // A triangle turned around takes its flags with its corners: they are other edges then.
            ASSERT_NEAR(s.bordes, i != 2 ? borde : s.bordes, REDONDEO * borde) << caso << ' ' << i;
            ASSERT_EQ(primitivas(m[i]), 1u);
        }
        EXPECT_EQ(vertices(m[1]), 3 * triangulos(m[1].get()).size());
        EXPECT_EQ(m[0]->coord_texturas_opc, nullptr);
        EXPECT_EQ(arr_NumElemsPunto2D(m[3]->coord_texturas_opc.get()), vertices(m[3]));
        EXPECT_EQ(m[3]->tangentes_opc, nullptr);
    }
}

PRUEBA(vornmesh_genera, los_vertices_iguales_son_uno_y_estan_en_su_orden) {
    vn::azar a(62);
    for (int caso = 0; caso < 40; ++caso) {
        const vec o = sitio(vn::lugar_de(caso));
        const lista contornos({mueve(estrella(a, 40, 6., 20.), o)});
        const malla m(vornmesh_genera_contorno_con_normal(contornos, 0., 0., 1.));
        const auto p = vn::listas::tramo(static_cast<const arrPunto3D *>(m->puntos.get()));
        const auto b = vn::listas::tramo(static_cast<const arrBOOL *>(m->es_borde.get()));
        // At most both flags of each corner, where it was to 5e-06, told apart by more than the tolerance of the order.
        ASSERT_LE(p.size(), 80u);
        for (size_t i = 0; i + 1 < p.size(); ++i) {
            const std::array<double, 4> x{p[i].x, p[i].y, p[i].z, double(b[i])},
                y{p[i + 1].x, p[i + 1].y, p[i + 1].z, double(b[i + 1])};
            ASSERT_TRUE(std::ranges::lexicographical_compare(x, y));
            ASSERT_GT(std::max({std::fabs(y[0] - x[0]), std::fabs(y[1] - x[1]), std::fabs(y[3] - x[3])}), 1e-6);
        }
        const auto *dados = arr_GetPunteroST(contornos, 0, arrPunto3D);
        for (const vec &q : p) {
            double cerca = 1.;
            for (const vec &r : vn::listas::tramo(dados)) cerca = std::min(cerca, largo(q - r));
            ASSERT_LT(cerca, 1e-5);
        }
    }
    // Corners that are 4e-06 apart on both sides of a step of rounding are two; 4e-06 within one, one.
    const lista pares({{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{1 + 3e-6, 0, 0}, {1, 1, 0}, {1e-6, 1, 0}}});
    EXPECT_EQ(vertices(malla(vornmesh_genera_prisma_por_conjunto_caras(pares))), 4u);
    const lista apartados({{{0, 0, 0}, {1, 0, 0}, {0, 1, 0}}, {{1 + 7e-6, 0, 0}, {1, 1, 0}, {0, 1, 0}}});
    EXPECT_EQ(vertices(malla(vornmesh_genera_prisma_por_conjunto_caras(apartados))), 5u);
}

PRUEBA(vornmesh_genera, donde_se_cruzan_los_contornos_hay_vertices_nuevos_cada_uno_con_lo_suyo) {
    // A bow of several crossings: the odd rule covers what is inside an odd number of times, and what each new corner
    // has of texture is what the plane of the texture has there.
    for (int caso = 0; caso < 2; ++caso) {
        const vec o = sitio(vn::lugar_de(caso));
        const std::vector<vec> arco{{0, 0, 0},   {10, 4, 0}, {0, 4, 0},  {10, 0, 0},
                                    {10, 12, 0}, {0, 8, 0},  {10, 8, 0}, {0, 12, 0}};
        const lista contornos({mueve(arco, o)});
        const lista normales({std::vector<vec>(arco.size(), {0, 0, 1})});
        vn::dueno<arr_DestruyePunto2D> t(arr_CreaPunto2D(0));
        for (const vec &p : arco) arr_AppendPunto2D(t.get(), 2. * p.x + 1., p.y - 0.5 * p.x);
        vn::dueno<arr_DestruyePunteroConTipo> texturas(arr_CreaPunteroConTipo(0));
        arr_AppendPunteroST(texturas.get(), t.get(), arrPunto2D);
        const malla m[] = {malla(vornmesh_genera_contorno_con_coords_textura(contornos, texturas.get(), 0., 0., 1.)),
                           malla(vornmesh_genera_contorno_ex(contornos, normales, texturas.get()))};
        for (const malla &x : m) {
            const auto p = vn::listas::tramo(static_cast<const arrPunto3D *>(x->puntos.get()));
            const auto u = vn::listas::tramo(static_cast<const arrPunto2D *>(x->coord_texturas_opc.get()));
            ASSERT_GT(p.size(), arco.size());
            for (size_t i = 0; i < p.size(); ++i) { // the weights are floats
                EXPECT_NEAR(u[i].x, 2. * (p[i].x - o.x) + 1., 1e-4);
                EXPECT_NEAR(u[i].y, p[i].y - o.y - 0.5 * (p[i].x - o.x), 1e-4);
            }
            EXPECT_TRUE(normales_hacia_fuera(triangulos(x.get())) || suma(triangulos(x.get()), o).vector.z < 0.);
        }
    }
}

PRUEBA(vornmesh_genera, varias_hebras_a_la_vez_dan_lo_que_una_sola) {
    vn::azar a(63);
    const lista estrellado({estrella(a, 200, 1., 20.), estrella(a, 200, 1., 20.)});
    const malla sola(vornmesh_genera_contorno(estrellado));
    std::array<malla, 4> m;
    vn::en_hebras(4, [&](int i) {
        for (int k = 0; k < 20; ++k) m[i].reset(vornmesh_genera_contorno(estrellado));
    });
    for (const malla &x : m) EXPECT_EQ(vornmesh_son_iguales(sola.get(), x.get(), 0., 0.), CIERTO);
}

PRUEBA(vornmesh_genera, los_prismas_son_solidos_cerrados_con_su_volumen) {
    vn::azar a(64);
    for (int caso = 0; caso < 40; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const vec o = sitio(l), sube{a.entre(-2., 2.), a.entre(-2., 2.), a.entre(1., 9.)};
        auto fuera = mueve(estrella(a, 5 + a.entero(20), 6., 20.), o);
        const auto hueco = mueve(al_reves(estrella(a, 3 + a.entero(12), 1., 4.)), o);
        const double base = area(fuera) - area(hueco), volumen = base * sube.z;
        if (caso % 3 == 0) fuera.push_back(fuera.front()); // an edge of no length has no side
        const lista abajo({fuera, hueco}), arriba({mueve(fuera, sube), mueve(hueco, sube)});
        comprueba_solido(malla(vornmesh_genera_prisma_por_extrusion(abajo, 0, 0, -1, CIERTO, arriba, 0, 0, 1, CIERTO)),
                         l, volumen, 0., REDONDEO, "extrusion");
        const malla suelta(vornmesh_genera_prisma_por_extrusion2(abajo, 0, 0, -1, CIERTO, arriba, 0, 0, 1, CIERTO));
        comprueba_solido(suelta, l, volumen, 0., 1e-6, "extrusion2");
        // Every edge of the solid is a border of two faces.
        const double lados = perimetro(fuera) + perimetro(hueco),
                     aristas = static_cast<double>(fuera.size() - (caso % 3 == 0) + hueco.size()) * largo(sube);
        EXPECT_NEAR(suma(triangulos(suelta.get()), o).bordes, 4. * lados + 2. * aristas, 1e-6 * lados) << caso;

        const puntos p(fuera), q(mueve(fuera, sube));
        comprueba_solido(
            malla(vornmesh_genera_mesh_entre_polilineas_compatibles(p, 0, 0, -1, CIERTO, p, q, 0, 0, 1, CIERTO, q)), l,
            area(fuera) * sube.z, 0., REDONDEO, "compatible polylines");
        std::vector<std::vector<vec>> caras;
        for (uint32_t i = 0; i + 1 < p.size() || (i + 1 == p.size() && caso % 3 != 0); ++i) {
            const uint32_t j = (i + 1) % p.size();
            caras.push_back({p[i], p[j], q[j]});
            caras.push_back({q[j], q[i], p[i]});
        }
        comprueba_solido(
            malla(vornmesh_genera_mesh_entre_polilineas(p, 0, 0, -1, CIERTO, q, 0, 0, 1, CIERTO, lista(caras))), l,
            area(fuera) * sube.z, 0., REDONDEO, "polylines");
        caras.push_back(al_reves(fuera));
        caras.push_back(mueve(fuera, sube));
        const malla conjunto(vornmesh_genera_prisma_por_conjunto_caras(lista(caras)));
        const auto t = triangulos(conjunto.get());
        EXPECT_TRUE(cerrada(t, 1e-4));
        EXPECT_NEAR(suma(t, o).volumen, area(fuera) * sube.z, REDONDEO * area(fuera) * sube.z);
        EXPECT_EQ(primitivas(conjunto), 3u); // the triangles together, and two faces
    }
    // Without caps: the vertices of both stay, faces are the sides alone.
    const auto cuadrado = rectangulo(0, 0, 2, 2);
    const lista abajo({cuadrado}), arriba({mueve(cuadrado, {0, 0, 3})});
    const malla abierta(vornmesh_genera_prisma_por_extrusion(abajo, 0, 0, -1, FALSO, arriba, 0, 0, 1, FALSO)),
        tapada(vornmesh_genera_prisma_por_extrusion(abajo, 0, 0, -1, CIERTO, arriba, 0, 0, 1, FALSO));
    EXPECT_EQ(primitivas(abierta), 1u);
    EXPECT_EQ(primitivas(tapada), 2u);
    EXPECT_EQ(vertices(abierta), vertices(tapada));
    EXPECT_NEAR(suma(triangulos(abierta.get()), {}).area, 24., 1e-9);
    const lista desigual({rectangulo(0, 0, 1, 1), {{5, 5, 0}, {6, 5, 0}, {5, 6, 0}}}),
        otra({mueve(rectangulo(0, 0, 1, 1), {0, 0, 1}), rectangulo(5, 5, 6, 6, 1)});
    const malla coja(
        ESPERA_INFORME("num_puntos == arr_NumElemsPunto3D(poligono_superior)",
                       vornmesh_genera_prisma_por_extrusion2(desigual, 0, 0, -1, FALSO, otra, 0, 0, 1, FALSO)));
    EXPECT_NEAR(suma(triangulos(coja.get()), {}).area, 4., 1e-9);
}

PRUEBA(vornmesh_genera, las_caras_se_limpian_y_se_juntan_por_su_numero_de_puntos) {
    const lista caras({{{0, 0, 0}, {0, 0, 4e-6}, {1, 0, 0}, {0, 1, 0}},
                       rectangulo(2, 0, 3, 1),
                       {{0, 0, 5}, {1, 0, 5}, {1, 0, 5}},
                       {{5, 0, 0}, {7, 0, 0}, {7, 2, 0}, {6, 1, 0}, {5, 2, 0}, {5, 0, 4e-6}}});
    const malla m(vornmesh_genera_prisma_por_conjunto_caras(caras));
    const auto tipos = vn::listas::tramo(static_cast<const arrULong *>(m->tipos_primitivas.get()));
    EXPECT_EQ(std::vector<uint32_t>(tipos.begin(), tipos.end()),
              (std::vector<uint32_t>{VPLAN_TRIANGULOS, VPLAN_QUADS, VPLAN_TRIANGULOS}));
    EXPECT_NEAR(suma(triangulos(m.get()), {}).area, 0.5 + 1. + 3., 1e-4);
    for (const auto &[i, n] : {std::pair{0u, 3u}, {1u, 4u}, {2u, 2u}, {3u, 5u}})
        EXPECT_EQ(arr_NumElemsPunto3D(arr_GetPunteroST(caras, i, arrPunto3D)), n) << i;
    EXPECT_EQ(vertices(malla(ESPERA_INFORME("arr_NumElemsPunto3D(puntos) > 0",
                                            vornmesh_genera_prisma_por_conjunto_caras(lista())))),
              0u);
    const puntos sueltos({{0, 0, 0}, {1, 0, 0}, {0, 1, 0}, {0, 0, 0}, {1, 0, 0}, {2, 0, 0}});
    const malla t(vornmesh_genera_a_partir_de_vertices_triangulos(sueltos));
    EXPECT_EQ(vertices(t), 6u); // the second has no area, and looks up
    EXPECT_EQ(primitivas(t), 2u);
    for (const triangulo &x : triangulos(t.get())) EXPECT_EQ(x.n[1].z, 1.);
}

PRUEBA(vornmesh_genera, las_figuras_redondas_son_cerradas_y_miran_hacia_fuera) {
    vn::azar a(65);
    for (int caso = 0; caso < 30; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const vec o = sitio(l), d = direccion_al_azar(a), fin = o + a.entre(2., 9.) * d;
        const uint32_t n = 3 + a.entero(40);
        const double r = a.entre(.1, 2.), r2 = a.entre(0., 2.), largo_ = largo(fin - o),
                     poligono = n / 2. * std::sin(2 * PI / n);
        comprueba_solido(malla(vornmesh_genera_prisma_tubos(puntos({o, fin}), r, n, CIERTO)), l,
                         poligono * r * r * largo_, 0., 1e-7, "tube");
        const malla cono(
            vornmesh_genera_prisma_conico(XYZ(o), r, XYZ(fin), caso % 5 == 0 ? 0. : r2, XYZ(d), n, CIERTO));
        const double punta = caso % 5 == 0 ? 0. : r2;
        comprueba_solido(cono, l, poligono * largo_ * (r * r + r * punta + punta * punta) / 3., 0., 1e-7, "cone");
        // Its borders are the rings, of the side and of each cap.
        EXPECT_NEAR(suma(triangulos(cono.get()), o).bordes, 4. * n * std::sin(PI / n) * (r + punta), 1e-5);

        const uint32_t paralelos = 3 + a.entero(10), meridianos = 4 + a.entero(12);
        const malla esfera(vornmesh_genera_prisma_esfera(XYZ(o), r, paralelos, meridianos));
        EXPECT_EQ(vertices(esfera), size_t{paralelos} * meridianos);
        EXPECT_EQ(primitivas(esfera), size_t{paralelos - 1} * meridianos);
        double volumen = 0.; // of frustums between parallels
        for (uint32_t k = 0; k + 1 < paralelos; ++k) {
            const double f = -PI / 2 + PI * k / (paralelos - 1), g = -PI / 2 + PI * (k + 1) / (paralelos - 1);
            const double p = r * std::cos(f), q = r * std::cos(g);
            volumen += meridianos / 2. * std::sin(2 * PI / meridianos) * r * (std::sin(g) - std::sin(f)) *
                       (p * p + p * q + q * q) / 3.;
        }
        comprueba_solido(esfera, l, volumen, 0., 1e-6, "sphere");

        // A bent tube without caps: rings cut by the plane between, so that sides of both segments meet there.
        const vec codo = fin + a.entre(2., 5.) * unitario(direccion_al_azar(a) + 2. * d);
        const malla doblado(vornmesh_genera_prisma_tubos(puntos({o, fin, codo}), r, n, FALSO));
        EXPECT_EQ(primitivas(doblado), size_t{n} * 4);
        const vec corte = unitario(d + unitario(codo - fin)), d2 = unitario(codo - fin);
        for (const triangulo &x : triangulos(doblado.get()))
            for (int i = 0; i < 3; ++i) {
                const vec desde_el_codo = x.p[i] - fin;
                const double delante = por(desde_el_codo, d), detras = por(desde_el_codo, d2),
                             en_corte = std::fabs(por(desde_el_codo, corte));
                const vec fuera1 = desde_el_codo - delante * d, fuera2 = desde_el_codo - detras * d2;
                ASSERT_TRUE(std::fabs(largo(fuera1) - r) < 1e-6 || std::fabs(largo(fuera2) - r) < 1e-6 ||
                            en_corte < 1e-6)
                    << caso;
            }
    }
    const malla cubo(vornmesh_genera_cubo(2., 3., 5.));
    EXPECT_EQ(vertices(cubo), 36u);
    EXPECT_EQ(primitivas(cubo), 12u);
    comprueba_solido(cubo, {}, 30., 62., 1e-12, "box");
    EXPECT_NEAR(suma(triangulos(cubo.get()), {}).bordes, 8. * (2. + 3. + 5.), 1e-9); // never a diagonal
}

PRUEBA(vornmesh_genera, los_tubos_con_un_eje_imposible_informan_y_siguen) {
    const puntos repetido({{0, 0, 0}, {0, 0, 0}, {0, 0, 4}}), vuelve({{0, 0, 0}, {0, 0, 4}, {0, 0, 1}}),
        uno({{0, 0, 0}});
    const malla m(
        ESPERA_INFORME("existe_interseccion == CIERTO", vornmesh_genera_prisma_tubos(repetido, 1., 8, CIERTO)));
    comprueba_solido(m, {}, 4. * std::sin(2 * PI / 8) * 4., 0., 1e-7, "repeated point");
    const malla v(ESPERA_INFORME("existe_interseccion == CIERTO", vornmesh_genera_prisma_tubos(vuelve, 1., 8, FALSO)));
    EXPECT_EQ(primitivas(v), 32u);
    EXPECT_EQ(ESPERA_INFORME("num > 1", vornmesh_genera_prisma_tubos(uno, 1., 8, FALSO)), nullptr);
    EXPECT_EQ(ESPERA_INFORME("num > 2", vornmesh_genera_prisma_tubos(vuelve, 1., 2, FALSO)), nullptr);
    EXPECT_EQ(ESPERA_INFORME("mt_pasar_a_unitario_3D(&dx, &dy, &dz) == CIERTO",
                             vornmesh_genera_prisma_conico(0, 0, 0, 1, 0, 0, 1, 1, 0, 0, 0, 8, FALSO)),
              nullptr);
}

PRUEBA(vornmesh_genera, las_rejillas_llevan_la_normal_de_su_superficie) {
    for (int caso = 0; caso < 2; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const vec o = sitio(l);
        std::vector<std::vector<vec>> filas;
        for (int r = 0; r < 20; ++r) {
            auto &fila = filas.emplace_back();
            for (int c = 0; c < 30; ++c)
                fila.push_back(o + vec{.1 * c, .1 * r, .2 * std::sin(.1 * c) + .01 * r * r * .1});
        }
        const malla m(vornmesh_genera_grid3d(lista(filas)));
        EXPECT_EQ(vertices(m), 600u);
        EXPECT_EQ(primitivas(m), 19u);
        EXPECT_TRUE(normales_hacia_fuera(triangulos(m.get())));
        EXPECT_NEAR(suma(triangulos(m.get()), o).vector.z, 2.9 * 1.9, 1e-7);
        const auto p = vn::listas::tramo(static_cast<const arrPunto3D *>(m->puntos.get()));
        const auto n = vn::listas::tramo(static_cast<const arrPunto3D *>(m->normales.get()));
        for (size_t i = 0; i < p.size(); ++i) {
            const vec d = p[i] - o, exacta = unitario({-.2 * std::cos(d.x), -.2 * d.y, 1.});
            ASSERT_LT(largo(n[i] - exacta), .02) << i;
        }
        // A column closed around: a solid with its caps. The same as a path of closed sections.
        std::vector<std::vector<vec>> anillos, secciones;
        for (int r = 0; r < 5; ++r) {
            auto &anillo = anillos.emplace_back();
            for (int c = 0; c < 12; ++c)
                anillo.push_back(
                    o + vec{(2. - .1 * r) * std::cos(PI * c / 6), (2. - .1 * r) * std::sin(PI * c / 6), 1. * r});
            secciones.push_back(anillo);
            secciones.back().push_back(anillo.front());
        }
        double volumen = 0.;
        for (int r = 0; r < 4; ++r) {
            const double p1 = 2. - .1 * r, q1 = p1 - .1;
            volumen += 6. * std::sin(PI / 6) * (p1 * p1 + p1 * q1 + q1 * q1) / 3.;
        }
        const malla cerrada_(vornmesh_genera_grid3d_cerrado(lista(anillos), CIERTO, CIERTO));
        comprueba_solido(cerrada_, l, volumen, 0., 1e-7, "closed grid");
        EXPECT_EQ(primitivas(cerrada_), 6u);
        comprueba_solido(malla(vornmesh_genera_prisma_con_camino(lista(secciones), FALSO, CIERTO)), l, volumen, 0.,
                         1e-7, "path");
        // A ring of sections, the last joined to the first: a torus of square section.
        std::vector<std::vector<vec>> toro;
        for (int r = 0; r < 8; ++r) {
            const double t = -2 * PI * r / 8;
            const vec fuera{std::cos(t), std::sin(t), 0.};
            toro.push_back({o + 5. * fuera, o + 6. * fuera, o + 6. * fuera + vec{0, 0, 1},
                            o + 5. * fuera + vec{0, 0, 1}, o + 5. * fuera});
        }
        comprueba_solido(malla(vornmesh_genera_prisma_con_camino(lista(toro), CIERTO, FALSO)), l,
                         4. * std::sin(PI / 4) * (36. - 25.), 0., 1e-7, "closed path");
    }
    const malla fila(vornmesh_genera_grid3d(lista({{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}})));
    EXPECT_EQ(vertices(fila), 3u);
    EXPECT_EQ(primitivas(fila), 0u);
    EXPECT_EQ(ESPERA_INFORME("num_columnas == num_columnas_comprobacion",
                             vornmesh_genera_grid3d(lista({{{0, 0, 0}, {1, 0, 0}}, {{0, 1, 0}}}))),
              nullptr);
    EXPECT_EQ(ESPERA_INFORME("num_secciones > 1",
                             vornmesh_genera_prisma_con_camino(lista({{{0, 0, 0}, {1, 0, 0}}}), FALSO, FALSO)),
              nullptr);
}

PRUEBA(vornmesh_genera, lo_que_no_es_finito_o_no_es_plano_no_detiene_a_nadie) {
    const lista infinito({{{0, 0, 0}, {vn::INF, 0, 0}, {0, 1, 0}}}),
        no_numero({{{0, 0, 0}, {1, vn::NAN_, 0}, {0, 1, 0}}});
    for (const lista *l : {&infinito, &no_numero}) {
        const malla m(ESPERA_INFORME("defmath_es_numero_valido(x) == CIERTO", vornmesh_genera_contorno(*l)));
        EXPECT_EQ(vertices(m), 0u);
        EXPECT_EQ(primitivas(m), 0u);
    }
    // Too large for the tessellator, which says so itself, and works again for the next one.
    const lista enorme({{{0, 0, 0}, {8e150, 0, 0}, {0, 8e150, 0}}});
    const malla m(vornmesh_genera_contorno(enorme));
    EXPECT_FALSE(vn::Prueba::toma_informes().empty());
    EXPECT_EQ(triangulos(malla(vornmesh_genera_contorno(lista({rectangulo(0, 0, 1, 1)}))).get()).size(), 2u);
    EXPECT_EQ(vertices(malla(ESPERA_INFORME("num > 0", vornmesh_genera_contorno(lista())))), 0u);
    // A contour off its plane looks up.
    const malla alabeada(vornmesh_genera_contorno(lista({{{0, 0, 0}, {4, 0, 2}, {4, 4, 0}, {0, 4, 2}}})));
    for (const triangulo &t : triangulos(alabeada.get())) EXPECT_EQ(t.n[0].z, 1.);
    for (const auto &c : {std::vector<vec>{}, {{1, 1, 1}}, {{0, 0, 0}, {1, 0, 0}}, {{0, 0, 0}, {1, 0, 0}, {2, 0, 0}}})
        EXPECT_TRUE(triangulos(malla(vornmesh_genera_contorno(lista({c}))).get()).empty()) << c.size();
}
