#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_salida.h"
#include "drawing/gestcapa.h"
#include "drawing/salida_priv.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/cad.h"

using namespace vn;

namespace {

// What is known of a kind.
enum prueba : uint32_t {
    PANTALLA = 1,
    PANTALLA_O_BUFFER = 2,
    LIMITES = 4,
    PLANOS = 8,
    IMAGEN = 16,
    DXF_3D = 32,
    PDF = 64,
    OBLAYOUT = 128
};
constexpr struct {
    uint32_t pruebas;
    bool con_capas;
    uint32_t tipo_fondo;
} TIPOS[] = {
    {PANTALLA | PANTALLA_O_BUFFER, true, 0}, // 0
    {LIMITES, false, 0},                     // 1
    {PLANOS, false, 0},                      // 2
    {0, false, 0},                           // 3
    {IMAGEN, true, 0},                       // 4
    {0, true, 2},                            // 5
    {DXF_3D, true, 2},                       // 6
    {0, true, 2},                            // 7
    {0, false, 2},                           // 8
    {PANTALLA_O_BUFFER, true, 0},            // 9
    {0, false, 0},                           // 10
    {0, false, 0},                           // 11
    {PDF, true, 0},                          // 12
    {OBLAYOUT, false, 0},                    // 13
};
constexpr uint32_t NO_ES_DESTINO = 11;

// What a length is when no device tells, metres.
constexpr double SEPARACION_ENTRE_LINEAS = 0.005, TAMANYO_PUNTO = 0.05;

vnbool es_del_tipo(const salida_t *salida, prueba cual) {
    if (!EXIGE(salida)) return FALSO;
    if (salida->tipo >= std::size(TIPOS)) return AFIRMA_DEFECTO(), FALSO;
    return logico((TIPOS[salida->tipo].pruebas & cual) != 0);
}

const salida_t *ultima(const salida_t *s) {
    while (s->salida_destino != nullptr) s = s->salida_destino;
    return s;
}

// A device's length, measured in its units, in those of the host.
template <auto SLOT, class... V> double longitud_del_dispositivo(salida_t *s, double si_no_hay, V... valores) {
    if (!es_valida(s)) return si_no_hay;
    salida_t *const donde = implementa<SLOT>(s);
    if (donde == nullptr) return si_no_hay;
    return magnitud_inversa(encadenado(s, donde), llama<SLOT>(donde, valores...));
}

// What an output that is opened on another takes from it.
void hereda(salida_t *s) {
    const salida_t &d = *s->salida_destino;
    s->tipo_fondo = d.tipo_fondo;
    s->bloqueos = d.bloqueos;
    s->color_actual_es_rgba = d.color_actual_es_rgba;
    s->color_actual_paleta = d.color_actual_paleta;
    s->color_actual_rgba = d.color_actual_rgba;
    s->pluma_actual = d.pluma_actual;
    s->tipo_linea_actual = d.tipo_linea_actual;
}

template <class T> T *nuevo() { return new (vornspy_malloc(sizeof(T))) T{}; }

// An output's own, whole or as far as it was made.
void deshace(salida_t **salida) {
    salida_t *const s = *salida;
    if (s->capas_dxf != nullptr) gestcapa_destruye(&s->capas_dxf);
    if (s->tipo_datos_dispositivo != nullptr) vornstr_destruye(&s->tipo_datos_dispositivo);
    if (s->sistema_coordenadas_actual != nullptr)
        vornspy_free_pp(&s->sistema_coordenadas_actual, sizeof(sistema_coordenadas));
    if (s->sistema_coordenadas_encadenado != nullptr)
        vornspy_free_pp(&s->sistema_coordenadas_encadenado, sizeof(compuesta));
    s->~salida_t();
    vornspy_free_pp(salida, sizeof(salida_t));
}

} // namespace

// ---------------------------------------------------------------- opening and closing

salida_t *vplan_nousar_abre_dispositivo_con_tabla(uint32_t tipo, salida_t *salida_destino, void **item,
                                                  const char *tipo_datos_dispositivo,
                                                  vnfunc_destruye func_destruye_datos_dispositivo,
                                                  const vplan_funciones *funciones) {
    if (!EXIGE(item, *item, tipo_datos_dispositivo, funciones)) return nullptr;
    dueno<deshace> nueva(nuevo<salida_t>());
    salida_t *const s = nueva.get();
    s->tipo = tipo;
    if (salida_destino != nullptr) {
        if (salida_destino->tipo >= std::size(TIPOS) || salida_destino->tipo == NO_ES_DESTINO) AFIRMA_DEFECTO();
        s->tipo = salida_destino->tipo;
    }
    s->salida_destino = salida_destino;
    s->sistema_coordenadas_actual = nuevo<sistema_coordenadas>();
    s->sistema_coordenadas_encadenado = nuevo<compuesta>();
    s->tipo_datos_dispositivo = cad_copia_cadena(tipo_datos_dispositivo);
    s->func_destruye_datos_dispositivo = func_destruye_datos_dispositivo;
    // By the kind asked for, not by the one taken from the destination.
    if (tipo < std::size(TIPOS) && TIPOS[tipo].con_capas) s->capas_dxf = gestcapa_crea();
    s->capa_actual = s->color_actual_paleta = s->pluma_actual = s->tipo_linea_actual = VPLAN_NOCAMBIAR;
    if (salida_destino != nullptr) hereda(s);
    else s->tipo_fondo = tipo < std::size(TIPOS) ? TIPOS[tipo].tipo_fondo : 0;
    static_cast<vplan_funciones &>(s->funciones) = *funciones;
    s->item_datos_dispositivo = vornspy_asigna_doble_puntero_no_null(void, item);
    return nueva.release();
}

salida_t *vplan_nousar_abre_dispositivo_generico(
    uint32_t tipo, salida_t *salida_destino, void **item, const char *tipo_datos_dispositivo,
    vnfunc_destruye func_destruye_datos_dispositivo VPLAN_GRUPO_ABRE(VPLAN_PARAMETRO)) {
    vplan_funciones funciones{};
#define VN_PON(f) funciones.f = f;
    VPLAN_GRUPO_ABRE(VN_PON)
#undef VN_PON
    return vplan_nousar_abre_dispositivo_con_tabla(tipo, salida_destino, item, tipo_datos_dispositivo,
                                                   func_destruye_datos_dispositivo, &funciones);
}

void vplan_cierra(salida_t **salida) {
    if (!EXIGE(salida, *salida)) return;
    salida_t *const s = *salida;
    if (s->func_destruye_datos_dispositivo != nullptr && AFIRMA_NO_NULO((*salida)->item_datos_dispositivo))
        s->func_destruye_datos_dispositivo(&s->item_datos_dispositivo);
    AFIRMA_TEXTO(s->pila_sistema_de_coordenadas.empty(),
                 "arr_NumElemsPunteroST((*salida)->pila_sistema_de_coordenadas, i_sistema_coordenadas_t) == 0");
    deshace(salida);
}

// ---------------------------------------------------------------- kind and datum

uint32_t vplan_salida(const salida_t *salida) { return AFIRMA_TEXTO(salida != nullptr, "salida") ? salida->tipo : 0; }

vnbool vornplan_es_salida_pantalla(const salida_t *salida) { return es_del_tipo(salida, PANTALLA); }
vnbool vornplan_es_salida_pantalla_o_buffer(const salida_t *salida) { return es_del_tipo(salida, PANTALLA_O_BUFFER); }
vnbool vornplan_es_salida_limites(const salida_t *salida) { return es_del_tipo(salida, LIMITES); }
vnbool vornplan_es_salida_planos(const salida_t *salida) { return es_del_tipo(salida, PLANOS); }
vnbool vornplan_es_salida_imagen(const salida_t *salida) { return es_del_tipo(salida, IMAGEN); }
vnbool vornplan_es_salida_dxf_3d(const salida_t *salida) { return es_del_tipo(salida, DXF_3D); }
vnbool vornplan_es_salida_pdf(const salida_t *salida) { return es_del_tipo(salida, PDF); }
vnbool vornplan_es_salida_oblayout(const salida_t *salida) { return es_del_tipo(salida, OBLAYOUT); }

vnbool vornplan_es_salida_sobre_base_de_datos_3D(salida_t *salida) {
    if (!EXIGE(salida)) return FALSO;
    if (salida->sobre_base_de_datos_3D_calculado == FALSO) {
        salida->sobre_base_de_datos_3D = logico(implementa<&dispositivo::func_proyecta_punto_2d>(salida) != nullptr);
        salida->sobre_base_de_datos_3D_calculado = CIERTO;
    }
    return salida->sobre_base_de_datos_3D;
}

vnbool vornplan_nousar_es_datos_dispositivo(const salida_t *salida, const char *tipo_datos_dispositivo) {
    if (!EXIGE(salida, tipo_datos_dispositivo)) return FALSO;
    return cad_cadenas_iguales(salida->tipo_datos_dispositivo, tipo_datos_dispositivo);
}
vnbool vornplan_nousar_es_datos_dispositivo_base(const salida_t *salida, const char *tipo_datos_dispositivo) {
    if (!EXIGE(salida, tipo_datos_dispositivo)) return FALSO;
    return cad_cadenas_iguales(ultima(salida)->tipo_datos_dispositivo, tipo_datos_dispositivo);
}
void *vornplan_nousar_obtener_datos_dispositivo_generico(const salida_t *salida, const char *tipo_datos_dispositivo) {
    if (!EXIGE(salida, tipo_datos_dispositivo)) return nullptr;
    if (!AFIRMA(cad_cadenas_iguales(salida->tipo_datos_dispositivo, tipo_datos_dispositivo) == CIERTO)) return nullptr;
    return salida->item_datos_dispositivo;
}
void *vornplan_nousar_obtener_datos_dispositivo_base(const salida_t *salida, const char *tipo_datos_dispositivo) {
    return EXIGE(salida) ? vornplan_nousar_obtener_datos_dispositivo_generico(ultima(salida), tipo_datos_dispositivo)
                         : nullptr;
}

salida_t *vornplan_salida_con_implementacion_cotas_dwg(salida_t *salida) {
    return EXIGE(salida) ? implementa<&dispositivo::func_escribe_cota_dwg>(salida) : nullptr;
}

vnbool vplan_get_haciendo_pan(const salida_t *salida) { return EXIGE(salida) ? salida->haciendo_pan : FALSO; }
void vplan_set_haciendo_pan(salida_t *salida, vnbool haciendo_pan) {
    if (EXIGE(salida) && AFIRMA_LOGICO(haciendo_pan)) salida->haciendo_pan = haciendo_pan;
}

// ---------------------------------------------------------------- what it asks its device

void vplan_Guardar(salida_t *salida) {
    if (EXIGE(salida)) llama_si_hay<&dispositivo::func_guardar>(salida);
}
void vplan_Reponer(salida_t *salida) {
    if (EXIGE(salida)) llama_si_hay<&dispositivo::func_reponer>(salida);
}
void vplan_flush_doble_buffer(salida_t *salida) {
    if (EXIGE(salida)) llama_si_hay<&dispositivo::func_flush_doble_buffer>(salida);
}
vnbool vplan_se_ha_cancelado_dibujo(salida_t *salida) {
    if (!EXIGE(salida)) return FALSO;
    salida_t *const donde = implementa<&dispositivo::func_se_ha_cancelado_dibujo>(salida);
    return donde != nullptr ? llama<&dispositivo::func_se_ha_cancelado_dibujo>(donde) : FALSO;
}

void vplan_borra_pantalla(salida_t *salida) {
    if (!EXIGE(salida)) return;
    salida_t *const donde = implementa<&dispositivo::func_borra_fondo>(salida);
    if (hay(donde)) llama<&dispositivo::func_borra_fondo>(donde);
}

void vplan_obtener_limites(salida_t *salida, double *xmin, double *ymin, double *xmax, double *ymax) {
    if (!EXIGE(salida, xmin, ymin, xmax, ymax)) return;
    *xmin = *ymin = *xmax = *ymax = 0.;
    salida_t *const donde = implementa<&dispositivo::func_obtener_limites>(salida);
    if (hay(donde)) llama<&dispositivo::func_obtener_limites>(donde, xmin, ymin, xmax, ymax);
}

escal *vplan_get_escalas(salida_t *salida) {
    if (!EXIGE(salida)) return nullptr;
    salida_t *const donde = implementa<&dispositivo::func_obtener_escalas>(salida);
    return hay(donde) ? llama<&dispositivo::func_obtener_escalas>(donde) : nullptr;
}
void vplan_set_escalas(salida_t *salida, const escal *escalas) {
    if (!EXIGE(salida, escalas)) return;
    salida_t *const donde = implementa<&dispositivo::func_set_escalas>(salida);
    if (hay(donde)) llama<&dispositivo::func_set_escalas>(donde, escalas);
}
vnbool vplan_hay_escalas(salida_t *salida) {
    return EXIGE(salida) ? logico(implementa<&dispositivo::func_obtener_escalas>(salida) != nullptr) : FALSO;
}
escal *vplan_get_escalas_overlay2d(salida_t *salida) {
    if (!EXIGE(salida)) return nullptr;
    salida_t *const donde = implementa<&dispositivo::func_obtener_escalas_overlay2d>(salida);
    return donde != nullptr ? llama<&dispositivo::func_obtener_escalas_overlay2d>(donde) : vplan_get_escalas(salida);
}

double vplan_separacion_visible_entre_lineas(salida_t *salida) {
    return longitud_del_dispositivo<&dispositivo::func_sep_vis_entre_lin>(salida, SEPARACION_ENTRE_LINEAS);
}
double vplan_tamanyo_punto_visible(salida_t *salida) {
    return longitud_del_dispositivo<&dispositivo::func_tam_punto_visible>(salida, TAMANYO_PUNTO);
}
double vplan_tamanyo_punto_visible_overlay2d(salida_t *salida) {
    if (!es_valida(salida)) return TAMANYO_PUNTO;
    if (implementa<&dispositivo::func_tam_punto_visible_overlay2d>(salida) == nullptr)
        return vplan_tamanyo_punto_visible(salida);
    return longitud_del_dispositivo<&dispositivo::func_tam_punto_visible_overlay2d>(salida, TAMANYO_PUNTO);
}
double vplan_tamanyo_texto_visible(salida_t *salida, uint32_t clase) {
    if (!es_valida(salida) || !hay(implementa<&dispositivo::func_tam_texto_visible>(salida))) return 0.;
    return longitud_del_dispositivo<&dispositivo::func_tam_texto_visible>(salida, 0., clase);
}
