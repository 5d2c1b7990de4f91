#include "foundation/mt.h"
#include "propiedades.h"
#include "prueba.h"
#include <limits>

using vn::azar;
using vn::cerca;

namespace {

constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN(),
                 INF = std::numeric_limits<double>::infinity();
constexpr double VUELTA = 6.283185307179586;
constexpr int CASOS = 20000;

double arriba(double x) { return std::nextafter(x, INF); }
double abajo(double x) { return std::nextafter(x, -INF); }

// A segment cut by another as one line: "1:(x,y) 2:(x,y)(x,y)".
std::string cortes(mt_segmento_t a, mt_segmento_t b) {
    mt_calcula_inter_segmentos(&a, &b);
    std::string s;
    for (const mt_segmento_t *g : {&a, &b}) {
        char t[120];
        std::snprintf(t, sizeof t, "%u:(%g,%g)(%g,%g) ", g->numcortes, g->x3, g->y3, g->x4, g->y4);
        s += t;
    }
    return s;
}

mt_segmento_t seg(double x1, double y1, double x2, double y2) { return {x1, y1, x2, y2, 9, 9., 9., 9., 9.}; }

struct vector3 {
    double x, y, z;
};
double por(const vector3 &a, const vector3 &b) { return mt_producto_escalar(a.x, a.y, a.z, b.x, b.y, b.z); }
// How far three vectors are from axes: unit, square to each other, right-handed.
double error_de_ejes(const vector3 &x, const vector3 &y, const vector3 &z) {
    vector3 xy;
    mt_producto_vectorial(x.x, x.y, x.z, y.x, y.y, y.z, &xy.x, &xy.y, &xy.z);
    return std::fabs(por(x, x) - 1.) + std::fabs(por(y, y) - 1.) + std::fabs(por(x, y)) +
           std::fabs(por(xy, z) - 1.);
}

} // namespace

PRUEBA(mt, las_longitudes_no_se_desbordan_y_lo_que_no_tiene_direccion_lo_dice) {
    EXPECT_EQ(mt_distancia(0., 0., 0., -3.), 3.);
    for (const double k : {1., 0x1p-1000, 0x1p+1000, 0x1p+520, 0x1p-540}) {
        SCOPED_TRACE(k);
        EXPECT_EQ(mt_distancia(0., 0., 3. * k, 4. * k), 5. * k);
        EXPECT_EQ(mt_modulo_vector_3D(2. * k, -3. * k, 6. * k), 7. * k);
        double x = 3. * k, y = -4. * k, l, c, s;
        EXPECT_EQ(mt_pasar_a_unitario_2D(&x, &y), CIERTO);
        EXPECT_TRUE(x == 0.6 && y == -0.8);
        f_mt_parametros_segmento(k, k, 4. * k, 5. * k, &l, &c, &s);
        EXPECT_TRUE(l == 5. * k && c == 0.6 && s == 0.8);
        EXPECT_EQ(mt_posicion_relativa_a_segmento(3. * k, 7. * k, k, 7. * k, 5. * k, 7. * k), 0.5);
        EXPECT_EQ(mt_distancia_a_recta(7. * k, 2. * k, 0., 0., -k, 0.), 2. * k);
    }
    for (const double nada : {0., NAN_, INF}) {
        SCOPED_TRACE(nada);
        double x = nada, y = 0., z = 0., c = 9., s = 9.;
        EXPECT_EQ(mt_pasar_a_unitario_3D(&x, &y, &z), FALSO);
        EXPECT_TRUE((x == nada || std::isnan(nada)) && y == 0.);
        f_mt_parametros_segmento(0., 0., nada, 0., nullptr, &c, &s);
        EXPECT_TRUE(c == 1. && s == 0.);
        EXPECT_EQ(mt_posicion_relativa_a_segmento(1., 1., 0., 0., nada, 0.), 0.);
        EXPECT_EQ(mt_vector_director_de_dos_puntos_3D(0., 0., 0., nada, 0., 0., &x, &y, &z), FALSO);
        EXPECT_TRUE(x == 0. && y == 0. && z == 0.);
    }
    EXPECT_EQ(mt_distancia_a_recta(3., 4., 0., 0., 0., 0.), 5.);
}

// The filter is a loop; a test that hangs here is the fault.
PRUEBA(mt, los_angulos_acaban_en_una_vuelta_y_a_tiempo) {
    const double huge[] = {-1e308, 1e300, 1e17, -1e6, 65536. * VUELTA, 65537. * VUELTA, -65537.5 * VUELTA};
    for (const double a : huge) {
        const double f = mt_filtra_angulo_mayor_que_cero(a);
        EXPECT_TRUE(f >= 0. && f < VUELTA) << a << " " << f;
    }
    EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(-1e-17), 0.); // comes up to the full turn and goes off again
    EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(VUELTA), 0.);
    EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(abajo(VUELTA)), abajo(VUELTA));
    EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(7.) + mt_filtra_angulo_mayor_que_cero(-1.),
              (7. - VUELTA) + (-1. + VUELTA));
    EXPECT_EQ(mt_filtra_angulo_mayor_que_cero(INF) + mt_filtra_angulo_mayor_que_cero(NAN_), 0.);

    EXPECT_EQ(mt_angulo(2., 2., 2., 2.), 0.);
    EXPECT_EQ(mt_angulo(0., 0., 1., -1e-300), 0.);
    EXPECT_EQ(mt_angulo(0., 0., NAN_, 1.), 0.);
    EXPECT_TRUE(cerca(mt_angulo(1., 1., 1., 0.), 4.712388980384690));
    EXPECT_TRUE(cerca(mt_angulo_a_partir_de_seno_y_coseno(-5., -5.), 3.926990816987241));
    azar a(1);
    for (int i = 0; i < CASOS; ++i) {
        const double x = a.entre(-5., 5.), y = a.entre(-5., 5.), d = mt_distancia(x, y, 0., 0.),
                     t = mt_angulo(0., 0., x, y);
        ASSERT_TRUE(t >= 0. && t < VUELTA);
        ASSERT_NEAR(std::cos(t) * d, x, 1e-14);
        ASSERT_NEAR(std::sin(t) * d, y, 1e-14);
    }
}

PRUEBA(mt, un_arco_tiene_sus_limites_con_su_tolerancia) {
    constexpr double T = 1e-6;
    const struct {
        double angulo, inicio, fin;
        vnbool dentro;
    } filas[] = {
        {1., 1., 2., CIERTO},
        {2., 1., 2., CIERTO},
        {2. + 0.999 * T, 1., 2., CIERTO},
        {2. + 1.001 * T, 1., 2., FALSO},
        {1. - 0.999 * T, 1., 2., CIERTO},
        {1. - 1.001 * T, 1., 2., FALSO},
        {0., 6., 0.5, CIERTO},
        {5.9, 6., 0.5, FALSO},
        {3., 0., VUELTA, CIERTO},
        {3., 1., 1. - VUELTA, CIERTO},
        {3., 1., 1., FALSO},
        {1., 1., 1., CIERTO},
        {3., 1., abajo(1.), FALSO},
        {1. + VUELTA, 0.9, 1.1, CIERTO},
        {1. - 9. * VUELTA, 0.9, 1.1, CIERTO},
        {T, 0., 0., CIERTO},
        {arriba(T), 0., 0., FALSO},
        {NAN_, 0., VUELTA, FALSO},
        {1., 0., INF, FALSO},
        {1., -1e300, 0., CIERTO},
    };
    for (const auto &f : filas)
        EXPECT_EQ(mt_angulo_dentro_de_rango(f.angulo, f.inicio, f.fin), f.dentro)
            << f.angulo << " " << f.inicio << " " << f.fin;
}

PRUEBA(mt, la_bisectriz_parte_el_giro_en_dos_tambien_al_pasar_de_media_vuelta) {
    azar a(2);
    for (int i = 0; i < CASOS; ++i) {
        const double t = a.entre(-7., 7.), giro = i % 4 == 0 ? a.entre(0., 1e-7) : a.entre(0., VUELTA - 1e-7);
        double x, y;
        mt_bisectriz(std::cos(t), std::sin(t), std::cos(t + giro), std::sin(t + giro), &x, &y);
        ASSERT_NEAR(x, std::cos(t + giro / 2.), 2e-9) << t << " " << giro;
        ASSERT_NEAR(y, std::sin(t + giro / 2.), 2e-9) << t << " " << giro;
    }
    double x, y;
    mt_bisectriz(0., 1., 0., -1., &x, &y);
    EXPECT_TRUE(x == -1. && y == 0.);
    mt_bisectriz(0.6, 0.8, 0.6, 0.8, &x, &y);
    EXPECT_TRUE(cerca(x, 0.6) && cerca(y, 0.8));
}

PRUEBA(mt, las_transformaciones_giran_hacia_donde_dicen) {
    double x, y;
    mt_gira_xy_sentido_horario(1., 2., 0., 1., &x, &y);
    EXPECT_TRUE(x == 2. && y == -1.);
    x = 3., y = 2.;
    mt_gira_coords_respecto_a_un_punto(2., 2., 0., 1., &x, &y);
    EXPECT_TRUE(x == 2. && y == 3.);
    x = 3., y = 4.;
    mt_transforma_coords_con_origen_escala_giro_y_desplazamiento(2., 2., 10., 0., 1., 100., 200., &x, &y);
    EXPECT_TRUE(x == 80. && y == 210.);
    x = 3., y = 4.;
    mt_transforma_coords_con_origen_y_diferentes_escalas(2., 2., 10., 100., 0., 1., 100., 200., &x, &y);
    EXPECT_TRUE(x == -100. && y == 210.);
    x = 1., y = 2.;
    mt_transforma_coords(10., 0., 1., 100., 200., &x, &y);
    EXPECT_TRUE(x == 80. && y == 210.);
    mt_real_a_proyectado(1., 2., 3., &x, &y);
    EXPECT_TRUE(cerca(x, 1. + std::sqrt(0.5)) && cerca(y, 3. + std::sqrt(0.5)));
    mt_real_a_proyectado(1., 2., 0., &x, &y);
    double xr, yr;
    mt_proyectado_a_real(x, y, &xr, &yr);
    EXPECT_TRUE(cerca(xr, 1.) && cerca(yr, 2.));
}

PRUEBA(mt, cada_tolerancia_esta_en_su_limite) {
    const struct {
        bool dentro;
        const char *que;
    } filas[] = {
        {mt_punto_pertenece_a_segmento(1e-5, 0., -1., 0., 0., 0.) == CIERTO, "beyond an end"},
        {mt_punto_pertenece_a_segmento(-1., abajo(1e-5), -3., 0., 0., 0.) == CIERTO, "beside"},
        {mt_punto_pertenece_a_segmento(0., 1e-5, 0., 0., 0., 0.) == CIERTO, "a segment of no length"},
        {mt_existe_interseccion_entre_segmentos(0., 0., 1., 0., -1e-6, -1., -1e-6, 1., nullptr, nullptr) ==
             CIERTO,
         "first, before"},
        {mt_existe_interseccion_entre_segmentos(-1., 0., 0., 0., 1e-6, -1., 1e-6, 1., nullptr, nullptr) ==
             CIERTO,
         "first, after"},
        {mt_existe_interseccion_entre_segmentos(-1., 0., 1., 0., 0., 1e-6, 0., 1., nullptr, nullptr) ==
             CIERTO,
         "second"},
        {mt_puntos2D_iguales(1e-6, 0., 0., -1e-6) == CIERTO, "points"},
        {mt_puntos2D_iguales_con_tolerancia(0., 0.25, 0., 0., 0.25) == CIERTO, "points, given"},
        {mt_existe_interseccion_recta_con_plano(0., 0., 1., 1., 0., 1.000001e-6, 0., 0., 1., 0., nullptr,
                                                nullptr, nullptr) == CIERTO,
         "plane"},
        // One step on the other side.
        {mt_punto_pertenece_a_segmento(arriba(1e-5), 0., -1., 0., 0., 0.) == FALSO, "beyond an end"},
        {mt_punto_pertenece_a_segmento(-1., arriba(1e-5), -3., 0., 0., 0.) == FALSO, "beside"},
        {mt_punto_pertenece_a_segmento(0., arriba(1e-5), 0., 0., 0., 0.) == FALSO, "a segment of no length"},
        {mt_existe_interseccion_entre_segmentos(0., 0., 1., 0., -arriba(1e-6), -1., -arriba(1e-6), 1.,
                                                nullptr, nullptr) == FALSO,
         "first, before"},
        {mt_existe_interseccion_entre_segmentos(-1., 0., 1., 0., 0., arriba(1e-6), 0., 1., nullptr,
                                                nullptr) == FALSO,
         "second"},
        {mt_puntos2D_iguales(arriba(1e-6), 0., 0., 0.) == FALSO, "points"},
        {mt_puntos2D_iguales_con_tolerancia(0., arriba(0.25), 0., 0., 0.25) == FALSO, "points, given"},
        {mt_existe_interseccion_recta_con_plano(0., 0., 1., 1., 0., 1e-6, 0., 0., 1., 0., nullptr, nullptr,
                                                nullptr) == FALSO,
         "plane"},
        // Parallel, overlapping, of no length, not numbers.
        {mt_existe_interseccion_entre_segmentos(0., 0., 2., 2., 1., 1., 3., 3., nullptr, nullptr) == FALSO,
         "overlap"},
        {mt_existe_interseccion_entre_segmentos(0., 0., 0., 0., -1., 0., 1., 0., nullptr, nullptr) == FALSO,
         "no length"},
        {mt_existe_interseccion_entre_segmentos(0., NAN_, 1., 0., 0., 1., 1., -1., nullptr, nullptr) == FALSO,
         "not a number"},
    };
    for (const auto &f : filas) EXPECT_TRUE(f.dentro) << f.que << ", row " << &f - filas;
}

// A cut at an end is that end, and its own segment is not cut; the polygon's inside test stands on this.
PRUEBA(mt, los_cortes_de_segmentos_dicen_cual_queda_partido) {
    const struct {
        mt_segmento_t a, b;
        const char *cortes;
    } filas[] = {
        {seg(0, 0, 4, 4), seg(0, 4, 4, 0), "1:(2,2)(0,0) 1:(2,2)(0,0) "},
        {seg(0, 0, 4, 0), seg(1, 0, 1, 5), "1:(1,0)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 4, 0), seg(1, 5, 1, 0), "1:(1,0)(0,0) 0:(0,0)(0,0) "},
        {seg(1, 0, 1, 5), seg(0, 0, 4, 0), "0:(0,0)(0,0) 1:(1,0)(0,0) "},
        {seg(0, 0, 4, 0), seg(4, 0, 4, 5), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 9, 0), seg(7, 0, 2, 0), "2:(2,0)(7,0) 0:(0,0)(0,0) "},
        {seg(9, 0, 0, 0), seg(2, 0, 7, 0), "2:(7,0)(2,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 0, 5), seg(0, 3, 0, 8), "1:(0,3)(0,0) 1:(0,5)(0,0) "},
        {seg(0, 0, 4, 4), seg(0, 0, 4, 4), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 4, 4), seg(4, 4, 6, 6), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 4, 4), seg(1, 1, 1, 1), "1:(1,1)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 4, 4), seg(1, 2, 1, 2), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(2, 2, 2, 2), seg(2, 2, 2, 2), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, 1e308, 0), seg(5e307, -1, 5e307, 1e308), "1:(5e+307,0)(0,0) 1:(5e+307,0)(0,0) "},
        {seg(0, 0, NAN_, 0), seg(0, 1, 1, -1), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(0, 0, INF, 0), seg(0, 1, 1, -1), "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        // A hair beside the line, at the far end of 32 bits: a plain determinant calls the point on it.
        {seg(-2147483648., -2147483648., 2147483647., 2147483646.), seg(0., 0., -5., 5.),
         "0:(0,0)(0,0) 0:(0,0)(0,0) "},
        {seg(-2147483648., -2147483648., 2147483647., 2147483646.), seg(0., 0., 5., -5.),
         "1:(0.25,-0.25)(0,0) 1:(0.25,-0.25)(0,0) "},
    };
    for (const auto &f : filas) {
        EXPECT_EQ(cortes(f.a, f.b), f.cortes) << "row " << &f - filas;
    }
}

// Against the determinant in 128 bits, over near-collinear whole points of the full range; a digest over all
// answers.
PRUEBA(mt, el_lado_es_exacto_en_todo_el_rango_de_enteros) {
    azar a(3);
    vn::huella h;
    __extension__ using largo = __int128;
    for (int i = 0; i < CASOS; ++i) {
        const auto x = [&] { return a.entero_entre(INT32_MIN, INT32_MAX); };
        const int64_t x1 = x(), y1 = x(), x2 = x(), y2 = x(), n = a.entero_entre(-3, 3),
                      m = a.entero_entre(1, 1000);
        // About the m-th thousandth of the segment, to the unit.
        const int64_t px = x1 + (x2 - x1) * m / 1000 + n, py = y1 + (y2 - y1) * m / 1000, qx = x(), qy = x();
        const auto lado = [](int64_t ax, int64_t ay, int64_t bx, int64_t by, int64_t cx, int64_t cy) {
            const largo d = largo(bx - ax) * (cy - ay) - largo(by - ay) * (cx - ax);
            return (d > 0) - (d < 0);
        };
        const int pq1 = lado(px, py, qx, qy, x1, y1), pq2 = lado(px, py, qx, qy, x2, y2);
        const int s1 = lado(x1, y1, x2, y2, px, py), s2 = lado(x1, y1, x2, y2, qx, qy);
        mt_segmento_t s = seg(double(x1), double(y1), double(x2), double(y2)),
                      t = seg(double(px), double(py), double(qx), double(qy));
        mt_calcula_inter_segmentos(&s, &t);
        ASSERT_EQ(t.numcortes, s1 * s2 < 0 && pq1 * pq2 < 0 ? 1u : 0u) << i;
        ASSERT_EQ(s.numcortes, (s1 * s2 < 0 || (s1 == 0 && m < 1000)) && pq1 * pq2 <= 0 ? 1u : 0u) << i;
        ASSERT_LT(t.numcortes * mt_distancia_a_recta(s.x3, s.y3, t.x1, t.y1, t.x2, t.y2), 2e-6) << i;
        h << s.numcortes << s.x3 << s.y3;
    }
    EXPECT_EQ(h(), 1379417804056615147u);
}

PRUEBA(mt, las_raices_van_en_orden_y_no_pierden_cifras) {
    const struct {
        double a, b, c;
        vnbool hay;
        double r1, r2;
    } filas[] = {
        {1., -3., 2., CIERTO, 2., 1.},
        {-1., 3., -2., CIERTO, 1., 2.},
        {1., 3., 2., CIERTO, -1., -2.},
        {1., 0., -4., CIERTO, 2., -2.},
        {1., 2., 1., CIERTO, -1., -1.},
        {1., 0., 0., CIERTO, 0., 0.},
        {0., 2., -4., CIERTO, 2., 2.},
        {0., 0., 1., FALSO, 9., 9.},
        {1., 0., 1., FALSO, 9., 9.},
        {1., -1e8, 1., CIERTO, 1e8, 1e-8},
        {NAN_, 1., 0., FALSO, 9., 9.},
        {1., INF, 0., FALSO, 9., 9.},
        {0x1p600, -3 * 0x1p600, 0x1p601, CIERTO, 2., 1.},
        {1e-300, 1e300, 0., FALSO, 9., 9.},
    };
    for (const auto &f : filas) {
        double r1 = 9., r2 = 9.;
        EXPECT_EQ(mt_raices_ecuacion_segundo_grado(f.a, f.b, f.c, &r1, &r2), f.hay) << "row " << &f - filas;
        EXPECT_TRUE(cerca(r1, f.r1, std::fabs(f.r1)) && cerca(r2, f.r2, std::fabs(f.r2)))
            << r1 << " " << r2 << ", row " << &f - filas;
    }
}

PRUEBA(mt, los_ejes_son_ejes_y_llevan_x_y_el_lado_de_y_donde_se_pide) {
    azar a(4);
    vn::huella h;
    for (int i = 0; i < CASOS; ++i) {
        const double k = std::ldexp(1., static_cast<int>(a.entero(400)) - 200);
        const auto r = [&] { return k * (a.entero(5) == 0 ? 0. : a.entre(-1., 1.)); };
        const vector3 p{r(), r(), r()}, q{r(), r(), r()}, s{r(), r(), r()};
        vector3 x, y, z;
        if (mt_calcular_ejes_3D_dados_3_puntos(p.x, p.y, p.z, q.x, q.y, q.z, s.x, s.y, s.z, &x.x, &x.y, &x.z,
                                               &y.x, &y.y, &y.z, &z.x, &z.y, &z.z)) {
            ASSERT_LT(error_de_ejes(x, y, z), 1e-14);
            const vector3 u{(q.x - p.x) / k, (q.y - p.y) / k, (q.z - p.z) / k},
                v{(s.x - p.x) / k, (s.y - p.y) / k, (s.z - p.z) / k};
            ASSERT_TRUE(por(x, u) > 0. && std::fabs(por(y, u)) < 1e-14 && std::fabs(por(z, v)) < 1e-7 &&
                        por(y, v) > 0.);
            h << x.x << y.y << z.z;
        }
        ASSERT_TRUE(mt_calcular_ejes_3D_dados_2_puntos(p.x, p.y, p.z, q.x, q.y, q.z, &x.x, &x.y, &x.z, &y.x,
                                                       &y.y, &y.z, &z.x, &z.y, &z.z) ||
                    (p.x == q.x && p.y == q.y && p.z == q.z));
        ASSERT_LT(error_de_ejes(x, y, z), 1e-14);
        const bool vertical = std::fabs(x.x) < 1. / 64. && std::fabs(x.y) < 1. / 64.;
        ASSERT_TRUE(vertical || (y.z == 0. && z.z >= 0.));
        h << y.x << z.y;
    }
    EXPECT_EQ(h(), 319894598589057984u);
    // The limit of 1/64, in each of the two components: Y turns from Yg x N to horizontal.
    for (const double c : {1. / 64., abajo(1. / 64.)}) {
        double Xx, Xy, Xz;
        const bool vertical = c < 1. / 64.;
        vornmath_calcula_matriz_transformacion_autocad(c, 0., std::sqrt(1. - c * c), &Xx, &Xy, &Xz, nullptr,
                                                       nullptr, nullptr);
        EXPECT_EQ(Xz != 0. && Xx > 0.9, vertical);
        vornmath_calcula_matriz_transformacion_autocad(0., -c, std::sqrt(1. - c * c), &Xx, &Xy, &Xz, nullptr,
                                                       nullptr, nullptr);
        EXPECT_TRUE(Xy == 0. && Xz == 0. && Xx > 0.9);
    }
    // Three points on a line, one point, not a number: the global axes, and said so.
    for (const double x3 : {2., 0., NAN_, INF}) {
        vector3 x, y, z;
        EXPECT_EQ(mt_calcular_ejes_3D_dados_3_puntos(0., 0., 0., 1., 1., 1., x3, x3, x3, &x.x, &x.y, &x.z,
                                                     &y.x, &y.y, &y.z, &z.x, &z.y, &z.z),
                  FALSO);
        EXPECT_TRUE(x.x == 1. && y.y == 1. && z.z == 1. && x.y == 0.);
    }
}

PRUEBA(mt, el_pie_en_una_recta_y_el_corte_con_un_plano_estan_en_ellos) {
    azar a(5);
    for (int i = 0; i < CASOS; ++i) {
        double v[9];
        for (double &x : v) x = a.entre(-100., 100.);
        double x, y, z;
        mt_proyecta_punto_sobre_recta_3D(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], &x, &y, &z);
        const double l = mt_distancia_3D(v[3], v[4], v[5], v[6], v[7], v[8]);
        ASSERT_NEAR(mt_producto_escalar(v[0] - x, v[1] - y, v[2] - z, v[6] - v[3], v[7] - v[4], v[8] - v[5]) /
                        l,
                    0., 1e-11);
        const double D = mt_D_plano_posicionado_en_coordenada(v[3], v[4], v[5], v[6], v[7], v[8]);
        if (mt_existe_interseccion_recta_con_plano(v[0], v[1], v[2], 0., 0., 5., v[3], v[4], v[5], D, &x, &y,
                                                   &z)) {
            ASSERT_TRUE(x == v[0] && y == v[1]);
            ASSERT_NEAR((v[3] * x + v[4] * y + v[5] * z + D) / 1e4, 0., 1e-12 * std::max(1., std::fabs(z)));
        }
        mt_producto_vectorial_3ptos(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], v[8], &x, &y, &z);
        ASSERT_NEAR(mt_producto_escalar(x, y, z, v[3] - v[0], v[4] - v[1], v[5] - v[2]) / 1e6, 0., 1e-12);
    }
}

// A committed sample of the angles, for the platforms to agree on.
PRUEBA(mt, los_angulos_son_los_mismos_en_toda_plataforma) {
    const struct {
        double x, y, angulo;
    } filas[] = {{1., 2., 1.1071487177940904},        {-3., 0.1, 3.108271657711546},
                 {-3., -0.1, 3.1749136494680403},     {1e-9, -7., 4.712388980527547},
                 {5e3, 1e-3, 1.9999999999999734e-07}, {-1e200, -1e199, 3.241261306080955}};
    for (const auto &f : filas)
        EXPECT_TRUE(cerca(mt_angulo(0., 0., f.x, f.y), f.angulo)) << f.x << " " << f.y;
}
