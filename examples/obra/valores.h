// Values as the user reads them: in the system of units in force, with the separators of the region. UTF-8.
#pragma once

#include <cstdint>
#include <string>

namespace obra {

// Number and unit of a value of one of the library's types, in its internal unit (metres, square metres). Lengths of
// the imperial system are in feet and inches. What is too small for `decimales` takes more.
std::string valor_de(double valor, uint32_t tipo, int decimales);
std::string longitud(double metros);
std::string area(double metros_cuadrados);
// The system of units in force, with what it is, and the name of the unit of energy.
std::string sistema_en_uso();
std::string energia_en_uso();

} // namespace obra
