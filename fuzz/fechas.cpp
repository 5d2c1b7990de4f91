// Dates out of texts: whatever the text, a date that is one or nothing at all, and no report. A date that was read is
// written in a form that reads as the same date.
#include "foundation/suelo/propio_int.h"
#include "objetivo.h"
#include "time/vorntime.h"
#include <cstring>
#include <memory>

namespace {

constexpr tmtime INTACTA{-1, -2, -3, -4, -5, -6, -7, -8, -9};

// The text in room of its very size, so that one unit beyond its end is seen.
template <class C> std::unique_ptr<C[]> texto(const uint8_t *datos, size_t n) {
    const size_t unidades = n / sizeof(C);
    auto t = std::make_unique<C[]>(unidades + 1);
    if (unidades > 0) std::memcpy(t.get(), datos, unidades * sizeof(C));
    return t;
}

void comprueba(vnbool es_fecha, const tmtime &f) {
    if (es_fecha == FALSO) {
        fuzz::exige(std::memcmp(&f, &INTACTA, sizeof f) == 0, "what is no date changes nothing");
        return;
    }
    const struct {
        int32_t campo, minimo, maximo;
    } rangos[] = {{f.tm_sec, 0, 59},   {f.tm_min, 0, 59}, {f.tm_hour, 0, 23},  {f.tm_mday, 1, 31}, {f.tm_mon, 0, 11},
                  {f.tm_year, 0, 200}, {f.tm_wday, 0, 6}, {f.tm_yday, 0, 365}, {f.tm_isdst, 0, 0}};
    for (const auto &r : rangos) fuzz::exige(r.campo >= r.minimo && r.campo <= r.maximo, "every field in its range");
    const auto dias = vorntime_num_dias_mes(static_cast<uint32_t>(f.tm_mon), f.tm_year + 1900);
    fuzz::exige(f.tm_mday <= static_cast<int32_t>(dias), "a day of the month");
    const vn::propio<vnwchar> escrita(vtm_fecha_a_cadena(nullptr, &f, '/'));
    tmtime otra = INTACTA;
    fuzz::exige(vtm_convierte_cadena_a_tm_u(escrita.get(), &otra) == CIERTO, "what is written can be read");
    fuzz::exige(std::memcmp(&f, &otra, sizeof f) == 0, "and reads as it was written");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    const auto ancha = [](const char *s) {
        std::string r;
        for (; *s != 0; ++s) r += {*s, '\0'};
        return r;
    };
    return {"29/2/2000", "5/6/85 12:30",           " 31-12-2100 23:59:59",
            "+1:01 007", ancha("29/2/2000 1:2:3"), ancha("4 3 70")};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    fuzz::con_fichero(datos, n, fuzz::cota(n), [=] {
        tmtime f = INTACTA;
        comprueba(vtm_convierte_cadena_a_tm(texto<char>(datos, n).get(), &f), f);
        f = INTACTA;
        comprueba(vtm_convierte_cadena_a_tm_u(texto<vnwchar>(datos, n).get(), &f), f);
        fuzz::exige(fuzz::informes() == 0, "no text is reported");
    });
    return 0;
}
