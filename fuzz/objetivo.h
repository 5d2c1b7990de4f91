// What a fuzz target gives and takes. Its program is either libFuzzer's or the one that goes through the deterministic
// mutations of every seed (mutaciones.cpp).
#pragma once

#include "foundation/suelo/tipos.h"
#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n);

namespace fuzz {

// Inputs that the library's own writers made.
std::vector<std::string> semillas();

// The name of the one file that a target reads, and its siblings, in the memory file system.
inline constexpr const char *FICHERO = "mem/entrada";
inline const std::basic_string<vnwchar> NOMBRE = VNU("mem/entrada");
// Runs `lee` with the bytes as the content of FICHERO in a file system of memory. Reports are not shown. What it leaves
// on the tracked heap, or asks of it beyond `maximo` bytes in all, ends the program.
void con_fichero(const uint8_t *datos, size_t n, uint64_t maximo, const std::function<void()> &lee);
// What a writer leaves in FICHERO.
std::string lo_que_graba(const std::function<void()> &graba);
// Content of FICHERO now; empty if it is not there.
std::string contenido();
// The reports made since the input was put there.
uint64_t informes();
// The expression of the last one.
const std::string &ultimo_informe();
// Runs `f` inside a trap; false when a report ended it.
bool atrapa(const std::function<void()> &f);
// Ends the program with a line when the condition does not hold.
void exige(bool condicion, const char *que);

// The bound that a reader keeps to: 1 MiB and 8 bytes for each of the file's.
constexpr uint64_t cota(size_t n) { return (uint64_t{1} << 20) + 8 * static_cast<uint64_t>(n); }

} // namespace fuzz
