#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_atributos.h"
#include "colour/idcolor.h"
#include "drawing/capadxf.h"
#include "drawing/salida_priv.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"

using namespace vn;
using D = dispositivo;

namespace {

constexpr uint8_t PLUMA_MINIMA = 1, PLUMA_MAXIMA = 4, TIPO_LINEA_MAXIMO = 10;
// The device's code of a pen that comes with its thickness.
constexpr uint32_t PLUMA_CON_GROSOR = 6;
constexpr double MM_POR_METRO = 1000.;
constexpr uint32_t OPACO = 0xFF000000;

// A setter that only a lock of its own may hold back, if it has one.
template <auto SLOT, class... V> void pasa(salida_t *salida, V... valores) {
    if (EXIGE(salida)) llama_si_hay<SLOT>(salida, valores...);
}
template <auto SLOT, class... V> void pasa_si_no(uint32_t bloqueos::*bloqueado, salida_t *salida, V... valores) {
    if (EXIGE(salida) && salida->bloqueos.*bloqueado == 0) llama_si_hay<SLOT>(salida, valores...);
}

// Counts a lock; exactly CIERTO locks.
bool cuenta(uint32_t *con_atributo_bloqueado, vnbool bloquea) {
    if (!EXIGE(con_atributo_bloqueado)) return false;
    if (bloquea == CIERTO) return ++*con_atributo_bloqueado, true;
    if (!AFIRMA((*con_atributo_bloqueado) > 0)) return false;
    return --*con_atributo_bloqueado, true;
}
void bloquea_aqui(salida_t *salida, uint32_t bloqueos::*cual, vnbool bloquea) {
    if (EXIGE(salida)) cuenta(&(salida->bloqueos.*cual), bloquea);
}
// And tells the device.
template <auto SLOT> void bloquea_y_avisa(salida_t *salida, uint32_t bloqueos::*cual, vnbool bloquea) {
    if (EXIGE(salida) && cuenta(&(salida->bloqueos.*cual), bloquea)) llama_si_hay<SLOT>(salida, bloquea);
}

// What is known of a kind of background: the palette colour that it is, and whether white is not seen on it.
struct fondo {
    uint8_t id_color;
    bool blanco_por_negro;
};
constexpr fondo FONDOS[] = {{15, true}, {0, false}, {7, false}};
template <class T> T del_fondo(uint32_t tipo_fondo, T a, T b, T c) {
    switch (tipo_fondo) {
    case 0: return a;
    case 1: return b;
    case 2: return c;
    default: static_cast<void>(AFIRMA_DEFECTO()); return a;
    }
}
const fondo &fondo_de(uint32_t tipo_fondo) { return *del_fondo(tipo_fondo, &FONDOS[0], &FONDOS[1], &FONDOS[2]); }

} // namespace

// ---------------------------------------------------------------- colour

void vplan_escr_color(salida_t *salida, uint8_t color) {
    if (!EXIGE(salida) || salida->bloqueos.con_color_bloqueado > 0 || color >= VPLAN_NOCAMBIAR) return;
    idcolor valor{};
    idcolor_set_color_paleta_vorn(&valor, color);
    llama_si_hay<&D::func_set_color>(salida, &valor);
    salida->color_actual_es_rgba = FALSO;
    salida->color_actual_paleta = color;
}
void vplan_escr_idcolor(salida_t *salida, const idcolor *color) {
    if (!EXIGE(salida, color)) return;
    pasa_si_no<&D::func_set_color>(&bloqueos::con_color_bloqueado, salida, color);
}
void vornplan_escr_color_rgb(salida_t *salida, uint32_t rgb) { vornplan_escr_color_rgba(salida, rgb | OPACO); }
void vornplan_escr_color_rgba(salida_t *salida, uint32_t rgba) {
    if (!EXIGE(salida) || salida->bloqueos.con_color_bloqueado > 0) return;
    idcolor valor{};
    idcolor_set_color_rgba(&valor, rgba);
    llama_si_hay<&D::func_set_color>(salida, &valor);
    salida->color_actual_es_rgba = CIERTO;
    salida->color_actual_rgba = rgba;
}

// ---------------------------------------------------------------- pen and line type

void vplan_escr_pluma(salida_t *salida, uint8_t pluma) {
    if (!EXIGE(salida) || salida->bloqueos.con_pluma_bloqueada > 0 || pluma == VPLAN_NOCAMBIAR) return;
    if (pluma != VPLAN_PORCAPA &&
        !AFIRMA_TEXTO(pluma >= PLUMA_MINIMA && pluma <= PLUMA_MAXIMA, "pluma >= 1 && pluma <= 4"))
        return;
    llama_si_hay<&D::func_set_pluma>(salida, capadxf_convertir_pluma(pluma), 0.);
    salida->pluma_actual = pluma;
}
void vornplan_set_pluma(salida_t *salida, uint32_t pluma, double grosor_mm) {
    if (pluma != 0) pasa_si_no<&D::func_set_pluma>(&bloqueos::con_pluma_bloqueada, salida, pluma, grosor_mm);
    else EXIGE(salida);
}
void vplan_escr_grosor_pluma(salida_t *salida, double grosor_pluma_mm) {
    if (!es_valida(salida) || !AFIRMA(ES_MAYOR_CERO(grosor_pluma_mm))) return;
    if (salida->bloqueos.con_pluma_bloqueada > 0) return;
    salida_t *const donde = implementa<&D::func_set_pluma>(salida);
    if (donde == nullptr) return;
    const double m = magnitud_y(encadenado(salida, donde), grosor_pluma_mm / MM_POR_METRO);
    llama<&D::func_set_pluma>(donde, PLUMA_CON_GROSOR, m * MM_POR_METRO);
}

void vplan_escr_tipo_linea(salida_t *salida, uint8_t tipo) {
    if (!EXIGE(salida) || salida->bloqueos.con_tipo_linea_bloqueado > 0 || tipo >= VPLAN_NOCAMBIAR) return;
    if (tipo != VPLAN_PORCAPA && !AFIRMA_TEXTO(tipo <= TIPO_LINEA_MAXIMO, "tipo <= 10")) return;
    llama_si_hay<&D::func_set_tipo_linea>(salida, tipo);
    salida->tipo_linea_actual = tipo;
}
void vplan_escr_tipo_linea_definida_u(salida_t *salida, const vnwchar *nombre) {
    if (!EXIGE(salida, nombre)) return;
    pasa_si_no<&D::func_set_tipo_linea_definida_u>(&bloqueos::con_tipo_linea_bloqueado, salida, nombre);
}
void vplan_escr_tipo_linea_definida(salida_t *salida, const char *nombre) {
    if (!EXIGE(salida, nombre)) return;
    vplan_escr_tipo_linea_definida_u(salida, texto_u(unicode_convierte_ANSI_a_UNICODE(nombre)).get());
}
void vplan_define_tipo_linea_u(salida_t *salida, const vnwchar *nombre, const vnwchar *descripcion,
                               const arrDouble *trazos) {
    if (!es_valida(salida) || !EXIGE(nombre, descripcion, trazos)) return;
    if (vornplan_esta_definido_tipo_linea_u(salida, nombre) == FALSO)
        salida->tipos_linea.push_back({texto_u(widestr_copia(nombre)), texto_u(widestr_copia(descripcion)),
                                       dueno<arr_DestruyeDouble>(arr_CopiaDouble(trazos))});
    salida_t *const donde = implementa<&D::func_define_tipo_linea_u>(salida);
    if (donde == nullptr) return;
    const auto suyos = magnitudes_con_signo(encadenado(salida, donde), trazos, 0.);
    llama<&D::func_define_tipo_linea_u>(donde, nombre, descripcion, static_cast<const arrDouble *>(suyos.get()));
}
vnbool vornplan_esta_definido_tipo_linea_u(const salida_t *salida, const vnwchar *nombre) {
    if (!EXIGE(salida, nombre)) return FALSO;
    for (const tipo_linea_definido &t : salida->tipos_linea)
        if (widestr_cadenas_iguales(t.nombre.get(), nombre) != FALSO) return CIERTO;
    return FALSO;
}

// ---------------------------------------------------------------- the rest, which only goes on

void vplan_escr_clave(salida_t *salida, uint8_t clave) {
    if (EXIGE(salida) && AFIRMA(clave != VPLAN_NOCAMBIAR)) pasa<&D::func_set_clave>(salida, clave);
}
void vplan_escr_estilo_texto(salida_t *salida, uint32_t estilo) { pasa<&D::func_set_estilo_texto>(salida, estilo); }
void vplan_escr_familia_fuente_texto(salida_t *salida, const vnwchar *familia, vnwchar **anterior) {
    if (!EXIGE(salida, familia)) return;
    if (!llama_si_hay<&D::func_set_familia_fuente_texto>(salida, familia, anterior) && anterior != nullptr)
        *anterior = widestr_copia(VNU(""));
}
void vplan_set_XOR(salida_t *salida, vnbool activo) {
    if (EXIGE(salida) && AFIRMA_LOGICO(activo))
        pasa_si_no<&D::func_set_xor>(&bloqueos::con_xor_bloqueado, salida, activo);
}
void vplan_set_borrar(salida_t *salida, vnbool activo) {
    if (EXIGE(salida) && AFIRMA_LOGICO(activo)) pasa<&D::func_set_borrar>(salida, activo);
}
void vornplan_set_color_rgb_fondo_texto(salida_t *salida, vnbool con_fondo, uint32_t rgb) {
    if (EXIGE(salida) && AFIRMA_LOGICO(con_fondo)) pasa<&D::func_set_color_rgb_fondo_texto>(salida, con_fondo, rgb);
}

// ---------------------------------------------------------------- locks

void vplan_bloquea_color(salida_t *salida, vnbool bloquea) {
    bloquea_y_avisa<&D::func_bloquea_color>(salida, &bloqueos::con_color_bloqueado, bloquea);
}
void vplan_bloquea_pluma(salida_t *salida, vnbool bloquea) {
    bloquea_y_avisa<&D::func_bloquea_pluma>(salida, &bloqueos::con_pluma_bloqueada, bloquea);
}
void vplan_bloquea_tipo_linea(salida_t *salida, vnbool bloquea) {
    bloquea_y_avisa<&D::func_bloquea_tipo_linea>(salida, &bloqueos::con_tipo_linea_bloqueado, bloquea);
}
void vplan_bloquea_texto(salida_t *salida, vnbool bloquea) {
    bloquea_y_avisa<&D::func_bloquea_texto>(salida, &bloqueos::con_texto_bloqueado, bloquea);
}
void vplan_bloquea_relleno(salida_t *salida, vnbool bloquea) {
    bloquea_y_avisa<&D::func_bloquea_relleno>(salida, &bloqueos::con_relleno_bloqueado, bloquea);
}
void vplan_bloquea_aplicacion_sistema_coordenadas_a_giro_texto(salida_t *salida, vnbool bloquea) {
    bloquea_aqui(salida, &bloqueos::con_giro_texto_bloqueado, bloquea);
}
void vplan_bloquea_XOR(salida_t *salida, vnbool bloquea) {
    bloquea_aqui(salida, &bloqueos::con_xor_bloqueado, bloquea);
}
void vornplan_bloquea_material_vnmatvis3d(salida_t *salida, vnbool bloquea) {
    bloquea_aqui(salida, &bloqueos::con_material_bloqueado, bloquea);
}

// A change in the device may have reset a forced appearance: it is sent again. With it the count of the line type's
// locks becomes that of the colour's, so a line type locked alone is unlocked.
void vn::reafirma_bloqueos(salida_t *salida) {
    bloqueos &b = salida->bloqueos;
    const uint32_t color = b.con_color_bloqueado, pluma = b.con_pluma_bloqueada;
    if (color > 0) {
        b.con_color_bloqueado = 0;
        if (salida->color_actual_es_rgba == CIERTO) vornplan_escr_color_rgba(salida, salida->color_actual_rgba);
        else vplan_escr_color(salida, salida->color_actual_paleta);
        b.con_color_bloqueado = color;
    }
    if (pluma > 0) {
        b.con_pluma_bloqueada = 0;
        vplan_escr_pluma(salida, salida->pluma_actual);
        b.con_pluma_bloqueada = pluma;
    }
    if (b.con_tipo_linea_bloqueado > 0) {
        b.con_tipo_linea_bloqueado = 0;
        vplan_escr_tipo_linea(salida, salida->tipo_linea_actual);
        b.con_tipo_linea_bloqueado = color;
    }
}

// ---------------------------------------------------------------- materials, which replace the colour

void vornplan_escr_material_bd3d(salida_t *salida, uint32_t material) {
    if (EXIGE(salida) && llama_si_hay<&D::func_escr_material_bd3d>(salida, material)) reafirma_bloqueos(salida);
}
void vornplan_escr_material_bd3d_con_nombre(salida_t *salida, const vnwchar *nombre) {
    if (EXIGE(salida, nombre) && llama_si_hay<&D::func_escr_material_bd3d_con_nombre>(salida, nombre))
        reafirma_bloqueos(salida);
}
void vornplan_escr_material_vnmatvis3d(salida_t *salida, const void *material) {
    if (!EXIGE(salida, material) || salida->bloqueos.con_material_bloqueado > 0) return;
    if (llama_si_hay<&D::func_escr_material_vnmatvis3d>(salida, material)) reafirma_bloqueos(salida);
}

// ---------------------------------------------------------------- background

uint32_t vplan_get_tipo_fondo(const salida_t *salida) { return EXIGE(salida) ? salida->tipo_fondo : 0; }
void vplan_set_tipo_fondo(salida_t *salida, uint32_t tipo_fondo) {
    if (!EXIGE(salida)) return;
    if (tipo_fondo < std::size(FONDOS)) salida->tipo_fondo = tipo_fondo;
    else AFIRMA_DEFECTO();
}
uint8_t vplan_id_color_tipo_fondo(uint32_t tipo_fondo) { return fondo_de(tipo_fondo).id_color; }
uint32_t vplan_tipo_fondo_id_color_fondo(uint8_t id_color) {
    for (uint32_t tipo_fondo = 1; tipo_fondo < std::size(FONDOS); ++tipo_fondo)
        if (FONDOS[tipo_fondo].id_color == id_color) return tipo_fondo;
    return 0;
}
vnbool vplan_hay_que_cambiar_blanco_por_negro(uint32_t tipo_fondo) {
    return logico(fondo_de(tipo_fondo).blanco_por_negro);
}
uint8_t vplan_id_color_fondo(const salida_t *salida) { return vplan_id_color_tipo_fondo(vplan_get_tipo_fondo(salida)); }
uint32_t vplan_color_rgb_fondo(const salida_t *salida) { return idcolor_colorRGB(vplan_id_color_fondo(salida)); }
uint8_t vplan_id_color_segun_tipo_fondo(uint32_t tipo_fondo, uint8_t color_0, uint8_t color_1, uint8_t color_2) {
    return del_fondo(tipo_fondo, color_0, color_1, color_2);
}
uint32_t vplan_color_rgb_segun_tipo_fondo(uint32_t tipo_fondo, uint32_t rgb_0, uint32_t rgb_1, uint32_t rgb_2) {
    return del_fondo(tipo_fondo, rgb_0, rgb_1, rgb_2);
}
uint8_t vplan_id_color_segun_color_fondo(const salida_t *salida, uint8_t color_0, uint8_t color_1, uint8_t color_2) {
    return del_fondo(vplan_get_tipo_fondo(salida), color_0, color_1, color_2);
}
