/* Line types: named ones with a pattern of their own, and the eleven that the library knows by number.

   A pattern is lengths by turns: above 0 drawn, below 0 left free, 0 a point. The numbers are those of devices: 0
   continuous to 10. */
#ifndef VN_TIPOLIN_H
#define VN_TIPOLIN_H

#include "../foundation/listas/arr_tipos.h"

typedef struct tipolin tipolin;

VN_C_INICIO

/** New line type; name, description and pattern are copied, and the approximate style is found. */
tipolin *tipolin_crea(const vnwchar *nombre, const vnwchar *descripcion, const arrDouble *patron);
/** Frees the line type and leaves `*tipo` null. */
void tipolin_destruye(tipolin **tipo);
/** Whether that is its name, letter by letter. */
vnbool tipolin_compara_nombre(const tipolin *tipo, const vnwchar *nombre);
/** The style of 0 to 7 whose stipple of 16 bits, turned as may be, differs least from the pattern's; the first of
    several. A pattern without length, or of no finite one, is continuous. */
uint8_t tipolin_dame_estilo_aproximado(const tipolin *tipo);
/** Its pattern, borrowed. */
const arrDouble *tipolin_dame_patron_const(const tipolin *tipo);

/** The name of a line type of the library: a constant. Above 10 is reported: null. */
const vnwchar *tipolin_dame_nombre_tipo_vorn_linea(VN_RANGO(0, 10) uint8_t tipo_linea);
/** New array: its pattern in the units of a model, empty for the continuous one. 8 and what is above 10 are reported:
    null. */
arrDouble *tipolin_dame_patron_aproximado(uint8_t tipo_linea);
/** New array: its pattern in pixels, drawn and free by turns, all above 0; empty for the continuous ones, 0 and 8.
    Above 10 is reported: null. */
arrDouble *tipolin_dame_patron_aproximado_px_glsl(VN_RANGO(0, 10) uint8_t tipo_linea);
/** Whether that is the name of a line type of the library, in any case of letters; the first number that has it goes to
    `tipo_linea`. */
vnbool tipolin_es_tipo_linea_vorn(const vnwchar *nombre, VN_SALIDA_OPC uint8_t *tipo_linea);

VN_C_FIN

#endif
