#include "espacio.h"
#include "foundation/numeros/mt.h"

using namespace espacio;
using vn::ante, vn::azar, vn::cerca, vn::filas, vn::tras, vn::INF, vn::NAN_;

namespace {

constexpr double VUELTA = 6.283185307179586;
constexpr int CASOS = 20000;

struct ejes {
    vec x, y, z;
    vnbool hay;
    ejes(vec p, vec q) : hay(mt_calcular_ejes_3D_dados_2_puntos(XYZ(p), XYZ(q), A_XYZ(x), A_XYZ(y), A_XYZ(z))) {}
    ejes(vec p, vec q, vec r)
        : hay(mt_calcular_ejes_3D_dados_3_puntos(XYZ(p), XYZ(q), XYZ(r), A_XYZ(x), A_XYZ(y), A_XYZ(z))) {}
    // How far they are from unit vectors, square to each other and right-handed.
    double error() const {
        vec xy;
        mt_producto_vectorial(XYZ(x), XYZ(y), A_XYZ(xy));
        return std::fabs(por(x, x) - 1.) + std::fabs(por(y, y) - 1.) + std::fabs(mt_producto_escalar(XYZ(x), XYZ(y))) +
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
        vec n{2. * k, -3. * k, 6. * k};
        EXPECT_TRUE(mt_pasar_a_unitario_3D(A_XYZ(n)) == CIERTO && largo(n - vec{2. / 7., -3. / 7., 6. / 7.}) < 1e-15);
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
    for (const auto &[angulo, filtrado] : filas<double, double>("foundation/mt.tsv", "filtrados"))
        EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(angulo), filtrado);
    for (const auto &[x, y, angulo] : filas<double, double, double>("foundation/mt.tsv", "angulos"))
        EXPECT_TRUE(cerca(mt_angulo(0., 0., x, y), angulo)) << x << " " << y;
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
    for (const auto &[angulo, inicio, fin, dentro] : filas<double, double, double, int>("foundation/mt.tsv", "arcos"))
        EXPECT_EQ(mt_angulo_dentro_de_rango(angulo, inicio, fin), dentro) << angulo << " " << inicio << " " << fin;
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
    const double P = 1e-5, C = 1e-6;
    HASTA(P, 1, mt_punto_pertenece_a_segmento(d, 0., -1., 0., 0., 0.) == CIERTO);
    HASTA(P, 1, mt_punto_pertenece_a_segmento(-0.5, -d, -1., 0., 0., 0.) == CIERTO);
    HASTA(P, 1, mt_punto_pertenece_a_segmento(0., d, 0., 0., 0., 0.) == CIERTO);
    EXPECT_EQ(mt_punto_pertenece_a_segmento(NAN_, 0., -1., 0., 0., 0.), FALSO);
    const auto cruza = [](mt_segmento_t a, mt_segmento_t b) {
        return mt_existe_interseccion_entre_segmentos(a.x1, a.y1, a.x2, a.y2, b.x1, b.y1, b.x2, b.y2, nullptr,
                                                      nullptr) == CIERTO;
    };
    const auto vertical = [](double x) { return seg(x, -1., x, 1.); };
    HASTA(-C, -1, cruza(seg(0., 0., 1., 0.), vertical(d)));
    HASTA(C, 1, cruza(seg(-1., 0., 1., 0.), seg(0., d, 0., 1.)));
    EXPECT_TRUE(cruza(seg(-1., 0., 0., 0.), vertical(C)) && !cruza(seg(-1., 0., 0., 0.), vertical(tras(C) + 2e-16)));
    EXPECT_FALSE(cruza(seg(0., 0., 2., 2.), seg(1., 1., 3., 3.)) || cruza(seg(0., 0., 0., 0.), vertical(0.)) ||
                 cruza(seg(0., NAN_, 1., 0.), vertical(0.)));
    // What is on one line but for the rounding of its coordinates is parallel, and what is off it by more is not.
    azar a(6);
    for (int i = 0; i < CASOS; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const double g = a.entre(0., VUELTA), z = a.entre(-1., 1.);
        const auto p = [&](double t, double al_lado = 0.) {
            return vec{l.x + t * std::cos(g) - al_lado * std::sin(g), l.y + t * std::sin(g) + al_lado * std::cos(g),
                       l.z + t * z};
        };
        const double k = a.entre(.1, 10.), fuera = l.escala(1.) * 1e-11;
        const vec e[] = {p(0.), p(k), p(k / 2.), p(3. * k), p(.6 * k, fuera), p(.3 * k, -fuera)};
        ASSERT_FALSE(cruza(seg(e[0].x, e[0].y, e[1].x, e[1].y), seg(e[2].x, e[2].y, e[3].x, e[3].y))) << i;
        ASSERT_TRUE(cruza(seg(e[0].x, e[0].y, e[1].x, e[1].y), seg(e[4].x, e[4].y, e[5].x, e[5].y))) << i;
        ASSERT_FALSE(ejes(e[0], e[1], e[3]).hay || ejes(e[2], e[3], e[0]).hay || !ejes(e[0], e[1], e[4]).hay) << i;
    }
    HASTA(C, 1, mt_puntos2D_iguales(d, 0., 0., -d) == CIERTO);
    HASTA(0.25, 1, mt_puntos2D_iguales_con_tolerancia(0., d, 0., 0., 0.25) == CIERTO);
    const auto corta = [](double z2, double z = 1.) {
        return mt_existe_interseccion_recta_con_plano(0., 0., z, 1., 0., z2, 0., 0., 1., 0., nullptr, nullptr, nullptr);
    };
    EXPECT_TRUE(corta(1e-6) == FALSO && corta(1.000001e-6) == CIERTO);
    EXPECT_TRUE(corta(NAN_) == FALSO && corta(1e-5, 1e308) == FALSO);
}

// A cut at an end is that end, and its own segment is not cut; the inside test of polygons stands on this.
PRUEBA(mt, los_cortes_de_segmentos_dicen_cual_queda_partido) {
    for (const auto &[segmentos, cortes] : filas<std::string, std::string>("foundation/mt.tsv", "cortes")) {
        const auto v = vn::los_numeros(segmentos);
        mt_segmento_t a = seg(v.at(0), v[1], v[2], v[3]), b = seg(v[4], v[5], v[6], v.at(7));
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
        EXPECT_EQ(s, cortes) << segmentos;
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
    for (const auto &[a, b, c, hay, x1, x2] :
         filas<double, double, double, int, double, double>("foundation/mt.tsv", "raices")) {
        double r1 = 9., r2 = 9.;
        EXPECT_EQ(mt_raices_ecuacion_segundo_grado(a, b, c, &r1, &r2), hay) << a << " " << b << " " << c;
        EXPECT_TRUE(cerca(r1, x1, std::fabs(x1)) && cerca(r2, x2, std::fabs(x2))) << a << " " << b << " " << c;
    }
}

// At every scale, and at a survey's coordinates.
PRUEBA(mt, los_ejes_y_los_pies_estan_donde_se_piden) {
    azar a(4);
    for (int i = 0; i < CASOS; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const double k = l.x > 0. ? 1. : std::ldexp(1., static_cast<int>(a.entero(400)) - 200);
        const auto r = [&] { return k * (a.entero(5) == 0 ? 0. : a.entre(-1., 1.)); };
        const auto un_punto = [&] { return vec{l.x + r(), l.y + r(), l.z + r()}; };
        const auto menos = [&k](vec p, vec q) { return (1. / k) * (p - q); };
        const vec p = un_punto(), q = un_punto(), s = un_punto(), u = menos(q, p), v = menos(s, p);
        const double cota = l.escala(20.) * 1e-13;
        vec pie, corte, producto;
        if (const ejes e(p, q, s); e.hay == CIERTO) {
            mt_producto_vectorial_3ptos(0., 0., 0., XYZ(u), XYZ(v), A_XYZ(producto));
            ASSERT_TRUE(e.error() < 1e-14 && por(e.x, u) > 0. && std::fabs(por(e.y, u)) < 1e-14 &&
                        std::fabs(por(e.z, v)) < 1e-7 && por(e.y, v) > 0. && por(producto, e.z) > 0.)
                << i;
        }
        const ejes e(p, q);
        const bool vertical = std::fabs(e.x.x) < 1. / 64. && std::fabs(e.x.y) < 1. / 64.;
        ASSERT_TRUE(e.hay == (por(u, u) > 0.) && e.error() < 1e-14 && (vertical || (e.y.z == 0. && e.z.z >= 0.))) << i;
        mt_proyecta_punto_sobre_recta_3D(XYZ(s), XYZ(p), XYZ(q), A_XYZ(pie));
        ASSERT_TRUE(e.hay == CIERTO ? std::fabs(por(menos(s, pie), e.x)) < cota : pie.x == p.x && pie.z == p.z) << i;
        const double D = mt_D_plano_posicionado_en_coordenada(XYZ(e.z), XYZ(p));
        ASSERT_TRUE(
            mt_existe_interseccion_recta_con_plano(XYZ(s), 0., 0., 5., XYZ(e.z), D, A_XYZ(corte)) == FALSO ||
            (corte.x == s.x && corte.y == s.y && std::fabs(por(menos(corte, p), e.z)) < cota / std::fabs(e.z.z)))
            << i;
    }
    // The limit of 1/64, in each of the two components: Y turns from Yg x N to horizontal.
    const auto x_de = [](double Nx, double Ny) {
        vec X;
        vornmath_calcula_matriz_transformacion_autocad(Nx, Ny, std::sqrt(1. - Nx * Nx - Ny * Ny), A_XYZ(X), nullptr,
                                                       nullptr, nullptr);
        return X;
    };
    HASTA(ante(1. / 64.), 1, x_de(d, 0.).z != 0. && x_de(d, 0.).x > 0.9);
    for (const double c : {1. / 64., ante(1. / 64.)}) {
        const vec X = x_de(0., -c);
        EXPECT_TRUE(X.y == 0. && X.z == 0. && X.x > 0.9);
    }
    // Three points on a line, one point, not a number: the global axes, and said so.
    for (const double v : {2., 0., NAN_, INF}) {
        const ejes e({0., 0., 0.}, {1., 1., 1.}, {v, v, v});
        EXPECT_TRUE(e.hay == FALSO && e.x.x == 1. && e.y.y == 1. && e.z.z == 1. && e.x.y == 0.);
    }
}
