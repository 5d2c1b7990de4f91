#define VN_MODULO "vornnum_tablas_test"
#include "prueba.h"
#include "units/vornnum.h"
#include <bit>
#include <cmath>
#include <fstream>

using namespace vn;

// Against tables made by others: rows of the bits of a number as a half, a float and a double, and its text.
PRUEBA(vornnum_tablas, textos_de_numeros) {
    size_t filas = 0;
    for (const char *nombre : {"number_text_1.txt", "number_text_edge.txt"}) {
        std::ifstream f(std::string(VN_DIRECTORIO_DATOS) + "/D_tables/" + nombre);
        for (std::string media, simple, doble, texto; f >> media >> simple >> doble >> texto;) {
            const double esperado = std::bit_cast<double>(std::stoull(doble, nullptr, 16));
            double v = 7;
            const bool bien = vornnum_dameNumeroDeCadena(texto.c_str(), &v, VORNNUM_FORMATO_NUMERO) == CIERTO;
            ++filas;
            // Our texts have no infinity and no not-a-number, neither as a word nor as a number too large.
            EXPECT_EQ(bien, std::isfinite(esperado)) << texto;
            EXPECT_EQ(std::bit_cast<uint64_t>(v), std::bit_cast<uint64_t>(bien ? esperado : 0.)) << texto;
        }
    }
    EXPECT_GT(filas, 3300u);
}
