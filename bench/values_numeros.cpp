// Number text: two decimals with thousands grouped, and grouped text back to numbers. Ours returns a new text, which is
// freed; its peers write into the caller's room.
#include "foundation/numeros/vnmath.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "units/vornnum.h"
#include "values.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstring>
#ifdef CON_DOUBLE_CONVERSION
#include <double-conversion/double-conversion.h>
#endif

namespace {

using bench::debe;

constexpr size_t N = 200'000;
// Sizes from 0.1 to 1e8, of both signs, with four decimals; their texts with two, "-1,234.56".
std::vector<double> numeros;
std::vector<std::string> textos;
std::vector<std::basic_string<vnwchar>> textos_u;
size_t suma = 0; // what the roads come to, so that nothing is left out
double suma_reales = 0;

// Inserts the separators into "-1234567.89", for the peers that cannot.
[[gnu::noinline]] size_t agrupa(const char *t, size_t n, char *o) {
    char *const inicio = o;
    const void *f = std::memchr(t, '.', n);
    const char *const punto = f != nullptr ? static_cast<const char *>(f) : t + n, *p = t;
    if (*p == '-') *o++ = *p++;
    for (; p < punto; ++p) {
        *o++ = *p;
        if (punto - p > 1 && (punto - p) % 3 == 1) *o++ = ',';
    }
    n -= static_cast<size_t>(punto - t);
    std::memcpy(o, punto, n);
    o[n] = 0;
    return static_cast<size_t>(o - inicio) + n;
}
// Takes them out again.
size_t sin_millares(const std::string &s, char *o) {
    size_t n = 0;
    for (const char c : s)
        if (c != ',') o[n++] = c;
    o[n] = 0;
    return n;
}

size_t con_snprintf(double x, char *o) {
    char t[64];
    return agrupa(t, static_cast<size_t>(std::snprintf(t, sizeof t, "%.2f", x)), o);
}
size_t con_to_chars(double x, char *o) {
    char t[64];
    return agrupa(t, static_cast<size_t>(std::to_chars(t, t + sizeof t, x, std::chars_format::fixed, 2).ptr - t), o);
}
double con_strtod(const std::string &s) {
    char t[64];
    sin_millares(s, t);
    return std::strtod(t, nullptr);
}
double con_from_chars(const std::string &s) {
    char t[64];
    const size_t n = sin_millares(s, t);
    double v = 0;
    std::from_chars(t, t + n, v);
    return v;
}
#ifdef CON_DOUBLE_CONVERSION
size_t con_double_conversion(double x, char *o) {
    char t[64];
    double_conversion::StringBuilder b(t, sizeof t);
    double_conversion::DoubleToStringConverter::EcmaScriptConverter().ToFixed(x, 2, &b);
    const auto n = static_cast<size_t>(b.position());
    return agrupa(b.Finalize(), n, o);
}
double lee_double_conversion(const std::string &s) {
    static const double_conversion::StringToDoubleConverter c(0, 0, 0, "inf", "nan");
    char t[64];
    int n = static_cast<int>(sin_millares(s, t));
    return c.StringToDouble(t, n, &n);
}
#endif

void escribe_nuestro() {
    for (const double x : numeros) {
        char *t = num_double_a_string(x, ',', '.', FALSO, 2);
        suma += static_cast<unsigned char>(t[0]);
        vornstr_destruye(&t);
    }
}
void escribe_nuestro_u() {
    for (const double x : numeros) {
        vnwchar *t = num_double_a_string_u(x, ',', '.', FALSO, 2);
        suma += static_cast<uint16_t>(t[0]);
        widestr_destruye(&t);
    }
}
void escribe_de_la_region() {
    for (const double x : numeros) {
        vnwchar *t = vornnum_double_a_string_con_formato_windows_u(x, 2);
        suma += static_cast<uint16_t>(t[0]);
        widestr_destruye(&t);
    }
}
void lee_nuestro() {
    for (const std::string &s : textos) {
        double v;
        vornnum_dameNumeroDeCadenaConDecimales(s.c_str(), &v, ',', '.', VORNNUM_FORMATO_NUMERO);
        suma_reales += v;
    }
}
void lee_nuestro_u() {
    for (const auto &s : textos_u) {
        double v;
        vornnum_dameNumeroDeCadenaConDecimales_u(s.c_str(), &v, ',', '.', VORNNUM_FORMATO_NUMERO);
        suma_reales += v;
    }
}

template <size_t (*F)(double, char *)> void escribe() {
    char t[64];
    for (const double x : numeros) suma += F(x, t) + static_cast<unsigned char>(t[0]);
}
template <double (*F)(const std::string &)> void lee() {
    for (const std::string &s : textos) suma_reales += F(s);
}

void prepara() {
    bench::azar a(3);
    for (size_t i = 0; i < N; ++i) {
        const double x = std::pow(10., a.entre(-1, 8)) * (a.siguiente() % 4 != 0 ? 1 : -1);
        char t[64];
        *std::to_chars(t, t + sizeof t, x, std::chars_format::fixed, 4).ptr = 0;
        numeros.push_back(std::strtod(t, nullptr));
        con_to_chars(prec_redondea_numero_decimales(numeros.back(), 2), t);
        textos.emplace_back(t);
        textos_u.emplace_back(textos.back().begin(), textos.back().end());
    }
}

// Both ways of ours against to_chars, of the rounded number, and strtod.
void comprueba() {
    for (size_t i = 0; i < N; ++i) {
        char *t = num_double_a_string(numeros[i], ',', '.', FALSO, 2);
        debe(t == textos[i], "the text differs");
        vornstr_destruye(&t);
        double v, w;
        debe(vornnum_dameNumeroDeCadenaConDecimales(textos[i].c_str(), &v, ',', '.', VORNNUM_FORMATO_NUMERO) &&
                 vornnum_dameNumeroDeCadenaConDecimales_u(textos_u[i].c_str(), &w, ',', '.', VORNNUM_FORMATO_NUMERO) &&
                 v == con_strtod(textos[i]) && v == w,
             "the number read differs");
    }
}

} // namespace

int bench::numeros(int pasadas) {
    prepara();
    comprueba();
    const double n = static_cast<double>(N);
    int fuera = mide("two decimals with thousands, per number",
                     {{"snprintf and grouping", n, escribe<con_snprintf>},
#ifdef CON_DOUBLE_CONVERSION
                      {"double-conversion and grouping", n, escribe<con_double_conversion>},
#endif
                      {"to_chars and grouping", n, escribe<con_to_chars>},
                      {"num_double_a_string", n, escribe_nuestro},
                      {"num_double_a_string_u", n, escribe_nuestro_u},
                      {"with the separators of the region", n, escribe_de_la_region}},
                     {{"num_double_a_string", "snprintf and grouping", 0.4},
                      {"num_double_a_string_u", "snprintf and grouping", 0.4},
                      {"with the separators of the region", "snprintf and grouping", 0.4},
                      {"num_double_a_string", "to_chars and grouping", 0}},
                     pasadas);
    fuera += mide("the same read, per text",
                  {{"strtod without separators", n, lee<con_strtod>},
#ifdef CON_DOUBLE_CONVERSION
                   {"double-conversion without separators", n, lee<lee_double_conversion>},
#endif
                   {"from_chars without separators", n, lee<con_from_chars>},
                   {"vornnum_dameNumeroDeCadenaConDecimales", n, lee_nuestro},
                   {"vornnum_dameNumeroDeCadenaConDecimales_u", n, lee_nuestro_u}},
                  {{"vornnum_dameNumeroDeCadenaConDecimales", "strtod without separators", 0.55},
                   {"vornnum_dameNumeroDeCadenaConDecimales_u", "strtod without separators", 0.55},
                   {"vornnum_dameNumeroDeCadenaConDecimales", "from_chars without separators", 0}},
                  pasadas);
    debe(suma > 0 && !std::isnan(suma_reales), "the roads gave something");
    return fuera;
}
