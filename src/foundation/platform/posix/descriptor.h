// What every descriptor of the library goes through, and every write.
#pragma once

#include <cerrno>
#include <csignal>
#include <fcntl.h>
#include <unistd.h>

namespace vn::plat {

// A descriptor that has just been opened, or -1, never one of the standard three: where those are closed, what the
// program prints must not go into a file.
inline int aparta(int d) {
    if (d < 0 || d > STDERR_FILENO) return d;
    const int otro = ::fcntl(d, F_DUPFD_CLOEXEC, STDERR_FILENO + 1);
    const int error = errno;
    ::close(d);
    errno = error;
    return otro;
}

// A write while it lives beyond a limit of size, or to a pipe that nobody reads, fails and does not end the process:
// the signal stays with the thread, which takes it away.
class sin_senyales {
  public:
    sin_senyales() {
        sigset_t mias;
        ::sigemptyset(&mias);
        ::sigaddset(&mias, SIGXFSZ);
        ::sigaddset(&mias, SIGPIPE);
        ::pthread_sigmask(SIG_BLOCK, &mias, &antes_);
        // What the host blocks itself may have been waiting for it.
        ::sigemptyset(&pendientes_);
        if (::sigismember(&antes_, SIGXFSZ) == 1 || ::sigismember(&antes_, SIGPIPE) == 1) ::sigpending(&pendientes_);
    }
    ~sin_senyales() {
        const int error = errno;
        if (error == EFBIG) toma(SIGXFSZ);
        if (error == EPIPE) toma(SIGPIPE);
        ::pthread_sigmask(SIG_SETMASK, &antes_, nullptr);
        errno = error;
    }
    sin_senyales(const sin_senyales &) = delete;
    sin_senyales &operator=(const sin_senyales &) = delete;

  private:
    void toma(int cual) const {
        if (::sigismember(&pendientes_, cual) == 1) return;
        sigset_t una;
        ::sigemptyset(&una);
        ::sigaddset(&una, cual);
        constexpr timespec YA{};
        while (::sigtimedwait(&una, nullptr, &YA) < 0 && errno == EINTR) {
        }
    }

    sigset_t antes_, pendientes_;
};

} // namespace vn::plat
