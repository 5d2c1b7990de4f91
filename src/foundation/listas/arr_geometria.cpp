#define VN_MODULO "arr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr.h"
#include "foundation/listas/arr_int.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <algorithm>
#include <cmath>
#include <limits>

namespace {

using vn::numeros::VUELTA;
// How much longer than a whole number of steps an arc may be, in steps, before it gets one more.
constexpr double TOLERANCIA_PASOS = 1e-6;

bool hay_puntos(uint32_t n) { return AFIRMA_TEXTO(n >= 3 && n <= 1000000, "num_puntos >= 3 && num_puntos <= 1000000"); }

// A circle is an ellipse of equal half axes that is not turned.
struct elipse {
    double xc, yc, a, b, coseno, seno;
    Punto2D en(double angulo) const {
        const double u = a * std::cos(angulo), v = b * std::sin(angulo);
        return {xc + (u * coseno - v * seno), yc + (u * seno + v * coseno)};
    }
};

// Appends f(0), f(1)... as points.
template <class F> void anade(arrPunto2D *a, uint32_t n, F &&f) {
    for (uint32_t i = 0; i < n; ++i) {
        const Punto2D p = f(i);
        arr_AppendPunto2D(a, p.x, p.y);
    }
}

void arco(arrPunto2D *a, const elipse &e, double inicial, double final, uint32_t num_puntos) {
    const double dado = final - inicial;
    // An arc with a value that is no number has no points.
    if (!std::isfinite(e.xc + e.yc + e.a + e.b + e.coseno + inicial + dado)) return;
    // More than a turn is a turn, either way.
    const double barrido = std::clamp(dado, -VUELTA, VUELTA);
    const double exactos = std::fabs(barrido) / VUELTA * num_puntos;
    const auto pasos = static_cast<uint32_t>(std::max(1., std::ceil(exactos - TOLERANCIA_PASOS)));
    // The end comes from the sweep itself, not as the last of many steps.
    anade(a, pasos + 1, [&](uint32_t i) { return e.en(inicial + (i == pasos ? barrido : i * (barrido / pasos))); });
}

} // namespace

void arr_AnyadirCirculoPunto2D(arrPunto2D *a, double xc, double yc, double radio, uint32_t num_puntos) {
    if (!AFIRMA_NO_NULO(a) || !hay_puntos(num_puntos) || !std::isfinite(xc + yc + radio)) return;
    const elipse e{xc, yc, radio, radio, 1., 0.};
    anade(a, num_puntos, [&](uint32_t i) { return e.en(i * (VUELTA / num_puntos)); });
}

void arr_AnyadirArcoPunto2D(arrPunto2D *a, double xc, double yc, double radio, double angulo_inicial,
                            double angulo_final, uint32_t num_puntos) {
    if (!AFIRMA_NO_NULO(a) || !hay_puntos(num_puntos)) return;
    arco(a, {xc, yc, radio, radio, 1., 0.}, angulo_inicial, angulo_final, num_puntos);
}

void arr_AnyadirArcoElipsePunto2D(arrPunto2D *a, double xc, double yc, double semieje_x, double semieje_y,
                                  double angulo_inicial, double angulo_final, double giro, uint32_t num_puntos) {
    if (!AFIRMA_NO_NULO(a) || !hay_puntos(num_puntos)) return;
    arco(a, {xc, yc, semieje_x, semieje_y, std::cos(giro), std::sin(giro)}, angulo_inicial, angulo_final, num_puntos);
}

void arr_GetMinimaxPunto2D(const arrPunto2D *a, double *xmin, double *ymin, double *xmax, double *ymax) {
    if (!EXIGE(a, xmin, ymin, xmax, ymax)) return;
    *xmin = *ymin = *xmax = *ymax = 0.;
    if (!AFIRMA_TEXTO(arr_NumElemsPunto2D(a) > 0, "num_puntos > 0")) return;
    constexpr double INF = std::numeric_limits<double>::infinity();
    // What is no number fails every comparison, and so takes no part.
    double x1 = INF, y1 = INF, x2 = -INF, y2 = -INF;
    for (const Punto2D &p : vn::listas::tramo(a)) {
        x1 = p.x < x1 ? p.x : x1;
        x2 = p.x > x2 ? p.x : x2;
        y1 = p.y < y1 ? p.y : y1;
        y2 = p.y > y2 ? p.y : y2;
    }
    // An axis without a single number keeps its zeros.
    if (x1 <= x2) *xmin = x1, *xmax = x2;
    if (y1 <= y2) *ymin = y1, *ymax = y2;
}

void arr_GetSegmentoPunto2D(const arrPunto2D *a, uint32_t i, double *x1, double *y1, double *x2, double *y2) {
    if (!AFIRMA_NO_NULO(a)) return;
    const auto puntos = vn::listas::tramo(a);
    if (!AFIRMA_TEXTO(i < puntos.size(), "i < num_elementos") || !EXIGE(x1, y1, x2, y2)) return;
    // The last segment closes the polygon.
    const Punto2D &p = puntos[i], &q = puntos[i + 1 < puntos.size() ? i + 1 : 0];
    *x1 = p.x;
    *y1 = p.y;
    *x2 = q.x;
    *y2 = q.y;
}

vnbool arr_ArraysDePunto2DIguales(const arrPunto2D *a, const arrPunto2D *b, double tolerancia) {
    if (!EXIGE(a, b)) return FALSO;
    const auto p = vn::listas::tramo(a), q = vn::listas::tramo(b);
    const bool iguales =
        std::equal(p.begin(), p.end(), q.begin(), q.end(), [tolerancia](const Punto2D &u, const Punto2D &v) {
            return std::fabs(u.x - v.x) <= tolerancia && std::fabs(u.y - v.y) <= tolerancia;
        });
    return vn::logico(iguales);
}
