// Paths as texts, and what the directory operations share.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/platform/directorio.h"
#include "foundation/suelo/error_interno.h"

namespace vn::ficheros {

inline bool es_separador(vnwchar c) { return c == VNU('\\') || c == VNU('/'); }

// A path taken apart; the pieces are parts of the text. The last separator of the directory is left out but
// for a root's.
struct partes {
    vista_ancha unidad, directorio, nombre, extension;
    // Drive and directory: the part before the name.
    vista_ancha hasta_directorio() const { return {unidad.data(), unidad.size() + directorio.size()}; }
    vista_ancha nombre_con_extension() const {
        return {nombre.data(), nombre.size() + (extension.empty() ? 0 : extension.size() + 1)};
    }
};
partes descompone(vista_ancha ruta);

cadena_ancha con_separadores_propios(vista_ancha ruta);
cadena_ancha une(vista_ancha a, vista_ancha b);
vista_ancha sin_separador_final(vista_ancha ruta);
// Whether `nombre` matches the mask, as vdir_lista_de_ficheros_UNICODE says.
bool casa_con(vista_ancha mascara, vista_ancha nombre);

// New texts of the tracked heap. The ANSI page may lack a character: then the text is another one, or, if
// `fiel`, null.
vnwchar *nuevo(vista_ancha t);
char *nuevo_ansi(const cadena_ancha &t);
char *nuevo_ansi_fiel(const cadena_ancha &t);
cadena_ancha de_ansi(const char *s);

// What is in a directory and matches, in the order of the names; false if it cannot be read.
enum class clase { ficheros, directorios };
bool nombres_en(const cadena_ancha &directorio, vista_ancha mascara, clase que, std::vector<cadena_ancha> &nombres);
// An array of the texts.
arrCADENA_u *nueva_lista(const std::vector<cadena_ancha> &textos);

bool existe_directorio(const cadena_ancha &ruta);
bool existe_fichero(const cadena_ancha &ruta);
bool borra_fichero(const cadena_ancha &ruta);
bool crea_directorios(const cadena_ancha &ruta);
// Creates an empty file of a name that no other has in the directory.
bool crea_fichero_unico(const cadena_ancha &directorio, vista_ancha extension, cadena_ancha &ruta);

} // namespace vn::ficheros

// True when the condition holds; when not, reports it with the name of the file, and is false.
#define AFIRMA_DE_FICHERO(cond, nombre)                                                                                \
    ((cond) ? true : (error_interno_msg_u(VNU(#cond), VN_MODULO, __LINE__, nombre, 0), false))
