#define VN_MODULO "idcolor (NUCLEOS.DLL)"
#include "colour/idcolor_salida.h"
#include "colour/idcolor_priv.h"

using namespace vn::colores;

void idcolor_nousar_escr_color(void *salida, const idcolor *color, vnfunc_color_paleta func_escr_color_paleta,
                               vnfunc_color_rgba func_escr_color_rgba) {
    if (!hay(color) || !EXIGE(func_escr_color_paleta, func_escr_color_rgba)) return;
    const auto con_indice = [&](uint8_t i) { return func_escr_color_paleta(salida, i), 0; };
    const auto con_valor = [&](uint32_t v) { return func_escr_color_rgba(salida, v), 0; };
    segun_tipo<int>(
        color, [&](uint8_t i) { return i == VPLAN_NOCAMBIAR ? con_valor(BLANCO) : con_indice(i); }, con_valor,
        con_indice);
}

void idcolor_nousar_escr_color_con_paleta_vorn(void *salida, const idcolor *color,
                                               vnfunc_color_paleta func_escr_color_paleta,
                                               vnfunc_color_rgba func_escr_color_rgba) {
    if (!hay(color) || !EXIGE(func_escr_color_paleta, func_escr_color_rgba)) return;
    const auto con_indice = [&](uint8_t i) { return func_escr_color_paleta(salida, i), 0; };
    segun_tipo<int>(
        color, [&](uint8_t i) { return con_indice(de_autocad_a_vorn(i)); },
        [&](uint32_t v) { return func_escr_color_rgba(salida, v), 0; }, con_indice);
}
