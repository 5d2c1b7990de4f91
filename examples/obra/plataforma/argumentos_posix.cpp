#include "argumentos.h"

namespace obra {
std::vector<std::string> argumentos_utf8(int argc, char **argv) { return {argv, argv + argc}; }
void prepara_consola() {}
} // namespace obra
