#include "foundation/arr.h"
#include "propiedades.h"
#include "prueba.h"
#include <limits>
#include <memory>

using vn::cerca;

namespace {

constexpr double PI = 3.141592653589793, NAN_ = std::numeric_limits<double>::quiet_NaN();

struct destruye {
    void operator()(arrPunto2D *a) const { arr_DestruyePunto2D(&a); }
};
using puntos = std::unique_ptr<arrPunto2D, destruye>;

Punto2D en(const puntos &a, uint32_t i) {
    Punto2D p;
    arr_GetPunto2D(a.get(), i, &p.x, &p.y);
    return p;
}

} // namespace

// How many points a figure has is counted on by those who join two of them.
PRUEBA(arr_geometria, un_arco_tiene_los_pasos_de_su_parte_de_la_vuelta) {
    const struct {
        double inicial, final;
        uint32_t por_vuelta, puntos;
    } filas[] = {
        {-PI / 2., PI / 2., 18, 10},
        {PI / 2., -PI / 2., 18, 10},
        {0., 2. * PI, 64, 65},
        {0., 2. * PI + 1e-9, 64, 65},
        {0., 1e300, 64, 65},
        {-1e300, 1e300, 64, 65},
        {0., PI / 2., 6, 3},
        {0., PI / 32., 64, 2},
        {0., PI / 32. + 1e-6, 64, 3},
        {1., 1., 64, 2},
        {NAN_, 1., 64, 0},
        {0., std::numeric_limits<double>::infinity(), 64, 0},
    };
    for (const auto &f : filas) {
        SCOPED_TRACE(&f - filas);
        const puntos a(arr_CreaPunto2D(0));
        arr_AnyadirArcoPunto2D(a.get(), 10., 20., 5., f.inicial, f.final, f.por_vuelta);
        ASSERT_EQ(arr_NumElemsPunto2D(a.get()), f.puntos);
        for (uint32_t i = 0; i < f.puntos; ++i)
            EXPECT_NEAR(std::hypot(en(a, i).x - 10., en(a, i).y - 20.), 5., 1e-14);
    }
    const puntos a(arr_CreaPunto2D(0));
    arr_AnyadirArcoPunto2D(a.get(), 0., 0., 1., PI / 2., -PI / 2., 8); // clockwise
    EXPECT_TRUE(cerca(en(a, 0).y, 1.) && cerca(en(a, 2).x, 1.) && cerca(en(a, 4).y, -1.));
    EXPECT_TRUE(cerca(en(a, 1).x, std::sqrt(0.5)));
}

PRUEBA(arr_geometria, circulos_y_elipses_se_anaden_a_lo_que_hay) {
    const puntos a(arr_CreaPunto2D(1));
    arr_AnyadirCirculoPunto2D(a.get(), 1., 2., 3., 4);
    ASSERT_EQ(arr_NumElemsPunto2D(a.get()), 5u); // the first is not repeated
    EXPECT_TRUE(en(a, 1).x == 4. && en(a, 1).y == 2.);
    EXPECT_TRUE(cerca(en(a, 2).x, 1.) && cerca(en(a, 2).y, 5., 5.) && cerca(en(a, 4).y, -1.));
    arr_AnyadirArcoElipsePunto2D(a.get(), 1., 2., 30., 10., 0., PI, PI / 2., 4); // its long axis upwards
    ASSERT_EQ(arr_NumElemsPunto2D(a.get()), 8u);
    EXPECT_TRUE(cerca(en(a, 5).x, 1., 30.) && cerca(en(a, 5).y, 32., 30.));
    EXPECT_TRUE(cerca(en(a, 6).x, -9., 30.) && cerca(en(a, 6).y, 2., 30.));
    EXPECT_TRUE(cerca(en(a, 7).y, -28., 30.));
    ESPERA_INFORME("num_puntos >= 3 && num_puntos <= 1000000",
                   arr_AnyadirCirculoPunto2D(a.get(), 0., 0., 1., 2));
    arr_AnyadirCirculoPunto2D(a.get(), NAN_, 0., 1., 5);
    EXPECT_EQ(arr_NumElemsPunto2D(a.get()), 8u);
}

PRUEBA(arr_geometria, limites_lados_e_igualdad) {
    const puntos a(arr_CreaPunto2D(0)), b(arr_CreaPunto2D(0));
    double x1 = 9., y1 = 9., x2 = 9., y2 = 9.;
    ESPERA_INFORME("num_puntos > 0", arr_GetMinimaxPunto2D(a.get(), &x1, &y1, &x2, &y2));
    EXPECT_TRUE(x1 == 0. && y1 == 0. && x2 == 0. && y2 == 0.);
    for (const Punto2D &p : {Punto2D{NAN_, 5.}, Punto2D{3., -1.}, Punto2D{-2., 7.}})
        arr_AppendPunto2D(a.get(), p.x, p.y);
    arr_GetMinimaxPunto2D(a.get(), &x1, &y1, &x2, &y2);
    EXPECT_TRUE(x1 == -2. && y1 == -1. && x2 == 3. && y2 == 7.);
    arr_GetSegmentoPunto2D(a.get(), 2, &x1, &y1, &x2, &y2); // back to the first
    EXPECT_TRUE(x1 == -2. && y1 == 7. && std::isnan(x2) && y2 == 5.);
    ESPERA_INFORME("i < num_elementos", arr_GetSegmentoPunto2D(a.get(), 3, &x1, &y1, &x2, &y2));
    EXPECT_EQ(arr_ArraysDePunto2DIguales(b.get(), b.get(), 0.), CIERTO);
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a.get(), b.get(), 1e9), FALSO);
    arr_SetPunto2D(a.get(), 0, 0., 0.);
    for (const Punto2D &p : {Punto2D{0.25, 0.}, Punto2D{3., -1.25}, Punto2D{-2., 7.}})
        arr_AppendPunto2D(b.get(), p.x, p.y);
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a.get(), b.get(), 0.25), CIERTO);
    EXPECT_EQ(arr_ArraysDePunto2DIguales(a.get(), b.get(), std::nextafter(0.25, 0.)), FALSO);
}
