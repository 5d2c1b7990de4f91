#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_progreso.h"

#include "persistence/vornsave_priv.h"
#include <algorithm>

// Progress: a host's bar over the position in the destination.
using namespace vn;

namespace {

// The position as the bar takes it; false, reported, where there is none.
bool posicion_de_barra(const vornsave *d, uint32_t &valor) {
    const posiciones_t &p = d->fila->posiciones;
    if (!AFIRMA_TEXTO(p.get != nullptr, "(vornsave->fncptr_get_posicion) != NULL")) return false;
    const int64_t posicion = p.get64 != nullptr ? p.get64(d->donde) : p.get(d->donde);
    if (!AFIRMA(posicion >= 0)) return false;
    // A bar counts in 32 bits: it stands still at the end of what it can show.
    valor = static_cast<uint32_t>(std::min<int64_t>(posicion, UINT32_MAX));
    return true;
}

void olvida_progreso(vornsave *d) {
    d->con_progreso = FALSO;
    d->datos_prgs = nullptr;
    d->func_prgs_inicia_barra_progreso = nullptr;
    d->func_prgs_valor_barra_progreso = nullptr;
    d->func_prgs_fin_barra_progreso = nullptr;
    d->func_prgs_refresca = nullptr;
    d->posicion_final_prgs = 0;
}

} // namespace

void vn::refresca_grabacion(vornsave *d) {
    uint32_t posicion = 0;
    if (!posicion_de_barra(d, posicion)) return;
    // Beyond the end that the host foretold the bar does not move, it is only kept alive.
    if (posicion < d->posicion_final_prgs) d->func_prgs_valor_barra_progreso(d->datos_prgs, posicion);
    else if (d->func_prgs_refresca != nullptr) // a bar for reading has none
        d->func_prgs_refresca(d->datos_prgs);
}

void vn::refresca_lectura(vornsave *d) {
    uint32_t posicion = 0;
    if (posicion_de_barra(d, posicion)) d->func_prgs_valor_barra_progreso(d->datos_prgs, posicion);
}

void vornsave_nousar_inicia_progreso_grabacion(vornsave *vornsave_no_const, void *datos_prgs, uint32_t posicion_final,
                                               vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                               vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                               vnfunc_prgs_fin func_prgs_fin_barra_progreso,
                                               vnfunc_prgs_refresca func_prgs_refresca) {
    if (!EXIGE(vornsave_no_const, func_prgs_inicia_barra_progreso, func_prgs_valor_barra_progreso,
               func_prgs_fin_barra_progreso, func_prgs_refresca))
        return;
    // One bar at a time.
    if (!AFIRMA(vornsave_no_const->con_progreso == FALSO)) return;
    vornsave_no_const->datos_prgs = datos_prgs;
    vornsave_no_const->func_prgs_inicia_barra_progreso = func_prgs_inicia_barra_progreso;
    vornsave_no_const->func_prgs_valor_barra_progreso = func_prgs_valor_barra_progreso;
    vornsave_no_const->func_prgs_fin_barra_progreso = func_prgs_fin_barra_progreso;
    vornsave_no_const->func_prgs_refresca = func_prgs_refresca;
    vornsave_no_const->con_progreso = CIERTO;
    vornsave_no_const->posicion_final_prgs = posicion_final;
    func_prgs_inicia_barra_progreso(datos_prgs, posicion_final);
    refresca_grabacion(vornsave_no_const);
}

void vornsave_nousar_inicia_progreso_lectura(vornsave *vornsave_no_const, void *datos_prgs,
                                             vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                             vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                             vnfunc_prgs_fin func_prgs_fin_barra_progreso) {
    if (!AFIRMA_NO_NULO(vornsave_no_const)) return;
    if (!AFIRMA_TEXTO(func_prgs_inicia_barra_progreso != nullptr,
                      "(vornsave->func_prgs_inicia_barra_progreso) != NULL"))
        return;
    if (!EXIGE(func_prgs_valor_barra_progreso, func_prgs_fin_barra_progreso)) return;
    if (!AFIRMA(vornsave_no_const->con_progreso == FALSO)) return;
    const auto get_tamanyo = vornsave_no_const->fila->posiciones.tamanyo;
    if (!AFIRMA_TEXTO(get_tamanyo != nullptr, "(vornsave->fncptr_get_tamanyo) != NULL")) return;
    vornsave_no_const->datos_prgs = datos_prgs;
    vornsave_no_const->func_prgs_inicia_barra_progreso = func_prgs_inicia_barra_progreso;
    vornsave_no_const->func_prgs_valor_barra_progreso = func_prgs_valor_barra_progreso;
    vornsave_no_const->func_prgs_fin_barra_progreso = func_prgs_fin_barra_progreso;
    vornsave_no_const->con_progreso = CIERTO;
    // The end of a reader is known: the size of the source.
    vornsave_no_const->posicion_final_prgs = get_tamanyo(vornsave_no_const->donde);
    func_prgs_inicia_barra_progreso(datos_prgs, vornsave_no_const->posicion_final_prgs);
    refresca_lectura(vornsave_no_const);
}

void vornsave_fin_progreso(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    if (!AFIRMA_TEXTO(vornsave_datos->con_progreso == CIERTO, "vornsave->con_progreso == CIERTO")) return;
    vornsave_datos->func_prgs_fin_barra_progreso(vornsave_datos->datos_prgs);
    olvida_progreso(vornsave_datos);
}
