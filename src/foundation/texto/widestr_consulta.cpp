#define VN_MODULO "widestr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/widestr_consulta.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/cadena_int.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/texto_priv.h"
#include <algorithm>

// Questions about wide texts, and new texts that are parts of others.

using namespace vn;
using namespace vn::texto;
using texto::NO_ESTA;

namespace {

// The next unit as a word list sees it: no case, no accents; 0 at the end.
uint32_t letra(const vnwchar *&s) {
    while (es_acento_suelto(*s)) ++s;
    return *s == 0 ? 0 : static_cast<uint16_t>(a_minuscula(sin_acento(*s++)));
}

} // namespace

uint32_t widestr_nousar_longitud(const vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return 0;
    return static_cast<uint32_t>(vista_ancha(s).size());
}

vnbool widestr_nousar_cadenas_iguales(const vnwchar *a, const vnwchar *b, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, a, b)) return FALSO;
    return vista_ancha(a) == vista_ancha(b);
}

vnbool widestr_nousar_cadenas_iguales_may_o_min(const vnwchar *a, const vnwchar *b, const char *modulo,
                                                uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, a, b)) return FALSO;
    return texto::iguales<vnwchar>(a, b, true);
}

int widestr_nousar_compara(const vnwchar *a, const vnwchar *b, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, a, b)) return 0;
    return texto::compara<vnwchar>(a, b);
}

int widestr_nousar_cadenas_compara_lexico_graficamente(const vnwchar *a, const vnwchar *b, const char *modulo,
                                                       uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, a, b)) return 0;
    for (const vnwchar *p = a, *q = b;;) {
        const uint32_t x = letra(p), y = letra(q);
        if (x != y) return x < y ? -1 : 1;
        // Alike but for case and accents: the units themselves decide, so that only equal texts count as equal.
        if (x == 0) return texto::compara<vnwchar>(a, b);
    }
}

vnbool widestr_nousar_es_cadena_vacia(const vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return FALSO;
    return *s == 0;
}

vnbool widestr_nousar_es_cadena_en_blanco(const vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return FALSO;
    return texto::sin_blancos_delante<vnwchar>(s).empty();
}

vnbool widestr_nousar_hay_texto(const vnwchar *s, const char *, uint32_t) {
    // Null is no text, and asking about it no error.
    return s != nullptr && !texto::sin_blancos_delante<vnwchar>(s).empty();
}

vnbool widestr_nousar_es_subcadena(const vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return FALSO;
    return texto::busca<vnwchar>(s, t, 0, false) != NO_ESTA;
}

vnbool widestr_nousar_es_subcadena_may_o_min(const vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return FALSO;
    return texto::busca<vnwchar>(s, t, 0, true) != NO_ESTA;
}

vnbool widestr_nousar_es_subcadena_inicial(const vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return FALSO;
    return texto::empieza<vnwchar>(s, t, false);
}

vnbool widestr_nousar_es_subcadena_inicial_may_o_min(const vnwchar *s, const vnwchar *t, const char *modulo,
                                                     uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return FALSO;
    return texto::empieza<vnwchar>(s, t, true);
}

vnbool widestr_nousar_es_subcadena_final(const vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return FALSO;
    return texto::termina<vnwchar>(s, t);
}

vnwchar *widestr_nousar_strchr(const vnwchar *s, vnwchar c, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return nullptr;
    // The closing zero can be searched for too.
    const vnwchar *p = std::char_traits<vnwchar>::find(s, vista_ancha(s).size() + 1, c);
    return const_cast<vnwchar *>(p);
}

vnwchar *widestr_nousar_subcadena(const vnwchar *s, uint32_t inicio, uint32_t n, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return nullptr;
    const vista_ancha v(s);
    // A start beyond the end gives an empty text.
    return texto::copia(v.substr(std::min<size_t>(inicio, v.size()), n), QUIEN);
}

vnwchar *widestr_nousar_subcadena_inicial(const vnwchar *s, uint32_t n, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return nullptr;
    return texto::copia(vista_ancha(s).substr(0, n), QUIEN);
}

vnwchar *widestr_nousar_subcadena_final(const vnwchar *s, uint32_t n, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return nullptr;
    const vista_ancha v(s);
    return texto::copia(v.substr(v.size() - std::min<size_t>(n, v.size())), QUIEN);
}

vnwchar *widestr_nousar_subcadena_anterior(const vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return nullptr;
    // A text without `t` is given whole: NO_ESTA cuts nothing off.
    return texto::copia(vista_ancha(s).substr(0, texto::busca<vnwchar>(s, t, 0, false)), QUIEN);
}

vnwchar *widestr_nousar_subcadena_anterior_may_o_min(const vnwchar *s, const vnwchar *t, const char *modulo,
                                                     uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return nullptr;
    return texto::copia(vista_ancha(s).substr(0, texto::busca<vnwchar>(s, t, 0, true)), QUIEN);
}

vnwchar *widestr_nousar_subcadena_posterior(const vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return nullptr;
    const vista_ancha v(s), buscado(t);
    // In a text without `t` nothing lies behind it.
    const size_t i = texto::busca(v, buscado, 0, false);
    return texto::copia(i == NO_ESTA ? vista_ancha() : v.substr(i + buscado.size()), QUIEN);
}

vnwchar *widestr_nousar_extrae_token(const vnwchar *s, const vnwchar *separadores, uint32_t numero, const char *modulo,
                                     uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, separadores) || !AFIRMA(numero > 0)) return nullptr;
    const vista_ancha v(s), cortes(separadores);
    size_t i = 0, fin = 0;
    // Tokens count from one, and a run of separators is one cut.
    for (uint32_t k = 0; k < numero; ++k) {
        i = v.find_first_not_of(cortes, fin);
        if (i == NO_ESTA) return nullptr;
        fin = std::min(v.find_first_of(cortes, i), v.size());
    }
    return texto::copia(v.substr(i, fin - i), QUIEN);
}

uint32_t widestr_nousar_lista_de_subcadenas_sin_eliminar_blancos(const vnwchar *s, const vnwchar *separadores,
                                                                 vnwchar ***lista, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, separadores, lista)) return 0;
    const vista_ancha cortes(separadores);
    return texto::lista<vnwchar>(
        s, [cortes](vnwchar c) { return cortes.find(c) != NO_ESTA; }, lista, QUIEN);
}

uint32_t widestr_nousar_lista_de_subcadenas_un_separador(const vnwchar *s, vnwchar separador, vnwchar ***lista,
                                                         const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, lista)) return 0;
    return texto::lista<vnwchar>(
        s, [separador](vnwchar c) { return c == separador; }, lista, QUIEN);
}

uint32_t widestr_nousar_numero_de_subcadenas(const vnwchar *s, vnwchar separador, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return 0;
    // Cut as the lists are, and only counted.
    return texto::trocea<vnwchar>(
        s, [separador](vnwchar c) { return c == separador; }, [](vista_ancha) {});
}

double widestr_nousar_atof(const vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return 0;
    return lee_double(s).valor;
}

uint32_t widestr_nousar_atoul(const vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return 0;
    return lee_entero<uint32_t>(s).valor;
}

vnbool widestr_es_digito(vnwchar c) { return c >= '0' && c <= '9'; }

vnwchar widestr_convertir_caracter_a_mayusculas(vnwchar c) { return a_mayuscula(c); }

vnwchar widestr_convertir_caracter_a_minusculas(vnwchar c) { return a_minuscula(c); }
