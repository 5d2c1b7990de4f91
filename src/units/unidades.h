/* Labels of the units of a budget in the active language. Each text is borrowed and stays. The ANSI form is in the
   language's code page; where a page has no superscripts its square and cubic metres are m2 and m3. */
#ifndef VN_UNIDADES_H
#define VN_UNIDADES_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Separators of a budget's numbers: comma and full stop in every language and on every machine. */
const vnwchar *unidades_separador_decimales_u(void);
const vnwchar *unidades_separador_millares_u(void);

/** Unit, as of things that are counted; hour. */
const char *unidades_UD(void);
const vnwchar *unidades_u_UD(void);
const char *unidades_H(void);
const vnwchar *unidades_u_H(void);
/** Kilogram; tonne. */
const char *unidades_kg(void);
const vnwchar *unidades_u_kg(void);
const char *unidades_t(void);
const vnwchar *unidades_u_t(void);
/** Metre; kilometre. */
const char *unidades_m(void);
const vnwchar *unidades_u_m(void);
const char *unidades_km(void);
const vnwchar *unidades_u_km(void);
/** Square metre; cubic metre; litre. */
const char *unidades_M2(void);
const vnwchar *unidades_u_M2(void);
const char *unidades_m3(void);
const vnwchar *unidades_u_m3(void);
const char *unidades_l(void);
const vnwchar *unidades_u_l(void);
/** Haulage: cubic metres over kilometres; tonnes over kilometres. */
const char *unidades_m3xkm(void);
const vnwchar *unidades_u_m3xkm(void);
const char *unidades_txkm(void);
const vnwchar *unidades_u_txkm(void);

VN_C_FIN

#endif
