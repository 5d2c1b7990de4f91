// The arguments of `obra informa`.
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
// Puts them in force for this run; what the user has configured stays as it is.
void aplica(const opciones &o);

} // namespace obra
