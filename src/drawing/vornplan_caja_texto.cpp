#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_caja_texto.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include <cstdint>
#include <iterator>

namespace {

// A row of three codes: how much of the height stands below and above the anchor, where the middle is, in half heights.
struct banda {
    double abajo, arriba, al_centro;
};
constexpr banda BANDAS[] = {
    {0., 1., 1.},              // 1 to 3: bottom
    {.5, .5, 0.},              // 4 to 6: middle
    {1., 0., -1.},             // 7 to 9: top
    {1. - 8. / 9, 8. / 9, .6}, // 10 to 12: low band
    {1. - 4. / 9, 4. / 9, -.2} // 13 to 15: high band
};
// Left, centre, right: to which sides of the anchor the text runs.
enum columna : uint8_t { IZQUIERDA, CENTRO, DERECHA };

const banda *banda_de(uint8_t justificacion) {
    const size_t fila = (justificacion - 1u) / 3;
    return justificacion > 0 && fila < std::size(BANDAS) ? &BANDAS[fila]
                                                         : (static_cast<void>(AFIRMA_DEFECTO()), nullptr);
}
columna columna_de(uint8_t justificacion) { return static_cast<columna>((justificacion - 1) % 3); }

} // namespace

void vplan_obtener_4_esquinas_texto(double longitud, double x, double y, double alto, uint8_t justificacion,
                                    double seno, double coseno, double *inf_izq_x, double *inf_izq_y, double *inf_der_x,
                                    double *inf_der_y, double *sup_der_x, double *sup_der_y, double *sup_izq_x,
                                    double *sup_izq_y) {
    if (!EXIGE(inf_izq_x, inf_izq_y, inf_der_x, inf_der_y, sup_der_x, sup_der_y, sup_izq_x, sup_izq_y)) return;
    *inf_izq_x = *inf_der_x = *sup_der_x = *sup_izq_x = x;
    *inf_izq_y = *inf_der_y = *sup_der_y = *sup_izq_y = y;
    const banda *const b = banda_de(justificacion);
    if (b == nullptr) return;
    const columna c = columna_de(justificacion);
    const double medio = c == CENTRO ? longitud / 2. : longitud;
    const double izquierda = c != IZQUIERDA ? -medio : 0., derecha = c != DERECHA ? medio : 0.,
                 abajo = -alto * b->abajo, arriba = alto * b->arriba;
    *inf_izq_x += izquierda, *inf_izq_y += abajo;
    *inf_der_x += derecha, *inf_der_y += abajo;
    *sup_der_x += derecha, *sup_der_y += arriba;
    *sup_izq_x += izquierda, *sup_izq_y += arriba;
    const struct {
        double *x, *y;
    } ESQUINAS[] = {{inf_izq_x, inf_izq_y}, {inf_der_x, inf_der_y}, {sup_der_x, sup_der_y}, {sup_izq_x, sup_izq_y}};
    for (const auto &e : ESQUINAS) mt_gira_coords_respecto_a_un_punto(x, y, coseno, seno, e.x, e.y);
}

void vplan_dame_centro_y_proyecciones(double x, double y, uint8_t justificacion, double alto, double coseno,
                                      double seno, double longitud, double *xc, double *yc, double *largo_x,
                                      double *largo_y, double *alto_x, double *alto_y) {
    if (!EXIGE(xc, yc, largo_x, largo_y, alto_x, alto_y)) return;
    *xc = x;
    *yc = y;
    *largo_x = *largo_y = *alto_x = *alto_y = 0.;
    if (!AFIRMA(ES_MAYOR_IGUAL_CERO(longitud) == CIERTO) || !AFIRMA(alto > 0.)) return;
    const banda *const b = banda_de(justificacion);
    if (b == nullptr) return;
    *largo_x = longitud * coseno / 2.;
    *largo_y = longitud * seno / 2.;
    *alto_x = -alto * seno / 2.;
    *alto_y = alto * coseno / 2.;
    constexpr double LADOS[] = {1., 0., -1.}; // left, centre, right
    const double lado = LADOS[columna_de(justificacion)];
    *xc += lado * *largo_x + b->al_centro * *alto_x;
    *yc += lado * *largo_y + b->al_centro * *alto_y;
}
