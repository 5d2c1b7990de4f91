#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_caja_texto.h"
#include "drawing/caja_texto_priv.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"

using namespace vn;

namespace {

// Reports a code that is none.
const banda *banda_de(uint8_t justificacion) {
    const banda *const b = banda_si_hay(justificacion);
    return b != nullptr ? b : (static_cast<void>(AFIRMA_DEFECTO()), nullptr);
}

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
    const double lado = LADOS[columna_de(justificacion)];
    *xc += lado * *largo_x + b->al_centro * *alto_x;
    *yc += lado * *largo_y + b->al_centro * *alto_y;
}
