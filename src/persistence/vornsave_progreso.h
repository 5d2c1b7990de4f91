/* The save protocol: a host's bar while something is written or read. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_PROGRESO_H
#define VN_VORNSAVE_PROGRESO_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Attaches a bar while writing. `posicion_final`: the estimated size in bytes; past it only `func_prgs_refresca` is
    called. Both numeric positions are those of the destination. */
void vornsave_nousar_inicia_progreso_grabacion(vornsave *vornsave_datos, VN_DATO void *datos_prgs,
                                               uint32_t posicion_final,
                                               vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                               vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                               vnfunc_prgs_fin func_prgs_fin_barra_progreso,
                                               vnfunc_prgs_refresca func_prgs_refresca);
/** Attaches a bar while reading; the total is the size of the destination. */
void vornsave_nousar_inicia_progreso_lectura(vornsave *vornsave_datos, VN_DATO void *datos_prgs,
                                             vnfunc_prgs_inicia func_prgs_inicia_barra_progreso,
                                             vnfunc_prgs_valor func_prgs_valor_barra_progreso,
                                             vnfunc_prgs_fin func_prgs_fin_barra_progreso);
/** Ends the bar and detaches it. */
void vornsave_fin_progreso(vornsave *vornsave_datos);

VN_C_FIN

/* Typed forms: `tipo` is the element's type, and a function for another type does not compile. */
#define VN_PRGS_TIPO(tipo, funcion) VN_COMPRUEBA_TIPO(void (*)(tipo *, uint32_t), funcion, vnfunc_prgs_inicia)
#define vornsave_inicia_progreso_grabacion(datos, datos_prgs, final, tipo, inicia, valor, fin, refresca)               \
    vornsave_nousar_inicia_progreso_grabacion(datos, VN_COMPRUEBA_TIPO(tipo *, datos_prgs, void *), final,             \
                                              VN_PRGS_TIPO(tipo, inicia), VN_PRGS_TIPO(tipo, valor),                   \
                                              VN_COMPRUEBA_TIPO(void (*)(tipo *), fin, vnfunc_prgs_fin),               \
                                              VN_COMPRUEBA_TIPO(void (*)(tipo *), refresca, vnfunc_prgs_refresca))
#define vornsave_inicia_progreso_lectura(datos, datos_prgs, tipo, inicia, valor, fin)                                  \
    vornsave_nousar_inicia_progreso_lectura(datos, VN_COMPRUEBA_TIPO(tipo *, datos_prgs, void *),                      \
                                            VN_PRGS_TIPO(tipo, inicia), VN_PRGS_TIPO(tipo, valor),                     \
                                            VN_COMPRUEBA_TIPO(void (*)(tipo *), fin, vnfunc_prgs_fin))

#endif
