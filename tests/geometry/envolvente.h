// The growing convex polygon, which frees itself, for the tests that hold its vertices against others'.
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
