#define VN_MODULO "interarc (NUCLEOS.DLL)"
#include "geometry/interarc.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <algorithm>
#include <cmath>
#include <vector>

using namespace vn;
using namespace vn::numeros;

namespace {

// Below this difference of its ends, in metres, a segment counts as vertical or horizontal, and two centres
// as one.
constexpr double MISMA_COORDENADA = 0.0001;
// How near in each axis a cut of one arc must be to one of the other to be the same point.
constexpr double MISMO_PUNTO = 1e-5;

// A circle or an arc; everything is worked out relative to its centre.
struct curva {
    Punto2D centro;
    double radio;
    bool es_arco = false;
    double inicio = 0., fin = 0.;

    bool tiene(Punto2D p) const {
        if (!es_arco) return true;
        const double direccion = p.x == 0. && p.y == 0. ? 0. : angulo(p);
        return mt_angulo_dentro_de_rango(direccion, inicio, fin) == CIERTO;
    }
};

struct segmento {
    Punto2D a, b;
    segmento desde(Punto2D centro) const { return {a - centro, b - centro}; }
};

void anade(arrPunto2D *puntos, Punto2D p) { arr_AppendPunto2D(puntos, p.x, p.y); }

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

    linea desde(Punto2D otro_centro) const { return {n, c - escalar(n, otro_centro)}; }

    // Where it meets the circle about the centre, half a chord to each side of its foot: the upper point first, on a
    // horizontal line the right one. A line of the axes that only touches has no cut, another one the same point twice.
    bool corta(double radio, Punto2D (&p)[2]) const {
        const double media2 = (radio - c) * (radio + c);
        if (!(media2 >= 0.) || (media2 == 0. && (n.x == 0. || n.y == 0.))) return false;
        const double media = n.x > 0. || (n.x == 0. && n.y < 0.) ? RAIZ(media2) : -RAIZ(media2);
        const Punto2D pie = c * n, media_cuerda = media * perpendicular(n);
        p[0] = pie + media_cuerda;
        p[1] = pie - media_cuerda;
        return true;
    }
};

// The line of a segment; an almost vertical or horizontal one becomes one at its first end.
linea linea_de(segmento &s) {
    const Punto2D d = s.b - s.a;
    if (std::fabs(d.x) < MISMA_COORDENADA) {
        s.b.x = s.a.x;
        return {{1., 0.}, s.a.x};
    }
    if (std::fabs(d.y) < MISMA_COORDENADA) {
        s.b.y = s.a.y;
        return {{0., 1.}, s.a.y};
    }
    const double l = modulo(d);
    return {{d.y / l, -d.x / l}, vectorial(s.a, d) / l};
}

bool corta(const segmento &dado, const curva &c, arrPunto2D *puntos) {
    segmento s = dado.desde(c.centro);
    Punto2D p[2];
    if (s.a.x == s.b.x && s.a.y == s.b.y) return false;
    if (!linea_de(s).corta(c.radio, p)) return false;
    bool alguno = false;
    for (const Punto2D &q : p)
        if (mt_punto_pertenece_a_segmento(q.x, q.y, s.a.x, s.a.y, s.b.x, s.b.y) == CIERTO && c.tiene(q)) {
            anade(puntos, c.centro + q);
            alguno = true;
        }
    return alguno;
}

// The line of equal power of two circles, relative to the first centre, where the squares of the coordinates take no
// digits from those of the radii; false when they do not meet. It is vertical where its x changes by less than the
// tolerance over both circles, and then stands at the x of their lowest point.
bool eje_radical(const curva &c1, const curva &c2, linea &eje) {
    const Punto2D d = c2.centro - c1.centro;
    const double l = modulo(d);
    if (l > c1.radio + c2.radio || std::fabs(c1.radio - c2.radio) > l || !(l >= MISMA_COORDENADA)) return false;
    const double potencia = (cuadrado(d) + (c1.radio - c2.radio) * (c1.radio + c2.radio)) / 2.;
    if (std::fabs(d.x) < MISMA_COORDENADA) {
        eje = {{0., 1.}, potencia / d.y};
        return true;
    }
    const double bajo = std::min(-c1.radio, d.y - c2.radio), alto = std::max(c1.radio, d.y + c2.radio);
    if (std::fabs(d.y / d.x * (alto - bajo)) < MISMA_COORDENADA) eje = {{1., 0.}, (potencia - d.y * bajo) / d.x};
    else eje = {d / l, potencia / l};
    return true;
}

// The cuts of that line with one of the circles, if within its arc.
std::vector<Punto2D> cortes(const linea &eje, const curva &c) {
    Punto2D p[2];
    std::vector<Punto2D> r;
    if (!eje.corta(c.radio, p)) return r;
    for (const Punto2D &q : p)
        if (c.tiene(q)) r.push_back(q);
    return r;
}

bool cortan(const curva &c1, const curva &c2, arrPunto2D *puntos) {
    linea eje;
    if (!eje_radical(c1, c2, eje)) return false;
    const Punto2D al_segundo = c2.centro - c1.centro;
    const std::vector<Punto2D> del2 = c2.es_arco ? cortes(eje.desde(al_segundo), c2) : std::vector<Punto2D>{};
    bool alguno = false;
    for (const Punto2D &p : cortes(eje, c1)) {
        const auto es_el = [&](const Punto2D &q) {
            const Punto2D d = al_segundo + q - p;
            return std::fabs(d.x) <= MISMO_PUNTO && std::fabs(d.y) <= MISMO_PUNTO;
        };
        if (c2.es_arco && std::none_of(del2.begin(), del2.end(), es_el)) continue;
        anade(puntos, c1.centro + p);
        alguno = true;
    }
    return alguno;
}

} // namespace

vnbool mt_interseccion_segmento_circunferencia(double x1, double y1, double x2, double y2, double xc, double yc,
                                               double radio, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return logico(corta({{x1, y1}, {x2, y2}}, {{xc, yc}, radio}, puntos));
}

vnbool mt_interseccion_segmento_arco(double x1, double y1, double x2, double y2, double xc, double yc, double radio,
                                     double angulo_inicial, double angulo_final, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return logico(corta({{x1, y1}, {x2, y2}}, {{xc, yc}, radio, true, angulo_inicial, angulo_final}, puntos));
}

vnbool mt_interseccion_entre_circunferencias(double xc1, double yc1, double radio1, double xc2, double yc2,
                                             double radio2, arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return logico(cortan({{xc1, yc1}, radio1}, {{xc2, yc2}, radio2}, puntos));
}

vnbool mt_interseccion_entre_arcos(double xc1, double yc1, double radio1, double angulo_inicial1, double angulo_final1,
                                   double xc2, double yc2, double radio2, double angulo_inicial2, double angulo_final2,
                                   arrPunto2D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    return logico(cortan({{xc1, yc1}, radio1, true, angulo_inicial1, angulo_final1},
                         {{xc2, yc2}, radio2, true, angulo_inicial2, angulo_final2}, puntos));
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
        for (const Punto2D &p : ocho) anade(puntos, c + p);
    return CIERTO;
}
