// What the sources of the save protocol share: the object over a destination, its dispatchers and its checks.
#pragma once

#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/logico_int.h"
#include "persistence/destino_priv.h"
#include "persistence/textos_priv.h"
#include "persistence/vornsave.h"

namespace vn {

// An open block or section. A reader of sections notes where it ends; all others where its length is, or was.
enum clase_marca : uint32_t { MARCA_32, MARCA_64 };
struct i_marca_t {
    char *id_marca;
    uint32_t clase;
    int32_t posicion_inicial, posicion_final;
    int64_t posicion_inicial64, posicion_final64;
};
// An end, or a beginning, that is not known: no position is so far.
inline constexpr int32_t LARGO_MAX = INT32_MAX;
inline constexpr int64_t LARGO64_MAX = INT64_MAX;

} // namespace vn

struct vornsave : vn::conducto {
    vnbool con_progreso, con_comentarios, ANSI;
    char *version_programa, *parche_programa;
    uint32_t tipo_status_lectura;
    vnwchar *texto_status_lectura;
    arrPuntero *pila_marcas;
    void *datos_prgs;
    vnfunc_prgs_inicia func_prgs_inicia_barra_progreso;
    vnfunc_prgs_valor func_prgs_valor_barra_progreso;
    vnfunc_prgs_fin func_prgs_fin_barra_progreso;
    vnfunc_prgs_refresca func_prgs_refresca;
    uint32_t posicion_final_prgs;
};

namespace vn {

// New object over a destination; it owns the datum of one in memory.
vornsave *registra(const destino &fila, void *donde, vnbool con_comentarios = FALSO,
                   const char *version_programa = nullptr, const char *parche_programa = nullptr);

void destruye_marca(i_marca_t **marca);

[[gnu::cold]] void refresca_grabacion(vornsave *d);
[[gnu::cold]] void refresca_lectura(vornsave *d);

// Which refresh of the progress a member runs before the transfer.
enum progreso : bool { SIN_PROGRESO, CON_PROGRESO };

inline void progreso_al_grabar(vornsave *d) {
    if (d->con_progreso == CIERTO) [[unlikely]]
        refresca_grabacion(d);
}
inline void progreso_al_leer(vornsave *d) {
    if (d->con_progreso == CIERTO) [[unlikely]]
        refresca_lectura(d);
}

// A check of what is to be written: SE_GRABA(object, AFIRMA_...), for pointers EXIGE_AL_GRABAR(object, a, b). When it
// fails, what is saved is marked.
#define SE_GRABA(vornsave_datos, comprobacion)                                                                         \
    ((comprobacion) || ((vornsave_datos) != nullptr && (vornsave_datos)->falla()))
#define EXIGE_AL_GRABAR(vornsave_datos, ...) SE_GRABA(vornsave_datos, EXIGE(__VA_ARGS__))

template <auto ENTRADA> inline bool se_graba_por(const vornsave &d) {
    return AFIRMA_TEXTO(d.fila->grabar.*ENTRADA != nullptr, tabla::FILA<ENTRADA>.falta) || d.falla();
}
template <auto ENTRADA> inline bool se_lee_por(const vornsave &d) {
    return AFIRMA_TEXTO(d.fila->leer.*ENTRADA != nullptr, tabla::FILA<ENTRADA>.falta);
}
// Whether the object is there, and its destination has these entries; the first that is missing is reported.
template <auto... ENTRADAS> inline bool puede_grabar(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) && (se_graba_por<ENTRADAS>(*vornsave_datos) && ...);
}
template <auto... ENTRADAS> inline bool puede_leer(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) && (se_lee_por<ENTRADAS>(*vornsave_datos) && ...);
}

// The doors of the dispatchers: checks, progress where the member has it, one indirect call.
template <progreso PROGRESO> struct puerta {
    static void *dato(const vornsave *d) { return d->donde; }
    static bool va_directo(const vornsave *d) { return PROGRESO == SIN_PROGRESO || d->con_progreso == FALSO; }
};
template <progreso PROGRESO> struct puerta_al_grabar : puerta<PROGRESO> {
    static const fncs_grabar_t &tabla(const vornsave *d) { return d->fila->grabar; }
    template <auto ENTRADA> static bool prepara(vornsave *d) {
        if (!puede_grabar<ENTRADA>(d)) return false;
        if constexpr (PROGRESO == CON_PROGRESO) progreso_al_grabar(d);
        return true;
    }
};
template <progreso PROGRESO> struct puerta_al_leer : puerta<PROGRESO> {
    static const fncs_leer_t &tabla(const vornsave *d) { return d->fila->leer; }
    template <auto ENTRADA> static bool prepara(vornsave *d) {
        if (!puede_leer<ENTRADA>(d)) return false;
        if constexpr (PROGRESO == CON_PROGRESO) progreso_al_leer(d);
        return true;
    }
};
template <auto ENTRADA, progreso PROGRESO = SIN_PROGRESO, class... V> inline void graba(vornsave *d, V... valores) {
    return tabla::despacha<ENTRADA, puerta_al_grabar<PROGRESO>>(d, valores...);
}
template <auto ENTRADA, progreso PROGRESO = SIN_PROGRESO, class... V>
inline tabla::resultado_de<ENTRADA> lee(vornsave *d, V... valores) {
    return tabla::despacha<ENTRADA, puerta_al_leer<PROGRESO>>(d, valores...);
}

} // namespace vn
