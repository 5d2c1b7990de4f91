#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "time/vorntime_nombres.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/mensajes.hpp"
#include "time/vorntime_priv.h"
#include <tuple>
#include <utility>

using namespace vn;

namespace {

#define M(id, ...) VN_MENSAJE(msg_##id, "vorntime.msg", id, __VA_ARGS__)
#include "time/vorntime_msg.inl"
#undef M

constexpr std::tuple MENSAJES{
#define M(id, ...) msg_##id,
#include "time/vorntime_msg.inl"
#undef M
};

// The fillers of N names, by the ordinal of the first.
template <class C, uint32_t PRIMERO, size_t N> consteval std::array<vnfunc_mensaje, N> nombres() {
    return []<size_t... I>(std::index_sequence<I...>) {
        // The messages have the ordinals of their rows, one after another.
        static_assert(((std::get<PRIMERO - 1 + I>(MENSAJES).orden() == PRIMERO + I) && ...));
        return std::array<vnfunc_mensaje, N>{std::get<PRIMERO - 1 + I>(MENSAJES).template rellena<C>...};
    }
    (std::make_index_sequence<N>());
}

// By the ordinals of the messages: months, short months, initials of the days; the days themselves are shared.
constexpr auto MESES_U = nombres<vnwchar, 1, 12>();
constexpr auto MESES = nombres<char, 1, 12>();
constexpr auto MESES_ABREVIADOS_U = nombres<vnwchar, 13, 12>();
constexpr auto MESES_ABREVIADOS = nombres<char, 13, 12>();
constexpr auto INICIALES = nombres<char, 32, 7>();

// The filler of a name; null, reported, for an index that is none.
template <size_t N> vnfunc_mensaje mensaje_de(const std::array<vnfunc_mensaje, N> &mensajes, uint32_t i) {
    if (i < N) return mensajes[i];
    (void)AFIRMA_DEFECTO();
    return nullptr;
}

template <size_t N> const char *nombre(const std::array<vnfunc_mensaje, N> &mensajes, uint32_t i) {
    const vnfunc_mensaje m = mensaje_de(mensajes, i);
    return m != nullptr ? nousar_msglocal_original(m) : "";
}

template <size_t N> const vnwchar *nombre_u(const std::array<vnfunc_mensaje, N> &mensajes, uint32_t i) {
    const vnfunc_mensaje m = mensaje_de(mensajes, i);
    return m != nullptr ? nousar_msglocal_original_u(m) : VNU("");
}

uint32_t mes_posible(uint32_t mes, uint32_t desde) {
    if (mes < 12) return mes + desde;
    (void)AFIRMA_DEFECTO();
    return 0;
}

} // namespace

const std::array<vnfunc_mensaje, 7> vn::DIAS_U = nombres<vnwchar, 25, 7>(), vn::DIAS = nombres<char, 25, 7>();
const vnfunc_mensaje vn::FECHA_MAL = msg_54061.u;

uint32_t vorntime_obtener_mes(uint32_t mes) { return mes_posible(mes, 0); }
uint32_t vorntime_obtener_numero_mes(uint32_t mes) { return mes_posible(mes, 1); }

const char *vorntime_obtener_nombre_mes(uint32_t mes) { return nombre(MESES, mes); }
const vnwchar *vorntime_obtener_nombre_mes_u(uint32_t mes) { return nombre_u(MESES_U, mes); }
const char *vorntime_obtener_nombre_mes_abreviado(uint32_t mes) { return nombre(MESES_ABREVIADOS, mes); }
const vnwchar *vorntime_obtener_nombre_mes_abreviado_u(uint32_t mes) { return nombre_u(MESES_ABREVIADOS_U, mes); }
const char *vtm_letra_inicial_dia_de_la_semana(uint32_t dia) { return nombre(INICIALES, dia); }

vnwchar *vorntime_obtener_nombre_mes_con_idioma(uint32_t mes, int idioma) {
    const vnfunc_mensaje m = mensaje_de(MESES_U, mes);
    return m != nullptr ? textomsgu_obtener_mensaje_idioma(idioma, m) : nullptr;
}
