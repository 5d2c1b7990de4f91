#include "persistence/prueba_vornsave.h"
#include "foundation/cad.h"
#include "foundation/unicode.h"
#include "foundation/widestr.h"
#include <cmath>

using namespace vn;

namespace {

std::string texto(char *s) {
    std::string t = s != nullptr ? s : "(null)";
    vornstr_destruye_opcional(&s);
    return t;
}
std::string texto(vnwchar *s) {
    std::string t = s != nullptr ? utf8_de(s) : "(null)";
    widestr_destruye_opcional(&s);
    return t;
}

// A record with one field of each kind, as a host writes and reads it.
void graba_registro(vornsave *d, bool con_float) {
    vornsave_graba_bool(CIERTO, d);
    vornsave_graba_comentario("una marca", d);
    vornsave_graba_bool_con_texto(FALSO, d, "activo", "parado");
    vornsave_graba_char('c', d);
    vornsave_graba_wchar(u'\u20AC', d);
    vornsave_graba_uchar(250, d);
    vornsave_graba_short(-32768, d);
    vornsave_graba_comentario("un corto", d);
    vornsave_graba_ushort(65535, d);
    vornsave_graba_long(-2147483647 - 1, d);
    vornsave_graba_ulong(4294967295u, d);
    vornsave_graba_long64(INT64_MIN, d);
    vornsave_graba_ulong64(UINT64_MAX, d);
    vornsave_graba_double(-1.0 / 3, d);
    vornsave_graba_comentario("un doble", d);
    vornsave_graba_double_con_precision(2.74999, 0.25, d);
    if (con_float) vornsave_graba_float(1.5f, d);
    const Punto2D pto{1e-300, -7.25};
    vornsave_graba_punto(&pto, d);
    vornsave_graba_int64(-2, d);
    vornsave_graba_size64(uint64_t(1) << 40, d);
    vornsave_graba_time(5000000000, d);
    vornsave_graba_time32(-1, d);
    vornsave_graba_long(9, d); // the line is open: a text may follow
    vornsave_graba_cadena("sin   fin", d);
    vornsave_graba_cadena("", d);
    vornsave_graba_cadena_unicode(VNU("\u0394x"), d);
    vornsave_graba_cadena_UTF8(VNU("\u00f1and\u00fa"), d);
    vornsave_graba_cadena_campo("valor", "campo", d);
    vornsave_graba_cadena_opcional(nullptr, d);
    vornsave_graba_cadena_unicode_opcional(VNU("si"), d);
    vornsave_graba_cadena_como_buffer("muy largo", d);
    vornsave_graba_buffer("\0\x1\xff", 3, d);
}

void comprueba_registro(vornsave *d, bool con_float) {
    EXPECT_EQ(vornsave_lee_bool(d), CIERTO);
    vornsave_salta_comentario(d);
    EXPECT_EQ(vornsave_lee_bool_con_texto(d, "activo", "parado"), FALSO);
    EXPECT_EQ(vornsave_lee_char(d), 'c');
    EXPECT_EQ(vornsave_lee_wchar(d), u'\u20AC');
    EXPECT_EQ(vornsave_lee_uchar(d), 250);
    EXPECT_EQ(vornsave_lee_short(d), -32768);
    vornsave_salta_comentario(d);
    EXPECT_EQ(vornsave_lee_ushort(d), 65535);
    EXPECT_EQ(vornsave_lee_long(d), INT32_MIN);
    EXPECT_EQ(vornsave_lee_ulong(d), UINT32_MAX);
    EXPECT_EQ(vornsave_lee_long64(d), INT64_MIN);
    EXPECT_EQ(vornsave_lee_ulong64(d), UINT64_MAX);
    EXPECT_EQ(vornsave_lee_double(d), -1.0 / 3);
    vornsave_salta_comentario(d);
    EXPECT_EQ(vornsave_lee_double(d), 2.75);
    if (con_float) {
        EXPECT_EQ(vornsave_lee_float(d), 1.5f);
    }
    Punto2D *pto = vornsave_lee_punto(d);
    EXPECT_TRUE(pto->x == 1e-300 && pto->y == -7.25);
    vornspy_free_pp(&pto, sizeof *pto);
    EXPECT_EQ(vornsave_lee_int64(d), -2);
    EXPECT_EQ(vornsave_lee_size64(d), uint64_t(1) << 40);
    EXPECT_EQ(vornsave_lee_time(d), 5000000000);
    EXPECT_EQ(vornsave_lee_time32(d), -1);
    EXPECT_EQ(vornsave_lee_long(d), 9);
    EXPECT_EQ(texto(vornsave_lee_cadena(d)), "sin   fin");
    EXPECT_EQ(texto(vornsave_lee_cadena(d)), "");
    EXPECT_EQ(texto(vornsave_lee_cadena_unicode(d)), "\u0394x");
    EXPECT_EQ(texto(vornsave_lee_cadena_UTF8(d)), "\u00f1and\u00fa");
    EXPECT_EQ(texto(vornsave_lee_cadena_campo(d, "campo")), "valor");
    EXPECT_EQ(vornsave_lee_cadena_opcional(d), nullptr);
    EXPECT_EQ(texto(vornsave_lee_cadena_unicode_opcional(d)), "si");
    EXPECT_EQ(texto(vornsave_lee_cadena_como_buffer(d)), "muy largo");
    uint8_t *buffer = vornsave_lee_buffer(3, d);
    EXPECT_EQ(std::string(reinterpret_cast<char *>(buffer), 4), bytes("\0\x1\xff\0"));
    vornspy_free_pp(&buffer, 1);
}

} // namespace

PRUEBA(vornsave, un_registro_vuelve_igual_de_cada_destino) {
    for (const auto &destino : DESTINOS) {
        SCOPED_TRACE(destino.nombre);
        const std::string datos = grabado(destino, [&](vornsave *d) { graba_registro(d, !destino.texto); });
        leido(destino, datos, [&](vornsave *d) { comprueba_registro(d, !destino.texto); });
        // Passing over a record leaves the stream where reading it does.
        leido(destino, datos, [&](vornsave *d) {
            vornsave_salta_bool(d);
            vornsave_salta_comentario(d);
            vornsave_lee_bool_con_texto(d, "activo", "parado");
            vornsave_lee_char(d);
            vornsave_salta_enum(d);
            vornsave_salta_uchar(d);
            vornsave_salta_short(d);
            vornsave_salta_comentario(d);
            vornsave_salta_ushort(d);
            vornsave_salta_long(d);
            vornsave_salta_ulong(d);
            vornsave_salta_long64(d);
            vornsave_salta_ulong64(d);
            vornsave_salta_double(d);
            vornsave_salta_comentario(d);
            vornsave_salta_double(d);
            if (!destino.texto) vornsave_salta_float(d);
            vornsave_salta_double(d);
            vornsave_salta_double(d);
            for (int i = 0; i < 4; ++i) vornsave_salta_ulong(d);
            vornsave_salta_long64(d);
            vornsave_lee_time32(d);
            vornsave_salta_long(d);
            vornsave_salta_cadena(d);
            vornsave_salta_cadena(d);
            vornsave_salta_cadena_unicode(d);
            vornsave_salta_cadena(d);
            vornsave_salta_cadena_campo(d, "campo");
            vornsave_salta_cadena_opcional(d);
            vornsave_salta_cadena_unicode_opcional(d);
            EXPECT_EQ(texto(vornsave_lee_cadena_como_buffer(d)), "muy largo");
            vornsave_salta_buffer(3, d);
        });
    }
}

PRUEBA(vornsave, bytes_de_los_valores_en_un_fichero_binario) {
    const struct {
        const char *espera;
        std::function<void(vornsave *)> escribe;
    } filas[] = {
        {"0000000001000000", [](vornsave *d) { vornsave_graba_int64(1, d); }},
        {"0100000000000000", [](vornsave *d) { vornsave_graba_long64(1, d); }},
        {"ffffffffffffffff", [](vornsave *d) { vornsave_graba_fecha(-1, d); }},
        {"0500000000000000", [](vornsave *d) { vornsave_graba_time(5, d); }},
        {"05000000", [](vornsave *d) { vornsave_graba_time32(5, d); }},
        {"ac20", [](vornsave *d) { vornsave_graba_wchar(u'\u20AC', d); }},
        {"01", [](vornsave *d) { vornsave_graba_bool_con_texto(CIERTO, d, "si", "no"); }},
        {"01000500", [](vornsave *d) { vornsave_graba_short(1, d), vornsave_graba_short(5, d); }},
        {"010061", [](vornsave *d) { vornsave_graba_cadena_campo("a", "campo", d); }},
        {"0200c3b1", [](vornsave *d) { vornsave_graba_cadena_UTF8(VNU("\u00f1"), d); }},
        {"0100000061", [](vornsave *d) { vornsave_graba_cadena_como_buffer("a", d); }},
        {"00000000", [](vornsave *d) { vornsave_graba_cadena_como_buffer("", d); }},
        {"00", [](vornsave *d) { vornsave_graba_cadena_UTF8_opcional(nullptr, d); }},
    };
    for (const auto &fila : filas) EXPECT_EQ(hex(grabado(EN_BIN, fila.escribe)), fila.espera);
    // The old date is two longs, of which the second counts.
    leido(EN_BIN, bytes("\x9\0\0\0\xfe\xff\xff\xff"), [](vornsave *d) { EXPECT_EQ(vornsave_lee_fecha_de_64(d), -2); });
    leido(EN_BIN, bytes("\0\0\x80\x3f\0\0\0\xc0"), [](vornsave *d) {
        Punto2D *p = vornsave_lee_punto_float(d);
        EXPECT_TRUE(p->x == 1. && p->y == -2.);
        vornspy_free_pp(&p, sizeof *p);
    });
    leido(EN_BIN, bytes("\0\0\0\0\0\0\xf0\x7f\1\0\0\0\0\0\0\0"), [](vornsave *d) {
        vnbool malo = FALSO, denormal = FALSO;
        vornsave_lee_double_con_posible_error_en_binario(d, &malo, &denormal);
        EXPECT_EQ(malo, CIERTO);
        vornsave_lee_double_con_posible_error_en_binario(d, &malo, &denormal);
        EXPECT_EQ(denormal, CIERTO);
    });
}

PRUEBA(vornsave, los_comentarios_dejan_abierta_la_linea) {
    const auto escribe = [](vornsave *d) {
        vornsave_graba_long(5, d);
        vornsave_graba_comentario("cinco", d);
        vornsave_graba_double(0.5, d);
        vornsave_graba_bool(CIERTO, d);
    };
    EXPECT_EQ(grabado(EN_TXT, escribe).substr(0, 2), grabado(EN_TXT, [](vornsave *d) { vornsave_graba_long(5, d); }).substr(0, 2));
    const auto lineas = [&](const destino_de_prueba &d) {
        std::string t = grabado(d, escribe);
        std::erase(t, '\r');
        return t;
    };
    EXPECT_EQ(lineas(EN_TXT), "5\n0.5\n1\n");
    EXPECT_EQ(lineas(EN_TXT_CON), "5 ; cinco\n0.5 1\n");
    EXPECT_EQ(grabado(EN_TXT_CON, [](vornsave *d) { vornsave_graba_long(5, d); }), "5 ");
}

PRUEBA(vornsave, lo_que_falta_en_cada_destino) {
    static vnbool v1, v2;
    static char *titulo;
    const std::vector<std::function<void(vornsave *)>> miembros = {
        [](vornsave *d) { vornsave_graba_bool_con_texto(CIERTO, d, "si", "no"); },
        [](vornsave *d) { vornsave_graba_bool(CIERTO, d); },
        [](vornsave *d) { vornsave_graba_cadena("a", d); },
        [](vornsave *d) { vornsave_graba_cadena_unicode(VNU("a"), d); },
        [](vornsave *d) { vornsave_graba_cadena_campo("a", "b", d); },
        [](vornsave *d) { vornsave_graba_char('a', d); },
        [](vornsave *d) { vornsave_graba_short(1, d); },
        [](vornsave *d) { vornsave_graba_long(1, d); },
        [](vornsave *d) { vornsave_graba_long64(1, d); },
        [](vornsave *d) { vornsave_graba_float(1, d); },
        [](vornsave *d) { vornsave_graba_double(1, d); },
        [](vornsave *d) { vornsave_graba_uchar(1, d); },
        [](vornsave *d) { vornsave_graba_ushort(1, d); },
        [](vornsave *d) { vornsave_graba_ulong(1, d); },
        [](vornsave *d) { vornsave_graba_ulong64(1, d); },
        [](vornsave *d) { vornsave_graba_buffer("a", 1, d); },
        [](vornsave *d) { vornsave_graba_inicio_bloque("b", d), vornsave_graba_fin_bloque("b", d); },
        [](vornsave *d) { vornsave_graba_inicio_bloque64("b", d), vornsave_graba_fin_bloque64("b", d); },
        [](vornsave *d) { vornsave_set_posicion(d, vornsave_get_posicion(d)); },
        [](vornsave *d) { vornsave_lee_bool_con_texto(d, "si", "no"); },
        [](vornsave *d) { vornsave_lee_bool(d); },
        [](vornsave *d) { vornsave_salta_cadena(d); },
        [](vornsave *d) { vornsave_salta_cadena_unicode(d); },
        [](vornsave *d) { vornsave_salta_cadena_campo(d, "b"); },
        [](vornsave *d) { texto(vornsave_lee_cadena_ascii(d)); },
        [](vornsave *d) { vornsave_lee_char(d); },
        [](vornsave *d) { vornsave_lee_char_ansi_ascii(d, 1, 1); },
        [](vornsave *d) { vornsave_lee_short(d); },
        [](vornsave *d) { vornsave_lee_long(d); },
        [](vornsave *d) { vornsave_lee_long64(d); },
        [](vornsave *d) { vornsave_lee_double(d); },
        [](vornsave *d) { vornsave_lee_double_con_posible_error_en_binario(d, &v1, &v2); },
        [](vornsave *d) {
            arrDouble *a = vornsave_lee_arr_double_con_posible_error(d, &v1, &v2);
            if (a != nullptr) arr_DestruyeDouble(&a);
        },
        [](vornsave *d) { vornsave_lee_float(d); },
        [](vornsave *d) { vornsave_lee_uchar(d); },
        [](vornsave *d) { vornsave_lee_ushort(d); },
        [](vornsave *d) { vornsave_lee_ulong(d); },
        [](vornsave *d) { vornsave_lee_ulong64(d); },
        [](vornsave *d) { vornsave_salta_buffer(1, d); },
        [](vornsave *d) { vornsave_comprueba_marca_fichero("m", d); },
        [](vornsave *d) { vornsave_se_comprueba_cabecera_bin("m", d); },
        [](vornsave *d) { vornsave_fichero_valido(d, 1, 0, "f", &titulo); },
        [](vornsave *d) { EXPECT_EQ(vornsave_se_inicia_lectura_bloque("b", d), FALSO); },
        [](vornsave *d) { EXPECT_EQ(vornsave_se_salta_bloque64("b", d), FALSO); },
    };
    const std::vector<std::string> en_texto = {
        "(vornsave_datos->fncs_grabar->fncptr_graba_float) != NULL",
        "(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL",
        "(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL",
        "(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL",
        "(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL",
        "(vornsave->fncptr_get_posicion) != NULL",
        "(vornsave->fncptr_set_posicion) != NULL",
        "(vornsave_datos->fncs_leer->fncptr_lee_double_con_posible_error) != NULL",
        "(vornsave_datos->fncs_leer->fncptr_lee_double_y_salta_con_posible_error) != NULL",
        "(vornsave_datos->fncs_leer->fncptr_lee_float) != NULL",
        "(vornsave_datos->fncptr_se_comprueba_marca_fichero) != NULL",
        "vornsave_datos->tipo == BIN",
        "(vornsave_datos->fncptr_fichero_valido) != NULL",
        "(vornsave_datos->fncptr_se_lee_inicio_bloque) != NULL",
        "(vornsave_datos->fncptr_se_lee_inicio_bloque64) != NULL",
    };
    for (const auto &destino : DESTINOS) {
        SCOPED_TRACE(destino.nombre);
        graba_fichero(abierto::ruta(), "");
        std::vector<std::string> faltan;
        const abierto a(destino, "r+");
        for (const auto &miembro : miembros) {
            // What is read is of no matter here: only a missing entry is looked for.
            miembro(a);
            for (const auto &informe : toma_informes())
                if (informe.expresion != "lc_error_leyendo_fichero") faltan.push_back(informe.expresion);
        }
        EXPECT_EQ(faltan, destino.texto ? en_texto : std::vector<std::string>{});
        EXPECT_EQ(vornsave_es_posible_marcar_bloques(a), destino.texto ? FALSO : CIERTO);
    }
}

PRUEBA(vornsave, los_destinos_sin_modulo_se_informan) {
    static constexpr char INFORME[] = "vornsave: el destino no forma parte de la biblioteca";
    const abierto a(EN_TXT, "w");
    int socket = 0;
    fichmem vacio{nullptr, 0};
    EXPECT_EQ(ESPERA_INFORME(INFORME, vornsave_registra_texto_editable(a.fichero())), nullptr);
    EXPECT_EQ(ESPERA_INFORME(INFORME, vornsave_registra_idx(reinterpret_cast<idxdatos *>(&socket))), nullptr);
    EXPECT_EQ(ESPERA_INFORME(INFORME, vornsave_registra_soc(reinterpret_cast<insocket *>(&socket))), nullptr);
    EXPECT_EQ(ESPERA_INFORME(INFORME, vornsave_fichmem_para_escritura()), nullptr);
    EXPECT_EQ(ESPERA_INFORME(INFORME, vornsave_fichmem_para_lectura(&vacio)), nullptr);
    vornsave *d = a;
    EXPECT_EQ(ESPERA_INFORME("(*vornsave_datos)->tipo == FICHMEM", vornsave_cierra_fichmem_para_escritura(&d)), nullptr);
    EXPECT_EQ(ESPERA_INFORME("con_comentarios==CIERTO || con_comentarios==FALSO", vornsave_registra_txt(a.fichero(), 2)),
              nullptr);
}

PRUEBA(vornsave, vida_de_un_objeto) {
    graba_fichero(abierto::ruta(), "");
    vnfichero *f = lc_fopen_u(ancho(abierto::ruta()).c_str(), VNU("r+b"));
    vornsave *d = vornsave_registra_bin_con_version(f, "2027.a", nullptr);
    EXPECT_STREQ(vornsave_dame_version_programa(d), "2027.a");
    EXPECT_EQ(vornsave_dame_parche_programa(d), nullptr);
    vornsave_libera(&d);
    EXPECT_EQ(d, nullptr);
    // Open marks at the end of its life, by reading status.
    const struct {
        uint32_t estado;
        int informes;
        uint16_t clase;
        const char *texto;
    } filas[] = {{0, 1, 1, "arr_NumElemsPunteroST((*vornsave_datos)->pila_marcas, i_marca_t) == 0"},
                 {1, 0, 0, ""},
                 {2, 0, 0, ""},
                 {3, 1, 0, ""}};
    for (const auto &fila : filas) {
        d = vornsave_registra_bin(f);
        vornsave_graba_inicio_bloque("B", d);
        if (fila.estado != 0) {
            vornsave_set_tipo_status_lectura(d, fila.estado, VNU("antes"));
            vornsave_set_tipo_status_lectura(d, fila.estado, VNU("parcial"));
        }
        const vnwchar *texto_estado = VNU("-");
        EXPECT_EQ(vornsave_get_tipo_status_lectura(d, &texto_estado), fila.estado);
        EXPECT_EQ(utf8_de(texto_estado), fila.estado != 0 ? "parcial" : "");
        vornsave_libera(&d);
        const auto informes = toma_informes();
        ASSERT_EQ(static_cast<int>(informes.size()), fila.informes) << fila.estado;
        if (fila.informes > 0) {
            EXPECT_EQ(informes[0].expresion, fila.texto);
            EXPECT_EQ(informes[0].clase, fila.clase);
        }
    }
    // Inside a trap the object goes all the same.
    d = vornsave_registra_bin(f);
    vornsave_graba_inicio_seccion("S", d);
    EXPECT_FALSE(atrapado([&] { vornsave_libera(&d); }));
    EXPECT_EQ(d, nullptr);
    lc_fclose(f);
}

PRUEBA(vornsave, los_textos_viejos_se_convierten_segun_la_version) {
    // 0xA4 is the n with tilde of the OEM page, 0xF1 that of the ANSI one.
    const std::string datos = bytes("\1\0\xa4\1\0\xa4\xa4\xa4\1\0\xa4\1\0\xa4\1\0\xa4\1\0\0\0\1\0\xa4");
    leido(EN_BIN, datos, [](vornsave *d) {
        vornsave_set_lectura_ANSI_ASCII_segun_version(d, 8, 7);
        EXPECT_EQ(texto(vornsave_lee_cadena(d)), "\xa4");
        vornsave_set_lectura_ANSI_ASCII_segun_version(d, 7, 7);
        EXPECT_EQ(texto(vornsave_lee_cadena(d)), "\xf1");
        EXPECT_EQ(vornsave_lee_char(d), '\xf1');
        EXPECT_EQ(vornsave_lee_char_ansi_ascii(d, 8, 7), '\xa4');
        EXPECT_EQ(texto(vornsave_lee_cadena_ANSI_ASCII(d, 8, 7)), "\xa4"); // whatever the object says
        EXPECT_EQ(texto(vornsave_lee_cadena_ANSI_a_unicode(d)), "\u00f1");
        EXPECT_EQ(texto(ESPERA_INFORME("vornsave_datos->ANSI == CIERTO", vornsave_lee_cadena_campo(d, "c"))), "\xa4");
        arrCADENA *a = vornsave_lee_arr_cadenas(d);
        EXPECT_STREQ(arr_GetCADENA(a, 0), "\xf1");
        arr_DestruyeCADENA(&a);
    });
}

namespace {

struct barra {
    std::string pasos;
    static void inicia(barra *b, uint32_t final) { b->pasos += "i" + std::to_string(final) + " "; }
    static void valor(barra *b, uint32_t posicion) { b->pasos += std::to_string(posicion) + " "; }
    static void fin(barra *b) { b->pasos += "f"; }
    static void refresca(barra *b) { b->pasos += "r "; }
};

} // namespace

PRUEBA(vornsave, el_progreso_sigue_la_posicion) {
    barra b;
    const std::string datos = grabado(EN_BIN, [&](vornsave *d) {
        vornsave_inicia_progreso_grabacion(d, &b, 6, barra, barra::inicia, barra::valor, barra::fin, barra::refresca);
        vornsave_graba_bool(CIERTO, d); // these do not move it
        vornsave_graba_char('c', d);
        vornsave_graba_ushort(1, d);
        vornsave_graba_long(1, d);
        vornsave_graba_ulong(1, d); // past the estimate
        arrLong *a = arr_CreaLong(3);
        vornsave_graba_arr_long(a, d); // once for the whole array
        arr_DestruyeLong(&a);
        ESPERA_INFORME("vornsave_no_const->con_progreso == FALSO",
                       vornsave_inicia_progreso_lectura(d, &b, barra, barra::inicia, barra::valor, barra::fin));
        vornsave_fin_progreso(d);
        vornsave_graba_long(1, d);
        ESPERA_INFORME("vornsave->con_progreso == CIERTO", vornsave_fin_progreso(d));
    });
    EXPECT_EQ(b.pasos, "i6 0 2 4 r r f");
    b.pasos.clear();
    leido(EN_BIN, datos, [&](vornsave *d) {
        vornsave_inicia_progreso_lectura(d, &b, barra, barra::inicia, barra::valor, barra::fin);
        vornsave_lee_bool(d);
        vornsave_lee_char(d);
        vornsave_salta_enum(d);
        vornsave_lee_long(d);
        vornsave_lee_ulong(d);
        arrLong *a = vornsave_lee_arr_long(d);
        arr_DestruyeLong(&a);
        vornsave_lee_float(d); // none when reading one
        vornsave_fin_progreso(d);
    });
    EXPECT_EQ(b.pasos, "i32 0 2 4 8 12 f");
    const abierto a(EN_TXT, "w");
    ESPERA_INFORME("(vornsave->fncptr_get_tamanyo) != NULL",
                   vornsave_inicia_progreso_lectura(a, &b, barra, barra::inicia, barra::valor, barra::fin));
}
