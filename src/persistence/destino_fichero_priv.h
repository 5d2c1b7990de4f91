// What the destinations that are streams have alike: how much is left, and their failures.
#pragma once

#include "foundation/ficheros/lc_fichero_int.h"
#include "persistence/destino_priv.h"

namespace vn::flujo {

inline bool quedan(vnfichero *f, uint64_t numero, uint64_t tamanyo) { return lc_quedan(f, numero, tamanyo) == CIERTO; }
inline bool ha_fallado(vnfichero *f) { return lc_ha_fallado(f) == CIERTO; }
inline void marca_fallo(vnfichero *f) {
    ficheros::marca_fallo_escritura(f);
    ficheros::marca_fallo_lectura(f);
}
inline constexpr fallos_t FALLOS{
    .ha_fallado = tabla::usa<ha_fallado>,
    .error_leyendo = tabla::usa<lc_error_leyendo_fichero>,
    .marca = tabla::usa<marca_fallo>,
};

} // namespace vn::flujo
