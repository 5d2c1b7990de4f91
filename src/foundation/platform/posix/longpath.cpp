#include "foundation/platform/longpath.h"
#include "foundation/platform/posix/descriptor.h"
#include "foundation/platform/posix/ruta.h"
#include <climits>
#include <sys/stat.h>

namespace vn::plat {
namespace {

// By disposition, from 1: how an existing file and a missing one are met.
constexpr int DISPOSICIONES[] = {0, O_CREAT | O_EXCL, O_CREAT | O_TRUNC, 0, O_CREAT, O_TRUNC};

void *como_handle(int fd) { return reinterpret_cast<void *>(static_cast<intptr_t>(fd)); }

} // namespace

void *abre_fichero(const cadena_ancha &nombre, uint32_t acceso, uint32_t, void *, uint32_t disposicion,
                   uint32_t atributos, void *) {
    const bool lee = (acceso & VNLONGPATH_GENERIC_READ) != 0, escribe = (acceso & VNLONGPATH_GENERIC_WRITE) != 0;
    const std::string ruta = ruta_del_sistema(nombre);
    // The rule of the other platform: who truncates must ask for the right to write.
    if (disposicion == VNLONGPATH_TRUNCATE_EXISTING && !escribe) {
        errno = EINVAL;
        return VNLONGPATH_INVALID_HANDLE;
    }
    int modo = O_CLOEXEC | DISPOSICIONES[disposicion] | (escribe ? (lee ? O_RDWR : O_WRONLY) : O_RDONLY);
    if ((atributos & VNLONGPATH_FILE_FLAG_WRITE_THROUGH) != 0) modo |= O_DSYNC;
    const mode_t permisos = (atributos & VNLONGPATH_FILE_ATTRIBUTE_READONLY) != 0 ? 0444 : 0666;
    const int fd = aparta(::open(ruta.c_str(), modo, permisos));
    if (fd < 0) return VNLONGPATH_INVALID_HANDLE;
    struct stat s {};
    // A directory opens only for those who ask for it by its flag.
    if (::fstat(fd, &s) == 0 && S_ISDIR(s.st_mode) && (atributos & VNLONGPATH_FILE_FLAG_BACKUP_SEMANTICS) == 0) {
        ::close(fd);
        errno = EISDIR;
        return VNLONGPATH_INVALID_HANDLE;
    }
    // The name goes at once; the content lives until the handle is closed.
    if ((atributos & VNLONGPATH_FILE_FLAG_DELETE_ON_CLOSE) != 0) ::unlink(ruta.c_str());
    return como_handle(fd);
}

bool cierra_fichero(void *fichero) {
    const auto fd = reinterpret_cast<intptr_t>(fichero);
    return fd > 0 && fd <= INT_MAX && ::close(static_cast<int>(fd)) == 0;
}

uint32_t atributos_de(const cadena_ancha &nombre) {
    ficha f;
    // A link to nothing is there too, with the attributes of a link.
    return consulta(nombre, f) || f.es_enlace ? f.atributos : VNLONGPATH_INVALID_FILE_ATTRIBUTES;
}

} // namespace vn::plat
