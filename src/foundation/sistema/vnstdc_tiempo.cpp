#define VN_MODULO "vnstdc (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/vnstdc_tiempo.h"
#include "foundation/platform/hora.h"
#include "foundation/platform/variables.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/calendario_int.h"
#include "foundation/suelo/eterno_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/unicode.h"
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <list>
#include <map>
#include <mutex>
#include <string>
#include <string_view>
#include <utility>

namespace {

// ---------------------------------------------------------------- text of a time

constexpr std::string_view DIAS[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
constexpr std::string_view MESES[] = {"January", "February", "March",     "April",   "May",      "June",
                                      "July",    "August",   "September", "October", "November", "December"};

// At most so many letters of a name; a question mark for a number that has none.
template <size_t N> std::string_view nombre_de(const std::string_view (&nombres)[N], int i, size_t maximo) {
    return i >= 0 && i < static_cast<int>(N) ? nombres[i].substr(0, maximo) : std::string_view("?");
}

std::string numero(int64_t n, size_t ancho, char relleno = '0') {
    const std::string cifras = std::to_string(std::abs(n));
    std::string texto = n < 0 ? "-" : "";
    // The sign is not counted in the width.
    texto.append(cifras.size() < ancho ? ancho - cifras.size() : 0, relleno);
    return texto + cifras;
}

// Year and week by ISO 8601: the first week is the one with the year's first Thursday.
struct semana_iso {
    int64_t anyo;
    int semana;
};
semana_iso semana_iso_de(const std::tm &t) {
    const int dia = (t.tm_wday + 6) % 7; // from Monday
    const auto semana = [dia](int yday) { return (yday - dia + 10) / 7; };
    // Weeks that a year has: 53 when it begins on a Thursday, or on a Wednesday and is a leap year.
    const auto semanas = [](int64_t anyo, int primer_dia) {
        return primer_dia == 3 || (primer_dia == 2 && vn::es_bisiesto(anyo)) ? 53 : 52;
    };
    const int64_t anyo = int64_t{t.tm_year} + 1900;
    // The day of the week of 1 January, from Monday.
    const int primer_dia = ((dia - t.tm_yday) % 7 + 7) % 7;
    const int s = semana(t.tm_yday);
    // Days before the first week belong to the last one of the year before.
    if (s < 1) {
        const int dias = vn::es_bisiesto(anyo - 1) ? 366 : 365;
        return {anyo - 1, semanas(anyo - 1, ((primer_dia - dias) % 7 + 7) % 7)};
    }
    // Days after the last week belong to the first one of the next year.
    return s > semanas(anyo, primer_dia) ? semana_iso{anyo + 1, 1} : semana_iso{anyo, s};
}

// Seconds since 1970 of a clock on the wall, as if it showed UTC.
int64_t como_utc(const std::tm &t) {
    using namespace std::chrono;
    // Only the month goes through the calendar: days and hours may lie outside their ranges.
    const auto mes = sys_days(year(t.tm_year + 1900) / (t.tm_mon + 1) / 1);
    return (mes.time_since_epoch().count() + t.tm_mday - 1) * int64_t{86400} + t.tm_hour * int64_t{3600} +
           t.tm_min * int64_t{60} + t.tm_sec;
}

// Minutes that the local time of `t` is ahead of UTC: what it is a day before or a day after, whichever gives `t` back.
// In the hour that a change of time repeats, the one whose summer time is that of `t`.
int64_t minutos_sobre_utc(const std::tm &t) {
    constexpr int64_t DIA = 86400;
    if (t.tm_mon < 0 || t.tm_mon > 11 || t.tm_year < -32000 || t.tm_year > 30000) return 0; // beyond what a year can be
    const int64_t pared = como_utc(t);
    std::tm local{};
    int64_t elegido = 0;
    bool hay = false;
    for (const int64_t cuando : {pared - DIA, pared + DIA}) {
        if (!vn::plat::hora_local(cuando, local)) continue;
        const int64_t adelanto = como_utc(local) - cuando;
        // The offset of that day is the one of `t` if it leads back to the same clock.
        const bool vuelve = vn::plat::hora_local(pared - adelanto, local) && como_utc(local) == pared;
        if (!hay || (vuelve && (local.tm_isdst > 0) == (t.tm_isdst > 0))) elegido = adelanto;
        hay = hay || vuelve;
    }
    return elegido / 60;
}

std::string fecha(std::string_view formato, const std::tm &t);

// What one letter stands for; the C locale's words and forms. An unknown one stands for itself.
std::string campo(char letra, const std::tm &t) {
    const int64_t anyo = int64_t{t.tm_year} + 1900;
    const int hora12 = t.tm_hour % 12 == 0 ? 12 : t.tm_hour % 12;
    switch (letra) {
    case 'a': return std::string(nombre_de(DIAS, t.tm_wday, 3));
    case 'A': return std::string(nombre_de(DIAS, t.tm_wday, 9));
    case 'b':
    case 'h': return std::string(nombre_de(MESES, t.tm_mon, 3));
    case 'B': return std::string(nombre_de(MESES, t.tm_mon, 9));
    case 'c': return fecha("%a %b %e %H:%M:%S %Y", t);
    case 'C': return numero(anyo / 100, 2);
    case 'd': return numero(t.tm_mday, 2);
    case 'D':
    case 'x': return fecha("%m/%d/%y", t);
    case 'e': return numero(t.tm_mday, 2, ' ');
    case 'F': return fecha("%Y-%m-%d", t);
    case 'g': return numero(semana_iso_de(t).anyo % 100, 2);
    case 'G': return numero(semana_iso_de(t).anyo, 4);
    case 'H': return numero(t.tm_hour, 2);
    case 'I': return numero(hora12, 2);
    case 'j': return numero(int64_t{t.tm_yday} + 1, 3);
    case 'm': return numero(int64_t{t.tm_mon} + 1, 2);
    case 'M': return numero(t.tm_min, 2);
    case 'n': return "\n";
    case 'p': return t.tm_hour < 0 || t.tm_hour > 23 ? "?" : t.tm_hour < 12 ? "AM" : "PM";
    case 'r': return fecha("%I:%M:%S %p", t);
    case 'R': return fecha("%H:%M", t);
    case 'S': return numero(t.tm_sec, 2);
    case 't': return "\t";
    case 'T':
    case 'X': return fecha("%H:%M:%S", t);
    case 'u': return numero(t.tm_wday == 0 ? 7 : t.tm_wday, 1);
    case 'U': return numero((int64_t{t.tm_yday} + 7 - t.tm_wday) / 7, 2);
    case 'V': return numero(semana_iso_de(t).semana, 2);
    case 'w': return numero(t.tm_wday, 1);
    case 'W': return numero((int64_t{t.tm_yday} + 7 - (t.tm_wday + 6) % 7) / 7, 2);
    case 'y': return numero(anyo % 100, 2);
    case 'Y': return numero(anyo, 1);
    case 'z': {
        const int64_t m = minutos_sobre_utc(t);
        return (m < 0 ? "-" : "+") + numero(std::abs(m) / 60, 2) + numero(std::abs(m) % 60, 2);
    }
    case 'Z': return "";
    case '%': return "%";
    default: return std::string("%") + letra;
    }
}

std::string fecha(std::string_view formato, const std::tm &t) {
    std::string texto;
    for (size_t i = 0; i < formato.size(); ++i) {
        if (formato[i] == '%' && i + 1 < formato.size()) texto += campo(formato[++i], t);
        else texto += formato[i];
    }
    return texto;
}

// A record whose fields no arithmetic overflows.
std::tm acotada(std::tm t) {
    for (int *campo : {&t.tm_sec, &t.tm_min, &t.tm_hour, &t.tm_mday, &t.tm_mon, &t.tm_year, &t.tm_wday, &t.tm_yday})
        *campo = std::clamp(*campo, -100000000, 100000000);
    return t;
}

template <class C> size_t escribe_fecha(C *destino, size_t n, const C *formato, const std::tm &sin_acotar) {
    const std::tm t = acotada(sin_acotar);
    size_t longitud = 0;
    // What no longer fits is counted too, so that the end knows of it.
    const auto pon = [&](C c) {
        if (longitud < n) destino[longitud] = c;
        ++longitud;
    };
    for (const C *p = formato; *p != 0 && longitud < n; ++p) {
        // A percent sign at the end, or before a character beyond ASCII, stands for itself.
        if (*p != '%' || p[1] == 0 || p[1] >= 0x80 || p[1] < 0) {
            pon(*p);
            continue;
        }
        // The E and O modifiers change nothing here.
        if ((p[1] == 'E' || p[1] == 'O') && p[2] > 0 && p[2] < 0x80) ++p;
        for (const char c : campo(static_cast<char>(*++p), t)) pon(static_cast<C>(c));
    }
    // A text that does not fit with its end is none at all.
    if (longitud >= n) {
        if (n > 0) destino[0] = 0;
        return 0;
    }
    destino[longitud] = 0;
    return longitud;
}

// ---------------------------------------------------------------- environment

template <class C> using texto_de = std::basic_string<C>;
using texto_u = texto_de<vnwchar>;

// Of each variable, the values that were lent last: other threads and exit cleaners may still hold one.
constexpr size_t VALORES_PRESTADOS = 16;

template <class C> C *presta(const texto_u &nombre, texto_de<C> valor) {
    struct prestados {
        std::mutex cerrojo;
        std::map<texto_u, std::list<texto_de<C>>> de; // the last one first
    };
    auto &p = vn::eterno<prestados>();
    const std::lock_guard dentro(p.cerrojo);
    std::list<texto_de<C>> &suyos = p.de[nombre];
    // A value lent before keeps its place in memory and only moves to the front.
    const auto igual = std::find(suyos.begin(), suyos.end(), valor);
    if (igual != suyos.end()) suyos.splice(suyos.begin(), suyos, igual);
    else suyos.push_front(std::move(valor));
    if (suyos.size() > VALORES_PRESTADOS) suyos.pop_back();
    return suyos.front().data();
}

bool nombre_posible(const vnwchar *nombre) {
    const std::basic_string_view<vnwchar> n(nombre);
    return !n.empty() && n.find(VNU('=')) == n.npos;
}

int asigna(const vnwchar *asignacion) {
    const texto_u a(asignacion);
    // The first equals sign ends the name; those of the value stay in it.
    const size_t igual = a.find(VNU('='));
    if (igual == 0 || igual == a.npos) return -1;
    return vn::plat::establece_variable(a.substr(0, igual).c_str(), a.c_str() + igual + 1) ? 0 : -1;
}

} // namespace

size_t vnstdc_strftime(char *destino, size_t n, const char *formato, const struct tm *t) {
    if (!EXIGE(destino, formato, t)) return 0;
    return escribe_fecha(destino, n, formato, *t);
}

size_t vnstdc_wcsftime(vnwchar *destino, size_t n, const vnwchar *formato, const struct tm *t) {
    if (!EXIGE(destino, formato, t)) return 0;
    return escribe_fecha(destino, n, formato, *t);
}

int64_t vnstdc__time64(int64_t *t) {
    using namespace std::chrono;
    const int64_t ahora = floor<seconds>(system_clock::now()).time_since_epoch().count();
    if (t != nullptr) *t = ahora;
    return ahora;
}

struct tm *vnstdc__localtime64(const int64_t *t) {
    // The record is the thread's own and lives until its next call.
    thread_local std::tm local;
    if (!AFIRMA_NO_NULO(t)) return nullptr;
    return vn::plat::hora_local(*t, local) ? &local : nullptr;
}

char *vnstdc_getenv(const char *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    const vn::propio<vnwchar> ancho(unicode_convierte_ANSI_a_UNICODE(nombre));
    texto_u valor;
    if (!nombre_posible(ancho.get()) || !vn::plat::lee_variable(ancho.get(), valor)) return nullptr;
    const vn::propio<char> ansi(unicode_UNICODE_a_ANSI(valor.c_str()));
    return presta<char>(ancho.get(), ansi.get());
}

vnwchar *vnstdc__wgetenv(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    texto_u valor;
    if (!nombre_posible(nombre) || !vn::plat::lee_variable(nombre, valor)) return nullptr;
    return presta(nombre, std::move(valor));
}

int vnstdc_putenv(const char *asignacion) {
    if (!AFIRMA_NO_NULO(asignacion)) return -1;
    const vn::propio<vnwchar> ancho(unicode_convierte_ANSI_a_UNICODE(asignacion));
    return asigna(ancho.get());
}

int vnstdc__wputenv(const vnwchar *asignacion) { return AFIRMA_NO_NULO(asignacion) ? asigna(asignacion) : -1; }
