#define VN_MODULO "vnregional (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/vnregional.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/platform/maquina.h"
#include "foundation/platform/regional.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/calendario_int.h"
#include "foundation/suelo/eterno_int.h"
#include <algorithm>
#include <atomic>
#include <memory>
#include <mutex>
#include <utility>

using vn::cadena_ancha;
using vn::vista_ancha;
using vn::plat::region;

namespace {

// ---------------------------------------------------------------- the settings in force

// How long the settings are taken for current before the system is asked again.
constexpr uint64_t VALE_MILISEGUNDOS = 500;

struct vigente {
    std::mutex cerrojo; // guards what follows
    std::shared_ptr<const region> suya;
    std::string origen;
};

// The separators, and until when they hold, are read without the lock. A reader may see the one before the change of
// the other, which is then another reading of the same moment.
constinit std::atomic<uint32_t> separadores{0};
constinit std::atomic<uint64_t> caduca{0};

// Newer tables have narrow blanks and a minus sign that no ANSI page has: `blanco` and the hyphen take their place.
void llano(cadena_ancha &t, vnwchar blanco) {
    for (vnwchar &c : t) {
        if (c == 0x202F || c == 0x2009 || (c == 0xA0 && blanco == VNU(' '))) c = blanco;
        else if (c == 0x2212) c = VNU('-');
    }
}

void allana(region &r) {
    for (cadena_ancha region::*t :
         {&region::separador_campos, &region::separador_decimal, &region::separador_millares, &region::separador_fechas,
          &region::separador_horas, &region::fecha_corta, &region::fecha_larga, &region::signo_menos,
          &region::antes_de_mediodia, &region::despues_de_mediodia, &region::era})
        llano(r.*t, 0xA0);
    // A time has plain blanks between its fields; elsewhere the blank does not break a line.
    llano(r.hora, VNU(' '));
}

vnwchar primero(const cadena_ancha &t) { return t.empty() ? vnwchar{0} : t[0]; }

// Makes a region the one in force; the caller holds the lock.
void pon(vigente &v, std::shared_ptr<region> r, std::string origen) {
    allana(*r);
    separadores = static_cast<uint32_t>(static_cast<uint16_t>(primero(r->separador_decimal))) << 16 |
                  static_cast<uint16_t>(primero(r->separador_millares));
    v.suya = std::move(r);
    v.origen = std::move(origen);
}

std::shared_ptr<const region> la_region() {
    vigente &v = vn::eterno<vigente>();
    const std::lock_guard guarda(v.cerrojo);
    const uint64_t ahora = vn::plat::milisegundos_de_la_maquina();
    if (v.suya != nullptr && ahora < caduca) return v.suya;
    std::string origen = vn::plat::origen_de_la_region();
    // A changed origin means a changed environment; a system that tells no origin is read anew each time.
    if (v.suya == nullptr || origen.empty() || origen != v.origen) {
        auto r = std::make_shared<region>();
        // Settings that cannot be read leave the ones in force; the first ones are taken as they come.
        if (vn::plat::lee_region(nullptr, *r) || v.suya == nullptr) pon(v, std::move(r), std::move(origen));
    }
    caduca = ahora + VALE_MILISEGUNDOS;
    return v.suya;
}

// ---------------------------------------------------------------- items

struct fila {
    uint32_t numero;
    cadena_ancha region::*campo;
};
constexpr fila DATOS[] = {
    {VNREGIONAL_SEPARADOR_CAMPOS, &region::separador_campos},
    {VNREGIONAL_SEPARADOR_DECIMAL, &region::separador_decimal},
    {VNREGIONAL_SEPARADOR_MILLARES, &region::separador_millares},
    {VNREGIONAL_SEPARADOR_FECHAS, &region::separador_fechas},
    {VNREGIONAL_SEPARADOR_HORAS, &region::separador_horas},
    {VNREGIONAL_FECHA_CORTA, &region::fecha_corta},
    {VNREGIONAL_FECHA_LARGA, &region::fecha_larga},
    {VNREGIONAL_ORDEN_FECHA, &region::orden_fecha},
    {VNREGIONAL_MODO_HORARIO, &region::modo_horario},
    {VNREGIONAL_HORA, &region::hora},
};

const cadena_ancha *dato(const region &r, uint32_t numero) {
    for (const fila &f : DATOS)
        if (f.numero == numero) return &(r.*f.campo);
    // Monday comes first by number.
    if (numero - VNREGIONAL_NOMBRE_DIA < 7) return &r.dias[(numero - VNREGIONAL_NOMBRE_DIA + 1) % 7];
    if (numero - VNREGIONAL_NOMBRE_DIA_ABREVIADO < 7)
        return &r.dias_abreviados[(numero - VNREGIONAL_NOMBRE_DIA_ABREVIADO + 1) % 7];
    return nullptr;
}

// ---------------------------------------------------------------- pictures

struct momento {
    int32_t dia, mes, anyo, dia_semana; // month from 1, days from Sunday
    int32_t hora, minuto, segundo;
};

void pon_numero(cadena_ancha &t, int32_t n, size_t cifras) {
    cadena_ancha s;
    for (; n > 0 || s.size() < cifras; n /= 10) s.insert(s.begin(), static_cast<vnwchar>(VNU('0') + n % 10));
    t += s;
}

// Calls `cita` with each piece of plain text of a picture and `campo` with each run of one letter of `letras`.
template <class C, class F> void recorre(vista_ancha modelo, vista_ancha letras, C cita, F campo) {
    for (size_t i = 0; i < modelo.size();) {
        const vnwchar c = modelo[i];
        if (c == VNU('\'')) {
            // Two quotes inside quotes are one of the text.
            for (++i; i < modelo.size(); ++i) {
                if (modelo[i] == VNU('\'') && (i + 1 >= modelo.size() || modelo[i + 1] != VNU('\''))) break;
                if (modelo[i] == VNU('\'')) ++i;
                cita(modelo.substr(i, 1));
            }
            ++i;
        } else if (letras.find(c) != vista_ancha::npos) {
            const size_t fin = std::min(modelo.find_first_not_of(c, i), modelo.size());
            campo(c, fin - i);
            i = fin;
        } else {
            cita(modelo.substr(i++, 1));
        }
    }
}

cadena_ancha pinta_fecha(const region &r, const momento &m, vista_ancha modelo) {
    constexpr const vnwchar *LETRAS = VNU("dMyg");
    bool con_dia = false; // of the month: its name has another form then in some languages
    recorre(
        modelo, LETRAS, [](vista_ancha) {},
        [&](vnwchar c, size_t n) { con_dia = con_dia || (c == VNU('d') && n < 3); });
    const auto dia = static_cast<size_t>(m.dia_semana), mes = static_cast<size_t>(m.mes - 1);
    cadena_ancha t;
    const auto campo = [&](vnwchar c, size_t n) {
        if (c == VNU('g')) t += r.era;
        else if (c == VNU('d') && n > 2) t += (n > 3 ? r.dias_en_fecha : r.dias_abreviados_en_fecha)[dia];
        else if (c == VNU('M') && n > 2) t += (n == 3 ? r.meses_abreviados : con_dia ? r.meses_en_fecha : r.meses)[mes];
        else if (c == VNU('y')) pon_numero(t, n > 2 ? m.anyo : m.anyo % 100, n);
        else pon_numero(t, c == VNU('d') ? m.dia : m.mes, n);
    };
    // A year has as many digits as it needs, and a run of y no more than four.
    recorre(
        modelo, LETRAS, [&](vista_ancha s) { t += s; },
        [&](vnwchar c, size_t n) { campo(c, c == VNU('y') ? std::min<size_t>(n, 4) : n); });
    return t;
}

// Without seconds, the text on both sides of them goes too, but for the blanks before what follows.
cadena_ancha pinta_hora(const region &r, const momento &m, bool con_segundos) {
    cadena_ancha t, blancos;
    size_t ultimo = 0; // where the last field ended
    bool sin_segundos = false;
    const auto campo = [&](vnwchar c, size_t n) {
        if (c == VNU('s') && !con_segundos) {
            // Back to the end of the field before: the separator in between goes too.
            t.resize(ultimo);
            sin_segundos = true;
            return;
        }
        if (std::exchange(sin_segundos, false)) t += blancos;
        const cadena_ancha &mitad = m.hora < 12 ? r.antes_de_mediodia : r.despues_de_mediodia;
        // Of twelve hours, midnight and noon are 12.
        const int32_t valor = c == VNU('H')   ? m.hora
                              : c == VNU('h') ? (m.hora + 11) % 12 + 1
                              : c == VNU('m') ? m.minuto
                                              : m.segundo;
        if (c == VNU('t')) t += n == 1 ? mitad.substr(0, 1) : mitad;
        else pon_numero(t, valor, n > 1 ? 2 : 1);
        ultimo = t.size();
    };
    recorre(
        r.hora, VNU("hHmst"),
        [&](vista_ancha s) {
            if (!sin_segundos) t += s;
            else if (s == vista_ancha(VNU(" "))) blancos += s;
        },
        campo);
    return t;
}

// From 1601, where the calendar of the system begins, to the last year of four digits.
bool es_fecha(int32_t dia, int32_t mes, int32_t anyo) {
    return anyo >= 1601 && anyo <= 9999 && mes >= 1 && mes <= 12 && dia >= 1 &&
           dia <= vn::dias_del_mes(static_cast<uint32_t>(mes - 1), anyo);
}

int32_t dia_de_la_semana(int32_t dia, int32_t mes, int32_t anyo) {
    return vn::semana_de(vn::dias_de(anyo, static_cast<uint32_t>(mes - 1), dia));
}

// ---------------------------------------------------------------- numbers

bool es_cifra(vnwchar c) { return c >= VNU('0') && c <= VNU('9'); }

// A sign, digits, and decimals behind a point; false if the text is anything else.
struct numero {
    bool negativo = false;
    cadena_ancha entera, decimal;

    bool lee(vista_ancha s) {
        negativo = !s.empty() && s[0] == VNU('-');
        if (negativo) s.remove_prefix(1);
        const size_t punto = s.find(VNU('.'));
        entera = s.substr(0, punto);
        decimal = punto == vista_ancha::npos ? vista_ancha() : s.substr(punto + 1);
        for (const cadena_ancha &t : {entera, decimal})
            for (const vnwchar c : t)
                if (!es_cifra(c)) return false;
        entera.erase(0, entera.find_first_not_of(VNU('0'))); // all of it, of zeros
        // Neither nothing nor a point alone is a number.
        return s.size() > (punto == vista_ancha::npos ? 0u : 1u);
    }

    // To so many decimals, halves away from zero.
    void redondea(size_t cifras) {
        const bool sube = decimal.size() > cifras && decimal[cifras] >= VNU('5');
        decimal.resize(cifras, VNU('0'));
        if (!sube) return;
        // The carry runs through the nines from the last decimal on; past the first digit it becomes a new one.
        for (cadena_ancha *t : {&decimal, &entera})
            for (size_t i = t->size(); i-- > 0; (*t)[i] = VNU('0'))
                if ((*t)[i] != VNU('9')) {
                    ++(*t)[i];
                    return;
                }
        entera.insert(entera.begin(), VNU('1'));
    }

    // The whole part with its separators. `grupos` has the sizes from the right, a semicolon between two.
    cadena_ancha agrupada(vista_ancha grupos, const cadena_ancha &separador) const {
        cadena_ancha t = entera;
        size_t en = t.size(), cuantas = 0;
        for (size_t i = 0; i < grupos.size() && es_cifra(grupos[i]); i += 2) {
            // A zero at the end: the one before it again and again; without it what is left is one group.
            const bool repite = grupos[i] == VNU('0');
            if (!repite) cuantas = static_cast<size_t>(grupos[i] - VNU('0'));
            if (cuantas == 0) break;
            while (en > cuantas) {
                en -= cuantas;
                t.insert(en, separador);
                if (!repite) break;
            }
        }
        return t;
    }
};

// How a negative number is written, by the system's number of the form: n the number, - the sign.
constexpr const vnwchar *FORMAS_NEGATIVAS[] = {VNU("(n)"), VNU("-n"), VNU("- n"), VNU("n-"), VNU("n -")};

uint32_t cifra(const cadena_ancha &t) {
    return t.empty() || !es_cifra(t[0]) ? 0 : static_cast<uint32_t>(t[0] - VNU('0'));
}

cadena_ancha pinta_numero(const region &r, const numero &n) {
    cadena_ancha t = n.agrupada(r.agrupacion, r.separador_millares);
    // A number below one begins with zero if the region wants it, and if there would be nothing else.
    if (t.empty() && (r.cero_inicial != VNU("0") || n.decimal.empty())) t = VNU("0");
    if (!n.decimal.empty()) (t += r.separador_decimal) += n.decimal;
    if (!n.negativo) return t;
    cadena_ancha con_signo;
    // A region without a form, or with an unknown one, has the sign before the number.
    const uint32_t forma = r.forma_negativa.empty() ? 1 : cifra(r.forma_negativa);
    for (const vnwchar c : vista_ancha(FORMAS_NEGATIVAS[forma < 5 ? forma : 1])) {
        if (c == VNU('n')) con_signo += t;
        else if (c == VNU('-')) con_signo += r.signo_menos;
        else con_signo += c;
    }
    return con_signo;
}

} // namespace

vnwchar *vnregional_dato_u(uint32_t numero) {
    const auto r = la_region();
    const cadena_ancha *t = dato(*r, numero);
    return t != nullptr ? vn::ficheros::nuevo(*t) : nullptr;
}

void vnregional_separadores(vnwchar *decimal, vnwchar *millares) {
    if (!EXIGE(decimal, millares)) return;
    // The lock is taken only when the time of the settings is over.
    if (vn::plat::milisegundos_de_la_maquina() >= caduca.load(std::memory_order_acquire)) la_region();
    const uint32_t los_dos = separadores.load(std::memory_order_relaxed);
    *decimal = static_cast<vnwchar>(los_dos >> 16);
    *millares = static_cast<vnwchar>(los_dos & 0xFFFF);
}

vnwchar *vnregional_fecha_u(int32_t dia, int32_t mes, int32_t anyo, const vnwchar *modelo, vnbool larga) {
    if (!AFIRMA_LOGICO(larga) || !es_fecha(dia, mes, anyo)) return nullptr;
    const auto r = la_region();
    const vista_ancha el_modelo = modelo != nullptr ? vista_ancha(modelo)
                                  : larga == CIERTO ? vista_ancha(r->fecha_larga)
                                                    : vista_ancha(r->fecha_corta);
    return vn::ficheros::nuevo(pinta_fecha(*r, {dia, mes, anyo, dia_de_la_semana(dia, mes, anyo), 0, 0, 0}, el_modelo));
}

vnwchar *vnregional_hora_u(int32_t hora, int32_t minuto, int32_t segundo, vnbool con_segundos) {
    if (!AFIRMA_LOGICO(con_segundos)) return nullptr;
    if (hora < 0 || hora > 23 || minuto < 0 || minuto > 59 || segundo < 0 || segundo > 59) return nullptr;
    const auto r = la_region();
    // The date is any one: a time's picture has no field of it.
    return vn::ficheros::nuevo(pinta_hora(*r, {1, 2, 1980, 5, hora, minuto, segundo}, con_segundos == CIERTO));
}

vnwchar *vnregional_numero_u(const vnwchar *numero, uint32_t maximo) {
    if (!AFIRMA_NO_NULO(numero)) return nullptr;
    struct numero n;
    if (vista_ancha(numero).size() >= maximo || !n.lee(numero)) return nullptr;
    const auto r = la_region();
    n.redondea(cifra(r->decimales));
    const cadena_ancha t = pinta_numero(*r, n);
    return t.size() < maximo ? vn::ficheros::nuevo(t) : nullptr;
}

vnbool vnregional_establece(const char *nombre) {
    vigente &v = vn::eterno<vigente>();
    auto r = std::make_shared<region>();
    if (nombre != nullptr && !vn::plat::lee_region(nombre, *r)) return FALSO;
    const std::lock_guard guarda(v.cerrojo);
    // A region by its name holds until the next call; the system's is read again at its next use.
    if (nombre != nullptr) pon(v, std::move(r), "");
    else v.suya = nullptr;
    caduca = nombre != nullptr ? UINT64_MAX : 0;
    return CIERTO;
}
