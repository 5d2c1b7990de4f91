#include "foundation/numeros/cambtipo.h"
#include "prueba.h"

namespace {

// Both ends of what fits go through; one step beyond is reported and comes back as that end.
template <class De, class A>
void extremos(A (*f)(De), std::type_identity_t<De> minimo, std::type_identity_t<De> maximo, const char *texto) {
    for (const De fin : {minimo, maximo}) {
        EXPECT_EQ(f(fin), static_cast<A>(fin)) << texto;
        if (fin == (fin == minimo ? std::numeric_limits<De>::min() : std::numeric_limits<De>::max())) continue;
        EXPECT_EQ(f(static_cast<De>(fin == minimo ? fin - 1 : fin + 1)), static_cast<A>(fin)) << texto;
        vn::espera_informes({texto}, __FILE__, __LINE__);
    }
}
#define EXTREMOS(de, a, ...) extremos(cambtipo_##de##_a_##a, __VA_ARGS__, #de " valor cabe en " #a)

} // namespace

PRUEBA(cambtipo, los_extremos_caben_y_lo_demas_se_informa_y_se_acota) {
    EXTREMOS(int64, size_t, 0, INT64_MAX);
    EXTREMOS(int64, unsigned_long, 0, UINT32_MAX);
    EXTREMOS(time_t, long, INT32_MIN, INT32_MAX);
    EXTREMOS(time_t, unsigned_long, 0, UINT32_MAX);
    EXTREMOS(int, char, -128, 127);
    EXTREMOS(int, unsigned_char, 0, 255);
    EXTREMOS(int, unsigned_long, 0, INT32_MAX);
    EXTREMOS(int, unsigned_short, 0, 65535);
    EXTREMOS(long, unsigned_long, 0, INT32_MAX);
    EXTREMOS(short, unsigned_int, 0, 32767);
    EXTREMOS(size_t, unsigned_long, 0, UINT32_MAX);
    EXTREMOS(unsigned_int, int, 0, INT32_MAX);
    EXTREMOS(unsigned_long64, unsigned_long, 0, UINT32_MAX);
    EXTREMOS(unsigned_long, int, 0, INT32_MAX);
    EXTREMOS(unsigned_long, long, 0, INT32_MAX);
    EXTREMOS(unsigned_long, short, 0, 32767);
    EXTREMOS(unsigned_long, unsigned_char, 0, 255);
    EXTREMOS(unsigned_long, unsigned_short, 0, 65535);
    EXPECT_EQ(cambtipo_long_a_time_t(-1), -1); // a date before 1970 keeps its sign in 64 bits
}

PRUEBA(cambtipo, un_double_cabe_si_cabe_su_parte_entera) {
    static constexpr const char *TEXTO = "cambtipo_se_puede_double_a_ulong(valor) == CIERTO";
    EXPECT_EQ(cambtipo_double_a_ulong(4294967295.9), UINT32_MAX);
    EXPECT_EQ(cambtipo_double_a_ulong(-0.9), 0u);
    EXPECT_EQ(ESPERA_INFORME(TEXTO, cambtipo_double_a_ulong(4294967296.)), UINT32_MAX);
    EXPECT_EQ(ESPERA_INFORME(TEXTO, cambtipo_double_a_ulong(-1e308)), 0u);
    EXPECT_EQ(ESPERA_INFORME(TEXTO, cambtipo_double_a_ulong(vn::NAN_)), 0u);
    EXPECT_EQ(cambtipo_se_puede_double_a_ulong(-1.), FALSO);
    EXPECT_EQ(cambtipo_se_puede_double_a_ulong(7.5), CIERTO);
}
