// Segments whose ends have whole coordinates: what is true of them exactly, to hold the tolerant geometry against.
#pragma once

#include "foundation/numeros/punto.h"
#include "propiedades.h"

namespace exacto {

struct punto {
    int64_t x, y;
    operator Punto2D() const { return {static_cast<double>(x), static_cast<double>(y)}; }
    bool operator==(const punto &) const = default;
};
struct segmento {
    punto a, b;
};

// Twice the area of the triangle: above 0 when c lies to the left of a-b.
inline int64_t giro(const punto &a, const punto &b, const punto &c) {
    return (b.x - a.x) * (c.y - a.y) - (b.y - a.y) * (c.x - a.x);
}
inline int signo(int64_t v) { return (v > 0) - (v < 0); }

inline bool en_segmento(const punto &p, const segmento &s) {
    return giro(s.a, s.b, p) == 0 && std::min(s.a.x, s.b.x) <= p.x && p.x <= std::max(s.a.x, s.b.x) &&
           std::min(s.a.y, s.b.y) <= p.y && p.y <= std::max(s.a.y, s.b.y);
}

inline punto un_punto(vn::azar &z, int64_t lado, const vn::lugar &l = {}) {
    const int64_t x = z.entero_entre(-lado, lado);
    return {x + static_cast<int64_t>(l.x), z.entero_entre(-lado, lado) + static_cast<int64_t>(l.y)};
}

// How the segment lies to the closed box: apart from it, touching its border only, or with points inside.
enum class caja { fuera, toca, dentro };
inline caja frente_a(const segmento &s, const punto &bajo, const punto &alto) {
    int dentro = 0, toca = 0;
    const auto mira = [&](int64_t v) { (v > 0 ? dentro : toca) += v >= 0; };
    // Gaps along both axes and across the segment; a point of the box strictly on either side of it.
    int64_t menor = INT64_MAX, mayor = INT64_MIN;
    for (const punto &c : {bajo, alto, punto{bajo.x, alto.y}, punto{alto.x, bajo.y}}) {
        menor = std::min(menor, giro(s.a, s.b, c));
        mayor = std::max(mayor, giro(s.a, s.b, c));
    }
    mira(std::max(s.a.x, s.b.x) - bajo.x);
    mira(alto.x - std::min(s.a.x, s.b.x));
    mira(std::max(s.a.y, s.b.y) - bajo.y);
    mira(alto.y - std::min(s.a.y, s.b.y));
    if (s.a != s.b) mira(-menor), mira(mayor);
    if (dentro + toca < (s.a == s.b ? 4 : 6)) return caja::fuera;
    return toca == 0 ? caja::dentro : caja::toca;
}

} // namespace exacto
