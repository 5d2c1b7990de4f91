// What the tests of the amounts in words share.
#pragma once

#include "foundation/texto/msglocal.h"
#include "foundation/texto/unicode.h"
#include "prueba.h"
#include "units/vnnumlet.h"

namespace vn {

enum idioma : int { ES = 0, FR = 1, PT_BR = 2, CA = 3, PT = 5, ES_AM = 7, EN = 8, GL = 9 };

// The text of page 1252, taken and freed, as UTF-8.
inline std::string toma_1252(char *texto) {
    const std::string s = texto != nullptr ? toma(unicode_convierte_ANSI_idioma_a_UNICODE(texto, ES)) : "(null)";
    toma(texto);
    return s;
}
inline std::string numero(int idioma, const std::string &cadena, vnbool negativo = FALSO) {
    msidioma_establece_idioma(idioma);
    return toma_1252(vnnumlet_numero_en_cifras_a_letra(cadena.c_str(), negativo));
}
// Of an amount whose names are both `x`, without them.
inline std::string cuenta_de(int idioma, const std::string &cadena, vnbool femenina) {
    msidioma_establece_idioma(idioma);
    std::string s = toma_1252(
        vnnumlet_moneda_en_cifras_a_letra(cadena.c_str(), FALSO, "x", "x", femenina, nullptr, nullptr, FALSO));
    for (const std::string_view fin : {" de x", " x"})
        if (s.ends_with(fin)) return s.substr(0, s.size() - fin.size());
    return s;
}

} // namespace vn
