#include "espacio.h"
#include "geometry/ejes2d.h"

using namespace espacio;
using vn::ante, vn::tras;

namespace {

constexpr char EN_PLANO[] = "vnstdc_fabs(x * Wx + y * Wy + z * Wz) < precision";
constexpr char UNITARIO[] = "ABS(ABS(Ux * Ux + Uy * Uy + Uz * Uz) - 1.) < .00001";

const marco GLOBAL;

::testing::AssertionResult iguales(vec a, vec b, double escala) {
    for (const auto &[x, y] : {std::pair{a.x, b.x}, {a.y, b.y}, {a.z, b.z}})
        if (const auto r = vn::cerca(x, y, escala); !r) return r;
    return ::testing::AssertionSuccess();
}

} // namespace

PRUEBA(ejes2d, ir_a_global_y_volver_deja_todo_donde_estaba) {
    vn::azar a(31);
    vn::huella h; // no function of the platform's is in these
    for (int caso = 0; caso < 20000; ++caso) {
        const vn::lugar lugar = vn::lugar_de(caso);
        const marco m = marco_al_azar(a, 1000., lugar), n = marco_al_azar(a, 1000.);
        const vec p = vector_al_azar(a, 1000.);
        const double e = lugar.escala(3000.), fuera = e * 1e-12;
        vec g, l, pie;
        double x, y;
        ejes2d_coordenada_3D_local_a_global(EJ(m), XYZ(p), A_XYZ(g));
        ASSERT_TRUE(iguales(g, m.punto(p.x, p.y, p.z), e)); // the same by another road
        ejes2d_cambio_sistema_coordenadas(EJ(m), XYZ(g), A_XYZ(l));
        ASSERT_TRUE(iguales(l, p, e));
        ejes2d_coordenadas_3D_proyectado_a_3D(EJ(m), XYZ(g), A_XYZ(pie));
        ejes2d_coordenadas_3D_a_2D(EJ(m), XYZ(pie), fuera, &x, &y);
        ASSERT_TRUE(iguales({x, y, 0}, {p.x, p.y, 0}, e));
        const vec d = .6 * m.u + .8 * m.v;
        double dx, dy;
        ejes2d_recta_3D_a_2D(EJ(m), XYZ(pie), XYZ(d), fuera, &x, &y, &dx, &dy);
        ASSERT_TRUE(iguales({x, y, 0}, {p.x, p.y, 0}, e) && iguales({dx, dy, 0}, {.6, .8, 0}, 3.));
        ASSERT_TRUE(vn::cerca(ejes2d_distancia_con_signo_punto_a_plano(EJ(m), XYZ(g)), p.z, e));
        h << x << y << dx << dy << l.x << l.y << l.z;

        ejes2d_vector_3D_local_a_global(UV_(m), XYZ(p), A_XYZ(g));
        ejes2d_vector_3D_global_a_local(UV_(m), XYZ(g), A_XYZ(l));
        ASSERT_TRUE(iguales(l, p, e) && vn::cerca(largo(g), largo(p), e));

        // The screen: a 4 x 4 inverse undoes what two products did.
        ejes2d_coordenada_2D_a_3D_pantalla(EJ(m), p.x, p.y, A_XYZ(g));
        ejes2d_transforma_de_3D_a_2D_pantalla(EJ(m), XYZ(g), &x, &y);
        ASSERT_TRUE(iguales({x, y, 0}, {p.x, p.y, 0}, e));

        // A whole frame, by its values and as records.
        marco en, de_vuelta;
        ejes2d_ejes_locales_a_globales(EJ(m), EJ(n), A_EJ(en));
        ejes2d_ejes_globales_a_locales(EJ(m), EJ(en), A_EJ(de_vuelta));
        ASSERT_TRUE(iguales(de_vuelta.o, n.o, e) && iguales(de_vuelta.u, n.u, 3.) && iguales(de_vuelta.v, n.v, 3.));
        using registro = vn::dueno<ejes2d_destruye>;
        const registro base(ejes2d_crea(EJ(m))), local(ejes2d_crea(EJ(n))),
            r(ejes2d_local_a_global(EJ(m), local.get())), s(ejes2d_local_a_ejes2d_global(local.get(), base.get())),
            t(ejes2d_global_a_ejes2d_local(base.get(), s.get())), c(ejes2d_copia(t.get()));
        ASSERT_TRUE(r->Xo == en.o.x && r->Vz == en.v.z && s->Uy == en.u.y && c->Zo == de_vuelta.o.z);
        const puntos lista({m.punto(0, 0), m.punto(3, 0), m.punto(p.x, 5, 1e-4), m.punto(1, p.y, -1e-4)});
        uint32_t indice;
        h << ejes2d_punto3D_forman_ejes_con_ind_punto_no_forma_eje(lista, A_EJ(de_vuelta), &indice) << indice;
        for (const double x2 : {EJ(en), EJ(de_vuelta)}) h << x2;
    }
    EXPECT_EQ(h(), 18351111730025335270u);
}

PRUEBA(ejes2d, las_polilineas_van_punto_a_punto) {
    vn::azar a(32);
    for (int caso = 0; caso < 500; ++caso) {
        const vn::lugar lugar = vn::lugar_de(caso / 2);
        const double e = lugar.escala(1000.), fuera_ = e * 1e-12;
        const marco m = marco_al_azar(a, 100., lugar),
                    n = {m.o + 3. * m.u - 2. * m.v, m.u, caso % 2 == 0 ? m.v : -1. * m.v};
        const planos plana(arr_CreaPunto2D(0));
        for (uint32_t i = a.entero(6); i-- > 0;) arr_AppendPunto2D(plana, a.entre(-9., 9.), a.entre(-9., 9.));
        const puntos g(ejes2d_polilinea2D_a_3D(EJ(m), plana)), l(ejes2d_polilinea3D_transformada_a_locales(EJ(m), g)),
            vuelta(ejes2d_polilinea3D_transformada(EJ(m), l));
        const planos en_plano(ejes2d_polilinea3D_a_2D(EJ(m), g, fuera_)),
            pies(ejes2d_polilinea3D_proyectada_a_2D(EJ(m), g));
        vnbool fuera = 7;
        const planos otra(
            ejes2d_crea_puntos2d_cambiado_a_sistema_coordenadas_destino(plana, EJ(m), EJ(n), fuera_, &fuera));
        const uint32_t num = plana.size();
        ASSERT_TRUE(fuera == FALSO && g.size() == num && vuelta.size() == num && otra.size() == num);
        for (uint32_t i = 0; i < num; ++i) {
            // The contour keeps its winding: the planes that look opposite ways have it backwards.
            const vec p = plana[i], s = otra[caso % 2 == 0 ? i : num - 1 - i];
            vec u{}, q{}, r{};
            ejes2d_coordenada_2D_a_3D_punto_poligono(EJ(m), plana, i, A_XYZ(u));
            ASSERT_TRUE(iguales(g[i], u, 0.) && iguales(l[i], p, e) && iguales(vuelta[i], g[i], e));
            ASSERT_TRUE(iguales(en_plano[i], p, e) && iguales(pies[i], en_plano[i], 0.));
            ASSERT_TRUE(iguales(s, {p.x - 3., caso % 2 == 0 ? p.y + 2. : -(p.y + 2.), 0}, e));
            ejes2d_cambia_de_un_sistema_coordenadas_a_otro(EJ(m), EJ(n), p.x, p.y, fuera_, &q.x, &q.y);
            ejes2d_cambia_de_un_sistema_coordenadas_a_otro_proyectando(EJ(m), EJ(n), p.x, p.y, &r.x, &r.y);
            ASSERT_TRUE(iguales(q, s, 0.) && iguales(r, s, 0.));
        }
        ejes2d_transforma_polilinea3D(EJ(m), l);
        ejes2d_polilinea3D_transforma_a_locales(EJ(m), l);
        for (uint32_t i = 0; i < num; ++i) ASSERT_LT(std::fabs(l[i].z), fuera_);
    }
}

PRUEBA(ejes2d, cada_comparacion_en_su_limite) {
    // Each of the nine values by itself, the limit included.
    for (size_t i = 0; i < 9; ++i) {
        const double p = 0x1p-10;
        for (const double d : {p, -p, tras(p), -tras(p)}) {
            double v[9] = {0, 0, 0, 1, 0, 0, 0, 1, 0};
            const double antes = v[i];
            v[i] += d;
            const bool dentro = std::fabs(v[i] - antes) <= p;
            const marco m{{v[0], v[1], v[2]}, {v[3], v[4], v[5]}, {v[6], v[7], v[8]}};
            EXPECT_EQ(ejes2d_es_identidad(EJ(m), p), dentro) << i;
            EXPECT_EQ(ejes2d_iguales(EJ(GLOBAL), EJ(m), p), dentro) << i;
        }
    }
    HASTA(1e-5, 1, ejes2d_son_ejes_iguales(UV_(GLOBAL), 1, d, 0, 0, 1, 0) == CIERTO);
    const marco m{{}, {1, 0, 0}, {0, .8, .6}}, vuelto{{}, m.u, -1. * m.v}, alto{{5, 6, .25}, m.u, {0, -1, 0}};
    const double coseno = por(m.w(), {0, 0, 1}); // .8
    HASTA(std::fabs(coseno - 1.), 1, ejes2d_son_paralelos(UV_(GLOBAL), UV_(m), d) == FALSO);
    HASTA(coseno, 0, ejes2d_son_ejes_orientados_en_la_misma_direccion(UV_(GLOBAL), UV_(m), d) == FALSO);
    HASTA(.25, 1, ejes2d_son_ejes_coincidentes(EJ(GLOBAL), EJ(alto), 1e-12, d) == FALSO);
    EXPECT_EQ(ejes2d_son_paralelos(UV_(m), UV_(vuelto), 1e-12), CIERTO);
    EXPECT_EQ(ejes2d_son_ejes_orientados_en_la_misma_direccion(UV_(m), UV_(vuelto), 0.), FALSO);

    // The contour's order hangs on a product of normals above 1e-8.
    const planos p(arr_CreaPunto2D(0));
    for (const double x : {3., 4.}) arr_AppendPunto2D(p, x, 0.);
    const auto primero = [&p](double s) {
        return planos(ejes2d_crea_puntos2d_cambiado_a_sistema_coordenadas_destino(p, 0, 0, 0, 1, 0, 0, 0, s, 1,
                                                                                  EJ(GLOBAL), 1., nullptr))[0];
    };
    HASTA(1e-8, 1, primero(d).x == 4.);
    EXPECT_EQ(primero(tras(1e-8)).x, 3.);
}

PRUEBA(ejes2d, lo_que_esta_fuera_del_plano_se_dice_y_se_proyecta) {
    double x = 9, y = 9, u, v;
    vnbool fuera = 7;
    for (const double z : {.25, -.25, ante(.25)}) {
        const bool mal = std::fabs(z) >= .25;
        const auto dice = [mal](auto f, const char *texto = EN_PLANO) { vn::con_informe(mal ? texto : nullptr, f); };
        dice([&] { ejes2d_coordenadas_3D_a_2D(EJ(GLOBAL), 1, 2, z, .25, &x, &y); });
        ejes2d_coordenadas_3D_a_2D_fuera_de_precision(EJ(GLOBAL), 1, 2, z, .25, &x, &y, &fuera);
        EXPECT_TRUE(x == 1. && y == 2. && fuera == mal);
        dice([&] { ejes2d_vector_3D_a_2D_con_precision(UV_(GLOBAL), 1, 2, z, .25, &x, &y); });
        dice([&] {
            ejes2d_cambia_de_un_sistema_coordenadas_a_otro(0, 0, z, UV_(GLOBAL), EJ(GLOBAL), 1, 2, .25, &x, &y);
        });
        dice([&] { ejes2d_recta_3D_a_2D(EJ(GLOBAL), 1, 2, z, 1, 0, 0, .25, &x, &y, &u, &v); });
        dice([&] { ejes2d_recta_3D_a_2D(EJ(GLOBAL), 1, 2, 0, .5, .75, z, .25, &x, &y, &u, &v); },
             "vnstdc_fabs(Ux_recta_3D * Wx + Uy_recta_3D * Wy + Uz_recta_3D * Wz) < precision");
        EXPECT_TRUE(x == 1. && y == 2. && u == .5 && v == .75);
        const puntos p({{1, 2, z}, {3, 4, 0}});
        dice([&] { EXPECT_EQ(planos(ejes2d_polilinea3D_a_2D(EJ(GLOBAL), p, .25))[1].y, 4.); });
    }
    ejes2d_vector_3D_a_2D(UV_(GLOBAL), 1, 2, ante(1e-6), &x, &y);
    ESPERA_INFORME(EN_PLANO, ejes2d_vector_3D_a_2D(UV_(GLOBAL), 1, 2, 1e-6, &x, &y));
    ESPERA_INFORME(EN_PLANO, ejes2d_coordenadas_3D_a_2D(EJ(GLOBAL), 1, 2, std::nan(""), 1., &x, &y));

    // Axes of no plane have no normal; one that has none nor an inverse.
    ESPERA_INFORME(UNITARIO, ejes2d_vector_director_plano(1, 0, 0, 2, 0, 0, &x, &y, &u));
    vec p{1, 1, 1};
    ejes2d_coordenada_2D_a_3D_pantalla(0, 0, 0, 1, 0, 0, 2, 0, 0, 5, 5, A_XYZ(p));
    EXPECT_TRUE(vn::Prueba::toma_informes().size() == 1 && p.x == 0. && p.z == 0.);
    const auto dentro = [](double w) { return std::fabs(std::fabs(w * w) - 1.) < .00001; };
    double w = std::sqrt(1.00001);
    while (!dentro(w)) w = ante(w);
    while (dentro(tras(w))) w = tras(w);
    for (const double l : {w, tras(w)})
        vn::con_informe(dentro(l) ? nullptr : UNITARIO, [&] {
            ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(0, 0, l, A_XYZ(p), nullptr, nullptr, nullptr);
        });
}

PRUEBA(ejes2d, los_ejes_horizontales_cambian_de_regla_donde_la_normal_es_vertical) {
    for (const auto &[normal, ejes] : vn::filas<std::string, std::string>("geometry/ejes2d.tsv", "horizontales")) {
        const vec w = vectores(normal).at(0);
        const auto uv = vectores(ejes);
        marco m;
        vec v;
        ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(XYZ(w), A_UV(m));
        EXPECT_TRUE(iguales(m.u, uv.at(0), 1.) && iguales(m.v, uv.at(1), 1.)) << normal;
        ejes2d_eje_V_horizontal_a_partir_del_vector_U(XYZ(w), A_XYZ(v));
        EXPECT_TRUE(iguales(v, m.u, 0.));
    }
    vn::azar a(33);
    vn::huella h;
    for (int caso = 0; caso < 20000; ++caso) {
        const vec w = direccion_al_azar(a);
        const double d = a.entre(-50., 50.);
        marco m, n;
        ejes2d_ejes_horizontales_a_partir_de_ecuacion_del_plano(XYZ(w), d, A_EJ(m));
        ASSERT_TRUE(m.u.z == 0. && m.v.z >= 0. && vn::cerca(por(m.u, m.v), 0.) && iguales(m.w(), w, 1.));
        ASSERT_TRUE(vn::cerca(por(w, m.o) + d, 0., 100.));
        // A vertical projection leaves global x above or below local x.
        ejes2d_ejes_para_proyectar_en_vertical_sobre_plano_ABCD(XYZ(w), d, A_EJ(n));
        ASSERT_TRUE(std::fabs(w.z) <= 1e-4 ||
                    (n.u.y == 0. && n.u.x > 0. && iguales(n.w(), w, 1.) && iguales(n.o, m.o, 0.)));
        ejes2d_ejes_con_V_vertical_usando_referencia_ecuacion_plano(XYZ(w), A_UV(n));
        ASSERT_TRUE(n.v.z == 1. && n.u.z == 0. && vn::cerca(largo(n.u), 1.) && vn::cerca(por(n.u, w), 0.));
        // The equation, and what moves along the normal.
        double A, B, C, D, D2;
        ejes2d_ecuacion_del_plano(EJ(m), &A, &B, &C, &D);
        ASSERT_TRUE(iguales({A, B, C}, w, 1.) && vn::cerca(D, d, 100.));
        ejes2d_ecuacion_del_plano_desplazado_en_z_local(EJ(m), 3., &A, &B, &C, &D2);
        ASSERT_TRUE(vn::cerca(D2, D - 3., 100.));
        ejes2d_desplaza_ejes(A_XYZ(m.o), UV_(m), 3.);
        ASSERT_TRUE(vn::cerca(por(m.o, w) + D2, 0., 100.));
        const vec pie = -D2 * w;
        const double x9 = a.entre(-9, 9), y9 = a.entre(-9, 9);
        m.o = m.punto(x9, y9);
        ejes2d_posiciona_ejes_en_origen_cero_global_proyectado_sobre_el_plano(A_XYZ(m.o), UV_(m));
        ASSERT_TRUE(largo(m.o - pie) < 3e-6);
        for (const double x : {EJ(m), A, B, C, D, D2}) h << x;
    }
    EXPECT_EQ(h(), 9794847595092685427u);
    marco vertical;
    ejes2d_ejes_para_proyectar_en_vertical_sobre_plano_ABCD(1, 0, 0, -2, A_EJ(vertical));
    EXPECT_TRUE(vertical.o.x == 2. && vertical.u.y == 1. && vertical.v.z == 1.);
    for (const double z : {1e-6, ante(1e-6)}) {
        vec o{4, 5, z};
        ejes2d_posiciona_ejes_en_origen_cero_global_proyectado_sobre_el_plano(A_XYZ(o), UV_(GLOBAL));
        EXPECT_TRUE(o.x == 0. && o.y == 0. && o.z == (z < 1e-6 ? 0. : 1e-6));
    }
}

PRUEBA(ejes2d, los_ejes_de_puntos_y_de_caras) {
    marco m, n;
    ejes2d_ejes_con_dos_puntos(1, 2, 3, 1, 2, 8, nullptr, nullptr, nullptr, A_UV(m));
    EXPECT_TRUE(m.u.z == 1. && vn::cerca(por(m.u, m.v), 0.) && vn::cerca(largo(m.v), 1.));
    ejes2d_ejes_con_dos_puntos(1, 2, 3, 1, 2, 3, A_EJ(m)); // one point: the global axes there
    EXPECT_TRUE(m.o.z == 3. && m.u.x == 1. && m.v.y == 1.);
    for (const double z : {ante(.0005), .0005}) {
        const char *dice = "vnstdc_fabs(prod_escalar_pto_esta_en_plano) < i_PRECISION_PUNTO_PERTENECE_PLANO";
        vn::con_informe(z < .0005 ? nullptr : dice,
                        [&] { ejes2d_ejes_de_una_cara(0, 0, 0, 4, 0, 0, 4, 4, z, 0, 4, 0, A_EJ(m)); });
        EXPECT_TRUE(m.o.x == 2. && m.o.y == 2. && m.o.z == z / 4. && m.u.x == 1. && m.v.y == 1.);
    }
    double A, B, C, D;
    ejes2d_ecuacion_del_plano_dado_tres_puntos(0, 0, 5, 1, 0, 5, 0, 1, 5, &A, &B, &C, &D);
    EXPECT_TRUE(A == 0. && B == 0. && C == 1. && D == -5.);
    ejes2d_ejes_horizontales_dado_angulo_rad(.75, A_UV(m));
    ejes2d_ejes_horizontales_dado_Ux_Uy(m.u.x, m.u.y, A_UV(n));
    EXPECT_TRUE(vn::cerca(m.u.x, 0.73168886887382090) && vn::cerca(m.u.y, 0.68163876002333412) &&
                iguales(n.v, m.v, 0.));
    EXPECT_TRUE(m.v.x == -m.u.y && m.v.y == m.u.x);
    const vn::dueno<ejes2d_destruye_planoABCD> p(ejes2d_crea_planoABCD(0, .6, .8, -2)),
        q(ejes2d_copia_planoABCD(p.get()));
    EXPECT_TRUE(q->B == .6 && q->D == -2.);
}

PRUEBA(ejes2d, los_angulos_de_giro_y_sus_ejes_se_deshacen) {
    vn::azar a(34);
    const auto da_la_vuelta = [](vec g, double escala) {
        marco m, n;
        vec h;
        ejes2d_ejes_de_angulos_giro_3d(XYZ(g), A_UV(m));
        ejes2d_angulos_giro_3d_de_ejes(UV_(m), A_XYZ(h));
        for (const double x : {h.x, h.y, h.z}) EXPECT_TRUE(x >= -1e-10 && x <= 360.0000000001);
        ejes2d_ejes_de_angulos_giro_3d(XYZ(h), A_UV(n));
        return iguales(n.u, m.u, escala) && iguales(n.v, m.v, escala);
    };
    for (int caso = 0; caso < 20000; ++caso) {
        ASSERT_TRUE(da_la_vuelta(vector_al_azar(a, 720.), 1e3));
        // Near the poles the turns about x and z run together.
        const double polo = (a.moneda() ? 90. : -90.) + (a.moneda() ? 0. : a.entre(-1e-6, 1e-6));
        ASSERT_TRUE(da_la_vuelta({a.entre(-180., 180.), polo, a.entre(-180., 180.)}, 1e5));
        // The angles themselves, where they are those of the range.
        const vec g{a.entre(1., 359.), a.moneda() ? a.entre(1., 89.) : a.entre(271., 359.), a.entre(1., 359.)};
        marco m;
        vec h;
        ejes2d_ejes_de_angulos_giro_3d(XYZ(g), A_UV(m));
        ejes2d_angulos_giro_3d_de_ejes(UV_(m), A_XYZ(h));
        ASSERT_TRUE(iguales(h, g, 1e5));
    }
    for (const auto &[ejes, angulos] : vn::filas<std::string, std::string>("geometry/ejes2d.tsv", "giros")) {
        const auto uv = vectores(ejes);
        vec g;
        ejes2d_angulos_giro_3d_de_ejes(XYZ(uv.at(0)), XYZ(uv.at(1)), A_XYZ(g));
        EXPECT_TRUE(iguales(g, vectores(angulos).at(0), 360.)) << angulos;
    }
    // What is hardly below zero stays; the next is taken a turn up.
    vec g;
    for (const double seno : {1e-12, 3e-12}) {
        ejes2d_angulos_giro_3d_de_ejes(1, 0, seno, 0, 1, 0, A_XYZ(g));
        EXPECT_EQ(g.y < 0., seno < 2e-12);
    }
    // A sample for the platforms to agree on, by the three matrices multiplied elsewhere.
    marco m;
    ejes2d_ejes_de_angulos_giro_3d(12.5, 340., 77.25, A_UV(m));
    EXPECT_TRUE(iguales(m.u, {0.20738775111608207, 0.9165219813220538, 0.3420201433256686}, 1.) &&
                iguales(m.v, {-0.9685603176177854, 0.14326464364690072, 0.20338670806338613}, 1.));
    ejes2d_angulos_giro_3d_de_ejes(.6, 0, .8, 0, 1, 0, A_XYZ(g));
    EXPECT_TRUE(iguales(g, {0, 306.86989764584404, 0}, 360.));
}

PRUEBA(ejes2d, cada_giro_en_su_sentido) {
    for (const auto &[grados, c, s] :
         {std::tuple{90., 0., 1.}, {-90., 0., -1.}, {30., std::sqrt(.75), .5}, {180., -1., 0.}}) {
        marco m = GLOBAL;
        ejes2d_gira_ejes_sobre_U(XYZ(m.u), A_XYZ(m.v), grados);
        EXPECT_TRUE(iguales(m.v, {0, c, s}, 1.));
        m = GLOBAL;
        ejes2d_gira_ejes_sobre_V(A_XYZ(m.u), XYZ(m.v), grados);
        EXPECT_TRUE(iguales(m.u, {c, 0, s}, 1.)); // toward W: the left-handed sense
        m = GLOBAL;
        ejes2d_gira_ejes_sobre_W(A_UV(m), grados);
        EXPECT_TRUE(iguales(m.u, {c, s, 0}, 1.) && iguales(m.v, {-s, c, 0}, 1.));
    }
    vec v{0, 1, 0};
    ejes2d_invierte_ejes_manteniendo_la_U(A_XYZ(v));
    EXPECT_EQ(v.y, -1.);
}
