#include "exacto.h"
#include "geometry/punto.h"
#include <functional>
#include <numbers>
#include <optional>

namespace {

using vn::ante, vn::tras, vn::INF, vn::NAN_;
constexpr double EPS = 0.00005, VUELTA = 2 * std::numbers::pi;

// A point that is taken and freed.
std::optional<Punto2D> toma(Punto2D *p) {
    if (p == nullptr) return std::nullopt;
    const Punto2D v = *p;
    vornspy_free_pp(&p, sizeof(Punto2D));
    return v;
}
// An operation on points given by value: con<p_igual>({0, 0}, {1, 1}).
template <auto OP> auto con(Punto2D a, Punto2D b) { return OP(&a, &b); }
template <auto OP> auto con(Punto2D a, Punto2D b, Punto2D c) { return OP(&a, &b, &c); }
template <auto OP> auto con(Punto2D a, Punto2D b, Punto2D c, Punto2D d) { return OP(&a, &b, &c, &d); }
std::optional<Punto2D> cruce(Punto2D p1, Punto2D q1, Punto2D p2, Punto2D q2) {
    return toma(con<p_cortan>(p1, q1, p2, q2));
}
std::optional<Punto2D> seguro(Punto2D p1, Punto2D q1, Punto2D p2, Punto2D q2) {
    return toma(con<p_cortan_seguro>(p1, q1, p2, q2));
}
template <auto OP = p_cortan_spec>
std::optional<Punto2D> cruce_de(Punto2D p1, Punto2D q1, vnbool r1, Punto2D p2, Punto2D q2, vnbool r2) {
    return toma(OP(&p1, &q1, r1, &p2, &q2, r2));
}
double posicion(Punto2D p, Punto2D a, Punto2D b, vnbool calla = FALSO) {
    return posicion_relativa_al_segmento(&p, &a, &b, calla);
}
bool mete(Punto2D a, Punto2D b, Punto2D c, Punto2D d) {
    return p_seg_corta_dentro_rect(&a, &b, &c, &d, FALSO) == CIERTO;
}
auto lado(Punto2D p, Punto2D origen, double ux, double uy) {
    return p_lado_punto_respecto_a_recta(&p, &origen, ux, uy);
}
Punto2D girado(Punto2D p, double angulo) {
    p_gira_alrededor_punto_sentido_horario(0, 0, angulo, &p.x, &p.y);
    return p;
}

// The last number between `a`, where the condition holds, and `b`, where it does not.
double frontera(double a, double b, const std::function<bool(double)> &vale) {
    for (double m = a + (b - a) / 2; m != a && m != b; m = a + (b - a) / 2) (vale(m) ? a : b) = m;
    while (vale(std::nextafter(a, b))) a = std::nextafter(a, b);
    return a;
}

} // namespace

// Each tolerance at its limit and one step beyond: what moves one of them, or merges two, moves decisions of the
// drawings.
PRUEBA(punto, cada_tolerancia_tiene_su_limite_y_su_sentido) {
    const double parametro_bajo = frontera(0., 1., [](double x) { return -(2. * x) / 2e9 >= -1e-12; });
    const double parametro_alto = frontera(1e9, 1e9 + 1., [](double x) { return 2. * x / 2e9 <= 1.000000000001; });
    const double semirecta = frontera(1., 0., [](double x) { return 1e6 * x / 1e12 >= 1e-08; });
    const double base_corta = frontera(0., 1., [](double x) { return 5 * x < EPS; });
    const double sin_direccion = frontera(0., 1., [](double x) { return x * x <= 1e-10; });
    HASTA(EPS, 0, !con<p_igual>({d, 0}, {0, 0}) && !con<p_igual>({7, 0}, {7, -d}));
    HASTA(EPS, 1, con<p_contenido>({5, d}, {0, 0}, {10, 0}));
    HASTA(ante(EPS), 1, con<p_contenido>({-d, d}, {0, 0}, {10, 0})); // an end, by axis
    HASTA(EPS, 1, con<p_contenido_recta>({99, -d}, {0, 0}, {10, 0}));
    HASTA(semirecta, 0, con<p_contenido_semirecta>({d, 0}, {0, 0}, {1e6, 0})); // by its parameter
    HASTA(-EPS, -1, con<p_normal_corta>({d, 7}, {0, 0}, {1, 0}));              // closed, but the foot's is open
    HASTA(1 + EPS, 2, con<p_normal_corta>({d, 7}, {0, 0}, {1, 0}));
    HASTA(tras(-EPS), -1, toma(con<p_corte_normal>({d, 7}, {0, 0}, {1, 0})).has_value());
    HASTA(ante(1 + EPS), 2, toma(con<p_corte_normal>({d, 7}, {0, 0}, {1, 0})).has_value());
    HASTA(ante(EPS), 1, con<p_lado_recta>({0, d}, {0, 0}, {1, 0}));
    HASTA(ante(EPS) / 2, 1, con<p_lado_recta>({0, d}, {0, 0}, {2, 0})); // half for twice the base,
    HASTA(base_corta, 1, con<p_lado_recta>({0, d}, {0, 0}, {.5, 0}));   // which a short one is made as long as
    HASTA(1e-6, 1, lado({4, d}, {1, 0}, 1, 0) == 0);
    HASTA(-EPS, -1, con<p_minimax>({-1, 0}, {d, 1}, {0, 0}, {1, 1}));
    HASTA(-EPS, -1, con<p_minimax>({0, 0}, {1, 1}, {0, -1}, {1, d}));
    HASTA(-EPS, -1, p_se_solapan_rectangulos(d, 0, -1, 1, 1, 0, 0, 1)); // any corners of them
    HASTA(1e-08, 1, !cruce({1, 0}, {0, 0}, {.5, 0}, {.5, d}));          // parallel to that cross product
    HASTA(1e-08, 1, con<p_son_segmentos_paralelos>({1, 0}, {0, 0}, {3, 0}, {3, d}));
    // A crossing before or after either piece, by its parameter; beyond an end it is that end.
    HASTA(parametro_bajo, 1, cruce({1e9, 0}, {0, 0}, {-d, -1}, {-d, 1}).has_value());
    HASTA(parametro_alto, 2e9, cruce({1e9, 0}, {0, 0}, {d, -1}, {d, 1}).has_value());
    HASTA(parametro_bajo, 1, cruce({-d, -1}, {-d, 1}, {1e9, 0}, {0, 0}).has_value());
    HASTA(parametro_alto, 2e9, cruce({d, -1}, {d, 1}, {1e9, 0}, {0, 0}).has_value());
    HASTA(ante(EPS), 1, cruce({1, 0}, {0, 0}, {-d, -1}, {-d, 1}).has_value());
    HASTA(sin_direccion, 1, posicion({9, 9}, {0, 0}, {d, 0}, CIERTO) == -1e+100); // a squared length of 1e-10
    HASTA(ante(1e-08), 1, con<p_angulo>({0, 0}, {1, d}) == 0);
    HASTA(ante(1e-07), 1, girado({1, 0}, d).y == 0);
    HASTA(ante(1e-06), 1, mete({-d, .5}, {0, 4}, {0, 0}, {1, 1})); // vertical: no clip in y
}

PRUEBA(punto, la_tolerancia_que_se_cambia_mueve_sus_pruebas_y_no_las_demas) {
    EXPECT_EQ(p_cambia_eps(.5), EPS);
    EXPECT_TRUE(con<p_igual>({0, 0}, {.49, .49}) && con<p_contenido>({5, .5}, {0, 0}, {10, 0}) &&
                con<p_normal_corta>({-.5, 0}, {0, 0}, {1, 0}));
    EXPECT_TRUE(con<p_lado_recta>({0, .49}, {0, 0}, {1, 0}) && con<p_minimax>({-1, 0}, {-.5, 1}, {0, 0}, {1, 1}));
    // The others stay: parallelism, a segment without direction, the snap of an angle.
    EXPECT_TRUE(cruce({1, 0}, {0, 0}, {.5, 0}, {.5, 2e-08}) && posicion({1e-4, 0}, {0, 0}, {2e-4, 0}) == .5);
    EXPECT_NE(con<p_angulo>({0, 0}, {1, 1e-04}), 0);
    EXPECT_EQ(p_cambia_eps(EPS), .5);
    EXPECT_FALSE(con<p_igual>({0, 0}, {.49, .49}));
}

PRUEBA(punto, las_longitudes_son_exactas_en_los_ejes_y_las_posiciones_no_se_limitan) {
    const Punto2D p = {0, -3}, enorme = {1e300, 0}, r = {3, 4}, o = {0, 0};
    EXPECT_EQ(p_modulo(&p), 3);
    EXPECT_EQ(p_modulo(&enorme), 1e300); // its square is no number
    EXPECT_EQ(p_modulo2(&r, &o) + p_dist2(&r, &o), 30);
    EXPECT_EQ(ESPERA_INFORME("por >= 0. && por <= 1.", toma(p_porcion(&o, &r, 2)))->x, 6);
    double xs = 0, ys = 0;
    p_punto_simetrico_respecto_a_una_recta(5, 1, 1, 1, 0, 1, &xs, &ys); // in the vertical through x = 1
    EXPECT_TRUE(xs == -3 && ys == 1);
    EXPECT_EQ(toma(p_punto_en_recta(&r, 1, 0, 1, 0))->x, 1);
    Punto2D gira = {2, 0};
    p_gira2(&o, &gira, 1, 0); // a quarter of a turn, clockwise; then about itself
    p_gira2(&gira, &gira, 1, 0);
    EXPECT_TRUE(gira.x == 0 && gira.y == -2);
}

// Without a direction there is no position: what is said then is what hosts test for.
PRUEBA(punto, un_segmento_sin_direccion_se_informa_y_se_sigue) {
    static constexpr const char *texto = "!ES_CERO_PREC(den, p_EPS_2)";
    EXPECT_EQ(ESPERA_INFORME(texto, posicion({5, 5}, {1, 1}, {1, 1})), P_POSICION_DESCONOCIDA);
    EXPECT_EQ(ESPERA_INFORME(texto, posicion({1, 1}, {1, 1}, {1, 1})), 0);
    EXPECT_EQ(ESPERA_INFORME(texto, posicion({1.00005, 1}, {1, 1}, {1.000009, 1})), 1);
    EXPECT_FALSE(ESPERA_INFORME("puntos_distintos", con<p_lado_recta>({1, 5}, {0, 0}, {1e-5, 0})));
    EXPECT_TRUE(ESPERA_INFORME("puntos_distintos", con<p_lado_recta>({1, 5}, {0, 0}, {0, 0}))); // and comes to its end
    const Punto2D p = {1, 2}, q = {1, 2.00001}, lejos = {1e308, -1e308};
    punto_assert_distintos(&p, &lejos);
    punto_assert_iguales(&p, &q);
    nousar_punto_assert_distintos(&p, &q, "anfitrion", 77);
    nousar_punto_assert_iguales(&p, &lejos, "anfitrion", 78);
    const auto informes = vn::Prueba::toma_informes();
    ASSERT_EQ(informes.size(), 2u);
    EXPECT_EQ(informes[0].expresion + informes[0].detalle,
              "puntos_distintos(1.000000, 2.000000), (1.000000, 2.000010)");
    EXPECT_EQ(informes[1].linea, 78u);
    EXPECT_EQ(informes[1].detalle.find("(1.000000, 2.000000), (1000000000000000010979063629440455417404923"), 0u);
    EXPECT_EQ(informes[1].detalle.back(), ')');
}

PRUEBA(punto, el_cruce_de_piezas_paralelas_o_sin_longitud) {
    EXPECT_TRUE(con<p_segmentos_se_solapan>({0, 0}, {10, 0}, {4, 0}, {20, 0}) &&
                !con<p_segmentos_se_solapan>({0, 0}, {4, 0}, {10, 0}, {20, 0}));
    // The middle of both ends, of the first pair of ends that are equal.
    EXPECT_EQ(cruce({0, 0}, {10, 0}, {10.00004, 0}, {20, 0})->x, (10 + 10.00004) / 2);
    EXPECT_EQ(cruce({0, 0}, {10, 0}, {2e-5, 0}, {-2e-5, 0})->x, 1e-5);
    // A point crosses what it lies on, if asked safely; the crossing is its first end.
    EXPECT_EQ(seguro({4, 3e-5}, {4, -1e-5}, {0, 0}, {10, 0})->y, 3e-5);
    EXPECT_EQ(seguro({0, 0}, {10, 0}, {4, -1e-5}, {4, 3e-5})->y, -1e-5);
    EXPECT_FALSE(cruce({4, 0}, {4, 0}, {0, 0}, {10, 0}) || seguro({4, 3e-5}, {4, -1e-5}, {4, 3e-5}, {4, -1e-5}) ||
                 seguro({20, 0}, {20, 0}, {0, 0}, {10, 0}));
    EXPECT_TRUE(cruce_de<p_cortan_spec_seguro>({20, 0}, {20, 0}, FALSO, {0, 0}, {10, 0}, CIERTO));
    EXPECT_FALSE(cruce_de<p_cortan_spec_seguro>({20, 0}, {20, 0}, CIERTO, {0, 0}, {10, 0}, FALSO));
}

PRUEBA(punto, las_posiciones_de_una_caja_y_los_rangos_de_angulos) {
    // Anchor 1 to 9 of a box of 4 by 2, turned by a quarter: from the origin to (-2, 4).
    Punto2D p = {0, 0};
    p_punto_en_otra_posicion(&p, 1, 4, 2, 0, 1, 9);
    ESPERA_INFORME("posicion > 0 && posicion < 10 && otra_posicion > 0 && otra_posicion < 10",
                   p_punto_en_otra_posicion(&p, 10, 4, 2, 0, 1, 9));
    EXPECT_TRUE(p.x == -2 && p.y == 4);
    p_coordenadas_en_otra_posicion(1, 1, 0, 4, 2, 1, 0, 4, &p.x, &p.y); // 0 is the centre
    EXPECT_TRUE(p.x == -1 && p.y == 1);
    EXPECT_TRUE(!p_entre_angulos(0, 0, 1) && p_entre_angulos(0, 1, 1));
    for (const double raro : {NAN_, INF, -INF})
        EXPECT_EQ(p_filtra_angulo(raro) + p_entre_angulos(0, raro, 1) + p_entre_angulos(raro, 1, 1), 0);
    for (const double enorme : {1e17, -1e300, std::numeric_limits<double>::max(), -1e-300}) {
        EXPECT_GE(p_filtra_angulo(enorme), 0) << enorme;
        EXPECT_LT(p_filtra_angulo(enorme), VUELTA) << enorme;
    }
    EXPECT_EQ(con<p_angulo>({3, 3}, {3, 3}), 0);
    EXPECT_EQ(con<p_angulo_recta>({0, 0}, {0, -1}), VUELTA * .75 - VUELTA / 2);
    EXPECT_EQ(con<p_angulo_recta>({0, 0}, {-1, 0}), 0);
}

// What is no number lies nowhere, and what is too large gives nothing that is no number.
PRUEBA(punto, lo_que_no_es_un_numero_no_esta_en_ninguna_parte) {
    // Lines that meet beyond all numbers.
    EXPECT_FALSE(cruce_de({1e3, 1e-12}, {0, 0}, CIERTO, {0, 1e300}, {1e10, 1e300}, CIERTO));
    for (const double raro : {NAN_, INF, -INF, 1e308, -1e308}) {
        const Punto2D p = {raro, 0}, a = {0, 0}, b = {10, 1};
        SCOPED_TRACE(raro);
        for (const auto &r : {cruce(p, b, a, b), cruce(a, {1, 1}, p, {raro, 5}),
                              cruce_de(p, {-raro, 3}, CIERTO, a, b, CIERTO), toma(p_corte_normal_recta(&p, &a, &b)),
                              toma(p_corte_normal(&p, &a, &b)), toma(p_corte_normal_recta(&a, &p, &b))})
            EXPECT_TRUE(!r || (std::isfinite(r->x) && std::isfinite(r->y)));
        EXPECT_FALSE(con<p_contenido>(p, a, b) || con<p_normal_corta>(p, a, b));
        EXPECT_TRUE(con<p_angulo>(a, p) >= 0 && con<p_angulo>(p, a) < VUELTA);
        mete(p, b, a, b);
        if (!std::isnan(raro)) continue;
        EXPECT_FALSE(con<p_igual>(p, p) || con<p_lado_recta>(p, a, b) || mete(p, a, a, b) || mete(a, b, p, b) ||
                     mete(a, b, b, p));
        EXPECT_FALSE(p_minimax(&p, &b, &a, &b) || p_se_solapan_rectangulos(0, 0, 1, 1, 0, 0, 1, raro));
    }
}

// Against whole coordinates, where it is known exactly whether and where two pieces cross: 60,000 pairs, ends that
// touch and points that lie on the other piece among them.
PRUEBA(punto, los_cruces_son_los_exactos) {
    vn::azar z(41);
    vn::huella bits;
    int cruzan = 0, paralelas = 0;
    for (int i = 0; i < 60000; ++i) {
        const int64_t lado = i % 3 == 0 ? 4 : 40;
        const vn::lugar l = vn::lugar_de(i);
        const auto un_punto = [&] { return exacto::un_punto(z, lado, l); };
        const exacto::punto p1 = un_punto(), q1 = un_punto(), p2 = un_punto(), q2 = un_punto();
        const bool r1 = z.moneda(), r2 = z.moneda();
        const int64_t den = (p1.x - q1.x) * (q2.y - p2.y) - (p1.y - q1.y) * (q2.x - p2.x);
        const int64_t nt = (q2.x - q1.x) * (q2.y - p2.y) - (q2.y - q1.y) * (q2.x - p2.x);
        const int64_t nu = (p1.x - q1.x) * (q2.y - q1.y) - (p1.y - q1.y) * (q2.x - q1.x);
        const auto entre_0_y_1 = [&](int64_t n) { return den > 0 ? 0 <= n && n <= den : den <= n && n <= 0; };
        const auto r = cruce_de(p1, q1, r1, p2, q2, r2);
        paralelas += den == 0;
        EXPECT_EQ(r.has_value(), den == 0 ? p1 == p2 || p1 == q2 || q1 == p2 || q1 == q2
                                          : (r1 || entre_0_y_1(nt)) && (r2 || entre_0_y_1(nu)));
        if (!r) continue;
        ++cruzan;
        bits << r->x << r->y;
        if (den == 0) continue;
        const double t = static_cast<double>(nt) / static_cast<double>(den),
                     escala = l.escala(static_cast<double>(lado)) * (1 + std::fabs(t));
        EXPECT_TRUE(vn::cerca(r->x, static_cast<double>(q1.x) + t * static_cast<double>(p1.x - q1.x), escala));
        EXPECT_TRUE(vn::cerca(r->y, static_cast<double>(q1.y) + t * static_cast<double>(p1.y - q1.y), escala));
        EXPECT_EQ(r1 ? con<p_contenido_recta>(*r, p1, q1) : con<p_contenido>(*r, p1, q1), CIERTO);
        EXPECT_EQ(r2 ? con<p_contenido_recta>(*r, p2, q2) : con<p_contenido>(*r, p2, q2), CIERTO);
        if (HasFailure()) FAIL() << "pair " << i;
    }
    EXPECT_GT(cruzan, 20000);
    EXPECT_GT(paralelas, 500);
    EXPECT_EQ(bits(), 4866154121192569203u);
}

// The same for points and segments, boxes and sides.
PRUEBA(punto, las_preguntas_sobre_coordenadas_enteras_dan_lo_exacto) {
    vn::azar z(42);
    int cuantas[4] = {};
    for (int i = 0; i < 40000; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const auto un_punto = [&] { return exacto::un_punto(z, 9, l); };
        const exacto::punto p = un_punto(), a = un_punto(), b = un_punto(), c = un_punto();
        SCOPED_TRACE(i);
        EXPECT_EQ(con<p_contenido>(p, a, b), exacto::en_segmento(p, {a, b}));
        cuantas[0] += exacto::en_segmento(p, {a, b});
        const exacto::punto bajo = {std::min(p.x, c.x), std::min(p.y, c.y)},
                            alto = {std::max(p.x, c.x), std::max(p.y, c.y)};
        if (const auto como = exacto::frente_a({a, b}, bajo, alto); como != exacto::caja::toca) {
            EXPECT_EQ(mete(a, b, p, c), como == exacto::caja::dentro);
            ++cuantas[como == exacto::caja::dentro ? 1 : 2];
        }
        if (a == b) continue;
        const int giro = exacto::signo(exacto::giro(a, b, p));
        // Also where the coordinates have digits to the last place.
        const auto fino = [&l](const Punto2D &q) {
            return Punto2D{l.x + (q.x - l.x) * (1 + 0x1p-27), l.y + (q.y - l.y) * (1 + 0x1p-27)};
        };
        EXPECT_EQ(con<p_lado_recta>(fino(p), fino(a), fino(b)), giro <= 0);
        const double largo = std::hypot(b.x - a.x, b.y - a.y), ux = static_cast<double>(b.x - a.x) / largo,
                     uy = static_cast<double>(b.y - a.y) / largo;
        EXPECT_EQ(lado(p, a, ux, uy), (std::array{2u, 0u, 1u}[static_cast<size_t>(giro + 1)]));
        // The position parameter, its order and the normal that meets, in whole numbers.
        const auto avance = [&](auto &q) { return (b.x - a.x) * (q.x - a.x) + (b.y - a.y) * (q.y - a.y); };
        const int64_t total = avance(b);
        EXPECT_EQ(posicion(p, a, b), static_cast<double>(avance(p)) / static_cast<double>(total));
        EXPECT_EQ(con<p_esta_antes_en_recta>(p, c, a, b), avance(p) <= avance(c));
        EXPECT_EQ(con<p_normal_corta>(p, a, b), 0 <= avance(p) && avance(p) <= total);
        const bool en_semirecta = giro == 0 && avance(p) >= 0;
        EXPECT_EQ(con<p_contenido_semirecta>(p, a, b), en_semirecta);
        cuantas[3] += en_semirecta;
        if (HasFailure()) return;
    }
    for (const int n : cuantas) EXPECT_GT(n, 300);
}

// Directions and their turns come back to where they were; ranges turn counter-clockwise.
PRUEBA(punto, los_angulos_y_los_giros_son_inversos) {
    vn::azar z(43);
    for (int i = 0; i < 30000; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const Punto2D p = {l.x + z.entre(-1e3, 1e3), l.y + z.entre(-1e3, 1e3)};
        const double a = z.entre(0, VUELTA), r = z.entre(1, 1e3);
        const Punto2D q = {p.x + r * std::cos(a), p.y + r * std::sin(a)};
        ASSERT_TRUE(vn::cerca(std::remainder(p_angulo(&p, &q) - a, VUELTA), 0, l.escala(1e3))) << i;
        ASSERT_TRUE(vn::cerca(std::remainder(p_angulo_recta(&q, &p) - a, VUELTA / 2), 0, l.escala(1e3))) << i;
        double x = q.x, y = q.y;
        p_gira_alrededor_punto_sentido_horario(p.x, p.y, a, &x, &y); // back to the x axis
        ASSERT_TRUE(vn::cerca(x, p.x + r, l.escala(1e4)) && vn::cerca(y, p.y, l.escala(1e4))) << i;
        // Ranges by whole steps of a turn, the angle asked about between two of them.
        const int64_t k1 = z.entero_entre(-200, 200), k = z.entero_entre(-200, 200), k2 = z.entero_entre(-200, 200);
        const auto en = [](int64_t n, double mas) { return (static_cast<double>(n) + mas) * (VUELTA / 64); };
        const int64_t hasta = ((k2 - k1) % 64 + 64) % 64, cual = ((k - k1) % 64 + 64) % 64;
        ASSERT_TRUE(hasta == 0 || p_entre_angulos(en(k1, 0), en(k, .5), en(k2, 0)) == (cual < hasta)) << i;
    }
}
