// Directories and what they hold; places of the system. Paths with the platform's separators or the other
// ones.
#pragma once

#include "foundation/platform/plataforma.h"
#include "foundation/suelo/cadena_int.h"
#include <cstdint>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vn::plat {

extern const vnwchar SEPARADOR;

// The character by which two names are compared: where case does not count, its upper-case form.
vnwchar para_comparar(vnwchar c);

// What a name is. A link is told as such, and the rest is of what it leads to, if it leads anywhere.
struct ficha {
    cadena_ancha nombre;
    bool es_directorio = false;
    bool es_enlace = false;
    uint32_t atributos = 0; // VNLONGPATH_FILE_ATTRIBUTE_*
    uint64_t tamanyo = 0;
    int64_t fecha = 0; // seconds since 1970, UTC
};

// The one of a path, without the name. False if there is nothing, or a link to nothing.
bool consulta(const cadena_ancha &ruta, ficha &f);
bool es_enlace(const cadena_ancha &ruta);

// Walks over a directory, "." and ".." left out.
class recorrido {
  public:
    // `con_datos`: the whole record of each, not only its name and whether it is a directory or a link.
    recorrido(const cadena_ancha &directorio, bool con_datos);
    ~recorrido();
    bool abierto() const;
    bool siguiente(ficha &f);

  private:
    struct interior;
    std::unique_ptr<interior> interior_;
};

// A directory and those below it, one step down or up at a time. The walk enters no link and stays where it is whatever
// becomes of the names that led there; it holds no more of the system's records the deeper it goes, where that is
// bounded.
class descenso {
  public:
    explicit descenso(const cadena_ancha &raiz);
    ~descenso();
    bool abierto() const;
    // What the current directory holds.
    bool lista(std::vector<ficha> &contenido);
    // Into a directory of the current one: false if it is none (any more), is a link or cannot be read.
    bool entra(const cadena_ancha &nombre);
    // Back to the one above, which is then the current one: false if this one was moved elsewhere meanwhile.
    bool sal();
    // Removes a file, a link or an empty directory of the current one, write-protected or not.
    bool borra(const cadena_ancha &nombre);

  private:
    struct interior;
    std::unique_ptr<interior> interior_;
};

// The directory and those above it that are missing. True also if it was there.
bool crea_directorios(const cadena_ancha &ruta);
// An empty directory, or a link to one.
bool borra_directorio(const cadena_ancha &ruta);
// Whether the file, which exists, can be opened.
bool puede_leer(const cadena_ancha &fichero);
bool puede_escribir(const cadena_ancha &fichero);

cadena_ancha directorio_temporal();
cadena_ancha ruta_del_programa();
// The variable of the environment, if it is there and not empty.
std::optional<cadena_ancha> variable(const char *nombre);
std::optional<cadena_ancha> base_de_configuracion();
cadena_ancha unidad_escribible();
// The directories where programs are searched, and the endings that may be added to a name.
std::vector<cadena_ancha> directorios_de_programas();
std::vector<cadena_ancha> terminaciones_de_programas();
bool es_ejecutable(const cadena_ancha &fichero);

} // namespace vn::plat
