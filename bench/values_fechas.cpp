// Dates: to seconds and back, and their text. The date library is inlined; ours is a call for each date.
#include "foundation/suelo/vornspy.h"
#include "time/vorntime.h"
#include "values.h"
#include <cstdio>
#include <ctime>
#ifdef CON_DATE
#include <date/date.h>
#endif

namespace {

constexpr size_t N = 200'000;
std::vector<tmtime> fechas; // of 1973 to 2099, where the two calendars are one
std::vector<int64_t> tiempos;
int64_t suma = 0;

int64_t segundos(const tmtime &f) { return vtm_convierte_fecha_a_time_t(&f); }
int64_t vuelta(int64_t t) {
    tmtime f;
    vtm_convierte_time64t_a_fecha(t, &f);
    return f.tm_year * 10000 + f.tm_mon * 100 + f.tm_mday + f.tm_hour + f.tm_min + f.tm_sec;
}

#ifdef CON_DATE
int64_t segundos_date(const tmtime &f) {
    using namespace date;
    const auto mes = static_cast<unsigned>(f.tm_mon + 1), dia = static_cast<unsigned>(f.tm_mday);
    const sys_days d = year{f.tm_year + 1900} / month(mes) / day(dia);
    return d.time_since_epoch().count() * int64_t{86400} + f.tm_hour * 3600 + f.tm_min * 60 + f.tm_sec;
}
int64_t vuelta_date(int64_t t) {
    using namespace date;
    const sys_seconds s{std::chrono::seconds(t)};
    const sys_days dia = floor<days>(s);
    const year_month_day d{dia};
    const hh_mm_ss h{s - dia};
    return (static_cast<int>(d.year()) - 1900) * 10000 +
           (static_cast<int>(static_cast<unsigned>(d.month())) - 1) * 100 +
           static_cast<int>(static_cast<unsigned>(d.day())) + h.hours().count() + h.minutes().count() +
           h.seconds().count();
}
#endif

// The same forms out of the C library, as a program without this one would write them.
int64_t con_snprintf(const tmtime &f) {
    char t[64];
    const int n = std::snprintf(t, sizeof t, "%04d-%02d-%02d %02d.%02d.%02d", f.tm_year + 1900, f.tm_mon + 1, f.tm_mday,
                                f.tm_hour, f.tm_min, f.tm_sec);
    return n + t[9];
}
int64_t con_strftime(const tmtime &f) {
    std::tm g{};
    g.tm_sec = f.tm_sec, g.tm_min = f.tm_min, g.tm_hour = f.tm_hour;
    g.tm_mday = f.tm_mday, g.tm_mon = f.tm_mon, g.tm_year = f.tm_year;
    char t[64];
    const size_t n = std::strftime(t, sizeof t, "%Y-%m-%d %H.%M.%S", &g);
    return static_cast<int64_t>(n) + t[9];
}
int64_t nuestro_texto(const tmtime &f) {
    char *t = vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(&f);
    const int64_t r = 19 + t[9];
    vornspy_free_pp(&t, 1);
    return r;
}

template <int64_t (*F)(const tmtime &)> void con_fechas() {
    for (const tmtime &f : fechas) suma += F(f);
}
template <int64_t (*F)(int64_t)> void con_tiempos() {
    for (const int64_t t : tiempos) suma += F(t);
}

void prepara() {
    constexpr uint64_t DE_1973 = 94694400, DE_2100 = 4102444800;
    bench::azar a(11);
    for (size_t i = 0; i < N; ++i) {
        tiempos.push_back(static_cast<int64_t>(DE_1973 + a.siguiente() % (DE_2100 - DE_1973)));
        tmtime f;
        vtm_convierte_time64t_a_fecha(tiempos.back(), &f);
        fechas.push_back(f);
        bench::debe(segundos(f) == tiempos.back(), "seconds of a date");
        bench::debe(con_snprintf(f) == con_strftime(f) && con_snprintf(f) == nuestro_texto(f), "text of a date");
#ifdef CON_DATE
        bench::debe(segundos_date(f) == tiempos.back(), "the peer's seconds");
        bench::debe(vuelta_date(tiempos.back()) == vuelta(tiempos.back()), "the peer's date");
#endif
    }
}

} // namespace

int bench::fechas(int pasadas) {
    prepara();
    const double n = static_cast<double>(N);
    std::vector<camino> ida{{"ours", n, con_fechas<segundos>}}, de_vuelta{{"ours", n, con_tiempos<vuelta>}};
    std::vector<razon> razon_ida, razon_vuelta;
#ifdef CON_DATE
    ida.push_back({"date library", n, con_fechas<segundos_date>});
    de_vuelta.push_back({"date library", n, con_tiempos<vuelta_date>});
    razon_ida.push_back({"ours", "date library", 1.4});
    razon_vuelta.push_back({"ours", "date library", 0});
#endif
    int fuera = mide("date to seconds, per date", ida, razon_ida, pasadas);
    fuera += mide("seconds to date, per date", de_vuelta, razon_vuelta, pasadas);
    fuera += mide("date and time as a text that sorts, per text",
                  {{"ours, a new text, freed", n, con_fechas<nuestro_texto>},
                   {"snprintf", n, con_fechas<con_snprintf>},
                   {"strftime", n, con_fechas<con_strftime>}},
                  {{"ours, a new text, freed", "snprintf", 0}, {"ours, a new text, freed", "strftime", 0}}, pasadas);
    debe(suma != 0, "the roads gave something");
    return fuera;
}
