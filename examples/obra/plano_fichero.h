// A drawing in a project file: what is saved, in which order, and what can be told of the file itself.
#pragma once

#include "plano.h"

namespace obra {

struct seccion {
    std::string nombre;
    int64_t bytes;
};
// Named fields of a file: name and value.
using campos_t = std::vector<std::pair<texto, texto>>;
// A project file as it was read.
struct obra_leida {
    plano p;
    std::vector<seccion> secciones;
    std::string version_programa, revision_programa; // from the header
    uint16_t version_formato = 0;
    bool es_ejemplo = false;
    texto titulo;
    campos_t campos;
};

inline constexpr uint16_t VERSION_FORMATO = 1;
inline constexpr const char *FIRMA = "OBRA-PLANO";

enum class lectura_obra { bien, no_es_obra, version_superior };

// Saves over `nombre`, whose named fields are kept; those given are added or take their new value. False on any
// failure, which has been reported; the old file is then as it was.
bool graba_obra(const texto &nombre, const plano &p, const texto &titulo, const campos_t &campos);
// On anything but `bien`, `o` is untouched; `motivo` then says which check of the file failed, UTF-8.
lectura_obra lee_obra(const texto &nombre, obra_leida &o, std::string &motivo);

} // namespace obra
