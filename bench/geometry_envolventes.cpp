// The hull that grows point by point, over points of a square, where few are outside when they come, and of a
// circle, where most are. What is judged is how the time grows.
#include "../tests/geometry/envolvente.h"
#include "foundation/numeros/vector_int.h"
#include "geometry.h"
#include <algorithm>
#include <chrono>
#include <cmath>
#include <vector>
#ifdef CON_CGAL
#include <CGAL/convex_hull_2.h>
#include <CGAL/Simple_cartesian.h>
#endif

namespace bench {

namespace {

using envolvente::punto;
using puntos = envolvente::puntos_t;

size_t cadena(const puntos &v) { return envolvente::cadena<int64_t>(v).size(); }

puntos nube(size_t n, bool en_circulo) {
    azar a(6);
    puntos v(n);
    for (punto &p : v) {
        p = {static_cast<int32_t>(a.entre(-1e6, 1e6)), static_cast<int32_t>(a.entre(-1e6, 1e6))};
        if (!en_circulo) continue;
        const double t = a.entre(0., vn::numeros::VUELTA);
        p = {static_cast<int32_t>(std::lround(1e6 * std::cos(t))),
             static_cast<int32_t>(std::lround(1e6 * std::sin(t)))};
    }
    return v;
}

size_t crece(const puntos &v) { return static_cast<size_t>(envolvente::poligono(v).numVertices); }

// Nanoseconds that the polygon takes to grow over all points, the best of the passes.
double tarda(const puntos &v, int pasadas) {
    double mejor = 1e300;
    for (int i = 0; i < pasadas; ++i) {
        const auto antes = std::chrono::steady_clock::now();
        crece(v);
        mejor =
            std::min(mejor, std::chrono::duration<double, std::nano>(std::chrono::steady_clock::now() - antes).count());
    }
    return mejor;
}

// Prints the time for 1,000, 10,000 and 100,000 points over n log2 n. What grows no faster has a last figure
// that is no more than the first; a half more is for the memory that the larger ones go through.
bool crece_como_n_log_n(const char *que, bool en_circulo, int pasadas) {
    double primero = 0., ultimo = 0.;
    std::printf("  growing hull, points of a %s: n, ms, ns / (n log2 n)\n", que);
    for (const size_t n : {1000u, 10000u, 100000u}) {
        const puntos v = nube(n, en_circulo);
        const double ns = tarda(v, pasadas), dn = static_cast<double>(n);
        ultimo = ns / (dn * std::log2(dn));
        if (primero == 0.) primero = ultimo;
        std::printf("    %7zu %9.3f %8.3f   %zu vertices, %zu of the chain's\n", n, ns / 1e6, ultimo, crece(v),
                    cadena(v));
    }
    return ultimo <= 1.5 * primero;
}

} // namespace

int envolventes(int pasadas) {
    int fuera = 0;
    std::printf("shape of the hull\n");
    if (!crece_como_n_log_n("square", false, pasadas)) {
        std::printf("    grows faster than n log n\n");
        ++fuera;
    }
    // Every point is a corner, and each new one moves a block of them all: reported only.
    crece_como_n_log_n("circle", true, 1);

    const puntos v = nube(100000, false);
    const double n = static_cast<double>(v.size());
    debe(crece(v) <= cadena(v) && crece(v) + 3 >= cadena(v),
         "corners of the hull"); // those that hardly bend go
    size_t h = 0;
    std::vector<camino> caminos{{"growing hull", n, [&] { h += crece(v); }},
                                {"monotone chain", n, [&] { h += cadena(v); }}};
    std::vector<razon> razones{{"growing hull", "monotone chain", 0.}};
#ifdef CON_CGAL
    using K = CGAL::Simple_cartesian<double>;
    std::vector<K::Point_2> de_cgal;
    for (const punto &p : v) de_cgal.emplace_back(p.x, p.y);
    caminos.push_back({"CGAL convex_hull_2", n, [&] {
                           std::vector<K::Point_2> o;
                           CGAL::convex_hull_2(de_cgal.begin(), de_cgal.end(), std::back_inserter(o));
                           h += o.size();
                       }});
    razones.push_back({"growing hull", "CGAL convex_hull_2", 0.});
#endif
    fuera += mide("hull of 100,000 points", caminos, razones, pasadas);
    debe(h > 0, "hulls");
    return fuera;
}

} // namespace bench
