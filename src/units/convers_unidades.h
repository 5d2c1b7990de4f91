/* The texts of some units. */
#ifndef VN_CONVERS_UNIDADES_H
#define VN_CONVERS_UNIDADES_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The text of a unit in the active language. Not to be freed. */
const vnwchar *convers_texto_kp_cm2(void);
const vnwchar *convers_texto_MPa(void);
const vnwchar *convers_texto_W_K(void);
const vnwchar *convers_texto_W_m2K(void);
const vnwchar *convers_texto_grado_centigrado(void);
const vnwchar *convers_texto_kW(void);
const vnwchar *convers_texto_kWh(void);
const vnwchar *convers_texto_kg(void);
const vnwchar *convers_texto_kg_m2(void);
const vnwchar *convers_texto_l(void);
const vnwchar *convers_texto_m(void);
const vnwchar *convers_texto_m2(void);
const vnwchar *convers_texto_m3(void);
const vnwchar *convers_texto_m3_h(void);
const vnwchar *convers_texto_mm(void);
const vnwchar *convers_texto_mm2(void);
const vnwchar *convers_texto_porcentaje(void);

VN_C_FIN

#endif
