#include "foundation/sistema/textowin.h"
#include "foundation/sistema/vnstdc_tiempo.h"
#include "propiedades.h"
#include <thread>

namespace {

using cadena = std::basic_string<vnwchar>;
double mide(const cadena &t, const vnwchar *fuente = VNU("Arial"), double alto = 100) {
    return textowin_calcula_longitudTrozoTexto(t.c_str(), 0, UINT32_MAX, fuente, alto);
}
// Proportional, whatever the font.
void es_una_fuente(const vnwchar *fuente) {
    EXPECT_TRUE(mide(VNU("i"), fuente) > 5 && mide(VNU("i"), fuente) < mide(VNU("m"), fuente) &&
                mide(VNU("W"), fuente) < 150);
    EXPECT_TRUE(mide(VNU("ñ"), fuente) > 20 && mide(VNU("\x65E5\x672C"), fuente) > 50);
    EXPECT_EQ(mide(VNU("\n\t"), fuente), 0);
}

} // namespace

PRUEBA(textowin, las_partes_son_el_todo) {
    vn::azar a(5);
    for (int caso = 0; caso < 500; ++caso) {
        cadena t;
        for (uint32_t n = 1 + a.entero(30); n-- > 0;) t += static_cast<vnwchar>(32 + a.entero(0x2000));
        const auto n = static_cast<uint32_t>(t.size()), k = a.entero(n);
        const auto trozo = [&](uint32_t primero, uint32_t ultimo) {
            return textowin_calcula_longitudTrozoTexto(t.c_str(), primero, ultimo, VNU("Arial"), 2.5);
        };
        ASSERT_TRUE(vn::cerca(trozo(0, k) + (k + 1 < n ? trozo(k + 1, n + 7) : 0), trozo(0, n - 1), 1e3));
        ASSERT_TRUE(trozo(n, n) == 0 && trozo(n + 5, UINT32_MAX) == 0 && (k == 0 || trozo(k, k - 1) == 0));
    }
    EXPECT_TRUE(vn::cerca(mide(VNU("abc"), VNU("Arial"), 7), mide(VNU("abc")) * .07, 10));
    EXPECT_TRUE(std::isinf(mide(cadena(100, 'W'), VNU("Arial"), 1e307)));
}

PRUEBA(textowin, medios_pares) {
    const cadena par = {static_cast<vnwchar>(0xD83D), static_cast<vnwchar>(0xDE00)};
    const double sustituto = mide(VNU("\xFFFD"));
    for (const cadena &medio : {par.substr(0, 1), par.substr(1)}) EXPECT_EQ(mide(medio), sustituto);
    EXPECT_EQ(mide(par.substr(1) + par.substr(0, 1)), 2 * sustituto);
    EXPECT_GT(mide(par), 0);
    EXPECT_EQ(textowin_calcula_longitudTrozoTexto(par.c_str(), 1, 1, VNU("Arial"), 100), sustituto);
}

PRUEBA(textowin, sin_ninguna_fuente_hay_una_tabla) {
    es_una_fuente(textowin_get_nombre_fuente_por_defecto());
    es_una_fuente(VNU("una que no hay"));
    // Where fonts are found by a file of settings, one without any.
    const auto vuelve = vn::al_final([] { vnstdc__wputenv(VNU("FONTCONFIG_FILE=")); });
    const std::string vacio = directorio() + "/fuentes.conf";
    vn::graba_fichero(vacio, "<fontconfig></fontconfig>");
    vnstdc__wputenv(vn::ancho("FONTCONFIG_FILE=" + vacio).c_str());
    es_una_fuente(VNU("otra que no hay"));
}

PRUEBA(textowin, ocho_hebras_miden_a_la_vez_por_primera_vez) {
    double vistos[8];
    cadena t;
    for (uint32_t c = 0x20; c < 0x3000; c += 64) t += static_cast<vnwchar>(c);
    std::vector<std::thread> hebras;
    for (double &v : vistos) hebras.emplace_back([&v, &t] { v = mide(t, VNU("la de las hebras")); });
    for (auto &h : hebras) h.join();
    for (const double v : vistos) EXPECT_EQ(v, vistos[0]);
    EXPECT_GT(vistos[0], 100);
}
