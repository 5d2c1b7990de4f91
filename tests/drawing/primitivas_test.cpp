#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <sstream>

namespace {

using salida_propia = vn::dueno<vplan_cierra>;
using puntos2D = vn::dueno<arr_DestruyePunto2D>;
using puntos3D = vn::dueno<arr_DestruyePunto3D>;

struct dibujo {
    salida_propia fin;
    salida_t *s;
    explicit dibujo(vnbool en_espacio = FALSO, uint32_t tipo = 3)
        : fin(vplan_abre_apuntador(tipo, nullptr, en_espacio)), s(fin.get()) {}
    ~dibujo() {
        while (apiladas-- > 0) vplan_desapila_transformacion(s);
    }
    std::string toma() { return vn::toma(vplan_toma_lo_apuntado(s)); }
    template <class F> dibujo &con(F apila) { return apila(s), ++apiladas, *this; }
    int apiladas = 0;
};

puntos2D lista(std::initializer_list<Punto2D> p) {
    puntos2D a(arr_CreaPunto2D(0));
    for (const Punto2D q : p) arr_AppendPunto2D(a.get(), q.x, q.y);
    return a;
}
puntos3D lista3(std::initializer_list<Punto3D> p) {
    puntos3D a(arr_CreaPunto3D(0));
    for (const Punto3D q : p) arr_AppendPunto3D(a.get(), q.x, q.y, q.z);
    return a;
}
void escala21(salida_t *s) { vplan_append_escala(s, 2, 1); }
void espejo(salida_t *s) { vplan_append_escala(s, -1, 1); }
void vuelco(salida_t *s) { vplan_append_ejes2D(s, 0, 0, 0, 1, 0, 0, 0, 0, 1); }
void nada(salida_t *) {}

} // namespace

// Each figure, through what it is drawn and what the device of the plane, and of space, is told.
PRUEBA(primitivas, lo_que_llega_al_dispositivo) {
    const struct {
        void (*apila)(salida_t *);
        void (*dibuja)(salida_t *);
        const char *plano, *espacio;
    } FILAS[] = {
        {escala21, [](salida_t *s) { vplan_escr_linea_horizontal(s, 1, 2, 3); }, "func_DrawLinea 2 2 6 2\n",
         "func_Linea3D 2 2 0 6 2 0\n"},
        {nada, [](salida_t *s) { vplan_escr_rayo(s, 1, 1, 1.000009, 1); }, "func_Punto 1 1\n", "func_Punto3D 1 1 0\n"},
        {nada, [](salida_t *s) { vplan_escr_linea_referencia(s, 1, 1, 1.000009, 1); },
         "func_LineaReferencia 1 1 1.000009 1\n", "func_Punto3D 1 1 0\n"},
        {escala21, [](salida_t *s) { vplan_escr_circulo(s, 1, 1, 3); }, "func_Elipse 2 1 6 3 0 0\n",
         "func_Elipse3D 2 1 0 6 3 0 0\n"},
        {espejo, [](salida_t *s) { vplan_escr_circulo_relleno(s, 1, 1, 3); }, "func_DrawCirculo -1 1 3 1\n",
         "func_DrawCirculo3D -1 1 0 3 1\n"},
        {espejo, [](salida_t *s) { vplan_escr_arco(s, 0, 0, 1, 0, 0, 1); }, "func_DrawArco 0 0 0 1 -1 0 0\n",
         "func_DrawArco3D 0 0 0 0 1 0 -1 0 0 0\n"},
        {nada, [](salida_t *s) { vplan_escr_arco_con_sentido(s, 0, 0, 1, 0, -1, 0, CIERTO); },
         "func_DrawArco 0 0 -1 0 1 0 0\n", "func_DrawArco3D 0 0 0 -1 0 0 1 0 0 0\n"},
        {espejo, [](salida_t *s) { vplan_escr_arco(s, 0, 0, 1, 0, -1, 0); }, "func_DrawArco 0 0 1 0 -1 0 0\n",
         "func_DrawArco3D 0 0 0 1 0 0 -1 0 0 0\n"},
        {nada, [](salida_t *s) { vplan_escr_arco(s, 0, 0, 1, 0, 1, 0); }, "func_Punto 1 0\n", "func_Punto3D 1 0 0\n"},
        {nada, [](salida_t *s) { vplan_escr_arco_elipse(s, 0, 0, 2, 1, 1, 1 + 6.283185307179586, .5, CIERTO); },
         "func_Elipse 0 0 2 1 0.5 1\n", "func_Elipse3D 0 0 0 2 1 0.5 1\n"},
        {nada, [](salida_t *s) { vplan_escr_arandela(s, 0, 0, 1, 2); }, "func_DrawCirculo 0 0 1 0\n",
         "func_DrawCirculo3D 0 0 0 1 0\n"},
        {nada, [](salida_t *s) { vplan_escr_arandela(s, 0, 0, 1, 1.000001); }, "func_DrawArandela 0 0 1 1.000001\n",
         "func_DrawArandela 0 0 1 1.000001\n"},
        {nada, [](salida_t *s) { vplan_escr_rectangulo(s, 0, 0, 2, 1); }, "func_DrawPolilinea [0,0 2,0 2,1 0,1 0,0]\n",
         "func_DrawPolilinea3D [0,0,0 2,0,0 2,1,0 0,1,0 0,0,0] 0\n"},
        {escala21, [](salida_t *s) { vplan_escr_rectangulo_relleno(s, 0, 0, 2, 1); },
         "func_DrawPoligono [0,0 4,0 4,1 0,1 0,0] 1\n", "func_DrawPoligono3D [0,0,0 4,0,0 4,1,0 0,1,0 0,0,0] 1\n"},
        {nada,
         [](salida_t *s) {
             vplan_escr_polilinea3D(s, lista3({{0, 0, 1}, {1, 0, 1}, {0, 0, 1}}).get());
         },
         "func_DrawPoligono [0,0 1,0 0,0] 0\n", "func_DrawPolilinea3D [0,0,1 1,0,1 0,0,1] 0\n"},
        {nada,
         [](salida_t *s) {
             vplan_escr_poligono3D_relleno(s, lista3({{0, 0, 1}, {1, 0, 1}}).get());
         },
         "func_DrawPoligono [0,0 1,0] 0\n", "func_DrawPoligono3D [0,0,1 1,0,1] 0\n"},
        {nada,
         [](salida_t *s) {
             vplan_escr_cara3D(s, 0, 0, 0, CIERTO, 1, 0, 0, FALSO, 1, 1, 0, FALSO, 0, 1, 0, FALSO, FALSO);
         },
         "func_DrawLinea 0 0 1 0\n", "func_Linea3D 0 0 0 1 0 0\n"},
        {escala21, [](salida_t *s) { vplan_escr_punto_clave_diametro_en_mts(s, 1, 1, 3, .5, 8, 9); },
         "func_DibujaPuntoClave 2 1 3 0 0 1 8 9\n", "func_DibujaPuntoClave3D 2 1 0 3 0 0 1 8 9\n"},
        {escala21, [](salida_t *s) { vplan_escr_imagen(s, nullptr, 4, 4, 9, 2, 1); },
         "func_DrawImagen null 4 3 4 1 0\n", "func_DrawImagen3D null 4 3 0 1 0 0 0 1 0 4 1 0\n"},
        {escala21, [](salida_t *s) { vplan_escr_imagen(s, nullptr, 4, 4, 5, 2, 1); },
         "func_DrawImagen null 6 3 4 2 0\n", "func_DrawImagen3D null 6 3.5 0 1 0 0 0 1 0 4 1 0\n"},
        {escala21, [](salida_t *s) { vplan_escr_triangulo_2D_relleno_RGBA(s, 0, 0, 1, 0, 0, 1, 7); }, nullptr,
         "func_TrianguloGradiente3D 0 0 0 7 2 0 0 7 0 1 0 7\n"},
    };
    for (const auto &f : FILAS)
        for (const vnbool en_espacio : {FALSO, CIERTO}) {
            const char *const esperado = en_espacio == FALSO && f.plano != nullptr ? f.plano : f.espacio;
            dibujo d(en_espacio);
            f.dibuja(d.con([&](salida_t *s) {
                          f.apila == nada ? escala21(s), vplan_append_escala(s, .5, 1) : f.apila(s);
                      }).s);
            if (f.apila == nada) ++d.apiladas;
            EXPECT_EQ(d.toma(), esperado);
        }
}

// Where a figure is deformed, or nobody draws it, points of it take its place: all of them on it.
PRUEBA(primitivas, lo_que_se_deforma_llega_en_puntos_de_la_figura) {
    for (const vn::lugar l : {vn::lugar_de(0), vn::lugar_de(1)}) {
        dibujo d;
        d.con(vuelco);
        vplan_escr_circulo(d.s, l.x, l.y, 2);
        const std::string puntos = d.toma();
        EXPECT_EQ(puntos.rfind("func_DrawPoligono [", 0), 0u) << puntos;
        EXPECT_EQ(std::count(puntos.begin(), puntos.end(), ','), 65) << "the first again at the end";
        // An arc under an uneven scale, and one that only looks uneven for want of digits at the survey.
        dibujo e;
        e.con(escala21);
        vplan_escr_arco(e.s, l.x, l.y, l.x + 3, l.y, l.x, l.y + 3);
        const std::string arco = e.toma();
        EXPECT_EQ(arco.rfind("func_DrawPolilinea [", 0), 0u) << arco;
        EXPECT_EQ(std::count(arco.begin(), arco.end(), ','), 17);
        dibujo g;
        g.con([](salida_t *s) { vplan_append_giro_xy(s, 0, 0, .6, .8); });
        vplan_escr_arco(g.s, l.x, l.y, l.x + 700 * std::cos(.3), l.y + 700 * std::sin(.3), l.x - 700, l.y);
        EXPECT_EQ(g.toma().rfind("func_DrawArco ", 0), 0u);
    }
}

PRUEBA(primitivas, rellenos_gradientes_y_tramas) {
    const puntos2D cuadro = lista({{0, 0}, {4, 0}, {4, 2}, {0, 2}}), hueco = lista({{1, 1}, {2, 1}, {1, 1.5}});
    const auto grupo = [](std::initializer_list<void *> p) {
        vn::dueno<arr_DestruyePunteroConTipo> g(arr_CreaPunteroConTipo(0));
        for (void *q : p) arr_AppendPunteroConTipo(g.get(), q);
        return g;
    };
    const auto fuera = grupo({cuadro.get()}), dentro = grupo({hueco.get()}), ninguno = grupo({}),
               nulo = grupo({nullptr});
    dibujo d;
    vplan_escr_relleno_regiones(d.s, fuera.get(), dentro.get());
    vplan_bloquea_relleno(d.s, CIERTO);
    d.toma();
    vplan_escr_relleno_regiones(d.s, fuera.get(), dentro.get());
    EXPECT_EQ(d.toma(), "");
    vplan_escr_borde_regiones(d.s, fuera.get(), dentro.get());
    EXPECT_EQ(d.toma(), "func_DibujaRellenoRegiones * * 0\n");
    vplan_bloquea_relleno(d.s, FALSO);
    d.toma();
    ESPERA_INFORME("(contorno) != NULL", vplan_escr_borde_regiones(d.s, nulo.get(), dentro.get()));
    const struct {
        uint32_t tipo;
        const char *linea;
    } FILAS[] = {{0, "0 0 4 0"}, {3, "0 0 4 2"}, {4, "0 1 4 1"}};
    for (const auto &f : FILAS) {
        vplan_escr_relleno_regiones_con_gradiente(d.s, fuera.get(), ninguno.get(), 0, f.tipo, 1, 2);
        EXPECT_EQ(d.toma(),
                  "func_DibujaRellenoRegionesConGradiente * * " + std::to_string(f.tipo) + " " + f.linea + " 1 2\n");
    }
    vplan_escr_relleno_regiones_con_gradiente(d.s, ninguno.get(), ninguno.get(), 0, 0, 1, 2);
    EXPECT_EQ(d.toma(), "");
    ESPERA_INFORME("", vplan_escr_relleno_regiones_con_gradiente(d.s, fuera.get(), ninguno.get(), 0, 5, 1, 2));
    // A hatch turns and scales with what it is drawn through.
    const vn::dueno<arr_DestruyeDouble> angulos(arr_CreaDouble(1));
    const puntos2D pasos = lista({{0, .5}});
    vplan_escr_hatch_relleno(d.s, fuera.get());
    EXPECT_EQ(d.toma(), "func_DrawHatch * null null null null\n");
    d.con([](salida_t *s) { vplan_append_giro_xy(s, 9, 9, 0, 1); });
    vplan_escr_hatch(d.s, fuera.get(), angulos.get(), pasos.get(), pasos.get(), nullptr);
    EXPECT_EQ(d.toma(), "func_DrawHatch * [1.5707963267948966] [-0.5,0] [-0.5,0] null\n");
}

// What nobody draws is told, or nothing, as each figure says; and nothing breaks.
PRUEBA(primitivas, sin_nadie_que_dibuje) {
    const vplan_funciones nadie{};
    void *item = const_cast<vplan_funciones *>(&nadie);
    const salida_propia s(vplan_nousar_abre_dispositivo_con_tabla(3, nullptr, &item, "nadie", nullptr, &nadie));
    const puntos2D dos = lista({{0, 0}, {1, 1}});
    ESPERA_INFORME("(salida_con_implementacion) != NULL", vplan_escr_polilinea(s.get(), dos.get(), FALSO));
    ESPERA_INFORME("(salida_con_implementacion) != NULL", vplan_escr_circulo(s.get(), 0, 0, 1));
    ESPERA_INFORME("radio_menor < radio_mayor", vplan_escr_arandela(s.get(), 0, 0, 2, 1));
    ESPERA_INFORME("justificacion >= 1 && justificacion <= 9", vplan_escr_imagen(s.get(), nullptr, 0, 0, 10, 1, 1));
    vplan_escr_imagen(s.get(), nullptr, 0, 0, 1, 1, 1);
    vplan_escr_polilinea(s.get(), lista({}).get(), CIERTO);
    dibujo d;
    ESPERA_INFORME("arr_NumElemsPunto2D(puntos) > 2", vplan_escr_poligono_relleno(d.s, dos.get()));
    // What is not a number goes through to the device, and does not loop.
    vplan_escr_circulo(d.s, vn::NAN_, 0, 1);
    vplan_escr_arco(d.s, 0, vn::INF, 1, 0, vn::NAN_, 1);
    vplan_escr_arco_elipse(d.s, 0, 0, 1, vn::NAN_, 0, vn::INF, 0, FALSO);
    d.toma();
}
