#include "colour/idcolor.h"
#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/dueno.hpp"
#include "prueba.h"

namespace {

using salida_propia = vn::dueno<vplan_cierra>;
struct dibujo {
    salida_propia fin{vplan_abre_apuntador(5, nullptr, FALSO)}, cabeza{vplan_abre_apuntador(5, nullptr, FALSO)};
    salida_t *s = fin.get();
    // What the call makes the device do.
    template <class F> std::string operator()(F f) {
        f(s);
        return vn::toma(vplan_toma_lo_apuntado(s));
    }
};

} // namespace

PRUEBA(atributos, lo_que_llega_al_dispositivo) {
    dibujo d;
    const vn::dueno<arr_DestruyeDouble> trazos(arr_CreaDouble(0));
    for (const double t : {.5, -.25, 0.}) arr_AppendDouble(trazos.get(), t);
    vplan_append_escala(d.s, 2, 4);
    const struct {
        void (*f)(salida_t *, const arrDouble *);
        const char *informe, *apuntado;
    } FILAS[] = {
        {[](salida_t *s, const arrDouble *) { vplan_escr_color(s, 12); }, nullptr,
         "func_set_color (2,12,4294967295)\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_color(s, VPLAN_NOCAMBIAR); }, nullptr, ""},
        {[](salida_t *s, const arrDouble *) { vornplan_escr_color_rgb(s, 0x010203); }, nullptr,
         "func_set_color (1,255,4278256131)\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_pluma(s, VPLAN_PORCAPA); }, nullptr, "func_set_pluma 5 0\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_pluma(s, 0); }, "pluma >= 1 && pluma <= 4", ""},
        {[](salida_t *s, const arrDouble *) { vornplan_set_pluma(s, 0, 1); }, nullptr, ""},
        {[](salida_t *s, const arrDouble *) { vplan_escr_grosor_pluma(s, .25); }, nullptr, "func_set_pluma 6 1\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_grosor_pluma(s, 0); }, "ES_MAYOR_CERO(grosor_pluma_mm)", ""},
        {[](salida_t *s, const arrDouble *) { vplan_escr_tipo_linea(s, 10); }, nullptr, "func_set_tipo_linea 10\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_tipo_linea(s, 11); }, "tipo <= 10", ""},
        {[](salida_t *s, const arrDouble *t) { vplan_define_tipo_linea_u(s, VNU("T"), VNU("d"), t); }, nullptr,
         "func_define_tipo_linea_u \"T\" \"d\" [1 -0.5 0]\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_tipo_linea_definida(s, "T"); }, nullptr,
         "func_set_tipo_linea_definida_u \"T\"\n"},
        {[](salida_t *s, const arrDouble *) { vplan_escr_clave(s, VPLAN_NOCAMBIAR); }, "clave != VPLAN_NOCAMBIAR", ""},
        {[](salida_t *s, const arrDouble *) { vplan_escr_capadxf(s, 3); }, nullptr, "func_set_capa 3\n"},
        {[](salida_t *s, const arrDouble *) { vplan_set_XOR(s, CIERTO); }, nullptr, "func_set_xor 1\n"},
        {[](salida_t *s, const arrDouble *) { vplan_bloquea_relleno(s, FALSO); }, "(*con_atributo_bloqueado) > 0", ""},
    };
    for (const auto &f : FILAS)
        vn::con_informe(f.informe, [&] { EXPECT_EQ(d([&](salida_t *s) { f.f(s, trazos.get()); }), f.apuntado); });
    EXPECT_EQ(vornplan_esta_definido_tipo_linea_u(d.s, VNU("T")), CIERTO);
    vplan_desapila_transformacion(d.s);
}

// Locks count; a layer sends what they force again, and takes the line type's count from the colour's.
PRUEBA(atributos, lo_bloqueado_se_mantiene_tras_cada_capa) {
    dibujo d;
    const auto cambia = [](salida_t *s) {
        vplan_escr_color(s, 3), vplan_escr_pluma(s, 3), vplan_escr_tipo_linea(s, 3), vplan_set_XOR(s, CIERTO);
    };
    d([](salida_t *s) { vornplan_escr_color_rgba(s, 5), vplan_escr_pluma(s, 1), vplan_escr_tipo_linea(s, 2); });
    EXPECT_EQ(d([](salida_t *s) {
                  for (const vnbool b : {CIERTO, CIERTO, FALSO}) vplan_bloquea_color(s, b);
                  vplan_bloquea_pluma(s, CIERTO), vplan_bloquea_tipo_linea(s, CIERTO), vplan_bloquea_XOR(s, CIERTO);
              }),
              "func_bloquea_color 1\nfunc_bloquea_color 1\nfunc_bloquea_color 0\nfunc_bloquea_pluma 1\n"
              "func_bloquea_tipo_linea 1\n");
    EXPECT_EQ(d(cambia), "");
    EXPECT_EQ(d([](salida_t *s) { vplan_escr_capadxf(s, 9); }),
              "func_set_capa 9\nfunc_set_color (1,255,5)\nfunc_set_pluma 1 0\nfunc_set_tipo_linea 2\n");
    EXPECT_EQ(vplan_capadxf_actual(d.s), 9);
    // A chained output has the locks of when it was opened.
    const vplan_funciones nadie{};
    void *item = &d;
    const salida_propia delante(vplan_nousar_abre_dispositivo_con_tabla(5, d.s, &item, "d", nullptr, &nadie));
    vplan_bloquea_color(d.s, FALSO);
    EXPECT_EQ(d([&](salida_t *) { cambia(delante.get()); }), "func_bloquea_color 0\n");
    vplan_bloquea_pluma(d.s, 2); // anything but CIERTO unlocks
    vn::toma(vplan_toma_lo_apuntado(d.s));
    // The line type's count is now the colour's, 0.
    d([](salida_t *s) { vplan_escr_capadxf(s, 1); });
    EXPECT_EQ(d([](salida_t *s) { vplan_escr_tipo_linea(s, 4); }), "func_set_tipo_linea 4\n");
}

PRUEBA(atributos, fondos_y_capas_que_se_copian) {
    for (const auto &[fondo, color, blanco] :
         std::initializer_list<std::tuple<uint32_t, int, vnbool>>{{0, 15, CIERTO}, {1, 0, FALSO}, {2, 7, FALSO}}) {
        EXPECT_EQ(vplan_id_color_tipo_fondo(fondo), color);
        EXPECT_EQ(vplan_tipo_fondo_id_color_fondo(static_cast<uint8_t>(color)), fondo);
        EXPECT_EQ(vplan_hay_que_cambiar_blanco_por_negro(fondo), blanco);
        EXPECT_EQ(vplan_color_rgb_segun_tipo_fondo(fondo, 0, 1, 2), fondo);
    }
    dibujo d;
    ESPERA_INFORME("", vplan_set_tipo_fondo(d.s, 3));
    EXPECT_EQ(vplan_color_rgb_fondo(d.s), 0u);
    // Layers by appearance, groups of them, and all of it on another output.
    EXPECT_EQ(vplan_define_capa_dxf(d.s, "muros", 2, 12, 1), 1);
    vplan_guardar_capas(d.s);
    EXPECT_EQ(vplan_define_capa_u(d.s, 7, VNU("otra"), 1, 1, 0), 7);
    vplan_fin_grupo_de_capas(d.s);
    vplan_escr_capadxf(d.s, 1);
    vn::toma(vplan_toma_lo_apuntado(d.s));
    vplan_sincroniza_capas_dxf_y_tipos_de_linea(d.cabeza.get(), d.s);
    EXPECT_EQ(vn::toma(vplan_toma_lo_apuntado(d.cabeza.get())),
              "func_define_capa_u 1 \"muros\" 2 0 (2,12,4294967295) 1 null 0 = 1\nfunc_set_capa 1\n");
}
