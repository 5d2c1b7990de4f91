// A million pairs of segments in a square: where they cross, and what of the first lies in a rectangle. Our crossing is
// a new point of the tracked heap, which the road frees.
#include "foundation/suelo/vornspy.h"
#include "geometry.h"
#include "geometry/punto.h"
#include "geometry/rectng.h"
#include <cmath>
#ifdef CON_CGAL
#include <CGAL/intersections.h>
#include <CGAL/Iso_rectangle_2.h>
#include <CGAL/Simple_cartesian.h>
#endif
#ifdef CON_GEOS
#include <geos/algorithm/LineIntersector.h>
#include <geos/geom/Coordinate.h>
#endif

namespace bench {
namespace {

constexpr size_t N = 1'000'000;
constexpr double LADO = 1000, MEDIO = 500;

struct par {
    Punto2D a, b, c, d;
};
std::vector<par> pares;

void prepara() {
    azar z(5);
    const auto punto = [&z] {
        const double x = z.entre(-LADO, LADO);
        return Punto2D{x, z.entre(-LADO, LADO)};
    };
    pares.resize(N);
    for (par &p : pares) p = {punto(), punto(), punto(), punto()};
}

// What all roads must agree on: how many, and where; a few in a million lie on the very limit of a tolerance.
struct cuenta {
    size_t cuantos = 0;
    double suma = 0;

    void anade(double v) { ++cuantos, suma += v; }
    void comprueba(cuenta &primera) const {
        if (primera.cuantos == 0) primera = *this;
        const double distintos = std::fabs(static_cast<double>(cuantos) - static_cast<double>(primera.cuantos));
        debe(cuantos > N / 10 && distintos < 5 && std::fabs(suma - primera.suma) < 1e4, "crossings and clips");
    }
} primer_cruce, primer_recorte;

// `cruza(pair, x, y)` answers whether its segments cross and gives the point.
template <bool (*cruza)(const par &, double &, double &)> camino cruces(const char *nombre) {
    return {nombre, N, [] {
                cuenta c;
                for (const par &p : pares)
                    if (double x = 0, y = 0; cruza(p, x, y)) c.anade(x + y);
                c.comprueba(primer_cruce);
            }};
}

// `recorta(a, b)` answers whether something of a-b lies in the rectangle, and leaves it there.
template <bool (*recorta)(Punto2D &, Punto2D &)> camino recortes(const char *nombre) {
    return {nombre, N, [] {
                cuenta c;
                for (const par &p : pares)
                    if (Punto2D a = p.a, b = p.b; recorta(a, b)) c.anade(a.x + b.y);
                c.comprueba(primer_recorte);
            }};
}

bool cruce_sin_nada(const par &p, double &x, double &y) {
    const double rx = p.b.x - p.a.x, ry = p.b.y - p.a.y, sx = p.d.x - p.c.x, sy = p.d.y - p.c.y;
    const double qx = p.c.x - p.a.x, qy = p.c.y - p.a.y, den = rx * sy - ry * sx;
    if (den == 0) return false;
    const double k = 1 / den, t = (qx * sy - qy * sx) * k, u = (qx * ry - qy * rx) * k;
    if (t < 0 || t > 1 || u < 0 || u > 1) return false;
    x = p.a.x + t * rx;
    y = p.a.y + t * ry;
    return true;
}

bool recorte_sin_nada(Punto2D &a, Punto2D &b) {
    const double dx = b.x - a.x, dy = b.y - a.y;
    double t0 = 0, t1 = 1;
    const auto lado = [&](double p, double q) {
        if (p == 0) return q >= 0;
        const double r = q / p;
        if (p < 0 ? r > t1 : r < t0) return false;
        if (p < 0) t0 = std::max(t0, r);
        else t1 = std::min(t1, r);
        return true;
    };
    if (!lado(-dx, a.x + MEDIO) || !lado(dx, MEDIO - a.x) || !lado(-dy, a.y + MEDIO) || !lado(dy, MEDIO - a.y))
        return false;
    if (t1 < 1) b = {a.x + t1 * dx, a.y + t1 * dy};
    if (t0 > 0) a = {a.x + t0 * dx, a.y + t0 * dy};
    return true;
}

bool cruce_nuestro(const par &p, double &x, double &y) {
    Punto2D *r = p_cortan(&p.a, &p.b, &p.c, &p.d);
    if (r == nullptr) return false;
    x = r->x;
    y = r->y;
    vornspy_free_pp(&r, sizeof(Punto2D));
    return true;
}

bool recorte_nuestro(Punto2D &a, Punto2D &b) {
    return rec_clip_linea_liang_barsky(-MEDIO, -MEDIO, MEDIO, MEDIO, a.x, a.y, b.x, b.y, &a.x, &a.y, &b.x, &b.y) ==
           CIERTO;
}

#ifdef CON_CGAL
using nucleo = CGAL::Simple_cartesian<double>;
using punto_cgal = nucleo::Point_2;
using segmento_cgal = nucleo::Segment_2;

bool cruce_cgal(const par &p, double &x, double &y) {
    const auto r = CGAL::intersection(segmento_cgal({p.a.x, p.a.y}, {p.b.x, p.b.y}),
                                      segmento_cgal({p.c.x, p.c.y}, {p.d.x, p.d.y}));
    if (!r) return false;
    if (const auto *q = boost::get<punto_cgal>(&*r)) x = q->x(), y = q->y();
    return true;
}

bool recorte_cgal(Punto2D &a, Punto2D &b) {
    static const nucleo::Iso_rectangle_2 rectangulo({-MEDIO, -MEDIO}, {MEDIO, MEDIO});
    const auto r = CGAL::intersection(segmento_cgal({a.x, a.y}, {b.x, b.y}), rectangulo);
    if (!r) return false;
    if (const auto *s = boost::get<segmento_cgal>(&*r)) {
        a = {s->source().x(), s->source().y()};
        b = {s->target().x(), s->target().y()};
    }
    return true;
}
#endif

#ifdef CON_GEOS
bool cruce_geos(const par &p, double &x, double &y) {
    static geos::algorithm::LineIntersector li;
    const geos::geom::Coordinate a(p.a.x, p.a.y), b(p.b.x, p.b.y), c(p.c.x, p.c.y), d(p.d.x, p.d.y);
    li.computeIntersection(a, b, c, d);
    if (!li.hasIntersection()) return false;
    x = li.getIntersection(0).x;
    y = li.getIntersection(0).y;
    return true;
}
#endif

} // namespace

int segmentos(int pasadas) {
    prepara();
    std::vector<camino> cruzan = {cruces<cruce_sin_nada>("limit: doubles inline"), cruces<cruce_nuestro>("p_cortan")};
    std::vector<camino> recortan = {recortes<recorte_sin_nada>("limit: Liang-Barsky inline"),
                                    recortes<recorte_nuestro>("rec_clip_linea_liang_barsky")};
    std::vector<razon> de_cruces = {{"p_cortan", "limit: doubles inline", 0}};
    std::vector<razon> de_recortes = {{"rec_clip_linea_liang_barsky", "limit: Liang-Barsky inline", 0}};
#ifdef CON_CGAL
    cruzan.push_back(cruces<cruce_cgal>("CGAL"));
    recortan.push_back(recortes<recorte_cgal>("CGAL"));
    de_cruces.push_back({"p_cortan", "CGAL", 0.75});
    de_recortes.push_back({"rec_clip_linea_liang_barsky", "CGAL", 1.1});
#endif
#ifdef CON_GEOS
    cruzan.push_back(cruces<cruce_geos>("GEOS"));
    de_cruces.push_back({"p_cortan", "GEOS", 0});
#endif
    return mide("crossing of two segments", cruzan, de_cruces, pasadas) +
           mide("clip to a rectangle", recortan, de_recortes, pasadas);
}

} // namespace bench
