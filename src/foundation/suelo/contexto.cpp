#define VN_MODULO "contexto (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/contexto.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/contexto_priv.h"
#include "foundation/suelo/utf_int.h"
#include <algorithm>
#include <string_view>

namespace {

// Levels whose text is kept, and the units of each with its zero: fixed room, so that a report allocates nothing.
constexpr uint32_t NIVELES = 16;
constexpr size_t UNIDADES = 160;
using vista = std::basic_string_view<vnwchar>;
constexpr vista UNION = VNU(" > ");

thread_local uint32_t nivel = 0;
thread_local vnwchar textos[NIVELES][UNIDADES];
// The descriptions joined, with room for all of them and what stands between two.
thread_local vnwchar todo[NIVELES * (UNIDADES + 3)];

// What is kept of a text: not half of a surrogate pair.
vista recortada(const vnwchar *texto) {
    size_t n = 0;
    while (n < UNIDADES - 1 && texto[n] != 0) ++n;
    if (n > 0 && texto[n] != 0 && vn::es_alto(texto[n - 1])) --n;
    return {texto, n};
}

} // namespace

namespace vn::inline suelo {
uint32_t &nivel_de_contexto() { return nivel; }
} // namespace vn::suelo

void contexto_dentroDeContexto_u(const vnwchar *texto) {
    if (!AFIRMA_NO_NULO(texto)) return;
    // Deeper levels are only counted, so that each way out still matches its way in.
    if (nivel < NIVELES) {
        const vista t = recortada(texto);
        *std::copy(t.begin(), t.end(), textos[nivel]) = 0;
    }
    if (nivel < UINT32_MAX) ++nivel;
}

void contexto_fueraDeContexto_u(const vnwchar *texto) {
    if (!AFIRMA_NO_NULO(texto)) return;
    if (!AFIRMA(nivel > 0)) return;
    // Past the levels that are kept only the count can be checked.
    if (nivel > NIVELES) {
        --nivel;
        return;
    }
    const vista t = recortada(texto);
    // The innermost level of that text: levels above it that nobody left are left with it.
    uint32_t donde = nivel;
    while (donde > 0 && vista(textos[donde - 1]) != t) --donde;
    const bool es_el_ultimo = donde == nivel;
    // A text that was never entered leaves nothing.
    if (donde > 0) nivel = donde - 1;
    AFIRMA(es_el_ultimo);
}

const vnwchar *contexto_actual_u(void) {
    vnwchar *p = todo;
    for (uint32_t i = 0; i < std::min(nivel, NIVELES); ++i) {
        if (i > 0) p = std::copy(UNION.begin(), UNION.end(), p);
        const vista t(textos[i]);
        p = std::copy(t.begin(), t.end(), p);
    }
    *p = 0;
    return todo;
}
