#define VN_MODULO "acadorde_test"
#include "foundation/listas/acadorde.h"
#include "prueba.h"

PRUEBA(acadorde, distinguiendo_ordena_por_bytes_y_no_repite) {
    acadorde *a = acadorde_crea(CIERTO);
    const struct {
        const char *texto;
        vnbool nuevo;
    } filas[] = {{"b", CIERTO}, {"", CIERTO},  {"B", CIERTO}, {"\xF1", CIERTO},
                 {"b", FALSO},  {"a", CIERTO}, {"bb", CIERTO}};
    for (const auto &[texto, nuevo] : filas) EXPECT_EQ(acadorde_inserta(a, texto), nuevo) << texto;
    const char *orden[] = {"", "B", "a", "b", "bb", "\xF1"};
    ASSERT_EQ(acadorde_numelems(a), 6u);
    for (uint32_t i = 0; i < 6; ++i) EXPECT_STREQ(acadorde_get(a, i), orden[i]);
    uint32_t pos = 0;
    EXPECT_EQ(acadorde_existe(a, "bb", &pos), CIERTO);
    EXPECT_EQ(pos, 4u);
    EXPECT_EQ(acadorde_existe(a, "ba", &pos), FALSO);
    EXPECT_EQ(pos, 4u);
    EXPECT_EQ(acadorde_distingue_may_y_min(a), CIERTO);
    EXPECT_EQ(ESPERA_INFORME("i < num_elementos", acadorde_get(a, 6)), nullptr);
    EXPECT_EQ(ESPERA_INFORME("(a) != NULL", acadorde_get(nullptr, 0)), nullptr);
    acadorde_destruye(&a);
    EXPECT_EQ(ESPERA_INFORME("distingue_may_y_min == CIERTO || distingue_may_y_min == FALSO", acadorde_crea(2)),
              nullptr);
}

PRUEBA(acadorde, sin_distinguir_el_primero_se_queda) {
    acadorde *a = acadorde_crea(FALSO);
    EXPECT_EQ(acadorde_inserta(a, "Viga"), CIERTO);
    EXPECT_EQ(acadorde_inserta(a, "VIGA"), FALSO);
    EXPECT_EQ(acadorde_inserta(a, "pilar"), CIERTO);
    EXPECT_STREQ(acadorde_get(a, 1), "Viga");
    EXPECT_EQ(acadorde_existe(a, "viga", nullptr), CIERTO);
    acadorde_destruye(&a);

    acadordeu *u = acadordeu_crea(FALSO);
    for (const char *s : {"Ñandú", "ábaco", "ÑANDÚ", "zorro", "Ábaco", "ñandú"})
        acadordeu_inserta(u, vn::ancho(s).c_str());
    ASSERT_EQ(acadordeu_numelems(u), 3u);
    EXPECT_EQ(vn::utf8_de(acadordeu_get(u, 0)), "zorro");
    vnwchar *c = acadordeu_get_copia(u, 2);
    EXPECT_EQ(vn::utf8_de(c), "Ñandú");
    vornspy_free_pp(&c, 1);
    EXPECT_EQ(ESPERA_INFORME("i < num_elementos", acadordeu_get_copia(u, 3)), nullptr);
    acadordeu_destruye(&u);
}
