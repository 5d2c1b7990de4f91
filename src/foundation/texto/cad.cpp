#define VN_MODULO "cad (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/cad.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/formato_int.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/texto_priv.h"

// ANSI texts: the same templates as the wide ones (texto_priv.h), in steps of whole characters of the active page.

using namespace vn;
using namespace vn::texto;
using texto::NO_ESTA;

namespace {

// The most memory that a wrong length may take.
constexpr uint32_t MAX_TEXTO = 1u << 30;
#define AQUI (texto::quien{VN_AQUI})

char *copia(std::string_view v) { return texto::copia(v, AQUI); }

} // namespace

char *creacadena(uint32_t n) {
    if (!AFIRMA(n <= MAX_TEXTO)) return nullptr;
    return static_cast<char *>(vornspy_calloc(size_t{n} + 1, 1));
}

char *cad_crea_de_bytes(const char *str, uint32_t len) {
    if (!AFIRMA_NO_NULO(str) || !AFIRMA(len <= MAX_TEXTO)) return nullptr;
    // A zero among the bytes is reported: for all who read it the text ends there.
    return texto::de_unidades(str, len, AQUI, [] { AFIRMA_TEXTO(false, "vnstdc_strlen(str)==len"); });
}

void vornstr_destruye(char **s) {
    if (!EXIGE(s, *s)) return;
    texto::destruye(s);
}

void vornstr_destruye_opcional(char **s) {
    if (!AFIRMA_NO_NULO(s) || *s == nullptr) return;
    texto::destruye(s);
}

char *cad_copia_cadena(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    return copia(s);
}

// Null is copied as null, without a report.
char *cad_copia_cadena_opcional(const char *s) { return s != nullptr ? copia(s) : nullptr; }

char *nousar_formatea(const char *formato, ...) {
    if (!AFIRMA_NO_NULO(formato)) return nullptr;
    CON_ARGUMENTOS(args, formato, char *s = formatea_nuevo(formato, args, VN_AQUI));
    return s;
}

void cad_concatena(char **s, const char *t) {
    if (!EXIGE(s, *s, t)) return;
    texto::alarga(s, std::string_view(t), false, AQUI);
}

void cad_concatena_caracter(char **s, char c) {
    if (!EXIGE(s, *s)) return;
    // A zero would end the text where it ends already.
    if (c != 0) texto::alarga(s, std::string_view(&c, 1), false, AQUI);
}

void vornstr_inserta_al_principio(char **s, const char *t) {
    if (!EXIGE(s, *s, t)) return;
    texto::alarga(s, std::string_view(t), true, AQUI);
}

uint32_t cad_longitud_cadena(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return 0;
    return static_cast<uint32_t>(std::strlen(s));
}

vnbool cad_cadenas_iguales(const char *a, const char *b) {
    if (!EXIGE(a, b)) return FALSO;
    return std::strcmp(a, b) == 0;
}

vnbool cad_cadenas_iguales_may_o_min(const char *a, const char *b) {
    if (!EXIGE(a, b)) return FALSO;
    return texto::iguales<char>(a, b, true);
}

int cad_cadenas_compara(const char *a, const char *b) {
    if (!EXIGE(a, b)) return 0;
    return texto::compara<char>(a, b);
}

vnbool cad_es_cadena_vacia(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return FALSO;
    return *s == 0;
}

vnbool cad_es_cadena_en_blanco(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return FALSO;
    return texto::sin_blancos_delante<char>(s).empty();
}

vnbool cad_es_subcadena(const char *s, const char *t) {
    if (!EXIGE(s, t)) return FALSO;
    return texto::busca<char>(s, t, 0, false) != NO_ESTA;
}

vnbool cad_es_subcadena_may_min(const char *s, const char *t) {
    if (!EXIGE(s, t)) return FALSO;
    return texto::busca<char>(s, t, 0, true) != NO_ESTA;
}

vnbool cad_es_subcadena_inicial(const char *s, const char *t) {
    if (!EXIGE(s, t)) return FALSO;
    return texto::empieza<char>(s, t, false);
}

vnbool cad_es_subcadena_inicial_may_o_min(const char *s, const char *t) {
    if (!EXIGE(s, t)) return FALSO;
    return texto::empieza<char>(s, t, true);
}

vnbool cad_es_subcadena_final(const char *s, const char *t) {
    if (!EXIGE(s, t)) return FALSO;
    return texto::termina<char>(s, t);
}

char *cad_subcadena_inicial(const char *s, uint32_t n) {
    if (!AFIRMA_NO_NULO(s)) return nullptr;
    // No further than `n`: a longer text need not be measured.
    const std::string_view v(s, strnlen(s, n));
    const texto::juego<char> j;
    if (j.de_uno_en_uno()) return copia(v);
    size_t entero = 0; // a character of two bytes is not cut
    while (entero < v.size() && entero + j.paso(s + entero, s + entero + 2) <= v.size())
        entero += j.paso(s + entero, s + entero + 2);
    return copia(v.substr(0, entero));
}

char *cad_subcadena_anterior(const char *s, const char *t) {
    if (!EXIGE(s, t)) return nullptr;
    // A text without `t` is given whole: NO_ESTA cuts nothing off.
    return copia(std::string_view(s).substr(0, texto::busca<char>(s, t, 0, false)));
}

void cad_suprime_subcadena(char *s, const char *t) {
    if (!EXIGE(s, t)) return;
    texto::suprime<char>(s, t);
}

vnbool cad_suprime_subcadena_inicial(char **s, const char *t) {
    if (!EXIGE(s, *s, t)) return FALSO;
    return texto::suprime_inicial<char>(*s, t, false);
}

vnbool cad_suprime_subcadena_inicial_may_o_min(char **s, const char *t) {
    if (!EXIGE(s, *s, t)) return FALSO;
    return texto::suprime_inicial<char>(*s, t, true);
}

void cad_reemplaza_todas_cadenas(char **s, const char *a, const char *b) {
    if (!EXIGE(s, *s, a, b)) return;
    texto::reemplaza<char>(s, a, b, AQUI);
}

uint32_t cad_lista_de_subcadenas(const char *s, char separador, char ***lista) {
    if (!EXIGE(s, lista)) return 0;
    return texto::lista<char>(
        s, [separador](char c) { return c == separador; }, lista, AQUI);
}

uint32_t vornstr_lista_de_subcadenas(const char *s, char separador, char ***lista) {
    return cad_lista_de_subcadenas(s, separador, lista);
}

void vornstr_destruyeListaCadenas(uint32_t n, char ***lista) {
    if (!AFIRMA_NO_NULO(lista)) return;
    texto::destruye_lista(n, lista);
}

void cad_LTrim(char *s) {
    if (!AFIRMA_NO_NULO(s)) return;
    texto::deja(s, texto::sin_blancos_delante<char>(s));
}

void RTrim(char *s) {
    if (!AFIRMA_NO_NULO(s)) return;
    texto::deja(s, texto::sin_blancos_detras<char>(s));
}

void cad_convertir_a_mayusculas(char *s) {
    if (!AFIRMA_NO_NULO(s)) return;
    texto::cambia(s, [](const auto &j, char c) { return j.mayuscula(c); });
}

void cad_convertir_a_minusculas(char *s) {
    if (!AFIRMA_NO_NULO(s)) return;
    texto::cambia(s, [](const auto &j, char c) { return j.minuscula(c); });
}

double cad_atof(const char *s) {
    if (!AFIRMA_NO_NULO(s)) return 0;
    return lee_double(s).valor;
}

void cad_convertir_cadena_ascii_ansi(char *s) {
    if (!AFIRMA_NO_NULO(s)) return;
    const pagina &ansi = pagina_activa(), *oem = pagina_de(PAGINA_OEM);
    for (; *s != 0; ++s) {
        const auto b = static_cast<unsigned char>(*s);
        // ASCII is the same in every page.
        if (b < 0x80 || oem == nullptr) continue;
        const uint16_t c = ansi.codigo(oem->unidad[b]);
        // A character that the ANSI page lacks, or writes in two bytes, has no room here.
        *s = c == 0 || c > 0xFF ? '?' : static_cast<char>(c);
    }
}

void cad_convertir_ansi_cadena(char *s, int modo) {
    if (!AFIRMA_NO_NULO(s) || !AFIRMA(modo >= 0 && modo <= 3)) return;
    texto::cambia(s, [modo](const auto &j, char c) {
        // Bit 1 takes accents off, bit 0 makes capitals.
        if (modo & 2) c = j.sin_acento(c);
        return modo & 1 ? j.mayuscula(c) : c;
    });
}
