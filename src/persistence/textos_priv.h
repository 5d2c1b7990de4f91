// Arrays of texts of either width over a destination, for any module that stores some: the count and the texts, in the
// form in which null ones survive or without it. The caller has checked the entries.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/destino_priv.h"
#include <type_traits>

namespace vn {

// Owners of the texts that are read.
using dueno_cadena = propio<char>;
using dueno_cadena_u = propio<vnwchar>;

// What the two widths differ in.
struct ansi {
    using caracter = char;
    using arr = arrCADENA;
    using dueno_texto = dueno_cadena;
    using dueno_arr = dueno<arr_DestruyeCADENA>;
    static constexpr auto GRABA = GRABAR(cadena);
    static constexpr auto LEE = LEER(cadena);
    static constexpr auto GRABA_O_NULL = &nulos_t::graba;
    static constexpr auto LEE_O_NULL = &nulos_t::lee;
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
    using dueno_arr = dueno<arr_DestruyeCADENA_u>;
    static constexpr auto GRABA = GRABAR(cadena_unicode);
    static constexpr auto LEE = LEER(cadena_unicode);
    static constexpr auto GRABA_O_NULL = &nulos_t::graba_unicode;
    static constexpr auto LEE_O_NULL = &nulos_t::lee_unicode;
    static constexpr uint64_t BYTES = 4;
    static constexpr const vnwchar *VACIA = VNU("");
    static constexpr auto crea = arr_CreaCADENA_u;
    static constexpr auto numelems = arr_NumElemsCADENA_u;
    static constexpr auto textos = arr_GetBufferConstCADENA_u;
    static constexpr auto pone = arr_SetCADENAOriginal_u;
    static constexpr auto anade = arr_AppendCADENAOriginal_u;
    static constexpr auto reduce = arr_ReduceTamanyoCADENA_u;
};

// Checks a text that must not be null; a null one is reported, and the save is marked.
bool hay_texto(const conducto &c, const void *texto);

// Writes one text of an array. `con_null` asks for the form in which null elements survive; where the destination has
// no such form a null text is reported and written as an empty one, so that the reader stays in step.
template <class W> void graba_texto(const conducto &c, const typename W::caracter *texto, bool con_null) {
    if (con_null && c.fila->nulos.*W::GRABA_O_NULL != nullptr) return (c.fila->nulos.*W::GRABA_O_NULL)(texto, c.donde);
    if (!hay_texto(c, texto)) texto = W::VACIA;
    if constexpr (std::is_same_v<W, ansi>)
        if (c.fila->lineas.graba != nullptr) return c.fila->lineas.graba(texto, c.donde);
    c.graba<W::GRABA>(texto);
}
template <class W> void graba_textos(const conducto &c, const typename W::arr *array, bool con_null) {
    const uint32_t n = W::numelems(array);
    const auto textos = W::textos(array);
    c.graba<GRABAR(ulong_y_salta)>(n);
    for (uint32_t i = 0; i < n; ++i) graba_texto<W>(c, textos[i], con_null);
}

// Texts that are read as lines: one that is too long leaves the source in step.
template <class W> bool por_lineas(const conducto &c) {
    return std::is_same_v<W, ansi> && c.fila->lineas.lee != nullptr;
}
// One text of an array: its own form, the line, or the plain entry.
template <class W> typename W::dueno_texto lee_texto(const conducto &c, bool con_null) {
    if (con_null && c.fila->nulos.*W::LEE_O_NULL != nullptr)
        return typename W::dueno_texto((c.fila->nulos.*W::LEE_O_NULL)(c.donde));
    if constexpr (std::is_same_v<W, ansi>)
        if (por_lineas<W>(c)) return typename W::dueno_texto(c.fila->lineas.lee(c.donde));
    return typename W::dueno_texto(c.lee<W::LEE>());
}
template <class W> typename W::arr *lee_textos(const conducto &c, bool con_null, bool de_ascii) {
    const bool otra_forma = con_null && c.fila->nulos.*W::LEE_O_NULL != nullptr;
    const uint32_t n = c.acota(c.lee<LEER(ulong_y_salta)>(), otra_forma ? 1 : W::BYTES);
    typename W::dueno_arr array(W::crea(c.primer_paso(n)));
    if (array == nullptr) return nullptr;
    const uint32_t listos = W::numelems(array.get());
    const vigia guarda(c, por_lineas<W>(c));
    uint32_t i = 0;
    for (; i < n && guarda.sigue(); ++i) {
        typename W::dueno_texto texto = lee_texto<W>(c, con_null);
        if constexpr (std::is_same_v<W, ansi>)
            if (de_ascii && texto != nullptr) cad_convertir_cadena_ascii_ansi(texto.get());
        auto *original = texto.release();
        if (i < listos) W::pone(array.get(), i, &original);
        else W::anade(array.get(), &original);
    }
    if (i < listos) W::reduce(array.get(), i);
    return array.release();
}

} // namespace vn
