#include "foundation/ficheros/fichmem.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/vornfile.h"
#include "plataforma/proceso.h"
#include "texto_ancho.h"
#include <algorithm>
#include <cstring>
#include <memory>
#include <random>
#include <utility>

using namespace vn;

namespace {

std::string ruta(const char *corto) { return Prueba::directorio() + "/" + corto; }
std::basic_string<vnwchar> nombre(const char *corto) { return ancho(ruta(corto)); }

struct cierra {
    void operator()(vnfichero *f) const { EXPECT_EQ(lc_fclose(f), CIERTO); }
};
struct flujo : std::unique_ptr<vnfichero, cierra> {
    using unique_ptr::unique_ptr;
    flujo(const char *corto, const char *modo) : unique_ptr(lc_fopen_u(nombre(corto).c_str(), ancho(modo).c_str())) {}
    operator vnfichero *() const { return get(); }
};

std::string toma(vnfichero *f, size_t n) {
    std::string s(n, '\0');
    s.resize(f_lc_fread_sin_error(s.data(), 1, n, f));
    return s;
}
void pon(vnfichero *f, std::string_view s) { EXPECT_EQ(lc_fwrite(s.data(), 1, s.size(), f), s.size()); }
bool va(vnfichero *f, int64_t posicion) { return vornio_fseek_i64(f, posicion, VN_DESDE_EL_PRINCIPIO) == CIERTO; }

// What the wrapped operations do next, and how often they were called.
struct {
    vnerror_fichero error = VN_FICH_BIEN;
    int veces = 0, esperas = 0;
    size_t maximo = SIZE_MAX;
} trampa;

bool salta() { return trampa.veces > 0 && trampa.veces-- > 0; }
const vnoperaciones_fichero &sistema() { return *operaciones_fichero_del_sistema(); }

const vnoperaciones_fichero CON_TRAMPA = {
    .abre = [](auto... a) { return salta() ? trampa.error : sistema().abre(a...); },
    .lee = [](auto id, auto p, auto d, size_t n,
              auto k) { return salta() ? trampa.error : sistema().lee(id, p, d, std::min(n, trampa.maximo), k); },
    .escribe =
        [](auto id, auto p, auto d, size_t n, auto k) {
            return salta() ? trampa.error : sistema().escribe(id, p, d, std::min(n, trampa.maximo), k);
        },
    .vuelca = [](auto id) { return salta() ? trampa.error : sistema().vuelca(id); },
    .espera = [](uint32_t) { ++trampa.esperas; },
};

// The table above, from here to the end of the test.
void pon_trampa() { trampa = {}, operaciones_fichero_instala(&CON_TRAMPA); }

} // namespace

// Whatever the mixture of sizes, directions and jumps, the file is what the same steps make of a text in memory.
PRUEBA(lc_fichero, pasos_al_azar_como_un_modelo) {
    for (const size_t trozo : {SIZE_MAX, size_t{1000}}) {
        pon_trampa();
        trampa.maximo = trozo;
        std::mt19937 azar(7);
        std::string modelo;
        size_t aqui = 0;
        flujo f("modelo", "w+b");
        for (int paso = 0; paso < 3000; ++paso) {
            const size_t n = azar() % (paso % 97 == 0 ? 200000 : paso % 7 == 0 ? 3000 : 16);
            if (const auto que = azar() % 4; que < 2) {
                const std::string s(n, static_cast<char>('a' + paso % 26));
                if (n < 16) vnfichero_pon(f, s.data(), n, VN_AQUI);
                else pon(f, s);
                if (n > 0 && modelo.size() < aqui + n) modelo.resize(aqui + n);
                if (n > 0) modelo.replace(aqui, n, s);
                aqui += n;
            } else if (que == 2) {
                const std::string esperado = aqui < modelo.size() ? modelo.substr(aqui, n) : "";
                ASSERT_EQ(toma(f, n), esperado) << paso;
                aqui += esperado.size();
            } else {
                aqui = azar() % 3 == 0 ? azar() % (modelo.size() + 10) : aqui - std::min<size_t>(aqui, azar() % 100);
                ASSERT_TRUE(va(f, static_cast<int64_t>(aqui)));
            }
            ASSERT_EQ(vornio_ftell_i64(f), static_cast<int64_t>(aqui)) << paso;
            if (paso % 50 != 0) continue;
            ASSERT_EQ(lc_tamanyo_fichero_i64(f), static_cast<int64_t>(modelo.size())) << paso;
        }
        f.reset();
        EXPECT_TRUE(lee_fichero(ruta("modelo")) == modelo);
    }
}

PRUEBA(lc_fichero, los_modos) {
    // What there was, and what there is once "XY" is written after opening.
    const std::tuple<const char *, bool, const char *> filas[] = {
        {"wb", true, "XY"},      {"w+b", true, "XY"},      {"rb+", true, "XY345"}, {"r+b", true, "XY345"},
        {"ab", true, "12345XY"}, {"a+t", true, "12345XY"}, {"wt", false, "XY"},    {"ab", false, "XY"}};
    for (const auto &[modo, hay, despues] : filas) {
        if (hay) graba_fichero(ruta("modo"), "12345");
        flujo f("modo", modo);
        EXPECT_EQ(vornio_ftell_i64(f), modo[0] == 'a' && hay ? 5 : 0) << modo;
        pon(f, "XY");
        f.reset();
        EXPECT_EQ(lee_fichero(ruta("modo")), despues) << modo;
        operaciones_fichero_actuales()->borra(nombre("modo").c_str());
    }
    for (const char *modo : {"rb", "r+b"}) EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", flujo("no_esta", modo)), nullptr);
    EXPECT_EQ(ESPERA_INFORME("modo de apertura", flujo("no_esta", "q")), nullptr);
    EXPECT_EQ(f_lc_fopen_seguro_u(nombre("no_esta").c_str(), VNU("rb"), VN_AQUI), nullptr);
    EXPECT_FALSE(existe(ruta("no_esta")));
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", flujo("", "rb")), nullptr); // a directory
    graba_fichero(ruta("soloLectura"), "abc");
    flujo f("soloLectura", "rb");
    EXPECT_EQ(ESPERA_INFORME("lc_error_escribiendo_fichero", lc_fwrite("x", 1, 1, f)), 0u);
    EXPECT_EQ(toma(f, 9), "abc");
    EXPECT_EQ(lc_fclose(f.release()), FALSO);
}

// Two appending streams take turns: each write goes behind what the other has written.
PRUEBA(lc_fichero, se_anade_donde_acaba_ahora) {
    flujo a("junto", "ab"), b("junto", "a+b");
    for (const char c : std::string("ababab")) {
        pon(c == 'a' ? a : b, std::string(1, c));
        EXPECT_EQ(lc_fflush(c == 'a' ? a : b), CIERTO);
    }
    EXPECT_EQ(lc_fseek(b, 1, VN_DESDE_EL_PRINCIPIO), CIERTO);
    EXPECT_EQ(toma(b, 2), "ba");
    pon(b, "fin");
    a.reset(), b.reset();
    EXPECT_EQ(lee_fichero(ruta("junto")), "abababfin");
    EXPECT_EQ(lc_ftell(flujo("junto", "ab")), 9);
}

// What a text stream reads is what it wrote, on every platform, and its positions can be gone back to.
PRUEBA(lc_fichero, las_lineas_de_texto) {
    std::string texto = "uno\ndos\n\n\x1A tres\r\r\n";
    while (texto.size() < 200000) texto += std::string(texto.size() % 131, 'x') + "\n";
    pon(flujo("texto", "wt"), texto);
    const std::string crudo = lee_fichero(ruta("texto"));
    if (EN_WINDOWS) EXPECT_EQ(crudo.substr(0, 22), "uno\r\ndos\r\n\r\n\x1A tres\r\r\r\n");
    else EXPECT_TRUE(crudo == texto);
    const flujo f("texto", "rt");
    std::string leido;
    std::vector<std::pair<size_t, int32_t>> sitios;
    for (int c; (c = vnfichero_toma_byte(f)) >= 0; leido += static_cast<char>(c))
        if (leido.size() % 997 == 0) sitios.emplace_back(leido.size() + 1, lc_ftell(f));
    EXPECT_TRUE(leido == texto);
    EXPECT_EQ(f_lc_feof(f), CIERTO);
    std::reverse(sitios.begin(), sitios.end());
    for (const auto &[n, posicion] : sitios) {
        ASSERT_TRUE(va(f, posicion));
        ASSERT_EQ(toma(f, 300), texto.substr(n, 300));
    }
    // A CR that no line feed follows, the last byte too, is a character like any other.
    graba_fichero(ruta("texto"), "a\rb\r");
    EXPECT_EQ(toma(flujo("texto", "r"), 99), "a\rb\r");
}

PRUEBA(lc_fichero, una_lectura_corta_se_informa_y_se_rellena) {
    graba_fichero(ruta("corto"), "12345");
    flujo f("corto", "rb");
    char b[8];
    std::memset(b, '#', sizeof b);
    EXPECT_EQ(f_lc_fread_sin_error(b, 2, 2, f), 2u);
    EXPECT_EQ(std::pair(f_lc_feof(f), lc_ha_fallado(f)), std::pair(FALSO, FALSO));
    EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", f_lc_fread(b, 2, 3, f, "quien", 77)), 0u);
    EXPECT_EQ(std::string(b, 8), std::string("5\0\0\0\0\0##", 8));
    EXPECT_EQ(std::pair(f_lc_feof(f), f_lc_ferror(f)), std::pair(CIERTO, CIERTO));
    EXPECT_EQ(f_getc_sin_error(f), -1);
    uint64_t v = 1;
    EXPECT_EQ(lc_fseek(f, -2, VN_DESDE_EL_FINAL), CIERTO);
    vnfichero_toma(f, &v, sizeof v, "quien", 78);
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 1u);
    EXPECT_EQ(informes[0].modulo + std::to_string(informes[0].linea), "quien78");
    EXPECT_EQ(informes[0].detalle, ruta("corto"));
    EXPECT_EQ(v, 0x3534u);
}

// The first failure to write is reported, once; nothing is taken after it; the close tells the truth.
PRUEBA(lc_fichero, los_fallos_al_escribir) {
    pon_trampa();
    const std::string bloque(100000, 'z');
    for (const size_t n : {size_t{1}, size_t{60000}, bloque.size()}) {
        flujo f("lleno", "wb");
        trampa = {VN_FICH_SIN_ESPACIO, 1, 0, SIZE_MAX};
        int tomados = 0;
        while (tomados < 100000 && lc_fwrite(bloque.data(), 1, n, f) == n) ++tomados;
        espera_informes({"lc_error_escribiendo_fichero"}, __FILE__, __LINE__);
        vnfichero_pon(f, "x", 1, VN_AQUI);
        EXPECT_EQ(lc_fflush(f), FALSO);
        EXPECT_EQ(f_lc_ferror(f), CIERTO);
        lc_borra_error(f);
        EXPECT_EQ(lc_fclose(f.release()), FALSO);
        EXPECT_EQ(lee_fichero(ruta("lleno")), "");
    }
    for (const auto cierra_con : {lc_fclose, lc_fclose_seguro, lc_fclose_volcando_a_disco}) {
        flujo f("lleno", "wb");
        pon(f, "abc");
        trampa = {VN_FICH_ES, 1, 0, SIZE_MAX};
        EXPECT_EQ(cierra_con(f.release()), FALSO);
        EXPECT_EQ(toma_informes().size(), cierra_con == lc_fclose ? 1u : 0u);
    }
    flujo f("lleno", "wb");
    trampa = {VN_FICH_ES, 1, 0, SIZE_MAX};
    EXPECT_EQ(ESPERA_INFORME("lc_error_escribiendo_fichero", lc_vuelca_a_disco(f)), FALSO);
    EXPECT_EQ(lc_vuelca_a_disco(f), FALSO) << "a failed flush is not tried again";
    EXPECT_EQ(lc_fclose(f.release()), FALSO);
    f = flujo("lleno", "wb");
    trampa = {VN_FICH_ES, 1, 0, SIZE_MAX};
    EXPECT_EQ(lc_fclose_volcando_a_disco(f.release()), FALSO) << "the flush alone has failed";
    // The system's own flushes reach it: they are refused where nothing can be flushed.
    EXPECT_NE(sistema().vuelca(VN_FICHERO_NINGUNO), VN_FICH_BIEN);
    EXPECT_NE(sistema().vuelca_directorio(nombre("no/obra").c_str()), VN_FICH_BIEN);
    EXPECT_TRUE(!existe("/proc/self/stat") || sistema().vuelca_directorio(VNU("/proc/self/stat")) != VN_FICH_BIEN);
}

PRUEBA(lc_fichero, se_espera_con_limite) {
    pon_trampa();
    trampa = {VN_FICH_INTERRUMPIDA, 900, 0, 3};
    flujo f("paciencia", "w+b");
    trampa.veces = 900;
    pon(f, "diez letras");
    EXPECT_TRUE(va(f, 0));
    EXPECT_EQ(toma(f, 20), "diez letras");
    trampa.veces = 1 << 30;
    EXPECT_TRUE(va(f, 99999));
    EXPECT_EQ(f_getc_sin_error(f), -1);
    EXPECT_EQ(f_lc_ferror(f), CIERTO);
    trampa.veces = 0;
    f.reset();

    const std::tuple<decltype(&f_lc_fopen_u), int, size_t> filas[] = {{f_lc_fopen_u, 6, 1},
                                                                      {f_lc_fopen_seguro_u, 6, 0},
                                                                      {f_lc_fopen_en_varios_intentos_u, 21, 1},
                                                                      {f_lc_fopen_un_solo_intento_u, 1, 0}};
    for (const auto &[abre, intentos, informes] : filas) {
        trampa = {VN_FICH_COMPARTIDO, intentos - 1, 0, SIZE_MAX};
        EXPECT_NE(flujo(abre(nombre("paciencia").c_str(), VNU("rb"), VN_AQUI)), nullptr);
        trampa = {VN_FICH_COMPARTIDO, intentos, 0, SIZE_MAX};
        EXPECT_EQ(abre(nombre("paciencia").c_str(), VNU("rb"), VN_AQUI), nullptr);
        EXPECT_EQ(trampa.esperas, intentos - 1);
        EXPECT_EQ(toma_informes().size(), informes);
    }
}

PRUEBA(lc_fichero, posiciones_de_mas_de_32_bits) {
    flujo f("grande", "w+b");
    const int64_t lejos = (int64_t{1} << 32) + 5;
    EXPECT_TRUE(va(f, lejos));
    pon(f, "fin");
    EXPECT_EQ(vio_telli64(f), lejos + 3);
    EXPECT_EQ(lc_tamanyo_fichero(f), static_cast<double>(lejos + 3));
    EXPECT_EQ(ESPERA_INFORME("posicion <= LONG_MAX", lc_ftell(f)), -1);
    EXPECT_EQ(ESPERA_INFORME("longitud <= ULONG_MAX", vdir_longitud_fichero_puntero(f)), UINT32_MAX);
    EXPECT_EQ(lc_fseek(f, -3, VN_DESDE_LA_POSICION), CIERTO);
    EXPECT_EQ(lc_bytes_restantes(f), 3);
    EXPECT_EQ(toma(f, 10), "fin");
    lc_fflush(f);
    EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", fichmem_lee_unicode(nombre("grande").c_str())), nullptr);
    for (const auto &[n, origen] : {std::pair<int64_t, int>{-1, 0}, {INT64_MIN, 1}, {INT64_MAX, 2}, {-lejos - 4, 2}})
        EXPECT_EQ(vornio_fseek_i64(f, n, origen), FALSO);
    EXPECT_EQ(vio_telli64(f), lejos + 3);
    EXPECT_EQ(lc_trunca(f, 2), CIERTO);
    EXPECT_EQ(vdir_longitud_fichero_puntero(f), 2u);
}

// A count from a file is believed only as far as there are bytes for it.
PRUEBA(lc_fichero, las_cuentas_ante_lo_que_queda) {
    graba_fichero(ruta("cuenta"), std::string(100, 'c'));
    flujo f("cuenta", "rb"), crece("cuenta", "ab");
    EXPECT_EQ(toma(f, 20).size(), 20u);
    constexpr uint64_t MAS = UINT64_MAX;
    const std::tuple<uint64_t, uint64_t, vnbool> filas[] = {{10, 8, CIERTO},         {11, 8, FALSO},    {0, 8, CIERTO},
                                                            {MAS / 8 + 1, 8, FALSO}, {MAS, MAS, FALSO}, {MAS, 1, FALSO},
                                                            {MAS, 0, CIERTO}};
    for (const auto &[numero, tamanyo, caben] : filas) EXPECT_EQ(lc_quedan(f, numero, tamanyo), caben) << numero;
    pon(crece, std::string(100, 'd'));
    lc_fflush(crece);
    EXPECT_EQ(lc_quedan(f, 180, 1), CIERTO);
    EXPECT_TRUE(va(f, 500));
    EXPECT_EQ(lc_bytes_restantes(f), 0);
    EXPECT_EQ(lc_quedan(f, 1, 1), FALSO);
}

// One writer at a time where it is asked for, against other streams of this program and of another; readers are let in.
HIJO(lc_fichero_retiene) {
    vnfichero *f = f_lc_fopen_modo_escritura_u(ancho(args[0]).c_str(), VNU("r+b"), FALSO, VN_AQUI);
    if (f == nullptr || lc_bloquea_zona_fichero(f, 10, 5, VN_ZONA_EXCLUSIVA) == FALSO) return 1;
    graba_fichero(args[0] + ".listo", "");
    espera_fichero(args[0] + ".basta");
    muere();
}

PRUEBA(lc_fichero, un_solo_escritor_y_zonas_entre_programas) {
    graba_fichero(ruta("zona"), std::string(100, 'z'));
    const auto escritor = [](const char *modo, vnbool informa = FALSO) {
        return f_lc_fopen_modo_escritura_u(nombre("zona").c_str(), ancho(modo).c_str(), informa, VN_AQUI);
    };
    proceso otro("lc_fichero_retiene", {ruta("zona")});
    ASSERT_TRUE(espera_fichero(ruta("zona.listo")));
    for (const char *modo : {"r+b", "wb"}) EXPECT_EQ(escritor(modo), nullptr);
    EXPECT_EQ(f_lc_fopen_un_solo_intento_u(nombre("zona").c_str(), VNU("r+b"), VN_AQUI), nullptr);
    EXPECT_EQ(lee_fichero(ruta("zona")).size(), 100u) << "a refused opening has emptied the file";
    {
        flujo lector("zona", "rb");
        for (const int64_t byte : {14, 15})
            EXPECT_EQ(lc_bloquea_zona_fichero(lector, byte, 1, VN_ZONA_COMPARTIDA), byte == 14 ? FALSO : CIERTO);
        graba_fichero(ruta("zona.basta"), "");
        // The zone comes free when its holder dies.
        EXPECT_EQ(lc_bloquea_zona_fichero(lector, 14, 1, VN_ZONA_COMPARTIDA | VN_ZONA_ESPERA), CIERTO);
    }
    EXPECT_EQ(otro.espera(30000), proceso::MUERTO);
    flujo a(escritor("r+b"));
    ASSERT_NE(a, nullptr);
    EXPECT_EQ(escritor("r+b"), nullptr);
    EXPECT_EQ(ESPERA_INFORME("modo de escritura", escritor("rb")), nullptr);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", escritor("ab", CIERTO)), nullptr);
}

// Locks belong to the stream: the closing of another one drops none, and what is read under a lock is read anew.
PRUEBA(lc_fichero, zonas_de_dos_flujos) {
    constexpr int64_t LEJOS = int64_t{1} << 40;
    const auto retiene = [](vnfichero *f, int64_t desde, uint32_t n) {
        return lc_bloquea_zona_fichero(f, desde, n, VN_ZONA_EXCLUSIVA);
    };
    graba_fichero(ruta("dos"), std::string(50, '0'));
    flujo a("dos", "r+b"), b("dos", "r+b");
    EXPECT_EQ(toma(b, 1), "0");
    for (const int64_t desde : {int64_t{0}, LEJOS}) EXPECT_EQ(retiene(a, desde, 10), CIERTO);
    flujo("dos", "r+b").reset();
    for (const int64_t desde : {int64_t{9}, LEJOS + 9}) EXPECT_EQ(retiene(b, desde, 5), FALSO) << desde;
    EXPECT_EQ(retiene(b, 10, 5), CIERTO);
    pon(a, "12345");
    EXPECT_EQ(lc_desbloquea_zona_fichero(a, 0, 10), CIERTO);
    EXPECT_EQ(retiene(b, 0, 5), CIERTO);
    EXPECT_EQ(toma(b, 4), "2345") << "the buffer was filled before the lock";
    // Beside other writers any writer can lock, either way; not the byte by which they are writers.
    flujo c("dos", "wb");
    EXPECT_EQ(retiene(c, 100, 4000000000), CIERTO);
    EXPECT_EQ(lc_bloquea_zona_fichero(c, 20, 1, VN_ZONA_COMPARTIDA), CIERTO);
    EXPECT_EQ(retiene(b, 20, 1), FALSO);
}

PRUEBA(lc_fichero, las_lineas_anchas) {
    const auto texto = ancho("uno\n\ndos largo\u0D15\n\u0A0D");
    std::string bytes;
    for (const vnwchar c : texto) (bytes += static_cast<char>(c & 0xFF)) += static_cast<char>(c >> 8);
    graba_fichero(ruta("lineas"), bytes + "x");
    for (const char *modo : {"rb", "rt", "r+t"}) {
        flujo f("lineas", modo);
        vnwchar b[6];
        for (const char *esperada : {"uno\n", "\n", "dos l", "argo\u0D15", "\n", "\u0A0D"}) {
            ASSERT_NE(lc_fgetws(b, 6, f), nullptr);
            EXPECT_EQ(utf8_de(b), esperada) << modo;
        }
        EXPECT_EQ(lc_fgetws(b, 6, f), nullptr);
    }
}

// The ANSI names and modes of all modules, with a letter that is another byte in each encoding.
PRUEBA(lc_fichero, nombres_ansi_y_textos_viejos) {
    const std::string corto = directorio() + "/a\xF1o", ancho_utf8 = directorio() + "/a\u00F1o";
    const std::string viejos("a\xA4o\0\xA0", 5), ansi("a\xF1o\0\xE1", 5);
    flujo f(lc_fopen(corto.c_str(), "wb"));
    EXPECT_EQ(utf8_de(lc_nombre_fichero(f)), ancho_utf8);
    pon(f, viejos);
    for (const uint16_t version : {uint16_t{3}, uint16_t{4}}) {
        char b[5];
        f.reset();
        f.reset((version == 3 ? f_lc_fopen_seguro : f_lc_fopen_en_varios_intentos)(corto.c_str(), "rb", VN_AQUI));
        EXPECT_EQ(f_lc_fread_ansi_ascii(b, 1, 5, f, version, 3, VN_AQUI), 5u);
        EXPECT_EQ(std::string(b, 5), version == 3 ? ansi : viejos);
    }
    f.reset();
    vnfichero *g = vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar(corto.c_str());
    pon(g, "x");
    EXPECT_EQ(vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar(g, corto.c_str()), CIERTO);
    EXPECT_EQ(vf_copyfile_seguro(corto.c_str(), (corto + "2").c_str()), CIERTO);
    EXPECT_EQ(lee_fichero(ancho_utf8 + "2"), "x");
    EXPECT_EQ(lee_fichero(ancho_utf8 + ".bak"), viejos);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", lc_fopen((corto + "3").c_str(), "rb")), nullptr);
}
