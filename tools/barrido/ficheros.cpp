// The files that the swept operations meet in the working directory.
#include "barrido.h"
#include <filesystem>
#include <fstream>

namespace barrido {

void prepara_ficheros() {
    const std::string ceros(64, '\0');
    const struct {
        const char *nombre;
        std::string contenido;
    } ficheros[] = {{"flujo.bin", ceros + "abc\r\n12 1.5\r\n" + ceros},
                    {"flujo.txt", "12 1.5 abc\n1\n0\nabc\n"},
                    {"entrada.bin", ceros + "1 2.5 abc\n" + ceros},
                    {"obra.bin", std::string("\2\1\10\0VORN-9-a\1", 13) + ceros}};
    std::error_code e;
    const auto escribible = [&e](const char *nombre) {
        std::filesystem::permissions(nombre, std::filesystem::perms::all, e);
    };
    for (const auto &f : ficheros) {
        // Another's leavings may be in the way.
        escribible(f.nombre);
        if (std::filesystem::is_directory(f.nombre, e)) std::filesystem::remove_all(f.nombre, e);
        std::ofstream s(f.nombre, std::ios::binary);
        s << f.contenido;
    }
    std::filesystem::create_directory("carpeta", e);
    escribible("no_esta.txt");
    std::filesystem::remove_all("no_esta.txt", e);
}

} // namespace barrido
