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

const char *unidades_UD(void) { return nousar_msglocal_original(msg_165177.a); }
const vnwchar *unidades_u_UD(void) { return nousar_msglocal_original_u(msg_165177.u); }
const char *unidades_H(void) { return nousar_msglocal_original(msg_165181.a); }
const vnwchar *unidades_u_H(void) { return nousar_msglocal_original_u(msg_165181.u); }
const char *unidades_kg(void) { return nousar_msglocal_original(msg_157616.a); }
const vnwchar *unidades_u_kg(void) { return nousar_msglocal_original_u(msg_157616.u); }
const char *unidades_km(void) { return nousar_msglocal_original(msg_165187.a); }
const vnwchar *unidades_u_km(void) { return nousar_msglocal_original_u(msg_165187.u); }
const char *unidades_l(void) { return nousar_msglocal_original(msg_165186.a); }
const vnwchar *unidades_u_l(void) { return nousar_msglocal_original_u(msg_165186.u); }
const char *unidades_m(void) { return nousar_msglocal_original(msg_40344.a); }
const vnwchar *unidades_u_m(void) { return nousar_msglocal_original_u(msg_40344.u); }
const char *unidades_M2(void) { return nousar_msglocal_original(msg_165179.a); }
const vnwchar *unidades_u_M2(void) { return nousar_msglocal_original_u(msg_165179.u); }
const char *unidades_m3(void) { return nousar_msglocal_original(msg_165180.a); }
const vnwchar *unidades_u_m3(void) { return nousar_msglocal_original_u(msg_165180.u); }
const char *unidades_m3xkm(void) { return nousar_msglocal_original(msg_165185.a); }
const vnwchar *unidades_u_m3xkm(void) { return nousar_msglocal_original_u(msg_165185.u); }
const char *unidades_t(void) { return nousar_msglocal_original(msg_165183.a); }
const vnwchar *unidades_u_t(void) { return nousar_msglocal_original_u(msg_165183.u); }
const char *unidades_txkm(void) { return nousar_msglocal_original(msg_165184.a); }
const vnwchar *unidades_u_txkm(void) { return nousar_msglocal_original_u(msg_165184.u); }
