#define VN_MODULO "vnnumlet (NUCLEOS.DLL)"
// The languages whose numbers are built in the Spanish way: one engine, a table of words each.
#include "foundation/suelo/afirma_int.h"
#include "units/vnnumlet_priv.h"
#include <iterator>

namespace vn::numlet {
namespace {

// The words by what they are: a ten has a form before units, with what joins them, and an exact one.
enum palabra {
    MENOS = 0,
    CERO = 1,
    UN = 2,
    UNO = 3,
    UNA = 4,
    DOS = 5,
    DOS_FEMENINO = 6,
    UNIDAD_DESDE_TRES = 4, // + 3 to 20
    DECENA_EXACTA = 20,    // + 2 per ten, from two tens
    DECENA_CON_UNIDADES = 21,
    CIEN = 40,
    CIENTO = 41,
    CENTENA_FEMENINA = 40, // + 2 to 9
    MIL = 50,
    UN_MILLON = 51,
    MILLONES = 52,
    UN_BILLON = 53,
    BILLONES = 54,
    CON = 55,
    CENTENA_MASCULINA = 54, // + 2 to 9
    DE = 64,
    DESBORDAMIENTO = 65
};

// A row per word, a column per language. The Spanish ones are spelt without the accents of "dieciséis" or "veintidós".
// Portuguese of Portugal has the conjunction behind "cento" in the word; that of Brazil counts in the short scale, in
// which ten to the twelfth is a "trilhão".
constexpr int COLUMNAS = 5;
// clang-format off
constexpr const char *PALABRAS[][COLUMNAS] = {
    // Spanish, Portuguese of Brazil, Catalan, Portuguese of Portugal, Galician
    {"menos ", "menos ", "menys ", "menos ", "menos "},
    {"cero", "zero", "zero", "zero", "cero"},
    {"un", "um", "un", "um", "un"},
    {"uno", "um", "u", "um", "un"},
    {"una", "uma", "una", "uma", "unha"},
    {"dos", "dois", "dos", "dois", "dous"},
    {"dos", "duas", "dues", "duas", "d\xFA" "as"},
    {"tres", "tr\xEAs", "tres", "tr\xEAs", "tres"},
    {"cuatro", "quatro", "quatre", "quatro", "catro"},
    {"cinco", "cinco", "cinc", "cinco", "cinco"},
    {"seis", "seis", "sis", "seis", "seis"},
    {"siete", "sete", "set", "sete", "sete"},
    {"ocho", "oito", "vuit", "oito", "oito"},
    {"nueve", "nove", "nou", "nove", "nove"},
    {"diez", "dez", "deu", "dez", "dez"},
    {"once", "onze", "onze", "onze", "once"},
    {"doce", "doze", "dotze", "doze", "doce"},
    {"trece", "treze", "tretze", "treze", "trece"},
    {"catorce", "catorze", "catorze", "catorze", "catorce"},
    {"quince", "quinze", "quinze", "quinze", "quince"},
    {"dieciseis", "dezesseis", "setze", "dezasseis", "dezaseis"},
    {"diecisiete", "dezessete", "disset", "dezassete", "dezasete"},
    {"dieciocho", "dezoito", "divuit", "dezoito", "dezaoito"},
    {"diecinueve", "dezenove", "dinou", "dezanove", "dezanove"},
    {"veinte", "vinte", "vint", "vinte", "vinte"},
    {"veinti", "vinte e ", "vint-i-", "vinte e ", "vinte e "},
    {"treinta", "trinta", "trenta", "trinta", "trinta"},
    {"treinta y", "trinta e", "trenta-", "trinta e", "trinta e"},
    {"cuarenta", "quarenta", "quaranta", "quarenta", "corenta"},
    {"cuarenta y", "quarenta e", "quaranta-", "quarenta e", "corenta e"},
    {"cincuenta", "cinquenta", "cinquanta", "cinquenta", "cincuenta"},
    {"cincuenta y", "cinquenta e", "cinquanta-", "cinquenta e", "cincuenta e"},
    {"sesenta", "sessenta", "seixanta", "sessenta", "sesenta"},
    {"sesenta y", "sessenta e", "seixanta-", "sessenta e", "sesenta e"},
    {"setenta", "setenta", "setanta", "setenta", "setenta"},
    {"setenta y", "setenta e", "setanta-", "setenta e", "setenta e"},
    {"ochenta", "oitenta", "vuitanta", "oitenta", "oitenta"},
    {"ochenta y", "oitenta e", "vuitanta-", "oitenta e", "oitenta e"},
    {"noventa", "noventa", "noranta", "noventa", "noventa"},
    {"noventa y", "noventa e", "noranta-", "noventa e", "noventa e"},
    {"cien", "cem", "cent", "cem", "cen"},
    {"ciento", "cento", "cent", "cento e", "cento"},
    {"doscientas", "duzentas", "dues-centes", "duzentas", "duascentas"},
    {"trescientas", "trezentas", "tres-centes", "trezentas", "trescentas"},
    {"cuatrocientas", "quatrocentas", "quatre-centes", "quatrocentas", "catrocentas"},
    {"quinientas", "quinhentas", "cinc-centes", "quinhentas", "cincocentas"},
    {"seiscientas", "seiscentas", "sis-centes", "seiscentas", "seiscentas"},
    {"setecientas", "setecentas", "set-centes", "setecentas", "setecentas"},
    {"ochocientas", "oitocentas", "vuit-centes", "oitocentas", "oitocentas"},
    {"novecientas", "novecentas", "nou-centes", "novecentas", "novecentas"},
    {"mil", "mil", "mil", "mil", "mil"},
    {"un mill\xF3n", "um milh\xE3o", "un mili\xF3", "um milh\xE3o", "un mill\xF3n"},
    {"millones", "milh\xF5" "es", "milions", "milh\xF5" "es", "mill\xF3ns"},
    {"un bill\xF3n", "um trilh\xE3o", "un bili\xF3", "um bili\xE3o", "un bill\xF3n"},
    {"billones", "trilh\xF5" "es", "bilions", "bili\xF5" "es", "bill\xF3ns"},
    {"con", "com", "amb", "com", "con"},
    {"doscientos", "duzentos", "dos-cents", "duzentos", "douscentos"},
    {"trescientos", "trezentos", "tres-cents", "trezentos", "trescentos"},
    {"cuatrocientos", "quatrocentos", "quatre-cents", "quatrocentos", "catrocentos"},
    {"quinientos", "quinhentos", "cinc-cents", "quinhentos", "cincocentos"},
    {"seiscientos", "seiscentos", "sis-cents", "seiscentos", "seiscentos"},
    {"setecientos", "setecentos", "set-cents", "setecentos", "setecentos"},
    {"ochocientos", "oitocentos", "vuit-cents", "oitocentos", "oitocentos"},
    {"novecientos", "novecentos", "nou-cents", "novecentos", "novecentos"},
    {"de", "de", "de", "de", "de"},
    {"ERR desbordamiento", "ERR estouro", "ERR desbordament", "ERR transbordo", "ERR desbordamento"},
};
// clang-format on
static_assert(std::size(PALABRAS) == DESBORDAMIENTO + 1);

constexpr int PORTUGUES_DE_BRASIL = 2;

// The column of a language; negative, and reported, for a language that has none.
int columna_de(int idioma) {
    switch (idioma) {
    // clang-format off
    case 0: case 6: case 7: return 0;
    case PORTUGUES_DE_BRASIL: return 1;
    case 3: return 2;
    case 5: return 3;
    case 9: return 4;
    default: AFIRMA_DEFECTO(); return -1;
    }
    // clang-format on
}

class escritor {
  public:
    escritor(std::string *t, int idioma) : t_(t), columna_(columna_de(idioma)), con_e_(idioma == PORTUGUES_DE_BRASIL) {}

    void escribe(const importe &x, const moneda &m) {
        if (x.negativo && (!x.es_entero_cero() || x.fraccion != 0)) pon_palabra(MENOS);
        billones(x);
        millones(x);
        if (m.hay() && x.hay_millones() && x.miles() == 0 && x.unidades() == 0) pon_palabra(DE);
        menor_que_un_millon(x, m);
        if (m.es_solo_fraccion(x)) {
            fraccion(x.fraccion, m);
            return;
        }
        pon_nombre(t_, m.principal, x.es_entero_uno());
        if (x.fraccion == 0) return;
        pon_palabra(CON);
        fraccion(x.fraccion, m);
    }

  private:
    std::string *t_;
    int columna_;
    bool con_e_;
    bool hay_grupo_ = false;

    const char *dame(int i) const { return PALABRAS[i][columna_]; }
    void pon_palabra(int i) { pon(t_, dame(i)); }

    // The "e" of Portuguese of Brazil: between a hundred and its rest always (0), before a group where two of its three
    // digits are zeros.
    void conjuncion(uint32_t centena_sig) {
        if (!con_e_) return;
        if (centena_sig > 0) {
            if (!AFIRMA(centena_sig > 0 && centena_sig < 1000)) return;
            const int ceros = (centena_sig < 100) + (centena_sig / 10 % 10 == 0) + (centena_sig % 10 == 0);
            if (ceros < 2) return;
        }
        *t_ += "e ";
    }
    // Joins a group of three digits to those before it.
    void enlaza(uint32_t grupo) {
        if (hay_grupo_) {
            blanco(t_);
            conjuncion(grupo);
        }
        hay_grupo_ = true;
    }

    void centenas(uint32_t num, bool femenino) {
        if (!AFIRMA_TEXTO(num < 1000, "ABS(num) < 1000")) return;
        const uint32_t c = num / 100;
        uint32_t resto = num % 100;
        if (c == 1) pon_palabra(resto == 0 ? CIEN : CIENTO);
        if (c > 1) pon_palabra(static_cast<int>(c) + (femenino ? CENTENA_FEMENINA : CENTENA_MASCULINA));
        if (c > 0 && resto > 0) {
            blanco(t_);
            conjuncion(0);
        }
        bool pegado = false;
        if (resto > 20) {
            const int decena = static_cast<int>(resto / 10);
            resto %= 10;
            pon_palabra(2 * decena + (resto == 0 ? DECENA_EXACTA : DECENA_CON_UNIDADES));
            pegado = decena == 2; // carries what joins it
        }
        if (resto == 0) return;
        if (!pegado) blanco(t_);
        *t_ += dame(resto == 1   ? (femenino ? UNA : UN)
                    : resto == 2 ? (femenino ? DOS_FEMENINO : DOS)
                                 : static_cast<int>(resto) + UNIDAD_DESDE_TRES);
    }

    void billones(const importe &x) {
        if (x.billones == 0) return;
        enlaza(x.billones);
        if (x.billones > 1) centenas(x.billones, false);
        pon_palabra(x.billones == 1 ? UN_BILLON : BILLONES);
    }
    // Thousand millions and millions are one number of millions.
    void millones(const importe &x) {
        if (x.miles_de_millones != 0) {
            enlaza(x.miles_de_millones);
            if (x.miles_de_millones > 1) centenas(x.miles_de_millones, false);
            pon_palabra(MIL);
        }
        if (x.millones() != 0) enlaza(x.millones());
        if (x.millones() == 1 && x.miles_de_millones == 0) {
            pon_palabra(UN_MILLON);
        } else if (x.millones() != 0 || x.miles_de_millones != 0) {
            centenas(x.millones(), false);
            pon_palabra(MILLONES);
        }
    }
    void menor_que_un_millon(const importe &x, const moneda &m) {
        if (x.miles() != 0) {
            enlaza(x.miles());
            if (x.miles() > 1) centenas(x.miles(), m.principal.femenina);
            pon_palabra(MIL);
        }
        if (x.unidades() != 0) {
            enlaza(x.unidades());
            centenas(x.unidades(), m.principal.femenina);
        }
        if (x.es_entero_cero() && !m.es_solo_fraccion(x)) pon_palabra(CERO);
    }
    void fraccion(uint32_t n, const moneda &m) {
        if (n == 1 && !m.hay()) pon_palabra(UNO);
        else centenas(n, m.fraccion.femenina);
        pon_nombre(t_, m.fraccion, n == 1);
    }
};

const char *desbordamiento_generico(int idioma) {
    const int columna = columna_de(idioma);
    return columna < 0 ? nullptr : PALABRAS[DESBORDAMIENTO][columna];
}

} // namespace

const motor GENERICO = {desbordamiento_generico, [](std::string *t, const importe &x, const moneda &m, int idioma) {
                            escritor(t, idioma).escribe(x, m);
                        }};

} // namespace vn::numlet
