#include "foundation/numeros/cambtipo.h"
#include "prueba.h"
#include <limits>

namespace {

// Both ends of what fits go through; one step beyond is reported and comes back as that end.
template <class De, class A> void extremos(A (*f)(De), De minimo, De maximo, const char *texto) {
    EXPECT_EQ(f(minimo), static_cast<A>(minimo)) << texto;
    EXPECT_EQ(f(maximo), static_cast<A>(maximo)) << texto;
    const auto fuera = [&](De valor, De esperado) {
        EXPECT_EQ(f(valor), static_cast<A>(esperado)) << texto;
        vn::espera_informes({texto}, __FILE__, __LINE__);
    };
    if (minimo > std::numeric_limits<De>::min()) fuera(static_cast<De>(minimo - 1), minimo);
    if (maximo < std::numeric_limits<De>::max()) fuera(static_cast<De>(maximo + 1), maximo);
}

} // namespace

PRUEBA(cambtipo, los_extremos_caben_y_lo_demas_se_informa_y_se_acota) {
    extremos<int64_t>(cambtipo_int64_a_size_t, 0, INT64_MAX, "int64 valor cabe en size_t");
    extremos<int64_t>(cambtipo_int64_a_unsigned_long, 0, UINT32_MAX, "int64 valor cabe en unsigned_long");
    extremos<int64_t>(cambtipo_time_t_a_long, INT32_MIN, INT32_MAX, "time_t valor cabe en long");
    extremos<int64_t>(cambtipo_time_t_a_unsigned_long, 0, UINT32_MAX, "time_t valor cabe en unsigned_long");
    extremos<int>(cambtipo_int_a_char, -128, 127, "int valor cabe en char");
    extremos<int>(cambtipo_int_a_unsigned_char, 0, 255, "int valor cabe en unsigned_char");
    extremos<int>(cambtipo_int_a_unsigned_long, 0, INT32_MAX, "int valor cabe en unsigned_long");
    extremos<int>(cambtipo_int_a_unsigned_short, 0, 65535, "int valor cabe en unsigned_short");
    extremos<int32_t>(cambtipo_long_a_unsigned_long, 0, INT32_MAX, "long valor cabe en unsigned_long");
    extremos<int16_t>(cambtipo_short_a_unsigned_int, 0, 32767, "short valor cabe en unsigned_int");
    extremos<size_t>(cambtipo_size_t_a_unsigned_long, 0, UINT32_MAX, "size_t valor cabe en unsigned_long");
    extremos<unsigned>(cambtipo_unsigned_int_a_int, 0, INT32_MAX, "unsigned_int valor cabe en int");
    extremos<uint64_t>(cambtipo_unsigned_long64_a_unsigned_long, 0, UINT32_MAX,
                       "unsigned_long64 valor cabe en unsigned_long");
    extremos<uint32_t>(cambtipo_unsigned_long_a_int, 0, INT32_MAX, "unsigned_long valor cabe en int");
    extremos<uint32_t>(cambtipo_unsigned_long_a_long, 0, INT32_MAX, "unsigned_long valor cabe en long");
    extremos<uint32_t>(cambtipo_unsigned_long_a_short, 0, 32767, "unsigned_long valor cabe en short");
    extremos<uint32_t>(cambtipo_unsigned_long_a_unsigned_char, 0, 255, "unsigned_long valor cabe en unsigned_char");
    extremos<uint32_t>(cambtipo_unsigned_long_a_unsigned_short, 0, 65535, "unsigned_long valor cabe en unsigned_short");
    EXPECT_EQ(cambtipo_long_a_time_t(-1), -1); // a date before 1970 keeps its sign in 64 bits
}

PRUEBA(cambtipo, un_double_cabe_si_cabe_su_parte_entera) {
    static constexpr const char *TEXTO = "cambtipo_se_puede_double_a_ulong(valor) == CIERTO";
    EXPECT_EQ(cambtipo_double_a_ulong(4294967295.9), UINT32_MAX);
    EXPECT_EQ(cambtipo_double_a_ulong(-0.9), 0u);
    EXPECT_EQ(ESPERA_INFORME(TEXTO, cambtipo_double_a_ulong(4294967296.)), UINT32_MAX);
    EXPECT_EQ(ESPERA_INFORME(TEXTO, cambtipo_double_a_ulong(-1e308)), 0u);
    EXPECT_EQ(ESPERA_INFORME(TEXTO, cambtipo_double_a_ulong(std::numeric_limits<double>::quiet_NaN())), 0u);
    EXPECT_EQ(cambtipo_se_puede_double_a_ulong(-1.), FALSO);
    EXPECT_EQ(cambtipo_se_puede_double_a_ulong(7.5), CIERTO);
}
