#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_textos.h"

#include "foundation/texto/unicode.h"
#include "persistence/vornsave_priv.h"

// Arrays and ordered sets of texts.
using namespace vn;

namespace {

template <class W> void graba_arr(const typename W::arr *array, vornsave *d, bool con_null) {
    if (!EXIGE_AL_GRABAR(d, array)) return;
    if (!puede_grabar<GRABAR(ulong_y_salta), W::GRABA>(d)) return;
    graba_textos<W>(*d, array, con_null);
}
template <class W> typename W::arr *lee_arr(vornsave *d, bool con_null, bool de_ascii) {
    if (!puede_leer<LEER(ulong_y_salta), W::LEE>(d)) return nullptr;
    return lee_textos<W>(*d, con_null, de_ascii);
}
// Files of the OEM times: their texts are converted as they are read.
bool lee_ascii(const vornsave *d) { return d != nullptr && d->ANSI == FALSO; }

} // namespace

bool vn::hay_texto(const conducto &c, const void *texto) { return AFIRMA_NO_NULO(texto) || c.falla(); }

void vornsave_graba_arr_cadenas(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_arr<ansi>(array, vornsave_datos, false);
}

void vornsave_graba_arr_cadenas_unicode(const arrCADENA_u *array, vornsave *vornsave_datos) {
    graba_arr<ancha>(array, vornsave_datos, false);
}

void vornsave_graba_arr_cadenas_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_arr<ansi>(array, vornsave_datos, true);
}

void vornsave_graba_arr_cadenas_segun_tipo_unicode(const arrCADENA_u *array, vornsave *vornsave_datos) {
    graba_arr<ancha>(array, vornsave_datos, true);
}

arrCADENA *vornsave_lee_arr_cadenas(vornsave *vornsave_datos) {
    return lee_arr<ansi>(vornsave_datos, false, lee_ascii(vornsave_datos));
}

arrCADENA *vornsave_lee_arr_cadenas_segun_tipo(vornsave *vornsave_datos) {
    return lee_arr<ansi>(vornsave_datos, true, false);
}

arrCADENA *vornsave_lee_arr_cadenas_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii) {
    return lee_arr<ansi>(vornsave_datos, true, version <= version_ascii);
}

arrCADENA_u *vornsave_lee_arr_cadenas_ansi_unicode(vornsave *vornsave_datos) {
    const ansi::dueno_arr array(vornsave_lee_arr_cadenas(vornsave_datos));
    return array == nullptr ? nullptr : utunicode_cadenas_ANSI_a_UNICODE(array.get());
}

arrCADENA_u *vornsave_lee_arr_cadenas_unicode(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    // The report of a text stream has no expression: it is the contract's.
    if (!AFIRMA_TEXTO(vornsave_datos->fila->tipo != TXT, "")) return nullptr;
    return lee_arr<ancha>(vornsave_datos, false, false);
}

arrCADENA_u *vornsave_lee_arr_cadenas_segun_tipo_unicode(vornsave *vornsave_datos) {
    return lee_arr<ancha>(vornsave_datos, true, false);
}

void vornsave_salta_arr_cadena(vornsave *vornsave_datos) {
    const ansi::dueno_arr array(vornsave_lee_arr_cadenas(vornsave_datos));
}

void vornsave_salta_arr_cadena_unicode(vornsave *vornsave_datos) {
    const ancha::dueno_arr array(vornsave_lee_arr_cadenas_unicode(vornsave_datos));
}

// ---- Ordered sets: the flag of case, the count, the texts.

namespace {

// What the sets of the two widths differ in.
struct orden {
    using texto = ansi;
    using conjunto = acadorde;
    static constexpr auto crea = acadorde_crea;
    static void destruye(acadorde **a) { acadorde_destruye(a); }
    static constexpr auto inserta = acadorde_inserta;
    static constexpr auto get = acadorde_get;
    static constexpr auto numelems = acadorde_numelems;
    static constexpr auto distingue = acadorde_distingue_may_y_min;
};
struct orden_u {
    using texto = ancha;
    using conjunto = acadordeu;
    static constexpr auto crea = acadordeu_crea;
    static void destruye(acadordeu **a) { acadordeu_destruye(a); }
    static constexpr auto inserta = acadordeu_inserta;
    static constexpr auto get = acadordeu_get;
    static constexpr auto numelems = acadordeu_numelems;
    static constexpr auto distingue = acadordeu_distingue_may_y_min;
};

// The texts go through the entry, or through a function of the caller's, never both.
template <class O> void graba_conjunto(const typename O::conjunto *array, bool con_funcion,
                                       vnfunc_graba_texto fncptr_cs_graba_cadena, vornsave *d) {
    if (!EXIGE_AL_GRABAR(d, array)) return;
    if (!SE_GRABA(d, con_funcion ? AFIRMA_NO_NULO(fncptr_cs_graba_cadena)
                                 : AFIRMA_TEXTO(fncptr_cs_graba_cadena == nullptr, "fncptr_cs_graba_cadena == NULL")))
        return;
    if (!puede_grabar<GRABAR(bool), GRABAR(ulong_y_salta)>(d)) return;
    if (!con_funcion && !puede_grabar<O::texto::GRABA>(d)) return;
    // The flag first: a reader must know the order before the texts come.
    graba<GRABAR(bool)>(d, O::distingue(array));
    const uint32_t n = O::numelems(array);
    graba<GRABAR(ulong_y_salta)>(d, n);
    for (uint32_t i = 0; i < n; ++i)
        if constexpr (std::is_same_v<O, orden>) {
            if (con_funcion) fncptr_cs_graba_cadena(O::get(array, i), d);
            else graba_texto<ansi>(*d, O::get(array, i), false);
        } else {
            graba_texto<ancha>(*d, O::get(array, i), false);
        }
}

template <class O> typename O::conjunto *lee_conjunto(vornsave *d, vnfunc_lee_texto funcion) {
    if (!puede_leer<LEER(bool), LEER(ulong_y_salta)>(d)) return nullptr;
    if (funcion == nullptr && !puede_leer<O::texto::LEE>(d)) return nullptr;
    // A flag that is damaged counts as FALSO.
    const vnbool distingue = logico(lee<LEER(bool)>(d) == CIERTO);
    // A set that was stored in another order, by a damaged file, is put in order as its texts come.
    dueno<O::destruye> array(O::crea(distingue));
    const uint32_t n = d->acota(lee<LEER(ulong_y_salta)>(d), funcion != nullptr ? 1 : O::texto::BYTES);
    const vigia guarda(*d, funcion == nullptr && por_lineas<typename O::texto>(*d));
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        typename O::texto::dueno_texto texto;
        if constexpr (std::is_same_v<O, orden>)
            texto = funcion != nullptr ? dueno_cadena(funcion(d)) : lee_texto<ansi>(*d, false);
        else texto = lee_texto<ancha>(*d, false);
        if (texto != nullptr) O::inserta(array.get(), texto.get());
    }
    return array.release();
}

} // namespace

void vornsave_graba_acadorde(const acadorde *array, vornsave *vornsave_datos) {
    graba_conjunto<orden>(array, false, nullptr, vornsave_datos);
}

void vornsave_graba_acadordeu(const acadordeu *array, vornsave *vornsave_datos) {
    graba_conjunto<orden_u>(array, false, nullptr, vornsave_datos);
}

void vornsave_graba_acadorde_con_funcion(const acadorde *array, vnfunc_graba_texto funcion, vornsave *vornsave_datos) {
    graba_conjunto<orden>(array, true, funcion, vornsave_datos);
}

acadorde *vornsave_lee_acadorde(vornsave *vornsave_datos) { return lee_conjunto<orden>(vornsave_datos, nullptr); }

acadorde *vornsave_lee_acadorde_con_funcion(vornsave *vornsave_datos, vnfunc_lee_texto funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_conjunto<orden>(vornsave_datos, funcion);
}

acadordeu *vornsave_lee_acadordeu(vornsave *vornsave_datos) { return lee_conjunto<orden_u>(vornsave_datos, nullptr); }
