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

double direccion(double seno, double coseno) {
    double a = std::atan2(seno, coseno);
    if (a < 0.) a += VUELTA;
    return a >= 0. && a < VUELTA ? a : 0.; // a hair below 0 comes up to the full turn itself
}

struct transformacion {
    double xo, yo, escala_x, escala_y, coseno, seno, dx, dy;
    void aplica(double *x, double *y) const {
        if (!AFIRMA_NO_NULO(x) || !AFIRMA_NO_NULO(y)) return;
        const double xe = (*x - xo) * escala_x, ye = (*y - yo) * escala_y;
        *x = dx + (xe * coseno - ye * seno);
        *y = dy + (xe * seno + ye * coseno);
    }
};

} // namespace

double mt_distancia(double x1, double y1, double x2, double y2) { return modulo({x2 - x1, y2 - y1, 0.}); }

double mt_distancia_a_recta(double x, double y, double x1, double y1, double x2, double y2) {
    Punto3D u{x2 - x1, y2 - y1, 0.};
    if (!unitario(u)) return mt_distancia(x, y, x1, y1);
    return std::fabs((y - y1) * u.x - (x - x1) * u.y);
}

void f_mt_parametros_segmento(double x1, double y1, double x2, double y2, double *longitud, double *coseno,
                              double *seno) {
    Punto3D u{x2 - x1, y2 - y1, 0.};
    const double l = modulo(u);
    if (!unitario(u)) u = {1., 0., 0.};
    da(longitud, coseno, seno, {l, u.x, u.y});
}

double mt_posicion_relativa_a_segmento(double x, double y, double x1, double y1, double x2, double y2) {
    const Punto3D d{x2 - x1, y2 - y1, 0.}, p{x - x1, y - y1, 0.};
    const double den = escalar(d, d);
    if (den > CUADRADO_MINIMO && den < CUADRADO_MAXIMO) [[likely]]
        return escalar(d, p) / den;
    const double k = escala_exacta(d);
    const Punto3D e = k * d;
    return k == 0. ? 0. : escalar(e, k * p) / escalar(e, e);
}

vnbool mt_pasar_a_unitario_2D(double *x, double *y) {
    if (!AFIRMA_NO_NULO(x) || !AFIRMA_NO_NULO(y)) return FALSO;
    Punto3D v{*x, *y, 0.};
    if (!unitario(v)) return FALSO;
    *x = v.x;
    *y = v.y;
    return CIERTO;
}

double mt_producto_vectorial_plano(double x1, double y1, double x2, double y2) { return x1 * y2 - y1 * x2; }

void mt_bisectriz(double x1, double y1, double x2, double y2, double *x, double *y) {
    if (!AFIRMA_NO_NULO(x) || !AFIRMA_NO_NULO(y)) return;
    // The right normal of the chord points to the middle of every counter-clockwise arc; a short chord has
    // too few digits, and there the sum of the two serves, turned about when the arc is the long one.
    Punto3D b{y2 - y1, x1 - x2, 0.};
    if (x1 * x2 + y1 * y2 > 0.) {
        const double signo = mt_producto_vectorial_plano(x1, y1, x2, y2) < 0. ? -1. : 1.;
        b = {signo * (x1 + x2), signo * (y1 + y2), 0.};
    }
    if (!unitario(b)) b = {x1, y1, 0.};
    *x = b.x;
    *y = b.y;
}

vnbool mt_puntos2D_iguales(double x1, double y1, double x2, double y2) {
    return mt_puntos2D_iguales_con_tolerancia(x1, y1, x2, y2, VNMATH_TOLERANCIA);
}

vnbool mt_puntos2D_iguales_con_tolerancia(double x1, double y1, double x2, double y2, double tolerancia) {
    return logico(SON_IGUALES_PREC(x1, x2, tolerancia) == CIERTO && SON_IGUALES_PREC(y1, y2, tolerancia) == CIERTO);
}

double mt_angulo(double x1, double y1, double x2, double y2) { return direccion(y2 - y1, x2 - x1); }

double mt_angulo_a_partir_de_seno_y_coseno(double seno, double coseno) { return direccion(seno, coseno); }

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
    if (!AFIRMA_NO_NULO(xg) || !AFIRMA_NO_NULO(yg)) return;
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
    if (!AFIRMA_NO_NULO(x_proyectado) || !AFIRMA_NO_NULO(y_proyectado)) return;
    *x_proyectado = x + y * CABALLERA;
    *y_proyectado = z + y * CABALLERA;
}

void mt_proyectado_a_real(double x_proyectado, double y_proyectado, double *x, double *y) {
    if (!AFIRMA_NO_NULO(x) || !AFIRMA_NO_NULO(y)) return;
    *x = x_proyectado - y_proyectado; // what y adds to both of them at z = 0
    *y = y_proyectado / CABALLERA;
}
