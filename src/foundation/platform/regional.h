// Regional settings, as the platform has them.
#pragma once

#include "foundation/platform/plataforma.h"
#include "foundation/suelo/cadena_int.h"
#include <array>
#include <cstdint>
#include <string>

namespace vn::plat {

// Pictures are Windows'; other texts are as they are shown.
struct region {
    cadena_ancha separador_campos, separador_decimal, separador_millares, separador_fechas, separador_horas;
    cadena_ancha fecha_corta, fecha_larga, hora; // pictures
    cadena_ancha orden_fecha, modo_horario;      // a digit each
    cadena_ancha agrupacion;                     // digits of the groups from the right, "3;0": the last again and again
    cadena_ancha signo_menos, antes_de_mediodia, despues_de_mediodia, era;
    cadena_ancha decimales, cero_inicial, forma_negativa; // a digit each; the form as Windows numbers them
    std::array<cadena_ancha, 7> dias, dias_abreviados;    // from Sunday
    std::array<cadena_ancha, 7> dias_en_fecha, dias_abreviados_en_fecha;  // in a picture
    std::array<cadena_ancha, 12> meses, meses_abreviados, meses_en_fecha; // the last beside a day of the month
};

// What the user's settings come from, where that can be told for less than it takes to read them: the same text, the
// same settings. Empty where it cannot.
std::string origen_de_la_region();
// The user's settings or, of a name as "es-ES", those of that region; false for a name that the platform does not know.
bool lee_region(const char *nombre, region &r);

} // namespace vn::plat
