// Child processes of a test, the same on every platform: the test program starts itself again and runs,
// instead of tests, one function written beside them.
//
//   HIJO(escribe) { return args.size() == 1 ? 0 : 1; }       // int (const std::vector<std::string> &args)
//   vn::proceso p("escribe", {"fichero"});
//   EXPECT_EQ(p.espera(10000), 0);
#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace vn {

class proceso {
  public:
    // Starts the child function of this name with these arguments (UTF-8).
    proceso(const std::string &hijo, const std::vector<std::string> &args);
    // Kills what still runs, and waits for it.
    ~proceso();
    proceso(proceso &&otro) noexcept;
    proceso(const proceso &) = delete;
    proceso &operator=(const proceso &) = delete;

    // Its result (exit status; MUERTO when it was killed), or nothing when it still runs after so long.
    std::optional<int> espera(uint32_t milisegundos);
    // Ends it at once, as a crash would: nothing of it runs any more.
    void mata();

    static constexpr int MUERTO = 137;

  private:
    intptr_t id_;
    std::optional<int> resultado_;
};

// Starts n children; `args` gives the arguments of each by its number.
template <class F> std::vector<proceso> procesos(int n, const std::string &hijo, F args) {
    std::vector<proceso> todos;
    for (int i = 0; i < n; ++i) todos.emplace_back(hijo, args(i));
    return todos;
}

// Sets a variable of the environment, for this process and the children to come; an empty value takes it away.
void pon_variable(const char *nombre, const std::string &valor);
// Makes the calling process one of a user who has no name; false where that cannot be.
bool se_queda_sin_usuario();
// Ends the calling process as mata() would.
[[noreturn]] void muere();
// Splits the process: what `hijo` answers in the child, which then ends in good order; nothing where processes do not
// split. The child must not fail a check: the test would go on in both.
std::optional<int> bifurca(int (*hijo)(void *datos), void *datos);
// Makes it another user's; false where only the administrator could.
bool hazlo_de_otro(const std::string &ruta);
// The file that the lock between programs of a simple name is; empty where it is none.
std::string fichero_de_cerrojo(const std::string &nombre);

using funcion_hijo = int (*)(const std::vector<std::string> &args);
struct registra_hijo {
    registra_hijo(const char *nombre, funcion_hijo funcion);
};
// For main(): the result of the child function that the command line names, if it names one.
std::optional<int> corre_hijo(int argc, char **argv);

namespace plataforma {
// Starts this program with these arguments, UTF-8.
intptr_t lanza(const std::vector<std::string> &args);
std::optional<int> espera(intptr_t id, uint32_t milisegundos);
void mata(intptr_t id);
void suelta(intptr_t id);
std::vector<std::string> argumentos(int argc, char **argv);
} // namespace plataforma

} // namespace vn

#define HIJO(nombre)                                                                                                   \
    static int hijo_##nombre(const std::vector<std::string> &args);                                                    \
    static const ::vn::registra_hijo registra_hijo_##nombre(#nombre, hijo_##nombre);                                   \
    static int hijo_##nombre([[maybe_unused]] const std::vector<std::string> &args)
