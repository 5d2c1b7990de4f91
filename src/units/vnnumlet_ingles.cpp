#define VN_MODULO "vnnumlet (NUCLEOS.DLL)"
// English, in the short scale: a billion is ten to the ninth.
#include "units/vnnumlet_priv.h"
#include <iterator>

namespace vn::numlet {
namespace {

constexpr const char *PALABRAS[] = {
    "minus ",    "zero",     "one",      "two",     "three",    "four",     "five",     "six",         "seven",
    "eight",     "nine",     "ten",      "eleven",  "twelve",   "thirteen", "fourteen", "fifteen",     "sixteen",
    "seventeen", "eighteen", "nineteen", "twenty",  "twenty",   "thirty",   "forty",    "fifty",       "sixty",
    "seventy",   "eighty",   "ninety",   "hundred", "thousand", "million",  "billion",  "ERR overflow"};
enum palabra {
    MINUS = 0,
    ZERO = 1,
    UNIDAD = 1 /* + 1 to 20 */,
    DECENA = 20 /* + 2 to 9 */,
    HUNDRED = 30,
    THOUSAND,
    MILLION,
    BILLION,
    DESBORDAMIENTO
};
static_assert(std::size(PALABRAS) == DESBORDAMIENTO + 1);

class escritor {
  public:
    explicit escritor(std::string *t) : t_(t) {}

    void escribe(const importe &x, const moneda &m) {
        // No "minus zero".
        if (x.negativo && (!x.es_entero_cero() || x.fraccion != 0)) pon(t_, PALABRAS[MINUS]);
        // In the short scale 10^12 is a thousand billions: "two thousand three billion".
        grupo(x.billones, THOUSAND);
        grupo(x.miles_de_millones, BILLION);
        if (x.billones != 0 && x.miles_de_millones == 0) pon(t_, PALABRAS[BILLION]);
        grupo(x.millones(), MILLION);
        grupo(x.miles(), THOUSAND);
        grupo(x.unidades(), -1);
        if (!m.es_solo_fraccion(x)) {
            if (x.es_entero_cero()) pon(t_, PALABRAS[ZERO]);
            pon_nombre(t_, m.principal, x.es_entero_uno());
            if (x.fraccion == 0) return;
            *t_ += " and ";
        }
        hay_grupo_ = false; // that "and" was the fraction's
        grupo(x.fraccion, -1);
        pon_nombre(t_, m.fraccion, x.fraccion == 1);
    }

  private:
    std::string *t_;
    bool hay_grupo_ = false;

    void grupo(uint32_t n, int de_cuantos) {
        if (n == 0) return;
        const uint32_t c = n / 100;
        uint32_t resto = n % 100;
        if (c > 0) {
            pon(t_, PALABRAS[UNIDAD + c]);
            pon(t_, PALABRAS[HUNDRED]);
        }
        // "One hundred and one", "one thousand and one".
        if (resto > 0 && (c > 0 || hay_grupo_)) pon(t_, "and ");
        if (resto > 20) {
            pon(t_, PALABRAS[DECENA + resto / 10]);
            resto %= 10;
            if (resto != 0) *t_ += '-';
        }
        if (resto != 0) pon(t_, PALABRAS[UNIDAD + resto]);
        if (de_cuantos >= 0) pon(t_, PALABRAS[de_cuantos]);
        hay_grupo_ = true;
    }
};

} // namespace

const motor INGLES = {[](int) { return PALABRAS[DESBORDAMIENTO]; },
                      [](std::string *t, const importe &x, const moneda &m, int) { escritor(t).escribe(x, m); }};

} // namespace vn::numlet
