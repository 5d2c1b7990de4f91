// Units: one value from its internal unit to the one shown, the tolerant comparison, and the text of a value.
#include "foundation/texto/widestr.h"
#include "units/convers.h"
#include "units/magnitud.h"
#include "units/vornconf.h"
#include "values.h"
#include <cmath>
#ifdef CON_UDUNITS
#include <udunits2.h>
#endif

namespace {

constexpr size_t N = 10'000, VUELTAS = 50, TEXTOS = 200'000;
std::vector<double> entrada, salida(N);
size_t suma = 0;

#ifdef CON_UDUNITS
cv_converter *conversor(const char *de, const char *a) {
    static ut_system *const s = (ut_set_error_message_handler(ut_ignore), ut_read_xml(nullptr));
    bench::debe(s != nullptr, "units of UDUNITS");
    cv_converter *const c = ut_get_converter(ut_parse(s, de, UT_ASCII), ut_parse(s, a, UT_ASCII));
    bench::debe(c != nullptr, "converter of UDUNITS");
    return c;
}
cv_converter *celsius_a_fahrenheit = nullptr, *metro_a_pie = nullptr;
#endif

// As a library's own function is called: over a bare comparison.
[[gnu::noinline]] uint16_t son_iguales(double a, double b) {
    asm volatile("");
    return std::fabs(a - b) <= 0.00001;
}

template <class F> void pasa(F f) {
    for (size_t v = 0; v < VUELTAS; ++v) {
        for (size_t i = 0; i < N; ++i) salida[i] = f(entrada[i]);
        asm volatile("" ::"r"(salida.data()) : "memory");
    }
}
template <class F> void compara(F f) {
    for (size_t v = 0; v < VUELTAS; ++v)
        for (size_t i = 1; i < N; ++i) suma += f(entrada[i - 1], entrada[i]);
}
// What the road gives is the conversion told.
template <class F> bench::camino conversion(const char *nombre, double coef, double sumando, F f) {
    for (const double x : {-40., 0., 12.5, 500.})
        bench::debe(std::fabs(f(x) - (x * coef + sumando)) < 1e-9 * (1 + std::fabs(x)), nombre);
    return {nombre, double(N * VUELTAS), [f] { pasa(f); }};
}

int conversiones(int pasadas) {
    constexpr double PIES = 1 / 0.3048;
    const auto nuestra = [](uint32_t tipo) {
        return [tipo](double x) { return cnv_convierte(CNV_A_MOSTRADO, tipo, x); };
    };
    std::vector<bench::camino> caminos;
    caminos.push_back(conversion("multiply and add, in line", 1.8, 32, [](double x) { return x * 1.8 + 32; }));
    std::vector<bench::razon> razones = {{"cnv_convierte, C to F", "multiply and add, in line", 0}};
#ifdef CON_UDUNITS
    caminos.push_back(conversion("cv_convert_double, C to F", 1.8, 32,
                                 [](double x) { return cv_convert_double(celsius_a_fahrenheit, x); }));
    caminos.push_back(
        conversion("cv_convert_double, m to ft", PIES, 0, [](double x) { return cv_convert_double(metro_a_pie, x); }));
    razones.push_back({"cnv_convierte, C to F", "cv_convert_double, C to F", 1.1});
    razones.push_back({"cnv_convierte, m to ft", "cv_convert_double, m to ft", 1.1});
#endif
    caminos.push_back(conversion("cnv_convierte, C to F", 1.8, 32, nuestra(CNV_TEMPERATURA)));
    caminos.push_back(conversion("cnv_convierte, m to ft", PIES, 0, nuestra(CNV_LONGITUD)));
    caminos.push_back(conversion("magnitud_m_a_ft", PIES, 0, magnitud_m_a_ft));
    return bench::mide("one value converted, imperial system", caminos, razones, pasadas);
}

void textos_propios() {
    for (size_t i = 0; i < TEXTOS; ++i) {
        vnwchar *t = convers_texto_con_unidades_dos_decimales(entrada[i % N], CNV_TENSION);
        suma += static_cast<size_t>(t[0]);
        widestr_destruye(&t);
    }
}
void textos_de_snprintf() {
    for (size_t i = 0; i < TEXTOS; ++i) {
        char *t = static_cast<char *>(std::malloc(64));
        std::snprintf(t, 64, "%.2f %s", entrada[i % N] * 1.4223343295192, "psi");
        suma += static_cast<size_t>(t[0]);
        std::free(t);
    }
}

} // namespace

int bench::unidades(int pasadas) {
    azar a(4);
    for (size_t i = 0; i < N; ++i) entrada.push_back(a.entre(-50, 500));
    const uint32_t antes = vornconf_Internacional_sistema_unidades();
    vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_IMPERIAL);
#ifdef CON_UDUNITS
    celsius_a_fahrenheit = conversor("degC", "degF");
    metro_a_pie = conversor("meter", "foot");
#endif
    int fuera = conversiones(pasadas);
    const double n = N * VUELTAS;
    fuera += mide("two numbers compared to a tolerance",
                  {{"fabs in line", n, [] { compara([](double x, double y) { return std::fabs(x - y) <= 0.00001; }); }},
                   {"fabs in a function", n, [] { compara(son_iguales); }},
                   {"parmeq", n, [] { compara(parmeq); }}},
                  {{"parmeq", "fabs in line", 0}, {"parmeq", "fabs in a function", 0}}, pasadas);
    fuera += mide("a value as text with two decimals and unit",
                  {{"snprintf into a new block", TEXTOS, textos_de_snprintf},
                   {"convers_texto_con_unidades...", TEXTOS, textos_propios}},
                  {{"convers_texto_con_unidades...", "snprintf into a new block", 0}}, pasadas);
    vornconf_Internacional_set_sistema_unidades(antes);
    debe(suma > 0, "the roads gave something");
    return fuera;
}
