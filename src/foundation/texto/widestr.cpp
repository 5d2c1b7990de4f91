#define VN_MODULO "widestr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/widestr.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/cadena_int.h"
#include "foundation/texto/formato_int.h"
#include "foundation/texto/texto_priv.h"

// Texts: made, copied, destroyed, joined, changed. widestr_consulta.cpp asks about them and takes parts.

using namespace vn;
using namespace vn::texto;

// The most units that a wrong length may take.
static constexpr uint32_t MAX_TEXTO = 1u << 30;

vnwchar *widestr_nousar_creacadena(uint32_t n, const char *modulo, uint32_t linea) {
    if (!AFIRMA(n <= MAX_TEXTO)) return nullptr;
    return static_cast<vnwchar *>(vornspy_nousar_calloc(size_t{n} + 1, sizeof(vnwchar), modulo, linea));
}

vnwchar *widestr_nousar_creacadena_con_caracter(uint32_t n, vnwchar c, const char *modulo, uint32_t linea) {
    // A text of zeros would be an empty one.
    if (!AFIRMA(n <= MAX_TEXTO) || !AFIRMA(c != 0)) return nullptr;
    vnwchar *s = texto::nuevo<vnwchar>(n, QUIEN);
    std::char_traits<vnwchar>::assign(s, n, c);
    return s;
}

vnwchar *widestr_nousar_crea_de_unidades(const vnwchar *str, uint32_t len, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, str) || !AFIRMA(len <= MAX_TEXTO)) return nullptr;
    // A zero among the units is reported in the caller's name: for all who read it the text ends there.
    return texto::de_unidades(str, len, QUIEN, [&] { error_interno("widestr_longitud(str)==len", modulo, linea, 0); });
}

vnwchar *widestr_nousar_copia(const vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return nullptr;
    return texto::copia(vista_ancha(s), QUIEN);
}

// Null is copied as null, without a report.
vnwchar *widestr_nousar_copia_opcional(const vnwchar *s, const char *modulo, uint32_t linea) {
    return s != nullptr ? texto::copia(vista_ancha(s), QUIEN) : nullptr;
}

vnwchar *widestr_nousar_copia_si_no_null(const vnwchar *s, const char *modulo, uint32_t linea) {
    return widestr_nousar_copia_opcional(s, modulo, linea);
}

void widestr_nousar_destruye(vnwchar **s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s)) return;
    texto::destruye(s);
}

void widestr_nousar_destruye_opcional(vnwchar **s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s) || *s == nullptr) return;
    texto::destruye(s);
}

void widestr_fun_destruye(void *s) {
    if (!AFIRMA_NO_NULO(s)) return;
    vornspy_nousar_free_pp(s, 1);
}

void widestr_nousar_destruyeListaCadenas(uint32_t n, vnwchar ***lista, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, lista)) return;
    texto::destruye_lista(n, lista);
}

vnwchar *copiaforu_nousar_formatea(const vnwchar *formato, ...) {
    if (!AFIRMA_NO_NULO(formato)) return nullptr;
    CON_ARGUMENTOS(args, formato, vnwchar *s = formatea_nuevo(formato, args, VN_AQUI));
    return s;
}

void widestr_nousar_concatena(vnwchar **s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s, t)) return;
    texto::alarga(s, vista_ancha(t), false, QUIEN);
}

void widestr_nousar_cad_concatena(vnwchar **s, const vnwchar *t, const char *modulo, uint32_t linea) {
    widestr_nousar_concatena(s, t, modulo, linea);
}

void widestr_nousar_concatena_caracter(vnwchar **s, vnwchar c, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s)) return;
    // A zero would end the text where it ends already.
    if (c != 0) texto::alarga(s, vista_ancha(&c, 1), false, QUIEN);
}

void widestr_nousar_inserta_al_principio(vnwchar **s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s, t)) return;
    texto::alarga(s, vista_ancha(t), true, QUIEN);
}

void widestr_nousar_suprime_subcadena(vnwchar *s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, t)) return;
    texto::suprime<vnwchar>(s, t);
}

vnbool widestr_nousar_suprime_subcadena_inicial(vnwchar **s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s, t)) return FALSO;
    return texto::suprime_inicial<vnwchar>(*s, t, false);
}

vnbool widestr_nousar_suprime_subcadena_final(vnwchar **s, const vnwchar *t, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s, t)) return FALSO;
    const vista_ancha v(*s), final(t);
    if (!texto::termina(v, final)) return FALSO;
    (*s)[v.size() - final.size()] = 0;
    return CIERTO;
}

void widestr_nousar_reemplaza_todas_cadenas(vnwchar **s, const vnwchar *a, const vnwchar *b, const char *modulo,
                                            uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s, *s, a, b)) return;
    texto::reemplaza<vnwchar>(s, a, b, QUIEN);
}

void widestr_nousar_LTrim(vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return;
    texto::deja(s, texto::sin_blancos_delante<vnwchar>(s));
}

void widestr_nousar_RTrim(vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return;
    texto::deja(s, texto::sin_blancos_detras<vnwchar>(s));
}

void widestr_nousar_convertir_a_mayusculas(vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return;
    texto::cambia(s, [](const auto &j, vnwchar c) { return j.mayuscula(c); });
}

void widestr_nousar_convertir_a_minusculas(vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return;
    texto::cambia(s, [](const auto &j, vnwchar c) { return j.minuscula(c); });
}

void widestr_nousar_convertir_cadena_sin_acentos(vnwchar *s, const char *modulo, uint32_t linea) {
    if (!EXIGE_DE(modulo, linea, s)) return;
    // In place: without its loose accents a text only becomes shorter.
    vnwchar *donde = s;
    for (; *s != 0; ++s)
        if (!es_acento_suelto(*s)) *donde++ = sin_acento(*s);
    *donde = 0;
}
