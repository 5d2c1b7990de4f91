#define VN_MODULO "mt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"

using namespace vn;
using namespace vn::numeros;

namespace {

// Radians to spare at both limits of an arc: cuts that were computed at its very ends belong to it.
constexpr double TOLERANCIA_RANGO = 1e-6;
// Turns that the filter of angles takes off one by one, as a sum of roundings; more are one remainder.
constexpr double VUELTAS_PASO_A_PASO = 65536.;
// Each axis of the cavalier projection: half the depth, at 45 degrees.
constexpr double CABALLERA = 0.5 * 0.70710678118654752440;

// What the operations on coordinates do, step by step: the difference from an origin comes before any product, so that
// a turn about a far point keeps the digits that a matrix would lose.
struct transformacion {
    double xo, yo, escala_x, escala_y, coseno, seno, dx, dy;
    void aplica(double *x, double *y) const {
        if (!EXIGE(x, y)) return;
        const double xe = (*x - xo) * escala_x, ye = (*y - yo) * escala_y;
        *x = dx + (xe * coseno - ye * seno);
        *y = dy + (xe * seno + ye * coseno);
    }
};

} // namespace

double mt_distancia(double x1, double y1, double x2, double y2) { return modulo(Punto2D{x2 - x1, y2 - y1}); }

double mt_distancia_a_recta(double x, double y, double x1, double y1, double x2, double y2) {
    Punto2D u{x2 - x1, y2 - y1};
    if (!unitario(u)) return mt_distancia(x, y, x1, y1);
    return std::fabs(vectorial(u, {x - x1, y - y1}));
}

void f_mt_parametros_segmento(double x1, double y1, double x2, double y2, double *longitud, double *coseno,
                              double *seno) {
    Punto2D u{x2 - x1, y2 - y1};
    const double l = modulo(u);
    if (!unitario(u)) u = {1., 0.};
    da(longitud, coseno, seno, {l, u.x, u.y});
}

double mt_posicion_relativa_a_segmento(double x, double y, double x1, double y1, double x2, double y2) {
    const Punto2D d{x2 - x1, y2 - y1}, p{x - x1, y - y1};
    const double den = cuadrado(d);
    // A zero is added, so that a foot at the first end is 0 and never -0.
    if (den > CUADRADO_MINIMO && den < CUADRADO_MAXIMO) [[likely]]
        return (escalar(d, p) + 0.) / den;
    const double k = escala_exacta(d);
    return k == 0. ? 0. : (escalar(k * d, k * p) + 0.) / cuadrado(k * d);
}

vnbool mt_pasar_a_unitario_2D(double *x, double *y) {
    if (!EXIGE(x, y)) return FALSO;
    Punto2D v{*x, *y};
    if (!unitario(v)) return FALSO;
    da(x, y, v);
    return CIERTO;
}

double mt_producto_vectorial_plano(double x1, double y1, double x2, double y2) {
    return vectorial(Punto2D{x1, y1}, Punto2D{x2, y2});
}

void mt_bisectriz(double x1, double y1, double x2, double y2, double *x, double *y) {
    if (!EXIGE(x, y)) return;
    // The right normal of the chord points to the middle of every counter-clockwise arc; a short chord has too few
    // digits, and there the sum of the two serves, turned about when the arc is the long one.
    const Punto2D u{x1, y1}, v{x2, y2};
    Punto2D b{y2 - y1, x1 - x2};
    if (escalar(u, v) > 0.) b = (vectorial(u, v) < 0. ? -1. : 1.) * (u + v);
    if (!unitario(b)) b = u;
    da(x, y, b);
}

vnbool mt_puntos2D_iguales(double x1, double y1, double x2, double y2) {
    return mt_puntos2D_iguales_con_tolerancia(x1, y1, x2, y2, VNMATH_TOLERANCIA);
}

vnbool mt_puntos2D_iguales_con_tolerancia(double x1, double y1, double x2, double y2, double tolerancia) {
    return logico(SON_IGUALES_PREC(x1, x2, tolerancia) == CIERTO && SON_IGUALES_PREC(y1, y2, tolerancia) == CIERTO);
}

double mt_angulo(double x1, double y1, double x2, double y2) { return angulo({x2 - x1, y2 - y1}); }

double mt_angulo_a_partir_de_seno_y_coseno(double seno, double coseno) { return angulo({coseno, seno}); }

double mt_filtra_angulo_mayor_que_cero(double angulo) {
    if (!std::isfinite(angulo)) return 0.;
    double a = std::fabs(angulo) > VUELTAS_PASO_A_PASO * VUELTA ? std::fmod(angulo, VUELTA) : angulo;
    while (a < 0.) a += VUELTA;
    while (a >= VUELTA) a -= VUELTA;
    return a;
}

vnbool mt_angulo_dentro_de_rango(double angulo, double inicio, double fin) {
    if (!std::isfinite(angulo) || !std::isfinite(inicio) || !std::isfinite(fin)) return FALSO;
    const double dado = fin - inicio;
    if (dado >= VUELTA - TOLERANCIA_RANGO) return CIERTO;
    if (dado <= TOLERANCIA_RANGO - VUELTA && std::fabs(std::remainder(dado, VUELTA)) <= TOLERANCIA_RANGO) return CIERTO;
    // From here on an arc of almost a full turn can only be two equal limits, the last a hair below the
    // first.
    double arco = mt_filtra_angulo_mayor_que_cero(dado);
    if (arco > VUELTA - TOLERANCIA_RANGO) arco = 0.;
    const double a = mt_filtra_angulo_mayor_que_cero(angulo - inicio);
    return logico(a <= arco + TOLERANCIA_RANGO || a >= VUELTA - TOLERANCIA_RANGO);
}

void mt_gira_xy_sentido_horario(double x, double y, double coseno, double seno, double *xg, double *yg) {
    if (!EXIGE(xg, yg)) return;
    *xg = x * coseno + y * seno;
    *yg = y * coseno - x * seno;
}

void mt_gira_coords_respecto_a_un_punto(double xc, double yc, double coseno, double seno, double *x, double *y) {
    transformacion{xc, yc, 1., 1., coseno, seno, xc, yc}.aplica(x, y);
}

void mt_transforma_coords(double escala, double coseno, double seno, double desplaz_x, double desplaz_y, double *x,
                          double *y) {
    transformacion{0., 0., escala, escala, coseno, seno, desplaz_x, desplaz_y}.aplica(x, y);
}

void mt_transforma_coords_con_origen_escala_giro_y_desplazamiento(double x_origen, double y_origen, double escala,
                                                                  double coseno, double seno, double desplaz_x,
                                                                  double desplaz_y, double *x, double *y) {
    transformacion{x_origen, y_origen, escala, escala, coseno, seno, desplaz_x, desplaz_y}.aplica(x, y);
}

void mt_transforma_coords_con_origen_y_diferentes_escalas(double x_origen, double y_origen, double escala_x,
                                                          double escala_y, double coseno, double seno, double desplaz_x,
                                                          double desplaz_y, double *x, double *y) {
    transformacion{x_origen, y_origen, escala_x, escala_y, coseno, seno, desplaz_x, desplaz_y}.aplica(x, y);
}

void mt_real_a_proyectado(double x, double y, double z, double *x_proyectado, double *y_proyectado) {
    if (!EXIGE(x_proyectado, y_proyectado)) return;
    *x_proyectado = x + y * CABALLERA;
    *y_proyectado = z + y * CABALLERA;
}

void mt_proyectado_a_real(double x_proyectado, double y_proyectado, double *x, double *y) {
    if (!EXIGE(x, y)) return;
    *x = x_proyectado - y_proyectado; // what y adds to both of them at z = 0
    *y = y_proyectado / CABALLERA;
}
