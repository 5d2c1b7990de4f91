#include "dispositivo.h"
#include "informe.h"
#include <algorithm>
#include <cmath>
#include <nucleos/drawing/tipolin.h>
#include <nucleos/foundation/listas/arr.h>
#include <numbers>

namespace obra {
namespace {

// Codes of pens for a device: 1 to 4, that of the layer, one with its thickness.
constexpr uint32_t PLUMA_DE_CAPA = 5, PLUMA_CON_GROSOR = 6;
// What is drawn with where nothing is said, and what the pens by number are; mm.
constexpr double GROSOR = 0.25, GROSORES[] = {0.18, 0.25, 0.35, 0.5}, MAXIMO_GROSOR = 10;
constexpr double MM_POR_PIXEL = 25.4 / 96;
constexpr uint32_t OPACO = 0xFF000000;
// The highest number of a layer.
constexpr uint8_t ULTIMA_CAPA = VPLAN_PORCAPA - 1;

using dueno_reales = vn::dueno<arr_DestruyeDouble>;

} // namespace

std::optional<double> grosor_de_pluma(uint32_t pluma, double grosor_mm) {
    if (pluma >= 1 && pluma <= std::size(GROSORES)) return GROSORES[pluma - 1];
    if (pluma == PLUMA_CON_GROSOR && grosor_mm > 0 && grosor_mm <= MAXIMO_GROSOR) return grosor_mm;
    return std::nullopt;
}

double barrido_de(double desde, double hasta) {
    constexpr double VUELTA = 2 * std::numbers::pi;
    const double resto = std::fmod(hasta - desde, VUELTA);
    return resto > 0 ? resto : resto + VUELTA;
}

std::vector<double> por_turnos(std::span<const double> trazos) {
    std::vector<double> v;
    const size_t n = trazos.size();
    size_t desde = 0;
    while (desde < n && trazos[desde] < 0) ++desde;
    bool dibuja = false;
    for (size_t i = 0; i < n; ++i) {
        const double x = trazos[(desde + i) % n];
        if (!std::isfinite(x)) return {};
        if ((x >= 0) != dibuja) v.push_back(0), dibuja = !dibuja;
        v.back() += std::fabs(x);
    }
    return v.size() % 2 == 0 ? v : std::vector<double>();
}

void dispositivo::pon_funciones(vplan_funciones &f) {
    f.func_define_capa_u = puente<&dispositivo::define_capa>::llama;
    f.func_set_capa = puente<&dispositivo::pon_capa>::llama;
    f.func_set_pluma = puente<&dispositivo::pon_pluma>::llama;
    f.func_set_color = puente<&dispositivo::pon_color>::llama;
    f.func_define_tipo_linea_u = puente<&dispositivo::define_tipo_linea>::llama;
    f.func_set_tipo_linea_definida_u = puente<&dispositivo::pon_tipo_linea_definida>::llama;
    f.func_set_tipo_linea = puente<&dispositivo::pon_tipo_linea>::llama;
    f.func_guardar_capas = puente<&dispositivo::guarda_capas>::llama;
    f.func_fin_grupo_de_capas = puente<&dispositivo::acaba_capas>::llama;
}

// ---------------------------------------------------------------- layers

uint8_t dispositivo::define_capa(uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor_mm,
                                 const idcolor *color, uint8_t tipo_linea, const vnwchar *tipo_linea_definida,
                                 uint8_t) {
    tabla_de_capas &t = grupos_.back().tabla;
    const uint8_t n = capa < VPLAN_PORCAPA ? capa : static_cast<uint8_t>(std::min<size_t>(t.size(), ULTIMA_CAPA));
    if (n >= t.size()) t.resize(n + 1u);
    t[n] = capa_definida{utf8(nombre),
                         {*color, pluma, grosor_mm, {tipo_linea, tipo_linea_definida ? tipo_linea_definida : texto()}}};
    return n;
}

const dispositivo::capa_definida *dispositivo::capa_actual() const {
    const auto &[t, capa] = grupos_.back();
    return capa < t.size() && t[capa] ? &*t[capa] : nullptr;
}

void dispositivo::pon_capa(uint8_t capa) {
    grupos_.back().capa = capa;
    pedidos_ = {{2, VPLAN_PORCAPA, 0xFFFFFFFF}, PLUMA_DE_CAPA, 0, {}};
    aspecto_.reset();
    cambia_capa();
}

void dispositivo::guarda_capas() {
    grupos_.emplace_back();
    aspecto_.reset();
    cambia_capa();
}
void dispositivo::acaba_capas() {
    if (grupos_.size() > 1) grupos_.pop_back();
    aspecto_.reset();
    cambia_capa();
}

// ---------------------------------------------------------------- appearance

void dispositivo::pon_pluma(uint32_t pluma, double grosor_mm) {
    pedidos_.pluma = pluma;
    pedidos_.grosor_mm = grosor_mm;
    aspecto_.reset();
}
void dispositivo::pon_color(const idcolor *color) {
    pedidos_.color = *color;
    aspecto_.reset();
}
void dispositivo::define_tipo_linea(const vnwchar *nombre, const vnwchar *, const arrDouble *trazos) {
    tipos_de_linea_[nombre] = por_turnos(numeros_de(trazos));
}
void dispositivo::pon_tipo_linea_definida(const vnwchar *nombre) {
    pedidos_.linea = {VPLAN_NOCAMBIAR, nombre};
    aspecto_.reset();
}
void dispositivo::pon_tipo_linea(uint8_t tipo) {
    pedidos_.linea = {tipo, {}};
    aspecto_.reset();
}

uint32_t dispositivo::rgba_de(const idcolor &c) const {
    if (c.tipo_color == 1) return c.rgba;
    return idcolor_color_rgb_segun_fondo(&c, tipo_fondo_) | OPACO;
}
std::vector<double> dispositivo::trazos_de(const linea_pedida &l) const {
    if (!l.nombre.empty()) {
        const auto i = tipos_de_linea_.find(l.nombre);
        return i != tipos_de_linea_.end() ? i->second : std::vector<double>();
    }
    constexpr uint8_t MAXIMO = 10;
    if (l.numero > MAXIMO) return {};
    const dueno_reales patron(tipolin_dame_patron_aproximado_px_glsl(l.numero));
    const auto pixeles = numeros_de(patron.get());
    std::vector<double> v(pixeles.begin(), pixeles.end());
    for (double &x : v) x *= MM_POR_PIXEL * unidades_por_mm_;
    return v.size() % 2 == 0 ? v : std::vector<double>();
}

const aspecto &dispositivo::actual() {
    if (aspecto_) return *aspecto_;
    const capa_definida *const capa = capa_actual();
    const auto elige = [&](bool de_capa) -> const atributos & { return de_capa && capa ? capa->suyos : pedidos_; };
    aspecto a;
    const idcolor &color = elige(idcolor_es_vplan_porcapa(&pedidos_.color) == CIERTO).color;
    a.rgba = idcolor_es_vplan_porcapa(&color) == CIERTO ? OPACO : rgba_de(color);
    const atributos &pluma = elige(pedidos_.pluma == PLUMA_DE_CAPA);
    a.grosor_mm = grosor_de_pluma(pluma.pluma, pluma.grosor_mm).value_or(GROSOR);
    a.trazos = trazos_de(elige(pedidos_.linea.nombre.empty() && pedidos_.linea.numero == VPLAN_PORCAPA).linea);
    // Gaps that nobody would see.
    constexpr double MINIMO_MM = 0.3;
    double total = 0;
    for (const double x : a.trazos) total += x;
    if (total < MINIMO_MM * unidades_por_mm_) a.trazos.clear();
    return aspecto_.emplace(std::move(a));
}

} // namespace obra
