/* Magnitudes: the texts of their units. */
#ifndef VN_MAGNITUD_TEXTO_H
#define VN_MAGNITUD_TEXTO_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** Unit texts. Constant: not to be freed. */
const vnwchar *magnitud_texto_m(void);
const vnwchar *magnitud_texto_cm(void);
const vnwchar *magnitud_texto_mm(void);
const vnwchar *magnitud_texto_ft(void);
const vnwchar *magnitud_texto_in(void);
const vnwchar *magnitud_texto_m2(void);
const vnwchar *magnitud_texto_m3(void);
const vnwchar *magnitud_texto_m2_m(void);
const vnwchar *magnitud_texto_m3_h(void);
const vnwchar *magnitud_texto_l_h(void);
const vnwchar *magnitud_texto_l_s(void);
const vnwchar *magnitud_texto_Pa(void);
const vnwchar *magnitud_texto_kPa(void);
const vnwchar *magnitud_texto_bar(void);
const vnwchar *magnitud_texto_W(void);
const vnwchar *magnitud_texto_W_m2(void);
const vnwchar *magnitud_texto_W_mK(void);
const vnwchar *magnitud_texto_W_m2K(void);
const vnwchar *magnitud_texto_m2K_W(void);
const vnwchar *magnitud_texto_J_kgK(void);
const vnwchar *magnitud_texto_grados_C(void);
const vnwchar *magnitud_texto_grados_F(void);
const vnwchar *magnitud_texto_grados_K(void);
const vnwchar *magnitud_texto_kg_m3(void);
const vnwchar *magnitud_texto_dBA(void);

VN_C_FIN

#endif
