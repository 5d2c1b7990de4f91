#define VN_MODULO "interarc (NUCLEOS.DLL)"
#include "geometry/interarc.h"
#include "foundation/afirma.h"
#include "foundation/arr_priv.h"
#include "foundation/mt.h"
#include "foundation/vnmath.h"
#include <algorithm>
#include <cmath>
#include <memory>
#include <utility>

namespace {

// Below this difference of its ends, in metres, a segment counts as vertical or horizontal, and two centres
// as one.
constexpr double MISMA_COORDENADA = 0.0001;
// How near in each axis a cut of one arc must be to one of the other to be the same point.
constexpr double MISMO_PUNTO = 1e-5;

struct destruye_puntos {
    void operator()(arrPunto2D *a) const { arr_DestruyePunto2D(&a); }
};
using puntos_propios = std::unique_ptr<arrPunto2D, destruye_puntos>;

// A circle or an arc; everything is worked out relative to its centre.
struct curva {
    double xc, yc, radio;
    bool es_arco = false;
    double inicio = 0., fin = 0.;

    bool tiene(double x, double y) const {
        if (!es_arco) return true;
        const double angulo = x == 0. && y == 0. ? 0. : mt_angulo(0., 0., x, y);
        return mt_angulo_dentro_de_rango(angulo, inicio, fin) == CIERTO;
    }
};

struct segmento {
    double x1, y1, x2, y2;
    segmento desde(double xc, double yc) const { return {x1 - xc, y1 - yc, x2 - xc, y2 - yc}; }
};

bool raices(double a, double b, double c, double *r1, double *r2) {
    if (!AFIRMA(r1 && r2)) return false;
    if (CUAD(b) - 4. * a * c < 0.) return false;
    return mt_raices_ecuacion_segundo_grado(a, b, c, r1, r2) == CIERTO;
}

// The two points where the line of the segment, relative to the centre, meets the circle. An almost vertical
// or horizontal segment becomes one at its first end.
bool cortes_de_la_recta(segmento &s, double radio, Punto2D (&p)[2]) {
    const double dx = s.x2 - s.x1, dy = s.y2 - s.y1, r2 = CUAD(radio);
    if (std::fabs(dx) < MISMA_COORDENADA) {
        s.x2 = s.x1;
        const double y2 = r2 - CUAD(s.x1);
        if (y2 <= 0.) return false; // one that only touches is no cut
        const double y = RAIZ(y2);
        p[0] = {s.x1, y};
        p[1] = {s.x1, -y};
        return true;
    }
    if (std::fabs(dy) < MISMA_COORDENADA) {
        s.y2 = s.y1;
        const double x2 = r2 - CUAD(s.y1);
        if (x2 <= 0.) return false;
        const double x = RAIZ(x2);
        p[0] = {x, s.y1};
        p[1] = {-x, s.y1};
        return true;
    }
    const double m = dy / dx, n = s.y2 - s.x2 * m, a = 1. + CUAD(m);
    if (!raices(a, 2. * m * n, CUAD(n) - r2, &p[0].x, &p[1].x)) return false;
    if (!raices(a, -2. * n, CUAD(n) - r2 * CUAD(m), &p[0].y, &p[1].y)) return false;
    if (m < 0.) std::swap(p[0].x, p[1].x);
    return true;
}

bool corta(const segmento &dado, const curva &c, arrPunto2D *puntos) {
    segmento s = dado.desde(c.xc, c.yc);
    Punto2D p[2];
    if (s.x1 == s.x2 && s.y1 == s.y2) return false;
    if (!cortes_de_la_recta(s, c.radio, p)) return false;
    bool alguno = false;
    for (const Punto2D &q : p)
        if (mt_punto_pertenece_a_segmento(q.x, q.y, s.x1, s.y1, s.x2, s.y2) == CIERTO && c.tiene(q.x, q.y)) {
            arr_AppendPunto2D(puntos, c.xc + q.x, c.yc + q.y);
            alguno = true;
        }
    return alguno;
}

// The line of equal power of two circles, as a segment that spans both; false when they do not meet. It is
// found relative to the first centre, where the squares of the coordinates take no digits from those of the
// radii.
bool eje_radical(const curva &c1, const curva &c2, segmento &eje) {
    const double dx = c2.xc - c1.xc, dy = c2.yc - c1.yc, d = mt_distancia(c1.xc, c1.yc, c2.xc, c2.yc);
    if (d > c1.radio + c2.radio || std::fabs(c1.radio - c2.radio) > d || !(d >= MISMA_COORDENADA))
        return false;
    const double a2 = -2. * dx, b2 = -2. * dy,
                 dif_c = -CUAD(c1.radio) - (CUAD(dx) + CUAD(dy) - CUAD(c2.radio));
    if (std::fabs(dx) >= MISMA_COORDENADA) {
        const double bajo = std::min(-c1.radio, dy - c2.radio), alto = std::max(c1.radio, dy + c2.radio);
        eje = {(-b2 * bajo + dif_c) / a2, bajo, (-b2 * alto + dif_c) / a2, alto};
    } else {
        const double y = dif_c / b2;
        eje = {std::min(-c1.radio, dx - c2.radio), y, std::max(c1.radio, dx + c2.radio), y};
    }
    return true;
}

} // namespace

vnbool mt_interseccion_segmento_circunferencia(double x1, double y1, double x2, double y2, double xc,
                                               double yc, double radio, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return corta({x1, y1, x2, y2}, {xc, yc, radio}, puntos) ? CIERTO : FALSO;
}

vnbool mt_interseccion_segmento_arco(double x1, double y1, double x2, double y2, double xc, double yc,
                                     double radio, double angulo_inicial, double angulo_final,
                                     arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return corta({x1, y1, x2, y2}, {xc, yc, radio, true, angulo_inicial, angulo_final}, puntos) ? CIERTO
                                                                                                : FALSO;
}

vnbool mt_interseccion_entre_circunferencias(double xc1, double yc1, double radio1, double xc2, double yc2,
                                             double radio2, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    segmento eje;
    if (!eje_radical({xc1, yc1, radio1}, {xc2, yc2, radio2}, eje)) return FALSO;
    puntos_propios cortes(arr_CreaPunto2D(0));
    if (!corta(eje, {0., 0., radio1}, cortes.get())) return FALSO;
    for (const Punto2D &p : vn::tramo(cortes.get())) arr_AppendPunto2D(puntos, xc1 + p.x, yc1 + p.y);
    return CIERTO;
}

vnbool mt_interseccion_entre_arcos(double xc1, double yc1, double radio1, double angulo_inicial1,
                                   double angulo_final1, double xc2, double yc2, double radio2,
                                   double angulo_inicial2, double angulo_final2, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    const curva c1{xc1, yc1, radio1, true, angulo_inicial1, angulo_final1};
    const curva c2{xc2, yc2, radio2, true, angulo_inicial2, angulo_final2};
    segmento eje;
    if (!eje_radical(c1, c2, eje)) return FALSO;
    puntos_propios del1(arr_CreaPunto2D(0)), del2(arr_CreaPunto2D(0));
    curva r1 = c1, r2 = c2; // relative to the first centre, as the line is
    r1.xc = r1.yc = 0.;
    r2.xc -= xc1;
    r2.yc -= yc1;
    if (!corta(eje, r1, del1.get()) || !corta(eje, r2, del2.get())) return FALSO;
    bool alguno = false;
    for (const Punto2D &p : vn::tramo(del1.get()))
        if (arr_ExistePunto2D(del2.get(), p.x, p.y, MISMO_PUNTO, nullptr) == CIERTO) {
            arr_AppendPunto2D(puntos, xc1 + p.x, yc1 + p.y);
            alguno = true;
        }
    return alguno ? CIERTO : FALSO;
}

vnbool mt_interseccion_elipse_circunferencia(double xc_circunferencia, double yc_circunferencia, double radio,
                                             double xc_elipse, double yc_elipse, double semieje_x,
                                             double semieje_y, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    const double a2 = CUAD(semieje_x), b2 = CUAD(semieje_y), r2 = CUAD(radio);
    double x1, x2, y1, y2;
    if (!raices(b2 - a2, 0., a2 * (r2 - b2), &x1, &x2) || !raices(a2 - b2, 0., b2 * (r2 - a2), &y1, &y2))
        return FALSO;
    const Punto2D ocho[] = {{x1, y1},   {x2, y2},   {x1, y2},   {x2, y1},
                            {-x1, -y1}, {-x2, -y2}, {-x1, -y2}, {-x2, -y1}};
    for (const Punto2D &c : {Punto2D{xc_elipse, yc_elipse}, Punto2D{xc_circunferencia, yc_circunferencia}})
        for (const Punto2D &p : ocho) arr_AppendPunto2D(puntos, c.x + p.x, c.y + p.y);
    return CIERTO;
}
