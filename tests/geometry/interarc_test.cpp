#include "espacio.h"
#include "foundation/listas/arr_int.h"
#include "foundation/numeros/mt.h"
#include "geometry/interarc.h"

using vn::ante, vn::azar, vn::cerca, vn::filas, vn::NAN_;

namespace {

constexpr double VUELTA = 6.283185307179586;
constexpr int CASOS = 20000;

// The points that an operation appends, which answers whether there are any.
struct cortes : espacio::planos {
    template <class F, class... A> explicit cortes(F operacion, A... d) : planos(arr_CreaPunto2D(0)) {
        const vnbool hay = operacion(d..., a.get());
        EXPECT_EQ(hay == CIERTO, size() > 0);
    }
    std::span<const Punto2D> todos() const { return vn::listas::tramo(static_cast<const arrPunto2D *>(a.get())); }
};

cortes con_circulo(double x1, double y1, double x2, double y2, double xc, double yc, double r) {
    return cortes(mt_interseccion_segmento_circunferencia, x1, y1, x2, y2, xc, yc, r);
}
cortes entre(double xc1, double yc1, double r1, double xc2, double yc2, double r2) {
    return cortes(mt_interseccion_entre_circunferencias, xc1, yc1, r1, xc2, yc2, r2);
}

double distancia_a_segmento(const Punto2D &p, const Punto2D &a, const Punto2D &b) {
    const double t = std::clamp(mt_posicion_relativa_a_segmento(p.x, p.y, a.x, a.y, b.x, b.y), 0., 1.);
    return mt_distancia(p.x, p.y, a.x + t * (b.x - a.x), a.y + t * (b.y - a.y));
}

} // namespace

PRUEBA(interarc, las_tangentes_y_los_limites_de_vertical_y_horizontal_son_los_dichos) {
    for (const auto &[x1, y1, x2, y2, puntos] :
         filas<double, double, double, double, size_t>("geometry/interarc.tsv", "segmentos"))
        EXPECT_EQ(con_circulo(x1, y1, x2, y2, 0., 0., 5.).size(), puntos) << x1 << " " << y1 << " " << x2 << " " << y2;
    for (const auto &[r1, x2, y2, r2, puntos] :
         filas<double, double, double, double, size_t>("geometry/interarc.tsv", "circulos"))
        EXPECT_EQ(entre(0., 0., r1, x2, y2, r2).size(), puntos) << r1 << " " << x2 << " " << y2 << " " << r2;
    const double D = 0.0001, casiD = ante(D); // from D on a segment is oblique
    // Vertical means at its first end; one step further it is oblique and meets the circle where it is.
    EXPECT_EQ(con_circulo(0., -9., casiD, 9., 0., 0., 5.)[0].x, 0.);
    EXPECT_NEAR(con_circulo(0., -9., D, 9., 0., 0., 5.)[0].x, D * 14. / 18., 1e-12);
    EXPECT_EQ(con_circulo(9., casiD, -9., 0., 0., 0., 5.)[1].y, casiD);
    const cortes tangente = con_circulo(-5., 10., 11., -2., 0., 0., 5.);
    EXPECT_TRUE(cerca(tangente[0].x, 3., 1e4) && cerca(tangente[1].y, 4., 1e4));
}

PRUEBA(interarc, los_cortes_de_un_segmento_estan_en_el_y_en_el_circulo_y_no_falta_ninguno) {
    azar a(21);
    vn::huella h;
    for (int i = 0; i < CASOS; ++i) {
        const vn::lugar l = vn::lugar_de(i);
        const Punto2D c{l.x + a.entre(-100., 100.), l.y + a.entre(-100., 100.)};
        // Also pieces of kilometres, almost along an axis: by as little as what makes them oblique.
        const bool largo = i % 8 > 5;
        const double k = largo ? 400. : 1., r = k * a.entre(0.5, 50.), casi = std::pow(10., a.entre(-3.6, -2.));
        const auto p = [&] { return Punto2D{c.x + k * a.entre(-60., 60.), c.y + k * a.entre(-60., 60.)}; };
        const Punto2D s = p();
        Punto2D t = p();
        if (i % 8 == 0 || (largo && i % 3 == 0)) t.x = s.x + (largo ? casi : 0.);
        if (i % 8 == 1 || (largo && i % 3 == 1)) t.y = s.y + (largo ? casi : 0.);
        const cortes vistos = con_circulo(s.x, s.y, t.x, t.y, c.x, c.y, r);
        for (const Punto2D &q : vistos.todos()) {
            ASSERT_NEAR(mt_distancia(q.x, q.y, c.x, c.y), r, 1e-5) << i;
            ASSERT_LT(distancia_a_segmento(q, s, t), 2e-5) << i;
            h << q.x << q.y;
        }
        // As many as sides changed, unless an end or a tangent is a hair away.
        const double ds = mt_distancia(s.x, s.y, c.x, c.y) - r, dt = mt_distancia(t.x, t.y, c.x, c.y) - r,
                     d = distancia_a_segmento(c, s, t);
        if (std::min({std::fabs(ds), std::fabs(dt), std::fabs(d - r)}) < 1e-3) continue;
        ASSERT_EQ(vistos.size(), (ds < 0) != (dt < 0) ? 1u : ds > 0 && d < r ? 2u : 0u) << i;
    }
    EXPECT_EQ(h(), 10256748594912616075u);
}

PRUEBA(interarc, los_cortes_de_circulos_estan_en_los_dos_tambien_lejos_del_origen) {
    azar a(22);
    vn::huella h;
    for (int i = 0; i < CASOS; ++i) {
        const vn::lugar l = vn::lugar_de(i); // far away the squares of coordinates have no decimals left
        const bool largo = i % 8 > 5;
        const double k = largo ? 100. : 1., casi = largo ? std::pow(10., a.entre(-3.6, -2.)) : 0.;
        const auto d50 = [&] { return k * a.entre(-50., 50.); };
        const double x1 = l.x + d50(), y1 = l.y + d50(), r1 = k * a.entre(0.1, 40.), r2 = k * a.entre(0.1, 40.);
        const double x2 = i % 8 < 2 || (largo && i % 3 == 0) ? x1 + casi : l.x + d50(),
                     y2 = i % 8 == 3 || (largo && i % 3 == 1) ? y1 + casi : l.y + d50();
        const double d = mt_distancia(x1, y1, x2, y2);
        const cortes vistos = entre(x1, y1, r1, x2, y2, r2);
        for (const Punto2D &q : vistos.todos()) {
            ASSERT_NEAR(mt_distancia(q.x, q.y, x1, y1), r1, 1e-5) << i;
            ASSERT_NEAR(mt_distancia(q.x, q.y, x2, y2), r2, 1e-5) << i;
            h << q.x << q.y;
        }
        if (std::min({std::fabs(d - r1 - r2), std::fabs(std::fabs(r1 - r2) - d), d}) < 1e-3) continue;
        ASSERT_EQ(vistos.size(), d < r1 + r2 && d > std::fabs(r1 - r2) ? 2u : 0u) << i;
    }
    EXPECT_EQ(h(), 440365816228548868u);
    // An almost vertical line of equal power stands at its x of the lowest point, where the circles part: arcs notice.
    const cortes vertical = entre(0., 0., 5., 6., 5e-5, 5.), horizontal = entre(0., 0., 5., 9e-5, 6., 5.);
    EXPECT_TRUE(cerca(vertical[0].x, 3. + 2.5e-4 / 6., 1e3) && vertical[0].x == vertical[1].x &&
                horizontal[0].y == horizontal[1].y);
    EXPECT_EQ(cortes(mt_interseccion_entre_arcos, 0., 0., 5., 0., VUELTA, 6., 5e-5, 5., 0., VUELTA).size(), 0u);
    EXPECT_EQ(cortes(mt_interseccion_entre_arcos, 0., 0., 5., 0., VUELTA, 6., 1e-6, 5., 0., VUELTA).size(), 2u);
}

// An arc keeps of its circle's cuts those whose direction it has.
PRUEBA(interarc, un_arco_da_los_cortes_de_su_circulo_que_estan_en_el) {
    azar a(23);
    int con_uno = 0;
    for (int i = 0; i < CASOS; ++i) {
        const double x2 = a.entre(-6., 6.), y2 = a.entre(-6., 6.), r1 = a.entre(2., 6.), r2 = a.entre(2., 6.);
        const double i1 = a.entre(-7., 7.), f1 = i1 + a.entre(0., 6.), i2 = a.entre(-7., 7.), f2 = i2 + a.entre(0., 6.);
        const auto cuantos = [&](const cortes &de_circulos, bool en_el_segundo) {
            const auto n = std::count_if(de_circulos.todos().begin(), de_circulos.todos().end(), [&](const Punto2D &q) {
                return mt_angulo_dentro_de_rango(mt_angulo(0., 0., q.x, q.y), i1, f1) == CIERTO &&
                       (!en_el_segundo || mt_angulo_dentro_de_rango(mt_angulo(x2, y2, q.x, q.y), i2, f2) == CIERTO);
            });
            return static_cast<size_t>(n);
        };
        const cortes arcos(mt_interseccion_entre_arcos, 0., 0., r1, i1, f1, x2, y2, r2, i2, f2);
        const auto n = cuantos(entre(0., 0., r1, x2, y2, r2), true);
        ASSERT_TRUE(std::fabs(mt_distancia(0., 0., x2, y2) - r1 - r2) < 1e-3 || arcos.size() == n) << i;
        con_uno += n == 1;
        const cortes con_segmento(mt_interseccion_segmento_arco, -9., y2, 9., x2, 0., 0., r1, i1, f1);
        ASSERT_EQ(con_segmento.size(), cuantos(con_circulo(-9., y2, 9., x2, 0., 0., r1), false)) << i;
    }
    EXPECT_GT(con_uno, 1000);
    // Arcs that only their circles bring together; full turns; limits of no length at a cut.
    EXPECT_EQ(cortes(mt_interseccion_entre_arcos, 0., 0., 5., 3., 4., 6., 0., 5., 0., VUELTA).size(), 0u);
    EXPECT_EQ(cortes(mt_interseccion_entre_arcos, 0., 0., 5., 0., VUELTA, 6., 0., 5., 0., VUELTA).size(), 2u);
    EXPECT_EQ(cortes(mt_interseccion_segmento_arco, 0., 0., 9., 9., 0., 0., 5., VUELTA / 8., VUELTA / 8.).size(), 1u);
    EXPECT_EQ(cortes(mt_interseccion_segmento_arco, 0., 0., 9., 9., 0., 0., 5., NAN_, 1.).size(), 0u);
}

PRUEBA(interarc, una_elipse_da_sus_dieciseis_puntos_sin_filtrar) {
    const cortes c(mt_interseccion_elipse_circunferencia, 10., 20., 4., 1., 2., 5., 3.);
    ASSERT_EQ(c.size(), 16u);
    // X^2 = 25 (16 - 9) / (25 - 9), about the centre of the ellipse first.
    const double x = std::sqrt(25. * 7. / 16.), y = std::sqrt(9. * 9. / 16.);
    EXPECT_TRUE(cerca(c[0].x, 1. - x, 10.) && cerca(c[0].y, 2. + y, 10.) && cerca(c[2].x, 1. - x, 10.) &&
                cerca(c[2].y, 2. - y, 10.) && cerca(c[9].x, 10. + x, 20.) && cerca(c[9].y, 20. - y, 20.));
    // Beyond the long axis, inside the short one, not a number; a circle is none.
    for (const auto &[r, corto] : {std::pair{5.5, 3.}, {2., 3.}, {NAN_, 3.}, {4., 5.}})
        EXPECT_EQ(cortes(mt_interseccion_elipse_circunferencia, 0., 0., r, 0., 0., 5., corto).size(), 0u) << r;
}
