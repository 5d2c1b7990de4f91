#define VN_MODULO "interarc (NUCLEOS.DLL)"
#include "geometry/interarc.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include <algorithm>
#include <cmath>
#include <vector>

namespace {

// Below this difference of its ends, in metres, a segment counts as vertical or horizontal, and two centres
// as one.
constexpr double MISMA_COORDENADA = 0.0001;
// How near in each axis a cut of one arc must be to one of the other to be the same point.
constexpr double MISMO_PUNTO = 1e-5;

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

// The points q with n q = c, n of unit length, relative to some centre. Sums of such small figures keep digits that the
// slope and the ordinate at the origin of a long and steep line would lose.
struct linea {
    Punto2D n;
    double c;

    linea desde(Punto2D otro_centro) const { return {n, c - (n.x * otro_centro.x + n.y * otro_centro.y)}; }

    // Where it meets the circle about the centre, half a chord to each side of its foot: the upper point first, on a
    // horizontal line the right one. A line of the axes that only touches has no cut, another one the same point twice.
    bool corta(double radio, Punto2D (&p)[2]) const {
        const double media2 = (radio - c) * (radio + c);
        if (!(media2 >= 0.) || (media2 == 0. && (n.x == 0. || n.y == 0.))) return false;
        const double media = n.x > 0. || (n.x == 0. && n.y < 0.) ? RAIZ(media2) : -RAIZ(media2);
        p[0] = {c * n.x - media * n.y, c * n.y + media * n.x};
        p[1] = {c * n.x + media * n.y, c * n.y - media * n.x};
        return true;
    }
};

// The line of a segment; an almost vertical or horizontal one becomes one at its first end.
linea linea_de(segmento &s) {
    const double dx = s.x2 - s.x1, dy = s.y2 - s.y1;
    if (std::fabs(dx) < MISMA_COORDENADA) {
        s.x2 = s.x1;
        return {{1., 0.}, s.x1};
    }
    if (std::fabs(dy) < MISMA_COORDENADA) {
        s.y2 = s.y1;
        return {{0., 1.}, s.y1};
    }
    const double l = mt_distancia(0., 0., dx, dy);
    return {{dy / l, -dx / l}, (s.x1 * dy - s.y1 * dx) / l};
}

bool corta(const segmento &dado, const curva &c, arrPunto2D *puntos) {
    segmento s = dado.desde(c.xc, c.yc);
    Punto2D p[2];
    if (s.x1 == s.x2 && s.y1 == s.y2) return false;
    if (!linea_de(s).corta(c.radio, p)) return false;
    bool alguno = false;
    for (const Punto2D &q : p)
        if (mt_punto_pertenece_a_segmento(q.x, q.y, s.x1, s.y1, s.x2, s.y2) == CIERTO && c.tiene(q.x, q.y)) {
            arr_AppendPunto2D(puntos, c.xc + q.x, c.yc + q.y);
            alguno = true;
        }
    return alguno;
}

// The line of equal power of two circles, relative to the first centre, where the squares of the coordinates take no
// digits from those of the radii; false when they do not meet. It is vertical where its x changes by less than the
// tolerance over both circles, and then stands at the x of their lowest point.
bool eje_radical(const curva &c1, const curva &c2, linea &eje) {
    const double dx = c2.xc - c1.xc, dy = c2.yc - c1.yc, d = mt_distancia(c1.xc, c1.yc, c2.xc, c2.yc);
    if (d > c1.radio + c2.radio || std::fabs(c1.radio - c2.radio) > d || !(d >= MISMA_COORDENADA)) return false;
    const double potencia = (CUAD(dx) + CUAD(dy) + (c1.radio - c2.radio) * (c1.radio + c2.radio)) / 2.;
    if (std::fabs(dx) < MISMA_COORDENADA) {
        eje = {{0., 1.}, potencia / dy};
        return true;
    }
    const double bajo = std::min(-c1.radio, dy - c2.radio), alto = std::max(c1.radio, dy + c2.radio);
    if (std::fabs(dy / dx * (alto - bajo)) < MISMA_COORDENADA) eje = {{1., 0.}, (potencia - dy * bajo) / dx};
    else eje = {{dx / d, dy / d}, potencia / d};
    return true;
}

// The cuts of that line with one of the circles, if within its arc.
std::vector<Punto2D> cortes(const linea &eje, const curva &c) {
    Punto2D p[2];
    std::vector<Punto2D> r;
    if (!eje.corta(c.radio, p)) return r;
    for (const Punto2D &q : p)
        if (c.tiene(q.x, q.y)) r.push_back(q);
    return r;
}

bool cortan(const curva &c1, const curva &c2, arrPunto2D *puntos) {
    linea eje;
    if (!eje_radical(c1, c2, eje)) return false;
    const Punto2D al_segundo{c2.xc - c1.xc, c2.yc - c1.yc};
    const std::vector<Punto2D> del2 = c2.es_arco ? cortes(eje.desde(al_segundo), c2) : std::vector<Punto2D>{};
    bool alguno = false;
    for (const Punto2D &p : cortes(eje, c1)) {
        const auto es_el = [&](const Punto2D &q) {
            return std::fabs(al_segundo.x + q.x - p.x) <= MISMO_PUNTO &&
                   std::fabs(al_segundo.y + q.y - p.y) <= MISMO_PUNTO;
        };
        if (c2.es_arco && std::none_of(del2.begin(), del2.end(), es_el)) continue;
        arr_AppendPunto2D(puntos, c1.xc + p.x, c1.yc + p.y);
        alguno = true;
    }
    return alguno;
}

} // namespace

vnbool mt_interseccion_segmento_circunferencia(double x1, double y1, double x2, double y2, double xc, double yc,
                                               double radio, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return corta({x1, y1, x2, y2}, {xc, yc, radio}, puntos) ? CIERTO : FALSO;
}

vnbool mt_interseccion_segmento_arco(double x1, double y1, double x2, double y2, double xc, double yc, double radio,
                                     double angulo_inicial, double angulo_final, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return corta({x1, y1, x2, y2}, {xc, yc, radio, true, angulo_inicial, angulo_final}, puntos) ? CIERTO : FALSO;
}

vnbool mt_interseccion_entre_circunferencias(double xc1, double yc1, double radio1, double xc2, double yc2,
                                             double radio2, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return cortan({xc1, yc1, radio1}, {xc2, yc2, radio2}, puntos) ? CIERTO : FALSO;
}

vnbool mt_interseccion_entre_arcos(double xc1, double yc1, double radio1, double angulo_inicial1, double angulo_final1,
                                   double xc2, double yc2, double radio2, double angulo_inicial2, double angulo_final2,
                                   arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return cortan({xc1, yc1, radio1, true, angulo_inicial1, angulo_final1},
                  {xc2, yc2, radio2, true, angulo_inicial2, angulo_final2}, puntos)
               ? CIERTO
               : FALSO;
}

vnbool mt_interseccion_elipse_circunferencia(double xc_circunferencia, double yc_circunferencia, double radio,
                                             double xc_elipse, double yc_elipse, double semieje_x, double semieje_y,
                                             arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    const double a2 = CUAD(semieje_x), b2 = CUAD(semieje_y), r2 = CUAD(radio);
    double x1, x2, y1, y2;
    if (!raices(b2 - a2, 0., a2 * (r2 - b2), &x1, &x2) || !raices(a2 - b2, 0., b2 * (r2 - a2), &y1, &y2)) return FALSO;
    const Punto2D ocho[] = {{x1, y1}, {x2, y2}, {x1, y2}, {x2, y1}, {-x1, -y1}, {-x2, -y2}, {-x1, -y2}, {-x2, -y1}};
    for (const Punto2D &c : {Punto2D{xc_elipse, yc_elipse}, Punto2D{xc_circunferencia, yc_circunferencia}})
        for (const Punto2D &p : ocho) arr_AppendPunto2D(puntos, c.x + p.x, c.y + p.y);
    return CIERTO;
}
