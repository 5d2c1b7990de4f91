#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_priv.h"

#include "foundation/texto/unicode.h"

// Arrays and ordered sets of texts.
using namespace vn;

namespace {

void destruye_textos(arrCADENA **a) { arr_DestruyeCADENA(a); }
void destruye_textos_u(arrCADENA_u **a) { arr_DestruyeCADENA_u(a); }

// What the two widths differ in.
struct ansi {
    using caracter = char;
    using arr = arrCADENA;
    using dueno_texto = dueno_cadena;
    using dueno_arr = std::unique_ptr<arrCADENA, suelta<destruye_textos>>;
    static constexpr auto GRABA = GRABAR(cadena);
    static constexpr auto LEE = LEER(cadena);
    static constexpr auto GRABA_O_NULL = &operaciones_destino::graba_cadena_o_null;
    static constexpr auto LEE_O_NULL = &operaciones_destino::lee_cadena_o_null;
    static constexpr uint64_t BYTES = 2; // of an empty text on a binary stream
    static constexpr const char *VACIA = "";
    static constexpr auto crea = arr_CreaCADENA;
    static constexpr auto numelems = arr_NumElemsCADENA;
    static constexpr auto textos = arr_GetBufferConstCADENA;
    static constexpr auto pone = arr_SetCADENAOriginal;
    static constexpr auto anade = arr_AppendCADENAOriginal;
    static constexpr auto reduce = arr_ReduceTamanyoCADENA;
};
struct ancha {
    using caracter = vnwchar;
    using arr = arrCADENA_u;
    using dueno_texto = dueno_cadena_u;
    using dueno_arr = std::unique_ptr<arrCADENA_u, suelta<destruye_textos_u>>;
    static constexpr auto GRABA = GRABAR(cadena_unicode);
    static constexpr auto LEE = LEER(cadena_unicode);
    static constexpr auto GRABA_O_NULL = &operaciones_destino::graba_cadena_o_null_unicode;
    static constexpr auto LEE_O_NULL = &operaciones_destino::lee_cadena_o_null_unicode;
    static constexpr uint64_t BYTES = 4;
    static constexpr const vnwchar *VACIA = VNU("");
    static constexpr auto crea = arr_CreaCADENA_u;
    static constexpr auto numelems = arr_NumElemsCADENA_u;
    static constexpr auto textos = arr_GetBufferConstCADENA_u;
    static constexpr auto pone = arr_SetCADENAOriginal_u;
    static constexpr auto anade = arr_AppendCADENAOriginal_u;
    static constexpr auto reduce = arr_ReduceTamanyoCADENA_u;
};

template <class W> void graba_texto(const typename W::caracter *texto, vornsave *d, bool con_null) {
    if (con_null && d->*W::GRABA_O_NULL != nullptr) return (d->*W::GRABA_O_NULL)(texto, d->datos_destino);
    if (!SE_GRABA(d, AFIRMA_NO_NULO(texto))) texto = W::VACIA;
    if constexpr (std::is_same_v<W, ansi>)
        if (d->graba_linea != nullptr) return d->graba_linea(texto, d->datos_destino);
    (d->fncs_grabar->*W::GRABA)(texto, d->datos_destino);
}

template <class W> void graba_textos(const typename W::arr *array, vornsave *d, bool con_null) {
    if (!SE_GRABA(d, AFIRMA_NO_NULO(array))) return;
    if (!puede_grabar<GRABAR(ulong_y_salta)>(d) || !puede_grabar<W::GRABA>(d)) return;
    const uint32_t n = W::numelems(array);
    const auto textos = W::textos(array);
    graba<GRABAR(ulong_y_salta)>(d, n);
    for (uint32_t i = 0; i < n; ++i) graba_texto<W>(textos[i], d, con_null);
}

// Texts that are read as lines: one that is too long leaves the source in step.
template <class W> bool por_lineas(const vornsave *d) { return std::is_same_v<W, ansi> && d->lee_linea != nullptr; }
// One text of an array: its own form, the line, or the plain entry.
template <class W> typename W::caracter *lee_texto(vornsave *d, bool con_null) {
    if (con_null && d->*W::LEE_O_NULL != nullptr) return (d->*W::LEE_O_NULL)(d->datos_destino);
    if constexpr (std::is_same_v<W, ansi>)
        if (d->lee_linea != nullptr) return d->lee_linea(d->datos_destino);
    return (d->fncs_leer->*W::LEE)(d->datos_destino);
}

template <class W> typename W::arr *lee_textos(vornsave *d, bool con_null, bool de_ascii) {
    if (!puede_leer<LEER(ulong_y_salta)>(d) || !puede_leer<W::LEE>(d)) return nullptr;
    const bool otra_forma = con_null && d->*W::LEE_O_NULL != nullptr;
    const uint32_t n = acota(d, lee<LEER(ulong_y_salta)>(d), otra_forma ? 1 : W::BYTES);
    typename W::dueno_arr array(W::crea(primer_paso(d, n)));
    if (array == nullptr) return nullptr;
    const uint32_t listos = W::numelems(array.get());
    const vigia guarda(d, por_lineas<W>(d));
    uint32_t i = 0;
    for (; i < n && guarda.sigue(); ++i) {
        typename W::dueno_texto texto(lee_texto<W>(d, con_null));
        if constexpr (std::is_same_v<W, ansi>)
            if (de_ascii && texto != nullptr) cad_convertir_cadena_ascii_ansi(texto.get());
        auto *original = texto.release();
        if (i < listos) W::pone(array.get(), i, &original);
        else W::anade(array.get(), &original);
    }
    if (i < listos) W::reduce(array.get(), i);
    return array.release();
}

bool lee_ascii(const vornsave *d) { return d != nullptr && d->ANSI == FALSO; }

} // namespace

void vn::graba_texto_o_null(const char *texto, vornsave *vornsave_datos) {
    graba_texto<ansi>(texto, vornsave_datos, true);
}

char *vn::lee_texto_o_null(vornsave *vornsave_datos) { return lee_texto<ansi>(vornsave_datos, true); }

void vornsave_graba_arr_cadenas(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_textos<ansi>(array, vornsave_datos, false);
}

void vornsave_graba_arr_cadenas_unicode(const arrCADENA_u *array, vornsave *vornsave_datos) {
    graba_textos<ancha>(array, vornsave_datos, false);
}

void vornsave_graba_arr_cadenas_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_textos<ansi>(array, vornsave_datos, true);
}

void vornsave_graba_arr_cadenas_segun_tipo_unicode(const arrCADENA_u *array, vornsave *vornsave_datos) {
    graba_textos<ancha>(array, vornsave_datos, true);
}

arrCADENA *vornsave_lee_arr_cadenas(vornsave *vornsave_datos) {
    return lee_textos<ansi>(vornsave_datos, false, lee_ascii(vornsave_datos));
}

arrCADENA *vornsave_lee_arr_cadenas_segun_tipo(vornsave *vornsave_datos) {
    return lee_textos<ansi>(vornsave_datos, true, false);
}

arrCADENA *vornsave_lee_arr_cadenas_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii) {
    return lee_textos<ansi>(vornsave_datos, true, version <= version_ascii);
}

arrCADENA_u *vornsave_lee_arr_cadenas_ansi_unicode(vornsave *vornsave_datos) {
    const ansi::dueno_arr array(vornsave_lee_arr_cadenas(vornsave_datos));
    return array == nullptr ? nullptr : utunicode_cadenas_ANSI_a_UNICODE(array.get());
}

arrCADENA_u *vornsave_lee_arr_cadenas_unicode(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    if (!AFIRMA_TEXTO(vornsave_datos->tipo != TXT, "")) return nullptr;
    return lee_textos<ancha>(vornsave_datos, false, false);
}

arrCADENA_u *vornsave_lee_arr_cadenas_segun_tipo_unicode(vornsave *vornsave_datos) {
    return lee_textos<ancha>(vornsave_datos, true, false);
}

void vornsave_salta_arr_cadena(vornsave *vornsave_datos) {
    const ansi::dueno_arr array(vornsave_lee_arr_cadenas(vornsave_datos));
}

void vornsave_salta_arr_cadena_unicode(vornsave *vornsave_datos) {
    const ancha::dueno_arr array(vornsave_lee_arr_cadenas_unicode(vornsave_datos));
}

// ---- Ordered sets: the flag of case, the count, the texts.

namespace {

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
    if (!SE_GRABA(d, AFIRMA_NO_NULO(array))) return;
    if (!SE_GRABA(d, con_funcion ? AFIRMA_NO_NULO(fncptr_cs_graba_cadena)
                                 : AFIRMA_TEXTO(fncptr_cs_graba_cadena == nullptr, "fncptr_cs_graba_cadena == NULL")))
        return;
    if (!puede_grabar<GRABAR(bool)>(d) || !puede_grabar<GRABAR(ulong_y_salta)>(d)) return;
    if (!con_funcion && !puede_grabar<O::texto::GRABA>(d)) return;
    graba<GRABAR(bool)>(d, O::distingue(array));
    const uint32_t n = O::numelems(array);
    graba<GRABAR(ulong_y_salta)>(d, n);
    for (uint32_t i = 0; i < n; ++i)
        if constexpr (std::is_same_v<O, orden>) {
            if (con_funcion) fncptr_cs_graba_cadena(O::get(array, i), d);
            else graba_texto<ansi>(O::get(array, i), d, false);
        } else {
            graba_texto<ancha>(O::get(array, i), d, false);
        }
}

template <class O> typename O::conjunto *lee_conjunto(vornsave *d, vnfunc_lee_texto funcion) {
    if (!puede_leer<LEER(bool)>(d) || !puede_leer<LEER(ulong_y_salta)>(d)) return nullptr;
    if (funcion == nullptr && !puede_leer<O::texto::LEE>(d)) return nullptr;
    const vnbool distingue = lee<LEER(bool)>(d) == CIERTO ? CIERTO : FALSO;
    std::unique_ptr<typename O::conjunto, suelta<O::destruye>> array(O::crea(distingue));
    const uint32_t n = acota(d, lee<LEER(ulong_y_salta)>(d), funcion != nullptr ? 1 : O::texto::BYTES);
    const vigia guarda(d, funcion == nullptr && por_lineas<typename O::texto>(d));
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        typename O::texto::dueno_texto texto;
        if constexpr (std::is_same_v<O, orden>)
            texto.reset(funcion != nullptr ? funcion(d) : lee_texto<ansi>(d, false));
        else texto.reset(lee_texto<ancha>(d, false));
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
