#include "grupos_dxf.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>

namespace obra {
namespace {

constexpr const char *BLANCOS = " \t";
constexpr size_t MAXIMO_CODIGO = 1024; // what is longer is no code, and perhaps has no end

std::string_view sin_blancos(std::string_view s) {
    const size_t desde = s.find_first_not_of(BLANCOS);
    return desde == std::string_view::npos ? std::string_view()
                                           : s.substr(desde, s.find_last_not_of(BLANCOS) + 1 - desde);
}

} // namespace

bool grupos_dxf::llena() {
    constexpr size_t TROZO = 1 << 16;
    bloque_.resize(TROZO);
    bloque_.resize(f_lc_fread_sin_error(bloque_.data(), 1, TROZO, f_));
    bytes_ += bloque_.size();
    aqui_ = 0;
    return !bloque_.empty();
}

// Into the value, without its end, which is LF, CR LF or CR. One longer than `maximo` is not read whole.
bool grupos_dxf::otra_linea(size_t maximo) {
    valor_.clear();
    if (aqui_ == bloque_.size() && !llena()) return false;
    ++linea_;
    size_t fin;
    while ((fin = bloque_.find_first_of("\r\n", aqui_)) == std::string::npos) {
        valor_.append(bloque_, aqui_);
        if (!llena() || valor_.size() > maximo) break;
    }
    if (fin != std::string::npos) {
        valor_.append(bloque_, aqui_, fin - aqui_);
        const bool con_cr = bloque_[fin] == '\r';
        aqui_ = fin + 1;
        if (con_cr && (aqui_ < bloque_.size() || llena()) && bloque_[aqui_] == '\n') ++aqui_;
    }
    std::replace(valor_.begin(), valor_.end(), '\0', ' '); // would end a text
    return true;
}

bool grupos_dxf::siguiente() {
    if (danado_ || !otra_linea(MAXIMO_CODIGO)) return false;
    if (linea_ == 1 && valor_.starts_with("\xEF\xBB\xBF")) valor_.erase(0, 3);
    const std::string_view s = sin_blancos(valor_);
    const auto [fin, error] = std::from_chars(s.data(), s.data() + s.size(), codigo_);
    if (error != std::errc() || fin != s.data() + s.size()) {
        // Blank lines may follow the last group.
        const uint64_t aqui = linea_;
        const auto en_blanco = [&] { return valor_.size() <= MAXIMO_CODIGO && sin_blancos(valor_).empty(); };
        while (en_blanco() && otra_linea(MAXIMO_CODIGO)) {
        }
        danado_ = !en_blanco();
        linea_ = aqui;
        return false;
    }
    return otra_linea(SIZE_MAX);
}

std::string grupos_dxf::nombre() const { return std::string(sin_blancos(valor_)); }

bool grupos_dxf::numero(double &x) const {
    std::string s(sin_blancos(valor_));
    std::replace(s.begin(), s.end(), ',', '.'); // written under a locale
    x = 0;
    const char *desde = s.data() + s.starts_with('+'), *final = s.data() + s.size();
    if (desde == final) return true;
    const auto [fin, error] = std::from_chars(desde, final, x);
    // Too near to 0 is 0.
    if (error == std::errc::result_out_of_range) return s.find_first_of("eE") + 1 == s.find('-', 1);
    return error == std::errc() && fin == final && std::isfinite(x);
}

} // namespace obra
