#define VN_MODULO "punto (NUCLEOS.DLL)"
// Coordinates, lengths, turns and angles of points; anchors of a box.
#include "geometry/punto_vectores.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "geometry/punto_priv.h"
#include <cmath>
#include <cstdint>
#include <iterator>

using namespace vn;
using namespace vn::numeros;

namespace {

// Direction that is taken for the x axis itself, radians.
constexpr double ANGULO_NULO = 1e-08;
// Turn that is not worth doing, radians.
constexpr double GIRO_MINIMO = 1e-07;
// From an anchor to the centre, in tenths of the width and the height; by anchor, from 1.
struct decimas {
    int8_t x, y;
};
constexpr decimas AL_CENTRO[] = {{5, 5}, {0, 5}, {-5, 5}, {5, 0}, {0, 0}, {-5, 0}, {5, -5}, {0, -5}, {-5, -5}};
static_assert(std::size(AL_CENTRO) == 9);
constexpr uint32_t POSICION_CENTRO = 5;

Punto2D hasta_el_centro(uint32_t posicion, double ancho, double alto, double coseno, double seno) {
    const decimas &d = AL_CENTRO[posicion - 1];
    const double a_lo_ancho = d.x / 10.0 * ancho, a_lo_alto = d.y / 10.0 * alto;
    return {a_lo_ancho * coseno - a_lo_alto * seno, a_lo_ancho * seno + a_lo_alto * coseno};
}

bool mueve_de_posicion(Punto2D &p, uint32_t posicion, double ancho, double alto, double coseno, double seno,
                       uint32_t otra_posicion) {
    if (posicion == 0) posicion = POSICION_CENTRO;
    if (otra_posicion == 0) otra_posicion = POSICION_CENTRO;
    if (!AFIRMA(posicion > 0 && posicion < 10 && otra_posicion > 0 && otra_posicion < 10)) return false;
    // By way of the centre, so that nine anchors need nine rows and not eighty-one.
    const Punto2D al_centro = hasta_el_centro(posicion, ancho, alto, coseno, seno);
    const Punto2D del_centro = hasta_el_centro(otra_posicion, ancho, alto, coseno, seno);
    p = p + al_centro - del_centro;
    return true;
}

} // namespace

// ---------------------------------------------------------------- coordinates and vectors

double p_x(const Punto2D *p) { return AFIRMA_TEXTO(p != nullptr, "p != NULL") ? p->x : 0.; }
double p_y(const Punto2D *p) { return AFIRMA_TEXTO(p != nullptr, "p != NULL") ? p->y : 0.; }

void p_cambiax(double x, Punto2D *p) {
    if (AFIRMA_TEXTO(p != nullptr, "p != NULL")) p->x = x;
}

void p_cambiay(double y, Punto2D *p) {
    if (AFIRMA_TEXTO(p != nullptr, "p != NULL")) p->y = y;
}

void p_cambiaxy(double x, double y, Punto2D *p) {
    if (AFIRMA_TEXTO(p != nullptr, "p != NULL")) *p = {x, y};
}

void p_asignar(Punto2D *destino, const Punto2D *origen) {
    if (AFIRMA(destino && origen)) *destino = *origen;
}

Punto2D *p_sump(const Punto2D *p, const Punto2D *q) { return AFIRMA(p && q) ? nuevo(*p + *q) : nullptr; }
Punto2D *p_restp(const Punto2D *p, const Punto2D *q) { return AFIRMA(p && q) ? nuevo(*p - *q) : nullptr; }
double p_prodpuntos(const Punto2D *p, const Punto2D *q) { return AFIRMA(p && q) ? escalar(*p, *q) : 0.; }
double p_modulo(const Punto2D *p) { return AFIRMA_TEXTO(p != nullptr, "p != NULL") ? modulo(*p) : 0.; }
double p_modulo2(const Punto2D *p, const Punto2D *q) { return AFIRMA(p && q) ? modulo(*p - *q) : 0.; }
double p_dist2(const Punto2D *p, const Punto2D *q) { return AFIRMA(p && q) ? cuadrado(*p - *q) : 0.; }

Punto2D *p_punto_relativo_a_dos(const Punto2D *p, const Punto2D *q, double t) {
    return AFIRMA(p && q) ? nuevo(relativo(*p, *q, t)) : nullptr;
}

Punto2D *p_porcion(const Punto2D *p, const Punto2D *q, double por) {
    if (!AFIRMA(p && q)) return nullptr;
    // Reported, and made all the same.
    AFIRMA(por >= 0. && por <= 1.);
    return nuevo(relativo(*p, *q, por));
}

Punto2D *p_centro(const Punto2D *p, const Punto2D *q) { return p_porcion(p, q, 0.5); }

Punto2D *p_punto_en_recta(const Punto2D *p, double x0, double y0, double seno, double coseno) {
    if (!AFIRMA_TEXTO(p != nullptr, "p != NULL")) return nullptr;
    const double avance = (p->x - x0) * coseno + (p->y - y0) * seno;
    return creapunto(x0 + avance * coseno, y0 + avance * seno);
}

void p_punto_simetrico_respecto_a_una_recta(double x, double y, double x0, double y0, double coseno, double seno,
                                            double *xs, double *ys) {
    if (!EXIGE(xs, ys)) return;
    const double avance = (x - x0) * coseno + (y - y0) * seno;
    *xs = 2. * (x0 + avance * coseno) - x;
    *ys = 2. * (y0 + avance * seno) - y;
}

void p_parametros_segmento(const Punto2D *p1, const Punto2D *p2, double *longitud, double *coseno, double *seno) {
    if (AFIRMA(p1 && p2)) f_mt_parametros_segmento(p1->x, p1->y, p2->x, p2->y, longitud, coseno, seno);
}

// ---------------------------------------------------------------- turns and other changes of place

void p_gira_xy(double x, double y, double coseno, double seno, double *xg, double *yg) {
    mt_gira_xy_sentido_horario(x, y, coseno, seno, xg, yg);
}

void p_gira2(const Punto2D *p, Punto2D *q, double seno, double coseno) {
    if (!AFIRMA(p && q)) return;
    const Punto2D centro = *p; // which may be q itself
    mt_gira_xy_sentido_horario(q->x - centro.x, q->y - centro.y, coseno, seno, &q->x, &q->y);
    *q = *q + centro;
}

void p_gira_alrededor_punto_sentido_horario(double cx, double cy, double angulo, double *x, double *y) {
    if (!EXIGE(x, y)) return;
    // Neither a turn that is only rounding, nor one by what is no angle, moves the point.
    if (std::fabs(angulo) < GIRO_MINIMO || !std::isfinite(angulo)) return;
    double xg = 0., yg = 0.;
    mt_gira_xy_sentido_horario(*x - cx, *y - cy, vnstdc_cos(angulo), vnstdc_sin(angulo), &xg, &yg);
    *x = cx + xg;
    *y = cy + yg;
}

void p_redondea(Punto2D *p, uint8_t decimales) {
    if (!AFIRMA_TEXTO(p != nullptr, "p != NULL")) return;
    *p = {prec_redondea_numero_decimales(p->x, decimales), prec_redondea_numero_decimales(p->y, decimales)};
}

void p_transforma_coords_con_origen_escala_giro_y_desplazamiento(Punto2D *p, double x_origen, double y_origen,
                                                                 double escala, double coseno, double seno,
                                                                 double desplaz_x, double desplaz_y) {
    if (!AFIRMA_TEXTO(p != nullptr, "p != NULL")) return;
    mt_transforma_coords_con_origen_escala_giro_y_desplazamiento(x_origen, y_origen, escala, coseno, seno, desplaz_x,
                                                                 desplaz_y, &p->x, &p->y);
}

void p_coordenadas_en_otra_posicion(double x, double y, uint32_t posicion, double ancho, double alto, double coseno,
                                    double seno, uint32_t otra_posicion, double *otra_pos_x, double *otra_pos_y) {
    if (!EXIGE(otra_pos_x, otra_pos_y)) return;
    Punto2D p = {x, y};
    if (!mueve_de_posicion(p, posicion, ancho, alto, coseno, seno, otra_posicion)) return;
    *otra_pos_x = p.x;
    *otra_pos_y = p.y;
}

void p_punto_en_otra_posicion(Punto2D *p, uint32_t posicion, double ancho, double alto, double coseno, double seno,
                              uint32_t otra_posicion) {
    if (AFIRMA_TEXTO(p != nullptr, "p != NULL"))
        mueve_de_posicion(*p, posicion, ancho, alto, coseno, seno, otra_posicion);
}

// ---------------------------------------------------------------- angles

double p_filtra_angulo(double a) { return mt_filtra_angulo_mayor_que_cero(a); }

double p_angulo(const Punto2D *p, const Punto2D *q) {
    if (!AFIRMA(p && q) || (p->x == q->x && p->y == q->y)) return 0.;
    // What is just below the x axis is on it: it would be almost a full turn.
    const double a = vnstdc_atan2(q->y - p->y, q->x - p->x);
    if (std::fabs(a) < ANGULO_NULO || std::isnan(a)) return 0.;
    return a < 0. ? a + VUELTA : a;
}

double p_angulo_recta(const Punto2D *p, const Punto2D *q) {
    const double a = p_angulo(p, q);
    return a >= MEDIA_VUELTA ? a - MEDIA_VUELTA : a;
}

vnbool p_entre_angulos(double a1, double a, double a2) {
    if (!std::isfinite(a1) || !std::isfinite(a) || !std::isfinite(a2)) return FALSO;
    // All three within one turn from the first.
    const double desde = p_filtra_angulo(a1);
    double cual = p_filtra_angulo(a), hasta = p_filtra_angulo(a2);
    if (hasta < desde) hasta += VUELTA;
    if (cual < desde) cual += VUELTA;
    return logico(cual > desde && cual <= hasta);
}
