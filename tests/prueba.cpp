#include "prueba.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/suelo/operaciones_fichero.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/msglocal.h"
#include "foundation/texto/unicode.h"
#include "plataforma/proceso.h"
#include <algorithm>
#include <atomic>
#include <clocale>
#include <cstdio>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <random>

namespace fs = std::filesystem;

namespace vn {
namespace {

std::mutex cerrojo;
std::vector<informe_anotado> informes;
std::vector<std::string> avisos;
std::atomic<vnbool> respuesta_a_preguntas{FALSO};
std::string directorio_de_la_prueba;

fs::path ruta(const std::string &utf8) { return fs::path(std::u8string(utf8.begin(), utf8.end())); }

void anota_informe(const vninforme *i, void *) {
    const std::lock_guard guarda(cerrojo);
    const auto texto = [](const vnwchar *u, const char *s) { return utf8_de(u) + (s != nullptr ? s : ""); };
    informes.push_back({texto(i->expresion_u, i->expresion), texto(i->detalle_u, i->detalle), texto(nullptr, i->modulo),
                        i->linea, i->clase});
}

vnbool anota_aviso(vntipo_aviso, const vnwchar *texto, void *) {
    const std::lock_guard guarda(cerrojo);
    avisos.push_back(utf8_de(texto));
    return respuesta_a_preguntas;
}

void describe_bloque(const void *, size_t tamanyo, const char *modulo, uint32_t linea, void *datos) {
    auto &texto = *static_cast<std::string *>(datos);
    if (texto.size() < 4000)
        texto += "  " + std::string(modulo != nullptr ? modulo : "?") + ", " + std::to_string(linea) + ": " +
                 std::to_string(tamanyo) + " bytes\n";
}

} // namespace

std::string utf8_de(const vnwchar *texto) {
    std::string u;
    for (; texto != nullptr && *texto != 0; ++texto) {
        uint32_t c = static_cast<uint16_t>(*texto);
        const uint32_t bajo = static_cast<uint16_t>(texto[1]);
        if (c >= 0xD800 && c < 0xDC00 && bajo >= 0xDC00 && bajo < 0xE000) {
            c = 0x10000 + ((c - 0xD800) << 10) + (bajo - 0xDC00);
            ++texto;
        }
        const int mas = c < 0x80 ? 0 : c < 0x800 ? 1 : c < 0x10000 ? 2 : 3;
        u += static_cast<char>("\0\xC0\xE0\xF0"[mas] | static_cast<char>(c >> 6 * mas));
        for (int k = mas; k-- > 0;) u += static_cast<char>(0x80 | (c >> 6 * k & 63));
    }
    return u;
}

std::u16string u16_de(const vnwchar *texto) {
    std::u16string u;
    for (; texto != nullptr && *texto != 0; ++texto) u += static_cast<char16_t>(*texto);
    return u;
}

std::basic_string<vnwchar> ancho(std::string_view utf8) {
    std::basic_string<vnwchar> u;
    for (size_t i = 0; i < utf8.size();) {
        const auto b = static_cast<unsigned char>(utf8[i]);
        const size_t n = b < 0x80 ? 1 : b < 0xE0 ? 2 : b < 0xF0 ? 3 : 4;
        uint32_t c = n == 1 ? b : b & (0xFFu >> (n + 1));
        for (size_t k = 1; k < n && i + k < utf8.size(); ++k)
            c = c << 6 | (static_cast<unsigned char>(utf8[i + k]) & 63u);
        i += n;
        if (c >= 0x10000) u += static_cast<vnwchar>(0xD7C0 + (c >> 10)), c = 0xDC00 | (c & 0x3FF);
        u += static_cast<vnwchar>(c);
    }
    return u;
}

template <class C> static std::string toma_texto(C *texto, std::string (*de)(const C *)) {
    if (texto == nullptr) return "(null)";
    const std::string s = de(texto);
    vornspy_free_pp(&texto, 1);
    return s;
}
std::string toma(char *t) {
    return toma_texto<char>(t, [](const char *s) { return std::string(s); });
}
std::string toma(vnwchar *t) { return toma_texto<vnwchar>(t, utf8_de); }

mayor_bloque::mayor_bloque() {
    const auto apunta = [](size_t n, void *m) {
        return *static_cast<size_t *>(m) = std::max(n, *static_cast<size_t *>(m)), CIERTO;
    };
    vornspy_instala_permiso(apunta, &mayor_);
}
mayor_bloque::~mayor_bloque() { vornspy_instala_permiso(nullptr, nullptr); }

bool atrapado(const std::function<void()> &f, int reservas) {
    struct agotada {};
    if (reservas != INT32_MAX)
        vornspy_instala_permiso(
            [](size_t, void *quedan) -> vnbool { return (*static_cast<int *>(quedan))-- > 0 ? CIERTO : FALSO; },
            &reservas);
    vornspy_instala_memoria_agotada([](void *) { throw agotada{}; }, nullptr);
    vnbool bien = FALSO;
    try {
        bien = trapable_ejecuta_funcion_segura(
            const std::function<void()>, [](const std::function<void()> *g) { (*g)(); }, &f, nullptr);
    } catch (const agotada &) {
    }
    vornspy_instala_memoria_agotada(nullptr, nullptr);
    if (reservas != INT32_MAX) vornspy_instala_permiso(nullptr, nullptr);
    return bien == CIERTO;
}

std::string lee_fichero(const std::string &nombre) {
    std::ifstream f(ruta(nombre), std::ios::binary);
    EXPECT_TRUE(f.good()) << nombre;
    return {std::istreambuf_iterator<char>(f), {}};
}

std::string dato(const std::string &nombre) { return VN_DIRECTORIO_DATOS "/" + nombre; }
std::string dato_propio(const std::string &nombre) { return VN_DIRECTORIO_PROPIO "/" + nombre; }

void graba_fichero(const std::string &nombre, std::string_view contenido) {
    std::ofstream f(ruta(nombre), std::ios::binary | std::ios::trunc);
    f.write(contenido.data(), static_cast<std::streamsize>(contenido.size()));
    f.close();
    EXPECT_TRUE(f.good()) << nombre;
}

bool existe(const std::string &nombre) { return fs::exists(ruta(nombre)); }

bool espera_fichero(const std::string &nombre) {
    for (int i = 0; i < 1500 && !existe(nombre); ++i) operaciones_fichero_del_sistema()->espera(20);
    return existe(nombre);
}

void espera_informes(std::initializer_list<std::string_view> textos, const char *fichero, int linea) {
    const auto hay = Prueba::toma_informes();
    std::string esperados, vistos;
    for (const auto t : textos) (esperados += t) += '\n';
    for (const auto &i : hay) (vistos += i.expresion) += '\n';
    if (esperados != vistos)
        ADD_FAILURE_AT(fichero, linea) << "expected reports:\n" << esperados << "seen:\n" << vistos;
}

std::vector<informe_anotado> Prueba::toma_informes() {
    const std::lock_guard guarda(cerrojo);
    return std::exchange(informes, {});
}

std::vector<std::string> Prueba::toma_avisos() {
    const std::lock_guard guarda(cerrojo);
    return std::exchange(avisos, {});
}

void Prueba::responde(vnbool respuesta) { respuesta_a_preguntas = respuesta; }

const std::string &Prueba::directorio() {
    if (directorio_de_la_prueba.empty()) {
        const auto *info = ::testing::UnitTest::GetInstance()->current_test_info();
        static std::atomic<unsigned> serie{0};
        // The seed tells apart programs that run at the same time.
        const fs::path d =
            fs::temp_directory_path() / (std::string("nucleos_") + info->test_suite_name() + "_" + info->name() + "_" +
                                         std::to_string(std::random_device{}()) + "_" + std::to_string(serie++));
        fs::create_directories(d);
        const auto u = d.generic_u8string();
        directorio_de_la_prueba.assign(u.begin(), u.end());
    }
    return directorio_de_la_prueba;
}

void Prueba::SetUp() {
    // Waiting for the disk is most of what a save takes; the tests of the order of a save install their own table.
    vnoperaciones_fichero sin_disco = *operaciones_fichero_del_sistema();
    sin_disco.vuelca = [](vnid_fichero) { return VN_FICH_BIEN; };
    sin_disco.vuelca_directorio = [](const vnwchar *) { return VN_FICH_BIEN; };
    operaciones_fichero_instala(&sin_disco);
    msidioma_establece_idioma(0); // whatever the user's
    unicode_establece_pagina_ANSI(1252);
    error_interno_instala_receptor(anota_informe, nullptr);
    avisos_instala_receptor(anota_aviso, nullptr);
    responde(FALSO);
    toma_informes();
    toma_avisos();
    bloques_al_empezar_ = vornspy_bloques_vivos(nullptr);
}

void Prueba::TearDown() {
    operaciones_fichero_instala(nullptr);
    fichconf_establece_directorio_base(nullptr);
    vnregional_establece(nullptr);
    const auto ninguno = [](const char *de) {
        for (const auto &i : toma_informes())
            ADD_FAILURE() << de << i.modulo << ", " << i.linea << ": " << i.expresion << " " << i.detalle;
    };
    ninguno("unexpected report: ");
    for (const auto &a : toma_avisos()) ADD_FAILURE() << "unexpected warning: " << a;
    // What modules made at first use goes with the exit list, as when a process ends, and is made again by the next
    // test.
    vnatexit_ejecuta();
    ninguno("report of an exit cleaner: ");
    if (const uint64_t vivos = vornspy_bloques_vivos(nullptr); vivos > bloques_al_empezar_) {
        std::string texto;
        vornspy_recorre_bloques_vivos(describe_bloque, &texto);
        ADD_FAILURE() << vivos - bloques_al_empezar_ << " blocks not freed; all that is alive:\n" << texto;
    }
    if (!directorio_de_la_prueba.empty()) {
        std::error_code e;
        fs::remove_all(ruta(directorio_de_la_prueba), e);
        directorio_de_la_prueba.clear();
    }
    error_interno_instala_receptor(nullptr, nullptr);
    avisos_instala_receptor(nullptr, nullptr);
}

} // namespace vn

bool vn::pon_locale_con_coma() {
    for (const char *l :
         {"es_ES.UTF-8", "de_DE.UTF-8", "fr_FR.UTF-8", "es_ES.utf8", "de_DE", "Spanish_Spain.1252", "de-DE"})
        if (std::setlocale(LC_ALL, l) != nullptr && *std::localeconv()->decimal_point == ',') return true;
    return false;
}

// A filter that selects nothing is a mistake in the list of tests.
int main(int argc, char **argv) {
    if (const auto resultado = vn::corre_hijo(argc, argv)) return *resultado;
    ::testing::InitGoogleTest(&argc, argv);
    if (std::getenv("VN_CON_COMA") != nullptr && !vn::pon_locale_con_coma()) {
        std::fprintf(stderr, "no locale with a decimal comma\n");
        return 1;
    }
    const int resultado = RUN_ALL_TESTS();
    if (::testing::UnitTest::GetInstance()->test_to_run_count() == 0) {
        std::fprintf(stderr, "no test selected\n");
        return 1;
    }
    return resultado;
}
