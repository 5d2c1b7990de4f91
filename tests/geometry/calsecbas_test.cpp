#include "geometry/calsecbas.h"
#include "propiedades.h"

PRUEBA(calsecbas, el_giro_lleva_los_momentos_a_los_principales) {
    const auto angulo = calsecbas_angulo_giro_entre_ejes_yz_y_ejes_principales;
    vn::azar a(32);
    for (int i = 0; i < 20000; ++i) {
        const double imin = a.entre(1., 50.), imax = imin + a.entre(0.1, 50.), giro = a.entre(0., 1.57);
        const double c = std::cos(giro), s = std::sin(giro), iy = imax * c * c + imin * s * s,
                     iz = imax * s * s + imin * c * c;
        ASSERT_NEAR(angulo(iy, iz, CIERTO, imax, imin), giro, 1e-6);
        ASSERT_EQ(angulo(iy, iz, FALSO, imax, imin), -angulo(iy, iz, CIERTO, imax, imin));
    }
    EXPECT_EQ(angulo(5., 5., FALSO, 5., 5.), 0.);
    EXPECT_EQ(angulo(0., 0., CIERTO, 1e-10, 0.), 0.); // equal to 1e-10, at the limit; one step further not
    EXPECT_TRUE(vn::cerca(angulo(0., 0., CIERTO, vn::tras(1e-10), 0.), 0.7853981633974483));
    EXPECT_EQ(angulo(5. + 1e-9, 1., CIERTO, 5., 1.), 0.); // rounding put the cosine beyond 1
    for (const double imax : {1., 5. - 1e-10, vn::NAN_})
        EXPECT_EQ(ESPERA_INFORME("Imax + precision > Imin", angulo(5., 1., CIERTO, imax, 5.)), 0.);
}
