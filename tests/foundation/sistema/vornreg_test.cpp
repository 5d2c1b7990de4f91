#define VN_MODULO "vornreg_test"
#include "fallos.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vornreg.h"
#include "plataforma/proceso.h"
#include "texto_ancho.h"

using vn::ancho;
using vn::toma;

namespace {

constexpr uint32_t RAIZ = VORNREG_USUARIO;

// The registry's file, where it has one, in the test's directory; a key that no other run uses.
std::string clave_propia() {
    const std::string &d = vn::Prueba::directorio();
    fichconf_establece_directorio_base(ancho(d).c_str());
    return "Software\\nucleos_prueba\\" + d.substr(d.find_last_of('/') + 1);
}
// A null text takes the value away.
bool pon(const std::string &clave, const std::string &valor, const vnwchar *texto) {
    return vornreg_establece_cadena_u(RAIZ, ancho(clave).c_str(), ancho(valor).c_str(), texto) == CIERTO;
}
std::basic_string<vnwchar> lee(const std::string &clave, const std::string &valor) {
    vnwchar *t = nullptr;
    if (vornreg_lee_cadena_u(RAIZ, ancho(clave).c_str(), ancho(valor).c_str(), &t) != CIERTO) return VNU("(none)");
    const std::basic_string<vnwchar> texto = t;
    toma(t);
    return texto;
}
bool hay(const std::string &clave) { return vornreg_existe_clave_u(RAIZ, ancho(clave).c_str()) == CIERTO; }
std::string subclaves(const std::string &clave) {
    arrCADENA_u *lista = nullptr;
    return vornreg_dame_subclaves_u(RAIZ, ancho(clave).c_str(), &lista) == CIERTO ? toma(lista) : "(none)";
}
std::string textos(const std::string &clave) {
    arrCADENA_u *nombres = nullptr, *valores = nullptr;
    const vnbool hay_clave =
        vornreg_lee_valores_cadena_clave_ex_u(RAIZ, ancho(clave).c_str(), VORNREG_VISTA_PROPIA, &nombres, &valores);
    return hay_clave == CIERTO ? toma(nombres) + " -> " + toma(valores) : "(none)";
}

} // namespace

PRUEBA(vornreg, lo_que_se_pone_se_lee) {
    const std::string clave = clave_propia();
    vnwchar sola[] = {VNU('a'), 0xD800, VNU('b'), 0};
    const std::basic_string<vnwchar> larga(5000, VNU('ñ'));
    const vnwchar *const valores[] = {
        VNU(""), VNU("llano"), VNU("=[;x]\\n \\\\ \\u0041 "), VNU("dos\r\nlíneas\t\x01"), VNU("日本 \U0001F600"),
        sola,    larga.c_str()};
    const char *const nombres[] = {"", "Con espacios", "a=b", "[x]", ";y", "ñandú", "a\\b"};
    for (const char *nombre : nombres) {
        EXPECT_EQ(lee(clave, nombre), VNU("(none)"));
        for (const vnwchar *v : valores) {
            EXPECT_TRUE(pon(clave, nombre, v));
            EXPECT_EQ(lee(clave, nombre), v) << nombre;
        }
    }
    for (const char *nombre : nombres) {
        EXPECT_EQ(lee(clave, nombre), larga);
        for (int i = 0; i < 2; ++i) EXPECT_TRUE(pon(clave, nombre, nullptr)); // there or not
        EXPECT_EQ(lee(clave, nombre), VNU("(none)"));
    }
    EXPECT_TRUE(hay(clave)); // without values it stays
}

PRUEBA(vornreg, claves_y_nombres_en_cualquier_caja) {
    const std::string clave = clave_propia();
    EXPECT_EQ(subclaves(clave), "(none)");
    EXPECT_TRUE(pon(clave + "\\no", "x", nullptr)); // nothing is made for it
    EXPECT_FALSE(hay(clave));
    EXPECT_TRUE(pon(clave + "\\Beta\\Hija", "Nombre", VNU("uno")));
    EXPECT_TRUE(pon("\\" + clave + "\\alfa/con barra\\", "", VNU("dos")));
    EXPECT_TRUE(pon(clave + "\\BETA\\HIJA", "NOMBRE", VNU("tres")));
    EXPECT_TRUE(pon(clave + "\\Beta", "b", VNU("2")) && pon(clave + "\\Beta", "a", VNU("1")));
    EXPECT_EQ(lee(clave + "\\beta\\hija", "nombre"), VNU("tres"));
    EXPECT_EQ(lee(clave + "\\alfa/con barra", ""), VNU("dos"));
    EXPECT_EQ(subclaves(clave), "Beta|alfa/con barra");
    EXPECT_EQ(subclaves(clave + "\\beta\\"), "Hija");
    EXPECT_EQ(subclaves(clave + "\\beta\\hija"), "");
    EXPECT_EQ(textos(clave + "\\beta"), "a|b -> 1|2");
    EXPECT_EQ(textos(clave), " -> ");
    EXPECT_EQ(textos(clave + "\\Bet"), "(none)");
    EXPECT_TRUE(hay(clave) && hay(clave + "\\BETA") && !hay(clave + "\\Bet"));
    char *ansi = nullptr;
    arrCADENA *lista = nullptr;
    EXPECT_EQ(vornreg_lee_cadena(RAIZ, (clave + "\\Beta").c_str(), "A", &ansi), CIERTO);
    EXPECT_EQ(toma(ansi), "1");
    EXPECT_EQ(vornreg_dame_subclaves(RAIZ, clave.c_str(), &lista), CIERTO);
    EXPECT_EQ(toma(lista), "Beta|alfa/con barra");
    EXPECT_EQ(vornreg_lee_cadena(VORNREG_MAQUINA, clave.c_str(), "", &ansi), FALSO);
    EXPECT_EQ(ansi, nullptr);
}

// What somebody wrote by hand, with a mark in front and another system's line ends.
PRUEBA(vornreg, un_fichero_escrito_a_mano) {
    if (vn::EN_WINDOWS) return;
    const std::string clave = clave_propia(), raiz = "[" + std::to_string(RAIZ) + "\\",
                      fichero = directorio() + "/VORN/registro.txt";
    const std::string propia = raiz + clave + "]\r\n; de la oficina\r\n";
    std::filesystem::create_directories(directorio() + "/VORN");
    vn::graba_fichero(fichero, "\xEF\xBB\xBF" + propia + "uno=1\r\n\r\nUNO=1b\n; fin\n" + raiz + "Otra]\nB=2");
    EXPECT_EQ(lee(clave, "uno"), VNU("1b"));
    EXPECT_TRUE(pon(clave, "Uno", VNU("3")) && pon("Otra", "c", VNU("4")));
    EXPECT_TRUE(pon("otra", "b", nullptr));
    EXPECT_TRUE(pon("nueva", "", VNU("5")));
    EXPECT_EQ(vn::lee_fichero(fichero), propia + "Uno=3\n\r\n; fin\n" + raiz + "Otra]\nc=4\n" + raiz + "nueva]\n=5\n");
}

// A file too large to be one, and a directory in its place: an answer that is true, whatever it is.
PRUEBA(vornreg, sobre_un_fichero_cualquiera) {
    const std::string clave = clave_propia(), vorn = directorio() + "/VORN", fichero = vorn + "/registro.txt";
    std::filesystem::create_directories(vorn);
    const std::string contenido =
        "[" + std::to_string(RAIZ) + "\\" + clave + "]\ngrande=1\n;" + std::string(17 << 20, 'x');
    vn::graba_fichero(fichero, contenido);
    EXPECT_EQ(lee(clave, "grande"), VNU("(none)")); // not looked into
    bool puesto = pon(clave, "x", VNU("y"));
    EXPECT_EQ(puesto, lee(clave, "x") == VNU("y"));
    EXPECT_EQ(vn::lee_fichero(fichero).size(), contenido.size()); // what cannot be read is not lost
    std::filesystem::remove(fichero);
    std::filesystem::create_directory(fichero);
    puesto = pon(clave, "x", VNU("z"));
    EXPECT_EQ(puesto, lee(clave, "x") == VNU("z"));
    EXPECT_EQ(vornreg_tiene_permisos_escribir_en_registro(), vn::EN_WINDOWS ? CIERTO : FALSO);
}

// Arguments: the base directory, the key, the number of the program.
HIJO(anota_en_el_registro) {
    fichconf_establece_directorio_base(ancho(args.at(0)).c_str());
    for (const char c : std::string("01234567"))
        if (!pon(args.at(1), args.at(2) + c, ancho(args.at(2) + c).c_str())) return 3;
    return 0;
}

PRUEBA(vornreg, varios_programas_a_la_vez) {
    const std::string clave = clave_propia();
    auto hijos = vn::procesos(5, "anota_en_el_registro", [&](int i) {
        return std::vector{directorio(), clave, std::to_string(i)};
    });
    for (auto &h : hijos) EXPECT_EQ(h.espera(60000), 0);
    for (const char programa : std::string("01234"))
        for (const char c : std::string("01234567"))
            EXPECT_EQ(lee(clave, {programa, c}), ancho(std::string{programa, c}));
}

// Where the registry is a file: one value, which each edition replaces.
GUARDADO(registro) {
    const std::string carpeta = fichero.substr(0, fichero.rfind("/VORN/"));
    vn::pon_variable("XDG_RUNTIME_DIR", carpeta);
    fichconf_establece_directorio_base(ancho(carpeta).c_str());
    return pon("k", "v", std::basic_string<vnwchar>(70000, static_cast<vnwchar>('0' + edicion)).c_str());
}

PRUEBA(vornreg, cada_fallo_al_grabarlo) {
    if (vn::EN_WINDOWS) GTEST_SKIP() << "the registry of Windows is no file";
    vn::comprueba_guardado("registro", {.carpeta = "VORN", .fichero = "registro.txt", .informa = false});
}
