#include "espacio.h"
#include "geometry/pto3dord.h"
#include <set>
#include <tuple>

using conjunto = vn::dueno<pto3dord_destruye>;
using espacio::puntos, vn::INF, vn::NAN_;

PRUEBA(pto3dord, el_indice_es_el_lugar_en_el_orden_de_x_y_z_sin_repetidos) {
    vn::azar a(51);
    for (int caso = 0; caso < 200; ++caso) {
        const conjunto c(pto3dord_crea_vacio());
        std::set<std::tuple<int32_t, int32_t, int32_t>> rejilla; // in hundredths of a millimetre
        for (int i = 0; i < 100; ++i) {
            const auto u = [&] { return 1e-5 * (static_cast<double>(a.entero_entre(-3, 3)) + a.entre(-0.49, 0.49)); };
            const Punto3D p{u() + 1000. * a.entero(2), u(), u()};
            const auto en = [](double x) { return static_cast<int32_t>(std::floor(x / 1e-5 + 0.5)); };
            rejilla.insert({en(p.x), en(p.y), en(p.z)});
            pto3dord_append_punto_si_no_esta_repetido(c.get(), p.x, p.y, p.z);
        }
        const puntos p(pto3dord_puntos(c.get()));
        ASSERT_EQ(p.size(), rejilla.size());
        uint32_t i = 0;
        for (const auto &[x, y, z] : rejilla) {
            const Punto3D q = p[i];
            ASSERT_TRUE(q.x == x * 1e-5 && q.y == y * 1e-5 && q.z == z * 1e-5);
            // Anything of its cell of the grid has its index.
            const auto d = [&] { return a.entre(-0.49e-5, 0.49e-5); };
            ASSERT_EQ(pto3dord_ind_punto(c.get(), q.x + d(), q.y + d(), q.z + d()), i++);
        }
    }
}

PRUEBA(pto3dord, los_limites_de_la_rejilla_y_lo_que_no_es_un_numero) {
    const conjunto c(pto3dord_crea_vacio());
    const auto falta = [&c](double x, double y) {
        EXPECT_EQ(ESPERA_INFORME("existe == CIERTO", pto3dord_ind_punto(c.get(), x, y, 0.)), 0u) << x << " " << y;
    };
    falta(0., 0.);
    // Half a step goes up.
    pto3dord_append_punto_si_no_esta_repetido(c.get(), 0., 0., 0.);
    EXPECT_EQ(pto3dord_ind_punto(c.get(), vn::ante(0.5e-5), -0.5e-5, 0.), 0u);
    falta(0.5e-5, 0.);
    falta(0., vn::ante(-0.5e-5));
    for (const double x : {NAN_, INF, -INF, 1e308, -1e308, NAN_, INF})
        pto3dord_append_punto_si_no_esta_repetido(c.get(), x, x, x);
    EXPECT_EQ(puntos(pto3dord_puntos(c.get())).size(), 6u);
    EXPECT_EQ(pto3dord_ind_punto(c.get(), NAN_, NAN_, NAN_) - pto3dord_ind_punto(c.get(), -INF, -INF, -INF), 5u);
}
