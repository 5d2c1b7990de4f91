#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "time/vorntime.h"
#include "time/vorntime_msg_priv.h"

namespace {

// The filler of a name; null, reported, for an index that is none.
template <size_t N> vnfunc_mensaje mensaje_de(const vnfunc_mensaje (&mensajes)[N], uint32_t i) {
    if (i < N) return mensajes[i];
    (void)AFIRMA_DEFECTO();
    return nullptr;
}

template <size_t N> const char *nombre(const vnfunc_mensaje (&mensajes)[N], uint32_t i) {
    const vnfunc_mensaje m = mensaje_de(mensajes, i);
    return m != nullptr ? nousar_msglocal_original(m) : "";
}

template <size_t N> const vnwchar *nombre_u(const vnfunc_mensaje (&mensajes)[N], uint32_t i) {
    const vnfunc_mensaje m = mensaje_de(mensajes, i);
    return m != nullptr ? nousar_msglocal_original_u(m) : VNU("");
}

uint32_t mes_posible(uint32_t mes, uint32_t desde) {
    if (mes < 12) return mes + desde;
    (void)AFIRMA_DEFECTO();
    return 0;
}

} // namespace

uint32_t vorntime_obtener_mes(uint32_t mes) { return mes_posible(mes, 0); }
uint32_t vorntime_obtener_numero_mes(uint32_t mes) { return mes_posible(mes, 1); }

const char *vorntime_obtener_nombre_mes(uint32_t mes) { return nombre(vorntime_msg_mes, mes); }
const vnwchar *vorntime_obtener_nombre_mes_u(uint32_t mes) { return nombre_u(vorntime_msg_mes_u, mes); }
const char *vorntime_obtener_nombre_mes_abreviado(uint32_t mes) { return nombre(vorntime_msg_mes_abreviado, mes); }
const vnwchar *vorntime_obtener_nombre_mes_abreviado_u(uint32_t mes) {
    return nombre_u(vorntime_msg_mes_abreviado_u, mes);
}
const char *vtm_letra_inicial_dia_de_la_semana(uint32_t dia) { return nombre(vorntime_msg_inicial_dia, dia); }

vnwchar *vorntime_obtener_nombre_mes_con_idioma(uint32_t mes, int idioma) {
    const vnfunc_mensaje m = mensaje_de(vorntime_msg_mes_u, mes);
    return m != nullptr ? textomsgu_obtener_mensaje_idioma(idioma, m) : nullptr;
}
