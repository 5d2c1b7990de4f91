#include "palabras.h"
#include "propiedades.h"
#include <functional>

// Numbers in words against lists made by others, up to a million. Where a list follows another norm, what it differs in
// is told as a rule over its words.

using namespace vn;

namespace {

void cambia(std::string &s, std::string_view a, std::string_view b, size_t hasta = std::string::npos) {
    for (size_t i = 0; (i = s.find(a, i)) < hasta; i += b.size()) s.replace(i, a.size(), b);
}

using regla = std::function<void(uint32_t n, std::string &)>;
regla siempre(const char *a, const char *b) {
    return [=](uint32_t, std::string &s) { cambia(s, a, b); };
}
// In the words that count the thousands.
regla ante_mil(const char *a, const char *b) {
    return [=](uint32_t n, std::string &s) {
        if (n < 1000000) cambia(s, a, b, s.find(" mil") + 1);
    };
}
// Joins "mil" to what follows by no "e" that the predicate does not allow.
regla sin_e_tras_mil(bool (*con_e)(uint32_t resto)) {
    return [=](uint32_t n, std::string &s) {
        if (!con_e(n % 1000)) cambia(s, "mil e ", "mil ");
    };
}

// Between sixteen and thirty without accents.
const std::vector<regla> SIN_ACENTOS = {siempre("dieciséis", "dieciseis"), siempre("veintiún", "veintiun"),
                                        siempre("veintidós", "veintidos"), siempre("veintitrés", "veintitres"),
                                        siempre("veintiséis", "veintiseis")};
// The list leaves the thousands masculine; the currency's gender is theirs too.
const std::vector<regla> MILES_FEMENINOS_ES = {ante_mil("ientos ", "ientas "), ante_mil("un ", "una ")};
const std::vector<regla> MILES_FEMENINOS_CA = {ante_mil("un ", "una "), ante_mil("dos ", "dues ")};
// The "e" after "mil" only before a group with two zeros, as 001, 020 or 300.
const std::vector<regla> E_ANTE_DOS_CEROS = {
    sin_e_tras_mil([](uint32_t resto) { return resto < 10 || resto % 100 == 0 || (resto < 100 && resto % 10 == 0); })};
// No "e" but that in the tens and in "cento e".
const std::vector<regla> SIN_E = {sin_e_tras_mil([](uint32_t) { return false; }), siempre("entos e ", "entos "),
                                  siempre("entas e ", "entas ")};
} // namespace

PRUEBA(palabras, las_de_las_listas) {
    const struct {
        const char *lista, *columna;
        int idioma;
        bool femenina;
        std::vector<regla> reglas, y_ademas;
        bool sin_centenas = false; // the list is wrong in hundreds
    } filas[] = {
        {"es", "icu_masculine", ES, false, SIN_ACENTOS},
        {"es", "icu_feminine", ES, true, SIN_ACENTOS, MILES_FEMENINOS_ES},
        {"pt", "icu_br_masculine", PT_BR, false, E_ANTE_DOS_CEROS},
        {"pt", "icu_br_feminine", PT_BR, true, E_ANTE_DOS_CEROS},
        {"pt", "icu_pt_masculine", PT, false, SIN_E},
        {"pt", "icu_pt_feminine", PT, true, SIN_E},
        {"ca", "num2words", CA, false},
        {"ca", "icu_feminine", CA, true, MILES_FEMENINOS_CA, {}, true},
        {"gl", "libnumbertext", GL, false},
        {"en", "num2words", EN, false, {siempre(",", "")}},
        {"fr", "num2words", FR, false},
        {"fr", "icu_feminine", FR, true, {siempre("-et-", " et ")}}, // before the reform
    };
    for (const auto &f : filas) {
        auto lista = tabla(std::string("D_tables/words_") + f.lista + ".tsv", true);
        const auto titulo = lista.front();
        const size_t cual = static_cast<size_t>(std::find(titulo.begin(), titulo.end(), f.columna) - titulo.begin());
        lista.erase(lista.begin());
        size_t comparadas = 0;
        for (const auto &fila : lista) {
            const std::string &cifras = fila[0];
            const auto n = static_cast<uint32_t>(std::stoul(cifras));
            if (f.sin_centenas && (n / 100 % 10 != 0 || n / 100000 != 0)) continue;
            std::string esperado = fila.at(cual);
            for (const auto *reglas : {&f.reglas, &f.y_ademas})
                for (const regla &r : *reglas) r(n, esperado);
            ++comparadas;
            EXPECT_EQ(f.femenina ? cuenta_de(f.idioma, cifras, CIERTO) : numero(f.idioma, cifras), esperado)
                << f.lista << "." << f.columna << " " << cifras;
        }
        EXPECT_GT(comparadas, f.sin_centenas ? 100u : 300u) << f.lista;
    }
}
