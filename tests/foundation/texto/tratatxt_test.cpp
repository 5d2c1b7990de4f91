#define VN_MODULO "tratatxt_test"
#include "filas.h"
#include "foundation/texto/tratatxt.h"
#include <map>
#include <random>

namespace {

const std::map<std::string, char *(*)(const char *)> OPERACIONES = {
    {"recupera", tratatxt_recupera_espacio_y_salto_linea},
    {"convierte", tratatxt_convierte_espacio_y_salto_linea},
    {"prepara", tratatxt_prepara_almohadilla_espacios_y_salto_linea},
    {"traduce", tratatxt_traducir_codigos_color},
};
std::string da(const char *operacion, const std::string &s) { return vn::toma(OPERACIONES.at(operacion)(s.c_str())); }

} // namespace

PRUEBA(tratatxt, marcas_y_colores_que_se_leen) {
    for (const auto &[operacion, s, dado] :
         vn::filas<std::string, std::string, std::string>("foundation/tratatxt.tsv", "textos"))
        EXPECT_EQ(da(operacion.c_str(), s), dado) << operacion;
}

// Any text, marked, cut at any of its blanks, each line prepared, each read and joined with one blank, is itself.
PRUEBA(tratatxt, ida_y_vuelta) {
    std::mt19937 azar(11);
    for (int k = 0; k < 3000; ++k) {
        std::string t;
        for (auto n = azar() % 24; n > 0; --n) t += "ab# \n\r\t[es;\xB6\xF1"[azar() % 13];
        const std::string marcado = da("recupera", t);
        ASSERT_EQ(da("convierte", marcado), t);
        ASSERT_EQ(marcado.find_first_of("\n\r\t"), std::string::npos);
        std::string leido;
        for (size_t i = 0; !marcado.empty();) {
            size_t corte = marcado.find(' ', i);
            const bool ultimo = corte == std::string::npos;
            leido += da("convierte", da("prepara", marcado.substr(i, ultimo ? corte : corte - i)));
            if (ultimo) break;
            leido += ' ';
            i = corte + 1;
        }
        ASSERT_EQ(leido, t);
    }
}
