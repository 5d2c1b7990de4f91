#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_punteros.h"

#include "persistence/vornsave_priv.h"

// Arrays and ordered sets of structures, by the caller's functions.
using namespace vn;

namespace {

void destruye_array(void *array) { arr_DestruyePunteroConTipo(static_cast<arrPuntero **>(array)); }
void destruye_arrays(arrPuntero **arrays) { arr_DestruyeEstructurasArrayConTipo(arrays, destruye_array); }
void destruye_xpriv(arrPunto2DXPriv **a) { arr_DestruyePunto2DXPriv(a, nullptr); }

// A count of structures. A structure may be empty, so up to 65,536 are accepted without asking what is left.
template <progreso PROGRESO = CON_PROGRESO> uint32_t lee_numero(vornsave *d) {
    constexpr uint32_t SIN_BYTES = 65536;
    const uint32_t n = lee<LEER(ulong), PROGRESO>(d);
    return n <= SIN_BYTES ? n : d->acota(n, 1);
}

// Reads the structures one by one and hands each over; what a failed reader still made is handed over too.
template <class LEE, class RECIBE> void lee_estructuras(vornsave *d, uint32_t n, LEE lee_una, RECIBE recibe) {
    const vigia guarda(*d);
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) {
        void *p = lee_una();
        if (p != nullptr || guarda.sigue()) recibe(p);
    }
}

template <class LEE> arrPuntero *lee_punteros(vornsave *d, LEE lee_una) {
    if (!puede_leer<LEER(ulong)>(d)) return nullptr;
    const uint32_t n = lee_numero(d);
    dueno<arr_DestruyePunteroConTipo> array(arr_CreaPunteroConTipo(0));
    lee_estructuras(d, n, lee_una, [&](void *p) { arr_AppendPunteroConTipo(array.get(), p); });
    return array.release();
}

template <class LEE> apunorde *lee_conjunto(vornsave *d, LEE lee_una, vnfunc_compara_con_dato comparador, void *dato,
                                            vnfunc_destruye destructor) {
    if (!AFIRMA_NO_NULO(comparador)) return nullptr;
    if (!puede_leer<LEER(ulong)>(d)) return nullptr;
    const uint32_t n = lee_numero(d);
    // The caller's comparison puts them in order as they come.
    dueno<apunorde_nousar_destruye> array(apunorde_nousar_crea(comparador, dato, destructor));
    lee_estructuras(d, n, lee_una, [&](void *p) { apunorde_nousar_inserta_original(array.get(), p, nullptr); });
    return array.release();
}

} // namespace

void vornsave_graba_arr_punteros(const arrPuntero *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    if (!puede_grabar<GRABAR(ulong)>(vornsave_datos)) return;
    // All is asked for before the count goes: what was announced must come.
    if (!EXIGE_AL_GRABAR(vornsave_datos, funcion)) return;
    const uint32_t n = arr_NumElemsPuntero(array);
    vornsave_graba_ulong(n, vornsave_datos);
    for (uint32_t i = 0; i < n; ++i) funcion(arr_GetPunteroConTipo(array, i), vornsave_datos);
}

arrPuntero *vornsave_lee_arr_punteros(vornsave *vornsave_datos, vnfunc_lee_dato funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_punteros(vornsave_datos, [=] { return funcion(vornsave_datos); });
}

arrPuntero *vornsave_lee_arr_punteros_con_1_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_1_extra funcion,
                                                       void *extra) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_punteros(vornsave_datos, [=] { return funcion(extra, vornsave_datos); });
}

arrPuntero *vornsave_lee_arr_punteros_con_2_datos_extra(vornsave *vornsave_datos, vnfunc_lee_dato_2_extra funcion,
                                                        void *extra1, void *extra2) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_punteros(vornsave_datos, [=] { return funcion(extra1, extra2, vornsave_datos); });
}

void vornsave_nousar_salta_arr_punteros_ST(vornsave *vornsave_datos, vnfunc_salta_dato fncptr_salta_datos) {
    if (!AFIRMA_NO_NULO(fncptr_salta_datos)) return;
    if (!puede_leer<LEER(ulong)>(vornsave_datos)) return;
    const uint32_t n = lee_numero<SIN_PROGRESO>(vornsave_datos);
    // A count that is damaged ends at the first failure of what is read.
    const vigia guarda(*vornsave_datos);
    for (uint32_t i = 0; i < n && guarda.sigue(); ++i) fncptr_salta_datos(vornsave_datos);
}

void vornsave_graba_arr_punteros_array(const arrPuntero *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    if (!puede_grabar<GRABAR(ulong)>(vornsave_datos)) return;
    if (!EXIGE_AL_GRABAR(vornsave_datos, funcion)) return;
    const uint32_t n = arr_NumElemsPuntero(array);
    vornsave_graba_ulong(n, vornsave_datos);
    for (uint32_t i = 0; i < n; ++i) {
        const auto *elem = static_cast<const arrPuntero *>(arr_GetPunteroConTipo(array, i));
        if (EXIGE_AL_GRABAR(vornsave_datos, elem)) vornsave_graba_arr_punteros(elem, vornsave_datos, funcion);
        else vornsave_graba_ulong(0, vornsave_datos); // the file stays in step
    }
}

arrPuntero *vornsave_lee_arr_punteros_array(vornsave *vornsave_datos, vnfunc_lee_dato funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    if (!puede_leer<LEER(ulong)>(vornsave_datos)) return nullptr;
    // An array takes its own count at least: four bytes, or in text a digit and its end.
    const uint32_t n = vornsave_datos->acota(vornsave_lee_ulong(vornsave_datos), sizeof(uint32_t), 2);
    dueno<destruye_arrays> arrays(arr_CreaPunteroConTipo(0));
    lee_estructuras(
        vornsave_datos, n, [=] { return vornsave_lee_arr_punteros(vornsave_datos, funcion); },
        [&](void *p) { arr_AppendPunteroConTipo(arrays.get(), p); });
    return arrays.release();
}

void vornsave_nousar_graba_apunorde(const apunorde *array, vornsave *vornsave_datos, vnfunc_graba_dato funcion) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    if (!puede_grabar<GRABAR(ulong)>(vornsave_datos)) return;
    if (!EXIGE_AL_GRABAR(vornsave_datos, funcion)) return;
    const uint32_t n = apunorde_nousar_numelems(array);
    vornsave_graba_ulong(n, vornsave_datos);
    for (uint32_t i = 0; i < n; ++i) funcion(apunorde_nousar_get(array, i), vornsave_datos);
}

apunorde *vornsave_nousar_lee_apunorde(vornsave *vornsave_datos, vnfunc_lee_dato funcion,
                                       vnfunc_compara_con_dato comparador, void *dato, vnfunc_destruye destructor) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_conjunto(
        vornsave_datos, [=] { return funcion(vornsave_datos); }, comparador, dato, destructor);
}

apunorde *vornsave_nousar_lee_apunorde_con_1_dato_extra(vornsave *vornsave_datos, void *extra,
                                                        vnfunc_lee_dato_1_extra funcion,
                                                        vnfunc_compara_con_dato comparador, void *dato,
                                                        vnfunc_destruye destructor) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_conjunto(
        vornsave_datos, [=] { return funcion(extra, vornsave_datos); }, comparador, dato, destructor);
}

// ---- Points with a private value of the caller's.

void vornsave_graba_arr_puntos2DXPriv(const arrPunto2DXPriv *array, vornsave *vornsave_datos,
                                      vnfunc_graba_dato funcion) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, array)) return;
    if (!puede_grabar<GRABAR(ulong), GRABAR(double)>(vornsave_datos)) return;
    if (!EXIGE_AL_GRABAR(vornsave_datos, funcion)) return;
    const uint32_t n = arr_NumElemsPunto2DXPriv(array);
    const Punto2DXPriv *puntos = arr_GetBufferConstPunto2DXPriv(array);
    vornsave_graba_ulong(n, vornsave_datos);
    for (uint32_t i = 0; i < n; ++i) {
        graba<GRABAR(double)>(vornsave_datos, puntos[i].x);
        graba<GRABAR(double)>(vornsave_datos, puntos[i].y);
        funcion(puntos[i].priv, vornsave_datos);
    }
}

arrPunto2DXPriv *vornsave_lee_arr_puntos2DXPriv(vornsave *vornsave_datos, vnfunc_lee_dato lee_datos) {
    if (!puede_leer<LEER(ulong), LEER(double)>(vornsave_datos)) return nullptr;
    if (!AFIRMA_NO_NULO(lee_datos)) return nullptr;
    const uint32_t n = vornsave_datos->acota(vornsave_lee_ulong(vornsave_datos), sizeof(Punto2D), 4);
    dueno<destruye_xpriv> array(arr_CreaPunto2DXPriv(0));
    // The coordinates wait here until the private value of their point has come.
    double x = 0., y = 0.;
    lee_estructuras(
        vornsave_datos, n,
        [&] {
            x = lee<LEER(double)>(vornsave_datos);
            y = lee<LEER(double)>(vornsave_datos);
            return lee_datos(vornsave_datos);
        },
        [&](void *priv) { arr_AppendPunto2DXPriv(array.get(), x, y, priv); });
    return array.release();
}
