#include "foundation/sistema/vnstdc.h"
#include "foundation/texto/unicode.h"
#include "persistence/vornbin.h"
#include "prueba.h"
#include <cfloat>
#include <cmath>
#include <cstring>
#include <functional>
#include <limits>

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

struct caso {
    const char *nombre;
    accion graba;
    std::string bytes, con_etiquetas;
    std::function<bool(vnfichero *)> lee;
    accion salta = nullptr;
};

const std::string UNO = "\0\0\0\0\0\0\xF0\x3F"s, DOS = "\0\0\0\0\0\0\0\x40"s;

std::vector<caso> casos() {
    return {
        {"bool", [](auto f) { bin_graba_bool(CIERTO, f); }, "\1", "b\1",
         [](auto f) { return bin_lee_bool(f) == CIERTO; }, bin_salta_bool},
        {"byte", [](auto f) { bin_graba_byte(200, f); }, "\xC8", "b\xC8", [](auto f) { return bin_lee_byte(f) == 200; },
         bin_salta_byte},
        {"char", [](auto f) { bin_graba_char('\xF1', f); }, "\xF1", "c\xF1",
         [](auto f) { return bin_lee_char(f) == '\xF1'; }, bin_salta_char},
        {"uchar", [](auto f) { bin_graba_uchar(255, f); }, "\xFF", "u\xFF",
         [](auto f) { return bin_lee_uchar(f) == 255; }},
        {"short", [](auto f) { bin_graba_short(-2, f); }, "\xFE\xFF", "s\xFE\xFF",
         [](auto f) { return bin_lee_short(f) == -2; }, bin_salta_short},
        {"ushort", [](auto f) { bin_graba_ushort(0x8001, f); }, "\x01\x80", "u\x01\x80",
         [](auto f) { return bin_lee_ushort(f) == 0x8001; }, bin_salta_ushort},
        {"long", [](auto f) { bin_graba_long(-0x01020304, f); }, "\xFC\xFC\xFD\xFE", "l\xFC\xFC\xFD\xFE",
         [](auto f) { return bin_lee_long(f) == -0x01020304; }, bin_salta_long},
        {"ulong", [](auto f) { bin_graba_ulong(0x80000001, f); }, "\1\0\0\x80"s, "u\1\0\0\x80"s,
         [](auto f) { return bin_lee_ulong(f) == 0x80000001; }, bin_salta_ulong},
        {"long64", [](auto f) { bin_graba_long64(-2, f); }, "\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF",
         "l\xFE\xFF\xFF\xFF\xFF\xFF\xFF\xFF", [](auto f) { return bin_lee_long64(f) == -2; }, bin_salta_long64},
        {"ulong64", [](auto f) { bin_graba_ulong64(0x8000000000000001, f); }, "\1\0\0\0\0\0\0\x80"s,
         "u\1\0\0\0\0\0\0\x80"s, [](auto f) { return bin_lee_ulong64(f) == 0x8000000000000001; }, bin_salta_ulong64},
        {"float", [](auto f) { bin_graba_float(1, f); }, "\0\0\x80\x3F"s, "f\0\0\x80\x3F"s,
         [](auto f) { return bin_lee_float(f) == 1; }, bin_salta_float},
        {"double", [](auto f) { bin_graba_double(1, f); }, UNO, "d" + UNO,
         [](auto f) { return bin_lee_double(f) == 1; }, bin_salta_double},
        {"SN", [](auto f) { bin_graba_SN('N', f); }, "N", "cN", [](auto f) { return bin_lee_SN(f) == 'N'; }},
        {"cadena", [](auto f) { bin_graba_cadena("ab\xE9", f); }, "\3\0ab\xE9"s, "\3\0ab\xE9"s,
         [](auto f) { return vn::toma(bin_lee_cadena(f)) == "ab\xE9"; }},
        {"cadena vacia", [](auto f) { bin_graba_cadena("", f); }, "\0\0"s, "\0\0"s,
         [](auto f) { return vn::toma(bin_lee_cadena(f)) == ""; }},
        {"unicode", [](auto f) { bin_graba_cadena_unicode(VNU("aé中"), f); }, "\3\0\0\0a\0\xE9\0\x2D\x4E"s,
         "\3\0\0\0a\0\xE9\0\x2D\x4E"s,
         [](auto f) { return vn::toma(bin_lee_cadena_unicode(f)) == vn::utf8_de(VNU("aé中")); }},
        {"unicode vacia", [](auto f) { bin_graba_cadena_unicode(VNU(""), f); }, "\0\0\0\0"s, "\0\0\0\0"s,
         [](auto f) { return vn::toma(bin_lee_cadena_unicode(f)) == vn::utf8_de(VNU("")); }},
        {"null", [](auto f) { bin_graba_null(nullptr, f); }, "\0"s, "b\0"s,
         [](auto f) { return bin_lee_null(f) == nullptr; }},
        {"null con texto vacio", [](auto f) { bin_graba_null("", f); }, "\1\0\0"s, "b\1\0\0"s,
         [](auto f) { return vn::toma(bin_lee_null(f)) == ""; }},
        {"null unicode", [](auto f) { bin_graba_null_unicode(nullptr, f); }, "\0"s, "b\0"s,
         [](auto f) { return bin_lee_null_unicode(f) == nullptr; }},
        {"null unicode con texto", [](auto f) { bin_graba_null_unicode(VNU("a"), f); }, "\1\1\0\0\0a\0"s,
         "b\1\1\0\0\0a\0"s, [](auto f) { return vn::toma(bin_lee_null_unicode(f)) == vn::utf8_de(VNU("a")); }},
        {"double null", [](auto f) { bin_graba_double_posible_null(nullptr, f); }, "\0"s, "b\0"s,
         [](auto f) { return bin_lee_double_posible_null(f) == nullptr; }},
        {"double no null",
         [](auto f) {
             const double d = 2;
             bin_graba_double_posible_null(&d, f);
         },
         "\1" + DOS, "b\1d" + DOS, [](auto f) { return es_valor(bin_lee_double_posible_null(f), 2.0); }},
        {"punto",
         [](auto f) {
             const Punto2D p{1, 2};
             bin_graba_punto(&p, f);
         },
         UNO + DOS, "d" + UNO + "d" + DOS, [](auto f) { return es_punto(bin_lee_punto(f), 1, 2); }},
        {"punto2D",
         [](auto f) {
             const Punto2D p{1, 2};
             bin_graba_punto2D(&p, f);
         },
         UNO + DOS, "p" + UNO + DOS,
         [](auto f) {
             Punto2D p;
             bin_lee_punto2D(&p, f);
             return p.x == 1 && p.y == 2;
         }},
        {"punto de float",
         [](auto f) {
             bin_graba_float(1, f);
             bin_graba_float(2, f);
         },
         "\0\0\x80\x3F\0\0\0\x40"s,
         "f\0\0\x80\x3F"
         "f\0\0\0\x40"s,
         [](auto f) { return es_punto(bin_lee_punto_float(f), 1, 2); }},
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
}

} // namespace

PRUEBA(vornbin, cada_valor_tiene_sus_bytes_en_las_dos_formas_y_vuelve) {
    for (const bool etiquetas : {false, true})
        for (const caso &c : casos()) {
            datos d(etiquetas);
            const std::string bytes = d.graba([&](vnfichero *f) {
                c.graba(f);
                bin_graba_byte(0x5A, f);
            });
            const std::string final = etiquetas ? "bZ" : "Z";
            EXPECT_EQ(bytes, (etiquetas ? c.con_etiquetas : c.bytes) + final) << c.nombre;
            EXPECT_EQ(d.lee([&](vnfichero *f) { EXPECT_TRUE(c.lee(f)) << c.nombre; }),
                      static_cast<int64_t>(final.size()))
                << c.nombre;
            if (c.salta != nullptr) {
                EXPECT_EQ(d.lee(c.salta), static_cast<int64_t>(final.size())) << c.nombre;
            }
        }
}

PRUEBA(vornbin, las_operaciones_de_ida_y_vuelta_hacen_las_dos) {
    const auto ida_y_vuelta = [](auto trata, auto valor, size_t tamanyo) {
        datos d;
        auto dato = valor;
        EXPECT_EQ(d.graba([&](vnfichero *f) { trata(&dato, f, CIERTO); }).size(), tamanyo);
        dato = {};
        EXPECT_EQ(d.lee([&](vnfichero *f) { trata(&dato, f, FALSO); }), 0);
        EXPECT_EQ(dato, valor) << tamanyo;
    };
    ida_y_vuelta(bin_trata_bool, CIERTO, 1);
    ida_y_vuelta(bin_trata_byte, uint8_t{7}, 1);
    ida_y_vuelta(bin_trata_char, 'x', 1);
    ida_y_vuelta(bin_trata_uchar, uint8_t{200}, 1);
    ida_y_vuelta(bin_trata_ushort, uint16_t{60000}, 2);
    ida_y_vuelta(bin_trata_long, int32_t{-70000}, 4);
    ida_y_vuelta(bin_trata_ulong, uint32_t{0xFFFFFFFE}, 4);
    ida_y_vuelta(bin_trata_long64, int64_t{-1} << 40, 8);
    ida_y_vuelta(bin_trata_ulong64, ~uint64_t{1}, 8);
    ida_y_vuelta(bin_trata_float, 0.1f, 4);
    ida_y_vuelta(bin_trata_double, 0.1, 8);

    datos d;
    char *texto = strdup("viga"), *leido = nullptr;
    std::basic_string<vnwchar> texto_u = VNU("pilar");
    vnwchar *escrito_u = texto_u.data(), *leido_u = nullptr;
    Punto2D p{3, 4};
    d.graba([&](vnfichero *f) {
        bin_trata_cadena(&texto, f, CIERTO);
        bin_trata_cadena_ansi_ascii(&texto, f, CIERTO, 1, 1);
        bin_trata_cadena_u(&escrito_u, f, CIERTO);
        bin_trata_punto(&p, f, CIERTO);
    });
    free(texto);
    p = {};
    d.lee([&](vnfichero *f) {
        bin_trata_cadena(&leido, f, FALSO);
        EXPECT_TRUE(vn::toma(leido) == "viga");
        bin_trata_cadena_ansi_ascii(&leido, f, FALSO, 1, 1);
        EXPECT_TRUE(vn::toma(leido) == "viga");
        bin_trata_cadena_u(&leido_u, f, FALSO);
        EXPECT_TRUE(vn::toma(leido_u) == "pilar");
        bin_trata_punto(&p, f, FALSO);
    });
    EXPECT_TRUE(p.x == 3 && p.y == 4);
}

PRUEBA(vornbin, un_valor_malo_se_informa_y_se_escribe_igual) {
    const double infinito = std::numeric_limits<double>::infinity();
    const Punto2D p{infinito, 1};
    const std::string largo(65536 + 3, 'a');
    const struct {
        const char *informe;
        accion graba;
        std::string bytes;
        vnbool vale = FALSO;
    } malos[] = {
        {"valor == CIERTO || valor == FALSO", [](auto f) { bin_graba_bool(2, f); }, "\2"},
        {"dato == 'S' || dato == 'N'", [](auto f) { bin_graba_SN('s', f); }, "s"},
        {"defmath_es_numero_valido(dato) == CIERTO", [=](auto f) { bin_graba_double(infinito, f); },
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
    d.lee("\2\0ab"s, [](vnfichero *f) { EXPECT_TRUE(vn::toma(bin_lee_cadena(f)) == "ab"); });
    d.lee("\2\0\0\0a\0b"s, [](vnfichero *f) {
        EXPECT_TRUE(
            ESPERA_INFORME("lc_error_leyendo_fichero", vn::toma(bin_lee_cadena_unicode(f)) == vn::utf8_de(VNU(""))));
    });
}

PRUEBA(vornbin, los_textos_antiguos_se_convierten_hasta_la_ultima_version_ascii) {
    const uint32_t pagina = unicode_pagina_ANSI();
    unicode_establece_pagina_ANSI(1252);
    const std::string texto = "\2\0a\x82"s;
    datos d;
    EXPECT_EQ(d.lee(texto + texto + texto + "\1" + texto + "\1" + texto +
                        "\x82\x82\x82"
                        "x\x82x\x82",
                    [](vnfichero *f) {
                        EXPECT_TRUE(vn::toma(bin_lee_cadena_ASCII(f)) == "a\xE9");
                        EXPECT_TRUE(vn::toma(bin_lee_cadena_ansi_ascii(f, 5, 5)) == "a\xE9");
                        EXPECT_TRUE(vn::toma(bin_lee_cadena_ansi_ascii(f, 6, 5)) == "a\x82");
                        EXPECT_TRUE(vn::toma(bin_lee_null_ansi_ascii(f, 4, 5)) == "a\xE9");
                        EXPECT_TRUE(vn::toma(bin_lee_null_ansi_ascii(f, 6, 5)) == "a\x82");
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
    unicode_establece_pagina_ANSI(pagina);
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
