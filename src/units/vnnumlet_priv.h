// The engines of the amounts in words. Words and names are ANSI text of page 1252.
#pragma once

#include <cstdint>
#include <string>

namespace vn::numlet {

// The digits of an amount, split as they are read.
struct importe {
    bool negativo = false;
    uint32_t billones = 0;          // of 10 to the 12
    uint32_t miles_de_millones = 0; // of 10 to the 9
    uint32_t menor = 0;             // below 10 to the 9
    uint32_t fraccion = 0;          // hundredths; 0 is none

    uint32_t millones() const { return menor / 1000000; }
    uint32_t miles() const { return menor / 1000 % 1000; }
    uint32_t unidades() const { return menor % 1000; }
    bool hay_millones() const { return billones != 0 || miles_de_millones != 0 || millones() != 0; }
    bool es_entero_cero() const { return billones == 0 && miles_de_millones == 0 && menor == 0; }
    bool es_entero_uno() const { return billones == 0 && miles_de_millones == 0 && menor == 1; }
};

// Names of a currency or of its hundredth part; null where there are none.
struct nombres {
    const char *singular = nullptr, *plural = nullptr;
    bool femenina = false;
};
struct moneda {
    nombres principal, fraccion;

    bool hay() const { return principal.singular != nullptr; }
    // What has a name and no whole part shows its fraction alone.
    bool es_solo_fraccion(const importe &x) const { return hay() && x.fraccion != 0 && x.es_entero_cero(); }
};

// Adds a blank where what is written does not end in one or in a hyphen.
void blanco(std::string *pszNumLetra);
// Adds a word behind a blank.
void pon(std::string *pszNumLetra, const char *palabra);
// The name of the currency, or of its hundredth part, after an amount; nothing where there is none.
void pon_nombre(std::string *pszNumLetra, const nombres &n, bool uno);

// An engine: what stands for too many digits, and the words of an amount.
struct motor {
    const char *(*desbordamiento)(int idioma);
    void (*escribe)(std::string *pszNumLetra, const importe &x, const moneda &m, int idioma);
};
extern const motor GENERICO, INGLES, FRANCES;

} // namespace vn::numlet
