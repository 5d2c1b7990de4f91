#define VN_MODULO "idcolor (NUCLEOS.DLL)"
#include "colour/idcolor_paleta.h"
#include "colour/idcolor_priv.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include <algorithm>
#include <climits>
#include <iterator>

using namespace vn;
using namespace vn::colores;

namespace {

// The own palette: its values on light and on dark backgrounds, 0xRRGGBB; whether it is light as a background; its
// index in the AutoCAD palette.
// clang-format off
constexpr struct {
    uint32_t con_fondo_claro, con_fondo_oscuro;
    bool es_claro;
    uint8_t autocad;
} VORN[] = {
    {0xC0C0C0, 0xDCDCEC, true, 9},
    {0x000080, 0x9F7FFF, false, 176},
    {0x008000, 0x80DF80, false, 96},
    {0x008080, 0x8899CC, false, 136},
    {0x800000, 0xCC6600, false, 16},
    {0x800080, 0xDF80DF, false, 216},
    {0x808000, 0xFFBF00, true, 56},
    {0x000000, 0x000000, false, 7},
    {0x808080, 0xC0C0C0, false, 8},
    {0x0000FF, 0x0000FF, false, 5},
    {0x00FF00, 0x00FF00, true, 3},
    {0x00FFFF, 0x00FFFF, true, 4},
    {0xFF0000, 0xFF0000, true, 1},
    {0xFF00FF, 0xFF00FF, true, 6},
    {0xFFFF00, 0xFFFF00, true, 2},
    {0xFFFFFF, 0xFFFFFF, true, 255},
};
// clang-format on
static_assert(std::size(VORN) == 16);

// AutoCAD indices whose own index is another. 11 and 13 to 15 go beyond the own palette on purpose: those are bright
// colours in it.
constexpr struct otro_en_vorn {
    uint8_t autocad, vorn;
} OTRO_EN_VORN[] = {{0, 15}, {1, 12},  {2, 14},   {3, 10},   {4, 11},   {5, 9},    {6, 13},
                    {9, 0},  {10, 12}, {11, 241}, {13, 243}, {14, 244}, {15, 245}, {16, 4},
                    {56, 6}, {96, 2},  {136, 3},  {176, 1},  {216, 5},  {254, 0},  {255, 15}};

// Where the nearest index is looked for, downwards: 0 is "by block", and what follows is left out.
constexpr uint8_t ULTIMO_CANDIDATO = 237, PRIMER_CANDIDATO = 1;

// Rows of a tree, by depth, and a panel: values, red lowest.
constexpr uint32_t FONDO_SELECTOR[] = {0x8F9FD0, 0x90B0C0, 0xB9C4E1, 0xBFD8E0, 0xD0E7EF, 0xE8F3F7, 0xF2F9FB, 0xF8FEFE},
                   TEXTO_SELECTOR[] = {0, 0, 0, 0, 0, 0, 0, 0x323232}, FONDO_PANEL = 0xF6F2F0;
static_assert(std::size(FONDO_SELECTOR) == 8 && std::size(TEXTO_SELECTOR) == 8);

uint32_t rgb_de_indice(uint32_t indice, bool fondo_claro) {
    return AFIRMA(indice <= UCHAR_MAX) ? rgb_de_vorn(static_cast<uint8_t>(indice), fondo_claro) : 0;
}

constexpr int cuadrado(int x) { return x * x; }

// "#RRGGBB" of a character type.
template <class C> struct texto_html {
    C letras[8];
    explicit texto_html(uint32_t rgb) : letras{C('#')} {
        const canales c = canales_de(rgb);
        C *p = letras;
        for (const uint8_t canal : {c.r, c.g, c.b}) {
            *++p = static_cast<C>("0123456789ABCDEF"[canal >> 4]);
            *++p = static_cast<C>("0123456789ABCDEF"[canal & 15]);
        }
    }
};

} // namespace

namespace vn::colores {

uint8_t de_vorn_a_autocad(uint8_t indice) { return indice < std::size(VORN) ? VORN[indice].autocad : indice; }

uint8_t de_autocad_a_vorn(uint8_t indice) {
    const auto *const fila = std::ranges::find(OTRO_EN_VORN, indice, &otro_en_vorn::autocad);
    return fila != std::end(OTRO_EN_VORN) ? fila->vorn : indice;
}

uint32_t rgb_de_vorn(uint8_t indice, bool fondo_claro) {
    if (indice >= std::size(VORN)) return AUTOCAD[indice];
    return rgb_de(fondo_claro ? VORN[indice].con_fondo_claro : VORN[indice].con_fondo_oscuro);
}

} // namespace vn::colores

uint32_t idcolor_dame_RGB_de_indice_color_autocad(uint8_t indice) { return AUTOCAD[indice]; }

vnbool idcolor_dame_indice_color_autocad(uint32_t rgb, uint8_t *indice) {
    const auto esta = std::ranges::find(AUTOCAD, rgb);
    if (esta == AUTOCAD.end()) return FALSO;
    if (indice != nullptr) *indice = static_cast<uint8_t>(esta - AUTOCAD.begin());
    return CIERTO;
}

uint8_t idcolor_dame_indice_color_autocad_mas_cercano_a_RGB(uint32_t rgb) {
    const canales c = canales_de(rgb);
    int menor = INT_MAX;
    uint8_t mejor = 0;
    for (uint8_t i = ULTIMO_CANDIDATO; i >= PRIMER_CANDIDATO && menor > 0; --i) {
        const canales d = canales_de(AUTOCAD[i]);
        const int distancia = cuadrado(c.r - d.r) + cuadrado(c.g - d.g) + cuadrado(c.b - d.b);
        if (distancia >= menor) continue;
        menor = distancia;
        mejor = i;
    }
    return mejor;
}

uint32_t idcolor_colorRGB(uint32_t indice) { return rgb_de_indice(indice, true); }

uint32_t idcolor_colorRGBSegunColorFondo(uint32_t indice, vnbool fondo_claro) {
    return AFIRMA_LOGICO(fondo_claro) ? rgb_de_indice(indice, fondo_claro == CIERTO) : 0;
}

uint32_t idcolor_colorRGBSegunFondo(uint32_t indice, uint32_t rgb_fondo) {
    return rgb_de_indice(indice, idcolor_color_fondo_RGB_es_claro(rgb_fondo, nullptr) == CIERTO);
}

uint32_t idcolor_colorRGBSegunTipoFondo(uint32_t indice, uint32_t tipo_fondo) {
    if (tipo_fondo >= TIPOS_FONDO) return AFIRMA_DEFECTO();
    return rgb_de_indice(indice, tipo_fondo != FONDO_NEGRO);
}

vnbool idcolor_color_fondo_RGB_es_claro(uint32_t rgb, uint32_t *indice) {
    const auto *const fila =
        std::ranges::find_if(VORN, [rgb](const auto &f) { return rgb_de(f.con_fondo_claro) == rgb; });
    const bool esta = fila != std::end(VORN);
    if (indice != nullptr) *indice = esta ? static_cast<uint32_t>(fila - VORN) : 0xFFFFFFFF;
    return logico(!esta || fila->es_claro);
}

char *idcolor_dame_cadena_color_para_html(uint32_t rgb) { return cad_copia_cadena(texto_html<char>(rgb).letras); }
vnwchar *idcolor_dame_cadena_color_para_html_u(uint32_t rgb) { return widestr_copia(texto_html<vnwchar>(rgb).letras); }

uint32_t idcolor_color_fondo_selector(uint32_t tabuladores) {
    return AFIRMA(tabuladores < 8) ? FONDO_SELECTOR[tabuladores] : 0;
}
uint32_t idcolor_color_texto_selector(uint32_t tabuladores) {
    return AFIRMA(tabuladores < 8) ? TEXTO_SELECTOR[tabuladores] : 0;
}
uint32_t idcolor_gp_color_fondo_selector(void) { return FONDO_PANEL; }
