#define VN_MODULO "vnnumlet (NUCLEOS.DLL)"
// French, in its long scale (a milliard is ten to the ninth, a billion ten to the twelfth) and with the blanks and
// hyphens from before the reform of 1990.
#include "foundation/suelo/afirma_int.h"
#include "units/vnnumlet_priv.h"
#include <iterator>

namespace vn::numlet {
namespace {

constexpr const char *MENOS = "moins ", *CERO = "z\xE9ro", *UNE = "une", *CENT = "cent", *MILLE = "mille", *ET = "et",
                     *DESBORDAMIENTO = "ERR d\xE9passement";
constexpr const char *UNIDADES[] = {"un",     "deux",  "trois",    "quatre",   "cinq",     "six",    "sept",
                                    "huit",   "neuf",  "dix",      "onze",     "douze",    "treize", "quatorze",
                                    "quinze", "seize", "dix-sept", "dix-huit", "dix-neuf", "vingt"};
static_assert(std::size(UNIDADES) == 20);
// The tens from twenty on; seventy and ninety are built on sixty and eighty.
constexpr const char *DECENAS[] = {"vingt", "trente", "quarante", "cinquante", "soixante", nullptr, "quatre-vingt"};
// The plural of hundreds, from two hundred on, and of eighty, where no other numeral follows.
constexpr const char *CENTENAS_EXACTAS[] = {"deux cents", "trois cents", "quatre cents", "cinq cents",
                                            "six cents",  "sept cents",  "huit cents",   "neuf cents"};
constexpr const char *OCHENTA_EXACTO = "quatre-vingts";

// The word behind a group of three digits. "mille" is not one of these: it is a numeral, and the words before it take
// no plural or gender, as they do before a noun.
struct orden {
    const char *singular, *plural;
};
constexpr orden MILLIONS = {"million", "millions"}, MILLIARDS = {"milliard", "milliards"},
                BILLIONS = {"billion", "billions"};

class escritor {
  public:
    explicit escritor(std::string *t) : t_(t) {}

    void escribe(const importe &x, const moneda &m) {
        if (x.negativo && (!x.es_entero_cero() || x.fraccion != 0)) pon(t_, MENOS);
        grupo(x.billones, BILLIONS);
        grupo(x.miles_de_millones, MILLIARDS);
        grupo(x.millones(), MILLIONS);
        if (x.miles() > 1) centenas(x.miles(), false, true);
        if (x.miles() > 0) pon(t_, MILLE);
        centenas(x.unidades(), m.principal.femenina, false);
        if (!m.es_solo_fraccion(x)) {
            if (x.es_entero_cero()) pon(t_, CERO);
            if (m.hay() && x.hay_millones() && x.miles() == 0 && x.unidades() == 0)
                de(x.es_entero_uno() ? m.principal.singular : m.principal.plural);
            else pon_nombre(t_, m.principal, x.es_entero_uno());
            if (x.fraccion == 0) return;
            pon(t_, ET);
        }
        centenas(x.fraccion, m.fraccion.femenina, false);
        pon_nombre(t_, m.fraccion, x.fraccion == 1);
    }

  private:
    std::string *t_;

    static const char *unidad(uint32_t num, bool femenino) {
        if (!AFIRMA_TEXTO(num > 0 && num <= 20, "num >0 && num <= 20")) return "";
        return num == 1 && femenino ? UNE : UNIDADES[num - 1];
    }
    // The name of a currency behind a noun.
    void de(const char *palabra) {
        if (!AFIRMA_NO_NULO(palabra)) return;
        constexpr std::string_view VOCALES = "aeiou";
        pon(t_, VOCALES.find(palabra[0]) != VOCALES.npos ? "d'" : "de ");
        *t_ += palabra;
    }
    void grupo(uint32_t n, orden o) {
        if (n == 0) return;
        centenas(n, false, false);
        pon(t_, n == 1 ? o.singular : o.plural);
    }
    void centenas(uint32_t num, bool femenino, bool ante_mille) {
        if (!AFIRMA_TEXTO(num < 1000, "ABS(num) < 1000")) return;
        const uint32_t c = num / 100, resto = num % 100;
        if (c > 1 && resto == 0 && !ante_mille) {
            pon(t_, CENTENAS_EXACTAS[c - 2]);
            return;
        }
        if (c > 1) pon(t_, unidad(c, false));
        if (c > 0) pon(t_, CENT);
        if (resto == 0) return;
        if (resto == 80 && !ante_mille) pon(t_, OCHENTA_EXACTO);
        else if (resto <= 20) pon(t_, unidad(resto, femenino));
        else decenas(resto, femenino);
    }
    void decenas(uint32_t resto, bool femenino) {
        uint32_t decena = resto / 10, u = resto % 10;
        if (decena == 7 || decena == 9) {
            --decena;
            u += 10;
        }
        pon(t_, DECENAS[decena - 2]);
        if (u == 0) return;
        if ((u == 1 || u == 11) && decena != 8) pon(t_, "et ");
        else *t_ += '-';
        *t_ += unidad(u, femenino);
    }
};

} // namespace

const motor FRANCES = {[](int) { return DESBORDAMIENTO; },
                       [](std::string *t, const importe &x, const moneda &m, int) { escritor(t).escribe(x, m); }};

} // namespace vn::numlet
