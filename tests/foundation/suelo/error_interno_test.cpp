#define VN_MODULO "error_interno_test"
#include "prueba.h"
#include <atomic>
#include <cerrno>
#include <thread>

PRUEBA(error_interno, el_receptor_ve_lo_que_se_informa) {
    const uint64_t antes = error_interno_numero_de_informes();
    error_interno("num_marcas > 0", "modulo (X.DLL)", 12, 2);
    error_interno_default_error(nullptr, nullptr, "modulo (X.DLL)", 13, 0);
    error_interno_msg_u(VNU("cad_cadenas_iguales(buf, firma)"), nullptr, 14, VNU("ñandú.obr"), 0);
    auto *detalle = static_cast<vnwchar *>(vornspy_malloc(4 * sizeof(vnwchar)));
    std::char_traits<vnwchar>::copy(detalle, VNU("abc"), 4);
    error_interno_liberando_mensaje_u(VNU("x"), nullptr, 15, detalle, 1);
    EXPECT_EQ(vornspy_es_memoria_reservada_valida(detalle), FALSO);
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 4u);
    EXPECT_EQ(informes[0].expresion, "num_marcas > 0");
    EXPECT_EQ(informes[0].modulo, "modulo (X.DLL)");
    EXPECT_EQ(informes[0].clase, 2);
    EXPECT_EQ(informes[1].linea, 13u);
    EXPECT_EQ(informes[2].detalle, "ñandú.obr");
    EXPECT_EQ(informes[3].detalle, "abc");
    EXPECT_EQ(error_interno_numero_de_informes(), antes + 4);
}

PRUEBA(error_interno, un_receptor_que_informa_no_se_llama_a_si_mismo_y_errno_se_conserva) {
    int llamadas = 0;
    const vnreceptor_informes informa = [](const vninforme *, void *n) {
        ++*static_cast<int *>(n);
        error_interno("otro", "prueba", 1, 0);
    };
    error_interno_instala_receptor(informa, &llamadas);
    errno = ERANGE;
    error_interno("a", nullptr, 1, 0);
    EXPECT_EQ(errno, ERANGE);
    EXPECT_EQ(llamadas, 1);
}

// Changed while others report, no receiver is called with the datum of another; one that throws is called again.
PRUEBA(error_interno, el_receptor_y_su_dato_son_uno) {
    static std::atomic<int> mezclados{0}, vistos{0};
    static const char dato_a = 'a', dato_b = 'b';
    const vnreceptor_informes a = [](const vninforme *, void *d) { mezclados += d != &dato_a, ++vistos; };
    const vnreceptor_informes b = [](const vninforme *, void *d) { mezclados += d != &dato_b, ++vistos; };
    error_interno_instala_receptor(a, const_cast<char *>(&dato_a));
    std::atomic<bool> acaba{false};
    std::thread otra([&] {
        while (!acaba) error_interno("a", nullptr, 1, 0);
    });
    for (int i = 0; i < 20000 || vistos < 100; ++i)
        error_interno_instala_receptor(i % 2 != 0 ? a : b, const_cast<char *>(i % 2 != 0 ? &dato_a : &dato_b));
    acaba = true;
    otra.join();
    EXPECT_EQ(mezclados, 0);
    int llamado = 0;
    error_interno_instala_receptor([](const vninforme *, void *n) { throw ++*static_cast<int *>(n); }, &llamado);
    for (int i = 1; i <= 2; ++i) EXPECT_THROW(error_interno("b", nullptr, 1, 0), int) << i;
    EXPECT_EQ(llamado, 2);
}
