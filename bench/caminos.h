// Roads measured side by side: each is a function over the same items; what is judged is the ratio between two of them
// in one run, never a time.
#pragma once

#include <cstdint>
#include <cstdio>
#include <functional>
#include <initializer_list>
#include <string>
#include <vector>

namespace bench {

struct camino {
    std::string nombre;
    double elementos; // items that one run goes through
    std::function<void()> corre;
};
// The road `nuestro` may take at most `presupuesto` times what `otro` takes. 0: reported only.
struct razon {
    std::string nuestro, otro;
    double presupuesto;
};

// Runs every road in turn, `pasadas` times, and prints nanoseconds per item (median of the passes) and the ratios.
// Returns how many budgets are not met.
int mide(const char *titulo, const std::vector<camino> &caminos, const std::vector<razon> &razones, int pasadas);

// What a road gives must be right before its time means anything: says what is not, and ends the program.
void debe(bool bien, const char *que);

// A benchmark's main: its subjects in turn, each with as many passes as its first argument says (7 if none) and
// returning how many budgets are not met.
int programa(int argc, char **argv, std::initializer_list<int (*)(int pasadas)> materias);

// Small, fast, repeatable.
struct azar {
    uint64_t s;
    explicit azar(uint64_t semilla) : s(semilla * 0x9E3779B97F4A7C15ull + 1) {}
    uint64_t siguiente() { return s ^= s << 13, s ^= s >> 7, s ^= s << 17; }
    double entre(double a, double b) { return a + (b - a) * static_cast<double>(siguiente() >> 11) * 0x1.0p-53; }
};

} // namespace bench
