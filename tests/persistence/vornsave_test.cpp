#include "foundation/ficheros/vornfile.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "persistence/prueba_vornsave.h"
#include <cmath>

using namespace vn;

// What is more than handing a value on; the values themselves are the binary writer's and reader's.
PRUEBA(vornsave, bytes_de_los_valores_en_un_fichero_binario) {
    const std::pair<const char *, void (*)(vornsave *)> filas[] = {
        {"0000000001000000", HACE(vornsave_graba_int64(1, d))},
        {"01", HACE(vornsave_graba_bool_con_texto(CIERTO, d, "si", "no"))},
        {"010061", HACE(vornsave_graba_cadena_campo("a", "campo", d))},
        {"0100000061", HACE(vornsave_graba_cadena_como_buffer("a", d))},
        {"00000000", HACE(vornsave_graba_cadena_como_buffer("", d))},
    };
    for (const auto &[espera, escribe] : filas) EXPECT_EQ(hex(grabado(EN_BIN, escribe)), espera);
    // The old date is two longs, of which the second counts.
    leido(EN_BIN, bytes("\x9\0\0\0\xfe\xff\xff\xff"), HACE(EXPECT_EQ(vornsave_lee_fecha_de_64(d), -2)));
    leido(EN_BIN, bytes("\0\0\x80\x3f\0\0\0\xc0"), [](vornsave *d) {
        const propio<Punto2D> p(vornsave_lee_punto_float(d));
        EXPECT_TRUE(p->x == 1. && p->y == -2.);
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
    const auto lineas = [](const destino_de_prueba &destino) {
        std::string t = grabado(destino, HACE(vornsave_graba_long(5, d); vornsave_graba_comentario("cinco", d);
                                              vornsave_graba_double(0.5, d); vornsave_graba_bool(CIERTO, d)));
        std::erase(t, '\r');
        return t;
    };
    EXPECT_EQ(lineas(EN_TXT), "5\n0.5\n1\n");
    EXPECT_EQ(lineas(EN_TXT_CON), "5 ; cinco\n0.5 1\n");
    EXPECT_EQ(grabado(EN_TXT_CON, HACE(vornsave_graba_long(5, d))), "5 ");
}

// A text destination has no form for these; what it has one for is in the record above and among the collections.
PRUEBA(vornsave, lo_que_falta_en_un_destino_de_texto) {
    static vnbool v1, v2;
    static char *titulo;
    // clang-format off
    const std::pair<const char *, void (*)(vornsave *)> filas[] = {
        {"(vornsave_datos->fncs_grabar->fncptr_graba_float) != NULL", HACE(vornsave_graba_float(1, d))},
        {"(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL", HACE(vornsave_graba_inicio_bloque("b", d))},
        {"(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL", HACE(vornsave_graba_fin_bloque("b", d))},
        {"(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL", HACE(vornsave_graba_inicio_bloque64("b", d))},
        {"(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL", HACE(vornsave_graba_fin_bloque64("b", d))},
        {"(vornsave->fncptr_get_posicion) != NULL", HACE(vornsave_get_posicion(d))},
        {"(vornsave->fncptr_set_posicion) != NULL", HACE(vornsave_set_posicion(d, 0))},
        {"(vornsave_datos->fncs_leer->fncptr_lee_double_con_posible_error) != NULL", HACE(vornsave_lee_double_con_posible_error_en_binario(d, &v1, &v2))},
        {"(vornsave_datos->fncs_leer->fncptr_lee_double_y_salta_con_posible_error) != NULL", HACE(EXPECT_EQ(vornsave_lee_arr_double_con_posible_error(d, &v1, &v2), nullptr))},
        {"(vornsave_datos->fncs_leer->fncptr_lee_float) != NULL", HACE(vornsave_lee_float(d))},
        {"(vornsave_datos->fncptr_se_comprueba_marca_fichero) != NULL", HACE(vornsave_comprueba_marca_fichero("m", d))},
        {"vornsave_datos->tipo == BIN", HACE(vornsave_se_comprueba_cabecera_bin("m", d))},
        {"(vornsave_datos->fncptr_fichero_valido) != NULL", HACE(vornsave_fichero_valido(d, 1, 0, "f", &titulo))},
        {"(vornsave_datos->fncptr_se_lee_inicio_bloque) != NULL", HACE(EXPECT_EQ(vornsave_se_inicia_lectura_bloque("b", d), FALSO))},
        {"(vornsave_datos->fncptr_se_lee_inicio_bloque64) != NULL", HACE(EXPECT_EQ(vornsave_se_salta_bloque64("b", d), FALSO))},
    };
    // clang-format on
    for (const auto &destino : {EN_TXT, EN_TXT_CON})
        for (const auto &[falta, miembro] : filas)
            leido(destino, "1\n1\n",
                  [&, que = falta, hace = miembro](vornsave *d) { con_informe(que, [&] { hace(d); }); });
    leido(EN_TXT, "", HACE(EXPECT_EQ(vornsave_es_posible_marcar_bloques(d), FALSO)));
    leido(EN_BIN, "",
          HACE(EXPECT_EQ(vornsave_es_posible_marcar_bloques(d), CIERTO);
               EXPECT_EQ(vornsave_fichero_valido(d, 1, 0, "f", &titulo), FALSO)));
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
    EXPECT_EQ(ESPERA_INFORME("(*vornsave_datos)->tipo == FICHMEM", vornsave_cierra_fichmem_para_escritura(&d)),
              nullptr);
    EXPECT_EQ(
        ESPERA_INFORME("con_comentarios==CIERTO || con_comentarios==FALSO", vornsave_registra_txt(a.fichero(), 2)),
        nullptr);
}

// What a destination cannot hold, or is no value, is reported; the file that was there stays.
PRUEBA(vornsave, un_guardado_sin_sentido_deja_el_fichero_de_antes) {
    static const std::string largo(65536, 'a');
    static const std::basic_string<vnwchar> enyes(40000, u'\u00f1');
    // clang-format off
    const struct {
        const destino_de_prueba &destino;
        const char *informe;
        void (*graba)(vornsave *);
    } filas[] = {
        {EN_BIN, "(valor) != NULL", HACE(vornsave_graba_cadena(nullptr, d))},
        {EN_TXT, "(valor) != NULL", HACE(vornsave_graba_cadena_unicode(nullptr, d))},
        {EN_BIN, "(texto) != NULL", HACE(const dueno<arr_DestruyeCADENA> a(arr_CreaCADENA(1)); vornsave_graba_arr_cadenas(a.get(), d))},
        {EN_BIN, "(array) != NULL", HACE(vornsave_graba_arr_double(nullptr, d))},
        {EN_BIN, "valor == CIERTO || valor == FALSO", HACE(vornsave_graba_bool(2, d))},
        {EN_TXT, "v == CIERTO || v == FALSO", HACE(vornsave_graba_bool(2, d))},
        {EN_TXT, "v == CIERTO || v == FALSO", HACE(vornsave_graba_bool_con_texto(2, d, "si", "no"))},
        {EN_BIN, "l <= USHRT_MAX", HACE(vornsave_graba_cadena(largo.c_str(), d))},
        {EN_BIN, "l <= USHRT_MAX", HACE(vornsave_graba_cadena_UTF8(enyes.c_str(), d))},
        {EN_TXT, "(vornsave_datos->fncs_grabar->fncptr_graba_float) != NULL", HACE(vornsave_graba_float(1, d))},
        {EN_TXT, "(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL", HACE(vornsave_graba_inicio_bloque("B", d))},
        {EN_BIN, "arr_NumElemsPunteroST((*vornsave_datos)->pila_marcas, i_marca_t) == 0", HACE(vornsave_graba_inicio_seccion("abierta", d))},
        {EN_BIN, "posicion <= LONG_MAX",
         HACE(vornsave_graba_inicio_bloque64("todo", d); vornsave_graba_inicio_seccion("larga", d);
              vornio_fseek_i64(static_cast<vnfichero *>(d->donde), int64_t(1) << 31, VN_DESDE_EL_PRINCIPIO);
              vornsave_graba_fin_seccion("larga", d); vornsave_graba_fin_bloque64("todo", d))},
        {EN_BIN, "cad_cadenas_iguales(marca->id_marca, id_marca) == CIERTO",
         HACE(vornsave_graba_inicio_seccion("A", d); vornsave_graba_inicio_seccion("B", d);
              vornsave_graba_fin_seccion("A", d); vornsave_graba_fin_seccion("B", d))},
    };
    // clang-format on
    const std::string nombre = Prueba::directorio() + "/guardado";
    for (size_t k = 0; k < 2 * std::size(filas); ++k) {
        const auto &fila = filas[k / 2];
        const bool en_trampa = k % 2 == 1; // which keeps the reports to itself
        SCOPED_TRACE(fila.informe);
        graba_fichero(nombre, "antes");
        vnfichero *f = vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(ancho(nombre).c_str());
        vornsave *d = fila.destino.texto ? vornsave_registra_txt(f, FALSO) : vornsave_registra_bin(f);
        if (en_trampa) atrapado([&] { fila.graba(d); });
        else fila.graba(d);
        vornsave_libera(&d);
        EXPECT_EQ(vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f, ancho(nombre).c_str()), FALSO);
        const auto informes = toma_informes();
        ASSERT_FALSE(informes.empty());
        EXPECT_TRUE(en_trampa || informes[0].expresion == fila.informe) << informes[0].expresion;
        EXPECT_EQ(informes.back().expresion, "lc_error_escribiendo_fichero");
        EXPECT_EQ(lee_fichero(nombre), "antes");
    }
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
    const char *const informes[] = {"arr_NumElemsPunteroST((*vornsave_datos)->pila_marcas, i_marca_t) == 0/1", "", "",
                                    "/0"};
    for (uint32_t estado = 0; estado < 4; ++estado) {
        d = vornsave_registra_bin(f);
        vornsave_graba_inicio_bloque("B", d);
        if (estado != 0)
            for (const vnwchar *t : {VNU("antes"), VNU("parcial")}) vornsave_set_tipo_status_lectura(d, estado, t);
        const vnwchar *texto_estado = VNU("-");
        EXPECT_EQ(vornsave_get_tipo_status_lectura(d, &texto_estado), estado);
        EXPECT_EQ(utf8_de(texto_estado), estado != 0 ? "parcial" : "");
        vornsave_libera(&d);
        std::string dicho;
        for (const auto &i : toma_informes()) dicho += i.expresion + "/" + std::to_string(i.clase);
        EXPECT_EQ(dicho, informes[estado]) << estado;
    }
    // Inside a trap the object goes all the same.
    d = vornsave_registra_bin(f);
    vornsave_graba_inicio_seccion("S", d);
    EXPECT_FALSE(atrapado([&] { vornsave_libera(&d); }));
    EXPECT_EQ(d, nullptr);
    EXPECT_EQ(lc_fclose_seguro(f), FALSO); // sections that have no end
}

PRUEBA(vornsave, los_textos_viejos_se_convierten_segun_la_version) {
    // 0xA4 is the n with tilde of the OEM page, 0xF1 that of the ANSI one.
    const std::string datos = bytes("\1\0\xa4\1\0\xa4\xa4\xa4\1\0\xa4\1\0\xa4\1\0\xa4\1\0\0\0\1\0\xa4\0\0\0\0");
    leido(EN_BIN, datos, [](vornsave *d) {
        vornsave_set_lectura_ANSI_ASCII_segun_version(d, 8, 7);
        EXPECT_EQ(toma(vornsave_lee_cadena(d)), "\xa4");
        vornsave_set_lectura_ANSI_ASCII_segun_version(d, 7, 7);
        EXPECT_EQ(toma(vornsave_lee_cadena(d)), "\xf1");
        EXPECT_EQ(vornsave_lee_char(d), '\xf1');
        EXPECT_EQ(vornsave_lee_char_ansi_ascii(d, 8, 7), '\xa4');
        EXPECT_EQ(toma(vornsave_lee_cadena_ANSI_ASCII(d, 8, 7)), "\xa4"); // whatever the object says
        EXPECT_EQ(toma(vornsave_lee_cadena_ANSI_a_unicode(d)), "\u00f1");
        EXPECT_EQ(toma(ESPERA_INFORME("vornsave_datos->ANSI == CIERTO", vornsave_lee_cadena_campo(d, "c"))), "\xa4");
        const dueno<arr_DestruyeCADENA> a(vornsave_lee_arr_cadenas(d));
        EXPECT_STREQ(arr_GetCADENA(a.get(), 0), "\xf1");
        ESPERA_INFORME("vornsave_datos->ANSI == CIERTO",
                       dueno<arr_DestruyeCADENA>(vornsave_lee_arr_cadenas_con_valores_iguales(d)));
    });
}

namespace {

struct barra {
    std::string pasos;
    static void inicia(barra *b, uint32_t final) { b->pasos += "i" + std::to_string(final) + " "; }
    static void valor(barra *b, uint32_t posicion) { b->pasos += std::to_string(posicion) + " "; }
    static void fin(barra *b) { b->pasos += "f"; }
    static void refresca(barra *b) { b->pasos += "r "; }
    void al_leer(vornsave *d) { vornsave_inicia_progreso_lectura(d, this, barra, inicia, valor, fin); }
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
        vornsave_graba_ulong(1, d);                                                 // past the estimate
        vornsave_graba_arr_long(dueno<arr_DestruyeLong>(arr_CreaLong(3)).get(), d); // once for the whole array
        vornsave_graba_arr_puntos2D(dueno<arr_DestruyePunto2D>(arr_CreaPunto2D(0)).get(), d); // nor do these
        ESPERA_INFORME("vornsave_no_const->con_progreso == FALSO", b.al_leer(d));
        vornsave_fin_progreso(d);
        vornsave_graba_long(1, d);
        ESPERA_INFORME("vornsave->con_progreso == CIERTO", vornsave_fin_progreso(d));
    });
    EXPECT_EQ(b.pasos, "i6 0 2 4 r r f");
    b.pasos.clear();
    leido(EN_BIN, datos, [&](vornsave *d) {
        b.al_leer(d);
        vornsave_lee_bool(d);
        vornsave_lee_char(d);
        vornsave_salta_enum(d);
        vornsave_lee_long(d);
        vornsave_lee_ulong(d);
        const dueno<arr_DestruyeLong> a(vornsave_lee_arr_long(d));
        vornsave_salta_arr_puntos2D(d);
        vornsave_lee_float(d); // none when reading one
        vornsave_fin_progreso(d);
    });
    EXPECT_EQ(b.pasos, "i36 0 2 4 8 12 f");
    ESPERA_INFORME("(vornsave->fncptr_get_tamanyo) != NULL", b.al_leer(abierto(EN_TXT, "w")));
}
