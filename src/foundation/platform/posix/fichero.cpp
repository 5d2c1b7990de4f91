#include "foundation/platform/fichero.h"
#include "foundation/platform/posix/ruta.h"
#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
#include <time.h>
#include <unistd.h>

namespace vn::plat {

extern const bool lineas_con_retorno = false;

namespace {

constexpr size_t MAXIMO_DE_UNA_VEZ = size_t{1} << 30;

constexpr struct {
    int del_sistema;
    vnerror_fichero error;
} ERRORES[] = {
    {ENOSPC, VN_FICH_SIN_ESPACIO},
    {EDQUOT, VN_FICH_SIN_ESPACIO},
    {EFBIG, VN_FICH_SIN_ESPACIO},
    {EACCES, VN_FICH_SIN_PERMISO},
    {EPERM, VN_FICH_SIN_PERMISO},
    {EROFS, VN_FICH_SIN_PERMISO},
    {EBADF, VN_FICH_SIN_PERMISO},
    {ENOENT, VN_FICH_NO_EXISTE},
    {ENOTDIR, VN_FICH_NO_EXISTE},
    {EEXIST, VN_FICH_YA_EXISTE},
    {ENOTEMPTY, VN_FICH_YA_EXISTE},
    {EINTR, VN_FICH_INTERRUMPIDA},
    {EAGAIN, VN_FICH_COMPARTIDO},
    {EBUSY, VN_FICH_COMPARTIDO},
    {ETXTBSY, VN_FICH_COMPARTIDO},
    {EISDIR, VN_FICH_ES_DIRECTORIO},
    {EOPNOTSUPP, VN_FICH_NO_ADMITIDO},
    {ENOSYS, VN_FICH_NO_ADMITIDO},
    {EINVAL, VN_FICH_NO_ADMITIDO},
    {EXDEV, VN_FICH_NO_ADMITIDO},
    {EMLINK, VN_FICH_NO_ADMITIDO},
    {ENOLCK, VN_FICH_NO_ADMITIDO},
    {ESPIPE, VN_FICH_NO_ADMITIDO},
    {EOVERFLOW, VN_FICH_NO_ADMITIDO},
    {EIO, VN_FICH_ES},
};

vnerror_fichero ultimo_error() {
    for (const auto &fila : ERRORES)
        if (fila.del_sistema == errno) return fila.error;
    return VN_FICH_OTRO;
}

vnerror_fichero resultado(int r) { return r == 0 ? VN_FICH_BIEN : ultimo_error(); }
int fd(vnid_fichero id) { return static_cast<int>(id); }
std::string bytes(const vnwchar *nombre) { return ruta_del_sistema(nombre); }

// A writer holds the file shared among writers, the only writer exclusively. Readers hold nothing.
vnerror_fichero entra_como_escritor(int d, uint32_t como) {
    const bool unico = (como & VN_ABRE_EXCLUSIVO) != 0;
    if (::flock(d, (unico ? LOCK_EX : LOCK_SH) | LOCK_NB) == 0) return VN_FICH_BIEN;
    if (errno == EWOULDBLOCK) return VN_FICH_COMPARTIDO;
    return unico ? ultimo_error() : VN_FICH_BIEN;
}

vnerror_fichero prepara(int d, uint32_t como) {
    struct stat s;
    if (::fstat(d, &s) != 0) return ultimo_error();
    if (S_ISDIR(s.st_mode)) return VN_FICH_ES_DIRECTORIO;
    if (!S_ISREG(s.st_mode)) return resultado(::fcntl(d, F_SETFL, ::fcntl(d, F_GETFL) & ~O_NONBLOCK));
    if ((como & VN_ABRE_ESCRITURA) != 0)
        if (const vnerror_fichero e = entra_como_escritor(d, como); e != VN_FICH_BIEN) return e;
    return (como & VN_ABRE_TRUNCA) != 0 && s.st_size > 0 ? resultado(::ftruncate(d, 0)) : VN_FICH_BIEN;
}

vnerror_fichero abre(const vnwchar *nombre, uint32_t como, vnid_fichero *id) {
    *id = VN_FICHERO_NINGUNO;
    const bool lee = (como & VN_ABRE_LECTURA) != 0, escribe = (como & VN_ABRE_ESCRITURA) != 0;
    // Not blocking, so that the opening of a pipe does not wait for its other end.
    int modo = O_CLOEXEC | O_NONBLOCK | (escribe ? (lee ? O_RDWR : O_WRONLY) : O_RDONLY);
    if ((como & VN_ABRE_CREA) != 0) modo |= O_CREAT;
    if ((como & VN_ABRE_NUEVO) != 0) modo |= O_EXCL;
    if ((como & VN_ABRE_ANADE) != 0) modo |= O_APPEND;
    const int d = ::open(bytes(nombre).c_str(), modo, 0666);
    if (d < 0) return ultimo_error();
    const vnerror_fichero e = prepara(d, como);
    if (e != VN_FICH_BIEN)
        ::close(d);
    else
        *id = d;
    return e;
}

vnerror_fichero transferido(ssize_t k, size_t *hechos) {
    *hechos = k < 0 ? 0 : static_cast<size_t>(k);
    return k < 0 ? ultimo_error() : VN_FICH_BIEN;
}

vnerror_fichero lee(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos) {
    n = std::min(n, MAXIMO_DE_UNA_VEZ);
    ssize_t k = ::pread(fd(id), destino, n, posicion);
    if (k < 0 && errno == ESPIPE) k = ::read(fd(id), destino, n);
    return transferido(k, leidos);
}

vnerror_fichero escribe(vnid_fichero id, int64_t posicion, const void *origen, size_t n, size_t *escritos) {
    n = std::min(n, MAXIMO_DE_UNA_VEZ);
    ssize_t k = posicion < 0 ? ::write(fd(id), origen, n) : ::pwrite(fd(id), origen, n, posicion);
    if (k < 0 && posicion >= 0 && errno == ESPIPE) k = ::write(fd(id), origen, n);
    return transferido(k, escritos);
}

vnerror_fichero vuelca(vnid_fichero id) { return resultado(::fsync(fd(id))); }
vnerror_fichero trunca(vnid_fichero id, int64_t tamanyo) { return resultado(::ftruncate(fd(id), tamanyo)); }

vnerror_fichero estado_de(int r, const struct stat &s, vnestado_fichero *estado) {
    *estado = {};
    if (r != 0) return ultimo_error();
    estado->es_directorio = S_ISDIR(s.st_mode) ? CIERTO : FALSO;
    estado->es_normal = S_ISREG(s.st_mode) ? CIERTO : FALSO;
    if (S_ISREG(s.st_mode)) estado->tamanyo = static_cast<uint64_t>(s.st_size);
    return VN_FICH_BIEN;
}

vnerror_fichero estado_abierto(vnid_fichero id, vnestado_fichero *estado) {
    struct stat s = {};
    return estado_de(::fstat(fd(id), &s), s, estado);
}

vnerror_fichero estado(const vnwchar *nombre, vnestado_fichero *e) {
    struct stat s = {};
    return estado_de(::stat(bytes(nombre).c_str(), &s), s, e);
}

vnerror_fichero zona(vnid_fichero id, int orden, short tipo, int64_t inicio, int64_t tamanyo) {
    struct flock z = {};
    z.l_type = tipo;
    z.l_whence = SEEK_SET;
    z.l_start = inicio;
    z.l_len = tamanyo;
    return resultado(::fcntl(fd(id), orden, &z));
}

vnerror_fichero bloquea(vnid_fichero id, int64_t inicio, int64_t tamanyo, uint32_t modo) {
    return zona(id, (modo & VN_ZONA_ESPERA) != 0 ? F_OFD_SETLKW : F_OFD_SETLK,
                static_cast<short>((modo & VN_ZONA_COMPARTIDA) != 0 ? F_RDLCK : F_WRLCK), inicio, tamanyo);
}

vnerror_fichero desbloquea(vnid_fichero id, int64_t inicio, int64_t tamanyo) {
    return zona(id, F_OFD_SETLK, F_UNLCK, inicio, tamanyo);
}

// The descriptor is gone even when the call was interrupted.
vnerror_fichero cierra(vnid_fichero id) {
    return ::close(fd(id)) == 0 || errno == EINTR ? VN_FICH_BIEN : ultimo_error();
}

vnerror_fichero enlaza(const vnwchar *existente, const vnwchar *nuevo) {
    return resultado(::link(bytes(existente).c_str(), bytes(nuevo).c_str()));
}

vnerror_fichero renombra(const vnwchar *existente, const vnwchar *nuevo) {
    return resultado(::rename(bytes(existente).c_str(), bytes(nuevo).c_str()));
}

vnerror_fichero borra(const vnwchar *nombre) { return resultado(::unlink(bytes(nombre).c_str())); }

vnerror_fichero copia_permisos(const vnwchar *origen, const vnwchar *destino) {
    struct stat s = {};
    if (::stat(bytes(origen).c_str(), &s) != 0) return ultimo_error();
    return resultado(::chmod(bytes(destino).c_str(), s.st_mode & 07777));
}

vnerror_fichero vuelca_directorio(const vnwchar *nombre) {
    std::string ruta = bytes(nombre);
    const size_t barra = ruta.rfind('/');
    ruta = barra == std::string::npos ? "." : ruta.substr(0, barra + 1);
    const int d = ::open(ruta.c_str(), O_RDONLY | O_DIRECTORY | O_CLOEXEC);
    if (d < 0) return ultimo_error();
    const vnerror_fichero e = resultado(::fsync(d));
    ::close(d);
    return e;
}

void espera(uint32_t milisegundos) {
    timespec t{milisegundos / 1000, static_cast<long>(milisegundos % 1000) * 1000000};
    while (::nanosleep(&t, &t) != 0 && errno == EINTR) {
    }
}

} // namespace

extern const vnoperaciones_fichero operaciones_de_fichero = {
#include "foundation/platform/fichero_filas.inl"
};

} // namespace vn::plat
