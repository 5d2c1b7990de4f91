#include "foundation/sistema/vnstdc.h"
#include "persistence/vornbin.h"
#include "prueba.h"
#include <array>
#include <cfloat>
#include <cmath>
#include <cstring>
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

template <class T> bool es_valor(T *p, T esperado) {
    const bool iguales = p != nullptr && *p == esperado;
    if (p != nullptr) vornspy_free_pp(&p, sizeof(T));
    return iguales;
}

bool es_punto(Punto2D *p, double x, double y) {
    const bool iguales = p != nullptr && p->x == x && p->y == y;
    if (p != nullptr) vornspy_free_pp(&p, sizeof(Punto2D));
    return iguales;
}

// What writes a value and what reads it, alone and as halves of one operation for both ways.
struct caso {
    const char *nombre;
    accion graba;
    std::string bytes, con_etiquetas;
    std::function<bool(vnfichero *)> lee;
    accion salta = nullptr, trata_al_grabar = nullptr;
    std::function<bool(vnfichero *)> trata_al_leer = nullptr;
};

const std::string UNO = "\0\0\0\0\0\0\xF0\x3F"s, DOS = "\0\0\0\0\0\0\0\x40"s;

template <class T> caso numero(void (*graba)(T, vnfichero *), T (*lee)(vnfichero *), accion salta,
                               void (*trata)(std::type_identity_t<T> *, vnfichero *, vnbool),
                               std::type_identity_t<T> valor, const char *etiqueta, const std::string &bytes) {
    caso c{etiqueta,         [=](vnfichero *f) { graba(valor, f); },        bytes,
           etiqueta + bytes, [=](vnfichero *f) { return lee(f) == valor; }, salta};
    if (trata == nullptr) return c;
    c.trata_al_grabar = [=](vnfichero *f) {
        T v = valor;
        trata(&v, f, CIERTO);
    };
    c.trata_al_leer = [=](vnfichero *f) {
        T v{};
        trata(&v, f, FALSO);
        return v == valor;
    };
    return c;
}
template <class C> caso texto(const char *nombre, const C *valor, const std::string &etiqueta, const std::string &bytes,
                              void (*graba)(const C *, vnfichero *), C *(*lee)(vnfichero *)) {
    return {nombre, [=](vnfichero *f) { graba(valor, f); }, bytes, etiqueta + bytes,
            [=](vnfichero *f) {
                C *t = lee(f);
                const bool igual =
                    t == nullptr ? valor == nullptr : valor != nullptr && std::basic_string_view<C>(t) == valor;
                vn::toma(t);
                return igual;
            }};
}

std::vector<caso> casos() {
#define NUMERO(op, ...) numero(bin_graba_##op, bin_lee_##op, bin_salta_##op, bin_trata_##op, __VA_ARGS__)
    return {
        NUMERO(bool, CIERTO, "b", "\1"),
        NUMERO(byte, 200, "b", "\xC8"),
        NUMERO(char, '\xF1', "c", "\xF1"),
        numero(bin_graba_uchar, bin_lee_uchar, nullptr, bin_trata_uchar, 255, "u", "\xFF"),
        numero(bin_graba_short, bin_lee_short, bin_salta_short, nullptr, -2, "s", "\xFE\xFF"),
        NUMERO(ushort, 0x8001, "u", "\x01\x80"),
        NUMERO(long, -0x01020304, "l", "\xFC\xFC\xFD\xFE"),
        NUMERO(ulong, 0x80000001, "u", "\1\0\0\x80"s),
        NUMERO(long64, -2, "l", "\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF"),
        NUMERO(ulong64, 0x8000000000000001, "u", "\1\0\0\0\0\0\0\x80"s),
        NUMERO(float, 1, "f", "\0\0\x80\x3F"s),
        NUMERO(double, 1, "d", UNO),
        numero(bin_graba_SN, bin_lee_SN, nullptr, nullptr, 'N', "c", "N"),
        texto("cadena", "ab\xE9", "", "\3\0ab\xE9"s, bin_graba_cadena, bin_lee_cadena),
        texto("cadena vacia", "", "", "\0\0"s, bin_graba_cadena, bin_lee_cadena),
        texto("unicode", VNU("aé中"), "", "\3\0\0\0a\0\xE9\0\x2D\x4E"s, bin_graba_cadena_unicode,
              bin_lee_cadena_unicode),
        texto("unicode vacia", VNU(""), "", "\0\0\0\0"s, bin_graba_cadena_unicode, bin_lee_cadena_unicode),
        texto<char>("null", nullptr, "b", "\0"s, bin_graba_null, bin_lee_null),
        texto("null con texto vacio", "", "b", "\1\0\0"s, bin_graba_null, bin_lee_null),
        texto<vnwchar>("null unicode", nullptr, "b", "\0"s, bin_graba_null_unicode, bin_lee_null_unicode),
        texto("null unicode con texto", VNU("a"), "b", "\1\1\0\0\0a\0"s, bin_graba_null_unicode, bin_lee_null_unicode),
        {"double null", [](auto f) { bin_graba_double_posible_null(nullptr, f); }, "\0"s, "b\0"s,
         [](auto f) { return bin_lee_double_posible_null(f) == nullptr; }},
        {"double no null", [](auto f) { bin_graba_double_posible_null(std::array{2.}.data(), f); }, "\1" + DOS,
         "b\1d" + DOS, [](auto f) { return es_valor(bin_lee_double_posible_null(f), 2.0); }},
        {"punto",
         [](auto f) {
             bin_graba_punto(std::array{Punto2D{1, 2}}.data(), f);
         },
         UNO + DOS, "d" + UNO + "d" + DOS, [](auto f) { return es_punto(bin_lee_punto(f), 1, 2); }, nullptr,
         [](auto f) {
             bin_trata_punto(std::array{Punto2D{1, 2}}.data(), f, CIERTO);
         },
         [](auto f) {
             Punto2D p;
             bin_trata_punto(&p, f, FALSO);
             return p.x == 1 && p.y == 2;
         }},
        {"punto2D",
         [](auto f) {
             bin_graba_punto2D(std::array{Punto2D{1, 2}}.data(), f);
         },
         UNO + DOS, "p" + UNO + DOS,
         [](auto f) {
             Punto2D p;
             bin_lee_punto2D(&p, f);
             return p.x == 1 && p.y == 2;
         }},
        {"punto de float", [](auto f) { bin_graba_float(1, f), bin_graba_float(2, f); }, "\0\0\x80\x3F\0\0\0\x40"s,
         "f\0\0\200\77f\0\0\0\x40"s, [](auto f) { return es_punto(bin_lee_punto_float(f), 1, 2); }},
        {"buffer", [](auto f) { bin_graba_buffer("a\0b", 3, f); }, "a\0b"s, "a\0b"s,
         [](auto f) {
             char b[3];
             bin_lee_buffer(b, 3, f);
             return memcmp(b, "a\0b", 3) == 0;
         }},
        {"buffer de wide", [](auto f) { bin_graba_buffer_u(VNU("aé"), 2, f); }, "a\0\xE9\0"s, "a\0\xE9\0"s,
         [](auto f) {
             vnwchar b[2];
             bin_lee_buffer_u(b, 2, f);
             return b[0] == 'a' && b[1] == 0xE9;
         }},
    };
#undef NUMERO
}

} // namespace

PRUEBA(vornbin, cada_valor_tiene_sus_bytes_en_las_dos_formas_y_vuelve) {
    for (const bool etiquetas : {false, true})
        for (const caso &c : casos()) {
            SCOPED_TRACE(std::string(c.nombre) + " " + c.bytes);
            datos d(etiquetas);
            const std::string final = etiquetas ? "bZ" : "Z";
            const auto quedan = static_cast<int64_t>(final.size());
            for (const accion &graba : {c.graba, c.trata_al_grabar}) {
                if (graba == nullptr) continue;
                EXPECT_EQ(d.graba([&](vnfichero *f) { graba(f), bin_graba_byte(0x5A, f); }),
                          (etiquetas ? c.con_etiquetas : c.bytes) + final);
            }
            for (const auto &lee : {c.lee, c.trata_al_leer}) {
                if (lee == nullptr) continue;
                EXPECT_EQ(d.lee([&](vnfichero *f) { EXPECT_TRUE(lee(f)); }), quedan);
            }
            EXPECT_TRUE(c.salta == nullptr || d.lee(c.salta) == quedan);
        }
    // Texts in operations for both ways.
    datos d;
    char *texto = strdup("viga"), *leido = nullptr;
    std::basic_string<vnwchar> texto_u = VNU("pilar");
    vnwchar *escrito_u = texto_u.data(), *leido_u = nullptr;
    d.graba([&](vnfichero *f) {
        bin_trata_cadena(&texto, f, CIERTO);
        bin_trata_cadena_ansi_ascii(&texto, f, CIERTO, 1, 1);
        bin_trata_cadena_u(&escrito_u, f, CIERTO);
    });
    free(texto);
    d.lee([&](vnfichero *f) {
        bin_trata_cadena(&leido, f, FALSO);
        EXPECT_EQ(vn::toma(leido), "viga");
        bin_trata_cadena_ansi_ascii(&leido, f, FALSO, 1, 1);
        EXPECT_EQ(vn::toma(leido), "viga");
        bin_trata_cadena_u(&leido_u, f, FALSO);
        EXPECT_EQ(vn::toma(leido_u), "pilar");
    });
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
        {"valor == CIERTO || valor == FALSO", [](auto f) { bin_graba_bool(2, f); }, "\2"},
        {"dato == 'S' || dato == 'N'", [](auto f) { bin_graba_SN('s', f); }, "s"},
        {"defmath_es_numero_valido(dato) == CIERTO", [](auto f) { bin_graba_double(vn::INF, f); },
         "\0\0\0\0\0\0\xF0\x7F"s, CIERTO},
        {"defmath_es_numero_valido(dato) == CIERTO", [=](auto f) { bin_graba_punto(&p, f); },
         "\0\0\0\0\0\0\xF0\x7F"s + UNO, CIERTO},
        {"l <= USHRT_MAX", [&](auto f) { bin_graba_cadena(largo.c_str(), f); }, "\3\0aaa"s},
        {"(buf) != NULL", [](auto f) { bin_graba_cadena(nullptr, f); }, ""},
        {"(pto) != NULL", [](auto f) { bin_graba_punto(nullptr, f); }, ""},
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
    EXPECT_EQ(d.graba([&](vnfichero *f) { bin_graba_punto2D(&p, f); }), "\0\0\0\0\0\0\xF0\x7F"s + UNO);
    EXPECT_EQ(d.graba([&](vnfichero *f) { bin_graba_cadena(largo.substr(4).c_str(), f); }).size(), 2u + 65535u);
}

PRUEBA(vornbin, lo_que_no_se_puede_leer_se_informa_y_se_sigue) {
    constexpr auto LECTURA = "lc_error_leyendo_fichero";
    datos d;
    const auto lee = [&](const std::string &bytes, const char *informe, const accion &lector) {
        return d.lee(bytes, [&](vnfichero *f) { con_informe(informe, [&] { lector(f); }); });
    };
    EXPECT_EQ(lee("\7", LECTURA, [](auto f) { EXPECT_EQ(bin_lee_bool(f), 7); }), 0);
    EXPECT_EQ(lee("\7", LECTURA, bin_salta_bool), 0);
    EXPECT_EQ(lee("s", LECTURA, [](auto f) { EXPECT_EQ(bin_lee_SN(f), 's'); }), 0);
    EXPECT_EQ(lee("\2\0\0"s, "resultado == 0", [](auto f) { EXPECT_EQ(bin_lee_null(f), nullptr); }), 2);
    EXPECT_EQ(lee("\2\0\0"s, "resultado == 0", [](auto f) { EXPECT_EQ(bin_lee_null_unicode(f), nullptr); }), 2);
    EXPECT_EQ(lee("\xFF\0\0"s, "resultado == 0", [](auto f) { EXPECT_EQ(bin_lee_double_posible_null(f), nullptr); }),
              2);
    lee("\1\2", LECTURA, [](auto f) { EXPECT_EQ(bin_lee_long(f), 0x0201); }); // the missing bytes are zero
    // Tags: the value behind a wrong one is read on.
    datos con_etiquetas(true);
    EXPECT_EQ(con_etiquetas.lee("u\1\0\0\0l\2\0\0\0"s,
                                [&](vnfichero *f) {
                                    con_informe(LECTURA, [=] { EXPECT_EQ(bin_lee_long(f), 1); });
                                    EXPECT_EQ(bin_lee_long(f), 2);
                                }),
              0);
    EXPECT_EQ(con_etiquetas.lee("d" + UNO + UNO,
                                [&](vnfichero *f) {
                                    Punto2D p;
                                    con_informe(LECTURA, [&] { bin_lee_punto2D(&p, f); });
                                    EXPECT_EQ(p.x, 1);
                                }),
              0);
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
    d.lee("\3\0ab"s, [](vnfichero *f) {
        EXPECT_TRUE(ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena(f)) == ""));
    });
    d.lee("\2\0ab"s, [](vnfichero *f) { EXPECT_EQ(vn::toma(bin_lee_cadena(f)), "ab"); });
    d.lee("\2\0\0\0a\0b"s, [](vnfichero *f) {
        EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena_unicode(f))), "");
    });
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
    const std::string infinito = "\0\0\0\0\0\0\xF0\x7F"s, denormal = "\1\0\0\0\0\0\0\0"s;
    vnbool mal = 7, den = 7;
    datos d;
    const auto espera = [&](vnbool m, vnbool n) { EXPECT_TRUE(mal == m && den == n) << mal << den; };
    EXPECT_EQ(d.lee(UNO + infinito + denormal + "\0"s + "\1" + infinito + infinito + UNO + UNO + denormal,
                    [&](vnfichero *f) {
                        EXPECT_EQ(bin_lee_double_con_posible_error(f, &mal, &den), 1);
                        espera(FALSO, FALSO);
                        EXPECT_TRUE(std::isfinite(bin_lee_double_con_posible_error(f, &mal, &den)));
                        espera(CIERTO, FALSO);
                        EXPECT_EQ(bin_lee_double_con_posible_error(f, &mal, &den), 0);
                        espera(FALSO, CIERTO);
                        EXPECT_EQ(bin_lee_double_posible_null_con_posible_error(f, &mal, &den), nullptr);
                        espera(FALSO, FALSO);
                        EXPECT_TRUE(es_valor(bin_lee_double_posible_null_con_posible_error(f, &mal, &den), 0.0));
                        espera(CIERTO, FALSO);
                        EXPECT_TRUE(es_punto(bin_lee_punto_con_posible_error(f, &mal, &den), 0, 1));
                        espera(CIERTO, FALSO);
                        EXPECT_TRUE(es_punto(bin_lee_punto_con_posible_error(f, &mal, &den), 1, 0));
                        espera(FALSO, CIERTO);
                    }),
              0);
    const std::string minimo = "\0\0\x80\0"s, debajo = "\xFF\xFF\x7F\0"s, inf = "\0\0\x80\x7F"s, nan = "\0\0\xC0\x7F"s;
    d.lee(minimo + debajo + "\0\0\0\0"s + inf + nan, [](vnfichero *f) {
        EXPECT_EQ(bin_lee_float_con_posible_error(f), FLT_MIN);
        EXPECT_EQ(bin_lee_float_con_posible_error(f), 0);
        EXPECT_EQ(bin_lee_float_con_posible_error(f), 0);
        ESPERA_INFORME("vnstdc_fabs(dato_temporal) <= FLT_MAX", bin_lee_float_con_posible_error(f));
        ESPERA_INFORME("vnstdc_fabs(dato_temporal) <= FLT_MAX", bin_lee_float_con_posible_error(f));
    });
    // Without an output the value is passed over all the same.
    EXPECT_EQ(d.lee("\1" + UNO,
                    [](vnfichero *f) {
                        double *p = ESPERA_INFORME("(es_incorrecto) != NULL",
                                                   bin_lee_double_posible_null_con_posible_error(f, nullptr, nullptr));
                        EXPECT_TRUE(es_valor(p, 1.0));
                    }),
              0);
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
        std::string largo(200000, '.');
        largo += "MARCA!";
        for (const size_t salto : {65530u, 65535u, 131060u, 131070u}) {
            std::string bytes = largo;
            bytes.replace(salto, 5, "MARCA");
            d.lee(bytes, [=](vnfichero *f) {
                std::string resto(salto, 0);
                bin_lee_buffer(resto.data(), static_cast<uint32_t>(salto), f);
                EXPECT_EQ(comprueba("MARCO", f), FALSO);
                EXPECT_EQ(comprueba("MARCA", f), CIERTO) << salto;
                EXPECT_EQ(bin_lee_char(f), '.');
            });
        }
    }
}
