#include "foundation/arr_priv.h"
#include "foundation/mt.h"
#include "geometry/interarc.h"
#include "propiedades.h"
#include "prueba.h"
#include <limits>
#include <memory>

using vn::azar;
using vn::cerca;

namespace {

constexpr double VUELTA = 6.283185307179586, INF = std::numeric_limits<double>::infinity();
constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN();
constexpr int CASOS = 20000;

struct destruye {
    void operator()(arrPunto2D *a) const { arr_DestruyePunto2D(&a); }
};

// The points that an operation appends, and what it answered.
struct cortes {
    std::unique_ptr<arrPunto2D, destruye> a{arr_CreaPunto2D(0)};
    vnbool hay = FALSO;
    std::span<const Punto2D> puntos() const { return vn::tramo(static_cast<const arrPunto2D *>(a.get())); }
    size_t num() const {
        EXPECT_EQ(hay == CIERTO, !puntos().empty());
        return puntos().size();
    }
};

cortes con_circulo(double x1, double y1, double x2, double y2, double xc, double yc, double r) {
    cortes c;
    c.hay = mt_interseccion_segmento_circunferencia(x1, y1, x2, y2, xc, yc, r, c.a.get());
    return c;
}

cortes entre(double xc1, double yc1, double r1, double xc2, double yc2, double r2) {
    cortes c;
    c.hay = mt_interseccion_entre_circunferencias(xc1, yc1, r1, xc2, yc2, r2, c.a.get());
    return c;
}

double distancia_a_segmento(const Punto2D &p, double x1, double y1, double x2, double y2) {
    const double t = std::clamp(mt_posicion_relativa_a_segmento(p.x, p.y, x1, y1, x2, y2), 0., 1.);
    return mt_distancia(p.x, p.y, x1 + t * (x2 - x1), y1 + t * (y2 - y1));
}

} // namespace

PRUEBA(interarc, las_tangentes_y_los_limites_de_vertical_y_horizontal_son_los_dichos) {
    constexpr double D = 0.0001; // from which on a segment is oblique
    const struct {
        double x1, y1, x2, y2;
        size_t puntos;
    } filas[] = {
        {5., -9., 5., 9., 0},
        {std::nextafter(5., 0.), -9., std::nextafter(5., 0.), 9., 2},
        {-9., 5., 9., 5., 0},
        {-9., -5., 9., -5., 0},
        {5. * 0.6 - 8., 5. * 0.8 + 6., 5. * 0.6 + 8., 5. * 0.8 - 6., 2}, // 3-4-5: the double root, twice
        {0., 0., 9., 9., 1},
        {-9., -9., 9., 9., 2},
        {1., 1., 1., 1., 0},
        {6., 6., 9., 9., 0},
        {0., 0., 0., 5., 1},
        {4., -9., 4. + std::nextafter(D, 0.), 9., 2},
        {0., 0., 0., 4.99999, 1},
        {0., 0., 0., 4.9999, 0},
        {NAN_, 0., 9., 1., 0},
        {0., 0., INF, 1., 0},
        {-1e308, -1e308, 1e308, 1e308, 0},
    };
    for (const auto &f : filas)
        EXPECT_EQ(con_circulo(f.x1, f.y1, f.x2, f.y2, 0., 0., 5.).num(), f.puntos) << "row " << &f - filas;
    // Vertical means at its first end; one step further it is oblique and meets the circle where it is.
    const cortes vertical = con_circulo(0., -9., std::nextafter(D, 0.), 9., 0., 0., 5.),
                 oblicuo = con_circulo(0., -9., D, 9., 0., 0., 5.);
    EXPECT_EQ(vertical.puntos()[0].x, 0.);
    EXPECT_NEAR(oblicuo.puntos()[0].x, D * 14. / 18., 1e-12);
    const cortes horizontal = con_circulo(9., std::nextafter(D, 0.), -9., 0., 0., 0., 5.);
    EXPECT_EQ(horizontal.puntos()[1].y, std::nextafter(D, 0.));
    const cortes tangente =
        con_circulo(5. * 0.6 - 8., 5. * 0.8 + 6., 5. * 0.6 + 8., 5. * 0.8 - 6., 0., 0., 5.);
    EXPECT_TRUE(cerca(tangente.puntos()[0].x, 3., 1e4) && cerca(tangente.puntos()[1].y, 4., 1e4));
    // What was in the array stays.
    cortes dos = con_circulo(-9., 1., 9., 2., 0., 0., 5.);
    mt_interseccion_segmento_circunferencia(-9., 3., 9., 2., 0., 0., 5., dos.a.get());
    EXPECT_EQ(dos.num(), 4u);
}

PRUEBA(interarc, los_cortes_de_un_segmento_estan_en_el_y_en_el_circulo_y_no_falta_ninguno) {
    azar a(21);
    vn::huella h;
    for (int i = 0; i < CASOS; ++i) {
        const double xc = a.entre(-100., 100.), yc = a.entre(-100., 100.), r = a.entre(0.5, 50.);
        const auto p = [&] { return Punto2D{xc + a.entre(-60., 60.), yc + a.entre(-60., 60.)}; };
        const Punto2D s = p();
        Punto2D t = p();
        if (i % 8 == 0) t.x = s.x;
        if (i % 8 == 1) t.y = s.y;
        const cortes c = con_circulo(s.x, s.y, t.x, t.y, xc, yc, r);
        for (const Punto2D &q : c.puntos()) {
            ASSERT_NEAR(mt_distancia(q.x, q.y, xc, yc), r, 1e-5) << i;
            ASSERT_LT(distancia_a_segmento(q, s.x, s.y, t.x, t.y), 2e-5) << i;
            h << q.x << q.y;
        }
        // As many as sides changed, unless an end or a tangent is a hair away.
        const double ds = mt_distancia(s.x, s.y, xc, yc) - r, dt = mt_distancia(t.x, t.y, xc, yc) - r;
        const double cerca_del_centro = distancia_a_segmento({xc, yc}, s.x, s.y, t.x, t.y);
        if (std::min({std::fabs(ds), std::fabs(dt), std::fabs(cerca_del_centro - r)}) < 1e-3) continue;
        ASSERT_EQ(c.num(), (ds < 0) != (dt < 0) ? 1u : ds > 0 && cerca_del_centro < r ? 2u : 0u) << i;
    }
    EXPECT_EQ(h(), 17839126940750863376u);
}

PRUEBA(interarc, los_cortes_de_circulos_estan_en_los_dos_tambien_lejos_del_origen) {
    azar a(22);
    vn::huella h;
    for (int i = 0; i < CASOS; ++i) {
        const double lejos =
            i % 2 == 0 ? 0. : 4e6; // a national grid, where the squares of coordinates have no decimals left
        const double x1 = lejos + a.entre(-50., 50.), y1 = lejos + a.entre(-50., 50.), r1 = a.entre(0.1, 40.),
                     r2 = a.entre(0.1, 40.);
        const double x2 = i % 8 < 2 ? x1 : lejos + a.entre(-50., 50.),
                     y2 = i % 8 == 3 ? y1 : lejos + a.entre(-50., 50.);
        const double d = mt_distancia(x1, y1, x2, y2);
        const cortes c = entre(x1, y1, r1, x2, y2, r2);
        for (const Punto2D &q : c.puntos()) {
            ASSERT_NEAR(mt_distancia(q.x, q.y, x1, y1), r1, 1e-5) << i;
            ASSERT_NEAR(mt_distancia(q.x, q.y, x2, y2), r2, 1e-5) << i;
            h << q.x << q.y;
        }
        if (std::min({std::fabs(d - r1 - r2), std::fabs(std::fabs(r1 - r2) - d), d}) < 1e-3) continue;
        ASSERT_EQ(c.num(), d < r1 + r2 && d > std::fabs(r1 - r2) ? 2u : 0u) << i;
    }
    EXPECT_EQ(h(), 3137342310516164723u);
    EXPECT_EQ(entre(1., 1., 2., 1., 1., 2.).num() + entre(1., 1., 2., 1., 1., 3.).num(), 0u); // concentric
    EXPECT_EQ(entre(0., 0., 2., 0.00009, 0., 2.).num(), 0u);
    EXPECT_EQ(entre(0., 0., 2., 0.0001, 0., 2.).num(), 2u);
    EXPECT_EQ(entre(0., 0., 2., 5., 0., 3.).num(), 0u); // they touch on a vertical line: no cut
    EXPECT_EQ(entre(0., 0., 5., 6., 8., 5.).num(), 2u); // and on an oblique one: the double root
    EXPECT_EQ(entre(NAN_, 0., 2., 1., 0., 2.).num() + entre(0., 0., INF, 1., 0., 2.).num(), 0u);
}

// An arc keeps of its circle's cuts those whose direction it has.
PRUEBA(interarc, un_arco_da_los_cortes_de_su_circulo_que_estan_en_el) {
    azar a(23);
    int con_uno = 0;
    for (int i = 0; i < CASOS; ++i) {
        const double x2 = a.entre(-6., 6.), y2 = a.entre(-6., 6.), r1 = a.entre(2., 6.), r2 = a.entre(2., 6.);
        const double i1 = a.entre(-7., 7.), f1 = i1 + a.entre(0., 6.), i2 = a.entre(-7., 7.),
                     f2 = i2 + a.entre(0., 6.);
        const auto esta = [](const Punto2D &q, double xc, double yc, double inicio, double fin) {
            return mt_angulo_dentro_de_rango(mt_angulo(xc, yc, q.x, q.y), inicio, fin) == CIERTO;
        };
        const cortes circulos = entre(0., 0., r1, x2, y2, r2);
        cortes arcos, con_segmento;
        arcos.hay = mt_interseccion_entre_arcos(0., 0., r1, i1, f1, x2, y2, r2, i2, f2, arcos.a.get());
        size_t n = 0;
        for (const Punto2D &q : circulos.puntos()) n += esta(q, 0., 0., i1, f1) && esta(q, x2, y2, i2, f2);
        const bool al_borde = std::fabs(mt_distancia(0., 0., x2, y2) - r1 - r2) < 1e-3;
        ASSERT_TRUE(al_borde || arcos.num() == n) << i;
        con_uno += n == 1;
        con_segmento.hay =
            mt_interseccion_segmento_arco(-9., y2, 9., x2, 0., 0., r1, i1, f1, con_segmento.a.get());
        const cortes todos = con_circulo(-9., y2, 9., x2, 0., 0., r1);
        n = 0;
        for (const Punto2D &q : todos.puntos()) n += esta(q, 0., 0., i1, f1);
        ASSERT_EQ(con_segmento.num(), n) << i;
    }
    EXPECT_GT(con_uno, 1000);
    // Arcs that only their circles bring together; a full turn; limits of no length at a cut.
    cortes c;
    EXPECT_EQ(mt_interseccion_entre_arcos(0., 0., 5., 3., 4., 6., 0., 5., 0., VUELTA, c.a.get()), FALSO);
    EXPECT_EQ(mt_interseccion_entre_arcos(0., 0., 5., 0., VUELTA, 6., 0., 5., 0., VUELTA, c.a.get()), CIERTO);
    EXPECT_EQ(c.puntos().size(), 2u);
    EXPECT_EQ(mt_interseccion_segmento_arco(0., 0., 9., 9., 0., 0., 5., VUELTA / 8., VUELTA / 8., c.a.get()),
              CIERTO);
    EXPECT_EQ(mt_interseccion_segmento_arco(0., 0., 9., 9., 0., 0., 5., NAN_, 1., c.a.get()), FALSO);
}

PRUEBA(interarc, una_elipse_da_sus_dieciseis_puntos_sin_filtrar) {
    cortes c;
    c.hay = mt_interseccion_elipse_circunferencia(10., 20., 4., 1., 2., 5., 3., c.a.get());
    ASSERT_EQ(c.num(), 16u);
    // X^2 = 25 (16 - 9) / (25 - 9) about the centre of the ellipse first.
    const double x = std::sqrt(25. * 7. / 16.), y = std::sqrt(9. * 9. / 16.);
    EXPECT_TRUE(cerca(c.puntos()[0].x, 1. - x, 10.) && cerca(c.puntos()[0].y, 2. + y, 10.));
    EXPECT_TRUE(cerca(c.puntos()[2].x, 1. - x, 10.) && cerca(c.puntos()[2].y, 2. - y, 10.));
    EXPECT_TRUE(cerca(c.puntos()[9].x, 10. + x, 20.) && cerca(c.puntos()[9].y, 20. - y, 20.));
    cortes nada;
    for (const double r : {5.5, 2., NAN_}) // beyond the long axis, inside the short one
        EXPECT_EQ(mt_interseccion_elipse_circunferencia(0., 0., r, 0., 0., 5., 3., nada.a.get()), FALSO);
    EXPECT_EQ(mt_interseccion_elipse_circunferencia(0., 0., 4., 0., 0., 4., 4., nada.a.get()),
              FALSO); // a circle is none
    EXPECT_EQ(nada.num(), 0u);
}
