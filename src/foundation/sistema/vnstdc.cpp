#define VN_MODULO "vnstdc (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/vnstdc.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/numero_int.h"
#include <algorithm>
#include <cmath>
#include <cstring>
#include <string_view>

namespace {

template <class C> using rasgos = std::char_traits<C>;
template <class C> using vista = std::basic_string_view<C>;

// The place in `s` at an index of it, or null; the caller may have had the text from a writable one.
template <class C> C *lugar(const C *s, size_t i) { return i == vista<C>::npos ? nullptr : const_cast<C *>(s + i); }

template <class C> C *copia(C *destino, const C *origen) {
    // The texts may overlap, as when one is shifted inside itself.
    return rasgos<C>::move(destino, origen, rasgos<C>::length(origen) + 1);
}

template <class C> C *copia_n(C *destino, const C *origen, size_t n) {
    const C *fin = rasgos<C>::find(origen, n, C{0});
    const size_t longitud = fin == nullptr ? n : static_cast<size_t>(fin - origen);
    rasgos<C>::move(destino, origen, longitud);
    // What is left of the room becomes zeros; a text that fills it has no end.
    std::fill(destino + longitud, destino + n, C{0});
    return destino;
}

template <class C> C *busca(const C *s, C c) {
    // The end of the text counts as one of its characters.
    return lugar(s, vista<C>(s, rasgos<C>::length(s) + 1).find(c));
}

template <class C> C *busca_alguno(const C *s, const C *caracteres) {
    return lugar(s, vista<C>(s).find_first_of(caracteres));
}

} // namespace

// ---------------------------------------------------------------- bytes

void *vnstdc_memcpy(void *destino, const void *origen, size_t n) {
    if (!EXIGE(destino, origen)) return destino;
    // Ranges that overlap arrive whole.
    return std::memmove(destino, origen, n);
}

void *vnstdc_memset(void *destino, int c, size_t n) {
    return AFIRMA_NO_NULO(destino) ? std::memset(destino, c, n) : nullptr;
}

int vnstdc_memcmp(const void *a, const void *b, size_t n) { return EXIGE(a, b) ? std::memcmp(a, b, n) : 0; }

// ---------------------------------------------------------------- ANSI texts

size_t vnstdc_strlen(const char *s) { return AFIRMA_NO_NULO(s) ? std::strlen(s) : 0; }
char *vnstdc_strcpy(char *destino, const char *origen) {
    return EXIGE(destino, origen) ? copia(destino, origen) : destino;
}
char *vnstdc_strncpy(char *destino, const char *origen, size_t n) {
    return EXIGE(destino, origen) ? copia_n(destino, origen, n) : destino;
}
char *vnstdc_strcat(char *destino, const char *origen) {
    if (EXIGE(destino, origen)) copia(destino + std::strlen(destino), origen);
    return destino;
}
int vnstdc_strcmp(const char *a, const char *b) { return EXIGE(a, b) ? std::strcmp(a, b) : 0; }
char *vnstdc_strchr(const char *s, int c) { return AFIRMA_NO_NULO(s) ? busca(s, static_cast<char>(c)) : nullptr; }
char *vnstdc_strstr(const char *s, const char *t) {
    return EXIGE(s, t) ? lugar(s, std::string_view(s).find(t)) : nullptr;
}
char *vnstdc_strpbrk(const char *s, const char *caracteres) {
    return EXIGE(s, caracteres) ? busca_alguno(s, caracteres) : nullptr;
}

// ---------------------------------------------------------------- wide texts

size_t vnstdc_wcslen(const vnwchar *s) { return AFIRMA_NO_NULO(s) ? rasgos<vnwchar>::length(s) : 0; }
vnwchar *vnstdc_wcscpy(vnwchar *destino, const vnwchar *origen) {
    return EXIGE(destino, origen) ? copia(destino, origen) : destino;
}
vnwchar *vnstdc_wcsncpy(vnwchar *destino, const vnwchar *origen, size_t n) {
    return EXIGE(destino, origen) ? copia_n(destino, origen, n) : destino;
}
vnwchar *vnstdc_wcscat(vnwchar *destino, const vnwchar *origen) {
    if (EXIGE(destino, origen)) copia(destino + rasgos<vnwchar>::length(destino), origen);
    return destino;
}
vnwchar *vnstdc_wcschr(const vnwchar *s, vnwchar c) { return AFIRMA_NO_NULO(s) ? busca(s, c) : nullptr; }
vnwchar *vnstdc_wcsrchr(const vnwchar *s, vnwchar c) {
    return AFIRMA_NO_NULO(s) ? lugar(s, vista<vnwchar>(s, rasgos<vnwchar>::length(s) + 1).rfind(c)) : nullptr;
}
vnwchar *vnstdc_wcspbrk(const vnwchar *s, const vnwchar *caracteres) {
    return EXIGE(s, caracteres) ? busca_alguno(s, caracteres) : nullptr;
}
size_t vnstdc_wcscspn(const vnwchar *s, const vnwchar *caracteres) {
    if (!EXIGE(s, caracteres)) return 0;
    const vista<vnwchar> v(s);
    return std::min(v.find_first_of(caracteres), v.size());
}

// ---------------------------------------------------------------- numbers

int vnstdc_atoi(const char *s) { return AFIRMA_NO_NULO(s) ? vn::texto::lee_entero<int32_t>(s).valor : 0; }
int vnstdc__wtoi(const vnwchar *s) { return AFIRMA_NO_NULO(s) ? vn::texto::lee_entero<int32_t>(s).valor : 0; }
int32_t vnstdc__wtol(const vnwchar *s) { return AFIRMA_NO_NULO(s) ? vn::texto::lee_entero<int32_t>(s).valor : 0; }

double vnstdc_wcstod(const vnwchar *s, vnwchar **fin) {
    const vn::texto::leido<double> numero = AFIRMA_NO_NULO(s) ? vn::texto::lee_double(s) : vn::texto::leido<double>{};
    if (fin != nullptr) *fin = s == nullptr ? nullptr : lugar(s, numero.consumido);
    return numero.valor;
}

// Only ASCII counts, whatever the locale.
int vnstdc_isalpha(int c) { return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z'); }
int vnstdc_isdigit(int c) { return c >= '0' && c <= '9'; }

// The smallest number has no positive counterpart in 32 bits, and stays.
int32_t vnstdc_labs(int32_t x) { return x == INT32_MIN ? x : std::abs(x); }
double vnstdc_fabs(double x) { return std::fabs(x); }
double vnstdc_sin(double x) { return std::sin(x); }
double vnstdc_cos(double x) { return std::cos(x); }
double vnstdc_tan(double x) { return std::tan(x); }
double vnstdc_asin(double x) { return std::asin(x); }
double vnstdc_acos(double x) { return std::acos(x); }
double vnstdc_atan2(double y, double x) { return std::atan2(y, x); }
double vnstdc_pow(double x, double y) { return std::pow(x, y); }
double vnstdc_log10(double x) { return std::log10(x); }
double vnstdc_floor(double x) { return std::floor(x); }
double vnstdc_ceil(double x) { return std::ceil(x); }
double vnstdc_fmod(double x, double y) { return std::fmod(x, y); }

void vnstdc_clearerr(vnfichero *f) {
    if (AFIRMA_NO_NULO(f)) lc_borra_error(f);
}
