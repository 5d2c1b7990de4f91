#define VN_MODULO "calsecbas (NUCLEOS.DLL)"
#include "geometry/calsecbas.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include <algorithm>
#include <cmath>

double calsecbas_angulo_giro_entre_ejes_yz_y_ejes_principales(double Iy, double Iz, vnbool signo_positivo, double Imax,
                                                              double Imin) {
    // Principal moments that differ by less are equal: every axis is principal.
    constexpr double precision = 1e-10;
    if (!AFIRMA_LOGICO(signo_positivo) || !AFIRMA(Imax + precision > Imin)) return 0.;
    if (std::fabs(Imax - Imin) <= precision) return 0.;
    const double coseno = (Iy - Iz) / (Imax - Imin);
    if (std::isnan(coseno)) return 0.;
    const double angulo = vnstdc_acos(std::clamp(coseno, -1., 1.)) / 2.;
    return signo_positivo == CIERTO ? angulo : -angulo;
}
