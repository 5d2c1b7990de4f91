#include "foundation/numeros/mt.h"
#include "propiedades.h"
#include "prueba.h"
#include <limits>

using vn::azar;
using vn::cerca;

namespace {

constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN(), INF = std::numeric_limits<double>::infinity();
constexpr double VUELTA = 6.283185307179586;
constexpr int CASOS = 20000;

double arriba(double x) { return std::nextafter(x, INF); }
double abajo(double x) { return std::nextafter(x, -INF); }

struct vector3 {
    double x, y, z;
};
double por(const vector3 &a, const vector3 &b) { return mt_producto_escalar(a.x, a.y, a.z, b.x, b.y, b.z); }

struct ejes {
    vector3 x, y, z;
    vnbool hay;
    ejes(const vector3 &p, const vector3 &q)
        : hay(mt_calcular_ejes_3D_dados_2_puntos(p.x, p.y, p.z, q.x, q.y, q.z, &x.x, &x.y, &x.z, &y.x, &y.y, &y.z, &z.x,
                                                 &z.y, &z.z)) {}
    ejes(const vector3 &p, const vector3 &q, const vector3 &r)
        : hay(mt_calcular_ejes_3D_dados_3_puntos(p.x, p.y, p.z, q.x, q.y, q.z, r.x, r.y, r.z, &x.x, &x.y, &x.z, &y.x,
                                                 &y.y, &y.z, &z.x, &z.y, &z.z)) {}
    // How far they are from unit vectors, square to each other and right-handed.
    double error() const {
        vector3 xy;
        mt_producto_vectorial(x.x, x.y, x.z, y.x, y.y, y.z, &xy.x, &xy.y, &xy.z);
        return std::fabs(por(x, x) - 1.) + std::fabs(por(y, y) - 1.) + std::fabs(por(x, y)) +
               std::fabs(por(xy, z) - 1.);
    }
};

mt_segmento_t seg(double x1, double y1, double x2, double y2) { return {x1, y1, x2, y2, 9, 9., 9., 9., 9.}; }

} // namespace

PRUEBA(mt, las_longitudes_no_se_desbordan_y_lo_que_no_tiene_direccion_lo_dice) {
    for (const double k : {1., 0x1p-1000, 0x1p+1000, 0x1p+520, 0x1p-540}) {
        SCOPED_TRACE(k);
        double x = 3. * k, y = -4. * k, l, c, s;
        EXPECT_EQ(mt_distancia(x, y, 0., 0.) + mt_modulo_vector_3D(2. * k, -3. * k, 6. * k), 12. * k);
        EXPECT_TRUE(mt_pasar_a_unitario_2D(&x, &y) == CIERTO && x == 0.6 && y == -0.8);
        f_mt_parametros_segmento(k, k, 4. * k, 5. * k, &l, &c, &s);
        EXPECT_TRUE(l == 5. * k && c == 0.6 && s == 0.8);
        EXPECT_EQ(mt_posicion_relativa_a_segmento(3. * k, 7. * k, k, 7. * k, 5. * k, 7. * k), 0.5);
        EXPECT_EQ(mt_distancia_a_recta(7. * k, 2. * k, 0., 0., -k, 0.), 2. * k);
    }
    for (const double nada : {0., NAN_, INF}) {
        SCOPED_TRACE(nada);
        double x = nada, y = 0., z = 0., c = 9., s = 9.;
        EXPECT_TRUE(mt_pasar_a_unitario_3D(&x, &y, &z) == FALSO && (x == nada || std::isnan(nada)));
        f_mt_parametros_segmento(0., 0., nada, 0., nullptr, &c, &s);
        EXPECT_TRUE(c == 1. && s == 0. && mt_posicion_relativa_a_segmento(1., 1., 0., 0., nada, 0.) == 0.);
        EXPECT_EQ(mt_vector_director_de_dos_puntos_3D(0., 0., 0., nada, 0., 0., &x, &y, &z), FALSO);
        EXPECT_TRUE(x == 0. && y == 0. && z == 0.);
    }
    EXPECT_EQ(mt_distancia_a_recta(3., 4., 0., 0., 0., 0.), 5.);
}

// The filter is a loop; a test that hangs here is the fault.
PRUEBA(mt, los_angulos_acaban_en_una_vuelta_y_a_tiempo) {
    for (const double a : {-1e308, 1e300, 1e17, -1e6, 65536. * VUELTA, 65537. * VUELTA, -65537.5 * VUELTA}) {
        const double f = mt_filtra_angulo_mayor_que_cero(a);
        EXPECT_TRUE(f >= 0. && f < VUELTA) << a << " " << f;
    }
    const double filas[][2] = {{-1e-17, 0.},      {VUELTA, 0.},       {abajo(VUELTA), abajo(VUELTA)},
                               {7., 7. - VUELTA}, {-1., VUELTA - 1.}, {INF, 0.},
                               {NAN_, 0.}};
    for (const auto &f : filas) EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(f[0]), f[1]);
    // A sample for the platforms to agree on, and what has no direction.
    const double angulos[][3] = {{1., 2., 1.1071487177940904},
                                 {-3., 0.1, 3.108271657711546},
                                 {-3., -0.1, 3.1749136494680403},
                                 {1e-9, -7., 4.712388980527547},
                                 {-1e200, -1e199, 3.241261306080955},
                                 {0., 0., 0.},
                                 {1., -1e-300, 0.},
                                 {NAN_, 1., 0.}};
    for (const auto &f : angulos) EXPECT_TRUE(cerca(mt_angulo(0., 0., f[0], f[1]), f[2])) << f[0] << " " << f[1];
    azar a(1);
    for (int i = 0; i < CASOS; ++i) {
        const double x = a.entre(-5., 5.), y = a.entre(-5., 5.), d = mt_distancia(x, y, 0., 0.),
                     t = mt_angulo(0., 0., x, y);
        ASSERT_TRUE(t >= 0. && t < VUELTA && std::fabs(std::cos(t) * d - x) + std::fabs(std::sin(t) * d - y) < 1e-14);
        ASSERT_EQ(mt_angulo_a_partir_de_seno_y_coseno(y, x), t);
        // The middle of the turn from there on, also past the half turn.
        const double giro = i % 4 == 0 ? a.entre(0., 1e-7) : a.entre(0., VUELTA - 1e-7);
        double bx, by;
        mt_bisectriz(std::cos(t), std::sin(t), std::cos(t + giro), std::sin(t + giro), &bx, &by);
        ASSERT_TRUE(std::fabs(bx - std::cos(t + giro / 2.)) + std::fabs(by - std::sin(t + giro / 2.)) < 4e-9)
            << t << " " << giro;
    }
    double bx, by;
    mt_bisectriz(0., 1., 0., -1., &bx, &by);
    EXPECT_TRUE(bx == -1. && by == 0.);
}

PRUEBA(mt, un_arco_tiene_sus_limites_con_su_tolerancia) {
    constexpr double T = 1e-6;
    const struct {
        double angulo, inicio, fin;
        vnbool dentro;
    } filas[] = {{1., 1., 2., CIERTO},
                 {2. + 0.999 * T, 1., 2., CIERTO},
                 {2. + 1.001 * T, 1., 2., FALSO},
                 {1. - 0.999 * T, 1., 2., CIERTO},
                 {1. - 1.001 * T, 1., 2., FALSO},
                 {0., 6., 0.5, CIERTO},
                 {5.9, 6., 0.5, FALSO},
                 {3., 0., VUELTA, CIERTO},
                 {3., 1., 1. - VUELTA, CIERTO},
                 {3., 1., 1., FALSO},
                 {1., 1., 1., CIERTO},
                 {3., 1., abajo(1.), FALSO},
                 {1., 0., -2. * VUELTA, CIERTO},
                 {4., 0., -1.5 * VUELTA, FALSO},
                 {1. + VUELTA, 0.9, 1.1, CIERTO},
                 {1. - 9. * VUELTA, 0.9, 1.1, CIERTO},
                 {T, 0., 0., CIERTO},
                 {arriba(T), 0., 0., FALSO},
                 {1.5, 9., 0.5, FALSO},
                 {3., 9., 0.5, CIERTO},
                 {1.5, 0.5, 9., CIERTO},
                 {NAN_, 0., VUELTA, FALSO},
                 {1., 0., INF, FALSO},
                 {1., -1e300, 0., CIERTO}};
    for (const auto &f : filas)
        EXPECT_EQ(mt_angulo_dentro_de_rango(f.angulo, f.inicio, f.fin), f.dentro)
            << f.angulo << " " << f.inicio << " " << f.fin;
}

PRUEBA(mt, las_transformaciones_giran_hacia_donde_dicen) {
    double x, y, p[4][2] = {{3., 2.}, {3., 4.}, {3., 4.}, {1., 2.}};
    mt_gira_xy_sentido_horario(1., 2., 0., 1., &x, &y);
    EXPECT_TRUE(x == 2. && y == -1.);
    mt_gira_coords_respecto_a_un_punto(2., 2., 0., 1., &p[0][0], &p[0][1]);
    mt_transforma_coords_con_origen_escala_giro_y_desplazamiento(2., 2., 10., 0., 1., 100., 200., &p[1][0], &p[1][1]);
    mt_transforma_coords_con_origen_y_diferentes_escalas(2., 2., 10., 100., 0., 1., 100., 200., &p[2][0], &p[2][1]);
    mt_transforma_coords(10., 0., 1., 100., 200., &p[3][0], &p[3][1]);
    const double esperado[4][2] = {{2., 3.}, {80., 210.}, {-100., 210.}, {80., 210.}};
    for (int i = 0; i < 4; ++i) EXPECT_TRUE(p[i][0] == esperado[i][0] && p[i][1] == esperado[i][1]) << i;
    mt_real_a_proyectado(1., 2., 3., &x, &y);
    EXPECT_TRUE(cerca(x, 1. + std::sqrt(0.5)) && cerca(y, 3. + std::sqrt(0.5)));
    mt_proyectado_a_real(1. + std::sqrt(0.5), std::sqrt(0.5), &x, &y);
    EXPECT_TRUE(cerca(x, 1.) && cerca(y, 2.));
}

// At each tolerance, one step beyond it, and what has no answer.
PRUEBA(mt, cada_tolerancia_esta_en_su_limite) {
    const auto pertenece = [](double x, double y) {
        return mt_punto_pertenece_a_segmento(x, y, -1., 0., 0., 0.) == CIERTO;
    };
    const double P = 1e-5, C = 1e-6;
    EXPECT_TRUE(pertenece(P, 0.) && !pertenece(arriba(P), 0.) && pertenece(-0.5, -P) && !pertenece(-0.5, arriba(P)) &&
                !pertenece(NAN_, 0.));
    EXPECT_TRUE(mt_punto_pertenece_a_segmento(0., P, 0., 0., 0., 0.) == CIERTO &&
                mt_punto_pertenece_a_segmento(0., arriba(P), 0., 0., 0., 0.) == FALSO);
    const auto cruza = [](mt_segmento_t a, mt_segmento_t b) {
        return mt_existe_interseccion_entre_segmentos(a.x1, a.y1, a.x2, a.y2, b.x1, b.y1, b.x2, b.y2, nullptr,
                                                      nullptr) == CIERTO;
    };
    const auto vertical = [](double x) { return seg(x, -1., x, 1.); };
    EXPECT_TRUE(cruza(seg(0., 0., 1., 0.), vertical(-C)) && !cruza(seg(0., 0., 1., 0.), vertical(-arriba(C))));
    EXPECT_TRUE(cruza(seg(-1., 0., 0., 0.), vertical(C)) && !cruza(seg(-1., 0., 0., 0.), vertical(arriba(C) + 2e-16)));
    EXPECT_TRUE(cruza(seg(-1., 0., 1., 0.), seg(0., C, 0., 1.)) &&
                !cruza(seg(-1., 0., 1., 0.), seg(0., arriba(C), 0., 1.)));
    EXPECT_FALSE(cruza(seg(0., 0., 2., 2.), seg(1., 1., 3., 3.)) || cruza(seg(0., 0., 0., 0.), vertical(0.)) ||
                 cruza(seg(0., NAN_, 1., 0.), vertical(0.)));
    // What is on one line but for the rounding of its coordinates is parallel, and what is off it by more is not.
    azar a(6);
    for (int i = 0; i < CASOS; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const double g = a.entre(0., VUELTA), z = a.entre(-1., 1.);
        const auto p = [&](double t, double al_lado = 0.) {
            return vector3{l.x + t * std::cos(g) - al_lado * std::sin(g), l.y + t * std::sin(g) + al_lado * std::cos(g),
                           l.z + t * z};
        };
        const double k = a.entre(.1, 10.), fuera = l.escala(1.) * 1e-11;
        const vector3 e[] = {p(0.), p(k), p(k / 2.), p(3. * k), p(.6 * k, fuera), p(.3 * k, -fuera)};
        ASSERT_FALSE(cruza(seg(e[0].x, e[0].y, e[1].x, e[1].y), seg(e[2].x, e[2].y, e[3].x, e[3].y))) << i;
        ASSERT_TRUE(cruza(seg(e[0].x, e[0].y, e[1].x, e[1].y), seg(e[4].x, e[4].y, e[5].x, e[5].y))) << i;
        ASSERT_TRUE(ejes(e[0], e[1], e[3]).hay == FALSO && ejes(e[2], e[3], e[0]).hay == FALSO &&
                    ejes(e[0], e[1], e[4]).hay == CIERTO)
            << i;
    }
    EXPECT_TRUE(mt_puntos2D_iguales(C, 0., 0., -C) == CIERTO && mt_puntos2D_iguales(arriba(C), 0., 0., 0.) == FALSO);
    EXPECT_TRUE(mt_puntos2D_iguales_con_tolerancia(0., 0.25, 0., 0., 0.25) == CIERTO &&
                mt_puntos2D_iguales_con_tolerancia(0., arriba(0.25), 0., 0., 0.25) == FALSO);
    const auto corta = [](double z) {
        return mt_existe_interseccion_recta_con_plano(0., 0., 1., 1., 0., z, 0., 0., 1., 0., nullptr, nullptr, nullptr);
    };
    EXPECT_TRUE(corta(1e-6) == FALSO && corta(1.000001e-6) == CIERTO && corta(NAN_) == FALSO);
    EXPECT_EQ(
        mt_existe_interseccion_recta_con_plano(0., 0., 1e308, 1., 0., 1e-5, 0., 0., 1., 0., nullptr, nullptr, nullptr),
        FALSO);
}

// A cut at an end is that end, and its own segment is not cut; the inside test of polygons stands on this.
PRUEBA(mt, los_cortes_de_segmentos_dicen_cual_queda_partido) {
    const double MIN = INT32_MIN, MAX = INT32_MAX;
    const struct {
        mt_segmento_t a, b;
        const char *cortes; // of the one, of the other
    } filas[] = {{seg(0, 0, 4, 4), seg(0, 4, 4, 0), "(2,2);(2,2);"},
                 {seg(0, 0, 4, 0), seg(1, 0, 1, 5), "(1,0);;"},
                 {seg(0, 0, 4, 0), seg(1, 5, 1, 0), "(1,0);;"},
                 {seg(1, 0, 1, 5), seg(0, 0, 4, 0), ";(1,0);"},
                 {seg(0, 0, 4, 0), seg(4, 0, 4, 5), ";;"},
                 {seg(0, 0, 9, 0), seg(7, 0, 2, 0), "(2,0)(7,0);;"},
                 {seg(9, 0, 0, 0), seg(2, 0, 7, 0), "(7,0)(2,0);;"},
                 {seg(0, 0, 0, 5), seg(0, 3, 0, 8), "(0,3);(0,5);"},
                 {seg(0, 0, 4, 4), seg(0, 0, 4, 4), ";;"},
                 {seg(0, 0, 4, 4), seg(4, 4, 6, 6), ";;"},
                 {seg(0, 0, 4, 4), seg(1, 1, 1, 1), "(1,1);;"},
                 {seg(0, 0, 4, 4), seg(1, 2, 1, 2), ";;"},
                 {seg(2, 2, 2, 2), seg(2, 2, 2, 2), ";;"},
                 {seg(0, 0, 1e308, 0), seg(5e307, -1, 5e307, 1e308), "(5e+307,0);(5e+307,0);"},
                 {seg(0, 0, NAN_, 0), seg(0, 1, 1, -1), ";;"},
                 {seg(0, 0, INF, 0), seg(0, 1, 1, -1), ";;"},
                 {seg(1, 0, NAN_, 5), seg(0, 0, 4, 0), ";;"}, // though its first end lies on the other
                 // Half a unit beside the line, at the far ends of 32 bits.
                 {seg(MIN, MIN, MAX, MAX - 1.), seg(0., 0., -5., 5.), ";;"},
                 {seg(MIN, MIN, MAX, MAX - 1.), seg(0., 0., 5., -5.), "(0.25,-0.25);(0.25,-0.25);"}};
    for (const auto &f : filas) {
        mt_segmento_t a = f.a, b = f.b;
        mt_calcula_inter_segmentos(&a, &b);
        std::string s;
        const auto anade = [&s](double x, double y) {
            char t[60];
            std::snprintf(t, sizeof t, "(%g,%g)", x, y);
            s += t;
        };
        for (const mt_segmento_t *g : {&a, &b}) {
            if (g->numcortes > 0) anade(g->x3, g->y3);
            if (g->numcortes > 1) anade(g->x4, g->y4);
            s += ';';
        }
        EXPECT_EQ(s, f.cortes) << "row " << &f - filas;
    }
}

// Against the determinant in 128 bits: near-collinear whole points of the full range; at a survey's coordinates, in
// steps of 2^-28 m, two segments at a hair's angle, the second longer at both ends. Where they cross is right along
// them, too.
PRUEBA(mt, el_lado_y_el_cruce_son_exactos_en_todo_el_rango) {
    azar a(3);
    vn::huella h;
    __extension__ using largo = __int128;
    for (int i = 0; i < 2 * CASOS; ++i) {
        const bool lejos = i % 2 != 0;
        const double paso = lejos ? 0x1p-28 : 1.;
        const int64_t ox = lejos ? 500000ll << 28 : 0, oy = lejos ? 4500000ll << 28 : 0,
                      lado_ = lejos ? 1ll << 31 : INT32_MAX;
        const int64_t pelo = lejos ? 1ll << (2 + a.entero(21)) : 3;
        const auto x = [&] { return a.entero_entre(-lado_ - 1, lado_); };
        const auto n = [&] { return a.entero_entre(-pelo, pelo); };
        const int64_t x1 = ox + x(), y1 = oy + x(), x2 = ox + x(), y2 = oy + x(),
                      m = lejos ? -500 : a.entero_entre(1, 1000), d = n();
        // About the m-th thousandth of the segment, to a few units.
        const int64_t px = x1 + (x2 - x1) * m / 1000 + d, py = y1 + (y2 - y1) * m / 1000 + (lejos ? n() : d);
        const int64_t qx = lejos ? x2 + (x2 - x1) / 2 + n() : x(), qy = lejos ? y2 + (y2 - y1) / 2 + n() : x();
        const auto giro = [](int64_t ax, int64_t ay, int64_t bx, int64_t by, int64_t cx, int64_t cy) {
            return largo(bx - ax) * (cy - ay) - largo(by - ay) * (cx - ax);
        };
        const auto lado = [](largo g) { return (g > 0) - (g < 0); };
        const int s1 = lado(giro(x1, y1, x2, y2, px, py)), s2 = lado(giro(x1, y1, x2, y2, qx, qy));
        const largo g1 = giro(px, py, qx, qy, x1, y1), g2 = giro(px, py, qx, qy, x2, y2);
        const int pq = lado(g1) * lado(g2);
        const auto r = [paso](int64_t v) { return paso * static_cast<double>(v); };
        mt_segmento_t s = seg(r(x1), r(y1), r(x2), r(y2)), t = seg(r(px), r(py), r(qx), r(qy));
        mt_calcula_inter_segmentos(&s, &t);
        if (pq == 0) continue; // an end of the one on the other
        ASSERT_EQ(t.numcortes, s1 * s2 < 0 && pq < 0 ? 1u : 0u) << i;
        ASSERT_EQ(s.numcortes, (s1 * s2 < 0 || (s1 == 0 && m < 1000)) && pq <= 0 ? 1u : 0u) << i;
        h << s.numcortes << s.x3 << s.y3;
        if (t.numcortes == 0) continue;
        const double parte = static_cast<double>(g1) / static_cast<double>(g1 - g2), cota = lejos ? 4e-9 : 2e-6;
        ASSERT_LT(mt_distancia(s.x3, s.y3, s.x1 + parte * (s.x2 - s.x1), s.y1 + parte * (s.y2 - s.y1)), cota) << i;
    }
    EXPECT_EQ(h(), 12950052506369829053u);
}

PRUEBA(mt, las_raices_van_en_orden_y_no_pierden_cifras) {
    const struct {
        double a, b, c, r1, r2; // 9, 9: no roots
    } filas[] = {{1., -3., 2., 2., 1.},
                 {-1., 3., -2., 1., 2.},
                 {1., 3., 2., -1., -2.},
                 {1., 0., -4., 2., -2.},
                 {1., 2., 1., -1., -1.},
                 {1., 0., 0., 0., 0.},
                 {0., 2., -4., 2., 2.},
                 {0., 0., 1., 9., 9.},
                 {1., 0., 1., 9., 9.},
                 {1., -1e8, 1., 1e8, 1e-8},
                 {NAN_, 1., 0., 9., 9.},
                 {1., INF, 0., 9., 9.},
                 {0x1p600, -3 * 0x1p600, 0x1p601, 2., 1.},
                 {1e-170, -3e-170, 2e-170, 2., 1.},
                 {1e200, 3., 1e-200, -0.38196601125010515e-200, -2.618033988749895e-200},
                 {94906265.625, -189812534., 94906268.375, 1.0000000289759583, 1.},
                 {1e-300, 1e300, 0., 9., 9.}};
    for (const auto &f : filas) {
        double r1 = 9., r2 = 9.;
        EXPECT_EQ(mt_raices_ecuacion_segundo_grado(f.a, f.b, f.c, &r1, &r2), f.r1 != 9.) << "row " << &f - filas;
        EXPECT_TRUE(cerca(r1, f.r1, std::fabs(f.r1)) && cerca(r2, f.r2, std::fabs(f.r2)))
            << r1 << " " << r2 << ", row " << &f - filas;
    }
}

// At every scale, and at a survey's coordinates.
PRUEBA(mt, los_ejes_y_los_pies_estan_donde_se_piden) {
    azar a(4);
    for (int i = 0; i < CASOS; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const double k = l.x > 0. ? 1. : std::ldexp(1., static_cast<int>(a.entero(400)) - 200);
        const auto r = [&] { return k * (a.entero(5) == 0 ? 0. : a.entre(-1., 1.)); };
        const auto un_punto = [&] { return vector3{l.x + r(), l.y + r(), l.z + r()}; };
        const auto menos = [&k](const vector3 &p, const vector3 &q) {
            return vector3{(p.x - q.x) / k, (p.y - q.y) / k, (p.z - q.z) / k};
        };
        const vector3 p = un_punto(), q = un_punto(), s = un_punto(), u = menos(q, p), v = menos(s, p);
        const double cota = l.escala(20.) * 1e-13;
        vector3 pie, corte, producto;
        if (const ejes e(p, q, s); e.hay == CIERTO) {
            ASSERT_TRUE(e.error() < 1e-14 && por(e.x, u) > 0. && std::fabs(por(e.y, u)) < 1e-14 &&
                        std::fabs(por(e.z, v)) < 1e-7 && por(e.y, v) > 0.)
                << i;
            mt_producto_vectorial_3ptos(0., 0., 0., u.x, u.y, u.z, v.x, v.y, v.z, &producto.x, &producto.y,
                                        &producto.z);
            ASSERT_GT(por(producto, e.z), 0.) << i;
        }
        const ejes e(p, q);
        const bool vertical = std::fabs(e.x.x) < 1. / 64. && std::fabs(e.x.y) < 1. / 64.;
        ASSERT_TRUE(e.hay == (por(u, u) > 0.) && e.error() < 1e-14 && (vertical || (e.y.z == 0. && e.z.z >= 0.))) << i;
        mt_proyecta_punto_sobre_recta_3D(s.x, s.y, s.z, p.x, p.y, p.z, q.x, q.y, q.z, &pie.x, &pie.y, &pie.z);
        ASSERT_TRUE(e.hay == CIERTO ? std::fabs(por(menos(s, pie), e.x)) < cota : pie.x == p.x && pie.z == p.z) << i;
        const double D = mt_D_plano_posicionado_en_coordenada(e.z.x, e.z.y, e.z.z, p.x, p.y, p.z);
        if (mt_existe_interseccion_recta_con_plano(s.x, s.y, s.z, 0., 0., 5., e.z.x, e.z.y, e.z.z, D, &corte.x,
                                                   &corte.y, &corte.z) == CIERTO) {
            ASSERT_TRUE(corte.x == s.x && corte.y == s.y &&
                        std::fabs(por(menos(corte, p), e.z)) < cota / std::fabs(e.z.z))
                << i;
        }
    }
    // The limit of 1/64, in each of the two components: Y turns from Yg x N to horizontal.
    for (const double c : {1. / 64., abajo(1. / 64.)}) {
        double Xx, Xy, Xz;
        vornmath_calcula_matriz_transformacion_autocad(c, 0., std::sqrt(1. - c * c), &Xx, &Xy, &Xz, nullptr, nullptr,
                                                       nullptr);
        EXPECT_EQ(Xz != 0. && Xx > 0.9, c < 1. / 64.);
        vornmath_calcula_matriz_transformacion_autocad(0., -c, std::sqrt(1. - c * c), &Xx, &Xy, &Xz, nullptr, nullptr,
                                                       nullptr);
        EXPECT_TRUE(Xy == 0. && Xz == 0. && Xx > 0.9);
    }
    // Three points on a line, one point, not a number: the global axes, and said so.
    for (const double v : {2., 0., NAN_, INF}) {
        const ejes e({0., 0., 0.}, {1., 1., 1.}, {v, v, v});
        EXPECT_TRUE(e.hay == FALSO && e.x.x == 1. && e.y.y == 1. && e.z.z == 1. && e.x.y == 0.);
    }
}
