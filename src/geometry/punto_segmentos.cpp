#define VN_MODULO "punto (NUCLEOS.DLL)"
// Points, segments, lines and boxes against each other, and the crossing of two pieces.
#include "geometry/punto_segmentos.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "geometry/punto_priv.h"
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

using namespace vn;
using namespace vn::numeros;

namespace {

// The tolerances. Each belongs to one kind of test; none follows from another.
// Point equality, containment, sides, boxes, bounds of a projection: metres, or what the test measures. A host changes
// it.
double p_EPS = 0.00005;
// Squared length up to which a segment has no direction.
constexpr double p_EPS_2 = 1e-10;
// Cross product of two directions, of their whole lengths, up to which they are parallel.
constexpr double LIMITE_PARALELISMO = 1e-08;
// Parameters of a crossing that are taken for inside the piece at once.
constexpr double PARAMETRO_MINIMO = -1e-12, PARAMETRO_MAXIMO = 1.000000000001;
// Position parameter from which a point of the line is on the half-line.
constexpr double MARGEN_SEMIRECTA = 1e-08;
// Width below which a segment that meets the box's side is vertical.
constexpr double LIMITE_VERTICAL = 1e-06;

bool iguales(const Punto2D &p, const Punto2D &q) {
    return std::fabs(p.x - q.x) < p_EPS && std::fabs(p.y - q.y) < p_EPS;
}

// The detail has room for the largest numbers.
[[gnu::cold, gnu::noinline]] void informa_de_dos(const vnwchar *expresion, const Punto2D &p, const Punto2D &q,
                                                 const char *modulo, uint32_t linea) {
    vnwchar detalle[4 * 320];
    vnstdc__snwprintf(detalle, std::size(detalle), VNU("(%.6f, %.6f), (%.6f, %.6f)"), p.x, p.y, q.x, q.y);
    error_interno_msg_u(expresion, modulo, linea, detalle, 0);
}

double posicion(const Punto2D &p, const Punto2D &s1, const Punto2D &s2, bool admite_degenerado, const char *modulo,
                uint32_t linea) {
    const Punto2D d = s2 - s1;
    const double den = cuadrado(d);
    if (ES_CERO_PREC(den, p_EPS_2) == FALSO) return escalar(d, p - s1) / den;
    if (!admite_degenerado) error_interno_punto_2D("!ES_CERO_PREC(den, p_EPS_2)", modulo, linea, &p);
    if (iguales(p, s1)) return 0.;
    return iguales(p, s2) ? 1. : P_POSICION_DESCONOCIDA;
}
#define POSICION(p, s1, s2) posicion(p, s1, s2, false, VN_AQUI)

double distancia2_a_segmento(const Punto2D &p, const Punto2D &s1, const Punto2D &s2) {
    if (s1.x == s2.x && s1.y == s2.y) return cuadrado(p - s1);
    // By its unit direction and not by the parameter, so that the tolerance is a length on a segment of any length.
    double longitud = 0., coseno = 0., seno = 0.;
    f_mt_parametros_segmento(s1.x, s1.y, s2.x, s2.y, &longitud, &coseno, &seno);
    const Punto2D d = p - s1;
    const double avance = escalar({coseno, seno}, d);
    if (avance < 0.) return cuadrado(d);
    if (avance > longitud) return cuadrado(p - s2);
    const double distancia = std::fabs(vectorial({coseno, seno}, d));
    return distancia * distancia;
}

bool contenido(const Punto2D &p, const Punto2D &s1, const Punto2D &s2) {
    if (iguales(p, s1) || iguales(p, s2)) return true;
    return !iguales(s1, s2) && distancia2_a_segmento(p, s1, s2) <= p_EPS * p_EPS;
}

bool contenido_recta(const Punto2D &p, const Punto2D &s1, const Punto2D &s2) {
    if (iguales(s1, s2)) informa_de_dos(VNU("puntos_distintos"), s1, s2, VN_AQUI);
    return mt_distancia_a_recta(p.x, p.y, s1.x, s1.y, s2.x, s2.y) <= p_EPS;
}

bool contenido_en_pieza(const Punto2D &p, const Punto2D &s1, const Punto2D &s2, bool recta) {
    return recta ? contenido_recta(p, s1, s2) : contenido(p, s1, s2);
}

bool normal_corta(const Punto2D &p, const Punto2D &s1, const Punto2D &s2) {
    if (iguales(s1, s2)) return false;
    const double t = POSICION(p, s1, s2);
    return -p_EPS <= t && t <= 1. + p_EPS;
}

bool no_es_numero(const Punto2D &p) { return std::isnan(p.x) || std::isnan(p.y); }
bool es_lugar(const Punto2D &p) { return std::isfinite(p.x) && std::isfinite(p.y); }

// By differences, which of two equal infinite sides is not-a-number: boxes that end nowhere do not touch.
bool cajas_se_solapan(const Punto2D &o1, const Punto2D &e1, const Punto2D &o2, const Punto2D &e2) {
    return e1.x - o2.x >= -p_EPS && e1.y - o2.y >= -p_EPS && e2.x - o1.x >= -p_EPS && e2.y - o1.y >= -p_EPS;
}

// ---------------------------------------------------------------- crossing of two pieces

struct pieza {
    const Punto2D &p, &q; // the parameter is 1 at p and 0 at q
    bool recta;
};

double parametro_cruzado(const pieza &a, const pieza &b) { return vectorial(a.p - a.q, b.q - b.p); }

// True if a crossing that is an end of `esta`, to p_EPS by axis, lies on both pieces.
[[gnu::noinline]] bool es_el_extremo(const Punto2D &r, const pieza &esta, const pieza &otra) {
    return contenido(r, esta.p, esta.q) && contenido_en_pieza(r, otra.p, otra.q, otra.recta);
}

// True if a crossing with parameter t is not beyond the ends of the segment `esta`: by the parameter with hardly a
// margin, or else by p_EPS. Inline: most pairs of segments do not cross, and are done here.
[[gnu::always_inline]] inline bool dentro(double t, const Punto2D &r, const pieza &esta, const pieza &otra) {
    if (PARAMETRO_MINIMO <= t && t <= PARAMETRO_MAXIMO) [[likely]]
        return true;
    return iguales(r, t < PARAMETRO_MINIMO ? esta.q : esta.p) && es_el_extremo(r, esta, otra);
}

// Parallel pieces cross only at ends that are the same.
[[gnu::noinline]] Punto2D *corte_de_paralelas(const pieza &a, const pieza &b) {
    for (const Punto2D *de_a : {&a.p, &a.q})
        for (const Punto2D *de_b : {&b.p, &b.q})
            if (iguales(*de_a, *de_b)) return nuevo(relativo(*de_a, *de_b, 0.5));
    return nullptr;
}

// Inline in each of its three callers: the pieces are then registers.
[[gnu::always_inline]] inline Punto2D *corte(const pieza &a, const pieza &b) {
    // Both pieces as lines: one parameter on each, and the crossing from that of the first.
    const double den = parametro_cruzado(a, b);
    if (!(std::fabs(den) > LIMITE_PARALELISMO)) return corte_de_paralelas(a, b);
    const double t = vectorial(b.q - a.q, b.q - b.p) / den;
    const Punto2D r = t * a.p + (1. - t) * a.q;
    if (!a.recta && !dentro(t, r, a, b)) return nullptr;
    if (!b.recta) {
        const double u = vectorial(a.p - a.q, b.q - a.q) / den;
        if (!dentro(u, r, b, a)) return nullptr;
    }
    return es_lugar(r) ? nuevo(r) : nullptr; // a crossing beyond the range of doubles is none
}

// A piece that is a point: the first of its ends that lies on the other piece.
Punto2D *corte_de_punto(const pieza &punto, const pieza &otra) {
    for (const Punto2D *p : {&punto.p, &punto.q})
        if (contenido_en_pieza(*p, otra.p, otra.q, otra.recta)) return p_copia(p);
    return nullptr;
}

} // namespace

double p_cambia_eps(double nuevo) { return std::exchange(p_EPS, nuevo); }

// ---------------------------------------------------------------- points against points, segments and lines

vnbool p_igual(const Punto2D *p, const Punto2D *q) { return logico(AFIRMA(p && q) && iguales(*p, *q)); }

void nousar_punto_assert_distintos(const Punto2D *p, const Punto2D *q, const char *modulo, uint32_t linea) {
    if (AFIRMA(p && q) && iguales(*p, *q)) informa_de_dos(VNU("puntos_distintos"), *p, *q, modulo, linea);
}

void nousar_punto_assert_iguales(const Punto2D *p, const Punto2D *q, const char *modulo, uint32_t linea) {
    if (AFIRMA(p && q) && !iguales(*p, *q)) informa_de_dos(VNU("puntos_iguales"), *p, *q, modulo, linea);
}

double nousar_posicion_relativa_al_segmento(const Punto2D *p, const Punto2D *s1, const Punto2D *s2,
                                            vnbool admite_degenerado, const char *modulo, uint32_t linea) {
    if (!AFIRMA(p && s1 && s2) || !AFIRMA_LOGICO(admite_degenerado)) return 0.;
    return posicion(*p, *s1, *s2, admite_degenerado == CIERTO, modulo, linea);
}

vnbool p_contenido(const Punto2D *p, const Punto2D *s1, const Punto2D *s2) {
    return logico(AFIRMA(p && s1 && s2) && contenido(*p, *s1, *s2));
}

vnbool p_contenido_recta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2) {
    return logico(AFIRMA(p && s1 && s2) && contenido_recta(*p, *s1, *s2));
}

vnbool p_contenido_semirecta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2) {
    if (!AFIRMA(p && s1 && s2)) return FALSO;
    if (iguales(*p, *s1) || iguales(*p, *s2)) return CIERTO;
    if (iguales(*s1, *s2) || !contenido_recta(*p, *s1, *s2)) return FALSO;
    return logico(POSICION(*p, *s1, *s2) >= MARGEN_SEMIRECTA);
}

vnbool p_normal_corta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2) {
    return logico(AFIRMA(p && s1 && s2) && normal_corta(*p, *s1, *s2));
}

Punto2D *p_corte_normal(const Punto2D *p, const Punto2D *s1, const Punto2D *s2) {
    if (!AFIRMA(p && s1 && s2) || iguales(*s1, *s2)) return nullptr;
    const double t = POSICION(*p, *s1, *s2);
    return -p_EPS < t && t < 1. + p_EPS ? nuevo(relativo(*s1, *s2, t)) : nullptr;
}

Punto2D *p_corte_normal_recta(const Punto2D *p, const Punto2D *s1, const Punto2D *s2) {
    if (!AFIRMA(p && s1 && s2) || iguales(*s1, *s2)) return nullptr;
    const Punto2D pie = relativo(*s1, *s2, POSICION(*p, *s1, *s2));
    return es_lugar(pie) ? nuevo(pie) : nullptr;
}

vnbool p_esta_antes_en_recta(const Punto2D *a, const Punto2D *b, const Punto2D *s1, const Punto2D *s2) {
    return logico(AFIRMA(a && b && s1 && s2) && POSICION(*a, *s1, *s2) <= POSICION(*b, *s1, *s2));
}

vnbool p_lado_recta(const Punto2D *p, const Punto2D *o, const Punto2D *e) {
    if (!AFIRMA(p && o && e)) return FALSO;
    if (iguales(*o, *e)) informa_de_dos(VNU("puntos_distintos"), *o, *e, VN_AQUI);
    // A very short base would make every value small.
    Punto2D d = *e - *o;
    while (std::fabs(d.x) < 1. && std::fabs(d.y) < 1. && (d.x != 0. || d.y != 0.)) d = 10. * d;
    const Punto2D r = *p - *o;
    return logico(vectorial(r, d) > -p_EPS);
}

uint32_t p_lado_punto_respecto_a_recta(const Punto2D *p, const Punto2D *o, double coseno, double seno) {
    if (!AFIRMA(p && o)) return 0;
    const double v = vectorial({coseno, seno}, *p - *o);
    if (ES_MAYOR_CERO(v) == CIERTO) return 1;
    return ES_MENOR_CERO(v) == CIERTO ? 2 : 0;
}

// ---------------------------------------------------------------- boxes and segments

vnbool p_minimax(const Punto2D *o1, const Punto2D *e1, const Punto2D *o2, const Punto2D *e2) {
    return logico(AFIRMA(o1 && e1 && o2 && e2) && cajas_se_solapan(*o1, *e1, *o2, *e2));
}

vnbool p_se_solapan_rectangulos(double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                                double y4) {
    if (no_es_numero({x1, y1}) || no_es_numero({x2, y2}) || no_es_numero({x3, y3}) || no_es_numero({x4, y4}))
        return FALSO;
    return logico(cajas_se_solapan({std::min(x1, x2), std::min(y1, y2)}, {std::max(x1, x2), std::max(y1, y2)},
                                   {std::min(x3, x4), std::min(y3, y4)}, {std::max(x3, x4), std::max(y3, y4)}));
}

vnbool p_segmentos_se_solapan(const Punto2D *a, const Punto2D *b, const Punto2D *c, const Punto2D *d) {
    if (!AFIRMA(a && b && c && d)) return FALSO;
    if (!contenido_recta(*a, *c, *d) || !contenido_recta(*b, *c, *d)) return FALSO;
    return logico(normal_corta(*c, *a, *b) || normal_corta(*d, *a, *b) || normal_corta(*a, *c, *d) ||
                  normal_corta(*b, *c, *d));
}

vnbool p_son_segmentos_paralelos(const Punto2D *p1, const Punto2D *q1, const Punto2D *p2, const Punto2D *q2) {
    if (!AFIRMA(p1 != NULL && q1 != NULL && p2 != NULL && q2 != NULL)) return FALSO;
    return logico(std::fabs(parametro_cruzado({*p1, *q1, false}, {*p2, *q2, false})) <= LIMITE_PARALELISMO);
}

vnbool p_seg_corta_dentro_rect(const Punto2D *a, const Punto2D *b, const Punto2D *c, const Punto2D *d,
                               vnbool solo_enteros) {
    if (!AFIRMA(a && b && c && d) || !AFIRMA_LOGICO(solo_enteros)) return FALSO;
    if (no_es_numero(*a) || no_es_numero(*b) || no_es_numero(*c) || no_es_numero(*d)) return FALSO;
    const double x1 = std::min(c->x, d->x), x2 = std::max(c->x, d->x);
    const double y1 = std::min(c->y, d->y), y2 = std::max(c->y, d->y);
    const auto en_la_caja = [=](const Punto2D &p) { return x1 <= p.x && p.x <= x2 && y1 <= p.y && p.y <= y2; };
    if (en_la_caja(*a) && en_la_caja(*b)) return CIERTO;
    // What does not lie in the box is cut to its width from each side in turn; if nothing remains between its lower
    // and upper side, there is no crossing.
    if (solo_enteros == CIERTO) return FALSO;

    // From left to right.
    const Punto2D &izquierda = a->x < b->x ? *a : *b, &derecha = a->x < b->x ? *b : *a;
    double sx1 = izquierda.x, sy1 = izquierda.y, sy2 = derecha.y;
    const double sx2 = derecha.x;
    const auto fuera_en_y = [&] { return (sy1 > y2 && sy2 > y2) || (sy1 < y1 && sy2 < y1); };
    if (sx2 < x1 || sx1 > x2 || fuera_en_y()) return FALSO;
    if (sx1 <= x1) {
        if (std::fabs(sx2 - sx1) >= LIMITE_VERTICAL) {
            sy1 += (sy2 - sy1) * (x1 - sx1) / (sx2 - sx1);
        } else {
            AFIRMA_TEXTO(std::fabs(sx1 - x1) < LIMITE_VERTICAL, "vnstdc_fabs(sx1 - x1) < 1e-6");
            sy1 = y1;
        }
        sx1 = x1;
        if (fuera_en_y()) return FALSO;
    }
    if (x2 <= sx2) {
        if (std::fabs(sx2 - sx1) >= LIMITE_VERTICAL) {
            sy2 = sy1 + (sy2 - sy1) * (x2 - sx1) / (sx2 - sx1);
        } else {
            AFIRMA_TEXTO(std::fabs(sx2 - x2) < LIMITE_VERTICAL, "vnstdc_fabs(sx2 - x2) < 1e-6");
            sy2 = y2;
        }
        if (fuera_en_y()) return FALSO;
    }
    return CIERTO;
}

Punto2D *p_cortan(const Punto2D *p1, const Punto2D *q1, const Punto2D *p2, const Punto2D *q2) {
    if (!AFIRMA(p1 != NULL && q1 != NULL && p2 != NULL && q2 != NULL)) return nullptr;
    return corte({*p1, *q1, false}, {*p2, *q2, false});
}

Punto2D *p_cortan_spec(const Punto2D *p1, const Punto2D *q1, vnbool recta1, const Punto2D *p2, const Punto2D *q2,
                       vnbool recta2) {
    if (!AFIRMA(p1 != NULL && q1 != NULL && p2 != NULL && q2 != NULL)) return nullptr;
    if (!AFIRMA_LOGICO(recta1) || !AFIRMA_LOGICO(recta2)) return nullptr;
    return corte({*p1, *q1, recta1 == CIERTO}, {*p2, *q2, recta2 == CIERTO});
}

Punto2D *p_cortan_seguro(const Punto2D *p1, const Punto2D *q1, const Punto2D *p2, const Punto2D *q2) {
    return p_cortan_spec_seguro(p1, q1, FALSO, p2, q2, FALSO);
}

Punto2D *p_cortan_spec_seguro(const Punto2D *p1, const Punto2D *q1, vnbool recta1, const Punto2D *p2, const Punto2D *q2,
                              vnbool recta2) {
    if (!AFIRMA(p1 != NULL && q1 != NULL && p2 != NULL && q2 != NULL)) return nullptr;
    if (!AFIRMA_LOGICO(recta1) || !AFIRMA_LOGICO(recta2)) return nullptr;
    const pieza a = {*p1, *q1, recta1 == CIERTO}, b = {*p2, *q2, recta2 == CIERTO};
    const bool a_es_punto = iguales(*p1, *q1), b_es_punto = iguales(*p2, *q2);
    if (a_es_punto && b_es_punto) return nullptr;
    Punto2D *hallado = nullptr;
    if (a_es_punto) hallado = corte_de_punto(a, b);
    else if (b_es_punto) hallado = corte_de_punto(b, a);
    return hallado != nullptr ? hallado : corte(a, b);
}
