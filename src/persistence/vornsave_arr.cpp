#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_priv.h"

#include <algorithm>
#include <type_traits>

// Arrays of numbers, truth values and points.
using namespace vn;

namespace {

// What the templates need of an array family.
template <class ARR> struct familia;
#define FAMILIA(sufijo, tipo_elemento)                                                                                 \
    template <> struct familia<arr##sufijo> {                                                                          \
        using elemento = tipo_elemento;                                                                                \
        static arr##sufijo *crea(uint32_t n) { return arr_Crea##sufijo(n); }                                           \
        static void destruye(arr##sufijo **a) { arr_Destruye##sufijo(a); }                                             \
        static uint32_t numelems(const arr##sufijo *a) { return arr_NumElems##sufijo(a); }                             \
        static elemento *buffer(arr##sufijo *a) { return arr_GetBuffer##sufijo(a); }                                   \
        static const elemento *buffer_const(const arr##sufijo *a) { return arr_GetBufferConst##sufijo(a); }            \
    };
FAMILIA(BOOL, vnbool)
FAMILIA(Double, double)
FAMILIA(Long, int32_t)
FAMILIA(Long64, int64_t)
FAMILIA(UChar, uint8_t)
FAMILIA(UShort, uint16_t)
FAMILIA(ULong, uint32_t)
FAMILIA(ULong64, uint64_t)
FAMILIA(Punto2D, Punto2D)
FAMILIA(Punto3D, Punto3D)

template <class ARR> using dueno = std::unique_ptr<ARR, suelta<familia<ARR>::destruye>>;

// Appends to an array whose length the source could not vouch for.
inline void anade(arrBOOL *a, vnbool v) { arr_AppendBOOL(a, v); }
inline void anade(arrDouble *a, double v) { arr_AppendDouble(a, v); }
inline void anade(arrLong *a, int32_t v) { arr_AppendLong(a, v); }
inline void anade(arrLong64 *a, int64_t v) { arr_AppendLong64(a, v); }
inline void anade(arrUChar *a, uint8_t v) { arr_AppendUChar(a, v); }
inline void anade(arrUShort *a, uint16_t v) { arr_AppendUShort(a, v); }
inline void anade(arrULong *a, uint32_t v) { arr_AppendULong(a, v); }
inline void anade(arrULong64 *a, uint64_t v) { arr_AppendULong64(a, v); }
inline void anade(arrPunto2D *a, const Punto2D &p) { arr_AppendPunto2D(a, p.x, p.y); }
inline void anade(arrPunto3D *a, const Punto3D &p) { arr_AppendPunto3D(a, p.x, p.y, p.z); }

// The scalars of an element: all but the last leave its line open.
template <auto ENTRADA, auto ABIERTA, class T> void graba_elemento(const T &v, vornsave *d) {
    const fncs_grabar_t &t = *d->fncs_grabar;
    if constexpr (std::is_arithmetic_v<T>) {
        (t.*ENTRADA)(v, d->datos_destino);
    } else {
        (t.*ABIERTA)(v.x, d->datos_destino);
        if constexpr (sizeof(T) == sizeof(Punto3D)) (t.*ABIERTA)(v.y, d->datos_destino);
        if constexpr (sizeof(T) == sizeof(Punto3D)) (t.*ENTRADA)(v.z, d->datos_destino);
        else (t.*ENTRADA)(v.y, d->datos_destino);
    }
}
template <auto ENTRADA, auto ABIERTA, class T> T lee_elemento(vornsave *d) {
    const fncs_leer_t &t = *d->fncs_leer;
    if constexpr (std::is_arithmetic_v<T>) {
        return (t.*ENTRADA)(d->datos_destino);
    } else {
        T v{};
        v.x = (t.*ABIERTA)(d->datos_destino);
        if constexpr (sizeof(T) == sizeof(Punto3D)) {
            v.y = (t.*ABIERTA)(d->datos_destino);
            v.z = (t.*ENTRADA)(d->datos_destino);
        } else {
            v.y = (t.*ENTRADA)(d->datos_destino);
        }
        return v;
    }
}

// A point goes as its two or three doubles.
template <class T> using escalar_de = std::conditional_t<std::is_arithmetic_v<T>, T, double>;
template <class T> inline constexpr uint32_t ESCALARES = sizeof(T) / sizeof(escalar_de<T>);

// Entry of the last scalar of an element, of those before it, whole arrays (null: never), progress.
template <auto ENTRADA, auto ABIERTA, auto BLOQUE, progreso PROGRESO, class T>
void graba_valores(const T *valores, uint32_t n, vornsave *d) {
    if (!puede_grabar<GRABAR(ulong_y_salta)>(d) || !puede_grabar<ABIERTA>(d) || !puede_grabar<ENTRADA>(d)) return;
    if constexpr (PROGRESO == CON_PROGRESO) progreso_al_grabar(d);
    graba<GRABAR(ulong_y_salta)>(d, n);
    if (n == 0) return;
    if constexpr (!std::is_null_pointer_v<decltype(BLOQUE)>) {
        if (d->bloques->*BLOQUE != nullptr && n <= UINT32_MAX / ESCALARES<T>) {
            (d->bloques->*BLOQUE)(reinterpret_cast<const escalar_de<T> *>(valores), n * ESCALARES<T>, d->datos_destino);
            return;
        }
    }
    for (uint32_t i = 0; i < n; ++i) graba_elemento<ENTRADA, ABIERTA>(valores[i], d);
}

template <class ARR, auto ENTRADA, auto ABIERTA, auto BLOQUE, progreso PROGRESO> ARR *lee_valores(vornsave *d) {
    using T = typename familia<ARR>::elemento;
    if (!puede_leer<LEER(ulong_y_salta)>(d) || !puede_leer<ABIERTA>(d) || !puede_leer<ENTRADA>(d)) return nullptr;
    if constexpr (PROGRESO == CON_PROGRESO) progreso_al_leer(d);
    constexpr bool EN_BLOQUE = !std::is_null_pointer_v<decltype(BLOQUE)>; // else a truth value, of one byte
    const uint32_t n = acota(d, lee<LEER(ulong_y_salta)>(d), EN_BLOQUE ? sizeof(T) : 1, 2 * ESCALARES<T>);
    dueno<ARR> array(familia<ARR>::crea(primer_paso(d, n)));
    if (array == nullptr || n == 0) return array.release();
    T *valores = familia<ARR>::buffer(array.get());
    const uint32_t listos = familia<ARR>::numelems(array.get());
    if constexpr (EN_BLOQUE) {
        if (d->bloques->*BLOQUE != nullptr && listos == n && n <= UINT32_MAX / ESCALARES<T>) {
            (d->bloques->*BLOQUE)(reinterpret_cast<escalar_de<T> *>(valores), n * ESCALARES<T>, d->datos_destino);
            return array.release();
        }
    }
    const vigia guarda(d);
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        const T v = lee_elemento<ENTRADA, ABIERTA, T>(d);
        if (i < listos) valores[i] = v;
        else anade(array.get(), v);
    }
    return array.release();
}

} // namespace

// A row: operation, array, entry of the last scalar of an element, of those before it, whole arrays, progress.
#define GRABA_ARR(nombre, arr, entrada, abierta, bloque, progreso)                                                     \
    void nombre(const arr *array, vornsave *vornsave_datos) {                                                          \
        if (!SE_GRABA(vornsave_datos, AFIRMA_NO_NULO(array))) return;                                                  \
        graba_valores<GRABAR(entrada), GRABAR(abierta), &bloques_t::graba_##bloque, progreso>(                         \
            familia<arr>::buffer_const(array), familia<arr>::numelems(array), vornsave_datos);                         \
    }
#define LEE_ARR(nombre, arr, entrada, abierta, bloque, progreso)                                                       \
    arr *nombre(vornsave *vornsave_datos) {                                                                            \
        return lee_valores<arr, LEER(entrada), LEER(abierta), &bloques_t::lee_##bloque, progreso>(vornsave_datos);     \
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
    if (!SE_GRABA(vornsave_datos, AFIRMA_NO_NULO(array))) return;
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    const vnbool *valores = arr_GetBufferConstBOOL(array);
    const uint32_t n = arr_NumElemsBOOL(array);
    if (vornsave_datos->tipo != BIN) {
        graba_valores<GRABAR(bool), GRABAR(bool), nullptr, SIN_PROGRESO>(valores, n, vornsave_datos);
        return;
    }
    for (uint32_t i = 0; i < n; ++i) {
        const vnbool elem = valores[i];
        if (!AFIRMA(elem == CIERTO || elem == FALSO)) falla(vornsave_datos);
    }
    graba_valores<GRABAR(ushort), GRABAR(ushort), &bloques_t::graba_ushort, SIN_PROGRESO>(valores, n, vornsave_datos);
}

arrBOOL *vornsave_lee_arr_bool(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    if (vornsave_datos->tipo != BIN)
        return lee_valores<arrBOOL, LEER(bool), LEER(bool), nullptr, SIN_PROGRESO>(vornsave_datos);
    dueno<arrBOOL> array(
        lee_valores<arrBOOL, LEER(ushort), LEER(ushort), &bloques_t::lee_ushort, SIN_PROGRESO>(vornsave_datos));
    const vnbool *valores = array != nullptr ? arr_GetBufferConstBOOL(array.get()) : nullptr;
    for (uint32_t i = 0, n = valores != nullptr ? arr_NumElemsBOOL(array.get()) : 0; i < n; ++i) {
        const vnbool elem = valores[i];
        if (!AFIRMA(elem == 1 || elem == 0)) falla(vornsave_datos);
    }
    return array.release();
}

arrDouble *vornsave_lee_arr_double_con_posible_error(vornsave *vornsave_datos, vnbool *es_incorrecto,
                                                     vnbool *es_denormal) {
    constexpr auto ENTRADA = LEER(double_y_salta_con_posible_error);
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    if (!AFIRMA_NO_NULO(es_incorrecto)) return nullptr;
    if (!AFIRMA_NO_NULO(es_denormal)) return nullptr;
    *es_incorrecto = *es_denormal = FALSO;
    if (!puede_leer<LEER(ulong_y_salta)>(vornsave_datos) || !puede_leer<ENTRADA>(vornsave_datos)) return nullptr;
    const uint32_t n = acota(vornsave_datos, lee<LEER(ulong_y_salta)>(vornsave_datos), sizeof(double), 2);
    dueno<arrDouble> array(arr_CreaDouble(0));
    const vigia guarda(vornsave_datos);
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        vnbool incorrecto = FALSO, denormal = FALSO;
        arr_AppendDouble(array.get(), lee<ENTRADA>(vornsave_datos, &incorrecto, &denormal));
        if (incorrecto == CIERTO) *es_incorrecto = CIERTO;
        if (denormal == CIERTO) *es_denormal = CIERTO;
    }
    return array.release();
}

// ---- The leaner arrays, which only grow at their end.

namespace {

template <class LEAN, auto CREA, auto DESTRUYE, auto ANADE, class T, auto ENTRADA, auto BLOQUE>
LEAN *lee_arulong(vornsave *d) {
    if (!puede_leer<LEER(ulong_y_salta)>(d) || !puede_leer<ENTRADA>(d)) return nullptr;
    progreso_al_leer(d);
    const uint32_t n = acota(d, lee<LEER(ulong_y_salta)>(d), sizeof(T), 2);
    std::unique_ptr<LEAN, suelta<DESTRUYE>> array(CREA());
    const vigia guarda(d);
    T trozo[512];
    for (uint32_t i = 0, m; i < n && guarda.sigue(); i += m) {
        m = 1;
        if (d->bloques->*BLOQUE != nullptr)
            (d->bloques->*BLOQUE)(trozo, m = std::min<uint32_t>(n - i, std::size(trozo)), d->datos_destino);
        else trozo[0] = lee<ENTRADA>(d);
        for (uint32_t j = 0; j < m; ++j) ANADE(array.get(), trozo[j]);
    }
    return array.release();
}

} // namespace

void vornsave_graba_arulong(const arulong *array, vornsave *vornsave_datos) {
    if (!SE_GRABA(vornsave_datos, AFIRMA_NO_NULO(array))) return;
    graba_valores<GRABAR(ulong_y_salta), GRABAR(ulong_y_salta), &bloques_t::graba_ulong, CON_PROGRESO>(
        arulong_get_buffer_const(array), arulong_numelems(array), vornsave_datos);
}

arulong *vornsave_lee_arulong(vornsave *vornsave_datos) {
    return lee_arulong<arulong, arulong_crea, arulong_destruye, arulong_append, uint32_t, LEER(ulong_y_salta),
                       &bloques_t::lee_ulong>(vornsave_datos);
}

void vornsave_graba_arulong64(const arulong64 *array, vornsave *vornsave_datos) {
    if (!SE_GRABA(vornsave_datos, AFIRMA_NO_NULO(array))) return;
    graba_valores<GRABAR(ulong64_y_salta), GRABAR(ulong64_y_salta), &bloques_t::graba_ulong64, CON_PROGRESO>(
        arulong64_get_buffer_const(array), arulong64_numelems(array), vornsave_datos);
}

arulong64 *vornsave_lee_arulong64(vornsave *vornsave_datos) {
    return lee_arulong<arulong64, arulong64_crea, arulong64_destruye, arulong64_append, uint64_t, LEER(ulong64_y_salta),
                       &bloques_t::lee_ulong64>(vornsave_datos);
}

// ---- Passing over an array: read and dropped.

#define SALTA_ARR(nombre, lectura, arr)                                                                                \
    void nombre(vornsave *vornsave_datos) { const dueno<arr> array(lectura(vornsave_datos)); }
SALTA_ARR(vornsave_salta_arr_double, vornsave_lee_arr_double, arrDouble)
SALTA_ARR(vornsave_salta_arr_ushort, vornsave_lee_arr_ushort, arrUShort)
SALTA_ARR(vornsave_salta_arr_ulong, vornsave_lee_arr_ulong, arrULong)
SALTA_ARR(vornsave_salta_arr_ulong64, vornsave_lee_arr_ulong64, arrULong64)
SALTA_ARR(vornsave_salta_arr_puntos2D, vornsave_lee_arr_puntos2D, arrPunto2D)
SALTA_ARR(vornsave_salta_arr_puntos3D, vornsave_lee_arr_puntos3D, arrPunto3D)
