#define VN_MODULO "tablas_test"
#include "foundation/texto/cad.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "propiedades.h"
#include "prueba.h"

// Against tables made by others.

using namespace vn;

// Rows of the bits of the number as a half, a float and a double, and its text.
PRUEBA(tablas, textos_de_numeros) {
    size_t filas = 0;
    for (const char *nombre : {"number_text_1.txt", "number_text_edge.txt"}) {
        std::ifstream f(dato(std::string("D_tables/") + nombre));
        for (std::string media, simple, doble, texto; f >> media >> simple >> doble >> texto;) {
            ++filas;
            const double esperado = std::bit_cast<double>(std::stoull(doble, nullptr, 16));
            for (const double leido :
                 {texto::lee_double(texto.c_str()).valor, texto::lee_double(ancho(texto).c_str()).valor})
                EXPECT_TRUE(std::isnan(esperado) ? std::isnan(leido)
                                                 : std::bit_cast<uint64_t>(leido) == std::bit_cast<uint64_t>(esperado))
                    << texto << ": " << leido << ", not " << esperado;
        }
    }
    EXPECT_GT(filas, 3300u);
}

// Rows of a byte and its units on pages 437, 850 and 1252; an empty cell is undefined there.
PRUEBA(tablas, paginas_de_codigos) {
    unsigned filas = 0;
    for (const auto &c : tabla("D_tables/codepages.tsv")) {
        const auto byte = static_cast<char>(std::stoul(c[0], nullptr, 16));
        ++filas;
        constexpr uint32_t PAGINAS[] = {437, 850, 1252};
        for (size_t k = 0; k < 3; ++k) {
            ASSERT_EQ(unicode_establece_pagina_ANSI(PAGINAS[k]), CIERTO);
            const unsigned esperado = c[k + 1].empty() ? static_cast<unsigned char>(byte)
                                                       : static_cast<unsigned>(std::stoul(c[k + 1], nullptr, 16));
            EXPECT_EQ(static_cast<unsigned>(unicode_caracter_ANSI_a_UNICODE(byte)), esperado) << c[0];
            const vnwchar w[] = {static_cast<vnwchar>(esperado), 0};
            char *s = unicode_UNICODE_a_ANSI(w);
            EXPECT_EQ(s[0], byte) << c[0];
            vornstr_destruye(&s);
        }
    }
    EXPECT_EQ(filas, 256u);
}
