#include "geometry/vornmat.h"
#include "propiedades.h"

PRUEBA(vornmat, los_modulos_se_siguen_uno_del_otro_y_lo_imposible_se_informa) {
    EXPECT_EQ(vornmat_modulo_cortadura(2.6e6, 0.3), 1e6); // steel, Tn/m2
    EXPECT_TRUE(vn::cerca(vornmat_modulo_poisson(2.6e6, 1e6), 0.3));
    for (const double nu : {0.05, 0.15, 0.2, 0.3, 0.49})
        EXPECT_TRUE(vn::cerca(vornmat_modulo_poisson(3e6, vornmat_modulo_cortadura(3e6, nu)), nu, 10.));
    EXPECT_EQ(ESPERA_INFORME("modulo_poisson > 0.", vornmat_modulo_cortadura(3., 0.)), 1.5);
    EXPECT_EQ(ESPERA_INFORME("modulo_poisson > 0.", vornmat_modulo_cortadura(3., -1.)), 0.);
    EXPECT_EQ(ESPERA_INFORME("modulo_elasticidad > 0.", vornmat_modulo_cortadura(-3., 0.5)), -1.);
    EXPECT_EQ(ESPERA_INFORME("modulo_poisson > 0.", vornmat_modulo_poisson(3., 2.)), -0.25);
    EXPECT_EQ(ESPERA_INFORME("modulo_cortadura > 0.", vornmat_modulo_poisson(3., 0.)), 0.);
}
