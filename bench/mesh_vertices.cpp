// The set of unique vertices: a million corners of which about a sixth are different, near the origin and at the
// coordinates of a survey, beside a hash table of three rounded numbers and one of all that makes a vertex.
#include "mesh.h"
#include "mesh/vornmesh_vertices_priv.h"
#include <algorithm>
#include <cmath>
#include <unordered_map>
#include <vector>

namespace bench {

namespace {

std::vector<vn::vertice> sopa(Punto3D o) {
    constexpr int LADO = 408;
    const auto punto = [o](int i, int j) {
        return vn::vertice{{o.x + i, o.y + j, o.z + 20. * std::sin(i * .02) * std::cos(j * .03)}, {0, 0, 1}, {}};
    };
    std::vector<vn::vertice> v;
    for (int j = 0; j < LADO; ++j)
        for (int i = 0; i < LADO; ++i)
            for (const auto &[a, b] : {std::pair{0, 0}, {1, 0}, {1, 1}, {0, 0}, {1, 1}, {0, 1}})
                v.push_back(punto(i + a, j + b));
    v.resize(std::min<size_t>(v.size(), 1000000));
    return v;
}

template <size_t N> struct clave {
    std::array<int64_t, N> k;
    bool operator==(const clave &) const = default;
};
struct huella {
    template <size_t N> size_t operator()(const clave<N> &c) const {
        uint64_t h = 0;
        for (const int64_t x : c.k) h = (h ^ static_cast<uint64_t>(x)) * 0x9E3779B97F4A7C15ull, h ^= h >> 32;
        return h;
    }
};
int64_t redondo(double x) { return static_cast<int64_t>(std::floor(x / 1e-05 + .5)); }
clave<3> lugar(const vn::vertice &v) { return {{redondo(v.p.x), redondo(v.p.y), redondo(v.p.z)}}; }
clave<9> entera(const vn::vertice &v) {
    return {{redondo(v.p.x), redondo(v.p.y), redondo(v.p.z), redondo(v.n.x), redondo(v.n.y), redondo(v.n.z), 1,
             redondo(v.t.x), redondo(v.t.y)}};
}
template <class F> size_t con_tabla(const std::vector<vn::vertice> &v, F &&clave_de) {
    std::unordered_map<decltype(clave_de(v[0])), uint32_t, huella> m;
    m.reserve(v.size() / 4);
    for (const vn::vertice &x : v) m.try_emplace(clave_de(x), static_cast<uint32_t>(m.size()));
    return m.size();
}

} // namespace

int vertices(int pasadas) {
    int fuera = 0;
    for (const auto &[titulo, o] : {std::pair<const char *, Punto3D>{"merging equal vertices, a corner", {}},
                                    {"merging equal vertices at survey coordinates, a corner", {5e5, 4.5e6, 600}}}) {
        const std::vector<vn::vertice> v = sopa(o);
        const double n = static_cast<double>(v.size());
        std::vector<uint32_t> numeros(v.size());
        size_t distintos = 0;
        const auto nuestro = [&, ordena = true] {
            vn::vertices_unicos u;
            for (size_t i = 0; i < v.size(); ++i) numeros[i] = u.anade(v[i], true);
            if (ordena) {
                const auto orden = u.completa();
                for (uint32_t &k : numeros) k = orden.lugares[k];
            }
            distintos = u.cuantos();
        };
        nuestro();
        debe(distintos == con_tabla(v, lugar) && distintos == con_tabla(v, entera), "distinct vertices");
        fuera += mide(titulo,
                      {{"unique vertices, in their order", n, nuestro},
                       {"unordered_map of the position", n, [&] { distintos = con_tabla(v, lugar); }},
                       {"unordered_map of all", n, [&] { distintos = con_tabla(v, entera); }}},
                      {{"unique vertices, in their order", "unordered_map of the position", 2.},
                       {"unique vertices, in their order", "unordered_map of all", 0.}},
                      pasadas);
    }
    return fuera;
}

} // namespace bench
