#include "foundation/platform/regional.h"
#include <algorithm>
#include <cstdlib>
#include <memory>
#include <string_view>
#include <unicode/udat.h>
#include <unicode/unum.h>
#include <unicode/ures.h>

namespace vn::plat {
namespace {

using vista = std::basic_string_view<vnwchar>;

// These handles are void * to the tables, whose closing operations vn::dueno would hand the address of a pointer.
template <auto CIERRA> struct cierra {
    template <class T> void operator()(T *p) const { CIERRA(p); }
};
using fechas = std::unique_ptr<UDateFormat, cierra<udat_close>>;
using numeros = std::unique_ptr<UNumberFormat, cierra<unum_close>>;

// The region of a category: what the environment says first, empty variables aside.
std::string del_entorno(const char *categoria) {
    for (const char *nombre : {"LC_ALL", categoria, "LANG"})
        if (const char *valor = std::getenv(nombre); valor != nullptr && *valor != 0) return valor;
    return "C";
}

// The tables' name of a region; empty if they have no such language.
std::string canonico(const std::string &nombre) {
    if (nombre.empty() || nombre.size() > 100) return "";
    const std::string_view sin_juego = std::string_view(nombre).substr(0, nombre.find('.'));
    // An environment without a region reads as English of the United States.
    if (sin_juego == "C" || sin_juego == "POSIX") return "en_US";
    char sitio[ULOC_FULLNAME_CAPACITY];
    UErrorCode error = U_ZERO_ERROR;
    const int32_t n = uloc_canonicalize(nombre.c_str(), sitio, sizeof sitio, &error);
    if (U_FAILURE(error) || n <= 0 || error == U_STRING_NOT_TERMINATED_WARNING) return "";
    const std::unique_ptr<UResourceBundle, cierra<ures_close>> tabla(ures_open(nullptr, sitio, &error));
    // Data of the default region mean that the tables do not know the language.
    return U_FAILURE(error) || error == U_USING_DEFAULT_WARNING ? "" : sitio;
}

// Runs a call of the tables that fills room and says how much it needs.
template <class F> cadena_ancha con_sitio(F llama) {
    cadena_ancha t(64, 0);
    // The second time with the room that the first one asked for.
    for (int vez = 0; vez < 2; ++vez) {
        UErrorCode error = U_ZERO_ERROR;
        const int32_t n = llama(t.data(), static_cast<int32_t>(t.size()), &error);
        const bool cabe = error != U_BUFFER_OVERFLOW_ERROR;
        if (cabe && U_FAILURE(error)) break;
        t.resize(static_cast<size_t>(n));
        if (cabe) return t;
    }
    return {};
}

fechas abre(const std::string &nombre, UDateFormatStyle hora, UDateFormatStyle fecha) {
    UErrorCode error = U_ZERO_ERROR;
    fechas f(udat_open(hora, fecha, nombre.c_str(), nullptr, -1, nullptr, -1, &error));
    return U_SUCCESS(error) ? std::move(f) : nullptr;
}

// ---------------------------------------------------------------- pictures

// A field of the tables' patterns and its letter in a picture; the ones that a picture has no letter for are left out.
struct campo {
    vnwchar suyo, nuestro;
    size_t minimo, maximo; // of letters
};
constexpr campo CAMPOS[] = {
    {u'd', u'd', 1, 2}, {u'E', u'd', 3, 4}, {u'c', u'd', 3, 4}, {u'M', u'M', 1, 4},
    {u'L', u'M', 1, 4}, {u'y', u'y', 4, 4}, {u'G', u'g', 2, 2}, {u'h', u'h', 1, 2},
    {u'K', u'h', 1, 2}, {u'H', u'H', 1, 2}, {u'k', u'H', 1, 2}, {u'm', u'm', 1, 2},
    {u's', u's', 1, 2}, {u'a', u't', 2, 2}, {u'b', u't', 2, 2}, {u'B', u't', 2, 2},
};

const campo *campo_de(vnwchar c) {
    for (const campo &f : CAMPOS)
        if (f.suyo == c) return &f;
    return nullptr;
}

bool es_letra(vnwchar c) { return (c | 32) >= u'a' && (c | 32) <= u'z'; }

// Where the quoted text that begins at `i` ends, past its closing quote.
size_t fin_de_cita(vista s, size_t i) {
    for (++i; i < s.size(); ++i)
        if (s[i] == u'\'') return i + 1;
    return i;
}

cadena_ancha patron_de(const UDateFormat *f) {
    return con_sitio([&](vnwchar *p, int32_t n, UErrorCode *e) { return udat_toPattern(f, 0, p, n, e); });
}

// The picture of a pattern: quoting is the same in both, and a year has four digits, as in a short date of Windows.
cadena_ancha modelo_de(const cadena_ancha &patron) {
    cadena_ancha modelo;
    for (size_t i = 0; i < patron.size();) {
        const vnwchar c = patron[i];
        size_t fin = i + 1;
        if (c == u'\'') {
            fin = fin_de_cita(patron, i);
            modelo.append(patron, i, fin - i);
        } else if (es_letra(c)) {
            while (fin < patron.size() && patron[fin] == c) ++fin;
            if (const campo *k = campo_de(c))
                modelo.append(std::min(std::max(fin - i, k->minimo), k->maximo), k->nuestro);
        } else {
            modelo += c;
        }
        i = fin;
    }
    return modelo;
}

// The text between the first two fields of a picture.
cadena_ancha separador_de(vista modelo) {
    cadena_ancha s;
    size_t i = modelo.find_first_of(u"dMyhHms");
    if (i == vista::npos) return s;
    i = modelo.find_first_not_of(modelo[i], i);
    for (; i < modelo.size() && !es_letra(modelo[i]); ++i) {
        if (modelo[i] != u'\'') {
            s += modelo[i];
            continue;
        }
        const size_t fin = fin_de_cita(modelo, i);
        s.append(modelo.substr(i + 1, fin - i - 2));
        i = fin - 1;
    }
    return s;
}

// The system's number of an order: 0 begins with the month, 1 with the day, 2 with the year.
vnwchar orden_de(vista modelo) {
    const size_t d = modelo.find(u'd'), m = modelo.find(u'M'), y = modelo.find(u'y');
    return y < d && y < m ? u'2' : d < m ? u'1' : u'0';
}

// ---------------------------------------------------------------- the settings

template <size_t N> void lee_nombres(const UDateFormat *f, UDateFormatSymbolType que, int32_t primero,
                                     std::array<cadena_ancha, N> &nombres) {
    for (size_t i = 0; i < N; ++i)
        nombres[i] = con_sitio([&](vnwchar *p, int32_t n, UErrorCode *e) {
            return udat_getSymbols(f, que, primero + static_cast<int32_t>(i), p, n, e);
        });
}

// The dates of the library are Gregorian, and so must pictures and names be where people use another calendar.
std::string con_calendario(const std::string &nombre) {
    char sitio[ULOC_FULLNAME_CAPACITY + 32] = {};
    UErrorCode error = U_ZERO_ERROR;
    nombre.copy(sitio, ULOC_FULLNAME_CAPACITY);
    uloc_setKeywordValue("calendar", "gregorian", sitio, sizeof sitio, &error);
    return U_FAILURE(error) ? nombre : sitio;
}

bool lee_fechas(const std::string &nombre, region &r) {
    const std::string suyo = con_calendario(nombre);
    const fechas corta = abre(suyo, UDAT_NONE, UDAT_SHORT), larga = abre(suyo, UDAT_NONE, UDAT_FULL);
    const fechas hora = abre(suyo, UDAT_MEDIUM, UDAT_NONE);
    if (!corta || !larga || !hora) return false;
    const cadena_ancha patron_largo = patron_de(larga.get());
    r.fecha_corta = modelo_de(patron_de(corta.get()));
    r.fecha_larga = modelo_de(patron_largo);
    r.hora = modelo_de(patron_de(hora.get()));
    r.separador_fechas = separador_de(r.fecha_corta);
    r.separador_horas = separador_de(r.hora);
    r.orden_fecha = orden_de(r.fecha_corta);
    r.modo_horario = r.hora.find(u'H') != cadena_ancha::npos ? u'1' : u'0';
    const UDateFormat *f = larga.get();
    lee_nombres(f, UDAT_STANDALONE_WEEKDAYS, 1, r.dias);
    lee_nombres(f, UDAT_STANDALONE_SHORT_WEEKDAYS, 1, r.dias_abreviados);
    // A region says which form its dates take.
    const bool solos = patron_largo.find(u'c') != cadena_ancha::npos;
    lee_nombres(f, solos ? UDAT_STANDALONE_WEEKDAYS : UDAT_WEEKDAYS, 1, r.dias_en_fecha);
    lee_nombres(f, solos ? UDAT_STANDALONE_SHORT_WEEKDAYS : UDAT_SHORT_WEEKDAYS, 1, r.dias_abreviados_en_fecha);
    lee_nombres(f, UDAT_STANDALONE_MONTHS, 0, r.meses);
    lee_nombres(f, UDAT_SHORT_MONTHS, 0, r.meses_abreviados);
    lee_nombres(f, UDAT_MONTHS, 0, r.meses_en_fecha);
    std::array<cadena_ancha, 2> mitades, eras;
    lee_nombres(f, UDAT_AM_PMS, 0, mitades);
    lee_nombres(f, UDAT_ERAS, 0, eras);
    r.antes_de_mediodia = mitades[0];
    r.despues_de_mediodia = mitades[1];
    r.era = eras[1];
    return true;
}

bool lee_numeros(const std::string &nombre, region &r) {
    UErrorCode error = U_ZERO_ERROR;
    const numeros f(unum_open(UNUM_DECIMAL, nullptr, 0, nombre.c_str(), nullptr, &error));
    if (U_FAILURE(error)) return false;
    const auto simbolo = [&](UNumberFormatSymbol que) {
        return con_sitio([&](vnwchar *p, int32_t n, UErrorCode *e) { return unum_getSymbol(f.get(), que, p, n, e); });
    };
    r.separador_decimal = simbolo(UNUM_DECIMAL_SEPARATOR_SYMBOL);
    r.separador_millares = simbolo(UNUM_GROUPING_SEPARATOR_SYMBOL);
    r.signo_menos = simbolo(UNUM_MINUS_SIGN_SYMBOL);
    // The tables do not have it; this is what Windows has for the regions of the family.
    r.separador_campos = r.separador_decimal == u"," ? u";" : u",";
    // Sizes of groups from the right, the last one again and again: "3;0", or "3;2;0".
    r.agrupacion.clear();
    for (const auto que : {UNUM_GROUPING_SIZE, UNUM_SECONDARY_GROUPING_SIZE})
        if (const int32_t n = unum_getAttribute(f.get(), que); n > 0 && n < 10)
            (r.agrupacion += static_cast<vnwchar>(u'0' + n)) += u';';
    r.agrupacion += u'0';
    r.decimales = u"2";
    r.cero_inicial = u"1";
    r.forma_negativa = u"1";
    return true;
}

} // namespace

std::string origen_de_la_region() { return del_entorno("LC_NUMERIC") + '\n' + del_entorno("LC_TIME"); }

bool lee_region(const char *nombre, region &r) {
    if (nombre != nullptr) {
        const std::string suyo = canonico(nombre);
        return !suyo.empty() && lee_numeros(suyo, r) && lee_fechas(suyo, r);
    }
    // Numbers and dates each follow their own variable, as users mix them.
    const auto o_ingles = [](const std::string &n) { return n.empty() ? std::string("en_US") : n; };
    return lee_numeros(o_ingles(canonico(del_entorno("LC_NUMERIC"))), r) &&
           lee_fechas(o_ingles(canonico(del_entorno("LC_TIME"))), r);
}

} // namespace vn::plat
