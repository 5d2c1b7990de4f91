#include "foundation/numeros/vncopro.h"
#include "prueba.h"
#include <bit>
#include <cfenv>
#include <cstring>
#include <limits>

PRUEBA(vncopro, solo_los_numeros_malos_se_sustituyen_por_cero) {
    const struct {
        uint64_t bits;
        vnbool incorrecto, denormal;
    } filas[] = {
        {0x7FF0000000000000, 1, 0}, {0xFFF0000000000000, 1, 0}, {0x7FF8000000000000, 1, 0},
        {0x7FF0000000000001, 1, 0}, // signalling
        {0x0000000000000001, 0, 1}, {0x800FFFFFFFFFFFFF, 0, 1}, {0x0010000000000000, 0, 0},
        {0x8000000000000000, 0, 0}, {0x7FEFFFFFFFFFFFFF, 0, 0}, {0xC00921FB54442D18, 0, 0},
    };
    for (const auto &f : filas) {
        double x;
        std::memcpy(&x, &f.bits, sizeof x);
        vnbool incorrecto = 7, denormal = 7;
        vncopro_filtra_double_con_posible_error(&x, &incorrecto, &denormal);
        EXPECT_EQ(incorrecto, f.incorrecto) << std::hex << f.bits;
        EXPECT_EQ(denormal, f.denormal) << std::hex << f.bits;
        EXPECT_EQ(std::bit_cast<uint64_t>(x), f.incorrecto || f.denormal ? 0 : f.bits) << std::hex << f.bits;
    }
}

PRUEBA(vncopro, la_unidad_vuelve_al_redondeo_y_a_los_denormales_de_siempre) {
    std::fesetround(FE_UPWARD);
    std::feraiseexcept(FE_INVALID | FE_OVERFLOW);
    vncopro_inicializa_coprocesador_activando_excepciones_coma_flotante();
    EXPECT_EQ(std::fegetround(), FE_TONEAREST);
    EXPECT_EQ(std::fetestexcept(FE_ALL_EXCEPT), 0);
    volatile double minimo = std::numeric_limits<double>::min(), tercio = 3., uno = 1., cero = 0.;
    EXPECT_GT(minimo / tercio, 0.);
    EXPECT_EQ(uno / tercio, 1. / 3.);
    EXPECT_EQ(uno / cero, std::numeric_limits<double>::infinity());
}
