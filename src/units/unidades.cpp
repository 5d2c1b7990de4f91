#define VN_MODULO "unidades (NUCLEOS.DLL)"
#include "units/unidades.h"
#include "foundation/texto/mensajes.hpp"

namespace {

#define M(id, ...) VN_MENSAJE(msg_##id, "unidades.msg", id, __VA_ARGS__)
#include "units/unidades_msg.inl"
#undef M

} // namespace

// The same in every language and region.
const vnwchar *unidades_separador_decimales_u(void) { return VNU(","); }
const vnwchar *unidades_separador_millares_u(void) { return VNU("."); }

// A row: the two operations, the text of the label.
#define ROTULO(nombre, nombre_u, msg)                                                                                  \
    const char *nombre(void) { return nousar_msglocal_original(msg.a); }                                               \
    const vnwchar *nombre_u(void) { return nousar_msglocal_original_u(msg.u); }
ROTULO(unidades_UD, unidades_u_UD, msg_165177)
ROTULO(unidades_H, unidades_u_H, msg_165181)
ROTULO(unidades_kg, unidades_u_kg, msg_157616)
ROTULO(unidades_km, unidades_u_km, msg_165187)
ROTULO(unidades_l, unidades_u_l, msg_165186)
ROTULO(unidades_m, unidades_u_m, msg_40344)
ROTULO(unidades_M2, unidades_u_M2, msg_165179)
ROTULO(unidades_m3, unidades_u_m3, msg_165180)
ROTULO(unidades_m3xkm, unidades_u_m3xkm, msg_165185)
ROTULO(unidades_t, unidades_u_t, msg_165183)
ROTULO(unidades_txkm, unidades_u_txkm, msg_165184)
#undef ROTULO
