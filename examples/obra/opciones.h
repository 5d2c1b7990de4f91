// The arguments of `obra informa`, `obra dibuja` and `obra malla`.
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace obra {

struct opciones {
    std::string obra;
    std::optional<uint32_t> sistema; // VORNCONF_SU_*
    std::optional<uint32_t> energia; // VORNNORM_UNIDAD_ENERGIA_*
    std::optional<int> idioma;       // one that the program has texts in
};

// From the words behind "informa": one name of a file, and options anywhere. False on any that is wrong; `falta` says
// which, in the language that is active.
bool lee_opciones(const std::vector<std::string> &palabras, opciones &o, std::string &falta);
// What `dibuja` and `malla` are told.
struct opciones_dibujo {
    std::string obra, destino;
    std::optional<double> ancho_px, escala, fondo;
    std::optional<double> alto; // metres, of `malla` alone
};
// The same from the words behind "dibuja" or, with a height, behind "malla": two names.
bool lee_opciones_dibujo(const std::vector<std::string> &palabras, bool con_alto, opciones_dibujo &o,
                         std::string &falta);
// Puts them in force for this run; what the user has configured stays as it is.
void aplica(const opciones &o);

} // namespace obra
