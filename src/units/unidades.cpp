#define VN_MODULO "unidades (NUCLEOS.DLL)"
#include "units/unidades.h"
#include "units/unidades_msg_priv.h"

const vnwchar *unidades_separador_decimales_u(void) { return VNU(","); }
const vnwchar *unidades_separador_millares_u(void) { return VNU("."); }

const char *unidades_UD(void) { return nousar_msglocal_original(unidades_msg_165177_ansi); }
const vnwchar *unidades_u_UD(void) { return nousar_msglocal_original_u(unidades_msg_165177); }
const char *unidades_H(void) { return nousar_msglocal_original(unidades_msg_165181_ansi); }
const vnwchar *unidades_u_H(void) { return nousar_msglocal_original_u(unidades_msg_165181); }
const char *unidades_kg(void) { return nousar_msglocal_original(unidades_msg_157616_ansi); }
const vnwchar *unidades_u_kg(void) { return nousar_msglocal_original_u(unidades_msg_157616); }
const char *unidades_km(void) { return nousar_msglocal_original(unidades_msg_165187_ansi); }
const vnwchar *unidades_u_km(void) { return nousar_msglocal_original_u(unidades_msg_165187); }
const char *unidades_l(void) { return nousar_msglocal_original(unidades_msg_165186_ansi); }
const vnwchar *unidades_u_l(void) { return nousar_msglocal_original_u(unidades_msg_165186); }
const char *unidades_m(void) { return nousar_msglocal_original(unidades_msg_40344_ansi); }
const vnwchar *unidades_u_m(void) { return nousar_msglocal_original_u(unidades_msg_40344); }
const char *unidades_M2(void) { return nousar_msglocal_original(unidades_msg_165179_ansi); }
const vnwchar *unidades_u_M2(void) { return nousar_msglocal_original_u(unidades_msg_165179); }
const char *unidades_m3(void) { return nousar_msglocal_original(unidades_msg_165180_ansi); }
const vnwchar *unidades_u_m3(void) { return nousar_msglocal_original_u(unidades_msg_165180); }
const char *unidades_m3xkm(void) { return nousar_msglocal_original(unidades_msg_165185_ansi); }
const vnwchar *unidades_u_m3xkm(void) { return nousar_msglocal_original_u(unidades_msg_165185); }
const char *unidades_t(void) { return nousar_msglocal_original(unidades_msg_165183_ansi); }
const vnwchar *unidades_u_t(void) { return nousar_msglocal_original_u(unidades_msg_165183); }
const char *unidades_txkm(void) { return nousar_msglocal_original(unidades_msg_165184_ansi); }
const vnwchar *unidades_u_txkm(void) { return nousar_msglocal_original_u(unidades_msg_165184); }
