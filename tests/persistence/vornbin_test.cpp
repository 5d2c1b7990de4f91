#include "foundation/sistema/vnstdc.h"
#include "persistence/vornbin.h"
#include "prueba.h"
#include <cfloat>
#include <cmath>
#include <functional>
#include <type_traits>

namespace {

using namespace std::string_literals;
using vn::con_informe;
using accion = std::function<void(vnfichero *)>;

// A file with a prologue, whose data are looked at and changed as bytes.
class datos {
  public:
    explicit datos(bool etiquetas = false) : etiquetas_(etiquetas), nombre_(vn::Prueba::directorio() + "/datos") {}

    // The bytes that `escribe` writes.
    std::string graba(const accion &escribe) {
        vnstdc_putenv(etiquetas_ ? "GRABARCONDEBUG=1" : "GRABARCONDEBUG=");
        vnfichero *f =
            vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(nombre_u(), 1, "F", VNU(""), nullptr);
        vnstdc_putenv("GRABARCONDEBUG=");
        escribe(f);
        EXPECT_EQ(vornbin_cierra_fichero_abierto_para_escritura_u(f, nombre_u(), nullptr), CIERTO);
        return vn::lee_fichero(nombre_).substr(prologo().size());
    }

    // Reads what the file holds, or the bytes given; tells how many bytes are left.
    int64_t lee(const accion &lector) {
        uint16_t version = 0;
        char *titulo = nullptr;
        vnfichero *f = vornbin_abre_fichero_para_lectura_sin_cabecera_version_programa_u(nombre_u(), 1, "F", nullptr,
                                                                                         &version, &titulo, 0);
        vn::toma(titulo);
        lector(f);
        const int64_t quedan = lc_bytes_restantes(f);
        lc_fclose(f);
        return quedan;
    }
    int64_t lee(std::string_view bytes, const accion &lector) {
        vn::graba_fichero(nombre_, prologo() + std::string(bytes));
        return lee(lector);
    }

  private:
    std::string prologo() const { return etiquetas_ ? "\1u\1\0\1\0F\0\0"s : "\0\1\0\1\0F\0\0"s; }
    const vnwchar *nombre_u() {
        nombre_u_ = vn::ancho(nombre_);
        return nombre_u_.c_str();
    }
    bool etiquetas_;
    std::string nombre_;
    std::basic_string<vnwchar> nombre_u_;
};

template <class T> void es_valor(T *p, T esperado) {
    ASSERT_NE(p, nullptr);
    EXPECT_EQ(*p, esperado);
    vornspy_free_pp(&p, sizeof(T));
}
void es(const Punto2D &p, double x, double y) {
    EXPECT_EQ(p.x, x);
    EXPECT_EQ(p.y, y);
}
void es_punto(Punto2D *p, double x, double y) {
    ASSERT_NE(p, nullptr);
    es(*p, x, y);
    vornspy_free_pp(&p, sizeof(Punto2D));
}

// Whatever writes a value, and whatever reads or passes over it: its own operations and halves of one for both ways.
struct caso {
    const char *nombre;
    std::string bytes, con_etiquetas;
    std::vector<accion> graba, lee;
};

const std::string UNO = "\0\0\0\0\0\0\xF0\x3F"s, DOS = "\0\0\0\0\0\0\0\x40"s, INFINITO = "\0\0\0\0\0\0\xF0\x7F"s;

template <class T> caso numero(void (*graba)(T, vnfichero *), T (*lee)(vnfichero *), accion salta,
                               void (*trata)(std::type_identity_t<T> *, vnfichero *, vnbool),
                               std::type_identity_t<T> valor, const char *etiqueta, const std::string &bytes) {
    caso c{etiqueta, bytes, etiqueta + bytes, {[=](auto f) { graba(valor, f); }}, {}};
    c.lee = {[=](auto f) { EXPECT_EQ(lee(f), valor); }};
    if (salta != nullptr) c.lee.push_back(salta);
    if (trata == nullptr) return c;
    c.graba.push_back([=](auto f) {
        T v = valor;
        trata(&v, f, CIERTO);
    });
    c.lee.push_back([=](auto f) {
        T v{};
        trata(&v, f, FALSO);
        EXPECT_EQ(v, valor);
    });
    return c;
}
template <class C> caso texto(const char *nombre, const C *valor, const std::string &etiqueta, const std::string &bytes,
                              void (*graba)(const C *, vnfichero *), C *(*lee)(vnfichero *)) {
    const auto comprueba = [=](vnfichero *f) {
        C *t = lee(f);
        EXPECT_TRUE(t == nullptr ? valor == nullptr : valor != nullptr && std::basic_string_view<C>(t) == valor);
        vn::toma(t);
    };
    return {nombre, bytes, etiqueta + bytes, {[=](auto f) { graba(valor, f); }}, {comprueba}};
}
template <class C>
caso texto_tratado(std::basic_string<C> valor, const std::string &bytes, void (*trata)(C **, vnfichero *, vnbool)) {
    const auto graba = [=](vnfichero *f) {
        auto v = valor;
        C *t = v.data();
        trata(&t, f, CIERTO);
    };
    const auto lee = [=](vnfichero *f) {
        C *t = nullptr;
        trata(&t, f, FALSO);
        EXPECT_TRUE(t != nullptr && t == valor);
        vn::toma(t);
    };
    return {"texto tratado", bytes, bytes, {graba}, {lee}};
}

std::vector<caso> casos() {
    static const Punto2D P{1, 2};
    // clang-format off
#define NUMERO(op, ...) numero(bin_graba_##op, bin_lee_##op, bin_salta_##op, bin_trata_##op, __VA_ARGS__)
#define HACE(...) [](auto f) { __VA_ARGS__; }
    return {
        NUMERO(bool, CIERTO, "b", "\1"), NUMERO(byte, 200, "b", "\xC8"), NUMERO(char, '\xF1', "c", "\xF1"),
        numero(bin_graba_uchar, bin_lee_uchar, nullptr, bin_trata_uchar, 255, "u", "\xFF"),
        numero(bin_graba_short, bin_lee_short, bin_salta_short, nullptr, -2, "s", "\xFE\xFF"),
        NUMERO(ushort, 0x8001, "u", "\x01\x80"),
        NUMERO(long, -0x01020304, "l", "\xFC\xFC\xFD\xFE"), NUMERO(ulong, 0x80000001, "u", "\1\0\0\x80"s),
        NUMERO(long64, -2, "l", "\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF"),
        NUMERO(ulong64, 0x8000000000000001, "u", "\1\0\0\0\0\0\0\x80"s),
        NUMERO(float, 1, "f", "\0\0\x80\x3F"s), NUMERO(double, 1, "d", UNO),
        numero(bin_graba_SN, bin_lee_SN, nullptr, nullptr, 'N', "c", "N"),
        texto("cadena", "ab\xE9", "", "\3\0ab\xE9"s, bin_graba_cadena, bin_lee_cadena),
        texto("cadena vacia", "", "", "\0\0"s, bin_graba_cadena, bin_lee_cadena),
        texto("unicode", VNU("aé中"), "", "\3\0\0\0a\0\xE9\0\x2D\x4E"s, bin_graba_cadena_unicode, bin_lee_cadena_unicode),
        texto("unicode vacia", VNU(""), "", "\0\0\0\0"s, bin_graba_cadena_unicode, bin_lee_cadena_unicode),
        texto<char>("null", nullptr, "b", "\0"s, bin_graba_null, bin_lee_null),
        texto("null con texto vacio", "", "b", "\1\0\0"s, bin_graba_null, bin_lee_null),
        texto<vnwchar>("null unicode", nullptr, "b", "\0"s, bin_graba_null_unicode, bin_lee_null_unicode),
        texto("null unicode con texto", VNU("a"), "b", "\1\1\0\0\0a\0"s, bin_graba_null_unicode, bin_lee_null_unicode),
        texto_tratado("viga"s, "\4\0viga"s, bin_trata_cadena),
        texto_tratado<char>("viga"s, "\4\0viga"s, [](auto t, auto f, auto graba) { bin_trata_cadena_ansi_ascii(t, f, graba, 1, 1); }),
        texto_tratado<vnwchar>(VNU("ab"), "\2\0\0\0a\0b\0"s, bin_trata_cadena_u),
        {"double null", "\0"s, "b\0"s, {HACE(bin_graba_double_posible_null(nullptr, f))},
         {HACE(EXPECT_EQ(bin_lee_double_posible_null(f), nullptr))}},
        {"double no null", "\1" + DOS, "b\1d" + DOS, {HACE(bin_graba_double_posible_null(&P.y, f))},
         {HACE(es_valor(bin_lee_double_posible_null(f), 2.0))}},
        {"punto", UNO + DOS, "d" + UNO + "d" + DOS,
         {HACE(bin_graba_punto(&P, f)), HACE(Punto2D p = P; bin_trata_punto(&p, f, CIERTO))},
         {HACE(es_punto(bin_lee_punto(f), 1, 2)), HACE(Punto2D p; bin_trata_punto(&p, f, FALSO); es(p, 1, 2))}},
        {"punto2D", UNO + DOS, "p" + UNO + DOS, {HACE(bin_graba_punto2D(&P, f))}, {HACE(Punto2D p; bin_lee_punto2D(&p, f); es(p, 1, 2))}},
        {"punto de float", "\0\0\x80\x3F\0\0\0\x40"s, "f\0\0\200\77f\0\0\0\x40"s,
         {HACE(bin_graba_float(1, f), bin_graba_float(2, f))}, {HACE(es_punto(bin_lee_punto_float(f), 1, 2))}},
        {"buffer", "a\0b"s, "a\0b"s, {HACE(bin_graba_buffer("a\0b", 3, f))},
         {HACE(char b[3]; bin_lee_buffer(b, 3, f); EXPECT_EQ(std::string(b, 3), "a\0b"s))}},
        {"buffer de wide", "a\0\xE9\0"s, "a\0\xE9\0"s, {HACE(bin_graba_buffer_u(VNU("aé"), 2, f))},
         {HACE(vnwchar b[2]; bin_lee_buffer_u(b, 2, f); EXPECT_EQ(std::basic_string<vnwchar>(b, 2), VNU("aé")))}},
    };
    // clang-format on
#undef NUMERO
}

} // namespace

PRUEBA(vornbin, cada_valor_tiene_sus_bytes_en_las_dos_formas_y_vuelve) {
    for (const bool etiquetas : {false, true})
        for (const caso &c : casos()) {
            SCOPED_TRACE(std::string(c.nombre) + " " + c.bytes);
            datos d(etiquetas);
            const std::string final = etiquetas ? "bZ" : "Z";
            for (const accion &graba : c.graba)
                EXPECT_EQ(d.graba([&](vnfichero *f) { graba(f), bin_graba_byte(0x5A, f); }),
                          (etiquetas ? c.con_etiquetas : c.bytes) + final);
            for (const accion &lee : c.lee) EXPECT_EQ(d.lee(lee), static_cast<int64_t>(final.size()));
        }
}

PRUEBA(vornbin, un_valor_malo_se_informa_y_se_escribe_igual) {
    const Punto2D p{vn::INF, 1};
    const std::string largo(65536 + 3, 'a');
    const struct {
        const char *informe;
        accion graba;
        std::string bytes;
        vnbool vale = FALSO;
    } malos[] = {
        {"valor == CIERTO || valor == FALSO", HACE(bin_graba_bool(2, f)), "\2"},
        {"dato == 'S' || dato == 'N'", HACE(bin_graba_SN('s', f)), "s"},
        {"defmath_es_numero_valido(dato) == CIERTO", HACE(bin_graba_double(vn::INF, f)), INFINITO, CIERTO},
        {"defmath_es_numero_valido(dato) == CIERTO", [=](auto f) { bin_graba_punto(&p, f); }, INFINITO + UNO, CIERTO},
        {"l <= USHRT_MAX", [&](auto f) { bin_graba_cadena(largo.c_str(), f); }, "\3\0aaa"s},
        {"(buf) != NULL", HACE(bin_graba_cadena(nullptr, f)), ""},
        {"(pto) != NULL", HACE(bin_graba_punto(nullptr, f)), ""},
    };
    const std::string nombre = vn::Prueba::directorio() + "/malo";
    for (const auto &m : malos) {
        SCOPED_TRACE(m.informe);
        vnfichero *f = lc_fopen_u(vn::ancho(nombre).c_str(), VNU("wb"));
        con_informe(m.informe, [&] { m.graba(f); });
        // What cannot be read back, or was not there to be written, does not close well.
        EXPECT_EQ(lc_ha_fallado(f), m.vale == CIERTO ? FALSO : CIERTO);
        EXPECT_EQ(lc_fclose_seguro(f), m.vale);
        EXPECT_EQ(vn::lee_fichero(nombre), m.bytes);
    }
    // The raw point is not looked at; the longest text is.
    datos d;
    EXPECT_EQ(d.graba([&](vnfichero *f) { bin_graba_punto2D(&p, f); }), INFINITO + UNO);
    EXPECT_EQ(d.graba([&](vnfichero *f) { bin_graba_cadena(largo.substr(4).c_str(), f); }).size(), 2u + 65535u);
}

PRUEBA(vornbin, lo_que_no_se_puede_leer_se_informa_y_se_sigue) {
    constexpr auto LECTURA = "lc_error_leyendo_fichero", RESULTADO = "resultado == 0";
    const struct {
        std::string bytes;
        const char *informe;
        accion lee;
        int64_t quedan = 0;
        bool etiquetas = false;
    } filas[] = {
        {"\7", LECTURA, HACE(EXPECT_EQ(bin_lee_bool(f), 7))},
        {"\7", LECTURA, bin_salta_bool},
        {"s", LECTURA, HACE(EXPECT_EQ(bin_lee_SN(f), 's'))},
        {"\2\0\0"s, RESULTADO, HACE(EXPECT_EQ(bin_lee_null(f), nullptr)), 2},
        {"\2\0\0"s, RESULTADO, HACE(EXPECT_EQ(bin_lee_null_unicode(f), nullptr)), 2},
        {"\xFF\0\0"s, RESULTADO, HACE(EXPECT_EQ(bin_lee_double_posible_null(f), nullptr)), 2},
        {"\1\2", LECTURA, HACE(EXPECT_EQ(bin_lee_long(f), 0x0201))}, // the missing bytes are zero
        // Tags: the value behind a wrong one is read on.
        {"u\1\0\0\0l\2\0\0\0"s, LECTURA, HACE(EXPECT_EQ(bin_lee_long(f), 1); EXPECT_EQ(bin_lee_long(f), 2)), 0, true},
        {"d" + UNO + UNO, LECTURA, HACE(Punto2D p; bin_lee_punto2D(&p, f); es(p, 1, 1)), 0, true},
    };
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.bytes);
        con_informe(fila.informe, [&] { EXPECT_EQ(datos(fila.etiquetas).lee(fila.bytes, fila.lee), fila.quedan); });
    }
}

PRUEBA(vornbin, una_longitud_falsa_no_reserva_memoria) {
    datos d;
    d.lee("\xFF\xFF\xFF\xFF"
          "\xFF\xFF",
          [&](vnfichero *f) {
              const vn::mayor_bloque mayor;
              EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena_unicode(f))), "");
              EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena(f))), "");
              EXPECT_LT(mayor(), 100u);
          });
    // One byte too many is as false; all that is left is not.
    d.lee("\3\0ab"s, HACE(EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena(f))), "")));
    d.lee("\2\0ab"s, HACE(EXPECT_EQ(vn::toma(bin_lee_cadena(f)), "ab")));
    d.lee("\2\0\0\0a\0b"s,
          HACE(EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena_unicode(f))), "")));
}

PRUEBA(vornbin, los_textos_antiguos_se_convierten_hasta_la_ultima_version_ascii) {
    const std::string texto = "\2\0a\x82"s;
    datos d;
    EXPECT_EQ(d.lee(texto + texto + texto + "\1" + texto + "\1" + texto +
                        "\x82\x82\x82"
                        "x\x82x\x82",
                    [](vnfichero *f) {
                        EXPECT_EQ(vn::toma(bin_lee_cadena_ASCII(f)), "a\xE9");
                        EXPECT_EQ(vn::toma(bin_lee_cadena_ansi_ascii(f, 5, 5)), "a\xE9");
                        EXPECT_EQ(vn::toma(bin_lee_cadena_ansi_ascii(f, 6, 5)), "a\x82");
                        EXPECT_EQ(vn::toma(bin_lee_null_ansi_ascii(f, 4, 5)), "a\xE9");
                        EXPECT_EQ(vn::toma(bin_lee_null_ansi_ascii(f, 6, 5)), "a\x82");
                        EXPECT_EQ(bin_lee_char_ASCII(f), '\xE9');
                        EXPECT_EQ(bin_lee_char_ansi_ascii(f, 5, 5), '\xE9');
                        EXPECT_EQ(bin_lee_char_ansi_ascii(f, 6, 5), '\x82');
                        char buffer[2];
                        bin_lee_buffer_ascii(buffer, 2, f);
                        EXPECT_EQ(std::string(buffer, 2), "x\xE9");
                        bin_lee_buffer_ansi_ascii(buffer, 2, f, 6, 5);
                        EXPECT_EQ(std::string(buffer, 2), "x\x82");
                    }),
              0);
}

PRUEBA(vornbin, un_numero_que_puede_estar_mal_se_filtra_y_se_dice) {
    const std::string denormal = "\1\0\0\0\0\0\0\0"s;
    vnbool mal = 7, den = 7;
    datos d;
    const auto espera = [&](vnbool m, vnbool n) { EXPECT_TRUE(mal == m && den == n) << mal << den; };
    EXPECT_EQ(d.lee(UNO + INFINITO + denormal + "\0"s + "\1" + INFINITO + INFINITO + UNO + UNO + denormal,
                    [&](vnfichero *f) {
                        EXPECT_EQ(bin_lee_double_con_posible_error(f, &mal, &den), 1);
                        espera(FALSO, FALSO);
                        EXPECT_TRUE(std::isfinite(bin_lee_double_con_posible_error(f, &mal, &den)));
                        espera(CIERTO, FALSO);
                        EXPECT_EQ(bin_lee_double_con_posible_error(f, &mal, &den), 0);
                        espera(FALSO, CIERTO);
                        EXPECT_EQ(bin_lee_double_posible_null_con_posible_error(f, &mal, &den), nullptr);
                        espera(FALSO, FALSO);
                        es_valor(bin_lee_double_posible_null_con_posible_error(f, &mal, &den), 0.0);
                        espera(CIERTO, FALSO);
                        es_punto(bin_lee_punto_con_posible_error(f, &mal, &den), 0, 1);
                        espera(CIERTO, FALSO);
                        es_punto(bin_lee_punto_con_posible_error(f, &mal, &den), 1, 0);
                        espera(FALSO, CIERTO);
                    }),
              0);
    // The least normal float, one below it, zero; infinite and no number.
    d.lee("\0\0\x80\0\xFF\xFF\x7F\0\0\0\0\0\0\0\x80\x7F\0\0\xC0\x7F"s, [](vnfichero *f) {
        for (const float x : {FLT_MIN, 0.f, 0.f}) EXPECT_EQ(bin_lee_float_con_posible_error(f), x);
        for (int i = 0; i < 2; ++i)
            ESPERA_INFORME("vnstdc_fabs(dato_temporal) <= FLT_MAX", bin_lee_float_con_posible_error(f));
    });
    // Without an output the value is passed over all the same.
    d.lee("\1" + UNO, HACE(es_valor(ESPERA_INFORME("(es_incorrecto) != NULL",
                                                   bin_lee_double_posible_null_con_posible_error(f, nullptr, nullptr)),
                                    1.0)));
}

PRUEBA(vornbin, la_marca_se_reconoce_o_la_posicion_se_queda) {
    for (auto comprueba : {vornbin_se_comprueba_marca, vornbin_se_comprueba_marca64}) {
        datos d;
        EXPECT_EQ(d.lee("BLOQUEx",
                        [=](vnfichero *f) {
                            EXPECT_EQ(comprueba("BLOQUES", f), FALSO);
                            EXPECT_EQ(comprueba("BLOQUExyz", f), FALSO); // beyond the end of the file, quietly
                            EXPECT_EQ(comprueba("", f), CIERTO);
                            EXPECT_EQ(comprueba("BLO", f), CIERTO);
                            EXPECT_EQ(comprueba("QUE", f), CIERTO);
                            EXPECT_EQ(bin_lee_char(f), 'x');
                            EXPECT_EQ(comprueba("x", f), FALSO);
                        }),
                  0);
        // A mark that lies across the end of the stream's buffer.
        for (const size_t salto : {65530u, 65535u, 131060u, 131070u}) {
            std::string resto(salto, '.');
            d.lee(resto + "MARCA" + std::string(200000 - salto, '.'), [&](vnfichero *f) {
                bin_lee_buffer(resto.data(), static_cast<uint32_t>(salto), f);
                EXPECT_EQ(comprueba("MARCO", f), FALSO);
                EXPECT_EQ(comprueba("MARCA", f), CIERTO) << salto;
                EXPECT_EQ(bin_lee_char(f), '.');
            });
        }
    }
}
