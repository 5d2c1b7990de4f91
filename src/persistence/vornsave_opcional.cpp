#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_opcional.h"

#include "persistence/vornsave_priv.h"

// A truth value and, if it is CIERTO, the plain form.
using namespace vn;

namespace {

// Writes whether there is a value; true if its plain form is to follow.
bool graba_presencia(bool esta, vornsave *d) {
    if (!puede_grabar<GRABAR(bool)>(d)) return false;
    graba<GRABAR(bool)>(d, logico(esta));
    return esta;
}
// Only CIERTO announces a value: after a damaged flag none is read.
bool lee_presencia(vornsave *d) { return lee<LEER(bool)>(d) == CIERTO; }

} // namespace

// A row: operation, the plain one.
#define GRABA_OPCIONAL(nombre, plana, tipo)                                                                            \
    void nombre(tipo valor, vornsave *vornsave_datos) {                                                                \
        if (graba_presencia(valor != nullptr, vornsave_datos)) plana(valor, vornsave_datos);                           \
    }
#define LEE_OPCIONAL(nombre, plana, tipo)                                                                              \
    tipo nombre(vornsave *vornsave_datos) { return lee_presencia(vornsave_datos) ? plana(vornsave_datos) : nullptr; }
#define SALTA_OPCIONAL(nombre, plana)                                                                                  \
    void nombre(vornsave *vornsave_datos) {                                                                            \
        if (lee_presencia(vornsave_datos)) plana(vornsave_datos);                                                      \
    }

GRABA_OPCIONAL(vornsave_graba_cadena_opcional, vornsave_graba_cadena, const char *)
LEE_OPCIONAL(vornsave_lee_cadena_opcional, vornsave_lee_cadena, char *)
SALTA_OPCIONAL(vornsave_salta_cadena_opcional, vornsave_salta_cadena)
GRABA_OPCIONAL(vornsave_graba_cadena_unicode_opcional, vornsave_graba_cadena_unicode, const vnwchar *)
LEE_OPCIONAL(vornsave_lee_cadena_unicode_opcional, vornsave_lee_cadena_unicode, vnwchar *)
SALTA_OPCIONAL(vornsave_salta_cadena_unicode_opcional, vornsave_salta_cadena_unicode)
GRABA_OPCIONAL(vornsave_graba_cadena_UTF8_opcional, vornsave_graba_cadena_UTF8, const vnwchar *)
LEE_OPCIONAL(vornsave_lee_cadena_UTF8_opcional, vornsave_lee_cadena_UTF8, vnwchar *)
LEE_OPCIONAL(vornsave_lee_cadena_ANSI_a_unicode_opcional, vornsave_lee_cadena_ANSI_a_unicode, vnwchar *)

GRABA_OPCIONAL(vornsave_graba_arr_bool_opcional, vornsave_graba_arr_bool, const arrBOOL *)
LEE_OPCIONAL(vornsave_lee_arr_bool_opcional, vornsave_lee_arr_bool, arrBOOL *)
GRABA_OPCIONAL(vornsave_graba_arr_cadenas_opcional, vornsave_graba_arr_cadenas, const arrCADENA *)
LEE_OPCIONAL(vornsave_lee_arr_cadenas_opcional, vornsave_lee_arr_cadenas, arrCADENA *)
GRABA_OPCIONAL(vornsave_graba_arr_cadenas_unicode_opcional, vornsave_graba_arr_cadenas_unicode, const arrCADENA_u *)
LEE_OPCIONAL(vornsave_lee_arr_cadenas_unicode_opcional, vornsave_lee_arr_cadenas_unicode, arrCADENA_u *)
LEE_OPCIONAL(vornsave_lee_arr_cadenas_ansi_unicode_opcional, vornsave_lee_arr_cadenas_ansi_unicode, arrCADENA_u *)
GRABA_OPCIONAL(vornsave_graba_arr_double_opcional, vornsave_graba_arr_double, const arrDouble *)
LEE_OPCIONAL(vornsave_lee_arr_double_opcional, vornsave_lee_arr_double, arrDouble *)
GRABA_OPCIONAL(vornsave_graba_arr_long_opcional, vornsave_graba_arr_long, const arrLong *)
LEE_OPCIONAL(vornsave_lee_arr_long_opcional, vornsave_lee_arr_long, arrLong *)
GRABA_OPCIONAL(vornsave_graba_arr_long64_opcional, vornsave_graba_arr_long64, const arrLong64 *)
LEE_OPCIONAL(vornsave_lee_arr_long64_opcional, vornsave_lee_arr_long64, arrLong64 *)
GRABA_OPCIONAL(vornsave_graba_arr_puntos2D_opcional, vornsave_graba_arr_puntos2D, const arrPunto2D *)
LEE_OPCIONAL(vornsave_lee_arr_puntos2D_opcional, vornsave_lee_arr_puntos2D, arrPunto2D *)
GRABA_OPCIONAL(vornsave_graba_arr_puntos3D_opcional, vornsave_graba_arr_puntos3D, const arrPunto3D *)
LEE_OPCIONAL(vornsave_lee_arr_puntos3D_opcional, vornsave_lee_arr_puntos3D, arrPunto3D *)
GRABA_OPCIONAL(vornsave_graba_arr_uchar_opcional, vornsave_graba_arr_uchar, const arrUChar *)
LEE_OPCIONAL(vornsave_lee_arr_uchar_opcional, vornsave_lee_arr_uchar, arrUChar *)
GRABA_OPCIONAL(vornsave_graba_arr_ulong_opcional, vornsave_graba_arr_ulong, const arrULong *)
LEE_OPCIONAL(vornsave_lee_arr_ulong_opcional, vornsave_lee_arr_ulong, arrULong *)
GRABA_OPCIONAL(vornsave_graba_arr_ulong64_opcional, vornsave_graba_arr_ulong64, const arrULong64 *)
LEE_OPCIONAL(vornsave_lee_arr_ulong64_opcional, vornsave_lee_arr_ulong64, arrULong64 *)
GRABA_OPCIONAL(vornsave_graba_arr_ushort_opcional, vornsave_graba_arr_ushort, const arrUShort *)
LEE_OPCIONAL(vornsave_lee_arr_ushort_opcional, vornsave_lee_arr_ushort, arrUShort *)

// ---- With a function of the caller's. A row: operation, element, the plain one.

#define GRABA_OPCIONAL_CON(nombre, plana, tipo)                                                                        \
    void nombre(tipo valor, vornsave *vornsave_datos, vnfunc_graba_dato funcion) {                                     \
        if (!EXIGE_AL_GRABAR(vornsave_datos, funcion)) return;                                                         \
        if (graba_presencia(valor != nullptr, vornsave_datos)) plana(valor, vornsave_datos, funcion);                  \
    }
GRABA_OPCIONAL_CON(vornsave_graba_arr_punteros_array_opcional, vornsave_graba_arr_punteros_array, const arrPuntero *)
GRABA_OPCIONAL_CON(vornsave_nousar_graba_arr_punteros_opcional, vornsave_graba_arr_punteros, const arrPuntero *)
GRABA_OPCIONAL_CON(vornsave_nousar_graba_apunorde_opcional, vornsave_nousar_graba_apunorde, const apunorde *)

// The function is asked for before the flag goes: what was announced must come.
void vornsave_graba_estructura_opcional2(const void *dato, vornsave *vornsave_datos, vnfunc_graba_dato funcion) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, funcion)) return;
    if (graba_presencia(dato != nullptr, vornsave_datos)) funcion(dato, vornsave_datos);
}

void *vornsave_lee_estructura_opcional2(vornsave *vornsave_datos, vnfunc_lee_dato funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_presencia(vornsave_datos) ? funcion(vornsave_datos) : nullptr;
}

void *vornsave_lee_estructura_opcional2_con_1_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_1_extra funcion,
                                                         void *extra) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_presencia(vornsave_datos) ? funcion(extra, vornsave_datos) : nullptr;
}

void *vornsave_lee_estructura_opcional2_con_2_dato_extra(vornsave *vornsave_datos, vnfunc_lee_dato_2_extra funcion,
                                                         void *extra1, void *extra2) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_presencia(vornsave_datos) ? funcion(extra1, extra2, vornsave_datos) : nullptr;
}

void vornsave_nousar_salta_estructura_opcional(vornsave *vornsave_datos, vnfunc_salta_dato funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return;
    if (lee_presencia(vornsave_datos)) funcion(vornsave_datos);
}

arrPuntero *vornsave_lee_arr_punteros_array_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_presencia(vornsave_datos) ? vornsave_lee_arr_punteros_array(vornsave_datos, funcion) : nullptr;
}

arrPuntero *vornsave_nousar_lee_arr_punteros_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_presencia(vornsave_datos) ? vornsave_lee_arr_punteros(vornsave_datos, funcion) : nullptr;
}

arrPuntero *vornsave_nousar_lee_arr_punteros_opcional_con_1_dato_extra(vornsave *vornsave_datos,
                                                                       vnfunc_lee_dato_1_extra funcion, void *extra) {
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    return lee_presencia(vornsave_datos) ? vornsave_lee_arr_punteros_con_1_dato_extra(vornsave_datos, funcion, extra)
                                         : nullptr;
}

void vornsave_nousar_salta_arr_punteros_opcionalST(vornsave *vornsave_datos, vnfunc_salta_dato fncptr_salta_datos) {
    if (!AFIRMA_NO_NULO(fncptr_salta_datos)) return;
    if (lee_presencia(vornsave_datos)) vornsave_nousar_salta_arr_punteros_ST(vornsave_datos, fncptr_salta_datos);
}

apunorde *vornsave_nousar_lee_apunorde_opcional(vornsave *vornsave_datos, vnfunc_lee_dato funcion,
                                                vnfunc_compara_con_dato comparador, void *dato,
                                                vnfunc_destruye destructor) {
    // Both are looked at before the flag is read: what it announces can then be taken.
    if (!EXIGE(funcion, comparador)) return nullptr;
    return lee_presencia(vornsave_datos)
               ? vornsave_nousar_lee_apunorde(vornsave_datos, funcion, comparador, dato, destructor)
               : nullptr;
}
