#define VN_MODULO "tratatxt_test"
#include "foundation/texto/tratatxt.h"
#include "prueba.h"
#include <random>

namespace {

std::string recupera(const std::string &s) { return vn::toma(tratatxt_recupera_espacio_y_salto_linea(s.c_str())); }
std::string convierte(const std::string &s) { return vn::toma(tratatxt_convierte_espacio_y_salto_linea(s.c_str())); }
std::string prepara(const std::string &s) {
    return vn::toma(tratatxt_prepara_almohadilla_espacios_y_salto_linea(s.c_str()));
}
std::string traduce(const std::string &s) { return vn::toma(tratatxt_traducir_codigos_color(s.c_str())); }

} // namespace

PRUEBA(tratatxt, marcas_que_se_leen) {
    const struct {
        const char *plano, *marcado;
    } filas[] = {
        {"una línea corriente", "una línea corriente"},
        {"uno\n dos", "uno#s#edos"},
        {"a  b c ", "a#e#eb c#e"},
        {"n#1\t\r\n", "n##1#t#r#s"},
        {"[FIN_CADENA]", "#[FIN_CADENA]"},
        {"", ""},
    };
    for (const auto &f : filas) {
        EXPECT_EQ(recupera(f.plano), f.marcado);
        EXPECT_EQ(convierte(f.marcado), f.plano);
    }
    EXPECT_EQ(convierte("#x #"), "#x #"); // no marks: as a person may type them
    EXPECT_EQ(prepara("  a b\n"), "#e#ea b#s");
    EXPECT_EQ(prepara("##a#s"), "##a#s");
    EXPECT_EQ(prepara("[ULONG]"), "#[ULONG]");
}

// Any text, marked, cut at any of its blanks, each line prepared, each read and joined with one blank, is itself.
PRUEBA(tratatxt, ida_y_vuelta) {
    std::mt19937 azar(11);
    for (int k = 0; k < 3000; ++k) {
        std::string t;
        for (auto n = azar() % 24; n > 0; --n) t += "ab# \n\r\t[es;\xB6\xF1"[azar() % 13];
        const std::string marcado = recupera(t);
        ASSERT_EQ(convierte(marcado), t);
        ASSERT_EQ(marcado.find_first_of("\n\r\t"), std::string::npos);
        std::string leido;
        for (size_t i = 0; !marcado.empty();) {
            size_t corte = marcado.find(' ', i);
            const bool ultimo = corte == std::string::npos;
            leido += convierte(prepara(marcado.substr(i, ultimo ? corte : corte - i)));
            if (ultimo) break;
            leido += ' ';
            i = corte + 1;
        }
        ASSERT_EQ(leido, t);
    }
}

PRUEBA(tratatxt, colores_por_su_nombre) {
    EXPECT_EQ(traduce("a\xB6rojo;b\xB6"
                      "Gris Claro;c"),
              "a\2661;b\2669;c");
    for (const char *igual : {"", "\xB6", "\xB6rojo", "\2663;x", "\xB6malva;", "rojo;", "\xB6;"})
        EXPECT_EQ(traduce(igual), igual);
    EXPECT_EQ(traduce("\xB6\266azul;"), "\xB6\2665;");
}
