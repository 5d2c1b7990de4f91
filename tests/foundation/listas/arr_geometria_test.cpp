#include "filas.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"

using vn::cerca, vn::NAN_;

namespace {

constexpr double PI = 3.141592653589793;
using puntos = vn::dueno<arr_DestruyePunto2D>;

puntos con(std::initializer_list<Punto2D> dados) {
    puntos a(arr_CreaPunto2D(0));
    for (const Punto2D &p : dados) arr_AppendPunto2D(a.get(), p.x, p.y);
    return a;
}
} // namespace

// How many points a figure has is counted on by those who join two of them.
PRUEBA(arr_geometria, las_figuras_tienen_los_pasos_de_su_parte_de_la_vuelta_y_se_anaden_a_lo_que_hay) {
    for (const auto &[inicial, final, por_vuelta, cuantos] :
         vn::filas<double, double, uint32_t, uint32_t>("foundation/arr_geometria.tsv", "arcos")) {
        const puntos a = con({});
        arr_AnyadirArcoPunto2D(a.get(), 10., 20., 5., inicial, final, por_vuelta);
        EXPECT_EQ(arr_NumElemsPunto2D(a.get()), cuantos) << inicial << " to " << final;
        for (const Punto2D &p : vn::listas::tramo(a.get()))
            EXPECT_TRUE(cerca(std::hypot(p.x - 10., p.y - 20.), 5., 5.));
    }
    const puntos a = con({{7., 7.}});
    arr_AnyadirArcoPunto2D(a.get(), 0., 0., 1., PI / 2., -PI / 2., 4);           // clockwise
    arr_AnyadirCirculoPunto2D(a.get(), 1., 2., 3., 4);                           // the first is not repeated
    arr_AnyadirArcoElipsePunto2D(a.get(), 1., 2., 30., 10., 0., PI, PI / 2., 4); // its long axis upwards
    arr_AnyadirCirculoPunto2D(a.get(), NAN_, 0., 1., 5);
    ESPERA_INFORME("num_puntos >= 3 && num_puntos <= 1000000", arr_AnyadirCirculoPunto2D(a.get(), 0., 0., 1., 2));
    const Punto2D esperados[] = {{7., 7.},  {0., 1.},  {1., 0.},  {0., -1.}, {4., 2.},  {1., 5.},
                                 {-2., 2.}, {1., -1.}, {1., 32.}, {-9., 2.}, {1., -28.}};
    ASSERT_EQ(arr_NumElemsPunto2D(a.get()), std::size(esperados));
    for (size_t i = 0; i < std::size(esperados); ++i) {
        const Punto2D p = vn::listas::tramo(a.get())[i];
        EXPECT_TRUE(cerca(p.x, esperados[i].x, 50.) && cerca(p.y, esperados[i].y, 50.)) << i;
    }
}

PRUEBA(arr_geometria, limites_lados_e_igualdad) {
    const puntos vacio = con({}), a = con({{NAN_, 5.}, {3., -1.}, {-2., 7.}});
    double x1 = 9., y1 = 9., x2 = 9., y2 = 9.;
    ESPERA_INFORME("num_puntos > 0", arr_GetMinimaxPunto2D(vacio.get(), &x1, &y1, &x2, &y2));
    EXPECT_TRUE(x1 == 0. && y1 == 0. && x2 == 0. && y2 == 0.);
    arr_GetMinimaxPunto2D(a.get(), &x1, &y1, &x2, &y2);
    EXPECT_TRUE(x1 == -2. && y1 == -1. && x2 == 3. && y2 == 7.);
    arr_GetSegmentoPunto2D(a.get(), 2, &x1, &y1, &x2, &y2); // back to the first
    EXPECT_TRUE(x1 == -2. && y1 == 7. && std::isnan(x2) && y2 == 5.);
    ESPERA_INFORME("i < num_elementos", arr_GetSegmentoPunto2D(a.get(), 3, &x1, &y1, &x2, &y2));
    const puntos b = con({{0., 0.}, {3., -1.}}), c = con({{0.25, 0.}, {3., -1.25}});
    EXPECT_TRUE(arr_ArraysDePunto2DIguales(vacio.get(), vacio.get(), 0.) == CIERTO &&
                arr_ArraysDePunto2DIguales(b.get(), a.get(), 1e9) == FALSO);
    EXPECT_TRUE(arr_ArraysDePunto2DIguales(b.get(), c.get(), 0.25) == CIERTO);
    EXPECT_TRUE(arr_ArraysDePunto2DIguales(b.get(), c.get(), std::nextafter(0.25, 0.)) == FALSO);
}
