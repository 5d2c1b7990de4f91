/* Between the units of a device and of paper. A `dmm` is a tenth of a millimetre, 254 of which are an inch; a point is
   1/72 inch, a half point 1/144, a twip 1/1440. `ppp` is a resolution in dots per inch. */
#ifndef VN_CNVRESOL_H
#define VN_CNVRESOL_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Whole numbers, to the nearest, halves away from zero. As vornwin_MulDiv, -1 where the divisor is 0 or the result is
    not a 32-bit number; so too where ten times `ppp` is not one, in the two conversions of millimetres. */
int cnvresol_convierte_dmm_a_pixels(int valor, int ppp);
int32_t cnvresol_convierte_dmm_a_pixels_long(int32_t valor, int32_t ppp);
int cnvresol_convierte_medios_puntos_a_pixels(int valor, int ppp);
int cnvresol_convierte_puntos_a_pixels(int valor, int ppp);
int cnvresol_convierte_milimetros_a_pixels(int valor, int ppp);
int cnvresol_convierte_pixels_a_dmm(int valor, int ppp);
int cnvresol_convierte_pixels_a_milimetros(int valor, int ppp);

/** Real numbers. A resolution of 0 gives an infinity, or not-a-number for 0 pixels. */
double cnvresol_convierte_pixels_a_puntos(double valor, int ppp);
double cnvresol_dmm_a_puntos(double valor);
double cnvresol_puntos_a_twips(double valor);
double cnvresol_milimetros_a_pulgadas(double valor);
/** Pixels times 254 over 1000 `ppp`: ten times the metres that they are, kept so on purpose. */
double cnvresol_pixels_a_metros(double valor, int ppp);

/** Real numbers to the nearest whole one, by roundtul: what does not fit in 32 bits without sign is reported, and the
    nearest number that does comes back (0 for not-a-number). */
uint32_t cnvresol_dmm_a_twips(double valor);
uint32_t cnvresol_mm_a_twips(double valor);
uint32_t cnvresol_puntos_a_dmm(double valor);
uint32_t cnvresol_metros_a_pixels(double valor, int ppp);

VN_C_FIN

#endif
