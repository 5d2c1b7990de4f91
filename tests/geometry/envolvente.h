// The growing convex polygon, which frees itself, and the hull that another algorithm gives, for tests and benchmarks.
#pragma once

#include "geometry/poligono.h"
#include <algorithm>
#include <compare>
#include <vector>

namespace envolvente {

// Ordered by x, then y.
struct punto {
    int32_t x, y;
    auto operator<=>(const punto &) const = default;
};
using puntos_t = std::vector<punto>;

// Twice the area of the triangle, in numbers that hold it.
template <class Entero> Entero cruz(const punto &o, const punto &a, const punto &b) {
    const auto menos = [](int32_t p, int32_t q) { return Entero{p} - q; };
    return menos(a.x, o.x) * menos(b.y, o.y) - menos(a.y, o.y) * menos(b.x, o.x);
}

// Monotone chain: the hull without points on its sides, counter-clockwise from the lowest.
template <class Entero> puntos_t cadena(puntos_t p) {
    std::sort(p.begin(), p.end());
    p.erase(std::unique(p.begin(), p.end()), p.end());
    if (p.size() < 3) return p;
    puntos_t h;
    for (int lado = 0; lado < 2; ++lado, std::reverse(p.begin(), p.end())) {
        const size_t base = h.size();
        for (const punto &q : p) {
            while (h.size() >= base + 2 && cruz<Entero>(h[h.size() - 2], h.back(), q) <= 0) h.pop_back();
            h.push_back(q);
        }
        h.pop_back();
    }
    return h;
}

struct poligono : poligono_t {
    explicit poligono(const puntos_t &puntos) {
        poligono_crea_pol(this);
        anade(puntos);
    }
    ~poligono() { poligono_destruye_pol(this); }
    poligono(const poligono &) = delete;
    poligono &operator=(const poligono &) = delete;
    void anade(const puntos_t &puntos) {
        for (const punto &p : puntos) poligono_anade_punto_a_poligono_convexo(this, p.x, p.y);
    }
    // From the lowest on, so that two of the same vertices are equal.
    puntos_t todos() const {
        puntos_t v;
        for (int32_t i = 0; i < numVertices; ++i) v.push_back({vertice[i].x, vertice[i].y});
        if (!v.empty()) std::rotate(v.begin(), std::min_element(v.begin(), v.end()), v.end());
        return v;
    }
};

} // namespace envolvente
