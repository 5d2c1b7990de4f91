#define VN_MODULO "ini_test"
#include "filas.h"
#include "foundation/ficheros/ini.h"
#include "foundation/suelo/operaciones_fichero.h"

static int32_t lee(const std::string &fichero) { return ini_lee_int(vn::ancho(fichero).c_str(), "Sec", "Clave", -7); }

PRUEBA(ini, de_cada_texto_un_numero) {
    const std::string f = directorio() + "/f.ini", largo(200000, 'x');
    auto filas = vn::filas<std::string, int64_t>("foundation/ini.tsv", "textos");
    filas.emplace_back("[Sec]\n" + largo + "\nClave=6\n", 6);
    filas.emplace_back("[Sec]\nClave=" + std::string(5000, '0') + "6", 6);
    filas.emplace_back(largo, -7);
    for (const auto &[texto, valor] : filas) {
        vn::graba_fichero(f, texto);
        EXPECT_EQ(lee(f), valor) << texto.substr(0, 60);
    }
}

PRUEBA(ini, lo_que_no_se_puede_leer_da_el_valor_por_defecto) {
    const std::string bien = "[Sec]\nClave=12\n", f = directorio() + "/f.ini";
    for (const std::string &no_es : {f, directorio(), f + "/x/y", std::string()}) EXPECT_EQ(lee(no_es), -7) << no_es;
    vn::graba_fichero(f, bien + std::string((1 << 20) - bien.size(), '\n'));
    EXPECT_EQ(lee(f), 12);
    vn::graba_fichero(f, bien + std::string((1 << 20) - bien.size() + 1, '\n'));
    EXPECT_EQ(lee(f), -7);
    // From a disk that fails.
    vn::graba_fichero(f, bien);
    vnoperaciones_fichero malas = *operaciones_fichero_del_sistema();
    malas.lee = [](vnid_fichero, int64_t, void *, size_t, size_t *leidos) { return *leidos = 0, VN_FICH_ES; };
    operaciones_fichero_instala(&malas);
    EXPECT_EQ(lee(f), -7);
    operaciones_fichero_instala(nullptr);
    EXPECT_EQ(lee(f), 12);
}
