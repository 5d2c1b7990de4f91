#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/sistema/vnstdc_tiempo.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/texto/unicode.h"
#include "propiedades.h"
#include <array>

namespace {

using salida_propia = vn::dueno<vplan_cierra>;
constexpr double GRADO = 3.14159265358979323846 / 180.;

// A device where each character is as wide as `ancho`; it keeps the texts, and what the last one came with.
struct de_ancho_fijo {
    std::string textos;
    double y = 0, alto = 0, ancho = 0, coseno = 0, seno = 0, longitud = 0;
    uint8_t justificacion = 0;
};
salida_propia abre(de_ancho_fijo &d, bool mide = true) {
    vplan_funciones f{};
    f.func_DrawTexto = [](void *item, const vnwchar *t, double, double y, uint8_t j, double alto, double ancho,
                          double c, double s, double l, uint8_t) {
        auto &visto = *static_cast<de_ancho_fijo *>(item);
        const std::string textos = visto.textos + vn::toma(unicode_convierte_UNICODE_a_UTF8(t)) + "|";
        visto = {textos, y, alto, ancho, c, s, l, j};
    };
    if (mide)
        f.func_LongitudTrozoTexto = [](void *, const vnwchar *, uint32_t primero, uint32_t ultimo, double, double ancho,
                                       int32_t, double *l) { *l = (ultimo - primero + 1) * ancho; };
    void *item = &d;
    return salida_propia(vplan_nousar_abre_dispositivo_con_tabla(3, nullptr, &item, "fijo", nullptr, &f));
}

std::array<Punto2D, 4> esquinas(double longitud, Punto2D p, double alto, uint8_t j, double c, double s) {
    std::array<Punto2D, 4> e;
    vplan_obtener_4_esquinas_texto(longitud, p.x, p.y, alto, j, s, c, &e[0].x, &e[0].y, &e[1].x, &e[1].y, &e[2].x,
                                   &e[2].y, &e[3].x, &e[3].y);
    return e;
}

} // namespace

// A text that is turned stays where it was: its corners change places across. In the bands, whose codes go to others,
// it does so along the line.
PRUEBA(texto, enderezado_queda_en_su_sitio) {
    de_ancho_fijo d;
    const auto s = abre(d);
    for (int caso = 0; caso < 2; ++caso)
        for (uint8_t j = 1; j <= 15; ++j)
            for (int grados = -180; grados <= 180; grados += 5) {
                const vn::lugar l = vn::lugar_de(caso);
                const double g = grados == 95 || grados == -85 ? grados + .1 : grados, c = std::cos(g * GRADO),
                             n = std::sin(g * GRADO);
                const bool se_queda = g > -85 && g < 95;
                double c1, n1;
                ASSERT_EQ(vplan_orientacion_correcta_para_texto(j, c, n, &c1, &n1), se_queda ? CIERTO : FALSO) << g;
                const uint8_t j1 = vplan_justificacion_correcta_para_texto(j, c, n, &c1, &n1);
                vplan_escr_texto_con_longit_u(s.get(), VNU("a"), l.x, l.y, j, 2, 1, c, n, 7);
                ASSERT_TRUE(d.justificacion == j1 && d.longitud == 7 && vn::cerca(d.coseno, c1) &&
                            vn::cerca(d.seno, n1));
                const auto antes = esquinas(7, {l.x, l.y}, 2, j, c, n), luego = esquinas(7, {l.x, l.y}, 2, j1, c1, n1);
                for (size_t i = 0; i < 4; ++i) {
                    const Punto2D q = luego[se_queda ? i : (i + 2) % 4];
                    const double dx = q.x - antes[i].x, dy = q.y - antes[i].y;
                    ASSERT_TRUE(vn::cerca(dx * c + dy * n, 0, l.escala(9))) << int{j} << ' ' << g;
                    if (j < 10) {
                        ASSERT_TRUE(vn::cerca(dy * c - dx * n, 0, l.escala(9))) << int{j} << ' ' << g;
                    }
                }
            }
}

PRUEBA(texto, la_regla_en_sus_bordes_y_sin_permiso) {
    double c, n;
    const auto codigo = [&](uint8_t j) { return int{vplan_justificacion_correcta_para_texto(j, -1, 0, &c, &n)}; };
    EXPECT_TRUE(codigo(0) == 10 && codigo(1) == 9 && codigo(10) == 9 && codigo(18) == 1 && c == 1 && n == 0);
    EXPECT_EQ(ESPERA_INFORME("justificacion <= 18", codigo(19)), 19);
    vnbool antes = FALSO;
    vornplan_set_permitir_orientacion_correcta_textos(FALSO, &antes);
    const auto vuelve = vn::al_final([] { vornplan_set_permitir_orientacion_correcta_textos(CIERTO, nullptr); });
    EXPECT_TRUE(antes == CIERTO && codigo(1) == 1 && c == -1);
    const salida_propia s(vplan_abre_apuntador(3, nullptr, CIERTO));
    vplan_escr_texto_con_longit_u(s.get(), VNU("a"), 1, 2, 1, 1, 1, -1, 0, -1);
    EXPECT_EQ(vn::toma(vplan_toma_lo_apuntado(s.get())), "func_SetPlanoTexto 1 0 0 0 1 0 0 0 1 0 0 0 0 0 0 1\n"
                                                         "func_SetPermitirOrientacionCorrecta 0\n"
                                                         "func_DrawTexto3D \"a\" 1 2 0 1 1 1 -1 0 -1 0\n");
}

// What the device is told: point, code, height, width, direction, length.
PRUEBA(texto, lo_que_llega_al_dispositivo) {
    const struct {
        const char *que;
        void (*apila)(salida_t *);
        void (*dibuja)(salida_t *);
        const char *plano;
    } FILAS[] = {
        {"uneven scale: square stays square", [](salida_t *s) { vplan_append_escala(s, 2, 1); },
         [](salida_t *s) { vplan_escr_texto_con_longit_u(s, VNU("a"), 1, 1, 1, 3, 3, 1, 0, 5); },
         "\"a\" 2 1 1 3 3 1 0 10 0"},
        {"a length of -1 stays", [](salida_t *s) { vplan_append_escala(s, 2, 1); },
         [](salida_t *s) { vplan_escr_texto_con_longit_u(s, VNU("a"), 1, 1, 1, 3, 4, 1, 0, -1); },
         "\"a\" 2 1 1 3 8 1 0 -1 0"},
        {"a scale that leaves texts", [](salida_t *s) { vplan_append_escala_excepto_texto(s, 2, 2); },
         [](salida_t *s) { vplan_escr_texto_con_longit_u(s, VNU("a"), 1, 1, 1, 3, 4, 1, 0, 5); },
         "\"a\" 2 2 1 3 4 1 0 5 0"},
        {"a turn, and what it turns upside down", [](salida_t *s) { vplan_append_giro_xy(s, 0, 0, -1, 0); },
         [](salida_t *s) { vplan_escr_texto_con_longit_u(s, VNU("a"), 1, 1, 2, 3, 4, 1, 0, 5); },
         "\"a\" -1 -1 8 3 4 1 0 5 0"},
        {"upright in the model first", [](salida_t *s) { vplan_append_giro_xy(s, 0, 0, 0, 1); },
         [](salida_t *s) { vplan_escr_texto_con_orientacion_correcta(s, "", 1, 0, 1, 1, 1, -1, 0, 0); },
         "\"\" 0 1 9 1 1 0 1 0 0"},
        {"what cannot be measured", [](salida_t *s) { vplan_append_escala(s, 1, 1); },
         [](salida_t *s) { vplan_escr_texto(s, "a", 1, 1, 1, 0, 1, 1, 0, 0); }, "\"a\" 1 1 1 0 1 1 0 -1 0"},
        {"an offset both ways", [](salida_t *s) { vplan_append_escala(s, 1, 1); },
         [](salida_t *s) { vplan_escr_texto_con_desplazamiento_u(s, VNU(""), 1, 1, 9, 1, 1, 0, 1, 0, .5); },
         "\"\" 1.5 0.5 9 1 1 0 1 0 0"},
        {"a huge one", [](salida_t *s) { vplan_append_escala(s, 1, 1); },
         [](salida_t *s) { vplan_escr_texto_u(s, VNU("a"), 1, 1, 1, 1e300, 1e300, 1, 0, 0); },
         "\"a\" 1 1 1 1e+300 1e+300 1 0 -1 0"},
    };
    for (const auto &f : FILAS) {
        const salida_propia s(vplan_abre_apuntador(3, nullptr, FALSO));
        f.apila(s.get());
        f.dibuja(s.get());
        std::string visto = vn::toma(vplan_toma_lo_apuntado(s.get()));
        const std::string permiso = "func_SetPermitirOrientacionCorrecta 1\n";
        EXPECT_EQ(visto, permiso + "func_DrawTexto " + f.plano + "\n") << f.que;
        vplan_bloquea_texto(s.get(), 1);
        vn::toma(vplan_toma_lo_apuntado(s.get()));
        f.dibuja(s.get());
        EXPECT_EQ(vn::toma(vplan_toma_lo_apuntado(s.get())), "") << f.que;
        vplan_bloquea_texto(s.get(), 0);
        vplan_desapila_transformacion(s.get());
    }
    // A device that has heights in pixels needs a plane for them; one that has not gets so many visible points.
    const salida_propia plano(vplan_abre_apuntador(3, nullptr, FALSO));
    ESPERA_INFORME("salida_con_implementacion->func_SetPlanoTexto != NULL",
                   vplan_escr_texto_con_alto_en_pixeles_con_orientacion_correcta_u(plano.get(), VNU("a"), 1, 1, 1, 10,
                                                                                   -1, 0, -1, 0));
    de_ancho_fijo d;
    vplan_escr_texto_con_alto_en_pixeles_con_orientacion_correcta_u(abre(d).get(), VNU("a"), 1, 1, 1, 10, -1, 0, -1, 0);
    EXPECT_TRUE(d.alto == .5 && d.ancho == .5 && d.justificacion == 9 && d.coseno == 1 && d.longitud == .5);
}

PRUEBA(texto, lo_que_mide) {
    de_ancho_fijo d;
    const auto fijo = abre(d), de_pantalla = abre(d, false);
    double l, m, h;
    vplan_append_escala(fijo.get(), 2, 1);
    vplan_longitud_texto(fijo.get(), "abc", 1, 1, 0, &l);
    EXPECT_EQ(l, 6) << "measured along x, and back along y";
    vplan_desapila_transformacion(fijo.get());
    vplan_append_escala_excepto_texto(fijo.get(), 4, 4);
    vplan_append_escala_excepto_texto(de_pantalla.get(), 4, 4);
    vplan_longitud_trozo_texto(fijo.get(), "abcdef", 2, 100, 1, 1, 0, &l);
    vplan_longitud_numerica(fijo.get(), 7, 1, 1, 0, &m);
    EXPECT_TRUE(l == 4 && m == 7 && vplan_proyecta_alto_2d(fijo.get(), 3) == 3);
    vplan_longitudes_texto_numerico_u(fijo.get(), VNU("12.345"), 1, 1, 0, &l, &m);
    EXPECT_TRUE(l == 2 && m == 4);
    vplan_longitudes_texto_numerico_u(fijo.get(), VNU(".5"), 1, 1, 0, &l, nullptr);
    vplan_longitudes_texto_numerico_u(fijo.get(), VNU("12"), 1, 1, 0, nullptr, &m);
    EXPECT_TRUE(l == 0 && m == 0);
    ESPERA_INFORME("pos == vnstdc_wcsrchr(texto, L'.')",
                   vplan_longitudes_texto_numerico_u(fijo.get(), VNU("1.2.3"), 1, 1, 0, &l, &m));
    vplan_longitud_texto_rodeado_u(fijo.get(), VNU("abc"), 2, 1, 0, &l, &h);
    EXPECT_TRUE(vn::cerca(l, 5.4) && vn::cerca(h, 2.4));
    vplan_longitud_texto_rodeado_u(fijo.get(), VNU("abc"), 4, 1, 0, &l, &h);
    EXPECT_TRUE(vn::cerca(l, 6) && vn::cerca(h, 6)) << "a circle of a diameter of 1.2 times the diagonal";
    // The machine's font: with an output that nobody measures for, and with none, the same.
    vplan_longitud_texto_u(de_pantalla.get(), VNU("texto"), 2, 1, 0, &l);
    vplan_longitud_texto_u(nullptr, VNU("texto"), 2, 50, 0, &m);
    EXPECT_TRUE(l > 1 && vn::cerca(l, m, 10));
    vplan_longitud_trozo_texto_u(nullptr, VNU("texto"), 0, 4, 0, 1, 0, &l);
    vplan_longitud_trozo_texto_u(nullptr, VNU("texto"), 0, 4, 1e300, 1, 0, &m);
    EXPECT_TRUE(l == 0 && m > 1e300 && m < 1e301);
    for (const double alto : {0., 1e300, std::nan("")})
        ESPERA_INFORME("alto > 1e-50 && alto < 1e50", vplan_longitud_texto_u(nullptr, VNU("a"), alto, 1, 0, &l));
    ESPERA_INFORME("ancho > 1e-50 && alto < 1e50", vplan_longitud_texto_u(nullptr, VNU("a"), 1, 0, 0, &l));
    ESPERA_INFORME("digitos < sizeof(buffer)", vplan_longitud_numerica(nullptr, 200, 1, 1, 0, &l));
    EXPECT_EQ(l, 0);
    vplan_desapila_transformacion(fijo.get());
    vplan_desapila_transformacion(de_pantalla.get());
}

// Lines of a text where each character is 1 wide; where the last one is.
PRUEBA(texto, varias_lineas) {
    const struct {
        const vnwchar *texto;
        double maximo;
        const char *detras, *delante;
        uint8_t justificacion;
        double y;
    } FILAS[] = {
        {VNU("uno dos tres"), 9, "uno dos |tres |", "uno dos|tres|", 7, -1},
        {VNU("  uno   dos "), 9, "uno dos |", "uno dos|", 7, 0},
        {VNU("uno\\Pdos\\P\\Ptres"), 9, "uno |dos ||tres |", "uno|dos||tres|", 1, -7},
        {VNU("\\P"), 9, "|", "|", 4, -.5},
        {VNU("a b c"), 2, "a |b |c |", "a|b|c|", 5, -3.5},
        {VNU("demasiado"), 9, "", "demasiado|", 7, 0},
        {VNU("a larguisima"), 9, "", "", 7, 0},
        {VNU(""), 9, "", "", 7, 0},
    };
    const vnwchar *const VARIABLE = VNU("TEXTOS_MULTILINEA_VORNPLAN=");
    const auto vuelve = vn::al_final([&] { vnstdc__wputenv(VARIABLE); });
    for (const bool delante : {false, true}) {
        vnstdc__wputenv(delante ? VNU("TEXTOS_MULTILINEA_VORNPLAN=1") : VARIABLE);
        for (const auto &f : FILAS) {
            de_ancho_fijo d;
            const auto s = abre(d);
            vplan_escr_texto_en_multiples_lineas_u(s.get(), f.texto, 0, 0, f.justificacion, 1, 1, f.maximo, 1, 0);
            EXPECT_EQ(d.textos, delante ? f.delante : f.detras);
            if (!d.textos.empty()) {
                EXPECT_EQ(d.y, f.y) << d.textos;
            }
        }
    }
    de_ancho_fijo d;
    ESPERA_INFORME("", vplan_escr_texto_en_multiples_lineas3D_u(abre(d).get(), VNU("a b"), 0, 0, 0, 16, 1, 1, 9, 1, 0));
    EXPECT_EQ(d.textos, "");
}

PRUEBA(texto, tablas_y_lineas_a_lo_largo) {
    const struct {
        const vnwchar *texto;
        double longitud; // 0: not drawn
        const char *informe;
    } FILAS[] = {
        {VNU("total"), 5, nullptr},
        {VNU("a [1]"), -1, nullptr},
        {VNU("[1] de [E2M%f]"), -1, nullptr},
        {VNU(""), 0, "numCars > 0"},
        {VNU("[["), 0, "primero == -1 && ultimo == -1 || primero != -1 && ultimo > primero"},
        {VNU("]"), 0, "primero != -1"},
        {VNU("[1]]"), 0, "ultimo == -1"},
        {VNU("[1"), 0, "ultimo > primero"},
    };
    de_ancho_fijo d;
    const auto s = abre(d);
    for (const auto &f : FILAS) {
        d.longitud = 0;
        const auto dibuja = [&] {
            vplan_escr_texto_u_tabla_con_orientacion_correcta_para_texto(s.get(), f.texto, 0, 0, 1, 1, 1, 1, 0, 0);
        };
        dibuja();
        if (f.informe != nullptr) vn::espera_informes({f.informe}, __FILE__, __LINE__);
        EXPECT_EQ(d.longitud, f.longitud);
    }
    vplan_escr_texto_tabla_u(s.get(), VNU("["), 0, 0, 1, 1, 1, 1, 0, -1);
    EXPECT_EQ(d.longitud, -1) << "a style of -1 is not looked at";

    const auto lineas = [](uint8_t j, double c, double n, double l = 4) {
        const salida_propia a(vplan_abre_apuntador(3, nullptr, FALSO));
        vplan_escr_texto_con_longit_con_lineas_u(a.get(), VNU("a"), 10, 10, j, 3, 3, c, n, l, CIERTO, CIERTO);
        const std::string t = vn::toma(vplan_toma_lo_apuntado(a.get()));
        return t.substr(std::min(t.find("func_DrawLinea"), t.size()));
    };
    EXPECT_EQ(lineas(1, 1, 0), "func_DrawLinea 10 13 14 13\nfunc_DrawLinea 10 10 14 10\n");
    EXPECT_EQ(lineas(5, 1, 0), "func_DrawLinea 8 11.5 12 11.5\nfunc_DrawLinea 8 8.5 12 8.5\n");
    EXPECT_EQ(lineas(9, 0, 1), "func_DrawLinea 10 6 10 10\nfunc_DrawLinea 13 6 13 10\n");
    EXPECT_EQ(lineas(10, 1, 0), "func_DrawLinea 10 12 14 12\nfunc_DrawLinea 10 9 14 9\n");
    EXPECT_EQ(lineas(13, 1, 0), "func_DrawLinea 10 11 14 11\nfunc_DrawLinea 10 8 14 8\n");
    double medida;
    vplan_longitud_texto_u(nullptr, VNU("a"), 3, 3, 0, &medida);
    EXPECT_EQ(lineas(3, 1, 0, -1), lineas(3, 1, 0, medida));
    EXPECT_EQ(ESPERA_INFORME("", lineas(16, 1, 0)), "");
}
