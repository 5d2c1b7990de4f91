#include "plataforma/proceso.h"
#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdlib>
#include <spawn.h>
#include <sys/wait.h>
#include <thread>
#include <unistd.h>

extern char **environ;

namespace vn {

void pon_variable(const char *nombre, const std::string &valor) {
    if (valor.empty()) ::unsetenv(nombre);
    else ::setenv(nombre, valor.c_str(), 1);
}

bool se_queda_sin_usuario() { return ::setuid(54321) == 0; }

void muere() {
    for (;;) ::kill(::getpid(), SIGKILL);
}

std::optional<int> bifurca(int (*hijo)(void *datos), void *datos) {
    const pid_t pid = ::fork();
    if (pid == 0) std::exit(hijo(datos));
    return pid > 0 ? plataforma::espera(pid, 30000) : std::nullopt;
}

bool hazlo_de_otro(const std::string &ruta) { return ::chown(ruta.c_str(), 65534, 65534) == 0; }

std::string fichero_de_cerrojo(const std::string &nombre) { return "/run/lock/nucleos-" + nombre + ".lock"; }

namespace plataforma {

intptr_t lanza(const std::vector<std::string> &args) {
    std::vector<char *> argv{const_cast<char *>("prueba")};
    for (const auto &a : args) argv.push_back(const_cast<char *>(a.c_str()));
    argv.push_back(nullptr);
    pid_t pid = 0;
    return ::posix_spawn(&pid, "/proc/self/exe", nullptr, nullptr, argv.data(), environ) == 0 ? pid : 0;
}

std::optional<int> espera(intptr_t id, uint32_t milisegundos) {
    const auto fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(milisegundos);
    for (;;) {
        int estado = 0;
        const pid_t p = ::waitpid(static_cast<pid_t>(id), &estado, WNOHANG);
        if (p == static_cast<pid_t>(id)) return WIFEXITED(estado) ? WEXITSTATUS(estado) : 128 + WTERMSIG(estado);
        if (p < 0 && errno != EINTR) return proceso::MUERTO;
        if (std::chrono::steady_clock::now() >= fin) return std::nullopt;
        std::this_thread::sleep_for(std::chrono::milliseconds(1));
    }
}

void mata(intptr_t id) { ::kill(static_cast<pid_t>(id), SIGKILL); }
void suelta(intptr_t) {}
std::vector<std::string> argumentos(int argc, char **argv) { return {argv, argv + argc}; }

} // namespace plataforma
} // namespace vn
