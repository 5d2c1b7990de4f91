#define VN_MODULO "idcolor (NUCLEOS.DLL)"
#include "colour/idcolor_registro.h"
#include "colour/idcolor_paleta.h"
#include "colour/idcolor_priv.h"
#include "colour/idcolor_rgb.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include "persistence/vornsave.h"

using namespace vn;
using namespace vn::colores;

namespace {

idcolor *nuevo(const idcolor &valor) {
    auto *const p = static_cast<idcolor *>(vornspy_malloc(sizeof(idcolor)));
    *p = valor;
    return p;
}

constexpr auto SI = [](uint32_t) { return CIERTO; };
constexpr auto NO = [](uint32_t) { return FALSO; };
constexpr auto EL_MISMO = [](uint8_t indice) { return indice; };
constexpr auto DE_AUTOCAD = [](uint8_t indice) { return AUTOCAD[indice]; };
constexpr auto DE_VORN = [](uint8_t indice) { return rgb_de_vorn(indice, true); };

// The own palette depends on the background, so its indices mean nothing in a file.
bool es_tipo_grabable(int32_t tipo_color) { return tipo_color == PALETA_AUTOCAD || tipo_color == DIRECTO; }

// A palette colour that could not be told from the background.
uint32_t adaptado(uint32_t rgb, uint32_t tipo_fondo) {
    if (tipo_fondo == FONDO_BLANCO && rgb == BLANCO) return NEGRO;
    if (tipo_fondo == FONDO_NEGRO && rgb == NEGRO) return BLANCO;
    return rgb;
}

uint32_t rgb_segun_fondo(const idcolor *color, uint32_t tipo_fondo, bool vorn_claro) {
    if (tipo_fondo >= TIPOS_FONDO) AFIRMA_DEFECTO(); // nothing is adapted
    return segun_tipo<uint32_t>(
        color, [=](uint8_t i) { return adaptado(AUTOCAD[i], tipo_fondo); }, sin_alfa,
        [=](uint8_t i) { return adaptado(rgb_de_vorn(i, vorn_claro), tipo_fondo); });
}

// The darker colour of the same hue in the AutoCAD palette.
uint8_t tenue(uint8_t indice) {
    constexpr struct { uint8_t de, a; } BASICOS[] = {{1, 16}, {2, 56}, {4, 136}, {5, 176}, {6, 216}, {9, 8}};
    for (const auto &b : BASICOS)
        if (b.de == indice) return b.a;
    const bool es_matiz = indice >= 10 && indice <= 249;
    return es_matiz && indice % 10 < 6 ? static_cast<uint8_t>(indice / 10 * 10 + 6) : indice;
}

} // namespace

idcolor *idcolor_crea_color_paleta_autocad(uint8_t indice) { return nuevo(de_autocad(indice)); }

idcolor *idcolor_crea_color_paleta_autocad_con_color_vorn(uint8_t indice) {
    return nuevo(de_autocad(de_vorn_a_autocad(indice)));
}

idcolor *idcolor_crea_color_paleta_vorn(uint8_t color_paleta) {
    AFIRMA(color_paleta != VPLAN_PORCAPA && color_paleta != VPLAN_NOCAMBIAR);
    return nuevo(de_vorn(color_paleta));
}

idcolor *idcolor_crea_color_por_capa(void) { return nuevo(de_vorn(VPLAN_PORCAPA)); }
idcolor *idcolor_crea_color_rgb(uint32_t rgb) { return nuevo(directo(opaco(rgb))); }
idcolor *idcolor_crea_color_rgba(uint32_t rgba) { return nuevo(directo(rgba)); }

idcolor *idcolor_crea_color_ajustando_paleta_autocad(uint32_t rgb) {
    uint8_t indice = 0;
    return idcolor_dame_indice_color_autocad(rgb, &indice) == CIERTO ? nuevo(de_autocad(indice))
                                                                     : nuevo(directo(opaco(rgb)));
}

idcolor *idcolor_copia(const idcolor *color) { return hay(color) ? nuevo(*color) : nullptr; }

idcolor *idcolor_transforma_a_color_autocad_si_es_color_paleta(const idcolor *color) {
    if (!hay(color)) return nullptr;
    return nuevo(color->tipo_color == PALETA_VORN ? de_autocad(de_vorn_a_autocad(color->color_paleta)) : *color);
}

void idcolor_destruye(idcolor **color) {
    if (EXIGE(color, *color)) vornspy_free_pp(color, sizeof **color);
}

void idcolor_asigna(idcolor *destino, const idcolor *origen) {
    if (EXIGE(destino, origen)) *destino = *origen;
}
void idcolor_set_color_paleta_vorn(idcolor *color, uint8_t indice) {
    if (hay(color)) *color = de_vorn(indice);
}
void idcolor_set_color_rgba(idcolor *color, uint32_t rgba) {
    if (hay(color)) *color = directo(rgba);
}

vnbool idcolor_es_color_paleta(const idcolor *color) { return segun_tipo<vnbool>(color, SI, NO, SI); }
vnbool idcolor_es_color_paleta_autocad(const idcolor *color) { return segun_tipo<vnbool>(color, SI, NO, NO); }

vnbool idcolor_es_vplan_porcapa(const idcolor *color) {
    return segun_tipo<vnbool>(color, NO, NO, [](uint8_t i) { return logico(i == VPLAN_PORCAPA); });
}

vnbool idcolor_es_igual(const idcolor *color1, const idcolor *color2) {
    if (!EXIGE(color1, color2)) return FALSO;
    const auto mismo_indice = [&](uint8_t i) { return logico(i == color2->color_paleta); };
    const vnbool iguales = segun_tipo<vnbool>(
        color1, mismo_indice, [&](uint32_t v) { return logico(v == color2->rgba); }, mismo_indice);
    return logico(color1->tipo_color == color2->tipo_color && iguales == CIERTO);
}

vnbool idcolor_es_igual_color_RGB(const idcolor *color, uint32_t rgb) {
    return segun_tipo<vnbool>(
        color, NO, [=](uint32_t v) { return logico(sin_alfa(v) == rgb); }, NO);
}
vnbool idcolor_es_igual_color_RGBA(const idcolor *color, uint32_t rgba) {
    return segun_tipo<vnbool>(
        color, NO, [=](uint32_t v) { return logico(v == rgba); }, NO);
}

uint8_t idcolor_color_paleta(const idcolor *color) {
    return segun_tipo<uint8_t>(
        color, EL_MISMO, [](uint32_t) { return uint8_t{AFIRMA_DEFECTO()}; }, EL_MISMO);
}
uint8_t idcolor_color_paleta_autocad(const idcolor *color) {
    return segun_tipo<uint8_t>(color, EL_MISMO, idcolor_dame_indice_color_autocad_mas_cercano_a_RGB, de_vorn_a_autocad);
}
uint8_t idcolor_color_paleta_vorn(const idcolor *color) {
    return segun_tipo<uint8_t>(color, de_autocad_a_vorn, idcolor_dame_indice_color_autocad_mas_cercano_a_RGB, EL_MISMO);
}

uint32_t idcolor_color_rgb(const idcolor *color) { return segun_tipo<uint32_t>(color, DE_AUTOCAD, sin_alfa, DE_VORN); }
uint32_t idcolor_color_rgba(const idcolor *color) {
    return segun_tipo<uint32_t>(
        color, [](uint8_t i) { return opaco(DE_AUTOCAD(i)); }, [](uint32_t v) { return v; },
        [](uint8_t i) { return opaco(DE_VORN(i)); });
}

uint32_t idcolor_color_rgb_segun_fondo(const idcolor *color, uint32_t tipo_fondo) {
    return rgb_segun_fondo(color, tipo_fondo, true);
}
uint32_t idcolor_color_rgb_segun_fondo_para_vplanglsl(const idcolor *color, uint32_t tipo_fondo) {
    return rgb_segun_fondo(color, tipo_fondo, tipo_fondo != FONDO_NEGRO);
}

uint32_t idcolor_color_rgb_tenue(const idcolor *color) {
    return segun_tipo<uint32_t>(
        color, [](uint8_t i) { return AUTOCAD[tenue(i)]; }, idcolor_rgb_tenue,
        [](uint8_t) { return uint32_t{AFIRMA_DEFECTO()}; });
}

void idcolor_color_para_ARX_DWG_y_ALLPLAN(const idcolor *color, uint32_t *tipo, uint16_t *indice, uint8_t *r,
                                          uint8_t *g, uint8_t *b, uint8_t *a) {
    if (!hay(color) || !EXIGE(tipo, indice, r, g, b)) return;
    const auto pon = [&](uint32_t el_tipo, uint16_t el_indice, uint32_t rgba) {
        *tipo = el_tipo;
        *indice = el_indice;
        idcolor_get_rgba(rgba, r, g, b, a);
        return 0;
    };
    segun_tipo<int>(
        color, [&](uint8_t i) { return pon(0, i, 0xFFFFFFFF); }, [&](uint32_t v) { return pon(1, 0xFFFF, v); },
        [&](uint8_t i) { return pon(0, de_vorn_a_autocad(i), 0xFFFFFFFF); });
}

void idcolor_graba(const idcolor *color, vornsave *save) {
    if (!hay(color) || !EXIGE(save)) return;
    AFIRMA_TEXTO(es_tipo_grabable(color->tipo_color), "i_es_tipo_paleta_grabable(idcolor->tipo_color) == CIERTO");
    vornsave_graba_ushort(static_cast<uint16_t>(color->tipo_color), save);
    vornsave_graba_uchar(color->color_paleta, save);
    vornsave_graba_ulong(color->rgba, save);
}

idcolor *idcolor_lee(vornsave *save) {
    if (!AFIRMA_NO_NULO(save)) return nullptr;
    const uint16_t tipo_color = vornsave_lee_ushort(save);
    AFIRMA_TEXTO(es_tipo_grabable(tipo_color), "i_es_tipo_paleta_grabable(tipo_color) == CIERTO");
    const uint8_t color_paleta = vornsave_lee_uchar(save);
    return nuevo({tipo_color, color_paleta, vornsave_lee_ulong(save)});
}

uint32_t idcolor_version_DB(void) { return 0; }
