#define VN_MODULO "idcolor (NUCLEOS.DLL)"
#include "colour/idcolor_rgb.h"
#include "colour/idcolor_priv.h"
#include "foundation/numeros/mt.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <algorithm>
#include <cmath>

using namespace vn;
using namespace vn::colores;

namespace {

// The value whose channels, but for alpha, are the operation's results of these values' channels: truncated.
template <class F, class... V> uint32_t por_canal(F f, V... v) {
    const auto de = [&](uint8_t canales::*c) { return static_cast<uint8_t>(f(canales_de(v).*c...)); };
    return valor_de({de(&canales::r), de(&canales::g), de(&canales::b), 0});
}

uint32_t sobre(uint32_t fondo, uint32_t encima, uint8_t alfa) {
    const double a = alfa / 255.;
    return por_canal([a](uint8_t c1, uint8_t c2) { return c1 * (1. - a) + c2 * a; }, fondo, encima);
}

// Red, green and blue in the luminance.
constexpr double PESO_R = 0.2126, PESO_G = 0.7152, PESO_B = 0.0722;

// A length up to this is not dimmed. It is meant for channels of 0 to 1 and held against those of 0 to 255: stays so.
constexpr double LONGITUD_YA_TENUE = 0.6;
constexpr double PARTE_TENUE = 0.1;

// Hue in degrees, saturation, lightness.
struct hsl {
    double h, s, l;
};

hsl hsl_de(canales c) {
    constexpr double ES_EL_MAYOR = 0.0001; // far less than a channel's step
    const double r = c.r / 255., g = c.g / 255., b = c.b / 255.;
    const double mayor = std::max({r, g, b}), menor = std::min({r, g, b}), d = mayor - menor, l = (mayor + menor) / 2.;
    if (d == 0.) return {0., 0., l};
    double h;
    if (mayor - r < ES_EL_MAYOR) h = 60. * std::fmod((g - b) / d, 6.);
    else if (mayor - g < ES_EL_MAYOR) h = 60. * ((b - r) / d + 2.);
    else h = 60. * ((r - g) / d + 4.);
    if (h < 0.) h += 360.;
    return {h, l >= 0.5 ? d / (2. - mayor - menor) : d / (mayor + menor), l};
}

canales de_hsl(hsl v, uint8_t alfa) {
    const double c = (1. - std::fabs(2. * v.l - 1.)) * v.s, x = c * (1. - std::fabs(std::fmod(v.h / 60., 2.) - 1.)),
                 m = v.l - c / 2.;
    // By sector of 60 degrees.
    const double rgb[6][3] = {{c, x, 0.}, {x, c, 0.}, {0., c, x}, {0., x, c}, {x, 0., c}, {c, 0., x}};
    const double *const p = rgb[std::clamp(static_cast<int>(v.h / 60.), 0, 5)];
    const auto octeto = [m](double canal) {
        return static_cast<uint8_t>(std::clamp(std::round((canal + m) * 255.), 0., 255.));
    };
    return {octeto(p[0]), octeto(p[1]), octeto(p[2]), alfa};
}

} // namespace

uint32_t idcolor_rgba(uint8_t r, uint8_t g, uint8_t b, uint8_t a) { return valor_de({r, g, b, a}); }

void idcolor_get_rgba(uint32_t rgba, uint8_t *r, uint8_t *g, uint8_t *b, uint8_t *a) {
    const canales c = canales_de(rgba);
    if (r != nullptr) *r = c.r;
    if (g != nullptr) *g = c.g;
    if (b != nullptr) *b = c.b;
    if (a != nullptr) *a = c.a;
}

void idcolor_descomponer_color_vector_unitario_con_fondo_blanco(uint32_t rgb, double *r, double *g, double *b) {
    if (!EXIGE(r, g, b)) return;
    const canales c = canales_de(rgb);
    *r = c.r / 255.;
    *g = c.g / 255.;
    *b = c.b / 255.;
}

uint32_t idcolor_color_rgb_a_rgba(uint32_t rgb, uint8_t alfa) { return sin_alfa(rgb) | uint32_t{alfa} << 24; }

vnbool idcolor_color_con_transparencia(uint32_t rgba) { return logico(rgba >> 24 != 255); }

vnbool idcolor_color_rgb_igual(uint32_t rgb1, uint32_t rgb2, uint8_t tolerancia) {
    const canales c1 = canales_de(rgb1), c2 = canales_de(rgb2);
    const auto cerca = [&](uint8_t canales::*c) { return std::abs(c1.*c - c2.*c) <= tolerancia; };
    return logico(cerca(&canales::r) && cerca(&canales::g) && cerca(&canales::b));
}

uint32_t idcolor_color_rgb_iluminado(uint32_t rgb, double porc_iluminacion) {
    if (!AFIRMA(porc_iluminacion >= 0. && porc_iluminacion <= 1.)) return sin_alfa(rgb);
    return por_canal([p = porc_iluminacion](uint8_t c) { return c + (255 - c) * p; }, rgb);
}

uint32_t idcolor_color_rgb_oscurecido(uint32_t rgb, double porc_oscurecimiento) {
    if (!AFIRMA(porc_oscurecimiento >= 0. && porc_oscurecimiento <= 1.)) return sin_alfa(rgb);
    return por_canal([p = porc_oscurecimiento](uint8_t c) { return c * (1. - p); }, rgb);
}

uint32_t idcolor_color_rgb_modificado(uint32_t rgb, double porc_positivo_iluminar_negativo_oscurecer) {
    if (!AFIRMA(porc_positivo_iluminar_negativo_oscurecer >= -1.) ||
        !AFIRMA(porc_positivo_iluminar_negativo_oscurecer <= 1.))
        return sin_alfa(rgb);
    const int t = static_cast<int>(porc_positivo_iluminar_negativo_oscurecer * 255.);
    return por_canal([t](uint8_t c) { return std::clamp(c + t, 0, 255); }, rgb);
}

uint32_t idcolor_color_rgb_mezcla(uint32_t rgb1, uint32_t rgb2, double porcentaje_anadir) {
    if (!AFIRMA(porcentaje_anadir >= 0.) || !AFIRMA(porcentaje_anadir <= 1.)) return sin_alfa(rgb1);
    return por_canal([p = porcentaje_anadir](uint8_t c1, uint8_t c2) { return c1 * (1. - p) + c2 * p; }, rgb1, rgb2);
}

uint32_t idcolor_color_rgb_transparencia_resultante(uint32_t rgba_fondo, uint32_t rgba) {
    return sobre(rgba_fondo, rgba, canales_de(rgba).a);
}

uint32_t idcolor_color_rgb_superpuesto(uint32_t rgb_fondo, uint32_t rgb, uint8_t alfa) {
    return sobre(rgb_fondo, rgb, alfa);
}

uint32_t idcolor_color_rgb_a_escala_grises(uint32_t rgb) {
    const canales c = canales_de(rgb);
    const double luz = PESO_R * (c.r / 255.) + PESO_G * (c.g / 255.) + PESO_B * (c.b / 255.);
    const auto g = static_cast<uint8_t>(255. * luz);
    return valor_de({g, g, g, 0});
}

uint32_t idcolor_rgb_tenue(uint32_t rgb) {
    const canales c = canales_de(rgb);
    return mt_modulo_vector_3D(c.r, c.g, c.b) <= LONGITUD_YA_TENUE ? sin_alfa(rgb)
                                                                   : idcolor_color_rgb_oscurecido(rgb, PARTE_TENUE);
}

uint32_t idcolor_color_rgba_lighten(uint32_t rgba, double porc_positivo_iluminar_negativo_oscurecer) {
    if (!AFIRMA(porc_positivo_iluminar_negativo_oscurecer >= -1.) ||
        !AFIRMA(porc_positivo_iluminar_negativo_oscurecer <= 1.))
        return rgba;
    const double p = porc_positivo_iluminar_negativo_oscurecer;
    const canales c = canales_de(rgba);
    hsl v = hsl_de(c);
    v.l += (p >= 0. ? 1. - v.l : v.l) * p;
    return valor_de(de_hsl(v, c.a));
}
