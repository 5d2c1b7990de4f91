#include "plataforma/proceso.h"
#include <map>
#include <stdexcept>
#include <utility>

namespace vn {
namespace {

constexpr const char *MARCA = "--hijo";

std::map<std::string, funcion_hijo> &hijos() {
    static std::map<std::string, funcion_hijo> m;
    return m;
}

std::vector<std::string> con_marca(const std::string &hijo, const std::vector<std::string> &args) {
    if (hijos().count(hijo) == 0) throw std::logic_error("no child function " + hijo);
    std::vector<std::string> todos{MARCA, hijo};
    todos.insert(todos.end(), args.begin(), args.end());
    return todos;
}

} // namespace

registra_hijo::registra_hijo(const char *nombre, funcion_hijo funcion) { hijos()[nombre] = funcion; }

std::optional<int> corre_hijo(int argc, char **argv) {
    if (argc < 3 || std::string(argv[1]) != MARCA) return std::nullopt;
    auto args = plataforma::argumentos(argc, argv);
    const auto i = hijos().find(args.at(2));
    if (i == hijos().end()) return 2;
    args.erase(args.begin(), args.begin() + 3);
    return i->second(args);
}

proceso::proceso(const std::string &hijo, const std::vector<std::string> &args)
    : id_(plataforma::lanza(con_marca(hijo, args))) {
    if (id_ == 0) throw std::runtime_error("no child process could be started");
}

proceso::proceso(proceso &&otro) noexcept
    : id_(std::exchange(otro.id_, 0)), resultado_(std::exchange(otro.resultado_, std::nullopt)) {}

proceso::~proceso() {
    if (id_ == 0) return;
    mata();
    plataforma::suelta(id_);
}

std::optional<int> proceso::espera(uint32_t milisegundos) {
    if (!resultado_) resultado_ = plataforma::espera(id_, milisegundos);
    return resultado_;
}

void proceso::mata() {
    if (resultado_) return;
    plataforma::mata(id_);
    espera(60000);
}

} // namespace vn
