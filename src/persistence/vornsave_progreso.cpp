#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_priv.h"

#include <algorithm>

// Progress: a host's bar over the position in the destination.
using namespace vn;

namespace {

// The position as the bar takes it; false, reported, where there is none.
bool posicion_de_barra(const vornsave *vornsave_datos, uint32_t &valor) {
    int64_t posicion = 0;
    if (vornsave_datos->fncptr_get_posicion64 != nullptr) {
        posicion = vornsave_datos->fncptr_get_posicion64(vornsave_datos->datos_destino);
    } else {
        if (!AFIRMA_TEXTO(vornsave_datos->fncptr_get_posicion != nullptr, "(vornsave->fncptr_get_posicion) != NULL"))
            return false;
        posicion = vornsave_datos->fncptr_get_posicion(vornsave_datos->datos_destino);
    }
    if (!AFIRMA(posicion >= 0)) return false;
    valor = static_cast<uint32_t>(std::min<int64_t>(posicion, UINT32_MAX));
    return true;
}

void olvida_progreso(vornsave *vornsave_datos) {
    vornsave_datos->con_progreso = FALSO;
    vornsave_datos->datos_prgs = nullptr;
    vornsave_datos->func_prgs_inicia_barra_progreso = nullptr;
    vornsave_datos->func_prgs_valor_barra_progreso = nullptr;
    vornsave_datos->func_prgs_fin_barra_progreso = nullptr;
    vornsave_datos->func_prgs_refresca = nullptr;
    vornsave_datos->posicion_final_prgs = 0;
}

} // namespace

void vn::refresca_grabacion(vornsave *vornsave_datos) {
    uint32_t posicion = 0;
    if (!posicion_de_barra(vornsave_datos, posicion)) return;
    if (posicion < vornsave_datos->posicion_final_prgs)
        vornsave_datos->func_prgs_valor_barra_progreso(vornsave_datos->datos_prgs, posicion);
    else if (vornsave_datos->func_prgs_refresca != nullptr) // a bar for reading has none
        vornsave_datos->func_prgs_refresca(vornsave_datos->datos_prgs);
}

void vn::refresca_lectura(vornsave *vornsave_datos) {
    uint32_t posicion = 0;
    if (posicion_de_barra(vornsave_datos, posicion))
        vornsave_datos->func_prgs_valor_barra_progreso(vornsave_datos->datos_prgs, posicion);
}

void vornsave_nousar_inicia_progreso_grabacion(vornsave *vornsave_no_const, void *datos_prgs, uint32_t posicion_final,
                                               vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                               vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                               vnfunc_prgs_fin func_prgs_fin_barra_progreso,
                                               vnfunc_prgs_refresca func_prgs_refresca) {
    if (!AFIRMA_NO_NULO(vornsave_no_const)) return;
    if (!AFIRMA_NO_NULO(func_prgs_inicia_barra_progreso)) return;
    if (!AFIRMA_NO_NULO(func_prgs_valor_barra_progreso)) return;
    if (!AFIRMA_NO_NULO(func_prgs_fin_barra_progreso)) return;
    if (!AFIRMA_NO_NULO(func_prgs_refresca)) return;
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
    if (!AFIRMA_NO_NULO(func_prgs_valor_barra_progreso)) return;
    if (!AFIRMA_NO_NULO(func_prgs_fin_barra_progreso)) return;
    if (!AFIRMA(vornsave_no_const->con_progreso == FALSO)) return;
    if (!AFIRMA_TEXTO(vornsave_no_const->fncptr_get_tamanyo != nullptr, "(vornsave->fncptr_get_tamanyo) != NULL"))
        return;
    vornsave_no_const->datos_prgs = datos_prgs;
    vornsave_no_const->func_prgs_inicia_barra_progreso = func_prgs_inicia_barra_progreso;
    vornsave_no_const->func_prgs_valor_barra_progreso = func_prgs_valor_barra_progreso;
    vornsave_no_const->func_prgs_fin_barra_progreso = func_prgs_fin_barra_progreso;
    vornsave_no_const->con_progreso = CIERTO;
    vornsave_no_const->posicion_final_prgs = vornsave_no_const->fncptr_get_tamanyo(vornsave_no_const->datos_destino);
    func_prgs_inicia_barra_progreso(datos_prgs, vornsave_no_const->posicion_final_prgs);
    refresca_lectura(vornsave_no_const);
}

void vornsave_fin_progreso(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    if (!AFIRMA_TEXTO(vornsave_datos->con_progreso == CIERTO, "vornsave->con_progreso == CIERTO")) return;
    vornsave_datos->func_prgs_fin_barra_progreso(vornsave_datos->datos_prgs);
    olvida_progreso(vornsave_datos);
}
