#include "fallos.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/version.h"
#include "foundation/sistema/vnstdc.h"
#include "persistence/ultiobra.h"
#include "persistence/vornbin.h"
#include "texto_ancho.h"

namespace {

using namespace std::string_literals;
using vn::con_informe;
using vn::toma;
using ancho_t = std::basic_string<vnwchar>;

std::string u16le(std::string_view ascii) {
    std::string s;
    for (const char c : ascii) (s += c) += '\0';
    return s;
}
std::string numero(uint32_t n) {
    return {static_cast<char>(n), static_cast<char>(n >> 8), static_cast<char>(n >> 16), static_cast<char>(n >> 24)};
}
std::string texto_u(std::string_view ascii) { return numero(static_cast<uint32_t>(ascii.size())) + u16le(ascii); }
std::string texto(std::string_view s) { return numero(static_cast<uint32_t>(s.size())).substr(0, 2) + std::string(s); }

const std::string ID = "\2\1"s + texto("VORN-9-a");
const std::string SIN_LISTAS = numero(0) + numero(0);
// One field, two entries of the reserved list.
const std::string LISTAS =
    numero(1) + texto_u("obra") + texto_u("puente") + numero(2) + numero(7) + texto_u("x") + numero(9) + texto_u("");
const std::string MARCA = "\xFD\xFE";

// A file of the test's, by its names of both widths.
struct archivo {
    explicit archivo(const char *nombre = "obra.vrn")
        : ruta(vn::Prueba::directorio() + "/" + nombre), ruta_u(vn::ancho(ruta)) {}
    const vnwchar *u() const { return ruta_u.c_str(); }
    const char *ansi() const { return ruta.c_str(); }
    void graba(std::string_view bytes) const { vn::graba_fichero(ruta, bytes); }
    std::string lee() const { return vn::lee_fichero(ruta); }
    bool hay(const char *sufijo = "") const { return vn::existe(ruta + sufijo); }
    std::string ruta;
    ancho_t ruta_u;
};

std::string campos(const archivo &a) {
    arrCADENA_u *nombres = nullptr, *valores = nullptr;
    const vnbool hay = vornbin_lee_campos_cabecera_u(a.u(), &nombres, &valores);
    const std::string n = toma(nombres), v = toma(valores);
    return hay == CIERTO ? n + "=" + v : "no";
}

// Saves over `a` with header and prologue, and one byte of data.
vnbool guarda(const archivo &a, char dato = 'D') {
    vnfichero *f =
        vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(a.u(), 3, "FIRMA", VNU("Título"), nullptr);
    if (f == nullptr) return FALSO;
    bin_graba_char(dato, f);
    return vornbin_cierra_fichero_abierto_para_escritura_u(f, a.u(), nullptr);
}

const std::string PROLOGO = "\0\3\0"s + texto("FIRMA") + texto("T\xEDtulo");

// The identity of the program while a test runs.
auto identidad() {
    version_establece_u(VNU("9.1"), VNU("9"), 'a');
    return vn::al_final([] {
        version_establece_u(VNU("1.0"), VNU("1"), 'a');
        vornbin_establece_directorio_ejemplos_u(nullptr);
    });
}

struct apertura {
    std::string resultado; // "open", "closed"
    uint16_t version = 0;
    std::string titulo, resto;
    vnbool ejemplo = FALSO;
};

apertura abre_completo(const archivo &a, uint16_t version_actual, vnbool *superior, uint16_t version_ascii = 0) {
    apertura r;
    vnwchar *titulo = nullptr;
    vnfichero *f = vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(
        a.u(), version_actual, "FIRMA", nullptr, &r.version, &titulo, version_ascii, &r.ejemplo, superior);
    r.resultado = f != nullptr ? "open" : "closed";
    r.titulo = toma(titulo);
    if (f == nullptr) return r;
    r.resto.resize(static_cast<size_t>(lc_bytes_restantes(f)));
    f_lc_fread_sin_error(r.resto.data(), 1, r.resto.size(), f);
    lc_fclose(f);
    return r;
}

} // namespace

PRUEBA(vornbin_cabecera, las_cuatro_formas_de_fichero_al_byte) {
    const auto i = identidad();
    const archivo a;
    const auto cierra = [&](vnfichero *f) {
        bin_graba_char('D', f);
        EXPECT_FALSE(a.hay());
        EXPECT_TRUE(a.hay("_TM$"));
        EXPECT_EQ(vornbin_cierra_fichero_abierto_para_escritura_u(f, a.u(), nullptr), CIERTO);
        const std::string bytes = a.lee();
        EXPECT_FALSE(a.hay("_TM$"));
        std::remove(a.ansi());
        return bytes;
    };
    EXPECT_EQ(cierra(vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(a.u(), 3, "FIRMA", VNU("Título"),
                                                                                     nullptr)),
              ID + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D");
    EXPECT_EQ(cierra(vornbin_abre_fichero_para_escritura_u(a.u(), nullptr)), ID + "\1" + MARCA + SIN_LISTAS + "D");
    EXPECT_EQ(cierra(vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(a.u(), 3, "FIRMA",
                                                                                         VNU("Título"), nullptr)),
              PROLOGO + "D");
    EXPECT_EQ(cierra(vornbin_abre_fichero_para_escritura_sin_cabecera(a.ansi(), nullptr)), "D");
    EXPECT_EQ(cierra(vornbin_abre_basico_fichero_para_escritura(a.ansi())), "D");
    // The ANSI forms of the close.
    EXPECT_EQ(vornbin_cierra_basico_fichero_abierto_para_escritura(vornbin_abre_basico_fichero_para_escritura(a.ansi()),
                                                                   a.ansi()),
              CIERTO);
    EXPECT_EQ(vornbin_cierra_fichero_abierto_para_escritura(vornbin_abre_basico_fichero_para_escritura(a.ansi()),
                                                            a.ansi(), nullptr),
              CIERTO);
    EXPECT_EQ(a.lee(), "");
}

PRUEBA(vornbin_cabecera, que_identificaciones_y_formas_se_aceptan) {
    const auto con_id = [](const std::string &id) { return "\2\1" + texto(id) + "\1" + MARCA + SIN_LISTAS + "datos"; };
    const struct {
        const char *que;
        std::string bytes;
        size_t pos = 0; // where the data begin behind a header
        std::string version = "9", revision = "a";
        bool ejemplo = false, valido = true;
    } filas[] = {
        {"plain", con_id("VORN-9-a"), 23},
        {"sample", con_id("WENK-2026-b"), 26, "2026", "b", true},
        {"revision of one digit", con_id("VORN-9-7"), 23, "9", "7"},
        {"longer revision", con_id("VORN-9-ab"), 24, "9", "ab"},
        {"longer revision that begins with a digit", con_id("VORN-9-7x")},
        {"four pieces", con_id("VORN-9-a-b")},
        {"two pieces", con_id("VORN-9")},
        {"no revision", con_id("VORN-9-")},
        {"another mask", con_id("VORM-9-a")},
        {"no version text", con_id("VORN--a"), 22, ""},
        {"199 characters", con_id("VORN-" + std::string(192, '1') + "-a"), 214, std::string(192, '1')},
        {"200 characters", con_id("VORN-" + std::string(193, '1') + "-a")},
        {"empty file", ""},
        {"two bytes", "\2\1"},
        {"length of 200 and nothing else", "\2\1\xC8\0"s},
        {"text cut short", "\2\1\10\0VORN-9-"s},
        {"another first byte", "\1" + con_id("VORN-9-a").substr(1)},
        {"form 0 with lists", ID + "\0"s + MARCA + LISTAS, 15 + LISTAS.size()},
        {"form 1 of the first years", ID + "\001datos", 13},
        {"form 0 of the first years", ID + "\0datos"s, 13},
        {"form 1 at the end of the file", ID + "\1", 13},
        {"half the mark", ID + "\1\xFD", 13},
        {"form 2, lists at once", ID + "\2" + LISTAS + "datos", 13 + LISTAS.size()},
        {"form 3", ID + "\3", 0, "", "", false, false},
        {"no form byte", ID, 0, "", "", false, false},
    };
    const archivo a;
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.que);
        a.graba(fila.bytes);
        char *version = nullptr, *revision = nullptr;
        vnbool ejemplo = 7, hay = FALSO;
        con_informe(fila.valido ? nullptr : "fichero_valido == CIERTO",
                    [&] { hay = vornbin_hay_cabecera_en_fichero_u(a.u(), &version, &revision, &ejemplo); });
        EXPECT_EQ(hay, fila.pos != 0);
        EXPECT_EQ(vornbin_es_fichero_vorn_valido(a.ansi()), fila.valido);
        EXPECT_EQ(toma(version), hay ? fila.version : "(null)");
        EXPECT_EQ(toma(revision), hay ? fila.revision : "(null)");
        if (!fila.valido) continue;
        EXPECT_EQ(ejemplo, fila.ejemplo);
        vnfichero *f = vornbin_abre_fichero_para_lectura_unicode(a.u(), nullptr);
        ASSERT_NE(f, nullptr);
        EXPECT_EQ(lc_ftell(f), static_cast<int32_t>(fila.pos));
        lc_fclose(f);
    }
}

PRUEBA(vornbin_cabecera, los_campos_y_la_lista_reservada_pasan_de_un_guardado_a_otro) {
    const auto i = identidad();
    const archivo a;
    EXPECT_EQ(guarda(a), CIERTO);
    EXPECT_EQ(campos(a), "=");
    for (const std::string &forma : {"\1" + MARCA, "\0"s + MARCA, "\2"s}) {
        a.graba("\2\1" + texto("VORN-1-z") + forma + LISTAS + PROLOGO + "viejo");
        EXPECT_EQ(guarda(a), CIERTO);
        EXPECT_EQ(guarda(a), CIERTO);
        EXPECT_EQ(a.lee(), ID + "\1" + MARCA + LISTAS + PROLOGO + "D");
        EXPECT_EQ(campos(a), "obra=puente");
    }
    // A host gives fields: one in its place, one at the end, twice the same the last one.
    const auto da = [&](const vn::textos &nombres, const vn::textos &valores) {
        vnfichero *f = vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
            a.u(), 3, "FIRMA", VNU("Título"), nombres.get(), valores.get(), nullptr);
        return f != nullptr && vornbin_cierra_fichero_abierto_para_escritura_u(f, a.u(), nullptr) == CIERTO;
    };
    EXPECT_TRUE(da(vn::textos_de({"obra", "autor"}), vn::textos_de({"túnel largo", ""})));
    EXPECT_EQ(campos(a), "obra|autor=túnel largo|");
    EXPECT_TRUE(da(vn::textos_de({"obra", "obra"}), vn::textos_de({"", "fin"})));
    EXPECT_EQ(campos(a), "obra|autor=fin|");
    EXPECT_NE(a.lee().find(numero(2) + numero(7) + texto_u("x") + numero(9) + texto_u("") + PROLOGO),
              std::string::npos);
    EXPECT_FALSE(ESPERA_INFORME("arr_NumElemsCADENA_u(nombres) == arr_NumElemsCADENA_u(valores)",
                                da(vn::textos_de({"obra"}), vn::textos_de({}))));
    // Many, over many.
    const vn::textos n = vn::textos_de({}), v = vn::textos_de({});
    for (int32_t k = 0; k < 20000; ++k) arr_AppendCADENA_u(n.get(), vn::ancho("campo " + std::to_string(k)).c_str());
    arr_ConcatenaCADENA_u(v.get(), n.get());
    EXPECT_TRUE(da(n, v));
    for (uint32_t k = 0; k < 300; ++k) arr_SetCADENA_u(n.get(), k, vn::ancho("nuevo " + std::to_string(k)).c_str());
    EXPECT_TRUE(da(n, v));
    const std::string todos = campos(a);
    EXPECT_EQ(std::count(todos.begin(), todos.end(), '|'), 2 * 20301);
    EXPECT_TRUE(todos.find("|nuevo 299=túnel") == std::string::npos &&
                todos.find("|nuevo 299=fin") != std::string::npos && todos.ends_with("|campo 299"));
    // A form of later programs cannot be kept, which is said.
    a.graba(ID + "\3" + PROLOGO);
    EXPECT_EQ(ESPERA_INFORME("fichero_valido == CIERTO", guarda(a)), CIERTO);
    // A damaged header does not stand in the way of saving over it.
    a.graba(ID + "\1" + MARCA + numero(0x40000000) + "x");
    EXPECT_EQ(campos(a), "no");
    EXPECT_EQ(guarda(a), CIERTO);
    EXPECT_EQ(a.lee(), ID + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D");
}

PRUEBA(vornbin_cabecera, la_lectura_estricta_se_niega_con_el_nombre_del_fichero) {
    const auto i = identidad();
    const archivo a;
    guarda(a);
    vnbool superior = 7;
    apertura r = abre_completo(a, 3, &superior);
    EXPECT_EQ(r.resultado + r.titulo + r.resto, "openTítuloD");
    EXPECT_TRUE(r.version == 3 && superior == FALSO && r.ejemplo == FALSO);
    // A newer file: read on when the caller asks to be told.
    r = abre_completo(a, 2, &superior);
    EXPECT_EQ(r.resultado + r.titulo + r.resto, "openTítuloD");
    EXPECT_TRUE(r.version == 3 && superior == CIERTO);
    r = ESPERA_INFORME("*version <= version_actual", abre_completo(a, 2, nullptr));
    EXPECT_EQ(r.resultado + r.titulo, "closed(null)");
    // Title of an old version, in the OEM page; no header is no fault.
    a.graba("\0\3\0"s + texto("FIRMA") + texto("T\xA1tulo") + "D");
    EXPECT_EQ(abre_completo(a, 3, nullptr, 3).titulo, "Título");
    EXPECT_EQ(abre_completo(a, 3, nullptr, 2).titulo, "T¡tulo");
    a.graba("\0\3\0"s + texto("OTRA") + texto("T") + "D");
    r = abre_completo(a, 3, nullptr);
    const auto informes = vn::Prueba::toma_informes();
    ASSERT_EQ(informes.size(), 1u);
    EXPECT_EQ(informes[0].expresion, "cad_cadenas_iguales(buf, firma)");
    EXPECT_EQ(informes[0].detalle, a.ruta);
    a.graba(ID + "\3" + PROLOGO);
    r = ESPERA_INFORME("valido == CIERTO", abre_completo(a, 3, nullptr));
    EXPECT_EQ(r.resultado, "closed");
    r = ESPERA_INFORME("f_lc_fopen", abre_completo(archivo("no_hay"), 3, nullptr));
    EXPECT_EQ(r.resultado, "closed");
}

// Each file, strictly, tolerantly, and by the two tests of whether it can be read: one warns the user.
PRUEBA(vornbin_cabecera, un_fichero_que_no_se_puede_leer_se_dice) {
    const auto i = identidad();
    const archivo a;
    constexpr const char *NUEVA = "*version <= version_actual", *FIRMA = "cad_cadenas_iguales(buf, firma)",
                         *LECTURA = "lc_error_leyendo_fichero";
    const struct {
        const char *que;
        std::string bytes;
        const char *estricto = nullptr, *tolerante = nullptr; // reports of the openings of a prologue
        bool solo_prologo = true;
    } filas[] = {
        {"prologue only", PROLOGO + "D"},
        {"header", ID + "\1" + MARCA + LISTAS + PROLOGO + "D", nullptr, nullptr, false},
        {"newer", "\0\4\0"s + PROLOGO.substr(3), NUEVA},
        {"newer behind a header", ID + "\1" + MARCA + LISTAS + "\0\4\0"s + PROLOGO.substr(3), NUEVA, nullptr, false},
        {"another signature of that length", "\0\3\0"s + texto("FIRMO") + texto("t"), FIRMA},
        {"longer signature", "\0\3\0"s + texto("FIRMA2") + texto("t"), FIRMA},
        {"debug byte of 2", "\2" + PROLOGO.substr(1), LECTURA, LECTURA, false},
        {"form 3", ID + "\3" + PROLOGO, LECTURA, LECTURA, false},
        {"cut in the version", "\0\3"s, LECTURA, LECTURA},
        {"cut in the title", PROLOGO.substr(0, PROLOGO.size() - 1), LECTURA, LECTURA},
        {"one byte less than the least", PROLOGO.substr(0, 11), LECTURA, LECTURA, false},
        {"nothing behind the header", ID + "\1", LECTURA, LECTURA, false},
    };
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.que);
        a.graba(fila.bytes);
        const bool bien = fila.estricto == nullptr;
        for (const bool tolerante : {false, true}) {
            if (!fila.solo_prologo) break;
            uint16_t version = 7;
            char *titulo = nullptr;
            vnfichero *f = nullptr;
            con_informe(tolerante ? fila.tolerante : fila.estricto, [&] {
                if (tolerante)
                    EXPECT_EQ(vornbin_se_abre_fichero_para_lectura_sin_cabecera_version_programa_u(
                                  a.u(), 3, "FIRMA", nullptr, 0, &f, &version, &titulo),
                              bien);
                else
                    f = vornbin_abre_fichero_para_lectura_sin_cabecera_version_programa_u(a.u(), 3, "FIRMA", nullptr,
                                                                                          &version, &titulo, 0);
            });
            EXPECT_TRUE(!tolerante || version == (bien ? 3 : 65535));
            EXPECT_EQ(toma(titulo), bien ? "T\xEDtulo" : "(null)");
            ASSERT_EQ(f != nullptr, bien);
            if (f == nullptr) continue;
            EXPECT_EQ(bin_lee_char(f), 'D');
            vornbin_cierra_fichero_abierto_para_lectura_u(f, a.u(), nullptr);
        }
        char titulo[8] = "-------";
        EXPECT_EQ(bin_fichero_valido_u(a.u(), 3, "FIRMA", 7, titulo, 0), bien);
        EXPECT_EQ(titulo, bien ? "T\xEDtulo"s : "-------"s);
        const auto avisos = vn::Prueba::toma_avisos();
        ASSERT_EQ(avisos.size(), bien ? 0u : 1u);
        EXPECT_TRUE(bien || avisos[0].find(a.ruta) != std::string::npos);
        // The same test on a stream says nothing and leaves it at the data.
        char *nuevo = nullptr;
        vnfichero *f = f_lc_fopen_u(a.u(), VNU("rb"), "prueba", 1);
        EXPECT_EQ(bin_fichero_valido(f, 3, "FIRMA", &nuevo, 0), bien);
        EXPECT_EQ(toma(nuevo), bien ? "T\xEDtulo" : "(null)");
        EXPECT_TRUE(!bien || lc_bytes_restantes(f) == 1);
        lc_fclose(f);
    }
    a.graba(PROLOGO);
    char corto[4] = "...";
    EXPECT_EQ(bin_fichero_valido_u(a.u(), 3, "FIRMA", 3, corto, 0), CIERTO);
    EXPECT_EQ(std::string(corto), "T\xEDt");
}

PRUEBA(vornbin_cabecera, la_forma_de_depuracion_marca_la_version_y_los_datos_pero_no_los_textos) {
    const auto i = identidad();
    const archivo a;
    vnstdc_putenv("GRABARCONDEBUG=1");
    EXPECT_EQ(guarda(a), CIERTO);
    vnstdc_putenv("GRABARCONDEBUG=");
    EXPECT_EQ(a.lee(), ID + "\1" + MARCA + SIN_LISTAS + "\1u\3\0"s + PROLOGO.substr(3) + "cD");
    EXPECT_EQ(bin_fichero_valido_u(a.u(), 3, "FIRMA", 0, nullptr, 0), CIERTO);
    EXPECT_EQ(abre_completo(a, 3, nullptr).resto, "cD");
    // Each stream keeps its form, whatever others are open.
    const archivo b("otro");
    vnstdc_putenv("GRABARCONDEBUG=1");
    vnfichero *con =
        vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(a.u(), 3, "FIRMA", VNU("T"), nullptr);
    vnstdc_putenv("GRABARCONDEBUG=");
    EXPECT_EQ(guarda(b), CIERTO);
    bin_graba_long(5, con);
    EXPECT_EQ(vornbin_cierra_fichero_abierto_para_escritura_u(con, a.u(), nullptr), CIERTO);
    uint16_t version = 0;
    vnwchar *titulo = nullptr;
    const auto abre = [&](const archivo &que) {
        vnfichero *abierto = vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(
            que.u(), 3, "FIRMA", nullptr, &version, &titulo, 0, nullptr, nullptr);
        vn::toma(titulo);
        return abierto;
    };
    vnfichero *sin = abre(b);
    con = abre(a);
    EXPECT_EQ(bin_lee_char(sin), 'D');
    EXPECT_EQ(bin_lee_long(con), 5);
    lc_fclose(sin);
    lc_fclose(con);
    // The next file is plain again, and so is reading it.
    EXPECT_EQ(guarda(a), CIERTO);
    EXPECT_EQ(a.lee(), ID + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D");
    vnfichero *f = vornbin_abre_fichero_para_lectura_u(a.u(), nullptr, nullptr, nullptr);
    EXPECT_EQ(bin_lee_byte(f), 0);
    EXPECT_EQ(bin_lee_ushort(f), 3);
    lc_fclose(f);
}

PRUEBA(vornbin_cabecera, un_ejemplo_sigue_siendo_ejemplo_y_un_fichero_se_hace_ejemplo) {
    const auto i = identidad();
    const archivo a;
    const std::string directorio = vn::Prueba::directorio(), ejemplo = "\2\1" + texto("WENK-9-a");
    std::string mayusculas = directorio;
    for (char &c : mayusculas)
        if (c >= 'a' && c <= 'z') c = static_cast<char>(c - 32);
    // In the directory of the samples, in any case; elsewhere the mask is that of any file.
    a.graba("\2\1" + texto("WENK-8-b") + "\1" + PROLOGO);
    EXPECT_EQ(vornbin_es_directorio_ejemplos(a.ansi()), FALSO);
    vornbin_establece_directorio_ejemplos_u(vn::ancho(mayusculas).c_str());
    EXPECT_EQ(vornbin_es_directorio_ejemplos(a.ansi()), CIERTO);
    EXPECT_EQ(vornbin_es_directorio_ejemplos("otro"), FALSO);
    EXPECT_EQ(guarda(a), CIERTO);
    EXPECT_EQ(a.lee(), ejemplo + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D");
    EXPECT_EQ(abre_completo(a, 3, nullptr).ejemplo, CIERTO);
    EXPECT_FALSE(a.hay("_TM$"));
    vornbin_establece_directorio_ejemplos_u(nullptr);
    EXPECT_EQ(guarda(a), CIERTO);
    EXPECT_EQ(a.lee(), ID + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D");

    const std::string datos(5000, 'd'), blancas = numero(1) + texto_u("    ") + texto_u("      ") + numero(2) +
                                                  numero(0) + texto_u(" ") + numero(0) + texto_u("");
    const struct {
        std::string antes, despues;
    } filas[] = {
        {ID + "\1" + datos, ejemplo + "\1" + datos},
        {ID + "\1" + MARCA + LISTAS + datos, ejemplo + "\1" + MARCA + blancas + datos},
        {ID + "\0"s + MARCA + LISTAS + datos, ejemplo + "\0"s + MARCA + blancas + datos},
        {ID + "\2" + LISTAS, ejemplo + "\2" + blancas},
    };
    for (const auto &fila : filas) {
        a.graba(fila.antes);
        archivo("obra.vrn_TM$").graba("x");
        EXPECT_EQ(vornbin_marca_fichero_ejemplo_u(a.u()), CIERTO);
        EXPECT_EQ(a.lee(), fila.despues);
        EXPECT_FALSE(a.hay("_TM$") || a.hay(".TM@"));
    }
    a.graba("sin cabecera");
    EXPECT_EQ(ESPERA_INFORME("hay_cabecera == CIERTO", vornbin_marca_fichero_ejemplo_u(a.u())), FALSO);
    EXPECT_EQ(a.lee(), "sin cabecera");
}

PRUEBA(vornbin_cabecera, la_herramienta_de_soporte_ve_la_cabecera) {
    const archivo a;
    char *version = nullptr, *revision = nullptr;
    vnbool ejemplo = 7;
    vnwchar *contenido = nullptr;
    const auto ve = [&](const std::string &bytes) {
        a.graba(bytes);
        const vnbool bien =
            vornbin_lee_datos_cabecera_debug_soporte(a.ansi(), &version, &revision, &ejemplo, &contenido);
        std::string r = std::to_string(bien);
        for (char *p : {version, revision}) r += "|" + toma(p);
        return r + "|" + std::to_string(ejemplo) + "|" + toma(contenido);
    };
    EXPECT_EQ(ve(ID + "\1" + MARCA + LISTAS), "1|9|a|0|obra=puente\n");
    EXPECT_EQ(ve("nada"), "0|(null)|(null)|0|ERROR - No hay cabecera");
    EXPECT_EQ(ve(ID + "\3"), "0|(null)|(null)|0|ERROR - El fichero no es válido");
}

PRUEBA(vornbin_cabecera, los_ultimos_trabajos_se_enteran) {
    const auto i = identidad();
    const archivo a, lista("obras.txt");
    const auto trabajos = [&] { return toma(ultiobra_lee_ultimas_obras_u(lista.u(), nullptr)); };
    vnfichero *f = vornbin_abre_fichero_para_escritura_u(a.u(), lista.u());
    EXPECT_EQ(trabajos(), "");
    EXPECT_EQ(vornbin_cierra_fichero_abierto_para_escritura_u(f, a.u(), lista.u()), CIERTO);
    EXPECT_EQ(trabajos(), a.ruta);
    f = vornbin_abre_fichero_para_lectura_unicode(a.u(), nullptr);
    vornbin_cierra_fichero_abierto_para_lectura_u(f, a.u(), lista.u());
    EXPECT_EQ(trabajos(), a.ruta);
    f = vornbin_abre_fichero_para_escritura_sin_cabecera(a.ansi(), nullptr);
    vornbin_cierra_fichero_abierto_para_escritura(f, a.ansi(), lista.ansi());
    EXPECT_EQ(trabajos(), a.ruta);
}

PRUEBA(vornbin_cabecera, lo_que_se_abandona_o_falla_deja_el_fichero_de_antes) {
    const auto i = identidad();
    const archivo a;
    guarda(a, '1');
    const std::string antes = a.lee();
    vnfichero *f = vornbin_abre_fichero_para_escritura_u(a.u(), nullptr);
    bin_graba_long(1, f);
    vornbin_abandona_fichero_abierto_para_escritura_u(f, a.u());
    EXPECT_FALSE(a.hay("_TM$"));
    EXPECT_EQ(a.lee(), antes);
    // The blanking of a sample, at each of its operations, is whole or nothing too, and says which; a saver of the file
    // keeps it out.
    const std::string entero = ID + "\1" + MARCA + LISTAS + std::string(5000, 'd');
    for (const auto que : {vn::fallo::error_una_vez, vn::fallo::sin_espacio_siempre})
        for (size_t k = 0, total = 1; k < total; ++k) {
            SCOPED_TRACE(k);
            a.graba(entero);
            bool bien = false;
            {
                const vn::con_fallos puestos({que, k, false, {}});
                bien = vornbin_marca_fichero_ejemplo_u(a.u()) == CIERTO;
                total = std::max(total, puestos.hechas().size());
                EXPECT_FALSE(bien && puestos.directorio_sin_volcar());
                EXPECT_EQ(puestos.riesgos(), std::vector<std::string>{});
            }
            EXPECT_EQ(toma_informes().empty(), bien);
            const std::string queda = a.lee();
            EXPECT_EQ(queda.find("WENK") == 4, bien || lc_ultimo_error(nullptr) == VN_FICH_SIN_ASEGURAR);
            EXPECT_TRUE(queda == entero || (queda.find("WENK") == 4 && queda.size() == entero.size()));
            EXPECT_EQ(vornbin_marca_fichero_ejemplo_u(a.u()), CIERTO);
            EXPECT_FALSE(a.hay(".TM@") || a.hay("_TM$"));
        }
    f = vornbin_abre_fichero_para_escritura_u(a.u(), nullptr);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", vornbin_marca_fichero_ejemplo_u(a.u())), FALSO);
    vornbin_abandona_fichero_abierto_para_escritura_u(f, a.u());
}
