#define VN_MODULO "vorndir_test"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vorndir.h"
#include "texto_ancho.h"
#include <set>

namespace fs = std::filesystem;
using vn::ancho;
using vn::EN_WINDOWS;
using vn::propia;
using vn::toma;

PRUEBA(vorndir, los_ficheros_temporales_son_nuevos) {
    std::set<std::string> rutas;
    const std::string temporal = toma(vorndir_dameDirectorioTemporal_UNICODE());
    EXPECT_EQ(vdir_existe_directorio_UNICODE(ancho(temporal).c_str()), CIERTO);
    for (const auto *ext : {VNU("obr"), VNU(".obr"), VNU("")}) {
        const std::string ruta = toma(vorndir_creaFicheroTemporalConExt_UNICODE(ext));
        EXPECT_TRUE(rutas.insert(ruta).second);
        EXPECT_EQ(toma(vdir_ruta_acceso_directorio_fichero_UNICODE(ancho(ruta).c_str())), temporal);
        EXPECT_EQ(toma(vdir_extension_fichero_UNICODE(ancho(ruta).c_str())), *ext != 0 ? "obr" : "");
        EXPECT_EQ(vn::lee_fichero(ruta), "");
        EXPECT_EQ(vdir_borra_fichero_UNICODE(ancho(ruta).c_str()), CIERTO);
    }
    const std::string ansi = toma(vorndir_creaFicheroTemporalConExt("t"));
    EXPECT_EQ(vdir_borra_fichero_UNICODE(ancho(ansi).c_str()), CIERTO);
    EXPECT_EQ(toma(vorndir_dameDirectorioTemporal()), temporal);
    for (const char *ext : {"/../x", "\\x", "a:b"})
        EXPECT_EQ(ESPERA_INFORME("es_extension(ext)", vorndir_creaFicheroTemporalConExt(ext)), nullptr);
}

PRUEBA(vorndir, los_programas_se_encuentran) {
    const std::string este = toma(vorndir_dame_path_completo_del_programa_UNICODE());
    EXPECT_EQ(toma(vdir_nombre_base_fichero_UNICODE(ancho(este).c_str())), "foundation_test");
    EXPECT_EQ(vdir_es_path_valido_UNICODE(ancho(este).c_str(), VDIR_PATH_ABSOLUTO), CIERTO);
    EXPECT_EQ(toma(vdir_disco_de_programa_UNICODE()), EN_WINDOWS ? este.substr(0, 2) : "");
    EXPECT_EQ(toma(vorndir_busca_ejecutable_del_path_UNICODE(ancho(este).c_str())), este);
    for (const char *no : {"no_hay_tal_programa", "", "/", "tests/"})
        EXPECT_EQ(toma(vorndir_busca_ejecutable_del_path(no)), "(null)");
    const std::string interprete = toma(vorndir_busca_ejecutable_del_path(EN_WINDOWS ? "cmd" : "sh"));
    EXPECT_EQ(vdir_existe_fichero_UNICODE(ancho(interprete).c_str()), CIERTO) << interprete;
    EXPECT_EQ(toma(vdir_nombre_base_fichero_UNICODE(ancho(interprete).c_str())), EN_WINDOWS ? "cmd" : "sh");
}

PRUEBA(vorndir, las_listas_dan_rutas_y_bajan) {
    const std::string d = directorio();
    fs::create_directories(d + "/a/b");
    fs::create_directories(d + "/c");
    for (const char *n : {"/1.obr", "/a/2.obr", "/a/b/3.obr", "/a/b/4.txt", "/c/5.obr", "/ш.obr"})
        vn::graba_fichero(d + n, "");
    std::error_code e;
    fs::create_directory_symlink(d, d + "/c/vuelta", e);
    const bool hay_enlaces = fs::is_symlink(d + "/c/vuelta", e);
    const auto rutas = [&](std::initializer_list<const char *> nombres) {
        std::string r;
        for (const char *n : nombres) r += (r.empty() ? "" : "|") + propia(d + n);
        return r;
    };
    arrCADENA_u *ficheros = nullptr, *directorios = nullptr;
    const auto lista = [&](const std::string &de, const vnwchar *mascara) {
        return vorndir_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(ancho(de).c_str(), mascara, &ficheros,
                                                                                &directorios);
    };
    EXPECT_EQ(lista(d, VNU("*.obr")), CIERTO);
    EXPECT_EQ(toma(std::exchange(ficheros, nullptr)),
              rutas({"/1.obr", "/ш.obr", "/a/2.obr", "/c/5.obr", "/a/b/3.obr"}));
    EXPECT_EQ(toma(std::exchange(directorios, nullptr)),
              hay_enlaces ? rutas({"/a", "/c", "/a/b", "/c/vuelta"}) : rutas({"/a", "/c", "/a/b"}));
    EXPECT_EQ(lista(d + "/no", VNU("*")), FALSO);
    EXPECT_EQ(arr_NumElemsCADENA_u(ficheros) + arr_NumElemsCADENA_u(directorios), 0u);
    vorndir_libera_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(&ficheros, &directorios);

    EXPECT_EQ(vorndir_lista_de_fichero_UNICODE(ancho(d + "\\*.obr").c_str(), &ficheros), CIERTO);
    EXPECT_EQ(toma(ficheros), rutas({"/1.obr", "/ш.obr"}));
    arrCADENA *ansi = nullptr; // the page has no Cyrillic
    EXPECT_EQ(vorndir_lista_de_fichero((d + "/*.obr").c_str(), &ansi), CIERTO);
    EXPECT_EQ(toma(ansi), rutas({"/1.obr"}));
}
