#define VN_MODULO "fichconf_test"
#include "foundation/ficheros/vdir.h"
#include "foundation/sistema/fichconf.h"
#include "texto_ancho.h"

using vn::ancho;
using vn::propia;
using vn::toma;

static std::string configuracion(const vnwchar *nombre) {
    return toma(fichconf_dame_ruta_fichero_en_directorio_configuracion(nombre));
}

PRUEBA(fichconf, cada_cosa_tiene_su_sitio) {
    const std::string del_usuario = configuracion(VNU("x.cfg"));
    EXPECT_EQ(vdir_es_path_valido_UNICODE(ancho(del_usuario).c_str(), VDIR_PATH_ABSOLUTO), CIERTO);
    const std::string base = directorio() + "/a/b";
    fichconf_establece_directorio_base(ancho(base).c_str());
    EXPECT_EQ(configuracion(VNU("x.cfg")), propia(base + "/VORN/x.cfg"));
    EXPECT_EQ(configuracion(VNU("")), propia(base + "/VORN"));
    EXPECT_EQ(toma(fichconf_dame_ruta_fichero_en_directorio_estructa(VNU("internac.ini"))),
              propia(base + "/VORN/estructa/internac.ini"));
    EXPECT_FALSE(vn::existe(base));
    for (int i = 0; i < 2; ++i) EXPECT_EQ(fichconf_crea_directorio_estructa(), CIERTO); // there or not
    EXPECT_TRUE(vn::existe(base + "/VORN/estructa"));

    for (const vnwchar *mal : {VNU(""), VNU(".."), VNU("a/b"), VNU("a\\b"), VNU("C:"), VNU("a|b")})
        ESPERA_INFORME("es_una_parte(nombre)", fichconf_registra_nombre_distribuidor_no_vorn(mal));
    EXPECT_EQ(configuracion(VNU("")), propia(base + "/VORN"));
    fichconf_registra_nombre_distribuidor_no_vorn(VNU("Otra casa"));
    EXPECT_EQ(toma(fichconf_dame_ruta_fichero_en_directorio_estructa(VNU("x"))),
              propia(base + "/Otra casa/estructa/x"));
    vn::graba_fichero(directorio() + "/ocupado", "");
    fichconf_establece_directorio_base(ancho(directorio() + "/ocupado").c_str());
    EXPECT_EQ(fichconf_crea_directorio_estructa(), FALSO);

    fichconf_registra_nombre_distribuidor_no_vorn(VNU("VORN"));
    fichconf_establece_directorio_base(nullptr);
    EXPECT_EQ(configuracion(VNU("x.cfg")), del_usuario);
    const std::string unidad = toma(fichconf_dame_unidad_escribible());
    EXPECT_EQ(unidad.size() == 2 && unidad[1] == ':', vn::EN_WINDOWS) << unidad;
}
