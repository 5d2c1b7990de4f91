#include "fallos.h"
#include "foundation/ficheros/fichmem.h"
#include "foundation/ficheros/vornfile.h"
#include "foundation/sistema/vnmutex.h"
#include "plataforma/ficheros.h"
#include "plataforma/proceso.h"
#include "plataforma/regional.h"
#include "prueba.h"
#include "texto_ancho.h"
#include <chrono>
#include <deque>
#include <filesystem>
#include <map>
#include <set>
#include <thread>

using namespace vn;
using namespace vn::plataforma;
namespace fs = std::filesystem;

namespace {

std::string ruta(const char *corto) { return Prueba::directorio() + "/" + corto; }
std::basic_string<vnwchar> nombre(const char *corto) { return ancho(ruta(corto)); }
// More than a stream's buffer, so that a save is several writes.
std::string contenido(int edicion) {
    return std::string(70000 + 1000 * static_cast<size_t>(edicion), static_cast<char>('0' + edicion));
}

bool escribe_edicion(vnfichero *f, int edicion) {
    const std::string s = contenido(edicion);
    size_t i = 0;
    for (; i < s.size() && lc_fwrite(s.data() + i, 1, 1000, f) == 1000; i += 1000) {
    }
    return i == s.size();
}
vnfichero *abre(const std::string &fichero) {
    return vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(ancho(fichero).c_str());
}
bool cierra(vnfichero *f, const std::string &fichero) {
    return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f, ancho(fichero).c_str()) == CIERTO;
}
bool hace_definitivo(const std::string &fichero) {
    return vornfile_hacer_definitivo_fichero_temporal_y_hacer_copia_seguridad_u(
               ancho(fichero).c_str(), ancho(fichero + "_TM$").c_str()) == CIERTO;
}
bool copia(const std::string &de, const std::string &a) {
    return vf_copyfile_seguro_u(ancho(de).c_str(), ancho(a).c_str()) == CIERTO;
}

constexpr const char *NO_ESCRITO = "lc_error_escribiendo_fichero";

} // namespace

GUARDADO(definitivo_al_cerrar) {
    vnfichero *f = abre(fichero);
    if (f == nullptr) return false;
    escribe_edicion(f, edicion);
    return cierra(f, fichero);
}

GUARDADO(hacer_definitivo) {
    const auto temporal = ancho(fichero + "_TM$");
    vnfichero *f = lc_fopen_u(temporal.c_str(), VNU("wb"));
    const bool escrito = f != nullptr && escribe_edicion(f, edicion);
    if (f != nullptr && lc_fclose(f) == CIERTO && escrito) return hace_definitivo(fichero);
    std::error_code error;
    fs::remove(fs::path(temporal), error); // its maker's
    return false;
}

GUARDADO(copia_segura) {
    const std::string origen = fichero.substr(0, fichero.find_last_of('/')) + ".origen"; // beside the directory
    graba_fichero(origen, contenido(edicion));
    return copia(origen, fichero);
}

GUARDADO(fichero_de_memoria) {
    fichmem *m = fichmem_crea_desde_cadena(contenido(edicion).c_str());
    const al_final destruye([&] { fichmem_destruye(&m); });
    return fichmem_graba_unicode(m, ancho(fichero).c_str()) == CIERTO;
}

PRUEBA(vornfile, cada_fallo_de_una_copia) {
    comprueba_guardado("copia_segura", {.con_copia = false, .informa = false, .muere = false});
}
PRUEBA(vornfile, cada_fallo_de_un_fichero_de_memoria) {
    comprueba_guardado("fichero_de_memoria", {.con_copia = false, .muere = false});
}
PRUEBA(vornfile, cada_fallo_de_lo_que_es_definitivo_al_cerrar) { comprueba_guardado("definitivo_al_cerrar"); }
PRUEBA(vornfile, cada_fallo_al_hacer_definitivo_un_temporal) { comprueba_guardado("hacer_definitivo"); }

// Patience has a bound: a holder that never lets go makes the save fail, told once, with the old content in place.
PRUEBA(vornfile, negativas_que_no_pasan) {
    ASSERT_TRUE(guardado_definitivo_al_cerrar(ruta("obra"), 0));
    static int veces;
    const vnoperaciones_fichero terco = {
        .renombra_abierto = [](vnid_fichero, const vnwchar *, const vnwchar *) { return ++veces, VN_FICH_COMPARTIDO; },
        .espera = [](uint32_t) {},
    };
    veces = 0;
    operaciones_fichero_instala(&terco);
    EXPECT_FALSE(ESPERA_INFORME(NO_ESCRITO, guardado_definitivo_al_cerrar(ruta("obra"), 1)));
    operaciones_fichero_instala(nullptr);
    EXPECT_TRUE(veces > 5 && veces < 100) << veces;
    EXPECT_TRUE(lee_fichero(ruta("obra")) == contenido(0));
    EXPECT_FALSE(existe(ruta("obra_TM$")));

    // In the hands of its only writer it is not replaced either.
    vnfichero *otro = f_lc_fopen_modo_escritura_u(nombre("obra").c_str(), VNU("r+b"), CIERTO, VN_AQUI);
    EXPECT_FALSE(ESPERA_INFORME(NO_ESCRITO, guardado_definitivo_al_cerrar(ruta("obra"), 1)));
    EXPECT_FALSE(copia(ruta("obra"), ruta("obra")));
    lc_fclose(otro);

    fs::create_directory(ruta("carpeta"));
    for (const char *no : {"carpeta", "no/obra"})
        EXPECT_FALSE(ESPERA_INFORME("f_lc_fopen", guardado_definitivo_al_cerrar(ruta(no), 1)));
}

PRUEBA(vornfile, copias_y_anadidos) {
    const auto anade = [](const char *de, const char *a) {
        return vf_appendfile_u(nombre(de).c_str(), nombre(a).c_str()) == CIERTO;
    };
    graba_fichero(ruta("copia"), contenido(5));
    EXPECT_FALSE(copia(ruta("no"), ruta("copia")));
    graba_fichero(ruta("otro"), "otro");
    for (const char *a : {"copia", "otro", "nuevo"}) EXPECT_TRUE(anade("otro", a));
    EXPECT_FALSE(ESPERA_INFORME("f_lc_fopen", anade("no", "otro")));
    EXPECT_TRUE(lee_fichero(ruta("copia")) == contenido(5) + "otro");
    EXPECT_EQ(lee_fichero(ruta("nuevo")), "otrootro");
}

constexpr int MIA = 3;
static bool guarda(const std::string &fichero) { return guardado_definitivo_al_cerrar(fichero, MIA); }
static bool es_la_mia(const std::string &fichero) { return lee_fichero(fichero) == contenido(MIA); }
// A save that must be refused; why.
static vnerror_fichero motivo(const std::string &fichero) {
    EXPECT_FALSE(guarda(fichero));
    EXPECT_EQ(Prueba::toma_informes().size(), 1u) << fichero;
    return lc_ultimo_error(nullptr);
}
// False where there are no links for programs like this one.
static bool enlaza(const char *a, const char *nombre_corto) {
    std::error_code error;
    return fs::create_symlink(a, fs::path(ruta(nombre_corto)), error), !error;
}

// A link is followed to the file that it leads to, there or not, and stays a link.
PRUEBA(vornfile, un_enlace_se_guarda_en_lo_suyo) {
    fs::create_directory(ruta("lejos"));
    graba_fichero(ruta("lejos/obra"), "vieja");
    if (!enlaza("lejos/obra", "obra") || !enlaza("obra", "doble") || !enlaza("lejos/nueva", "colgado"))
        GTEST_SKIP() << "links cannot be made here";
    for (const char *enlace : {"doble", "colgado"}) EXPECT_TRUE(guarda(ruta(enlace)));
    EXPECT_TRUE(es_la_mia(ruta("lejos/obra")) && es_la_mia(ruta("lejos/nueva")));
    EXPECT_TRUE(fs::is_symlink(ruta("obra")) && fs::is_symlink(ruta("doble")) && fs::is_symlink(ruta("colgado")));
    EXPECT_EQ(lee_fichero(ruta("lejos/obra.bak")), "vieja");
    EXPECT_FALSE(existe(ruta("doble.bak")));
    ASSERT_TRUE(enlaza("circulo", "circulo"));
    EXPECT_EQ(motivo(ruta("circulo")), VN_FICH_NO_ADMITIDO);
}

// Whatever stands under the temporary's name goes, and what it leads to is not touched; but not a directory.
PRUEBA(vornfile, lo_que_hay_en_el_sitio_del_temporal) {
    const std::string temporal = ruta("obra_TM$"), victima = ruta("victima");
    for (const int planta : {0, 1, 2, 3}) {
        SCOPED_TRACE(planta);
        graba_fichero(victima, "victima");
        if (planta == 0 && !enlaza("victima", "obra_TM$")) continue;
        if (planta == 1) fs::create_hard_link(victima, temporal);
        if (planta == 2 && !hace_tuberia(temporal)) continue;
        if (planta == 3) graba_fichero(temporal, "de otro"), hace_de_solo_lectura(temporal);
        EXPECT_TRUE(guarda(ruta("obra")));
        EXPECT_EQ(lee_fichero(victima), "victima");
        EXPECT_TRUE(fs::is_regular_file(fs::symlink_status(ruta("obra"))) && es_la_mia(ruta("obra")));
        graba_fichero(ruta("normal"), "");
        EXPECT_EQ(particularidades(ruta("obra")), particularidades(ruta("normal")));
        EXPECT_FALSE(existe(temporal));
        fs::remove(ruta("obra"));
    }
    // A finished temporary that is a link is not put in place either.
    EXPECT_FALSE(enlaza("victima", "obra_TM$") && ESPERA_INFORME(NO_ESCRITO, hace_definitivo(ruta("obra"))));
    EXPECT_EQ(lee_fichero(victima), "victima");
    fs::remove(temporal);
    fs::create_directory(temporal);
    EXPECT_EQ(motivo(ruta("obra")), VN_FICH_ES_DIRECTORIO);
    EXPECT_EQ(motivo(temporal), VN_FICH_ES_DIRECTORIO);
    EXPECT_TRUE(!hace_tuberia(ruta("tuberia")) || motivo(ruta("tuberia")) == VN_FICH_NO_ADMITIDO);
}

// Rights, group, notes, access list, attributes: as they were, by every road, in the safety copy too.
PRUEBA(vornfile, el_nuevo_es_lo_que_era_el_viejo) {
    fs::create_directory(ruta("d"));
    const std::string obra = ruta("d/obra");
    constexpr funcion_guarda CAMINOS[] = {guardado_definitivo_al_cerrar, guardado_hacer_definitivo,
                                          guardado_fichero_de_memoria, guardado_copia_segura};
    for (const auto guarda : CAMINOS)
        for (const bool sin_enlaces : {false, true}) {
            fs::remove(obra), fs::remove(obra + ".bak");
            graba_fichero(obra, "vieja");
            const std::string normales = particularidades(obra);
            hace_particular(obra);
            const std::string antes = particularidades(obra);
            EXPECT_NE(antes, normales);
            {
                const con_fallos puestos({fallo::ninguno, SIZE_MAX, sin_enlaces, {}});
                EXPECT_TRUE(guarda(obra, MIA));
            }
            EXPECT_TRUE(es_la_mia(obra));
            EXPECT_EQ(particularidades(obra), antes);
            EXPECT_TRUE(!existe(obra + ".bak") || particularidades(obra + ".bak") == antes);
        }
    // What is the user's alone is so from the first byte; and a copy has the rights of what it is made from.
    graba_fichero(ruta("privada"), "vieja");
    if (!hace_privado(ruta("privada"))) return;
    vnfichero *f = abre(ruta("privada"));
    EXPECT_TRUE(es_privado(ruta("privada_TM$")));
    EXPECT_EQ(vornfile_abandonar_fichero_escritura(f), CIERTO);
    EXPECT_TRUE(copia(ruta("privada"), ruta("copia")));
    EXPECT_TRUE(es_privado(ruta("copia")));
}

// Names as long as a directory takes, two of them that differ at their end, and a working directory that changes.
PRUEBA(vornfile, nombres_largos_y_relativos) {
    for (const char fin : {'a', 'b'})
        for (const size_t largo : {250, 251, 252, 255}) {
            const std::string obra = ruta((std::string(largo - 3, 'x') + (EN_WINDOWS ? "nn" : "ñ") + fin).c_str());
            for (const int edicion : {fin - 'a', MIA})
                EXPECT_TRUE(guardado_definitivo_al_cerrar(obra, edicion)) << largo;
            EXPECT_TRUE(es_la_mia(obra));
        }
    std::map<std::string, int> hay; // the saved and their copies
    for (const auto &e : fs::directory_iterator(directorio())) ++hay[lee_fichero(e.path().string())];
    EXPECT_TRUE(hay == (std::map<std::string, int>{{contenido(0), 4}, {contenido(1), 4}, {contenido(MIA), 8}}));

    const fs::path antes = fs::current_path();
    fs::current_path(directorio());
    vnfichero *f = abre("relativa");
    escribe_edicion(f, MIA);
    fs::current_path(antes);
    EXPECT_TRUE(cierra(f, "relativa"));
    EXPECT_TRUE(es_la_mia(ruta("relativa")));
}

// The close and the giving up take a stream that was opened for them, by its name; any other is closed, nothing else.
PRUEBA(vornfile, flujos_que_no_son_del_guardado) {
    const std::string x = ruta("x"), y = ruta("y");
    graba_fichero(x, "x");
    graba_fichero(y, "y");
    const auto otro_flujo = [&] { return lc_fopen_u(ancho(x).c_str(), VNU("rb")); };
    EXPECT_FALSE(ESPERA_INFORME("abierto para hacerse definitivo al cerrar", cierra(otro_flujo(), x)));
    EXPECT_EQ(
        ESPERA_INFORME("abierto para hacerse definitivo al cerrar", vornfile_abandonar_fichero_escritura(otro_flujo())),
        FALSO);
    EXPECT_FALSE(ESPERA_INFORME("nombre con el que se ha abierto", cierra(abre(x), y)));
    EXPECT_EQ(lee_fichero(x) + lee_fichero(y), "xy");
    // Told nonsense: it fails, and says so.
    vnfichero *f = abre(x);
    ESPERA_INFORME(NO_ESCRITO, (lc_error_escribiendo_fichero(f), 0));
    EXPECT_FALSE(cierra(f, ruta("./x")));
    EXPECT_EQ(lc_ultimo_error(nullptr), VN_FICH_DATOS);
    EXPECT_EQ(lee_fichero(x), "x");
    EXPECT_FALSE(existe(x + "_TM$"));
}

// The second saver is told why, in the report too; the temporary that somebody has taken away is missed.
PRUEBA(vornfile, se_dice_el_motivo) {
    const std::string obra = ruta("obra");
    vnfichero *f = abre(obra);
    EXPECT_EQ(abre(obra), nullptr);
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 1u);
    EXPECT_EQ(informes[0].expresion, "f_lc_fopen");
    EXPECT_EQ(informes[0].detalle, obra + ": lo tiene abierto otro programa");
    EXPECT_EQ(lc_ultimo_error(nullptr), VN_FICH_COMPARTIDO);
    std::error_code error;
    if (fs::remove(obra + "_TM$", error)) {
        graba_fichero(obra + "_TM$", "de otro");
        EXPECT_FALSE(ESPERA_INFORME(NO_ESCRITO, cierra(f, obra)));
        EXPECT_EQ(lee_fichero(obra + "_TM$"), "de otro");
        EXPECT_FALSE(existe(obra));
    } else {
        EXPECT_TRUE(cierra(f, obra));
    }
    EXPECT_EQ(f_lc_fopen_seguro_u(nombre("no").c_str(), VNU("rb"), VN_AQUI), nullptr);
    EXPECT_EQ(lc_ultimo_error(nullptr), VN_FICH_NO_EXISTE);
    EXPECT_EQ(utf8_de(lc_texto_error_u(lc_ultimo_error(nullptr))), "no existe");
}

// Arguments: a file. Nothing of what the program prints goes into it, and a limit of size is a disk that is full.
HIJO(guarda_sin_los_tres) {
    const std::string obra = args.at(0);
    if (!cierra_los_tres()) return 0;
    error_interno_instala_receptor(nullptr, nullptr);
    // What is opened first would be the input, and the file the output.
    vnmutex *m = vnmutex_crea_entre_aplicaciones("vornfile");
    vnmutex_entra(m);
    vnfichero *f = abre(obra);
    escribe_edicion(f, MIA);
    lc_fflush(f);
    std::printf("to the output\n");
    std::fflush(stdout);
    f_lc_feof(nullptr); // reported on the error stream
    vnmutex_destruye_saliendo(&m);
    return cierra(f, obra) && es_la_mia(obra) ? 0 : 1;
}

HIJO(guarda_con_limite) {
    if (!limita_tamanyo(65536)) return 0;
    error_interno_instala_receptor([](const vninforme *, void *) {}, nullptr);
    if (guarda(args.at(0)) || lc_ultimo_error(nullptr) != VN_FICH_SIN_ESPACIO) return 1;
    return existe(args.at(0) + "_TM$") ? 2 : 0;
}

PRUEBA(vornfile, sin_los_tres_flujos_y_con_limite_de_tamanyo) {
    EXPECT_EQ(proceso("guarda_sin_los_tres", {ruta("obra")}).espera(60000), 0);
    graba_fichero(ruta("obra"), "vieja");
    EXPECT_EQ(proceso("guarda_con_limite", {ruta("obra")}).espera(60000), 0);
    EXPECT_EQ(lee_fichero(ruta("obra")), "vieja");
}

// Arguments: which of two users, a directory. The result is the number of the first surprise.
HIJO(guarda_como_usuario) {
    const std::string d = args.at(1) + "/";
    if (!se_hace_usuario(std::stoi(args.at(0)))) return 0;
    error_interno_instala_receptor([](const vninforme *, void *) {}, nullptr);
    // Refused for want of a right, the old one in place.
    const auto se_niega = [&](const char *corto) {
        return !guarda(d + corto) && lc_ultimo_error(nullptr) == VN_FICH_SIN_PERMISO && !es_la_mia(d + corto);
    };
    if (args.at(0) == "1") {
        if (!guarda(d + "ajeno") || !guarda(d + "protegido") || !guarda(d + "pegado/suyo")) return 1;
        // What another's saver that died has left: it can be read, and not written.
        graba_fichero(d + "ajeno_TM$", "resto");
        graba_fichero(d + "pegado/suyo", "suya");
        fs::permissions(d + "pegado/suyo", static_cast<fs::perms>(0666));
        graba_fichero(d + "protegido", "protegida");
        hace_de_solo_lectura(d + "protegido");
        return se_niega("protegido") ? 0 : 2;
    }
    if (!guarda(d + "nuevo") || !se_niega("protegido")) return 3;
    if (!se_niega("pegado/suyo") || existe(d + "pegado/suyo_TM$") || existe(d + "pegado/suyo_BK$")) return 4;
    if (guarda(d + "ajeno") || existe(d + "ajeno_TM$")) return 5; // the file may not be written, what was left could go
    return guarda(d + "ilegible/obra") ? 0 : 6;
}

PRUEBA(vornfile, ficheros_de_otros_usuarios) {
    fs::create_directory(ruta("ilegible"));
    fs::create_directory(ruta("pegado"));
    fs::permissions(directorio(), static_cast<fs::perms>(0777));
    fs::permissions(ruta("pegado"), static_cast<fs::perms>(01777));
    if (!hace_ilegible(ruta("ilegible"))) GTEST_SKIP() << "rights cannot be taken from a file here";
    for (const char *cual : {"1", "2"})
        EXPECT_EQ(proceso("guarda_como_usuario", {cual, directorio()}).espera(60000), 0);
    fs::permissions(ruta("ilegible"), static_cast<fs::perms>(0777));
}

// Arguments: a file, the number of the program. It writes down what it was told was saved.
HIJO(guarda_sin_parar) {
    error_interno_instala_receptor([](const vninforme *, void *) {}, nullptr);
    for (int i = 0;; ++i) {
        const std::string quien = args.at(1) + "." + std::to_string(i) + "\n";
        vnfichero *f = abre(args.at(0));
        for (int k = 0; f != nullptr && k < 20000; ++k) lc_fwrite(quien.data(), 1, quien.size(), f);
        if (f != nullptr) cierra(f, args.at(0));
    }
}

// Programs that save one file, some of them killed at any moment: the file and its copy are always whole.
PRUEBA(vornfile, programas_que_guardan_un_fichero) {
    const auto entero = [](const std::string &s) {
        const size_t n = s.find('\n') + 1;
        return s.size() == n * 20000 && std::equal(s.begin() + static_cast<ptrdiff_t>(n), s.end(), s.begin());
    };
    std::set<std::string> vistos;
    std::deque<proceso> hijos;
    for (int k = 0; k < 12; ++k) {
        if (hijos.size() == 3) hijos.pop_front(); // which kills it
        hijos.emplace_back("guarda_sin_parar", std::vector<std::string>{ruta("obra"), std::to_string(k)});
        for (int i = 0; i < 20; ++i) {
            std::this_thread::sleep_for(std::chrono::milliseconds(EN_WINDOWS ? 15 : 5));
            for (const char *corto : {"obra", "obra.bak"}) {
                vnfichero *f = f_lc_fopen_seguro_u(nombre(corto).c_str(), VNU("rb"), VN_AQUI);
                if (f == nullptr) continue;
                std::string s(static_cast<size_t>(lc_bytes_restantes(f)), 0);
                lc_fread(s.data(), 1, s.size(), f);
                lc_fclose(f);
                EXPECT_TRUE(entero(s)) << corto << " of " << s.size() << " bytes";
                vistos.insert(s.substr(0, s.find('\n')));
            }
        }
    }
    hijos.clear();
    EXPECT_GT(vistos.size(), 5u);
    EXPECT_TRUE(guarda(ruta("obra")) && es_la_mia(ruta("obra")));
}
