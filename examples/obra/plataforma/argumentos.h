// The program's arguments as UTF-8, and a file's name as its C library's `fopen` takes it.
#pragma once

#include <string>
#include <vector>

namespace obra {
std::vector<std::string> argumentos_utf8(int argc, char **argv);
// Makes the console show UTF-8.
void prepara_consola();
} // namespace obra
