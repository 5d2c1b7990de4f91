#define VN_MODULO "tratatxt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/tratatxt.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/texto_priv.h"

using namespace vn;
using namespace vn::texto;

namespace {

constexpr char ALMOHADILLA = '#', CALDERON = '\xB6';

// A mark is '#' and a letter, in the place of a character that a line would lose.
struct marca {
    char escapada, letra;
};
constexpr marca MARCAS[] = {{'\n', 's'}, {'\r', 'r'}, {'\t', 't'}, {' ', 'e'}, {'[', '['}, {'#', '#'}};

// The characters of a text of the active page, two-byte ones whole: `con` is called with each.
template <class F> void recorre(std::string_view s, F con) {
    const texto::juego<char> j;
    for (size_t i = 0; i < s.size();) {
        const size_t n = j.paso(s.data() + i, s.data() + s.size());
        con(i, n);
        i += n;
    }
}

char *nuevo(const std::string &s) { return texto::copia<char>(s, {VN_AQUI}); }

void pon_marca(std::string &r, char c) {
    for (const marca &m : MARCAS)
        if (m.escapada == c) (r += ALMOHADILLA) += m.letra;
}

// A copy where the characters of one byte that `protege(i)` names, asked in order about all, are written as marks.
template <class F> char *protegido(std::string_view s, F protege) {
    std::string r;
    recorre(s, [&](size_t i, size_t n) {
        const bool marca = protege(i);
        if (n == 1 && marca) pon_marca(r, s[i]);
        else r.append(s, i, n);
    });
    return nuevo(r);
}

bool corta(char c) { return c == ' ' || c == '\n' || c == '\r' || c == '\t'; }

constexpr std::string_view COLORES[] = {"rojo",    "amarillo", "verde", "cian",      "azul",
                                        "magenta", "blanco",   "gris",  "gris claro"};

} // namespace

char *tratatxt_recupera_espacio_y_salto_linea(const char *texto) {
    if (!AFIRMA_NO_NULO(texto)) return nullptr;
    const std::string_view s(texto);
    return protegido(s, [s](size_t i) {
        const char c = s[i];
        // A single blank between words stays as it is; any other would be lost.
        const bool blanco_que_se_perderia =
            c == ' ' && (i == 0 || i + 1 == s.size() || corta(s[i - 1]) || corta(s[i + 1]));
        return c == ALMOHADILLA || (corta(c) && c != ' ') || blanco_que_se_perderia || (c == '[' && i == 0);
    });
}

char *tratatxt_convierte_espacio_y_salto_linea(const char *texto) {
    if (!AFIRMA_NO_NULO(texto)) return nullptr;
    const std::string_view s(texto);
    std::string r;
    bool tras_almohadilla = false;
    recorre(s, [&](size_t i, size_t n) {
        const char c = s[i];
        // A '#' waits for the letter that says what it stands for.
        if (!tras_almohadilla && n == 1 && c == ALMOHADILLA) {
            tras_almohadilla = true;
            return;
        }
        if (tras_almohadilla) {
            tras_almohadilla = false;
            for (const marca &m : MARCAS)
                if (n == 1 && m.letra == c) {
                    r += m.escapada;
                    return;
                }
            // The letter is none of a mark: the '#' was the text's own.
            r += ALMOHADILLA;
        }
        r.append(s, i, n);
    });
    if (tras_almohadilla) r += ALMOHADILLA;
    return nuevo(r);
}

char *tratatxt_prepara_almohadilla_espacios_y_salto_linea(const char *linea) {
    if (!AFIRMA_NO_NULO(linea)) return nullptr;
    const std::string_view s(linea);
    // Blanks are marked at the beginning alone, line ends everywhere.
    bool al_principio = true;
    return protegido(s, [s, &al_principio](size_t i) {
        const char c = s[i];
        const bool marca = c == '\n' || c == '\r' || (al_principio && corta(c)) || (i == 0 && c == '[');
        al_principio = al_principio && corta(c);
        return marca;
    });
}

char *tratatxt_traducir_codigos_color(const char *texto) {
    if (!AFIRMA_NO_NULO(texto)) return nullptr;
    const std::string_view s(texto);
    std::string r;
    size_t hasta = 0; // what comes before stands in the result
    recorre(s, [&](size_t i, size_t n) {
        // The sign, a name and a semicolon: the digit of the colour takes the name's place.
        if (n != 1 || s[i] != CALDERON || i < hasta) return;
        const size_t fin = s.find(';', i);
        if (fin == std::string_view::npos) return;
        const std::string_view nombre = s.substr(i + 1, fin - i - 1);
        for (size_t k = 0; k < std::size(COLORES); ++k)
            if (texto::iguales(nombre, COLORES[k], true)) {
                r.append(s, hasta, i + 1 - hasta);
                r += static_cast<char>('1' + k);
                hasta = fin;
            }
    });
    r.append(s, hasta);
    return nuevo(r);
}
