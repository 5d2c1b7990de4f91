// The codes of justification of a text: what each row of three, and each column, is to whatever goes by them.
#pragma once

#include <cstddef>
#include <cstdint>
#include <iterator>

namespace vn {

// A row of three codes. `abajo`, `arriba`: how much of the height the box has below and above the anchor; `al_centro`:
// where its middle is, in half heights; `alejado`: to which side across the text an offset goes; `linea_superior`,
// `linea_inferior`: where the lines along the text are, in heights.
struct banda {
    double abajo, arriba, al_centro, alejado, linea_superior, linea_inferior;
};
constexpr banda BANDAS[] = {{0., 1., 1., 1., 1., 0.},                         // 1 to 3: bottom
                            {.5, .5, 0., 0., .5, -.5},                        // 4 to 6: middle
                            {1., 0., -1., -1., 0., -1.},                      // 7 to 9: top
                            {1. - 8. / 9, 8. / 9, .6, 1., 2. / 3, -1. / 3},   // 10 to 12: low band
                            {1. - 4. / 9, 4. / 9, -.2, 0., 1. / 3, -2. / 3}}; // 13 to 15: high band
// Left, centre, right: to which sides of the anchor the text runs.
enum columna : uint8_t { IZQUIERDA, CENTRO, DERECHA };
// To the middle of the text along it, in half lengths; an offset goes the same way.
constexpr double LADOS[] = {1., 0., -1.};

// Null for a code that is none.
constexpr const banda *banda_si_hay(uint8_t justificacion) {
    const size_t fila = (justificacion - 1u) / 3;
    return justificacion > 0 && fila < std::size(BANDAS) ? &BANDAS[fila] : nullptr;
}
constexpr columna columna_de(uint8_t justificacion) { return static_cast<columna>((justificacion - 1) % 3); }

} // namespace vn
