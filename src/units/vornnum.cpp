#define VN_MODULO "vornnum (NUCLEOS.DLL)"
#include "units/vornnum.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/unicode.h"
#include "units/vornnum_priv.h"
#include <algorithm>
#include <array>
#include <bit>
#include <charconv>
#include <cmath>
#include <iterator>
#include <string>

namespace vn {
namespace {

constexpr int32_t MAX_DECIMALES = 9, AUTOMATICOS = -1;

// Beyond these, by the number of decimals, the fixed form no longer shows the value.
constexpr double COTA_SUPERIOR[] = {1e15, 1e14, 1e13, 1e12, 1e11, 1e10, 1e9, 1e8, 1e7, 1e6};
constexpr double COTA_INFERIOR[] = {1, 1e-1, 1e-2, 1e-3, 1e-4, 1e-5, 1e-6, 1e-7, 1e-8, 1e-9};
static_assert(std::size(COTA_SUPERIOR) == MAX_DECIMALES + 1 && std::size(COTA_INFERIOR) == MAX_DECIMALES + 1);

// How a number is shown when the decimals are automatic: from `desde` on. By the digits n before the period, 14 - n
// decimals below five digits and 9 from there on; by powers of ten and not by a logarithm, which near them depends on
// the platform.
struct fila_automatica {
    double desde;
    int32_t decimales;
    bool cientifica;
};
constexpr fila_automatica AUTOMATICA[] = {
    {1e15, 14, true}, {1e4, 9, false}, {1e3, 10, false},   {1e2, 11, false},
    {1e1, 12, false}, {1, 13, false},  {1e-14, 15, false}, {0, 15, true},
};

// The decimals that the fixed form may have, by the size of the number: its digits fit in 15.
struct tope_por_tamanyo {
    double desde;
    uint32_t decimales;
};
constexpr tope_por_tamanyo TOPES[] = {{1e12, 2}, {1e11, 3}, {1e10, 4}, {1e9, 5}, {1e8, 6}, {1e7, 7}, {1e6, 8}, {0, 15}};
constexpr uint64_t MAX_UNIDADES = 1'000'000'000'000'000;

constexpr auto POTENCIAS = [] {
    std::array<uint64_t, 16> p{1};
    for (size_t i = 1; i < p.size(); ++i) p[i] = 10 * p[i - 1];
    return p;
}();

// The number n / 10^decimales.
struct decimal {
    uint64_t n;
    uint32_t decimales;
};

__extension__ using entero128 = unsigned __int128;

// `v` in whole units of the last decimal, to the nearest, by its exact decimal value: half a unit goes to the even
// number. `casi_mitad` says whether it is half a unit to the 17 digits of a double, or less than half by no more than
// they tell. `v` is 0 or from 1e-14 to 1e15, and a number of few enough units.
uint64_t en_unidades(double v, uint32_t decimales, bool &casi_mitad) {
    constexpr int BITS = 52, SESGO = 1075,
                  CIFRAS_17 = 54; // 2^-54 of the number is more than half a unit of its 17th digit
    casi_mitad = false;
    if (v == 0) return 0;
    const auto bits = std::bit_cast<uint64_t>(v);
    const uint64_t mantisa = (bits & ((uint64_t{1} << BITS) - 1)) | uint64_t{1} << BITS;
    const int s = SESGO - static_cast<int>(bits >> BITS); // v is mantisa / 2^s, and s from 3 to 99
    const entero128 producto = entero128{mantisa} * POTENCIAS[decimales], mitad = entero128{1} << (s - 1),
                    resto = producto & ((mitad << 1) - 1);
    const auto n = static_cast<uint64_t>(producto >> s);
    casi_mitad = resto <= mitad && mitad - resto <= producto >> CIFRAS_17;
    return n + (resto > mitad || (resto == mitad && n % 2 != 0));
}

uint32_t tope_de(double v) {
    return std::find_if(std::begin(TOPES), std::end(TOPES), [v](const auto &t) { return v >= t.desde; })->decimales;
}

// Rounds a number to the decimals, and gives it with as many of them as its size allows.
decimal redondea(double v, uint32_t decimales) {
    bool casi_mitad;
    if (decimales > tope_de(v)) {
        v = prec_redondea_numero_decimales(v, decimales);
        decimales = tope_de(v);
        return {en_unidades(v, decimales, casi_mitad), decimales};
    }
    uint64_t n = en_unidades(v, decimales, casi_mitad);
    if (casi_mitad) n = en_unidades(prec_redondea_numero_decimales(v, decimales), decimales, casi_mitad);
    // A number that the rounding made a power of ten has the decimals of that power.
    if (n == MAX_UNIDADES && decimales > TOPES[0].decimales) return {n / 10, decimales - 1};
    return {n, decimales};
}

template <class C> void pon_cientifico(texto_numero<C> &t, double v, int32_t decimales, C sep_decimales) {
    // The wide form has always had one decimal more.
    if (sizeof(C) > 1) ++decimales;
    char s[TAM_BUFFER_NUM];
    const char *const fin = std::to_chars(s, s + sizeof s, v, std::chars_format::scientific, decimales).ptr;
    t.pon_ascii({s + (decimales > 0 ? 2 : 1), fin}); // the separator stands even before no decimals
    t.marca_decimales(sep_decimales);
    t.pon(static_cast<C>(s[0]));
}

bool fuera_de_cotas(double v, int32_t decimales) {
    return v > COTA_SUPERIOR[decimales] || v < COTA_INFERIOR[decimales];
}

} // namespace

template <class C> bool aspecto_bueno(const aspecto<C> &a) {
    return AFIRMA_TEXTO(a.sep_decimales != 0, "sep_decimales != 0") &&
           AFIRMA_TEXTO(a.decimales >= AUTOMATICOS && a.decimales <= MAX_DECIMALES, "decimales <= 9");
}

template <class C> void pon_numero(texto_numero<C> &t, double valor, const aspecto<C> &a) {
    const size_t tam_buffer = t.tam_buffer();
    if (!AFIRMA(tam_buffer > 20 && tam_buffer < 500)) return;
    const bool negativo = valor < 0;
    double v = std::fabs(valor);
    if (!std::isfinite(v)) t.pon_ascii(std::isnan(v) ? "nan" : "inf");
    else {
        const bool quitar_ceros = a.decimales == AUTOMATICOS;
        int32_t decimales = a.decimales;
        bool cientifica = a.cientifica;
        if (quitar_ceros) {
            const auto *f =
                std::find_if(std::begin(AUTOMATICA), std::end(AUTOMATICA), [v](const auto &r) { return v >= r.desde; });
            // Zero has one decimal, which is dropped below as a zero at the end; the last row is for tiny numbers.
            decimales = v == 0 ? 1 : f->decimales;
            cientifica |= v != 0 && f->cientifica;
        } else if (v != 0 && !cientifica && fuera_de_cotas(v, decimales)) {
            // The rounded value is shown from here on, on purpose: noise below the decimals is a zero.
            v = prec_redondea_numero_decimales(v, static_cast<uint32_t>(decimales) + 1);
            cientifica = fuera_de_cotas(v, decimales);
        }
        if (!AFIRMA(decimales <= 15)) return;
        if (cientifica) pon_cientifico(t, v, decimales, a.sep_decimales);
        else {
            decimal r = redondea(v, static_cast<uint32_t>(decimales));
            // Automatic decimals leave no zeros at the end.
            for (; quitar_ceros && r.decimales > 0 && r.n % 10 == 0; r.n /= 10) --r.decimales;
            t.pon_decimal(r.n, r.decimales, a.sep_millares, a.sep_decimales);
        }
    }
    if (negativo) t.pon('-');
}

namespace {

template <class C> C *nuevo(size_t n) {
    C *s = static_cast<C *>(vornspy_malloc((n + 1) * sizeof(C)));
    s[n] = 0;
    return s;
}

template <class C> C *numero_nuevo(double valor, const aspecto<C> &a) {
    if (!aspecto_bueno(a)) return nullptr;
    texto_numero<C> t;
    pon_numero(t, valor, a);
    return texto_nuevo(t);
}

template <class C>
C *double_a_string(double valor, C sep_millares, C sep_decimales, vnbool cientifica, int32_t decimales) {
    if (!AFIRMA(sep_millares != sep_decimales) || !AFIRMA_LOGICO(cientifica)) return nullptr;
    return numero_nuevo<C>(valor, {sep_millares, sep_decimales, cientifica == CIERTO, decimales});
}

template <class C> C *todos_los_decimales(double valor) {
    texto_numero<C> t;
    pon_numero<C>(t, valor, {0, '.', false, AUTOMATICOS});
    // A real number is told from a whole one by its point.
    if (t.decimales() == 0) t.pon_detras('.');
    return texto_nuevo(t);
}

// A separator of either width; the other one where the ANSI page lacks it or needs two bytes for it.
template <class C> C separador(vnwchar c, char otro) {
    if (sizeof(C) > 1 || c < 0x80) return static_cast<C>(c);
    const vnwchar texto[] = {c, 0};
    const propio<char> ansi(unicode_UNICODE_a_ANSI(texto));
    return static_cast<C>(ansi.get()[0] == '?' || ansi.get()[1] != 0 ? otro : ansi.get()[0]);
}

// How the region shows numbers.
template <class C> aspecto<C> de_la_region(int32_t decimales, bool con_millares) {
    vnwchar decimal, millares;
    vnregional_separadores(&decimal, &millares);
    const C d = separador<C>(decimal != 0 ? decimal : VNU('.'), '.'),
            m = con_millares ? separador<C>(millares, 0) : C{0};
    // Where both come out as one sign there are no groups.
    return {m == d ? C{0} : m, d, false, decimales};
}

template <class C> C *entero_a_string(int64_t valor, C sep_millares) {
    texto_numero<C> t;
    t.pon_decimal(static_cast<uint64_t>(valor < 0 ? -valor : valor), 0, sep_millares, 0);
    if (valor < 0) t.pon('-');
    return texto_nuevo(t);
}

// A digit from 0 to 9 in the letters of its place: a the unit of it, b five and c ten of those.
constexpr std::string_view CIFRA_ROMANA[] = {"", "a", "aa", "aaa", "ab", "b", "ba", "baa", "baaa", "ac"};

template <class C> void pon_cifra_romana(texto_numero<C> &t, int32_t cifra, std::string_view letras) {
    const std::string_view &p = CIFRA_ROMANA[cifra];
    // The text is written from its end to its beginning.
    for (auto c = p.rbegin(); c != p.rend(); ++c) t.pon(static_cast<C>(letras[static_cast<size_t>(*c - 'a')]));
}

template <class C> C *romano(int32_t valor) {
    if (!AFIRMA(valor > 0) || !AFIRMA(valor < 100)) return nullptr;
    texto_numero<C> t;
    pon_cifra_romana(t, valor % 10, "IVX");
    pon_cifra_romana(t, valor / 10, "XLC");
    return texto_nuevo(t);
}

} // namespace

template <class C> C *texto_nuevo(const texto_numero<C> &t) {
    C *s = nuevo<C>(t.largo());
    std::char_traits<C>::copy(s, t.letras(), t.largo());
    return s;
}

#define DE_UN_ANCHO(C)                                                                                                 \
    template bool aspecto_bueno<C>(const aspecto<C> &);                                                                \
    template void pon_numero<C>(texto_numero<C> &, double, const aspecto<C> &);                                        \
    template C *texto_nuevo<C>(const texto_numero<C> &);
DE_UN_ANCHO(char)
DE_UN_ANCHO(vnwchar)

} // namespace vn

using namespace vn;

char *num_double_a_string(double valor, char sep_millares, char sep_decimales, vnbool cientifica, int32_t decimales) {
    return double_a_string(valor, sep_millares, sep_decimales, cientifica, decimales);
}
vnwchar *num_double_a_string_u(double valor, vnwchar sep_millares, vnwchar sep_decimales, vnbool cientifica,
                               int32_t decimales) {
    return double_a_string(valor, sep_millares, sep_decimales, cientifica, decimales);
}

char *vornnum_double_a_cadena_printf_todos_decimales(double valor) { return todos_los_decimales<char>(valor); }
vnwchar *vornnum_double_a_cadena_printf_todos_decimales_u(double valor) { return todos_los_decimales<vnwchar>(valor); }

char *vornnum_double_a_string_con_formato_windows(double valor, int32_t decimales) {
    return numero_nuevo(valor, de_la_region<char>(decimales, true));
}
vnwchar *vornnum_double_a_string_con_formato_windows_u(double valor, int32_t decimales) {
    return vornnum_double_a_string_con_formato_windows_ex_u(valor, decimales, 0, 0);
}
vnwchar *vornnum_double_a_string_con_formato_windows_ex_u(double valor, int32_t decimales, uint16_t relleno_izquierda,
                                                          uint16_t relleno_derecha) {
    const auto a = de_la_region<vnwchar>(decimales, true);
    if (!aspecto_bueno(a)) return nullptr;
    texto_numero<vnwchar> t;
    pon_numero(t, valor, a);
    const size_t delante = std::max<size_t>(t.largo() - t.decimales(), relleno_izquierda),
                 len = delante + std::max<size_t>(t.decimales(), relleno_derecha);
    if (!AFIRMA(len < TAM_BUFFER_NUM)) return nullptr;
    vnwchar *const s = nuevo<vnwchar>(len);
    std::fill_n(s, len, static_cast<vnwchar>(' '));
    std::copy_n(t.letras(), t.largo(), s + delante - (t.largo() - t.decimales()));
    return s;
}
char *vornnum_double_a_string_con_formato_windows_solo_separador_decimales(double valor, int32_t decimales) {
    return numero_nuevo(valor, de_la_region<char>(decimales, false));
}

char *num_long_a_string(int32_t valor, char sep_millares) { return entero_a_string(valor, sep_millares); }
vnwchar *num_long_a_string_u(int32_t valor, vnwchar sep_millares) { return entero_a_string(valor, sep_millares); }
char *num_ulong_a_string(uint32_t valor, char sep_millares) { return entero_a_string(valor, sep_millares); }
vnwchar *num_ulong_a_string_u(uint32_t valor, vnwchar sep_millares) { return entero_a_string(valor, sep_millares); }

char *vornnum_convierte_a_numero_romano(int32_t valor) { return romano<char>(valor); }
vnwchar *vornnum_convierte_a_numero_romano_u(int32_t valor) { return romano<vnwchar>(valor); }
