// The set of unique vertices of the compacting generators.
//
// Two vertices are one when position, normal, border flag and texture coordinate agree, each number rounded to 1e-05;
// rounded numbers that differ do so by more than the tolerance of their order, 1e-06, so that they are compared
// exactly. An index is a place in the order of position, normal, flag and texture, and so is known only once the set
// is complete: until then a vertex goes by the number that it got when it was added.
#pragma once

#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include <array>
#include <bit>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <limits>
#include <vector>

namespace vn {

// A corner of a triangle as the tessellator takes it: point, normal, texture coordinate.
struct vertice {
    Punto3D p, n;
    Punto2D t;
};

class vertices_unicos {
  public:
    // Room for as many corners without growing.
    void reserva(size_t n) {
        if (claves_.empty()) claves_.reserve(2 * n); // most corners come with both flags
        if (n > TABLA_MINIMA / 2) rehace(std::bit_ceil(2 * n));
    }

    // The number of the vertex, new or not.
    uint32_t anade(const vertice &v, bool borde) {
        if (huecos_.empty()) rehace(TABLA_MINIMA);
        else if (2 * (claves_.size() + 1) > huecos_.size()) rehace(2 * huecos_.size());
        // Corners come in runs of one normal and one texture coordinate.
        if (std::memcmp(&v.n, &ultima_.n, sizeof v.n + sizeof v.t) != 0 || claves_.empty()) {
            ultima_.n = v.n, ultima_.t = v.t;
            clave_.k[3] = redondo(v.n.x), clave_.k[4] = redondo(v.n.y), clave_.k[5] = redondo(v.n.z);
            clave_.k[7] = redondo(v.t.x), clave_.k[8] = redondo(v.t.y);
            mezcla_ = mezcla(mezcla(mezcla(mezcla(mezcla(0, clave_.k[3]), clave_.k[4]), clave_.k[5]), clave_.k[7]),
                             clave_.k[8]);
        }
        clave_.k[0] = redondo(v.p.x), clave_.k[1] = redondo(v.p.y), clave_.k[2] = redondo(v.p.z);
        clave_.k[6] = borde;
        const uint64_t h = mezcla(mezcla(mezcla(mezcla_ + clave_.k[6], clave_.k[0]), clave_.k[1]), clave_.k[2]);
        for (size_t i = (h ^ h >> 32) & (huecos_.size() - 1);; i = (i + 1) & (huecos_.size() - 1)) {
            const uint32_t k = huecos_[i];
            if (k == LIBRE) {
                huecos_[i] = static_cast<uint32_t>(claves_.size());
                claves_.push_back(clave_);
                return huecos_[i];
            }
            if (claves_[k] == clave_) return k;
        }
    }

    size_t cuantos() const { return claves_.size(); }

    // The order: the number of each vertex, by its place; and back.
    struct orden {
        std::vector<uint32_t> numeros, lugares;
    };
    orden completa() const {
        // The position decides nearly always, so that it is at hand.
        struct puesto {
            std::array<uint64_t, 3> p;
            uint32_t numero;
        };
        std::vector<puesto> puestos(claves_.size());
        for (uint32_t i = 0; i < puestos.size(); ++i)
            puestos[i] = {{claves_[i].k[0], claves_[i].k[1], claves_[i].k[2]}, i};
        std::sort(puestos.begin(), puestos.end(), [this](const puesto &a, const puesto &b) {
            if (a.p[0] != b.p[0]) return a.p[0] < b.p[0];
            if (a.p[1] != b.p[1]) return a.p[1] < b.p[1];
            if (a.p[2] != b.p[2]) return a.p[2] < b.p[2];
            return claves_[a.numero].k < claves_[b.numero].k;
        });
        orden o{std::vector<uint32_t>(puestos.size()), std::vector<uint32_t>(puestos.size())};
        for (uint32_t i = 0; i < puestos.size(); ++i) {
            o.numeros[i] = puestos[i].numero;
            o.lugares[puestos[i].numero] = i;
        }
        return o;
    }

    // A vertex by its number: rounded.
    vertice da(uint32_t numero) const {
        const auto &k = claves_[numero].k;
        return {{valor(k[0]), valor(k[1]), valor(k[2])},
                {valor(k[3]), valor(k[4]), valor(k[5])},
                {valor(k[7]), valor(k[8])}};
    }
    bool es_borde(uint32_t numero) const { return claves_[numero].k[6] != 0; }

  private:
    // From here on a double is a whole number.
    static constexpr double PASO = 1e-05, ENTEROS = 4503599627370496.;
    static constexpr uint32_t LIBRE = 0xFFFFFFFF;
    static constexpr size_t TABLA_MINIMA = 64;
    static constexpr uint64_t SIGNO = uint64_t{1} << 63;

    // In the sequence of the order: position, normal, flag, texture coordinate.
    struct clave {
        std::array<uint64_t, 9> k{};
        bool operator==(const clave &otra) const { return std::memcmp(&k, &otra.k, sizeof k) == 0; }
    };

    // How many steps a number is, as whole numbers in the same order; what is no number comes after all others.
    static uint64_t redondo(double x) {
        double pasos = x / PASO + 0.5;
        if (std::fabs(pasos) < ENTEROS) [[likely]] { // std::floor, without a call
            const auto entero = static_cast<double>(static_cast<int64_t>(pasos));
            pasos = entero - (entero > pasos ? 1. : 0.);
        } else if (std::isnan(pasos)) {
            pasos = std::numeric_limits<double>::quiet_NaN();
        }
        const auto bits = std::bit_cast<uint64_t>(pasos);
        return bits & SIGNO ? ~bits : bits | SIGNO;
    }
    static double valor(uint64_t k) { return std::bit_cast<double>(k & SIGNO ? k & ~SIGNO : ~k) * PASO; }

    static uint64_t mezcla(uint64_t h, uint64_t x) {
        h = (h ^ x) * 0x9E3779B97F4A7C15u;
        return h ^ h >> 29;
    }
    static uint64_t huella(const clave &c) {
        uint64_t h = 0;
        for (const int i : {3, 4, 5, 7, 8}) h = mezcla(h, c.k[i]);
        h += c.k[6];
        for (const int i : {0, 1, 2}) h = mezcla(h, c.k[i]);
        return h;
    }
    void rehace(size_t n) {
        huecos_.assign(n, LIBRE);
        for (uint32_t k = 0; k < claves_.size(); ++k) {
            const uint64_t h = huella(claves_[k]);
            size_t i = (h ^ h >> 32) & (n - 1);
            while (huecos_[i] != LIBRE) i = (i + 1) & (n - 1);
            huecos_[i] = k;
        }
    }

    std::vector<clave> claves_;
    std::vector<uint32_t> huecos_; // open addressing
    vertice ultima_{};
    clave clave_;
    uint64_t mezcla_ = 0;
};

} // namespace vn
