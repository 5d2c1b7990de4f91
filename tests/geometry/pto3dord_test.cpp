#include "foundation/listas/arr_int.h"
#include "geometry/pto3dord.h"
#include "propiedades.h"
#include "prueba.h"
#include <limits>
#include <memory>
#include <set>
#include <tuple>

namespace {

struct destruye {
    void operator()(pto3dord *p) const { pto3dord_destruye(&p); }
    void operator()(arrPunto3D *a) const { arr_DestruyePunto3D(&a); }
};
using conjunto = std::unique_ptr<pto3dord, destruye>;
using puntos_3d = std::unique_ptr<arrPunto3D, destruye>;

} // namespace

PRUEBA(pto3dord, el_indice_es_el_lugar_en_el_orden_de_x_y_z_sin_repetidos) {
    vn::azar a(51);
    for (int caso = 0; caso < 200; ++caso) {
        const conjunto c(pto3dord_crea_vacio());
        std::set<std::tuple<int32_t, int32_t, int32_t>> rejilla; // in hundredths of a millimetre
        for (int i = 0; i < 100; ++i) {
            const auto u = [&] {
                return static_cast<double>(a.entero_entre(-3, 3)) * 1e-5 + a.entre(-0.49e-5, 0.49e-5);
            };
            const Punto3D p{u() + 1000. * a.entero(2), u(), u()};
            const auto en = [](double x) { return static_cast<int32_t>(std::floor(x / 1e-5 + 0.5)); };
            rejilla.insert({en(p.x), en(p.y), en(p.z)});
            pto3dord_append_punto_si_no_esta_repetido(c.get(), p.x, p.y, p.z);
        }
        const puntos_3d p(pto3dord_puntos(c.get()));
        ASSERT_EQ(arr_NumElemsPunto3D(p.get()), rejilla.size());
        uint32_t i = 0;
        for (const auto &[x, y, z] : rejilla) {
            const Punto3D &q = arr_GetBufferPunto3D(p.get())[i];
            ASSERT_TRUE(q.x == x * 1e-5 && q.y == y * 1e-5 && q.z == z * 1e-5);
            // Anything of its cell of the grid has its index.
            const auto d = [&] { return a.entre(-0.49e-5, 0.49e-5); };
            ASSERT_EQ(pto3dord_ind_punto(c.get(), q.x + d(), q.y + d(), q.z + d()), i++);
        }
    }
}

PRUEBA(pto3dord, los_limites_de_la_rejilla_y_lo_que_no_es_un_numero) {
    const conjunto c(pto3dord_crea_vacio());
    EXPECT_EQ(ESPERA_INFORME("existe == CIERTO", pto3dord_ind_punto(c.get(), 0., 0., 0.)), 0u);
    // Half a step goes up.
    pto3dord_append_punto_si_no_esta_repetido(c.get(), 0., 0., 0.);
    EXPECT_EQ(pto3dord_ind_punto(c.get(), std::nextafter(0.5e-5, 0.), -0.5e-5, 0.), 0u);
    EXPECT_EQ(ESPERA_INFORME("existe == CIERTO", pto3dord_ind_punto(c.get(), 0.5e-5, 0., 0.)), 0u);
    EXPECT_EQ(ESPERA_INFORME("existe == CIERTO", pto3dord_ind_punto(c.get(), 0., std::nextafter(-0.5e-5, -1.), 0.)),
              0u);
    constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN(), INF = std::numeric_limits<double>::infinity();
    for (const double x : {NAN_, INF, -INF, 1e308, -1e308, NAN_, INF})
        pto3dord_append_punto_si_no_esta_repetido(c.get(), x, x, x);
    const puntos_3d p(pto3dord_puntos(c.get()));
    EXPECT_EQ(arr_NumElemsPunto3D(p.get()), 6u);
    EXPECT_EQ(pto3dord_ind_punto(c.get(), NAN_, NAN_, NAN_) - pto3dord_ind_punto(c.get(), -INF, -INF, -INF), 5u);
}
