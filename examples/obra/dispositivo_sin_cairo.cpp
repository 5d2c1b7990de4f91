// What stands for the devices of cairo where it is not.
#include "dispositivos.h"

namespace obra {

abre_lienzo *const abre_pdf = nullptr, *const abre_png = nullptr;

} // namespace obra
