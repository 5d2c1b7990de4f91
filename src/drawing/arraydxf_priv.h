// Layers as the sources of the drawing layer see them.
#pragma once

#include "colour/idcolor_int.h"
#include "drawing/arraydxf.h"
#include "drawing/gestcapa.h"
#include "foundation/suelo/dueno.hpp"
#include <array>
#include <memory>
#include <optional>
#include <string>
#include <vector>

namespace vn {

// A layer, or what is current while one draws.
struct capa_dxf {
    std::basic_string<vnwchar> nombre = VNU("NO_NAME");
    uint8_t capa = VPLAN_NOCAMBIAR;
    uint32_t pluma = 1;
    double grosor_pluma_mm = 0.;
    uint8_t tipo_linea = 0;
    std::optional<std::basic_string<vnwchar>> tipo_linea_definida;
    uint8_t atributo_extra = 0;
    idcolor color = colores::de_autocad(7);

    const vnwchar *tipo_linea_definida_o_null() const {
        return tipo_linea_definida ? tipo_linea_definida->c_str() : nullptr;
    }
};

} // namespace vn

struct arraydxf {
    // A number that is not defined has none.
    std::array<std::unique_ptr<vn::capa_dxf>, VPLAN_NOCAMBIAR> capas;
    std::unique_ptr<vn::capa_dxf> atributos_actuales;
    std::vector<std::unique_ptr<vn::capa_dxf>> pila_de_atributos_actuales;
    uint8_t capa_mas_alta = 0;

    // The layer of that number, null if it is not defined.
    const vn::capa_dxf *capa(uint8_t numero) const { return numero < capas.size() ? capas[numero].get() : nullptr; }
};

struct gestcapa {
    vn::dueno<arraydxf_destruye> actual;
    std::vector<vn::dueno<arraydxf_destruye>> pilaDeCapas;
};
