#define VN_MODULO "gcMat4x4 (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/gcMat4x4.h"
#include "foundation/numeros/afin.hpp"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/vornspy.h"
#include <new>

struct gcMat4x4 {
    vn::matriz4 m;
};

namespace {

gcMat4x4 *nueva(const vn::matriz4 &m) { return new (vornspy_malloc(sizeof(gcMat4x4))) gcMat4x4{m}; }

} // namespace

gcMat4x4 *gcMat4x4_make_translation(double dx, double dy, double dz) {
    return nueva(vn::matriz4::traslacion({dx, dy, dz}));
}

gcMat4x4 *gcMat4x4_make_scale(double ex, double ey, double ez) { return nueva(vn::matriz4::escala(ex, ey, ez)); }

gcMat4x4 *gcMat4x4_make_rotation_around_axis(double ejex, double ejey, double ejez, double angulo) {
    Punto3D eje{ejex, ejey, ejez};
    if (!AFIRMA_TEXTO(vn::numeros::unitario(eje), "mt_pasar_a_unitario_3D(&ejex, &ejey, &ejez) == CIERTO"))
        return nullptr;
    return nueva(vn::matriz4::giro(eje, angulo));
}

gcMat4x4 *gcMat4x4_make_3D_transform(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx,
                                     double Vy, double Vz, double Wx, double Wy, double Wz) {
    return nueva(vn::matriz4::de_ejes({Xo, Yo, Zo}, {Ux, Uy, Uz}, {Vx, Vy, Vz}, {Wx, Wy, Wz}));
}

gcMat4x4 *gcMat4x4_multiply(const gcMat4x4 *a, const gcMat4x4 *b) { return EXIGE(a, b) ? nueva(a->m * b->m) : nullptr; }

gcMat4x4 *gcMat4x4_inverse(const gcMat4x4 *m) {
    if (!AFIRMA_NO_NULO(m)) return nullptr;
    const auto inversa = m->m.inversa();
    return AFIRMA_TEXTO(inversa.has_value(), "hay_inversa == CIERTO") ? nueva(*inversa) : nullptr;
}

double gcMat4x4_get(const gcMat4x4 *m, uint32_t i, uint32_t j) {
    return AFIRMA_NO_NULO(m) && AFIRMA(i < 4) && AFIRMA(j < 4) ? m->m.m[i][j] : 0.;
}

void gcMat4x4_get_row(const gcMat4x4 *m, uint32_t i, double *c0, double *c1, double *c2, double *c3) {
    if (!EXIGE(c0, c1, c2, c3)) return;
    *c0 = *c1 = *c2 = *c3 = 0.;
    if (!AFIRMA_NO_NULO(m) || !AFIRMA(i < 4)) return;
    const double(&fila)[4] = m->m.m[i];
    *c0 = fila[0], *c1 = fila[1], *c2 = fila[2], *c3 = fila[3];
}

void gcMat4x4_free(gcMat4x4 **m) {
    if (EXIGE(m, *m)) vornspy_free_pp(m, sizeof **m);
}
