#define VN_MODULO "widestr_test"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "propiedades.h"

using namespace vn;

namespace {

vnwchar *nueva(const char *utf8) { return widestr_copia(ancho(utf8).c_str()); }

// What an operation makes of a text in place, or through its owner's pointer.
template <class F> std::string tras(const char *utf8, F f) {
    vnwchar *c = nueva(utf8);
    if constexpr (std::is_invocable_v<F, vnwchar *>) f(c);
    else f(&c);
    return toma(c);
}

} // namespace

PRUEBA(widestr, crecen_y_se_copian) {
    vnwchar *s = widestr_creacadena(2);
    widestr_concatena(&s, VNU("bc"));
    widestr_concatena_caracter(&s, 0xF1);
    widestr_inserta_al_principio(&s, VNU("a"));
    widestr_cad_concatena(&s, s + 2);
    EXPECT_EQ(utf8_de(s), "abcñcñ");
    EXPECT_EQ(widestr_longitud(s), 6u);
    vnwchar *t = widestr_copia_opcional(s);
    EXPECT_EQ(widestr_cadenas_iguales(s, t), CIERTO);
    EXPECT_EQ(widestr_copia_si_no_null(nullptr), nullptr);
    widestr_fun_destruye(&t);
    widestr_destruye(&s);
    EXPECT_EQ(s, nullptr);
    vnwchar ajena[] = VNU("ab"), *p = ajena; // not of the heap: it stays
    ESPERA_INFORME("vornspy_es_memoria_reservada_valida(p) == CIERTO", widestr_concatena(&p, VNU("c")));
    EXPECT_EQ(utf8_de(p), "ab");
    EXPECT_EQ(toma(widestr_creacadena_con_caracter(3, 0x20AC)), "€€€");
    EXPECT_EQ(toma(widestr_crea_de_unidades(VNU("abc"), 2)), "ab");
    EXPECT_EQ(toma(ESPERA_INFORME("widestr_longitud(str)==len", widestr_crea_de_unidades(VNU("a\0b"), 3))), "a");
    // A report bears the caller's name.
    EXPECT_EQ(widestr_nousar_longitud(nullptr, "quien", 77), 0u);
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 1u);
    EXPECT_EQ(informes[0].expresion, "(s) != NULL");
    EXPECT_EQ(informes[0].modulo, "quien");
    EXPECT_EQ(informes[0].linea, 77u);
}

PRUEBA(widestr, preguntas) {
    const auto A = [](const char *s) { return ancho(s); };
    EXPECT_EQ(widestr_cadenas_iguales_may_o_min(A("CAÑÓN Жö").c_str(), A("cañón жÖ").c_str()), CIERTO);
    EXPECT_EQ(widestr_cadenas_iguales_may_o_min(A("straße").c_str(), A("STRASSE").c_str()), FALSO);
    EXPECT_EQ(widestr_compara(VNU("a"), A("á").c_str()), -1);
    EXPECT_EQ(widestr_compara(A("\xEF\xBF\xBD").c_str(), A("😀").c_str()), 1); // units, not characters
    EXPECT_EQ(widestr_es_cadena_en_blanco(A(" \t\xC2\xA0").c_str()), CIERTO);
    EXPECT_EQ(widestr_hay_texto(nullptr), FALSO);
    EXPECT_EQ(widestr_hay_texto(VNU("  ")), FALSO);
    EXPECT_EQ(widestr_hay_texto(VNU(" x")), CIERTO);
    EXPECT_EQ(widestr_es_subcadena_may_o_min(A("xPEÑAy").c_str(), A("peña").c_str()), CIERTO);
    EXPECT_EQ(widestr_es_subcadena_inicial_may_o_min(A("Ábaco").c_str(), A("áB").c_str()), CIERTO);
    EXPECT_EQ(widestr_es_subcadena_final(VNU("aab"), VNU("ab")), CIERTO);
    const vnwchar *s = VNU("a/b/c");
    EXPECT_EQ(widestr_strchr(s, '/'), s + 1);
    EXPECT_EQ(widestr_strchr(s, 0), s + 5);
    EXPECT_EQ(widestr_strchr(s, 'x'), nullptr);
    EXPECT_EQ(widestr_es_digito(0x663), FALSO); // a digit, but not one of 0 to 9
    EXPECT_EQ(widestr_atoul(VNU(" 4294967295x")), 4294967295u);

    // As a word list has them.
    const char *orden[] = {"", "arbol", "Árbol", "árbol", "arbola", "zorro"};
    for (size_t i = 0; i + 1 < std::size(orden); ++i) {
        EXPECT_LT(widestr_cadenas_compara_lexico_graficamente(A(orden[i]).c_str(), A(orden[i + 1]).c_str()), 0)
            << orden[i];
        EXPECT_EQ(widestr_cadenas_compara_lexico_graficamente(A(orden[i]).c_str(), A(orden[i]).c_str()), 0);
    }
}

PRUEBA(widestr, partes) {
    const vnwchar *s = VNU("uno dos uno");
    EXPECT_EQ(toma(widestr_subcadena(s, 4, 3)), "dos");
    EXPECT_EQ(toma(widestr_subcadena(s, 8, UINT32_MAX)), "uno");
    EXPECT_EQ(toma(widestr_subcadena(s, 99, 1)), "");
    EXPECT_EQ(toma(widestr_subcadena_inicial(s, 3)), "uno");
    EXPECT_EQ(toma(widestr_subcadena_final(s, 7)), "dos uno");
    EXPECT_EQ(toma(widestr_subcadena_final(s, 70)), "uno dos uno");
    EXPECT_EQ(toma(widestr_subcadena_anterior(s, VNU(" uno"))), "uno dos");
    EXPECT_EQ(toma(widestr_subcadena_anterior_may_o_min(s, VNU(" DOS"))), "uno");
    EXPECT_EQ(toma(widestr_subcadena_posterior(s, VNU("uno"))), " dos uno");
    EXPECT_EQ(toma(widestr_subcadena_posterior(s, VNU("x"))), "");
    const struct {
        uint32_t numero;
        const char *token;
    } filas[] = {{1, "31"}, {2, "12"}, {3, "2024"}, {4, "10"}, {5, "(null)"}};
    for (const auto &f : filas)
        EXPECT_EQ(toma(widestr_extrae_token(VNU("31/12//2024 10:"), VNU("/-: "), f.numero)), f.token);
    EXPECT_EQ(widestr_extrae_token(VNU("a"), VNU(" "), 2), nullptr);

    vnwchar **lista = nullptr;
    EXPECT_EQ(widestr_numero_de_subcadenas(VNU("a, b,"), ','), 3u);
    uint32_t n = widestr_lista_de_subcadenas_un_separador(VNU("a, b,"), ',', &lista);
    ASSERT_EQ(n, 3u);
    EXPECT_EQ(utf8_de(lista[1]), " b");
    EXPECT_EQ(utf8_de(lista[2]), "");
    widestr_destruyeListaCadenas(n, &lista);
    n = widestr_lista_de_subcadenas_sin_eliminar_blancos(VNU("a;b,c"), VNU(",;"), &lista);
    EXPECT_EQ(n, 3u);
    widestr_destruyeListaCadenas(n, &lista);
}

PRUEBA(widestr, cambios) {
    EXPECT_EQ(tras("xaxbx", [](vnwchar *s) { widestr_suprime_subcadena(s, VNU("x")); }), "ab");
    EXPECT_EQ(tras("abab", [](vnwchar **s) { EXPECT_EQ(widestr_suprime_subcadena_inicial(s, VNU("ab")), CIERTO); }),
              "ab");
    EXPECT_EQ(tras("abab", [](vnwchar **s) { EXPECT_EQ(widestr_suprime_subcadena_final(s, VNU("bab")), CIERTO); }),
              "a");
    EXPECT_EQ(tras("ab", [](vnwchar **s) { EXPECT_EQ(widestr_suprime_subcadena_final(s, VNU("bab")), FALSO); }), "ab");
    EXPECT_EQ(tras("C:\\A\\A", [](vnwchar **s) { widestr_reemplaza_todas_cadenas(s, VNU("\\A"), VNU("/AA")); }),
              "C:/AA/AA");
    EXPECT_EQ(tras(" \xC2\xA0 a ", [](vnwchar *s) { widestr_LTrim(s); }), "a ");
    EXPECT_EQ(tras(" a \n", [](vnwchar *s) { widestr_RTrim(s); }), " a");
    // One unit for one, and only where the way back leads home.
    EXPECT_EQ(tras("áñçœжωß😀ıſµŉ", [](vnwchar *s) { widestr_convertir_a_mayusculas(s); }), "ÁÑÇŒЖΩß😀ıſµŉ");
    EXPECT_EQ(tras("ÁÑÇŒЖΩİÀ", [](vnwchar *s) { widestr_convertir_a_minusculas(s); }), "áñçœжωİà");
    EXPECT_EQ(tras("ÁñÇü Ødïn ğışŁ ấ ώ e\xCC\x81l й が", [](vnwchar *s) { widestr_convertir_cadena_sin_acentos(s); }),
              "AnCu Odin gisL a ω el й が");
}

// The letters of the languages that the programs speak, alike on every platform.
PRUEBA(widestr, mapas_de_letras_iguales_en_todas_partes) {
    huella h;
    std::basic_string<vnwchar> todas;
    for (unsigned u = 0x20; u < 0x530; ++u)
        if (u < 0x250 || u >= 0x370) todas += static_cast<vnwchar>(u);
    for (unsigned u = 0x1E00; u < 0x1F00; ++u) todas += static_cast<vnwchar>(u);
    const std::string utf8 = utf8_de(todas.c_str());
    h << tras(utf8.c_str(), [](vnwchar *s) { widestr_convertir_a_mayusculas(s); });
    h << tras(utf8.c_str(), [](vnwchar *s) { widestr_convertir_a_minusculas(s); });
    h << tras(utf8.c_str(), [](vnwchar *s) { widestr_convertir_cadena_sin_acentos(s); });
    EXPECT_EQ(h(), 9815241886362381049u);
}

// Each allocation of each of these fails in its turn: no text is left half changed.
PRUEBA(widestr, sin_memoria_no_se_pierde_nada) {
    using operacion = void (*)(vnwchar **);
    const operacion operaciones[] = {
        [](vnwchar **s) { widestr_concatena(s, VNU("0123456789012345678901234567890123456789")); },
        [](vnwchar **s) { widestr_inserta_al_principio(s, *s); },
        [](vnwchar **s) { widestr_reemplaza_todas_cadenas(s, VNU("a"), VNU("aaaa")); },
        [](vnwchar **s) { *s = utunicode_ANSI_a_UNICODE_destruyendo_p(utunicode_UNICODE_a_ANSI_destruyendo(s)); },
    };
    for (const operacion &o : operaciones)
        for (int reservas = 0; reservas < 8; ++reservas) {
            vnwchar *s = nueva("a,b,a,c");
            const bool ido = atrapado([&] { o(&s); }, reservas);
            EXPECT_TRUE(ido || s == nullptr || utf8_de(s) == "a,b,a,c");
            toma_informes();
            widestr_destruye_opcional(&s);
        }
}
