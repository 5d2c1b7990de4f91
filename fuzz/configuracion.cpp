// Configuration files of sections, as that of the units: whatever the file holds, a number comes, and no report.
#include "foundation/ficheros/ini.h"
#include "objetivo.h"
#include <cstring>

namespace {

// Section and key.
constexpr const char *SITIOS[][2] = {
    {"Internacional", "Norma"}, {"Internacional", "Sistema de Unidades"}, {"", "="}, {"]", ""}};

void lee() {
    for (const auto &[seccion, clave] : SITIOS) {
        // The same twice, and the default only where nothing was found.
        const int32_t a = ini_lee_int(fuzz::NOMBRE.c_str(), seccion, clave, -1),
                      b = ini_lee_int(fuzz::NOMBRE.c_str(), seccion, clave, 5);
        fuzz::exige(a == b || (a == -1 && b == 5), "a number or the default");
    }
    fuzz::exige(fuzz::informes() == 0, "no report");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    return {"[Internacional]\nIdioma=1\nNorma=47\nNormaAceroConf=8\nNormaAceroLam=10\nNormaElec=4\nNormaMadera=3\n"
            "Sistema de Unidades=1\nSistemaUnidadEnergia=0\n",
            "\xEF\xBB\xBF; x\r\n[otra]\r\nNorma=1\r\n[ INTERNACIONAL ]\r\n norma = -12 ; y\r\n", "[]\n=1\n[]]\n[=2\n"};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    fuzz::con_fichero(datos, n, fuzz::cota(n), lee);
    return 0;
}
