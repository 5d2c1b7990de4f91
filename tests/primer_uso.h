// First use of what the library makes when it is first asked for: many fresh processes, in each of which eight threads
// meet. Each process begins the list of uses at another one, so that each use is the first thing of some processes; the
// order of two stores, which no sanitizer looks at, shows in their answers.
#pragma once

#include "plataforma/proceso.h"
#include "prueba.h"
#include <algorithm>
#include <atomic>
#include <deque>
#include <span>

namespace vn {

struct uso {
    const char *que;
    bool (*de_hebra)(int hebra); // in each of the threads at once: whether what it was answered is right
    bool (*despues)();           // alone, when all have ended
};

constexpr int HEBRAS = 8, PROCESOS = 64;

// The child's part: 0, or 1 and the number of the use that went wrong; a report is wrong too.
inline int usa_por_primera_vez(std::span<const uso> usos, size_t desde) {
    for (size_t k = 0; k < usos.size(); ++k) {
        const size_t cual = (desde + k) % usos.size();
        // They start together by turning, not by std::barrier, which loses a wake-up now and then on Windows.
        std::atomic<int> llegadas{0}, bien{0};
        en_hebras(HEBRAS, [&](int h) {
            for (++llegadas; llegadas < HEBRAS;) std::this_thread::yield();
            bien += usos[cual].de_hebra(h);
        });
        if (bien != HEBRAS || !usos[cual].despues() || error_interno_numero_de_informes() != 0)
            return static_cast<int>(1 + cual);
    }
    return 0;
}

// Starts the processes, a few at a time; the child function gets `args` and the number of its first use.
inline void espera_primeros_usos(const char *hijo, std::span<const uso> usos, std::vector<std::string> args) {
    std::deque<proceso> corren;
    args.emplace_back();
    for (int i = 0; i < PROCESOS + 4; ++i) {
        if (i >= 4) {
            const int r = corren.front().espera(60000).value_or(-1);
            const bool conocido = r > 0 && static_cast<size_t>(r) <= usos.size();
            EXPECT_EQ(r, 0) << (conocido ? usos[static_cast<size_t>(r - 1)].que : "the process") << ", process "
                            << i - 4;
            corren.pop_front();
        }
        args.back() = std::to_string(i);
        if (i < PROCESOS) corren.emplace_back(hijo, args);
    }
}

} // namespace vn
