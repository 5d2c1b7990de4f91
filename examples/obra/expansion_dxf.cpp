#include "modelo_dxf.h"
#include "posesion.h"
#include <algorithm>
#include <cmath>
#include <nucleos/foundation/numeros/afin.hpp>
#include <nucleos/foundation/numeros/mt.h>
#include <nucleos/foundation/texto/unicode.h>

namespace obra {
namespace {

// A drawing may insert blocks in blocks, this deep.
constexpr int MAXIMO_ANIDADO = 64;

constexpr uint32_t SIN_CAPA = UINT32_MAX;

// How much the scales of both axes may differ, and their angle from a right one, while circles are drawn as circles: of
// the scale itself, since drawings come in every scale.
constexpr double TOLERANCIA_DE_CIRCULOS = 1e-9;

using vn::matriz4;

// Where an entity lands, seen from above.
Punto2D planta(const matriz4 &t, Punto3D p) {
    const Punto3D q = t.punto(p);
    return {q.x, q.y};
}
bool conserva_circulos(const matriz4 &t) { return t.en_planta().es_semejanza(TOLERANCIA_DE_CIRCULOS); }

// Axes of an object from its extrusion direction, by the arbitrary-axis rule of drawing exchange.
matriz4 ejes_de_objeto(Punto3D n) {
    Punto3D u, v;
    if (vornmath_calcula_matriz_transformacion_autocad(n.x, n.y, n.z, &u.x, &u.y, &u.z, &v.x, &v.y, &v.z) != CIERTO)
        return {};
    mt_pasar_a_unitario_3D(&n.x, &n.y, &n.z);
    return matriz4::de_ejes({0, 0, 0}, u, v, n);
}

// Pieces of at most 5 degrees for a bulge that is no arc any more.
int cuerdas_de(double curvatura) {
    return std::max(2, static_cast<int>(std::ceil(std::fabs(4 * std::atan(curvatura)) / (5 * GRADOS))));
}
bool es_arco(const poli_dxf &p, size_t i) { return p.curvaturas[i] != 0 && (i + 1 < p.vertices.size() || p.cerrada); }

// Puts the entities of model space into layers.
class expansion {
  public:
    expansion(modelo_dxf &m, plano &p, uint64_t bytes)
        : m_(m), p_(p), maximo_visitas_(maximo_de_visitas(bytes)), maximo_bytes_(maximo_de_memoria(bytes)),
          en_plano_(m.capas.cuantos(), SIN_CAPA) {}

    bool hazlo() {
        p_.version_dxf.assign(m_.version.begin(), m_.version.end());
        for (uint32_t i = 0; i < m_.tipos_de_linea.cuantos(); ++i) p_.tipos_de_linea.push_back(m_.tipos_de_linea[i]);
        p_.trazos_de_linea = m_.trazos;
        for (auto &patron : p_.trazos_de_linea)
            for (double &x : patron) x *= m_.escala_de_linea;
        for (const capa_dxf &c : m_.tabla_de_capas) {
            capa &d = de_lugar(c.nombre);
            d.tipo_linea = c.tipo_linea;
            d.color = c.color;
            d.apagada = c.apagada;
            d.grosor_mm = c.grosor_mm;
        }
        coloca(m_.modelo, {}, nullptr, 0);
        return !excedido_;
    }
    uint64_t visitadas() const { return visitadas_; }

  private:
    modelo_dxf &m_;
    plano &p_;
    const uint64_t maximo_visitas_, maximo_bytes_;
    std::vector<uint32_t> en_plano_; // the layer of each name
    uint64_t visitadas_ = 0, bytes_ = 0;
    bool excedido_ = false;

    capa &de_lugar(uint32_t nombre) {
        uint32_t &i = en_plano_[nombre];
        if (i == SIN_CAPA) {
            i = static_cast<uint32_t>(p_.capas.size());
            p_.capas.push_back({.nombre = m_.capas[nombre]});
        }
        return p_.capas[i];
    }

    // Told before what is told of is made; true if there is room for it.
    bool gasta(uint64_t visitas, uint64_t bytes) {
        excedido_ = excedido_ || visitas > maximo_visitas_ - visitadas_ || bytes > maximo_bytes_ - bytes_;
        if (excedido_) return false;
        visitadas_ += visitas;
        bytes_ += bytes;
        return true;
    }
    bool gasta(const entidad_dxf &e, const matriz4 &t) {
        constexpr uint64_t BYTES = sizeof(elipse) + sizeof(uint32_t), BYTES_VERTICE = sizeof(Punto2D) + sizeof(double);
        if (const auto *x = std::get_if<texto_dxf>(&e.que))
            return gasta(1, BYTES + sizeof(rotulo) + x->letras.size() * sizeof(vnwchar));
        const auto *p = std::get_if<poli_dxf>(&e.que);
        if (p == nullptr) return gasta(1, BYTES);
        uint64_t n = p->vertices.size();
        for (size_t i = 0; !conserva_circulos(t) && i < p->vertices.size(); ++i)
            if (es_arco(*p, i)) n += static_cast<uint64_t>(cuerdas_de(p->curvaturas[i]));
        return gasta(n + 1, BYTES + sizeof(polilinea) + n * BYTES_VERTICE);
    }
    void no_tomado(const std::string &clase, uint32_t cuantos) {
        uint32_t &n = p_.sin_importar[clase];
        n += std::min(cuantos, UINT32_MAX - n);
    }

    // An entity of a block on layer 0 takes the layer of its reference, and colour 0 its colour.
    void coloca(bloque_dxf &b, const matriz4 &t, const entidad_dxf *referencia, int nivel) {
        if (!gasta(b.sin_tomar.size(), 0)) return;
        for (const auto &[clase, n] : b.sin_tomar) no_tomado(clase, n);
        b.abierto = true;
        for (const entidad_dxf &e : b.entidades) {
            const matriz4 total = t * ejes_de_objeto(e.normal);
            if (!gasta(e, total)) break;
            entidad_dxf propia{e.capa, e.color, {}, linea_dxf{}};
            if (referencia != nullptr && m_.capas[e.capa] == VNU("0")) propia.capa = referencia->capa;
            if (referencia != nullptr && e.color == 0) propia.color = referencia->color;
            if (const auto *i = std::get_if<referencia_dxf>(&e.que)) inserta(*i, propia, total, nivel);
            else std::visit([&](const auto &que) { pon(de_lugar(propia.capa), que, propia.color, total); }, e.que);
        }
        b.abierto = false;
    }
    // A block that is not there, inside itself or too deep is told with what is not imported.
    void inserta(const referencia_dxf &i, const entidad_dxf &e, const matriz4 &t, int nivel) {
        bloque_dxf &b = m_.bloques[i.bloque];
        if (!b.definido || b.abierto || nivel >= MAXIMO_ANIDADO) {
            const dueno_ansi nombre(unicode_convierte_UNICODE_a_UTF8(m_.nombres_de_bloque[i.bloque].c_str()));
            no_tomado(std::string("INSERT ") + nombre.get(), 1);
            return;
        }
        for (int f = 0; f < std::max(i.filas, 1) && !excedido_; ++f) {
            for (int k = 0; k < std::max(i.columnas, 1) && gasta(1, 0); ++k) {
                // Its base to the origin, scaled; then its place in the array, turned, and to where it is inserted.
                const matriz4 lugar = matriz4::traslacion(i.en) * matriz4::giro({0, 0, 1}, i.angulo) *
                                      matriz4::traslacion({k * i.paso_columnas, f * i.paso_filas, 0}) *
                                      matriz4::escala(i.sx, i.sy, i.sz) *
                                      matriz4::traslacion({-b.base.x, -b.base.y, -b.base.z});
                coloca(b, t * lugar, &e, nivel + 1);
            }
        }
    }

    static void pon(capa &c, const linea_dxf &l, uint32_t color, const matriz4 &t) {
        c.lineas.push_back({planta(t, l.a), planta(t, l.b)});
        c.color_lineas.push_back(color);
    }
    static void pon(capa &c, const arco_dxf &a, uint32_t color, const matriz4 &t) {
        if (!conserva_circulos(t)) {
            pon(c, elipse_dxf{a.centro, {a.radio, 0, 0}, {0, a.radio, 0}, a.desde, a.hasta}, color, t);
            return;
        }
        const Punto2D centro = planta(t, a.centro);
        const double radio = a.radio * t.en_planta().escala_media();
        if (a.completo) {
            c.circulos.push_back({centro, radio});
            c.color_circulos.push_back(color);
            return;
        }
        const Punto3D u = t.vector({std::cos(a.desde), std::sin(a.desde), 0});
        const Punto3D v = t.vector({std::cos(a.hasta), std::sin(a.hasta), 0});
        double desde = std::atan2(u.y, u.x), hasta = std::atan2(v.y, v.x);
        if (t.en_planta().determinante() < 0) std::swap(desde, hasta);
        c.arcos.push_back({centro, radio, desde, hasta});
        c.color_arcos.push_back(color);
    }
    // The image of an ellipse under an affine map, back to half axes at a right angle (Rytz).
    static void pon(capa &c, const elipse_dxf &e, uint32_t color, const matriz4 &t) {
        const Punto3D u = t.vector(e.eje), v = t.vector(e.otro);
        const double giro =
            0.5 * std::atan2(2 * (u.x * v.x + u.y * v.y), u.x * u.x + u.y * u.y - v.x * v.x - v.y * v.y);
        const double cg = std::cos(giro), sg = std::sin(giro);
        const Punto2D p = {u.x * cg + v.x * sg, u.y * cg + v.y * sg}, q = {v.x * cg - u.x * sg, v.y * cg - u.y * sg};
        const double lp = std::hypot(p.x, p.y), lq = std::hypot(q.x, q.y);
        if (!(lp > 0)) return;
        const double signo = p.x * q.y - p.y * q.x < 0 ? -1 : 1;
        c.elipses.push_back({planta(t, e.centro), p, signo * lq / lp, e.desde - giro, e.hasta - giro});
        c.color_elipses.push_back(color);
    }
    static void pon(capa &c, const poli_dxf &p, uint32_t color, const matriz4 &t) {
        polilinea nueva;
        nueva.cerrada = p.cerrada;
        const bool con_arcos = conserva_circulos(t);
        const double signo = t.en_planta().determinante() < 0 ? -1 : 1;
        for (size_t i = 0; i < p.vertices.size(); ++i) {
            nueva.vertices.push_back(planta(t, p.vertices[i]));
            nueva.curvaturas.push_back(con_arcos ? signo * p.curvaturas[i] : 0);
            if (!con_arcos && es_arco(p, i))
                anade_cuerdas(nueva, p.vertices[i], p.vertices[(i + 1) % p.vertices.size()], p.curvaturas[i], t);
        }
        c.polilineas.push_back(std::move(nueva));
        c.color_polilineas.push_back(color);
    }
    static void anade_cuerdas(polilinea &nueva, Punto3D a, Punto3D b, double curvatura, const matriz4 &t) {
        const double angulo = 4 * std::atan(curvatura), k = (1 - curvatura * curvatura) / (4 * curvatura);
        const Punto3D centro = {(a.x + b.x) / 2 - (b.y - a.y) * k, (a.y + b.y) / 2 + (b.x - a.x) * k, a.z};
        const int n = cuerdas_de(curvatura);
        for (int i = 1; i < n; ++i) {
            const double g = angulo * i / n, dx = a.x - centro.x, dy = a.y - centro.y;
            nueva.vertices.push_back(planta(t, {centro.x + dx * std::cos(g) - dy * std::sin(g),
                                                centro.y + dx * std::sin(g) + dy * std::cos(g), a.z}));
            nueva.curvaturas.push_back(0);
        }
    }
    static void pon(capa &c, const texto_dxf &x, uint32_t color, const matriz4 &t) {
        const Punto3D d = t.vector({std::cos(x.angulo), std::sin(x.angulo), 0});
        c.rotulos.push_back({planta(t, x.en), x.altura * t.en_planta().escala_media(), std::atan2(d.y, d.x), x.letras});
        c.color_rotulos.push_back(color);
    }
    static void pon(capa &, const referencia_dxf &, uint32_t, const matriz4 &) {}
};

} // namespace

bool expande(modelo_dxf &m, uint64_t bytes, plano &p, uint64_t &visitadas) {
    expansion e(m, p, bytes);
    const bool bien = e.hazlo();
    visitadas = e.visitadas();
    return bien;
}

} // namespace obra
