#include "geometry/vnspline.h"
#include "propiedades.h"

using vn::cerca;

namespace {

struct cubica {
    double A = 9., B = 9., C = 9., D = 9., Ux = 9., Uy = 9.;
    cubica(double x0, double y0, double a0, double x1, double y1, double a1) {
        vnspline_trazado_tramo_curvo(x0, y0, a0, x1, y1, a1, &A, &B, &C, &D, &Ux, &Uy);
    }
    double y(double x) const { return ((A * x + B) * x + C) * x + D; }
    double pendiente(double x) const { return (3. * A * x + 2. * B) * x + C; }
};

} // namespace

PRUEBA(vnspline, la_curva_pasa_por_los_extremos_con_las_direcciones_dadas) {
    vn::azar a(31);
    for (int i = 0; i < 20000; ++i) {
        const double x0 = a.entre(-50., 50.), y0 = a.entre(-50., 50.), x1 = a.entre(-50., 50.), y1 = a.entre(-50., 50.);
        const double cuerda = std::atan2(y1 - y0, x1 - x0), a0 = a.entre(-3.14, 3.14), a1 = a.entre(-3.14, 3.14);
        const double L = std::hypot(x1 - x0, y1 - y0);
        const cubica c(x0, y0, a0, x1, y1, a1);
        ASSERT_NEAR(c.Ux * L, x1 - x0, 1e-12);
        ASSERT_NEAR(c.Uy * L, y1 - y0, 1e-12);
        ASSERT_EQ(c.y(0.), 0.);
        ASSERT_NEAR(c.y(L) / L, 0., 1e-13);
        // The same direction up to a half turn, where the slope is not limited.
        const auto sigue = [&](double t, double angulo) {
            return std::fabs(t) > 9.99 || std::fabs(std::sin(cuerda + std::atan(t) - angulo)) < 1e-11;
        };
        ASSERT_TRUE(sigue(c.pendiente(0.), a0) && sigue(c.pendiente(L), a1)) << i;
        ASSERT_LE(std::fabs(c.C), 10.);
    }
}

PRUEBA(vnspline, los_angulos_rectos_se_limitan_y_los_puntos_iguales_se_informan) {
    const cubica recta(0., 0., 1.5707963267948966, 2., 0., -1.5707963267948966);
    EXPECT_TRUE(recta.C == 10. && recta.pendiente(2.) == -10. && recta.A == 0. && recta.B == -5.);
    // A slope of 10 and its neighbours: the limit is the limit.
    EXPECT_TRUE(cubica(0., 0., 1.4711, 1., 0., 0.).C < 10. && cubica(0., 0., 1.4712, 1., 0., 0.).C == 10.);
    // Angles a turn apart are one direction, after one turn is taken off.
    EXPECT_TRUE(cerca(cubica(0., 0., 0.5 + 6.283185307179586, 1., 0., 0.).C, cubica(0., 0., 0.5, 1., 0., 0.).C));
    std::unique_ptr<cubica> c;
    ESPERA_INFORME("L > 0.", c = std::make_unique<cubica>(3., 4., 1., 3., 4., 1.));
    EXPECT_TRUE(c->A == 0. && c->B == 0. && c->C == 0. && c->D == 0. && c->Ux == 0. && c->Uy == 0.);
    const cubica nada(0., 0., vn::NAN_, 1., 0., 0.);
    EXPECT_TRUE(nada.A == 0. && nada.C == 0.);
}
