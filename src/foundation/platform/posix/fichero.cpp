#include "foundation/platform/fichero.h"
#include "foundation/platform/posix/descriptor.h"
#include "foundation/platform/posix/ruta.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/logico_int.h"
#include <algorithm>
#include <cerrno>
#include <climits>
#include <cstdio>
#include <cstdlib>
#include <fcntl.h>
#include <string_view>
#include <sys/stat.h>
#include <sys/xattr.h>
#include <time.h>
#include <unistd.h>

namespace vn::plat {

extern const bool lineas_con_retorno = false;

namespace {

// One call of the system moves less than 2 GiB.
constexpr size_t MAXIMO_DE_UNA_VEZ = size_t{1} << 30;

constexpr struct {
    int del_sistema;
    vnerror_fichero error;
} ERRORES[] = {
    {ENOSPC, VN_FICH_SIN_ESPACIO},       {EDQUOT, VN_FICH_SIN_ESPACIO},     {EFBIG, VN_FICH_SIN_ESPACIO},
    {EACCES, VN_FICH_SIN_PERMISO},       {EPERM, VN_FICH_SIN_PERMISO},      {EROFS, VN_FICH_SIN_PERMISO},
    {EBADF, VN_FICH_SIN_PERMISO},        {ENOENT, VN_FICH_NO_EXISTE},       {ENOTDIR, VN_FICH_NO_EXISTE},
    {EEXIST, VN_FICH_YA_EXISTE},         {ENOTEMPTY, VN_FICH_YA_EXISTE},    {EINTR, VN_FICH_INTERRUMPIDA},
    {EAGAIN, VN_FICH_COMPARTIDO},        {EBUSY, VN_FICH_COMPARTIDO},       {ETXTBSY, VN_FICH_COMPARTIDO},
    {EISDIR, VN_FICH_ES_DIRECTORIO},     {EOPNOTSUPP, VN_FICH_NO_ADMITIDO}, {ENOSYS, VN_FICH_NO_ADMITIDO},
    {EINVAL, VN_FICH_NO_ADMITIDO},       {EXDEV, VN_FICH_NO_ADMITIDO},      {EMLINK, VN_FICH_NO_ADMITIDO},
    {ENOLCK, VN_FICH_NO_ADMITIDO},       {ESPIPE, VN_FICH_NO_ADMITIDO},     {ELOOP, VN_FICH_NO_ADMITIDO},
    {ENAMETOOLONG, VN_FICH_NO_ADMITIDO}, {EOVERFLOW, VN_FICH_NO_ADMITIDO},  {EIO, VN_FICH_ES},
};

vnerror_fichero ultimo_error() {
    for (const auto &fila : ERRORES)
        if (fila.del_sistema == errno) return fila.error;
    return VN_FICH_OTRO;
}

vnerror_fichero resultado(int r) { return r == 0 ? VN_FICH_BIEN : ultimo_error(); }
int fd(vnid_fichero id) { return static_cast<int>(id); }
std::string bytes(const vnwchar *nombre) { return ruta_del_sistema(nombre); }

// The directory of a path with its last separator, empty for the current one, and the rest.
std::pair<std::string, std::string> parte(const std::string &ruta) {
    const size_t inicio = ruta.rfind('/') + 1;
    return {ruta.substr(0, inicio), ruta.substr(inicio)};
}

// Locks belong to the open file (F_OFD_*): closing another opening of it drops none.
vnerror_fichero zona(int d, int orden, short tipo, int64_t inicio, int64_t tamanyo) {
    struct flock z = {};
    z.l_type = tipo;
    z.l_whence = SEEK_SET;
    z.l_start = inicio;
    z.l_len = tamanyo;
    return resultado(::fcntl(d, orden, &z));
}

// A writer holds one byte, far beyond what files and zones reach: shared among writers, or all of it if it is the only
// one. Readers hold nothing. It is a lock like those of zones, which a network's file systems know too.
constexpr int64_t BYTE_DE_ESCRITORES = int64_t{1} << 62;

vnerror_fichero entra_como_escritor(int d, uint32_t como) {
    const bool unico = (como & VN_ABRE_EXCLUSIVO) != 0;
    const vnerror_fichero e = zona(d, F_OFD_SETLK, unico ? F_WRLCK : F_RDLCK, BYTE_DE_ESCRITORES, 1);
    // Where there are no locks a save is as sure without: its temporary is its own by its making.
    return e == VN_FICH_COMPARTIDO || (unico && (como & VN_ABRE_PROPIO) == 0) ? e : VN_FICH_BIEN;
}

// VN_FICH_BIEN while the name is that of the open file.
vnerror_fichero lleva_a(const std::string &ruta, int d) {
    struct stat s, t;
    if (::fstat(d, &s) != 0 || ::lstat(ruta.c_str(), &t) != 0) return ultimo_error();
    return s.st_dev == t.st_dev && s.st_ino == t.st_ino ? VN_FICH_BIEN : VN_FICH_YA_EXISTE;
}

vnerror_fichero es_su_nombre(vnid_fichero id, const vnwchar *nombre) { return lleva_a(bytes(nombre), fd(id)); }

vnerror_fichero prepara(int d, const std::string &ruta, uint32_t como) {
    struct stat s;
    if (::fstat(d, &s) != 0) return ultimo_error();
    if (S_ISDIR(s.st_mode)) return VN_FICH_ES_DIRECTORIO;
    // Pipes and devices: from here on they wait, as their readers expect; nobody saves into one.
    if (!S_ISREG(s.st_mode)) {
        if ((como & VN_ABRE_PROPIO) != 0) return VN_FICH_NO_ADMITIDO;
        return resultado(::fcntl(d, F_SETFL, ::fcntl(d, F_GETFL) & ~O_NONBLOCK));
    }
    if ((como & VN_ABRE_ESCRITURA) != 0)
        if (const vnerror_fichero e = entra_como_escritor(d, como); e != VN_FICH_BIEN) return e;
    // Between its opening and the lock somebody may have taken it for abandoned, or put another in its place.
    if ((como & VN_ABRE_PROPIO) != 0 && lleva_a(ruta, d) != VN_FICH_BIEN) return VN_FICH_INTERRUMPIDA;
    return (como & VN_ABRE_TRUNCA) != 0 && s.st_size > 0 ? resultado(::ftruncate(d, 0)) : VN_FICH_BIEN;
}

// A writer's shared lock needs a descriptor that reads; a file that may only be written does without.
int abre_descriptor(const std::string &ruta, int modo, bool lee, bool escribe, mode_t permisos) {
    struct stat s;
    if (escribe && !lee && (::stat(ruta.c_str(), &s) != 0 || S_ISREG(s.st_mode)))
        if (const int d = ::open(ruta.c_str(), modo | O_RDWR, permisos); d >= 0 || errno != EACCES) return d;
    return ::open(ruta.c_str(), modo | (!escribe ? O_RDONLY : lee ? O_RDWR : O_WRONLY), permisos);
}

vnerror_fichero abre(const vnwchar *nombre, uint32_t como, vnid_fichero *id) {
    *id = VN_FICHERO_NINGUNO;
    // Not blocking, so that the opening of a pipe does not wait for its other end.
    int modo = O_CLOEXEC | O_NONBLOCK;
    if ((como & VN_ABRE_CREA) != 0) modo |= O_CREAT;
    if ((como & VN_ABRE_NUEVO) != 0) modo |= O_EXCL;
    if ((como & VN_ABRE_ANADE) != 0) modo |= O_APPEND;
    if ((como & VN_ABRE_PROPIO) != 0) modo |= O_NOFOLLOW;
    const std::string ruta = bytes(nombre);
    const int d = aparta(abre_descriptor(ruta, modo, (como & VN_ABRE_LECTURA) != 0, (como & VN_ABRE_ESCRITURA) != 0,
                                         (como & VN_ABRE_PRIVADO) != 0 ? 0600 : 0666));
    if (d < 0) return ultimo_error();
    const vnerror_fichero e = prepara(d, ruta, como);
    if (e != VN_FICH_BIEN) ::close(d);
    else *id = d;
    return e;
}

vnerror_fichero transferido(ssize_t k, size_t *hechos) {
    *hechos = k < 0 ? 0 : static_cast<size_t>(k);
    return k < 0 ? ultimo_error() : VN_FICH_BIEN;
}

vnerror_fichero lee(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos) {
    n = std::min(n, MAXIMO_DE_UNA_VEZ);
    ssize_t k = ::pread(fd(id), destino, n, posicion);
    // A pipe has no positions: it is read as it comes.
    if (k < 0 && errno == ESPIPE) k = ::read(fd(id), destino, n);
    return transferido(k, leidos);
}

vnerror_fichero escribe(vnid_fichero id, int64_t posicion, const void *origen, size_t n, size_t *escritos) {
    n = std::min(n, MAXIMO_DE_UNA_VEZ);
    const sin_senyales guarda;
    ssize_t k = posicion < 0 ? ::write(fd(id), origen, n) : ::pwrite(fd(id), origen, n, posicion);
    // A pipe takes no positions here either.
    if (k < 0 && posicion >= 0 && errno == ESPIPE) k = ::write(fd(id), origen, n);
    return transferido(k, escritos);
}

vnerror_fichero vuelca(vnid_fichero id) { return resultado(::fsync(fd(id))); }

vnerror_fichero trunca(vnid_fichero id, int64_t tamanyo) {
    const sin_senyales guarda;
    return resultado(::ftruncate(fd(id), tamanyo));
}

vnerror_fichero estado_de(int r, const struct stat &s, vnestado_fichero *estado) {
    *estado = {};
    if (r != 0) return ultimo_error();
    estado->es_directorio = logico(S_ISDIR(s.st_mode));
    estado->es_normal = logico(S_ISREG(s.st_mode));
    if (S_ISREG(s.st_mode)) estado->tamanyo = static_cast<uint64_t>(s.st_size);
    return VN_FICH_BIEN;
}

vnerror_fichero estado_abierto(vnid_fichero id, vnestado_fichero *estado) {
    struct stat s = {};
    return estado_de(::fstat(fd(id), &s), s, estado);
}

vnerror_fichero estado(const vnwchar *nombre, vnestado_fichero *e) {
    struct stat s = {};
    const ruta_en r(nombre);
    return estado_de(::fstatat(r.directorio(), r.nombre(), &s, 0), s, e);
}

vnerror_fichero bloquea(vnid_fichero id, int64_t inicio, int64_t tamanyo, uint32_t modo) {
    // A zone that would reach the byte of the writers is refused.
    if (inicio > BYTE_DE_ESCRITORES - tamanyo) return VN_FICH_NO_ADMITIDO;
    return zona(fd(id), (modo & VN_ZONA_ESPERA) != 0 ? F_OFD_SETLKW : F_OFD_SETLK,
                static_cast<short>((modo & VN_ZONA_COMPARTIDA) != 0 ? F_RDLCK : F_WRLCK), inicio, tamanyo);
}

vnerror_fichero desbloquea(vnid_fichero id, int64_t inicio, int64_t tamanyo) {
    return zona(fd(id), F_OFD_SETLK, F_UNLCK, inicio, tamanyo);
}

// The descriptor is gone even when the call was interrupted.
vnerror_fichero cierra(vnid_fichero id) {
    return ::close(fd(id)) == 0 || errno == EINTR ? VN_FICH_BIEN : ultimo_error();
}

void libera_texto(char *p) { std::free(p); }

vnerror_fichero resuelve(const vnwchar *nombre, vnwchar *real, size_t maximo) {
    // As many as the system itself follows; a ring of links ends here.
    constexpr int MAXIMO_ENLACES = 40;
    std::string ruta = bytes(nombre);
    for (int i = 0; i < MAXIMO_ENLACES; ++i) {
        const auto [directorio, fichero] = parte(ruta);
        char enlace[PATH_MAX];
        const ssize_t n = ::readlink(ruta.c_str(), enlace, sizeof enlace);
        // No link any more: the directory is made absolute; the file itself need not be there yet.
        if (n < 0) {
            const dueno<libera_texto> d(::realpath(directorio.empty() ? "." : directorio.c_str(), nullptr));
            if (d == nullptr) return ultimo_error();
            const auto entera = ruta_ancha(d.get() + std::string(d.get()[1] != 0 ? "/" : "") + fichero);
            if (entera.size() >= maximo) return VN_FICH_NO_ADMITIDO;
            *std::copy(entera.begin(), entera.end(), real) = 0;
            return VN_FICH_BIEN;
        }
        const std::string siguiente(enlace, static_cast<size_t>(n));
        ruta = siguiente.starts_with('/') ? siguiente : directorio + siguiente;
    }
    return VN_FICH_NO_ADMITIDO;
}

vnerror_fichero enlaza(const vnwchar *existente, const vnwchar *nuevo) {
    return resultado(::link(bytes(existente).c_str(), bytes(nuevo).c_str()));
}

vnerror_fichero renombra(const vnwchar *existente, const vnwchar *nuevo) {
    return resultado(::rename(bytes(existente).c_str(), bytes(nuevo).c_str()));
}

vnerror_fichero renombra_abierto(vnid_fichero id, const vnwchar *existente, const vnwchar *nuevo) {
    const vnerror_fichero e = es_su_nombre(id, existente);
    return e == VN_FICH_BIEN ? renombra(existente, nuevo) : e;
}

vnerror_fichero borra(const vnwchar *nombre) { return resultado(::unlink(bytes(nombre).c_str())); }

// Removes what a dead program has left. A link or a pipe, which no program that saves makes, goes unopened. So does a
// file that could not be looked at, once its owner has had the time to give it its rights.
vnerror_fichero retira(const vnwchar *nombre) {
    const std::string ruta = bytes(nombre);
    struct stat s;
    if (::lstat(ruta.c_str(), &s) != 0) return ultimo_error();
    if (S_ISDIR(s.st_mode)) return VN_FICH_ES_DIRECTORIO;
    constexpr int MODO = O_CLOEXEC | O_NONBLOCK | O_NOFOLLOW;
    vnerror_fichero e = VN_FICH_BIEN;
    int d = -1;
    if (S_ISREG(s.st_mode)) {
        short tipo = F_WRLCK;
        // A writer holds a shared lock, which an exclusive one meets; a shared one meets that of a sole writer.
        if ((d = aparta(::open(ruta.c_str(), MODO | O_RDWR))) < 0) {
            d = aparta(::open(ruta.c_str(), MODO | O_RDONLY));
            tipo = F_RDLCK;
        }
        const time_t edad = ::time(nullptr) - s.st_ctime;
        if (d < 0 && edad >= 0 && edad < 2) return VN_FICH_COMPARTIDO;
        if (d >= 0 && zona(d, F_OFD_SETLK, tipo, BYTE_DE_ESCRITORES, 1) == VN_FICH_COMPARTIDO) e = VN_FICH_COMPARTIDO;
        if (d >= 0 && e == VN_FICH_BIEN && lleva_a(ruta, d) != VN_FICH_BIEN) e = VN_FICH_INTERRUMPIDA;
    }
    if (e == VN_FICH_BIEN) e = resultado(::unlink(ruta.c_str()));
    if (d >= 0) ::close(d);
    return e;
}

// Access lists and what the user has noted of a file; what the other file system does not take is left.
void copia_atributos(const std::string &de, int a) {
    char nombres[4096], valor[4096];
    const ssize_t n = ::listxattr(de.c_str(), nombres, sizeof nombres);
    for (ssize_t i = 0; i < n; i += static_cast<ssize_t>(std::string_view(nombres + i).size()) + 1) {
        const std::string_view nombre = nombres + i;
        if (!nombre.starts_with("user.") && nombre != "system.posix_acl_access") continue;
        const ssize_t k = ::getxattr(de.c_str(), nombres + i, valor, sizeof valor);
        if (k >= 0) ::fsetxattr(a, nombres + i, valor, static_cast<size_t>(k), 0);
    }
}

// Without the group of the first, the second's has no more rights than anybody.
vnerror_fichero copia_permisos(const vnwchar *origen, vnid_fichero destino) {
    const std::string de = bytes(origen);
    struct stat s, t;
    if (::stat(de.c_str(), &s) != 0 || ::fstat(fd(destino), &t) != 0) return ultimo_error();
    const bool mismos = s.st_uid == t.st_uid && s.st_gid == t.st_gid;
    const bool con_grupo = mismos || ::fchown(fd(destino), s.st_uid, s.st_gid) == 0 || s.st_gid == t.st_gid ||
                           ::fchown(fd(destino), static_cast<uid_t>(-1), s.st_gid) == 0;
    const mode_t modo = s.st_mode & (con_grupo ? 0777 : 0707);
    const mode_t grupo = con_grupo ? 0 : (s.st_mode & 0007) << 3;
    if (::fchmod(fd(destino), modo | grupo) != 0) return errno == EPERM ? VN_FICH_NO_ADMITIDO : ultimo_error();
    if (con_grupo) copia_atributos(de, fd(destino));
    return VN_FICH_BIEN;
}

vnerror_fichero vuelca_directorio(const vnwchar *nombre) {
    const std::string ruta = parte(bytes(nombre)).first;
    const int d = aparta(::open(ruta.empty() ? "." : ruta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC));
    // A directory that may be written and not read cannot be flushed.
    if (d < 0) return errno == EACCES ? VN_FICH_NO_ADMITIDO : ultimo_error();
    const vnerror_fichero e = resultado(::fsync(d));
    ::close(d);
    return e;
}

void espera(uint32_t milisegundos) {
    timespec t{milisegundos / 1000, static_cast<long>(milisegundos % 1000) * 1000000};
    // An interrupted wait goes on with what is left of it.
    while (::nanosleep(&t, &t) != 0 && errno == EINTR) {
    }
}

} // namespace

bool mismo_camino(const std::basic_string<vnwchar> &a, const std::basic_string<vnwchar> &b) { return a == b; }

size_t mide_nombre(std::basic_string_view<vnwchar> nombre) { return ruta_del_sistema(nombre).size(); }

// In a directory of everybody's only a file's owner and the directory's may rename it.
bool se_puede_reemplazar(const vnwchar *nombre) {
    const std::string ruta = bytes(nombre), directorio = parte(ruta).first;
    struct stat s, d;
    // Where the two cannot be looked at, the rename itself tells.
    if (::lstat(ruta.c_str(), &s) != 0 || ::stat(directorio.empty() ? "." : directorio.c_str(), &d) != 0) return true;
    const uid_t yo = ::geteuid();
    return (d.st_mode & S_ISVTX) == 0 || yo == 0 || s.st_uid == yo || d.st_uid == yo;
}

extern const vnoperaciones_fichero operaciones_de_fichero = {
#include "foundation/platform/fichero_filas.inl"
};

} // namespace vn::plat
