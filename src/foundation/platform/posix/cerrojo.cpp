#include "foundation/platform/cerrojo.h"
#include "foundation/platform/posix/descriptor.h"
#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstdlib>
#include <fcntl.h>
#include <sys/stat.h>
#include <thread>
#include <unistd.h>

namespace vn::plat {
namespace {

using namespace std::chrono_literals;
using reloj = std::chrono::steady_clock;

// A directory that this user alone may write: nobody else can hold a lock of ours, or lead us elsewhere by a
// link.
bool es_solo_mio(const std::string &ruta) {
    struct stat s {};
    return ::lstat(ruta.c_str(), &s) == 0 && S_ISDIR(s.st_mode) && s.st_uid == ::geteuid() &&
           (s.st_mode & 022) == 0;
}

// The user's run-time directory, which programs started without its variable know too, or a private one.
std::string directorio_de_cerrojos() {
    const char *variable = std::getenv("XDG_RUNTIME_DIR");
    const std::string uid = std::to_string(::geteuid());
    for (const std::string &base : {std::string(variable != nullptr ? variable : ""), "/run/user/" + uid})
        if (!base.empty() && base[0] == '/' && es_solo_mio(base)) {
            const std::string d = base + "/nucleos";
            ::mkdir(d.c_str(), 0700);
            if (es_solo_mio(d)) return d;
        }
    const std::string d = "/tmp/nucleos-" + uid;
    ::mkdir(d.c_str(), 0700);
    return es_solo_mio(d) ? d : std::string();
}

// Belongs to the open file, not to the process: closing another opening of it does not drop it. A child
// process that does not go on to run another program shares it, and keeps it if the parent dies inside.
int bloquea(int fd, short modo) {
    struct flock z {};
    z.l_type = modo;
    z.l_whence = SEEK_SET;
    return ::fcntl(fd, F_OFD_SETLK, &z);
}

// The file's one byte says whether the lock was freed in good order.
constexpr char DENTRO = 'X', LIBRE = '.';
bool anota(int fd, char c) { return ::pwrite(fd, &c, 1, 0) == 1; }

} // namespace

bool cerrojo::abre() {
    const std::string d = directorio_de_cerrojos();
    if (d.empty()) return false;
    const std::string fichero = d + "/" + nombre_ + ".lock";
    id_ = aparta(::open(fichero.c_str(), O_RDWR | O_CREAT | O_CLOEXEC | O_NOFOLLOW, 0600));
    return id_ >= 0;
}

cerrojo::toma cerrojo::entra(uint32_t milisegundos) {
    const auto fin = reloj::now() + std::chrono::milliseconds(milisegundos);
    for (auto pausa = 50us;;) {
        if (id_ < 0 && !abre()) return toma::no;
        const int fd = static_cast<int>(id_);
        if (bloquea(fd, F_WRLCK) == 0) {
            struct stat s {};
            if (::fstat(fd, &s) == 0 && s.st_nlink > 0) {
                char antes = LIBRE;
                const bool abandonado = ::pread(fd, &antes, 1, 0) == 1 && antes == DENTRO;
                anota(fd, DENTRO);
                return abandonado ? toma::abandonado : toma::bien;
            }
            // A cleaner of temporary files took the name away: the others lock a new file.
            ::close(fd);
            id_ = -1;
            if (reloj::now() >= fin) return toma::no;
            continue;
        }
        if (errno != EAGAIN && errno != EACCES && errno != EINTR) return toma::no;
        const auto ahora = reloj::now();
        if (ahora >= fin) return toma::no;
        std::this_thread::sleep_for(std::min<reloj::duration>(pausa, fin - ahora));
        pausa = std::min<std::chrono::microseconds>(pausa * 2, 5ms);
    }
}

void cerrojo::sal() {
    anota(static_cast<int>(id_), LIBRE);
    bloquea(static_cast<int>(id_), F_UNLCK);
}

cerrojo::~cerrojo() {
    if (id_ >= 0) ::close(static_cast<int>(id_));
}

} // namespace vn::plat
