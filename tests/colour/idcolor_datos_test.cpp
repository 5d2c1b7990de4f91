// Colours against tables made by others.
#include "colour/idcolor.h"
#include "propiedades.h"
#include <cstdlib>
#include <string>

using namespace vn;

PRUEBA(idcolor_datos, la_paleta_autocad_es_la_publicada) {
    int iguales = 0;
    for (const auto &fila : tabla("D_tables/aci_rgb.tsv")) {
        const auto de = [&](size_t columna) { return static_cast<uint8_t>(std::stoi(fila[columna])); };
        const uint8_t i = de(0);
        const uint32_t rgb = idcolor_dame_RGB_de_indice_color_autocad(i);
        if (i == 7) EXPECT_EQ(rgb, 0u); // on paper
        else EXPECT_EQ(rgb, idcolor_rgba(de(4), de(5), de(6), 0)) << int{i};
        ++iguales;
    }
    EXPECT_EQ(iguales, 255);
    EXPECT_EQ(idcolor_dame_RGB_de_indice_color_autocad(0), 0xFFFFFFu);
}

// A colour of the middle lightness lightened to that of a row is the row's colour, to what both were rounded by.
PRUEBA(idcolor_datos, aclarar_lleva_a_la_claridad_pedida) {
    const auto filas = tabla("D_tables/hsl_rgb.tsv");
    const auto rgba_de = [](const auto &f) {
        const auto de = [&](size_t c) { return static_cast<uint8_t>(std::stoi(f[c])); };
        return idcolor_rgba(de(3), de(4), de(5), 77);
    };
    int vistas = 0;
    for (const auto &base : filas) {
        if (base[2] != "50") continue;
        for (const auto &f : filas) {
            if (f[0] != base[0] || f[1] != base[1]) continue;
            const double p = std::stod(f[2]) / 50. - 1.;
            const uint32_t visto = idcolor_color_rgba_lighten(rgba_de(base), p), esperado = rgba_de(f);
            EXPECT_EQ(idcolor_color_rgb_igual(visto, esperado, 1), CIERTO)
                << std::hex << visto << " " << esperado << " h " << f[0] << " s " << f[1] << " l " << f[2];
            EXPECT_EQ(visto >> 24, 77u);
            ++vistas;
        }
    }
    EXPECT_GT(vistas, 100);
}
