#include "exacto.h"
#include "geometry/punto.h"
#include "prueba.h"
#include <cmath>
#include <functional>
#include <limits>
#include <memory>
#include <numbers>
#include <optional>

namespace {

constexpr double EPS = 0.00005, VUELTA = 2 * std::numbers::pi;
constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN(), INF = std::numeric_limits<double>::infinity();

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
std::optional<Punto2D> cruce_de(Punto2D p1, Punto2D q1, vnbool r1, Punto2D p2, Punto2D q2, vnbool r2) {
    return toma(p_cortan_spec(&p1, &q1, r1, &p2, &q2, r2));
}
double posicion(Punto2D p, Punto2D a, Punto2D b) { return posicion_relativa_al_segmento(&p, &a, &b, FALSO); }
bool mete(Punto2D a, Punto2D b, Punto2D c, Punto2D d) {
    return p_seg_corta_dentro_rect(&a, &b, &c, &d, FALSO) == CIERTO;
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
    const double parametro_bajo = frontera(0., 1., [](double d) { return -(2. * d) / 2e9 >= -1e-12; });
    const double parametro_alto = frontera(1e9, 1e9 + 1., [](double x) { return 2. * x / 2e9 <= 1.000000000001; });
    const double semirecta = frontera(1., 0., [](double x) { return 1e6 * x / 1e12 >= 1e-08; });
    const double base_corta = frontera(0., 1., [](double d) { return 5 * d < EPS; });
    const double sin_direccion = frontera(0., 1., [](double x) { return x * x <= 1e-10; });
    // clang-format off
    // The condition holds at `ultimo` and not one step further, towards `hacia`.
    const struct {
        const char *que;
        double ultimo, hacia;
        std::function<bool(double)> vale;
    } filas[] = {
        {"two points differ from p_EPS on", EPS, 0,
         [](double d) { return !con<p_igual>({d, 0}, {0, 0}) && !con<p_igual>({7, 0}, {7, -d}); }},
        {"a point lies on a segment to p_EPS", EPS, 1,
         [](double d) { return con<p_contenido>({5, d}, {0, 0}, {10, 0}); }},
        {"an end is the segment within p_EPS by axis", std::nextafter(EPS, 0), 1,
         [](double d) { return con<p_contenido>({-d, d}, {0, 0}, {10, 0}); }},
        {"a point lies on a line to p_EPS", EPS, 1,
         [](double d) { return con<p_contenido_recta>({99, -d}, {0, 0}, {10, 0}); }},
        {"a half-line begins at 1e-8 of its base", semirecta, 0,
         [](double x) { return con<p_contenido_semirecta>({x, 0}, {0, 0}, {1e6, 0}); }},
        {"a normal meets from -p_EPS, closed", -EPS, -1,
         [](double t) { return con<p_normal_corta>({t, 7}, {0, 0}, {1, 0}); }},
        {"a normal meets to 1 + p_EPS, closed", 1 + EPS, 2,
         [](double t) { return con<p_normal_corta>({t, 7}, {0, 0}, {1, 0}); }},
        {"its foot is open below", std::nextafter(-EPS, 0), -1,
         [](double t) { return toma(con<p_corte_normal>({t, 7}, {0, 0}, {1, 0})).has_value(); }},
        {"its foot is open above", std::nextafter(1 + EPS, 0), 2,
         [](double t) { return toma(con<p_corte_normal>({t, 7}, {0, 0}, {1, 0})).has_value(); }},
        {"the right side reaches p_EPS to the left", std::nextafter(EPS, 0), 1,
         [](double d) { return con<p_lado_recta>({0, d}, {0, 0}, {1, 0}); }},
        {"and half of that for twice the base", std::nextafter(EPS, 0) / 2, 1,
         [](double d) { return con<p_lado_recta>({0, d}, {0, 0}, {2, 0}); }},
        {"which a short base is made as long as", base_corta, 1,
         [](double d) { return con<p_lado_recta>({0, d}, {0, 0}, {.5, 0}); }},
        {"on the line to 1e-6", 1e-6, 1,
         [](double d) {
             const Punto2D p = {4, d}, o = {1, 0};
             return p_lado_punto_respecto_a_recta(&p, &o, 1, 0) == 0;
         }},
        {"boxes touch to p_EPS", -EPS, -1,
         [](double d) { return con<p_minimax>({-1, 0}, {d, 1}, {0, 0}, {1, 1}); }},
        {"upwards too", -EPS, -1,
         [](double d) { return con<p_minimax>({0, 0}, {1, 1}, {0, -1}, {1, d}); }},
        {"any corners of them", -EPS, -1, [](double d) { return p_se_solapan_rectangulos(d, 0, -1, 1, 1, 0, 0, 1); }},
        {"parallel to a cross product of 1e-8", 1e-08, 1,
         [](double h) { return !cruce({1, 0}, {0, 0}, {.5, 0}, {.5, h}); }},
        {"parallel, by the question", 1e-08, 1,
         [](double h) { return con<p_son_segmentos_paralelos>({1, 0}, {0, 0}, {3, 0}, {3, h}); }},
        {"a crossing before the first piece, by its parameter", parametro_bajo, 1,
         [](double d) { return cruce({1e9, 0}, {0, 0}, {-d, -1}, {-d, 1}).has_value(); }},
        {"a crossing after the first piece", parametro_alto, 2e9,
         [](double x) { return cruce({1e9, 0}, {0, 0}, {x, -1}, {x, 1}).has_value(); }},
        {"a crossing before the second piece", parametro_bajo, 1,
         [](double d) { return cruce({-d, -1}, {-d, 1}, {1e9, 0}, {0, 0}).has_value(); }},
        {"a crossing after the second piece", parametro_alto, 2e9,
         [](double x) { return cruce({x, -1}, {x, 1}, {1e9, 0}, {0, 0}).has_value(); }},
        {"a crossing beyond an end is that end within p_EPS", std::nextafter(EPS, 0), 1,
         [](double d) { return cruce({1, 0}, {0, 0}, {-d, -1}, {-d, 1}).has_value(); }},
        {"no direction to a squared length of 1e-10", sin_direccion, 1,
         [](double l) {
             const Punto2D p = {9, 9}, a = {0, 0}, b = {l, 0};
             return posicion_relativa_al_segmento(&p, &a, &b, CIERTO) == -1e+100;
         }},
        {"a direction is the x axis below 1e-8", std::nextafter(1e-08, 0), 1,
         [](double a) { return con<p_angulo>({0, 0}, {1, a}) == 0; }},
        {"a turn is none below 1e-7", std::nextafter(1e-07, 0), 1,
         [](double a) {
             double x = 1, y = 0;
             p_gira_alrededor_punto_sentido_horario(0, 0, a, &x, &y);
             return y == 0;
         }},
        {"vertical below a width of 1e-6: no clip in y", std::nextafter(1e-06, 0), 1,
         [](double w) { return mete({-w, .5}, {0, 4}, {0, 0}, {1, 1}); }},
    };
    // clang-format on
    for (const auto &f : filas) {
        EXPECT_TRUE(f.vale(f.ultimo)) << f.que;
        EXPECT_FALSE(f.vale(std::nextafter(f.ultimo, f.hacia))) << f.que;
    }
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
    const Punto2D a = {0, 0}, b = {10, 0}, c = {4, 0}, d = {20, 0};
    EXPECT_EQ(p_segmentos_se_solapan(&a, &b, &c, &d), CIERTO);
    EXPECT_EQ(p_segmentos_se_solapan(&a, &c, &b, &d), FALSO);
    // The middle of both ends, of the first pair of ends that are equal; also for lines.
    EXPECT_EQ(cruce({0, 0}, {10, 0}, {10.00004, 0}, {20, 0})->x, (10 + 10.00004) / 2);
    EXPECT_EQ(cruce({0, 0}, {10, 0}, {2e-5, 0}, {-2e-5, 0})->x, 1e-5);
    EXPECT_EQ(cruce_de({1, 0}, {2, 0}, CIERTO, {7, 0}, {2, 0}, CIERTO)->x, 2);
    // A point crosses what it lies on, if asked safely; the crossing is its first end, a copy.
    const Punto2D p = {4, 3e-5}, q = {4, -1e-5};
    EXPECT_EQ(toma(p_cortan_seguro(&p, &q, &a, &b))->y, 3e-5);
    EXPECT_EQ(toma(p_cortan_seguro(&a, &b, &q, &p))->y, -1e-5);
    EXPECT_FALSE(toma(p_cortan(&c, &c, &a, &b)));
    EXPECT_TRUE(toma(p_cortan(&b, &b, &a, &b))); // an end that is the same
    EXPECT_FALSE(toma(p_cortan_seguro(&p, &q, &p, &q)));
    EXPECT_FALSE(toma(p_cortan_seguro(&d, &d, &a, &b)));
    EXPECT_TRUE(toma(p_cortan_spec_seguro(&d, &d, FALSO, &a, &b, CIERTO)));
    EXPECT_FALSE(toma(p_cortan_spec_seguro(&d, &d, CIERTO, &a, &b, FALSO)));
}

PRUEBA(punto, las_posiciones_de_una_caja_y_los_rangos_de_angulos) {
    // Anchor 1 to 9 of a box of 4 by 2, turned by a quarter: from the origin to (-2, 4).
    Punto2D p = {0, 0};
    p_punto_en_otra_posicion(&p, 1, 4, 2, 0, 1, 9);
    EXPECT_TRUE(p.x == -2 && p.y == 4);
    double x = 0, y = 0;
    p_coordenadas_en_otra_posicion(1, 1, 0, 4, 2, 1, 0, 4, &x, &y); // 0 is the centre
    EXPECT_TRUE(x == -1 && y == 1);
    static constexpr const char *texto = "posicion > 0 && posicion < 10 && otra_posicion > 0 && otra_posicion < 10";
    ESPERA_INFORME(texto, p_punto_en_otra_posicion(&p, 10, 4, 2, 0, 1, 9));
    EXPECT_TRUE(p.x == -2 && p.y == 4);

    EXPECT_TRUE(!p_entre_angulos(0, 0, 1) && p_entre_angulos(0, 1, 1) && p_entre_angulos(6, .5, 1) &&
                !p_entre_angulos(1, .5, 0));
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
    EXPECT_FALSE(cruce_de({1e3, 1e-12}, {0, 0}, CIERTO, {0, 1e300}, {1e10, 1e300},
                          CIERTO)); // lines that meet beyond all numbers
    for (const double raro : {NAN_, INF, -INF, 1e308, -1e308}) {
        const Punto2D p = {raro, 0}, a = {0, 0}, b = {10, 1};
        SCOPED_TRACE(raro);
        for (const auto &r : {cruce(p, b, a, b), cruce(a, {1, 1}, p, {raro, 5}),
                              cruce_de(p, {-raro, 3}, CIERTO, a, b, CIERTO), toma(p_corte_normal_recta(&p, &a, &b)),
                              toma(p_corte_normal(&p, &a, &b)), toma(p_corte_normal_recta(&a, &p, &b))})
            if (r) {
                EXPECT_TRUE(std::isfinite(r->x) && std::isfinite(r->y));
            }
        EXPECT_FALSE(con<p_contenido>(p, a, b));
        EXPECT_FALSE(con<p_normal_corta>(p, a, b));
        EXPECT_GE(con<p_angulo>(a, p), 0);
        EXPECT_LT(p_angulo(&p, &a), VUELTA);
        mete(p, b, a, b);
        if (std::isnan(raro)) {
            EXPECT_FALSE(con<p_igual>(p, p) || con<p_lado_recta>(p, a, b) || mete(p, a, a, b) || mete(a, b, p, b) ||
                         mete(a, b, b, p));
            EXPECT_FALSE(p_minimax(&p, &b, &a, &b) || p_se_solapan_rectangulos(0, 0, 1, 1, 0, 0, 1, raro));
        }
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
        if (den == 0) {
            ++paralelas;
            EXPECT_EQ(r.has_value(), p1 == p2 || p1 == q2 || q1 == p2 || q1 == q2);
        } else {
            EXPECT_EQ(r.has_value(), (r1 || entre_0_y_1(nt)) && (r2 || entre_0_y_1(nu)));
        }
        if (!r) continue;
        ++cruzan;
        bits << r->x << r->y;
        if (den == 0) continue;
        const double t = static_cast<double>(nt) / static_cast<double>(den),
                     escala = l.escala(static_cast<double>(lado)) * (1 + std::fabs(t));
        EXPECT_TRUE(vn::cerca(r->x, static_cast<double>(q1.x) + t * static_cast<double>(p1.x - q1.x), escala));
        EXPECT_TRUE(vn::cerca(r->y, static_cast<double>(q1.y) + t * static_cast<double>(p1.y - q1.y), escala));
        const Punto2D a = p1, b = q1, c = p2, d = q2;
        EXPECT_EQ(r1 ? p_contenido_recta(&*r, &a, &b) : p_contenido(&*r, &a, &b), CIERTO);
        EXPECT_EQ(r2 ? p_contenido_recta(&*r, &c, &d) : p_contenido(&*r, &c, &d), CIERTO);
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
        const double largo = std::hypot(b.x - a.x, b.y - a.y);
        const Punto2D pd = p, ad = a, bd = b, cd = c;
        EXPECT_EQ(p_lado_punto_respecto_a_recta(&pd, &ad, static_cast<double>(b.x - a.x) / largo,
                                                static_cast<double>(b.y - a.y) / largo),
                  giro > 0   ? 1u
                  : giro < 0 ? 2u
                             : 0u);
        // The position parameter, its order and the normal that meets, in whole numbers.
        const auto avance = [&](const exacto::punto &q) {
            return (b.x - a.x) * (q.x - a.x) + (b.y - a.y) * (q.y - a.y);
        };
        const int64_t total = avance(b);
        EXPECT_EQ(posicion(p, a, b), static_cast<double>(avance(p)) / static_cast<double>(total));
        EXPECT_EQ(p_esta_antes_en_recta(&pd, &cd, &ad, &bd) == CIERTO, avance(p) <= avance(c));
        EXPECT_EQ(con<p_normal_corta>(p, a, b), 0 <= avance(p) && avance(p) <= total);
        const bool en_semirecta = giro == 0 && avance(p) >= 0;
        EXPECT_EQ(p_contenido_semirecta(&pd, &ad, &bd) == CIERTO, en_semirecta);
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
        if (hasta != 0) {
            ASSERT_EQ(p_entre_angulos(en(k1, 0), en(k, .5), en(k2, 0)) == CIERTO, cual < hasta) << i;
        }
    }
}
