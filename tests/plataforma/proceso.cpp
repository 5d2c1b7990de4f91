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

proceso::proceso(const std::string &hijo, const std::vector<std::string> &args) : id_(0) {
    std::vector<std::string> todos{MARCA, hijo};
    todos.insert(todos.end(), args.begin(), args.end());
    if (hijos().count(hijo) > 0) id_ = plataforma::lanza(todos);
    if (id_ == 0) throw std::runtime_error("child not started: " + hijo);
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
