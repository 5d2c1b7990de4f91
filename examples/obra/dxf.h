// Reads a DXF into a drawing: block references expanded, everything brought to plan.
#pragma once

#include "plano.h"
#include <optional>

namespace obra {

enum class lectura_dxf { bien, no_se_lee, no_es_dxf, es_binario, danado, demasiado_grande };

// What is told of a reading besides the drawing.
struct noticias_dxf {
    uint64_t linea = 0;                 // where a damaged one is
    bool sin_final = false;             // it ends before its end, and is there as far as it goes
    std::optional<int> unidad_ignorada; // its code; its units were taken for metres
    uint64_t bytes = 0, visitadas = 0;  // entities and vertices gone through, those of each copy of a block
};

// On anything but `bien`, `p` is untouched.
lectura_dxf lee_dxf(const texto &nombre, plano &p, noticias_dxf &noticias);

// What a drawing of so many bytes may ask for, whatever it says of copies and nesting: entities and vertices to go
// through, and bytes to keep them in.
constexpr uint64_t maximo_de_visitas(uint64_t bytes) { return 64 * bytes + 1'000'000; }
constexpr uint64_t maximo_de_memoria(uint64_t bytes) { return 64 * (bytes + 1'000'000); }

} // namespace obra
