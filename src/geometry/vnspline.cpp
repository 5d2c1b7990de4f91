#define VN_MODULO "vnspline (NUCLEOS.DLL)"
#include "geometry/vnspline.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include <algorithm>
#include <cmath>

namespace {

using vn::numeros::MEDIA_VUELTA, vn::numeros::VUELTA;
// The steepest slope of the curve against its chord.
constexpr double PENDIENTE_MAXIMA = 10.;

// Slope of a direction against the chord.
double pendiente(double angulo, double angulo_cuerda) {
    double relativo = angulo - angulo_cuerda;
    if (relativo > MEDIA_VUELTA) relativo -= VUELTA;
    else if (relativo < -MEDIA_VUELTA) relativo += VUELTA;
    const double t = vnstdc_tan(relativo);
    return std::isnan(t) ? 0. : std::clamp(t, -PENDIENTE_MAXIMA, PENDIENTE_MAXIMA);
}

} // namespace

void vnspline_trazado_tramo_curvo(double x0, double y0, double angulo0, double x1, double y1, double angulo1, double *A,
                                  double *B, double *C, double *D, double *Ux, double *Uy) {
    if (!EXIGE(A, B, C, D, Ux, Uy)) return;
    *A = *B = *C = *D = *Ux = *Uy = 0.;
    double coseno = x1 - x0, seno = y1 - y0;
    const double L = mt_distancia(x0, y0, x1, y1);
    mt_pasar_a_unitario_2D(&coseno, &seno);
    if (!AFIRMA(vnstdc_fabs(seno) < 1.000000001) || !AFIRMA(vnstdc_fabs(coseno) < 1.000000001) || !AFIRMA(L > 0.))
        return;
    const double angulo_base = vnstdc_atan2(seno, coseno);
    const double t1 = pendiente(angulo0, angulo_base), t2 = pendiente(angulo1, angulo_base);
    *A = (t1 + t2) / (L * L);
    *B = -(2. * t1 + t2) / L;
    *C = t1;
    *Ux = coseno;
    *Uy = seno;
}
