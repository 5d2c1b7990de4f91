#include "dispositivos.h"
#include "posesion.h"
#include <charconv>
#include <nucleos/drawing/vornplan_apuntador.h>

namespace obra {
namespace {

const clase_de_lienzo CLASES[] = {
    {"svg", abre_svg},       {"pdf", abre_pdf},    {"png", abre_png},
    {"dxf", abre_dxf, true}, {"txt", abre_apunte}, // what the drawing is made of, a line for each call of a device
};

// The library's own recorder.
class apunte : public lienzo {
  public:
    apunte(const hoja &h, vnfichero *f) : escribe_(f), salida_(vplan_abre_apuntador(TIPO_DE_IMAGEN, nullptr, FALSO)) {
        vplan_set_tipo_fondo(salida_.get(), h.tipo_fondo);
    }
    salida_t *salida() override { return salida_.get(); }
    void vuelca() override {
        const dueno_ansi t(vplan_toma_lo_apuntado(salida_.get()));
        if (t) escribe_ << t.get();
    }
    bool acaba() override {
        vuelca();
        escribe_.vuelca();
        return true;
    }

  private:
    static constexpr uint32_t TIPO_DE_IMAGEN = 4;
    escritor escribe_;
    dueno_salida salida_;
};

// How many bytes of valid UTF-8 that XML takes begin there; 0: none do.
size_t letra_de_xml(std::string_view s) {
    const auto byte = [&](size_t i) { return i < s.size() ? static_cast<unsigned char>(s[i]) : 0u; };
    const unsigned b = byte(0);
    if (b < 0x80) return b >= ' ' || b == '\t' || b == '\n' || b == '\r';
    const size_t n = b >= 0xC2 && b < 0xE0 ? 2 : b >= 0xE0 && b < 0xF0 ? 3 : b >= 0xF0 && b < 0xF5 ? 4 : 0;
    uint32_t letra = n == 2 ? b & 0x1F : n == 3 ? b & 0xF : b & 7;
    for (size_t i = 1; i < n; ++i) {
        if ((byte(i) & 0xC0) != 0x80) return 0;
        letra = letra << 6 | (byte(i) & 0x3F);
    }
    const bool corta = (n == 3 && letra < 0x800) || (n == 4 && (letra < 0x10000 || letra > 0x10FFFF));
    return corta || (letra >= 0xD800 && letra < 0xE000) || letra == 0xFFFE || letra == 0xFFFF ? 0 : n;
}

} // namespace

std::span<const clase_de_lienzo> clases_de_lienzo() { return CLASES; }

dueno_lienzo abre_apunte(const hoja &h, vnfichero *f) { return std::make_unique<apunte>(h, f); }

escritor &escritor::operator<<(double x) {
    constexpr int DECIMALES = 3;
    char b[64];
    auto r = std::to_chars(b, b + sizeof b, x, std::chars_format::fixed, DECIMALES);
    if (r.ec != std::errc()) { // a number that long
        r = std::to_chars(b, b + sizeof b, x, std::chars_format::scientific, DECIMALES);
        return *this << std::string_view(b, r.ptr);
    }
    while (r.ptr[-1] == '0') --r.ptr;
    if (r.ptr[-1] == '.') --r.ptr;
    std::string_view s(b, r.ptr);
    if (s == "-0" || s.empty()) s = "0";
    return *this << s;
}

void escritor::vuelca() {
    if (!junto_.empty()) f_lc_fwrite(junto_.data(), 1, junto_.size(), f_, VN_AQUI);
    junto_.clear();
}

std::string xml_de(const std::string &utf8) {
    std::string s;
    for (std::string_view resto = utf8; !resto.empty();) {
        const size_t n = letra_de_xml(resto);
        switch (n == 0 ? '?' : resto.front()) {
        case '&': s += "&amp;"; break;
        case '<': s += "&lt;"; break;
        case '>': s += "&gt;"; break;
        case '"': s += "&quot;"; break;
        case '\t': s += "&#9;"; break;
        case '\n': s += "&#10;"; break;
        case '\r': s += "&#13;"; break;
        default: s += n == 0 ? std::string_view("?") : resto.substr(0, n);
        }
        resto.remove_prefix(std::max<size_t>(n, 1));
    }
    return s;
}

} // namespace obra
