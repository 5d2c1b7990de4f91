#include "espacio.h"
#include "geometry/ejes2d.h"
#include "geometry/polin3d.h"
#include <algorithm>

using namespace espacio;
using vn::tras, vn::INF, vn::NAN_;

namespace {

constexpr double PI = 3.141592653589793;

// A fillet, or none: no points and `hay` false.
struct acuerdo : puntos {
    vnbool hay = 7;
    vec centro{7, 7, 7};
    acuerdo(vec p1, vec p2, vec p3, double diametro, double radio, double grados = 10., vnbool mantiene = FALSO)
        : puntos(nullptr) {
        arrPunto3D *nuevos = nullptr;
        hay = Pln3D_se_genera_puntos_acuerdo_entre_tres_puntos(XYZ(p1), XYZ(p2), XYZ(p3), diametro, radio, grados,
                                                               mantiene, &nuevos, A_XYZ(centro));
        a.reset(nuevos);
    }
    vec ultimo() const { return (*this)[size() - 1]; }
};

// Axes along a path, as values.
std::vector<marco> toma(arrPuntero *ejes) {
    std::vector<marco> r;
    if (ejes == nullptr) return r;
    for (uint32_t i = 0; i < arr_NumElemsPuntero(ejes); ++i) {
        const ejes2d *e = arr_GetPunteroST(ejes, i, ejes2d);
        r.push_back({{e->Xo, e->Yo, e->Zo}, {e->Ux, e->Uy, e->Uz}, {e->Vx, e->Vy, e->Vz}});
    }
    arr_DestruyeEstructurasST(&ejes, ejes2d, ejes2d_destruye);
    return r;
}

// The sections of a path, its corners as they are or rounded, and its points with fillets.
std::vector<marco> secciones(const std::vector<vec> &camino, vnbool vertical = FALSO) {
    return toma(polin3d_ejes2d_polilinea_sin_radios_de_acuerdo(puntos(camino), vertical));
}
std::vector<marco> redondeadas(const std::vector<vec> &camino, double diametro, double radio, double grados = 10.,
                               vnbool vertical = FALSO) {
    return toma(polin3d_ejes2d_polilinea_con_radios_de_acuerdo(puntos(camino), diametro, radio, grados, vertical));
}
puntos con_acuerdos(const std::vector<vec> &camino, double diametro, double radio) {
    return puntos(polin3d_puntos_polilinea_con_radios_de_acuerdo(puntos(camino), diametro, radio, 10.));
}
bool estan(vec a, vec b) { return largo(a - b) < 1e-12; }
bool ortonormal(const marco &m) {
    return std::fabs(por(m.u, m.v)) + std::fabs(largo(m.u) - 1.) + std::fabs(largo(m.v) - 1.) < 1e-9;
}

std::vector<vec> camino_al_azar(vn::azar &a, uint32_t n, const vn::lugar &l = {}) {
    std::vector<vec> p{vec{l.x, l.y, l.z} + vector_al_azar(a, 10.)};
    vec u = direccion_al_azar(a);
    while (p.size() < n) {
        // Bends of two degrees and more, up to two thirds of a half turn.
        vec d;
        do d = direccion_al_azar(a);
        while (por(d, u) < -.5 || por(d, u) > .999);
        p.push_back(p.back() + a.entre(2., 4.) * d);
        u = d;
    }
    return p;
}

} // namespace

PRUEBA(polin3d, el_acuerdo_es_tangente_en_sus_extremos_y_tiene_el_radio_pedido) {
    vn::azar a(51);
    int con = 0;
    for (int caso = 0; caso < 20000; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const double cota = l.escala(1000.) * 1e-12;
        const vec p2 = vec{l.x, l.y, l.z} + vector_al_azar(a, 100.), u1 = direccion_al_azar(a),
                  u2 = direccion_al_azar(a);
        const double l1 = a.entre(.5, 10.), l2 = a.entre(.5, 10.), radio = a.entre(.01, 3.), grados = a.entre(.5, 40.);
        const vec p1 = p2 + l1 * u1, p3 = p2 + l2 * u2;
        const double angulo = std::acos(std::clamp(por(u1, u2), -1., 1.)), t = radio / std::tan(angulo / 2.);
        const acuerdo f(p1, p2, p3, .1, radio, grados);
        if (std::fabs(t - std::min(l1, l2)) < 1e-3 || angulo < .02 || angulo > PI - .02) continue; // at a limit
        ASSERT_EQ(f.hay, t < std::min(l1, l2)) << caso;
        if (f.hay != CIERTO) continue;
        ++con;
        // The first and the last point lie on the segments, square to the radius there; all are at the radius, in
        // plane, in even steps that are no longer than asked for.
        ASSERT_LT(largo(f[0] - (p2 + t * u1)), cota);
        ASSERT_LT(largo(f.ultimo() - (p2 + t * u2)), cota);
        ASSERT_LT(std::fabs(por(f[0] - f.centro, u1)), cota);
        ASSERT_LT(std::fabs(por(f.ultimo() - f.centro, u2)), cota);
        const double paso = (PI - angulo) / (f.size() - 1), cuerda = 2. * radio * std::sin(paso / 2.);
        ASSERT_LT(paso, grados * PI / 180. + cota);
        ASSERT_GT(paso, (PI - angulo) * grados * PI / 180. / (PI - angulo + grados * PI / 180.) - cota);
        for (uint32_t i = 0; i < f.size(); ++i) {
            ASSERT_LT(std::fabs(largo(f[i] - f.centro) - radio), cota);
            ASSERT_LT(std::fabs(por(f[i] - p2, cruz(u1, u2))), cota);
            if (i == 0) continue;
            ASSERT_LT(std::fabs(largo(f[i] - f[i - 1]) - cuerda), cota);
        }
    }
    EXPECT_GT(con, 10000);
}

PRUEBA(polin3d, donde_no_hay_acuerdo) {
    // A segment must be longer than half the diameter.
    HASTA(1., 2., acuerdo({d, 0, 0}, {}, {0, 9, 0}, 2., .5).hay == FALSO);
    HASTA(1., 2., acuerdo({9, 0, 0}, {}, {0, d, 0}, 2., .5).hay == FALSO);
    // Straight on or doubled back, to a degree.
    for (const double g : {.0174, .0175, PI - .0175, PI - .0174}) {
        const bool hay = g > .01745 && g < PI - .01745;
        EXPECT_EQ(acuerdo({1, 0, 0}, {}, {std::cos(g), std::sin(g), 0}, .1, 1e-4).hay, hay) << g;
    }
    // An end that the fillet overruns, reaches to 1e-5 (kept or left out), or does not reach. The tangent point is at
    // 1.
    for (const double falta : {-2e-5, -.9e-5, 0., .9e-5, 2e-5}) {
        const vec extremo{1. + falta, 0, 0};
        for (const vnbool mantiene : {FALSO, CIERTO}) {
            const acuerdo ida(extremo, {}, {0, 9, 0}, .1, 1., 10., mantiene),
                vuelta({0, 9, 0}, {}, extremo, .1, 1., 10., mantiene);
            const bool hay = falta > -1e-5, en_el = std::fabs(falta) < 1e-5;
            EXPECT_TRUE(ida.hay == hay && vuelta.hay == hay && estan(ida.centro, {1, 1, 0})) << falta;
            EXPECT_EQ(ida.size(), hay ? 10u - (en_el && mantiene == FALSO) : 0u) << falta;
            EXPECT_EQ(vuelta.size(), ida.size());
            if (!hay || !en_el || mantiene == FALSO) continue;
            EXPECT_TRUE(ida[0].x == extremo.x && vuelta.ultimo().x == extremo.x && vuelta.ultimo().y == 0.);
        }
    }
    // Arguments that no fillet comes of. A step without measure is bounded before any memory is asked for.
    const vec x{5, 0, 0}, y{0, 5, 0};
    for (const double mala : {NAN_, INF, -INF})
        EXPECT_FALSE(acuerdo(x, {}, y, .1, mala).hay || acuerdo({mala, 0, 0}, {}, y, .1, 1.).hay ||
                     acuerdo(x, {0, mala, 0}, y, .1, 1.).hay)
            << mala;
    EXPECT_FALSE(acuerdo(x, {}, y, NAN_, 1.).hay || acuerdo({1e308, 0, 0}, {-1e308, 0, 0}, y, .1, 1.).hay);
    const vn::mayor_bloque mayor;
    for (const auto &[paso, dice] : vn::filas<double, vn::nulable>("geometry/polin3d.tsv", "grados"))
        vn::con_informe(dice.c_str(), [&, g = paso] { EXPECT_EQ(acuerdo(x, {}, y, .1, 1., g).hay, FALSO) << g; });
    EXPECT_LT(mayor(), 100000u);
    EXPECT_EQ(acuerdo(x, {}, y, .1, 1., 91e-5).hay, CIERTO);
    EXPECT_EQ(acuerdo(x, {}, y, .1, 1., 1e300).size(), 2u);
}

PRUEBA(polin3d, circulos_y_arcos) {
    vn::azar a(52);
    for (int caso = 0; caso < 5000; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        const marco m = marco_al_azar(a, 50., l);
        const auto n = static_cast<uint16_t>(4 + a.entero(40));
        const double d = a.entre(.1, 20.), ini = a.entre(-PI, PI), barre = a.entre(-3.1, 3.1);
        const puntos c(Pln3D_puntos_circulo(EJ(m), d, n));
        ASSERT_EQ(c.size(), n);
        const auto en = [&m](double g, double r) { return m.punto(r * std::cos(g), r * std::sin(g)); };
        for (uint32_t i = 0; i < n; ++i) ASSERT_LT(largo(c[i] - en(2 * PI * i / n, d / 2)), l.escala(10.) * 1e-12);
        if (std::fabs(barre) < .01) continue;
        // The short way, and the long one; the ends at any distance from the centre, of which the plane has its digits.
        const double cota = l.escala(100.) * 1e-12 / std::fabs(std::sin(barre));
        const vec e1 = en(ini, 3), e2 = en(ini + barre, 1);
        for (const vnbool otro : {FALSO, CIERTO}) {
            const puntos r(Pln3D_puntos_arco(XYZ(m.o), XYZ(e1), XYZ(e2), UV_(m), d, n, otro));
            const double s = (otro == CIERTO ? barre - std::copysign(2 * PI, barre) : barre) / (n - 1);
            for (uint32_t i = 0; i < n; ++i) ASSERT_LT(largo(r[i] - en(ini + i * s, d / 2)), cota) << caso;
        }
    }
    // A half circle runs as the axes say.
    for (const double sentido : {1., -1.}) {
        const puntos r(Pln3D_puntos_arco(0, 0, 0, 1, 0, 0, -1, 0, 0, 1, 0, 0, 0, sentido, 0, 2., 5, FALSO));
        EXPECT_LT(largo(r[2] - vec{0, sentido, 0}), 1e-9);
    }
    EXPECT_EQ(ESPERA_INFORME("num_puntos_circulo > 3", Pln3D_puntos_circulo(EJ(marco{}), 1., 3)), nullptr);
    const auto arco = [](vec fin, uint16_t n) {
        return puntos(Pln3D_puntos_arco(0, 0, 0, 1, 0, 0, XYZ(fin), 1, 0, 0, 0, 1, 0, 2., n, FALSO));
    };
    EXPECT_EQ(ESPERA_INFORME("num_puntos_arco > 3", arco({0, 1, 0}, 3)).size(), 0u);
    // Ends that are not in the plane of the axes are drawn where they are.
    const vec fuera{0, .8, .6};
    EXPECT_TRUE(
        estan(ESPERA_INFORME("vnstdc_fabs(vnstdc_fabs(mt_producto_escalar(Wx, Wy, Wz, Wx1, Wy1, Wz1)) - 1.) < .000001",
                             arco(fuera, 4))[3],
              fuera));
}

PRUEBA(polin3d, las_listas_de_puntos) {
    for (const auto &[lista, es_convexo, informe] :
         vn::filas<std::string, int, vn::nulable>("geometry/polin3d.tsv", "convexos")) {
        SCOPED_TRACE(lista);
        const puntos p(vectores(lista));
        vn::con_informe(informe.c_str(), [&, si = es_convexo] { EXPECT_EQ(Pln3D_poligono_plano_es_convexo(p), si); });
    }
    Pln3D_poligono_plano_es_convexo(puntos({{0, 0, 0}, {1, 0, 0}, {1, 1, .1}, {0, 1, 0}}));
    static constexpr char PLANO[] = "vnstdc_fabs(vnstdc_fabs(prod_escalar_poligono_es_plano) - 1.) < .00001";
    vn::espera_informes({PLANO, PLANO, PLANO}, __FILE__, __LINE__);
    vec v{7, 7, 7};
    const puntos lista({{5, 0, 0}, {0, 1, 0}, {1, 0, 0}, {NAN_, 0, 0}});
    Pln3D_GetVerticeMasProximo(lista, 0, 0, 0, A_XYZ(v));
    EXPECT_TRUE(v.x == 0. && v.y == 1.); // the first of equals
    std::vector<vec> larga(65536, vec{9, 9, 9});
    for (const uint32_t i : {65534u, 65535u}) {
        larga[i] = {1, 1, static_cast<double>(i)};
        Pln3D_GetVerticeMasProximo(puntos(larga), 1, 1, i, A_XYZ(v));
        EXPECT_EQ(v.z, 65534.); // one at 65535 is not found
    }
    Pln3D_GetVerticeMasProximo(puntos(std::vector<vec>{}), 0, 0, 0, A_XYZ(v));
    EXPECT_EQ(v.z, 65534.);
    EXPECT_EQ(Pln3D_Longitud(puntos({{1, 1, 1}, {1, 4, 5}, {1, 4, 5}, {3, 4, 5}})), 7.);
    EXPECT_EQ(Pln3D_Longitud(puntos({{1, 1, 1}})) + Pln3D_Longitud(puntos(std::vector<vec>{})), 0.);
}

PRUEBA(polin3d, los_dos_radios_de_eje_son_distintos_a_proposito) {
    EXPECT_EQ(polin3d_radio_acuerdo_eje(2., 5.), 6.);
    const std::vector<vec> codo{{10, 0, 0}, {0, 0, 0}, {0, 10, 0}};
    const puntos p = con_acuerdos(codo, 2., 3.); // radius 3 + 2 / 2
    ASSERT_EQ(p.size(), 12u);
    EXPECT_TRUE(p[0].x == 10. && p[11].y == 10. && estan(p[1], {4, 0, 0}) && estan(p[10], {0, 4, 0}));
    arrPunto3D *centros = nullptr;
    arrPuntero *c =
        polin3d_contorno_circulos_en_puntos_polilinea_con_radios_de_acuerdo(puntos(codo), 2., 3., 10., 8, &centros);
    const puntos q(centros); // radius 2 + 3 / 2
    ASSERT_TRUE(q.size() == 12 && arr_NumElemsPuntero(c) == 12);
    EXPECT_TRUE(estan(q[1], {3.5, 0, 0}) && estan(q[10], {0, 3.5, 0}) && q[11].y == 10.);
    for (uint32_t i = 0; i < 12; ++i) {
        const arrPunto3D *uno = arr_GetPunteroST(c, i, arrPunto3D);
        for (uint32_t k = 0; k < 8; ++k)
            EXPECT_LT(std::fabs(largo(arr_GetBufferConstPunto3D(uno)[k] - q[i]) - 1.), 1e-12);
    }
    arr_DestruyeEstructurasArrayST(&c, arrPunto3D, arr_DestruyePunto3D);

    // Two fillets that meet: their common point comes once. One that finds no room leaves its corner.
    const std::vector<vec> u{{10, 0, 0}, {0, 0, 0}, {0, 8, 0}, {10, 8, 0}};
    EXPECT_EQ(con_acuerdos(u, 2., 3.).size(), 21u);
    EXPECT_EQ(redondeadas(u, 2., 4.).size(), 21u); // nor two sections
    const puntos sin_sitio = con_acuerdos(u, 2., 8.);
    ASSERT_EQ(sin_sitio.size(), 4u);
    EXPECT_EQ(sin_sitio[2].y, 8.);
    for (const auto &lista : {std::vector<vec>{}, {{1, 2, 3}}, {{1, 2, 3}, {1, 2, 3}}})
        EXPECT_EQ(con_acuerdos(lista, 2., 3.).size(), lista.size());
}

PRUEBA(polin3d, las_secciones_siguen_al_camino) {
    vn::azar a(53);
    for (int caso = 0; caso < 3000; ++caso) {
        const std::vector<vec> camino = camino_al_azar(a, 2 + a.entero(8), vn::lugar_de(caso / 4));
        const vnbool vertical = caso % 4 == 3 ? CIERTO : FALSO;
        const auto s = redondeadas(camino, .05, a.entre(.1, .5), 15., vertical);
        ASSERT_GE(s.size(), camino.size());
        EXPECT_LT(largo(s.front().o - camino.front()) + largo(s.back().o - camino.back()), 1e-12);
        for (size_t i = 0; i < s.size(); ++i) {
            ASSERT_TRUE(ortonormal(s[i]) && (vertical == FALSO || s[i].v.z == 1.)) << caso;
            // Between two sections the path is straight, or an arc whose chord halves the turn between them.
            if (i == 0 || vertical == CIERTO) continue;
            const vec d = unitario(s[i].o - s[i - 1].o), media = unitario(s[i].w() + s[i - 1].w());
            ASSERT_GT(por(d, media), 1. - 1e-9) << caso << " " << i;
            ASSERT_GT(por(s[i].w(), s[i - 1].w()), std::cos(15.001 * PI / 180.));
            ASSERT_GT(por(s[i].u, s[i - 1].u), std::cos(15.001 * PI / 180.)); // not twisted
        }
        if (vertical == CIERTO) continue;
        ASSERT_GT(por(s.front().w(), unitario(camino[1] - camino[0])), 1. - 1e-12);
        ASSERT_GT(por(s.back().w(), unitario(camino.back() - camino[camino.size() - 2])), 1. - 1e-9);
    }
}

PRUEBA(polin3d, las_secciones_de_las_esquinas_sin_acuerdo) {
    const auto dos = secciones({{1, 1, 1}, {1, 3, 1}});
    ASSERT_EQ(dos.size(), 2u);
    EXPECT_TRUE(dos[0].w().y == 1. && ejes2d_son_ejes_iguales(UV_(dos[0]), UV_(dos[1])));
    // A corner of 60 degrees, then one that hardly turns.
    const vec p[] = {{10, 0, 0}, {0, 0, 0}, {3, 3 * std::sqrt(3.), 0}, {5, 5 * std::sqrt(3.) + .001, 0}};
    const auto s = secciones({p[0], p[1], p[2], p[3]}), corto = secciones({p[0], p[1], p[2]});
    ASSERT_TRUE(s.size() == 4 && corto.size() == 3);
    const vec d1{-1, 0, 0}, d2{.5, std::sqrt(.75), 0}, pm = d2 - d1;
    for (const auto &m : {s[1], corto[1]})
        EXPECT_TRUE(std::fabs(por(m.w(), unitario(pm - p[2]))) + std::fabs(m.w().z) < 1e-12 && m.w().x < 0.);
    EXPECT_TRUE(ejes2d_son_ejes_iguales(UV_(s[2]), UV_(s[1])));
    // A corner is one from a cosine of 0.0001 from 1 on: at an angle of 0.01414.
    for (const double g : {.01414, .01415}) {
        const vec q = p[2] + vec{2 * std::cos(PI / 3 + g), 2 * std::sin(PI / 3 + g), 0};
        const auto t = secciones({p[0], p[1], p[2], q});
        EXPECT_EQ(ejes2d_son_ejes_iguales(UV_(t[2]), UV_(t[1])) == CIERTO, g == .01414) << g;
    }
    EXPECT_LT(largo(corto[2].w() - vec{0, 1, 0}), 1e-12);
    // Where the told axes do not exist, since the path runs along U or the three points are on a line: square to it all
    // the same.
    for (const vn::lugar &l : {vn::lugar_de(0), vn::lugar_de(1)})
        for (const double largo2 : {1., 2.}) {
            const vec o{l.x, l.y, l.z}, entra{std::cos(.5), std::sin(.5), 0}, sale{-entra.y, entra.x, 0};
            const auto t = secciones({o - 2. * entra, o, o + largo2 * sale});
            ASSERT_EQ(t.size(), 3u);
            EXPECT_GT(por(t[1].w(), largo2 == 1. ? sale : entra), 1. - 1e-9) << largo2;
            EXPECT_TRUE(ortonormal(t[1]));
        }
    // A vertical section of a bar that is vertical itself has no axes.
    EXPECT_EQ(secciones({{1, 1, 1}, {1, 1, 3}}, CIERTO).size(), 2u);
    vn::espera_informes({"es_plano_vertical == CIERTO", "es_plano_vertical == CIERTO"}, __FILE__, __LINE__);
    // The sections of corners take no function of the platform's.
    vn::azar a(55);
    vn::huella h;
    for (int caso = 0; caso < 2000; ++caso)
        for (const marco &m : secciones(camino_al_azar(a, 6)))
            for (const double x : {EJ(m)}) h << x;
    EXPECT_EQ(h(), 18131337624243260098ull);
    // Where there is no room for a fillet the corner stays; short segments go first.
    const auto q = redondeadas({{10, 0, 0}, {0, 0, 0}, {0, .4, 0}, {0, 10, 0}, {10, 10, 0}, {20, 10, 0}}, 1., 50.);
    ASSERT_EQ(q.size(), 4u);
    EXPECT_TRUE(q[0].o.y == .4 && q[1].o.y == 10. && q[2].o.x == 10. && q[3].o.x == 20.);
}

PRUEBA(polin3d, las_polilineas_que_no_sirven) {
    EXPECT_EQ(ESPERA_INFORME("num_puntos >= 2", secciones({{1, 2, 3}})).size(), 0u);
    arrPunto3D *centros = reinterpret_cast<arrPunto3D *>(&centros);
    const auto circulos = [](const std::vector<vec> &camino, double radio, double grados, uint16_t n, arrPunto3D **c) {
        return polin3d_contorno_circulos_en_puntos_polilinea_con_radios_de_acuerdo(puntos(camino), .1, radio, grados, n,
                                                                                   c);
    };
    EXPECT_EQ(ESPERA_INFORME("num_puntos >= 2", circulos({}, 1., 10., 8, &centros)), nullptr);
    EXPECT_EQ(centros, nullptr);
    // Many sections of many points each: told before there is no memory left.
    vn::azar a(54);
    EXPECT_EQ(ESPERA_INFORME("num_puntos <= MAXIMO_PUNTOS", circulos(camino_al_azar(a, 80), 0., 90., 65535, nullptr)),
              nullptr);
    // All in one place, and coordinates that are no numbers: something comes back, nothing is reported.
    for (const double mala : {0., NAN_, INF, 1e308}) {
        const std::vector<vec> p{{0, 0, 0}, {mala, 0, 0}, {mala, mala, 0}, {0, 0, -mala}, {0, 0, 0}};
        EXPECT_GE(con_acuerdos(p, .1, 1.).size(), 5u) << mala;
        EXPECT_GE(std::min(redondeadas(p, .1, 1.).size(), secciones(p, CIERTO).size()), 1u) << mala;
    }
}
