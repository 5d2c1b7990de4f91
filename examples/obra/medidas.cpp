#include "medidas.h"
#include <cmath>
#include <numbers>

namespace obra {
namespace {

double barrido_de(double desde, double hasta) {
    const double b = std::fmod(hasta - desde, 2 * std::numbers::pi);
    return b > 0 ? b : b + 2 * std::numbers::pi;
}

double longitud_de_elipse(const elipse &e) {
    double eje = std::hypot(e.eje.x, e.eje.y), otro = eje * std::fabs(e.razon), desde = e.desde;
    if (!std::isfinite(eje) || !std::isfinite(otro) || !std::isfinite(desde) || !std::isfinite(e.hasta)) return 0;
    if (otro > eje) {
        std::swap(eje, otro);
        desde -= std::numbers::pi / 2;
    }
    if (eje == 0) return 0;
    // The integral is told from the end of the minor axis on.
    const double k = std::sqrt(1 - (otro / eje) * (otro / eje)),
                 t = std::fmod(desde, 2 * std::numbers::pi) + std::numbers::pi / 2;
    return eje * (std::ellint_2(k, t + barrido_de(e.desde, e.hasta)) - std::ellint_2(k, t));
}

struct tramo {
    Punto2D a, b;
    double curvatura; // 0 is straight

    double cuerda() const { return std::hypot(b.x - a.x, b.y - a.y); }
    double angulo() const { return 4 * std::atan(curvatura); }
    double radio() const { return cuerda() * (1 + curvatura * curvatura) / (4 * std::fabs(curvatura)); }
    double longitud() const { return curvatura == 0 ? cuerda() : radio() * std::fabs(angulo()); }
    // Between the chord and the arc, positive where it lies outside of what turns to the left.
    double area_de_segmento() const {
        return curvatura == 0 ? 0 : radio() * radio() / 2 * (angulo() - std::sin(angulo()));
    }
};

template <class F> void cada_tramo(const polilinea &p, F &&f) {
    const size_t n = p.vertices.size();
    for (size_t i = 0; i < n && (i + 1 < n || (p.cerrada && n > 1)); ++i) {
        const double c = i < p.curvaturas.size() && std::isfinite(p.curvaturas[i]) ? p.curvaturas[i] : 0;
        f(tramo{p.vertices[i], p.vertices[(i + 1) % n], c});
    }
}

} // namespace

double longitud_de(const capa &c) {
    double s = 0;
    for (const linea &l : c.lineas) s += std::hypot(l.b.x - l.a.x, l.b.y - l.a.y);
    for (const circulo &k : c.circulos) s += 2 * std::numbers::pi * k.radio;
    for (const arco &a : c.arcos) s += a.radio * barrido_de(a.desde, a.hasta);
    for (const elipse &e : c.elipses) s += longitud_de_elipse(e);
    for (const polilinea &p : c.polilineas) cada_tramo(p, [&](const tramo &t) { s += t.longitud(); });
    return s;
}

bool es_cerrada(const polilinea &p) {
    if (p.cerrada || p.vertices.size() < 3) return p.cerrada;
    const Punto2D &a = p.vertices.front(), &b = p.vertices.back();
    return a.x == b.x && a.y == b.y; // drawn to the very point: as it was stored
}

double area_de(const polilinea &p) {
    if (!es_cerrada(p) || p.vertices.empty()) return 0;
    // About the first vertex: far from the origin of a drawing its products would leave no digits.
    const Punto2D o = p.vertices[0];
    double s = 0;
    cada_tramo(p, [&](const tramo &t) {
        s += ((t.a.x - o.x) * (t.b.y - o.y) - (t.b.x - o.x) * (t.a.y - o.y)) / 2 + t.area_de_segmento();
    });
    return std::fabs(s);
}

} // namespace obra
