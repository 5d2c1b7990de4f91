#include "drawing/salida_priv.h"
#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/trapable.h"
#include "prueba.h"

// Devices that do what devices may: draw on their own output, free nothing, report inside a trap; long chains and deep
// stacks.
namespace {

using salida_propia = vn::dueno<vplan_cierra>;
salida_propia abre(void *dato, const vplan_funciones &f, salida_t *destino = nullptr) {
    void *item = dato;
    return salida_propia(vplan_nousar_abre_dispositivo_con_tabla(3, destino, &item, "prueba", nullptr, &f));
}

// Its datum: the output that it draws on when it is told of a figure, and what it does there.
struct que_vuelve {
    salida_t *salida = nullptr;
    void (*hace)(salida_t *) = nullptr;
    std::string visto;
    void anota(char que, double x, double y) {
        ((((visto += que) += std::to_string(static_cast<int>(x))) += ',') += std::to_string(static_cast<int>(y))) +=
            ' ';
        if (hace != nullptr) std::exchange(hace, nullptr)(salida);
    }
};
void linea(void *item, double x1, double, double x2, double) { static_cast<que_vuelve *>(item)->anota('L', x1, x2); }
void punto(void *item, double x, double y) { static_cast<que_vuelve *>(item)->anota('P', x, y); }
vplan_funciones que_apuntan() {
    vplan_funciones f{};
    f.func_DrawLinea = linea;
    f.func_Punto = punto;
    return f;
}

} // namespace

// What is being drawn comes whole through the system that it was begun with, whatever the device does meanwhile.
PRUEBA(dispositivos, el_que_dibuja_en_su_propia_salida) {
    const struct {
        void (*dibuja)(salida_t *), (*hace)(salida_t *);
        const char *visto;
    } FILAS[] = {
        {[](salida_t *s) { vplan_escr_linea(s, 1, 0, 2, 0); },
         [](salida_t *s) {
             vplan_append_desplaza_origen_coordenadas(s, 100, 0);
             vplan_escr_punto(s, 1, 1);
             vplan_desapila_transformacion(s);
         },
         "L11,12 P111,1 "},
        // A polyline by its lines, a rectangle through another one's arrays.
        {[](salida_t *s) { vplan_escr_rectangulo(s, 0, 0, 1, 1); },
         [](salida_t *s) { vplan_escr_rectangulo(s, 5, 5, 6, 6); },
         "L10,11 L15,16 L16,16 L16,15 L15,15 L11,11 L11,10 L10,10 "},
        {[](salida_t *s) { vplan_escr_rayo(s, 1, 1, 1, 1); }, [](salida_t *s) { vplan_set_tipo_fondo(s, 2); },
         "P11,1 "},
    };
    for (const auto &f : FILAS) {
        que_vuelve d;
        vplan_funciones funciones = que_apuntan();
        funciones.func_Rayo = [](void *, double, double, double, double) {};
        const salida_propia fin = abre(&d, funciones), s = abre(&d, {}, fin.get());
        d.salida = s.get();
        vplan_append_desplaza_origen_coordenadas(fin.get(), 10, 0);
        d.hace = f.hace;
        f.dibuja(s.get());
        EXPECT_EQ(d.visto, f.visto);
        vplan_desapila_transformacion(fin.get());
    }
    // A stack that it leaves higher is that of what is drawn next.
    que_vuelve d;
    const salida_propia s = abre(&d, que_apuntan());
    d.salida = s.get();
    d.hace = [](salida_t *o) { vplan_append_desplaza_origen_coordenadas(o, 10, 0); };
    vplan_escr_linea(s.get(), 1, 0, 2, 0);
    vplan_escr_linea(s.get(), 1, 0, 2, 0);
    EXPECT_EQ(d.visto, "L1,2 L11,12 ");
    vplan_desapila_transformacion(s.get());
}

// A report in a device, and one of the layer's about it, mark the trap; the outputs go on.
PRUEBA(dispositivos, en_una_trampa) {
    que_vuelve d;
    salida_propia fin = abre(&d, que_apuntan()), s = abre(&d, {}, fin.get());
    d.salida = s.get();
    const auto dibuja = [](void *p) { vplan_escr_linea(static_cast<salida_t *>(p), 1, 0, 2, 0); };
    const auto en_trampa = [&](auto f) {
        return trapable_nousar_recursivo_ejecuta_funcion_segura(f, s.get(), nullptr);
    };
    d.hace = [](salida_t *o) { vplan_append_divisor_escala(o, 0); };
    EXPECT_EQ(en_trampa(+dibuja), FALSO);
    EXPECT_STREQ(trapable_texto_del_ultimo_fallo() != nullptr ? "text" : nullptr, "text");
    EXPECT_EQ(en_trampa(+dibuja), CIERTO);
    EXPECT_EQ(en_trampa(+[](void *p) { vplan_escr_circulo_relleno(static_cast<salida_t *>(p), 0, 0, 1); }), FALSO);
    vplan_escr_linea(s.get(), 3, 0, 4, 0);
    EXPECT_EQ(d.visto, "L1,2 L1,2 L3,4 ");
}

// A thousand outputs, each with a step of its own, one of which changes; closed from the first to the last.
PRUEBA(dispositivos, una_cadena_de_mil_salidas) {
    que_vuelve d;
    std::vector<salida_propia> cadena;
    for (int i = 0; i < 1000; ++i) {
        cadena.push_back(abre(&d, i == 0 ? que_apuntan() : vplan_funciones{}, i == 0 ? nullptr : cadena.back().get()));
        vplan_append_desplaza_origen_coordenadas(cadena.back().get(), 1, 0);
    }
    salida_t *const s = cadena.back().get();
    vplan_escr_linea(s, 0, 0, 1, 0);
    vplan_append_escala(cadena[500].get(), 2, 1);
    vplan_escr_linea(s, 0, 0, 1, 0);
    vplan_desapila_transformacion(cadena[500].get());
    vplan_escr_linea(s, 0, 0, 1, 0);
    EXPECT_EQ(d.visto, "L1000,1001 L1499,1501 L1000,1001 ");
    for (; !cadena.empty(); cadena.pop_back()) vplan_desapila_transformacion(cadena.back().get());
}

PRUEBA(dispositivos, un_millon_de_transformaciones_no_ocupa_mas_que_las_que_hay) {
    que_vuelve d;
    const salida_propia s = abre(&d, que_apuntan());
    for (int i = 0; i < 1000000; ++i) {
        vplan_append_giro_xy(s.get(), 5e5, 4.5e6, 0.6, 0.8);
        if (i % 3 == 0) vplan_escr_punto(s.get(), 5e5, 4.5e6);
        vplan_desapila_transformacion(s.get());
        d.visto.clear();
    }
    EXPECT_LT(s->pila_sistema_de_coordenadas.capacity(), 16u);
    for (int i = 0; i < 10000; ++i) vplan_append_giro_xy(s.get(), 0, 0, 0.6, 0.8);
    EXPECT_LT(s->pila_sistema_de_coordenadas.capacity(), 40000u);
    for (int i = 0; i < 10000; ++i) vplan_desapila_transformacion(s.get());
    vplan_escr_linea(s.get(), 7, 0, 8, 0);
    EXPECT_EQ(d.visto, "L7,8 ");
}

// As many as there is memory for: a figure whose points have none is not drawn, and told.
PRUEBA(dispositivos, sin_memoria_para_los_puntos_no_se_dibuja) {
    const salida_propia s(vplan_abre_apuntador(3, nullptr, CIERTO));
    const vn::dueno<arr_DestruyePunto2D> puntos(arr_CreaPunto2D(1000));
    vplan_append_giro_xy(s.get(), 0, 0, 0.6, 0.8);
    vornspy_instala_permiso([](size_t bytes, void *) -> vnbool { return bytes < 1000 ? CIERTO : FALSO; }, nullptr);
    const auto al_acabar = vn::al_final([] { vornspy_instala_permiso(nullptr, nullptr); });
    for (void (*const dibuja)(salida_t *, const arrPunto2D *) :
         {+[](salida_t *o, const arrPunto2D *p) { vplan_escr_polilinea(o, p, CIERTO); },
          +[](salida_t *o, const arrPunto2D *p) { vplan_escr_poligono_relleno(o, p); }})
        ESPERA_INFORME("memoria != NULL", dibuja(s.get(), puntos.get()));
    EXPECT_EQ(vn::toma(vplan_toma_lo_apuntado(s.get())), "");
    vplan_desapila_transformacion(s.get());
}
