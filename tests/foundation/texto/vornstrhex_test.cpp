#define VN_MODULO "vornstrhex_test"
#include "foundation/texto/cad.h"
#include "foundation/texto/vornstrhex.h"
#include "prueba.h"

PRUEBA(vornstrhex, bytes_de_ida_y_vuelta) {
    unsigned char todos[256];
    for (unsigned i = 0; i < 256; ++i) todos[i] = static_cast<unsigned char>(i);
    char *s = vornstrhex_buffer_a_cadena_hexadecimal(todos, 256);
    EXPECT_EQ(std::string(s).substr(0x3C * 2, 4), "3c3d");
    uint32_t n = 0;
    for (int mayusculas = 0; mayusculas < 2; ++mayusculas) {
        unsigned char *b = vornstrhex_cadena_hexadecimal_a_buffer(s, &n);
        EXPECT_EQ(std::string(b, b + n), std::string(todos, todos + 256));
        vornspy_free_pp(&b, 1);
        cad_convertir_a_mayusculas(s);
    }
    vornstr_destruye(&s);
    unsigned char *vacio = vornstrhex_cadena_hex_a_buffer("", &n);
    EXPECT_NE(vacio, nullptr);
    EXPECT_EQ(n, 0u);
    vornspy_free_pp(&vacio, 1);
    for (const char *malo : {"1", "12 ", "1g", "G1", "0x", "/0", ":0", "`0"}) {
        n = 9;
        EXPECT_EQ(vornstrhex_cadena_hex_a_buffer(malo, &n), nullptr) << malo;
        EXPECT_EQ(n, 0u);
    }
    EXPECT_EQ(ESPERA_INFORME("(buffer) != NULL", vornstrhex_cadena_hexadecimal_a_buffer("zz", &n)), nullptr);
}

PRUEBA(vornstrhex, caracteres) {
    vnwchar a = 0, b = 0, c = 'z';
    EXPECT_EQ(vornstrhex_codifica_caracter_u('/', &a, &b), CIERTO);
    EXPECT_EQ(a, '2');
    EXPECT_EQ(b, 'F');
    EXPECT_EQ(vornstrhex_codifica_caracter_u(0x100, &a, &b), FALSO);
    EXPECT_EQ(vornstrhex_decodifica_caracter_u('f', '1', &c), CIERTO);
    EXPECT_EQ(c, 0xF1);
    EXPECT_EQ(vornstrhex_decodifica_caracter_u('1', 0x131, &c), FALSO);
    EXPECT_EQ(vornstrhex_decodifica_caracter_u(0x130, '1', &c), FALSO);
    EXPECT_EQ(c, 0xF1);
}
