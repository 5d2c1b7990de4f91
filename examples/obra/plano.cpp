// Extents of the drawing's curves, exact: an arc counts by its ends and by the quadrants that it goes through.
#include "plano.h"
#include <cmath>
#include <nucleos/foundation/texto/widestr.h>
#include <numbers>

namespace obra {

constexpr double DOS_PI = 2 * std::numbers::pi;

void anade_arco(extension &e, Punto2D centro, Punto2D u, Punto2D v, double desde, double hasta) {
    const auto anade = [&](double t) {
        e.anade(centro.x + u.x * std::cos(t) + v.x * std::sin(t), centro.y + u.y * std::cos(t) + v.y * std::sin(t));
    };
    double barrido = std::fmod(hasta - desde, DOS_PI);
    if (barrido <= 0) barrido += DOS_PI;
    if (!std::isfinite(barrido)) return;
    anade(desde);
    anade(desde + barrido);
    for (const double t0 : {std::atan2(v.x, u.x), std::atan2(v.y, u.y)}) {
        for (const double t : {t0, t0 + std::numbers::pi}) {
            double paso = std::fmod(t - desde, DOS_PI);
            if (paso < 0) paso += DOS_PI;
            if (paso < barrido) anade(t);
        }
    }
}

namespace {

void anade_tramo(extension &e, Punto2D a, Punto2D b, double curvatura) {
    e.anade(a.x, a.y);
    e.anade(b.x, b.y);
    if (curvatura == 0) return;
    const arco k = arco_de(a, b, curvatura);
    anade_arco(e, k.centro, {k.radio, 0}, {0, k.radio}, k.desde, k.hasta);
}

} // namespace

texto clave_de(texto nombre) {
    for (vnwchar &c : nombre) c = widestr_convertir_caracter_a_mayusculas(c);
    return nombre;
}

arco arco_de(Punto2D a, Punto2D b, double curvatura) {
    // Centre of the arc whose bulge is the tangent of a quarter of its angle.
    const double dx = b.x - a.x, dy = b.y - a.y, k = (1 - curvatura * curvatura) / (4 * curvatura);
    const Punto2D c = {(a.x + b.x) / 2 - dy * k, (a.y + b.y) / 2 + dx * k};
    const double ta = std::atan2(a.y - c.y, a.x - c.x), tb = std::atan2(b.y - c.y, b.x - c.x);
    return {c, std::hypot(a.x - c.x, a.y - c.y), curvatura > 0 ? ta : tb, curvatura > 0 ? tb : ta};
}

extension extension_de(const capa &c) {
    extension e;
    for (const linea &l : c.lineas) e.anade(l.a.x, l.a.y), e.anade(l.b.x, l.b.y);
    for (const circulo &k : c.circulos) {
        e.anade(k.centro.x - k.radio, k.centro.y - k.radio);
        e.anade(k.centro.x + k.radio, k.centro.y + k.radio);
    }
    for (const arco &a : c.arcos) anade_arco(e, a.centro, {a.radio, 0}, {0, a.radio}, a.desde, a.hasta);
    for (const elipse &k : c.elipses)
        anade_arco(e, k.centro, k.eje, {-k.eje.y * k.razon, k.eje.x * k.razon}, k.desde, k.hasta);
    for (const polilinea &p : c.polilineas) {
        const size_t n = p.vertices.size();
        if (n == 1) e.anade(p.vertices[0].x, p.vertices[0].y);
        for (size_t i = 0; i + 1 < n + (p.cerrada && n > 1 ? 1 : 0); ++i)
            anade_tramo(e, p.vertices[i], p.vertices[(i + 1) % n], i < p.curvaturas.size() ? p.curvaturas[i] : 0);
    }
    return e;
}

} // namespace obra
