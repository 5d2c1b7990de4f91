// The record of the process, for the sources of this folder that ask for the system of units once a value.
#pragma once

#include "units/vornconf.h"
#include <atomic>

namespace vn {

// All zeros until it is loaded. Words that other threads may read while one changes them.
inline constinit vornconf_internacional registro_vornconf{};

// The system of units, or 0 while the record is not loaded: vornconf_Internacional_sistema_unidades loads it.
inline uint32_t sistema_unidades_si_cargado() {
    return std::atomic_ref<uint32_t>(registro_vornconf.sistema_unidades).load(std::memory_order_relaxed);
}

} // namespace vn
