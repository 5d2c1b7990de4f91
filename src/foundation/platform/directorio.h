// Directories and what they hold; places of the system. Paths with the platform's separators or the other
// ones.
#pragma once

#include "foundation/platform/plataforma.h"
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vn::plat {

using texto = std::basic_string<vnwchar>;
using vista = std::basic_string_view<vnwchar>;

extern const vnwchar SEPARADOR;

// The character by which two names are compared: where case does not count, its upper-case form.
vnwchar para_comparar(vnwchar c);

// What a name is. A link is told as such, and the rest is of what it leads to, if it leads anywhere.
struct ficha {
    texto nombre;
    bool es_directorio = false;
    bool es_enlace = false;
    uint32_t atributos = 0; // VNLONGPATH_FILE_ATTRIBUTE_*
    uint64_t tamanyo = 0;
    int64_t fecha = 0; // seconds since 1970, UTC
};

// The one of a path, without the name. False if there is nothing, or a link to nothing.
bool consulta(const texto &ruta, ficha &f);
bool es_enlace(const texto &ruta);

// Walks over a directory, "." and ".." left out.
class recorrido {
  public:
    // `con_datos`: the whole record of each, not only its name and whether it is a directory or a link.
    recorrido(const texto &directorio, bool con_datos);
    ~recorrido();
    bool abierto() const;
    bool siguiente(ficha &f);

  private:
    struct interior;
    std::unique_ptr<interior> interior_;
};

// True also if the directory was there.
bool crea_directorio(const texto &ruta);
// An empty directory, or a link to one.
bool borra_directorio(const texto &ruta);
// Takes away what keeps a file from being removed though its directory may be written.
void quita_proteccion(const texto &fichero);
// Whether the file, which exists, can be opened.
bool puede_leer(const texto &fichero);
bool puede_escribir(const texto &fichero);

texto directorio_temporal();
texto ruta_del_programa();
// The variable of the environment, if it is there and not empty.
std::optional<texto> variable(const char *nombre);
std::optional<texto> base_de_configuracion();
texto unidad_escribible();
// The directories where programs are searched, and the endings that may be added to a name.
std::vector<texto> directorios_de_programas();
std::vector<texto> terminaciones_de_programas();
bool es_ejecutable(const texto &fichero);

} // namespace vn::plat
