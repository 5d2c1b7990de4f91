#include "fallos.h"
#include "filas.h"
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

const char *const DATOS = "persistence/vornbin_cabecera.tsv";

std::string numero(uint32_t n) { return {reinterpret_cast<const char *>(&n), 4}; }
std::string texto_u(std::string_view ascii) {
    std::string s = numero(static_cast<uint32_t>(ascii.size()));
    for (const char c : ascii) (s += c) += '\0';
    return s;
}
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
    // Opened to be saved with a header alone, and with a prologue behind it.
    vnfichero *abre() const { return vornbin_abre_fichero_para_escritura_u(u(), nullptr); }
    vnfichero *abre_completo() const {
        return vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(u(), 3, "FIRMA", VNU("Título"), nullptr);
    }
    vnbool cierra(vnfichero *f) const { return vornbin_cierra_fichero_abierto_para_escritura_u(f, u(), nullptr); }
    vnbool marca_ejemplo() const { return vornbin_marca_fichero_ejemplo_u(u()); }
    std::string campos() const {
        arrCADENA_u *nombres = nullptr, *valores = nullptr;
        const vnbool hay = vornbin_lee_campos_cabecera_u(u(), &nombres, &valores);
        const std::string n = toma(nombres), v = toma(valores);
        return hay == CIERTO ? n + "=" + v : "no";
    }
    // Saves over it with header and prologue, and one byte of data.
    vnbool guarda(char dato = 'D') const {
        vnfichero *f = abre_completo();
        if (f == nullptr) return FALSO;
        bin_graba_char(dato, f);
        return cierra(f);
    }
    std::string ruta;
    std::basic_string<vnwchar> ruta_u;
};

const std::string PROLOGO = "\0\3\0"s + texto("FIRMA") + texto("T\xEDtulo");
// What `guarda` leaves where no lists were.
const std::string GUARDADA = ID + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D";

// The identity of the program while a test runs.
auto identidad() {
    version_establece_u(VNU("9.1"), VNU("9"), 'a');
    return vn::al_final([] {
        version_establece_u(VNU("1.0"), VNU("1"), 'a');
        vornbin_establece_directorio_ejemplos_u(nullptr);
    });
}

// Opens it strictly.
vn::dueno<lc_fclose> abre(const archivo &a, uint16_t version_actual, uint16_t *version, std::string *titulo,
                          vnbool *superior = nullptr, uint16_t version_ascii = 0, vnbool *ejemplo = nullptr) {
    vnwchar *t = nullptr;
    vnfichero *f = vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(
        a.u(), version_actual, "FIRMA", nullptr, version, &t, version_ascii, ejemplo, superior);
    *titulo = toma(t);
    return vn::dueno<lc_fclose>(f);
}
// Version, title and the bytes behind them, "sample" at the end for one; or "closed".
std::string abre_completo(const archivo &a, uint16_t version_actual, vnbool *superior = nullptr,
                          uint16_t version_ascii = 0) {
    uint16_t version = 0;
    std::string titulo;
    vnbool ejemplo = 7;
    const auto f = abre(a, version_actual, &version, &titulo, superior, version_ascii, &ejemplo);
    if (f == nullptr) return titulo == "(null)" ? "closed" : titulo;
    std::string resto(static_cast<size_t>(lc_bytes_restantes(f.get())), 0);
    f_lc_fread_sin_error(resto.data(), 1, resto.size(), f.get());
    return std::to_string(version) + " " + titulo + " " + resto + (ejemplo == FALSO ? "" : " sample");
}

} // namespace

PRUEBA(vornbin_cabecera, las_cuatro_formas_de_fichero_al_byte) {
    const auto i = identidad();
    const archivo a;
    const auto cierra = [&](vnfichero *f, auto cierre, auto... mas) {
        bin_graba_char('D', f);
        EXPECT_FALSE(a.hay());
        EXPECT_TRUE(a.hay("_TM$"));
        EXPECT_EQ(cierre(f, a.ansi(), mas...), CIERTO);
        const std::string bytes = a.lee();
        EXPECT_FALSE(a.hay("_TM$"));
        std::remove(a.ansi());
        return bytes;
    };
    const auto u = [&](vnfichero *f, const char *) { return a.cierra(f); };
    const auto ansi = vornbin_cierra_fichero_abierto_para_escritura;
    EXPECT_EQ(cierra(a.abre_completo(), u), GUARDADA);
    EXPECT_EQ(cierra(a.abre(), ansi, nullptr), ID + "\1" + MARCA + SIN_LISTAS + "D");
    vnfichero *f =
        vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(a.u(), 3, "FIRMA", VNU("Título"), nullptr);
    EXPECT_EQ(cierra(f, u), PROLOGO + "D");
    EXPECT_EQ(cierra(vornbin_abre_fichero_para_escritura_sin_cabecera(a.ansi(), nullptr), u), "D");
    EXPECT_EQ(cierra(vornbin_abre_basico_fichero_para_escritura(a.ansi()),
                     vornbin_cierra_basico_fichero_abierto_para_escritura),
              "D");
}

PRUEBA(vornbin_cabecera, que_identificaciones_y_formas_se_aceptan) {
    const archivo a;
    for (const auto &[que, bytes, pos, su_version, su_revision, es_ejemplo, valido] :
         vn::filas<std::string, std::string, int32_t, std::string, std::string, int, int>(DATOS, "identificaciones")) {
        SCOPED_TRACE(que);
        a.graba(bytes);
        char *version = nullptr, *revision = nullptr;
        vnbool ejemplo = 7, hay = FALSO;
        con_informe(valido ? nullptr : "fichero_valido == CIERTO",
                    [&] { hay = vornbin_hay_cabecera_en_fichero_u(a.u(), &version, &revision, &ejemplo); });
        EXPECT_EQ(hay, pos != 0);
        EXPECT_EQ(vornbin_es_fichero_vorn_valido(a.ansi()), valido);
        EXPECT_EQ(toma(version), su_version);
        EXPECT_EQ(toma(revision), su_revision);
        if (!valido) continue;
        EXPECT_EQ(ejemplo, es_ejemplo);
        const vn::dueno<lc_fclose> f(vornbin_abre_fichero_para_lectura_unicode(a.u(), nullptr));
        ASSERT_NE(f, nullptr);
        EXPECT_EQ(lc_ftell(f.get()), pos);
    }
}

PRUEBA(vornbin_cabecera, los_campos_y_la_lista_reservada_pasan_de_un_guardado_a_otro) {
    const auto i = identidad();
    const archivo a;
    EXPECT_EQ(a.guarda(), CIERTO);
    EXPECT_EQ(a.campos(), "=");
    for (const std::string &forma : {"\1" + MARCA, "\0"s + MARCA, "\2"s}) {
        a.graba("\2\1" + texto("VORN-1-z") + forma + LISTAS + PROLOGO + "viejo");
        EXPECT_EQ(a.guarda(), CIERTO);
        EXPECT_EQ(a.guarda(), CIERTO);
        EXPECT_EQ(a.lee(), ID + "\1" + MARCA + LISTAS + PROLOGO + "D");
        EXPECT_EQ(a.campos(), "obra=puente");
    }
    // A host gives fields: one in its place, one at the end, twice the same the last one.
    const auto da = [&](const vn::textos &nombres, const vn::textos &valores) {
        vnfichero *f = vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
            a.u(), 3, "FIRMA", VNU("Título"), nombres.get(), valores.get(), nullptr);
        return f != nullptr && a.cierra(f) == CIERTO;
    };
    EXPECT_TRUE(da(vn::textos_de({"obra", "autor"}), vn::textos_de({"túnel largo", ""})));
    EXPECT_EQ(a.campos(), "obra|autor=túnel largo|");
    EXPECT_TRUE(da(vn::textos_de({"obra", "obra"}), vn::textos_de({"", "fin"})));
    EXPECT_EQ(a.campos(), "obra|autor=fin|");
    EXPECT_NE(a.lee().find(LISTAS.substr(LISTAS.size() - 22) + PROLOGO), std::string::npos);
    EXPECT_FALSE(ESPERA_INFORME("arr_NumElemsCADENA_u(nombres) == arr_NumElemsCADENA_u(valores)",
                                da(vn::textos_de({"obra"}), vn::textos_de({}))));
    // Many, over many: the last ones in their place.
    const vn::textos n = vn::textos_de({}), v = vn::textos_de({});
    for (int32_t k = 0; k < 20000; ++k) arr_AppendCADENA_u(n.get(), vn::ancho("campo " + std::to_string(k)).c_str());
    arr_ConcatenaCADENA_u(v.get(), n.get());
    EXPECT_TRUE(da(n, v));
    for (uint32_t k = 0; k < 300; ++k) arr_SetCADENA_u(n.get(), k, vn::ancho("nuevo " + std::to_string(k)).c_str());
    EXPECT_TRUE(da(n, v));
    const std::string todos = a.campos();
    EXPECT_EQ(std::count(todos.begin(), todos.end(), '|'), 2 * 20301);
    EXPECT_NE(todos.find("|nuevo 299=fin"), std::string::npos);
    EXPECT_TRUE(todos.ends_with("|campo 299"));
    // A form of later programs cannot be kept, which is said.
    a.graba(ID + "\3" + PROLOGO);
    EXPECT_EQ(ESPERA_INFORME("fichero_valido == CIERTO", a.guarda()), CIERTO);
    // A damaged header does not stand in the way of saving over it.
    a.graba(ID + "\1" + MARCA + numero(0x40000000) + "x");
    EXPECT_EQ(a.campos(), "no");
    EXPECT_EQ(a.guarda(), CIERTO);
    EXPECT_EQ(a.lee(), GUARDADA);
}

PRUEBA(vornbin_cabecera, la_lectura_estricta_se_niega_con_el_nombre_del_fichero) {
    const auto i = identidad();
    const archivo a;
    a.guarda();
    vnbool superior = 7;
    EXPECT_EQ(abre_completo(a, 3, &superior), "3 Título D");
    EXPECT_EQ(superior, FALSO);
    // A newer file: read on when the caller asks to be told.
    EXPECT_EQ(abre_completo(a, 2, &superior), "3 Título D");
    EXPECT_EQ(superior, CIERTO);
    EXPECT_EQ(ESPERA_INFORME("*version <= version_actual", abre_completo(a, 2)), "closed");
    // Title of an old version, in the OEM page; no header is no fault.
    a.graba("\0\3\0"s + texto("FIRMA") + texto("T\xA1tulo") + "D");
    EXPECT_EQ(abre_completo(a, 3, nullptr, 3), "3 Título D");
    EXPECT_EQ(abre_completo(a, 3, nullptr, 2), "3 T¡tulo D");
    a.graba("\0\3\0"s + texto("OTRA") + texto("T") + "D");
    EXPECT_EQ(abre_completo(a, 3), "closed");
    const auto informes = vn::Prueba::toma_informes();
    ASSERT_EQ(informes.size(), 1u);
    EXPECT_EQ(informes[0].detalle, a.ruta);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", abre_completo(archivo("no_hay"), 3)), "closed");
}

// Each file, behind its header, as a prologue alone strictly and tolerantly, and by the two tests of whether it can be
// read: one warns the user.
PRUEBA(vornbin_cabecera, un_fichero_que_no_se_puede_leer_se_dice) {
    const auto i = identidad();
    const archivo a;
    for (const auto &[que, bytes, completo, informe, valido] :
         vn::filas<std::string, std::string, vn::nulable, vn::nulable, int>(DATOS, "prologos")) {
        SCOPED_TRACE(que);
        a.graba(bytes);
        const bool bien = valido != 0, abre_bien = !completo.texto, prologo = !informe.texto;
        con_informe(completo.c_str(), [&] { EXPECT_EQ(abre_completo(a, 3), abre_bien ? "3 Título D" : "closed"); });
        for (const bool tolerante : {false, true}) {
            uint16_t version = 7;
            char *titulo = nullptr;
            vnfichero *f = nullptr;
            con_informe(tolerante && informe.texto != "lc_error_leyendo_fichero" ? nullptr : informe.c_str(), [&] {
                if (tolerante)
                    EXPECT_EQ(vornbin_se_abre_fichero_para_lectura_sin_cabecera_version_programa_u(
                                  a.u(), 3, "FIRMA", nullptr, 0, &f, &version, &titulo),
                              prologo);
                else
                    f = vornbin_abre_fichero_para_lectura_sin_cabecera_version_programa_u(a.u(), 3, "FIRMA", nullptr,
                                                                                          &version, &titulo, 0);
            });
            EXPECT_TRUE(!tolerante || version == (prologo ? 3 : 65535)) << version;
            EXPECT_EQ(toma(titulo), prologo ? "T\xEDtulo" : "(null)");
            ASSERT_EQ(f != nullptr, prologo);
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
        const vn::dueno<lc_fclose> f(f_lc_fopen_u(a.u(), VNU("rb"), "prueba", 1));
        EXPECT_EQ(bin_fichero_valido(f.get(), 3, "FIRMA", &nuevo, 0), bien);
        EXPECT_EQ(toma(nuevo), bien ? "T\xEDtulo" : "(null)");
        EXPECT_TRUE(!bien || lc_bytes_restantes(f.get()) == 1);
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
    EXPECT_EQ(a.guarda(), CIERTO);
    vnstdc_putenv("GRABARCONDEBUG=");
    EXPECT_EQ(a.lee(), ID + "\1" + MARCA + SIN_LISTAS + "\1u\3\0"s + PROLOGO.substr(3) + "cD");
    EXPECT_EQ(bin_fichero_valido_u(a.u(), 3, "FIRMA", 0, nullptr, 0), CIERTO);
    EXPECT_EQ(abre_completo(a, 3), "3 Título cD");
    // Each stream keeps its form, whatever others are open.
    const archivo b("otro");
    vnstdc_putenv("GRABARCONDEBUG=1");
    vnfichero *con = a.abre_completo();
    vnstdc_putenv("GRABARCONDEBUG=");
    EXPECT_EQ(b.guarda(), CIERTO);
    bin_graba_long(5, con);
    EXPECT_EQ(a.cierra(con), CIERTO);
    uint16_t version = 0;
    std::string titulo;
    const auto sin = abre(b, 3, &version, &titulo), con_etiquetas = abre(a, 3, &version, &titulo);
    EXPECT_EQ(bin_lee_char(sin.get()), 'D');
    EXPECT_EQ(bin_lee_long(con_etiquetas.get()), 5);
    EXPECT_EQ(b.lee(), GUARDADA);
}

PRUEBA(vornbin_cabecera, un_ejemplo_sigue_siendo_ejemplo_y_un_fichero_se_hace_ejemplo) {
    const auto i = identidad();
    const archivo a;
    const std::string ejemplo = "\2\1" + texto("WENK-9-a");
    std::string mayusculas = vn::Prueba::directorio();
    std::transform(mayusculas.begin(), mayusculas.end(), mayusculas.begin(),
                   [](char c) { return c >= 'a' && c <= 'z' ? static_cast<char>(c - 32) : c; });
    // In the directory of the samples, in any case; elsewhere the mask is that of any file.
    a.graba("\2\1" + texto("WENK-8-b") + "\1" + PROLOGO);
    EXPECT_EQ(vornbin_es_directorio_ejemplos(a.ansi()), FALSO);
    vornbin_establece_directorio_ejemplos_u(vn::ancho(mayusculas).c_str());
    EXPECT_EQ(vornbin_es_directorio_ejemplos(a.ansi()), CIERTO);
    EXPECT_EQ(vornbin_es_directorio_ejemplos("otro"), FALSO);
    EXPECT_EQ(a.guarda(), CIERTO);
    EXPECT_EQ(a.lee(), ejemplo + "\1" + MARCA + SIN_LISTAS + PROLOGO + "D");
    EXPECT_EQ(abre_completo(a, 3), "3 Título D sample");
    EXPECT_FALSE(a.hay("_TM$"));
    vornbin_establece_directorio_ejemplos_u(nullptr);
    EXPECT_EQ(a.guarda(), CIERTO);
    EXPECT_EQ(a.lee(), GUARDADA);

    const std::string datos(5000, 'd'), blancas = numero(1) + texto_u("    ") + texto_u("      ") + numero(2) +
                                                  numero(0) + texto_u(" ") + numero(0) + texto_u("");
    const std::pair<std::string, std::string> filas[] = {
        {ID + "\1" + datos, ejemplo + "\1" + datos},
        {ID + "\1" + MARCA + LISTAS + datos, ejemplo + "\1" + MARCA + blancas + datos},
        {ID + "\0"s + MARCA + LISTAS + datos, ejemplo + "\0"s + MARCA + blancas + datos},
        {ID + "\2" + LISTAS, ejemplo + "\2" + blancas},
    };
    for (const auto &[antes, despues] : filas) {
        a.graba(antes);
        archivo("obra.vrn_TM$").graba("x");
        EXPECT_EQ(a.marca_ejemplo(), CIERTO);
        EXPECT_EQ(a.lee(), despues);
        EXPECT_FALSE(a.hay("_TM$") || a.hay(".TM@"));
    }
    a.graba("sin cabecera");
    EXPECT_EQ(ESPERA_INFORME("hay_cabecera == CIERTO", a.marca_ejemplo()), FALSO);
    EXPECT_EQ(a.lee(), "sin cabecera");
}

PRUEBA(vornbin_cabecera, la_herramienta_de_soporte_ve_la_cabecera) {
    const archivo a;
    for (const auto &[bytes, espera] : std::initializer_list<std::pair<std::string, const char *>>{
             {ID + "\1" + MARCA + LISTAS, "1|9|a|0|obra=puente\n"},
             {"nada", "0|(null)|(null)|0|ERROR - No hay cabecera"},
             {ID + "\3", "0|(null)|(null)|0|ERROR - El fichero no es válido"}}) {
        a.graba(bytes);
        char *version = nullptr, *revision = nullptr;
        vnbool ejemplo = 7;
        vnwchar *contenido = nullptr;
        std::string r = std::to_string(
            vornbin_lee_datos_cabecera_debug_soporte(a.ansi(), &version, &revision, &ejemplo, &contenido));
        for (char *p : {version, revision}) r += "|" + toma(p);
        EXPECT_EQ(r + "|" + std::to_string(ejemplo) + "|" + toma(contenido), espera);
    }
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
    a.guarda('1');
    const std::string antes = a.lee();
    vnfichero *f = a.abre();
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
                bien = a.marca_ejemplo() == CIERTO;
                total = std::max(total, puestos.hechas().size());
                EXPECT_FALSE(bien && puestos.directorio_sin_volcar());
                EXPECT_EQ(puestos.riesgos(), std::vector<std::string>{});
            }
            EXPECT_EQ(toma_informes().empty(), bien);
            const std::string queda = a.lee();
            EXPECT_EQ(queda.find("WENK") == 4, bien || lc_ultimo_error(nullptr) == VN_FICH_SIN_ASEGURAR);
            EXPECT_TRUE(queda == entero || (queda.find("WENK") == 4 && queda.size() == entero.size()));
            EXPECT_EQ(a.marca_ejemplo(), CIERTO);
            EXPECT_FALSE(a.hay(".TM@") || a.hay("_TM$") || a.hay(".bak")); // which would keep the texts
        }
    f = a.abre();
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", a.marca_ejemplo()), FALSO);
    vornbin_abandona_fichero_abierto_para_escritura_u(f, a.u());
}
