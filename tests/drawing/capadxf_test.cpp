#include "drawing/capadxf.h"
#include "filas.h"
#include <map>

using namespace vn;

PRUEBA(capadxf, codigos_de_las_plumas) {
    const std::map<int, uint32_t> codigos{{0, 1}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {6, 7}, {254, 5}, {255, 0}};
    for (int pluma = 0; pluma < 256; ++pluma) {
        const bool hay = codigos.contains(pluma);
        EXPECT_EQ(capadxf_convertir_pluma(static_cast<uint8_t>(pluma)), hay ? codigos.at(pluma) : 0u) << pluma;
        const auto informes = toma_informes();
        ASSERT_EQ(informes.size(), hay ? 0u : 1u) << pluma;
        if (!hay) {
            EXPECT_EQ(informes[0].detalle, "pluma");
        }
    }
}

PRUEBA(capadxf, nombres_que_admite_el_fichero) {
    using ancha = std::basic_string<vnwchar>;
    for (const auto &[nombre, de_capa, de_bloque] :
         filas<ancha, std::string, std::string>("drawing/capadxf.tsv", "nombres")) {
        EXPECT_EQ(toma(capadxf_nombre_valido_para_capa_u(nombre.c_str())), de_capa);
        EXPECT_EQ(toma(capadxf_nombre_valido_para_bloque_u(nombre.c_str())), de_bloque);
    }
    EXPECT_EQ(toma(capadxf_nombre_valido_para_capa("Pilar \xE1.\xD1/\xE7")), "PILAR_A_N_C"); // in the ANSI page
}
