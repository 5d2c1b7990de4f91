#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_capas.h"
#include "colour/idcolor.h"
#include "drawing/arraydxf_priv.h"
#include "drawing/capadxf.h"
#include "drawing/gestcapa.h"
#include "drawing/salida_priv.h"
#include "drawing/vornplan_atributos.h"
#include <climits>

using namespace vn;
using D = dispositivo;

void vplan_escr_capadxf(salida_t *salida, uint8_t capa) {
    if (!EXIGE(salida) || capa >= VPLAN_NOCAMBIAR) return;
    salida_t *donde = salida;
    while (donde != nullptr) {
        donde->capa_actual = capa;
        if (donde->funciones.func_set_capa != nullptr) break;
        donde = donde->salida_destino;
    }
    if (donde == nullptr) return;
    llama<&D::func_set_capa>(donde, capa);
    reafirma_bloqueos(salida);
}
uint8_t vplan_capadxf_actual(const salida_t *salida) { return EXIGE(salida) ? salida->capa_actual : VPLAN_NOCAMBIAR; }

// ---------------------------------------------------------------- definitions

uint8_t vornplan_define_capa_u(salida_t *salida, uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor_mm,
                               const idcolor *color, uint8_t tipo_linea, const vnwchar *tipo_linea_definida,
                               uint8_t atributo_extra) {
    if (!EXIGE(salida, nombre, color)) return 0;
    uint8_t id_capa = 0;
    if (salida->funciones.func_define_capa_u != nullptr)
        id_capa = llama<&D::func_define_capa_u>(salida, capa, nombre, pluma, grosor_mm, color, tipo_linea,
                                                tipo_linea_definida, atributo_extra);
    else if (salida->salida_destino != nullptr)
        id_capa = vornplan_define_capa_u(salida->salida_destino, capa, nombre, pluma, grosor_mm, color, tipo_linea,
                                         tipo_linea_definida, atributo_extra);
    if (salida->capas_dxf == nullptr || salida->capas_dxf->actual->capa(id_capa) != nullptr) return id_capa;
    const uint8_t capa_definida =
        arraydxf_define_capas_u(salida->capas_dxf->actual.get(), id_capa, nombre, pluma, grosor_mm, color, tipo_linea,
                                tipo_linea_definida, atributo_extra);
    AFIRMA(capa_definida == id_capa);
    return id_capa;
}

uint8_t vplan_define_capa_u(salida_t *salida, uint8_t capa, const vnwchar *nombre, uint8_t pluma, uint8_t color,
                            uint8_t tipo_linea) {
    idcolor valor{};
    idcolor_set_color_paleta_vorn(&valor, color);
    return vornplan_define_capa_u(salida, capa, nombre, capadxf_convertir_pluma(pluma), 0., &valor, tipo_linea, nullptr,
                                  VPLAN_NOCAMBIAR);
}
uint8_t vplan_define_capa_dxf(salida_t *salida, const char *nombre, uint8_t pluma, uint8_t color, uint8_t tipo_linea) {
    if (!EXIGE(salida, nombre)) return 0;
    return vplan_define_capa_dxf_u(salida, texto_u(unicode_convierte_ANSI_a_UNICODE(nombre)).get(), pluma, color,
                                   tipo_linea);
}
uint8_t vplan_define_capa_dxf_u(salida_t *salida, const vnwchar *nombre, uint8_t pluma, uint8_t color,
                                uint8_t tipo_linea) {
    return vplan_define_capa_u(salida, VPLAN_NOCAMBIAR, nombre, pluma, color, tipo_linea);
}
uint8_t vplan_define_capa_dxf_idcolor_u(salida_t *salida, const vnwchar *nombre, uint8_t pluma, const idcolor *color,
                                        uint8_t tipo_linea) {
    return vornplan_define_capa_u(salida, VPLAN_NOCAMBIAR, nombre, capadxf_convertir_pluma(pluma), 0., color,
                                  tipo_linea, nullptr, VPLAN_NOCAMBIAR);
}

// ---------------------------------------------------------------- groups of layers

namespace {

// This output's own table acts even where a device acts too.
template <auto SLOT, auto EN_LA_TABLA> void grupo_de_capas(salida_t *salida) {
    if (!EXIGE(salida)) return;
    for (; salida != nullptr; salida = salida->salida_destino) {
        if (salida->capas_dxf != nullptr) EN_LA_TABLA(salida->capas_dxf);
        if (salida->funciones.*SLOT != nullptr) return llama<SLOT>(salida);
    }
}

} // namespace

void vplan_guardar_capas(salida_t *salida) { grupo_de_capas<&D::func_guardar_capas, gestcapa_guardar_capas>(salida); }
void vplan_fin_grupo_de_capas(salida_t *salida) {
    grupo_de_capas<&D::func_fin_grupo_de_capas, gestcapa_fin_grupos_capas>(salida);
}

void vplan_sincroniza_capas_dxf_y_tipos_de_linea(salida_t *salida_destino, salida_t *salida_origen) {
    if (!EXIGE(salida_destino, salida_origen)) return;
    for (const tipo_linea_definido &t : salida_origen->tipos_linea)
        vplan_define_tipo_linea_u(salida_destino, t.nombre.get(), t.descripcion.get(), t.trazos.get());
    gestcapa *const capas_dxf = salida_origen->capas_dxf;
    if (!AFIRMA_NO_NULO(capas_dxf)) return;
    for (uint32_t i = 0; i < UCHAR_MAX; ++i) {
        const capa_dxf *const c = capas_dxf->actual->capa(static_cast<uint8_t>(i));
        if (c == nullptr) continue;
        const uint8_t id_capa = vornplan_define_capa_u(salida_destino, static_cast<uint8_t>(i), c->nombre.c_str(),
                                                       c->pluma, c->grosor_pluma_mm, &c->color, c->tipo_linea,
                                                       c->tipo_linea_definida_o_null(), c->atributo_extra);
        AFIRMA(id_capa == i);
    }
    vplan_escr_capadxf(salida_destino, salida_origen->capa_actual);
}
