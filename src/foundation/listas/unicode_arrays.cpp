#define VN_MODULO "unicode (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/texto/unicode.h"

// The array forms of the conversions.

namespace {

// An array of each text that `convierte` makes; null elements stay null.
template <class F> arrCADENA_u *ancha(const arrCADENA *a, F convierte) {
    vn::dueno<arr_DestruyeCADENA_u> r(arr_CreaCADENA_u(arr_NumElemsCADENA(a)));
    if (r == nullptr) return nullptr;
    const char *const *textos = arr_GetBufferConstCADENA(a);
    for (uint32_t i = 0, n = arr_NumElemsCADENA(a); i < n; ++i) {
        vnwchar *s = textos[i] != nullptr ? convierte(textos[i]) : nullptr;
        // The array takes the new text over instead of copying it.
        arr_SetCADENAOriginal_u(r.get(), i, &s);
    }
    return r.release();
}

template <class F> arrCADENA *estrecha(const arrCADENA_u *a, F convierte) {
    vn::dueno<arr_DestruyeCADENA> r(arr_CreaCADENA(arr_NumElemsCADENA_u(a)));
    if (r == nullptr) return nullptr;
    const vnwchar *const *textos = arr_GetBufferConstCADENA_u(a);
    for (uint32_t i = 0, n = arr_NumElemsCADENA_u(a); i < n; ++i) {
        char *s = textos[i] != nullptr ? convierte(textos[i]) : nullptr;
        arr_SetCADENAOriginal(r.get(), i, &s);
    }
    return r.release();
}

} // namespace

arrCADENA *unicode_array_salida_ANSI_tratando_error(const arrCADENA_u *a, vnbool *hay_error) {
    if (!AFIRMA_NO_NULO(a)) return nullptr;
    vnbool alguno = FALSO;
    arrCADENA *r = estrecha(a, [&](const vnwchar *s) {
        vnbool este = FALSO;
        char *t = unicode_a_salida_ANSI_tratando_error(s, &este);
        // One text with characters that the page lacks marks the whole array.
        if (este == CIERTO) alguno = CIERTO;
        return t;
    });
    if (hay_error != nullptr) *hay_error = alguno;
    return r;
}

arrCADENA_u *utunicode_cadenas_ANSI_a_UNICODE(const arrCADENA *a) {
    if (!AFIRMA_NO_NULO(a)) return nullptr;
    return ancha(a, unicode_convierte_ANSI_a_UNICODE);
}

arrCADENA_u *utunicode_cadenas_ANSI_a_UNICODE_destruyendo(arrCADENA **a) {
    if (!EXIGE(a, *a)) return nullptr;
    vn::dueno<arr_DestruyeCADENA_u> r(ancha(*a, unicode_convierte_ANSI_a_UNICODE));
    arr_DestruyeCADENA(a);
    return r.release();
}

arrCADENA *utunicode_cadenas_UNICODE_a_ANSI(const arrCADENA_u *a) {
    if (!AFIRMA_NO_NULO(a)) return nullptr;
    return estrecha(a, unicode_UNICODE_a_ANSI);
}

arrCADENA *utunicode_cadenas_UNICODE_a_ANSI_destruyendo(arrCADENA_u **a) {
    if (!EXIGE(a, *a)) return nullptr;
    vn::dueno<arr_DestruyeCADENA> r(estrecha(*a, unicode_UNICODE_a_ANSI));
    arr_DestruyeCADENA_u(a);
    return r.release();
}

arrCADENA_u *utunicode_cadenas_UTF8_a_UNICODE_destruyendo(arrCADENA **a) {
    if (!EXIGE(a, *a)) return nullptr;
    vn::dueno<arr_DestruyeCADENA_u> r(ancha(*a, unicode_convierte_UTF8_a_UNICODE));
    arr_DestruyeCADENA(a);
    return r.release();
}

void utunicode_destruye_cadenas_UNICODE(arrCADENA_u **a) {
    if (!EXIGE(a, *a)) return;
    arr_DestruyeCADENA_u(a);
}
