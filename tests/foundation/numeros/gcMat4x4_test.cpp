#include "foundation/numeros/gcMat4x4.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <array>

namespace {

using matriz = vn::dueno<gcMat4x4_free>;

// A point through the matrix, which has no perspective.
std::array<double, 3> por(const matriz &m, std::array<double, 3> p) {
    std::array<double, 3> r;
    for (uint32_t i = 0; i < 3; ++i) {
        double c[4];
        gcMat4x4_get_row(m.get(), i, &c[0], &c[1], &c[2], &c[3]);
        r[i] = c[0] * p[0] + c[1] * p[1] + c[2] * p[2] + c[3];
        EXPECT_EQ(gcMat4x4_get(m.get(), i, 3), c[3]);
    }
    return r;
}
void esperado(const matriz &m, std::array<double, 3> p, std::array<double, 3> q, double escala = 10.) {
    const auto r = por(m, p);
    for (int i = 0; i < 3; ++i) EXPECT_TRUE(vn::cerca(r[i], q[i], escala)) << i;
}

} // namespace

PRUEBA(gcMat4x4, cada_clase_lleva_los_puntos_donde_dice) {
    const double media = 3.141592653589793 / 2.;
    esperado(matriz(gcMat4x4_make_translation(1, 2, 3)), {5, 5, 5}, {6, 7, 8});
    esperado(matriz(gcMat4x4_make_scale(1, 2, -3)), {5, 5, 5}, {5, 10, -15});
    esperado(matriz(gcMat4x4_make_rotation_around_axis(0, 0, 7, media)), {1, 0, 4}, {0, 1, 4});
    esperado(matriz(gcMat4x4_make_rotation_around_axis(2, 0, 0, media)), {1, 1, 0}, {1, 0, 1});
    esperado(matriz(gcMat4x4_make_3D_transform(1, 2, 3, 0, 1, 0, 0, 0, 1, 1, 0, 0)), {10, 20, 30}, {31, 12, 23}, 100.);
    EXPECT_EQ(ESPERA_INFORME("mt_pasar_a_unitario_3D(&ejex, &ejey, &ejez) == CIERTO",
                             gcMat4x4_make_rotation_around_axis(0, 0, 0, 1.)),
              nullptr);
    const matriz plana(gcMat4x4_make_scale(1, 0, 1));
    EXPECT_EQ(ESPERA_INFORME("hay_inversa == CIERTO", gcMat4x4_inverse(plana.get())), nullptr);
}

PRUEBA(gcMat4x4, el_producto_aplica_primero_el_segundo_y_la_inversa_lo_deshace) {
    const matriz va(gcMat4x4_make_translation(5e5, 4.5e6, 600)), gira(gcMat4x4_make_rotation_around_axis(1, 2, 3, .7)),
        lugar(gcMat4x4_multiply(va.get(), gira.get())), vuelta(gcMat4x4_inverse(lugar.get()));
    const std::array<double, 3> p{3, -4, 5};
    esperado(lugar, p, por(va, por(gira, p)), 5e6);
    esperado(vuelta, por(lugar, p), p, 5e6);
    const matriz nada(gcMat4x4_multiply(vuelta.get(), lugar.get()));
    for (uint32_t i = 0; i < 4; ++i)
        for (uint32_t j = 0; j < 4; ++j) EXPECT_TRUE(vn::cerca(gcMat4x4_get(nada.get(), i, j), i == j, 5e6));
}
