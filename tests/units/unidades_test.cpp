#include "foundation/texto/msglocal.h"
#include "foundation/texto/unicode.h"
#include "prueba.h"
#include "units/unidades.h"

using namespace vn;

namespace {

using ansi = const char *(*)();
using ancha = const vnwchar *(*)();
constexpr std::pair<ansi, ancha> UNIDADES[] = {
    {unidades_UD, unidades_u_UD},     {unidades_H, unidades_u_H},         {unidades_kg, unidades_u_kg},
    {unidades_km, unidades_u_km},     {unidades_l, unidades_u_l},         {unidades_m, unidades_u_m},
    {unidades_M2, unidades_u_M2},     {unidades_m3, unidades_u_m3},       {unidades_t, unidades_u_t},
    {unidades_txkm, unidades_u_txkm}, {unidades_m3xkm, unidades_u_m3xkm},
};

std::string cambia(std::string s, std::string_view a, std::string_view b) {
    for (size_t i; (i = s.find(a)) != s.npos;) s.replace(i, a.size(), b);
    return s;
}

} // namespace

// Both widths say the same in every language, but for the superscripts and raised points that a page does not have.
PRUEBA(unidades, la_forma_ansi_es_la_ancha_en_la_pagina_del_idioma) {
    for (int idioma = 0; idioma < MSGLOCAL_NUM_TEXTOS; ++idioma) {
        msidioma_establece_idioma(idioma);
        for (const auto &[a, u] : UNIDADES) {
            const std::string leida = toma(unicode_convierte_ANSI_idioma_a_UNICODE(a(), static_cast<uint32_t>(idioma)));
            std::string esperada = utf8_de(u());
            const auto cabe = [&] {
                return trconvansi_texto_unicode_es_compatible_ANSI_idioma(ancho(esperada).c_str(),
                                                                          static_cast<uint32_t>(idioma)) == CIERTO;
            };
            if (!cabe()) esperada = cambia(cambia(esperada, "²", "2"), "³", "3");
            if (!cabe()) esperada = cambia(esperada, "·", ".");
            EXPECT_EQ(leida, esperada) << idioma;
        }
    }
    msidioma_establece_idioma(24);
    std::string todas;
    for (const auto &[a, u] : UNIDADES) todas += utf8_de(u()) + " ";
    EXPECT_EQ(todas, "Ud h kg km l m m² m³ t t·km m³·km ");
}
