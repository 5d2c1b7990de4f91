// Paths as texts, and what the directory operations share.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/platform/directorio.h"
#include "foundation/suelo/error_interno.h"

namespace vn {

using plat::texto;
using plat::vista;

inline bool es_separador(vnwchar c) { return c == VNU('\\') || c == VNU('/'); }

// A path taken apart; the pieces are parts of the text. The last separator of the directory is left out but
// for a root's.
struct partes {
    vista unidad, directorio, nombre, extension;
    // What lies before the name.
    vista hasta_directorio() const { return {unidad.data(), unidad.size() + directorio.size()}; }
    vista nombre_con_extension() const {
        return {nombre.data(), nombre.size() + (extension.empty() ? 0 : extension.size() + 1)};
    }
};
partes descompone(vista ruta);

texto con_separadores_propios(vista ruta);
texto une(vista a, vista b);
vista sin_separador_final(vista ruta);
// Whether `nombre` matches the mask, as vdir_lista_de_ficheros_UNICODE says.
bool casa_con(vista mascara, vista nombre);

// New texts of the tracked heap. The ANSI page may lack a character: then the text is another one, or, if
// `fiel`, null.
vnwchar *nuevo(vista t);
char *nuevo_ansi(const texto &t);
char *nuevo_ansi_fiel(const texto &t);
texto de_ansi(const char *s);

// What is in a directory and matches, in the order of the names; false if it cannot be read.
enum class clase { ficheros, directorios };
bool nombres_en(const texto &directorio, vista mascara, clase que, std::vector<texto> &nombres);
// An array of the texts.
arrCADENA_u *nueva_lista(const std::vector<texto> &textos);

bool existe_directorio(const texto &ruta);
bool existe_fichero(const texto &ruta);
bool borra_fichero(const texto &ruta);
bool crea_directorios(const texto &ruta);
// Creates an empty file of a name that no other has in the directory.
bool crea_fichero_unico(const texto &directorio, vista extension, texto &ruta);

} // namespace vn

// True when the condition holds; when not, reports it with the name of the file, and is false.
#define AFIRMA_DE_FICHERO(cond, nombre)                                                                                \
    ((cond) ? true : (error_interno_msg_u(VNU(#cond), VN_MODULO, __LINE__, nombre, 0), false))
