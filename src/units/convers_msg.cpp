#define VN_MODULO "convers (NUCLEOS.DLL)"
#include "units/convers_msg_priv.h"
#include <array>
#include <utility>

namespace {

constexpr size_t NUM_MENSAJES = std::size(vn::UNIDADES_TRADUCIDAS);
using mensajes = std::array<vn::texto::grupo_de_textos<vnwchar>, NUM_MENSAJES>;

// The ordinals are the lines' own, from 1.
consteval mensajes numerados(mensajes m) {
    for (size_t i = 0; i < m.size(); ++i) m[i].orden = static_cast<uint32_t>(i + 1);
    return m;
}

constexpr mensajes MENSAJES = numerados({{
#define T(columna, letras)                                                                                             \
    { vn::texto::columna, VNU(letras) }
#define X(es, ...) vn::texto::mensaje_u("convers.msg", 0, {{vn::texto::ES, VNU(es)}, __VA_ARGS__}),
#include "units/convers_msg.inl"
#undef X
#undef T
}});

template <size_t I> void rellena(vnmensaje *mensaje) { MENSAJES[I].rellena(mensaje); }

constexpr auto RELLENOS = []<size_t... I>(std::index_sequence<I...>) {
    return std::array<vnfunc_mensaje, NUM_MENSAJES>{rellena<I>...};
}
(std::make_index_sequence<NUM_MENSAJES>{});

} // namespace

namespace vn {

const vnwchar *unidad_traducida(int16_t fila) {
    return nousar_msglocal_original_u(RELLENOS[static_cast<size_t>(fila)]);
}

} // namespace vn
