#include "foundation/platform/posix/ruta.h"
#include <cstdint>

namespace vn::plat {
namespace {

// Length of the well-formed UTF-8 sequence at the start of `s`, and its code point; 0 if there is none.
size_t secuencia(std::string_view s, uint32_t &c) {
    const auto b = [&](size_t i) { return static_cast<unsigned char>(s[i]); };
    const size_t n = b(0) < 0x80 ? 1 : b(0) < 0xC2 ? 0 : b(0) < 0xE0 ? 2 : b(0) < 0xF0 ? 3 : b(0) < 0xF5 ? 4 : 0;
    if (n == 0 || n > s.size()) return 0;
    c = n == 1 ? b(0) : b(0) & (0xFFu >> (n + 1));
    for (size_t i = 1; i < n; ++i) {
        if ((b(i) & 0xC0) != 0x80) return 0;
        c = c << 6 | (b(i) & 0x3Fu);
    }
    // Overlong forms, surrogates and numbers beyond the last character are not characters.
    if ((n == 3 && (c < 0x800 || (c >= 0xD800 && c < 0xE000))) || (n == 4 && (c < 0x10000 || c > 0x10FFFF))) return 0;
    return n;
}

} // namespace

std::basic_string<vnwchar> ruta_ancha(std::string_view bytes) {
    std::basic_string<vnwchar> u;
    u.reserve(bytes.size());
    for (size_t i = 0; i < bytes.size();) {
        uint32_t c = 0;
        const size_t n = secuencia(bytes.substr(i), c);
        if (n == 0 || c == '\\') {
            u += static_cast<vnwchar>(0xDC00 + static_cast<unsigned char>(bytes[i++]));
            continue;
        }
        i += n;
        if (c < 0x10000) {
            u += static_cast<vnwchar>(c);
        } else {
            u += static_cast<vnwchar>(0xD800 + ((c - 0x10000) >> 10));
            u += static_cast<vnwchar>(0xDC00 + ((c - 0x10000) & 0x3FF));
        }
    }
    return u;
}

std::string ruta_del_sistema(std::basic_string_view<vnwchar> ruta) {
    std::string s;
    s.reserve(ruta.size() + 16);
    const auto pon = [&](uint32_t byte) { s += static_cast<char>(byte); };
    for (size_t i = 0; i < ruta.size(); ++i) {
        uint32_t c = ruta[i];
        if (c >= 0xD800 && c < 0xDC00 && i + 1 < ruta.size() && ruta[i + 1] >= 0xDC00 && ruta[i + 1] < 0xE000)
            c = 0x10000 + ((c - 0xD800) << 10) + (ruta[++i] - 0xDC00u);
        if (c < 0x80) {
            pon(c == '\\' ? '/' : c);
        } else if ((c >= 0xDC80 && c < 0xDD00) || c == 0xDC00 + '\\') {
            pon(c - 0xDC00);
        } else if (c < 0x800) {
            pon(0xC0 | c >> 6);
            pon(0x80 | (c & 0x3F));
        } else if (c < 0x10000) {
            pon(0xE0 | c >> 12);
            pon(0x80 | (c >> 6 & 0x3F));
            pon(0x80 | (c & 0x3F));
        } else {
            pon(0xF0 | c >> 18);
            pon(0x80 | (c >> 12 & 0x3F));
            pon(0x80 | (c >> 6 & 0x3F));
            pon(0x80 | (c & 0x3F));
        }
    }
    return s;
}

} // namespace vn::plat
