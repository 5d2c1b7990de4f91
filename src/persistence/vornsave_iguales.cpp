#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_iguales.h"

#include "foundation/numeros/vnmath.h"
#include "persistence/grupos_priv.h"
#include "persistence/vornsave_priv.h"

// Arrays in groups of equal values.
using namespace vn;

namespace {

bool puede_grabar_grupos(const vornsave *d) { return puede_grabar<GRABAR(bool), GRABAR(ulong_y_salta)>(d); }
bool puede_leer_grupos(const vornsave *d) { return puede_leer<LEER(bool), LEER(ulong_y_salta)>(d); }

void graba_cadenas(const arrCADENA *array, vornsave *d, bool con_null) {
    if (!EXIGE_AL_GRABAR(d, array)) return;
    if (!puede_grabar_grupos(d) || !puede_grabar<GRABAR(cadena)>(d)) return;
    const auto textos = arr_GetBufferConstCADENA(array);
    // Null is equal to null alone.
    const auto iguales = [](const char *a, const char *b) {
        return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
    };
    graba_grupos(*d, textos, arr_NumElemsCADENA(array), iguales, [=](uint32_t i) {
        const char *texto = textos[i];
        // Where null has no form, a null text is reported and goes as an empty one.
        if (con_null) graba_texto<ansi>(*d, texto, true);
        else d->graba<GRABAR(cadena)>(hay_texto(*d, texto) ? texto : "");
    });
}

arrCADENA *lee_cadenas(vornsave *d, bool con_null) {
    if (!puede_leer_grupos(d) || !puede_leer<LEER(cadena)>(d)) return nullptr;
    // No file of the OEM times has this form.
    AFIRMA_TEXTO(d->ANSI == CIERTO, "vornsave_datos->ANSI == CIERTO");
    // Not bounded by what is left: few bytes may stand for many values, and the budget of the groups holds them.
    const uint32_t num_elems_a_leer = lee<LEER(ulong_y_salta)>(d);
    dueno<arr_DestruyeCADENA> leidos(arr_CreaCADENA(0));
    arrCADENA *const array = leidos.get();
    lee_grupos(
        *d, num_elems_a_leer, con_null ? 1 : sizeof(uint16_t), 1,
        [=] { return con_null ? lee_texto<ansi>(*d, true) : dueno_cadena(d->lee<LEER(cadena)>()); },
        [=](const dueno_cadena &texto) { arr_AppendCADENA(array, texto.get()); });
    // Groups that ended before their total: reported, and what there is handed over.
    if (!AFIRMA(arr_NumElemsCADENA(array) == num_elems_a_leer)) d->falla();
    return leidos.release();
}

} // namespace

void vornsave_graba_arr_double_con_valores_iguales(const arrDouble *array, double tolerancia,
                                                   vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    if (!puede_grabar_grupos(vornsave_datos) || !puede_grabar<GRABAR(double_y_salta)>(vornsave_datos)) return;
    const double *valores = arr_GetBufferConstDouble(array);
    graba_grupos(
        *vornsave_datos, valores, arr_NumElemsDouble(array),
        [=](double a, double b) { return SON_IGUALES_PREC(a, b, tolerancia) == CIERTO; },
        [=](uint32_t i) { graba<GRABAR(double_y_salta)>(vornsave_datos, valores[i]); });
}

arrDouble *vornsave_lee_arr_double_con_valores_iguales(vornsave *vornsave_datos) {
    if (!puede_leer_grupos(vornsave_datos) || !puede_leer<LEER(double_y_salta)>(vornsave_datos)) return nullptr;
    const uint32_t num_elems_a_leer = lee<LEER(ulong_y_salta)>(vornsave_datos);
    dueno<arr_DestruyeDouble> leidos(arr_CreaDouble(0));
    arrDouble *const array = leidos.get();
    lee_grupos(
        *vornsave_datos, num_elems_a_leer, sizeof(double), 2, [=] { return lee<LEER(double_y_salta)>(vornsave_datos); },
        [=](double valor) { arr_AppendDouble(array, valor); });
    if (!AFIRMA(arr_NumElemsDouble(array) == num_elems_a_leer)) vornsave_datos->falla();
    return leidos.release();
}

void vornsave_graba_arr_cadenas_con_valores_iguales(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_cadenas(array, vornsave_datos, false);
}

arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales(vornsave *vornsave_datos) {
    return lee_cadenas(vornsave_datos, false);
}

void vornsave_graba_arr_cadenas_con_valores_iguales_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_cadenas(array, vornsave_datos, true);
}

arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales_segun_tipo(vornsave *vornsave_datos) {
    return lee_cadenas(vornsave_datos, true);
}
