#include "persistence/prueba_vornsave.h"

using namespace vn;

PRUEBA(vornsave_bloques, bytes_de_un_bloque_y_de_una_seccion) {
    const auto nueve = [](vornsave *d) { return [=] { vornsave_graba_uchar(9, d); }; };
    // clang-format off
    const std::pair<std::string, std::function<void(vornsave *)>> filas[] = {
        {std::string(100, 'x') + bytes("ABC\0\x6d\0\0\0\011ABC\0"),
         [&](auto d) { vornsave_graba_buffer(std::string(100, 'x').data(), 100, d); BLOQUE.graba("ABC", d, nueve(d)); }},
        {bytes("A\0\0\0\0\0\xb\0\0\0\011A\0"), [&](auto d) { BLOQUE64.graba("A", d, nueve(d)); }},
        {bytes("\2\0AB\x9\0\0\0\x9\2\0AB"), [&](auto d) { SECCION.graba("AB", d, nueve(d)); }},
    };
    // clang-format on
    for (const auto &[espera, escribe] : filas) EXPECT_EQ(grabado(EN_BIN, escribe), espera);
}

PRUEBA(vornsave_bloques, un_bloque_que_no_esta_no_se_abre_ni_se_salta) {
    leido(EN_BIN, grabado(EN_BIN, HACE(BLOQUE.graba("EXTRA", d, [=] { vornsave_graba_long(7, d); }))), [](vornsave *d) {
        EXPECT_EQ(vornsave_se_inicia_lectura_bloque("OTRO", d), FALSO);
        EXPECT_EQ(vornsave_se_salta_bloque("OTRO", d), FALSO);
        EXPECT_EQ(vornsave_get_posicion(d), 0);
        // A name that goes on where this one ends.
        EXPECT_EQ(ESPERA_INFORME("fin_cadena == '\\0'", vornsave_se_inicia_lectura_bloque("EXT", d)), FALSO);
        EXPECT_EQ(vornsave_get_posicion(d), 0);
        EXPECT_EQ(vornsave_comprueba_marca_fichero("EXT", d), CIERTO);
        EXPECT_EQ(vornsave_se_comprueba_cabecera_bin("RA", d), CIERTO);
        EXPECT_EQ(vornsave_comprueba_marca_fichero("X", d), FALSO);
        EXPECT_EQ(vornsave_get_posicion(d), 5);
        vornsave_set_posicion(d, 0);
        EXPECT_EQ(vornsave_se_salta_bloque("EXTRA", d), CIERTO);
        EXPECT_EQ(vornsave_se_inicia_lectura_bloque("EXTRA", d), FALSO); // at the end of the stream
    });
}

PRUEBA(vornsave_bloques, los_cierres_equivocados_se_informan) {
    const abierto a(EN_BIN, "w+");
    ESPERA_INFORME("num_marcas > 0", vornsave_graba_fin_bloque("B", a));
    // Another name: reported, and closed all the same.
    vornsave_graba_inicio_bloque("B", a);
    ESPERA_INFORME("cad_cadenas_iguales(marca->id_marca, id_marca) == CIERTO", vornsave_graba_fin_bloque("C", a));
    // The other width.
    vornsave_graba_inicio_bloque("B", a);
    ESPERA_INFORME("posicion_inicial_marca64_opc == NULL", vornsave_graba_fin_bloque64("B", a));
    vornsave_graba_inicio_bloque64("B", a);
    ESPERA_INFORME("posicion_inicial_marca_opc == NULL", vornsave_graba_fin_bloque("B", a));
    // A block being written, closed as a section that was read; that section, closed as a block.
    vornsave_set_posicion(a, 0);
    vornsave_graba_inicio_seccion("S", a);
    vornsave_graba_fin_seccion("S", a);
    vornsave_set_posicion(a, 0);
    EXPECT_EQ(toma(vornsave_lee_seccion(a)), "S");
    ESPERA_INFORME("cad_cadenas_iguales(marca->id_marca, id_seccion) == CIERTO", vornsave_ir_final_seccion("T", a));
    vornsave_lee_final_seccion("S", a);
    const int64_t tamanyo = lc_tamanyo_fichero_i64(a.fichero());
    for (const auto cierra : {vornsave_graba_fin_bloque, vornsave_graba_fin_seccion}) {
        vornsave_set_posicion(a, 0);
        EXPECT_EQ(toma(vornsave_lee_seccion(a)), "S");
        cierra("S", a);
        espera_informes({"marca->posicion_inicial != LONG_MAX", "marca->posicion_final == LONG_MAX"}, __FILE__,
                        __LINE__);
        // It has no room for an end: nothing is written, there or 2 GiB further on.
        EXPECT_EQ(vornsave_get_posicion(a), 7);
        EXPECT_EQ(lc_tamanyo_fichero_i64(a.fichero()), tamanyo);
    }
    vornsave_graba_inicio_seccion("S", a);
    vornsave_set_posicion(a, 0);
    vornsave_lee_final_seccion("S", a);
    espera_informes({"marca->posicion_inicial == LONG_MAX", "marca->posicion_final != LONG_MAX"}, __FILE__, __LINE__);
    vornsave_set_posicion(a, 20);
    vornsave_graba_inicio_bloque64("S", a);
    vornsave_set_posicion(a, 0);
    vornsave_lee_final_seccion("S", a);
    espera_informes({"marca->posicion_inicial64 == _I64_MAX", "marca->posicion_final64 != _I64_MAX"}, __FILE__,
                    __LINE__);
    // What is there is not the end mark.
    ESPERA_INFORME("num_marcas > 0", vornsave_ir_final_seccion("S", a));
    vornsave_set_posicion(a, 0);
    EXPECT_EQ(toma(vornsave_lee_seccion(a)), "S");
    vornsave_set_posicion(a, 3);
    vornsave_graba_cadena("Z", a);
    vornsave_set_posicion(a, 3);
    ESPERA_INFORME("cad_cadenas_iguales(id_seccion_final, id_seccion) == CIERTO", vornsave_lee_final_seccion("S", a));
}

PRUEBA(vornsave_bloques, los_finales_danyados_no_hacen_dar_vueltas) {
    const auto no_se_lee =
        HACE(EXPECT_EQ(toma(ESPERA_INFORME("lc_error_leyendo_fichero", vornsave_lee_seccion(d))), ""));
    // Ends before their own body, below zero, beyond the file.
    for (const char *fin : {"\0\0\0\0", "\xf0\xff\xff\xff", "\xff\xff\0\0", "\xff\xff\xff\x7f"}) {
        const std::string final(fin, 4);
        leido(EN_BIN, bytes("B\0") + final + bytes("B\0xyz"), [](vornsave *d) {
            int vueltas = 0;
            while (vornsave_se_salta_bloque("B", d) == CIERTO) ASSERT_LT(++vueltas, 5);
            const auto informes = toma_informes();
            ASSERT_FALSE(informes.empty());
            EXPECT_EQ(informes[0].expresion, "se_lee_fin_bloque == CIERTO");
        });
        leido(EN_BIN, bytes("\1\0S") + final + bytes("\1\0S\1\0S"), no_se_lee);
    }
    // A section that ends after the one that holds it.
    std::string datos = grabado(EN_BIN, [](vornsave *d) {
        SECCION.graba("DOS", d, [=] { SECCION.graba("dentro", d, [=] { vornsave_graba_double(2.5, d); }); });
        vornsave_graba_cadena("fin", d);
    });
    datos[datos.find("dentro") + 6] = static_cast<char>(datos.size() - 1);
    leido(EN_BIN, datos, [&](vornsave *d) {
        EXPECT_EQ(toma(vornsave_lee_seccion(d)), "DOS");
        no_se_lee(d);
        vornsave_set_tipo_status_lectura(d, 1, nullptr);
    });
    // The end mark is not there; the end of the file.
    leido(EN_BIN, bytes("B\0\6\0\0\0C\0"),
          HACE(EXPECT_EQ(vornsave_se_inicia_lectura_bloque("B", d), CIERTO);
               ESPERA_INFORME("se_lee_final_bloque == CIERTO", vornsave_lee_final_bloque("B", d))));
    // A block that is being read is no section: its end is not gone to as if it were one.
    leido(EN_BIN, bytes("B\0\6\0\0\0B\0"), [](vornsave *d) {
        EXPECT_EQ(vornsave_se_inicia_lectura_bloque("B", d), CIERTO);
        ESPERA_INFORME("lc_error_leyendo_fichero", vornsave_ir_final_seccion("B", d));
        EXPECT_EQ(vornsave_get_posicion(d), 6);
        vornsave_lee_final_bloque("B", d);
    });
    // A place where the stream cannot go.
    leido(EN_BIN, "abc", [](vornsave *d) {
        ESPERA_INFORME("lc_error_leyendo_fichero", vornsave_set_posicion(d, -1));
        EXPECT_EQ(vornsave_get_posicion(d), 0);
    });
    leido(EN_BIN, "", no_se_lee);
}

PRUEBA(vornsave_bloques, tras_lo_leido_a_medias_se_sigue_en_su_final) {
    const std::string datos = grabado(EN_BIN, [](vornsave *d) {
        const auto tres = [=] { vornsave_graba_long(0, d), vornsave_graba_long(1, d), vornsave_graba_long(2, d); };
        for (const char *id : {"A", "B"}) SECCION.graba(id, d, [&] { BLOQUE.graba("dentro", d, tres); });
        vornsave_graba_long(77, d);
    });
    for (const size_t leidos : {0u, 1u, 3u, 5u}) // in the body, whole, past it
        leido(EN_BIN, datos, [&](vornsave *d) {
            SCOPED_TRACE(leidos);
            EXPECT_EQ(toma(vornsave_lee_seccion(d)), "A");
            EXPECT_EQ(vornsave_se_inicia_lectura_bloque("dentro", d), CIERTO);
            for (size_t i = 0; i < leidos; ++i) vornsave_lee_long(d);
            vornsave_lee_final_bloque("dentro", d);
            vornsave_lee_final_seccion("A", d);
            // A block's end that lies behind is left there: its section's then is not where it should be either.
            EXPECT_EQ(toma_informes().size(), leidos < 3 ? 1u : leidos > 3 ? 2u : 0u);
            EXPECT_EQ(toma(vornsave_lee_seccion(d)), "B");
            vornsave_lee_final_seccion("B", d);
            ESPERA_INFORME("cad_cadenas_iguales(id_seccion_final, id_seccion) == CIERTO", static_cast<void>(0));
            EXPECT_EQ(vornsave_lee_long(d), 77);
        });
    // Without a name a block would be everywhere; an end beyond what holds it is none.
    leido(EN_BIN, datos, [](vornsave *d) {
        ESPERA_INFORME("*id != '\\0'", vornsave_graba_inicio_bloque("", d));
        EXPECT_EQ(ESPERA_INFORME("*id != '\\0'", vornsave_se_salta_bloque64("", d)), FALSO);
    });
    std::string fuera = datos;
    fuera[fuera.find("dentro") + 7] = static_cast<char>(datos.size() - 4);
    leido(EN_BIN, fuera, [](vornsave *d) {
        EXPECT_EQ(toma(vornsave_lee_seccion(d)), "A");
        ESPERA_INFORME("se_lee_fin_bloque == CIERTO", vornsave_se_salta_bloque("dentro", d));
        ESPERA_INFORME("cad_cadenas_iguales(id_seccion_final, id_seccion) == CIERTO",
                       vornsave_lee_final_seccion("A", d));
        EXPECT_EQ(toma(vornsave_lee_seccion(d)), "B");
        vornsave_ir_final_seccion("B", d);
        vornsave_lee_final_seccion("B", d);
    });
}

PRUEBA(vornsave_bloques, posiciones_de_mas_de_31_bits) {
    const abierto a(EN_BIN, "w+");
    const int64_t lejos = (int64_t(1) << 32) + 5;
    ASSERT_EQ(vornio_fseek_i64(a.fichero(), lejos, VN_DESDE_EL_PRINCIPIO), CIERTO);
    BLOQUE64.graba("L", a, [&] { vornsave_graba_long(3, a); });
    vornio_fseek_i64(a.fichero(), lejos, VN_DESDE_EL_PRINCIPIO);
    EXPECT_EQ(vornsave_se_salta_bloque64("L", a), CIERTO);
    EXPECT_EQ(vornio_ftell_i64(a.fichero()), lejos + 16);
    ESPERA_INFORME("posicion <= LONG_MAX", vornsave_get_posicion(a));
    BLOQUE.graba("C", a, [] {});
    espera_informes({"posicion <= LONG_MAX", "posicion <= LONG_MAX", "posicion <= LONG_MAX"}, __FILE__, __LINE__);
    EXPECT_EQ(vornio_ftell_i64(a.fichero()), lejos + 24);
}
