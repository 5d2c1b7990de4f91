#include "foundation/platform/maquina.h"
#include "foundation/suelo/utf_int.h"
#include <array>
#include <ctime>
#include <pwd.h>
#include <string_view>
#include <unistd.h>

namespace vn::plat {
namespace {

// Wide text of UTF-8; bytes that are none become the replacement character.
std::basic_string<vnwchar> ancho(std::string_view utf8) {
    std::basic_string<vnwchar> u;
    for (size_t i = 0; i < utf8.size();) {
        uint32_t c = 0;
        vnwchar par[2];
        u.append(par, escribe_utf16(lee_utf8(utf8, i, c) ? c : REEMPLAZO, par));
    }
    return u;
}

} // namespace

std::basic_string<vnwchar> nombre_de_la_maquina() {
    std::array<char, 256> nombre{};
    if (::gethostname(nombre.data(), nombre.size() - 1) != 0) return {};
    const std::string_view n = nombre.data();
    // The machine alone, without the domain behind its name.
    return ancho(n.substr(0, n.find('.')));
}

bool nombre_del_usuario(std::basic_string<vnwchar> &nombre) {
    std::array<char, 16384> sitio{};
    struct passwd p {
    }, *hay = nullptr;
    // The user whose rights the program has, not the variable that a shell sets.
    if (::getpwuid_r(::geteuid(), &p, sitio.data(), sitio.size(), &hay) != 0 || hay == nullptr || *p.pw_name == 0)
        return false;
    nombre = ancho(p.pw_name);
    return true;
}

uint64_t milisegundos_de_la_maquina() {
    struct timespec t {};
    // The coarse clock is the cheapest, and its steps of some milliseconds are fine enough here.
    ::clock_gettime(CLOCK_MONOTONIC_COARSE, &t);
    return static_cast<uint64_t>(t.tv_sec) * 1000 + static_cast<uint64_t>(t.tv_nsec) / 1000000;
}

} // namespace vn::plat
