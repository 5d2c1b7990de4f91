/* Arrays of rectangles: moved, held by one, strips lengthened and condensed. */
#ifndef VN_RECTNG_TIRAS_H
#define VN_RECTNG_TIRAS_H

#include "../foundation/listas/arr.h"
#include "rectng_registro.h"

VN_C_INICIO

/** Moves each rectangle of an array (of rectangulo_t), which all are calculated. */
void rec_TraladaRectangulos(arrPuntero *rectangulos, double dx, double dy);
/** New rectangle that holds all those of an array that is not empty; null after a report. */
rectangulo_t *rec_Envolvente(const arrPuntero *rectangulos);

/** Lengthens each strip of an array (of rectangulo_t) at both ends of its long axis by up to the amount, stopping at
    any strip in the way. In order: later strips see earlier ones already lengthened. */
void rec_Incrementa_longitudes_sin_solapes(arrPuntero *rectangulos, double incremento_a_cada_lado);
/** New array of new rectangles, where each group of strips of one direction that are stacked side against side, to
    `tolerancia` (at least 0), is one, their common extent. Null after a report of an array that is empty. */
arrPuntero *rec_Rectangulos_contiguos_condensados(const arrPuntero *rectangulos, double tolerancia);

VN_C_FIN

#endif
