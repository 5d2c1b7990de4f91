#define VN_MODULO "punto (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/punto.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/vornspy.h"

Punto2D *creapunto(double x, double y) {
    auto *p = static_cast<Punto2D *>(vornspy_malloc(sizeof(Punto2D)));
    *p = {x, y};
    return p;
}

Punto2D *p_copia(const Punto2D *p) { return AFIRMA_NO_NULO(p) ? creapunto(p->x, p->y) : nullptr; }
