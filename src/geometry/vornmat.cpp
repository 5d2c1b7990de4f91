#define VN_MODULO "vornmat (NUCLEOS.DLL)"
#include "geometry/vornmat.h"
#include "foundation/suelo/afirma_int.h"
#include <cmath>

namespace {

double si_es_finito(double x) { return std::isfinite(x) ? x : 0.; }

} // namespace

double vornmat_modulo_cortadura(double modulo_elasticidad, double modulo_poisson) {
    AFIRMA(modulo_elasticidad > 0.);
    AFIRMA(modulo_poisson > 0.);
    return si_es_finito(modulo_elasticidad * 0.5 / (modulo_poisson + 1.0));
}

double vornmat_modulo_poisson(double modulo_elasticidad, double modulo_cortadura) {
    AFIRMA(modulo_elasticidad > modulo_cortadura);
    AFIRMA(modulo_cortadura > 0.);
    const double modulo_poisson = modulo_elasticidad * 0.5 / modulo_cortadura - 1.0;
    AFIRMA(modulo_poisson > 0.);
    return si_es_finito(modulo_poisson);
}
