// The number parsers: whatever the text, it is a number or it is none, told without a report; both widths agree, and
// the number's own text is that number again.
#include "foundation/texto/cad.h"
#include "objetivo.h"
#include "units/vornnum.h"
#include <cmath>

namespace {

// The first byte of an input says how the rest is read.
constexpr struct {
    char millares, decimales;
} SEPARADORES[] = {{0, '.'}, {'.', ','}, {',', '.'}, {' ', ','}, {'\'', '.'}, {'-', 'e'}, {'0', '1'}, {'.', '.'}};

// Blocks of the text's own size: a sanitizer sees what is read beyond its end.
template <class C> std::vector<C> texto_de(const uint8_t *datos, size_t n) {
    std::vector<C> t(datos, datos + n);
    t.push_back(0);
    return t;
}

void lee(uint8_t como, const std::vector<char> &t, const std::vector<vnwchar> &u) {
    const auto [millares, decimales] = SEPARADORES[como / 4 % std::size(SEPARADORES)];
    const int32_t formato = como % 4;
    double v = 7, w = 7, x = 7;
    const vnbool bien = vornnum_dameNumeroDeCadenaConDecimales(t.data(), &v, millares, decimales, formato);
    fuzz::exige(bien == CIERTO ? std::isfinite(v) : v == 0, "a finite number, or none and 0");
    fuzz::exige(vornnum_dameNumeroDeCadenaConDecimales_u(u.data(), &w, static_cast<vnwchar>(millares),
                                                         static_cast<vnwchar>(decimales), formato) == bien &&
                    v == w,
                "both widths agree");
    vornnum_dameNumeroDeCadena(t.data(), &x, formato);
    fuzz::exige(num_EsNumeroEntero(t.data()) == num_EsNumeroEntero_u(u.data()) &&
                    num_EsNumeroReal(t.data()) == num_EsNumeroReal_u(u.data()) &&
                    num_EsNumeroReal(t.data()) >= num_EsNumeroEntero(t.data()),
                "a whole number is a real one, in both widths");
    fuzz::exige(num_string_hex_a_ulong(t.data()) == num_string_hex_a_ulong_u(u.data()), "hexadecimal of both widths");
    vornnum_wtof(u.data());

    char *texto = vornnum_double_a_cadena(v, 0, '.', -1, formato, 64);
    // 13 digits at least, or half a 64th of an inch; lengths of 1e15 and more have no text that is read.
    const double tolerancia = std::fabs(v) * 1e-12 + (formato == VORNNUM_FORMATO_NUMERO ? 5e-14 : 1. / 128 + 2e-6);
    if (std::fabs(v) < 1e15 || formato == VORNNUM_FORMATO_NUMERO)
        fuzz::exige(vornnum_dameNumeroDeCadena(texto, &x, formato) == CIERTO && std::fabs(x - v) <= tolerancia,
                    "the text of the number is the number");
    vornstr_destruye(&texto);
    fuzz::exige(fuzz::informes() == 0, "no text is worth a report");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    std::vector<std::string> todas;
    for (const char *t :
         {" -1234567.891e-3 ", "1.234.567,89", "1,234.5e+300", "+.5E", "12345678901234567890123.4567890", "5'-3 1/2\"",
          "- 5 ' 11 31 / 32 \" ", "3/4", "17 1/8\"", "12'", "ffFF", "1e-330"})
        for (const char como : {'\0', '\5', '\12', '\17'}) todas.push_back(como + std::string(t));
    return todas;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    if (n == 0) return 0;
    const auto texto = texto_de<char>(datos + 1, n - 1);
    const auto texto_u = texto_de<vnwchar>(datos + 1, n - 1);
    constexpr uint64_t UN_TEXTO = 1024;
    fuzz::con_fichero(datos, n, UN_TEXTO, [&] { lee(datos[0], texto, texto_u); });
    return 0;
}
