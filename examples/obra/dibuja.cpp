#include "dibuja.h"
#include "dispositivo_limites.h"
#include "posesion.h"
#include <algorithm>
#include <cmath>
#include <nucleos/drawing/tipolin.h>
#include <nucleos/foundation/listas/arr.h>
#include <numbers>

namespace obra {
namespace {

using dueno_reales = vn::dueno<arr_DestruyeDouble>;

constexpr double VUELTA = 2 * std::numbers::pi;
constexpr double MARGEN_DE_VUELTA = 1e-9;
// Codes of a device: the pen of the layer, one with a thickness.
constexpr uint32_t PLUMA_DE_CAPA = 5, PLUMA_CON_GROSOR = 6;
constexpr double GROSOR_NORMAL = 0.25; // mm, of layers that say none
constexpr uint32_t COLOR_DE_CAPA = 256, RGB_DIRECTO = 0x1000000, SIN_COLOR = UINT32_MAX;
// Layers of an output have numbers of a byte: a drawing with more has them in groups.
constexpr size_t CAPAS_DE_GRUPO = 200;
constexpr size_t CADA_CUANTAS = 4096;

// Red is the highest byte in a drawing, the lowest in the library. By block is by nothing here: white or black.
idcolor color_de(uint32_t c) {
    if (c >= RGB_DIRECTO) return {1, 255, 0xFF000000 | (c & 0xFF) << 16 | (c & 0xFF00) | ((c >> 16) & 0xFF)};
    if (c == COLOR_DE_CAPA) return {2, VPLAN_PORCAPA, 0xFFFFFFFF};
    return {0, static_cast<uint8_t>(c == 0 ? 7 : c), 0xFFFFFFFF};
}

class dibujo {
  public:
    dibujo(const plano &p, salida_t *s, const avisado &avisa) : p_(p), s_(s), avisa_(avisa) {
        for (size_t i = 0; i < std::min(p.tipos_de_linea.size(), p.trazos_de_linea.size()); ++i)
            if (!p.trazos_de_linea[i].empty()) con_trazos_.emplace(clave_de(p.tipos_de_linea[i]), i);
    }

    void hazlo() {
        vplan_append_escala_xyz(s_, metros_de(p_));
        size_t en_grupo = CAPAS_DE_GRUPO;
        bool hay_grupo = false;
        for (const capa &c : p_.capas) {
            if (c.apagada) continue;
            if (en_grupo++ == CAPAS_DE_GRUPO) {
                if (hay_grupo) vplan_fin_grupo_de_capas(s_);
                vplan_guardar_capas(s_);
                hay_grupo = true;
                en_grupo = 1;
            }
            dibuja_capa(c);
        }
        if (hay_grupo) vplan_fin_grupo_de_capas(s_);
        vplan_desapila_transformacion(s_);
    }

  private:
    const plano &p_;
    salida_t *s_;
    const avisado &avisa_;
    std::map<texto, size_t> con_trazos_; // the line types with a pattern
    size_t hechas_ = 0;
    uint32_t color_ = SIN_COLOR;

    // The drawing's own pattern by its name, or the library's.
    void define_capa(const capa &c) {
        uint8_t tipo = 0;
        const texto clave = clave_de(c.tipo_linea);
        const auto propio = con_trazos_.find(clave);
        const bool hay = propio != con_trazos_.end();
        if (hay && vornplan_esta_definido_tipo_linea_u(s_, clave.c_str()) == FALSO) {
            const dueno_reales trazos(arr_CreaDouble(0));
            for (const double x : p_.trazos_de_linea[propio->second]) arr_AppendDouble(trazos.get(), x);
            vplan_define_tipo_linea_u(s_, clave.c_str(), VNU(""), trazos.get());
        }
        if (!hay && tipolin_es_tipo_linea_vorn(c.tipo_linea.c_str(), &tipo) == FALSO) tipo = 0;
        const idcolor color = color_de_capa(c);
        const uint8_t numero = vornplan_define_capa_u(s_, VPLAN_NOCAMBIAR, c.nombre.c_str(), PLUMA_CON_GROSOR,
                                                      c.grosor_mm > 0 ? c.grosor_mm : GROSOR_NORMAL, &color, tipo,
                                                      hay ? clave.c_str() : nullptr, VPLAN_NOCAMBIAR);
        vplan_escr_capadxf(s_, numero);
    }

    void dibuja_capa(const capa &c) {
        define_capa(c);
        vornplan_set_pluma(s_, PLUMA_DE_CAPA, 0);
        vplan_escr_tipo_linea(s_, VPLAN_PORCAPA);
        color_ = SIN_COLOR;
        cada_una(c.lineas, c.color_lineas, [&](const linea &l) { vplan_escr_linea(s_, l.a.x, l.a.y, l.b.x, l.b.y); });
        cada_una(c.circulos, c.color_circulos,
                 [&](const circulo &k) { vplan_escr_circulo(s_, k.centro.x, k.centro.y, k.radio); });
        cada_una(c.arcos, c.color_arcos, [&](const arco &a) { dibuja_uno(a); });
        cada_una(c.elipses, c.color_elipses, [&](const elipse &e) { dibuja_uno(e); });
        cada_una(c.polilineas, c.color_polilineas, [&](const polilinea &l) { dibuja_uno(l); });
    }

    template <class T, class F> void cada_una(const std::vector<T> &v, const colores &suyos, F dibuja) {
        for (size_t i = 0; i < v.size(); ++i) {
            const uint32_t color = i < suyos.size() ? suyos[i] : COLOR_DE_CAPA;
            if (color != color_) {
                const idcolor c = color_de(color);
                vplan_escr_idcolor(s_, &c);
                color_ = color;
            }
            dibuja(v[i]);
            if (++hechas_ % CADA_CUANTAS == 0) avisa_(hechas_);
        }
    }

    void dibuja_uno(const arco &a) {
        if (da_la_vuelta(a.desde, a.hasta)) return vplan_escr_circulo(s_, a.centro.x, a.centro.y, a.radio);
        vplan_escr_arco(s_, a.centro.x, a.centro.y, a.centro.x + a.radio * std::cos(a.desde),
                        a.centro.y + a.radio * std::sin(a.desde), a.centro.x + a.radio * std::cos(a.hasta),
                        a.centro.y + a.radio * std::sin(a.hasta));
    }
    // One that is mirrored runs the other way around.
    void dibuja_uno(const elipse &e) {
        const double ra = std::hypot(e.eje.x, e.eje.y), giro = std::atan2(e.eje.y, e.eje.x);
        const bool al_reves = e.razon < 0;
        double desde = al_reves ? -e.hasta : e.desde, hasta = al_reves ? -e.desde : e.hasta;
        if (da_la_vuelta(desde, hasta)) desde = 0, hasta = VUELTA;
        else if (hasta = desde + std::fmod(hasta - desde, VUELTA); hasta < desde) hasta += VUELTA;
        vplan_escr_arco_elipse(s_, e.centro.x, e.centro.y, ra, ra * std::fabs(e.razon), desde, hasta, giro, FALSO);
    }
    // Its straight pieces together, its arcs as such.
    void dibuja_uno(const polilinea &l) {
        const size_t n = l.vertices.size();
        const auto curvatura = [&](size_t i) { return i < l.curvaturas.size() ? l.curvaturas[i] : 0; };
        const auto es_arco = [&](size_t i) { return curvatura(i) != 0 && std::isfinite(curvatura(i)); };
        dueno_puntos rectas(arr_CreaPunto2D(0));
        const auto suelta = [&] {
            if (arr_NumElemsPunto2D(rectas.get()) > 1) vplan_escr_polilinea(s_, rectas.get(), FALSO);
            rectas.reset(arr_CreaPunto2D(0));
        };
        if (n == 1) return vplan_escr_punto(s_, l.vertices[0].x, l.vertices[0].y);
        const size_t tramos = n < 2 ? 0 : l.cerrada ? n : n - 1;
        for (size_t i = 0; i < tramos; ++i) {
            const Punto2D &a = l.vertices[i], &b = l.vertices[(i + 1) % n];
            if (arr_NumElemsPunto2D(rectas.get()) == 0) arr_AppendPunto2D(rectas.get(), a.x, a.y);
            if (!es_arco(i)) {
                arr_AppendPunto2D(rectas.get(), b.x, b.y);
                continue;
            }
            suelta();
            const arco k = arco_de(a, b, curvatura(i));
            vplan_escr_arco_con_sentido(s_, k.centro.x, k.centro.y, a.x, a.y, b.x, b.y, curvatura(i) < 0);
        }
        suelta();
    }
};

} // namespace

bool da_la_vuelta(double desde, double hasta) {
    const double resto = std::fmod(std::fabs(hasta - desde), VUELTA);
    return resto < MARGEN_DE_VUELTA || VUELTA - resto < MARGEN_DE_VUELTA;
}

// A stored drawing may say anything of its unit.
double metros_de(const plano &p) {
    return std::isfinite(p.metros_por_unidad) && p.metros_por_unidad > 0 ? p.metros_por_unidad : 1;
}
idcolor color_de_capa(const capa &c) { return color_de(c.color == COLOR_DE_CAPA ? 7 : c.color); }

void dibuja(const plano &p, salida_t *s, const avisado &avisa) { dibujo(p, s, avisa).hazlo(); }

size_t cuantas_se_dibujan(const plano &p) {
    size_t n = 0;
    for (const capa &c : p.capas)
        if (!c.apagada)
            n += c.lineas.size() + c.circulos.size() + c.arcos.size() + c.elipses.size() + c.polilineas.size();
    return n;
}

extension limites_de(const plano &p, const avisado &avisa) {
    const auto a = abre_dispositivo(limites::TIPO, std::make_unique<limites>());
    dibuja(p, a.salida.get(), avisa);
    extension e;
    e.hay = a.suyo->hay();
    vplan_obtener_limites(a.salida.get(), &e.xmin, &e.ymin, &e.xmax, &e.ymax);
    return e;
}

// ---------------------------------------------------------------- the sheet

namespace {

constexpr double MM_POR_METRO = 1000, PIXELES_POR_MM = 96 / 25.4;
constexpr double MARGEN_MM = 10, MARGEN_DE_ANCHO = 0.02; // of the pixels
// How many times as high as wide a picture may be.
constexpr double MAXIMO_DE_ALTO = 10;

double margen_de(const tamano &t) { return t.divisor > 0 ? MARGEN_MM : t.ancho_px * MARGEN_DE_ANCHO; }
// Units of the sheet to a metre.
double escala_para(const extension &caja, const tamano &t) {
    if (t.divisor > 0) return MM_POR_METRO / t.divisor;
    const double libre = t.ancho_px - 2 * margen_de(t), w = caja.xmax - caja.xmin, h = caja.ymax - caja.ymin;
    const double k = std::min(libre / w, (MAXIMO_DE_ALTO * t.ancho_px - 2 * margen_de(t)) / h);
    return std::isfinite(k) && k > 0 ? k : 1;
}

} // namespace

hoja hoja_para(const extension &caja, const tamano &t, uint32_t tipo_fondo) {
    const double k = escala_para(caja, t), m = margen_de(t);
    hoja h;
    h.en_mm = t.divisor > 0;
    h.unidades_por_mm = h.en_mm ? 1 : PIXELES_POR_MM;
    h.tipo_fondo = tipo_fondo;
    h.ancho = h.en_mm ? (caja.xmax - caja.xmin) * k + 2 * m : t.ancho_px;
    h.alto = (caja.ymax - caja.ymin) * k + 2 * m;
    if (!h.en_mm) h.alto = std::ceil(h.alto);
    return h;
}

encuadre::encuadre(salida_t *s, const hoja &h, const extension &caja, const tamano &t) : s_(s) {
    // The last is the first that a point meets: from survey coordinates to those of the box before anything grows.
    const double k = escala_para(caja, t);
    vplan_append_desplaza_origen_coordenadas(s, (h.ancho - (caja.xmax - caja.xmin) * k) / 2,
                                             (h.alto - (caja.ymax - caja.ymin) * k) / 2);
    ++apiladas_;
    if (t.divisor > 0) vplan_append_escala_xyz(s, MM_POR_METRO), vplan_append_divisor_escala(s, t.divisor), ++apiladas_;
    else vplan_append_escala_xyz(s, k);
    vplan_append_desplaza_origen_coordenadas(s, -caja.xmin, -caja.ymin);
    apiladas_ += 2;
}
encuadre::~encuadre() {
    for (; apiladas_ > 0; --apiladas_) vplan_desapila_transformacion(s_);
}

} // namespace obra
