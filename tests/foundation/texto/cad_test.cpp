#define VN_MODULO "cad_test"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "prueba.h"

using vn::toma;

namespace {

// What an operation makes of a text in place, or through its owner's pointer.
template <class F> std::string tras(const char *s, F f) {
    char *c = cad_copia_cadena(s);
    if constexpr (std::is_invocable_v<F, char *>) f(c);
    else f(&c);
    return toma(c);
}

} // namespace

PRUEBA(cad, crecen_por_los_dos_lados) {
    char *s = creacadena(4);
    EXPECT_STREQ(s, "");
    cad_concatena(&s, "bc");
    cad_concatena_caracter(&s, 'd');
    cad_concatena_caracter(&s, '\0');
    vornstr_inserta_al_principio(&s, "a");
    EXPECT_STREQ(s, "abcd");
    // A text, or its tail, joined to itself.
    cad_concatena(&s, s);
    EXPECT_STREQ(s, "abcdabcd");
    cad_concatena(&s, s + 6);
    vornstr_inserta_al_principio(&s, s + 8);
    EXPECT_STREQ(s, "cdabcdabcdcd");
    EXPECT_EQ(cad_longitud_cadena(s), 12u);
    vornstr_destruye(&s);
    EXPECT_EQ(s, nullptr);
    vornstr_destruye_opcional(&s);
    ESPERA_INFORME("(*s) != NULL", vornstr_destruye(&s));
    EXPECT_EQ(toma(cad_crea_de_bytes("abc", 2)), "ab");
    EXPECT_EQ(toma(ESPERA_INFORME("vnstdc_strlen(str)==len", cad_crea_de_bytes("a\0b", 3))), "a");
}

PRUEBA(cad, preguntas) {
    EXPECT_EQ(cad_cadenas_iguales("abc", "abd"), FALSO);
    EXPECT_EQ(cad_cadenas_iguales_may_o_min("CA\321A", "ca\361a"), CIERTO);
    EXPECT_EQ(cad_cadenas_iguales_may_o_min("ca\321a", "cana"), FALSO);
    EXPECT_EQ(cad_cadenas_iguales_may_o_min("ab", "abc"), FALSO);
    EXPECT_EQ(cad_cadenas_compara("10.1", "9.1"), -1);
    EXPECT_EQ(cad_cadenas_compara("z", "\xE1"), -1); // bytes are unsigned
    EXPECT_EQ(cad_cadenas_compara("ab", "a"), 1);
    EXPECT_EQ(cad_cadenas_compara("ab", "ab"), 0);
    EXPECT_EQ(cad_es_cadena_vacia(""), CIERTO);
    EXPECT_EQ(cad_es_cadena_en_blanco(" \t\r\n"), CIERTO);
    EXPECT_EQ(cad_es_cadena_en_blanco(" . "), FALSO);
    EXPECT_EQ(cad_es_subcadena("abcabd", "abd"), CIERTO);
    EXPECT_EQ(cad_es_subcadena("ab", ""), CIERTO);
    EXPECT_EQ(cad_es_subcadena_may_min("xxPE\321Ayy", "pe\361a"), CIERTO);
    EXPECT_EQ(cad_es_subcadena_inicial("campo:1", "campo"), CIERTO);
    EXPECT_EQ(cad_es_subcadena_inicial("cam", "campo"), FALSO);
    EXPECT_EQ(cad_es_subcadena_inicial_may_o_min("\xC1rbol", "\xE1R"), CIERTO);
    EXPECT_EQ(cad_es_subcadena_final("a.beta", ".beta"), CIERTO);
    EXPECT_EQ(cad_es_subcadena_final("beta", ".beta"), FALSO);
    EXPECT_EQ(cad_atof(" 2.5e1m"), 25.0);
}

PRUEBA(cad, partes_y_cambios) {
    EXPECT_EQ(toma(cad_subcadena_inicial("abc", 2)), "ab");
    EXPECT_EQ(toma(cad_subcadena_inicial("abc", 9)), "abc");
    EXPECT_EQ(toma(cad_subcadena_anterior("obra sin nombre sin", " sin")), "obra");
    EXPECT_EQ(toma(cad_subcadena_anterior("obra", " sin")), "obra");
    EXPECT_EQ(tras("aXbXX", [](char *s) { cad_suprime_subcadena(s, "X"); }), "ab");
    EXPECT_EQ(tras("aaab", [](char *s) { cad_suprime_subcadena(s, s + 3); }), "aaa");
    EXPECT_EQ(tras("aXab", [](char *s) { cad_suprime_subcadena(s, ""); }), "aXab");
    EXPECT_EQ(tras("aab", [](char **s) { EXPECT_EQ(cad_suprime_subcadena_inicial(s, "a"), CIERTO); }), "ab");
    EXPECT_EQ(tras("\321ab", [](char **s) { EXPECT_EQ(cad_suprime_subcadena_inicial_may_o_min(s, "\361A"), CIERTO); }),
              "b");
    EXPECT_EQ(tras("ab", [](char **s) { EXPECT_EQ(cad_suprime_subcadena_inicial(s, "b"), FALSO); }), "ab");
    const struct {
        const char *antes, *a, *b, *despues;
    } filas[] = {
        {"aXbX", "X", "yX", "ayXbyX"}, {"aaaa", "aa", "a", "aa"}, {"abc", "", "x", "abc"}, {"abab", "ab", "", ""}};
    for (const auto &f : filas)
        EXPECT_EQ(tras(f.antes, [&](char **s) { cad_reemplaza_todas_cadenas(s, f.a, f.b); }), f.despues);
    EXPECT_EQ(tras(" \ta b \r\n", [](char *s) { cad_LTrim(s); }), "a b \r\n");
    EXPECT_EQ(tras(" \ta b \r\n", [](char *s) { RTrim(s); }), " \ta b");
}

PRUEBA(cad, listas) {
    const struct {
        const char *s;
        std::vector<std::string> trozos;
    } filas[] = {{"2024-11-b", {"2024", "11", "b"}}, {"", {""}}, {"-a-", {"", "a", ""}}, {" a - b", {" a ", " b"}}};
    for (const auto &f : filas) {
        char **lista = nullptr;
        const uint32_t n = cad_lista_de_subcadenas(f.s, '-', &lista);
        EXPECT_EQ(std::vector<std::string>(lista, lista + n), f.trozos);
        vornstr_destruyeListaCadenas(n, &lista);
        EXPECT_EQ(lista, nullptr);
    }
}

PRUEBA(cad, letras_de_cada_pagina) {
    const auto mayusculas = [](char *s) { cad_convertir_a_mayusculas(s); };
    const auto minusculas = [](char *s) { cad_convertir_a_minusculas(s); };
    const auto modo = [](int m) { return [m](char *s) { cad_convertir_ansi_cadena(s, m); }; };
    // The sharp s, y diaeresis (Ÿ is on the page) and the micro sign (its capital is not).
    EXPECT_EQ(tras("\xE1\xF1z\xDF\xFF\xB5\xF7", mayusculas), "\xC1\xD1Z\xDF\x9F\xB5\xF7");
    EXPECT_EQ(tras("\xC1\xD1Z\x8C\xD7", minusculas), "\xE1\xF1z\x9C\xD7");
    EXPECT_EQ(tras("\xE1\xD1\xE7\xFCx", modo(2)), "aNcux");
    EXPECT_EQ(tras("\xE1\xD1\xE7\xFCx", modo(3)), "ANCUX");
    EXPECT_EQ(tras("\xE1x", modo(1)), "\xC1X");
    EXPECT_EQ(tras("\xE1x", modo(0)), "\xE1x");
    EXPECT_EQ(tras("\xA4\x84\x81\x9B\xE1\xC4z", [](char *s) { cad_convertir_cadena_ascii_ansi(s); }),
              "\xF1\xE4\xFC\xF8\xDF?z");
    ASSERT_EQ(unicode_establece_pagina_ANSI(1251), CIERTO);
    EXPECT_EQ(tras("\xE6\xB8", mayusculas), "\xC6\xA8");
    EXPECT_EQ(cad_cadenas_iguales_may_o_min("\xC6", "\xE6"), CIERTO);

    // Page 932: the second bytes of some characters are letters, backslashes and bars of their own.
    ASSERT_EQ(unicode_establece_pagina_ANSI(932), CIERTO);
    EXPECT_EQ(tras("\x83\x61z", mayusculas), "\x83\x61Z");
    EXPECT_EQ(cad_cadenas_iguales_may_o_min("\x83\x61", "\x83\x41"), FALSO);
    EXPECT_EQ(cad_es_subcadena("\x83\x5C", "\\"), FALSO);
    EXPECT_EQ(cad_es_subcadena_final("\x83\x5C", "\\"), FALSO);
    EXPECT_EQ(cad_es_subcadena_final("\x83\x5C\\", "\\"), CIERTO);
    EXPECT_EQ(tras("\x83\x5C\\x", [](char **s) { cad_reemplaza_todas_cadenas(s, "\\", "/"); }), "\x83\x5C/x");
    EXPECT_EQ(toma(cad_subcadena_inicial("a\x83\x5Cz", 2)), "a");
    EXPECT_EQ(toma(cad_subcadena_inicial("a\x83\x5Cz", 3)), "a\x83\x5C");
    char **lista = nullptr;
    const uint32_t n = cad_lista_de_subcadenas("\x83\x7C|a", '|', &lista);
    EXPECT_EQ(n, 2u);
    EXPECT_STREQ(lista[0], "\x83\x7C");
    vornstr_destruyeListaCadenas(n, &lista);
}
