#define VN_MODULO "mt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <array>
#include <limits>

using namespace vn;
using namespace vn::numeros;

namespace {

// How far from a segment a point still lies on it, in metres: the two roots of a cut come each with an error
// of its own.
constexpr double TOLERANCIA_PERTENECE = 1e-5;
// How far beyond its ends a segment still crosses another, in metres.
constexpr double TOLERANCIA_CRUCE = 1e-6;

/* Side of a point, exactly (Shewchuk, "Adaptive precision floating-point arithmetic and fast robust geometric
   predicates", 1997): the plain determinant where its error bound leaves no doubt, else the exact sum of its
   products. */

struct par {
    double alto, bajo;
};

par suma(double a, double b) {
    const double s = a + b, bv = s - a, av = s - bv;
    return {s, (a - av) + (b - bv)};
}

// Halves of 26 bits; not fma, which is not exact in every run-time library.
par parte(double a) {
    const double c = 134217729. * a, alto = c - (c - a);
    return {alto, a - alto};
}

par producto(double a, double b) {
    const double p = a * b;
    const par x = parte(a), y = parte(b);
    return {p, x.bajo * y.bajo - (((p - x.alto * y.alto) - x.bajo * y.alto) - x.alto * y.bajo)};
}

double lado_exacto(Punto2D a, Punto2D b, Punto2D p) {
    // (a - p) x (b - p) without differences.
    const std::array<par, 6> productos{producto(a.x, b.y),  producto(a.x, -p.y), producto(-p.x, b.y),
                                       producto(-a.y, b.x), producto(a.y, p.x),  producto(p.y, b.x)};
    std::array<double, 12> partes{};
    size_t n = 0;
    const auto anade = [&](double x) {
        for (size_t i = 0; i < n; ++i) {
            const par s = suma(x, partes[i]);
            partes[i] = s.bajo;
            x = s.alto;
        }
        partes[n++] = x;
    };
    for (const par &q : productos) {
        anade(q.bajo);
        anade(q.alto);
    }
    // The parts do not overlap and grow: the last that is not zero has the sign of the sum, which the rest
    // cannot change.
    double total = 0.;
    for (const double x : partes) total += x;
    return total;
}

// Positive when `p` is to the left of a -> b, negative to the right, 0 exactly on it; twice the area of the
// triangle. Its sign is exact; its value too, to its last digits, where `cifras` asks for it.
double lado(Punto2D a, Punto2D b, Punto2D p, bool cifras = false) {
    constexpr double EPSILON = 0x1p-53, COTA = (3. + 16. * EPSILON) * EPSILON, SIN_PERDIDA = 0.0625;
    const double izq = (a.x - p.x) * (b.y - p.y), der = (a.y - p.y) * (b.x - p.x), det = izq - der;
    const double suma_de_ambos = std::fabs(izq) + std::fabs(der);
    return std::fabs(det) > (cifras ? SIN_PERDIDA : COTA) * suma_de_ambos ? det : lado_exacto(a, b, p);
}

// Of a point on the line of a and b.
bool estrictamente_entre(Punto2D a, Punto2D b, Punto2D p) {
    return a.x != b.x ? std::min(a.x, b.x) < p.x && p.x < std::max(a.x, b.x)
                      : std::min(a.y, b.y) < p.y && p.y < std::max(a.y, b.y);
}

struct extremos {
    Punto2D a, b;
};

extremos de(const mt_segmento_t &s, double k = 1.) { return {k * Punto2D{s.x1, s.y1}, k * Punto2D{s.x2, s.y2}}; }

void corta(mt_segmento_t &s, Punto2D p) {
    (s.numcortes == 0 ? s.x3 : s.x4) = p.x;
    (s.numcortes == 0 ? s.y3 : s.y4) = p.y;
    ++s.numcortes;
}

// The ends of the other that lie inside the segment, both on one line, in the order of the segment.
void corta_solape(mt_segmento_t &s, extremos otro) {
    const extremos e = de(s);
    if ((e.b.x != e.a.x ? (otro.b.x < otro.a.x) != (e.b.x < e.a.x) : (otro.b.y < otro.a.y) != (e.b.y < e.a.y)))
        std::swap(otro.a, otro.b);
    if (estrictamente_entre(e.a, e.b, otro.a)) corta(s, otro.a);
    const bool distintos = otro.a.x != otro.b.x || otro.a.y != otro.b.y;
    if (distintos && estrictamente_entre(e.a, e.b, otro.b)) corta(s, otro.b);
}

// Into the box of the segment, out of which rounding may have put it by a hair.
Punto2D dentro(Punto2D p, const extremos &e) {
    return {std::clamp(p.x, std::min(e.a.x, e.b.x), std::max(e.a.x, e.b.x)),
            std::clamp(p.y, std::min(e.a.y, e.b.y), std::max(e.a.y, e.b.y))};
}

// What brings the coordinates to where no product overflows or underflows, a power of two; 0 when they are
// not numbers.
double escala_comun(const mt_segmento_t &s1, const mt_segmento_t &s2) {
    double m = 0.;
    for (const double x : {s1.x1, s1.y1, s1.x2, s1.y2, s2.x1, s2.y1, s2.x2, s2.y2}) {
        if (!std::isfinite(x)) return 0.;
        m = std::max(m, std::fabs(x));
    }
    if (m > 1e140) return 0x1p-600;
    return m < 1e-100 ? 0x1p+500 : 1.;
}

// The root of b^2 - 4 a c, `a` not 0; not a number where that is negative. The products are of factors of at most about
// 1, those of a c of one size, so that neither overflows or vanishes where it counts, and keep the digits that they
// would lose.
double raiz_del_discriminante(double a, double b, double c) {
    if (!std::isfinite(a) || !std::isfinite(b) || !std::isfinite(c)) return std::numeric_limits<double>::quiet_NaN();
    const int ea = std::ilogb(a), ec = c == 0. ? ea : std::ilogb(c), e = (ec - ea) / 2;
    const int k = std::max({ea + e, ec - e, b == 0. ? ea + e : std::ilogb(b)});
    const double b_ = std::ldexp(b, -k);
    const par b2 = producto(b_, b_), ac = producto(std::ldexp(a, e - k), std::ldexp(c, -e - k));
    return std::ldexp(std::sqrt((b2.alto - 4. * ac.alto) + (b2.bajo - 4. * ac.bajo)), k);
}

} // namespace

vnbool mt_punto_pertenece_a_segmento(double x, double y, double x1, double y1, double x2, double y2) {
    Punto2D u{x2 - x1, y2 - y1};
    const Punto2D p{x - x1, y - y1};
    const double l = modulo(u);
    if (!unitario(u)) return logico(modulo(p) <= TOLERANCIA_PERTENECE);
    const double a = escalar(p, u);
    if (a <= 0.) return logico(modulo(p) <= TOLERANCIA_PERTENECE);
    if (a >= l) return logico(modulo(Punto2D{x - x2, y - y2}) <= TOLERANCIA_PERTENECE);
    return logico(std::fabs(vectorial(u, p)) <= TOLERANCIA_PERTENECE);
}

vnbool mt_existe_interseccion_entre_segmentos(double x1, double y1, double x2, double y2, double x3, double y3,
                                              double x4, double y4, double *x, double *y) {
    Punto2D u{x2 - x1, y2 - y1}, v{x4 - x3, y4 - y3};
    const double lu = modulo(u), lv = modulo(v);
    if (!unitario(u) || !unitario(v)) return FALSO;
    const double seno = vectorial(u, v);
    const double mayor = std::max({std::fabs(x1), std::fabs(y1), std::fabs(x2), std::fabs(y2), std::fabs(x3),
                                   std::fabs(y3), std::fabs(x4), std::fabs(y4)});
    if (!(std::fabs(seno) > seno_de_redondeo(mayor, std::min(lu, lv)))) return FALSO;
    // Lengths from the first end of each to the crossing.
    const Punto2D q{x3 - x1, y3 - y1};
    const double a = vectorial(q, v) / seno, b = vectorial(q, u) / seno;
    const auto llega = [](double d, double l) { return d >= -TOLERANCIA_CRUCE && d - l <= TOLERANCIA_CRUCE; };
    if (!llega(a, lu) || !llega(b, lv)) return FALSO;
    da(x, y, Punto2D{x1, y1} + a * u);
    return CIERTO;
}

void mt_calcula_inter_segmentos(mt_segmento_t *seg1, mt_segmento_t *seg2) {
    if (!EXIGE(seg1, seg2)) return;
    seg1->numcortes = seg2->numcortes = 0;
    seg1->x3 = seg1->y3 = seg1->x4 = seg1->y4 = 0.;
    seg2->x3 = seg2->y3 = seg2->x4 = seg2->y4 = 0.;
    const double k = escala_comun(*seg1, *seg2);
    if (k == 0.) return;
    const extremos p = de(*seg1, k), q = de(*seg2, k);
    const double qa = lado(p.a, p.b, q.a), qb = lado(p.a, p.b, q.b), pa = lado(q.a, q.b, p.a), pb = lado(q.a, q.b, p.b);
    if (qa == 0. && qb == 0. && pa == 0. && pb == 0.) {
        const extremos uno = de(*seg1), otro = de(*seg2);
        corta_solape(*seg1, otro);
        corta_solape(*seg2, uno);
        return;
    }
    const bool lados_de_p = (qa < 0. && qb > 0.) || (qa > 0. && qb < 0.);
    const bool lados_de_q = (pa < 0. && pb > 0.) || (pa > 0. && pb < 0.);
    if (lados_de_p && lados_de_q) {
        // Two almost parallel segments have lost most digits of these by now.
        const double inicio = lado(q.a, q.b, p.a, true), fin = lado(q.a, q.b, p.b, true), t = inicio / (inicio - fin);
        const extremos e = de(*seg1);
        const Punto2D c = dentro(dentro(relativo(e.a, e.b, t), e), de(*seg2));
        corta(*seg1, c);
        corta(*seg2, c);
        return;
    }
    // An end of one on the other. Both segments cannot be cut by ends here, for they are not on one line.
    if (qa == 0. && estrictamente_entre(p.a, p.b, q.a)) corta(*seg1, {seg2->x1, seg2->y1});
    else if (qb == 0. && estrictamente_entre(p.a, p.b, q.b)) corta(*seg1, {seg2->x2, seg2->y2});
    else if (pa == 0. && estrictamente_entre(q.a, q.b, p.a)) corta(*seg2, {seg1->x1, seg1->y1});
    else if (pb == 0. && estrictamente_entre(q.a, q.b, p.b)) corta(*seg2, {seg1->x2, seg1->y2});
}

vnbool mt_raices_ecuacion_segundo_grado(double a, double b, double c, double *r1, double *r2) {
    if (!EXIGE(r1, r2)) return FALSO;
    double mas = 0., menos = 0.;
    if (a == 0.) {
        if (b == 0.) return FALSO;
        mas = menos = -c / b;
    } else {
        const double raiz = raiz_del_discriminante(a, b, c);
        if (!(raiz >= 0.)) return FALSO;
        if (raiz == 0.) {
            mas = menos = -0.5 * b / a;
        } else {
            // The root whose terms have one sign, and the other from their product c / a: no digits are lost.
            const double q = -0.5 * b - std::copysign(0.5 * raiz, b);
            const bool b_negativo = std::signbit(b);
            mas = b_negativo ? q / a : c / q;
            menos = b_negativo ? c / q : q / a;
        }
    }
    if (!std::isfinite(mas) || !std::isfinite(menos)) return FALSO;
    *r1 = mas;
    *r2 = menos;
    return CIERTO;
}
