#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_arr.h"

#include "persistence/valores_priv.h"
#include "persistence/vornsave_priv.h"

// Arrays of numbers, truth values and points.
using namespace vn;

namespace {

template <auto ENTRADA, auto ABIERTA, auto BLOQUE, progreso PROGRESO, class T>
void graba_arr(const T *valores, uint32_t n, vornsave *d) {
    // All entries are asked for before the count goes: what was announced must come.
    if (!puede_grabar<GRABAR(ulong_y_salta), ABIERTA, ENTRADA>(d)) return;
    if constexpr (PROGRESO == CON_PROGRESO) progreso_al_grabar(d);
    graba_valores<ENTRADA, ABIERTA, BLOQUE>(*d, valores, n);
}
template <class ARR, auto ENTRADA, auto ABIERTA, auto BLOQUE, progreso PROGRESO> ARR *lee_arr(vornsave *d) {
    if (!puede_leer<LEER(ulong_y_salta), ABIERTA, ENTRADA>(d)) return nullptr;
    if constexpr (PROGRESO == CON_PROGRESO) progreso_al_leer(d);
    return lee_valores<ARR, ENTRADA, ABIERTA, BLOQUE>(*d);
}

} // namespace

// A row: operation, array, entry of the last scalar of an element, of those before it, whole arrays, progress.
#define GRABA_ARR(nombre, arr, entrada, abierta, bloque, progreso)                                                     \
    void nombre(const arr *array, vornsave *vornsave_datos) {                                                          \
        if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;                                                           \
        graba_arr<GRABAR(entrada), GRABAR(abierta), &bloques_t::graba_##bloque, progreso>(                             \
            familia<arr>::buffer_const(array), familia<arr>::numelems(array), vornsave_datos);                         \
    }
#define LEE_ARR(nombre, arr, entrada, abierta, bloque, progreso)                                                       \
    arr *nombre(vornsave *vornsave_datos) {                                                                            \
        return lee_arr<arr, LEER(entrada), LEER(abierta), &bloques_t::lee_##bloque, progreso>(vornsave_datos);         \
    }

GRABA_ARR(vornsave_graba_arr_double, arrDouble, double_y_salta, double_y_salta, double, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_double, arrDouble, double_y_salta, double_y_salta, double, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_long, arrLong, long_y_salta, long_y_salta, long, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_long, arrLong, long_y_salta, long_y_salta, long, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_long64, arrLong64, long64_y_salta, long64_y_salta, long64, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_long64, arrLong64, long64_y_salta, long64_y_salta, long64, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_uchar, arrUChar, uchar_y_salta, uchar_y_salta, uchar, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_uchar, arrUChar, uchar_y_salta, uchar_y_salta, uchar, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_ushort, arrUShort, ushort_y_salta, ushort_y_salta, ushort, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_ushort, arrUShort, ushort_y_salta, ushort_y_salta, ushort, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_ulong, arrULong, ulong_y_salta, ulong_y_salta, ulong, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_ulong, arrULong, ulong_y_salta, ulong_y_salta, ulong, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_ulong64, arrULong64, ulong64_y_salta, ulong64_y_salta, ulong64, CON_PROGRESO)
LEE_ARR(vornsave_lee_arr_ulong64, arrULong64, ulong64_y_salta, ulong64_y_salta, ulong64, CON_PROGRESO)
GRABA_ARR(vornsave_graba_arr_puntos2D, arrPunto2D, double_y_salta, double_sin_salto, double, SIN_PROGRESO)
LEE_ARR(vornsave_lee_arr_puntos2D, arrPunto2D, double_y_salta, double_sin_salto, double, SIN_PROGRESO)
GRABA_ARR(vornsave_graba_arr_puntos3D, arrPunto3D, double_y_salta, double_sin_salto, double, SIN_PROGRESO)
LEE_ARR(vornsave_lee_arr_puntos3D, arrPunto3D, double_y_salta, double_sin_salto, double, SIN_PROGRESO)

// Truth values are unsigned shorts on a binary stream.
void vornsave_graba_arr_bool(const arrBOOL *array, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    const vnbool *valores = arr_GetBufferConstBOOL(array);
    const uint32_t n = arr_NumElemsBOOL(array);
    if (vornsave_datos->fila->tipo != BIN) {
        graba_arr<GRABAR(bool), GRABAR(bool), nullptr, SIN_PROGRESO>(valores, n, vornsave_datos);
        return;
    }
    // Looked at first: the numbers that they go as would pass unseen.
    for (uint32_t i = 0; i < n; ++i) {
        const vnbool elem = valores[i];
        if (!AFIRMA(elem == CIERTO || elem == FALSO)) vornsave_datos->falla();
    }
    graba_arr<GRABAR(ushort), GRABAR(ushort), &bloques_t::graba_ushort, SIN_PROGRESO>(valores, n, vornsave_datos);
}

arrBOOL *vornsave_lee_arr_bool(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    if (vornsave_datos->fila->tipo != BIN)
        return lee_arr<arrBOOL, LEER(bool), LEER(bool), nullptr, SIN_PROGRESO>(vornsave_datos);
    familia<arrBOOL>::dueno array(
        lee_arr<arrBOOL, LEER(ushort), LEER(ushort), &bloques_t::lee_ushort, SIN_PROGRESO>(vornsave_datos));
    const vnbool *valores = array != nullptr ? arr_GetBufferConstBOOL(array.get()) : nullptr;
    for (uint32_t i = 0, n = valores != nullptr ? arr_NumElemsBOOL(array.get()) : 0; i < n; ++i) {
        const vnbool elem = valores[i];
        // Reported, and left in its place: the array keeps its length.
        if (!AFIRMA(elem == 1 || elem == 0)) vornsave_datos->falla();
    }
    return array.release();
}

arrDouble *vornsave_lee_arr_double_con_posible_error(vornsave *vornsave_datos, vnbool *es_incorrecto,
                                                     vnbool *es_denormal) {
    constexpr auto ENTRADA = LEER(double_y_salta_con_posible_error);
    if (!EXIGE(vornsave_datos, es_incorrecto, es_denormal)) return nullptr;
    *es_incorrecto = *es_denormal = FALSO;
    if (!puede_leer<LEER(ulong_y_salta), ENTRADA>(vornsave_datos)) return nullptr;
    const uint32_t n = vornsave_datos->acota(lee<LEER(ulong_y_salta)>(vornsave_datos), sizeof(double), 2);
    familia<arrDouble>::dueno array(arr_CreaDouble(0));
    const vigia guarda(*vornsave_datos);
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        // Flags of its own to each element; the caller's gather what any of them had.
        vnbool incorrecto = FALSO, denormal = FALSO;
        arr_AppendDouble(array.get(), lee<ENTRADA>(vornsave_datos, &incorrecto, &denormal));
        if (incorrecto == CIERTO) *es_incorrecto = CIERTO;
        if (denormal == CIERTO) *es_denormal = CIERTO;
    }
    return array.release();
}

// ---- The leaner arrays, which only grow at their end.

namespace {

template <auto DESTRUYE, auto CREA, auto ANADE, class T, auto ENTRADA, auto BLOQUE> auto *lee_arulong(vornsave *d) {
    using dueno_array = dueno<DESTRUYE>;
    if (!puede_leer<LEER(ulong_y_salta), ENTRADA>(d)) return typename dueno_array::pointer();
    progreso_al_leer(d);
    return lee_al_final<dueno_array, CREA, ANADE, T, ENTRADA, BLOQUE>(*d);
}

} // namespace

void vornsave_graba_arulong(const arulong *array, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    graba_arr<GRABAR(ulong_y_salta), GRABAR(ulong_y_salta), &bloques_t::graba_ulong, CON_PROGRESO>(
        arulong_get_buffer_const(array), arulong_numelems(array), vornsave_datos);
}

arulong *vornsave_lee_arulong(vornsave *vornsave_datos) {
    return lee_arulong<arulong_destruye, arulong_crea, arulong_append, uint32_t, LEER(ulong_y_salta),
                       &bloques_t::lee_ulong>(vornsave_datos);
}

void vornsave_graba_arulong64(const arulong64 *array, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    graba_arr<GRABAR(ulong64_y_salta), GRABAR(ulong64_y_salta), &bloques_t::graba_ulong64, CON_PROGRESO>(
        arulong64_get_buffer_const(array), arulong64_numelems(array), vornsave_datos);
}

arulong64 *vornsave_lee_arulong64(vornsave *vornsave_datos) {
    return lee_arulong<arulong64_destruye, arulong64_crea, arulong64_append, uint64_t, LEER(ulong64_y_salta),
                       &bloques_t::lee_ulong64>(vornsave_datos);
}

// ---- Passing over an array: read and dropped.

#define SALTA_ARR(nombre, lectura, arr)                                                                                \
    void nombre(vornsave *vornsave_datos) { const familia<arr>::dueno array(lectura(vornsave_datos)); }
SALTA_ARR(vornsave_salta_arr_double, vornsave_lee_arr_double, arrDouble)
SALTA_ARR(vornsave_salta_arr_ushort, vornsave_lee_arr_ushort, arrUShort)
SALTA_ARR(vornsave_salta_arr_ulong, vornsave_lee_arr_ulong, arrULong)
SALTA_ARR(vornsave_salta_arr_ulong64, vornsave_lee_arr_ulong64, arrULong64)
SALTA_ARR(vornsave_salta_arr_puntos2D, vornsave_lee_arr_puntos2D, arrPunto2D)
SALTA_ARR(vornsave_salta_arr_puntos3D, vornsave_lee_arr_puntos3D, arrPunto3D)
