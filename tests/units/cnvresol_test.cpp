#include "prueba.h"
#include "units/cnvresol.h"
#include <climits>

using namespace vn;

PRUEBA(cnvresol, de_pixels_a_papel_y_vuelta) {
    EXPECT_EQ(cnvresol_convierte_pixels_a_dmm(96, 96), 254);
    EXPECT_EQ(cnvresol_convierte_dmm_a_pixels(254, 96), 96);
    EXPECT_EQ(cnvresol_convierte_dmm_a_pixels_long(-127, 3), -2); // halves go away from zero
    EXPECT_EQ(cnvresol_convierte_medios_puntos_a_pixels(72, 601), 301);
    EXPECT_EQ(cnvresol_convierte_puntos_a_pixels(10, 96), 13);
    EXPECT_EQ(cnvresol_convierte_milimetros_a_pixels(210, 300), 2480); // an A4 sheet
    EXPECT_EQ(cnvresol_convierte_pixels_a_milimetros(2480, 300), 210);
    for (int ppp = 72; ppp <= 2400; ppp += 17)
        for (int valor = 0; valor < 3000; valor += 7)
            EXPECT_NEAR(cnvresol_convierte_pixels_a_dmm(cnvresol_convierte_dmm_a_pixels(valor, ppp), ppp), valor, 2);
}

PRUEBA(cnvresol, numeros_reales) {
    EXPECT_EQ(cnvresol_convierte_pixels_a_puntos(96, 96), 72);
    EXPECT_EQ(cnvresol_dmm_a_puntos(508), 144);
    EXPECT_EQ(cnvresol_puntos_a_twips(12), 240);
    EXPECT_EQ(cnvresol_milimetros_a_pulgadas(254), 10);
    EXPECT_EQ(cnvresol_pixels_a_metros(9600, 96), 25.4); // ten times the metres
    EXPECT_EQ(cnvresol_dmm_a_twips(25.4), 144u);
    EXPECT_EQ(cnvresol_mm_a_twips(25.4), 1440u);
    EXPECT_EQ(cnvresol_puntos_a_dmm(144), 508u);
    EXPECT_EQ(cnvresol_metros_a_pixels(0.0254, 300), 300u);
}

PRUEBA(cnvresol, lo_que_no_cabe) {
    EXPECT_EQ(cnvresol_convierte_dmm_a_pixels(INT_MAX, 255), -1);
    EXPECT_EQ(cnvresol_convierte_dmm_a_pixels(INT_MAX, 254), INT_MAX);
    EXPECT_EQ(cnvresol_convierte_pixels_a_dmm(1, 0), -1);
    EXPECT_EQ(cnvresol_convierte_milimetros_a_pixels(0, INT_MAX / 10 + 1), -1);
    EXPECT_EQ(cnvresol_convierte_milimetros_a_pixels(127, INT_MAX / 10), 1073741820);
    EXPECT_EQ(cnvresol_convierte_pixels_a_milimetros(1, INT_MIN), -1);
    EXPECT_EQ(ESPERA_INFORME("x >= 0. && x <= ULONG_MAX", cnvresol_mm_a_twips(-1)), 0u);
    EXPECT_EQ(ESPERA_INFORME("x >= 0. && x <= ULONG_MAX", cnvresol_metros_a_pixels(1e300, INT_MAX)), UINT32_MAX);
}
