#define VN_MODULO "rectng (NUCLEOS.DLL)"
// The part of a segment inside a rectangle: the exact algorithm and the tolerant one before it.
#include "geometry/rectng_recorte.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <cmath>

namespace {

// Narrows u1 and u2, the parameters between which the segment lies inside, by one axis: the segment goes `d` along it
// and begins so far inside of both borders. False if nothing is left, as with not-a-number. Both borders are taken at
// once: the choice of the one that it enters by costs no branch.
bool recorta(double d, double desde_min, double hasta_max, double &u1, double &u2) {
    if (d == 0.) return desde_min >= 0. && hasta_max >= 0.;
    const double por_min = desde_min / -d, por_max = hasta_max / d;
    const double entra = d > 0. ? por_min : por_max, sale = d > 0. ? por_max : por_min;
    u1 = u1 > entra ? u1 : entra;
    u2 = u2 < sale ? u2 : sale;
    return u1 <= u2;
}

vnbool liang_barsky(double xmin, double ymin, double xmax, double ymax, double x1, double y1, double x2, double y2,
                    double *ox1, double *oy1, double *ox2, double *oy2) {
    const double dx = x2 - x1, dy = y2 - y1;
    double u1 = 0., u2 = 1.;
    if (!recorta(dx, x1 - xmin, xmax - x1, u1, u2) || !recorta(dy, y1 - ymin, ymax - y1, u1, u2)) return FALSO;
    if (u1 > 0. || u2 < 1.) {
        if (!std::isfinite(dx) || !std::isfinite(dy)) return FALSO; // its length is beyond the range of doubles
        x2 = x1 + dx * u2;
        y2 = y1 + dy * u2;
        x1 = x1 + dx * u1;
        y1 = y1 + dy * u1;
    }
    vn::numeros::da(ox1, oy1, {x1, y1});
    vn::numeros::da(ox2, oy2, {x2, y2});
    return CIERTO;
}

// ---------------------------------------------------------------- the tolerant clip

// Which sides of the rectangle a point is beyond.
constexpr unsigned A_LA_DERECHA = 1, A_LA_IZQUIERDA = 2, ENCIMA = 4, DEBAJO = 8;

unsigned region(const rectangulo_t &r, double x, double y) {
    return (ES_MENOR(r.xmax, x) == CIERTO ? A_LA_DERECHA : 0) | (ES_MAYOR(r.xmin, x) == CIERTO ? A_LA_IZQUIERDA : 0) |
           (ES_MENOR(r.ymax, y) == CIERTO ? ENCIMA : 0) | (ES_MAYOR(r.ymin, y) == CIERTO ? DEBAJO : 0);
}

struct salida {
    double *x, *y;
};
struct recorrido {
    Punto2D a, b;
};

bool cruza(double a, double b, double lado) { return ES_MENOR(a, lado) == CIERTO && ES_MAYOR(b, lado) == CIERTO; }
bool corre_por(double a, double b, double lado) {
    return SON_IGUALES(a, lado) == CIERTO && SON_IGUALES(b, lado) == CIERTO;
}

// Whether the segment crosses the side at x inwards from the left, which gives the crossing, or runs along its line.
bool prueba_lado_vertical(const rectangulo_t &r, double x, const recorrido &s, const salida &o) {
    if (cruza(s.a.x, s.b.x, x))
        return mt_existe_interseccion_entre_segmentos(s.a.x, s.a.y, s.b.x, s.b.y, x, r.ymin, x, r.ymax, o.x, o.y) ==
               CIERTO;
    return (ES_MAYOR(s.a.y, r.ymin) == CIERTO || ES_MENOR(s.b.y, r.ymax) == CIERTO) && corre_por(s.a.x, s.b.x, x);
}

bool prueba_lado_horizontal(const rectangulo_t &r, double y, const recorrido &s, const salida &o) {
    if (cruza(s.a.y, s.b.y, y))
        return mt_existe_interseccion_entre_segmentos(s.a.x, s.a.y, s.b.x, s.b.y, r.xmin, y, r.xmax, y, o.x, o.y) ==
               CIERTO;
    return (ES_MAYOR(s.a.x, r.xmin) == CIERTO || ES_MENOR(s.b.x, r.xmax) == CIERTO) && corre_por(s.a.y, s.b.y, y);
}

} // namespace

vnbool rec_clip_linea_liang_barsky(double xmin, double ymin, double xmax, double ymax, double x1, double y1, double x2,
                                   double y2, double *ox1, double *oy1, double *ox2, double *oy2) {
    return liang_barsky(xmin, ymin, xmax, ymax, x1, y1, x2, y2, ox1, oy1, ox2, oy2);
}

vnbool rec_ClipSegmento(const rectangulo_t *rec, double x1, double y1, double x2, double y2, double *ox1, double *oy1,
                        double *ox2, double *oy2) {
    if (!AFIRMA_NO_NULO(rec)) return FALSO;
    return liang_barsky(rec->xmin, rec->ymin, rec->xmax, rec->ymax, x1, y1, x2, y2, ox1, oy1, ox2, oy2);
}

vnbool rec_ClipSegmentoAntiguo(const rectangulo_t *rec, double x1, double y1, double x2, double y2, double *ox1,
                               double *oy1, double *ox2, double *oy2) {
    if (!AFIRMA_NO_NULO(rec)) return FALSO;
    const rectangulo_t r = *rec; // a copy: the outputs may be its own limits
    vn::numeros::da(ox1, oy1, {x1, y1});
    vn::numeros::da(ox2, oy2, {x2, y2});
    if (r.calculados == FALSO) return FALSO;
    const unsigned de_1 = region(r, x1, y1), de_2 = region(r, x2, y2);
    if (de_1 == 0 && de_2 == 0) return CIERTO;
    bool dentro = de_1 == 0 || de_2 == 0;
    // What runs along a side with both ends outside stays whole, and is not cut where it passes the corners.
    if (!dentro && (corre_por(x1, x2, r.xmin) || corre_por(x1, x2, r.xmax) || corre_por(y1, y2, r.ymin) ||
                    corre_por(y1, y2, r.ymax)))
        return CIERTO;
    const salida o1 = {ox1, oy1}, o2 = {ox2, oy2};
    if (dentro && ox1 == nullptr && oy1 == nullptr && ox2 == nullptr && oy2 == nullptr) return CIERTO;

    // Each side in the segment's own direction and in the reverse one, whatever the others said: the order decides what
    // a segment through a corner gets.
    const recorrido ida = {{x1, y1}, {x2, y2}}, vuelta = {{x2, y2}, {x1, y1}};
    dentro |= prueba_lado_vertical(r, r.xmin, ida, o1);
    dentro |= prueba_lado_vertical(r, r.xmin, vuelta, o2);
    dentro |= prueba_lado_vertical(r, r.xmax, ida, o2);
    dentro |= prueba_lado_vertical(r, r.xmax, vuelta, o1);
    dentro |= prueba_lado_horizontal(r, r.ymin, ida, o1);
    dentro |= prueba_lado_horizontal(r, r.ymin, vuelta, o2);
    dentro |= prueba_lado_horizontal(r, r.ymax, ida, o2);
    dentro |= prueba_lado_horizontal(r, r.ymax, vuelta, o1);
    return vn::logico(dentro);
}
