#include "foundation/sistema/nucleos_version.h"
#include "prueba.h"
#include <cstdio>
#include <regex>

PRUEBA(nucleos_version, la_de_la_biblioteca_y_la_de_sus_cabeceras) {
    const std::string dicha = nucleos_version();
    EXPECT_TRUE(
        std::regex_match(dicha, std::regex(R"(\d+\.\d+\.\d+ \((GNU|Clang) [\d.]+, (Linux|Windows) \w+(, \w+)?\))")))
        << dicha;
    EXPECT_EQ(dicha.substr(0, dicha.find(' ')), NUCLEOS_VERSION);
    int mayor = -1, menor = -1, parche = -1;
    ASSERT_EQ(std::sscanf(NUCLEOS_VERSION, "%d.%d.%d", &mayor, &menor, &parche), 3);
    EXPECT_EQ(mayor * 10000 + menor * 100 + parche, NUCLEOS_VERSION_NUMERO);
}
