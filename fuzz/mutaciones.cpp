// Goes through every seed of a target and its deterministic mutations: cut at every length, each bit changed, each
// 4-byte field set to boundary integers.
// usage: fuzz_X_mutaciones [SEED_DIRECTORY]   where to leave the seeds for libFuzzer
#include "objetivo.h"
#include <cstdio>
#include <filesystem>
#include <fstream>

namespace {

uint64_t ejecuciones = 0;

void prueba(const std::string &s) {
    LLVMFuzzerTestOneInput(reinterpret_cast<const uint8_t *>(s.data()), s.size());
    ++ejecuciones;
}

void muta(const std::string &semilla) {
    prueba(semilla);
    for (size_t n = 0; n < semilla.size(); ++n) prueba(semilla.substr(0, n));
    for (size_t i = 0; i < 8 * semilla.size(); ++i) {
        std::string s = semilla;
        s[i / 8] = static_cast<char>(s[i / 8] ^ (1 << i % 8));
        prueba(s);
    }
    constexpr uint32_t LIMITES[] = {0,      1,       0x7F,       0x80,       0xFF,       0x7FFF,    0x8000,
                                    0xFFFF, 0x10000, 0x20000001, 0x7FFFFFFF, 0x80000000, 0xFFFFFFFF};
    for (size_t i = 0; i + 4 <= semilla.size(); ++i)
        for (const uint32_t v : LIMITES)
            prueba(std::string(semilla).replace(i, 4, reinterpret_cast<const char *>(&v), 4));
}

} // namespace

int main(int argc, char **argv) {
    const auto semillas = fuzz::semillas();
    fuzz::exige(!semillas.empty(), "there are seeds");
    for (size_t i = 0; i < semillas.size(); ++i) {
        fuzz::exige(!semillas[i].empty(), "a seed has content");
        if (argc > 1) {
            std::filesystem::create_directories(argv[1]);
            std::ofstream(std::filesystem::path(argv[1]) / ("semilla" + std::to_string(i)), std::ios::binary)
                << semillas[i];
        }
        muta(semillas[i]);
    }
    std::printf("%llu executions over %zu seeds\n", static_cast<unsigned long long>(ejecuciones), semillas.size());
    return 0;
}
