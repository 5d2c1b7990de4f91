#include "espacio.h"
#include "foundation/numeros/afin.hpp"
#include "foundation/numeros/mt.h"

using namespace espacio;
using vn::afin2, vn::matriz4, vn::INF, vn::NAN_;

namespace {

double lejos(Punto2D a, Punto2D b) { return mt_distancia(a.x, a.y, b.x, b.y); }

// Coefficients that tell each other apart: 10 times the row and the column, from 1.
matriz4 numerada() {
    matriz4 r;
    for (int k = 0; k < 16; ++k) r.m[k / 4][k % 4] = 10. * (k / 4 + 1) + k % 4 + 1;
    return r;
}

} // namespace

PRUEBA(afin, del_plano_se_compone_y_se_deshace_tambien_lejos) {
    vn::azar a(21);
    for (int caso = 0; caso < 20000; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const auto vector = [&] { return Punto2D{a.entre(-9., 9.), a.entre(-9., 9.)}; };
        const Punto2D o{l.x + a.entre(-9., 9.), l.y + a.entre(-9., 9.)}, d = vector(), p = vector();
        const double g = a.entre(-4., 4.), s = a.entre(.1, 3.), cota = l.escala(200.) * 1e-13;
        const Punto2D n{std::cos(g), std::sin(g)};
        const afin2 giro = afin2::giro(g), espejo = afin2::simetria(o, n), t = afin2::traslacion(o);
        const afin2 todo = espejo * t * giro * afin2::escala(s, 2 * s);
        const Punto2D paso = espejo.punto(t.punto(giro.punto({s * p.x, 2 * s * p.y})));
        ASSERT_LT(lejos(todo.punto(p), paso), cota) << caso;
        ASSERT_LT(lejos(todo.vector(d), espejo.vector(giro.vector({s * d.x, 2 * s * d.y}))), 1e-11) << caso;
        ASSERT_LT(lejos(todo.inversa()->punto(paso), p), cota / s) << caso;
        ASSERT_NEAR(todo.determinante(), -2 * s * s, 1e-11) << caso; // a mirror
        // What is on the mirror stays; what is before it goes behind.
        const Punto2D en_el{o.x - 3 * n.y, o.y + 3 * n.x};
        ASSERT_LT(lejos(espejo.punto(en_el), en_el), cota) << caso;
        ASSERT_LT(lejos(espejo.punto({o.x + n.x, o.y + n.y}), {o.x - n.x, o.y - n.y}), cota) << caso;
        const afin2 semejante = t * afin2::escala(-s, s) * giro;
        ASSERT_TRUE(semejante.es_semejanza(1e-12) && !todo.es_semejanza(.5)) << caso;
        ASSERT_NEAR(semejante.escala_media(), s, 1e-12) << caso;
    }
    EXPECT_EQ(afin2::giro(0.5).vector({1, 0}).y, std::sin(0.5)); // counter-clockwise
    EXPECT_FALSE(afin2::escala(1, 0).inversa() || afin2::de_ejes({}, {1, 2}, {2, 4}).inversa() ||
                 afin2::escala(INF, 1).inversa());
}

PRUEBA(afin, del_espacio_se_compone_y_se_deshace_tambien_lejos_y_con_perspectiva) {
    vn::azar a(22);
    for (int caso = 0; caso < 20000; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const vec n = direccion_al_azar(a), o = vec{l.x, l.y, l.z} + n, p = vector_al_azar(a, 9.),
                  s = {a.entre(.2, 3.), 1., a.entre(.2, 3.)};
        const double g = a.entre(-4., 4.), cota = l.escala(200.) * 1e-13;
        const matriz4 giro = matriz4::giro(n, g), espejo = matriz4::simetria(o, n), t = matriz4::traslacion(o);
        const matriz4 todo = espejo * t * giro * matriz4::escala(s.x, s.y, s.z);
        const vec paso = espejo.punto(t.punto(giro.punto({s.x * p.x, p.y, s.z * p.z})));
        ASSERT_LT(largo(todo.punto(p) - paso), cota) << caso;
        ASSERT_LT(largo(giro.vector(n) - n), 1e-14) << caso;
        const vec q = giro.vector(p); // as far along the axis, and turned about it
        ASSERT_TRUE(std::fabs(por(q - p, n)) < 1e-13 && std::fabs(largo(q) - largo(p)) < 1e-13) << caso;
        ASSERT_LT(largo(espejo.punto(o + n) - (o - n)), cota) << caso;
        ASSERT_LT(largo(todo.inversa()->punto(paso) - p), 10. * cota) << caso;
        ASSERT_TRUE(todo.inversa()->es_afin()) << caso;
        // Both inverses of the library agree on what has no perspective.
        const vn::dueno<vmatr_destruir_matriz> otra(vmatr_matriz_inversa(todo.a_vmatr().get()));
        ASSERT_LT(largo(matriz4::de_vmatr(otra.get()).punto(paso) - p), 10. * cota) << caso;
        matriz4 vista = giro; // an eye some way off
        vista.m[3][2] = -1. / 40., vista.m[3][3] = a.entre(2., 4.);
        ASSERT_LT(largo((*vista.inversa() * vista).punto(p) - p), 1e-11) << caso;
        ASSERT_LT(largo((t * vista).punto(p) - t.punto(vista.punto(p))), cota) << caso;
        ASSERT_LT(largo(vista.inversa()->punto(vista.punto(p)) - p), 1e-10) << caso;
    }
    EXPECT_EQ(matriz4::giro({0, 0, 1}, 0.5).vector({1, 0, 0}).y, std::sin(0.5)); // by the right hand
    EXPECT_EQ(matriz4::giro({0, 0, 1}, 0.5).m[2][2], 1.);
    EXPECT_FALSE(matriz4::escala(1, 0, 1).inversa() || numerada().inversa() ||
                 matriz4::traslacion({NAN_, 0, 0}).inversa());
    // What is not finite stays where it is.
    const matriz4 infinita = matriz4::traslacion({INF, 1, 2}) * matriz4{};
    EXPECT_TRUE(infinita.es_afin());
    EXPECT_EQ(infinita.punto({5, 6, 7}).y, 7.);
}

PRUEBA(afin, las_puertas_guardan_cada_coeficiente_en_su_sitio) {
    const matriz4 n = numerada();
    double columnas[16], filas[16];
    n.a_columnas(columnas);
    n.a_filas(filas);
    EXPECT_TRUE(columnas[1] == 21. && columnas[12] == 14. && filas[1] == 12. && filas[12] == 41.);
    EXPECT_EQ(vmatr_get_coef_matriz(n.a_vmatr().get(), 1, 3), 24.);
    for (const matriz4 &r :
         {matriz4::de_columnas(columnas), matriz4::de_filas(filas), matriz4::de_vmatr(n.a_vmatr().get())})
        for (int k = 0; k < 16; ++k) EXPECT_EQ(r.m[k / 4][k % 4], filas[k]);
    // Three rows have no perspective.
    const vn::dueno<vmatr_destruir_matriz> tres(vmatr_crea_matriz_nula(3, 4));
    vmatr_set_coef_matriz(tres.get(), 2, 3, 7.);
    EXPECT_TRUE(matriz4::de_vmatr(tres.get()).es_afin());
    EXPECT_EQ(matriz4::de_vmatr(tres.get()).punto({1, 2, 3}).z, 7.);
    // A frame, and the plan of what it does.
    const matriz4 m = matriz4::de_ejes({1, 2, 3}, {4, 5, 6}, {7, 8, 9}, {10, 11, 12});
    EXPECT_EQ(m.punto({100, 10, 1}).x, 1 + 400 + 70 + 10);
    EXPECT_TRUE(m.columna(1).z == 9. && m.columna(3).y == 2.);
    EXPECT_EQ(m.en_planta().punto({100, 10}).y, 2 + 500 + 80);
}
