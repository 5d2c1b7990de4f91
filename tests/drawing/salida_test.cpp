#include "drawing/salida_priv.h"
#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/vornspy.h"
#include "prueba.h"
#include <algorithm>

namespace {

using salida_propia = vn::dueno<vplan_cierra>;

salida_propia apuntador(salida_t *destino = nullptr, uint32_t tipo = 3, vnbool en_espacio = FALSO) {
    return salida_propia(vplan_abre_apuntador(tipo, destino, en_espacio));
}
std::string lo_de(const salida_propia &s) { return vn::toma(vplan_toma_lo_apuntado(s.get())); }

// A device with the functions given, its item a whole number that its destroyer counts.
int destruidos = 0;
void destruye(int **p) {
    ++destruidos;
    vornspy_free_pp(p, sizeof(int));
}
salida_propia abre(const vplan_funciones &f, salida_t *destino = nullptr, uint32_t tipo = 3,
                   const char *nombre = "prueba") {
    int *item = static_cast<int *>(vornspy_malloc(sizeof(int)));
    *item = 7;
    salida_propia s(vplan_abre_dispositivo(int, tipo, destino, &item, nombre, destruye, &f));
    EXPECT_EQ(item, nullptr);
    return s;
}

} // namespace

PRUEBA(salida, los_tipos_dicen_lo_que_son_y_un_destino_da_el_suyo) {
    const struct {
        vnbool (*es)(const salida_t *);
        std::vector<uint32_t> tipos;
    } FILAS[] = {
        {vornplan_es_salida_pantalla, {0}}, {vornplan_es_salida_pantalla_o_buffer, {0, 9}},
        {vornplan_es_salida_limites, {1}},  {vornplan_es_salida_planos, {2}},
        {vornplan_es_salida_imagen, {4}},   {vornplan_es_salida_dxf_3d, {6}},
        {vornplan_es_salida_pdf, {12}},     {vornplan_es_salida_oblayout, {13}},
    };
    for (uint32_t tipo = 0; tipo <= 13; ++tipo) {
        const auto s = abre({}, nullptr, tipo);
        EXPECT_EQ(vplan_salida(s.get()), tipo);
        for (const auto &f : FILAS)
            EXPECT_EQ(f.es(s.get()) != FALSO, std::count(f.tipos.begin(), f.tipos.end(), tipo) > 0) << tipo;
        EXPECT_EQ(vplan_get_tipo_fondo(s.get()), tipo >= 5 && tipo <= 8 ? 2u : 0u) << tipo;
    }
    const auto raro = abre({}, nullptr, 14);
    ESPERA_INFORME("", vornplan_es_salida_pdf(raro.get()));
    // Chained, the kind is the destination's; 11 is none, and it is opened all the same.
    const auto limites = abre({}, nullptr, 1), sobre = abre({}, limites.get(), 0), once = abre({}, nullptr, 11);
    EXPECT_EQ(vornplan_es_salida_limites(sobre.get()), CIERTO);
    const auto sobre_once = ESPERA_INFORME("", abre({}, once.get(), 0));
    EXPECT_EQ(vplan_salida(sobre_once.get()), 11u);
}

PRUEBA(salida, el_dispositivo_se_instala_por_quien_lo_abrio_y_se_va_con_su_salida) {
    destruidos = 0;
    {
        const auto fin = abre({}, nullptr, 3, "de abajo"), s = abre({}, fin.get());
        EXPECT_EQ(*static_cast<int *>(vornplan_nousar_obtener_datos_dispositivo_generico(s.get(), "prueba")), 7);
        EXPECT_EQ(vornplan_nousar_es_datos_dispositivo_base(s.get(), "de abajo"), CIERTO);
        EXPECT_EQ(vornplan_nousar_obtener_datos_dispositivo_base(s.get(), "de abajo"),
                  vornplan_nousar_obtener_datos_dispositivo_generico(fin.get(), "de abajo"));
        ESPERA_INFORME("cad_cadenas_iguales(salida->tipo_datos_dispositivo, tipo_datos_dispositivo) == CIERTO",
                       vornplan_nousar_obtener_datos_dispositivo_generico(s.get(), "otro"));
        ESPERA_INFORME("cad_cadenas_iguales(salida->tipo_datos_dispositivo, tipo) == CIERTO",
                       vornplan_nousar_set_gestor_doble_buffer(s.get(), "otro", nullptr, nullptr));
        // What may be installed once, and all or nothing.
        const auto si = [](void *) -> vnbool { return CIERTO; };
        vornplan_nousar_set_gestor_doble_buffer(fin.get(), "de abajo", nullptr, si);
        EXPECT_EQ(vplan_se_ha_cancelado_dibujo(s.get()), CIERTO);
        ESPERA_INFORME("salida->func_se_ha_cancelado_dibujo == NULL",
                       vornplan_nousar_set_gestor_doble_buffer(fin.get(), "de abajo", nullptr, si));
        ESPERA_INFORME("(func_obtener_escalas_overlay2d) != NULL",
                       vplan_nousar_set_funciones_transformacion_coords_a_pantalla(s.get(), "prueba", nullptr, nullptr,
                                                                                   nullptr, nullptr, nullptr, nullptr,
                                                                                   nullptr, nullptr, nullptr));
        vplan_Guardar(s.get()); // nobody does: nothing
        ESPERA_INFORME("(salida_con_implementacion) != NULL", vplan_borra_pantalla(s.get()));
        EXPECT_EQ(vplan_tamanyo_punto_visible_overlay2d(s.get()), 0.05);
        EXPECT_EQ(vplan_separacion_visible_entre_lineas(s.get()), 0.005);
        vplan_append_escala(s.get(), 2, 2);
        salida_t *p = vplan_nousar_abre_dispositivo_con_tabla(3, nullptr, nullptr, "x", nullptr, nullptr);
        EXPECT_EQ(p, nullptr);
        vn::Prueba::toma_informes();
        ESPERA_INFORME("arr_NumElemsPunteroST((*salida)->pila_sistema_de_coordenadas, i_sistema_coordenadas_t) == 0",
                       const_cast<salida_propia &>(s).reset());
    }
    EXPECT_EQ(destruidos, 2);
}

// Each installer sets exactly the slots of its group: a value of its own in each.
PRUEBA(salida, cada_instalador_pone_lo_suyo) {
    using D = vn::dispositivo;
    const auto comprueba = [](std::initializer_list<size_t> suyos, auto instala) {
        const auto s = abre({});
        instala(s.get());
        D::recorre([&]<auto SLOT>() {
            const size_t n = vn::tabla::FILA<SLOT>.numero;
            const bool es_suyo = std::find(suyos.begin(), suyos.end(), n) != suyos.end();
            EXPECT_EQ(reinterpret_cast<uintptr_t>(s->funciones.*SLOT), es_suyo ? n + 1 : 0)
                << vn::tabla::FILA<SLOT>.nombre;
        });
    };
#define NUMERO(f) D::numero_de_##f,
#define VALOR(f) , reinterpret_cast<vplan_##f>(uintptr_t{D::numero_de_##f} + 1)
#define INSTALA(instalador, GRUPO) comprueba({GRUPO(NUMERO)}, [](salida_t *s) { instalador(s, "prueba" GRUPO(VALOR)); })
    INSTALA(vplan_nousar_set_funciones2D, VPLAN_GRUPO_2D);
    INSTALA(vplan_nousar_set_funciones3D, VPLAN_GRUPO_3D);
    INSTALA(vplan_nousar_set_funciones_transformacion_coords_a_pantalla, VPLAN_GRUPO_COORDENADAS);
    INSTALA(vplan_nousar_set_funciones_cotas_dwg, VPLAN_GRUPO_COTAS);
    INSTALA(vplan_nousar_set_funciones_animacion_morphing, VPLAN_GRUPO_MORPHING);
    INSTALA(vplan_nousar_set_dibuja_bloque_con_plano_definido, VPLAN_GRUPO_BLOQUE_CON_PLANO);
    INSTALA(vplan_nousar_set_func_visibilidad_bloques, VPLAN_GRUPO_VISIBILIDAD);
    INSTALA(vornplan_nousar_set_funciones_base_de_datos_3D_1, VPLAN_GRUPO_BD3D_1);
    INSTALA(vornplan_nousar_set_funciones_base_de_datos_3D_2, VPLAN_GRUPO_BD3D_2);
    INSTALA(vornplan_nousar_set_funciones_base_de_datos_3D_3, VPLAN_GRUPO_BD3D_3);
    INSTALA(vornplan_nousar_set_funciones_dibujo_buffers_geometria, VPLAN_GRUPO_BUFFERS);
    INSTALA(vornplan_nousar_set_funciones_dibujo_vnsmsolid, VPLAN_GRUPO_SOLIDO);
    INSTALA(vornplan_nousar_set_funciones_gestion_atributos_bloqueados, VPLAN_GRUPO_BLOQUEOS);
    INSTALA(vornplan_nousar_set_gestor_bloques_moviles, VPLAN_GRUPO_MOVILES);
    INSTALA(vornplan_nousar_set_gestor_doble_buffer, VPLAN_GRUPO_DOBLE_BUFFER);
    comprueba({VPLAN_GRUPO_BLOQUES(NUMERO)}, [](salida_t *s) {
        vornplan_nousar_set_gestor_bloques_dibujo(s, "prueba", FALSO VPLAN_GRUPO_BLOQUES(VALOR));
    });
}

PRUEBA(salida, la_primera_que_tiene_una_de_las_dos_formas_dibuja) {
    const auto fin = apuntador(), medio = abre({}, fin.get());
    vplan_escr_linea(medio.get(), 1, 2, 3, 4);
    EXPECT_EQ(lo_de(fin), "func_DrawLinea 1 2 3 4\n");
    // A stage with the form of space alone hides the form of the plane beyond it.
    const auto delante = apuntador(medio.get(), 3, CIERTO);
    vplan_append_desplaza_z(delante.get(), 5);
    vplan_escr_linea(delante.get(), 1, 2, 3, 4);
    EXPECT_EQ(lo_de(delante) + lo_de(fin), "func_Linea3D 1 2 5 3 4 5\n");
    vplan_desapila_transformacion(delante.get());
    vplan_funciones ambas{};
    ambas.func_DrawLinea = [](void *, double, double, double, double) {};
    ambas.func_Linea3D = [](void *, double, double, double, double, double, double) {};
    const auto doble = abre(ambas);
    ESPERA_INFORME("func_salida3D == NULL", vplan_escr_linea(doble.get(), 0, 0, 1, 1));
    const auto nadie = abre({});
    ESPERA_INFORME("(salida_con_implementacion) != NULL", vplan_escr_linea(nadie.get(), 0, 0, 1, 1));
    vplan_escr_punto(nadie.get(), 0, 0);
}

PRUEBA(salida, lo_contado_y_lo_que_no_se_sabe) {
    const salida_propia c(vplan_abre_contador(3, nullptr, FALSO)), n(vplan_abre_nada(3, nullptr, FALSO));
    for (int i = 0; i < 5; ++i) vplan_escr_circulo(c.get(), 0, 0, 1), vplan_escr_circulo(n.get(), 0, 0, 1);
    EXPECT_EQ(vplan_veces_contado(c.get(), "func_DrawCirculo"), 5u);
    EXPECT_EQ(vplan_veces_contado(c.get(), "func_DrawArco"), 0u);
    ESPERA_INFORME("(veces) != NULL", vplan_veces_contado(c.get(), "func_inexistente"));
    ESPERA_INFORME("cad_cadenas_iguales(salida->tipo_datos_dispositivo, tipo_datos_dispositivo) == CIERTO",
                   vplan_toma_lo_apuntado(c.get()));
    EXPECT_EQ(vplan_define_capa_dxf_u(apuntador().get(), VNU("A"), 1, 3, 0), 1);
}
