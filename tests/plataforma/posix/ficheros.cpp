#include "plataforma/ficheros.h"
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace vn::plataforma {

void hace_particular(const std::string &fichero) {
    ::setxattr(fichero.c_str(), "user.nota", "mia", 3, 0);
    if (::geteuid() == 0 && ::chown(fichero.c_str(), 1234, 4321) != 0) return;
    ::chmod(fichero.c_str(), 0642);
}

std::string particularidades(const std::string &fichero) {
    struct stat s {};
    ::stat(fichero.c_str(), &s);
    char nota[8];
    const ssize_t n = ::getxattr(fichero.c_str(), "user.nota", nota, sizeof nota);
    return std::to_string(s.st_mode & 07777) + " " + std::to_string(s.st_uid) + " " + std::to_string(s.st_gid) + " " +
           std::string(nota, n > 0 ? static_cast<size_t>(n) : 0);
}

bool hace_privado(const std::string &fichero) { return ::chmod(fichero.c_str(), 0600) == 0; }
bool es_privado(const std::string &fichero) {
    struct stat s {};
    return ::stat(fichero.c_str(), &s) == 0 && (s.st_mode & 077) == 0;
}
bool hace_tuberia(const std::string &nombre) { return ::mkfifo(nombre.c_str(), 0666) == 0; }
void hace_de_solo_lectura(const std::string &fichero) { ::chmod(fichero.c_str(), 0444); }
bool hace_ilegible(const std::string &directorio) { return ::chmod(directorio.c_str(), 0333) == 0; }

bool cierra_los_tres() { return ::close(0) == 0 && ::close(1) == 0 && ::close(2) == 0; }

bool limita_tamanyo(uint64_t bytes) {
    const rlimit limite{bytes, bytes};
    return ::setrlimit(RLIMIT_FSIZE, &limite) == 0;
}

bool se_hace_usuario(int cual) {
    ::umask(022);
    return ::geteuid() != 0 ? cual == 1 : ::setresuid(4000 + cual, 4000 + cual, 4000 + cual) == 0;
}

} // namespace vn::plataforma
