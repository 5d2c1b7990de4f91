#define VN_MODULO "acadorde_test"
#include "foundation/listas/acadorde.h"
#include "prueba.h"

PRUEBA(acadorde, distinguiendo_ordena_por_bytes_y_no_repite) {
    acadorde *a = acadorde_crea(CIERTO);
    for (const char *nuevo : {"b", "", "B", "\xF1", "a", "bb"}) EXPECT_EQ(acadorde_inserta(a, nuevo), CIERTO) << nuevo;
    EXPECT_EQ(acadorde_inserta(a, "b"), FALSO);
    const char *orden[] = {"", "B", "a", "b", "bb", "\xF1"};
    ASSERT_EQ(acadorde_numelems(a), 6u);
    for (uint32_t i = 0, pos = 9; i < 6; ++i) {
        EXPECT_STREQ(acadorde_get(a, i), orden[i]);
        EXPECT_EQ(acadorde_existe(a, orden[i], &pos), CIERTO);
        EXPECT_EQ(pos, i);
    }
    uint32_t pos = 0;
    EXPECT_EQ(acadorde_existe(a, "ba", &pos), FALSO);
    EXPECT_EQ(pos, 4u);
    EXPECT_EQ(acadorde_distingue_may_y_min(a), CIERTO);
    EXPECT_EQ(ESPERA_INFORME("i < num_elementos", acadorde_get(a, 6)), nullptr);
    acadorde_destruye(&a);
}

PRUEBA(acadorde, sin_distinguir_el_primero_se_queda) {
    acadorde *a = acadorde_crea(FALSO);
    for (const char *s : {"Viga", "VIGA", "pilar"}) EXPECT_EQ(acadorde_inserta(a, s), s[1] != 'I') << s;
    EXPECT_STREQ(acadorde_get(a, 1), "Viga");
    EXPECT_EQ(acadorde_existe(a, "viga", nullptr), CIERTO);
    acadorde_destruye(&a);

    acadordeu *u = acadordeu_crea(FALSO);
    for (const char *s : {"Ñandú", "ábaco", "ÑANDÚ", "zorro", "Ábaco", "ñandú"})
        acadordeu_inserta(u, vn::ancho(s).c_str());
    ASSERT_EQ(acadordeu_numelems(u), 3u);
    EXPECT_EQ(vn::utf8_de(acadordeu_get(u, 0)), "zorro");
    EXPECT_EQ(vn::toma(acadordeu_get_copia(u, 2)), "Ñandú");
    EXPECT_EQ(ESPERA_INFORME("i < num_elementos", acadordeu_get_copia(u, 3)), nullptr);
    acadordeu_destruye(&u);
}
