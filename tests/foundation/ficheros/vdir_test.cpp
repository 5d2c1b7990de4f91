#define VN_MODULO "vdir_test"
#include "filas.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vorndir.h"
#include "texto_ancho.h"
#include <atomic>
#include <fstream>
#include <thread>

namespace fs = std::filesystem;
using vn::ancho;
using vn::EN_WINDOWS;
using vn::propia;
using vn::toma;

namespace {

const std::string DATOS = "foundation/vdir.tsv";

auto en(const std::string &nombre) { return ancho(vn::Prueba::directorio() + "/" + nombre); }

void graba(const char *nombre, const char *contenido) {
    vn::graba_fichero(vn::Prueba::directorio() + "/" + nombre, contenido);
}
std::string lee(const char *nombre) { return vn::lee_fichero(vn::Prueba::directorio() + "/" + nombre); }
template <auto LISTA> std::string lista_de(const std::basic_string<vnwchar> &ruta, const std::string &mascara) {
    arrCADENA_u *a = nullptr;
    EXPECT_EQ(LISTA(ruta.c_str(), ancho(mascara).c_str(), &a), CIERTO);
    return toma(a);
}
constexpr auto ficheros = lista_de<vdir_lista_de_ficheros_UNICODE>;
constexpr auto directorios = lista_de<vdir_lista_de_directorios_UNICODE>;

} // namespace

PRUEBA(vdir, una_ruta_se_descompone_y_se_recompone) {
    using texto = std::string;
    for (const auto &[r, partes, nombre, extension, acceso] :
         vn::filas<texto, texto, texto, texto, texto>(DATOS, "partes")) {
        SCOPED_TRACE(r);
        const auto ruta = ancho(r);
        vnwchar *p[4] = {};
        EXPECT_EQ(vdir_splitpath_con_comprobacion_UNICODE(ruta.c_str(), &p[0], &p[1], &p[2], &p[3]), CIERTO);
        EXPECT_EQ(toma(vdir_makepath_UNICODE(p[0], p[1], p[2], p[3])), propia(r));
        EXPECT_EQ(toma(p[0]) + "|" + toma(p[1]) + "|" + toma(p[2]) + "|" + toma(p[3]), propia(partes));
        EXPECT_EQ(toma(vdir_nombre_base_fichero_UNICODE(ruta.c_str())), nombre);
        EXPECT_EQ(toma(vdir_extension_fichero_UNICODE(ruta.c_str())), extension);
        EXPECT_EQ(toma(vdir_ruta_acceso_directorio_fichero_UNICODE(ruta.c_str())), propia(acceso));
    }
}

PRUEBA(vdir, las_rutas_se_componen) {
    for (const auto &[a, b, juntas] : vn::filas<std::string, std::string, std::string>(DATOS, "juntas")) {
        EXPECT_EQ(toma(vdir_concatena_directorios_UNICODE(ancho(a).c_str(), ancho(b).c_str())), propia(juntas));
        EXPECT_EQ(toma(vdir_concatena_directorios(a.c_str(), b.c_str())), propia(juntas));
    }
    EXPECT_EQ(toma(vdir_makepath_UNICODE(VNU("C"), VNU("a"), VNU("x"), VNU(".obr"))), propia("C:a\\x.obr"));
    EXPECT_EQ(toma(vdir_makepath_UNICODE(VNU("\\\\s\\c"), VNU("a"), VNU("x"), nullptr)), propia("\\\\s\\c\\a\\x"));
    EXPECT_EQ(toma(vdir_nombre_fichero_con_ext_UNICODE(VNU("obra.v2"), VNU("obr"))), "obra.v2.obr");
    EXPECT_EQ(toma(vdir_nombre_fichero_con_ext_UNICODE(VNU("obra.OBR"), VNU(".obr"))), "obra.OBR");
    EXPECT_EQ(toma(vdir_nombre_fichero_con_ext_UNICODE(VNU("obra"), VNU(""))), "obra");
    EXPECT_EQ(toma(vdir_ruta_y_nombre_fichero_sin_extension_UNICODE(VNU("a.b/c.d"))), propia("a.b/c"));
    EXPECT_EQ(toma(vdir_ruta_acceso_directorio_fichero("obras/a\xF1o/x")), propia("obras/a\xF1o"));
}

PRUEBA(vdir, que_rutas_son_validas) {
    auto filas = vn::filas<vnbool, vnbool, std::string>(DATOS, "validas");
    for (const size_t n : {255, 256}) filas.emplace_back(FALSO, n == 255 ? CIERTO : FALSO, std::string(n, 'p'));
    for (const auto &[absoluta, relativa, r] : filas) {
        SCOPED_TRACE(r);
        const auto ruta = ancho(r);
        EXPECT_EQ(vdir_es_path_valido_UNICODE(ruta.c_str(), VDIR_PATH_CUALQUIERA), absoluta | relativa);
        EXPECT_EQ(vdir_es_path_valido_UNICODE(ruta.c_str(), VDIR_PATH_ABSOLUTO), absoluta);
        EXPECT_EQ(vdir_es_path_valido_UNICODE(ruta.c_str(), VDIR_PATH_RELATIVO), relativa);
    }
    vnwchar *nombre = nullptr;
    EXPECT_EQ(vdir_splitpath_con_comprobacion_UNICODE(VNU("a|b"), nullptr, nullptr, &nombre, nullptr), FALSO);
    EXPECT_EQ(nombre, nullptr);
}

PRUEBA(vdir, las_listas_siguen_la_mascara) {
    for (const char *n : {"a.obr", "ab.obr", "a.obr.bak", "sin", "B.OBR", "\U0001F600.obr", "ñ"}) graba(n, "x");
    fs::create_directory(directorio() + "/sub.obr");
    const auto dir = ancho(directorio());
    for (const auto &[mascara, aqui, en_windows] : vn::filas<std::string, std::string, std::string>(DATOS, "mascaras"))
        EXPECT_EQ(ficheros(dir, mascara), EN_WINDOWS ? en_windows : aqui) << mascara;
    EXPECT_EQ(directorios(dir, "*.obr"), "sub.obr");
    arrCADENA_u *a = nullptr;
    EXPECT_EQ(vdir_lista_de_ficheros_UNICODE(en("no").c_str(), VNU("*"), &a), FALSO);
    EXPECT_EQ(arr_NumElemsCADENA_u(a), 0u);
    vdir_libera_lista_de_ficheros_UNICODE(&a);
    EXPECT_EQ(a, nullptr);
}

PRUEBA(vdir, ficheros_y_directorios_se_crean_se_miran_y_se_borran) {
    // What is said of a name: directory, file; to be read, to be written (or could be created).
    const auto dicho = [](const std::basic_string<vnwchar> &n) {
        std::string s;
        for (const auto pregunta : {vdir_existe_directorio_UNICODE, vdir_existe_fichero_UNICODE,
                                    vdir_se_puede_leer_UNICODE, vdir_se_puede_escribir_UNICODE})
            s += pregunta(n.c_str()) == CIERTO ? "dfre"[s.size()] : '-';
        return s;
    };
    const auto fichero = en("uno\\dos/tres.obr"), dir = en("uno/dos");
    EXPECT_EQ(vdir_existe_directorio_UNICODE(dir.c_str()), FALSO);
    EXPECT_EQ(vdir_crea_directorios_fichero_UNICODE(fichero.c_str()), CIERTO);
    EXPECT_EQ(vdir_crea_directorios_UNICODE(dir.c_str(), CIERTO), CIERTO); // it is there
    EXPECT_EQ(dicho(dir) + dicho(fichero), "d------e");
    graba("uno/dos/tres.obr", "12345");
    EXPECT_EQ(dicho(fichero), "-fre");
    EXPECT_EQ(vdir_longitud64_fichero_u(fichero.c_str()), 5u);
    EXPECT_EQ(lee("uno/dos/tres.obr"), "12345");
    EXPECT_EQ(vdir_se_puede_escribir_en_directorio_UNICODE(dir.c_str()), CIERTO);
    EXPECT_EQ(ficheros(dir, "*"), "tres.obr"); // nothing left by the trial
    EXPECT_EQ(vdir_se_puede_escribir_en_directorio_UNICODE(fichero.c_str()), FALSO);
    // A file stands where a directory is needed.
    const auto debajo = en("uno/dos/tres.obr/cuatro/x");
    EXPECT_EQ(vdir_crea_directorios_fichero_si_es_posible_UNICODE(debajo.c_str()), FALSO);
    EXPECT_EQ(ESPERA_INFORME("creados", vdir_crea_directorios_fichero_UNICODE(debajo.c_str())), FALSO);
    EXPECT_EQ(vdir_crea_directorios_del_path_UNICODE(en("p/q/fichero").c_str()), CIERTO);
    EXPECT_EQ(vdir_crea_directorios_del_path_UNICODE(en("p/r/").c_str()), CIERTO);
    EXPECT_EQ(directorios(en("p"), "*"), "q|r");

    EXPECT_EQ(vdir_borra_fichero_UNICODE(fichero.c_str()), CIERTO);
    EXPECT_EQ(vdir_borra_fichero_si_existe_UNICODE(fichero.c_str()), CIERTO);
    EXPECT_EQ(vdir_borra_fichero_con_comprobacion_UNICODE(fichero.c_str()), FALSO);
    EXPECT_EQ(ESPERA_INFORME("borrado", vdir_borra_fichero_UNICODE(fichero.c_str())), FALSO);
    EXPECT_EQ(ESPERA_INFORME("existe", vdir_longitud_fichero_u(fichero.c_str())), 0u);
    uint64_t tamanyo = 7;
    EXPECT_EQ(vdir_longitud_fichero_seguro_u(fichero.c_str(), &tamanyo), FALSO);
    EXPECT_EQ(tamanyo, 0u);
}

PRUEBA(vdir, renombrar_no_reemplaza_nada) {
    const auto renombra = [](const char *de, const char *a) {
        return vdir_renombra_fichero_si_es_posible_UNICODE(en(de).c_str(), en(a).c_str());
    };
    graba("a", "de a"), graba("b", "de b");
    fs::create_directories(directorio() + "/dir/dentro");
    fs::create_directory(directorio() + "/otro");
    EXPECT_EQ(renombra("a", "b"), FALSO);
    ESPERA_INFORME("renombrado", vdir_renombra_fichero_UNICODE(en("a").c_str(), en("b").c_str()));
    EXPECT_EQ(lee("a") + lee("b"), "de ade b");
    EXPECT_EQ(vdir_renombra_fichero_UNICODE(en("a").c_str(), en("c").c_str()), CIERTO);
    EXPECT_EQ(renombra("b", "B"), CIERTO); // only its case
    EXPECT_EQ(renombra("dir", "otro"), FALSO);
    EXPECT_EQ(renombra("dir", "nuevo"), CIERTO);
    // Wine takes a change of capitals alone for nothing to do.
    const std::string quedan = ficheros(en(""), "*");
    EXPECT_TRUE(quedan == "B|c" || (EN_WINDOWS && quedan == "b|c")) << quedan;
    EXPECT_EQ(directorios(en(""), "*") + "|" + directorios(en("nuevo"), "*"), "nuevo|otro|dentro");
}

PRUEBA(vdir, una_ruta_larga_con_cualquier_letra) {
    std::string larga = "raiz";
    for (int i = 0; i < 12; ++i) larga += "/" + std::to_string(i) + "_año_文字_\U0001F600_" + std::string(40, 'x');
    const auto dir = en(larga), fichero = en(larga + "/шрифт.obr"), otro = en(larga + "\\otro.obr");
    ASSERT_GT(fichero.size(), 600u);
    EXPECT_EQ(vdir_crea_directorios_UNICODE(dir.c_str(), CIERTO), CIERTO);
    EXPECT_EQ(lc_fclose(lc_fopen_u(fichero.c_str(), VNU("wb"))), CIERTO);
    EXPECT_EQ(vdir_existe_fichero_UNICODE(fichero.c_str()), CIERTO);
    EXPECT_EQ(vdir_se_puede_escribir_UNICODE(fichero.c_str()), CIERTO);
    EXPECT_EQ(vdir_renombra_fichero_UNICODE(fichero.c_str(), otro.c_str()), CIERTO);
    EXPECT_EQ(ficheros(dir, "*.obr"), "otro.obr");
    EXPECT_EQ(vdir_borra_contenido_directorio_UNICODE(en("raiz").c_str()), CIERTO);
    EXPECT_EQ(directorios(en(""), "*") + "|" + directorios(en("raiz"), "*"), "raiz|");
}

// On Linux, longer than the system takes at once.
PRUEBA(vdir, un_arbol_hondo_se_crea_se_lista_y_se_borra) {
    const uint32_t niveles = EN_WINDOWS ? 100 : 300;
    std::string hondo = "hondo";
    for (uint32_t i = 0; i < niveles; ++i) hondo += EN_WINDOWS ? "/direct" : "\\" + std::string(39, 'd');
    const auto dir = en(hondo), arriba = en("hondo");
    EXPECT_EQ(vdir_crea_directorios_UNICODE(dir.c_str(), CIERTO), CIERTO);
    EXPECT_EQ(vdir_existe_directorio_UNICODE(dir.c_str()), CIERTO);
    arrCADENA_u *lista = nullptr, *bajo = nullptr;
    EXPECT_EQ(vorndir_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(arriba.c_str(), VNU("*"), &lista, &bajo),
              CIERTO);
    ASSERT_EQ(arr_NumElemsCADENA_u(bajo), niveles);
    EXPECT_EQ(arr_GetCADENA_u(bajo, niveles - 1), ancho(propia(vn::utf8_de(dir.c_str()))));
    vorndir_libera_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(&lista, &bajo);
    EXPECT_EQ(vdir_borra_directorio_y_subdirectorios_UNICODE(arriba.c_str()), CIERTO);
    EXPECT_EQ(vdir_existe_directorio_UNICODE(arriba.c_str()), FALSO);
}

PRUEBA(vdir, borrar_un_arbol_no_sale_de_el) {
    const std::string d = directorio() + "/";
    const auto borra = [](const char *nombre) {
        return vdir_borra_directorio_y_subdirectorios_UNICODE(en(nombre).c_str());
    };
    std::error_code e;
    const auto enlaza = [&](const char *a, const char *enlace) { fs::create_directory_symlink(d + a, d + enlace, e); };
    for (const char *n : {"fuera/d", "arbol/d/e"}) fs::create_directories(d + n);
    for (const char *n : {"fuera/queda", "arbol/d/e/protegido"}) graba(n, "x");
    fs::permissions(d + "arbol/d/e/protegido", fs::perms::owner_read);
    enlaza("fuera", "arbol/d/enlace"), enlaza("no_existe", "arbol/roto"), enlaza("fuera", "a_fuera");
    fs::create_symlink(d + "vuelta", d + "vuelta", e);
    EXPECT_EQ(vdir_se_puede_escribir_UNICODE(en("vuelta").c_str()), EN_WINDOWS ? CIERTO : FALSO);
    const bool hay_enlaces = fs::is_symlink(d + "a_fuera", e);
    EXPECT_TRUE(hay_enlaces || EN_WINDOWS);
    if (hay_enlaces) {
        EXPECT_EQ(ESPERA_INFORME("borrado", vdir_borra_contenido_directorio_UNICODE(en("a_fuera").c_str())), FALSO);
        EXPECT_EQ(borra("a_fuera"), CIERTO);
    }
    EXPECT_EQ(borra("arbol"), CIERTO);
    EXPECT_EQ(directorios(en(""), "*"), "fuera");
    EXPECT_EQ(ficheros(en("fuera"), "*") + "|" + directorios(en("fuera"), "*"), "queda|d");
    EXPECT_EQ(borra("arbol"), CIERTO); // not there
    for (const char *raiz : {"", "/", ".", "./", "..", "\\\\", "C:", "C:\\", "\\\\serv\\comun\\"})
        EXPECT_EQ(ESPERA_INFORME("borrado", vdir_borra_directorio_y_subdirectorios_UNICODE(ancho(raiz).c_str())), FALSO)
            << raiz;
}

// While the tree is deleted, one of its directories is replaced by a link to another tree, again and again.
PRUEBA(vdir, borrar_un_arbol_no_sigue_un_enlace_puesto_mientras_tanto) {
    const fs::path raiz = directorio();
    fs::create_directories(raiz / "fuera");
    std::ofstream(raiz / "fuera" / "x1") << "queda";
    std::error_code e;
    fs::create_directory_symlink(raiz / "fuera", raiz / "enlace", e);
    if (e) return; // where a link takes a right that the tests lack
    for (int ronda = 0; ronda < 30; ++ronda) {
        const auto d = [&](int i) { return raiz / "arbol" / ("d" + std::to_string(i)); };
        for (int i = 0; i < 24; ++i) {
            fs::create_directories(d(i / 3));
            std::ofstream(d(i / 3) / ("x" + std::to_string(i % 3)));
        }
        std::atomic<bool> fin{false};
        std::thread otro([&] {
            std::error_code nada;
            for (int i = 0; !fin; i = (i + 1) % 8) {
                fs::rename(d(i), raiz / "aparte", nada);
                fs::rename(raiz / "enlace", d(i), nada);
                fs::rename(d(i), raiz / "enlace", nada);
                fs::rename(raiz / "aparte", d(i), nada);
            }
        });
        vdir_borra_directorio_y_subdirectorios_UNICODE(en("arbol").c_str());
        fin = true;
        otro.join();
        toma_informes(); // what has another name for a moment is left, and told
        fs::create_directory_symlink(raiz / "fuera", raiz / "enlace", e);
        ASSERT_TRUE(fs::exists(raiz / "fuera" / "x1")) << ronda;
    }
}

// Names that are not UTF-8, or hold the other platform's separator, exist on Linux only.
PRUEBA(vdir, un_nombre_cualquiera_va_y_vuelve) {
    if (EN_WINDOWS) return;
    for (const char *nombre : {"mal\xFFo", "\xC3", "a\\b", "\xED\xA0\x80"}) {
        graba(nombre, "12");
        arrCADENA_u *a = nullptr;
        EXPECT_EQ(vdir_lista_de_ficheros_UNICODE(ancho(directorio()).c_str(), VNU("*"), &a), CIERTO);
        ASSERT_EQ(arr_NumElemsCADENA_u(a), 1u);
        vnwchar *ruta = vdir_concatena_directorios_UNICODE(ancho(directorio()).c_str(), arr_GetCADENA_u(a, 0));
        EXPECT_EQ(vdir_longitud_fichero_u(ruta), 2u);
        EXPECT_EQ(vdir_borra_fichero_UNICODE(ruta), CIERTO);
        toma(ruta);
        vdir_libera_lista_de_ficheros_UNICODE(&a);
    }
}
