// What the sources of the drawing layer share: the output, the search of who implements a slot, the transformation of
// the chain up to there.
#pragma once

#include "drawing/sistema_priv.h"
#include "drawing/vornplan_tipos.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/unicode.h"
#include "frame/tabla_int.h"
#include <vector>

// The table as the kit sees it: its rows are those of vplan_funciones.
#define VN_TABLA dispositivo
#define VN_TABLA_DE_C vplan_funciones
#define VN_TABLA_FILAS "drawing/vornplan_tabla.inl"
#define VN_TABLA_PREFIJO
#define VN_TABLA_DONDE "salida_con_implementacion->"
#include "frame/tabla_declara.inl"

typedef struct gestcapa gestcapa;

namespace vn {

// A line type defined through an output.
using texto_u = dueno<utunicode_destruye_UNICODE>;
struct tipo_linea_definido {
    texto_u nombre, descripcion;
    dueno<arr_DestruyeDouble> trazos;
};

// What a lock stops while it is above 0.
struct bloqueos {
    uint32_t con_color_bloqueado, con_pluma_bloqueada, con_tipo_linea_bloqueado, con_texto_bloqueado,
        con_relleno_bloqueado, con_giro_texto_bloqueado, con_xor_bloqueado, con_material_bloqueado;
};

// What a system does to points of which the plan is asked, x and y at once; `directo`: it is all of it, as there is
// neither a perspective nor a kind that is identity whatever its numbers. Sums in the order of a point's own.
struct en_planta {
    using par [[gnu::vector_size(16)]] = double;
    par U, V, W, D;
    bool directo = false;
    explicit en_planta(const sistema_coordenadas &s)
        : U{s.m.m[0][0], s.m.m[1][0]}, V{s.m.m[0][1], s.m.m[1][1]}, W{s.m.m[0][2], s.m.m[1][2]}, D{s.m.m[0][3],
                                                                                                   s.m.m[1][3]},
          directo(!i_es_sistema_coordenadas_identidad(&s) && s.m.es_afin()) {}
    en_planta() : en_planta(sistema_coordenadas{}) {}
    par punto(double x, double y, double z) const { return U * x + V * y + W * z + D; }
};

// The transformation of a chain, and of what it was made: it holds as long as no stage up to `fin` has changed.
struct compuesta {
    sistema_coordenadas sistema;
    en_planta planta;
    const salida_t *fin = nullptr;
    uint64_t cambios = 0; // 0: none made yet
    // That of the stages beyond the first, which mostly stay while the first one changes; `llano`: none of them has
    // switched anything off.
    sistema_coordenadas resto;
    const salida_t *fin_del_resto = nullptr;
    uint64_t cambios_del_resto = 0;
    bool resto_llano = false;
};

} // namespace vn

struct salida_t {
    uint32_t tipo;
    vnbool haciendo_pan;
    salida_t *salida_destino; // not owned
    vn::sistema_coordenadas *sistema_coordenadas_actual;
    std::vector<vn::sistema_coordenadas> pila_sistema_de_coordenadas;
    vn::compuesta *sistema_coordenadas_encadenado;
    uint64_t cambios = 1; // grows with each change of the current system
    char *tipo_datos_dispositivo;
    void *item_datos_dispositivo;
    vnfunc_destruye func_destruye_datos_dispositivo;
    gestcapa *capas_dxf; // null in the kinds without layers
    std::vector<vn::tipo_linea_definido> tipos_linea;
    uint8_t capa_actual;
    uint32_t tipo_fondo;
    vn::bloqueos bloqueos;
    vnbool color_actual_es_rgba;
    uint8_t color_actual_paleta;
    uint32_t color_actual_rgba;
    uint8_t pluma_actual, tipo_linea_actual;
    vnbool sobre_base_de_datos_3D_calculado, sobre_base_de_datos_3D;
    vnbool pasar_a_globales_entidades_del_bloque, pasar_a_globales_aunque_se_defina_en_locales;
    vn::dispositivo funciones;
};

namespace vn {

// ---- Who implements a slot

// The first output of the chain that has it; null if none does.
template <auto SLOT> inline salida_t *implementa(salida_t *s) {
    while (s != nullptr && s->funciones.*SLOT == nullptr) s = s->salida_destino;
    return s;
}
// Of a figure with a form of the plane and one of space: the first that has either. None may have both.
template <auto PLANO, auto ESPACIO> inline bool tiene_una(const salida_t &s) {
    const auto func_salida2D = s.funciones.*PLANO;
    const auto func_salida3D = s.funciones.*ESPACIO;
    if (func_salida2D == nullptr) return func_salida3D != nullptr;
    AFIRMA_TEXTO(func_salida3D == nullptr, "func_salida3D == NULL");
    return true;
}
template <auto PLANO, auto ESPACIO> inline salida_t *implementa(salida_t *s) {
    while (s != nullptr && !tiene_una<PLANO, ESPACIO>(*s)) s = s->salida_destino;
    return s;
}
// The call of a slot of the output that implements it, with its item before the values.
template <auto SLOT, class... V> inline tabla::resultado_de<SLOT> llama(const salida_t *s, V... valores) {
    if (!AFIRMA_TEXTO(s->funciones.*SLOT != nullptr, tabla::FILA<SLOT>.falta)) return tabla::resultado_de<SLOT>();
    return tabla::llama<SLOT>(s->funciones, s->item_datos_dispositivo, valores...);
}
// The call of the first output of the chain that has the slot, if any: whether one had.
template <auto SLOT, class... V> inline bool llama_si_hay(salida_t *s, V... valores) {
    salida_t *const donde = implementa<SLOT>(s);
    if (donde != nullptr) llama<SLOT>(donde, valores...);
    return donde != nullptr;
}
// Of a search that must find: "(salida_con_implementacion) != NULL".
inline bool hay(const salida_t *salida_con_implementacion) { return AFIRMA_NO_NULO(salida_con_implementacion); }

// ---- The transformation of the chain

// Reports an output without its current system; every road begins with it.
inline bool es_valida(const salida_t *salida) { return EXIGE(salida, salida->sistema_coordenadas_actual); }
// From `s` to `fin`, both taking part, or to the end of the chain for null. The record is the output's, until its next
// composition.
const sistema_coordenadas &compone_cadena(salida_t *s, const salida_t *fin, uint64_t cambios);
// `cambios`: the sum of theirs.
inline const sistema_coordenadas &encadenado(salida_t *s, const salida_t *fin, uint64_t cambios) {
    const compuesta &c = *s->sistema_coordenadas_encadenado;
    if (c.cambios == cambios && c.fin == fin) [[likely]]
        return c.sistema;
    return compone_cadena(s, fin, cambios);
}
inline const sistema_coordenadas &encadenado(salida_t *s, const salida_t *fin) {
    uint64_t cambios = 0;
    for (const salida_t *i = s; i != nullptr; i = i == fin ? nullptr : i->salida_destino) cambios += i->cambios;
    return encadenado(s, fin, cambios);
}
// The same anew, as a value; the second as texts see it.
sistema_coordenadas compone_aparte(const salida_t *s, const salida_t *fin);
sistema_coordenadas compone_para_texto(const salida_t *s, const salida_t *fin);

// The depth of what is drawn in the plane.
inline double z_del_plano(const salida_t &s) {
    const sistema_coordenadas &a = *s.sistema_coordenadas_actual;
    return a.se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl == FALSO ? 0. : a.profundidad;
}

// ---- The stack

// Current = current x nuevo, of the kind of nuevo; the one until now goes on the stack.
void apila(salida_t *salida, const sistema_coordenadas *sistema_a_apilar);
// Puts `nuevo` in the place of the current one, which goes on the stack.
void apila_en_su_lugar(salida_t *salida, const sistema_coordenadas &nuevo);
// Takes the last of the stack back, of this output alone.
void desapila(salida_t *salida);
// Switches off what lies before, of this output alone.
void desactiva_transformaciones(salida_t *salida, bool solo_matriz_identidad);

// ---- Attributes

inline vnbool relleno_si_no_bloqueado(vnbool relleno, const salida_t *salida) {
    return salida->bloqueos.con_relleno_bloqueado == 0 ? relleno : FALSO;
}
// Sends a forced appearance again, after a change in the device that may have reset it.
void reafirma_bloqueos(salida_t *salida);

} // namespace vn
