#include "mensajes.h"
#include <nucleos/foundation/texto/mensajes.hpp>

namespace obra::mensaje {
namespace {

using vn::columna;

// The columns that every row gives; that of Portugal is Brazil's where a row has none.
constexpr columna OBLIGADAS[] = {columna::ES, columna::FR, columna::PT_BR, columna::CA,
                                 columna::IT, columna::EN, columna::GL,    columna::DE};

} // namespace

#define M(nombre, ...)                                                                                                 \
    void nombre(vnmensaje *m) {                                                                                        \
        VN_MENSAJE(TEXTOS, "obra.msg", nombre, __VA_ARGS__)                                                            \
        static_assert(TEXTOS.da(OBLIGADAS), "a language is missing");                                                  \
        TEXTOS.u(m);                                                                                                   \
    }
#include "mensajes.inl"
#undef M

void habla_un_solo_idioma() {
    const int i = msidioma_dame_idioma();
    for (const int propio : IDIOMAS)
        if (i == propio) return;
    // Beside those an index is a column.
    if (vn::columna_de_reserva(static_cast<unsigned>(i)) == columna::EN)
        msidioma_establece_idioma(static_cast<int>(columna::EN));
}

} // namespace obra::mensaje
