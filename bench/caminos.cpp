#include "caminos.h"
#include <algorithm>
#include <chrono>
#include <cstdlib>
#include <map>

namespace bench {

int mide(const char *titulo, const std::vector<camino> &caminos, const std::vector<razon> &razones, int pasadas) {
    std::map<std::string, std::vector<double>> ns;
    // In turn, so that a drift of the machine touches all roads alike; the first pass only warms up.
    for (int p = -1; p < pasadas; ++p) {
        for (const camino &c : caminos) {
            const auto antes = std::chrono::steady_clock::now();
            c.corre();
            const std::chrono::duration<double, std::nano> d = std::chrono::steady_clock::now() - antes;
            if (p >= 0) ns[c.nombre].push_back(d.count() / c.elementos);
        }
    }
    std::printf("%s (median of %d passes)\n", titulo, pasadas);
    for (auto &[nombre, v] : ns) std::sort(v.begin(), v.end());
    const auto mediana = [&](const std::string &nombre) { return ns.at(nombre)[ns.at(nombre).size() / 2]; };
    for (const camino &c : caminos)
        std::printf("  %-44s %9.2f ns  (%.2f to %.2f)\n", c.nombre.c_str(), mediana(c.nombre), ns[c.nombre].front(),
                    ns[c.nombre].back());
    int fuera = 0;
    for (const razon &r : razones) {
        const double v = mediana(r.nuestro) / mediana(r.otro);
        const bool dentro = r.presupuesto == 0 || v <= r.presupuesto;
        fuera += !dentro;
        std::printf("  %-44s %9.2f x  %s", r.nuestro.c_str(), v, r.otro.c_str());
        if (r.presupuesto != 0) std::printf("  budget %.2f  %s", r.presupuesto, dentro ? "met" : "NOT MET");
        std::printf("\n");
    }
    return fuera;
}

void debe(bool bien, const char *que) {
    if (bien) return;
    std::fprintf(stderr, "CHECK FAILED: %s\n", que);
    std::exit(2);
}

int programa(int argc, char **argv, std::initializer_list<int (*)(int pasadas)> materias) {
    const int pasadas = argc > 1 ? std::max(1, std::atoi(argv[1])) : 7;
    int fuera = 0;
    for (const auto &materia : materias) fuera += materia(pasadas);
    std::printf("budgets not met: %d\n", fuera);
    return 0;
}

} // namespace bench
