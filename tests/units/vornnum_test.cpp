#include "filas.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/texto/cad.h"
#include "plataforma/regional.h"
#include "propiedades.h"
#include "units/vornnum.h"
#include <cfloat>
#include <charconv>
#include <cmath>

using namespace vn;

namespace {

double anterior(double x) { return std::nextafter(x, 0.); }
double siguiente(double x) { return std::nextafter(x, HUGE_VAL); }

// Both widths, which must agree but for one decimal in the scientific form.
std::string da(double v, int decimales, char millares = 0, char sep = '.', vnbool cientifica = FALSO) {
    const std::string s = toma(num_double_a_string(v, millares, sep, cientifica, decimales)),
                      u = toma(num_double_a_string_u(v, static_cast<vnwchar>(millares), static_cast<vnwchar>(sep),
                                                     cientifica, decimales));
    EXPECT_TRUE(s.find('e') == std::string::npos ? u == s : u.size() == s.size() + 1) << u << " and " << s;
    return s;
}

// A number of any size from 1e-4 on and of either sign, whose multiplications are the same everywhere.
double cualquiera(azar &a, int32_t cifras) {
    double v = a.entre(1, 10);
    for (int64_t k = a.entero_entre(-4, cifras - 1); k != 0; k -= k > 0 ? 1 : -1) v = k > 0 ? v * 10 : v / 10;
    return a.moneda() ? v : -v;
}

} // namespace

PRUEBA(vornnum, formas_de_un_numero) {
    for (const auto &[v, decimales, fija, cientifica] :
         filas<double, int, std::string, std::string>("units/vornnum.tsv", "formas")) {
        EXPECT_EQ(da(v, decimales, '.', ','), fija);
        EXPECT_EQ(da(v, decimales, '.', ',', CIERTO), cientifica);
    }
    EXPECT_EQ(toma(num_double_a_string_u(1234.5, 0, u',', CIERTO, 2)), "1,234e+03");
    EXPECT_EQ(toma(vornnum_double_a_cadena_printf_todos_decimales(2)), "2.");
    EXPECT_EQ(toma(vornnum_double_a_cadena_printf_todos_decimales_u(-2.5)), "-2.5");
    ESPERA_INFORME("sep_millares != sep_decimales", num_double_a_string(1, '.', '.', FALSO, 2));
    ESPERA_INFORME("sep_decimales != 0", num_double_a_string(1, '.', 0, FALSO, 2));
    ESPERA_INFORME("decimales <= 9", num_double_a_string(1, 0, '.', FALSO, 10));
    EXPECT_EQ(toma(num_long_a_string(INT32_MIN, '.')), "-2.147.483.648");
    EXPECT_EQ(toma(num_ulong_a_string_u(UINT32_MAX, 0)), "4294967295");
    for (const auto &[n, texto] :
         std::initializer_list<std::pair<int, const char *>>{{1, "I"}, {38, "XXXVIII"}, {49, "XLIX"}, {90, "XC"}})
        EXPECT_EQ(toma(vornnum_convierte_a_numero_romano(n)), texto);
}

PRUEBA(vornnum, los_limites_de_la_forma_fija) {
    double superior = 1e15;
    for (int d = 0; d <= 9; ++d, superior /= 10) {
        const double inferior = cad_atof(("1e-" + std::to_string(d)).c_str());
        const auto es_fija = [d](double v) { return da(v, d).find('e') == std::string::npos; };
        EXPECT_TRUE(es_fija(superior) && es_fija(-inferior)) << d;
        EXPECT_FALSE(es_fija(siguiente(superior)) || es_fija(-2 * superior)) << d;
        // Just below, the number that has one decimal more decides.
        EXPECT_TRUE(es_fija(anterior(inferior)) && es_fija(0.951 * inferior)) << d;
        EXPECT_FALSE(es_fija(0.949 * inferior) || es_fija(-1e-300)) << d;
    }
    // What is shown then is the number rounded to that decimal.
    EXPECT_EQ(da(0.00449, 2), "4.00e-03");
    EXPECT_EQ(da(-1e-20, 2), "-0.00e+00");
    // Fewer decimals from a million on, also where the rounding has come to it.
    EXPECT_EQ(da(anterior(1e6), 9), "1000000.00000000");
    EXPECT_EQ(da(999999.9999999994, 9), "999999.999999999");
}

// The decisions at powers of ten do not depend on a logarithm, which is off by a digit there on some platforms.
PRUEBA(vornnum, decimales_automaticos_en_las_potencias_de_diez) {
    for (const auto &[potencia, antes, en, despues] :
         filas<double, std::string, std::string, std::string>("units/vornnum.tsv", "potencias")) {
        EXPECT_EQ(da(anterior(potencia), -1), antes);
        EXPECT_EQ(da(potencia, -1), en);
        EXPECT_EQ(da(siguiente(potencia), -1), despues);
    }
    // From a million on, one decimal less for each digit more.
    for (const auto &[v, cortado] : filas<double, std::string>("units/vornnum.tsv", "cortados"))
        EXPECT_EQ(da(v, -1), cortado);
}

// Every text of the fixed form against the rounding of the maths library and to_chars, with the ties and what is next
// to them.
PRUEBA(vornnum, la_forma_fija_redondea_y_escribe) {
    azar a(1);
    double unidad[10] = {1};
    for (int d = 1; d < 10; ++d) unidad[d] = unidad[d - 1] * 10;
    for (int i = 0; i < 2'000'000; ++i) {
        const int d = i % 10;
        double v = cualquiera(a, 15 - d);
        if (i % 3 != 0) v = (std::floor(v * unidad[d]) + 0.5) / unidad[d];
        if (i % 3 == 2) v = a.moneda() ? anterior(v) : siguiente(v);
        if (std::fabs(v) * unidad[d] < 1 || std::fabs(v) * unidad[d] >= 999'999'999'999'999.) continue;
        char esperado[400];
        *std::to_chars(esperado, esperado + sizeof esperado,
                       prec_redondea_numero_decimales(v, static_cast<uint32_t>(d)), std::chars_format::fixed, d)
             .ptr = 0;
        char *t = num_double_a_string(v, 0, '.', FALSO, d);
        const bool bien = std::string_view(t) == esperado;
        vornstr_destruye(&t);
        ASSERT_TRUE(bien) << esperado;
    }
}

PRUEBA(vornnum, una_reserva_por_texto_y_ninguna_por_lectura) {
    const auto una = [](const std::function<char *()> &f) {
        return atrapado([&] { toma(f()); }, 1) && !atrapado([&] { toma(f()); }, 0);
    };
    EXPECT_TRUE(una([] { return num_double_a_string(-1234567.891, '.', ',', FALSO, 2); }));
    EXPECT_TRUE(una([] { return vornnum_double_a_cadena(5.3, ' ', ' ', 0, VORNNUM_FORMATO_PIES, 32); }));
    EXPECT_TRUE(una([] { return vornnum_double_a_string_con_formato_windows(1e300, -1); }));
    double v = 0;
    for (const char *s : {"1.234,56", "-123456789012345678901234567890e-40", "5'-3 1/2\"", "nada"})
        EXPECT_TRUE(
            atrapado([&] { vornnum_dameNumeroDeCadenaConDecimales(s, &v, '.', ',', VORNNUM_FORMATO_PIES); }, 0));
}

PRUEBA(vornnum, con_los_separadores_de_la_region) {
    const char *const FILAS[][4] = {{"en-US", "1,234,567.50", "1,234,567.50", "1234567.50"},
                                    {"fr-FR", "1\u00a0234\u00a0567,50", "1\240234\240567,50", "1234567,50"},
                                    {"de-DE", "1.234.567,50", "1.234.567,50", "1234567,50"}};
    for (const auto &f : FILAS) {
        ASSERT_EQ(vnregional_establece(f[0]), CIERTO);
        EXPECT_EQ(toma(vornnum_double_a_string_con_formato_windows_u(1234567.5, 2)), f[1]);
        EXPECT_EQ(toma(vornnum_double_a_string_con_formato_windows(1234567.5, 2)), f[2]);
        EXPECT_EQ(toma(vornnum_double_a_string_con_formato_windows_solo_separador_decimales(1234567.5, 2)), f[3]);
    }
    ASSERT_EQ(vnregional_establece("ar-EG"), CIERTO);
    vnwchar decimal = 0, millares = 0;
    vnregional_separadores(&decimal, &millares);
    const bool no_estan_en_la_pagina = decimal == 0x66B; // some systems have others for the region
    EXPECT_EQ(toma(vornnum_double_a_string_con_formato_windows(1234567.5, 2)),
              no_estan_en_la_pagina ? "1234567.50" : "1,234,567.50");
    ASSERT_EQ(vnregional_establece("de-DE"), CIERTO);
    // In a column: the decimal separators of all stand one under another.
    const auto en_columna = vornnum_double_a_string_con_formato_windows_ex_u;
    EXPECT_EQ(toma(en_columna(-7.5, 1, 5, 4)), "   -7,5  ");
    EXPECT_EQ(toma(en_columna(-12, 0, 5, 4)), "  -12    ");
    EXPECT_EQ(toma(en_columna(7, 0, 59, 4)).size(), 63u);
    ESPERA_INFORME("len < TAM_BUFFER_NUM", en_columna(7, 0, 60, 4));
    ESPERA_INFORME("len < TAM_BUFFER_NUM", en_columna(NAN, 0, 0, UINT16_MAX));
    const region_del_usuario aleman("de-DE", "de-DE");
    vnregional_establece(nullptr);
    const bool uno = aleman.un_separador_para_todo();
    EXPECT_EQ(toma(vornnum_double_a_string_con_formato_windows_u(1234567.5, 2)), uno ? "1234567,50" : "1.234.567,50");
}

// The same texts natively and under Wine.
PRUEBA(vornnum, la_huella_de_un_cuarto_de_millon_de_numeros) {
    azar a(9);
    huella h;
    for (int i = 0; i < 250'000; ++i) {
        const int modo = i % 8, decimales = static_cast<int>(a.entero(10)), formato = 1 + static_cast<int>(a.entero(3));
        double v = cualquiera(a, 18), leido = 0;
        if (modo == 7) v = std::bit_cast<double>(a.siguiente());
        if (modo == 6) v = std::floor(v * 100) / 100;
        char *t = modo < 2    ? num_double_a_string(v, '.', ',', FALSO, 2)
                  : modo == 2 ? num_double_a_string(v, ',', '.', CIERTO, decimales)
                  : modo == 3 ? num_double_a_string(v, 0, '.', FALSO, decimales)
                  : modo == 4 ? vornnum_double_a_cadena(v, ' ', ' ', 0, formato, 1 + a.entero(64))
                              : vornnum_double_a_cadena_printf_todos_decimales(v);
        vornnum_dameNumeroDeCadena(t, &leido, VORNNUM_FORMATO_PIES);
        h << std::string(t) << leido;
        vornstr_destruye(&t);
    }
    EXPECT_EQ(h(), 4487754638733220386u);
}
