// What only the files of one platform have, for the tests of what a save keeps and what it withstands. An operation
// that a platform has no use for answers false and has done nothing.
#pragma once

#include <cstdint>
#include <string>

namespace vn::plataforma {

// Gives a file rights and marks that no new one has; where the tests may, an owner and a group too.
void hace_particular(const std::string &fichero);
// All of that which a file has.
std::string particularidades(const std::string &fichero);
// For the file's user alone.
bool hace_privado(const std::string &fichero);
bool es_privado(const std::string &fichero);
bool hace_tuberia(const std::string &nombre);
// A file that can be read and not written.
void hace_de_solo_lectura(const std::string &fichero);
// A name of a directory that may be written and searched, and not listed.
bool hace_ilegible(const std::string &directorio);

// For child processes: what happens to the whole of it.
bool cierra_los_tres();
bool limita_tamanyo(uint64_t bytes);
// Becomes an ordinary user, the first or the second of two, if it is none: what is everybody's to write and what is not
// counts from there on.
bool se_hace_usuario(int cual);

} // namespace vn::plataforma
