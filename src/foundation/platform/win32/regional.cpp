#include "foundation/platform/regional.h"
#include <windows.h>

namespace vn::plat {
namespace {

// An item of the system's and the setting that it becomes; all are texts, numbers too.
struct fila {
    LCTYPE numero;
    std::wstring region::*campo;
};
constexpr fila DATOS[] = {
    {LOCALE_SLIST, &region::separador_campos},
    {LOCALE_SDECIMAL, &region::separador_decimal},
    {LOCALE_STHOUSAND, &region::separador_millares},
    {LOCALE_SDATE, &region::separador_fechas},
    {LOCALE_STIME, &region::separador_horas},
    {LOCALE_SSHORTDATE, &region::fecha_corta},
    {LOCALE_SLONGDATE, &region::fecha_larga},
    {LOCALE_STIMEFORMAT, &region::hora},
    {LOCALE_IDATE, &region::orden_fecha},
    {LOCALE_ITIME, &region::modo_horario},
    {LOCALE_SGROUPING, &region::agrupacion},
    {LOCALE_SNEGATIVESIGN, &region::signo_menos},
    {LOCALE_S1159, &region::antes_de_mediodia},
    {LOCALE_S2359, &region::despues_de_mediodia},
    {LOCALE_IDIGITS, &region::decimales},
    {LOCALE_ILZERO, &region::cero_inicial},
    {LOCALE_INEGNUMBER, &region::forma_negativa},
};

class lector {
  public:
    explicit lector(const wchar_t *nombre, LCTYPE como) : nombre_(nombre), como_(como) {}

    // False when the system has no such item.
    bool operator()(LCTYPE numero, std::wstring &texto) const {
        wchar_t sitio[160];
        const int n = GetLocaleInfoEx(nombre_, numero | como_, sitio, sizeof sitio / sizeof *sitio);
        if (n <= 0) return false;
        texto.assign(sitio, static_cast<size_t>(n) - 1);
        return true;
    }

    template <size_t N> bool operator()(LCTYPE primero, std::array<std::wstring, N> &textos) const {
        for (size_t i = 0; i < N; ++i)
            if (!(*this)(primero + static_cast<LCTYPE>(i), textos[i])) return false;
        return true;
    }

  private:
    const wchar_t *nombre_;
    LCTYPE como_;
};

// Monday comes first to the system.
bool lee_dias(const lector &lee, LCTYPE lunes, std::array<std::wstring, 7> &dias) {
    for (LCTYPE i = 0; i < 7; ++i)
        if (!lee(lunes + i, dias[(i + 1) % 7])) return false;
    return true;
}

} // namespace

// Nothing tells of a change, so the settings are read again each time.
std::string origen_de_la_region() { return {}; }

bool lee_region(const char *nombre, region &r) {
    std::wstring ancho;
    if (nombre != nullptr) {
        for (; *nombre != 0; ++nombre) ancho += static_cast<wchar_t>(static_cast<unsigned char>(*nombre));
        if (ancho.empty() || !IsValidLocaleName(ancho.c_str())) return false;
    }
    const wchar_t *el_nombre = ancho.empty() ? LOCALE_NAME_USER_DEFAULT : ancho.c_str();
    // A region by name is read without what this user has changed in it.
    const lector lee(el_nombre, ancho.empty() ? 0 : LOCALE_NOUSEROVERRIDE);
    for (const fila &f : DATOS)
        if (!lee(f.numero, r.*f.campo)) return false;
    if (!lee_dias(lee, LOCALE_SDAYNAME1, r.dias) || !lee_dias(lee, LOCALE_SABBREVDAYNAME1, r.dias_abreviados) ||
        !lee(LOCALE_SMONTHNAME1, r.meses) || !lee(LOCALE_SABBREVMONTHNAME1, r.meses_abreviados))
        return false;
    r.dias_en_fecha = r.dias;
    r.dias_abreviados_en_fecha = r.dias_abreviados;
    // The form of a month beside its day; a language without one has its plain name.
    for (LCTYPE i = 0; i < 12; ++i)
        if (!lee((LOCALE_SMONTHNAME1 + i) | LOCALE_RETURN_GENITIVE_NAMES, r.meses_en_fecha[i]) ||
            r.meses_en_fecha[i].empty())
            r.meses_en_fecha[i] = r.meses[i];
    wchar_t era[80];
    r.era = GetCalendarInfoEx(el_nombre, CAL_GREGORIAN, nullptr, CAL_SERASTRING, era, 80, nullptr) > 0 ? era : L"";
    return true;
}

} // namespace vn::plat
