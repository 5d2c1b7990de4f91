#define VN_MODULO "monedas (NUCLEOS.DLL)"
#include "units/monedas.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/mensajes.hpp"
#include "foundation/texto/widestr.h"
#include "units/unidades.h"
#include "units/vornnum.h"

namespace {

#define M(id, ...) VN_MENSAJE(msg_##id, "monedas.msg", id, __VA_ARGS__)
#include "units/monedas_msg.inl"
#undef M

constexpr double PESETAS_POR_EURO = 166.386;

vn::propio<vnwchar> texto_de(double valor, int32_t decimales) {
    return vn::propio<vnwchar>(num_double_a_string_u(valor, *unidades_separador_millares_u(),
                                                     *unidades_separador_decimales_u(), FALSO, decimales));
}

} // namespace

vnwchar *monedas_precio_Ptas_euros(double pesetas) {
    // To the nearest cent.
    const double euros = FLOOR(pesetas / PESETAS_POR_EURO * 100. + 0.5) / 100.;
    const vn::propio<vnwchar> en_euros = texto_de(euros, 2), en_pesetas = texto_de(pesetas, 0);
    return copiaforu_nousar_formatea(VNU("%s(%s) %s(%s)"), en_euros.get(), nousar_msglocal_original_u(msg_124346.u),
                                     en_pesetas.get(), nousar_msglocal_original_u(msg_124345.u));
}
