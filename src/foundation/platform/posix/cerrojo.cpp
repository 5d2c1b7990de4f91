#include "foundation/platform/cerrojo.h"
#include "foundation/platform/directorio.h"
#include "foundation/platform/posix/descriptor.h"
#include "foundation/platform/posix/ruta.h"
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <fcntl.h>
#include <pthread.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace vn::plat {
namespace {

using namespace std::chrono_literals;
using reloj = std::chrono::steady_clock;

// ---------------------------------------------------------------- the lock's file

// A directory of the system's in which everybody may make files and take away only their own.
bool es_comun(const char *ruta) {
    struct stat s {};
    constexpr mode_t DE_TODOS = S_ISVTX | S_IWOTH;
    return ::lstat(ruta, &s) == 0 && S_ISDIR(s.st_mode) && s.st_uid == 0 && (s.st_mode & DE_TODOS) == DE_TODOS;
}

// The same for every program of the machine, whatever its user and its environment; empty if there is none.
std::string directorio_comun() {
    for (const char *d : {"/run/lock", "/tmp"})
        if (es_comun(d)) return d;
    return {};
}

// A directory that this user alone may write, beside the settings that the locks guard; empty if it cannot be had.
std::string directorio_propio() {
    const auto base = base_de_configuracion();
    if (!base || !crea_directorios(*base)) return {};
    const std::string d = ruta_del_sistema(*base) + "/nucleos-lock";
    // Made if it is missing; that it is this user's alone is looked at in either case.
    ::mkdir(d.c_str(), 0700);
    struct stat s {};
    const bool es_solo_mio =
        ::lstat(d.c_str(), &s) == 0 && S_ISDIR(s.st_mode) && s.st_uid == ::geteuid() && (s.st_mode & 022) == 0;
    return es_solo_mio ? d : std::string();
}

// Opens the file, or makes it for all users. Not with O_CREAT alone: systems refuse that for a file of another user's
// in a directory of everybody's.
int abre_o_crea(const char *fichero) {
    constexpr int COMO = O_RDWR | O_CLOEXEC | O_NOFOLLOW | O_NONBLOCK;
    int fd = ::open(fichero, COMO);
    if (fd < 0 && errno == ENOENT) fd = ::open(fichero, COMO | O_CREAT | O_EXCL, 0666);
    return aparta(fd);
}

// A file of ours, and not what somebody put in its place to have it written. Its rights are those of all users,
// whatever the mask of the one who made it.
bool es_de_cerrojo(int fd) {
    struct stat s {};
    if (::fstat(fd, &s) != 0 || !S_ISREG(s.st_mode) || s.st_nlink > 1 || s.st_size > 1) return false;
    if (s.st_uid == ::geteuid() && (s.st_mode & 0777) != 0666) ::fchmod(fd, 0666);
    return true;
}

int abre_en(const std::string &directorio, const std::string &nombre) {
    if (directorio.empty()) return -1;
    const std::string fichero = directorio + "/nucleos-" + nombre + ".lock";
    // Another program may be making it, and may not have given it its rights yet.
    for (int intento = 0; intento < 5; ++intento) {
        const int fd = abre_o_crea(fichero.c_str());
        if (fd >= 0) {
            if (es_de_cerrojo(fd)) return fd;
            ::close(fd);
            return -1;
        }
        if (errno != EEXIST && errno != EACCES) return -1;
        std::this_thread::sleep_for(5ms);
    }
    return -1;
}

// ---------------------------------------------------------------- its bytes

// The first byte is the lock, and its content says whether it was freed in good order. The next ones are the places of
// those that wait: each is held until the one before it is had, so that they enter in the order in which they came.
constexpr char DENTRO = 'X', LIBRE = '.';
constexpr int SITIOS = 8;

bool anota(int fd, char c) { return ::pwrite(fd, &c, 1, 0) == 1; }

// The lock of a byte belongs to the open file, not to the process: closing another opening does not drop it.
bool bloquea(int fd, int orden, short modo, int desde, int cuantos, struct flock *como) {
    struct flock z {};
    z.l_type = modo;
    z.l_whence = SEEK_SET;
    z.l_start = desde;
    z.l_len = cuantos;
    const bool bien = ::fcntl(fd, orden, &z) == 0;
    if (como != nullptr) *como = z;
    return bien;
}
bool ocupa(int fd, int sitio) { return bloquea(fd, F_OFD_SETLK, F_WRLCK, sitio, 1, nullptr); }
void deja(int fd, int sitio) { bloquea(fd, F_OFD_SETLK, F_UNLCK, sitio, 1, nullptr); }
bool espera_alguien(int fd) {
    struct flock z {};
    return !bloquea(fd, F_OFD_GETLK, F_WRLCK, 1, SITIOS, &z) || z.l_type != F_UNLCK;
}

// Takes the lock, in turn; false when the time passes or the system refuses.
bool espera_turno(int fd, reloj::time_point fin) {
    // Nobody waits and the lock is free: no place in the queue is needed.
    if (!espera_alguien(fd) && ocupa(fd, 0)) return true;
    int sitio = SITIOS + 1; // none yet
    for (reloj::duration pausa = 50us;;) {
        // One place further on: the place behind is given up only now, so that nobody gets past.
        if (ocupa(fd, sitio - 1)) {
            if (sitio <= SITIOS) deja(fd, sitio);
            if (--sitio == 0) return true;
            pausa = 50us;
            continue;
        }
        const auto ahora = reloj::now();
        if ((errno != EAGAIN && errno != EACCES && errno != EINTR) || ahora >= fin) {
            if (sitio <= SITIOS) deja(fd, sitio);
            return false;
        }
        std::this_thread::sleep_for(std::min<reloj::duration>(pausa, fin - ahora));
        // A waiter near the front looks more often than one far behind.
        pausa = std::min<reloj::duration>(pausa * 2, sitio * 1ms);
    }
}

} // namespace

bool cerrojo::abre() {
    // The lock of the whole machine if it can be had, else one among this user's programs.
    id_ = abre_en(directorio_comun(), nombre_);
    es_de_un_usuario_ = id_ < 0;
    if (id_ < 0) id_ = abre_en(directorio_propio(), nombre_);
    return id_ >= 0;
}

cerrojo::toma cerrojo::entra(uint32_t milisegundos) {
    const auto fin = reloj::now() + std::chrono::milliseconds(milisegundos);
    for (;;) {
        if (id_ < 0 && !abre()) return toma::no;
        const int fd = static_cast<int>(id_);
        if (!espera_turno(fd, fin)) return toma::no;
        struct stat s {};
        if (::fstat(fd, &s) == 0 && s.st_nlink > 0) {
            // A mark that was left there tells of a program that ended inside.
            char antes = LIBRE;
            const bool abandonado = ::pread(fd, &antes, 1, 0) == 1 && antes == DENTRO;
            anota(fd, DENTRO);
            return abandonado ? toma::abandonado : toma::bien;
        }
        // A cleaner of temporary files took the name away: the others lock a new file.
        olvida();
        if (reloj::now() >= fin) return toma::no;
    }
}

void cerrojo::sal() {
    anota(static_cast<int>(id_), LIBRE);
    deja(static_cast<int>(id_), 0);
}

void cerrojo::olvida() {
    if (id_ >= 0) ::close(static_cast<int>(id_));
    id_ = -1;
}

void al_bifurcarse(void (*antes)(), void (*en_el_padre)(), void (*en_el_hijo)()) {
    ::pthread_atfork(antes, en_el_padre, en_el_hijo);
}

} // namespace vn::plat
