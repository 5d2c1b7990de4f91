#include "escritor_dxf.h"
#include <charconv>
#include <cmath>
#include <utility>

namespace obra {
namespace {

template <class N, class... B> void anade(std::string &s, N n, B... base) {
    char cifras[40];
    s.append(cifras, std::to_chars(cifras, std::end(cifras), n, base...).ptr);
}

constexpr std::string_view NO_EN_NOMBRE = "<>/\\\":;?*|,=`";

void escapa(std::string &s, uint32_t unidad) {
    constexpr char CIFRAS[] = "0123456789ABCDEF";
    s += "\\U+";
    for (int bits = 12; bits >= 0; bits -= 4) s += CIFRAS[unidad >> bits & 15];
}

} // namespace

void escritor_dxf::pon(int codigo, std::string_view valor) {
    anade(texto_escrito, codigo);
    texto_escrito += '\n';
    texto_escrito += valor;
    texto_escrito += '\n';
}
void escritor_dxf::pon(int codigo, int valor) {
    char cifras[16];
    pon(codigo, std::string_view(cifras, std::to_chars(cifras, std::end(cifras), valor).ptr));
}
void escritor_dxf::pon(int codigo, double valor) {
    if (!std::isfinite(valor)) no_finitos_ = true;
    char cifras[40];
    pon(codigo, std::string_view(cifras, std::to_chars(cifras, std::end(cifras), valor).ptr));
}
void escritor_dxf::pon(int codigo, Punto2D p) {
    pon(codigo, p.x);
    pon(codigo + 10, p.y);
}
void escritor_dxf::pon(int codigo, Punto3D p) {
    pon(codigo, Punto2D{p.x, p.y});
    pon(codigo + 20, p.z);
}
void escritor_dxf::pon_asa(int codigo, uint32_t asa) {
    char cifras[16];
    const char *const fin = std::to_chars(cifras, std::end(cifras), asa, 16).ptr;
    for (char *c = cifras; c != fin; ++c)
        if (*c >= 'a') *c = static_cast<char>(*c - 'a' + 'A');
    pon(codigo, std::string_view(cifras, fin));
}

bool escritor_dxf::hubo_no_finitos() { return std::exchange(no_finitos_, false); }

std::string texto_de_dxf(const texto &t) {
    std::string s;
    for (size_t i = 0; i < t.size(); ++i) {
        const auto c = static_cast<uint32_t>(t[i]);
        // A code of a character or of an underline, where the text means the signs themselves.
        const bool doble = c == '%' && i > 0 && t[i - 1] == '%';
        if (c < ' ') (s += '^') += static_cast<char>(c + '@');
        else if (c == '^') s += "^ ";
        else if (c > '~' || c == '\\' || doble) escapa(s, c);
        else s += static_cast<char>(c);
    }
    return s;
}

std::string nombre_de_dxf(const texto &t) {
    texto valido = t;
    for (vnwchar &c : valido)
        if (c < VNU(' ') || (c <= VNU('~') && NO_EN_NOMBRE.find(static_cast<char>(c)) != NO_EN_NOMBRE.npos))
            c = VNU('_');
    return texto_de_dxf(valido);
}

} // namespace obra
