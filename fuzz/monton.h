// What a target asks of the C++ heap, freed or not.
#pragma once

#include <cstdint>

namespace fuzz {
uint64_t pedido_al_monton();
}
