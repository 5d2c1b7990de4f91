// For tests over many cases made by chance, the same on every run and every platform.
//
//   vn::azar a(7);                            numbers: a.entre(-10., 10.), a.entero(3), a.moneda()
//   vn::huella h; h << x << y << n;           a digest of the very bits of what was computed
//   EXPECT_EQ(h(), 0x1234u);                  the same number natively and under Wine: for results without libm
//   const vn::lugar l = vn::lugar_de(caso);   near the origin, and at the coordinates of a survey
//   EXPECT_TRUE(vn::cerca(x, 0.25, 10.));     within 1e-12 x scale of a value kept in the test: for those with libm
//   vn::los_numeros("0 0, 4 2.5")                 the numbers of a text
//   HASTA(5e-5, 1, igual({d, 0}, {0, 0}));    a limit: what is said of d holds there, and not one step further
//   for (const auto &fila : vn::tabla("C_polygons/segment_pairs.tsv")) fila[0]...    rows made by others
#pragma once

#include "filas.h"
#include <bit>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <fstream>
#include <gtest/gtest.h>
#include <string>
#include <type_traits>
#include <vector>

namespace vn {

// Not the standard distributions, which differ between run-time libraries.
class azar {
  public:
    explicit azar(uint64_t semilla) : s_(semilla * 0x9E3779B97F4A7C15ull + 1) {}
    uint64_t siguiente() { return s_ ^= s_ << 13, s_ ^= s_ >> 7, s_ ^= s_ << 17; }
    // [0, 1), [a, b), {0 ... n - 1}, {a ... b}.
    double uno() { return static_cast<double>(siguiente() >> 11) * 0x1.0p-53; }
    double entre(double a, double b) { return a + (b - a) * uno(); }
    uint32_t entero(uint32_t n) { return static_cast<uint32_t>((siguiente() >> 32) * n >> 32); }
    int64_t entero_entre(int64_t a, int64_t b) {
        return a + static_cast<int64_t>((siguiente() >> 1) % (static_cast<uint64_t>(b - a) + 1));
    }
    bool moneda() { return siguiente() >> 63 != 0; }

  private:
    uint64_t s_;
};

// Where a property is run, by turns: at the origin and at the coordinates of a survey. `escala` is what the rounding of
// the coordinates there is in: a length of the property's own at the origin.
struct lugar {
    double x, y, z;
    double escala(double propia) const { return propia + 0.01 * y; }
};
inline lugar lugar_de(int caso) { return caso % 2 == 0 ? lugar{0., 0., 0.} : lugar{5e5, 4.5e6, 600.}; }

// FNV-1a of the bytes, lowest first; one not-a-number for all.
class huella {
  public:
    template <class T> huella &operator<<(T x) {
        static_assert(std::is_arithmetic_v<T>);
        uint64_t bits;
        if constexpr (std::is_floating_point_v<T>)
            bits = std::isnan(x) ? 0x7FF8000000000000ull : std::bit_cast<uint64_t>(static_cast<double>(x));
        else bits = static_cast<uint64_t>(x);
        for (int i = 0; i < 8; ++i, bits >>= 8) h_ = (h_ ^ (bits & 0xFF)) * 1099511628211ull;
        return *this;
    }
    // Of a text, or a file's content, its bytes.
    huella &operator<<(const std::string &s) {
        for (const char c : s) h_ = (h_ ^ static_cast<unsigned char>(c)) * 1099511628211ull;
        return *this;
    }
    uint64_t operator()() const { return h_; }

  private:
    uint64_t h_ = 14695981039346656037ull;
};

// Whether two platforms' results may be one value: within 1e-12 of the scale of the figures that went into it.
inline testing::AssertionResult cerca(double visto, double esperado, double escala = 1.) {
    if (std::fabs(visto - esperado) <= 1e-12 * escala) return testing::AssertionSuccess();
    char texto[120];
    std::snprintf(texto, sizeof texto, "%.17g, not %.17g to 1e-12 x %g", visto, esperado, escala);
    return testing::AssertionFailure() << texto;
}

// The numbers beside one.
inline double tras(double x) { return std::nextafter(x, INF); }
inline double ante(double x) { return std::nextafter(x, -INF); }

template <class F> void hasta(double ultimo, double hacia, F vale, const char *que, int linea) {
    EXPECT_TRUE(vale(ultimo)) << "line " << linea << ", at " << ultimo << ": " << que;
    EXPECT_FALSE(vale(std::nextafter(ultimo, hacia))) << "line " << linea << ", beyond " << ultimo << ": " << que;
}
#define HASTA(ultimo, hacia, ...)                                                                                      \
    ::vn::hasta(                                                                                                       \
        ultimo, hacia, [&]([[maybe_unused]] double d) -> bool { return __VA_ARGS__; }, #__VA_ARGS__, __LINE__)

// The numbers of a text, in order, whatever stands between them.
inline std::vector<double> los_numeros(std::string_view s) {
    std::vector<double> r;
    for (const char *p = s.data(), *const fin = p + s.size(); p < fin;) {
        double x = 0.;
        const auto visto = std::from_chars(p, fin, x);
        if (visto.ec == std::errc()) r.push_back(x);
        p = visto.ptr + (visto.ec != std::errc());
    }
    return r;
}

// The rows of a table of the outside data but its title, split at the tabs.
inline std::vector<std::vector<std::string>> tabla(const std::string &nombre, bool con_titulo = false) {
    std::ifstream f(dato(nombre));
    std::vector<std::vector<std::string>> filas;
    std::string linea;
    if (!con_titulo) std::getline(f, linea);
    while (std::getline(f, linea)) {
        if (linea.ends_with('\r')) linea.pop_back();
        const auto campos = campo::parte(linea);
        filas.emplace_back(campos.begin(), campos.end());
    }
    EXPECT_FALSE(filas.empty()) << nombre;
    return filas;
}

} // namespace vn
