#define VN_MODULO "ini_test"
#include "foundation/ficheros/ini.h"
#include "foundation/suelo/operaciones_fichero.h"
#include "texto_ancho.h"

using vn::ancho;

namespace {

int32_t lee(const std::string &fichero) { return ini_lee_int(ancho(fichero).c_str(), "Sec", "Clave", -7); }

} // namespace

PRUEBA(ini, de_cada_texto_un_numero) {
    const std::string ceros(3, '\0'), largo(200000, 'x');
    const struct {
        std::string texto;
        int32_t valor;
    } filas[] = {
        {"[Sec]\nClave=12\n", 12},
        {"[Sec]\r\nClave=12\r\n", 12},
        {"[Sec]\nClave=12", 12},
        {"\xEF\xBB\xBF[Sec]\nClave=12", 12},
        {" [ sEC ] resto\n\tcLAVE \t= +12 ; resto\n", 12},
        {"[Sec]\nClave=-2147483648", INT32_MIN},
        {"[Sec]\nClave=99999999999999999999", INT32_MAX},
        {"[Sec]\nClave=-99999999999", INT32_MIN},
        {"[Sec]\nClave=0x10", 0},
        {"[Sec]\nClave=010", 10},
        {"[Sec]\nClave=1.9", 1},
        {"[Sec]\nClave=", 0},
        {"[Sec]\nClave=abc", 0},
        // The first section of the name, and the first key in it.
        {"Clave=1\n[Otra]\nClave=2\n[Sec]\nClave=3\nClave=4\n[Sec]\nClave=5", 3},
        {"[Sec]\nOtra=1\n[Sec]\nClave=2", -7},
        {"[Sec]\n;Clave=1\nClave2=2\nMi Clave=3\nClave=4", 4},
        {"[Sec\nClave=1", 1},
        {"[]\nClave=1", -7},
        {"[Sec]\nClave", -7},
        {"[Sec]\n=1\n==\nClave==1", 0},
        {"[Sec]\n" + largo + "\nClave=6\n", 6},
        {"[Sec]\nClave=" + std::string(5000, '0') + "6", 6},
        {ceros + "[Sec]\nClave=1", -7},
        {"[Sec]\n" + ceros + "\nClave=1" + ceros, 1},
        {"", -7},
        {largo, -7},
    };
    for (const auto &f : filas) {
        vn::graba_fichero(directorio() + "/f.ini", f.texto);
        EXPECT_EQ(lee(directorio() + "/f.ini"), f.valor) << f.texto.substr(0, 60);
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
