#define VN_MODULO "arraydxf (NUCLEOS.DLL)"
#include "drawing/arraydxf.h"
#include "colour/idcolor_registro.h"
#include "drawing/arraydxf_priv.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/avisos.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include <algorithm>
#include <atomic>

using namespace vn;

namespace {

// Numbers that the table gives out: up to this one.
constexpr uint8_t ULTIMA_AUTOMATICA = VPLAN_PORCAPA - 1;

// Layer numbers above the highest are taken as 0.
constinit std::atomic<bool> se_toleran_capas{false};

bool misma_pluma(const capa_dxf &a, const capa_dxf &b) {
    return a.pluma == b.pluma && SON_IGUALES(a.grosor_pluma_mm, b.grosor_pluma_mm) == CIERTO;
}
bool mismo_tipo_linea(const capa_dxf &a, const capa_dxf &b) {
    return a.tipo_linea == b.tipo_linea && a.tipo_linea_definida == b.tipo_linea_definida;
}
bool mismo_color(const capa_dxf &a, const capa_dxf &b) { return idcolor_es_igual(&a.color, &b.color) == CIERTO; }

bool mismos_atributos(const capa_dxf &a, const capa_dxf &b) {
    return misma_pluma(a, b) && mismo_tipo_linea(a, b) && a.atributo_extra == b.atributo_extra &&
           a.nombre == b.nombre && mismo_color(a, b);
}

// A layer as it is asked for, with the current attributes where it leaves them open.
std::unique_ptr<capa_dxf> completa(const capa_dxf &actuales, const vnwchar *nombre, uint32_t pluma, double grosor,
                                   const idcolor &color, uint8_t tipo_linea, const vnwchar *tipo_linea_definida,
                                   uint8_t atributo_extra) {
    auto c = std::make_unique<capa_dxf>();
    c->nombre = nombre;
    c->pluma = pluma != 0 ? pluma : actuales.pluma;
    c->grosor_pluma_mm = grosor != 0. ? grosor : actuales.grosor_pluma_mm;
    c->color = colores::es_nocambiar(color) ? actuales.color : color;
    c->tipo_linea = tipo_linea != VPLAN_NOCAMBIAR ? tipo_linea : actuales.tipo_linea;
    if (tipo_linea_definida != nullptr) c->tipo_linea_definida = tipo_linea_definida;
    c->atributo_extra = atributo_extra != VPLAN_NOCAMBIAR ? atributo_extra : actuales.atributo_extra;
    return c;
}

// The number of the first layer that has just these; none if none has.
std::optional<uint8_t> busca(const arraydxf &array, const capa_dxf &buscada) {
    for (size_t i = 0; i <= array.capa_mas_alta; ++i)
        if (array.capas[i] != nullptr && mismos_atributos(*array.capas[i], buscada)) return static_cast<uint8_t>(i);
    return std::nullopt;
}

// A table with its current attributes, without which every operation reports.
bool es_valida(const arraydxf *array) { return EXIGE(array, array->atributos_actuales); }

// The current layer; without one that is reported, and null.
const capa_dxf *activa(const arraydxf &array) {
    const capa_dxf *const capa_activa = array.capa(array.atributos_actuales->capa);
    AFIRMA_NO_NULO(capa_activa);
    return capa_activa;
}

// Each gives a current attribute the value that it has in `por`: whether it is another than until now.
bool cambia_pluma(capa_dxf &actuales, const capa_dxf &por) {
    const bool otra = !misma_pluma(actuales, por);
    actuales.pluma = por.pluma;
    actuales.grosor_pluma_mm = por.grosor_pluma_mm;
    return otra;
}
bool cambia_tipo_linea(capa_dxf &actuales, const capa_dxf &por) {
    const bool otro = !mismo_tipo_linea(actuales, por);
    actuales.tipo_linea_definida = por.tipo_linea_definida;
    actuales.tipo_linea = por.tipo_linea;
    return otro;
}
bool cambia_color(arraydxf &array, const idcolor &por) {
    if (!AFIRMA_TEXTO(!colores::es_nocambiar(por), "idcolor_es_vplan_nocambiar(color) == FALSO")) return false;
    idcolor nuevo = por;
    if (idcolor_es_vplan_porcapa(&por) == CIERTO) {
        const capa_dxf *const capa_activa = activa(array);
        if (capa_activa == nullptr) return false;
        nuevo = capa_activa->color;
    }
    const bool otro = idcolor_es_igual(&array.atributos_actuales->color, &nuevo) == FALSO;
    array.atributos_actuales->color = nuevo;
    return otro;
}

// The last saved attributes are current again; false, reported, if none are saved.
bool repone(arraydxf &array) {
    const size_t num_apilados = array.pila_de_atributos_actuales.size();
    if (!AFIRMA(num_apilados > 0)) return false;
    array.atributos_actuales = std::move(array.pila_de_atributos_actuales.back());
    array.pila_de_atributos_actuales.pop_back();
    return true;
}

dueno<arraydxf_destruye> nueva_con(const capa_dxf &actuales) {
    dueno<arraydxf_destruye> a(new (vornspy_malloc(sizeof(arraydxf))) arraydxf{});
    a->atributos_actuales = std::make_unique<capa_dxf>(actuales);
    return a;
}

} // namespace

arraydxf *arraydxf_crea(void) { return nueva_con({}).release(); }

arraydxf *arraydxf_crea_con_atributos(const arraydxf *array) {
    if (!AFIRMA_TEXTO(array != nullptr, "(arraydxf) != NULL") || !es_valida(array)) return nullptr;
    return nueva_con(*array->atributos_actuales).release();
}

void arraydxf_destruye(arraydxf **array) {
    if (!EXIGE(array, *array)) return;
    AFIRMA_TEXTO_CLASE((*array)->pila_de_atributos_actuales.empty(),
                       "arr_NumElemsPunteroST((*array)->pila_de_atributos_actuales, CapaDXF_t) == 0", 1);
    (*array)->~arraydxf();
    vornspy_free_pp(array, sizeof(arraydxf));
}

uint8_t arraydxf_define_capas_u(arraydxf *array, uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor,
                                const idcolor *color, uint8_t tipo_linea, const vnwchar *tipo_linea_definida,
                                uint8_t atributo_extra) {
    if (!es_valida(array) || !EXIGE(nombre, color)) return 0;
    if (array->capa(capa) != nullptr) return capa;
    auto nueva = completa(*array->atributos_actuales, nombre, pluma, grosor, *color, tipo_linea, tipo_linea_definida,
                          atributo_extra);
    if (capa == VPLAN_NOCAMBIAR) {
        const bool quedan_numeros = array->capa_mas_alta < ULTIMA_AUTOMATICA;
        if (const auto esta = busca(*array, *nueva)) return *esta;
        if (!quedan_numeros) {
            AFIRMA(array->capa_mas_alta > 0);
            return 0;
        }
        capa = ++array->capa_mas_alta;
        if (!AFIRMA(array->capa_mas_alta < VPLAN_PORCAPA)) return 0;
    } else array->capa_mas_alta = std::max(array->capa_mas_alta, capa);
    nueva->capa = array->atributos_actuales->capa = capa;
    array->capas[capa] = std::move(nueva);
    return capa;
}

vnbool arraydxf_existe_la_capa_con_mismos_atributos_u(const arraydxf *array, const vnwchar *nombre, uint32_t pluma,
                                                      double grosor, const idcolor *color, uint8_t tipo_linea,
                                                      const vnwchar *tipo_linea_definida, uint8_t atributo_extra,
                                                      uint8_t *capa) {
    if (!es_valida(array) || !EXIGE(nombre, color)) return FALSO;
    const auto esta = busca(*array, *completa(*array->atributos_actuales, nombre, pluma, grosor, *color, tipo_linea,
                                              tipo_linea_definida, atributo_extra));
    if (esta && capa != nullptr) *capa = *esta;
    return logico(esta.has_value());
}

void arraydxf_cambiar_capa_u(arraydxf *array, uint8_t num_capa, vnbool *cambia_pluma, vnbool *cambia_color,
                             vnbool *cambia_tipo_linea) {
    if (!es_valida(array) || !EXIGE(cambia_pluma, cambia_color, cambia_tipo_linea)) return;
    *cambia_pluma = *cambia_color = *cambia_tipo_linea = FALSO;
    if (!AFIRMA(num_capa != VPLAN_NOCAMBIAR)) return;
    if (num_capa > array->capa_mas_alta && se_toleran_capas.load(std::memory_order_relaxed)) {
        assert_aviso(VNU("num_capa <= array->capa_mas_alta"));
        num_capa = 0;
    }
    if (!AFIRMA(num_capa <= array->capa_mas_alta)) return;
    const capa_dxf *const capa = array->capa(num_capa);
    if (!AFIRMA_TEXTO(capa != nullptr, "arr_GetBOOL(array->capas_definidas, num_capa) == CIERTO")) return;
    capa_dxf &actuales = *array->atributos_actuales;
    actuales.capa = num_capa;
    *cambia_pluma = logico(::cambia_pluma(actuales, *capa));
    *cambia_color = logico(::cambia_color(*array, capa->color));
    *cambia_tipo_linea = logico(::cambia_tipo_linea(actuales, *capa));
}

void arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(vnbool es_dibujo_capas_pilares_estructa) {
    if (AFIRMA_LOGICO(es_dibujo_capas_pilares_estructa))
        se_toleran_capas.store(es_dibujo_capas_pilares_estructa == CIERTO, std::memory_order_relaxed);
}

vnbool arraydxf_cambiar_idcolor(arraydxf *array, const idcolor *color) {
    return es_valida(array) && AFIRMA_NO_NULO(color) ? logico(cambia_color(*array, *color)) : FALSO;
}

vnbool arraydxf_cambiar_pluma(arraydxf *array, uint32_t pluma, double grosor_pluma_mm) {
    if (!es_valida(array)) return FALSO;
    capa_dxf por;
    por.pluma = pluma;
    por.grosor_pluma_mm = grosor_pluma_mm;
    return logico(cambia_pluma(*array->atributos_actuales, por));
}

vnbool arraydxf_cambiar_tipo_linea_u(arraydxf *array, uint8_t tipo_linea, const vnwchar *tipo_linea_definida) {
    if (!es_valida(array)) return FALSO;
    capa_dxf por;
    por.tipo_linea = tipo_linea;
    if (tipo_linea_definida != nullptr) por.tipo_linea_definida = tipo_linea_definida;
    return logico(cambia_tipo_linea(*array->atributos_actuales, por));
}

vnbool arraydxf_color_actual_distinto_a_color_capa(const arraydxf *array) {
    if (!es_valida(array)) return FALSO;
    const capa_dxf *const capa_activa = activa(*array);
    return logico(capa_activa != nullptr && !mismo_color(*array->atributos_actuales, *capa_activa));
}

const idcolor *arraydxf_dame_color_capa_activa(const arraydxf *array) {
    if (!es_valida(array)) return nullptr;
    const capa_dxf *const capa_activa = activa(*array);
    return capa_activa != nullptr ? &capa_activa->color : nullptr;
}

const vnwchar *arraydxf_obtener_nombre_capa_actual_u(const arraydxf *array) {
    if (!es_valida(array)) return nullptr;
    const capa_dxf *const capa = array->capa(array->atributos_actuales->capa);
    return (capa != nullptr ? *capa : *array->atributos_actuales).nombre.c_str();
}

void arraydxf_obtener_atributos_actuales_u(const arraydxf *array, uint8_t *capa, uint32_t *pluma,
                                           double *grosor_pluma_mm, const idcolor **color, uint8_t *tipo_linea,
                                           const vnwchar **tipo_linea_definida, uint8_t *atributo_extra) {
    if (!es_valida(array)) return;
    const capa_dxf &a = *array->atributos_actuales;
    if (capa != nullptr) *capa = a.capa;
    if (pluma != nullptr) *pluma = a.pluma;
    if (grosor_pluma_mm != nullptr) *grosor_pluma_mm = a.grosor_pluma_mm;
    if (color != nullptr) *color = &a.color;
    if (tipo_linea != nullptr) *tipo_linea = a.tipo_linea;
    if (tipo_linea_definida != nullptr) *tipo_linea_definida = a.tipo_linea_definida_o_null();
    if (atributo_extra != nullptr) *atributo_extra = a.atributo_extra;
}

void arraydxf_guardar_atributos_actuales(arraydxf *array) {
    if (!es_valida(array)) return;
    array->pila_de_atributos_actuales.push_back(std::make_unique<capa_dxf>(*array->atributos_actuales));
}

void arraydxf_reponer_atributos_u(arraydxf *array) {
    if (es_valida(array)) repone(*array);
}

void arraydxf_reponer_atributosFPL(arraydxf *array, uint8_t *capa, vnbool *cambia_pluma, uint32_t *pluma,
                                   double *grosor_pluma_mm, vnbool *cambia_color, const idcolor **color,
                                   vnbool *cambia_tipo_linea, uint8_t *tipo_linea,
                                   const vnwchar **tipo_linea_definida) {
    if (!es_valida(array) || !EXIGE(capa, cambia_pluma, pluma, grosor_pluma_mm) ||
        !EXIGE(cambia_color, color, cambia_tipo_linea, tipo_linea, tipo_linea_definida))
        return;
    *capa = *tipo_linea = 0;
    *cambia_pluma = *cambia_color = *cambia_tipo_linea = FALSO;
    *pluma = 0;
    *grosor_pluma_mm = 0.;
    *color = nullptr;
    *tipo_linea_definida = nullptr;
    if (!repone(*array)) return;
    const capa_dxf &a = *array->atributos_actuales;
    const capa_dxf *const capa_guardada = array->capa(a.capa);
    const bool hay_capa = AFIRMA_NO_NULO(capa_guardada);
    *cambia_pluma = logico(!hay_capa || !misma_pluma(a, *capa_guardada));
    *cambia_color = logico(!hay_capa || !mismo_color(a, *capa_guardada));
    *cambia_tipo_linea = logico(!hay_capa || !mismo_tipo_linea(a, *capa_guardada));
    arraydxf_obtener_atributos_actuales_u(array, capa, pluma, grosor_pluma_mm, color, tipo_linea, tipo_linea_definida,
                                          nullptr);
}
